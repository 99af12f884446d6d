/* pxlimx: image-processing primitives for 64-bit x86.
 *
 * Every function performs one operation for one pixel type and one channel layout over a region of images that the
 * caller owns. Nothing is initialised, nothing is kept between calls, and any function may be called from any thread;
 * concurrent calls are safe as long as their destinations do not overlap.
 *
 * Names: pxli + operation + _ + element types + _ + layout + mode.
 *   element types  8u 8s 16u 16s 32u 32s 32f 64f, complex 16sc 32sc 32fc, bits 1u; two codes: source, then destination
 *   layouts        C1 C3 C4 interleaved; AC4 four elements per pixel of which the first three are processed (the fourth
 *                  of the destination keeps its value); P3 P4 planar; C3C C4C one chosen channel of interleaved pixels;
 *                  two layouts: source, then destination
 *   modes          R region, I in place, M masked (pixels whose 8u mask element is not 0), Sfs result scaled by 2 to
 *                  the power of minus scaleFactor
 *
 * Images: a pointer to the first element of the region and a step, the signed count of bytes from the start of one row
 * to the start of the next. Element c of pixel (x, y) lies at base + y * step + (x * elementsPerPixel + c) *
 * elementSize. Planar images are arrays of plane pointers that share one step. Where the pixels of an operand have a
 * channel of interest, its pointer addresses that channel of the first pixel. roiSize is the width and height in pixels
 * of the region processed.
 *
 * Memory: a function reads and writes only the region described: no byte past the last element of a row and none
 * between rows. In AC4, channel-of-interest and masked destinations an element that keeps its value may be stored again
 * with the value it had: the fourth elements of AC4 pixels, elements between two of the chosen channel, pixels beside
 * masked ones. The fourth element of an AC4 source is never read. Rows are processed from first to last.
 *
 * Neighbourhoods: filters and window sums read source pixels around the region too. They make up no border: the
 * caller's image holds these pixels, and the family says how many on each side (pxliCopyReplicateBorder and its like
 * make them).
 * Linear filters mirror their kernel; windows and masks are not mirrored.
 *
 * Overlap: where the operands of a pointwise function overlap in memory, the result is that of the plain loop over each
 * row from left to right: element by element, or pixel by pixel where whole pixels are handled (masks, channel orders,
 * AC4, borders). The destination of a filter or window sum must not overlap the source pixels that are read, those
 * around the region included. A filter that works in place (I) takes one region: it reads the pixels around it too, writes
 * the region alone, and gives what its out-of-place member, on one thread, gives from a copy of the image.
 *
 * Numbers: results are the same bits on every processor, given the default floating-point environment: round to
 * nearest, no exceptions trapped, no flushing of subnormal numbers to zero (FTZ, DAZ). THE CALLING THREAD MUST BE IN IT.
 * Functions do not set it, and integer families compute in floating point, too: after fesetround PXL_ROUND_NEAR_EVEN may
 * round in another direction, and any other result may change. A call leaves the environment as it finds it; exception
 * flags may be raised.
 *
 * Threads: a function runs on the calling thread, unless its family says that it splits its work over a team; the result
 * does not depend on the team.
 *
 * Status: every function but the allocators and the version query returns a PxlStatus. Arguments are checked before
 * anything is read or written, in the order that each family states; after a negative status nothing has been written.
 */
#ifndef PXLI_H
#define PXLI_H

#include <stdint.h>

#include "pxl_linkage.h"

/* ---- Version ----------------------------------------------------------------------------------------------------- */

/* The release of the library that this header comes with. pxliGetLibVersion returns the record of the interface, which is
 * the same in all releases of one MAJOR.MINOR. */
#define PXL_VERSION_MAJOR 5
#define PXL_VERSION_MINOR 3
#define PXL_VERSION_PATCH 0

/* ---- Types ------------------------------------------------------------------------------------------------------- */

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
    int32_t major;           /* the version: 5 of 5.3 */
    int32_t minor;           /* 3 of 5.3 */
    int32_t buildMajor;      /* the build, within the version */
    int32_t buildNumber;
    char cpuCode[4];         /* "mx" and two zero bytes: for every 64-bit x86 processor */
    const char* libraryName; /* the name of the DLL, on other platforms too */
    const char* versionText; /* version and build in words: "5.3 build 85.13" */
    const char* buildDate;   /* 11 characters, month, day and year: "Oct  8 2007" */
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

typedef int32_t PxlCmpOp; /* a is the pixel, b the threshold or the second operand */
enum {
    PXL_CMP_LESS = 0,       /* a < b */
    PXL_CMP_LESS_EQ = 1,    /* a <= b */
    PXL_CMP_EQ = 2,         /* a == b */
    PXL_CMP_GREATER_EQ = 3, /* a >= b */
    PXL_CMP_GREATER = 4     /* a > b */
};

/* ---- Status codes ------------------------------------------------------------------------------------------------ */

/* 0 success, negative errors (nothing was written), positive warnings (the result is complete). Behind a code stand in
 * brackets the families that return it; without them, it is kept for families to come. */
enum {
    PXL_OK = 0,                        /* the result is complete */
    PXL_W_NO_OPERATION = 1,            /* the mapped region is empty */
    PXL_W_SQRT_NEGATIVE = 3,           /* the square root of a negative element was asked for */
    PXL_W_DIV_BY_ZERO = 6,             /* at least one element was divided by zero (Div, Div_Round) */
    PXL_W_NOT_PARALLELOGRAM = 28,      /* the quadrangle of an affine transform is no parallelogram */
    PXL_W_NO_INTERSECTION = 29,        /* the source region begins outside the source image */
    PXL_W_NO_OVERLAP = 30,             /* the transformed source does not meet the destination region */
    PXL_E_BAD_ARG = -5,                /* a numeric argument outside its domain */
    PXL_E_SIZE = -6,                   /* a width, height or length below 1 (every family) */
    PXL_E_RANGE = -7,                  /* a lower bound above its upper bound */
    PXL_E_NULL_PTR = -8,               /* a required pointer is null (every family) */
    PXL_E_MEM_ALLOC = -9,              /* scratch or object memory could not be allocated (Convert, FilterBox,
                                          SumWindowColumn) */
    PXL_E_DIV_BY_ZERO = -10,           /* a constant divisor is zero (DivC) */
    PXL_E_OUT_OF_RANGE = -11,          /* an argument outside its allowed range */
    PXL_E_SCALE_RANGE = -13,           /* vMax - vMin <= 0 (Scale) */
    PXL_E_STEP = -14,                  /* a row step below 1, or below the minimum that the family states (every
                                          family but Copy, CopyManaged, Set, Dup, Mirror, Transpose, AddC, SubC,
                                          MulC, FilterGetBufSize, SumWindowRow, SumWindowColumn) */
    PXL_E_FFT_ORDER = -15,             /* a transform order outside 0..30 */
    PXL_E_FFT_FLAG = -16,              /* an unknown normalisation flag */
    PXL_E_CONTEXT = -17,               /* a prepared object of another kind */
    PXL_E_THRESHOLD = -18,             /* a lower threshold above its upper threshold (Threshold_LTValGTVal) */
    PXL_E_MOMENT_ZERO = -20,           /* the zeroth moment is zero */
    PXL_E_MIRROR_AXIS = -21,           /* an axis other than 0, 1 or 2 (Mirror) */
    PXL_E_INTERPOLATION = -22,         /* an interpolation that the function does not accept */
    PXL_E_RESIZE_FACTOR = -23,         /* a resize factor outside its range */
    PXL_E_RESAMPLE_LENGTH = -26,       /* a row-resampling length below 1 */
    PXL_E_RESAMPLE_INDEX = -28,        /* a row-resampling start outside its row */
    PXL_E_RESAMPLE_SIZE = -29,         /* a row-resampling size below 1 */
    PXL_E_MASK_SIZE = -33,             /* a mask or kernel size that is not accepted (FilterBox, SumWindowRow,
                                          SumWindowColumn) */
    PXL_E_ANCHOR = -34,                /* an anchor outside its mask (FilterBox, SumWindowRow, SumWindowColumn) */
    PXL_E_EPS = -36,                   /* a negative tolerance */
    PXL_E_STEP_BORDER = -37,           /* a step too small for the region and the border that is read */
    PXL_E_CHANNEL = -47,               /* a channel index outside the state's channels */
    PXL_E_ALPHA_TYPE = -50,            /* an unknown alpha-compositing operation */
    PXL_E_DIVISOR = -51,               /* an integer divisor of 0 (Filter, Filter_Round16s, Filter_Round32s,
                                          FilterRow, FilterColumn) */
    PXL_E_CHANNEL_COUNT = -53,         /* a channel count other than 1, 3 or 4 */
    PXL_E_DEGENERATE_TRANSFORM = -56,  /* singular transform coefficients */
    PXL_E_WARP_SIZE = -57,             /* a warp source smaller than 2 pixels, or a rectangle smaller than 1 */
    PXL_E_QUAD = -58,                  /* a degenerate quadrangle */
    PXL_E_ZERO_MASK = -59,             /* a structuring element without a non-zero byte */
    PXL_E_CHANNEL_ORDER = -60,         /* an entry of a channel order out of range (SwapChannels) */
    PXL_E_LUT_LEVELS = -106,           /* a lookup table with fewer than 2 levels */
    PXL_E_HIST_LEVELS = -107,          /* a histogram with fewer than 2 levels */
    PXL_E_STEP_ALIGN = -108,           /* a step that is not a multiple of 4 bytes */
    PXL_E_NOISE = -125,                /* a noise level outside [0, 1) */
    PXL_E_RESIZE_TOO_SMALL = -201,     /* a destination below half a pixel */
    PXL_E_WEIGHT = -211,               /* a centre weight below 1 */
    PXL_E_DECIMATE_FRACTION = -212,    /* an unknown decimation fraction */
    PXL_E_ROUND_MODE = -213,           /* a rounding mode other than 0, 1 or 2 (Div_Round, Filter_Round16s,
                                          Filter_Round32s, Filter_Round32f) */
    PXL_E_NOT_SUPPORTED_MODE = -9999   /* an enumerated mode that the function does not support (Threshold,
                                          Threshold_Val) */
};

/* ==== Version and image memory ==================================================================================== */

