/* A first program: takes a photo through the data-exchange functions, times each one, and shows what came out.
 *
 *     exchange [photo.png [sheet.png]]
 *
 * Every function follows the same pattern. An image operand is the address of the first pixel of a region and the step
 * of its rows in bytes; the size of the region comes after the operands, once for all of them, in pixels; then the
 * arguments of the family; and a status comes back. A region need not be a whole picture: the address of any pixel, the
 * step of the picture around it and a smaller size make a region, and no pixel outside it is touched.
 */
#define _POSIX_C_SOURCE 200809L /* clock_gettime */

#include "pxli.h"

#include <float.h>
#include <stddef.h>
#include <stdio.h>
#include <string.h>
#include <time.h>

#include "picture.h"
#include "sheet.h"

enum { RUNS = 25, TILES = 20 };

typedef struct {
    Picture photo;
    Sheet sheet;
    int stages;
} Demo;

/* ---- One line of the table --------------------------------------------------------- */

typedef struct {
    int number;
    const char* stage;
    const char* function;
    ImageSize size;
    double bytes; /* read and written by one call */
    PxlStatus status;
    int runs;
    double started, best;
} Line;

static double seconds(void) {
    struct timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return (double)now.tv_sec + 1e-9 * (double)now.tv_nsec;
}

static double area(ImageSize size) { return (double)size.width * size.height; }

static Line measure(Demo* demo, const char* stage, const char* function, ImageSize size, double bytes) {
    Line line = {.number = ++demo->stages, .stage = stage, .function = function, .size = size, .bytes = bytes};
    line.best = DBL_MAX;
    return line;
}

static void printLine(const Line* line) {
    char size[32];
    snprintf(size, sizeof size, "%dx%d", (int)line->size.width, (int)line->size.height);
    printf("%2d  %-20s  %-31s  %9s  %9.1f  %8.0f  %6.2f\n", line->number, line->stage, line->function, size,
           1e6 * line->best, 1e-6 * area(line->size) / line->best, 1e-9 * line->bytes / line->best);
}

/* Drives the loop around a call: true RUNS times, checking the status that the call before left in the line and keeping
   the shortest time; then prints the line. */
static int again(Line* line) {
    const double elapsed = seconds() - line->started;
    require(line->status, line->function);
    if (line->runs > 0 && elapsed < line->best) line->best = elapsed;
    if (line->runs++ == RUNS) {
        printLine(line);
        return 0;
    }
    line->started = seconds();
    return 1;
}

/* Puts the result of a line on the sheet, under the number that it has in the table. */
static void show(Demo* demo, const Line* line, Picture rgb) {
    char title[64];
    snprintf(title, sizeof title, "%d %s", line->number, line->stage);
    addTile(&demo->sheet, rgb, title, line->function);
}

/* For stages that lead there and back: every pixel must be that of the photo. Bytes between the rows belong to nobody
   and are not compared. */
static void requireSame(const Demo* demo, Picture rgb, const char* stage) {
    const Picture photo = demo->photo;
    for (int y = 0; y < photo.size.height; ++y)
        if (memcmp(rgbAt(rgb, 0, y), rgbAt(photo, 0, y), 3 * (size_t)photo.size.width) != 0)
            fail(stage, "the picture differs from the photo");
}

/* ---- Copies, planes and channels --------------------------------------------------- */

static void copyStage(Demo* demo) {
    const Picture photo = demo->photo;
    Picture copy = newRgb(photo.size);
    Line line = measure(demo, "the photo, copied", "pxliCopy_8u_C3R", photo.size, 6 * area(photo.size));
    while (again(&line)) line.status = pxliCopy_8u_C3R(photo.pixels, photo.step, copy.pixels, copy.step, photo.size);
    requireSame(demo, copy, line.stage);
    show(demo, &line, copy);
    pxliFree(copy.pixels);
}

/* Writes a plane into one channel of a black picture. The address of the destination chooses the channel: it is that of
   the channel in the first pixel, and the function steps on from there by whole pixels. */
