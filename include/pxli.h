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

/* ==== Version and image memory ========================================================================================= */

/* --------------------------------------------------------------------------------------------------------------
 * GetLibVersion (frame/version.cpp)
 *
 * The version of the library: a constant record that lives as long as the library is loaded. Every call returns the same
 * address; it cannot fail.
 */
const LibVersion* pxliGetLibVersion(void);

/* --------------------------------------------------------------------------------------------------------------
 * Malloc (frame/memory.cpp)
 *
 * A new image of width x height pixels: returns the address of its first pixel, a multiple of 32, and stores the row step in
 * *stepBytes: the row length in bytes rounded up to a multiple of 32. The pixels are not initialised.
 * stepBytes null: returns null, nothing is written. width or height < 1: stores 0 and returns null. The size step * height is a
 * signed 32-bit product; where it wraps to a value below 1, or where no memory is left, null is returned and the step stays
 * stored. AC4 images have four elements per pixel. Release the image with pxliFree.
 */
uint8_t* pxliMalloc_8u_C1(int width, int height, int* stepBytes);
uint8_t* pxliMalloc_8u_C2(int width, int height, int* stepBytes);
uint8_t* pxliMalloc_8u_C3(int width, int height, int* stepBytes);
uint8_t* pxliMalloc_8u_C4(int width, int height, int* stepBytes);
uint8_t* pxliMalloc_8u_AC4(int width, int height, int* stepBytes);
uint16_t* pxliMalloc_16u_C1(int width, int height, int* stepBytes);
uint16_t* pxliMalloc_16u_C2(int width, int height, int* stepBytes);
uint16_t* pxliMalloc_16u_C3(int width, int height, int* stepBytes);
uint16_t* pxliMalloc_16u_C4(int width, int height, int* stepBytes);
uint16_t* pxliMalloc_16u_AC4(int width, int height, int* stepBytes);
int16_t* pxliMalloc_16s_C1(int width, int height, int* stepBytes);
int16_t* pxliMalloc_16s_C2(int width, int height, int* stepBytes);
int16_t* pxliMalloc_16s_C3(int width, int height, int* stepBytes);
int16_t* pxliMalloc_16s_C4(int width, int height, int* stepBytes);
int16_t* pxliMalloc_16s_AC4(int width, int height, int* stepBytes);
int32_t* pxliMalloc_32s_C1(int width, int height, int* stepBytes);
int32_t* pxliMalloc_32s_C2(int width, int height, int* stepBytes);
int32_t* pxliMalloc_32s_C3(int width, int height, int* stepBytes);
int32_t* pxliMalloc_32s_C4(int width, int height, int* stepBytes);
int32_t* pxliMalloc_32s_AC4(int width, int height, int* stepBytes);
float* pxliMalloc_32f_C1(int width, int height, int* stepBytes);
float* pxliMalloc_32f_C2(int width, int height, int* stepBytes);
float* pxliMalloc_32f_C3(int width, int height, int* stepBytes);
float* pxliMalloc_32f_C4(int width, int height, int* stepBytes);
float* pxliMalloc_32f_AC4(int width, int height, int* stepBytes);
Pxl32sc* pxliMalloc_32sc_C1(int width, int height, int* stepBytes);
Pxl32sc* pxliMalloc_32sc_C2(int width, int height, int* stepBytes);
Pxl32sc* pxliMalloc_32sc_C3(int width, int height, int* stepBytes);
Pxl32sc* pxliMalloc_32sc_C4(int width, int height, int* stepBytes);
Pxl32sc* pxliMalloc_32sc_AC4(int width, int height, int* stepBytes);
Pxl32fc* pxliMalloc_32fc_C1(int width, int height, int* stepBytes);
Pxl32fc* pxliMalloc_32fc_C2(int width, int height, int* stepBytes);
Pxl32fc* pxliMalloc_32fc_C3(int width, int height, int* stepBytes);
Pxl32fc* pxliMalloc_32fc_C4(int width, int height, int* stepBytes);
Pxl32fc* pxliMalloc_32fc_AC4(int width, int height, int* stepBytes);

/* --------------------------------------------------------------------------------------------------------------
 * Free (frame/memory.cpp)
 *
 * Releases an image of pxliMalloc_*. A null pointer is ignored.
 */
void pxliFree(void* block);

/* ==== Data exchange ==================================================================================================== */

/* --------------------------------------------------------------------------------------------------------------
 * Copy (exchange/copy.cpp)
 *
 * Copies a region, bit for bit.
 *   C1R C3R C4R    every element
 *   AC4R           elements 0..2 of every pixel; element 3 of the destination keeps its value
 *   C3AC4R AC4C3R  three elements to elements 0..2 of four, and back
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1.
 * Steps are not checked: any step is honoured, 0 and negative ones included.
 */
PxlStatus pxliCopy_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32s_C1R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32s_C3R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32s_C4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32s_AC4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_8u_C3AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16s_C3AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16u_C3AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32s_C3AC4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32f_C3AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_8u_AC4C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16s_AC4C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16u_AC4C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32s_AC4C3R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32f_AC4C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * Copy, masked (exchange/copy_masked.cpp)
 *
 * Copies the pixels whose 8u mask element is not 0; elsewhere the destination keeps its value. AC4MR copies elements 0..2.
 * Statuses, in this order: -8 src, dst or the mask is null; -6 width or height < 1.
 * Steps are not checked: any step is honoured, 0 and negative ones included.
 */
