// What all linear filters share: the checks, the geometry of the kernel, the way through the region, and AC4 stores.
//
// Elements of a row are treated alike whatever the layout: tap i of a kernel row stands `elements` elements beside tap
// i + 1. AC4 rows end with the third element of their last pixel, which keeps every load within what the caller must
// supply; their fourth elements are computed and then replaced by what the destination held.
#pragma once

#include "frame/checks.h"
#include "frame/parallel.h"
#include "frame/vec/convert.h"
#include "frame/vec/mask.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {

template <class T>
PXL_INLINE T* byBytes(T* p, ptrdiff_t bytes) {
    using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
    return reinterpret_cast<T*>(reinterpret_cast<Byte*>(p) + bytes);
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
    // n lanes, fewer than a register, at the start of the row.
    PXL_INLINE void storeFew(Vec<T> v, ptrdiff_t n) const {
        if (keepsAlpha) v = withAlpha(v, LoadN<lanes<T>>(static_cast<const T*>(row), n), 0);
        StoreN(v, row, n);
    }

private:
    PXL_INLINE static Vec<T> withAlpha(Vec<T> v, Vec<T> old, ptrdiff_t x) {
        return IfThenElse(AlphaMask<T>(x & 3), old, v);
    }
};

// ---- filters --------------------------------------------------------------------------------------------------------

// A region and a kernel. The kernel is walked backwards while the neighbourhood of a pixel is walked forwards from its
// corner, row by row.
template <class T, class K>
struct Filtering {
    const T* src;
    ptrdiff_t srcStep;
    T* dst;
    ptrdiff_t dstStep;
    ImageSize roi;
    const K* kernel;
    ImageSize size;
    ImagePoint anchor;
    int elements;
    bool keepsAlpha;

    ptrdiff_t rowElements() const { return ptrdiff_t{roi.width} * elements - keepsAlpha; }
    DestinationRow<T> destinationRow(ptrdiff_t y) const { return {byBytes(dst, y * dstStep), keepsAlpha}; }
    const K* lastCoefficient() const { return kernel + ptrdiff_t{size.width} * size.height - 1; }

    // The bytes from a pixel to the pixel of its neighbourhood in column i, row j, counted from the corner.
    ptrdiff_t offset(ptrdiff_t i, ptrdiff_t j) const {
        const ptrdiff_t x = ptrdiff_t{anchor.x} - size.width + 1 + i;
        const ptrdiff_t y = ptrdiff_t{anchor.y} - size.height + 1 + j;
        return y * srcStep + x * elements * static_cast<ptrdiff_t>(sizeof(T));
    }
};

// The arguments after the region in their order; forms without a divisor or a mode leave them as they are.
struct FilterOptions {
    int divisor = 1;
    int roundMode = PXL_ROUND_NEAR_EVEN;
};

// Steps are compared in 64 bits: a kernel may be wider than any step.
template <class T, class K>
inline PxlStatus checkFilter(const Filtering<T, K>& f, FilterOptions options = {}) {
    if (anyNull(f.src, f.dst, f.kernel)) return PXL_E_NULL_PTR;
    if (isEmpty(f.roi) || isEmpty(f.size)) return PXL_E_SIZE;
    if (options.divisor == 0) return PXL_E_DIVISOR;
    const int64_t pixelBytes = f.elements * sizeof(T), width = f.roi.width;
    if (f.srcStep < (width + f.size.width - 1) * pixelBytes || f.dstStep < width * pixelBytes) return PXL_E_STEP;
    if (options.roundMode < PXL_ROUND_ZERO || options.roundMode > PXL_ROUND_HALF_AWAY) return PXL_E_ROUND_MODE;
    return PXL_OK;
}

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

// ---- regions --------------------------------------------------------------------------------------------------------

// Calls strip(firstRow, rows) for the whole region, in parts that may run side by side.
template <class T, class K, class Strip>
inline void filterRegion(const Filtering<T, K>& f, const Strip& strip) {
    forEachStrip(f.roi, strip);
}

// Calls row(source, destination) for `rows` rows.
template <class T, class K, class Row>
PXL_INLINE void forEachRow(const Filtering<T, K>& f, ptrdiff_t first, ptrdiff_t rows, const Row& row) {
    for (ptrdiff_t y = first; y < first + rows; ++y) row(byBytes(f.src, y * f.srcStep), f.destinationRow(y));
}

} // namespace pxl::PXL_TARGET
