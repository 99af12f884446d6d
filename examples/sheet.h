/* A contact sheet: captioned tiles, four in a row, on one large picture. */
#ifndef SHEET_H
#define SHEET_H

#include "picture.h"

enum { TILE_WIDTH = 320, TILE_HEIGHT = 240 };

typedef struct {
    Picture page;
    int capacity;
    int used;
} Sheet;

Sheet newSheet(int tiles);
void freeSheet(Sheet* sheet);

/* Puts a picture of three bytes per pixel into the next free tile, in the middle. One that is larger than the tile is
   reduced by the smallest whole number that makes it fit. The title is written large, the note below it small. */
void addTile(Sheet* sheet, Picture rgb, const char* title, const char* note);

#endif
