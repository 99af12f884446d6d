/* Pictures of the example: 8-bit images in memory of pxliMalloc_*, read from and written to PNG files.
 *
 * The library has no image object. An operand is three things: the address of the first pixel, the step (the bytes from
 * the start of one row to the start of the next, padding included) and the size of the region in pixels. Picture merely
 * keeps the three together; every call below takes them apart again.
 */
#ifndef PICTURE_H
#define PICTURE_H

#include "pxli.h"

typedef struct {
    uint8_t* pixels;
    int step;
    ImageSize size;
} Picture;

/* One, three or four bytes per pixel, not initialised. Release pixels with pxliFree. */
Picture newGray(ImageSize size);
Picture newRgb(ImageSize size);
Picture newFour(ImageSize size);

/* Address of pixel (x, y) in a picture of three bytes per pixel: where a region that begins there starts. The step of
   the region stays that of the whole picture. */
uint8_t* rgbAt(Picture picture, int x, int y);

/* Ends the program with a message when status is not PXL_OK. */
void require(PxlStatus status, const char* function);

/* Ends the program with a message. */
_Noreturn void fail(const char* what, const char* why);

/* Both end the program with a message when the file cannot be read or written. A picture with transparency is read as
   it looks on white. */
Picture readPng(const char* path);
void writePng(const char* path, Picture rgb);

#endif
