// Border extension: a source region copied into a larger destination region, and the margin around it filled.
//
// Destination pixel (X, Y) stands for source pixel (x, y) = (X - left, Y - top). Outside the source it receives the constant,
// the nearest source pixel, or the source pixel at the coordinates modulo the source size.
//
// Rows of disjoint images are built from runs: the left margin, the source row, the right margin; the rows above and below are
// copies of rows that stand already. Where the destination overlaps the source, or its rows overlap each other because the
// step is small, the plain loop over pixels defines the result. In place the source lies inside the destination and is not
// moved.
#include "frame/checks.h"
#include "frame/vec.h"
#include "frame/vec_pattern.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {
namespace {

// Pixels of Bytes bytes, of which the first Moved are processed: all but the fourth element of AC4.
template <int Bytes, int Moved>
struct Pixel {
    static constexpr int bytes = Bytes;
    static constexpr int moved = Moved;
    static constexpr bool whole = Bytes == Moved;
};
template <class T, int Elements, int Channels>
using PixelOf = Pixel<Elements * sizeof(T), Channels * sizeof(T)>;

struct Borders {
    ptrdiff_t top, left;
    ptrdiff_t width, height;       // of the source
    ptrdiff_t outWidth, outHeight; // of the destination

    Borders(ImageSize src, ImageSize dst, int borderTop, int borderLeft)
        : top(borderTop), left(borderLeft), width(src.width), height(src.height), outWidth(dst.width),
          outHeight(dst.height) {}

