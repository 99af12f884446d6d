#include "picture.h"

#include <png.h>
#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* The allocators compute step * height as a signed 32-bit product. This side keeps even the widest picture of the
   example, three floats per pixel, below it. */
enum { LARGEST_SIDE = 10000 };

void fail(const char* what, const char* why) {
    fprintf(stderr, "%s: %s\n", what, why);
    exit(EXIT_FAILURE);
}

void require(PxlStatus status, const char* function) {
    if (status == PXL_OK) return;
    char text[32];
    snprintf(text, sizeof text, "status %d", (int)status);
    fail(function, text);
}

/* The allocators return a status only in this form: null when there is no memory, or no such size. */
static Picture allocated(Picture picture) {
    if (!picture.pixels) fail("picture", "out of memory");
    return picture;
}

Picture newGray(ImageSize size) {
    Picture picture = {.size = size};
    picture.pixels = pxliMalloc_8u_C1(size.width, size.height, &picture.step);
    return allocated(picture);
}

Picture newRgb(ImageSize size) {
    Picture picture = {.size = size};
    picture.pixels = pxliMalloc_8u_C3(size.width, size.height, &picture.step);
    return allocated(picture);
}

Picture newFour(ImageSize size) {
    Picture picture = {.size = size};
    picture.pixels = pxliMalloc_8u_C4(size.width, size.height, &picture.step);
    return allocated(picture);
}

uint8_t* rgbAt(Picture picture, int x, int y) { return picture.pixels + (ptrdiff_t)y * picture.step + 3 * x; }

Picture readPng(const char* path) {
    png_image file;
    memset(&file, 0, sizeof file);
    file.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&file, path)) fail(path, file.message);
    if (file.width > LARGEST_SIDE || file.height > LARGEST_SIDE) {
        png_image_free(&file);
        fail(path, "a side is longer than 10000 pixels");
    }
    file.format = PNG_FORMAT_RGB;
    Picture picture = newRgb((ImageSize){(int32_t)file.width, (int32_t)file.height});
    const png_color white = {255, 255, 255};
    if (!png_image_finish_read(&file, &white, picture.pixels, picture.step, NULL)) fail(path, file.message);
    return picture;
}

void writePng(const char* path, Picture rgb) {
    png_image file;
    memset(&file, 0, sizeof file);
    file.version = PNG_IMAGE_VERSION;
    file.format = PNG_FORMAT_RGB;
    file.width = (png_uint_32)rgb.size.width;
    file.height = (png_uint_32)rgb.size.height;
    if (!png_image_write_to_file(&file, path, 0, rgb.pixels, rgb.step, NULL)) fail(path, file.message);
}
