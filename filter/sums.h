// Sums over a neighbourhood, one product after the other in the order of the pixels, for any kernel.
//
// Lanes run along x, so every element sees its additions in the stated order: from 0, rows from top to bottom, each
// from left to right. A rule names the lanes of its products and how they are summed; several vectors are summed side
// by side to hide the latency of the additions.
#pragma once

#include "filter/filtering.h"
#include "filter/rounding.h"
#include "frame/vec/convert.h"

namespace pxl::PXL_TARGET::filter {

// Float or double products in sums of the same type.
template <class T, class L>
struct PlainSums {
    static constexpr int unitsOfTwoRows = 4;
    using Source = T;
    using Lane = L;
    using Coefficient = L;
    using Sum = Vec<L>;

    PXL_INLINE static void add(Sum& sum, Vec<Lane> v, Vec<Lane> k) { sum = sum + v * k; }
    PXL_INLINE static Sum value(const Sum& sum) { return sum; }
};

// Float products in double sums.
template <class T>
struct WidenedSums {
    static constexpr int unitsOfTwoRows = 2;
    using Source = T;
    using Lane = float;
    using Coefficient = float;
    struct Sum {
        Vec<double> lower, upper;
    };

    PXL_INLINE static void add(Sum& sum, Vec<Lane> v, Vec<Lane> k) {
        const Vec<float> product = v * k;
        sum.lower = sum.lower + PromoteLowerToDouble(product);
        sum.upper = sum.upper + PromoteUpperToDouble(product);
    }
    PXL_INLINE static Vec<float> value(const Sum& sum) { return ConvertToFloat(sum.lower, sum.upper); }
};

// Integers modulo 2^32; unsigned, since they may wrap on the way.
template <class T>
struct IntegerSums {
    static constexpr int unitsOfTwoRows = 0;
    using Source = T;
    using Lane = uint32_t;
    using Coefficient = int32_t;
    using Sum = Vec<uint32_t>;

