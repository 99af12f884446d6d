// The ways to the results of a row. An operation is a callable object over vectors with whatever it needs set up once per
// call:
//     Vec<L> operator()(Vec<L> a) const;              one source
//     Vec<L> operator()(Vec<L> a, Vec<L> b) const;    two sources, or a source and constants
// or one that makes something of b first, of constants once per call:
//     Prepared prepare(Vec<L> b) const;
//     Vec<L> operator()(Vec<L> a, const Prepared& b) const;
// The latter may also give a warning, if there is one among the b of two sources:
//     static constexpr PxlStatus warning;
//     static Vec<U> warned(const Prepared& b);        bits where there is
// An operation of so many instructions that unrolled loops would only be larger says so:
//     static constexpr bool isLong = true;
#pragma once

#include <utility>

#include "pointwise/row.h"

namespace pxl::PXL_TARGET::pointwise {

template <class Op, class L>
inline constexpr bool isUnary = std::is_invocable_v<const Op&, Vec<L>>;
template <class Op>
inline constexpr bool warns = requires {
    Op::warning;
};
template <class Op>
inline constexpr bool isLong = requires {
    requires Op::isLong;
};

template <class Op, class L>
concept Preparing = requires(const Op& op, Vec<L> b) {
    op.prepare(b);
};
template <class Op, class L>
using PreparedBy = decltype(std::declval<const Op&>().prepare(Vec<L>{}));

// All ones, to tell what LoadEnds fills in.
struct AllBytes {
    alignas(vecBytes) uint8_t bytes[vecBytes];
    constexpr AllBytes() : bytes{} {
        for (uint8_t& byte : bytes) byte = 0xFF;
    }
};
inline constexpr AllBytes allBytes;

// Of a, or of a and a row b: an image or a ConstantRow.
template <class L, class Op>
struct Results {
    using Lane = L;
    static constexpr bool isConstant = false, isUnrolled = !isLong<Op>, isStreamed = isUnrolled;
    const L *a, *b;
    Op op;
    bool* given;
    bool still;
    int vector = 0; // of a ConstantRow, where loops are not unrolled
    Mask<L> warned = Zero<MaskLane<L>>();

    PXL_INLINE Results(const void* from, const void* with, const RowPlan& plan)
        : a(static_cast<const L*>(from)), b(static_cast<const L*>(with)), op(*static_cast<const Op*>(plan.op)),
          given(plan.given), still(plan.still) {}

    PXL_INLINE Vec<L> of(Vec<L> as, Vec<L> bs) {
        if constexpr (Preparing<Op, L>) {
            const auto prepared = op.prepare(bs);
            if constexpr (warns<Op>) warned = warned | Op::warned(prepared);
            return op(as, prepared);
        } else {
            return op(as, bs);
        }
    }
    // Lanes that do not count are made 1, which nothing warns of.
    PXL_INLINE static Vec<L> ignore(Mask<L> ignored, Vec<L> bs) {
        if constexpr (warns<Op>) return bs | IfThenElseZero(ignored, Set<L>(1));
        return bs;
    }

    PXL_INLINE Vec<L> at(ptrdiff_t x, ptrdiff_t o = 0) {
        const Vec<L> as = LoadU(a + x);
        if constexpr (isUnary<Op, L>)
            return op(as);
        else
            return of(as, LoadU(b + o));
    }
    PXL_INLINE void next() {
        if constexpr (isUnary<Op, L>) return;
        b += lanes<L>;
        if constexpr (!isUnrolled)
            if (still && ++vector == 3) b -= 3 * lanes<L>, vector = 0;
    }
    PXL_INLINE Vec<L> inPixels(ptrdiff_t x, ptrdiff_t o, Mask<L> kept) {
        const Vec<L> as = LoadU(a + x);
        if constexpr (isUnary<Op, L>)
            return op(as);
        else
            return of(as, ignore(kept, LoadU(b + o)));
    }
    PXL_INLINE Vec<L> atEnd(const RowEnd<L>& end) {
        if constexpr (isUnary<Op, L>) {
            return op(end.load(a));
        } else if constexpr (warns<Op>) {
            const Vec<L> bs = end.load(b);
            Mask<L> ignored = end.plan.alpha ? end.kept() : Zero<MaskLane<L>>();
            if (!end.whole) ignored = ignored | ~LoadEnds(reinterpret_cast<const MaskLane<L>*>(allBytes.bytes), end.n);
            return of(end.load(a), ignore(ignored, bs));
        } else {
            return of(end.load(a), end.loadBeside(b));
        }
    }
    PXL_INLINE void finish() const {
        if constexpr (warns<Op>)
            if (AnyBit(warned)) *given = true;
    }
};

// What an operation makes of constants, once per call: of the vectors of a row, which repeat after three, in AC4 rows after
// two. The third is also the one that ends a row.
template <class L, class Op>
class PreparedConstants {
    using Prepared = PreparedBy<Op, L>;

public:
    const Op op;
    const Prepared* vectors[3];

