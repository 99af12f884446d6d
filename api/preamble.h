/* pxlimx: image-processing primitives for 64-bit x86.
 *
 * Every function performs one operation for one pixel type and one channel layout over a region of images that the caller
 * owns. Nothing is initialised, nothing is kept between calls, and any function may be called from any thread; concurrent
 * calls are safe as long as their destinations do not overlap.
 *
 * Names: pxli + operation + _ + element types + _ + layout + mode.
 *   element types  8u 8s 16u 16s 32u 32s 32f 64f, complex 16sc 32sc 32fc, bits 1u; two codes: source, then destination
 *   layouts        C1 C3 C4 interleaved; AC4 four elements per pixel of which the first three are processed (the fourth of
 *                  the destination keeps its value); P3 P4 planar; C3C C4C one chosen channel of interleaved pixels;
 *                  two layouts: source, then destination
 *   modes          R region, I in place, M masked (pixels whose 8u mask element is not 0), Sfs result scaled by
 *                  2 to the power of minus scaleFactor
 *
 * Images: a pointer to the first element of the region and a step, the signed count of bytes from the start of one row to the
 * start of the next. Element c of pixel (x, y) lies at base + y * step + (x * elementsPerPixel + c) * elementSize. Planar
 * images are arrays of plane pointers that share one step. Where the pixels of an operand have a channel of interest, its
 * pointer addresses that channel of the first pixel. roiSize is the width and height in pixels of the region processed.
 *
 * Memory: a function reads and writes only the region described: no byte past the last element of a row and none between
 * rows. In AC4, channel-of-interest and masked destinations an element that keeps its value may be stored again with the
 * value it had: the fourth elements of AC4 pixels, elements between two of the chosen channel, pixels beside masked ones. The
 * fourth element of an AC4 source is never read. Rows are processed from first to last. Where the operands of a pointwise
 * function overlap in memory, the result is that of the plain loop over each row from left to right: element by element, or
 * pixel by pixel where whole pixels are handled (masks, channel orders, AC4, borders). Filters, which read neighbours, have
 * in-place forms; their sources and destinations must not overlap otherwise.
 *
 * Status: every function but the allocators and the version query returns a PxlStatus. Arguments are checked before anything
 * is read or written, in the order that each family states; after a negative status nothing has been written.
 */
#ifndef PXLI_H
#define PXLI_H

#include <stdint.h>

#include "pxl_linkage.h"

/* ---- Types ------------------------------------------------------------------------------------------------------------ */

typedef int32_t PxlStatus;

typedef struct {
    int32_t width;
    int32_t height;
} ImageSize;

typedef struct {
    int32_t x;
    int32_t y;
} ImagePoint;

typedef struct {
    int32_t x;
    int32_t y;
    int32_t width;
    int32_t height;
} ImageRect;

/* Complex elements: real part first. */
typedef struct {
    int16_t re;
    int16_t im;
} Pxl16sc;

typedef struct {
    int32_t re;
    int32_t im;
} Pxl32sc;

typedef struct {
    float re;
    float im;
} Pxl32fc;

typedef struct {
    int32_t major;
    int32_t minor;
    int32_t buildMajor;
    int32_t buildNumber;
    char cpuCode[4];
    const char* libraryName;
    const char* versionText;
    const char* buildDate;
} LibVersion;

typedef int32_t PxlRoundMode;
enum {
    PXL_ROUND_ZERO = 0,
    PXL_ROUND_NEAR_EVEN = 1,
    PXL_ROUND_HALF_AWAY = 2
};

typedef int32_t PxlAxis;
enum {
    PXL_AXIS_HORIZONTAL = 0, /* rows reversed */
    PXL_AXIS_VERTICAL = 1,   /* columns reversed */
    PXL_AXIS_BOTH = 2        /* rotation by 180 degrees */
};

/* ---- Status codes: 0 success, negative errors (nothing was written), positive warnings (the result is complete) -------- */

