#include "sheet.h"

enum { COLUMNS = 4, MARGIN = 16, CAPTION_HEIGHT = 34, GLYPH_WIDTH = 5, GLYPH_HEIGHT = 8 };
enum { CELL_WIDTH = TILE_WIDTH + MARGIN, CELL_HEIGHT = TILE_HEIGHT + CAPTION_HEIGHT + MARGIN };

static const uint8_t paper[3] = {38, 40, 44};
static const uint8_t frame[3] = {54, 57, 62};
static const uint8_t titleInk[3] = {240, 240, 236};
static const uint8_t noteInk[3] = {150, 176, 204};

/* Five columns per letter, the lowest bit of each is the top row, the highest is below the base line. Characters that
 * are not listed stay blank. */
static const uint8_t glyphs[128][GLYPH_WIDTH] = {
    ['0'] = {0x3e, 0x51, 0x49, 0x45, 0x3e}, ['1'] = {0x00, 0x42, 0x7f, 0x40, 0x00},
    ['2'] = {0x42, 0x61, 0x51, 0x49, 0x46}, ['3'] = {0x22, 0x41, 0x49, 0x49, 0x36},
    ['4'] = {0x18, 0x14, 0x12, 0x7f, 0x10}, ['5'] = {0x27, 0x45, 0x45, 0x45, 0x39},
    ['6'] = {0x3c, 0x4a, 0x49, 0x49, 0x30}, ['7'] = {0x01, 0x71, 0x09, 0x05, 0x03},
    ['8'] = {0x36, 0x49, 0x49, 0x49, 0x36}, ['9'] = {0x06, 0x49, 0x49, 0x29, 0x1e},
    ['A'] = {0x7e, 0x11, 0x11, 0x11, 0x7e}, ['B'] = {0x7f, 0x49, 0x49, 0x49, 0x36},
    ['C'] = {0x3e, 0x41, 0x41, 0x41, 0x22}, ['D'] = {0x7f, 0x41, 0x41, 0x22, 0x1c},
    ['E'] = {0x7f, 0x49, 0x49, 0x49, 0x41}, ['F'] = {0x7f, 0x09, 0x09, 0x09, 0x01},
    ['G'] = {0x3e, 0x41, 0x49, 0x49, 0x7a}, ['H'] = {0x7f, 0x08, 0x08, 0x08, 0x7f},
    ['I'] = {0x00, 0x41, 0x7f, 0x41, 0x00}, ['J'] = {0x20, 0x40, 0x41, 0x3f, 0x01},
    ['K'] = {0x7f, 0x08, 0x14, 0x22, 0x41}, ['L'] = {0x7f, 0x40, 0x40, 0x40, 0x40},
    ['M'] = {0x7f, 0x02, 0x0c, 0x02, 0x7f}, ['N'] = {0x7f, 0x04, 0x08, 0x10, 0x7f},
    ['O'] = {0x3e, 0x41, 0x41, 0x41, 0x3e}, ['P'] = {0x7f, 0x09, 0x09, 0x09, 0x06},
    ['Q'] = {0x3e, 0x41, 0x51, 0x21, 0x5e}, ['R'] = {0x7f, 0x09, 0x19, 0x29, 0x46},
    ['S'] = {0x46, 0x49, 0x49, 0x49, 0x31}, ['T'] = {0x01, 0x01, 0x7f, 0x01, 0x01},
    ['U'] = {0x3f, 0x40, 0x40, 0x40, 0x3f}, ['V'] = {0x1f, 0x20, 0x40, 0x20, 0x1f},
    ['W'] = {0x3f, 0x40, 0x38, 0x40, 0x3f}, ['X'] = {0x63, 0x14, 0x08, 0x14, 0x63},
    ['Y'] = {0x07, 0x08, 0x70, 0x08, 0x07}, ['Z'] = {0x61, 0x51, 0x49, 0x45, 0x43},
    ['a'] = {0x20, 0x54, 0x54, 0x54, 0x78}, ['b'] = {0x7f, 0x48, 0x44, 0x44, 0x38},
    ['c'] = {0x38, 0x44, 0x44, 0x44, 0x28}, ['d'] = {0x38, 0x44, 0x44, 0x48, 0x7f},
    ['e'] = {0x38, 0x54, 0x54, 0x54, 0x18}, ['f'] = {0x00, 0x08, 0x7e, 0x09, 0x02},
    ['g'] = {0x18, 0xa4, 0xa4, 0xa4, 0x7c}, ['h'] = {0x7f, 0x08, 0x04, 0x04, 0x78},
    ['i'] = {0x00, 0x44, 0x7d, 0x40, 0x00}, ['j'] = {0x40, 0x80, 0x84, 0x7d, 0x00},
    ['k'] = {0x7f, 0x10, 0x28, 0x44, 0x00}, ['l'] = {0x00, 0x41, 0x7f, 0x40, 0x00},
    ['m'] = {0x7c, 0x04, 0x38, 0x04, 0x78}, ['n'] = {0x7c, 0x08, 0x04, 0x04, 0x78},
    ['o'] = {0x38, 0x44, 0x44, 0x44, 0x38}, ['p'] = {0xfc, 0x44, 0x44, 0x44, 0x38},
    ['q'] = {0x38, 0x44, 0x44, 0x44, 0xfc}, ['r'] = {0x7c, 0x08, 0x04, 0x04, 0x08},
    ['s'] = {0x48, 0x54, 0x54, 0x54, 0x24}, ['t'] = {0x04, 0x3f, 0x44, 0x40, 0x20},
    ['u'] = {0x3c, 0x40, 0x40, 0x20, 0x7c}, ['v'] = {0x1c, 0x20, 0x40, 0x20, 0x1c},
    ['w'] = {0x3c, 0x40, 0x30, 0x40, 0x3c}, ['x'] = {0x44, 0x28, 0x10, 0x28, 0x44},
    ['y'] = {0x1c, 0xa0, 0xa0, 0xa0, 0x7c}, ['z'] = {0x44, 0x64, 0x54, 0x4c, 0x44},
    ['_'] = {0x80, 0x80, 0x80, 0x80, 0x80}, ['-'] = {0x08, 0x08, 0x08, 0x08, 0x08},
    ['.'] = {0x00, 0x60, 0x60, 0x00, 0x00}, [','] = {0x00, 0xa0, 0x60, 0x00, 0x00},
};