/* ---------------------------------------------------------------------------------------------------------------------
 * GetLibVersion (frame/version.cpp)
 *
 * The version of the library: a constant record that lives as long as the library is loaded. Every call returns the
 * same address; it cannot fail.
 */
const LibVersion* pxliGetLibVersion(void);

/* ---------------------------------------------------------------------------------------------------------------------
 * Malloc (frame/memory.cpp)
 *
 * A new image of width x height pixels: returns the address of its first pixel, a multiple of 32, and stores the row
 * step in *stepBytes: the row length in bytes rounded up to a multiple of 32. The pixels are not initialised. AC4
 * images have four elements per pixel. Release the image with pxliFree.
 *
 * It fails by returning null:
 *   stepBytes is null    nothing is written
 *   width or height < 1  *stepBytes becomes 0
 *   no memory is left    *stepBytes has the step; so too where step * height, a signed 32-bit product, wraps to less
 *                        than 1, and where the step itself, a signed 32-bit number, wraps to a negative one
 *
 * An image that is returned holds height rows of the whole row length, also where step * height wraps to a positive
 * number. Where the step itself does, from rows of 4 GiB on, *stepBytes is less than a row: rows then overlap in that
 * memory.
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Free (frame/memory.cpp)
 *
 * Releases an image of pxliMalloc_*. A null pointer is ignored.
 */
void pxliFree(void* block);

/* ==== Data exchange =============================================================================================== */

/* ---------------------------------------------------------------------------------------------------------------------
 * Copy (exchange/copy.cpp)
 *
 * Copies a region, bit for bit.
 *   C1R C3R C4R    every element
 *   AC4R           elements 0..2 of every pixel; element 3 of the destination keeps its value
 *   C3AC4R AC4C3R  three elements to elements 0..2 of four, and back; the fourth one is neither read nor changed
 *
 * Steps are not checked: any step is honoured, 0 and negative ones included.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Copy, masked (exchange/copy_masked.cpp)
 *
 * Copies the pixels whose 8u mask element is not 0; elsewhere the destination keeps its value. AC4MR copies elements
 * 0..2.
 *
 * Steps are not checked: any step is honoured, 0 and negative ones included.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Copy, channels and planes (exchange/copy_channels.cpp)
 *
 * Copies between interleaved, one-channel and planar images. A pointer to interleaved pixels of which one channel is
 * used addresses that channel of the first pixel.
 *   C3CR C4CR    the addressed channel to the addressed channel
 *   C3C1R C4C1R  the addressed channel to a one-channel image
 *   C1C3R C1C4R  a one-channel image to the addressed channel; the other channels keep their values
 *   C3P3R C4P4R  element c of every pixel to plane c
 *   P3C3R P4C4R  plane c to element c of every pixel
 *
 * Steps are not checked: any step is honoured, 0 and negative ones included.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer, that of a plane included, is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * CopyManaged (exchange/copy.cpp)
 *
 * The same as pxliCopy_8u_C1R, under the name that callers with their own memory management use.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
 */
PxlStatus pxliCopyManaged_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);

/* ---------------------------------------------------------------------------------------------------------------------
 * Set (exchange/set.cpp)
 *
 * Fills a region with one value per channel; C3, C4 and AC4 members take an array of 3, 4 and 3 values.
 *   C1R C3R C4R           every element
 *   AC4R                  elements 0..2 of every pixel; element 3 keeps its value
 *   C3CR C4CR             the channel that dst addresses; the others keep their values
 *   C1MR C3MR C4MR AC4MR  the same for the pixels whose 8u mask element is not 0
 *
 * Steps are not checked: any step is honoured, 0 and negative ones included.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Dup (exchange/swap_channels.cpp)
 *
 * Writes each source element to all three elements of the destination pixel.
 *
 * Steps are not checked: any step is honoured, 0 and negative ones included.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
 */
PxlStatus pxliDup_8u_C1C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);

/* ---------------------------------------------------------------------------------------------------------------------
 * SwapChannels (exchange/swap_channels.cpp)
 *
 * Reorders the channels of every pixel: destination channel k receives source channel dstOrder[k].
 *   C3R C3IR  three entries in 0..2
 *   AC4R      three entries in 0..2; element 3 of the destination keeps its value
 *   C4C3R     three entries in 0..3
 *   C4IR      four entries in 0..3
 *   C3C4R     four entries: below 3 copies that source channel, 3 writes val, above 3 leaves the destination channel as
 *             it was
 *
 * All source elements of a pixel are read before any is written. The steps of C3C4R and C4C3R members are not checked.
 *
 * Statuses of C3R, AC4R and C3IR members, in this order:
 *   PXL_E_NULL_PTR       a pointer is null
 *   PXL_E_SIZE           roiSize.width or roiSize.height < 1
 *   PXL_E_STEP           a step < 1
 *   PXL_E_CHANNEL_ORDER  an entry of dstOrder outside its range
 * Statuses of the C4IR member, in this order:
 *   PXL_E_NULL_PTR       a pointer is null
 *   PXL_E_STEP           a step < 1
 *   PXL_E_SIZE           roiSize.width or roiSize.height < 1
 *   PXL_E_CHANNEL_ORDER  an entry of dstOrder outside its range
 * Statuses of C3C4R and C4C3R members, in this order:
 *   PXL_E_NULL_PTR       a pointer is null
 *   PXL_E_SIZE           roiSize.width or roiSize.height < 1
 *   PXL_E_CHANNEL_ORDER  an entry of dstOrder outside its range (C3C4R: a negative one)
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Convert (exchange/convert.cpp)
 *
 * Converts elements to another type, keeping the value.
 *   to a wider integer or to 32f  exact
 *   to a narrower integer         saturated
 *   from 32f                      values at or above the destination's maximum give the maximum, those at or below its
 *                                 minimum the minimum, NaN gives 0; between, as roundMode says
 *
 * roundMode: PXL_ROUND_ZERO truncates toward zero. PXL_ROUND_NEAR_EVEN rounds to nearest with ties to even: the
 * magnitude plus 0.5, in single precision, is truncated, and is 1 less where the sum was an odd number. Any other
 * number rounds to nearest with ties away from zero: the same sum, truncated. No roundMode is rejected.
 *
 * AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_SIZE      C3 and C4 members: roiSize.width < 1
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
 *   PXL_E_STEP      a step < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Convert, one-bit images (exchange/bits.cpp)
 *
 * Packs and unpacks one-bit images: eight pixels per byte, the first in the most significant bit. A row starts
 * bitOffset bits into its first byte; offsets above 7 count on into the following bytes.
 *
 * 1u8u: bit 1 gives 255, bit 0 gives 0. The bytes that hold bits of the row are read.
 *
 * 8u1u dithers by error diffusion (R. W. Floyd and L. Steinberg, 1976). A pixel, plus the error carried to it, becomes
 * 1 where it is at or above threshold, else 0; what remains (against 255 for a 1, 0 for a 0) is carried on in 13-bit
 * fixed point: 7/16 to the right, 3/16 below left, 5/16 below, 1/16 below right, each share rounded down. Shares that
 * leave the row are dropped. Bits before the offset and behind the last pixel keep their values. Steps are not checked.
 * Scratch: 3 * width + 24 32-bit numbers.
 *
 * Statuses of 8u1u, in this order:
 *   PXL_E_NULL_PTR   a pointer is null
 *   PXL_E_SIZE       roiSize.width or roiSize.height < 1, or dstBitOffset < 0
 *   PXL_E_MEM_ALLOC  there is no memory for the scratch
 * Statuses of 1u8u, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
 *   PXL_E_STEP      a step < 1
 *   PXL_E_SIZE      srcBitOffset < 0
 */
PxlStatus pxliConvert_8u1u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, int dstBitOffset,
    ImageSize roiSize, uint8_t threshold);
PxlStatus pxliConvert_1u8u_C1R(const uint8_t* src, int srcStep, int srcBitOffset, uint8_t* dst, int dstStep,
    ImageSize roiSize);

/* ---------------------------------------------------------------------------------------------------------------------
 * Scale (exchange/scale.cpp)
 *
 * Maps the whole range of the source type linearly onto the whole range of the destination type; 32f stands for the
 * range vMin..vMax.
 *   8u16u 8u16s 8u32s  exact: 257 * src, 257 * src - 32768, 16843009 * src - 2147483648
 *   16u8u 16s8u 32s8u  (src - minimum) / 257 (32s: / 16843009) rounded to nearest, which leaves no ties
 *   8u32f              src * ((vMax - vMin) / 255) + vMin, in single precision
 *   32f8u              src * k + (0 - k) * vMin + 0.5 with k = 255 / (vMax - vMin), all in single precision, truncated,
 *                      and 1 less where the sum was an odd number (ties to even); src >= vMax and NaN give 255, src <=
 *                      vMin gives 0
 *
 * hint may be any number and changes nothing: there is one result, the exact one. AC4: elements 0..2; element 3 of the
 * destination keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_SCALE_RANGE  32f members: vMax - vMin <= 0
 *   PXL_E_SIZE         C3 and C4 members: roiSize.width < 1
 *   PXL_E_NULL_PTR     a pointer is null
 *   PXL_E_SIZE         roiSize.width or roiSize.height < 1
 *   PXL_E_STEP         a step < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * CopyConstBorder (exchange/border.cpp)
 *
 * Copies a source region of srcSize pixels into a destination region of dstSize pixels and fills the margin around it
 * with one value per channel: a number for C1, an array of 3 for C3 and AC4, of 4 for C4. dstSize is the size of the
 * whole destination: the source region lies borderTop rows below its first row and borderLeft pixels to the right of
 * its first column; what is left over on the right and below is margin too.
 *
 * AC4: elements 0..2, in the margin too.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  src or dst is null
 *   PXL_E_STEP      a step < 1
 *   PXL_E_SIZE      a width or height of srcSize or dstSize < 1, a negative border, or dstSize smaller than border +
 *                   source
 *   PXL_E_NULL_PTR  the array of values is null
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

/* ---------------------------------------------------------------------------------------------------------------------
 * CopyReplicateBorder (exchange/border.cpp)
 *
 * Copies a source region of srcSize pixels into a destination region of dstSize pixels and fills the margin around it
 * with the nearest pixel of the source region. dstSize is the size of the whole destination: the source region lies
 * borderTop rows below its first row and borderLeft pixels to the right of its first column; what is left over on the
 * right and below is margin too.
 *
 * In place (I), src points at the source region inside the destination region, which begins borderTop rows above and
 * borderLeft pixels to its left; only the margin is written. AC4: elements 0..2, in the margin too.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_STEP      a step < 1
 *   PXL_E_SIZE      a width or height of srcSize or dstSize < 1, a negative border, or dstSize smaller than border +
 *                   source
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

/* ---------------------------------------------------------------------------------------------------------------------
 * CopyWrapBorder (exchange/border.cpp)
 *
 * As pxliCopyReplicateBorder, with the source region repeated periodically in the margin, as often as its width needs.
 * The 32s members move 32-bit elements of any kind.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_STEP      a step < 1
 *   PXL_E_SIZE      a width or height of srcSize or dstSize < 1, a negative border, or dstSize smaller than border +
 *                   source
 */