PxlStatus pxliCopy_8u_C1MR(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_8u_C3MR(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_8u_C4MR(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_16s_C1MR(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_16s_C3MR(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_16s_C4MR(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_16u_C1MR(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_16u_C3MR(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_16u_C4MR(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_32s_C1MR(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_32s_C3MR(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_32s_C4MR(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_32f_C1MR(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_32f_C3MR(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_32f_C4MR(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_8u_AC4MR(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_16s_AC4MR(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_16u_AC4MR(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_32s_AC4MR(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);
PxlStatus pxliCopy_32f_AC4MR(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const uint8_t* mask, int maskStep);

/* --------------------------------------------------------------------------------------------------------------
 * Copy, channels and planes (exchange/copy_channels.cpp)
 *
 * Copies between interleaved, one-channel and planar images.
 *   C3CR C4CR     the addressed channel to the addressed channel
 *   C3C1R C4C1R   the addressed channel to a one-channel image
 *   C1C3R C1C4R   a one-channel image to the addressed channel; the other channels keep their values
 *   C3P3R C4P4R   element c of every pixel to plane c
 *   P3C3R P4C4R   plane c to element c of every pixel
 * Statuses, in this order: -8 src, dst or a plane is null; -6 width or height < 1.
 * Steps are not checked: any step is honoured, 0 and negative ones included.
 */
PxlStatus pxliCopy_8u_C3CR(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_8u_C4CR(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16s_C3CR(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16s_C4CR(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16u_C3CR(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16u_C4CR(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32s_C3CR(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32s_C4CR(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32f_C3CR(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32f_C4CR(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_8u_C1C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_8u_C1C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_8u_C3C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_8u_C4C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16s_C1C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16s_C1C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16s_C3C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16s_C4C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16u_C1C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16u_C1C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16u_C3C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16u_C4C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32s_C1C3R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32s_C1C4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32s_C3C1R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32s_C4C1R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32f_C1C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32f_C1C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32f_C3C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32f_C4C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_8u_C3P3R(const uint8_t* src, int srcStep, uint8_t* const dst[3], int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_8u_C4P4R(const uint8_t* src, int srcStep, uint8_t* const dst[4], int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16s_C3P3R(const int16_t* src, int srcStep, int16_t* const dst[3], int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16s_C4P4R(const int16_t* src, int srcStep, int16_t* const dst[4], int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16u_C3P3R(const uint16_t* src, int srcStep, uint16_t* const dst[3], int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16u_C4P4R(const uint16_t* src, int srcStep, uint16_t* const dst[4], int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32s_C3P3R(const int32_t* src, int srcStep, int32_t* const dst[3], int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32s_C4P4R(const int32_t* src, int srcStep, int32_t* const dst[4], int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32f_C3P3R(const float* src, int srcStep, float* const dst[3], int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32f_C4P4R(const float* src, int srcStep, float* const dst[4], int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_8u_P3C3R(const uint8_t* const src[3], int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_8u_P4C4R(const uint8_t* const src[4], int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16s_P3C3R(const int16_t* const src[3], int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16s_P4C4R(const int16_t* const src[4], int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16u_P3C3R(const uint16_t* const src[3], int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_16u_P4C4R(const uint16_t* const src[4], int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32s_P3C3R(const int32_t* const src[3], int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32s_P4C4R(const int32_t* const src[4], int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32f_P3C3R(const float* const src[3], int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliCopy_32f_P4C4R(const float* const src[4], int srcStep, float* dst, int dstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * CopyManaged (exchange/copy.cpp)
 *
 * The same as pxliCopy_8u_C1R, under the name that callers with their own memory management use.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1.
 */
PxlStatus pxliCopyManaged_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * Set (exchange/set.cpp)
 *
 * Fills a region with one value per channel: every element (C1R, C3R, C4R), elements 0..2 of every pixel (AC4R), the addressed
 * channel of every pixel (C3CR, C4CR), or the masked pixels only (MR, with the same channel rules). C3, C4 and AC4 forms take an
 * array of 3, 4 and 3 values.
 * Statuses, in this order: -8 dst, the value array or the mask is null; -6 width or height < 1. Steps are not checked.
 */
PxlStatus pxliSet_8u_C1R(uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_8u_C3R(const uint8_t value[3], uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_8u_C4R(const uint8_t value[4], uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_16s_C1R(int16_t value, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_16s_C3R(const int16_t value[3], int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_16s_C4R(const int16_t value[4], int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_16u_C1R(uint16_t value, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_16u_C3R(const uint16_t value[3], uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_16u_C4R(const uint16_t value[4], uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_32s_C1R(int32_t value, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_32s_C3R(const int32_t value[3], int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_32s_C4R(const int32_t value[4], int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_32f_C1R(float value, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_32f_C3R(const float value[3], float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_32f_C4R(const float value[4], float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_8u_AC4R(const uint8_t value[3], uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_16s_AC4R(const int16_t value[3], int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_16u_AC4R(const uint16_t value[3], uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_32s_AC4R(const int32_t value[3], int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_32f_AC4R(const float value[3], float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_8u_C3CR(uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_8u_C4CR(uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_16s_C3CR(int16_t value, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_16s_C4CR(int16_t value, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_16u_C3CR(uint16_t value, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_16u_C4CR(uint16_t value, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_32s_C3CR(int32_t value, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_32s_C4CR(int32_t value, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_32f_C3CR(float value, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_32f_C4CR(float value, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSet_8u_C1MR(uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);
PxlStatus pxliSet_8u_C3MR(const uint8_t value[3], uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);
PxlStatus pxliSet_8u_C4MR(const uint8_t value[4], uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);
PxlStatus pxliSet_16s_C1MR(int16_t value, int16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);
PxlStatus pxliSet_16s_C3MR(const int16_t value[3], int16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);
PxlStatus pxliSet_16s_C4MR(const int16_t value[4], int16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);
PxlStatus pxliSet_16u_C1MR(uint16_t value, uint16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);
PxlStatus pxliSet_16u_C3MR(const uint16_t value[3], uint16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);
PxlStatus pxliSet_16u_C4MR(const uint16_t value[4], uint16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);
PxlStatus pxliSet_32s_C1MR(int32_t value, int32_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);
PxlStatus pxliSet_32s_C3MR(const int32_t value[3], int32_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);
PxlStatus pxliSet_32s_C4MR(const int32_t value[4], int32_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);
PxlStatus pxliSet_32f_C1MR(float value, float* dst, int dstStep, ImageSize roiSize, const uint8_t* mask, int maskStep);
PxlStatus pxliSet_32f_C3MR(const float value[3], float* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);
PxlStatus pxliSet_32f_C4MR(const float value[4], float* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);
PxlStatus pxliSet_8u_AC4MR(const uint8_t value[3], uint8_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);
PxlStatus pxliSet_16s_AC4MR(const int16_t value[3], int16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);
PxlStatus pxliSet_16u_AC4MR(const uint16_t value[3], uint16_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);
PxlStatus pxliSet_32s_AC4MR(const int32_t value[3], int32_t* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);
PxlStatus pxliSet_32f_AC4MR(const float value[3], float* dst, int dstStep, ImageSize roiSize, const uint8_t* mask,
    int maskStep);

/* --------------------------------------------------------------------------------------------------------------
 * Dup (exchange/swap_channels.cpp)
 *
 * Writes each source element to all three elements of the destination pixel.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1. Steps are not checked.
 */
PxlStatus pxliDup_8u_C1C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * SwapChannels (exchange/swap_channels.cpp)
 *
 * Reorders the channels of every pixel: destination channel k receives source channel dstOrder[k].
 *   C3R C3IR  three entries in 0..2
 *   AC4R      three entries in 0..2; element 3 of the destination keeps its value
 *   C4C3R     three entries in 0..3
 *   C4IR      four entries in 0..3
 *   C3C4R     four entries: below 3 copies that source channel, 3 writes val, above 3 leaves the destination channel as it was
 * All source elements of a pixel are read before any is written.
 * Statuses, in this order: -8 src, dst or dstOrder is null; -6 width or height < 1 and -14 a step < 1 (C4IR tests the step
 * before the size; C4C3R and C3C4R test no step); -60 an entry of dstOrder outside its range (C3C4R: a negative one).
 */
PxlStatus pxliSwapChannels_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[3]);
PxlStatus pxliSwapChannels_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[3]);
PxlStatus pxliSwapChannels_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[3]);
PxlStatus pxliSwapChannels_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[3]);
PxlStatus pxliSwapChannels_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[3]);
PxlStatus pxliSwapChannels_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[3]);
PxlStatus pxliSwapChannels_32s_C3R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[3]);
PxlStatus pxliSwapChannels_32s_AC4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[3]);
PxlStatus pxliSwapChannels_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[3]);
PxlStatus pxliSwapChannels_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[3]);
PxlStatus pxliSwapChannels_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const int32_t dstOrder[3]);
PxlStatus pxliSwapChannels_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const int32_t dstOrder[4]);
PxlStatus pxliSwapChannels_8u_C3C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[4], uint8_t val);
PxlStatus pxliSwapChannels_16s_C3C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[4], int16_t val);
PxlStatus pxliSwapChannels_16u_C3C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[4], uint16_t val);
PxlStatus pxliSwapChannels_32s_C3C4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[4], int32_t val);
PxlStatus pxliSwapChannels_32f_C3C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[4], float val);
PxlStatus pxliSwapChannels_8u_C4C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[3]);
PxlStatus pxliSwapChannels_16s_C4C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[3]);
PxlStatus pxliSwapChannels_16u_C4C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[3]);
PxlStatus pxliSwapChannels_32s_C4C3R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[3]);
PxlStatus pxliSwapChannels_32f_C4C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const int32_t dstOrder[3]);

/* --------------------------------------------------------------------------------------------------------------
 * Convert (exchange/convert.cpp)
 *
 * Converts elements to another type, keeping the value.
 * Widening and integer to 32f: exact. Integer narrowing: saturated.
 * From 32f: values at or above the destination's maximum give the maximum, values at or below its minimum the minimum; between,
 * roundMode 0 truncates toward zero, 1 rounds to nearest with ties to even, any other value rounds to nearest with ties away
 * from zero (0.5 with the value's sign is added in single precision, then truncated). NaN gives 0.
 * AC4: elements 0..2.
 * Statuses, in this order: C3 and C4 forms: -6 width < 1; then all: -8 a pointer is null; -6 width or height < 1; -14 a step < 1.
 * roundMode is never rejected.
 */
PxlStatus pxliConvert_8u16u_C1R(const uint8_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8u16u_C3R(const uint8_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8u16u_C4R(const uint8_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8u16s_C1R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8u16s_C3R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8u16s_C4R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8u32s_C1R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8u32s_C3R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8u32s_C4R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8s32s_C1R(const int8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8s32s_C3R(const int8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8s32s_C4R(const int8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16u32s_C1R(const uint16_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16u32s_C3R(const uint16_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16u32s_C4R(const uint16_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16s32s_C1R(const int16_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16s32s_C3R(const int16_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16s32s_C4R(const int16_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8u32f_C1R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8u32f_C3R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8u32f_C4R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8s32f_C1R(const int8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8s32f_C3R(const int8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8s32f_C4R(const int8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16u32f_C1R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16u32f_C3R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16u32f_C4R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16s32f_C1R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16s32f_C3R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16s32f_C4R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16u8u_C1R(const uint16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16u8u_C3R(const uint16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16u8u_C4R(const uint16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16s8u_C1R(const int16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16s8u_C3R(const int16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16s8u_C4R(const int16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_32s8u_C1R(const int32_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_32s8u_C3R(const int32_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_32s8u_C4R(const int32_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_32s8s_C1R(const int32_t* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_32s8s_C3R(const int32_t* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_32s8s_C4R(const int32_t* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8u16u_AC4R(const uint8_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8u16s_AC4R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8u32s_AC4R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8s32s_AC4R(const int8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16u32s_AC4R(const uint16_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16s32s_AC4R(const int16_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8u32f_AC4R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_8s32f_AC4R(const int8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16u32f_AC4R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16s32f_AC4R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16u8u_AC4R(const uint16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_16s8u_AC4R(const int16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_32s8u_AC4R(const int32_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_32s8s_AC4R(const int32_t* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliConvert_32f8u_C1R(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    PxlRoundMode roundMode);
PxlStatus pxliConvert_32f8u_C3R(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    PxlRoundMode roundMode);
PxlStatus pxliConvert_32f8u_C4R(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    PxlRoundMode roundMode);
PxlStatus pxliConvert_32f8s_C1R(const float* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize,
    PxlRoundMode roundMode);
PxlStatus pxliConvert_32f8s_C3R(const float* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize,
    PxlRoundMode roundMode);
PxlStatus pxliConvert_32f8s_C4R(const float* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize,
    PxlRoundMode roundMode);
PxlStatus pxliConvert_32f16u_C1R(const float* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    PxlRoundMode roundMode);
PxlStatus pxliConvert_32f16u_C3R(const float* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    PxlRoundMode roundMode);
PxlStatus pxliConvert_32f16u_C4R(const float* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    PxlRoundMode roundMode);
PxlStatus pxliConvert_32f16s_C1R(const float* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    PxlRoundMode roundMode);
PxlStatus pxliConvert_32f16s_C3R(const float* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    PxlRoundMode roundMode);
PxlStatus pxliConvert_32f16s_C4R(const float* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    PxlRoundMode roundMode);
PxlStatus pxliConvert_32f8u_AC4R(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    PxlRoundMode roundMode);
PxlStatus pxliConvert_32f8s_AC4R(const float* src, int srcStep, int8_t* dst, int dstStep, ImageSize roiSize,
    PxlRoundMode roundMode);
PxlStatus pxliConvert_32f16u_AC4R(const float* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    PxlRoundMode roundMode);
PxlStatus pxliConvert_32f16s_AC4R(const float* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    PxlRoundMode roundMode);

/* --------------------------------------------------------------------------------------------------------------
 * Convert, one-bit images (exchange/bits.cpp)
 *
 * Packs and unpacks one-bit images: eight pixels per byte, the first in the most significant bit. A row starts bitOffset bits
 * into its first byte; offsets above 7 count on into the following bytes.
 * 1u8u: bit 1 gives 255, bit 0 gives 0. Reads the bytes that hold the row's bits.
 * 8u1u: dithers. Each pixel, plus the error carried to it, becomes 1 when it is at or above threshold and 0 otherwise; what
 * remains (against 255 for a 1, 0 for a 0) is carried on in 13-bit fixed point with the weights 7/16 right, 3/16 below left,
 * 5/16 below, 1/16 below right, each share rounded down (R. W. Floyd and L. Steinberg, 1976); shares that leave the row are
 * dropped. Bits before the offset and behind the last pixel keep their values.
 * Scratch (8u1u): three rows of width + 4 32-bit accumulators and 12 more.
 * Statuses, in this order: 8u1u: -8 a pointer is null; -6 width or height < 1 or a negative offset; -9 no scratch memory; steps
 * are not checked. 1u8u: -8; -6 width or height < 1; -14 a step < 1; -6 a negative offset.
 */
PxlStatus pxliConvert_8u1u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, int dstBitOffset,
    ImageSize roiSize, uint8_t threshold);
PxlStatus pxliConvert_1u8u_C1R(const uint8_t* src, int srcStep, int srcBitOffset, uint8_t* dst, int dstStep,
    ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * Scale (exchange/scale.cpp)
 *
 * Maps the whole range of the source type linearly onto the whole range of the destination type; 32f stands for the range
 * vMin..vMax.
 *   8u32f              dst = src * ((vMax - vMin) / 255) + vMin, in single precision
 *   32f8u              x >= vMax or NaN gives 255, x <= vMin gives 0; between, with k = 255 / (vMax - vMin):
 *                      x * k + (0 - k) * vMin + 0.5 in single precision, truncated, a tie to even
 *   8u16u 8u16s 8u32s  exact: 257 * src, 257 * src - 32768, 16843009 * src - 2147483648
 *   16u8u 16s8u 32s8u  (src - minimum) / 257 (32s: / 16843009) rounded to nearest; the result does not depend on hint
 * AC4: elements 0..2.
 * Statuses, in this order: 32f members: -13 vMax - vMin <= 0; then C3 and C4 forms: -6 width < 1; then all: -8 a pointer is null;
 * -6 width or height < 1; -14 a step < 1.
 */
PxlStatus pxliScale_8u16u_C1R(const uint8_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliScale_8u16u_C3R(const uint8_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliScale_8u16u_C4R(const uint8_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliScale_8u16s_C1R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliScale_8u16s_C3R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliScale_8u16s_C4R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliScale_8u32s_C1R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliScale_8u32s_C3R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliScale_8u32s_C4R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliScale_8u16u_AC4R(const uint8_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliScale_8u16s_AC4R(const uint8_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliScale_8u32s_AC4R(const uint8_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliScale_16u8u_C1R(const uint16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int hint);
PxlStatus pxliScale_16u8u_C3R(const uint16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int hint);
PxlStatus pxliScale_16u8u_C4R(const uint16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int hint);
PxlStatus pxliScale_16s8u_C1R(const int16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int hint);
PxlStatus pxliScale_16s8u_C3R(const int16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int hint);
PxlStatus pxliScale_16s8u_C4R(const int16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int hint);
PxlStatus pxliScale_32s8u_C1R(const int32_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int hint);
PxlStatus pxliScale_32s8u_C3R(const int32_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int hint);
PxlStatus pxliScale_32s8u_C4R(const int32_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int hint);
PxlStatus pxliScale_16u8u_AC4R(const uint16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    int hint);
PxlStatus pxliScale_16s8u_AC4R(const int16_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int hint);
PxlStatus pxliScale_32s8u_AC4R(const int32_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, int hint);
PxlStatus pxliScale_8u32f_C1R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, float vMin,
    float vMax);
PxlStatus pxliScale_8u32f_C3R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, float vMin,
    float vMax);
PxlStatus pxliScale_8u32f_C4R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, float vMin,
    float vMax);
PxlStatus pxliScale_8u32f_AC4R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, float vMin,
    float vMax);
PxlStatus pxliScale_32f8u_C1R(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, float vMin,
    float vMax);
PxlStatus pxliScale_32f8u_C3R(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, float vMin,
    float vMax);
PxlStatus pxliScale_32f8u_C4R(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, float vMin,
    float vMax);
PxlStatus pxliScale_32f8u_AC4R(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize, float vMin,
    float vMax);

/* --------------------------------------------------------------------------------------------------------------
 * CopyConstBorder (exchange/border.cpp)
 *
 * Copies a source region of srcSize pixels into a destination region of dstSize pixels, borderTop rows down and borderLeft
 * pixels to the right, and fills the margin around it with one value per channel. AC4: elements 0..2, in the margin too.
 * Statuses, in this order: -8 src or dst is null; -14 a step < 1; -6 a width or height < 1, a negative border, or a destination
 * smaller than border + source; -8 the value array (C3, C4, AC4) is null.
 */
PxlStatus pxliCopyConstBorder_8u_C1R(const uint8_t* src, int srcStep, ImageSize srcSize, uint8_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft, uint8_t value);
PxlStatus pxliCopyConstBorder_8u_C3R(const uint8_t* src, int srcStep, ImageSize srcSize, uint8_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft, const uint8_t value[3]);
PxlStatus pxliCopyConstBorder_8u_C4R(const uint8_t* src, int srcStep, ImageSize srcSize, uint8_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft, const uint8_t value[4]);
PxlStatus pxliCopyConstBorder_8u_AC4R(const uint8_t* src, int srcStep, ImageSize srcSize, uint8_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft, const uint8_t value[3]);
PxlStatus pxliCopyConstBorder_16s_C1R(const int16_t* src, int srcStep, ImageSize srcSize, int16_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft, int16_t value);
PxlStatus pxliCopyConstBorder_16s_C3R(const int16_t* src, int srcStep, ImageSize srcSize, int16_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft, const int16_t value[3]);
PxlStatus pxliCopyConstBorder_16s_C4R(const int16_t* src, int srcStep, ImageSize srcSize, int16_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft, const int16_t value[4]);
PxlStatus pxliCopyConstBorder_16s_AC4R(const int16_t* src, int srcStep, ImageSize srcSize, int16_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft, const int16_t value[3]);
PxlStatus pxliCopyConstBorder_16u_C1R(const uint16_t* src, int srcStep, ImageSize srcSize, uint16_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft, uint16_t value);
PxlStatus pxliCopyConstBorder_16u_C3R(const uint16_t* src, int srcStep, ImageSize srcSize, uint16_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft, const uint16_t value[3]);
PxlStatus pxliCopyConstBorder_16u_C4R(const uint16_t* src, int srcStep, ImageSize srcSize, uint16_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft, const uint16_t value[4]);
PxlStatus pxliCopyConstBorder_16u_AC4R(const uint16_t* src, int srcStep, ImageSize srcSize, uint16_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft, const uint16_t value[3]);
PxlStatus pxliCopyConstBorder_32s_C1R(const int32_t* src, int srcStep, ImageSize srcSize, int32_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft, int32_t value);
PxlStatus pxliCopyConstBorder_32s_C3R(const int32_t* src, int srcStep, ImageSize srcSize, int32_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft, const int32_t value[3]);
PxlStatus pxliCopyConstBorder_32s_C4R(const int32_t* src, int srcStep, ImageSize srcSize, int32_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft, const int32_t value[4]);
PxlStatus pxliCopyConstBorder_32s_AC4R(const int32_t* src, int srcStep, ImageSize srcSize, int32_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft, const int32_t value[3]);

/* --------------------------------------------------------------------------------------------------------------
 * CopyReplicateBorder (exchange/border.cpp)
 *
 * As pxliCopyConstBorder, with the margin filled with the nearest pixel of the source region. In place (IR), src points at the
 * source region inside the destination buffer, which begins borderTop rows above and borderLeft pixels to its left; only the
 * margin is written.
 * Statuses, in this order: -8 a pointer is null; -14 a step < 1; -6 a width or height < 1, a negative border, or a destination
 * smaller than border + source.
 */
PxlStatus pxliCopyReplicateBorder_8u_C1R(const uint8_t* src, int srcStep, ImageSize srcSize, uint8_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_8u_C3R(const uint8_t* src, int srcStep, ImageSize srcSize, uint8_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_8u_C4R(const uint8_t* src, int srcStep, ImageSize srcSize, uint8_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_8u_AC4R(const uint8_t* src, int srcStep, ImageSize srcSize, uint8_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_16s_C1R(const int16_t* src, int srcStep, ImageSize srcSize, int16_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_16s_C3R(const int16_t* src, int srcStep, ImageSize srcSize, int16_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_16s_C4R(const int16_t* src, int srcStep, ImageSize srcSize, int16_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_16s_AC4R(const int16_t* src, int srcStep, ImageSize srcSize, int16_t* dst,
    int dstStep, ImageSize dstSize, int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_16u_C1R(const uint16_t* src, int srcStep, ImageSize srcSize, uint16_t* dst,
    int dstStep, ImageSize dstSize, int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_16u_C3R(const uint16_t* src, int srcStep, ImageSize srcSize, uint16_t* dst,
    int dstStep, ImageSize dstSize, int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_16u_C4R(const uint16_t* src, int srcStep, ImageSize srcSize, uint16_t* dst,
    int dstStep, ImageSize dstSize, int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_16u_AC4R(const uint16_t* src, int srcStep, ImageSize srcSize, uint16_t* dst,
    int dstStep, ImageSize dstSize, int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_32s_C1R(const int32_t* src, int srcStep, ImageSize srcSize, int32_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_32s_C3R(const int32_t* src, int srcStep, ImageSize srcSize, int32_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_32s_C4R(const int32_t* src, int srcStep, ImageSize srcSize, int32_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_32s_AC4R(const int32_t* src, int srcStep, ImageSize srcSize, int32_t* dst,
    int dstStep, ImageSize dstSize, int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_8u_C1IR(uint8_t* src, int srcDstStep, ImageSize srcSize, ImageSize dstSize,
    int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_8u_C3IR(uint8_t* src, int srcDstStep, ImageSize srcSize, ImageSize dstSize,
    int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_8u_C4IR(uint8_t* src, int srcDstStep, ImageSize srcSize, ImageSize dstSize,
    int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_8u_AC4IR(uint8_t* src, int srcDstStep, ImageSize srcSize, ImageSize dstSize,
    int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_16s_C1IR(int16_t* src, int srcDstStep, ImageSize srcSize, ImageSize dstSize,
    int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_16s_C3IR(int16_t* src, int srcDstStep, ImageSize srcSize, ImageSize dstSize,
    int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_16s_C4IR(int16_t* src, int srcDstStep, ImageSize srcSize, ImageSize dstSize,
    int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_16s_AC4IR(int16_t* src, int srcDstStep, ImageSize srcSize, ImageSize dstSize,
    int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_16u_C1IR(uint16_t* src, int srcDstStep, ImageSize srcSize, ImageSize dstSize,
    int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_16u_C3IR(uint16_t* src, int srcDstStep, ImageSize srcSize, ImageSize dstSize,
    int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_16u_C4IR(uint16_t* src, int srcDstStep, ImageSize srcSize, ImageSize dstSize,
    int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_16u_AC4IR(uint16_t* src, int srcDstStep, ImageSize srcSize, ImageSize dstSize,
    int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_32s_C1IR(int32_t* src, int srcDstStep, ImageSize srcSize, ImageSize dstSize,
    int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_32s_C3IR(int32_t* src, int srcDstStep, ImageSize srcSize, ImageSize dstSize,
    int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_32s_C4IR(int32_t* src, int srcDstStep, ImageSize srcSize, ImageSize dstSize,
    int borderTop, int borderLeft);
PxlStatus pxliCopyReplicateBorder_32s_AC4IR(int32_t* src, int srcDstStep, ImageSize srcSize, ImageSize dstSize,
    int borderTop, int borderLeft);

/* --------------------------------------------------------------------------------------------------------------
 * CopyWrapBorder (exchange/border.cpp)
 *
 * As pxliCopyReplicateBorder, with the source region repeated periodically in the margin, as often as its width needs.
 * The 32s members move 32-bit elements of any kind.
 * Statuses: those of pxliCopyReplicateBorder.
 */
PxlStatus pxliCopyWrapBorder_32s_C1R(const int32_t* src, int srcStep, ImageSize srcSize, int32_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft);
PxlStatus pxliCopyWrapBorder_32s_C1IR(int32_t* src, int srcDstStep, ImageSize srcSize, ImageSize dstSize, int borderTop,
    int borderLeft);

/* --------------------------------------------------------------------------------------------------------------
 * Mirror (exchange/mirror.cpp)
 *
 * Reflects a region: PXL_AXIS_HORIZONTAL reverses the order of rows, PXL_AXIS_VERTICAL that of columns, PXL_AXIS_BOTH both.
 * Pixels are moved whole. AC4: elements 0..2 move, element 3 of every destination pixel stays.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1; -21 an axis other than 0, 1, 2. Steps are not
 * checked.
 */
PxlStatus pxliMirror_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    PxlAxis flip);
PxlStatus pxliMirror_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    PxlAxis flip);
PxlStatus pxliMirror_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    PxlAxis flip);
PxlStatus pxliMirror_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    PxlAxis flip);
PxlStatus pxliMirror_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    PxlAxis flip);
PxlStatus pxliMirror_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    PxlAxis flip);
PxlStatus pxliMirror_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    PxlAxis flip);
PxlStatus pxliMirror_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    PxlAxis flip);
PxlStatus pxliMirror_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    PxlAxis flip);
PxlStatus pxliMirror_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    PxlAxis flip);
PxlStatus pxliMirror_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    PxlAxis flip);
PxlStatus pxliMirror_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    PxlAxis flip);
PxlStatus pxliMirror_32s_C1R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize,
    PxlAxis flip);
PxlStatus pxliMirror_32s_C3R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize,
    PxlAxis flip);
PxlStatus pxliMirror_32s_C4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize,
    PxlAxis flip);
PxlStatus pxliMirror_32s_AC4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize,
    PxlAxis flip);
PxlStatus pxliMirror_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_16u_C4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_16s_C4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_32s_C1IR(int32_t* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_32s_C3IR(int32_t* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_32s_C4IR(int32_t* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_32s_AC4IR(int32_t* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_32f_C4IR(float* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);
PxlStatus pxliMirror_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, PxlAxis flip);

/* --------------------------------------------------------------------------------------------------------------
 * Transpose (exchange/transpose.cpp)
 *
 * Exchanges rows and columns: destination pixel (j, i) is source pixel (i, j). roiSize is the size of the source region; the
 * destination receives height x width pixels. The in-place form takes square regions only. Source and destination of the
 * out-of-place form must not overlap.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1, in place also width other than height. Steps are not
 * checked.
 */
PxlStatus pxliTranspose_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliTranspose_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliTranspose_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliTranspose_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliTranspose_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliTranspose_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliTranspose_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliTranspose_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliTranspose_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliTranspose_32s_C1R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliTranspose_32s_C3R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliTranspose_32s_C4R(const int32_t* src, int srcStep, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliTranspose_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliTranspose_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliTranspose_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliTranspose_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliTranspose_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliTranspose_16u_C4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliTranspose_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliTranspose_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliTranspose_16s_C4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliTranspose_32s_C1IR(int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliTranspose_32s_C3IR(int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliTranspose_32s_C4IR(int32_t* srcDst, int srcDstStep, ImageSize roiSize);

/* ==== Arithmetic and logic ============================================================================================= */

/* --------------------------------------------------------------------------------------------------------------
 * Add (arith/add_sub.cpp)
 *
 * dst = src1 + src2. In place (I), srcDst is the second source and the destination. AC4: elements 0..2.
 * Sfs members multiply the exact result by 2 to the power of minus scaleFactor, round it to nearest with ties to even, and
 * saturate it; 32f and 32fc compute in single precision.
 *   16u, scaleFactor >= 18: the result is 0 everywhere; then -8 is returned for a null source before anything else is tested.
 * Statuses, in this order: C3 and C4 members: -6 width < 1; then all: -8 a pointer is null; -6 width or height < 1;
 * complex members: -14 a step < 1. The steps of real members are not checked.
 */
PxlStatus pxliAdd_8u_C1RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAdd_8u_C3RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAdd_8u_C4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAdd_8u_AC4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAdd_8u_C1IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAdd_8u_C3IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAdd_8u_C4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAdd_8u_AC4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAdd_16u_C1RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAdd_16u_C3RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAdd_16u_C4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAdd_16u_AC4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAdd_16u_C1IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAdd_16u_C3IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAdd_16u_C4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAdd_16u_AC4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAdd_16s_C1RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAdd_16s_C3RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAdd_16s_C4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAdd_16s_AC4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAdd_16s_C1IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAdd_16s_C3IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAdd_16s_C4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAdd_16s_AC4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAdd_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAdd_32f_C3R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAdd_32f_C4R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAdd_32f_AC4R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAdd_32f_C1IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAdd_32f_C3IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAdd_32f_C4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAdd_32f_AC4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAdd_16sc_C1RSfs(const Pxl16sc* src1, int src1Step, const Pxl16sc* src2, int src2Step, Pxl16sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAdd_16sc_C3RSfs(const Pxl16sc* src1, int src1Step, const Pxl16sc* src2, int src2Step, Pxl16sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAdd_16sc_AC4RSfs(const Pxl16sc* src1, int src1Step, const Pxl16sc* src2, int src2Step, Pxl16sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAdd_16sc_C1IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAdd_16sc_C3IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAdd_16sc_AC4IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAdd_32sc_C1RSfs(const Pxl32sc* src1, int src1Step, const Pxl32sc* src2, int src2Step, Pxl32sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAdd_32sc_C3RSfs(const Pxl32sc* src1, int src1Step, const Pxl32sc* src2, int src2Step, Pxl32sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAdd_32sc_AC4RSfs(const Pxl32sc* src1, int src1Step, const Pxl32sc* src2, int src2Step, Pxl32sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAdd_32sc_C1IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAdd_32sc_C3IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAdd_32sc_AC4IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAdd_32fc_C1R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2, int src2Step, Pxl32fc* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliAdd_32fc_C3R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2, int src2Step, Pxl32fc* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliAdd_32fc_AC4R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2, int src2Step, Pxl32fc* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliAdd_32fc_C1IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAdd_32fc_C3IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAdd_32fc_AC4IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * Sub (arith/add_sub.cpp)
 *
 * dst = src2 - src1. In place (I), srcDst is the second source and the destination. AC4: elements 0..2.
 * Sfs members multiply the exact result by 2 to the power of minus scaleFactor, round it to nearest with ties to even, and
 * saturate it; 32f and 32fc compute in single precision.
 *   8u and 16u clamp a negative difference to 0 before scaling. 16u, scaleFactor >= 17: the result is 0 everywhere; then -8 is
 *   returned for a null source before anything else is tested.
 * Statuses, in this order: C3 and C4 members: -6 width < 1; then all: -8 a pointer is null; -6 width or height < 1;
 * complex members: -14 a step < 1. The steps of real members are not checked.
 */
PxlStatus pxliSub_8u_C1RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSub_8u_C3RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSub_8u_C4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSub_8u_AC4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSub_8u_C1IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSub_8u_C3IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSub_8u_C4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSub_8u_AC4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSub_16u_C1RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSub_16u_C3RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSub_16u_C4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSub_16u_AC4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSub_16u_C1IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSub_16u_C3IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSub_16u_C4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSub_16u_AC4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSub_16s_C1RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSub_16s_C3RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSub_16s_C4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSub_16s_AC4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSub_16s_C1IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSub_16s_C3IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSub_16s_C4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSub_16s_AC4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSub_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliSub_32f_C3R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliSub_32f_C4R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliSub_32f_AC4R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliSub_32f_C1IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliSub_32f_C3IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliSub_32f_C4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliSub_32f_AC4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliSub_16sc_C1RSfs(const Pxl16sc* src1, int src1Step, const Pxl16sc* src2, int src2Step, Pxl16sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSub_16sc_C3RSfs(const Pxl16sc* src1, int src1Step, const Pxl16sc* src2, int src2Step, Pxl16sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSub_16sc_AC4RSfs(const Pxl16sc* src1, int src1Step, const Pxl16sc* src2, int src2Step, Pxl16sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSub_16sc_C1IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSub_16sc_C3IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSub_16sc_AC4IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSub_32sc_C1RSfs(const Pxl32sc* src1, int src1Step, const Pxl32sc* src2, int src2Step, Pxl32sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSub_32sc_C3RSfs(const Pxl32sc* src1, int src1Step, const Pxl32sc* src2, int src2Step, Pxl32sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSub_32sc_AC4RSfs(const Pxl32sc* src1, int src1Step, const Pxl32sc* src2, int src2Step, Pxl32sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSub_32sc_C1IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSub_32sc_C3IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSub_32sc_AC4IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSub_32fc_C1R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2, int src2Step, Pxl32fc* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliSub_32fc_C3R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2, int src2Step, Pxl32fc* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliSub_32fc_AC4R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2, int src2Step, Pxl32fc* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliSub_32fc_C1IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliSub_32fc_C3IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliSub_32fc_AC4IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * Mul (arith/mul.cpp)
 *
 * dst = src1 * src2. In place (I), srcDst is the second source and the destination. AC4: elements 0..2.
 * Sfs members multiply the exact result by 2 to the power of minus scaleFactor, round it to nearest with ties to even, and
 * saturate it; 32f and 32fc compute in single precision.
 *   16u, scaleFactor >= 33: the result is 0 everywhere; then -8 is returned for a null source before anything else is tested.
 * Statuses, in this order: C3 and C4 members: -6 width < 1; then all: -8 a pointer is null; -6 width or height < 1;
 * complex members: -14 a step < 1. The steps of real members are not checked.
 */
PxlStatus pxliMul_8u_C1RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMul_8u_C3RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMul_8u_C4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMul_8u_AC4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMul_8u_C1IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMul_8u_C3IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMul_8u_C4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMul_8u_AC4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMul_16u_C1RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMul_16u_C3RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMul_16u_C4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMul_16u_AC4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMul_16u_C1IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMul_16u_C3IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMul_16u_C4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMul_16u_AC4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMul_16s_C1RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMul_16s_C3RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMul_16s_C4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMul_16s_AC4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMul_16s_C1IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMul_16s_C3IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMul_16s_C4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMul_16s_AC4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMul_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliMul_32f_C3R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliMul_32f_C4R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliMul_32f_AC4R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliMul_32f_C1IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMul_32f_C3IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMul_32f_C4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMul_32f_AC4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * Mul, complex (arith/mul_complex.cpp)
 *
 * dst = src1 * src2 of complex elements: with a + bi and c + di the real part is a*c - b*d, the imaginary part a*d + b*c.
 * The products of integer members are exact; a 16sc imaginary sum of 2^31 counts as 2^31 - 1. Each part is scaled, rounded to
 * nearest even and saturated by itself; 16sc with scaleFactor < -15 gives each part's saturated sign. AC4: elements 0..2.
 * Statuses, in this order: C3 and C4 members: -6 width < 1; then all: -8 a pointer is null; -6 width or height < 1;
 * -14 a step < 1.
 */
PxlStatus pxliMul_16sc_C1RSfs(const Pxl16sc* src1, int src1Step, const Pxl16sc* src2, int src2Step, Pxl16sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMul_16sc_C3RSfs(const Pxl16sc* src1, int src1Step, const Pxl16sc* src2, int src2Step, Pxl16sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMul_16sc_AC4RSfs(const Pxl16sc* src1, int src1Step, const Pxl16sc* src2, int src2Step, Pxl16sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMul_16sc_C1IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMul_16sc_C3IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMul_16sc_AC4IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMul_32sc_C1RSfs(const Pxl32sc* src1, int src1Step, const Pxl32sc* src2, int src2Step, Pxl32sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMul_32sc_C3RSfs(const Pxl32sc* src1, int src1Step, const Pxl32sc* src2, int src2Step, Pxl32sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMul_32sc_AC4RSfs(const Pxl32sc* src1, int src1Step, const Pxl32sc* src2, int src2Step, Pxl32sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMul_32sc_C1IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMul_32sc_C3IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMul_32sc_AC4IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMul_32fc_C1R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2, int src2Step, Pxl32fc* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliMul_32fc_C3R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2, int src2Step, Pxl32fc* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliMul_32fc_AC4R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2, int src2Step, Pxl32fc* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliMul_32fc_C1IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMul_32fc_C3IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMul_32fc_AC4IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * Div (arith/div.cpp)
 *
 * dst = src2 / src1: the first source is the divisor. In place (I), srcDst is the dividend and the destination. AC4:
 * elements 0..2.
 *   8u   src2 * 2^-scaleFactor / src1 + 0.5 in single precision, truncated, a tie to even, saturated
 *   16s  the same quotient, with 32768 added in single precision rounded to nearest even, less 32768, saturated
 *   16u  integer division with 16 fractional bits, rounded to nearest; a tie of the truncated fraction goes to even
 *   32f  src2 / src1 in single precision
 * A divisor of 0 gives the saturated sign of the dividend (0 for 0); 32f: infinity with the dividend's sign, the NaN 0xFFC00000
 * for 0 and NaN. The call then returns the warning 6 (PXL_W_DIV_BY_ZERO) when the whole region is done.
 * Statuses, in this order: 16u C3 and C4: -6 width < 1; then all: -8 a pointer is null; -6 width or height < 1; all but 16u: -14 a
 * step < 1; 6.
 */
PxlStatus pxliDiv_8u_C1RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDiv_8u_C3RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDiv_8u_C4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDiv_8u_AC4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDiv_8u_C1IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDiv_8u_C3IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDiv_8u_C4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDiv_8u_AC4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDiv_16u_C1RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDiv_16u_C3RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDiv_16u_C4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDiv_16u_AC4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDiv_16u_C1IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDiv_16u_C3IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDiv_16u_C4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDiv_16u_AC4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDiv_16s_C1RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDiv_16s_C3RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDiv_16s_C4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDiv_16s_AC4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDiv_16s_C1IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDiv_16s_C3IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDiv_16s_C4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDiv_16s_AC4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDiv_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliDiv_32f_C3R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliDiv_32f_C4R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliDiv_32f_AC4R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliDiv_32f_C1IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliDiv_32f_C3IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliDiv_32f_C4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliDiv_32f_AC4IR(const float* src, int srcStep, float* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * Div, complex (arith/div_complex.cpp)
 *
 * dst = src2 / src1 of complex elements: with divisor a + bi, dividend c + di and m = a*a + b*b the real part is
 * (a*c + b*d) * (f/m), the imaginary part (a*d - b*c) * (f/m).
 * 32fc: single precision, f = 1. 16sc and 32sc: double precision, f = 2^-scaleFactor, each part rounded to nearest even and
 * saturated. A zero divisor gives 0 + 0i (32fc: both parts the NaN 0xFFC00000), and the call returns the warning 6.
 * AC4: elements 0..2.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1; -14 a step < 1; 6.
 */
PxlStatus pxliDiv_16sc_C1RSfs(const Pxl16sc* src1, int src1Step, const Pxl16sc* src2, int src2Step, Pxl16sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDiv_16sc_C3RSfs(const Pxl16sc* src1, int src1Step, const Pxl16sc* src2, int src2Step, Pxl16sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDiv_16sc_AC4RSfs(const Pxl16sc* src1, int src1Step, const Pxl16sc* src2, int src2Step, Pxl16sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDiv_16sc_C1IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDiv_16sc_C3IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDiv_16sc_AC4IRSfs(const Pxl16sc* src, int srcStep, Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDiv_32sc_C1RSfs(const Pxl32sc* src1, int src1Step, const Pxl32sc* src2, int src2Step, Pxl32sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDiv_32sc_C3RSfs(const Pxl32sc* src1, int src1Step, const Pxl32sc* src2, int src2Step, Pxl32sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDiv_32sc_AC4RSfs(const Pxl32sc* src1, int src1Step, const Pxl32sc* src2, int src2Step, Pxl32sc* dst,
    int dstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDiv_32sc_C1IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDiv_32sc_C3IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDiv_32sc_AC4IRSfs(const Pxl32sc* src, int srcStep, Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDiv_32fc_C1R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2, int src2Step, Pxl32fc* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliDiv_32fc_C3R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2, int src2Step, Pxl32fc* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliDiv_32fc_AC4R(const Pxl32fc* src1, int src1Step, const Pxl32fc* src2, int src2Step, Pxl32fc* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliDiv_32fc_C1IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliDiv_32fc_C3IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliDiv_32fc_AC4IR(const Pxl32fc* src, int srcStep, Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * Div_Round (arith/div_round.cpp)
 *
 * dst = src2 * 2^-scaleFactor / src1 in double precision, rounded by roundMode: 0 toward zero, 1 to nearest with ties to even,
 * 2 to nearest with ties away from zero; saturated. A divisor of 0 gives the saturated sign of the dividend (0 for 0) and the
 * warning 6. AC4: elements 0..2.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1; -14 a step < 1; -213 roundMode not 0, 1 or 2; 6.
 */
PxlStatus pxliDiv_Round_8u_C1RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_8u_C3RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_8u_C4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_8u_AC4RSfs(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_8u_C1IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_8u_C3IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_8u_C4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_8u_AC4IRSfs(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_16u_C1RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step,
    uint16_t* dst, int dstStep, ImageSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_16u_C3RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step,
    uint16_t* dst, int dstStep, ImageSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_16u_C4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step,
    uint16_t* dst, int dstStep, ImageSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_16u_AC4RSfs(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step,
    uint16_t* dst, int dstStep, ImageSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_16u_C1IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep,
    ImageSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_16u_C3IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep,
    ImageSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_16u_C4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep,
    ImageSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_16u_AC4IRSfs(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep,
    ImageSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_16s_C1RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_16s_C3RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_16s_C4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_16s_AC4RSfs(const int16_t* src1, int src1Step, const int16_t* src2, int src2Step, int16_t* dst,
    int dstStep, ImageSize roiSize, PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_16s_C1IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_16s_C3IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_16s_C4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    PxlRoundMode roundMode, int scaleFactor);
PxlStatus pxliDiv_Round_16s_AC4IRSfs(const int16_t* src, int srcStep, int16_t* srcDst, int srcDstStep,
    ImageSize roiSize, PxlRoundMode roundMode, int scaleFactor);

/* --------------------------------------------------------------------------------------------------------------
 * AddC (arith/add_sub_c.cpp)
 *
 * dst = src + value, with one value per channel (C3 and AC4: an array of 3, C4: of 4). AC4: elements 0..2.
 * Sfs members multiply the exact result by 2 to the power of minus scaleFactor, round it to nearest with ties to even, and
 * saturate it; 32f and 32fc compute in single precision.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1. Steps are not checked.
 */
PxlStatus pxliAddC_8u_C1RSfs(const uint8_t* src, int srcStep, uint8_t value, uint8_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_8u_C3RSfs(const uint8_t* src, int srcStep, const uint8_t value[3], uint8_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_8u_C4RSfs(const uint8_t* src, int srcStep, const uint8_t value[4], uint8_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_8u_AC4RSfs(const uint8_t* src, int srcStep, const uint8_t value[3], uint8_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_8u_C1IRSfs(uint8_t value, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_8u_C3IRSfs(const uint8_t value[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAddC_8u_C4IRSfs(const uint8_t value[4], uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAddC_8u_AC4IRSfs(const uint8_t value[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAddC_16u_C1RSfs(const uint16_t* src, int srcStep, uint16_t value, uint16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_16u_C3RSfs(const uint16_t* src, int srcStep, const uint16_t value[3], uint16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_16u_C4RSfs(const uint16_t* src, int srcStep, const uint16_t value[4], uint16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_16u_AC4RSfs(const uint16_t* src, int srcStep, const uint16_t value[3], uint16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_16u_C1IRSfs(uint16_t value, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_16u_C3IRSfs(const uint16_t value[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAddC_16u_C4IRSfs(const uint16_t value[4], uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAddC_16u_AC4IRSfs(const uint16_t value[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAddC_16s_C1RSfs(const int16_t* src, int srcStep, int16_t value, int16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_16s_C3RSfs(const int16_t* src, int srcStep, const int16_t value[3], int16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_16s_C4RSfs(const int16_t* src, int srcStep, const int16_t value[4], int16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_16s_AC4RSfs(const int16_t* src, int srcStep, const int16_t value[3], int16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_16s_C1IRSfs(int16_t value, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_16s_C3IRSfs(const int16_t value[3], int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAddC_16s_C4IRSfs(const int16_t value[4], int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAddC_16s_AC4IRSfs(const int16_t value[3], int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAddC_32f_C1R(const float* src, int srcStep, float value, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliAddC_32f_C3R(const float* src, int srcStep, const float value[3], float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAddC_32f_C4R(const float* src, int srcStep, const float value[4], float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAddC_32f_AC4R(const float* src, int srcStep, const float value[3], float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAddC_32f_C1IR(float value, float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAddC_32f_C3IR(const float value[3], float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAddC_32f_C4IR(const float value[4], float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAddC_32f_AC4IR(const float value[3], float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAddC_16sc_C1RSfs(const Pxl16sc* src, int srcStep, Pxl16sc value, Pxl16sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_16sc_C3RSfs(const Pxl16sc* src, int srcStep, const Pxl16sc value[3], Pxl16sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_16sc_AC4RSfs(const Pxl16sc* src, int srcStep, const Pxl16sc value[3], Pxl16sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_16sc_C1IRSfs(Pxl16sc value, Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_16sc_C3IRSfs(const Pxl16sc value[3], Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAddC_16sc_AC4IRSfs(const Pxl16sc value[3], Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAddC_32sc_C1RSfs(const Pxl32sc* src, int srcStep, Pxl32sc value, Pxl32sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_32sc_C3RSfs(const Pxl32sc* src, int srcStep, const Pxl32sc value[3], Pxl32sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_32sc_AC4RSfs(const Pxl32sc* src, int srcStep, const Pxl32sc value[3], Pxl32sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_32sc_C1IRSfs(Pxl32sc value, Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliAddC_32sc_C3IRSfs(const Pxl32sc value[3], Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAddC_32sc_AC4IRSfs(const Pxl32sc value[3], Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliAddC_32fc_C1R(const Pxl32fc* src, int srcStep, Pxl32fc value, Pxl32fc* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAddC_32fc_C3R(const Pxl32fc* src, int srcStep, const Pxl32fc value[3], Pxl32fc* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAddC_32fc_AC4R(const Pxl32fc* src, int srcStep, const Pxl32fc value[3], Pxl32fc* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAddC_32fc_C1IR(Pxl32fc value, Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAddC_32fc_C3IR(const Pxl32fc value[3], Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAddC_32fc_AC4IR(const Pxl32fc value[3], Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * SubC (arith/add_sub_c.cpp)
 *
 * dst = src - value, with one value per channel (C3 and AC4: an array of 3, C4: of 4). AC4: elements 0..2.
 * Sfs members multiply the exact result by 2 to the power of minus scaleFactor, round it to nearest with ties to even, and
 * saturate it; 32f and 32fc compute in single precision.
 * 8u and 16u clamp a negative difference to 0 before scaling.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1. Steps are not checked.
 */
PxlStatus pxliSubC_8u_C1RSfs(const uint8_t* src, int srcStep, uint8_t value, uint8_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_8u_C3RSfs(const uint8_t* src, int srcStep, const uint8_t value[3], uint8_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_8u_C4RSfs(const uint8_t* src, int srcStep, const uint8_t value[4], uint8_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_8u_AC4RSfs(const uint8_t* src, int srcStep, const uint8_t value[3], uint8_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_8u_C1IRSfs(uint8_t value, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_8u_C3IRSfs(const uint8_t value[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSubC_8u_C4IRSfs(const uint8_t value[4], uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSubC_8u_AC4IRSfs(const uint8_t value[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSubC_16u_C1RSfs(const uint16_t* src, int srcStep, uint16_t value, uint16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_16u_C3RSfs(const uint16_t* src, int srcStep, const uint16_t value[3], uint16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_16u_C4RSfs(const uint16_t* src, int srcStep, const uint16_t value[4], uint16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_16u_AC4RSfs(const uint16_t* src, int srcStep, const uint16_t value[3], uint16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_16u_C1IRSfs(uint16_t value, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_16u_C3IRSfs(const uint16_t value[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSubC_16u_C4IRSfs(const uint16_t value[4], uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSubC_16u_AC4IRSfs(const uint16_t value[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSubC_16s_C1RSfs(const int16_t* src, int srcStep, int16_t value, int16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_16s_C3RSfs(const int16_t* src, int srcStep, const int16_t value[3], int16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_16s_C4RSfs(const int16_t* src, int srcStep, const int16_t value[4], int16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_16s_AC4RSfs(const int16_t* src, int srcStep, const int16_t value[3], int16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_16s_C1IRSfs(int16_t value, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_16s_C3IRSfs(const int16_t value[3], int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSubC_16s_C4IRSfs(const int16_t value[4], int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSubC_16s_AC4IRSfs(const int16_t value[3], int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSubC_32f_C1R(const float* src, int srcStep, float value, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliSubC_32f_C3R(const float* src, int srcStep, const float value[3], float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliSubC_32f_C4R(const float* src, int srcStep, const float value[4], float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliSubC_32f_AC4R(const float* src, int srcStep, const float value[3], float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliSubC_32f_C1IR(float value, float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliSubC_32f_C3IR(const float value[3], float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliSubC_32f_C4IR(const float value[4], float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliSubC_32f_AC4IR(const float value[3], float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliSubC_16sc_C1RSfs(const Pxl16sc* src, int srcStep, Pxl16sc value, Pxl16sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_16sc_C3RSfs(const Pxl16sc* src, int srcStep, const Pxl16sc value[3], Pxl16sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_16sc_AC4RSfs(const Pxl16sc* src, int srcStep, const Pxl16sc value[3], Pxl16sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_16sc_C1IRSfs(Pxl16sc value, Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_16sc_C3IRSfs(const Pxl16sc value[3], Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSubC_16sc_AC4IRSfs(const Pxl16sc value[3], Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSubC_32sc_C1RSfs(const Pxl32sc* src, int srcStep, Pxl32sc value, Pxl32sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_32sc_C3RSfs(const Pxl32sc* src, int srcStep, const Pxl32sc value[3], Pxl32sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_32sc_AC4RSfs(const Pxl32sc* src, int srcStep, const Pxl32sc value[3], Pxl32sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_32sc_C1IRSfs(Pxl32sc value, Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliSubC_32sc_C3IRSfs(const Pxl32sc value[3], Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSubC_32sc_AC4IRSfs(const Pxl32sc value[3], Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliSubC_32fc_C1R(const Pxl32fc* src, int srcStep, Pxl32fc value, Pxl32fc* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliSubC_32fc_C3R(const Pxl32fc* src, int srcStep, const Pxl32fc value[3], Pxl32fc* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliSubC_32fc_AC4R(const Pxl32fc* src, int srcStep, const Pxl32fc value[3], Pxl32fc* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliSubC_32fc_C1IR(Pxl32fc value, Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliSubC_32fc_C3IR(const Pxl32fc value[3], Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliSubC_32fc_AC4IR(const Pxl32fc value[3], Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * MulC (arith/mul_c.cpp)
 *
 * dst = src * value, with one value per channel (C3 and AC4: an array of 3, C4: of 4). AC4: elements 0..2.
 * Sfs members multiply the exact result by 2 to the power of minus scaleFactor, round it to nearest with ties to even, and
 * saturate it; 32f and 32fc compute in single precision.
 * Complex members give the complex product.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1. Steps are not checked.
 */
PxlStatus pxliMulC_8u_C1RSfs(const uint8_t* src, int srcStep, uint8_t value, uint8_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_8u_C3RSfs(const uint8_t* src, int srcStep, const uint8_t value[3], uint8_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_8u_C4RSfs(const uint8_t* src, int srcStep, const uint8_t value[4], uint8_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_8u_AC4RSfs(const uint8_t* src, int srcStep, const uint8_t value[3], uint8_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_8u_C1IRSfs(uint8_t value, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_8u_C3IRSfs(const uint8_t value[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMulC_8u_C4IRSfs(const uint8_t value[4], uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMulC_8u_AC4IRSfs(const uint8_t value[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMulC_16u_C1RSfs(const uint16_t* src, int srcStep, uint16_t value, uint16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_16u_C3RSfs(const uint16_t* src, int srcStep, const uint16_t value[3], uint16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_16u_C4RSfs(const uint16_t* src, int srcStep, const uint16_t value[4], uint16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_16u_AC4RSfs(const uint16_t* src, int srcStep, const uint16_t value[3], uint16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_16u_C1IRSfs(uint16_t value, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_16u_C3IRSfs(const uint16_t value[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMulC_16u_C4IRSfs(const uint16_t value[4], uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMulC_16u_AC4IRSfs(const uint16_t value[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMulC_16s_C1RSfs(const int16_t* src, int srcStep, int16_t value, int16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_16s_C3RSfs(const int16_t* src, int srcStep, const int16_t value[3], int16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_16s_C4RSfs(const int16_t* src, int srcStep, const int16_t value[4], int16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_16s_AC4RSfs(const int16_t* src, int srcStep, const int16_t value[3], int16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_16s_C1IRSfs(int16_t value, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_16s_C3IRSfs(const int16_t value[3], int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMulC_16s_C4IRSfs(const int16_t value[4], int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMulC_16s_AC4IRSfs(const int16_t value[3], int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMulC_32f_C1R(const float* src, int srcStep, float value, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliMulC_32f_C3R(const float* src, int srcStep, const float value[3], float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliMulC_32f_C4R(const float* src, int srcStep, const float value[4], float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliMulC_32f_AC4R(const float* src, int srcStep, const float value[3], float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliMulC_32f_C1IR(float value, float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulC_32f_C3IR(const float value[3], float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulC_32f_C4IR(const float value[4], float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulC_32f_AC4IR(const float value[3], float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulC_16sc_C1RSfs(const Pxl16sc* src, int srcStep, Pxl16sc value, Pxl16sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_16sc_C3RSfs(const Pxl16sc* src, int srcStep, const Pxl16sc value[3], Pxl16sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_16sc_AC4RSfs(const Pxl16sc* src, int srcStep, const Pxl16sc value[3], Pxl16sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_16sc_C1IRSfs(Pxl16sc value, Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_16sc_C3IRSfs(const Pxl16sc value[3], Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMulC_16sc_AC4IRSfs(const Pxl16sc value[3], Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMulC_32sc_C1RSfs(const Pxl32sc* src, int srcStep, Pxl32sc value, Pxl32sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_32sc_C3RSfs(const Pxl32sc* src, int srcStep, const Pxl32sc value[3], Pxl32sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_32sc_AC4RSfs(const Pxl32sc* src, int srcStep, const Pxl32sc value[3], Pxl32sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_32sc_C1IRSfs(Pxl32sc value, Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliMulC_32sc_C3IRSfs(const Pxl32sc value[3], Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMulC_32sc_AC4IRSfs(const Pxl32sc value[3], Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliMulC_32fc_C1R(const Pxl32fc* src, int srcStep, Pxl32fc value, Pxl32fc* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliMulC_32fc_C3R(const Pxl32fc* src, int srcStep, const Pxl32fc value[3], Pxl32fc* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliMulC_32fc_AC4R(const Pxl32fc* src, int srcStep, const Pxl32fc value[3], Pxl32fc* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliMulC_32fc_C1IR(Pxl32fc value, Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulC_32fc_C3IR(const Pxl32fc value[3], Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulC_32fc_AC4IR(const Pxl32fc value[3], Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * DivC (arith/div_c.cpp)
 *
 * dst = src / value, with one value per channel, rounded as pxliDiv rounds. AC4: elements 0..2.
 * 32f multiplies by the reciprocal of the value, which is formed once in single precision.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1; -14 a step < 1; -10 a value is 0 (complex: re*re + im*im
 * is 0).
 */
PxlStatus pxliDivC_8u_C1RSfs(const uint8_t* src, int srcStep, uint8_t value, uint8_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_8u_C3RSfs(const uint8_t* src, int srcStep, const uint8_t value[3], uint8_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_8u_C4RSfs(const uint8_t* src, int srcStep, const uint8_t value[4], uint8_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_8u_AC4RSfs(const uint8_t* src, int srcStep, const uint8_t value[3], uint8_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_8u_C1IRSfs(uint8_t value, uint8_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_8u_C3IRSfs(const uint8_t value[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDivC_8u_C4IRSfs(const uint8_t value[4], uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDivC_8u_AC4IRSfs(const uint8_t value[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDivC_16u_C1RSfs(const uint16_t* src, int srcStep, uint16_t value, uint16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_16u_C3RSfs(const uint16_t* src, int srcStep, const uint16_t value[3], uint16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_16u_C4RSfs(const uint16_t* src, int srcStep, const uint16_t value[4], uint16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_16u_AC4RSfs(const uint16_t* src, int srcStep, const uint16_t value[3], uint16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_16u_C1IRSfs(uint16_t value, uint16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_16u_C3IRSfs(const uint16_t value[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDivC_16u_C4IRSfs(const uint16_t value[4], uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDivC_16u_AC4IRSfs(const uint16_t value[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDivC_16s_C1RSfs(const int16_t* src, int srcStep, int16_t value, int16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_16s_C3RSfs(const int16_t* src, int srcStep, const int16_t value[3], int16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_16s_C4RSfs(const int16_t* src, int srcStep, const int16_t value[4], int16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_16s_AC4RSfs(const int16_t* src, int srcStep, const int16_t value[3], int16_t* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_16s_C1IRSfs(int16_t value, int16_t* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_16s_C3IRSfs(const int16_t value[3], int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDivC_16s_C4IRSfs(const int16_t value[4], int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDivC_16s_AC4IRSfs(const int16_t value[3], int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDivC_32f_C1R(const float* src, int srcStep, float value, float* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliDivC_32f_C3R(const float* src, int srcStep, const float value[3], float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliDivC_32f_C4R(const float* src, int srcStep, const float value[4], float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliDivC_32f_AC4R(const float* src, int srcStep, const float value[3], float* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliDivC_32f_C1IR(float value, float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliDivC_32f_C3IR(const float value[3], float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliDivC_32f_C4IR(const float value[4], float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliDivC_32f_AC4IR(const float value[3], float* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliDivC_16sc_C1RSfs(const Pxl16sc* src, int srcStep, Pxl16sc value, Pxl16sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_16sc_C3RSfs(const Pxl16sc* src, int srcStep, const Pxl16sc value[3], Pxl16sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_16sc_AC4RSfs(const Pxl16sc* src, int srcStep, const Pxl16sc value[3], Pxl16sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_16sc_C1IRSfs(Pxl16sc value, Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_16sc_C3IRSfs(const Pxl16sc value[3], Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDivC_16sc_AC4IRSfs(const Pxl16sc value[3], Pxl16sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDivC_32sc_C1RSfs(const Pxl32sc* src, int srcStep, Pxl32sc value, Pxl32sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_32sc_C3RSfs(const Pxl32sc* src, int srcStep, const Pxl32sc value[3], Pxl32sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_32sc_AC4RSfs(const Pxl32sc* src, int srcStep, const Pxl32sc value[3], Pxl32sc* dst, int dstStep,
    ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_32sc_C1IRSfs(Pxl32sc value, Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize, int scaleFactor);
PxlStatus pxliDivC_32sc_C3IRSfs(const Pxl32sc value[3], Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDivC_32sc_AC4IRSfs(const Pxl32sc value[3], Pxl32sc* srcDst, int srcDstStep, ImageSize roiSize,
    int scaleFactor);
PxlStatus pxliDivC_32fc_C1R(const Pxl32fc* src, int srcStep, Pxl32fc value, Pxl32fc* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliDivC_32fc_C3R(const Pxl32fc* src, int srcStep, const Pxl32fc value[3], Pxl32fc* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliDivC_32fc_AC4R(const Pxl32fc* src, int srcStep, const Pxl32fc value[3], Pxl32fc* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliDivC_32fc_C1IR(Pxl32fc value, Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliDivC_32fc_C3IR(const Pxl32fc value[3], Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliDivC_32fc_AC4IR(const Pxl32fc value[3], Pxl32fc* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * MulScale (arith/mul_scale.cpp)
 *
 * The normalised product of two full-range values: with p = src1 * src2, 8u (p + (p >> 8) + 1) >> 8, 16u
 * (p + (p >> 16) + 1) >> 16. 255 (65535) times x is x. AC4: elements 0..2.
 * Statuses, in this order: -8 a pointer is null; -14 a step < 1; -6 width or height < 1.
 */
PxlStatus pxliMulScale_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliMulScale_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliMulScale_8u_C4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliMulScale_8u_AC4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliMulScale_8u_C1IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulScale_8u_C3IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulScale_8u_C4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulScale_8u_AC4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulScale_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliMulScale_16u_C3R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliMulScale_16u_C4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliMulScale_16u_AC4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliMulScale_16u_C1IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulScale_16u_C3IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulScale_16u_C4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulScale_16u_AC4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * MulCScale (arith/mul_scale.cpp)
 *
 * As pxliMulScale, with one value per channel in the place of the second source.
 * Statuses: those of pxliMulScale.
 */
PxlStatus pxliMulCScale_8u_C1R(const uint8_t* src, int srcStep, uint8_t value, uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliMulCScale_8u_C3R(const uint8_t* src, int srcStep, const uint8_t value[3], uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliMulCScale_8u_C4R(const uint8_t* src, int srcStep, const uint8_t value[4], uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliMulCScale_8u_AC4R(const uint8_t* src, int srcStep, const uint8_t value[3], uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliMulCScale_8u_C1IR(uint8_t value, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulCScale_8u_C3IR(const uint8_t value[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulCScale_8u_C4IR(const uint8_t value[4], uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulCScale_8u_AC4IR(const uint8_t value[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulCScale_16u_C1R(const uint16_t* src, int srcStep, uint16_t value, uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliMulCScale_16u_C3R(const uint16_t* src, int srcStep, const uint16_t value[3], uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliMulCScale_16u_C4R(const uint16_t* src, int srcStep, const uint16_t value[4], uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliMulCScale_16u_AC4R(const uint16_t* src, int srcStep, const uint16_t value[3], uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliMulCScale_16u_C1IR(uint16_t value, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulCScale_16u_C3IR(const uint16_t value[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulCScale_16u_C4IR(const uint16_t value[4], uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliMulCScale_16u_AC4IR(const uint16_t value[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * And (arith/logical.cpp)
 *
 * dst = src1 & src2, bit by bit. AC4: elements 0..2.
 * Statuses, in this order: C3 and C4 members: -6 width < 1; then all: -8 a pointer is null; -14 a step < 1; -6 width or height
 * < 1.
 */
PxlStatus pxliAnd_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliAnd_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliAnd_8u_C4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliAnd_8u_AC4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliAnd_8u_C1IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAnd_8u_C3IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAnd_8u_C4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAnd_8u_AC4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAnd_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliAnd_16u_C3R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliAnd_16u_C4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliAnd_16u_AC4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliAnd_16u_C1IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAnd_16u_C3IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAnd_16u_C4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAnd_16u_AC4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAnd_32s_C1R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliAnd_32s_C3R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliAnd_32s_C4R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliAnd_32s_AC4R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliAnd_32s_C1IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAnd_32s_C3IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAnd_32s_C4IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAnd_32s_AC4IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * AndC (arith/logical.cpp)
 *
 * dst = src & value, bit by bit, with one value per channel. AC4: elements 0..2.
 * Statuses, in this order: -8 a pointer is null; -14 a step < 1; -6 width or height < 1.
 */
PxlStatus pxliAndC_8u_C1R(const uint8_t* src, int srcStep, uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliAndC_8u_C3R(const uint8_t* src, int srcStep, const uint8_t value[3], uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAndC_8u_C4R(const uint8_t* src, int srcStep, const uint8_t value[4], uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAndC_8u_AC4R(const uint8_t* src, int srcStep, const uint8_t value[3], uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAndC_8u_C1IR(uint8_t value, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAndC_8u_C3IR(const uint8_t value[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAndC_8u_C4IR(const uint8_t value[4], uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAndC_8u_AC4IR(const uint8_t value[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAndC_16u_C1R(const uint16_t* src, int srcStep, uint16_t value, uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAndC_16u_C3R(const uint16_t* src, int srcStep, const uint16_t value[3], uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAndC_16u_C4R(const uint16_t* src, int srcStep, const uint16_t value[4], uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAndC_16u_AC4R(const uint16_t* src, int srcStep, const uint16_t value[3], uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAndC_16u_C1IR(uint16_t value, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAndC_16u_C3IR(const uint16_t value[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAndC_16u_C4IR(const uint16_t value[4], uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAndC_16u_AC4IR(const uint16_t value[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAndC_32s_C1R(const int32_t* src, int srcStep, int32_t value, int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAndC_32s_C3R(const int32_t* src, int srcStep, const int32_t value[3], int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAndC_32s_C4R(const int32_t* src, int srcStep, const int32_t value[4], int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAndC_32s_AC4R(const int32_t* src, int srcStep, const int32_t value[3], int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliAndC_32s_C1IR(int32_t value, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAndC_32s_C3IR(const int32_t value[3], int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAndC_32s_C4IR(const int32_t value[4], int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliAndC_32s_AC4IR(const int32_t value[3], int32_t* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * Or (arith/logical.cpp)
 *
 * dst = src1 | src2, bit by bit. AC4: elements 0..2.
 * Statuses, in this order: C3 and C4 members: -6 width < 1; then all: -8 a pointer is null; -14 a step < 1; -6 width or height
 * < 1.
 */
PxlStatus pxliOr_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliOr_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliOr_8u_C4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliOr_8u_AC4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliOr_8u_C1IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOr_8u_C3IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOr_8u_C4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOr_8u_AC4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOr_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliOr_16u_C3R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliOr_16u_C4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliOr_16u_AC4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliOr_16u_C1IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOr_16u_C3IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOr_16u_C4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOr_16u_AC4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOr_32s_C1R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliOr_32s_C3R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliOr_32s_C4R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliOr_32s_AC4R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliOr_32s_C1IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOr_32s_C3IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOr_32s_C4IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOr_32s_AC4IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * OrC (arith/logical.cpp)
 *
 * dst = src | value, bit by bit, with one value per channel. AC4: elements 0..2.
 * Statuses, in this order: -8 a pointer is null; -14 a step < 1; -6 width or height < 1.
 */
PxlStatus pxliOrC_8u_C1R(const uint8_t* src, int srcStep, uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliOrC_8u_C3R(const uint8_t* src, int srcStep, const uint8_t value[3], uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliOrC_8u_C4R(const uint8_t* src, int srcStep, const uint8_t value[4], uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliOrC_8u_AC4R(const uint8_t* src, int srcStep, const uint8_t value[3], uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliOrC_8u_C1IR(uint8_t value, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOrC_8u_C3IR(const uint8_t value[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOrC_8u_C4IR(const uint8_t value[4], uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOrC_8u_AC4IR(const uint8_t value[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOrC_16u_C1R(const uint16_t* src, int srcStep, uint16_t value, uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliOrC_16u_C3R(const uint16_t* src, int srcStep, const uint16_t value[3], uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliOrC_16u_C4R(const uint16_t* src, int srcStep, const uint16_t value[4], uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliOrC_16u_AC4R(const uint16_t* src, int srcStep, const uint16_t value[3], uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliOrC_16u_C1IR(uint16_t value, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOrC_16u_C3IR(const uint16_t value[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOrC_16u_C4IR(const uint16_t value[4], uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOrC_16u_AC4IR(const uint16_t value[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOrC_32s_C1R(const int32_t* src, int srcStep, int32_t value, int32_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliOrC_32s_C3R(const int32_t* src, int srcStep, const int32_t value[3], int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliOrC_32s_C4R(const int32_t* src, int srcStep, const int32_t value[4], int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliOrC_32s_AC4R(const int32_t* src, int srcStep, const int32_t value[3], int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliOrC_32s_C1IR(int32_t value, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOrC_32s_C3IR(const int32_t value[3], int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOrC_32s_C4IR(const int32_t value[4], int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliOrC_32s_AC4IR(const int32_t value[3], int32_t* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * Xor (arith/logical.cpp)
 *
 * dst = src1 ^ src2, bit by bit. AC4: elements 0..2.
 * Statuses, in this order: C3 and C4 members: -6 width < 1; then all: -8 a pointer is null; -14 a step < 1; -6 width or height
 * < 1.
 */
PxlStatus pxliXor_8u_C1R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliXor_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliXor_8u_C4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliXor_8u_AC4R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliXor_8u_C1IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXor_8u_C3IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXor_8u_C4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXor_8u_AC4IR(const uint8_t* src, int srcStep, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXor_16u_C1R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliXor_16u_C3R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliXor_16u_C4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliXor_16u_AC4R(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step, uint16_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliXor_16u_C1IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXor_16u_C3IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXor_16u_C4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXor_16u_AC4IR(const uint16_t* src, int srcStep, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXor_32s_C1R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliXor_32s_C3R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliXor_32s_C4R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliXor_32s_AC4R(const int32_t* src1, int src1Step, const int32_t* src2, int src2Step, int32_t* dst,
    int dstStep, ImageSize roiSize);
PxlStatus pxliXor_32s_C1IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXor_32s_C3IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXor_32s_C4IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXor_32s_AC4IR(const int32_t* src, int srcStep, int32_t* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * XorC (arith/logical.cpp)
 *
 * dst = src ^ value, bit by bit, with one value per channel. AC4: elements 0..2.
 * Statuses, in this order: -8 a pointer is null; -14 a step < 1; -6 width or height < 1.
 */
PxlStatus pxliXorC_8u_C1R(const uint8_t* src, int srcStep, uint8_t value, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliXorC_8u_C3R(const uint8_t* src, int srcStep, const uint8_t value[3], uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliXorC_8u_C4R(const uint8_t* src, int srcStep, const uint8_t value[4], uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliXorC_8u_AC4R(const uint8_t* src, int srcStep, const uint8_t value[3], uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliXorC_8u_C1IR(uint8_t value, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXorC_8u_C3IR(const uint8_t value[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXorC_8u_C4IR(const uint8_t value[4], uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXorC_8u_AC4IR(const uint8_t value[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXorC_16u_C1R(const uint16_t* src, int srcStep, uint16_t value, uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliXorC_16u_C3R(const uint16_t* src, int srcStep, const uint16_t value[3], uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliXorC_16u_C4R(const uint16_t* src, int srcStep, const uint16_t value[4], uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliXorC_16u_AC4R(const uint16_t* src, int srcStep, const uint16_t value[3], uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliXorC_16u_C1IR(uint16_t value, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXorC_16u_C3IR(const uint16_t value[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXorC_16u_C4IR(const uint16_t value[4], uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXorC_16u_AC4IR(const uint16_t value[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXorC_32s_C1R(const int32_t* src, int srcStep, int32_t value, int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliXorC_32s_C3R(const int32_t* src, int srcStep, const int32_t value[3], int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliXorC_32s_C4R(const int32_t* src, int srcStep, const int32_t value[4], int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliXorC_32s_AC4R(const int32_t* src, int srcStep, const int32_t value[3], int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliXorC_32s_C1IR(int32_t value, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXorC_32s_C3IR(const int32_t value[3], int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXorC_32s_C4IR(const int32_t value[4], int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliXorC_32s_AC4IR(const int32_t value[3], int32_t* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * Not (arith/logical.cpp)
 *
 * dst = ~src. AC4: elements 0..2.
 * Statuses, in this order: -8 a pointer is null; -14 a step < 1; -6 width or height < 1.
 */
PxlStatus pxliNot_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliNot_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliNot_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliNot_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliNot_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliNot_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliNot_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliNot_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * LShiftC (arith/shift.cpp)
 *
 * dst = src << count, with one count per channel; bits that leave the element are lost, counts from the element's width up give
 * 0. AC4: elements 0..2.
 * Statuses, in this order: -8 a pointer is null; -14 a step < 1; -6 width or height < 1.
 */
PxlStatus pxliLShiftC_8u_C1R(const uint8_t* src, int srcStep, uint32_t count, uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliLShiftC_8u_C3R(const uint8_t* src, int srcStep, const uint32_t count[3], uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliLShiftC_8u_C4R(const uint8_t* src, int srcStep, const uint32_t count[4], uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliLShiftC_8u_AC4R(const uint8_t* src, int srcStep, const uint32_t count[3], uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliLShiftC_8u_C1IR(uint32_t count, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliLShiftC_8u_C3IR(const uint32_t count[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliLShiftC_8u_C4IR(const uint32_t count[4], uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliLShiftC_8u_AC4IR(const uint32_t count[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliLShiftC_16u_C1R(const uint16_t* src, int srcStep, uint32_t count, uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliLShiftC_16u_C3R(const uint16_t* src, int srcStep, const uint32_t count[3], uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliLShiftC_16u_C4R(const uint16_t* src, int srcStep, const uint32_t count[4], uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliLShiftC_16u_AC4R(const uint16_t* src, int srcStep, const uint32_t count[3], uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliLShiftC_16u_C1IR(uint32_t count, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliLShiftC_16u_C3IR(const uint32_t count[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliLShiftC_16u_C4IR(const uint32_t count[4], uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliLShiftC_16u_AC4IR(const uint32_t count[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliLShiftC_32s_C1R(const int32_t* src, int srcStep, uint32_t count, int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliLShiftC_32s_C3R(const int32_t* src, int srcStep, const uint32_t count[3], int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliLShiftC_32s_C4R(const int32_t* src, int srcStep, const uint32_t count[4], int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliLShiftC_32s_AC4R(const int32_t* src, int srcStep, const uint32_t count[3], int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliLShiftC_32s_C1IR(uint32_t count, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliLShiftC_32s_C3IR(const uint32_t count[3], int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliLShiftC_32s_C4IR(const uint32_t count[4], int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliLShiftC_32s_AC4IR(const uint32_t count[3], int32_t* srcDst, int srcDstStep, ImageSize roiSize);

/* --------------------------------------------------------------------------------------------------------------
 * RShiftC (arith/shift.cpp)
 *
 * dst = src >> count, with one count per channel: zeros come in for unsigned types, the sign for signed ones, also for counts
 * from the element's width up. AC4: elements 0..2.
 * Statuses, in this order: -8 a pointer is null; -14 a step < 1; -6 width or height < 1.
 */
PxlStatus pxliRShiftC_8u_C1R(const uint8_t* src, int srcStep, uint32_t count, uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_8u_C3R(const uint8_t* src, int srcStep, const uint32_t count[3], uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_8u_C4R(const uint8_t* src, int srcStep, const uint32_t count[4], uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_8u_AC4R(const uint8_t* src, int srcStep, const uint32_t count[3], uint8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_8u_C1IR(uint32_t count, uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_8u_C3IR(const uint32_t count[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_8u_C4IR(const uint32_t count[4], uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_8u_AC4IR(const uint32_t count[3], uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_8s_C1R(const int8_t* src, int srcStep, uint32_t count, int8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_8s_C3R(const int8_t* src, int srcStep, const uint32_t count[3], int8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_8s_C4R(const int8_t* src, int srcStep, const uint32_t count[4], int8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_8s_AC4R(const int8_t* src, int srcStep, const uint32_t count[3], int8_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_8s_C1IR(uint32_t count, int8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_8s_C3IR(const uint32_t count[3], int8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_8s_C4IR(const uint32_t count[4], int8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_8s_AC4IR(const uint32_t count[3], int8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_16u_C1R(const uint16_t* src, int srcStep, uint32_t count, uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_16u_C3R(const uint16_t* src, int srcStep, const uint32_t count[3], uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_16u_C4R(const uint16_t* src, int srcStep, const uint32_t count[4], uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_16u_AC4R(const uint16_t* src, int srcStep, const uint32_t count[3], uint16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_16u_C1IR(uint32_t count, uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_16u_C3IR(const uint32_t count[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_16u_C4IR(const uint32_t count[4], uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_16u_AC4IR(const uint32_t count[3], uint16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_16s_C1R(const int16_t* src, int srcStep, uint32_t count, int16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_16s_C3R(const int16_t* src, int srcStep, const uint32_t count[3], int16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_16s_C4R(const int16_t* src, int srcStep, const uint32_t count[4], int16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_16s_AC4R(const int16_t* src, int srcStep, const uint32_t count[3], int16_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_16s_C1IR(uint32_t count, int16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_16s_C3IR(const uint32_t count[3], int16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_16s_C4IR(const uint32_t count[4], int16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_16s_AC4IR(const uint32_t count[3], int16_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_32s_C1R(const int32_t* src, int srcStep, uint32_t count, int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_32s_C3R(const int32_t* src, int srcStep, const uint32_t count[3], int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_32s_C4R(const int32_t* src, int srcStep, const uint32_t count[4], int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_32s_AC4R(const int32_t* src, int srcStep, const uint32_t count[3], int32_t* dst, int dstStep,
    ImageSize roiSize);
PxlStatus pxliRShiftC_32s_C1IR(uint32_t count, int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_32s_C3IR(const uint32_t count[3], int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_32s_C4IR(const uint32_t count[4], int32_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliRShiftC_32s_AC4IR(const uint32_t count[3], int32_t* srcDst, int srcDstStep, ImageSize roiSize);

/* ==== Filters ========================================================================================================== */

/* --------------------------------------------------------------------------------------------------------------
 * Filter (filter/filter.cpp)
 *
 * True convolution with a kernel of kernelSize coefficients in row-major order: with K[j][i] the coefficient in row j, column i,
 * dst(x, y) = sum of K[j][i] * src(x + anchor.x - i, y + anchor.y - j).
 * src addresses the origin of the region; the caller supplies kernelSize.width - 1 - anchor.x columns left of it, anchor.x columns
 * right of it, kernelSize.height - 1 - anchor.y rows above and anchor.y rows below. The anchor is not checked. AC4: elements 0..2.
 * 8u: divisor 1 saturates the sum; a power of two rounds to nearest even in integers; any other divisor multiplies with its
 * single-precision reciprocal and rounds to nearest even. 16s and 16u: the same, with a true division in double precision.
 * The sum must fit 32 bits.
 * 32f: products summed in single precision, neighbourhood rows from top to bottom, each from left to right.
 * Threads: regions of at least 64 x 64 are split into strips of rows over a team of threads_omp_of_n_pxl threads; the result does
 * not depend on the team.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1; -6 kernel width < 1, kernel height < 1; -51 divisor 0; -14
 * srcStep below (width + kernel width - 1) pixels, dstStep below width pixels.
 */
PxlStatus pxliFilter_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor);
PxlStatus pxliFilter_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor);
PxlStatus pxliFilter_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor);
PxlStatus pxliFilter_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor);
PxlStatus pxliFilter_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor);
PxlStatus pxliFilter_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor);
PxlStatus pxliFilter_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor);
PxlStatus pxliFilter_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor);
PxlStatus pxliFilter_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor);
PxlStatus pxliFilter_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor);
PxlStatus pxliFilter_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor);
PxlStatus pxliFilter_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor);
PxlStatus pxliFilter_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor);
PxlStatus pxliFilter_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor);
PxlStatus pxliFilter_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor);
PxlStatus pxliFilter_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor);

/* --------------------------------------------------------------------------------------------------------------
 * Filter, double precision (filter/filter_64f.cpp)
 *
 * True convolution with a kernel of kernelSize coefficients in row-major order: with K[j][i] the coefficient in row j, column i,
 * dst(x, y) = sum of K[j][i] * src(x + anchor.x - i, y + anchor.y - j).
 * src addresses the origin of the region; the caller supplies kernelSize.width - 1 - anchor.x columns left of it, anchor.x columns
 * right of it, kernelSize.height - 1 - anchor.y rows above and anchor.y rows below. The anchor is not checked. AC4: elements 0..2.
 * Sums in double precision. buffer is not used and may be null.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1; -6 kernel width < 1, kernel height < 1; -14
 * srcStep below (width + kernel width - 1) pixels, dstStep below width pixels.
 */
PxlStatus pxliFilter_64f_C1R(const double* src, int srcStep, double* dst, int dstStep, ImageSize roiSize,
    const double* kernel, ImageSize kernelSize, ImagePoint anchor, uint8_t* buffer);

/* --------------------------------------------------------------------------------------------------------------
 * FilterGetBufSize (filter/filter_64f.cpp)
 *
 * The size of the buffer of pxliFilter_64f_C1R, which is 0.
 * Statuses, in this order: -8 size is null; -6 a size < 1. *size is written on success only.
 */
PxlStatus pxliFilterGetBufSize_64f_C1R(ImageSize kernelSize, int roiWidth, int* size);

/* --------------------------------------------------------------------------------------------------------------
 * Filter32f (filter/filter_32f.cpp)
 *
 * True convolution with a kernel of kernelSize coefficients in row-major order: with K[j][i] the coefficient in row j, column i,
 * dst(x, y) = sum of K[j][i] * src(x + anchor.x - i, y + anchor.y - j).
 * src addresses the origin of the region; the caller supplies kernelSize.width - 1 - anchor.x columns left of it, anchor.x columns
 * right of it, kernelSize.height - 1 - anchor.y rows above and anchor.y rows below. The anchor is not checked. AC4: elements 0..2.
 * Products are summed in single precision, neighbourhood rows from top to bottom, each from left to right; the sum is saturated
 * and rounded to nearest even.
 * Threads: regions of at least 64 x 64 are split into strips of rows over a team of threads_omp_of_n_pxl threads; the result does
 * not depend on the team.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1; -6 kernel width < 1, kernel height < 1; -14
 * srcStep below (width + kernel width - 1) pixels, dstStep below width pixels.
 */
PxlStatus pxliFilter32f_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor);
PxlStatus pxliFilter32f_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor);
PxlStatus pxliFilter32f_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor);
PxlStatus pxliFilter32f_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor);
PxlStatus pxliFilter32f_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor);
PxlStatus pxliFilter32f_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor);
PxlStatus pxliFilter32f_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor);
PxlStatus pxliFilter32f_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor);
PxlStatus pxliFilter32f_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor);
PxlStatus pxliFilter32f_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor);
PxlStatus pxliFilter32f_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor);
PxlStatus pxliFilter32f_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor);

/* --------------------------------------------------------------------------------------------------------------
 * Filter_Round16s (filter/filter_round_int.cpp)
 *
 * True convolution with a kernel of kernelSize coefficients in row-major order: with K[j][i] the coefficient in row j, column i,
 * dst(x, y) = sum of K[j][i] * src(x + anchor.x - i, y + anchor.y - j).
 * src addresses the origin of the region; the caller supplies kernelSize.width - 1 - anchor.x columns left of it, anchor.x columns
 * right of it, kernelSize.height - 1 - anchor.y rows above and anchor.y rows below. The anchor is not checked. AC4: elements 0..2.
 * The sum is multiplied with the single-precision reciprocal of divisor. The saturated value is rounded by roundMode: 0 toward zero, 1 to nearest even, 2 to nearest with ties away from zero. buffer is
 * not used and may be null.
 * Threads: regions of at least 64 x 64 are split into strips of rows over a team of threads_omp_of_n_pxl threads; the result does
 * not depend on the team.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1; -6 kernel width < 1, kernel height < 1; -51 divisor 0; -14
 * srcStep below (width + kernel width - 1) pixels, dstStep below width pixels; -213 roundMode not 0, 1 or 2.
 */
PxlStatus pxliFilter_Round16s_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor, PxlRoundMode roundMode,
    uint8_t* buffer);
PxlStatus pxliFilter_Round16s_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor, PxlRoundMode roundMode,
    uint8_t* buffer);
PxlStatus pxliFilter_Round16s_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor, PxlRoundMode roundMode,
    uint8_t* buffer);
PxlStatus pxliFilter_Round16s_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor, PxlRoundMode roundMode,
    uint8_t* buffer);

/* --------------------------------------------------------------------------------------------------------------
 * Filter_Round32s (filter/filter_round_int.cpp)
 *
 * True convolution with a kernel of kernelSize coefficients in row-major order: with K[j][i] the coefficient in row j, column i,
 * dst(x, y) = sum of K[j][i] * src(x + anchor.x - i, y + anchor.y - j).
 * src addresses the origin of the region; the caller supplies kernelSize.width - 1 - anchor.x columns left of it, anchor.x columns
 * right of it, kernelSize.height - 1 - anchor.y rows above and anchor.y rows below. The anchor is not checked. AC4: elements 0..2.
 * The sum is divided by divisor in double precision. The saturated value is rounded by roundMode: 0 toward zero, 1 to nearest even, 2 to nearest with ties away from zero. buffer is
 * not used and may be null.
 * Threads: regions of at least 64 x 64 are split into strips of rows over a team of threads_omp_of_n_pxl threads; the result does
 * not depend on the team.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1; -6 kernel width < 1, kernel height < 1; -51 divisor 0; -14
 * srcStep below (width + kernel width - 1) pixels, dstStep below width pixels; -213 roundMode not 0, 1 or 2.
 */
PxlStatus pxliFilter_Round32s_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor, PxlRoundMode roundMode,
    uint8_t* buffer);
PxlStatus pxliFilter_Round32s_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor, PxlRoundMode roundMode,
    uint8_t* buffer);
PxlStatus pxliFilter_Round32s_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor, PxlRoundMode roundMode,
    uint8_t* buffer);
PxlStatus pxliFilter_Round32s_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor, PxlRoundMode roundMode,
    uint8_t* buffer);
PxlStatus pxliFilter_Round32s_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor, PxlRoundMode roundMode,
    uint8_t* buffer);
PxlStatus pxliFilter_Round32s_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor, PxlRoundMode roundMode,
    uint8_t* buffer);
PxlStatus pxliFilter_Round32s_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor, PxlRoundMode roundMode,
    uint8_t* buffer);
PxlStatus pxliFilter_Round32s_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor, PxlRoundMode roundMode,
    uint8_t* buffer);

/* --------------------------------------------------------------------------------------------------------------
 * Filter_Round32f (filter/filter_round_32f.cpp)
 *
 * True convolution with a kernel of kernelSize coefficients in row-major order: with K[j][i] the coefficient in row j, column i,
 * dst(x, y) = sum of K[j][i] * src(x + anchor.x - i, y + anchor.y - j).
 * src addresses the origin of the region; the caller supplies kernelSize.width - 1 - anchor.x columns left of it, anchor.x columns
 * right of it, kernelSize.height - 1 - anchor.y rows above and anchor.y rows below. The anchor is not checked. AC4: elements 0..2.
 * Single-precision products are summed in double precision; the sum is rounded to single precision. The saturated value is rounded by roundMode: 0 toward zero, 1 to nearest even, 2 to nearest with ties away from zero. buffer is
 * not used and may be null.
 * Threads: regions of at least 64 x 64 are split into strips of rows over a team of threads_omp_of_n_pxl threads; the result does
 * not depend on the team.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1; -6 kernel width < 1, kernel height < 1; -14
 * srcStep below (width + kernel width - 1) pixels, dstStep below width pixels; -213 roundMode not 0, 1 or 2.
 */
PxlStatus pxliFilter_Round32f_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor, PxlRoundMode roundMode, uint8_t* buffer);
PxlStatus pxliFilter_Round32f_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor, PxlRoundMode roundMode, uint8_t* buffer);
PxlStatus pxliFilter_Round32f_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor, PxlRoundMode roundMode, uint8_t* buffer);
PxlStatus pxliFilter_Round32f_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor, PxlRoundMode roundMode, uint8_t* buffer);
PxlStatus pxliFilter_Round32f_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor, PxlRoundMode roundMode, uint8_t* buffer);
PxlStatus pxliFilter_Round32f_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor, PxlRoundMode roundMode, uint8_t* buffer);
PxlStatus pxliFilter_Round32f_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor, PxlRoundMode roundMode, uint8_t* buffer);
PxlStatus pxliFilter_Round32f_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor, PxlRoundMode roundMode, uint8_t* buffer);
PxlStatus pxliFilter_Round32f_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor, PxlRoundMode roundMode, uint8_t* buffer);
PxlStatus pxliFilter_Round32f_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor, PxlRoundMode roundMode, uint8_t* buffer);
PxlStatus pxliFilter_Round32f_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor, PxlRoundMode roundMode, uint8_t* buffer);
PxlStatus pxliFilter_Round32f_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, ImageSize kernelSize, ImagePoint anchor, PxlRoundMode roundMode, uint8_t* buffer);

/* --------------------------------------------------------------------------------------------------------------
 * FilterRow (filter/filter_row.cpp)
 *
 * True convolution with one row of kernelSize coefficients: dst(x, y) = sum of K[i] * src(x + xAnchor - i, y).
 * The caller supplies kernelSize - 1 - xAnchor columns left of the region and xAnchor right of it. AC4: elements 0..2.
 * 8u: divisor 1 saturates the sum; a power of two rounds to nearest even in integers; any other divisor multiplies with its
 * single-precision reciprocal and rounds to nearest even. 16s and 16u: the same, with a true division in double precision.
 * The sum must fit 32 bits.
 * 32f: products summed in single precision in the order of the pixels.
 * Threads: regions of at least 64 x 64 are split into strips of rows over a team of threads_omp_of_n_pxl threads; the result does
 * not depend on the team.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1; -6 kernelSize < 1; -51 divisor 0; -14 srcStep below (width +
 * kernelSize - 1) pixels, dstStep below width pixels.
 */
PxlStatus pxliFilterRow_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int xAnchor, int divisor);
PxlStatus pxliFilterRow_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int xAnchor, int divisor);
PxlStatus pxliFilterRow_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int xAnchor, int divisor);
PxlStatus pxliFilterRow_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int xAnchor, int divisor);
PxlStatus pxliFilterRow_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int xAnchor, int divisor);
PxlStatus pxliFilterRow_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int xAnchor, int divisor);
PxlStatus pxliFilterRow_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int xAnchor, int divisor);
PxlStatus pxliFilterRow_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int xAnchor, int divisor);
PxlStatus pxliFilterRow_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int xAnchor, int divisor);
PxlStatus pxliFilterRow_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int xAnchor, int divisor);
PxlStatus pxliFilterRow_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int xAnchor, int divisor);
PxlStatus pxliFilterRow_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int xAnchor, int divisor);
PxlStatus pxliFilterRow_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int xAnchor);
PxlStatus pxliFilterRow_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int xAnchor);
PxlStatus pxliFilterRow_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int xAnchor);
PxlStatus pxliFilterRow_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int xAnchor);

/* --------------------------------------------------------------------------------------------------------------
 * FilterRow32f (filter/filter_row.cpp)
 *
 * True convolution with one row of kernelSize coefficients: dst(x, y) = sum of K[i] * src(x + xAnchor - i, y).
 * The caller supplies kernelSize - 1 - xAnchor columns left of the region and xAnchor right of it. AC4: elements 0..2.
 * Products are summed in single precision in the order of the pixels; the sum is saturated and rounded to nearest even.
 * Threads: regions of at least 64 x 64 are split into strips of rows over a team of threads_omp_of_n_pxl threads; the result does
 * not depend on the team.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1; -6 kernelSize < 1; -14 srcStep below (width +
 * kernelSize - 1) pixels, dstStep below width pixels.
 */
PxlStatus pxliFilterRow32f_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int xAnchor);
PxlStatus pxliFilterRow32f_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int xAnchor);
PxlStatus pxliFilterRow32f_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int xAnchor);
PxlStatus pxliFilterRow32f_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int xAnchor);
PxlStatus pxliFilterRow32f_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int xAnchor);
PxlStatus pxliFilterRow32f_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int xAnchor);
PxlStatus pxliFilterRow32f_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int xAnchor);
PxlStatus pxliFilterRow32f_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int xAnchor);
PxlStatus pxliFilterRow32f_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int xAnchor);
PxlStatus pxliFilterRow32f_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int xAnchor);
PxlStatus pxliFilterRow32f_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int xAnchor);
PxlStatus pxliFilterRow32f_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int xAnchor);

/* --------------------------------------------------------------------------------------------------------------
 * FilterColumn (filter/filter_column.cpp)
 *
 * True convolution with one column of kernelSize coefficients: dst(x, y) = sum of K[j] * src(x, y + yAnchor - j).
 * The caller supplies kernelSize - 1 - yAnchor rows above the region and yAnchor below it. AC4: elements 0..2.
 * 8u: divisor 1 saturates the sum; a power of two rounds to nearest even in integers; any other divisor multiplies with its
 * single-precision reciprocal and rounds to nearest even. 16s and 16u: the same, with a true division in double precision.
 * The sum must fit 32 bits.
 * 32f: products summed in single precision in the order of the pixels.
 * Threads: regions of at least 64 x 64 are split into strips of rows over a team of threads_omp_of_n_pxl threads; the result does
 * not depend on the team.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1; -6 kernelSize < 1; -51 divisor 0; -14 srcStep below width pixels, dstStep below width pixels.
 */
PxlStatus pxliFilterColumn_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int yAnchor, int divisor);
PxlStatus pxliFilterColumn_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int yAnchor, int divisor);
PxlStatus pxliFilterColumn_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int yAnchor, int divisor);
PxlStatus pxliFilterColumn_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int yAnchor, int divisor);
PxlStatus pxliFilterColumn_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int yAnchor, int divisor);
PxlStatus pxliFilterColumn_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int yAnchor, int divisor);
PxlStatus pxliFilterColumn_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int yAnchor, int divisor);
PxlStatus pxliFilterColumn_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int yAnchor, int divisor);
PxlStatus pxliFilterColumn_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int yAnchor, int divisor);
PxlStatus pxliFilterColumn_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int yAnchor, int divisor);
PxlStatus pxliFilterColumn_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int yAnchor, int divisor);
PxlStatus pxliFilterColumn_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const int32_t* kernel, int kernelSize, int yAnchor, int divisor);
PxlStatus pxliFilterColumn_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int yAnchor);
PxlStatus pxliFilterColumn_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int yAnchor);
PxlStatus pxliFilterColumn_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int yAnchor);
PxlStatus pxliFilterColumn_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int yAnchor);

/* --------------------------------------------------------------------------------------------------------------
 * FilterColumn32f (filter/filter_column.cpp)
 *
 * True convolution with one column of kernelSize coefficients: dst(x, y) = sum of K[j] * src(x, y + yAnchor - j).
 * The caller supplies kernelSize - 1 - yAnchor rows above the region and yAnchor below it. AC4: elements 0..2.
 * Products are summed in single precision in the order of the pixels; the sum is saturated and rounded to nearest even.
 * Threads: regions of at least 64 x 64 are split into strips of rows over a team of threads_omp_of_n_pxl threads; the result does
 * not depend on the team.
 * Statuses, in this order: -8 a pointer is null; -6 width or height < 1; -6 kernelSize < 1; -14 srcStep below width pixels, dstStep below width pixels.
 */
PxlStatus pxliFilterColumn32f_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int yAnchor);
PxlStatus pxliFilterColumn32f_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int yAnchor);
PxlStatus pxliFilterColumn32f_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int yAnchor);
PxlStatus pxliFilterColumn32f_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int yAnchor);
PxlStatus pxliFilterColumn32f_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int yAnchor);
PxlStatus pxliFilterColumn32f_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int yAnchor);
PxlStatus pxliFilterColumn32f_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int yAnchor);
PxlStatus pxliFilterColumn32f_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int yAnchor);
PxlStatus pxliFilterColumn32f_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int yAnchor);
PxlStatus pxliFilterColumn32f_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int yAnchor);
PxlStatus pxliFilterColumn32f_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int yAnchor);
PxlStatus pxliFilterColumn32f_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const float* kernel, int kernelSize, int yAnchor);

/* --------------------------------------------------------------------------------------------------------------
 * FilterBox (filter/box.cpp)
 *
 * The mean of the maskSize window of every pixel: source pixels (x - anchor.x + i, y - anchor.y + j), 0 <= i < maskSize.width,
 * 0 <= j < maskSize.height. The caller supplies the pixels around the region that the window reaches. Running sums: a pixel costs
 * the same whatever the mask. In place (IR), the pixels around the region are read only. AC4: elements 0..2.
 *   8u   mask area up to 8100: the truncated mean by multiplication and shift; above: trunc(float(S) * r + 9.0e-6f) with r the
 *        single-precision reciprocal of the area
 *   16s  of the sum S of samples + 32768: trunc(float(S) * r + 9.0e-6) - 32768
 *   16u  trunc(double(float(S) * r) + 0.5000001)
 *   32f  S * r with running sums in single precision
 * Steps of 16- and 32-bit types count whole elements: what is over is dropped.
 * Threads: 8u, 16s and 32f: blocks of rows over a team of threads_omp_of_n_pxl threads, out of place, for more than 4096 pixels (C4:
 * always); 32f results may differ in the last bits between team sizes. 16u and the in-place forms run on the calling thread.
 * Scratch: column sums of up to 16 rows; in place also the rows of results that wait for anchor.y rows below them.
 * Statuses, in this order: -8 a pointer is null; -14 a step < 1; -6 width or height < 1; -33 mask width or height < 1; -34 an anchor
 * outside the mask; -9 no scratch memory.
 */
PxlStatus pxliFilterBox_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    ImageSize maskSize, ImagePoint anchor);
PxlStatus pxliFilterBox_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    ImageSize maskSize, ImagePoint anchor);
PxlStatus pxliFilterBox_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    ImageSize maskSize, ImagePoint anchor);
PxlStatus pxliFilterBox_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    ImageSize maskSize, ImagePoint anchor);
PxlStatus pxliFilterBox_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    ImageSize maskSize, ImagePoint anchor);
PxlStatus pxliFilterBox_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    ImageSize maskSize, ImagePoint anchor);
PxlStatus pxliFilterBox_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    ImageSize maskSize, ImagePoint anchor);
PxlStatus pxliFilterBox_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    ImageSize maskSize, ImagePoint anchor);
PxlStatus pxliFilterBox_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    ImageSize maskSize, ImagePoint anchor);
PxlStatus pxliFilterBox_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    ImageSize maskSize, ImagePoint anchor);
PxlStatus pxliFilterBox_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    ImageSize maskSize, ImagePoint anchor);
PxlStatus pxliFilterBox_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    ImageSize maskSize, ImagePoint anchor);
PxlStatus pxliFilterBox_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    ImageSize maskSize, ImagePoint anchor);
PxlStatus pxliFilterBox_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    ImageSize maskSize, ImagePoint anchor);
PxlStatus pxliFilterBox_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    ImageSize maskSize, ImagePoint anchor);
PxlStatus pxliFilterBox_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    ImageSize maskSize, ImagePoint anchor);
PxlStatus pxliFilterBox_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, ImageSize maskSize,
    ImagePoint anchor);
PxlStatus pxliFilterBox_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, ImageSize maskSize,
    ImagePoint anchor);
PxlStatus pxliFilterBox_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, ImageSize maskSize,
    ImagePoint anchor);
PxlStatus pxliFilterBox_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, ImageSize maskSize,
    ImagePoint anchor);
PxlStatus pxliFilterBox_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, ImageSize maskSize,
    ImagePoint anchor);
PxlStatus pxliFilterBox_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, ImageSize maskSize,
    ImagePoint anchor);
PxlStatus pxliFilterBox_16s_C4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, ImageSize maskSize,
    ImagePoint anchor);
PxlStatus pxliFilterBox_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, ImageSize maskSize,
    ImagePoint anchor);
PxlStatus pxliFilterBox_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, ImageSize maskSize,
    ImagePoint anchor);
PxlStatus pxliFilterBox_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, ImageSize maskSize,
    ImagePoint anchor);
PxlStatus pxliFilterBox_16u_C4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, ImageSize maskSize,
    ImagePoint anchor);
PxlStatus pxliFilterBox_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, ImageSize maskSize,
    ImagePoint anchor);
PxlStatus pxliFilterBox_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, ImageSize maskSize,
    ImagePoint anchor);
PxlStatus pxliFilterBox_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, ImageSize maskSize,
    ImagePoint anchor);
PxlStatus pxliFilterBox_32f_C4IR(float* srcDst, int srcDstStep, ImageSize roiSize, ImageSize maskSize,
    ImagePoint anchor);
PxlStatus pxliFilterBox_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, ImageSize maskSize,
    ImagePoint anchor);

/* --------------------------------------------------------------------------------------------------------------
 * SumWindowRow (filter/sum_window.cpp)
 *
 * The sum of the maskSize source samples (x - anchor + k, y), 0 <= k < maskSize, as single-precision running sums: each channel
 * starts a row with the sum of its first window and adds the difference of the sample that enters and the one that leaves.
 * Steps are not checked; those of 16-bit sources and of the destination count whole elements.
 * Statuses, in this order: 16u: -8 a pointer is null; -6 width or height < 1; -33 maskSize < 1; -34 anchor outside 0..maskSize - 1.
 * 8u and 16s: -8; -33; -34; a height < 1 then returns 0.
 */
PxlStatus pxliSumWindowRow_8u32f_C1R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    int maskSize, int anchor);
PxlStatus pxliSumWindowRow_8u32f_C3R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    int maskSize, int anchor);
PxlStatus pxliSumWindowRow_8u32f_C4R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    int maskSize, int anchor);
PxlStatus pxliSumWindowRow_16s32f_C1R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    int maskSize, int anchor);
PxlStatus pxliSumWindowRow_16s32f_C3R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    int maskSize, int anchor);
PxlStatus pxliSumWindowRow_16s32f_C4R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    int maskSize, int anchor);
PxlStatus pxliSumWindowRow_16u32f_C1R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    int maskSize, int anchor);
PxlStatus pxliSumWindowRow_16u32f_C3R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    int maskSize, int anchor);
PxlStatus pxliSumWindowRow_16u32f_C4R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    int maskSize, int anchor);

/* --------------------------------------------------------------------------------------------------------------
 * SumWindowColumn (filter/sum_window.cpp)
 *
 * The sum of the maskSize source samples (x, y - anchor + k), 0 <= k < maskSize, as single-precision running sums: each channel
 * starts a column with the sum of its first window and adds the difference of the sample that enters and the one that leaves.
 * Steps are not checked; those of 16-bit sources and of the destination count whole elements.
 * Scratch: one row of sums.
 * Statuses, in this order: 16u: -8 a pointer is null; -6 width or height < 1; -33 maskSize < 1; -34 anchor outside 0..maskSize - 1.
 * 8u and 16s: -8; -33; -34; a height < 1 then returns 0, a width < 1 returns -9. 16s C3: -6 width or height < 1; -8;
 * -33; -34. All: -9 no scratch memory.
 */
PxlStatus pxliSumWindowColumn_8u32f_C1R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    int maskSize, int anchor);
PxlStatus pxliSumWindowColumn_8u32f_C3R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    int maskSize, int anchor);
PxlStatus pxliSumWindowColumn_8u32f_C4R(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    int maskSize, int anchor);
PxlStatus pxliSumWindowColumn_16s32f_C1R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    int maskSize, int anchor);
PxlStatus pxliSumWindowColumn_16s32f_C3R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    int maskSize, int anchor);
PxlStatus pxliSumWindowColumn_16s32f_C4R(const int16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    int maskSize, int anchor);
PxlStatus pxliSumWindowColumn_16u32f_C1R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    int maskSize, int anchor);
PxlStatus pxliSumWindowColumn_16u32f_C3R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    int maskSize, int anchor);
PxlStatus pxliSumWindowColumn_16u32f_C4R(const uint16_t* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    int maskSize, int anchor);

#include "pxl_linkage.h"

#endif
