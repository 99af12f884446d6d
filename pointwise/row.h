// The row function of operations on elements of one size: dst = op(a), op(a, b), or op(a, op.prepare(b)), in lanes of type L.
//
// One function serves all layouts. What b is, and what it takes to have a vector of results, is the matter of a type Results:
//     using Lane
//     Results(const void* a, const void* b, const RowPlan& plan)
//     Vec<L> at(x)                     of the vector at lane x, and of b where it stands
//     void next()                      b moves on by a vector
//     Vec<L> inPixels(x, o, kept)      of a vector in an AC4 row, at lane x of a and o of b; the lanes `kept` do not count
//     const L *a, *b
//     static constexpr bool isConstant whether b is always a ConstantRow
//     Vec<L> atEnd(const RowEnd<L>&)   of the vector that ends the row
//     void finish()                    called when the row is done
//     static constexpr bool isUnrolled, isStreamed     whether stores may pass by the caches; for loops of either kind
//     Vec<L> at(x, o)                  is o lanes further on in b, a member that they move
#pragma once

#include "frame/vec/partial.h"
#include "pointwise/operands.h"

namespace pxl::PXL_TARGET::pointwise {

// What a row function gets beside its row.
struct RowPlan {
    const void* op;
    bool* given;          // set where the operation gives its warning
    bool still;           // b is a ConstantRow
    bool fetched;         // lines are worth asking for ahead
    const uint8_t* alpha; // AC4, else null
    ptrdiff_t endPhase;   // the layout's
    size_t streamed;      // bytes of an element where stores are to pass by the caches, else 0

    // Whether whole elements lead from d to the next address at which vectors can be streamed.
    PXL_INLINE bool streams(const void* d) const { return streamed && reinterpret_cast<uintptr_t>(d) % streamed == 0; }
};

using RowFunction = void (*)(ptrdiff_t n, const void* a, const void* b, void* d, const RowPlan& plan);

// The vector that ends a row of n lanes, or the ends of a row that is shorter than a vector.
template <class L>
struct RowEnd {
    ptrdiff_t n, last;
    bool whole;
    const RowPlan& plan;

    PXL_INLINE RowEnd(ptrdiff_t lanesOfRow, const RowPlan& p)
        : n(lanesOfRow), last(n - lanes<L>), whole(last >= 0), plan(p) {}

