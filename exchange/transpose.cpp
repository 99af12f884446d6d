// Transpose: destination pixel (j, i) is source pixel (i, j).
//
// A region is cut into tiles whose rows are about a cache line long, so that the lines of source and destination are used up
// while they are at hand. Tiles are made of blocks that are transposed in registers. Where a tile does not divide into
// blocks, the last block overlaps the one before: its pixels are just moved twice, which the disjoint operands allow.
//
// In place, a tile and its counterpart change places through a buffer. Operands that overlap, and rows that overlap each
// other, are moved pixel by pixel in reading order.
#include "frame/checks.h"
#include "frame/pixel.h"
#include "frame/vec.h"
#include "frame/vec_transpose.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {
namespace {

using Source = Operand<const uint8_t>;
using Destination = Operand<uint8_t>;

// Pixels along the side of a tile.
template <int Bytes>
inline constexpr ptrdiff_t tileSide = Bytes == 1 ? 64 : Bytes <= 3 ? 32 : 16;

// Bytes by pixel, each column of the source from the top.
template <int Bytes>
void transposePixels(Source src, Destination dst, ptrdiff_t width, ptrdiff_t height) {
    for (ptrdiff_t x = 0; x < width; ++x) {
        const uint8_t* s = src.at(x, 0);
        uint8_t* d = dst.at(0, x);
        for (ptrdiff_t y = 0; y < height; ++y, s += src.step, d += Bytes) movePixel<Bytes>(s, d);
    }
}

// Calls block(x, y) for blocks of Columns x Rows that cover the tile, which is at least that large.
template <int Columns, int Rows, class Block>
PXL_INLINE void coverByBlocks(ptrdiff_t width, ptrdiff_t height, Block&& block) {
    for (ptrdiff_t x = 0; x < width; x += Columns) {
        const ptrdiff_t left = x + Columns <= width ? x : width - Columns;
        for (ptrdiff_t y = 0; y < height; y += Rows) block(left, y + Rows <= height ? y : height - Rows);
    }
}

template <int Bytes>
void transposeTile(Source src, Destination dst, ptrdiff_t width, ptrdiff_t height) {
    if constexpr (16 % Bytes == 0 && Bytes < 16) {
        constexpr int columns = 16 / Bytes, rows = vecBytes / Bytes;
        if (width >= columns && height >= rows)
            return coverByBlocks<columns, rows>(width, height, [&](ptrdiff_t x, ptrdiff_t y) {
                transposeBlock<Bytes>(src.at(x, y), src.step, dst.at(y, x), dst.step);
            });
        if constexpr (isAvx2)
            if (width >= columns && height >= columns)
                return coverByBlocks<columns, columns>(width, height, [&](ptrdiff_t x, ptrdiff_t y) {
                    transposeSquare16<Bytes>(src.at(x, y), src.step, dst.at(y, x), dst.step);
                });
        if constexpr (Bytes < 8)
            if (width >= columns / 2 && height >= columns / 2)
                return coverByBlocks<columns / 2, columns / 2>(width, height, [&](ptrdiff_t x, ptrdiff_t y) {
                    transposeSquare8<Bytes>(src.at(x, y), src.step, dst.at(y, x), dst.step);
                });
    }
#ifdef __AVX2__
    if constexpr (Bytes == 3)
        if (width >= 6 && height >= 8)
            return coverByBlocks<4, 8>(width, height, [&](ptrdiff_t x, ptrdiff_t y) {
                transposeBlock3(src.at(x, y), src.step, dst.at(y, x), dst.step, x + 6 > width);
            });
#endif
    transposePixels<Bytes>(src, dst, width, height);
}

// The first pixel and the count of pixels of one tile along one side of a region.
struct Span {
    ptrdiff_t first;
    ptrdiff_t count;
};

// The tile at x. A narrow rest becomes as wide as a block where the region allows, by overlapping the tile before.
template <int Bytes>
Span tileAt(ptrdiff_t x, ptrdiff_t size) {
    constexpr ptrdiff_t block = Bytes < vecBytes / 8 ? vecBytes / Bytes : 8;
    const ptrdiff_t rest = size - x;
    if (rest >= tileSide<Bytes>) return {x, tileSide<Bytes>};
    if (rest >= block || size < block) return {x, rest};
    return {size - block, block};
}

template <int Bytes>
void transposeApart(Source src, Destination dst, ptrdiff_t width, ptrdiff_t height) {
    for (ptrdiff_t x = 0; x < width; x += tileSide<Bytes>)
        for (ptrdiff_t y = 0; y < height; y += tileSide<Bytes>) {
            const Span h = tileAt<Bytes>(x, width), v = tileAt<Bytes>(y, height);
            transposeTile<Bytes>({src.at(h.first, v.first), src.step, Bytes}, {dst.at(v.first, h.first), dst.step, Bytes},
                                 h.count, v.count);
        }
}

bool rowsOverlap(ptrdiff_t step, ptrdiff_t rowBytes) { return (step < 0 ? -step : step) < rowBytes; }

// Rows of the source from the top, each from left to right.
template <int Bytes>
void transposeOverlapping(Source src, Destination dst, ptrdiff_t width, ptrdiff_t height) {
    for (ptrdiff_t y = 0; y < height; ++y)
        for (ptrdiff_t x = 0; x < width; ++x) movePixel<Bytes>(src.at(x, y), dst.at(y, x));
}

template <int Bytes>
void transpose(Source src, Destination dst, ptrdiff_t width, ptrdiff_t height) {
    if ((width > 1 && rowsOverlap(dst.step, height * Bytes)) ||
        extentOf(src, width, height).meets(extentOf(dst, height, width)))
        return transposeOverlapping<Bytes>(src, dst, width, height);
    transposeApart<Bytes>(src, dst, width, height);
}

// ---- in place ----------------------------------------------------------------------------------------------------------

template <int Bytes>
void exchangeOverlapping(Destination image, ptrdiff_t side) {
    for (ptrdiff_t y = 0; y < side; ++y)
        for (ptrdiff_t x = y + 1; x < side; ++x) exchangePixels<Bytes>(image.at(x, y), image.at(y, x));
}

// The tile at column x, row y and its counterpart at column y, row x.
template <int Bytes>
void exchangeTiles(Destination image, Span h, Span v) {
    constexpr ptrdiff_t bufferStep = tileSide<Bytes> * Bytes;
    alignas(64) uint8_t buffer[tileSide<Bytes> * bufferStep];
    const Destination tile = {image.at(h.first, v.first), image.step, Bytes};
    const Destination other = {image.at(v.first, h.first), image.step, Bytes};
    const auto read = [](const Destination& o) { return Source{o.base, o.step, Bytes}; };
    transposeTile<Bytes>(read(tile), {buffer, bufferStep, Bytes}, h.count, v.count);
    if (tile.base != other.base) transposeTile<Bytes>(read(other), tile, v.count, h.count);
    for (ptrdiff_t y = 0; y < h.count; ++y)
        copyFew<bufferStep + 1>(other.at(0, y), buffer + y * bufferStep, static_cast<size_t>(v.count * Bytes));
}

template <int Bytes>
void transposeInPlace(Destination image, ptrdiff_t side) {
    if (rowsOverlap(image.step, side * Bytes)) return exchangeOverlapping<Bytes>(image, side);
    const auto span = [side](ptrdiff_t at) {
        return Span{at, at + tileSide<Bytes> <= side ? tileSide<Bytes> : side - at};
    };
    for (ptrdiff_t y = 0; y < side; y += tileSide<Bytes>)
        for (ptrdiff_t x = y; x < side; x += tileSide<Bytes>) exchangeTiles<Bytes>(image, span(x), span(y));
}

// ---- entries -----------------------------------------------------------------------------------------------------------

template <class T, int Elements>
PxlStatus Transpose(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi) {
    if (anyNull(src, dst)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    constexpr int pixel = Elements * sizeof(T);
    transpose<pixel>(operand(reinterpret_cast<const uint8_t*>(src), srcStep, pixel),
                     operand(reinterpret_cast<uint8_t*>(dst), dstStep, pixel), roi.width, roi.height);
    return PXL_OK;
}

template <class T, int Elements>
PxlStatus TransposeInPlace(T* srcDst, int step, ImageSize roi) {
    if (anyNull(srcDst)) return PXL_E_NULL_PTR;
    if (isEmpty(roi) || roi.width != roi.height) return PXL_E_SIZE;
    constexpr int pixel = Elements * sizeof(T);
    transposeInPlace<pixel>(operand(reinterpret_cast<uint8_t*>(srcDst), step, pixel), roi.width);
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/exchange/transpose.inc"