PxlStatus pxliCopyWrapBorder_32s_C1R(const int32_t* src, int srcStep, ImageSize srcSize, int32_t* dst, int dstStep,
    ImageSize dstSize, int borderTop, int borderLeft);
PxlStatus pxliCopyWrapBorder_32s_C1IR(int32_t* src, int srcDstStep, ImageSize srcSize, ImageSize dstSize, int borderTop,
    int borderLeft);

/* ---------------------------------------------------------------------------------------------------------------------
 * Mirror (exchange/mirror.cpp)
 *
 * Reflects a region: PXL_AXIS_HORIZONTAL reverses the order of rows, PXL_AXIS_VERTICAL that of columns, PXL_AXIS_BOTH
 * both. Pixels are moved whole. AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Steps are not checked: any step is honoured, 0 and negative ones included.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR     a pointer is null
 *   PXL_E_SIZE         roiSize.width or roiSize.height < 1
 *   PXL_E_MIRROR_AXIS  flip is not 0, 1 or 2
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Transpose (exchange/transpose.cpp)
 *
 * Exchanges rows and columns: destination pixel (j, i) is source pixel (i, j). roiSize is the size of the source
 * region; the destination receives roiSize.height x roiSize.width pixels. Source and destination must not overlap. The
 * in-place members (I) take square regions only.
 *
 * Steps are not checked: any step is honoured, 0 and negative ones included.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1; in place also width other than height
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

/* ==== Arithmetic and logic ======================================================================================== */

/* ---------------------------------------------------------------------------------------------------------------------
 * Add (arith/add_sub.cpp)
 *
 * dst = src1 + src2. In place (I), srcDst is the second source and the destination. AC4: elements 0..2; element 3 of
 * the destination keeps its value.
 *
 * Sfs members multiply the exact result by 2 to the power of minus scaleFactor, round it to nearest with ties to even,
 * and saturate it. scaleFactor may be any number. 32f and 32fc members compute in single precision.
 *
 * The steps of real members are not checked.
 *
 * Statuses, in this order:
 *   PXL_E_SIZE      C3 and C4 members: roiSize.width < 1
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
 *   PXL_E_STEP      complex members: a step < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Sub (arith/add_sub.cpp)
 *
 * dst = src2 - src1: the first source is subtracted. In place (I), srcDst is the second source and the destination.
 * AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Sfs members multiply the exact result by 2 to the power of minus scaleFactor, round it to nearest with ties to even,
 * and saturate it. scaleFactor may be any number. 8u and 16u clamp a negative difference to 0 before scaling. 32f and
 * 32fc members compute in single precision.
 *
 * The steps of real members are not checked.
 *
 * Statuses, in this order:
 *   PXL_E_SIZE      C3 and C4 members: roiSize.width < 1
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
 *   PXL_E_STEP      complex members: a step < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Mul (arith/mul.cpp)
 *
 * dst = src1 * src2. In place (I), srcDst is the second source and the destination. AC4: elements 0..2; element 3 of
 * the destination keeps its value.
 *
 * Sfs members multiply the exact result by 2 to the power of minus scaleFactor, round it to nearest with ties to even,
 * and saturate it. scaleFactor may be any number. 32f members compute in single precision.
 *
 * Steps are not checked: any step is honoured, 0 and negative ones included.
 *
 * Statuses, in this order:
 *   PXL_E_SIZE      C3 and C4 members: roiSize.width < 1
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Mul, complex (arith/mul_complex.cpp)
 *
 * dst = src1 * src2 of complex elements: with a + bi and c + di the real part is a*c - b*d, the imaginary part a*d +
 * b*c. In place (I), srcDst is the second source and the destination. AC4: elements 0..2; element 3 of the destination
 * keeps its value.
 *
 * Sfs members multiply the exact result by 2 to the power of minus scaleFactor, round it to nearest with ties to even,
 * and saturate it. scaleFactor may be any number. Each part is scaled by itself; a 16sc imaginary part of 2^31 counts
 * as 2^31 - 1, and a 32sc one of 2^63 as 2^63 - 1. 32fc members compute in single precision.
 *
 * Statuses, in this order:
 *   PXL_E_SIZE      C3 members: roiSize.width < 1
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
 *   PXL_E_STEP      a step < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Div (arith/div.cpp)
 *
 * dst = src2 / src1: the first source is the divisor. In place (I), srcDst is the dividend and the destination. AC4:
 * elements 0..2; element 3 of the destination keeps its value.
 *
 * Sfs members scale and round the quotient q = src2 * 2^-scaleFactor / src1, and saturate it; scaleFactor may be any
 * number.
 *   8u   q + 0.5 in single precision, truncated, and 1 less where the sum was an odd number (ties to even)
 *   16s  q in single precision; q + 32768 in single precision, to nearest with ties to even; less 32768
 *   16u  with t = q * 65536 truncated: (t + (t >> 15 & 2) + 32767) >> 16, to nearest; a fraction next to 1/2 is taken
 *        for a tie, which goes to even
 *   32f  src2 / src1 in single precision
 *
 * A divisor of 0 gives the saturated sign of the dividend (0 for 0); 32f: infinity with the sign of the dividend, the
 * NaN 0xFFC00000 for 0 and NaN. The steps of 16u members are not checked.
 *
 * Statuses, in this order:
 *   PXL_E_SIZE         16u C3 and C4 members: roiSize.width < 1
 *   PXL_E_NULL_PTR     a pointer is null
 *   PXL_E_SIZE         roiSize.width or roiSize.height < 1
 *   PXL_E_STEP         all but 16u members: a step < 1
 *   PXL_W_DIV_BY_ZERO  a divisor was 0; the whole region is written
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Div, complex (arith/div_complex.cpp)
 *
 * dst = src2 / src1 of complex elements: with the divisor a + bi, the dividend c + di and m = a*a + b*b the real part
 * is (a*c + b*d) * (f/m), the imaginary part (a*d - b*c) * (f/m). In place (I), srcDst is the dividend and the
 * destination. AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * 16sc and 32sc compute in double precision with f = 2^-scaleFactor, and each part is rounded to nearest with ties to
 * even and saturated; 32fc computes in single precision with f = 1. m = 0 gives 0 + 0i; 32fc: the NaN 0xFFC00000 in
 * both parts.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR     a pointer is null
 *   PXL_E_SIZE         roiSize.width or roiSize.height < 1
 *   PXL_E_STEP         a step < 1
 *   PXL_W_DIV_BY_ZERO  a divisor was 0; the whole region is written
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Div_Round (arith/div_round.cpp)
 *
 * dst = src2 * 2^-scaleFactor / src1 in double precision, rounded by roundMode and saturated: PXL_ROUND_ZERO toward
 * zero, PXL_ROUND_NEAR_EVEN to nearest with ties to even, PXL_ROUND_HALF_AWAY to nearest with ties away from zero.
 * scaleFactor may be any number. In place (I), srcDst is the dividend and the destination. AC4: elements 0..2; element
 * 3 of the destination keeps its value.
 *
 * A divisor of 0 gives the saturated sign of the dividend (0 for 0).
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR     a pointer is null
 *   PXL_E_SIZE         roiSize.width or roiSize.height < 1
 *   PXL_E_STEP         a step < 1
 *   PXL_E_ROUND_MODE   roundMode is not 0, 1 or 2
 *   PXL_W_DIV_BY_ZERO  a divisor was 0; the whole region is written
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

/* ---------------------------------------------------------------------------------------------------------------------
 * AddC (arith/add_sub_c.cpp)
 *
 * dst = src + value, with one value per channel: a number for C1, an array of 3 for C3 and AC4, of 4 for C4. AC4:
 * elements 0..2; element 3 of the destination keeps its value.
 *
 * Sfs members multiply the exact result by 2 to the power of minus scaleFactor, round it to nearest with ties to even,
 * and saturate it. scaleFactor may be any number. 32f and 32fc members compute in single precision.
 *
 * Steps are not checked: any step is honoured, 0 and negative ones included.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * SubC (arith/add_sub_c.cpp)
 *
 * dst = src - value, with one value per channel: a number for C1, an array of 3 for C3 and AC4, of 4 for C4. AC4:
 * elements 0..2; element 3 of the destination keeps its value.
 *
 * Sfs members multiply the exact result by 2 to the power of minus scaleFactor, round it to nearest with ties to even,
 * and saturate it. scaleFactor may be any number. 8u and 16u clamp a negative difference to 0 before scaling. 32f and
 * 32fc members compute in single precision.
 *
 * Steps are not checked: any step is honoured, 0 and negative ones included.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * MulC (arith/mul_c.cpp)
 *
 * dst = src * value, with one value per channel: a number for C1, an array of 3 for C3 and AC4, of 4 for C4; complex
 * members give the complex product, as pxliMul does. AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Sfs members multiply the exact result by 2 to the power of minus scaleFactor, round it to nearest with ties to even,
 * and saturate it. scaleFactor may be any number. 32f and 32fc members compute in single precision.
 *
 * Steps are not checked: any step is honoured, 0 and negative ones included.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * DivC (arith/div_c.cpp)
 *
 * dst = src / value, with one value per channel: a number for C1, an array of 3 for C3 and AC4, of 4 for C4. AC4:
 * elements 0..2; element 3 of the destination keeps its value.
 *
 * Sfs members store the quotient times 2 to the power of minus scaleFactor: scaleFactor 1 halves it, -1 doubles it, any
 * number is taken. src * 2^-scaleFactor / value is formed, rounded and saturated as the members of pxliDiv for the same
 * type do. 32fc divides as pxliDiv. 32f multiplies by the reciprocal of the value, formed once in single precision.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR     a pointer is null
 *   PXL_E_SIZE         roiSize.width or roiSize.height < 1
 *   PXL_E_STEP         a step < 1
 *   PXL_E_DIV_BY_ZERO  a value is 0 (a + bi: a*a + b*b is 0; 32fc: in single precision)
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

/* ---------------------------------------------------------------------------------------------------------------------
 * MulScale (arith/mul_scale.cpp)
 *
 * The normalised product of two full-range values: with p = src1 * src2, 8u (p + (p >> 8) + 1) >> 8, 16u (p + (p >> 16)
 * + 1) >> 16. 255 (65535) times x is x. In place (I), srcDst is the second source and the destination. AC4: elements
 * 0..2; element 3 of the destination keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_STEP      a step < 1
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * MulCScale (arith/mul_scale.cpp)
 *
 * As pxliMulScale; in the place of the second source stands one value per channel: a number for C1, an array of 3 for
 * C3 and AC4, of 4 for C4. AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_STEP      a step < 1
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * And (arith/logical.cpp)
 *
 * dst = src1 & src2, bit by bit. In place (I), srcDst is the second source and the destination. AC4: elements 0..2;
 * element 3 of the destination keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_SIZE      C3 and C4 members: roiSize.width < 1
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_STEP      a step < 1
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * AndC (arith/logical.cpp)
 *
 * dst = src & value, bit by bit, with one value per channel: a number for C1, an array of 3 for C3 and AC4, of 4 for
 * C4. AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_STEP      a step < 1
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Or (arith/logical.cpp)
 *
 * dst = src1 | src2, bit by bit. In place (I), srcDst is the second source and the destination. AC4: elements 0..2;
 * element 3 of the destination keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_SIZE      C3 and C4 members: roiSize.width < 1
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_STEP      a step < 1
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * OrC (arith/logical.cpp)
 *
 * dst = src | value, bit by bit, with one value per channel: a number for C1, an array of 3 for C3 and AC4, of 4 for
 * C4. AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_STEP      a step < 1
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Xor (arith/logical.cpp)
 *
 * dst = src1 ^ src2, bit by bit. In place (I), srcDst is the second source and the destination. AC4: elements 0..2;
 * element 3 of the destination keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_SIZE      C3 and C4 members: roiSize.width < 1
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_STEP      a step < 1
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * XorC (arith/logical.cpp)
 *
 * dst = src ^ value, bit by bit, with one value per channel: a number for C1, an array of 3 for C3 and AC4, of 4 for
 * C4. AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_STEP      a step < 1
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Not (arith/logical.cpp)
 *
 * dst = ~src. AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_STEP      a step < 1
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
 */