static int smaller(int a, int b) { return a < b ? a : b; }

static int roundedUp(int a, int b) { return (a + b - 1) / b; }

/* A filled rectangle is a region of the page: the address of its corner, the step of the page, its own size. */
static void fillRectangle(Picture page, int x, int y, ImageSize size, const uint8_t colour[3]) {
    require(pxliSet_8u_C3R(colour, rgbAt(page, x, y), page.step, size), "pxliSet_8u_C3R");
}

static void drawLetter(Picture page, int x, int y, char letter, int scale, const uint8_t ink[3]) {
    const uint8_t* columns = glyphs[letter & 127];
    const ImageSize dot = {scale, scale};
    for (int column = 0; column < GLYPH_WIDTH; ++column)
        for (int row = 0; row < GLYPH_HEIGHT; ++row)
            if (columns[column] >> row & 1) fillRectangle(page, x + column * scale, y + row * scale, dot, ink);
}

/* Letters that would leave the width of the tile are dropped. */
static void drawText(Picture page, int x, int y, const char* text, int scale, const uint8_t ink[3]) {
    const int advance = (GLYPH_WIDTH + 1) * scale;
    for (int used = advance; *text && used <= TILE_WIDTH; used += advance, x += advance)
        drawLetter(page, x, y, *text++, scale, ink);
}

/* Mean of one channel over the pixels of the source that fall together in one reduced pixel. */
static uint8_t meanOf(Picture rgb, int x, int y, int channel, int factor) {
    const int right = smaller(x + factor, rgb.size.width), bottom = smaller(y + factor, rgb.size.height);
    const long count = (long)(right - x) * (bottom - y);
    long sum = count / 2;
    for (int row = y; row < bottom; ++row)
        for (int column = x; column < right; ++column) sum += rgbAt(rgb, column, row)[channel];
    return (uint8_t)(sum / count);
}

static Picture reduced(Picture rgb, int factor) {
    Picture small = newRgb((ImageSize){roundedUp(rgb.size.width, factor), roundedUp(rgb.size.height, factor)});
    for (int y = 0; y < small.size.height; ++y)
        for (int x = 0; x < small.size.width; ++x)
            for (int c = 0; c < 3; ++c) rgbAt(small, x, y)[c] = meanOf(rgb, x * factor, y * factor, c, factor);
    return small;
}

static int fittingFactor(ImageSize size) {
    const int across = roundedUp(size.width, TILE_WIDTH), down = roundedUp(size.height, TILE_HEIGHT);
    return across > down ? across : down;
}

Sheet newSheet(int tiles) {
    const int rows = roundedUp(tiles, COLUMNS);
    Sheet sheet = {.capacity = tiles};
    sheet.page = newRgb((ImageSize){MARGIN + COLUMNS * CELL_WIDTH, MARGIN + rows * CELL_HEIGHT});
    fillRectangle(sheet.page, 0, 0, sheet.page.size, paper);
    return sheet;
}

void freeSheet(Sheet* sheet) {
    pxliFree(sheet->page.pixels);
    sheet->page.pixels = 0;
}

void addTile(Sheet* sheet, Picture rgb, const char* title, const char* note) {
    if (sheet->used == sheet->capacity) fail(title, "the contact sheet is full");
    const int x = MARGIN + sheet->used % COLUMNS * CELL_WIDTH, y = MARGIN + sheet->used / COLUMNS * CELL_HEIGHT;
    ++sheet->used;
    fillRectangle(sheet->page, x, y, (ImageSize){TILE_WIDTH, TILE_HEIGHT}, frame);
    Picture small = reduced(rgb, fittingFactor(rgb.size));
    uint8_t* corner =
        rgbAt(sheet->page, x + (TILE_WIDTH - small.size.width) / 2, y + (TILE_HEIGHT - small.size.height) / 2);
    require(pxliCopy_8u_C3R(small.pixels, small.step, corner, sheet->page.step, small.size), "pxliCopy_8u_C3R");
    pxliFree(small.pixels);
    drawText(sheet->page, x, y + TILE_HEIGHT + 5, title, 2, titleInk);
    drawText(sheet->page, x, y + TILE_HEIGHT + 24, note, 1, noteInk);
}