    PXL_INLINE static void add(Sum& sum, Vec<Lane> v, Vec<Lane> k) { sum = sum + v * k; }
    PXL_INLINE static Vec<int32_t> value(const Sum& sum) { return BitCast<int32_t>(sum); }
};

// Leaves the sums of 32f and 64f as they are.
struct SumItself {};

template <class Lane, class T>
PXL_INLINE Vec<Lane> loadLanes(const T* p) {
    if constexpr (sizeof(Lane) == sizeof(T))
        return BitCast<Lane>(LoadU(p));
    else
        return LoadPromote<Lane>(p);
}
// n < lanes<Lane> elements, zero behind them.
template <class Lane, class T>
PXL_INLINE Vec<Lane> loadFewLanes(const T* p, ptrdiff_t n) {
    const Vec<T> few = LoadN<lanes<Lane>>(p, n);
    if constexpr (sizeof(Lane) == sizeof(T))
        return BitCast<Lane>(few);
    else
        return PromoteTo<Lane>(few);
}

// Adds one row of the kernel, walked backwards from `k`, to Units vectors of sums side by side. load(p) gives a vector.
template <class Rule, int Units, class T, class K, class Load>
PXL_INLINE void addKernelRow(const Filtering<T, K>& f, const T* p, const K* k, typename Rule::Sum (&sum)[Units],
                             const Load& load) {
    using Lane = typename Rule::Lane;
    for (int i = f.windows.width; i > 0; --i) {
        const Vec<Lane> factor = Set<Lane>(static_cast<Lane>(load1(k)));
#pragma GCC unroll 4
        for (int u = 0; u < Units; ++u) Rule::add(sum[u], load(p + u * lanes<Lane>), factor);
        p = byBytes(p, f.windows.pixelBytes);
        --k;
    }
}

// The sums of the neighbourhoods that begin at `corner`.
template <class Rule, int Units, class T, class K, class Load>
PXL_INLINE void addNeighbourhood(const Filtering<T, K>& f, const T* corner, typename Rule::Sum (&sum)[Units],
                                 const Load& load) {
    const K* k = f.lastCoefficient();
    for (int j = f.windows.height; j > 0; --j) {
        addKernelRow<Rule>(f, corner, k, sum, load);
        corner = byBytes(corner, f.windows.step);
        k -= f.windows.width;
    }
}

// One source vector per unit for two rows of sums, each with its factor.
template <class Rule, int Units, class T>
PXL_INLINE void addSharedTap(const T* p, Vec<typename Rule::Lane> factor, Vec<typename Rule::Lane> factorBelow,
                             typename Rule::Sum (&sum)[Units], typename Rule::Sum (&below)[Units]) {
    using Lane = typename Rule::Lane;
#pragma GCC unroll 4
    for (int u = 0; u < Units; ++u) {
        const Vec<Lane> v = Held(loadLanes<Lane>(p + u * lanes<Lane>));
        Rule::add(sum[u], v, factor);
        Rule::add(below[u], v, factorBelow);
    }
}

// One source row for two rows of sums: row j of the neighbourhoods of `sum`, row j - 1 of those below them.
template <class Rule, int Units, class T, class K>
PXL_INLINE void addSharedRow(const Filtering<T, K>& f, const T* p, const K* k, typename Rule::Sum (&sum)[Units],
                             typename Rule::Sum (&below)[Units]) {
    using Lane = typename Rule::Lane;
    for (int i = f.windows.width; i > 0; --i) {
        addSharedTap<Rule>(p, Set<Lane>(load1(k)), Set<Lane>(load1(k + f.windows.width)), sum, below);
        p = byBytes(p, f.windows.pixelBytes);
        --k;
    }
}

// The sums of the neighbourhoods that begin at `corner` and of those one row below.
template <class Rule, int Units, class T, class K>
PXL_INLINE void addTwoNeighbourhoods(const Filtering<T, K>& f, const T* corner, typename Rule::Sum (&sum)[Units],
                                     typename Rule::Sum (&below)[Units]) {
    const auto load = [](const T* p) { return loadLanes<typename Rule::Lane>(p); };
    const K* k = f.lastCoefficient();
    addKernelRow<Rule>(f, corner, k, sum, load);
    for (int j = f.windows.height;; --j) {
        corner = byBytes(corner, f.windows.step);
        if (j == 1) break;
        k -= f.windows.width;
        addSharedRow<Rule>(f, corner, k, sum, below);
    }
    addKernelRow<Rule>(f, corner, k, below, load);
}

// The same for kernels of one column: no loop over the taps of a row, and every factor is loaded once.
template <class Rule, int Units, class T, class K>
PXL_INLINE void addTwoColumns(const Filtering<T, K>& f, const T* corner, typename Rule::Sum (&sum)[Units],
                              typename Rule::Sum (&below)[Units]) {
    using Lane = typename Rule::Lane;
    const auto addTap = [](const T* p, Vec<Lane> factor, typename Rule::Sum(&sums)[Units]) {
#pragma GCC unroll 4
        for (int u = 0; u < Units; ++u) Rule::add(sums[u], loadLanes<Lane>(p + u * lanes<Lane>), factor);
    };
    const K* k = f.lastCoefficient();
    Vec<Lane> factor = Set<Lane>(load1(k));
    addTap(corner, factor, sum);
    for (int j = f.windows.height; j > 1; --j) {
        corner = byBytes(corner, f.windows.step);
        const Vec<Lane> factorBelow = factor;
        factor = Set<Lane>(load1(--k));
        addSharedTap<Rule>(corner, factor, factorBelow, sum, below);
    }
    addTap(byBytes(corner, f.windows.step), factor, below);
}

// Stores Units vectors of saturated results at x.
template <int Units, class T>
PXL_INLINE void storeResults(const Vec<int32_t> (&v)[Units], DestinationRow<T> d, ptrdiff_t x) {
    constexpr int unit = lanes<int32_t>;
    if constexpr (Units == 4 && sizeof(T) == 1) {
        d.template store<lanes<T>>(OrderedDemote4To<T>(v[0], v[1], v[2], v[3]), x);
    } else if constexpr (Units > 1 && sizeof(T) == 2) {
#pragma GCC unroll 2
        for (int u = 0; u < Units; u += 2)
            d.template store<lanes<T>>(OrderedDemote2To<T>(v[u], v[u + 1]), x + u * unit);
    } else {
#pragma GCC unroll 2
        for (int u = 0; u < Units; ++u) d.template store<unit>(DemoteTo<T>(v[u]), x + u * unit);
    }
}

// The rows of a filter by one of the rules, and what becomes of a sum. Two rows at a time read their common source rows
// once.
template <class Rule, class Result>
class SumRows {
    using T = typename Rule::Source;
    using Lane = typename Rule::Lane;
    using Sum = typename Rule::Sum;
    using Row = DestinationRow<T>;
    using Filter = Filtering<T, typename Rule::Coefficient>;
    static constexpr int unit = lanes<Lane>;

public:
    SumRows(const Filter& f, const Result& result) : f_(f), result_(result), n_(f.windows.processed) {}

