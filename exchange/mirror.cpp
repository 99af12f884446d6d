// Mirror: rows in reverse order (axis 0), columns in reverse order (1) or both (2).
//
// Pixels move whole, so the work is done on pixels of `Bytes` bytes, whatever their elements are. Of an AC4 pixel only
// the first `Moved` bytes change places: its alpha is written back with the value it had, and the alpha of the last
// source pixel of a row, which may lie outside the caller's memory, is not read.
//
// The in-place form exchanges two disjoint rows, or the two halves of a row, through a small buffer, so both forms
// share the row moves. Rows that overlap in any other way are moved pixel by pixel, source rows in ascending order.
#include "exchange/reverse.h"
#include "frame/checks.h"
#include "frame/pixel.h"
#include "frame/vec/mask.h"
#include "frame/vec/memory.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET::exchange {
namespace {

// What is stored at d where pixels of AC4 move there.
template <int Bytes>
PXL_INLINE Vec<uint8_t> keepingAlpha(Vec<uint8_t> v, const uint8_t* d) {
    return IfThenElse(LoadU(alphaBytes<Bytes / 4>.bytes), LoadU(d), v);
}
template <int Bytes>
PXL_INLINE Block keepingAlpha(Block v, const uint8_t* d) {
    return IfThenElse(LoadBlock<16>(alphaBytes<Bytes / 4>.bytes), loadWord<Block>(d), v);
}

// Fills a run of at least one register with make(x), the register at x. The last one may overlap the one before: the
// rows are disjoint, so that its bytes come out the same. It is made first, since it could not load what has just been
// stored without waiting for it.
template <class Make>
PXL_INLINE void byRegisters(uint8_t* d, ptrdiff_t bytes, Make&& make) {
    const Vec<uint8_t> last = make(bytes - vecBytes);
    ptrdiff_t x = 0;
    for (; x + 4 * vecBytes <= bytes; x += 4 * vecBytes) {
        StoreU(make(x), d + x);
        StoreU(make(x + vecBytes), d + x + vecBytes);
        StoreU(make(x + 2 * vecBytes), d + x + 2 * vecBytes);
        StoreU(make(x + 3 * vecBytes), d + x + 3 * vecBytes);
    }
    for (; x + vecBytes < bytes; x += vecBytes) StoreU(make(x), d + x);
    if (x < bytes) StoreU(last, d + bytes - vecBytes);
}

// The same for one to two words.
template <class Make>
PXL_INLINE void byEnds(uint8_t* d, ptrdiff_t bytes, Make&& make) {
    const auto first = make(0);
    const auto last = make(bytes - static_cast<ptrdiff_t>(sizeof first));
    storeWord(first, d);
    storeWord(last, d + bytes - sizeof last);
}

// ---- rows as they are -----------------------------------------------------------------------------------------------

PXL_INLINE void moveShortRow(const uint8_t* s, uint8_t* d, ptrdiff_t bytes) {
    if (bytes < vecBytes)
        copyFew<vecBytes>(d, s, static_cast<size_t>(bytes));
    else
        byRegisters(d, bytes, [=](ptrdiff_t x) { return LoadU(s + x); });
}
// In line up to longer rows than copyRow: here the calls took a third of the time.
PXL_INLINE void moveRow(const uint8_t* s, uint8_t* d, ptrdiff_t bytes) {
    if (bytes <= 4096)
        moveShortRow(s, d, bytes);
    else
        std::memcpy(d, s, static_cast<size_t>(bytes));
}

// The last pixel is moved by itself.
template <int Bytes, int Moved>
PXL_INLINE void moveRowKeepingAlpha(const uint8_t* s, uint8_t* d, ptrdiff_t bytes) {
    const ptrdiff_t last = bytes - Bytes;
    if (last >= vecBytes)
        byRegisters(d, last, [=](ptrdiff_t x) { return keepingAlpha<Bytes>(LoadU(s + x), d + x); });
    else if (last >= 16)
        byEnds(d, last, [=](ptrdiff_t x) { return keepingAlpha<Bytes>(loadWord<Block>(s + x), d + x); });
    else
        for (ptrdiff_t x = 0; x < last; x += Bytes) movePixel<Moved>(s + x, d + x);
    movePixel<Moved>(s + last, d + last);
}

// ---- rows with their pixels in reverse order ------------------------------------------------------------------------

template <int Bytes>
PXL_INLINE void reverseRow(const uint8_t* s, uint8_t* d, ptrdiff_t bytes) {
    const uint8_t* end = s + bytes;
    if (bytes >= vecBytes)
        return byRegisters(d, bytes, [=](ptrdiff_t x) { return LoadReversed<Bytes>(end - vecBytes - x); });
    if constexpr (vecBytes > 16)
        if (bytes >= 16)
            return byEnds(d, bytes, [=](ptrdiff_t x) { return ReverseBlock<Bytes>(loadWord<Block>(end - 16 - x)); });
    if constexpr (Bytes < 8)
        if (bytes >= 8) return byEnds(d, bytes, [=](ptrdiff_t x) { return loadReversed8<Bytes>(end - 8 - x); });
    for (ptrdiff_t x = 0; x < bytes; x += Bytes) movePixel<Bytes>(end - Bytes - x, d + x);
}

// The first pixel is moved by itself, since behind it in the source there may be nothing to load.
template <int Bytes, int Moved>
PXL_INLINE void reverseRowKeepingAlpha(const uint8_t* s, uint8_t* d, ptrdiff_t bytes) {
    const uint8_t* end = s + bytes - Bytes;
    movePixel<Moved>(end, d);
    d += Bytes;
    bytes -= Bytes;
    if (bytes >= vecBytes)
        return byRegisters(
            d, bytes, [=](ptrdiff_t x) { return keepingAlpha<Bytes>(LoadReversed<Bytes>(end - vecBytes - x), d + x); });
    if (bytes >= 16)
        return byEnds(d, bytes, [=](ptrdiff_t x) {
            return keepingAlpha<Bytes>(ReverseBlock<Bytes>(loadWord<Block>(end - 16 - x)), d + x);
        });
    for (ptrdiff_t x = 0; x < bytes; x += Bytes) movePixel<Moved>(end - Bytes - x, d + x);
}

// Pixels of 3, 6 and 12 bytes.
template <int Bytes>
PXL_INLINE void reverseRowOfThrees(const uint8_t* s, uint8_t* d, ptrdiff_t bytes) {
    const uint8_t* end = s + bytes;
    ptrdiff_t x = 0;
    if constexpr (hasByteShuffle) {
        if (bytes >= 96) {
            for (; x + 96 <= bytes; x += 96) storeReversed96<Bytes>(end - x - 96, d + x);
            if (x < bytes) storeReversed96<Bytes>(s, d + bytes - 96);
            return;
        }
        if constexpr (Bytes < 12)
            for (; x + 16 <= bytes; x += 16 / Bytes * Bytes) storeReversed16<Bytes>(end - x - 16, d + x);
    }
    constexpr ptrdiff_t word = sizeof(typename PixelWord<Bytes>::type);
    for (; x + word <= bytes; x += Bytes) storePixelWord<Bytes>(end - x - word, d + x);
    for (; x < bytes; x += Bytes) movePixel<Bytes>(end - x - Bytes, d + x);
}

// ---- regions --------------------------------------------------------------------------------------------------------

// Moves rows of so many bytes alike; no destination row meets a source row.
using MoveRows = void(Image<const uint8_t> src, Image<uint8_t> dst, ptrdiff_t bytes, ptrdiff_t rows);

template <void (*Row)(const uint8_t*, uint8_t*, ptrdiff_t)>
void eachRow(Image<const uint8_t> src, Image<uint8_t> dst, ptrdiff_t bytes, ptrdiff_t rows) {
    for (ptrdiff_t y = 0; y < rows; ++y, src.base += src.step, dst.base += dst.step) Row(src.base, dst.base, bytes);
}

template <int Bytes, int Moved>
MoveRows* moveRows(bool reversed) {
    if constexpr (Moved < Bytes)
        return reversed ? eachRow<reverseRowKeepingAlpha<Bytes, Moved>> : eachRow<moveRowKeepingAlpha<Bytes, Moved>>;
    else if constexpr (Bytes % 3 == 0)
        return reversed ? eachRow<reverseRowOfThrees<Bytes>> : eachRow<moveRow>;
    else
        return reversed ? eachRow<reverseRow<Bytes>> : eachRow<moveRow>;
}

bool meet(const uint8_t* a, const uint8_t* b, ptrdiff_t bytes) { return a < b + bytes && b < a + bytes; }

template <int Bytes, int Moved>
void moveOverlappingRow(const uint8_t* s, uint8_t* d, ptrdiff_t width, bool reversed) {
    for (ptrdiff_t x = 0; x < width; ++x) movePixel<Moved>(s + (reversed ? width - 1 - x : x) * Bytes, d + x * Bytes);
}

template <int Bytes, int Moved>
void mirrorPixels(Image<const uint8_t, Bytes, Moved> src, Image<uint8_t, Bytes, Moved> dst, ImageSize roi,
                  PxlAxis flip) {
    const bool reversed = flip != PXL_AXIS_HORIZONTAL;
    MoveRows* const move = moveRows<Bytes, Moved>(reversed);
    const ptrdiff_t bytes = roi.width * dst.pixelBytes;
    if (flip != PXL_AXIS_VERTICAL) dst = {dst.at(0, roi.height - 1), -dst.step};
    if (!extentOf(src, roi.width, roi.height).meets(extentOf(dst, roi.width, roi.height)))
        return move(elementsOf(src), elementsOf(dst), bytes, roi.height);
    for (ptrdiff_t y = 0; y < roi.height; ++y) {
        const uint8_t* const s = src.at(0, y);
        uint8_t* const d = dst.at(0, y);
        if (meet(s, d, bytes))
            moveOverlappingRow<Bytes, Moved>(s, d, roi.width, reversed);
        else
            move({s, 0}, {d, 0}, bytes, 1);
    }
}

// Exchanges two disjoint rows, or halves of one. Reversed, the beginning of one meets the end of the other.
void exchangeRows(uint8_t* a, uint8_t* b, ptrdiff_t bytes, MoveRows* move, bool reversed) {
    constexpr ptrdiff_t chunk = 480; // whole pixels of every size
    alignas(vecBytes) uint8_t held[chunk];
    for (ptrdiff_t n; bytes > 0; bytes -= n, a += n) {
        n = bytes < chunk ? bytes : chunk;
        uint8_t* other = reversed ? b + bytes - n : b;
        moveShortRow(a, held, n);
        move({other, 0}, {a, 0}, n, 1);
        move({held, 0}, {other, 0}, n, 1);
        if (!reversed) b += n;
    }
}

template <int Bytes, int Moved>
void exchangeOverlappingRows(uint8_t* a, uint8_t* b, ptrdiff_t width, bool reversed) {
    for (ptrdiff_t x = 0; x < width; ++x)
        exchangePixels<Moved>(a + x * Bytes, b + (reversed ? width - 1 - x : x) * Bytes);
}

template <int Bytes, int Moved>
void mirrorPixelsInPlace(Image<uint8_t, Bytes, Moved> image, ImageSize roi, PxlAxis flip) {
    const bool reversed = flip != PXL_AXIS_HORIZONTAL;
    MoveRows* const move = moveRows<Bytes, Moved>(reversed);
    const ptrdiff_t bytes = roi.width * image.pixelBytes;
    const ptrdiff_t half = roi.width / 2 * image.pixelBytes;
    const auto reverseHalves = [=](ptrdiff_t y) {
        uint8_t* const row = image.at(0, y);
        exchangeRows(row, row + bytes - half, half, move, true);
    };
    if (flip == PXL_AXIS_VERTICAL) {
        for (ptrdiff_t y = 0; y < roi.height; ++y) reverseHalves(y);
        return;
    }
    for (ptrdiff_t y = 0; y < roi.height / 2; ++y) {
        uint8_t* const row = image.at(0, y);
        uint8_t* const other = image.at(0, roi.height - 1 - y);
        if (meet(row, other, bytes))
            exchangeOverlappingRows<Bytes, Moved>(row, other, roi.width, reversed);
        else
            exchangeRows(row, other, bytes, move, reversed);
    }
    if (reversed && roi.height % 2) reverseHalves(roi.height / 2);
}

// ---- entries --------------------------------------------------------------------------------------------------------

Check axis(PxlAxis flip) {
    return refuse(flip != PXL_AXIS_HORIZONTAL && flip != PXL_AXIS_VERTICAL && flip != PXL_AXIS_BOTH, PXL_E_MIRROR_AXIS);
}

template <class T, int Elements, int Channels>
PxlStatus Mirror(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst, ImageSize roi,
                 PxlAxis flip) {
    if (const PxlStatus status = check(null(src, dst), size(roi), axis(flip))) return status;
    mirrorPixels(bytesOf(src), bytesOf(dst), roi, flip);
    return PXL_OK;
}

template <class T, int Elements, int Channels>
PxlStatus MirrorInPlace(Image<T, Elements, Channels> image, ImageSize roi, PxlAxis flip) {
    if (const PxlStatus status = check(null(image), size(roi), axis(flip))) return status;
    mirrorPixelsInPlace(bytesOf(image), roi, flip);
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET::exchange

#include "members/exchange/mirror.inc"