PxlStatus pxliNot_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliNot_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliNot_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliNot_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize);
PxlStatus pxliNot_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliNot_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliNot_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);
PxlStatus pxliNot_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize);

/* ---------------------------------------------------------------------------------------------------------------------
 * LShiftC (arith/shift.cpp)
 *
 * dst = src << count, with one count per channel: a number for C1, an array of 3 for C3 and AC4, of 4 for C4. Bits that
 * leave the element are lost; counts from the element's width up give 0. AC4: elements 0..2; element 3 of the
 * destination keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_STEP      a step < 1
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * RShiftC (arith/shift.cpp)
 *
 * dst = src >> count, with one count per channel: a number for C1, an array of 3 for C3 and AC4, of 4 for C4. Zeros
 * come in for unsigned types, the sign for signed ones, also for counts from the element's width up. AC4: elements
 * 0..2; element 3 of the destination keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_STEP      a step < 1
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
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

/* ==== Threshold, compare, lookup ================================================================================== */

/* ---------------------------------------------------------------------------------------------------------------------
 * Threshold (threshold/threshold.cpp)
 *
 * dst = threshold where src cmpOp threshold, else src, with one threshold per channel: a number for C1, an array of 3
 * for C3 and AC4, of 4 for C4. cmpOp is PXL_CMP_LESS or PXL_CMP_GREATER. The comparison is strict and ordered: a pixel
 * equal to its threshold stays, and so does NaN. AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_NOT_SUPPORTED_MODE  cmpOp is neither PXL_CMP_LESS nor PXL_CMP_GREATER
 *   PXL_E_NULL_PTR            a pointer is null
 *   PXL_E_SIZE                roiSize.width or roiSize.height < 1
 *   PXL_E_STEP                a step < 1
 *   PXL_E_NULL_PTR            an array of thresholds or values is null
 */
PxlStatus pxliThreshold_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    uint8_t threshold, PxlCmpOp cmpOp);
PxlStatus pxliThreshold_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t threshold[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t threshold[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, uint8_t threshold, PxlCmpOp cmpOp);
PxlStatus pxliThreshold_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t threshold[3],
    PxlCmpOp cmpOp);
PxlStatus pxliThreshold_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t threshold[3],
    PxlCmpOp cmpOp);
PxlStatus pxliThreshold_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    uint16_t threshold, PxlCmpOp cmpOp);
PxlStatus pxliThreshold_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const uint16_t threshold[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const uint16_t threshold[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, uint16_t threshold,
    PxlCmpOp cmpOp);
PxlStatus pxliThreshold_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t threshold[3],
    PxlCmpOp cmpOp);
PxlStatus pxliThreshold_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t threshold[3],
    PxlCmpOp cmpOp);
PxlStatus pxliThreshold_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    int16_t threshold, PxlCmpOp cmpOp);
PxlStatus pxliThreshold_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int16_t threshold[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int16_t threshold[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int16_t threshold, PxlCmpOp cmpOp);
PxlStatus pxliThreshold_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t threshold[3],
    PxlCmpOp cmpOp);
PxlStatus pxliThreshold_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t threshold[3],
    PxlCmpOp cmpOp);
PxlStatus pxliThreshold_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    float threshold, PxlCmpOp cmpOp);
PxlStatus pxliThreshold_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float threshold[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float threshold[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, float threshold, PxlCmpOp cmpOp);
PxlStatus pxliThreshold_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float threshold[3],
    PxlCmpOp cmpOp);
PxlStatus pxliThreshold_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float threshold[3],
    PxlCmpOp cmpOp);

/* ---------------------------------------------------------------------------------------------------------------------
 * Threshold_GT (threshold/threshold.cpp)
 *
 * dst = threshold where src > threshold, else src, with one threshold per channel: a number for C1, an array of 3 for
 * C3 and AC4, of 4 for C4. The comparison is strict and ordered: a pixel equal to its threshold stays, and so does NaN.
 * AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
 *   PXL_E_STEP      a step < 1
 *   PXL_E_NULL_PTR  an array of thresholds or values is null
 */
PxlStatus pxliThreshold_GT_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    uint8_t threshold);
PxlStatus pxliThreshold_GT_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t threshold[3]);
PxlStatus pxliThreshold_GT_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t threshold[3]);
PxlStatus pxliThreshold_GT_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, uint8_t threshold);
PxlStatus pxliThreshold_GT_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t threshold[3]);
PxlStatus pxliThreshold_GT_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t threshold[3]);
PxlStatus pxliThreshold_GT_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    uint16_t threshold);
PxlStatus pxliThreshold_GT_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const uint16_t threshold[3]);
PxlStatus pxliThreshold_GT_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const uint16_t threshold[3]);
PxlStatus pxliThreshold_GT_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, uint16_t threshold);
PxlStatus pxliThreshold_GT_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t threshold[3]);
PxlStatus pxliThreshold_GT_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t threshold[3]);
PxlStatus pxliThreshold_GT_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    int16_t threshold);
PxlStatus pxliThreshold_GT_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int16_t threshold[3]);
PxlStatus pxliThreshold_GT_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int16_t threshold[3]);
PxlStatus pxliThreshold_GT_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int16_t threshold);
PxlStatus pxliThreshold_GT_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t threshold[3]);
PxlStatus pxliThreshold_GT_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t threshold[3]);
PxlStatus pxliThreshold_GT_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    float threshold);
PxlStatus pxliThreshold_GT_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float threshold[3]);
PxlStatus pxliThreshold_GT_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float threshold[3]);
PxlStatus pxliThreshold_GT_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, float threshold);
PxlStatus pxliThreshold_GT_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float threshold[3]);
PxlStatus pxliThreshold_GT_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float threshold[3]);

/* ---------------------------------------------------------------------------------------------------------------------
 * Threshold_LT (threshold/threshold.cpp)
 *
 * dst = threshold where src < threshold, else src, with one threshold per channel: a number for C1, an array of 3 for
 * C3 and AC4, of 4 for C4. The comparison is strict and ordered: a pixel equal to its threshold stays, and so does NaN.
 * AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
 *   PXL_E_STEP      a step < 1
 *   PXL_E_NULL_PTR  an array of thresholds or values is null
 */
PxlStatus pxliThreshold_LT_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    uint8_t threshold);
PxlStatus pxliThreshold_LT_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t threshold[3]);
PxlStatus pxliThreshold_LT_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t threshold[3]);
PxlStatus pxliThreshold_LT_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, uint8_t threshold);
PxlStatus pxliThreshold_LT_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t threshold[3]);
PxlStatus pxliThreshold_LT_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t threshold[3]);
PxlStatus pxliThreshold_LT_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    uint16_t threshold);
PxlStatus pxliThreshold_LT_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const uint16_t threshold[3]);
PxlStatus pxliThreshold_LT_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const uint16_t threshold[3]);
PxlStatus pxliThreshold_LT_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, uint16_t threshold);
PxlStatus pxliThreshold_LT_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t threshold[3]);
PxlStatus pxliThreshold_LT_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t threshold[3]);
PxlStatus pxliThreshold_LT_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    int16_t threshold);
PxlStatus pxliThreshold_LT_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int16_t threshold[3]);
PxlStatus pxliThreshold_LT_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int16_t threshold[3]);
PxlStatus pxliThreshold_LT_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int16_t threshold);
PxlStatus pxliThreshold_LT_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t threshold[3]);
PxlStatus pxliThreshold_LT_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t threshold[3]);
PxlStatus pxliThreshold_LT_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    float threshold);
PxlStatus pxliThreshold_LT_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float threshold[3]);
PxlStatus pxliThreshold_LT_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float threshold[3]);
PxlStatus pxliThreshold_LT_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, float threshold);
PxlStatus pxliThreshold_LT_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float threshold[3]);
PxlStatus pxliThreshold_LT_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float threshold[3]);

