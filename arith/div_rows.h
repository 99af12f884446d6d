// The rows of quotients: dst = dividends / divisors, of two images or of an image and one constant per channel.
//
// An operation has a type Divisor, which is what it makes of a vector of divisors; its member `zero` has the lanes that
// are 0:
//     Divisor prepare(Vec<L> divisors) const;
//     Vec<L> operator()(const Divisor& x, Vec<L> dividends) const;
// Of constants that is made once per call. A divisor of 0 is noted for the call's status; constants have been tested
// before.
#pragma once

#include "arith/region.h"
#include "frame/checks.h"

namespace pxl::PXL_TARGET {

// ---- two images -----------------------------------------------------------------------------------------------------

template <class Op>
struct Division {
    Op op;
    bool* byZero;
};

struct AllBytes {
    alignas(vecBytes) uint8_t bytes[vecBytes];
    constexpr AllBytes() : bytes{} {
        for (uint8_t& byte : bytes) byte = 0xFF;
    }
};
inline constexpr AllBytes allBytes;

// The lanes that hold no element where the ends of a row of n lanes are loaded.
template <class L>
PXL_INLINE Mask<L> lanesBesideEnds(ptrdiff_t n) {
    return ~LoadEnds(reinterpret_cast<const MaskLane<L>*>(allBytes.bytes), n);
}

// Divisors, of which those that do not count are made other than 0.
template <class L>
PXL_INLINE Vec<L> fillDivisors(Vec<L> x, Mask<L> ignored) {
    return x | IfThenElseZero(ignored, Set<L>(1));
}

// The operands of a vector that ends a row, or of the ends of a row that is shorter than a vector.
template <class L>
struct EndOfRow {
    ptrdiff_t n;
    bool whole;
    const RowPlan& plan;

    PXL_INLINE EndOfRow(ptrdiff_t lanesOfRow, const RowPlan& p) : n(lanesOfRow), whole(n >= lanes<L>), plan(p) {}

    PXL_INLINE Vec<L> load(const L* row) const { return whole ? LoadU(row + n - lanes<L>) : LoadEnds(row, n); }

    PXL_INLINE Mask<L> kept() const {
        if (!plan.alpha) return Zero<MaskLane<L>>();
        const auto keep = reinterpret_cast<const MaskLane<L>*>(plan.alpha);
        return whole ? LoadU(keep + plan.endLane<L>()) : LoadEnds(keep, n);
    }
    // The divisors of two images.
    PXL_INLINE Vec<L> divisors(const L* row) const {
        return fillDivisors(load(row), whole ? kept() : kept() | lanesBesideEnds<L>(n));
    }
    PXL_INLINE Vec<L> result(Vec<L> quotients, const L* d) const {
        return plan.alpha ? IfThenElse(kept(), load(d), quotients) : quotients;
    }
};

// n lanes d[i] = y[i] / x[i]; of AC4 pixels the lanes up to the last third element, and fourth elements are stored
// again as they were. The vector at the end overlaps the one before it; it is computed before anything is stored, so d
// may be x or y.
template <class L, class Op>
void quotientRow(ptrdiff_t n, const void* divisors, const void* dividends, void* to, const RowPlan& plan) {
    constexpr ptrdiff_t step = lanes<L>;
    const L* x = static_cast<const L*>(divisors);
    const L* y = static_cast<const L*>(dividends);
    L* d = static_cast<L*>(to);
    const auto& division = *static_cast<const Division<Op>*>(plan.op);
    const Op op = division.op;
    auto zero = Zero<MaskLane<L>>();
    const auto quotients = [&](Vec<L> xs, Vec<L> ys) __attribute__((always_inline)) {
        const auto divisor = op.prepare(xs);
        zero = zero | divisor.zero;
        return op(divisor, ys);
    };

    const EndOfRow<L> atEnd(n, plan);
    const Vec<L> end = atEnd.result(quotients(atEnd.divisors(x), atEnd.load(y)), d);
    if (atEnd.whole) {
        const ptrdiff_t last = n - step;
        ptrdiff_t at = 0;
        if (plan.alpha) {
            for (; at < last; at += step) { // pixels may be two vectors long
                const Mask<L> kept = LoadU(reinterpret_cast<const MaskLane<L>*>(plan.alpha) + (at & step));
                const Vec<L> result = quotients(fillDivisors(LoadU(x + at), kept), LoadU(y + at));
                StoreU(IfThenElse(kept, LoadU(d + at), result), d + at);
            }
        }
        for (; at < last; at += step) StoreU(quotients(LoadU(x + at), LoadU(y + at)), d + at);
        StoreU(end, d + last);
    } else {
        StoreEnds(end, d, n);
    }
    if (AnyBit(zero)) *division.byZero = true;
}

// Whether a divisor was 0.
template <class L, class Op>
[[gnu::noinline]] bool divideImages(const Region& region, const Op& op) {
    bool byZero = false;
    const Division<Op> division{op, &byZero};
    walkImages(region, quotientRow<L, Op>, &division);
    return byZero;
}

// ---- an image and constants -----------------------------------------------------------------------------------------

// An operation and the divisors of the first vectors of a ConstantRow.
template <class L, class Op>
struct ConstantDivision {
    static constexpr int vectors = 3;
    Op op;
    bool same; // in all lanes
    typename Op::Divisor divisors[vectors];