static void planeStage(Demo* demo, Picture plane, int channel, const char* name) {
    static const uint8_t black[3] = {0, 0, 0};
    Picture tinted = newRgb(plane.size);
    require(pxliSet_8u_C3R(black, tinted.pixels, tinted.step, tinted.size), "pxliSet_8u_C3R");
    Line line = measure(demo, name, "pxliCopy_8u_C1C3R", plane.size, 2 * area(plane.size));
    while (again(&line))
        line.status = pxliCopy_8u_C1C3R(plane.pixels, plane.step, tinted.pixels + channel, tinted.step, plane.size);
    show(demo, &line, tinted);
    pxliFree(tinted.pixels);
}

/* Planar operands are arrays of plane addresses that share one step. */
static void mergeStage(Demo* demo, const uint8_t* const planes[3], int planeStep) {
    const ImageSize size = demo->photo.size;
    Picture merged = newRgb(size);
    Line line = measure(demo, "planes merged", "pxliCopy_8u_P3C3R", size, 6 * area(size));
    while (again(&line)) line.status = pxliCopy_8u_P3C3R(planes, planeStep, merged.pixels, merged.step, size);
    requireSame(demo, merged, line.stage);
    show(demo, &line, merged);
    pxliFree(merged.pixels);
}

static void grayStage(Demo* demo, Picture gray) {
    Picture rgb = newRgb(gray.size);
    Line line = measure(demo, "green as gray", "pxliDup_8u_C1C3R", gray.size, 4 * area(gray.size));
    while (again(&line)) line.status = pxliDup_8u_C1C3R(gray.pixels, gray.step, rgb.pixels, rgb.step, gray.size);
    show(demo, &line, rgb);
    pxliFree(rgb.pixels);
}

static void planeStages(Demo* demo, Picture red, Picture green, Picture blue) {
    const Picture photo = demo->photo;
    uint8_t* const planes[3] = {red.pixels, green.pixels, blue.pixels};
    Line line = measure(demo, "split into planes", "pxliCopy_8u_C3P3R", photo.size, 6 * area(photo.size));
    while (again(&line)) line.status = pxliCopy_8u_C3P3R(photo.pixels, photo.step, planes, red.step, photo.size);
    planeStage(demo, red, 0, "red plane");
    planeStage(demo, green, 1, "green plane");
    planeStage(demo, blue, 2, "blue plane");
    mergeStage(demo, (const uint8_t* const[3]){red.pixels, green.pixels, blue.pixels}, red.step);
    grayStage(demo, green);
}

/* Entry k of the order names the source channel that destination channel k receives. */
static void swapStage(Demo* demo) {
    static const int32_t blueGreenRed[3] = {2, 1, 0};
    const Picture photo = demo->photo;
    Picture swapped = newRgb(photo.size);
    Line line = measure(demo, "red and blue swapped", "pxliSwapChannels_8u_C3R", photo.size, 6 * area(photo.size));
    while (again(&line))
        line.status =
            pxliSwapChannels_8u_C3R(photo.pixels, photo.step, swapped.pixels, swapped.step, photo.size, blueGreenRed);
    show(demo, &line, swapped);
    pxliFree(swapped.pixels);
}

/* To four channels: an entry of 3 asks for the constant that follows the order, here an opaque alpha. */
static void fourChannelStage(Demo* demo, Picture four) {
    static const int32_t rgbAndConstant[4] = {0, 1, 2, 3};
    const Picture photo = demo->photo;
    Line line = measure(demo, "alpha added", "pxliSwapChannels_8u_C3C4R", photo.size, 7 * area(photo.size));
    while (again(&line))
        line.status = pxliSwapChannels_8u_C3C4R(photo.pixels, photo.step, four.pixels, four.step, photo.size,
                                                rgbAndConstant, 255);
}

static void dropAlphaStage(Demo* demo, Picture four) {
    Picture rgb = newRgb(four.size);
    Line line = measure(demo, "alpha dropped", "pxliCopy_8u_AC4C3R", four.size, 6 * area(four.size));
    while (again(&line)) line.status = pxliCopy_8u_AC4C3R(four.pixels, four.step, rgb.pixels, rgb.step, four.size);
    requireSame(demo, rgb, line.stage);
    show(demo, &line, rgb);
    pxliFree(rgb.pixels);
}

/* ---- Borders ----------------------------------------------------------------------- */

/* The source of the border stages is the middle of the photo, a region inside it; with the margins around it the result
   is as large as the photo again. */
