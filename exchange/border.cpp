// Border extension: a source region copied into a larger destination region, and the margin around it filled.
//
// Destination pixel (X, Y) stands for source pixel (x, y) = (X - left, Y - top). Outside the source it receives the
// constant, the nearest source pixel, or the source pixel at the coordinates modulo the source size.
//
// Rows of disjoint images are built from runs: the source row and the margins beside it; the rows above and below are
// filled, or copied from rows that stand already. Where the destination overlaps the source, or its rows overlap each
// other because the step is small, the plain loop over pixels defines the result. In place the source lies inside the
// destination and is not moved.
#include "frame/checks.h"
#include "frame/vec/memory.h"
#include "frame/vec/pattern.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET::exchange {
namespace {

struct Borders {
    ptrdiff_t top, left;
    ptrdiff_t width, height;       // of the source
    ptrdiff_t outWidth, outHeight; // of the destination

    Borders(ImageSize src, ImageSize dst, int borderTop, int borderLeft)
        : top(borderTop), left(borderLeft), width(src.width), height(src.height), outWidth(dst.width),
          outHeight(dst.height) {}

    ptrdiff_t right() const { return outWidth - left - width; }
    bool isValid() const {
        return width >= 1 && height >= 1 && outWidth >= 1 && outHeight >= 1 && top >= 0 && left >= 0 &&
               outWidth >= left + width && outHeight >= top + height;
    }
    bool isInside(ptrdiff_t x, ptrdiff_t y) const { return x >= 0 && x < width && y >= 0 && y < height; }
};

// Pixels of any size, in bytes.
using Source = Image<const uint8_t, anyElements>;
using Destination = Image<uint8_t, anyElements>;

// What differs with the layout of pixels: the bytes of a pixel that are processed, and how a run of pixels is copied
// that does not overlap its copy.
using CopyRun = void(const uint8_t* s, uint8_t* d, ptrdiff_t bytes);
struct Layout {
    int processed;
    CopyRun* copyRun;
};

// Some rows of the source, and where the first pixel of each goes in the destination: in place they are the same. Handed on
// in memory: the loops over rows need the registers.
struct Rows {
    Source src;
    Destination dst;
    ptrdiff_t count;
};

// Makes rows: copies the source pixels and fills the margins left and right of them.
using MakeRows = void(const Rows& rows, const Borders& b, const void* pattern);

// ---- runs of pixels -------------------------------------------------------------------------------------------------

void copyRun(const uint8_t* s, uint8_t* d, ptrdiff_t bytes) { copyRow(s, d, bytes); }

// AC4 pixels. The last one is copied alone, since its source need not have a fourth element; those before it in vectors
// and then in pieces, the largest first.
template <int Bytes>
void copyColours(const uint8_t* s, uint8_t* d, ptrdiff_t bytes) {
    const Vec<uint8_t> alpha = alphaPattern<Bytes>().v[0];
    const ptrdiff_t last = bytes - Bytes;
    ptrdiff_t o = 0;
    for (; o + vecBytes <= last; o += vecBytes) StoreU(IfThenElse(alpha, LoadU(d + o), LoadU(s + o)), d + o);
    const auto copyPiece = [&](auto size) __attribute__((always_inline)) {
        if (!(last & size)) return;
        StoreBlock<size>(IfThenElse(headOf(alpha), LoadBlock<size>(d + o), LoadBlock<size>(s + o)), d + o);
        o += size;
    };
    if constexpr (vecBytes > 16) copyPiece(std::integral_constant<int, 16>{});
    if constexpr (Bytes <= 8) copyPiece(std::integral_constant<int, 8>{});
    if constexpr (Bytes <= 4) copyPiece(std::integral_constant<int, 4>{});
    StoreBlock<colourBytes<Bytes>>(LoadBlock<colourBytes<Bytes>>(s + last), d + last);
}

template <int Bytes, int Processed>
PXL_INLINE void fillRun(uint8_t* d, ptrdiff_t bytes, const Pattern<Bytes>& pixel) {
    if constexpr (Bytes == Processed)
        fillPixels(d, bytes, pixel);
    else
        fillPixels(d, bytes, pixel, alphaPattern<Bytes>());
}

template <int Bytes, int Processed>
PXL_INLINE void copySource(const uint8_t* s, uint8_t* d, ptrdiff_t bytes) {
    if (s == d) return;
    if constexpr (Bytes == Processed)
        copyRow(s, d, bytes);
    else
        copyColours<Bytes>(s, d, bytes);
}

// Copies the source pixels of each row and calls fill(margin, its bytes, the source pixel next to it) for both margins,
// in a loop so that there is one copy of it.
template <int Bytes, int Processed, class Fill>
PXL_INLINE void makeRows(const Rows& rows, const Borders& b, Fill&& fill) {
    const ptrdiff_t left = b.left * Bytes, width = b.width * Bytes, right = b.right() * Bytes;
    for (ptrdiff_t y = 0; y < rows.count; ++y) {
        const uint8_t* const s = rows.src.at(0, y);
        uint8_t* const d = rows.dst.at(0, y);
        copySource<Bytes, Processed>(s, d, width);
        for (int side = 0; side < 2; ++side)
            fill(side ? d + width : d - left, side ? right : left, side ? s + width - Bytes : s);
    }
}

template <int Bytes, int Processed>
void makeConstRows(const Rows& rows, const Borders& b, const void* value) {
    const Pattern<Bytes> pattern = loadPattern<Bytes>(value);
    const auto fill = [&](uint8_t * d, ptrdiff_t bytes, const uint8_t*) __attribute__((always_inline)) {
        fillRun<Bytes, Processed>(d, bytes, pattern);
    };
    makeRows<Bytes, Processed>(rows, b, fill);
}

template <int Bytes, int Processed>
void makeReplicateRows(const Rows& rows, const Borders& b, const void*) {
    const auto fill = [](uint8_t * d, ptrdiff_t bytes, const uint8_t* pixel) __attribute__((always_inline)) {
        fillRun<Bytes, Processed>(d, bytes, pixelPattern<Bytes, Processed>(pixel));
    };
    makeRows<Bytes, Processed>(rows, b, fill);
}

// The margins are copied in whole periods, each time twice as many, until they are full.
template <int Bytes>
void makeWrapRows(const Rows& rows, const Borders& b, const void*) {
    const ptrdiff_t width = b.width * Bytes;
    for (ptrdiff_t y = 0; y < rows.count; ++y) {
        uint8_t* begin = rows.dst.at(0, y);
        uint8_t* end = begin + width;
        copySource<Bytes, Bytes>(rows.src.at(0, y), begin, width);
        for (ptrdiff_t rest = b.right() * Bytes, period = width, n; rest > 0; rest -= n, period *= 2, end += n) {
            n = rest < period ? rest : period;
            copyRun(end - period, end, n);
        }
        for (ptrdiff_t rest = b.left * Bytes, period = width, n; rest > 0; rest -= n, period *= 2) {
            n = rest < period ? rest : period;
            begin -= n;
            copyRun(begin + period, begin, n);
        }
    }
}

// ---- the plain loop -------------------------------------------------------------------------------------------------

// Every pixel is read from where at(x, y) says; null leaves the destination pixel as it is.
template <class At>
void extendPlainly(const Destination& dst, const Borders& b, int processed, At&& at) {
    for (ptrdiff_t y = 0; y < b.outHeight; ++y)
        for (ptrdiff_t x = 0; x < b.outWidth; ++x)
            if (const uint8_t* s = at(x - b.left, y - b.top))
                copyFew<17>(dst.at(x, y), s, static_cast<size_t>(processed));
}

bool rowsApart(const Destination& dst, const Borders& b) {
    return b.outHeight == 1 || dst.step >= b.outWidth * dst.pixelBytes;
}

bool allApart(const Source& src, const Destination& dst, const Borders& b) {
    return rowsApart(dst, b) && !extentOf(src, b.width, b.height).meets(extentOf(dst, b.outWidth, b.outHeight));
}

// ---- images ---------------------------------------------------------------------------------------------------------

void extendByConstant(const Source& src, const Destination& dst, const Borders& b, const Layout& layout,
                      MakeRows* makeRows, const void* pattern, const uint8_t* value) {
    if (!allApart(src, dst, b))
        return extendPlainly(dst, b, layout.processed,
                             [&](ptrdiff_t x, ptrdiff_t y) { return b.isInside(x, y) ? src.at(x, y) : value; });
    Borders none = b; // of rows that are all margin
    none.left = none.width = 0;
    const auto fillRows = [&](ptrdiff_t y, ptrdiff_t end) {
        const Destination rows = startingAt(dst, 0, y);
        makeRows({rows, rows, end - y}, none, pattern);
    };
    fillRows(0, b.top);
    makeRows({src, startingAt(dst, b.left, b.top), b.height}, b, pattern);
    fillRows(b.top + b.height, b.outHeight);
}

// The row or column of the source that a coordinate stands for.
using Map = ptrdiff_t(ptrdiff_t x, ptrdiff_t size);

ptrdiff_t nearest(ptrdiff_t x, ptrdiff_t size) { return x < 0 ? 0 : x < size ? x : size - 1; }
ptrdiff_t periodic(ptrdiff_t x, ptrdiff_t size) { return x % size + (x % size < 0 ? size : 0); }

// The rows above and below the source, copied from the others.
void copyMarginRows(const Destination& dst, const Borders& b, const Layout& layout, Map* map) {
    const auto copyMargin = [&](ptrdiff_t y) {
        layout.copyRun(dst.at(0, b.top + map(y - b.top, b.height)), dst.at(0, y), b.outWidth * dst.pixelBytes);
    };
    for (ptrdiff_t y = 0; y < b.top; ++y) copyMargin(y);
    for (ptrdiff_t y = b.top + b.height; y < b.outHeight; ++y) copyMargin(y);
}

void extend(const Source& src, const Destination& dst, const Borders& b, const Layout& layout, MakeRows* makeRows,
            Map* map) {
    if (!allApart(src, dst, b))
        return extendPlainly(dst, b, layout.processed,
                             [&](ptrdiff_t x, ptrdiff_t y) { return src.at(map(x, b.width), map(y, b.height)); });
    makeRows({src, startingAt(dst, b.left, b.top), b.height}, b, nullptr);
    copyMarginRows(dst, b, layout, map);
}

void extendInPlace(const Destination& inside, const Borders& b, const Layout& layout, MakeRows* makeRows, Map* map) {
    const Destination dst = startingAt(inside, -b.left, -b.top);
    if (!rowsApart(dst, b))
        return extendPlainly(dst, b, layout.processed, [&](ptrdiff_t x, ptrdiff_t y) {
            return b.isInside(x, y) ? nullptr : inside.at(map(x, b.width), map(y, b.height));
        });
    makeRows({inside, inside, b.height}, b, nullptr);
    copyMarginRows(dst, b, layout, map);
}

// ---- families -------------------------------------------------------------------------------------------------------

template <int Bytes, int Processed>
Layout layoutOf(Image<uint8_t, Bytes, Processed>) {
    if constexpr (Bytes == Processed)
        return {Processed, copyRun};
    else
        return {Processed, copyColours<Bytes>};
}

Check fits(const Borders& b) { return refuse(!b.isValid(), PXL_E_SIZE); }

template <class T, int Elements, int Channels>
PxlStatus CopyConstBorder(Image<const T, Elements, Channels> src, ImageSize srcSize, Image<T, Elements, Channels> dst,
                          ImageSize dstSize, int borderTop, int borderLeft, Values<T, Channels> value) {
    const Borders b(srcSize, dstSize, borderTop, borderLeft);
    if (const PxlStatus status = check(null(src, dst), steps(src, dst), fits(b), null(value))) return status;
    constexpr int bytes = Elements * sizeof(T), processed = Channels * sizeof(T);
    uint8_t pixel[bytes] = {}; // a copy, since the destination may overlap the values
    std::memcpy(pixel, value.base, processed);
    const Pattern<bytes> pattern = patternOf<bytes>(pixel);
    extendByConstant(bytesOf(src), bytesOf(dst), b, layoutOf(bytesOf(dst)), makeConstRows<bytes, processed>, &pattern,
                     pixel);
    return PXL_OK;
}

template <class T, int Elements, int Channels>
PxlStatus CopyReplicateBorder(Image<const T, Elements, Channels> src, ImageSize srcSize,
                              Image<T, Elements, Channels> dst, ImageSize dstSize, int borderTop, int borderLeft) {
    const Borders b(srcSize, dstSize, borderTop, borderLeft);
    if (const PxlStatus status = check(null(src, dst), steps(src, dst), fits(b))) return status;
    extend(bytesOf(src), bytesOf(dst), b, layoutOf(bytesOf(dst)),
           makeReplicateRows<Elements * sizeof(T), Channels * sizeof(T)>, nearest);
    return PXL_OK;
}

template <class T, int Elements, int Channels>
PxlStatus ReplicateBorderInPlace(Image<T, Elements, Channels> inside, ImageSize srcSize, ImageSize dstSize,
                                 int borderTop, int borderLeft) {
    const Borders b(srcSize, dstSize, borderTop, borderLeft);
    if (const PxlStatus status = check(null(inside), steps(inside), fits(b))) return status;
    extendInPlace(bytesOf(inside), b, layoutOf(bytesOf(inside)),
                  makeReplicateRows<Elements * sizeof(T), Channels * sizeof(T)>, nearest);
    return PXL_OK;
}

template <class T>
PxlStatus CopyWrapBorder(Image<const T> src, ImageSize srcSize, Image<T> dst, ImageSize dstSize, int borderTop,
                         int borderLeft) {
    const Borders b(srcSize, dstSize, borderTop, borderLeft);
    if (const PxlStatus status = check(null(src, dst), steps(src, dst), fits(b))) return status;
    extend(bytesOf(src), bytesOf(dst), b, layoutOf(bytesOf(dst)), makeWrapRows<sizeof(T)>, periodic);
    return PXL_OK;
}

template <class T>
PxlStatus WrapBorderInPlace(Image<T> inside, ImageSize srcSize, ImageSize dstSize, int borderTop, int borderLeft) {
    const Borders b(srcSize, dstSize, borderTop, borderLeft);
    if (const PxlStatus status = check(null(inside), steps(inside), fits(b))) return status;
    extendInPlace(bytesOf(inside), b, layoutOf(bytesOf(inside)), makeWrapRows<sizeof(T)>, periodic);
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET::exchange

#include "members/exchange/border.inc"
