// Mirror: rows in reverse order (axis 0), columns in reverse order (1) or both (2).
//
// Pixels move whole, so the work is done on pixels of `Bytes` bytes, whatever their elements are. Of an AC4 pixel only
// the first `Moved` bytes change places: its alpha is written back with the value it had, and the alpha of the last
// source pixel of a row, which may lie outside the caller's memory, is not read.
//
// The in-place form exchanges two rows, or the two halves of a row (exchange/exchange_rows.h). Rows that overlap in any other
// way are moved pixel by pixel, source rows in ascending order.
#include "exchange/exchange_rows.h"
#include "exchange/reverse.h"
#include "frame/checks.h"
#include "frame/pixel.h"
#include "frame/vec/mask.h"
#include "frame/vec/memory.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET::exchange {
namespace {

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

template <int Bytes, int Moved>
void exchangeOverlappingRows(uint8_t* a, uint8_t* b, ptrdiff_t width, bool reversed) {
    for (ptrdiff_t x = 0; x < width; ++x)
        exchangePixels<Moved>(a + x * Bytes, b + (reversed ? width - 1 - x : x) * Bytes);
}

template <int Bytes, int Moved>
void mirrorPixelsInPlace(Image<uint8_t, Bytes, Moved> image, ImageSize roi, PxlAxis flip) {
    const bool reversed = flip != PXL_AXIS_HORIZONTAL;
    const auto exchange = [=](RowPairs pairs) { exchangeRows<Bytes, Moved>(pairs, reversed); };
    const ptrdiff_t bytes = roi.width * image.pixelBytes;
    const ptrdiff_t half = roi.width / 2 * image.pixelBytes;
    const auto reverseHalves = [=](ptrdiff_t y, ptrdiff_t rows) {
        uint8_t* const row = image.at(0, y);
        if (half > 0) exchange({{row, image.step}, {row + bytes - half, image.step}, half, rows});
    };
    const ptrdiff_t pairs = roi.height / 2;
    const Image<uint8_t> upper = elementsOf(image);
    const Image<uint8_t> lower = {image.at(0, roi.height - 1), -image.step};
    if (flip == PXL_AXIS_VERTICAL) return reverseHalves(0, roi.height);
    if (image.step >= bytes || image.step <= -bytes) {
        exchange({upper, lower, bytes, pairs});
    } else {
        for (ptrdiff_t y = 0; y < pairs; ++y) {
            if (meet(upper.at(0, y), lower.at(0, y), bytes))
                exchangeOverlappingRows<Bytes, Moved>(upper.at(0, y), lower.at(0, y), roi.width, reversed);
            else
                exchange({rowOf(upper, y), rowOf(lower, y), bytes, 1});
        }
    }
    if (reversed && roi.height % 2) reverseHalves(pairs, 1);
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
