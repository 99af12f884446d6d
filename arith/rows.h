// The row engines of element-wise operations in templates of their own: two sources, or a source and one constant per
// channel. Plain constants and two sources are regions of arith/region.h; here stand operations whose constants are more than
// values.
#pragma once

#include "arith/region.h"

namespace pxl::PXL_TARGET {

template <class T>
PXL_INLINE const LaneOf<T>* asLanes(const T* p) {
    return reinterpret_cast<const LaneOf<T>*>(p);
}
template <class T>
PXL_INLINE LaneOf<T>* asLanes(T* p) {
    return reinterpret_cast<LaneOf<T>*>(p);
}

// Walks dst = op(src1, src2) over a region. Channels alike are walked as elements; AC4 as pixels, and element by element
// where the walker asks for single pixels.
template <int Elements, int Channels, class T, class Op>
inline void walkBinary(const T* src1, int step1, const T* src2, int step2, T* dst, int dstStep, ImageSize roi,
                       const Op& op) {
    run<LaneOf<T>>(regionOf<Elements, Channels>(src1, step1, src2, step2, dst, dstStep, roi), op);
}

// Walks dst = op(src, constant of the channel). Single pixels, which the walker asks for where operands overlap, are done
// element by element.
template <int Elements, int Channels, class T, class Op>
inline void walkConstant(const T* src, int srcStep, const T* values, T* dst, int dstStep, ImageSize roi, const Op& op) {
    ConstantRow row;
    run<LaneOf<T>>(constantRegionOf<Elements, Channels>(src, srcStep, values, dst, dstStep, roi, row), op);
}

// d[i] = op(s[i], c[i % period]); what stands in the constants of a vector is between the caller and the operation.
template <int Count, class L, class C, class Op>
PXL_INLINE void constantRow(ptrdiff_t n, const L* s, L* d, const C (&constants)[Count], const Op& op) {
    constexpr int step = lanes<L>;
    constexpr int unroll = Count == 1 ? 2 : Count;
    ptrdiff_t x = 0;
    for (; x + unroll * step <= n; x += unroll * step) {
        Vec<L> result[unroll];
        for (int v = 0; v < unroll; ++v) result[v] = op(LoadU(s + x + v * step), constants[v % Count]);
        for (int v = 0; v < unroll; ++v) StoreU(result[v], d + x + v * step);
    }
    const auto block = [&](L* to, const L* p) {
        for (int v = 0; v < Count; ++v) StoreU(op(LoadU(p + v * step), constants[v]), to + v * step);
    };
    rowByBlocks<Count * step>(n - x, block, d + x, s + x);
}

template <class T, class C, class Op>
PXL_INLINE void constantColourRow(ptrdiff_t n, const LaneOf<T>* s, LaneOf<T>* d, const C& constants, const Op& op) {
    using L = LaneOf<T>;
    static_assert(4 * sizeof(T) <= vecBytes);
    const auto keep = BitCast<MaskLane<L>>(AlphaMask<T>());
    const auto block = [&](L* to, const L* p, const L* old) {
        StoreU(IfThenElse(keep, LoadU(old), op(LoadU(p), constants)), to);
    };
    rowByBlocks<lanes<L>>((4 * n - 1) * partsOf<T>, block, d, s, static_cast<const L*>(d));
}

// Walks dst = op(src, constants of the channel) where what the operation gets of the constants is its own matter:
// Make<Elements, Channels>(values).vectors are the constants of a row. Single pixels, which the walker asks for where
// operands overlap, are done element by element.
template <int Elements, int Channels, template <int, int> class Make, class T, class V, class Op>
inline void walkWithConstants(const T* src, int srcStep, const V* values, T* dst, int dstStep, ImageSize roi,
                              const Op& op) {
    constexpr int parts = partsOf<T>;
    const Make<Elements, Channels> constants(values);
    const auto row = [&](ptrdiff_t n, const T* s, T* d) {
        if (Elements > 1 && n == 1) {
            for (int c = 0; c < Channels; ++c) {
                const Make<1, 1> single(values + c);
                constantRow(parts, asLanes(s + c), asLanes(d + c), single.vectors, op);
            }
        } else if constexpr (Channels == Elements) {
            constantRow(n * Elements * parts, asLanes(s), asLanes(d), constants.vectors, op);
        } else {
            constantColourRow<T>(n, asLanes(s), asLanes(d), constants.vectors[0], op);
        }
    };
    walk(roi, row, operand(src, srcStep, Elements), operand(dst, dstStep, Elements));
}

} // namespace pxl::PXL_TARGET
