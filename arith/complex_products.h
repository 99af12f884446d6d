// Products of complex elements with result scaling: (a + bi) * (c + di) has the real part a*c - b*d and the imaginary
// part a*d + b*c.
//
// Integer parts are exact. Both fit into twice the lane's width but for one value: an imaginary part of four smallest
// numbers is 2^31 (16sc) or 2^63 (32sc), which wraps to the negative end of the range, where no other imaginary part
// comes. It counts as one less; no scale factor tells the two apart.
#pragma once

#include "frame/scaling.h"
#include "pointwise/run.h"

namespace pxl::PXL_TARGET::arith {

struct ComplexFloatProduct {
    PXL_INLINE Vec<float> operator()(Vec<float> x, Vec<float> y) const {
        return AddSub(DupEven(x) * y, DupOdd(x) * Reverse2(y));
    }
};

// ---- 16sc -----------------------------------------------------------------------------------------------------------

// narrow(part) is applied to the parts in 32-bit lanes.
template <class Narrow>
PXL_INLINE Vec<int16_t> complexProductOf(Vec<int16_t> x, Vec<int16_t> y, Narrow&& narrow) {
    // a*c + b*(-1 - d) and b more is a*c - b*d; -d itself might not fit.
    const Vec<int16_t> conjugate = y ^ BitCast<int16_t>(Set<uint32_t>(0xFFFF0000));
    const Vec<int32_t> b = ShiftRight<16>(BitCast<int32_t>(x));
    const auto real = BitCast<int32_t>(BitCast<uint32_t>(WidenMulPairwiseAdd(x, conjugate)) + BitCast<uint32_t>(b));
    const Vec<int32_t> sum = WidenMulPairwiseAdd(x, Reverse2(y));
    const Vec<int32_t> imaginary = sum ^ BitCast<int32_t>(sum == Set<int32_t>(INT32_MIN));
    const Vec<int32_t> re = narrow(real), im = narrow(imaginary);
    return ReorderDemote2To<int16_t>(InterleaveLower(re, im), InterleaveUpper(re, im));
}

// ---- 32sc -----------------------------------------------------------------------------------------------------------

// narrow(part) is applied to the parts in 64-bit lanes; the results saturate to 32 bits.
template <class Narrow>
PXL_INLINE Vec<int32_t> complexProductOf(Vec<int32_t> x, Vec<int32_t> y, Narrow&& narrow) {
    const Vec<int32_t> xOdd = DupOdd(x), yOdd = DupOdd(y);
    const Vec<int64_t> real = MulEven(x, y) - MulEven(xOdd, yOdd);
    const auto sum = BitCast<int32_t>(BitCast<uint64_t>(MulEven(x, yOdd)) + BitCast<uint64_t>(MulEven(xOdd, y)));
    // Imaginary parts are -2^63 + 2^32 at least, so the upper half tells the one that wrapped.
    const Vec<int32_t> wrapped = BitCast<int32_t>(DupOdd(sum) == Set<int32_t>(INT32_MIN));
    const auto re = BitCast<uint64_t>(narrow(real)), im = BitCast<uint64_t>(narrow(BitCast<int64_t>(sum ^ wrapped)));

    // Lower and upper halves of both parts, each in the places of the result. A part fits where its upper half is the
    // sign of its lower one.
    const Vec<uint64_t> lowerHalf = Set<uint64_t>(0xFFFFFFFF);
    const auto low = BitCast<int32_t>((re & lowerHalf) | ShiftLeft<32>(im));
    const auto high = BitCast<int32_t>(ShiftRight<32>(re) | AndNot(lowerHalf, im));
    return IfThenElse(high == ShiftRight<31>(low), low, SaturatedSign(high));
}

// ---- scaleFactor 0 and more -----------------------------------------------------------------------------------------

template <class L>
inline constexpr bool isProductLong = sizeof(L) == 4;

template <class L>
struct SaturatedComplexProduct {
    static constexpr bool isLong = isProductLong<L>;

    PXL_INLINE Vec<L> operator()(Vec<L> x, Vec<L> y) const {
        return complexProductOf(x, y, [](auto part) { return part; });
    }
};

template <class L>
struct ShiftedComplexProduct {
    static constexpr bool isLong = isProductLong<L>;
    std::conditional_t<sizeof(L) == 2, RoundingQuotient, RoundingShift<int64_t>> shift;

    explicit ShiftedComplexProduct(int scaleFactor) : shift(scaleFactor) {}

    PXL_INLINE Vec<L> operator()(Vec<L> x, Vec<L> y) const { return complexProductOf(x, y, shift); }
};

// ---- regions --------------------------------------------------------------------------------------------------------

// Parts are at most 2^31 - 1 (16sc) and 2^63 (32sc) in magnitude.
template <class L>
inline constexpr int complexProductsVanishFrom = 16 * sizeof(L);

template <class L>
[[gnu::noinline]] inline PxlStatus multiplyComplex(const pointwise::Operands& operands, int scaleFactor) {
    if (scaleFactor >= complexProductsVanishFrom<L>) return pointwise::setZero(operands);
    if (scaleFactor == 0) return pointwise::run<L>(operands, SaturatedComplexProduct<L>{});
    if (scaleFactor > 0) return pointwise::run<L>(operands, ShiftedComplexProduct<L>(scaleFactor));
    return pointwise::run<L>(operands,
                             Scaled{SaturatedComplexProduct<L>{}, SaturatingShift<L>(leftShiftOf(scaleFactor))});
}

} // namespace pxl::PXL_TARGET::arith