    PXL_INLINE Vec<L> load(const L* row, ptrdiff_t at) const { return whole ? LoadU(row + at) : LoadEnds(row, n); }
    PXL_INLINE Vec<L> load(const L* row) const { return load(row, last); }
    // Of b.
    PXL_INLINE Vec<L> loadBeside(const L* row) const { return load(row, plan.still ? phase() : last); }
    // AC4: the lanes that keep their value.
    PXL_INLINE Mask<L> kept() const {
        const auto keep = reinterpret_cast<const MaskLane<L>*>(plan.alpha);
        return whole ? LoadU(keep + phase()) : LoadEnds(keep, n);
    }
    // v, but what d holds in fourth elements of AC4 pixels.
    PXL_INLINE Vec<L> keepAlpha(const L* d, Vec<L> v) const { return plan.alpha ? IfThenElse(kept(), load(d), v) : v; }

private:
    PXL_INLINE ptrdiff_t phase() const { return plan.endPhase / static_cast<ptrdiff_t>(sizeof(L)); }
};

// Asks for the lines so many bytes ahead, in regions of so many bytes with all their images. By itself, the hardware stops at the
// end of a page, and neither loops of many instructions look far beyond it nor those whose stores wait for a load. What is in
// the caches would only be held up.
inline constexpr ptrdiff_t fetchedAhead = 2048, fetchedAheadFrom = 16'000'000;
template <class... P>
PXL_INLINE void fetchAhead(const P*... p) {
    (Prefetch(reinterpret_cast<const uint8_t*>(p) + fetchedAhead), ...);
}

// The vectors of an AC4 row that begin before `last`. Pixels may be two vectors long.
template <bool Fetched, class Results, class L>
PXL_INLINE void pixelRow(ptrdiff_t last, Results& results, const RowPlan& plan, L* d) {
    constexpr ptrdiff_t step = lanes<L>;
    const auto alpha = reinterpret_cast<const MaskLane<L>*>(plan.alpha);
    const bool still = Results::isConstant || plan.still;
    const auto store = [&](ptrdiff_t x, ptrdiff_t inPixel, Mask<L> kept) __attribute__((always_inline)) {
        if constexpr (Fetched) {
            fetchAhead(results.a + x, d + x);
            if (!still) fetchAhead(results.b + x);
        }
        const Vec<L> result = results.inPixels(x, still ? inPixel : x, kept);
        StoreU(IfThenElse(kept, LoadU(d + x), result), d + x);
    };
    ptrdiff_t x = 0;
    if constexpr (Results::isUnrolled) {
        const Mask<L> first = LoadU(alpha), second = LoadU(alpha + step);
        for (; x + step < last; x += 2 * step) {
            store(x, 0, first);
            store(x + step, step, second);
        }
        if (x < last) store(x, 0, first);
    } else {
        for (; x < last; x += step) store(x, x & step, LoadU(alpha + (x & step)));
    }
}

// The beginning of a row whose stores pass by the caches, as many whole vectors as come before `last`; returns where it
// stops and moves b along. The first vector, of which the next may overlap a part, is stored as it stands.
template <class Results, class L>
PXL_INLINE ptrdiff_t streamRow(ptrdiff_t last, Results& results, bool still, L* d) {
    constexpr ptrdiff_t step = lanes<L>, run = 3 * step;
    StoreU(results.at(0), d);
    const auto head = static_cast<ptrdiff_t>(-reinterpret_cast<uintptr_t>(d) % vecBytes / sizeof(L));
    ptrdiff_t x = head, o = head;
    for (; x < last; x += step) {
        Streamed::store(results.at(x, o), d + x);
        o += step;
        if (still && o >= run) o -= run;
    }
    results.b += o;
    return x;
}

// n lanes; of AC4 pixels the lanes up to the last third element, and fourth elements are stored again as they were. The
// vector at the end overlaps the one before it; it is computed before anything is stored, so d may be a or b.
template <class Results>
void elementRow(ptrdiff_t n, const void* a, const void* b, void* to, const RowPlan& plan) {
    using L = typename Results::Lane;
    constexpr ptrdiff_t step = lanes<L>, run = 3 * step;
    L* d = static_cast<L*>(to);
    Results results(a, b, plan);

    const RowEnd<L> atEnd(n, plan);
    const Vec<L> end = atEnd.keepAlpha(d, results.atEnd(atEnd));
    if (!atEnd.whole) {
        StoreEnds(end, d, n);
        return results.finish();
    }
    const ptrdiff_t last = n - step;
    ptrdiff_t x = 0;
    if (plan.alpha) {
        if (plan.fetched)
            pixelRow<true>(last, results, plan, d);
        else
            pixelRow<false>(last, results, plan, d);
        x = last;
    }
    if constexpr (Results::isStreamed)
        if (plan.streams(d)) x = streamRow(last, results, plan.still, d);
    if constexpr (Results::isUnrolled) {
        const ptrdiff_t advance = plan.still ? 0 : run;
        for (; x + run <= last; x += run, results.b += advance) {
            // Computed where they stand, they keep loads and stores in ascending order, which the caches reward.
            const Vec<L> first = results.at(x);
            ComputeHere(first);
            const Vec<L> second = results.at(x + step, step);
            ComputeHere(second);
            const Vec<L> third = results.at(x + 2 * step, 2 * step);
            StoreU(first, d + x);
            ComputeHere(third);
            StoreU(second, d + x + step);
            StoreU(third, d + x + 2 * step);
        }
    }
    if constexpr (!Results::isUnrolled) {
        const bool moves = !Results::isConstant && !plan.still, fetched = plan.fetched;
        for (; x < last; x += step, results.next()) {
            if (fetched) {
                fetchAhead(results.a + x, d + x);
                if (moves) fetchAhead(results.b);
            }
            StoreU(results.at(x), d + x);
        }
    } else {
        for (; x < last; x += step, results.next()) StoreU(results.at(x), d + x);
    }
    StoreU(end, d + last);
    results.finish();
}

} // namespace pxl::PXL_TARGET::pointwise
