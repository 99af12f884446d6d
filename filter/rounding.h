// From a sum to an element: division by a divisor that is known once per call, rounding, and saturation by the pack
// that follows.
//
// A result turns vectors of sums into vectors of 32-bit integers that only need saturation to the element type. Which
// of its formulas applies is decided once per call and looked at once per block of the row.
#pragma once

#include <bit>

#include "frame/ranges.h"
#include "frame/scaling.h"
#include "frame/vec/vec.h"
#include "pxli.h"

namespace pxl::PXL_TARGET::filter {

// ---- floats ---------------------------------------------------------------------------------------------------------

// Half away from zero: twice the fraction truncates to -1, 0 or 1. Adding 0.5 before would round values just below it
// up.
PXL_INLINE Vec<int32_t> NearestAway(Vec<float> v) {
    const Vec<int32_t> whole = TruncateToInt(v);
    const Vec<float> fraction = v - ConvertToFloat(whole);
    return whole + TruncateToInt(fraction + fraction);
}

// Saturates before it converts, since integers of 32 bits may be too narrow for v. NaN, which sums that overflow may give, is 0.
template <class T>
class FloatResult {
public:
    explicit FloatResult(int roundMode = PXL_ROUND_NEAR_EVEN) : mode_(roundMode) {}

    template <int N>
    PXL_INLINE void operator()(const Vec<float> (&v)[N], Vec<int32_t> (&result)[N]) const {
        switch (mode_) {
        case PXL_ROUND_ZERO:
            return apply(v, result, [](Vec<float> x) { return TruncateToInt(x); });
        case PXL_ROUND_NEAR_EVEN:
            return apply(v, result, [](Vec<float> x) { return NearestInt(x); });
        default:
            return apply(v, result, [](Vec<float> x) { return NearestAway(x); });
        }
    }

private:
    template <int N, class Round>
    PXL_INLINE static void apply(const Vec<float> (&v)[N], Vec<int32_t> (&result)[N], const Round& round) {
#pragma GCC unroll 4
        for (int i = 0; i < N; ++i) result[i] = round(saturated(v[i]));
    }

    // Max gives its second operand for NaN, which is 0 for unsigned types.
    PXL_INLINE static Vec<float> saturated(Vec<float> v) {
        if constexpr (lowestOf<T> < 0) v = IfThenElseZero(v == v, v);
        return Min(Max(v, Set<float>(lowestOf<T>)), Set<float>(highestOf<T>));
    }

    int mode_;
};

// ---- integer sums ---------------------------------------------------------------------------------------------------

// Integers as doubles in two registers, and back from the lower half of every double: the lower and the upper half of
// each block.
struct BlockDoubles {
    Vec<double> lower, upper;

    // Below 2^52 a biased integer is a double as soon as the upper half of 2^52 stands above it.
    PXL_INLINE explicit BlockDoubles(Vec<int32_t> v) {
        const Vec<uint32_t> biased = BitCast<uint32_t>(v) ^ Set<uint32_t>(0x80000000);
        const Vec<uint32_t> above = Set<uint32_t>(0x43300000);
        const Vec<double> bias = Set<double>(0x1p52 + 0x1p31);
        lower = BitCast<double>(InterleaveLower(biased, above)) - bias;
        upper = BitCast<double>(InterleaveUpper(biased, above)) - bias;
    }

    // Of doubles in the range of 32s: to nearest, ties to even.
    PXL_INLINE Vec<int32_t> nearest() const {
        const Vec<double> unitsAtEnd = Set<double>(0x1.8p52);
        return BitCast<int32_t>(
            ConcatEvenBlocks(BitCast<float>(lower + unitsAtEnd), BitCast<float>(upper + unitsAtEnd)));
    }
};

// Quotients of 32-bit integers, rounded as the exact quotient is. Their double-precision product with the reciprocal is
// off by less than 2^-36 where it does not saturate. Multiples of 1/2 stand at least 2^-32 apart from any other
// quotient, so the nearest multiple of 2^-33 is exact for the former and on the right side of them for the latter. The
// other modes are to nearest too, once a little less than 1/2 is taken from the magnitude or a little is added to it.
class Quotient {
public:
    Quotient(int divisor, int roundMode)
        : reciprocal_(Set<double>(1.0 / divisor)), nudge_(Set<double>(roundMode == PXL_ROUND_ZERO ? -(0.5 - 0x1p-34)
                                                                      : roundMode == PXL_ROUND_HALF_AWAY ? 0x1p-34
                                                                                                         : 0)) {}