typedef struct {
    ImageSize size;
    int left, top;
} Middle;

static Middle middleOf(ImageSize whole) {
    Middle middle = {.left = whole.width / 6, .top = whole.height / 6};
    middle.size = (ImageSize){whole.width - 2 * middle.left, whole.height - 2 * middle.top};
    return middle;
}

static void constBorderStage(Demo* demo) {
    static const uint8_t orange[3] = {236, 140, 40};
    const Picture photo = demo->photo;
    const Middle middle = middleOf(photo.size);
    const uint8_t* source = rgbAt(photo, middle.left, middle.top);
    Picture bordered = newRgb(photo.size);
    Line line = measure(demo, "constant border", "pxliCopyConstBorder_8u_C3R", bordered.size,
                        3 * (area(middle.size) + area(bordered.size)));
    while (again(&line))
        line.status = pxliCopyConstBorder_8u_C3R(source, photo.step, middle.size, bordered.pixels, bordered.step,
                                                 bordered.size, middle.top, middle.left, orange);
    show(demo, &line, bordered);
    pxliFree(bordered.pixels);
}

static void replicateBorderStage(Demo* demo) {
    const Picture photo = demo->photo;
    const Middle middle = middleOf(photo.size);
    const uint8_t* source = rgbAt(photo, middle.left, middle.top);
    Picture bordered = newRgb(photo.size);
    Line line = measure(demo, "replicated border", "pxliCopyReplicateBorder_8u_C3R", bordered.size,
                        3 * (area(middle.size) + area(bordered.size)));
    while (again(&line))
        line.status = pxliCopyReplicateBorder_8u_C3R(source, photo.step, middle.size, bordered.pixels, bordered.step,
                                                     bordered.size, middle.top, middle.left);
    show(demo, &line, bordered);
    pxliFree(bordered.pixels);
}

/* The wrap functions move elements of four bytes, whatever they mean: here a pixel of four channels is one element. */
static void wrapBorderStage(Demo* demo, Picture four) {
    const Middle middle = middleOf(four.size);
    const uint8_t* source = four.pixels + (ptrdiff_t)middle.top * four.step + 4 * middle.left;
    Picture bordered = newFour(four.size), rgb = newRgb(four.size);
    Line line = measure(demo, "wrapped border", "pxliCopyWrapBorder_32s_C1R", bordered.size,
                        4 * (area(middle.size) + area(bordered.size)));
    while (again(&line))
        line.status =
            pxliCopyWrapBorder_32s_C1R((const int32_t*)source, four.step, middle.size, (int32_t*)bordered.pixels,
                                       bordered.step, bordered.size, middle.top, middle.left);
    require(pxliCopy_8u_AC4C3R(bordered.pixels, bordered.step, rgb.pixels, rgb.step, rgb.size), "pxliCopy_8u_AC4C3R");
    show(demo, &line, rgb);
    pxliFree(rgb.pixels);
    pxliFree(bordered.pixels);
}

/* ---- Geometry ---------------------------------------------------------------------- */

static void mirrorStage(Demo* demo, PxlAxis axis, const char* name) {
    const Picture photo = demo->photo;
    Picture mirrored = newRgb(photo.size);
    Line line = measure(demo, name, "pxliMirror_8u_C3R", photo.size, 6 * area(photo.size));
    while (again(&line))
        line.status = pxliMirror_8u_C3R(photo.pixels, photo.step, mirrored.pixels, mirrored.step, photo.size, axis);
    show(demo, &line, mirrored);
    pxliFree(mirrored.pixels);
}

/* The size given is that of the source; the destination has width and height exchanged. */
static void transposeStage(Demo* demo) {
    const Picture photo = demo->photo;
    Picture turned = newRgb((ImageSize){photo.size.height, photo.size.width});
    Line line = measure(demo, "transposed", "pxliTranspose_8u_C3R", photo.size, 6 * area(photo.size));
    while (again(&line))
        line.status = pxliTranspose_8u_C3R(photo.pixels, photo.step, turned.pixels, turned.step, photo.size);
    show(demo, &line, turned);
    pxliFree(turned.pixels);
}

/* ---- Float and back, bits ---------------------------------------------------------- */