    PreparedConstants(const Op& operation, const WithConstants& operands)
        : op(operation), same_(operands.layout.elements == 1) {
        const Layout& l = operands.layout;
        const L* constants = reinterpret_cast<const L*>(operands.constants);
        const auto at = [&](int slot, ptrdiff_t phase) { // phase 0 is that of the first vector
            return phase ? prepare(slot, LoadU(constants + phase / static_cast<ptrdiff_t>(sizeof(L)))) : vectors[0];
        };
        vectors[0] = fill(slots_[0], LoadU(constants));
        vectors[1] = at(1, l.secondPhase);
        vectors[2] = at(2, l.endPhase);
    }

    // Of a row of n lanes, fewer than a vector. Such rows follow one another.
    const Prepared& ofShortRow(const L* constants, ptrdiff_t n) const {
        if (same_) return *vectors[0];
        if (n != shortLength_ || constants != shortConstants_) {
            prepare(3, LoadEnds(constants, n));
            shortLength_ = n;
            shortConstants_ = constants;
        }
        return slots_[3].prepared;
    }

private:
    union Slot { // empty at first
        char none;
        Prepared prepared;
        Slot() : none(0) {}
    };

    const bool same_; // in all lanes
    mutable Slot slots_[4];
    mutable ptrdiff_t shortLength_ = 0;
    mutable const L* shortConstants_ = nullptr;

    PXL_INLINE const Prepared* fill(Slot& slot, Vec<L> constants) const {
        slot.prepared = op.prepare(constants);
        return &slot.prepared;
    }
    [[gnu::noinline]] const Prepared* prepare(int slot, Vec<L> constants) const {
        return fill(slots_[slot], constants);
    }
};

// Of a and prepared constants.
template <class L, class Op>
struct ConstantResults {
    using Lane = L;
    static constexpr bool isConstant = true, isUnrolled = true, isStreamed = false;
    const L *a, *b;
    const PreparedConstants<L, Op>& constants;
    Op op;
    int vector = 0;

    PXL_INLINE ConstantResults(const void* from, const void* with, const RowPlan& plan)
        : a(static_cast<const L*>(from)), b(static_cast<const L*>(with)),
          constants(*static_cast<const PreparedConstants<L, Op>*>(plan.op)), op(constants.op) {}

    PXL_INLINE Vec<L> of(ptrdiff_t x, ptrdiff_t v) const { return op(LoadU(a + x), *constants.vectors[v]); }
    PXL_INLINE Vec<L> at(ptrdiff_t x, ptrdiff_t o = 0) const { return of(x, vector + o / lanes<L>); }
    PXL_INLINE void next() { vector = vector < 2 ? vector + 1 : 0; }
    PXL_INLINE Vec<L> inPixels(ptrdiff_t x, ptrdiff_t o, Mask<L>) const { return of(x, o / lanes<L>); }
    PXL_INLINE Vec<L> atEnd(const RowEnd<L>& end) const {
        return op(end.load(a), end.whole ? *constants.vectors[2] : constants.ofShortRow(b, end.n));
    }
    PXL_INLINE void finish() const {}
};

// The same for short operations, with the constants in registers, if there are enough.
template <class L, class Op>
struct ShortConstantResults : ConstantResults<L, Op> {
    PreparedBy<Op, L> first, second, third;

    PXL_INLINE ShortConstantResults(const void* from, const void* with, const RowPlan& plan)
        : ConstantResults<L, Op>(from, with, plan), first(*this->constants.vectors[0]),
          second(*this->constants.vectors[1]), third(*this->constants.vectors[2]) {}

    PXL_INLINE Vec<L> at(ptrdiff_t x, ptrdiff_t o = 0) const {
        return this->op(LoadU(this->a + x), o == 0 ? first : o == lanes<L> ? second : third);
    }
    PXL_INLINE void next() {
        first = second;
        second = third;
    }
    PXL_INLINE Vec<L> inPixels(ptrdiff_t x, ptrdiff_t o, Mask<L>) const { return at(x, o); }
};

} // namespace pxl::PXL_TARGET::pointwise