    PXL_INLINE Vec<int32_t> operator()(Vec<int32_t> sum) const {
        BlockDoubles v(sum);
        v.lower = rounding(v.lower);
        v.upper = rounding(v.upper);
        return v.nearest();
    }

private:
    PXL_INLINE Vec<double> rounding(Vec<double> sum) const {
        const Vec<double> grid = Set<double>(0x1.8p19); // doubles of this size end with 2^-33
        const Vec<double> limit = Set<double>(0x1p30);  // -2^31 / -1 would not fit
        const Vec<double> v = (Min(sum * reciprocal_, limit) + grid) - grid;
        return v + (nudge_ ^ (v & Set<double>(-0.0)));
    }

    Vec<double> reciprocal_, nudge_;
};

// The quotients of 8u, by definition a single-precision product with the reciprocal.
class FloatQuotient {
public:
    FloatQuotient(int divisor, int roundMode)
        : reciprocal_(Set<float>(1.0f / static_cast<float>(divisor))), result_(roundMode) {}

    template <int N>
    PXL_INLINE void operator()(const Vec<int32_t> (&sum)[N], Vec<int32_t> (&result)[N]) const {
        Vec<float> v[N];
#pragma GCC unroll 4
        for (int i = 0; i < N; ++i) v[i] = ConvertToFloat(sum[i]) * reciprocal_;
        result_(v, result);
    }

private:
    Vec<float> reciprocal_;
    FloatResult<uint8_t> result_;
};

inline bool isPowerOf2(int divisor) { return divisor > 0 && std::has_single_bit(static_cast<unsigned>(divisor)); }

enum class Division { none, shift, quotient };

// Powers of two are shifts where that is the same: not for 8u with a mode, whose quotients are those of the rounded
// float.
template <class T>
inline Division divisionFor(int divisor, int roundMode, bool ofRoundForm) {
    if (divisor == 1) return Division::none;
    const bool shifts = isPowerOf2(divisor) && (ofRoundForm ? sizeof(T) > 1 && roundMode == PXL_ROUND_NEAR_EVEN : true);
    return shifts ? Division::shift : Division::quotient;
}

template <class T>
class IntegerResult {
public:
    explicit IntegerResult(int divisor) : IntegerResult(divisor, PXL_ROUND_NEAR_EVEN, false) {}
    IntegerResult(int divisor, int roundMode) : IntegerResult(divisor, roundMode, true) {}

    Division division() const { return division_; }
    int shift() const { return shift_; }

    template <int N>
    PXL_INLINE void operator()(const Vec<int32_t> (&sum)[N], Vec<int32_t> (&result)[N]) const {
        switch (division_) {
        case Division::none:
#pragma GCC unroll 4
            for (int i = 0; i < N; ++i) result[i] = sum[i];
            return;
        case Division::shift:
#pragma GCC unroll 4
            for (int i = 0; i < N; ++i) result[i] = shifted_(sum[i]);
            return;
        default:
            divide(sum, result);
        }
    }

private:
    using Quotients = std::conditional_t<sizeof(T) == 1, FloatQuotient, Quotient>;

    IntegerResult(int divisor, int roundMode, bool ofRoundForm)
        : division_(divisionFor<T>(divisor, roundMode, ofRoundForm)),
          shift_(division_ == Division::shift ? std::countr_zero(static_cast<unsigned>(divisor)) : 1), shifted_(shift_),
          quotients_(divisor, roundMode) {}

    template <int N>
    PXL_INLINE void divide(const Vec<int32_t> (&sum)[N], Vec<int32_t> (&result)[N]) const {
        if constexpr (sizeof(T) == 1) {
            quotients_(sum, result);
        } else {
#pragma GCC unroll 4
            for (int i = 0; i < N; ++i) result[i] = quotients_(sum[i]);
        }
    }

    Division division_;
    int shift_;
    RoundingQuotient shifted_;
    Quotients quotients_;
};

} // namespace pxl::PXL_TARGET::filter
