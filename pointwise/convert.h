// The engine of conversions: one source, and results of another element size.
//
//     return convert(operation, src, dst, roi);
//
// An operation converts one vector:
//     using Source, Result   the element types in memory, of different sizes
//     using Lane             Result, or a signed type of twice or four times its size, narrowed with saturation
//     Vec<Lane> operator()(Vec<Source> v) const   of the first lanes<Lane> lanes of v
// and may finish the narrowed results:
//     using Narrow                                what lanes are narrowed to, of the size of Result
//     Vec<Result> finish(Vec<Narrow> v) const
//
// Since the sizes differ, a source and a destination that share memory are never in place, and the walker hands over
// either disjoint rows or single pixels. So a row may be finished with a block that overlaps the one before it.
#pragma once

#include "frame/streaming.h"
#include "frame/vec/convert.h"
#include "frame/vec/mask.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET::pointwise {

template <class Operation>
inline constexpr int unitOf = lanes<typename Operation::Lane>;

// Stores Count elements; in pixels with alpha, the fourth of each keeps its value.
template <int Count, bool Alpha, class D>
PXL_INLINE void storeConverted(Vec<D> v, D* d) {
    if constexpr (Alpha) v = KeepAlpha(LoadFirst<Count>(d), v);
    StoreFirst<Count>(v, d);
}

// One, two or four vectors of lanes as results.
template <class Operation, class... V>
PXL_INLINE auto narrowed(const Operation& operation, V... v) {
    const auto to = [&]<class D>(D) __attribute__((always_inline)) {
        if constexpr (sizeof...(V) == 1) return DemoteTo<D>(v...);
        if constexpr (sizeof...(V) == 2) return OrderedDemote2To<D>(v...);
        if constexpr (sizeof...(V) == 4) return OrderedDemote4To<D>(v...);
    };
    if constexpr (requires { typename Operation::Narrow; })
        return operation.finish(to(typename Operation::Narrow()));
    else
        return to(typename Operation::Result());
}

template <class Operation, class S>
PXL_INLINE auto convertUnit(const Operation& operation, const S* s) {
    return operation(LoadFirst<unitOf<Operation>>(s));
}

// One register of results, from one, two or four of lanes.
template <class Operation, class S>
PXL_INLINE auto convertRegister(const Operation& operation, const S* s) {
    using D = typename Operation::Result;
    constexpr int unit = unitOf<Operation>;
    constexpr int parts = lanes<D> / unit;
    const auto part = [&](int i) { return convertUnit(operation, s + i * unit); };
    if constexpr (parts == 1) return narrowed(operation, part(0));
    if constexpr (parts == 2) return narrowed(operation, part(0), part(1));
    if constexpr (parts == 4) return narrowed(operation, part(0), part(1), part(2), part(3));
}

template <bool Alpha, class Operation, class S, class D>
PXL_INLINE void convertOneUnit(const Operation& operation, const S* s, D* d) {
    storeConverted<unitOf<Operation>, Alpha>(narrowed(operation, convertUnit(operation, s)), d);
}

template <bool Alpha, class Operation, class S, class D>
PXL_INLINE void convertFourUnits(const Operation& operation, const S* s, D* d) {
#pragma GCC unroll 4
    for (int x = 0; x < 4 * unitOf<Operation>; x += lanes<D>)
        storeConverted<lanes<D>, Alpha>(convertRegister(operation, s + x), d + x);
}

// All whole units of n elements, with the lines of the results fetched ahead or not; returns where it stopped.
template <bool Alpha, bool Fetched, class Operation, class S, class D>
PXL_INLINE ptrdiff_t convertUnits(const Operation& operation, ptrdiff_t n, const S* s, D* d) {
    constexpr int unit = unitOf<Operation>;
    constexpr int fourBytes = 4 * unit * static_cast<int>(sizeof(D));
    constexpr int ahead = 4 * lineBytes / static_cast<int>(sizeof(D));
    ptrdiff_t x = 0;
    if constexpr (Fetched)
        for (; x + 4 * unit + ahead <= n; x += 4 * unit) {
            fetchForStores<fourBytes>(d + x + ahead);
            convertFourUnits<Alpha>(operation, s + x, d + x);
        }
    for (; x + 4 * unit <= n; x += 4 * unit) convertFourUnits<Alpha>(operation, s + x, d + x);
    for (; x + unit <= n; x += unit) convertOneUnit<Alpha>(operation, s + x, d + x);
    return x;
}

// The results of n elements, fewer than a unit.
template <class Operation>
struct FewResults {
    using D = typename Operation::Result;
    alignas(vecBytes) D data[lanes<D>];

    PXL_INLINE FewResults(const Operation& operation, ptrdiff_t n, const typename Operation::Source* s) {
        StoreU(narrowed(operation, operation(LoadN<unitOf<Operation>>(s, n))), data);
    }
};

