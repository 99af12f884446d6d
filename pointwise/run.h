// The engine of operations on elements of one size, between images of any layout, or images and one constant per channel.
//
//     return run<LaneOf<T>>(OneSource(src, dst, roi), op);
//     return run<LaneOf<T>>(TwoSources(src1, src2, dst, roi), op);
//     return run<LaneOf<T>>(WithConstants(src, values, dst, roi), op);
//
// An operation, as pointwise/results.h describes it, is compiled into one row function; the walk over the region is the same
// code for all operations.
#pragma once

#include "frame/walk.h"
#include "pointwise/results.h"

namespace pxl::PXL_TARGET::pointwise {

// All images together.
inline ptrdiff_t bytesOf(const Operands& o, int images) {
    return ptrdiff_t{o.layout.elements} * o.layout.elementBytes * images * o.roi.width * o.roi.height;
}

// The bytes of an element where the region is too large to stay in the caches. In place, what is
// stored has been read before, and AC4 rows are read too.
inline size_t streamedElement(const Operands& o, ptrdiff_t bytes) {
    const Layout& l = o.layout;
    if (bytes < streamedBytes || l.alpha || o.dst == o.a || o.dst == o.b) return 0;
    return static_cast<size_t>(l.elementBytes);
}

// Operands of so many bytes that are walked at a time.
using Source = Image<const uint8_t, anyElements>;
using Destination = Image<uint8_t, anyElements>;

// Walks rows of two sources. Channels alike are walked as elements, AC4 as pixels, which are done element by element where
// the walker asks for single ones.
[[gnu::noinline, gnu::flatten]] inline void walkTwoSources(const Operands& o, RowFunction row, const void* op,
                                                           bool* given = nullptr) {
    const Layout& l = o.layout;
    const ptrdiff_t bytes = bytesOf(o, 3);
    const bool fetched = bytes >= fetchedAheadFrom;
    const RowPlan pixelPlan{op, given, false, fetched, l.alpha, l.endPhase, 0},
        plain{op, given, false, fetched, nullptr, 0, streamedElement(o, bytes)};
    const ptrdiff_t e = l.elementBytes, parts = l.parts;
    const auto elements = [=, &plain](ptrdiff_t n, const uint8_t* a, const uint8_t* b, uint8_t* d) {
        row(n * parts, a, b, d, plain);
    };
    const auto pixels = [=, &pixelPlan](ptrdiff_t n, const uint8_t* a, const uint8_t* b, uint8_t* d) {
        if (n > 1) return row((4 * n - 1) * parts, a, b, d, pixelPlan);
        for (ptrdiff_t at = 0; at < 3 * e; at += e) elements(1, a + at, b + at, d + at);
    };
    const ptrdiff_t unit = l.alpha ? 4 : 1,
                    width = l.alpha ? o.roi.width : o.roi.width * static_cast<ptrdiff_t>(l.elements);
    const Source a{o.a, o.aStep, unit * e}, b{o.b, o.bStep, unit * e};
    const Destination d{o.dst, o.dstStep, unit * e};
    if (l.alpha)
        walkRows(width, o.roi.height, pixels, a, b, d);
    else
        walkRows(width, o.roi.height, elements, a, b, d);
    finishStreamed(plain.streamed);
}

// Walks rows of one source, with constants or without, by pixels, single ones element by element too.
[[gnu::noinline, gnu::flatten]] inline void walkOneSource(const Operands& o, RowFunction row, const void* op) {
    const Layout& l = o.layout;
    const ptrdiff_t e = l.elementBytes, pixel = l.elements * e;
    const ptrdiff_t unit = l.elements * l.parts, skipped = (l.elements - l.channels) * l.parts; // lanes
    const ptrdiff_t bytes = bytesOf(o, 2);
    const bool fetched = bytes >= fetchedAheadFrom;
    const RowPlan plan{op, nullptr, true, fetched, l.alpha, l.endPhase, streamedElement(o, bytes)},
        alike{op, nullptr, false, false, nullptr, 0, 0};
    const auto kernel = [=, &o, &l, &plan, &alike](ptrdiff_t n, const uint8_t* s, uint8_t* d) {
        const uint8_t* constants = o.constants;
        if (n > 1) return row(n * unit - skipped, s, constants, d, plan);
        for (ptrdiff_t at = 0; at < l.channels * e; at += e)
            row(l.parts, s + at, constants ? constants + at : nullptr, d + at, alike);
    };
    walkRows(o.roi.width, o.roi.height, kernel, Source{o.a, o.aStep, pixel}, Destination{o.dst, o.dstStep, pixel});
    finishStreamed(plan.streamed);
}

template <class L, class Op>
inline PxlStatus run(const Operands& operands, const Op& op) {
    if (isUnary<Op, L> || operands.constants)
        walkOneSource(operands, elementRow<Results<L, Op>>, &op);
    else
        walkTwoSources(operands, elementRow<Results<L, Op>>, &op);
    return PXL_OK;
}

template <class L, class Op>
requires Preparing<Op, L>
[[gnu::noinline]] PxlStatus run(const TwoSources& operands, const Op& op) {
    bool given = false;
    walkTwoSources(operands, elementRow<Results<L, Op>>, &op, &given);
    if constexpr (warns<Op>)
        if (given) return Op::warning;
    return PXL_OK;
}

template <class L, class Op>
requires Preparing<Op, L>
[[gnu::noinline]] PxlStatus run(const WithConstants& operands, const Op& op) {
    const PreparedConstants<L, Op> constants(op, operands);
    using Row = std::conditional_t<isLong<Op>, ConstantResults<L, Op>, ShortConstantResults<L, Op>>;
    walkOneSource(operands, elementRow<Row>, &constants);
    return PXL_OK;
}

// Fourth elements of n bytes of AC4 pixels stay, the others become 0.
inline void zeroColours(ptrdiff_t n, uint8_t* d, const uint8_t* alpha, ptrdiff_t endPhase) {
    if (n < vecBytes) return StoreEnds(LoadEnds(d, n) & LoadEnds(alpha, n), d, n);
    const ptrdiff_t last = n - vecBytes;
    const Vec<uint8_t> end = LoadU(d + last) & LoadU(alpha + endPhase);
    for (ptrdiff_t x = 0; x < last; x += vecBytes) StoreU(LoadU(d + x) & LoadU(alpha + x % (2 * vecBytes)), d + x);
    StoreU(end, d + last);
}

// dst = 0
[[gnu::noinline]] inline PxlStatus setZero(const Operands& o) {
    const Layout& l = o.layout;
    const ptrdiff_t pixel = l.elements * l.elementBytes;
    const auto row = [&](ptrdiff_t n, uint8_t* d) {
        if (l.alpha)
            zeroColours(n * pixel - l.elementBytes, d, l.alpha, l.endPhase);
        else
            std::memset(d, 0, static_cast<size_t>(n * pixel));
    };
    walkRows(o.roi.width, o.roi.height, row, Destination{o.dst, o.dstStep, pixel});
    return PXL_OK;
}

} // namespace pxl::PXL_TARGET::pointwise
