// Rows of results: how they are filled in blocks, and how an alpha element in them stays.
//
// Alpha elements are computed like all others and then replaced by what the destination held.
#pragma once

#include "frame/parallel.h"
#include "frame/vec/mask.h"
#include "frame/vec/partial.h"
#include "window/geometry.h"

namespace pxl::PXL_TARGET::window {

// Calls block(x) for blocks of Count elements that fill a row of n >= Count; the last one ends with the row. The call
// stands once, so that it is inlined.
template <int Count, class Block>
PXL_INLINE void forEachBlockOfRow(ptrdiff_t n, const Block& block) {
    const ptrdiff_t last = n - Count;
    for (ptrdiff_t x = 0;; x = x + Count < last ? x + Count : last) {
        block(x);
        if (x == last) return;
    }
}

// ---- destinations ---------------------------------------------------------------------------------------------------

template <class T>
struct DestinationRow {
    T* row;
    bool keepsAlpha;

    template <int Count>
    PXL_INLINE void store(Vec<T> v, ptrdiff_t x) const {
        if (keepsAlpha) [[unlikely]]
            v = withAlpha(v, LoadFirst<Count>(row + x), x);
        StoreFirst<Count>(v, row + x);
    }
    // n < Count lanes at the start of the row.
    template <int Count>
    PXL_INLINE void storeFew(Vec<T> v, ptrdiff_t n) const {
        if (keepsAlpha) v = withAlpha(v, LoadN<Count>(static_cast<const T*>(row), n), 0);
        StoreN(v, row, n);
    }
    // What begins with element x, the first one of a pixel.
    DestinationRow from(ptrdiff_t x) const { return {row + x, keepsAlpha}; }

private:
    PXL_INLINE static Vec<T> withAlpha(Vec<T> v, Vec<T> old, ptrdiff_t x) {
        return IfThenElse(AlphaMask<T>(x & 3), old, v);
    }
};

// n results that were put together elsewhere.
template <class T>
[[gnu::noinline]] void copyRow(const T* s, DestinationRow<T> d, ptrdiff_t n) {
    constexpr int step = lanes<T>;
    if (n < step) return d.template storeFew<step>(LoadN<step>(s, n), n);
    ptrdiff_t x = 0;
    for (; x + step <= n; x += step) {
        const Vec<T> v = LoadU(s + x);
        StoreU(d.keepsAlpha ? KeepAlpha(LoadU(d.row + x), v) : v, d.row + x);
    }
    if (x < n) d.template store<step>(LoadU(s + n - step), n - step);
}

// An image of results, whatever its layout.
template <class T>
struct Destination {
    T* base;
    ptrdiff_t step; // bytes from row to row
    bool keepsAlpha;

    Destination(T* first, ptrdiff_t rowStep, bool keeps) : base(first), step(rowStep), keepsAlpha(keeps) {}
    template <int Elements, int Channels>
    Destination(const Image<T, Elements, Channels>& image) : Destination(image.base, image.step, Channels < Elements) {}

    DestinationRow<T> row(ptrdiff_t y) const { return {byBytes(base, y * step), keepsAlpha}; }
    // What begins with row y.
    Destination from(ptrdiff_t y) const { return {byBytes(base, y * step), step, keepsAlpha}; }
};

// ---- regions --------------------------------------------------------------------------------------------------------

// Calls row(first sample of the first window, destination) for rows first ... first + rows - 1.
template <class T, class Row>
PXL_INLINE void forEachRow(const Windows<T>& windows, const Destination<T>& dst, ptrdiff_t first, ptrdiff_t rows,
                           const Row& row) {
    for (ptrdiff_t y = first; y < first + rows; ++y) row(windows.row(y), dst.row(y));
}

// The same for the whole region, in strips that may run side by side.
template <class T, class Row>
inline void forEachRowByTeam(const Windows<T>& windows, const Destination<T>& dst, const Row& row) {
    forEachStrip(windows.region, [&](int first, int rows) { forEachRow(windows, dst, first, rows, row); });
}

} // namespace pxl::PXL_TARGET::window
