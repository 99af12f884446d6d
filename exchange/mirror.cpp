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

namespace pxl::PXL_TARGET {
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

// The last pixel is moved by itself.
template <int Bytes, int Moved>
PXL_INLINE void copyRowKeepingAlpha(const uint8_t* s, uint8_t* d, ptrdiff_t bytes) {
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
using MoveRows = void (*)(const uint8_t* s, ptrdiff_t srcStep, uint8_t* d, ptrdiff_t dstStep, ptrdiff_t bytes,
                          ptrdiff_t rows);

template <void (*Row)(const uint8_t*, uint8_t*, ptrdiff_t)>
void eachRow(const uint8_t* s, ptrdiff_t srcStep, uint8_t* d, ptrdiff_t dstStep, ptrdiff_t bytes, ptrdiff_t rows) {
    for (ptrdiff_t y = 0; y < rows; ++y, s += srcStep, d += dstStep) Row(s, d, bytes);
}

template <int Bytes, int Moved>
MoveRows moveRows(bool reversed) {
    if constexpr (Moved < Bytes)
        return reversed ? eachRow<reverseRowKeepingAlpha<Bytes, Moved>> : eachRow<copyRowKeepingAlpha<Bytes, Moved>>;
    else if constexpr (Bytes % 3 == 0)
        return reversed ? eachRow<reverseRowOfThrees<Bytes>> : eachRow<copyRow>;
    else
        return reversed ? eachRow<reverseRow<Bytes>> : eachRow<copyRow>;
}

bool meet(const uint8_t* a, const uint8_t* b, ptrdiff_t bytes) {
    const auto extent = [bytes](const uint8_t* p) {
        return Extent{reinterpret_cast<const char*>(p), reinterpret_cast<const char*>(p + bytes)};
    };
    return extent(a).meets(extent(b));
}

template <int Bytes, int Moved>
void moveOverlapping(const uint8_t* s, uint8_t* d, ptrdiff_t width, bool reversed) {
    for (ptrdiff_t x = 0; x < width; ++x) movePixel<Moved>(s + (reversed ? width - 1 - x : x) * Bytes, d + x * Bytes);
}

template <int Bytes, int Moved>
void mirror(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep, ImageSize roi, PxlAxis flip) {
    const bool reversed = flip != PXL_AXIS_HORIZONTAL;
    const MoveRows move = moveRows<Bytes, Moved>(reversed);
    const ptrdiff_t bytes = static_cast<ptrdiff_t>(roi.width) * Bytes;
    if (flip != PXL_AXIS_VERTICAL) {
        dst += (roi.height - 1) * dstStep;
        dstStep = -dstStep;
    }
    const Operand<const uint8_t> read = {src, srcStep, Bytes};
    const Operand<uint8_t> written = {dst, dstStep, Bytes};
    if (!extentOf(read, roi.width, roi.height).meets(extentOf(written, roi.width, roi.height)))
        return move(src, srcStep, dst, dstStep, bytes, roi.height);
    for (ptrdiff_t y = 0; y < roi.height; ++y, src += srcStep, dst += dstStep)
        if (meet(src, dst, bytes))
            moveOverlapping<Bytes, Moved>(src, dst, roi.width, reversed);
        else
            move(src, 0, dst, 0, bytes, 1);
}

// Exchanges two disjoint rows, or halves of one. Reversed, the beginning of one meets the end of the other.
void exchange(uint8_t* a, uint8_t* b, ptrdiff_t bytes, MoveRows move, bool reversed) {
    constexpr ptrdiff_t chunk = 480; // whole pixels of every size
    alignas(vecBytes) uint8_t held[chunk];
    for (ptrdiff_t n; bytes > 0; bytes -= n, a += n) {
        n = bytes < chunk ? bytes : chunk;
        uint8_t* other = reversed ? b + bytes - n : b;
        copyRow(a, held, n);
        move(other, 0, a, 0, n, 1);
        move(held, 0, other, 0, n, 1);
        if (!reversed) b += n;
    }
}

template <int Bytes, int Moved>
void exchangeOverlapping(uint8_t* a, uint8_t* b, ptrdiff_t width, bool reversed) {
    for (ptrdiff_t x = 0; x < width; ++x)
        exchangePixels<Moved>(a + x * Bytes, b + (reversed ? width - 1 - x : x) * Bytes);
}

template <int Bytes, int Moved>
void mirrorInPlace(uint8_t* image, ptrdiff_t step, ImageSize roi, PxlAxis flip) {
    const bool reversed = flip != PXL_AXIS_HORIZONTAL;
    const MoveRows move = moveRows<Bytes, Moved>(reversed);
    const ptrdiff_t bytes = static_cast<ptrdiff_t>(roi.width) * Bytes;
    const ptrdiff_t half = roi.width / 2 * static_cast<ptrdiff_t>(Bytes);
    const auto reverseHalves = [=](uint8_t* row) { exchange(row, row + bytes - half, half, move, true); };
    if (flip == PXL_AXIS_VERTICAL) {
        for (ptrdiff_t y = 0; y < roi.height; ++y, image += step) reverseHalves(image);
        return;
    }
    uint8_t* other = image + (roi.height - 1) * step;
    for (ptrdiff_t y = 0; y < roi.height / 2; ++y, image += step, other -= step)
        if (meet(image, other, bytes))
            exchangeOverlapping<Bytes, Moved>(image, other, roi.width, reversed);
        else
            exchange(image, other, bytes, move, reversed);
    if (reversed && roi.height % 2) reverseHalves(image);
}

// ---- entries --------------------------------------------------------------------------------------------------------

bool isAxis(PxlAxis flip) { return flip == PXL_AXIS_HORIZONTAL || flip == PXL_AXIS_VERTICAL || flip == PXL_AXIS_BOTH; }

template <class T, int Elements, int Channels>
PxlStatus Mirror(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, PxlAxis flip) {
    if (anyNull(src, dst)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    if (!isAxis(flip)) return PXL_E_MIRROR_AXIS;
    mirror<Elements * sizeof(T), Channels * sizeof(T)>(reinterpret_cast<const uint8_t*>(src), srcStep,
                                                       reinterpret_cast<uint8_t*>(dst), dstStep, roi, flip);
    return PXL_OK;
}

template <class T, int Elements, int Channels>
PxlStatus MirrorInPlace(T* srcDst, int step, ImageSize roi, PxlAxis flip) {
    if (anyNull(srcDst)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    if (!isAxis(flip)) return PXL_E_MIRROR_AXIS;
    mirrorInPlace<Elements * sizeof(T), Channels * sizeof(T)>(reinterpret_cast<uint8_t*>(srcDst), step, roi, flip);
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/exchange/mirror.inc"
