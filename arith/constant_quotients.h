// Quotients of integers and constants with result scaling.
//
// 8u and 16u: by multiplication with inverses of the constants (Granlund and Montgomery, Division by invariant integers
// using multiplication, 1994), in lanes of 16 bits. The quotient is y * P / D: P = 1 and D = x * 2^scaleFactor, or
// P = 2^-scaleFactor and D = x for negative scale factors. With P = whole * D + rest it is y * whole + y * rest / D.
// Where `inverse` is 65536 * rest / D rounded to nearest, the estimate e = y * inverse >> 16 of the second term is less
// than 1/2 above it and less than 3/2 below it, so the rounded quotient is that with e or with e + 1. Which of them, the
// remainder y * rest - e * D tells: it goes up where the remainder is larger than `even`, or than even - between where
// the quotient is odd.
#pragma once

#include "arith/quotients.h"

namespace pxl::PXL_TARGET::arith {

// ---- 8u, 16u --------------------------------------------------------------------------------------------------------

// What the division by one constant takes.
struct Inverse {
    uint16_t inverse, divisor; // 65536 * rest / D, and D, both 0 where D is larger than any dividend
    uint16_t even, between;    // what remainders are compared with
    uint16_t whole, rest;      // 16u, for negative scale factors
    uint16_t highest;          // the dividend up to which no quotient is above 65535
};

// 8u quotients are rounded to nearest, so half of D is the largest remainder that does not go up from an even quotient.
// Those of 16u are cut to 16 bits below the point first: from an even quotient fractions of 0x8001 / 65536 and more go
// up, from an odd one those of 0x7FFF / 65536 and more.
template <class T>
inline Inverse inverseOf(T x, int scaleFactor) {
    constexpr int64_t none = 1 << 20; // a divisor from which all quotients are 0
    const int64_t factor = scaleFactor < 0 ? int64_t{1} << (scaleFactor < -32 ? 32 : -scaleFactor) : 1;
    const int64_t scaled = scaleFactor > 0 ? int64_t{x} << (scaleFactor > 20 ? 20 : scaleFactor) : x;
    const int64_t d = scaled < none ? scaled : none;
    const int64_t whole = scaleFactor < 0 ? factor / d : 0, rest = factor - whole * d;
    const int64_t even = sizeof(T) == 1 ? d / 2 : (0x8001 * d - 1) / 65536;
    const int64_t odd = sizeof(T) == 1 ? (d - 1) / 2 : (0x7FFF * d + 65535) / 65536 - 1;
    const auto bits = [](int64_t v) { return static_cast<uint16_t>(v); };
    const auto atMost = [](int64_t v) { return static_cast<uint16_t>(v < 65535 ? v : 65535); };
    const int64_t within = d <= 65535; // else the estimate is 0, and even
    return {atMost(within * (2 * 65536 * rest + d) / (2 * d)),
            bits(within * d),
            atMost(even),
            bits(within * (even - odd)),
            bits(whole),
            bits(rest),
            atMost(65535 * d / factor)};
}

// The same in lanes.
template <bool Raised>
struct Inverses {
    Vec<uint16_t> inverse, divisor, even, between;

    PXL_INLINE Vec<uint16_t> of(Vec<uint16_t> y) const {
        const Vec<uint16_t> one = Set<uint16_t>(1), estimate = MulHigh(y, inverse);
        const Vec<uint16_t> highest = SaturatedAdd(estimate * divisor, even - (estimate & one) * between);
        return estimate + Min(SaturatedSub(y, highest), one);
    }
};
template <>
struct Inverses<true> {
    Vec<uint16_t> inverse, divisor, even, between, whole, rest, highest;

    // All ones for dividends above the highest one. Divisors are at most 32768; half of them is added to remainders, which
    // may be negative.
    PXL_INLINE Vec<uint16_t> of(Vec<uint16_t> y) const {
        const Vec<uint16_t> one = Set<uint16_t>(1), estimate = MulHigh(y, inverse);
        const Vec<uint16_t> half = ShiftRight<1>(divisor + one), remainder = y * rest - estimate * divisor;
        const Vec<uint16_t> quotient = y * whole + estimate, atMost = even - (quotient & one) * between;
        const Vec<uint16_t> rounded = quotient + Min(SaturatedSub(remainder + half, atMost + half), one);
        const Vec<uint16_t> within = SaturatedSub(y, highest) == Zero<uint16_t>();
        return rounded | ~within;
    }
};

// An operation for the constants of 1 to 4 channels.
template <class T, bool Raised>
struct InverseQuotient {
    static constexpr bool isLong = true;
    struct Prepared {
        Inverses<Raised> of[sizeof(T) == 1 ? 2 : 1]; // 8u: of even and odd elements
    };

    InverseQuotient(const T* constants, int channels, int scaleFactor) : count(channels) {
        for (int c = 0; c < count; ++c) {
            lane[c] = constants[c];
            inverse[c] = inverseOf(constants[c], scaleFactor);
        }
    }