/* ---------------------------------------------------------------------------------------------------------------------
 * Threshold_Val (threshold/threshold.cpp)
 *
 * dst = value where src cmpOp threshold, else src, with one threshold per channel: a number for C1, an array of 3 for
 * C3 and AC4, of 4 for C4; values likewise. cmpOp is PXL_CMP_LESS or PXL_CMP_GREATER. The comparison is strict and
 * ordered: a pixel equal to its threshold stays, and so does NaN. AC4: elements 0..2; element 3 of the destination
 * keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_NOT_SUPPORTED_MODE  cmpOp is neither PXL_CMP_LESS nor PXL_CMP_GREATER
 *   PXL_E_NULL_PTR            a pointer is null
 *   PXL_E_SIZE                roiSize.width or roiSize.height < 1
 *   PXL_E_STEP                a step < 1
 *   PXL_E_NULL_PTR            an array of thresholds or values is null
 */
PxlStatus pxliThreshold_Val_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    uint8_t threshold, uint8_t value, PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t threshold[3], const uint8_t value[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t threshold[3], const uint8_t value[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, uint8_t threshold,
    uint8_t value, PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t threshold[3],
    const uint8_t value[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t threshold[3],
    const uint8_t value[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    uint16_t threshold, uint16_t value, PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const uint16_t threshold[3], const uint16_t value[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const uint16_t threshold[3], const uint16_t value[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, uint16_t threshold,
    uint16_t value, PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t threshold[3],
    const uint16_t value[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t threshold[3],
    const uint16_t value[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    int16_t threshold, int16_t value, PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int16_t threshold[3], const int16_t value[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int16_t threshold[3], const int16_t value[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int16_t threshold,
    int16_t value, PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t threshold[3],
    const int16_t value[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t threshold[3],
    const int16_t value[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    float threshold, float value, PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float threshold[3], const float value[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float threshold[3], const float value[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, float threshold, float value,
    PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float threshold[3],
    const float value[3], PxlCmpOp cmpOp);
PxlStatus pxliThreshold_Val_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float threshold[3],
    const float value[3], PxlCmpOp cmpOp);

/* ---------------------------------------------------------------------------------------------------------------------
 * Threshold_GTVal (threshold/threshold.cpp)
 *
 * dst = value where src > threshold, else src, with one threshold per channel: a number for C1, an array of 3 for C3
 * and AC4, of 4 for C4; values likewise. The comparison is strict and ordered: a pixel equal to its threshold stays,
 * and so does NaN. AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
 *   PXL_E_STEP      a step < 1
 *   PXL_E_NULL_PTR  an array of thresholds or values is null
 */
PxlStatus pxliThreshold_GTVal_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    uint8_t threshold, uint8_t value);
PxlStatus pxliThreshold_GTVal_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t threshold[3], const uint8_t value[3]);
PxlStatus pxliThreshold_GTVal_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t threshold[4], const uint8_t value[4]);
PxlStatus pxliThreshold_GTVal_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t threshold[3], const uint8_t value[3]);
PxlStatus pxliThreshold_GTVal_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, uint8_t threshold,
    uint8_t value);
PxlStatus pxliThreshold_GTVal_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t threshold[3],
    const uint8_t value[3]);
PxlStatus pxliThreshold_GTVal_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t threshold[4],
    const uint8_t value[4]);
PxlStatus pxliThreshold_GTVal_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t threshold[3],
    const uint8_t value[3]);
PxlStatus pxliThreshold_GTVal_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    uint16_t threshold, uint16_t value);
PxlStatus pxliThreshold_GTVal_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const uint16_t threshold[3], const uint16_t value[3]);
PxlStatus pxliThreshold_GTVal_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const uint16_t threshold[4], const uint16_t value[4]);
PxlStatus pxliThreshold_GTVal_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const uint16_t threshold[3], const uint16_t value[3]);
PxlStatus pxliThreshold_GTVal_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, uint16_t threshold,
    uint16_t value);
PxlStatus pxliThreshold_GTVal_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t threshold[3],
    const uint16_t value[3]);
PxlStatus pxliThreshold_GTVal_16u_C4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t threshold[4],
    const uint16_t value[4]);
PxlStatus pxliThreshold_GTVal_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    const uint16_t threshold[3], const uint16_t value[3]);
PxlStatus pxliThreshold_GTVal_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    int16_t threshold, int16_t value);
PxlStatus pxliThreshold_GTVal_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int16_t threshold[3], const int16_t value[3]);
PxlStatus pxliThreshold_GTVal_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int16_t threshold[4], const int16_t value[4]);
PxlStatus pxliThreshold_GTVal_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int16_t threshold[3], const int16_t value[3]);
PxlStatus pxliThreshold_GTVal_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int16_t threshold,
    int16_t value);
PxlStatus pxliThreshold_GTVal_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t threshold[3],
    const int16_t value[3]);
PxlStatus pxliThreshold_GTVal_16s_C4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t threshold[4],
    const int16_t value[4]);
PxlStatus pxliThreshold_GTVal_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t threshold[3],
    const int16_t value[3]);
PxlStatus pxliThreshold_GTVal_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    float threshold, float value);
PxlStatus pxliThreshold_GTVal_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float threshold[3], const float value[3]);
PxlStatus pxliThreshold_GTVal_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float threshold[4], const float value[4]);
PxlStatus pxliThreshold_GTVal_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float threshold[3], const float value[3]);
PxlStatus pxliThreshold_GTVal_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, float threshold, float value);
PxlStatus pxliThreshold_GTVal_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float threshold[3],
    const float value[3]);
PxlStatus pxliThreshold_GTVal_32f_C4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float threshold[4],
    const float value[4]);
PxlStatus pxliThreshold_GTVal_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float threshold[3],
    const float value[3]);

/* ---------------------------------------------------------------------------------------------------------------------
 * Threshold_LTVal (threshold/threshold.cpp)
 *
 * dst = value where src < threshold, else src, with one threshold per channel: a number for C1, an array of 3 for C3
 * and AC4, of 4 for C4; values likewise. The comparison is strict and ordered: a pixel equal to its threshold stays,
 * and so does NaN. AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
 *   PXL_E_STEP      a step < 1
 *   PXL_E_NULL_PTR  an array of thresholds or values is null
 */
PxlStatus pxliThreshold_LTVal_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    uint8_t threshold, uint8_t value);
PxlStatus pxliThreshold_LTVal_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t threshold[3], const uint8_t value[3]);
PxlStatus pxliThreshold_LTVal_8u_C4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t threshold[4], const uint8_t value[4]);
PxlStatus pxliThreshold_LTVal_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t threshold[3], const uint8_t value[3]);
PxlStatus pxliThreshold_LTVal_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, uint8_t threshold,
    uint8_t value);
PxlStatus pxliThreshold_LTVal_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t threshold[3],
    const uint8_t value[3]);
PxlStatus pxliThreshold_LTVal_8u_C4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t threshold[4],
    const uint8_t value[4]);
PxlStatus pxliThreshold_LTVal_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, const uint8_t threshold[3],
    const uint8_t value[3]);
PxlStatus pxliThreshold_LTVal_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    uint16_t threshold, uint16_t value);
PxlStatus pxliThreshold_LTVal_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const uint16_t threshold[3], const uint16_t value[3]);
PxlStatus pxliThreshold_LTVal_16u_C4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const uint16_t threshold[4], const uint16_t value[4]);
PxlStatus pxliThreshold_LTVal_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, ImageSize roiSize,
    const uint16_t threshold[3], const uint16_t value[3]);
PxlStatus pxliThreshold_LTVal_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, uint16_t threshold,
    uint16_t value);
PxlStatus pxliThreshold_LTVal_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t threshold[3],
    const uint16_t value[3]);
PxlStatus pxliThreshold_LTVal_16u_C4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, const uint16_t threshold[4],
    const uint16_t value[4]);
PxlStatus pxliThreshold_LTVal_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    const uint16_t threshold[3], const uint16_t value[3]);
PxlStatus pxliThreshold_LTVal_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    int16_t threshold, int16_t value);
PxlStatus pxliThreshold_LTVal_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int16_t threshold[3], const int16_t value[3]);
PxlStatus pxliThreshold_LTVal_16s_C4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int16_t threshold[4], const int16_t value[4]);
PxlStatus pxliThreshold_LTVal_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep, ImageSize roiSize,
    const int16_t threshold[3], const int16_t value[3]);
PxlStatus pxliThreshold_LTVal_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int16_t threshold,
    int16_t value);
PxlStatus pxliThreshold_LTVal_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t threshold[3],
    const int16_t value[3]);
PxlStatus pxliThreshold_LTVal_16s_C4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t threshold[4],
    const int16_t value[4]);
PxlStatus pxliThreshold_LTVal_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, const int16_t threshold[3],
    const int16_t value[3]);
PxlStatus pxliThreshold_LTVal_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    float threshold, float value);
PxlStatus pxliThreshold_LTVal_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float threshold[3], const float value[3]);
PxlStatus pxliThreshold_LTVal_32f_C4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float threshold[4], const float value[4]);
PxlStatus pxliThreshold_LTVal_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float threshold[3], const float value[3]);
PxlStatus pxliThreshold_LTVal_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, float threshold, float value);
PxlStatus pxliThreshold_LTVal_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float threshold[3],
    const float value[3]);
PxlStatus pxliThreshold_LTVal_32f_C4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float threshold[4],
    const float value[4]);
PxlStatus pxliThreshold_LTVal_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize, const float threshold[3],
    const float value[3]);

