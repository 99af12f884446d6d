// Arithmetic that is made of several instructions: saturating sums of 32-bit lanes, shifts by one count for all lanes.
#pragma once

#include "frame/vec/vec.h"

namespace pxl::PXL_TARGET {

// The largest value where v is not negative, else the smallest.
template <class T>
PXL_INLINE Vec<T> SaturatedSign(Vec<T> v) {
    constexpr int bits = 8 * sizeof(T) - 1;
    return ShiftRight<bits>(v) ^ Set<T>(static_cast<T>(~(T{1} << bits)));
}

// Where 32-bit lanes have a minimum and a maximum, b is first brought to what does not overflow: a choice by a mask costs more.
PXL_INLINE Vec<int32_t> SaturatedAdd(Vec<int32_t> a, Vec<int32_t> b) {
    if constexpr (hasIntMinMax) {
        const Vec<int32_t> least = Set<int32_t>(INT32_MIN) - Min(a, Zero<int32_t>());
        const Vec<int32_t> most = Set<int32_t>(INT32_MAX) - Max(a, Zero<int32_t>());
        return a + Max(Min(b, most), least);
    }
    const Vec<int32_t> sum = BitCast<int32_t>(BitCast<uint32_t>(a) + BitCast<uint32_t>(b));
    return IfNegativeThenElse((a ^ sum) & (b ^ sum), SaturatedSign(a), sum);
}
PXL_INLINE Vec<int32_t> SaturatedSub(Vec<int32_t> a, Vec<int32_t> b) {
    if constexpr (hasIntMinMax) {
        const Vec<int32_t> least = Max(a, Set<int32_t>(-1)) - Set<int32_t>(INT32_MAX);
        const Vec<int32_t> most = Min(a, Set<int32_t>(-1)) - Set<int32_t>(INT32_MIN);
        return a - Max(Min(b, most), least);
    }
    const Vec<int32_t> difference = BitCast<int32_t>(BitCast<uint32_t>(a) - BitCast<uint32_t>(b));
    return IfNegativeThenElse((a ^ b) & (a ^ difference), SaturatedSign(a), difference);
}

// Counts below the width of the lane.
template <class T>
PXL_INLINE Vec<T> ShiftLeftSame(Vec<T> v, int count) {
    static_assert(sizeof(T) > 1);
    return {v.raw << count};
}
template <class T>
PXL_INLINE Vec<T> ShiftRightSame(Vec<T> v, int count) {
    static_assert(sizeof(T) > 1);
    return {v.raw >> count};
}

} // namespace pxl::PXL_TARGET
