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

PXL_INLINE Vec<int32_t> SaturatedAdd(Vec<int32_t> a, Vec<int32_t> b) {
    const Vec<int32_t> sum = BitCast<int32_t>(BitCast<uint32_t>(a) + BitCast<uint32_t>(b));
    return IfNegativeThenElse((a ^ sum) & (b ^ sum), SaturatedSign(a), sum);
}
PXL_INLINE Vec<int32_t> SaturatedSub(Vec<int32_t> a, Vec<int32_t> b) {
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
