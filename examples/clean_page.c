/* Cleans a photo of a page: estimates the uneven light, divides it out, stretches and sharpens what remains.
 *
 *     clean_page [page.png [cleaned.png [sheet.png]]]
 *
 * The light is the mean over a window that is large against the letters. Neighbourhood filters of the library read the
 * pixels around their region and never invent any, so the picture is first extended by its edge pixels; the filter then
 * gets the address of the picture's own first pixel inside the extended one.
 */
#define _POSIX_C_SOURCE 200809L /* clock_gettime */

#include "pxlcore.h"
#include "pxli.h"

#include <float.h>
#include <stddef.h>
#include <stdio.h>
#include <time.h>

#include "picture.h"
#include "sheet.h"

enum { RADIUS = 50, RUNS = 15, TILES = 7 };

/* Paper divided by the light is 1; ink is about a quarter. The range that becomes black to white: */
static const float BLACK = 0.35F, WHITE = 0.97F;

/* Sharpening: eight times the pixel and what it differs by from its eight neighbours, over 8. */
static const int32_t SHARPEN[9] = {-1, -1, -1, -1, 16, -1, -1, -1, -1};

typedef struct {
    float* pixels;
    int step;
    ImageSize size;
} FloatPicture;

typedef struct {
    Picture gray, extended, stretched, stretchedExtended, sharp;
    FloatPicture page, light, even;
} Pages;

typedef struct {
    const char* stage;
    const char* function;
    double best[2]; /* seconds, on one thread and on all */
} Line;

static double seconds(void) {
    struct timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return (double)now.tv_sec + 1e-9 * (double)now.tv_nsec;
}

static FloatPicture newFloat(ImageSize size) {
    FloatPicture picture = {.size = size};
    picture.pixels = pxliMalloc_32f_C1(size.width, size.height, &picture.step);
    if (!picture.pixels) fail("picture", "out of memory");
    return picture;
}

static ImageSize grown(ImageSize size, int margin) {
    return (ImageSize){size.width + 2 * margin, size.height + 2 * margin};
}

static float* floatAt(FloatPicture picture, int x, int y) {
    return (float*)((char*)picture.pixels + (ptrdiff_t)y * picture.step) + x;
}

static uint8_t* grayAt(Picture picture, int x, int y) { return picture.pixels + (ptrdiff_t)y * picture.step + x; }

static Pages newPages(Picture rgb) {
    const ImageSize size = rgb.size;
    Pages p = {.gray = newGray(size),
               .extended = newGray(grown(size, RADIUS)),
               .stretched = newGray(size),
               .stretchedExtended = newGray(grown(size, 1)),
               .sharp = newGray(size),
               .page = newFloat(grown(size, RADIUS)),
               .light = newFloat(size),
               .even = newFloat(size)};
    /* The green channel of three: the address of channel 1 of the first pixel, one channel out. */
    require(pxliCopy_8u_C3C1R(rgb.pixels + 1, rgb.step, p.gray.pixels, p.gray.step, size), "pxliCopy_8u_C3C1R");
    return p;
}

/* One stage of the chain; the order is that of the names below. */
static PxlStatus runStage(const Pages* p, int stage) {
    const ImageSize size = p->gray.size, window = {2 * RADIUS + 1, 2 * RADIUS + 1}, three = {3, 3};
    const ImagePoint windowCentre = {RADIUS, RADIUS}, centre = {1, 1};
    switch (stage) {
    case 0:
        return pxliCopyReplicateBorder_8u_C1R(p->gray.pixels, p->gray.step, size, p->extended.pixels, p->extended.step,
                                              p->extended.size, RADIUS, RADIUS);
    case 1:
        return pxliConvert_8u32f_C1R(p->extended.pixels, p->extended.step, p->page.pixels, p->page.step, p->page.size);
    case 2:
        return pxliFilterBox_32f_C1R(floatAt(p->page, RADIUS, RADIUS), p->page.step, p->light.pixels, p->light.step,
                                     size, window, windowCentre);
    case 3: /* the first source is the divisor; light of 0, a black picture, would only be warned of */
        return pxliDiv_32f_C1R(p->light.pixels, p->light.step, floatAt(p->page, RADIUS, RADIUS), p->page.step,
                               p->even.pixels, p->even.step, size);
    case 4:
        return pxliScale_32f8u_C1R(p->even.pixels, p->even.step, p->stretched.pixels, p->stretched.step, size, BLACK,
                                   WHITE);
    case 5:
        return pxliCopyReplicateBorder_8u_C1R(p->stretched.pixels, p->stretched.step, size, p->stretchedExtended.pixels,
                                              p->stretchedExtended.step, p->stretchedExtended.size, 1, 1);
    default:
        return pxliFilter_8u_C1R(grayAt(p->stretchedExtended, 1, 1), p->stretchedExtended.step, p->sharp.pixels,
                                 p->sharp.step, size, SHARPEN, three, centre, 8);
    }
}

static Line lines[] = {
    {"extended by its edges", "pxliCopyReplicateBorder_8u_C1R", {DBL_MAX, DBL_MAX}},
    {"to float", "pxliConvert_8u32f_C1R", {DBL_MAX, DBL_MAX}},
    {"the light, 101 x 101", "pxliFilterBox_32f_C1R", {DBL_MAX, DBL_MAX}},
    {"page / light", "pxliDiv_32f_C1R", {DBL_MAX, DBL_MAX}},
    {"stretched to 8 bits", "pxliScale_32f8u_C1R", {DBL_MAX, DBL_MAX}},
    {"extended by its edges", "pxliCopyReplicateBorder_8u_C1R", {DBL_MAX, DBL_MAX}},
    {"sharpened, 3 x 3", "pxliFilter_8u_C1R", {DBL_MAX, DBL_MAX}},
};
enum { LINES = sizeof lines / sizeof *lines };

