// Sums and differences with result scaling, of two images or an image and constants: dst = a + b, dst = a - b.
//
// No sum is widened. Halves of unsigned sums come from averages, halves of signed ones from a + b = 2 * (a & b) + (a ^ b), so
// that the sum's lowest bit stands aside as a fraction:
//   8u, 16u  the average is (a + b) / 2 rounded up; a fraction there makes it more than the exact half
//   16s      as 16u, from lanes that are 2^15 more than the elements
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

// The difference of a + 2^15 and b + 2^15 is 2^16 less than the sum of the one and the complement of the other, and 1. Its half
// rounded down is their average; the largest difference is rounded up out of the range.
struct HalfDifference16s {
    PXL_INLINE Vec<int16_t> operator()(Vec<int16_t> a, Vec<int16_t> b) const {
        const Vec<uint16_t> x = BitCast<uint16_t>(a ^ Set<int16_t>(INT16_MIN)),
                            y = BitCast<uint16_t>(b ^ Set<int16_t>(INT16_MAX));
        const Vec<int16_t> down = BitCast<int16_t>(AverageRound(x, y)) ^ Set<int16_t>(INT16_MIN);
        return SaturatedAdd(down, (a ^ b) & down & Set<int16_t>(1));
    }
};

// ---- scaleFactor > 1 (32s: > 0) --------------------------------------------------------------------

template <class L>
struct ShiftedSum {
    RoundingShift<L> shift; // of the half

    explicit ShiftedSum(int scaleFactor) : shift(scaleFactor - 1) {}

    PXL_INLINE Vec<L> operator()(Vec<L> a, Vec<L> b) const {
        const Vec<L> up = AverageRound(a, b);
        return shift.apply(up, AndNot(a ^ b, shift.quotient(up)));
    }
};

// The sum of lanes that are 2^15 more is 2^16 more, which is 2^(16 - scaleFactor) in the result. That is even but for
// scaleFactor 16, where ties go to the odd neighbour before it is taken off.
template <>
struct ShiftedSum<int16_t> {
    RoundingShift<uint16_t> shift;
    Vec<uint16_t> more, complement;

    explicit ShiftedSum(int scaleFactor)
        : shift(scaleFactor - 1), more(Set<uint16_t>(static_cast<uint16_t>(1 << (16 - scaleFactor)))),
          complement(Set<uint16_t>(scaleFactor == 16 ? 0 : 0xFFFF)) {}

    PXL_INLINE Vec<int16_t> operator()(Vec<int16_t> a, Vec<int16_t> b) const {
        const Vec<int16_t> x = a ^ Set<int16_t>(INT16_MIN), y = b ^ Set<int16_t>(INT16_MIN);
        const Vec<uint16_t> up = AverageRound(BitCast<uint16_t>(x), BitCast<uint16_t>(y));
        return finish(up, even(up) | BitCast<uint16_t>(x ^ y));
    }

    // In bit 0, whether ties go to the quotient of the half.
    PXL_INLINE Vec<uint16_t> even(Vec<uint16_t> half) const { return shift.quotient(half) ^ complement; }
    PXL_INLINE Vec<int16_t> finish(Vec<uint16_t> half, Vec<uint16_t> even) const {
        return BitCast<int16_t>(shift.applyEven(half, even) - more);
    }
};

// As in HalfDifference16s.
struct ShiftedDifference16s : ShiftedSum<int16_t> {
    using ShiftedSum<int16_t>::ShiftedSum;

    PXL_INLINE Vec<int16_t> operator()(Vec<int16_t> a, Vec<int16_t> b) const {
        const Vec<int16_t> x = a ^ Set<int16_t>(INT16_MIN), y = b ^ Set<int16_t>(INT16_MAX);
        const Vec<uint16_t> down = AverageRound(BitCast<uint16_t>(x), BitCast<uint16_t>(y));
        return finish(down, even(down) & BitCast<uint16_t>(x ^ y));
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
        return pointwise::run<L>(operands, ShiftedSum<L>(scaleFactor));
    }
}

template <class L>
[[gnu::noinline]] inline PxlStatus subtract(const pointwise::Operands& operands, int scaleFactor) {
    if (scaleFactor >= differencesVanishFrom<L>) return pointwise::setZero(operands);
    if (scaleFactor == 0) return pointwise::run<L>(operands, SaturatedDifference{});
    if (scaleFactor < 0)
        return pointwise::run<L>(operands, Scaled{SaturatedDifference{}, SaturatingShift<L>(leftShiftOf(scaleFactor))});
    if constexpr (sizeof(L) == 4) {
        return pointwise::run<L>(operands, ShiftedDifference32s(scaleFactor));
    } else if constexpr (std::is_signed_v<L>) {
        if (scaleFactor == 1) return pointwise::run<L>(operands, HalfDifference16s{});
        return pointwise::run<L>(operands, ShiftedDifference16s(scaleFactor));
    } else {
        return pointwise::run<L>(operands, Scaled{SaturatedDifference{}, RoundingShift<L>(scaleFactor)});
    }
}

} // namespace pxl::PXL_TARGET::arith