    void operator()(ptrdiff_t first, ptrdiff_t rows) const {
        constexpr int units = Rule::unitsOfTwoRows;
        if constexpr (units > 0)
            if (n_ >= units * unit && f_.windows.height > 1)
                for (; rows >= 2; rows -= 2, first += 2) {
                    const auto two = f_.windows.width == 1 ? &SumRows::twoRows<true> : &SumRows::twoRows<false>;
                    (this->*two)(f_.windows.row(first), f_.dst.row(first), f_.dst.row(first + 1));
                }
        window::forEachRow(f_.windows, f_.dst, first, rows, [this](const T* s, Row d) { oneRow(s, d); });
    }

private:
    // A copy of the geometry stays in registers, where every store might change what a reference leads to.
    [[gnu::noinline]] void oneRow(const T* s, Row d) const {
        if (n_ < unit) return few(s, d);
        const Filter f = f_;
        if (n_ < 4 * unit)
            forEachBlockOfRow<unit>(
                n_, [&](ptrdiff_t x) __attribute__((always_inline)) { block<1>(f, s, d, x); });
        else
            forEachBlockOfRow<4 * unit>(
                n_, [&](ptrdiff_t x) __attribute__((always_inline)) { block<4>(f, s, d, x); });
    }

    template <bool Column>
    [[gnu::noinline]] void twoRows(const T* s, Row d, Row below) const {
        constexpr int units = Rule::unitsOfTwoRows;
        const Filter f = f_;
        forEachBlockOfRow<units * unit>(
            n_, [&](ptrdiff_t x) __attribute__((always_inline)) {
                Sum sum[units] = {}, sumBelow[units] = {};
                if constexpr (Column)
                    addTwoColumns<Rule>(f, s + x, sum, sumBelow);
                else
                    addTwoNeighbourhoods<Rule>(f, s + x, sum, sumBelow);
                finish(sum, d, x);
                finish(sumBelow, below, x);
            });
    }

    template <int Units>
    PXL_INLINE void block(const Filter& f, const T* s, Row d, ptrdiff_t x) const {
        Sum sum[Units] = {};
        addNeighbourhood<Rule>(f, s + x, sum, [](const T* p) { return loadLanes<Lane>(p); });
        finish(sum, d, x);
    }

    // A row shorter than a vector.
    [[gnu::noinline]] void few(const T* s, Row d) const {
        Sum sum[1] = {};
        addNeighbourhood<Rule>(f_, s, sum, [n = n_](const T* p) { return loadFewLanes<Lane>(p, n); });
        if constexpr (std::is_same_v<Result, SumItself>) {
            d.template storeFew<unit>(Rule::value(sum[0]), n_);
        } else {
            Vec<int32_t> result[1];
            round(sum, result);
            d.template storeFew<unit>(DemoteTo<T>(result[0]), n_);
        }
    }

    template <int Units>
    PXL_INLINE void finish(const Sum (&sum)[Units], Row d, ptrdiff_t x) const {
        if constexpr (std::is_same_v<Result, SumItself>) {
#pragma GCC unroll 4
            for (int u = 0; u < Units; ++u) d.template store<unit>(Rule::value(sum[u]), x + u * unit);
        } else {
            Vec<int32_t> result[Units];
            round(sum, result);
            storeResults(result, d, x);
        }
    }

    template <int Units>
    PXL_INLINE void round(const Sum (&sum)[Units], Vec<int32_t> (&result)[Units]) const {
        decltype(Rule::value(sum[0])) value[Units];
#pragma GCC unroll 4
        for (int u = 0; u < Units; ++u) value[u] = Rule::value(sum[u]);
        result_(value, result);
    }

    const Filter& f_;
    const Result& result_;
    ptrdiff_t n_;
};

// The whole region, by a team where it is large enough.
template <class Rule, class Result>
inline void filterBySums(const Filtering<typename Rule::Source, typename Rule::Coefficient>& f, const Result& result) {
    forEachStrip(f.windows.region, SumRows<Rule, Result>(f, result));
}

} // namespace pxl::PXL_TARGET::filter
