// Sums and differences with result scaling, of two images or an image and constants: dst = a + b, dst = a - b.
//
// No sum is widened but those of 16s under scaleFactor > 1. Halves of unsigned sums come from averages, halves of
// signed ones from a + b = 2 * (a & b) + (a ^ b), so that the sum's lowest bit stands aside as a fraction:
//   8u, 16u  the average is (a + b) / 2 rounded up; a fraction there makes it more than the exact half
//   32s      the half is rounded down; a fraction there makes it less than the exact half
// Differences of unsigned lanes stop at 0 before scaling. Complex elements are lanes like any other.
#pragma once

#include "frame/scaling.h"
#include "pointwise/run.h"

namespace pxl::PXL_TARGET::arith {

struct SaturatedSum {
    template <class L>
    PXL_INLINE Vec<L> operator()(Vec<L> a, Vec<L> b) const {
        return SaturatedAdd(a, b);
    }
};
struct SaturatedDifference {
    template <class L>
    PXL_INLINE Vec<L> operator()(Vec<L> a, Vec<L> b) const {
        return SaturatedSub(a, b);
    }
};
struct FloatSum {
    PXL_INLINE Vec<float> operator()(Vec<float> a, Vec<float> b) const { return a + b; }
};
struct FloatDifference {
    PXL_INLINE Vec<float> operator()(Vec<float> a, Vec<float> b) const { return a - b; }
};

// ---- scaleFactor 1 --------------------------------------------------------------------------------------------------

// A sum with a fraction is a tie: the odd one of its neighbours is left for the even one.
struct HalfSum {
    template <class L>
    requires std::is_unsigned_v<L> PXL_INLINE Vec<L>
    operator()(Vec<L> a, Vec<L> b) const {
        const Vec<L> up = AverageRound(a, b);
        return up - ((a ^ b) & up & Set<L>(1));
    }
    PXL_INLINE Vec<int16_t> operator()(Vec<int16_t> a, Vec<int16_t> b) const {
        const Vec<int16_t> odd = a ^ b;
        const Vec<int16_t> down = (a & b) + ShiftRight<1>(odd);
        return down + (odd & down & Set<int16_t>(1));
    }
};

// ---- scaleFactor > 1 (16s differences, 32s: > 0) --------------------------------------------------------------------

template <class L>
struct ShiftedSum {
    RoundingShift<L> shift; // of the half

    explicit ShiftedSum(int scaleFactor) : shift(scaleFactor - 1) {}

    PXL_INLINE Vec<L> operator()(Vec<L> a, Vec<L> b) const {
        const Vec<L> up = AverageRound(a, b);
        return shift.apply(up, AndNot(a ^ b, shift.quotient(up)));
    }
};

// Sums of pairs of products with 1, or 1 and -1.
struct ShiftedSum16s {
    Vec<int16_t> signs;
    RoundingShift<int32_t> shift;

    ShiftedSum16s(int scaleFactor, bool difference)
        : signs(BitCast<int16_t>(Set<uint32_t>(difference ? 0xFFFF0001 : 0x00010001))), shift(scaleFactor) {}

    PXL_INLINE Vec<int16_t> operator()(Vec<int16_t> a, Vec<int16_t> b) const {
        const Vec<int32_t> lower = WidenMulPairwiseAdd(InterleaveLower(a, b), signs);
        const Vec<int32_t> upper = WidenMulPairwiseAdd(InterleaveUpper(a, b), signs);
        return ReorderDemote2To<int16_t>(shift(lower), shift(upper));
    }
};

// Sums have 33 bits: the quotient is taken from the half, the fraction from the low 32 bits. scaleFactor 32, whose
// fraction has all 32 of them, works on halves into which the last bit is folded: it only tells a tie from something
// more.
struct ShiftedSum32s {
    ShiftCount<int32_t> quotient;
    ShiftCount<uint32_t> fold;
    Vec<uint32_t> folded;
    RoundingQuotient rounding;