static void measure(const Pages* p, int threads, int column) {
    require(pxlcoreSetNumThreads(threads), "pxlcoreSetNumThreads");
    for (int run = 0; run < RUNS; ++run)
        for (int stage = 0; stage < LINES; ++stage) {
            const double start = seconds();
            const PxlStatus status = runStage(p, stage);
            const double time = seconds() - start;
            if (status < PXL_OK) require(status, lines[stage].function);
            if (time < lines[stage].best[column]) lines[stage].best[column] = time;
        }
}

static void printTable(ImageSize size, int threads) {
    printf("    %-22s %-31s %12s %10s of %d threads, microseconds\n", "stage", "function", "one thread", "a team",
           threads);
    double sum[2] = {0, 0};
    for (int i = 0; i < LINES; ++i) {
        printf("%2d  %-22s %-31s %12.0f %10.0f\n", i + 1, lines[i].stage, lines[i].function, 1e6 * lines[i].best[0],
               1e6 * lines[i].best[1]);
        for (int c = 0; c < 2; ++c) sum[c] += lines[i].best[c];
    }
    const double pixels = (double)size.width * size.height;
    printf("    %-54s %12.0f %10.0f\n", "all", 1e6 * sum[0], 1e6 * sum[1]);
    printf("    %-54s %12.0f %10.0f\n\n", "million pixels per second", 1e-6 * pixels / sum[0], 1e-6 * pixels / sum[1]);
}

/* ---- Showing it -------------------------------------------------------------------------------------------------- */

static void showGray(Sheet* sheet, const uint8_t* pixels, int step, ImageSize size, const char* title,
                     const char* note) {
    Picture rgb = newRgb(size);
    require(pxliDup_8u_C1C3R(pixels, step, rgb.pixels, rgb.step, size), "pxliDup_8u_C1C3R");
    addTile(sheet, rgb, title, note);
    pxliFree(rgb.pixels);
}

static void showFloat(Sheet* sheet, FloatPicture picture, float white, const char* title, const char* note) {
    Picture gray = newGray(picture.size);
    require(pxliScale_32f8u_C1R(picture.pixels, picture.step, gray.pixels, gray.step, gray.size, 0, white),
            "pxliScale_32f8u_C1R");
    showGray(sheet, gray.pixels, gray.step, gray.size, title, note);
    pxliFree(gray.pixels);
}

/* The same detail of a stage in full size: a region is an address, a step and a size. */
static void showDetail(Sheet* sheet, Picture gray, const char* title, const char* note) {
    ImageSize tile = {TILE_WIDTH, TILE_HEIGHT};
    if (tile.width > gray.size.width) tile.width = gray.size.width;
    if (tile.height > gray.size.height) tile.height = gray.size.height;
    const int x = (gray.size.width - tile.width) / 2, y = (gray.size.height - tile.height) * 3 / 5;
    showGray(sheet, grayAt(gray, x, y), gray.step, tile, title, note);
}

static void writeSheet(const Pages* p, const char* path) {
    Sheet sheet = newSheet(TILES);
    showGray(&sheet, p->gray.pixels, p->gray.step, p->gray.size, "the page", "green channel");
    showFloat(&sheet, p->light, 255, "its light", "pxliFilterBox_32f_C1R");
    showFloat(&sheet, p->even, 1, "page over light", "pxliDiv_32f_C1R");
    showGray(&sheet, p->sharp.pixels, p->sharp.step, p->sharp.size, "cleaned", "pxliFilter_8u_C1R");
    showDetail(&sheet, p->gray, "the page, full size", "green channel");
    showDetail(&sheet, p->stretched, "stretched", "pxliScale_32f8u_C1R");
    showDetail(&sheet, p->sharp, "sharpened", "pxliFilter_8u_C1R");
    writePng(path, sheet.page);
    freeSheet(&sheet);
}

static void writeGray(Picture gray, const char* path) {
    Picture rgb = newRgb(gray.size);
    require(pxliDup_8u_C1C3R(gray.pixels, gray.step, rgb.pixels, rgb.step, gray.size), "pxliDup_8u_C1C3R");
    writePng(path, rgb);
    pxliFree(rgb.pixels);
}

static void freePages(Pages* p) {
    pxliFree(p->gray.pixels);
    pxliFree(p->extended.pixels);
    pxliFree(p->stretched.pixels);
    pxliFree(p->stretchedExtended.pixels);
    pxliFree(p->sharp.pixels);
    pxliFree(p->page.pixels);
    pxliFree(p->light.pixels);
    pxliFree(p->even.pixels);
}

int main(int argc, char** argv) {
    const char* input = argc > 1 ? argv[1] : "page.png";
    const char* output = argc > 2 ? argv[2] : "cleaned.png";
    const char* contact = argc > 3 ? argv[3] : "cleaned_sheet.png";
    Picture rgb = readPng(input);
    Pages pages = newPages(rgb);
    const int all = pxlcoreGetNumThreads();

    printf("%s, %d x %d pixels; best of %d runs\n\n", input, (int)rgb.size.width, (int)rgb.size.height, RUNS);
    measure(&pages, 1, 0);
    measure(&pages, all, 1);
    printTable(rgb.size, all);
    writeGray(pages.sharp, output);
    writeSheet(&pages, contact);
    printf("cleaned page: %s\ncontact sheet: %s\n", output, contact);

    freePages(&pages);
    pxliFree(rgb.pixels);
    return 0;
}