/* ---------------------------------------------------------------------------------------------------------------------
 * Threshold_LTValGTVal (threshold/threshold.cpp)
 *
 * dst = valueGT where src > thresholdGT, valueLT where src < thresholdLT, else src, with one threshold per channel: a
 * number for C1, an array of 3 for C3 and AC4, of 4 for C4; values likewise. The comparison is strict and ordered: a
 * pixel equal to its threshold stays, and so does NaN. AC4: elements 0..2; element 3 of the destination keeps its
 * value.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR   a pointer is null
 *   PXL_E_SIZE       roiSize.width or roiSize.height < 1
 *   PXL_E_STEP       a step < 1
 *   PXL_E_NULL_PTR   an array of thresholds or values is null
 *   PXL_E_THRESHOLD  thresholdGT < thresholdLT in a channel
 */
PxlStatus pxliThreshold_LTValGTVal_8u_C1R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    uint8_t thresholdLT, uint8_t valueLT, uint8_t thresholdGT, uint8_t valueGT);
PxlStatus pxliThreshold_LTValGTVal_8u_C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roiSize,
    const uint8_t thresholdLT[3], const uint8_t valueLT[3], const uint8_t thresholdGT[3], const uint8_t valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_8u_AC4R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep,
    ImageSize roiSize, const uint8_t thresholdLT[3], const uint8_t valueLT[3], const uint8_t thresholdGT[3],
    const uint8_t valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_8u_C1IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize, uint8_t thresholdLT,
    uint8_t valueLT, uint8_t thresholdGT, uint8_t valueGT);
PxlStatus pxliThreshold_LTValGTVal_8u_C3IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    const uint8_t thresholdLT[3], const uint8_t valueLT[3], const uint8_t thresholdGT[3], const uint8_t valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_8u_AC4IR(uint8_t* srcDst, int srcDstStep, ImageSize roiSize,
    const uint8_t thresholdLT[3], const uint8_t valueLT[3], const uint8_t thresholdGT[3], const uint8_t valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_16u_C1R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep,
    ImageSize roiSize, uint16_t thresholdLT, uint16_t valueLT, uint16_t thresholdGT, uint16_t valueGT);
PxlStatus pxliThreshold_LTValGTVal_16u_C3R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep,
    ImageSize roiSize, const uint16_t thresholdLT[3], const uint16_t valueLT[3], const uint16_t thresholdGT[3],
    const uint16_t valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_16u_AC4R(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep,
    ImageSize roiSize, const uint16_t thresholdLT[3], const uint16_t valueLT[3], const uint16_t thresholdGT[3],
    const uint16_t valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_16u_C1IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize, uint16_t thresholdLT,
    uint16_t valueLT, uint16_t thresholdGT, uint16_t valueGT);