enum {
    PXL_OK = 0,
    PXL_W_NO_OPERATION = 1,            /* the mapped region is empty */
    PXL_W_SQRT_NEGATIVE = 3,           /* the square root of a negative element was asked for */
    PXL_W_DIV_BY_ZERO = 6,             /* at least one element was divided by zero */
    PXL_W_NOT_PARALLELOGRAM = 28,      /* the quadrangle of an affine transform is no parallelogram */
    PXL_W_NO_INTERSECTION = 29,        /* the source region begins outside the source image */
    PXL_W_NO_OVERLAP = 30,             /* the transformed source does not meet the destination region */
    PXL_E_BAD_ARG = -5,                /* a numeric argument outside its domain */
    PXL_E_SIZE = -6,                   /* a width, height or length below 1 */
    PXL_E_RANGE = -7,                  /* a lower bound above its upper bound */
    PXL_E_NULL_PTR = -8,               /* a required pointer is null */
    PXL_E_MEM_ALLOC = -9,              /* scratch or object memory could not be allocated */
    PXL_E_DIV_BY_ZERO = -10,           /* a constant divisor is zero */
    PXL_E_OUT_OF_RANGE = -11,          /* an argument outside its allowed range */
    PXL_E_SCALE_RANGE = -13,           /* vMax - vMin <= 0 */
    PXL_E_STEP = -14,                  /* a row step below 1, or below the minimum that the family states */
    PXL_E_FFT_ORDER = -15,             /* a transform order outside 0..30 */
    PXL_E_FFT_FLAG = -16,              /* an unknown normalisation flag */
    PXL_E_CONTEXT = -17,               /* a prepared object of another kind */
    PXL_E_THRESHOLD = -18,             /* a lower threshold above its upper threshold */
    PXL_E_MOMENT_ZERO = -20,           /* the zeroth moment is zero */
    PXL_E_MIRROR_AXIS = -21,           /* an axis other than 0, 1 or 2 */
    PXL_E_INTERPOLATION = -22,         /* an interpolation that the function does not accept */
    PXL_E_RESIZE_FACTOR = -23,         /* a resize factor outside its range */
    PXL_E_RESAMPLE_LENGTH = -26,       /* a row-resampling length below 1 */
    PXL_E_RESAMPLE_INDEX = -28,        /* a row-resampling start outside its row */
    PXL_E_RESAMPLE_SIZE = -29,         /* a row-resampling size below 1 */
    PXL_E_MASK_SIZE = -33,             /* a mask or kernel size that is not accepted */
    PXL_E_ANCHOR = -34,                /* an anchor outside its mask */
    PXL_E_EPS = -36,                   /* a negative tolerance */
    PXL_E_STEP_BORDER = -37,           /* a step too small for the region and the border that is read */
    PXL_E_CHANNEL = -47,               /* a channel index outside the state's channels */
    PXL_E_ALPHA_TYPE = -50,            /* an unknown alpha-compositing operation */
    PXL_E_DIVISOR = -51,               /* an integer divisor of 0 */
    PXL_E_CHANNEL_COUNT = -53,         /* a channel count other than 1, 3 or 4 */
    PXL_E_DEGENERATE_TRANSFORM = -56,  /* singular transform coefficients */
    PXL_E_WARP_SIZE = -57,             /* a warp source smaller than 2 pixels, or a rectangle smaller than 1 */
    PXL_E_QUAD = -58,                  /* a degenerate quadrangle */
    PXL_E_ZERO_MASK = -59,             /* a structuring element without a non-zero byte */
    PXL_E_CHANNEL_ORDER = -60,         /* an entry of a channel order out of range */
    PXL_E_LUT_LEVELS = -106,           /* a lookup table with fewer than 2 levels */
    PXL_E_HIST_LEVELS = -107,          /* a histogram with fewer than 2 levels */
    PXL_E_STEP_ALIGN = -108,           /* a step that is not a multiple of 4 bytes */
    PXL_E_NOISE = -125,                /* a noise level outside [0, 1) */
    PXL_E_RESIZE_TOO_SMALL = -201,     /* a destination below half a pixel */
    PXL_E_WEIGHT = -211,               /* a centre weight below 1 */
    PXL_E_DECIMATE_FRACTION = -212,    /* an unknown decimation fraction */
    PXL_E_ROUND_MODE = -213,           /* a rounding mode other than 0, 1 or 2 */
    PXL_E_NOT_SUPPORTED_MODE = -9999   /* an enumerated mode that the function does not support */
};