    ConstantDivision(const Op& o, const Region& region)
        : ConstantDivision(o, region, std::make_index_sequence<vectors>{}) {}

private:
    template <size_t... V>
    ConstantDivision(const Op& o, const Region& region, std::index_sequence<V...>)
        : op(o), same(region.layout.elements == 1), divisors{o.prepare(LoadU(static_cast<const L*>(region.constants) +
                                                                             V * lanes<L>))...} {}
};

// The same with constants: a ConstantRow, or those of a row of one element. In AC4 rows they repeat after two vectors.
template <class L, class Op>
void constantQuotientRow(ptrdiff_t n, const void* from, const void* with, void* to, const RowPlan& plan) {
    constexpr ptrdiff_t step = lanes<L>;
    const L* y = static_cast<const L*>(from);
    const L* x = static_cast<const L*>(with);
    L* d = static_cast<L*>(to);
    const auto& constants = *static_cast<const ConstantDivision<L, Op>*>(plan.op);
    const Op op = constants.op;

    const EndOfRow<L> atEnd(n, plan);
    const ptrdiff_t last = n - step;
    auto divisor = constants.divisors[0];
    if (!constants.same) divisor = op.prepare(atEnd.whole ? LoadU(x + plan.endOf<L>(last)) : LoadEnds(x, n));
    const Vec<L> end = atEnd.result(op(divisor, atEnd.load(y)), d);
    if (!atEnd.whole) return StoreEnds(end, d, n);
    ptrdiff_t at = 0;
    if (plan.alpha) {
        for (; at < last; at += step) {
            const Vec<L> result = op(constants.divisors[at / step % 2], LoadU(y + at));
            StoreU(keepAlpha(plan.alpha + (at & step) * sizeof(L), LoadU(d + at), result), d + at);
        }
    }
    for (int v = 0; at < last; at += step) {
        StoreU(op(constants.divisors[v], LoadU(y + at)), d + at);
        v = v + 1 < constants.vectors ? v + 1 : 0;
    }
    StoreU(end, d + last);
}

template <class L, class Op>
[[gnu::noinline]] void divideByConstants(const Region& region, const Op& op) {
    const ConstantDivision<L, Op> division(op, region);
    walkConstants(region, constantQuotientRow<L, Op>, &division);
}

// ---- scale factors --------------------------------------------------------------------------------------------------

// 2^-scaleFactor by repeated doubling or halving, for a scaleFactor from `from` to `to`; beyond those that of the
// nearest of them, which has the same results.
template <class Real>
inline Real factorOf(int scaleFactor, int from, int to) {
    const int limited = scaleFactor < from ? from : scaleFactor > to ? to : scaleFactor;
    Real factor = 1;
    for (int s = limited; s < 0; ++s) factor *= 2;
    for (int s = limited; s > 0; --s) factor /= 2;
    return factor;
}

} // namespace pxl::PXL_TARGET