    ptrdiff_t right() const { return outWidth - left - width; }
    bool valid() const {
        return width >= 1 && height >= 1 && outWidth >= 1 && outHeight >= 1 && top >= 0 && left >= 0 &&
               outWidth >= left + width && outHeight >= top + height;
    }
};

using Source = Operand<const uint8_t>;
using Destination = Operand<uint8_t>;

template <class P, class T>
Source sourceOf(const T* src, int step) {
    return operand(reinterpret_cast<const uint8_t*>(src), step, P::bytes);
}
template <class P, class T>
Destination destinationOf(T* dst, int step) {
    return operand(reinterpret_cast<uint8_t*>(dst), step, P::bytes);
}

// ---- runs of pixels --------------------------------------------------------------------------------------------------------

template <class P>
PXL_INLINE void copyPixel(const uint8_t* s, uint8_t* d) {
    uint8_t pixel[P::moved];
    std::memcpy(pixel, s, sizeof pixel);
    std::memcpy(d, pixel, sizeof pixel);
}

// The pixel at s repeated, with zeros for a fourth element that is not processed (nor read).
template <class P>
PXL_INLINE Pattern<P::bytes> pixelPattern(const uint8_t* s) {
    if constexpr (P::whole) return patternOf<P::bytes>(s);
    uint8_t pixel[P::bytes] = {};
    copyPixel<P>(s, pixel);
    return patternOf<P::bytes>(pixel);
}

template <class P>
PXL_INLINE void fillRun(uint8_t* d, ptrdiff_t n, const Pattern<P::bytes>& pixel) {
    if constexpr (P::whole) fillPixels(d, n * P::bytes, pixel);
    else fillPixels(d, n * P::bytes, pixel, maskPattern<P::bytes, P::moved, P::bytes>());
}

// AC4 pixels. The last one is copied alone, since its source need not have a fourth element.
template <class P>
void copyColours(const uint8_t* s, uint8_t* d, ptrdiff_t n) {
    const Vec<uint8_t> alpha = maskPattern<P::bytes, P::moved, P::bytes>().v[0];
    const ptrdiff_t last = (n - 1) * P::bytes;
    ptrdiff_t o = 0;
    for (; o + vecBytes <= last; o += vecBytes) put(d + o, AndNot(alpha, LoadU(s + o)), alpha);
    for (; o <= last; o += P::bytes) copyPixel<P>(s + o, d + o);
}

// Copies n pixels, at least one, that do not overlap their copy.
template <class P>
PXL_INLINE void copyRun(const uint8_t* s, uint8_t* d, ptrdiff_t n) {
    const size_t bytes = static_cast<size_t>(n * P::bytes);
    if constexpr (!P::whole) copyColours<P>(s, d, n);
    else if (bytes < 64) copyFew<64>(d, s, bytes);
    else std::memcpy(d, s, bytes);
}

// ---- the plain loop --------------------------------------------------------------------------------------------------------

// Every pixel is read from where at(x, y) says; null leaves the destination pixel as it is.
template <class P, class At>
void extendPlainly(const Destination& dst, const Borders& b, At&& at) {
    for (ptrdiff_t y = 0; y < b.outHeight; ++y)
        for (ptrdiff_t x = 0; x < b.outWidth; ++x)
            if (const uint8_t* s = at(x - b.left, y - b.top)) copyPixel<P>(s, dst.at(x, y));
}

inline bool isInside(const Borders& b, ptrdiff_t x, ptrdiff_t y) {
    return x >= 0 && x < b.width && y >= 0 && y < b.height;
}

inline bool rowsApart(const Destination& dst, const Borders& b) {
    return b.outHeight == 1 || dst.step >= b.outWidth * dst.pixelBytes;
}

inline bool allApart(const Source& src, const Destination& dst, const Borders& b) {
    return rowsApart(dst, b) && !extentOf(src, b.width, b.height).meets(extentOf(dst, b.outWidth, b.outHeight));
}

// ---- constant --------------------------------------------------------------------------------------------------------------

template <class P>
void extendByConstant(const Source& src, const Destination& dst, const Borders& b, const uint8_t* value) {
    const Pattern<P::bytes> pattern = pixelPattern<P>(value);
    for (ptrdiff_t y = 0; y < b.outHeight; ++y) {
        const bool margin = y < b.top || y >= b.top + b.height;
        fillRun<P>(dst.at(0, y), margin ? b.outWidth : b.left, pattern);
        if (margin) continue;
        copyRun<P>(src.at(0, y - b.top), dst.at(b.left, y), b.width);
        fillRun<P>(dst.at(b.left + b.width, y), b.right(), pattern);
    }
}

template <class T, int Elements, int Channels>
PxlStatus CopyConstBorder(const T* src, int srcStep, ImageSize srcSize, T* dst, int dstStep, ImageSize dstSize,
                          int borderTop, int borderLeft, const T* value) {
    using P = PixelOf<T, Elements, Channels>;
    const Borders b(srcSize, dstSize, borderTop, borderLeft);
    if (anyNull(src, dst)) return PXL_E_NULL_PTR;
    if (anyStepBelow1(srcStep, dstStep)) return PXL_E_STEP;
    if (!b.valid()) return PXL_E_SIZE;
    if (anyNull(value)) return PXL_E_NULL_PTR;
    const Source from = sourceOf<P>(src, srcStep);
    const Destination to = destinationOf<P>(dst, dstStep);
    uint8_t pixel[P::bytes] = {};
    copyPixel<P>(reinterpret_cast<const uint8_t*>(value), pixel);
    if (allApart(from, to, b)) extendByConstant<P>(from, to, b, pixel);
    else
        extendPlainly<P>(to, b, [&](ptrdiff_t x, ptrdiff_t y) { return isInside(b, x, y) ? from.at(x, y) : pixel; });
    return PXL_OK;
}

template <class T, int Elements, int Channels>
PxlStatus CopyConstBorder(const T* src, int srcStep, ImageSize srcSize, T* dst, int dstStep, ImageSize dstSize,
                          int borderTop, int borderLeft, T value) {
    return CopyConstBorder<T, Elements, Channels>(src, srcStep, srcSize, dst, dstStep, dstSize, borderTop, borderLeft,
                                                  &value);
}

// ---- replicate and wrap ----------------------------------------------------------------------------------------------------
// Each kind maps a coordinate to one of the source, and fills the margins of a row whose source pixels stand at `row`.

template <class P>
struct Replicate {
    static ptrdiff_t map(ptrdiff_t x, ptrdiff_t size) { return x < 0 ? 0 : x < size ? x : size - 1; }

    PXL_INLINE static void fillMargins(uint8_t* row, const Borders& b) {
        uint8_t* const end = row + b.width * P::bytes;
        if (b.left > 0) fillRun<P>(row - b.left * P::bytes, b.left, pixelPattern<P>(row));
        if (b.right() > 0) fillRun<P>(end, b.right(), pixelPattern<P>(end - P::bytes));
    }
};

template <class P>
struct Wrap {
    static ptrdiff_t map(ptrdiff_t x, ptrdiff_t size) { return x % size + (x % size < 0 ? size : 0); }

