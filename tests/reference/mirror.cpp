// Mirror reverses the rows, the columns or both. Pixels move whole; the alpha element of AC4 stays where it is.
#include "image.h"

namespace reference {

namespace {

struct Flip {
    bool rows;
    bool columns;
};

Flip flipOf(int64_t axis) { return {.rows = axis == 0 || axis == 2, .columns = axis == 1 || axis == 2}; }

// Where overlapping rows make the order visible: source rows from the top.
void mirrorApart(const Image& src, const Image& dst, const Arg& roi, Flip flip) {
    forEachPixel(roi, [&](int64_t x, int64_t y) {
        const int64_t srcX = flip.columns ? roi.width - 1 - x : x;
        const int64_t dstY = flip.rows ? roi.height - 1 - y : y;
        dst.store(x, dstY, src.load(srcX, y));
    });
}

// Every pixel changes places with its counterpart once: the pair is met at the one that comes first in reading order.
void mirrorInPlace(const Image& image, const Arg& roi, Flip flip) {
    forEachPixel(roi, [&](int64_t x, int64_t y) {
        const int64_t otherX = flip.columns ? roi.width - 1 - x : x;
        const int64_t otherY = flip.rows ? roi.height - 1 - y : y;
        if (otherY < y || (otherY == y && otherX <= x)) return;
        const Pixel here = image.load(x, y);
        const Pixel there = image.load(otherX, otherY);
        image.store(x, y, there);
        image.store(otherX, otherY, here);
    });
}

int32_t mirror(const Member& member, const Arg* args) {
    const bool inPlace = member.mode == "IR";
    const Arg* dstArgs = inPlace ? args : args + 2;
    const Arg& roi = dstArgs[2];
    const int64_t axis = dstArgs[3].num;
    if (args[0].ptr == nullptr || dstArgs[0].ptr == nullptr) return nullPtrError;
    if (isEmpty(roi)) return sizeError;
    if (axis < 0 || axis > 2) return mirrorAxisError;

    const Element type = elementOf(member.src);
    const Side side = layoutOf(member.layout).src;
    const Image dst = imageOf(dstArgs[0], dstArgs[1], side, type);
    if (inPlace) {
        mirrorInPlace(dst, roi, flipOf(axis));
    } else {
        mirrorApart(imageOf(args[0], args[1], side, type), dst, roi, flipOf(axis));
    }
    return ok;
}

const Registered mirrorFamily("Mirror", mirror);

} // namespace

} // namespace reference
