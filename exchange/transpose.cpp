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

namespace pxl::PXL_TARGET {
namespace {

// Images are handed on as pointer and step, not as one struct: that would go through memory at every call.
template <int Bytes, class Byte>
PXL_INLINE Byte* pixelAt(Byte* image, ptrdiff_t step, ptrdiff_t x, ptrdiff_t y) {
    return image + y * step + x * Bytes;
}

// ---- tiles ----------------------------------------------------------------------------------------------------------

// Pixel by pixel, each column of the source from the top. Not inlined, so that the loop has the registers to itself.
template <int Bytes>
__attribute__((noinline)) void transposePixels(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep,
                                               ptrdiff_t width, ptrdiff_t height) {
    for (ptrdiff_t x = 0; x < width; ++x) {
        const uint8_t* s = src + x * Bytes;
        uint8_t* d = dst + x * dstStep;
        for (ptrdiff_t y = 0; y < height; ++y, s += srcStep, d += Bytes) movePixel<Bytes>(s, d);
    }
}

// Calls block(s, d, x, y) for blocks of Columns x Rows that cover the tile, which is at least that large: s is where a
// block begins in the source, d in the destination.
template <int Bytes, int Columns, int Rows, class Block>
PXL_INLINE void coverByBlocks(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, ptrdiff_t width,
                              ptrdiff_t height, Block&& block) {
    const auto blockAt = [&](ptrdiff_t x, ptrdiff_t y) {
        block(pixelAt<Bytes>(src, srcStep, x, y), pixelAt<Bytes>(dst, dstStep, y, x), x, y);
    };
    for (ptrdiff_t x = 0; x < width; x += Columns) {
        const ptrdiff_t left = x + Columns <= width ? x : width - Columns;
        for (ptrdiff_t y = 0; y < height; y += Rows) blockAt(left, y + Rows <= height ? y : height - Rows);
    }
}

// Pixels of 1, 2, 4 and 8 bytes, by the largest block that the tile has room for.
template <int Bytes>
void transposeByBlocks(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, ptrdiff_t width,
                       ptrdiff_t height) {
    constexpr int columns = 16 / Bytes, rows = vecBytes / Bytes;
    constexpr int pair = Bytes < 4 ? 1 : 2; // two of the smaller blocks side by side
    if (width >= pair * columns && height >= rows)
        return coverByBlocks<Bytes, pair * columns, rows>(
            src, srcStep, dst, dstStep, width, height, [=](const uint8_t* s, uint8_t* d, ptrdiff_t, ptrdiff_t) {
                transposeBlock<Bytes>(s, srcStep, d, dstStep);
                if constexpr (pair == 2) transposeBlock<Bytes>(s + 16, srcStep, d + columns * dstStep, dstStep);
            });
    if (width >= columns && height >= columns)
        return coverByBlocks<Bytes, columns, columns>(src, srcStep, dst, dstStep, width, height,
                                                      [=](const uint8_t* s, uint8_t* d, ptrdiff_t, ptrdiff_t) {
                                                          transposeSquare16<Bytes>(s, srcStep, d, dstStep);
                                                      });
    if constexpr (Bytes < 8)
        if (width >= columns / 2 && height >= columns / 2)
            return coverByBlocks<Bytes, columns / 2, columns / 2>(
                src, srcStep, dst, dstStep, width, height, [=](const uint8_t* s, uint8_t* d, ptrdiff_t, ptrdiff_t) {
                    transposeSquare8<Bytes>(s, srcStep, d, dstStep);
                });
    transposePixels<Bytes>(src, srcStep, dst, dstStep, width, height);
}

template <int Bytes>
void transposeByBlocksOfThrees(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, ptrdiff_t width,
                               ptrdiff_t height) {
    using Block = TransposeOfThrees<Bytes>;
    if (width * Bytes < 16 || height < Block::rows)
        return transposePixels<Bytes>(src, srcStep, dst, dstStep, width, height);
    coverByBlocks<Bytes, Block::columns, Block::rows>(
        src, srcStep, dst, dstStep, width, height, [=](const uint8_t* s, uint8_t* d, ptrdiff_t x, ptrdiff_t y) {
            transposeBlockOfThrees<Bytes>(s, srcStep, d, dstStep, (width - x) * Bytes < 16,
                                          (height - y) * Bytes < vecBytes);
        });
}

template <int Bytes>
PXL_INLINE void transposeTile(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, ptrdiff_t width,
                              ptrdiff_t height) {
    if constexpr (Bytes <= 8 && 8 % Bytes == 0)
        transposeByBlocks<Bytes>(src, srcStep, dst, dstStep, width, height);
    else if constexpr (hasByteShuffle && (Bytes == 3 || Bytes == 6))
        transposeByBlocksOfThrees<Bytes>(src, srcStep, dst, dstStep, width, height);
    else
        transposePixels<Bytes>(src, srcStep, dst, dstStep, width, height);
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
void transposeApart(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, ptrdiff_t width,
                    ptrdiff_t height) {
    const bool cached = width * height * Bytes <= cachedBytes;
    const ptrdiff_t tileWidth = cached ? 128 : 2 * linePixels<Bytes>;
    const ptrdiff_t tileHeight = cached ? cachedHeight<Bytes>() : linePixels<Bytes>;
    const auto source = [=](ptrdiff_t x, ptrdiff_t y) { return pixelAt<Bytes>(src, srcStep, x, y); };
    const auto destination = [=](ptrdiff_t x, ptrdiff_t y) { return pixelAt<Bytes>(dst, dstStep, y, x); };
    for (ptrdiff_t x = 0; x < width; x += tileWidth)
        for (ptrdiff_t y = 0; y < height; y += tileHeight) {
            const Span h = tileAt<Bytes>(x, width, tileWidth), v = tileAt<Bytes>(y, height, tileHeight);
            const ptrdiff_t next = y + tileHeight;
            if (!cached && next + tileHeight <= height) {
                fetchLines(source(h.first, next), srcStep, h.count * Bytes, tileHeight);
                fetchLines(destination(h.first, next), dstStep, tileHeight * Bytes, h.count);
            }
            transposeTile<Bytes>(source(h.first, v.first), srcStep, destination(h.first, v.first), dstStep, h.count,
                                 v.count);
        }
}

bool rowsOverlap(ptrdiff_t step, ptrdiff_t rowBytes) { return (step < 0 ? -step : step) < rowBytes; }

// Rows of the source from the top, each from left to right.
template <int Bytes>
void transposeOverlapping(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, ptrdiff_t width,
                          ptrdiff_t height) {
    for (ptrdiff_t y = 0; y < height; ++y)
        for (ptrdiff_t x = 0; x < width; ++x)
            movePixel<Bytes>(pixelAt<Bytes>(src, srcStep, x, y), pixelAt<Bytes>(dst, dstStep, y, x));
}

template <int Bytes>
void transpose(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, ptrdiff_t width,
               ptrdiff_t height) {
    const Operand<const uint8_t> read = {src, srcStep, Bytes};
    const Operand<uint8_t> written = {dst, dstStep, Bytes};
    if ((width > 1 && rowsOverlap(dstStep, height * Bytes)) ||
        extentOf(read, width, height).meets(extentOf(written, height, width)))
        transposeOverlapping<Bytes>(src, srcStep, dst, dstStep, width, height);
    else
        transposeApart<Bytes>(src, srcStep, dst, dstStep, width, height);
}

// ---- in place -------------------------------------------------------------------------------------------------------

template <int Bytes>
void exchangeOverlapping(uint8_t* image, ptrdiff_t step, ptrdiff_t side) {
    for (ptrdiff_t y = 0; y < side; ++y)
        for (ptrdiff_t x = y + 1; x < side; ++x)
            exchangePixels<Bytes>(pixelAt<Bytes>(image, step, x, y), pixelAt<Bytes>(image, step, y, x));
}

template <int Bytes>
inline constexpr ptrdiff_t exchangedSide = Bytes <= 2   ? 64
                                           : Bytes <= 8 ? 32
                                                        : 16;

// A tile and the one on the other side of the diagonal; they may be the same.
template <int Bytes>
void exchangeTiles(uint8_t* tile, uint8_t* other, ptrdiff_t step, ptrdiff_t width, ptrdiff_t height) {
    constexpr ptrdiff_t bufferStep = exchangedSide<Bytes> * Bytes;
    alignas(64) uint8_t buffer[exchangedSide<Bytes> * bufferStep];
    transposeTile<Bytes>(tile, step, buffer, bufferStep, width, height);
    if (tile != other) transposeTile<Bytes>(other, step, tile, step, height, width);
    for (ptrdiff_t y = 0; y < width; ++y)
        copyFew<bufferStep + 1>(other + y * step, buffer + y * bufferStep, static_cast<size_t>(height * Bytes));
}

template <int Bytes>
void transposeInPlace(uint8_t* image, ptrdiff_t step, ptrdiff_t side) {
    if (rowsOverlap(step, side * Bytes)) return exchangeOverlapping<Bytes>(image, step, side);
    constexpr ptrdiff_t tile = exchangedSide<Bytes>;
    const auto count = [side](ptrdiff_t first) { return first + tile <= side ? tile : side - first; };
    for (ptrdiff_t y = 0; y < side; y += tile)
        for (ptrdiff_t x = y; x < side; x += tile)
            exchangeTiles<Bytes>(pixelAt<Bytes>(image, step, x, y), pixelAt<Bytes>(image, step, y, x), step, count(x),
                                 count(y));
}

// ---- entries --------------------------------------------------------------------------------------------------------

template <class T, int Elements>
PxlStatus Transpose(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi) {
    if (anyNull(src, dst)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    transpose<Elements * sizeof(T)>(reinterpret_cast<const uint8_t*>(src), srcStep, reinterpret_cast<uint8_t*>(dst),
                                    dstStep, roi.width, roi.height);
    return PXL_OK;
}

template <class T, int Elements>
PxlStatus TransposeInPlace(T* srcDst, int step, ImageSize roi) {
    if (anyNull(srcDst)) return PXL_E_NULL_PTR;
    if (isEmpty(roi) || roi.width != roi.height) return PXL_E_SIZE;
    transposeInPlace<Elements * sizeof(T)>(reinterpret_cast<uint8_t*>(srcDst), step, roi.width);
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/exchange/transpose.inc"