// Rows are functions of their own: inlined into the walk, they would share its registers.
template <bool Fetched, class Operation, class S, class D>
[[gnu::noinline]] void convertRow(Operation operation, ptrdiff_t n, const S* s, D* d) {
    constexpr int unit = unitOf<Operation>;
    if (n < unit)
        copyFew<unit * sizeof(D)>(d, FewResults(operation, n, s).data, static_cast<size_t>(n) * sizeof(D));
    else if (convertUnits<false, Fetched>(operation, n, s, d) < n)
        convertOneUnit<false>(operation, s + n - unit, d + n - unit);
}

// One or two units are so few that a call would double their time.
template <class Operation>
PXL_INLINE bool isShortRow(ptrdiff_t n) {
    return unitOf<Operation> <= n && n <= 2 * unitOf<Operation>;
}

// False, and nothing done, where a row is not short.
template <class Operation, class S, class D>
PXL_INLINE bool convertShortRow(const Operation& operation, ptrdiff_t n, const S* s, D* d) {
    constexpr int unit = unitOf<Operation>;
    if (!isShortRow<Operation>(n)) return false;
    convertOneUnit<false>(operation, s, d);
    if (n > unit) convertOneUnit<false>(operation, s + n - unit, d + n - unit);
    return true;
}

// Rows too short for a unit. The elements of a single pixel go one by one: in rows that overlap, an element that was
// just written may be the source of the next.
template <class Operation, class S, class D>
PXL_INLINE void convertFewColours(const Operation& operation, ptrdiff_t pixels, const S* s, D* d) {
    if (pixels == 1) {
        for (int c = 0; c < 3; ++c) store1(d + c, FewResults(operation, 1, s + c).data[0]);
        return;
    }
    const FewResults results(operation, 4 * pixels - 1, s);
    for (ptrdiff_t x = 0; x < 4 * pixels; x += 4) std::memcpy(d + x, results.data + x, 3 * sizeof(D));
}

// Elements 0..2 of pixels of four. The fourth source element of the last pixel is not read: the last unit ends before
// it, which puts the elements to keep into lanes 0, 4, 8 ...
template <class Operation, class S, class D>
[[gnu::noinline]] void convertColourRow(Operation operation, ptrdiff_t pixels, const S* s, D* d) {
    constexpr int unit = unitOf<Operation>;
    const ptrdiff_t n = 4 * pixels - 1;
    if (n < unit) return convertFewColours(operation, pixels, s, d);
    const Vec<D> kept = LoadFirst<unit>(d + n - unit); // later it would wait for the stores that it overlaps
    convertUnits<true, false>(operation, n, s, d);
    const Vec<D> last = narrowed(operation, convertUnit(operation, s + n - unit));
    StoreFirst<unit>(KeepAlpha<0>(kept, last), d + n - unit);
}

// ---- the walks: one body per operation, whatever the count of channels ----------------------------------------------

template <class Operation, class S, class D>
[[gnu::noinline]] PxlStatus convertFetched(Operation operation, Image<const S> src, Image<D> dst, ImageSize roi,
                                           int channels) {
    const auto row = [=](ptrdiff_t n, const S* s, D* d) { convertRow<true>(operation, n, s, d); };
    walkElements(roi, channels, row, src, dst);
    return PXL_OK;
}

// Channels alike, as elements.
template <class Operation, class S, class D>
[[gnu::noinline]] PxlStatus convertElements(Operation operation, Image<const S> src, Image<D> dst, ImageSize roi,
                                            int channels) {
    const ptrdiff_t width = ptrdiff_t{roi.width} * channels;
    const auto row = [=](ptrdiff_t n, const S* s, D* d) { convertRow<false>(operation, n, s, d); };
    const auto shortRow = [=](ptrdiff_t n, const S* s, D* d) {
        if (!convertShortRow(operation, n, s, d)) row(n, s, d); // regions walked as one long row
    };
    if (isShortRow<Operation>(width)) {
        walkElements(roi, channels, shortRow, src, dst);
        return PXL_OK;
    }
    // Widening is bound by its stores; narrower results are a small part of the traffic.
    constexpr bool widens = sizeof(D) > sizeof(S);
    if (widens ? isFetched(width, roi.height, src, dst) : isBeyondSecondCache(width, roi.height, src, dst))
        return convertFetched(operation, src, dst, roi, channels);
    walkElements(roi, channels, row, src, dst);
    return PXL_OK;
}

template <class Operation, class S, class D, int Elements, int Channels>
PxlStatus convert(Operation operation, Image<const S, Elements, Channels> src, Image<D, Elements, Channels> dst,
                  ImageSize roi) {
    if constexpr (Channels == Elements) {
        return convertElements(operation, elementsOf(src), elementsOf(dst), roi, Elements);
    } else {
        const auto row = [=](ptrdiff_t n, const S* s, D* d) { convertColourRow(operation, n, s, d); };
        walk(roi, row, src, dst);
        return PXL_OK;
    }
}

} // namespace pxl::PXL_TARGET::pointwise
