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
    /* STATUS CODES */
};