/* Maps the range vMin..vMax of the floats onto 0..255; what lies outside saturates. */
static Picture fromFloatStage(Demo* demo, const float* floats, int floatStep, float vMin, float vMax,
                              const char* name) {
    const ImageSize size = demo->photo.size;
    Picture rgb = newRgb(size);
    Line line = measure(demo, name, "pxliScale_32f8u_C3R", size, 15 * area(size));
    while (again(&line)) line.status = pxliScale_32f8u_C3R(floats, floatStep, rgb.pixels, rgb.step, size, vMin, vMax);
    show(demo, &line, rgb);
    return rgb;
}

/* Steps count bytes in every element type, in float images too. */
static void floatStages(Demo* demo) {
    const Picture photo = demo->photo;
    int step;
    float* floats = pxliMalloc_32f_C3(photo.size.width, photo.size.height, &step);
    if (!floats) fail("float picture", "out of memory");
    Line line = measure(demo, "to float, 0 to 1", "pxliScale_8u32f_C3R", photo.size, 15 * area(photo.size));
    while (again(&line))
        line.status = pxliScale_8u32f_C3R(photo.pixels, photo.step, floats, step, photo.size, 0.0f, 1.0f);
    Picture same = fromFloatStage(demo, floats, step, 0.0f, 1.0f, "back from 0 to 1");
    requireSame(demo, same, "back from 0 to 1");
    Picture contrast = fromFloatStage(demo, floats, step, 0.25f, 0.75f, "from .25 to .75");
    pxliFree(contrast.pixels);
    pxliFree(same.pixels);
    pxliFree(floats);
}

/* A part of the picture at full size, so that the dots stay dots on the sheet. */
static Picture detailOf(Picture rgb) {
    Picture detail = rgb;
    if (rgb.size.width > TILE_WIDTH) detail.size.width = TILE_WIDTH;
    if (rgb.size.height > TILE_HEIGHT) detail.size.height = TILE_HEIGHT;
    detail.pixels =
        rgbAt(rgb, (rgb.size.width - detail.size.width) / 8, (rgb.size.height - detail.size.height) * 5 / 6);
    return detail;
}

static void unpackStage(Demo* demo, const uint8_t* bits, int bitStep, Picture gray) {
    Picture rgb = newRgb(gray.size);
    Line line = measure(demo, "bits, full size", "pxliConvert_1u8u_C1R", gray.size, 1.125 * area(gray.size));
    while (again(&line)) line.status = pxliConvert_1u8u_C1R(bits, bitStep, 0, gray.pixels, gray.step, gray.size);
    require(pxliDup_8u_C1C3R(gray.pixels, gray.step, rgb.pixels, rgb.step, rgb.size), "pxliDup_8u_C1C3R");
    show(demo, &line, detailOf(rgb));
    pxliFree(rgb.pixels);
}

/* Eight pixels per byte, the first in the highest bit; the error of each decision is carried on to its neighbours. */
static void ditherStages(Demo* demo, Picture gray) {
    const ImageSize size = gray.size;
    Picture bits = newGray((ImageSize){(size.width + 7) / 8, size.height}), unpacked = newGray(size);
    Line line = measure(demo, "dithered to bits", "pxliConvert_8u1u_C1R", size, 1.125 * area(size));
    while (again(&line))
        line.status = pxliConvert_8u1u_C1R(gray.pixels, gray.step, bits.pixels, bits.step, 0, size, 128);
    unpackStage(demo, bits.pixels, bits.step, unpacked);
    pxliFree(unpacked.pixels);
    pxliFree(bits.pixels);
}

/* ---- Masks and regions ------------------------------------------------------------- */

/* Fills the mask with a disc of 255 on 0 and returns the number of pixels in it. */
static double drawDisc(Picture mask) {
    const int width = mask.size.width, height = mask.size.height;
    const double radius = 0.47 * (width < height ? width : height);
    double inside = 0;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const double dx = x + 0.5 - 0.5 * width, dy = y + 0.5 - 0.5 * height;
            const int hit = dx * dx + dy * dy < radius * radius;
            mask.pixels[(ptrdiff_t)y * mask.step + x] = hit ? 255 : 0;
            inside += hit;
        }
    return inside;
}

