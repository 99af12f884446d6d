// Transpose: destination pixel (j, i) is source pixel (i, j).
//
// A region is cut into tiles whose rows are one or two cache lines long, so that the lines of source and destination
// are used up while they are at hand. Tiles are made of blocks that are transposed in registers. Where a tile does not
// divide into blocks, the last block overlaps the one before: its pixels are just moved twice, which the disjoint
// operands allow.
//
// In place, a tile and its counterpart change places through a buffer. Operands that overlap, and rows that overlap
// each other, are moved pixel by pixel in reading order.
#include "exchange/transpose_blocks.h"
#include "frame/checks.h"
#include "frame/pixel.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET::exchange {
namespace {

template <int Bytes>
using Source = Image<const uint8_t, Bytes>;
template <int Bytes>
using Destination = Image<uint8_t, Bytes>;

// ---- tiles ----------------------------------------------------------------------------------------------------------

// Pixel by pixel, each column of the source from the top. Not inlined, so that the loop has the registers to itself.
template <int Bytes>
__attribute__((noinline)) void transposePixels(Source<Bytes> src, Destination<Bytes> dst, ptrdiff_t width,
                                               ptrdiff_t height) {
    for (ptrdiff_t x = 0; x < width; ++x) {
        const uint8_t* s = src.at(x, 0);
        uint8_t* d = dst.at(0, x);
        for (ptrdiff_t y = 0; y < height; ++y, s += src.step, d += Bytes) movePixel<Bytes>(s, d);
    }
}

// Calls block(s, d, x, y) for blocks of Columns x Rows that cover the tile, which is at least that large: s is where a
// block begins in the source, d in the destination.
template <int Columns, int Rows, int Bytes, class Block>
PXL_INLINE void coverByBlocks(Source<Bytes> src, Destination<Bytes> dst, ptrdiff_t width, ptrdiff_t height,
                              Block&& block) {
    const auto blockAt = [&](ptrdiff_t x, ptrdiff_t y) { block(src.at(x, y), dst.at(y, x), x, y); };
    for (ptrdiff_t x = 0; x < width; x += Columns) {
        const ptrdiff_t left = x + Columns <= width ? x : width - Columns;
        for (ptrdiff_t y = 0; y < height; y += Rows) blockAt(left, y + Rows <= height ? y : height - Rows);
    }
}

// Pixels of 1, 2, 4 and 8 bytes, by the largest block that the tile has room for.
template <int Bytes>
void transposeByBlocks(Source<Bytes> src, Destination<Bytes> dst, ptrdiff_t width, ptrdiff_t height) {
    constexpr int columns = 16 / Bytes, rows = vecBytes / Bytes;
    constexpr int pair = Bytes < 4 ? 1 : 2; // two of the smaller blocks side by side
    if (width >= pair * columns && height >= rows)
        return coverByBlocks<pair * columns, rows>(
            src, dst, width, height, [=](const uint8_t* s, uint8_t* d, ptrdiff_t, ptrdiff_t) {
                transposeBlock<Bytes>(s, src.step, d, dst.step);
                if constexpr (pair == 2) transposeBlock<Bytes>(s + 16, src.step, d + columns * dst.step, dst.step);
            });
    if (width >= columns && height >= columns)
        return coverByBlocks<columns, columns>(src, dst, width, height,
                                               [=](const uint8_t* s, uint8_t* d, ptrdiff_t, ptrdiff_t) {
                                                   transposeSquare16<Bytes>(s, src.step, d, dst.step);
                                               });
    if constexpr (Bytes < 8)
        if (width >= columns / 2 && height >= columns / 2)
            return coverByBlocks<columns / 2, columns / 2>(src, dst, width, height,
                                                           [=](const uint8_t* s, uint8_t* d, ptrdiff_t, ptrdiff_t) {
                                                               transposeSquare8<Bytes>(s, src.step, d, dst.step);
                                                           });
    transposePixels<Bytes>(src, dst, width, height);
}

template <int Bytes>
void transposeByBlocksOfThrees(Source<Bytes> src, Destination<Bytes> dst, ptrdiff_t width, ptrdiff_t height) {
    using Block = TransposeOfThrees<Bytes>;
    if (width * Bytes < 16 || height < Block::rows) return transposePixels<Bytes>(src, dst, width, height);
    coverByBlocks<Block::columns, Block::rows>(
        src, dst, width, height, [=](const uint8_t* s, uint8_t* d, ptrdiff_t x, ptrdiff_t y) {
            transposeBlockOfThrees<Bytes>(s, src.step, d, dst.step, (width - x) * Bytes < 16,
                                          (height - y) * Bytes < vecBytes);
        });
}

template <int Bytes>
PXL_INLINE void transposeTile(Source<Bytes> src, Destination<Bytes> dst, ptrdiff_t width, ptrdiff_t height) {
    if constexpr (Bytes <= 8 && 8 % Bytes == 0)
        transposeByBlocks<Bytes>(src, dst, width, height);
    else if constexpr (hasByteShuffle && (Bytes == 3 || Bytes == 6))
        transposeByBlocksOfThrees<Bytes>(src, dst, width, height);
    else
        transposePixels<Bytes>(src, dst, width, height);
}

// ---- regions --------------------------------------------------------------------------------------------------------

// Within the caches tiles are as large as suits the loops. Beyond, they are two cache lines wide in the source and one
// in the destination (half as many again where pixels have three elements), and the lines of the next one are fetched
// meanwhile.
constexpr ptrdiff_t cachedBytes = 1 << 20;

template <int Bytes>
constexpr ptrdiff_t cachedHeight() {
    if (Bytes > 8) return 8;
    return hasByteShuffle || Bytes % 3 ? 64 : 32; // 32 where pixels are moved one by one
}

template <int Bytes>
inline constexpr ptrdiff_t linePixels = Bytes > 8 ? 8 : (Bytes % 3 ? 64 : 96) / Bytes;

void fetchLines(const uint8_t* p, ptrdiff_t step, ptrdiff_t bytes, ptrdiff_t rows) {
    for (ptrdiff_t y = 0; y < rows; ++y, p += step)
        for (ptrdiff_t x = 0; x < bytes; x += 64) Prefetch(p + x);
}

// The first pixel and the count of pixels of one tile along one side of a region.
struct Span {
    ptrdiff_t first;
    ptrdiff_t count;
};

// The tile at x. A narrow rest becomes as wide as a block where the region allows, by overlapping the tile before.
template <int Bytes>
PXL_INLINE Span tileAt(ptrdiff_t x, ptrdiff_t size, ptrdiff_t tile) {
    constexpr ptrdiff_t block = Bytes < vecBytes / 8 ? vecBytes / Bytes : 8;
    const ptrdiff_t rest = size - x;
    if (rest >= tile) return {x, tile};
    if (rest >= block || size < block) return {x, rest};
    return {size - block, block};
}

template <int Bytes>
void transposeApart(Source<Bytes> src, Destination<Bytes> dst, ptrdiff_t width, ptrdiff_t height) {
    const bool cached = width * height * Bytes <= cachedBytes;
    const ptrdiff_t tileWidth = cached ? 128 : 2 * linePixels<Bytes>;
    const ptrdiff_t tileHeight = cached ? cachedHeight<Bytes>() : linePixels<Bytes>;
    for (ptrdiff_t x = 0; x < width; x += tileWidth)
        for (ptrdiff_t y = 0; y < height; y += tileHeight) {
            const Span h = tileAt<Bytes>(x, width, tileWidth), v = tileAt<Bytes>(y, height, tileHeight);
            const ptrdiff_t next = y + tileHeight;
            if (!cached && next + tileHeight <= height) {
                fetchLines(src.at(h.first, next), src.step, h.count * Bytes, tileHeight);
                fetchLines(dst.at(next, h.first), dst.step, tileHeight * Bytes, h.count);
            }
            transposeTile<Bytes>(startingAt(src, h.first, v.first), startingAt(dst, v.first, h.first), h.count,
                                 v.count);
        }
}

bool rowsOverlap(ptrdiff_t step, ptrdiff_t rowBytes) { return (step < 0 ? -step : step) < rowBytes; }

// Rows of the source from the top, each from left to right.
template <int Bytes>
void transposeEachPixel(Source<Bytes> src, Destination<Bytes> dst, ptrdiff_t width, ptrdiff_t height) {
    for (ptrdiff_t y = 0; y < height; ++y)
        for (ptrdiff_t x = 0; x < width; ++x) movePixel<Bytes>(src.at(x, y), dst.at(y, x));
}

template <int Bytes>
void transposeRegion(Source<Bytes> src, Destination<Bytes> dst, ImageSize roi) {
    const ptrdiff_t width = roi.width, height = roi.height;
    if ((width > 1 && rowsOverlap(dst.step, height * Bytes)) ||
        extentOf(src, width, height).meets(extentOf(dst, height, width)))
        transposeEachPixel(src, dst, width, height);
    else
        transposeApart(src, dst, width, height);
}

// ---- in place -------------------------------------------------------------------------------------------------------

template <int Bytes>
void exchangeEachPixel(Destination<Bytes> image, ptrdiff_t side) {
    for (ptrdiff_t y = 0; y < side; ++y)
        for (ptrdiff_t x = y + 1; x < side; ++x) exchangePixels<Bytes>(image.at(x, y), image.at(y, x));
}

template <int Bytes>
inline constexpr ptrdiff_t exchangedSide = Bytes <= 2   ? 64
                                           : Bytes <= 8 ? 32
                                                        : 16;

// A tile and the one on the other side of the diagonal; they may be the same.
template <int Bytes>
void exchangeTiles(Destination<Bytes> tile, Destination<Bytes> other, ptrdiff_t width, ptrdiff_t height) {
    constexpr ptrdiff_t bufferStep = exchangedSide<Bytes> * Bytes;
    alignas(64) uint8_t buffer[exchangedSide<Bytes> * bufferStep];
    transposeTile<Bytes>({tile.base, tile.step}, {buffer, bufferStep}, width, height);
    if (tile.base != other.base) transposeTile<Bytes>({other.base, other.step}, tile, height, width);
    for (ptrdiff_t y = 0; y < width; ++y)
        copyFew<bufferStep + 1>(other.at(0, y), buffer + y * bufferStep, static_cast<size_t>(height * Bytes));
}

template <int Bytes>
void transposeSquare(Destination<Bytes> image, ptrdiff_t side) {
    if (rowsOverlap(image.step, side * Bytes)) return exchangeEachPixel(image, side);
    constexpr ptrdiff_t tile = exchangedSide<Bytes>;
    const auto count = [side](ptrdiff_t first) { return first + tile <= side ? tile : side - first; };
    for (ptrdiff_t y = 0; y < side; y += tile)
        for (ptrdiff_t x = y; x < side; x += tile)
            exchangeTiles(startingAt(image, x, y), startingAt(image, y, x), count(x), count(y));
}

// ---- entries --------------------------------------------------------------------------------------------------------

template <class T, int Elements>
PxlStatus Transpose(Image<const T, Elements> src, Image<T, Elements> dst, ImageSize roi) {
    if (const PxlStatus status = check(null(src, dst), size(roi))) return status;
    transposeRegion(bytesOf(src), bytesOf(dst), roi);
    return PXL_OK;
}

template <class T, int Elements>
PxlStatus TransposeInPlace(Image<T, Elements> image, ImageSize roi) {
    if (const PxlStatus status = check(null(image), size(roi), refuse(roi.width != roi.height, PXL_E_SIZE)))
        return status;
    transposeSquare(bytesOf(image), roi.width);
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET::exchange

#include "members/exchange/transpose.inc"