    explicit ShiftedSum32s(int scaleFactor)
        : quotient(scaleFactor - 1), fold(scaleFactor > 31), folded(Set<uint32_t>(scaleFactor > 31)),
          rounding(scaleFactor > 31 ? 31 : scaleFactor) {}

    PXL_INLINE Vec<int32_t> round(Vec<int32_t> half, Vec<uint32_t> low) const {
        return rounding.apply(half >> quotient, BitCast<int32_t>((low >> fold) | (low & folded)));
    }
    PXL_INLINE Vec<int32_t> operator()(Vec<int32_t> a, Vec<int32_t> b) const {
        return round((a & b) + ShiftRight<1>(a ^ b), BitCast<uint32_t>(a) + BitCast<uint32_t>(b));
    }
};

// a - b is a + ~b + 1, and its half rounded down is that of a + ~b rounded up. Only the largest difference with
// scaleFactor 1 is rounded up out of the range.
struct ShiftedDifference32s : ShiftedSum32s {
    using ShiftedSum32s::ShiftedSum32s;

    PXL_INLINE Vec<int32_t> operator()(Vec<int32_t> a, Vec<int32_t> b) const {
        const Vec<int32_t> half = (a | ~b) - ShiftRight<1>(a ^ ~b);
        const Vec<int32_t> q = half >> quotient;
        const Vec<int32_t> rounded = round(half, BitCast<uint32_t>(a) - BitCast<uint32_t>(b));
        return BitCast<int32_t>(BitCast<uint32_t>(rounded) + (q > rounded));
    }
};

// ---- regions --------------------------------------------------------------------------------------------------------

// The scale factor from which on every sum, or difference, is rounded to 0.
template <class L>
inline constexpr int sumsVanishFrom = sizeof(L) == 1        ? 10
                                      : sizeof(L) == 4      ? 33
                                      : std::is_signed_v<L> ? 17
                                                            : 18;
template <class L>
inline constexpr int differencesVanishFrom = std::is_signed_v<L> ? sumsVanishFrom<L> : sumsVanishFrom<L> - 1;

template <class L>
[[gnu::noinline]] inline PxlStatus add(const pointwise::Operands& operands, int scaleFactor) {
    if (scaleFactor >= sumsVanishFrom<L>) return pointwise::setZero(operands);
    if (scaleFactor == 0) return pointwise::run<L>(operands, SaturatedSum{});
    if (scaleFactor < 0)
        return pointwise::run<L>(operands, Scaled{SaturatedSum{}, SaturatingShift<L>(leftShiftOf(scaleFactor))});
    if constexpr (sizeof(L) == 4) {
        return pointwise::run<L>(operands, ShiftedSum32s(scaleFactor));
    } else {
        if (scaleFactor == 1) return pointwise::run<L>(operands, HalfSum{});
        if constexpr (std::is_signed_v<L>)
            return pointwise::run<L>(operands, ShiftedSum16s(scaleFactor, false));
        else
            return pointwise::run<L>(operands, ShiftedSum<L>(scaleFactor));
    }
}

template <class L>
[[gnu::noinline]] inline PxlStatus subtract(const pointwise::Operands& operands, int scaleFactor) {
    if (scaleFactor >= differencesVanishFrom<L>) return pointwise::setZero(operands);
    if (scaleFactor == 0) return pointwise::run<L>(operands, SaturatedDifference{});
    if (scaleFactor < 0)
        return pointwise::run<L>(operands, Scaled{SaturatedDifference{}, SaturatingShift<L>(leftShiftOf(scaleFactor))});
    if constexpr (sizeof(L) == 4)
        return pointwise::run<L>(operands, ShiftedDifference32s(scaleFactor));
    else if constexpr (std::is_signed_v<L>)
        return pointwise::run<L>(operands, ShiftedSum16s(scaleFactor, true));
    else
        return pointwise::run<L>(operands, Scaled{SaturatedDifference{}, RoundingShift<L>(scaleFactor)});
}

} // namespace pxl::PXL_TARGET::arith