/* Only pixels whose mask byte is not 0 are copied; the others keep the colour set before. */
static void maskStage(Demo* demo) {
    static const uint8_t cream[3] = {244, 236, 214};
    const Picture photo = demo->photo;
    Picture mask = newGray(photo.size), medallion = newRgb(photo.size);
    const double inside = drawDisc(mask);
    require(pxliSet_8u_C3R(cream, medallion.pixels, medallion.step, photo.size), "pxliSet_8u_C3R");
    Line line = measure(demo, "masked copy", "pxliCopy_8u_C3MR", photo.size, area(photo.size) + 6 * inside);
    while (again(&line))
        line.status = pxliCopy_8u_C3MR(photo.pixels, photo.step, medallion.pixels, medallion.step, photo.size,
                                       mask.pixels, mask.step);
    show(demo, &line, medallion);
    pxliFree(medallion.pixels);
    pxliFree(mask.pixels);
}

/* A rectangle inside the picture: the address of its corner, the step of the picture, the size of the rectangle. */
static void rectangleStage(Demo* demo) {
    static const uint8_t teal[3] = {16, 148, 140};
    const Picture photo = demo->photo;
    const ImageSize rectangle = {photo.size.width - photo.size.width / 2, photo.size.height - photo.size.height / 2};
    Picture covered = newRgb(photo.size);
    require(pxliCopy_8u_C3R(photo.pixels, photo.step, covered.pixels, covered.step, photo.size), "pxliCopy_8u_C3R");
    uint8_t* corner = rgbAt(covered, photo.size.width / 3, photo.size.height / 8);
    Line line = measure(demo, "rectangle set", "pxliSet_8u_C3R", rectangle, 3 * area(rectangle));
    while (again(&line)) line.status = pxliSet_8u_C3R(teal, corner, covered.step, rectangle);
    show(demo, &line, covered);
    pxliFree(covered.pixels);
}

/* ---- The chain --------------------------------------------------------------------- */

static void channelStages(Demo* demo) {
    Picture red = newGray(demo->photo.size), green = newGray(demo->photo.size), blue = newGray(demo->photo.size);
    planeStages(demo, red, green, blue);
    swapStage(demo);
    ditherStages(demo, green);
    pxliFree(blue.pixels);
    pxliFree(green.pixels);
    pxliFree(red.pixels);
}

static void borderStages(Demo* demo) {
    Picture four = newFour(demo->photo.size);
    fourChannelStage(demo, four);
    dropAlphaStage(demo, four);
    constBorderStage(demo);
    replicateBorderStage(demo);
    wrapBorderStage(demo, four);
    pxliFree(four.pixels);
}

static void geometryStages(Demo* demo) {
    mirrorStage(demo, PXL_AXIS_HORIZONTAL, "rows mirrored");
    mirrorStage(demo, PXL_AXIS_VERTICAL, "columns mirrored");
    mirrorStage(demo, PXL_AXIS_BOTH, "both mirrored");
    transposeStage(demo);
}

static void runChain(Demo* demo) {
    printf("%2s  %-20s  %-31s  %9s  %9s  %8s  %6s\n", "", "stage", "function", "size", "us", "MPix/s", "GB/s");
    copyStage(demo);
    channelStages(demo);
    borderStages(demo);
    geometryStages(demo);
    floatStages(demo);
    maskStage(demo);
    rectangleStage(demo);
}

int main(int argc, char** argv) {
    const char* photoPath = argc > 1 ? argv[1] : "photo.png";
    const char* sheetPath = argc > 2 ? argv[2] : "sheet.png";
    const LibVersion* version = pxliGetLibVersion();
    Demo demo = {.photo = readPng(photoPath), .sheet = newSheet(TILES)};
    printf("pxlimx %s: %s, %d x %d pixels; best of %d runs; GB/s counts bytes read and written\n\n",
           version->versionText, photoPath, (int)demo.photo.size.width, (int)demo.photo.size.height, RUNS);
    runChain(&demo);
    writePng(sheetPath, demo.sheet.page);
    printf("\ncontact sheet: %s, %d x %d pixels\n", sheetPath, (int)demo.sheet.page.size.width,
           (int)demo.sheet.page.size.height);
    freeSheet(&demo.sheet);
    pxliFree(demo.photo.pixels);
    return 0;
}