    // Copies whole periods, twice as many each time, up to the end of the margin.
    static void fillMargins(uint8_t* row, const Borders& b) {
        uint8_t* end = row + b.width * P::bytes;
        for (ptrdiff_t rest = b.right(), period = b.width, n; rest > 0; rest -= n, period *= 2) {
            n = rest < period ? rest : period;
            copyRun<P>(end - period * P::bytes, end, n);
            end += n * P::bytes;
        }
        for (ptrdiff_t rest = b.left, period = b.width, n; rest > 0; rest -= n, period *= 2) {
            n = rest < period ? rest : period;
            row -= n * P::bytes;
            copyRun<P>(row + period * P::bytes, row, n);
        }
    }
};

// The rows of the margin, copied from the others.
template <class P, class Kind>
void copyMarginRows(const Destination& dst, const Borders& b) {
    for (ptrdiff_t y = 0; y < b.outHeight; ++y) {
        if (y == b.top) y += b.height;
        if (y < b.outHeight) copyRun<P>(dst.at(0, b.top + Kind::map(y - b.top, b.height)), dst.at(0, y), b.outWidth);
    }
}

template <class P, class Kind>
void extend(const Source& src, const Destination& dst, const Borders& b) {
    if (!allApart(src, dst, b))
        return extendPlainly<P>(dst, b, [&](ptrdiff_t x, ptrdiff_t y) {
            return src.at(Kind::map(x, b.width), Kind::map(y, b.height));
        });
    for (ptrdiff_t y = 0; y < b.height; ++y) {
        uint8_t* const row = dst.at(b.left, b.top + y);
        copyRun<P>(src.at(0, y), row, b.width);
        Kind::fillMargins(row, b);
    }
    copyMarginRows<P, Kind>(dst, b);
}

template <class P, class Kind>
void extendInPlace(const Destination& inside, const Borders& b) {
    const Destination dst = {inside.at(-b.left, -b.top), static_cast<int>(inside.step), inside.pixelBytes};
    if (!rowsApart(dst, b))
        return extendPlainly<P>(dst, b, [&](ptrdiff_t x, ptrdiff_t y) -> const uint8_t* {
            return isInside(b, x, y) ? nullptr : inside.at(Kind::map(x, b.width), Kind::map(y, b.height));
        });
    if (b.outWidth > b.width)
        for (ptrdiff_t y = 0; y < b.height; ++y) Kind::fillMargins(inside.at(0, y), b);
    copyMarginRows<P, Kind>(dst, b);
}

template <class P, class Kind, class T>
PxlStatus copyBorder(const T* src, int srcStep, ImageSize srcSize, T* dst, int dstStep, ImageSize dstSize,
                     int borderTop, int borderLeft) {
    const Borders b(srcSize, dstSize, borderTop, borderLeft);
    if (anyNull(src, dst)) return PXL_E_NULL_PTR;
    if (anyStepBelow1(srcStep, dstStep)) return PXL_E_STEP;
    if (!b.valid()) return PXL_E_SIZE;
    extend<P, Kind>(sourceOf<P>(src, srcStep), destinationOf<P>(dst, dstStep), b);
    return PXL_OK;
}

template <class P, class Kind, class T>
PxlStatus borderInPlace(T* src, int step, ImageSize srcSize, ImageSize dstSize, int borderTop, int borderLeft) {
    const Borders b(srcSize, dstSize, borderTop, borderLeft);
    if (anyNull(src)) return PXL_E_NULL_PTR;
    if (anyStepBelow1(step)) return PXL_E_STEP;
    if (!b.valid()) return PXL_E_SIZE;
    extendInPlace<P, Kind>(destinationOf<P>(src, step), b);
    return PXL_OK;
}

template <class T, int Elements, int Channels>
PxlStatus CopyReplicateBorder(const T* src, int srcStep, ImageSize srcSize, T* dst, int dstStep, ImageSize dstSize,
                              int borderTop, int borderLeft) {
    using P = PixelOf<T, Elements, Channels>;
    return copyBorder<P, Replicate<P>>(src, srcStep, srcSize, dst, dstStep, dstSize, borderTop, borderLeft);
}

template <class T, int Elements, int Channels>
PxlStatus ReplicateBorderInPlace(T* src, int step, ImageSize srcSize, ImageSize dstSize, int borderTop,
                                 int borderLeft) {
    using P = PixelOf<T, Elements, Channels>;
    return borderInPlace<P, Replicate<P>>(src, step, srcSize, dstSize, borderTop, borderLeft);
}

template <class T>
PxlStatus CopyWrapBorder(const T* src, int srcStep, ImageSize srcSize, T* dst, int dstStep, ImageSize dstSize,
                         int borderTop, int borderLeft) {
    using P = PixelOf<T, 1, 1>;
    return copyBorder<P, Wrap<P>>(src, srcStep, srcSize, dst, dstStep, dstSize, borderTop, borderLeft);
}

template <class T>
PxlStatus WrapBorderInPlace(T* src, int step, ImageSize srcSize, ImageSize dstSize, int borderTop, int borderLeft) {
    using P = PixelOf<T, 1, 1>;
    return borderInPlace<P, Wrap<P>>(src, step, srcSize, dstSize, borderTop, borderLeft);
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/exchange/border.inc"