PxlStatus pxliThreshold_LTValGTVal_16u_C3IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    const uint16_t thresholdLT[3], const uint16_t valueLT[3], const uint16_t thresholdGT[3], const uint16_t valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_16u_AC4IR(uint16_t* srcDst, int srcDstStep, ImageSize roiSize,
    const uint16_t thresholdLT[3], const uint16_t valueLT[3], const uint16_t thresholdGT[3], const uint16_t valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_16s_C1R(const int16_t* src, int srcStep, int16_t* dst, int dstStep,
    ImageSize roiSize, int16_t thresholdLT, int16_t valueLT, int16_t thresholdGT, int16_t valueGT);
PxlStatus pxliThreshold_LTValGTVal_16s_C3R(const int16_t* src, int srcStep, int16_t* dst, int dstStep,
    ImageSize roiSize, const int16_t thresholdLT[3], const int16_t valueLT[3], const int16_t thresholdGT[3],
    const int16_t valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_16s_AC4R(const int16_t* src, int srcStep, int16_t* dst, int dstStep,
    ImageSize roiSize, const int16_t thresholdLT[3], const int16_t valueLT[3], const int16_t thresholdGT[3],
    const int16_t valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_16s_C1IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize, int16_t thresholdLT,
    int16_t valueLT, int16_t thresholdGT, int16_t valueGT);
PxlStatus pxliThreshold_LTValGTVal_16s_C3IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    const int16_t thresholdLT[3], const int16_t valueLT[3], const int16_t thresholdGT[3], const int16_t valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_16s_AC4IR(int16_t* srcDst, int srcDstStep, ImageSize roiSize,
    const int16_t thresholdLT[3], const int16_t valueLT[3], const int16_t thresholdGT[3], const int16_t valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    float thresholdLT, float valueLT, float thresholdGT, float valueGT);
PxlStatus pxliThreshold_LTValGTVal_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float thresholdLT[3], const float valueLT[3], const float thresholdGT[3], const float valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_32f_AC4R(const float* src, int srcStep, float* dst, int dstStep, ImageSize roiSize,
    const float thresholdLT[3], const float valueLT[3], const float thresholdGT[3], const float valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_32f_C1IR(float* srcDst, int srcDstStep, ImageSize roiSize, float thresholdLT,
    float valueLT, float thresholdGT, float valueGT);
PxlStatus pxliThreshold_LTValGTVal_32f_C3IR(float* srcDst, int srcDstStep, ImageSize roiSize,
    const float thresholdLT[3], const float valueLT[3], const float thresholdGT[3], const float valueGT[3]);
PxlStatus pxliThreshold_LTValGTVal_32f_AC4IR(float* srcDst, int srcDstStep, ImageSize roiSize,
    const float thresholdLT[3], const float valueLT[3], const float thresholdGT[3], const float valueGT[3]);

/* ---------------------------------------------------------------------------------------------------------------------
 * ComputeThreshold_Otsu (threshold/otsu.cpp)
 *
 * The level that separates dark pixels from bright ones best (Otsu, 1979): with the pixels up to a level in one class
 * and the others in a second, the variance between the classes is the product of their shares and the square of the
 * difference of their means. *threshold receives the lowest level at which it is largest, 0 where all pixels are alike.
 * Computed in double precision from the histogram; splits that leave less than 2^-23 of the pixels to a class do not
 * count. The step must be at least roiSize.width.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width or roiSize.height < 1
 *   PXL_E_STEP      srcStep < roiSize.width
 */
PxlStatus pxliComputeThreshold_Otsu_8u_C1R(const uint8_t* src, int srcStep, ImageSize roiSize, uint8_t threshold[1]);

/* ==== Filters ===================================================================================================== */

/* ---------------------------------------------------------------------------------------------------------------------
 * Filter (filter/filter.cpp)
 *
 * dst(x, y) = sum of K[j][i] * src(x + anchor.x - i, y + anchor.y - j) over the kernelSize.width x kernelSize.height
 * coefficients, which stand in row-major order: K[j][i] in row j, column i. This is true convolution, which mirrors the
 * kernel: K[0][0] meets the pixel at the bottom right of the neighbourhood. Around the region at src are read
 *   left   kernelSize.width - 1 - anchor.x columns
 *   right  anchor.x columns
 *   above  kernelSize.height - 1 - anchor.y rows
 *   below  anchor.y rows
 * The anchor is the coefficient that meets the pixel itself. THE ANCHOR IS NOT CHECKED, and no kernel is too large: all
 * that the formula names is read, wherever it lies, and must be memory of the caller's. An anchor outside the kernel
 * puts the neighbourhood beside the pixel, by the same formula; a negative number above then means that so many columns
 * or rows at that edge of the region are not read.
 *
 * Integer members divide the sum S by the divisor d, round to nearest with ties to even, and saturate:
 *   d = 1                 S itself
 *   d = 2, 4, 8, ...      S / d in integers
 *   other d, 8u           S in single precision times the single-precision reciprocal of d
 *   other d, 16s and 16u  S / d in double precision
 * A negative divisor is one of the others, whatever its magnitude, and turns the sign: unsigned members give 0 where S
 * is positive, S / d where it is negative. S is formed modulo 2^32; kernel and image must keep it within 32 bits, sign
 * included. 32f members sum products in single precision, one after the other: rows of the neighbourhood from top to
 * bottom, each from left to right. AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Threads: regions of at least 64 x 64 pixels are split into strips of rows over a team of threads_omp_of_n_pxl
 * threads; the result does not depend on the team.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      a width or height of roiSize or kernelSize < 1
 *   PXL_E_DIVISOR   members with a divisor: it is 0
 *   PXL_E_STEP      srcStep less than roiSize.width + kernelSize.width - 1 pixels, dstStep less than roiSize.width
 *                   pixels
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Filter, double precision (filter/filter_64f.cpp)
 *
 * dst(x, y) = sum of K[j][i] * src(x + anchor.x - i, y + anchor.y - j) over the kernelSize.width x kernelSize.height
 * coefficients, which stand in row-major order: K[j][i] in row j, column i. This is true convolution, which mirrors the
 * kernel: K[0][0] meets the pixel at the bottom right of the neighbourhood. Around the region at src are read
 *   left   kernelSize.width - 1 - anchor.x columns
 *   right  anchor.x columns
 *   above  kernelSize.height - 1 - anchor.y rows
 *   below  anchor.y rows
 * The anchor is the coefficient that meets the pixel itself. THE ANCHOR IS NOT CHECKED, and no kernel is too large: all
 * that the formula names is read, wherever it lies, and must be memory of the caller's. An anchor outside the kernel
 * puts the neighbourhood beside the pixel, by the same formula; a negative number above then means that so many columns
 * or rows at that edge of the region are not read.
 *
 * Products are summed in double precision, in the same order as those of the 32f members of pxliFilter. buffer is not
 * used and may be null.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  src, dst or kernel is null
 *   PXL_E_SIZE      a width or height of roiSize or kernelSize < 1
 *   PXL_E_STEP      srcStep less than roiSize.width + kernelSize.width - 1 pixels, dstStep less than roiSize.width
 *                   pixels
 */
PxlStatus pxliFilter_64f_C1R(const double* src, int srcStep, double* dst, int dstStep, ImageSize roiSize,
    const double* kernel, ImageSize kernelSize, ImagePoint anchor, uint8_t* buffer);

/* ---------------------------------------------------------------------------------------------------------------------
 * FilterGetBufSize (filter/filter_64f.cpp)
 *
 * Stores the size in bytes of the buffer of pxliFilter_64f_C1R, which is 0. roiWidth is the width of the region to be
 * filtered.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  size is null
 *   PXL_E_SIZE      kernelSize.width, kernelSize.height or roiWidth < 1
 */
PxlStatus pxliFilterGetBufSize_64f_C1R(ImageSize kernelSize, int roiWidth, int* size);

/* ---------------------------------------------------------------------------------------------------------------------
 * Filter32f (filter/filter_32f.cpp)
 *
 * dst(x, y) = sum of K[j][i] * src(x + anchor.x - i, y + anchor.y - j) over the kernelSize.width x kernelSize.height
 * coefficients, which stand in row-major order: K[j][i] in row j, column i. This is true convolution, which mirrors the
 * kernel: K[0][0] meets the pixel at the bottom right of the neighbourhood. Around the region at src are read
 *   left   kernelSize.width - 1 - anchor.x columns
 *   right  anchor.x columns
 *   above  kernelSize.height - 1 - anchor.y rows
 *   below  anchor.y rows
 * The anchor is the coefficient that meets the pixel itself. THE ANCHOR IS NOT CHECKED, and no kernel is too large: all
 * that the formula names is read, wherever it lies, and must be memory of the caller's. An anchor outside the kernel
 * puts the neighbourhood beside the pixel, by the same formula; a negative number above then means that so many columns
 * or rows at that edge of the region are not read.
 *
 * Products are summed in single precision, one after the other: rows of the neighbourhood from top to bottom, each from
 * left to right; the sum is rounded to nearest with ties to even and saturated, NaN gives 0. AC4: elements 0..2;
 * element 3 of the destination keeps its value.
 *
 * Threads: regions of at least 64 x 64 pixels are split into strips of rows over a team of threads_omp_of_n_pxl
 * threads; the result does not depend on the team.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      a width or height of roiSize or kernelSize < 1
 *   PXL_E_STEP      srcStep less than roiSize.width + kernelSize.width - 1 pixels, dstStep less than roiSize.width
 *                   pixels
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Filter_Round16s (filter/filter_round_int.cpp)
 *
 * dst(x, y) = sum of K[j][i] * src(x + anchor.x - i, y + anchor.y - j) over the kernelSize.width x kernelSize.height
 * coefficients, which stand in row-major order: K[j][i] in row j, column i. This is true convolution, which mirrors the
 * kernel: K[0][0] meets the pixel at the bottom right of the neighbourhood. Around the region at src are read
 *   left   kernelSize.width - 1 - anchor.x columns
 *   right  anchor.x columns
 *   above  kernelSize.height - 1 - anchor.y rows
 *   below  anchor.y rows
 * The anchor is the coefficient that meets the pixel itself. THE ANCHOR IS NOT CHECKED, and no kernel is too large: all
 * that the formula names is read, wherever it lies, and must be memory of the caller's. An anchor outside the kernel
 * puts the neighbourhood beside the pixel, by the same formula; a negative number above then means that so many columns
 * or rows at that edge of the region are not read.
 *
 * The sum is formed modulo 2^32; kernel and image must keep it within 32 bits, sign included. It is multiplied, in
 * single precision, by the single-precision reciprocal of divisor, where that is not 1, and saturated and rounded by
 * roundMode: PXL_ROUND_ZERO toward zero, PXL_ROUND_NEAR_EVEN to nearest with ties to even, PXL_ROUND_HALF_AWAY to
 * nearest with ties away from zero. A negative divisor turns the sign, so it gives 0 where the sum is positive. buffer
 * is not used and may be null. AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Threads: regions of at least 64 x 64 pixels are split into strips of rows over a team of threads_omp_of_n_pxl
 * threads; the result does not depend on the team.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR    src, dst or kernel is null
 *   PXL_E_SIZE        a width or height of roiSize or kernelSize < 1
 *   PXL_E_DIVISOR     divisor is 0
 *   PXL_E_STEP        srcStep less than roiSize.width + kernelSize.width - 1 pixels, dstStep less than roiSize.width
 *                     pixels
 *   PXL_E_ROUND_MODE  roundMode is not 0, 1 or 2
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Filter_Round32s (filter/filter_round_int.cpp)
 *
 * dst(x, y) = sum of K[j][i] * src(x + anchor.x - i, y + anchor.y - j) over the kernelSize.width x kernelSize.height
 * coefficients, which stand in row-major order: K[j][i] in row j, column i. This is true convolution, which mirrors the
 * kernel: K[0][0] meets the pixel at the bottom right of the neighbourhood. Around the region at src are read
 *   left   kernelSize.width - 1 - anchor.x columns
 *   right  anchor.x columns
 *   above  kernelSize.height - 1 - anchor.y rows
 *   below  anchor.y rows
 * The anchor is the coefficient that meets the pixel itself. THE ANCHOR IS NOT CHECKED, and no kernel is too large: all
 * that the formula names is read, wherever it lies, and must be memory of the caller's. An anchor outside the kernel
 * puts the neighbourhood beside the pixel, by the same formula; a negative number above then means that so many columns
 * or rows at that edge of the region are not read.
 *
 * The sum is formed modulo 2^32; kernel and image must keep it within 32 bits, sign included. It is divided by divisor
 * in double precision, saturated and rounded by roundMode: PXL_ROUND_ZERO toward zero, PXL_ROUND_NEAR_EVEN to nearest
 * with ties to even, PXL_ROUND_HALF_AWAY to nearest with ties away from zero. A negative divisor turns the sign, so 16u
 * members give 0 where the sum is positive. buffer is not used and may be null. AC4: elements 0..2; element 3 of the
 * destination keeps its value.
 *
 * Threads: regions of at least 64 x 64 pixels are split into strips of rows over a team of threads_omp_of_n_pxl
 * threads; the result does not depend on the team.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR    src, dst or kernel is null
 *   PXL_E_SIZE        a width or height of roiSize or kernelSize < 1
 *   PXL_E_DIVISOR     divisor is 0
 *   PXL_E_STEP        srcStep less than roiSize.width + kernelSize.width - 1 pixels, dstStep less than roiSize.width
 *                     pixels
 *   PXL_E_ROUND_MODE  roundMode is not 0, 1 or 2
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

/* ---------------------------------------------------------------------------------------------------------------------
 * Filter_Round32f (filter/filter_round_32f.cpp)
 *
 * dst(x, y) = sum of K[j][i] * src(x + anchor.x - i, y + anchor.y - j) over the kernelSize.width x kernelSize.height
 * coefficients, which stand in row-major order: K[j][i] in row j, column i. This is true convolution, which mirrors the
 * kernel: K[0][0] meets the pixel at the bottom right of the neighbourhood. Around the region at src are read
 *   left   kernelSize.width - 1 - anchor.x columns
 *   right  anchor.x columns
 *   above  kernelSize.height - 1 - anchor.y rows
 *   below  anchor.y rows
 * The anchor is the coefficient that meets the pixel itself. THE ANCHOR IS NOT CHECKED, and no kernel is too large: all
 * that the formula names is read, wherever it lies, and must be memory of the caller's. An anchor outside the kernel
 * puts the neighbourhood beside the pixel, by the same formula; a negative number above then means that so many columns
 * or rows at that edge of the region are not read.
 *
 * Products are formed in single precision and summed in double precision, in the order of pxliFilter32f; the sum is
 * rounded to single precision, saturated and rounded by roundMode: PXL_ROUND_ZERO toward zero, PXL_ROUND_NEAR_EVEN to
 * nearest with ties to even, PXL_ROUND_HALF_AWAY to nearest with ties away from zero. NaN gives 0. buffer is not used
 * and may be null. AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Threads: regions of at least 64 x 64 pixels are split into strips of rows over a team of threads_omp_of_n_pxl
 * threads; the result does not depend on the team.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR    src, dst or kernel is null
 *   PXL_E_SIZE        a width or height of roiSize or kernelSize < 1
 *   PXL_E_STEP        srcStep less than roiSize.width + kernelSize.width - 1 pixels, dstStep less than roiSize.width
 *                     pixels
 *   PXL_E_ROUND_MODE  roundMode is not 0, 1 or 2
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

/* ---------------------------------------------------------------------------------------------------------------------
 * FilterRow (filter/filter_row.cpp)
 *
 * dst(x, y) = sum of K[i] * src(x + xAnchor - i, y) over the kernelSize coefficients of a row. This is true
 * convolution, which mirrors the kernel: K[0] meets the rightmost pixel. Beside the region at src are read
 *   left   kernelSize - 1 - xAnchor columns
 *   right  xAnchor columns
 * The anchor is the coefficient that meets the pixel itself. THE ANCHOR IS NOT CHECKED, and no kernel is too large: all
 * that the formula names is read, wherever it lies, and must be memory of the caller's. An anchor outside the kernel
 * puts the neighbourhood beside the pixel, by the same formula; a negative number above then means that so many columns
 * or rows at that edge of the region are not read.
 *
 * Integer members divide the sum S by the divisor d, round to nearest with ties to even, and saturate:
 *   d = 1                 S itself
 *   d = 2, 4, 8, ...      S / d in integers
 *   other d, 8u           S in single precision times the single-precision reciprocal of d
 *   other d, 16s and 16u  S / d in double precision
 * A negative divisor is one of the others, whatever its magnitude, and turns the sign: unsigned members give 0 where S
 * is positive, S / d where it is negative. S is formed modulo 2^32; kernel and image must keep it within 32 bits, sign
 * included. 32f members sum products in single precision, one after the other from left to right. AC4: elements 0..2;
 * element 3 of the destination keeps its value.
 *
 * Threads: regions of at least 64 x 64 pixels are split into strips of rows over a team of threads_omp_of_n_pxl
 * threads; the result does not depend on the team.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width, roiSize.height or kernelSize < 1
 *   PXL_E_DIVISOR   members with a divisor: it is 0
 *   PXL_E_STEP      srcStep less than roiSize.width + kernelSize - 1 pixels, dstStep less than roiSize.width pixels
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

/* ---------------------------------------------------------------------------------------------------------------------
 * FilterRow32f (filter/filter_row.cpp)
 *
 * dst(x, y) = sum of K[i] * src(x + xAnchor - i, y) over the kernelSize coefficients of a row. This is true
 * convolution, which mirrors the kernel: K[0] meets the rightmost pixel. Beside the region at src are read
 *   left   kernelSize - 1 - xAnchor columns
 *   right  xAnchor columns
 * The anchor is the coefficient that meets the pixel itself. THE ANCHOR IS NOT CHECKED, and no kernel is too large: all
 * that the formula names is read, wherever it lies, and must be memory of the caller's. An anchor outside the kernel
 * puts the neighbourhood beside the pixel, by the same formula; a negative number above then means that so many columns
 * or rows at that edge of the region are not read.
 *
 * Products are summed in single precision, one after the other from left to right; the sum is rounded to nearest with
 * ties to even and saturated, NaN gives 0. AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Threads: regions of at least 64 x 64 pixels are split into strips of rows over a team of threads_omp_of_n_pxl
 * threads; the result does not depend on the team.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width, roiSize.height or kernelSize < 1
 *   PXL_E_STEP      srcStep less than roiSize.width + kernelSize - 1 pixels, dstStep less than roiSize.width pixels
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

/* ---------------------------------------------------------------------------------------------------------------------
 * FilterColumn (filter/filter_column.cpp)
 *
 * dst(x, y) = sum of K[j] * src(x, y + yAnchor - j) over the kernelSize coefficients of a column. This is true
 * convolution, which mirrors the kernel: K[0] meets the lowest pixel. Above and below the region at src are read
 *   above  kernelSize - 1 - yAnchor rows
 *   below  yAnchor rows
 * The anchor is the coefficient that meets the pixel itself. THE ANCHOR IS NOT CHECKED, and no kernel is too large: all
 * that the formula names is read, wherever it lies, and must be memory of the caller's. An anchor outside the kernel
 * puts the neighbourhood beside the pixel, by the same formula; a negative number above then means that so many columns
 * or rows at that edge of the region are not read.
 *
 * Integer members divide the sum S by the divisor d, round to nearest with ties to even, and saturate:
 *   d = 1                 S itself
 *   d = 2, 4, 8, ...      S / d in integers
 *   other d, 8u           S in single precision times the single-precision reciprocal of d
 *   other d, 16s and 16u  S / d in double precision
 * A negative divisor is one of the others, whatever its magnitude, and turns the sign: unsigned members give 0 where S
 * is positive, S / d where it is negative. S is formed modulo 2^32; kernel and image must keep it within 32 bits, sign
 * included. 32f members sum products in single precision, one after the other from top to bottom. AC4: elements 0..2;
 * element 3 of the destination keeps its value.
 *
 * Threads: regions of at least 64 x 64 pixels are split into strips of rows over a team of threads_omp_of_n_pxl
 * threads; the result does not depend on the team.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width, roiSize.height or kernelSize < 1
 *   PXL_E_DIVISOR   members with a divisor: it is 0
 *   PXL_E_STEP      srcStep or dstStep less than roiSize.width pixels
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

/* ---------------------------------------------------------------------------------------------------------------------
 * FilterColumn32f (filter/filter_column.cpp)
 *
 * dst(x, y) = sum of K[j] * src(x, y + yAnchor - j) over the kernelSize coefficients of a column. This is true
 * convolution, which mirrors the kernel: K[0] meets the lowest pixel. Above and below the region at src are read
 *   above  kernelSize - 1 - yAnchor rows
 *   below  yAnchor rows
 * The anchor is the coefficient that meets the pixel itself. THE ANCHOR IS NOT CHECKED, and no kernel is too large: all
 * that the formula names is read, wherever it lies, and must be memory of the caller's. An anchor outside the kernel
 * puts the neighbourhood beside the pixel, by the same formula; a negative number above then means that so many columns
 * or rows at that edge of the region are not read.
 *
 * Products are summed in single precision, one after the other from top to bottom; the sum is rounded to nearest with
 * ties to even and saturated, NaN gives 0. AC4: elements 0..2; element 3 of the destination keeps its value.
 *
 * Threads: regions of at least 64 x 64 pixels are split into strips of rows over a team of threads_omp_of_n_pxl
 * threads; the result does not depend on the team.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR  a pointer is null
 *   PXL_E_SIZE      roiSize.width, roiSize.height or kernelSize < 1
 *   PXL_E_STEP      srcStep or dstStep less than roiSize.width pixels
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

/* ---------------------------------------------------------------------------------------------------------------------
 * FilterBox (filter/box.cpp)
 *
 * The mean of a window of maskSize.width x maskSize.height source pixels: (x - anchor.x + i, y - anchor.y + j) with 0
 * <= i < maskSize.width and 0 <= j < maskSize.height. The window is not mirrored. Around the region at src are read
 *   left   anchor.x columns
 *   right  maskSize.width - 1 - anchor.x columns
 *   above  anchor.y rows
 *   below  maskSize.height - 1 - anchor.y rows
 * In place (I), these pixels are read and not written. AC4: elements 0..2; element 3 of the destination keeps its
 * value.
 *
 * Running sums (M. J. McDonnell, 1981): a pixel costs the same whatever the mask. With S the sum of the window and r
 * the single-precision reciprocal of its area, all in single precision where nothing else is said:
 *   8u   area up to 8100: (S * m) >> s, with m * 2^-s the reciprocal of the area rounded up to 12 significant bits:
 *        multiples of the area give the exact mean, other sums the truncated one, or 1 more where the mean is just
 *        below; larger areas: S * r + 9.0e-6, truncated
 *   16s  with S the sum of the samples + 32768: S * r + 9.0e-6 (C4: this sum in double precision), truncated, less
 *        32768
 *   16u  S * r + 0.5000001 (this sum in double precision), truncated: to nearest, halves up
 *   32f  S * r with running sums in single precision
 * Integer sums are exact for every mask; they become floats, rounded to nearest, where they are multiplied by r. The
 * area is a product of 32 bits, so masks have fewer than 2^31 pixels. A 1 x 1 mask copies. Steps of 16- and 32-bit
 * types count whole elements: what is over is dropped.
 *
 * Sums of 32f: a column sum begins as the samples of the window's rows, added from top to bottom, and goes on, row by
 * row, by adding the difference of the sample that enters and the one that leaves. A row begins with the sum of the
 * columns of its first window, added from left to right, and goes on by adding the column that enters and subtracting
 * the one that leaves. Column sums begin anew in rows 0, B, 2 * B ... of the region: B is the height of the region in
 * 2^k equal parts, with the largest k >= 0 that leaves them at least 128 rows and 4 * maskSize.height rows high (k = 0
 * if none does), rounded up to a multiple of 8. An infinity or NaN that has entered a column sum stays in it until
 * then.
 *
 * Threads: out of place, 8u, 16s and 32f regions of more than 4096 pixels (C4: all) are split into blocks of rows over
 * a team of threads_omp_of_n_pxl threads; the result does not depend on the team. Everything else runs on the calling
 * thread. Scratch: column sums of up to 16 rows; in place also the rows of results that wait for anchor.y rows below
 * them.
 *
 * Statuses, in this order:
 *   PXL_E_NULL_PTR   a pointer is null
 *   PXL_E_STEP       a step < 1
 *   PXL_E_SIZE       roiSize.width or roiSize.height < 1
 *   PXL_E_MASK_SIZE  maskSize.width or maskSize.height < 1
 *   PXL_E_ANCHOR     anchor outside the mask
 *   PXL_E_MEM_ALLOC  there is no memory for the scratch
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

/* ---------------------------------------------------------------------------------------------------------------------
 * SumWindowRow (filter/sum_window.cpp)
 *
 * dst(x, y) = sum of src(x - anchor + k, y), 0 <= k < maskSize. The window is not mirrored. Beside the region at src
 * are read
 *   left   anchor columns
 *   right  maskSize - 1 - anchor columns
 *
 * Running sums in single precision: each channel starts a row with the samples of its first window, added one by one
 * from left to right, and goes on by adding the difference of the sample that enters and the one that leaves. Steps are
 * not checked; those of 16-bit sources and of the destination count whole elements, rounded down. An empty region, of a
 * width or height < 1, is refused by 16u members with PXL_E_SIZE; 8u and 16s members return PXL_OK for it and write
 * nothing.
 *
 * Statuses of 16u members, in this order:
 *   PXL_E_NULL_PTR   a pointer is null
 *   PXL_E_SIZE       roiSize.width or roiSize.height < 1
 *   PXL_E_MASK_SIZE  maskSize < 1
 *   PXL_E_ANCHOR     anchor outside 0 .. maskSize - 1
 * Statuses of 8u and 16s members, in this order:
 *   PXL_E_NULL_PTR   a pointer is null
 *   PXL_E_MASK_SIZE  maskSize < 1
 *   PXL_E_ANCHOR     anchor outside 0 .. maskSize - 1
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

/* ---------------------------------------------------------------------------------------------------------------------
 * SumWindowColumn (filter/sum_window.cpp)
 *
 * dst(x, y) = sum of src(x, y - anchor + k), 0 <= k < maskSize. The window is not mirrored. Above and below the region
 * at src are read
 *   above  anchor rows
 *   below  maskSize - 1 - anchor rows
 *
 * Running sums in single precision: each channel starts a column with the samples of its first window, added one by one
 * from top to bottom, and goes on by adding the difference of the sample that enters and the one that leaves. Steps are
 * not checked; those of 16-bit sources and of the destination count whole elements, rounded down. An empty region is
 * refused by 16u members and 16s_C3R with PXL_E_SIZE; the others return PXL_OK for a height < 1, and else, for a width
 * < 1, PXL_E_MEM_ALLOC, without writing. Scratch: one row of sums.
 *
 * Statuses of 16u members, in this order:
 *   PXL_E_NULL_PTR   a pointer is null
 *   PXL_E_SIZE       roiSize.width or roiSize.height < 1
 *   PXL_E_MASK_SIZE  maskSize < 1
 *   PXL_E_ANCHOR     anchor outside 0 .. maskSize - 1
 *   PXL_E_MEM_ALLOC  there is no memory for the scratch
 * Statuses of 16s_C3R, in this order:
 *   PXL_E_SIZE       roiSize.width or roiSize.height < 1
 *   PXL_E_NULL_PTR   a pointer is null
 *   PXL_E_MASK_SIZE  maskSize < 1
 *   PXL_E_ANCHOR     anchor outside 0 .. maskSize - 1
 *   PXL_E_MEM_ALLOC  there is no memory for the scratch
 * Statuses of the other 8u and 16s members, in this order:
 *   PXL_E_NULL_PTR   a pointer is null
 *   PXL_E_MASK_SIZE  maskSize < 1
 *   PXL_E_ANCHOR     anchor outside 0 .. maskSize - 1
 *   PXL_E_MEM_ALLOC  roiSize.height >= 1 and roiSize.width < 1, or there is no memory for the scratch
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