    PXL_INLINE Prepared prepare(Vec<T> constants) const {
        const Vec<uint16_t> bits = BitCast<uint16_t>(constants);
        if constexpr (sizeof(T) == 1)
            return {{inversesOf(bits & Set<uint16_t>(0xFF)), inversesOf(ShiftRight<8>(bits))}};
        else
            return {{inversesOf(bits)}};
    }

    PXL_INLINE Vec<T> operator()(Vec<T> y, const Prepared& x) const {
        const Vec<uint16_t> bits = BitCast<uint16_t>(y);
        if constexpr (sizeof(T) == 1) {
            const Vec<uint16_t> mask = Set<uint16_t>(0xFF);
            const Vec<uint16_t> even = x.of[0].of(bits & mask), odd = x.of[1].of(ShiftRight<8>(bits));
            return BitCast<T>(even | ShiftLeft<8>(odd));
        } else {
            return x.of[0].of(bits);
        }
    }

private:
    int count;
    uint16_t lane[4]; // the constants
    Inverse inverse[4];

    // A number of each lane's inverse.
    PXL_INLINE Vec<uint16_t> select(Vec<uint16_t> constants, uint16_t Inverse::*number) const {
        Vec<uint16_t> selected = Set<uint16_t>(inverse[0].*number);
        for (int c = 1; c < count; ++c)
            selected = IfThenElse(constants == Set<uint16_t>(lane[c]), Set<uint16_t>(inverse[c].*number), selected);
        return selected;
    }
    PXL_INLINE Inverses<Raised> inversesOf(Vec<uint16_t> constants) const {
        Inverses<Raised> in{};
        in.inverse = select(constants, &Inverse::inverse);
        in.divisor = select(constants, &Inverse::divisor);
        in.even = select(constants, &Inverse::even);
        in.between = select(constants, &Inverse::between);
        if constexpr (Raised) {
            in.whole = select(constants, &Inverse::whole);
            in.rest = select(constants, &Inverse::rest);
            in.highest = select(constants, &Inverse::highest);
        }
        return in;
    }
};

// ---- 16s ------------------------------------------------------------------------------------------------------------

// By single-precision reciprocals. Adding 32768 rounds quotients to multiples of 2^-8 or 2^-9, as the definition has it, and
// so makes the ties again that a product has missed.
struct ReciprocalQuotient {
    static constexpr bool isLong = true;
    float factor;

    PXL_INLINE BlockNumbers prepare(Vec<int16_t> x) const {
        BlockNumbers reciprocals = blockNumbersOf(x);
        reciprocals.lower = Set<float>(factor) / reciprocals.lower;
        reciprocals.upper = Set<float>(factor) / reciprocals.upper;
        return reciprocals;
    }
    PXL_INLINE Vec<int16_t> operator()(Vec<int16_t> y, const BlockNumbers& reciprocals) const {
        const BlockNumbers dividend = blockNumbersOf(y);
        return roundShorts(dividend.lower * reciprocals.lower, dividend.upper * reciprocals.upper);
    }
};

// Divisors whose quotients come so near to the middle of two multiples of 2^-8 that the product with a reciprocal may be on
// the other side of it. All divisors and dividends were tried: those that differ are among these.
inline bool missesMiddle(int64_t divisor) {
    return divisor % 256 == 255 || divisor % 512 == 510 || divisor == 3584 || divisor == 7680;
}

// ---- regions --------------------------------------------------------------------------------------------------------

// Whether multiplication gives the quotients. 8u has shorter ways where it is not scaled down; remainders of 16u divisors
// above 32768 do not fit 16 bits where the scale factor is negative; 16s quotients that are scaled up are too fine for
// single precision.
template <class T>
inline bool hasInverse(T x, int scaleFactor) {
    if constexpr (sizeof(T) == 1) return scaleFactor > 0;
    if constexpr (std::is_unsigned_v<T>) return scaleFactor >= 0 || x <= 32768;
    const int64_t magnitude = x < 0 ? -int64_t{x} : int64_t{x};
    return scaleFactor >= 0 && !missesMiddle(magnitude << (scaleFactor > 20 ? 20 : scaleFactor));
}

template <class T>
[[gnu::noinline]] PxlStatus divideByConstants(const pointwise::WithConstants& operands, const T* constants,
                                              int channels, int scaleFactor) {
    for (int c = 0; c < channels; ++c)
        if (!hasInverse(constants[c], scaleFactor)) return divide<T>(operands, scaleFactor);
    if constexpr (std::is_signed_v<T>) {
        return pointwise::run<T>(operands, ReciprocalQuotient{factorOf<float>(scaleFactor, 0, 17)});
    } else {
        if constexpr (sizeof(T) > 1)
            if (scaleFactor < 0)
                return pointwise::run<T>(operands, InverseQuotient<T, true>(constants, channels, scaleFactor));
        return pointwise::run<T>(operands, InverseQuotient<T, false>(constants, channels, scaleFactor));
    }
}

} // namespace pxl::PXL_TARGET::arith
