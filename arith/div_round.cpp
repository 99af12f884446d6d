// Quotients of two images with a rounding mode: dst = src2 * 2^-scaleFactor / src1, the first source being the divisor,
// rounded toward zero, to nearest with ties to even, or to nearest with ties away from zero; saturated.
//
// The results are those of double precision, but 8u, and 16 bits with scaleFactor >= 0, come from single precision:
// there a quotient is at least 2^-18 of it away from every integer and tie that it is not, so 2^-24 of it does not
// matter. (The quotient y / (x * 2^n) is 1 / (2y) of it away, y * 2^n / x at least 1 / (2x), with a quotient up to 256
// and x up to 255 for 8u.) 16 bits with scaleFactor from -8 to -1 are rounded by their remainders.
#include "arith/quotients.h"
#include "frame/checks.h"
#include "frame/ranges.h"

namespace pxl::PXL_TARGET::arith {
namespace {

template <int Mode>
PXL_INLINE Vec<int32_t> roundTo(Vec<float> q) {
    if constexpr (Mode == PXL_ROUND_ZERO) return TruncateToInt(q);
    if constexpr (Mode == PXL_ROUND_NEAR_EVEN) return NearestInt(q);
    const Vec<float> sign = q & Set<float>(-0.0f);
    return TruncateToInt(q + (Set<float>(0.5f) | sign));
}

template <int Mode>
struct RoundByte {
    PXL_INLINE Vec<uint32_t> operator()(Vec<float> q) const { return BitCast<uint32_t>(roundTo<Mode>(AtMost(255, q))); }
};

// 16 bits. What is far below the range, and NaN, comes to the smallest integer, which saturates when it is packed; the signed
// 0 / 0 is taken out afterwards.
template <class T, int Mode>
struct RoundedQuotient : Quotient {
    struct Divisor {
        BlockNumbers number;
        Mask<T> zero;
    };
    float factor;

    PXL_INLINE Divisor prepare(Vec<T> x) const { return {blockNumbersOf(x), x == Zero<T>()}; }
    PXL_INLINE Vec<T> operator()(Vec<T> y, const Divisor& x) const {
        const BlockNumbers dividend = blockNumbersOf(y);
        const auto divide = [&](Vec<float> number, Vec<float> by) {
            return roundTo<Mode>(AtMost(highestOf<T>, number * Set<float>(factor) / by));
        };
        const Vec<T> rounded =
            ReorderDemote2To<T>(divide(dividend.lower, x.number.lower), divide(dividend.upper, x.number.upper));
        if constexpr (std::is_signed_v<T>) return AndNot(BitCast<T>(y == Zero<T>()), rounded);
        return rounded;
    }
};

// What remainders are compared with.
template <int Mode>
struct RoundRemainder {
    PXL_INLINE static Vec<uint16_t> even(Vec<uint16_t> x) {
        const Vec<uint16_t> one = Set<uint16_t>(1);
        if constexpr (Mode == PXL_ROUND_ZERO) return x - one;
        if constexpr (Mode == PXL_ROUND_NEAR_EVEN) return ShiftRight<1>(x);
        return ShiftRight<1>(x - one);
    }
    PXL_INLINE static Vec<uint16_t> between(Vec<uint16_t> x) {
        return Mode == PXL_ROUND_NEAR_EVEN ? AndNot(x, Set<uint16_t>(1)) : Zero<uint16_t>();
    }
};

// Integers in the lower bits of doubles, negative ones as their complement.
PXL_INLINE Vec<uint64_t> lowerBits(Vec<double> integers) {
    return BitCast<uint64_t>(integers + Set<double>(1.5 * unitsAtEnd));
}

// The largest integers not above v, for 0 <= v < 2^51.
PXL_INLINE Vec<double> Floor(Vec<double> v) {
    const Vec<double> nearest = RoundToGrid(v, unitsAtEnd);
    return nearest - (BitCast<double>(nearest > v) & Set<double>(1));
}

template <class T, int Mode>
struct RoundDouble {
    PXL_INLINE Vec<uint64_t> operator()(Vec<double> q) const {
        Vec<double> limited = AtMost(highestOf<T>, q);
        if constexpr (std::is_signed_v<T>) limited = AtLeast(lowestOf<T>, limited);
        if constexpr (Mode == PXL_ROUND_NEAR_EVEN) return lowerBits(limited);
        const Vec<double> half = Set<double>(Mode == PXL_ROUND_HALF_AWAY ? 0.5 : 0);
        if constexpr (std::is_unsigned_v<T>) return lowerBits(Floor(limited + half));
        const Vec<double> sign = limited & Set<double>(-0.0);
        return lowerBits(Floor((limited ^ sign) + half) | sign);
    }
};

// From 18 up all quotients come to 0, from -33 down all but 0 saturate.
template <class T, int Mode>
PxlStatus divideRounded(const pointwise::TwoSources& operands, int scaleFactor) {
    if constexpr (sizeof(T) == 1) {
        const float factor = factorOf<float>(scaleFactor, -33, 18);
        return pointwise::run<T>(operands, RealQuotient<T, float, RoundByte<Mode>>(factor));
    } else if (scaleFactor < -8) {
        const double factor = factorOf<double>(scaleFactor, -33, -9);
        return pointwise::run<T>(operands, RealQuotient<T, double, RoundDouble<T, Mode>>(factor));
    } else if (scaleFactor < 0) {
        return pointwise::run<T>(operands, RaisedQuotient<T, RoundRemainder<Mode>>(scaleFactor));
    } else {
        return pointwise::run<T>(operands, RoundedQuotient<T, Mode>{{}, factorOf<float>(scaleFactor, 0, 18)});
    }
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus DivRound(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                              Image<T, Elements, Channels> dst, ImageSize roi, PxlRoundMode mode, int scaleFactor) {
    if (const PxlStatus status = check(null(src1, src2, dst), size(roi), steps(src1, src2, dst), roundMode(mode)))
        return status;
    static constexpr decltype(&divideRounded<T, 0>) divide[] = {
        divideRounded<T, PXL_ROUND_ZERO>, divideRounded<T, PXL_ROUND_NEAR_EVEN>, divideRounded<T, PXL_ROUND_HALF_AWAY>};
    return divide[mode](pointwise::TwoSources(src2, src1, dst, roi), scaleFactor);
}

} // namespace
} // namespace pxl::PXL_TARGET::arith

#include "members/arith/div_round.inc"
