// Quotients of integers with result scaling: dst = y * 2^-scaleFactor / x, of two images or an image and constants.
//
// Most are true divisions of floating-point numbers, rounded by the processor. Where x is 0, that gives infinities,
// which saturate, and for y = 0 a NaN, which becomes 0: limits pass a NaN on, and the integer that stands for it ends
// with zeros.
#pragma once

#include "arith/division.h"
#include "arith/fields.h"
#include "frame/vec/arithmetic.h"

namespace pxl::PXL_TARGET::arith {

// min(limit, v) and max(limit, v), NaN where v is.
template <class Real>
PXL_INLINE Vec<Real> AtMost(std::type_identity_t<Real> limit, Vec<Real> v) {
    return Min(Set<Real>(limit), v);
}
template <class Real>
PXL_INLINE Vec<Real> AtLeast(std::type_identity_t<Real> limit, Vec<Real> v) {
    return Max(Set<Real>(limit), v);
}

// v rounded to what Real has in the neighbourhood of magnitude + v, ties to even.
template <class Real>
PXL_INLINE Vec<Real> RoundToGrid(Vec<Real> v, std::type_identity_t<Real> magnitude) {
    return (v + Set<Real>(magnitude)) - Set<Real>(magnitude);
}

// The quotients in numbers of type Real; round(quotients) has the results in the lower bits of its lanes.
template <class T, class Real, class Round>
struct RealQuotient : Quotient {
    static constexpr int fields = fieldsOf<T, Real>;
    struct Divisor {
        Vec<Real> field[fields];
        Mask<T> zero;
    };
    Real factor;
    [[no_unique_address]] Round round;

    explicit RealQuotient(Real f) : factor(f) {}

    PXL_INLINE Divisor prepare(Vec<T> x) const {
        Divisor divisor;
        unrolled<fields>([&](auto k) __attribute__((always_inline)) { divisor.field[k] = Field<Real, k>(x); });
        divisor.zero = x == Zero<T>();
        return divisor;
    }
    PXL_INLINE Vec<T> operator()(Vec<T> y, const Divisor& x) const {
        decltype(round(x.field[0])) result[fields];
        unrolled<fields>([&](auto k) __attribute__((always_inline)) {
            result[k] = round(Field<Real, k>(y) * Set<Real>(factor) / x.field[k]);
        });
        return JoinFields<T>(result);
    }
};

// ---- 8u -------------------------------------------------------------------------------------------------------------

// y * f / x + 0.5 in single precision, truncated, a tie to even: that is rounding to nearest. Quotients up to 256 that
// are no ties are at least 1 / (2x) away from one for f >= 1, and 1 / (2y) of the quotient for f <= 1; the rounding of
// single precision, 2^-24 of the quotient, takes none of them there.
struct RoundByte {
    PXL_INLINE Vec<uint32_t> operator()(Vec<float> q) const { return BitCast<uint32_t>(NearestInt(AtMost(255, q))); }
};
using ScaledByteQuotient = RealQuotient<uint8_t, float, RoundByte>;

// The same for f = 1, with an approximate reciprocal and the remainder to make the quotient exact.
//
// R stands for 65536 / x, and q = y * R >> 16 for the quotient. With 65536 / x - 128 < R < 65536 / x * (1 + 1 / 255) no
// q is above y / x, and all are less than 3/2 below it: y - q * x is less than 1.5 * x, and q is one too small where
// that is more than x / 2, or x / 2 with an odd q. The approximation, rounded to 16 bits below the point, is off by
// 24.5 / 65536 at most; 64 / 65536 are taken off so that the R of 1 fits into 16 bits. x = 0 has R = 0, which takes y >
// 0 to 1.
struct ByteQuotient : Quotient {
    struct Divisor {
        Vec<uint8_t> x;
        Vec<uint16_t> even, odd; // R of its elements
        Mask<uint8_t> zero;
    };

    PXL_INLINE Divisor prepare(Vec<uint8_t> x) const {
        Vec<uint32_t> r[4];
        unrolled<4>([&](auto k) __attribute__((always_inline)) {
            // The lower three bytes of a lane stay where they are, and so are 256, 65536 times as much. From 128 on,
            // the last bit of a float is 2^-16.
            constexpr int raised = k < 3 ? 8 * k : 0;
            constexpr float sixteenBits = (128 - 64 / 65536.f) / (1 << raised);
            const Vec<uint32_t> lane = BitCast<uint32_t>(x);
            const Vec<uint32_t> bits = k < 3 ? lane & Set<uint32_t>(0xFFu << raised) : ShiftRight<24>(lane);
            const Vec<float> reciprocal = ApproximateReciprocal(ConvertToFloat(BitCast<int32_t>(bits)));
            r[k] = BitCast<uint32_t>(reciprocal + Set<float>(sixteenBits));
        });
        return {x, JoinFields<uint16_t>({r[0], r[2]}), JoinFields<uint16_t>({r[1], r[3]}), x == Zero<uint8_t>()};
    }

    PXL_INLINE Vec<uint8_t> operator()(Vec<uint8_t> y, const Divisor& x) const {
        const Vec<uint16_t> lower = Set<uint16_t>(0xFF);
        const Vec<uint16_t> ys = BitCast<uint16_t>(y), xs = BitCast<uint16_t>(x.x);
        const Vec<uint16_t> even = MulHigh(ys & lower, x.even);
        const Vec<uint16_t> odd = AndNot(lower, MulHigh(AndNot(lower, ys), x.odd)); // in the upper byte
        const Vec<uint8_t> q = BitCast<uint8_t>(even | odd);
        const Vec<uint8_t> product = BitCast<uint8_t>(((even * xs) & lower) | (odd * ShiftRight<8>(xs)));

        const Vec<uint8_t> rest = y - product, one = Set<uint8_t>(1);
        const Vec<uint8_t> rounded = q + Min(SaturatedSub(rest + (q & one), SaturatedSub(x.x, rest)), one);
        return (rounded + x.zero) ^ x.zero; // x = 0: 1 becomes 255
    }
};

// ---- 16s ------------------------------------------------------------------------------------------------------------

// q + 32768 + 0.5 in single precision, truncated, a tie to even, minus 32768. The first addition rounds to what single
// precision has at that place, a multiple of 2^-8 for q >= 0; what is left to do then is rounding to nearest.

// Quotients from -32768 up, in the order of BlockNumbers.
PXL_INLINE Vec<int16_t> roundShorts(Vec<float> lower, Vec<float> upper) {
    const auto round = [](Vec<float> q) { return NearestInt(q + Set<float>(32768)); };
    return BitCast<int16_t>(ReorderDemote2To<uint16_t>(round(lower), round(upper)) ^ Set<uint16_t>(0x8000));
}

// scaleFactor 0: only -32768 / -1 is outside the range, and saturates when it is packed. In place of x = 0 stands
// 2^-16, which makes the quotient 0 or takes it far enough.
struct ShortQuotient : Quotient {
    struct Divisor {
        BlockNumbers number;
        Mask<int16_t> zero;
    };

    PXL_INLINE Divisor prepare(Vec<int16_t> x) const {
        const Mask<int16_t> zero = x == Zero<int16_t>();
        return {BlockNumbers(x, Zero<uint16_t>() - zero), zero};
    }
    PXL_INLINE Vec<int16_t> operator()(Vec<int16_t> y, const Divisor& x) const {
        const BlockNumbers dividend = blockNumbersOf(y);
        return roundShorts(dividend.lower / x.number.lower, dividend.upper / x.number.upper);
    }
};

// Other scale factors. What is far below the range saturates when it is converted and packed.
struct ScaledShortQuotient : Quotient {
    using Divisor = ShortQuotient::Divisor;
    float factor;

    explicit ScaledShortQuotient(float f) : factor(f) {}

    PXL_INLINE Divisor prepare(Vec<int16_t> x) const { return {blockNumbersOf(x), x == Zero<int16_t>()}; }
    PXL_INLINE Vec<int16_t> operator()(Vec<int16_t> y, const Divisor& x) const {
        const BlockNumbers dividend = blockNumbersOf(y);
        const auto divide = [&](Vec<float> number, Vec<float> by) {
            return AtMost(32768, number * Set<float>(factor) / by);
        };
        const Vec<int16_t> rounded =
            roundShorts(divide(dividend.lower, x.number.lower), divide(dividend.upper, x.number.upper));
        return AndNot(BitCast<int16_t>(y == Zero<int16_t>()), rounded); // 0 / 0
    }
};

// ---- 16u ------------------------------------------------------------------------------------------------------------
//
// The quotient is truncated to 16 bits below the point and then rounded; from an odd integer fractions of 0x7FFF /
// 65536 and more go up, from an even one those of 0x8001 / 65536 and more. So what is less than 2^-16 away from a tie
// is one.

// scaleFactor 0. Quotients that are no ties are at least 1 / (2x) away from one, and 1 / (2y) of the quotient, so
// rounding single-precision quotients to nearest is exact. Ties of x <= 32768 are just the true ones, too. For larger
// x, which have quotients below 2, two others count as ties, both for odd x only: 1/2 + 1 / (2x), which goes to 0, and
// 3/2 - 1 / (2x), which goes to 2.
struct WordQuotient : Quotient {
    struct Divisor {
        BlockNumbers number;
        Vec<uint16_t> x, half;
        Mask<uint16_t> close, zero;
    };

    PXL_INLINE Divisor prepare(Vec<uint16_t> x) const {
        const Vec<uint16_t> zero = Zero<uint16_t>(), oddAndLarge = Set<uint16_t>(0x8001);
        return {BlockNumbers(x), x, ShiftRight<1>(x), (x & oddAndLarge) == oddAndLarge, x == zero};
    }
    PXL_INLINE Vec<uint16_t> operator()(Vec<uint16_t> y, const Divisor& x) const {
        const BlockNumbers dividend(y);
        const Vec<int32_t> lower = NearestInt(dividend.lower / x.number.lower);
        const Vec<int32_t> upper = NearestInt(dividend.upper / x.number.upper);
        const Vec<uint16_t> beyond = SaturatedSub(y, x.half); // 1 and x at the two places
        const Vec<uint16_t> down = beyond == Set<uint16_t>(1), up = beyond == x.x;
        const Vec<uint16_t> quotients = ReorderDemote2To<uint16_t>(lower, upper) + (x.close & (down - up));
        return quotients | AndNot(up, x.zero); // x = 0 has come to 0, and is `up` for y = 0
    }
};

// x = 0: the infinities are 65535, and NaN comes to 0 where 32-bit numbers are packed.
PXL_INLINE Vec<float> limitWord(Vec<float> q) { return AtMost(65536, q); }

// scaleFactor from 1 to 17. As above; x * 2^scaleFactor is even, so ties are just the true ones, but above 65536, where
// quotients are below 1, the one next to 1/2 counts as one.
struct LoweredWordQuotient : Quotient {
    struct Divisor {
        BlockNumbers number;
        Vec<uint16_t> half;
        Mask<uint16_t> close, zero;
    };
    float factor;
    int shift;           // of the half
    uint16_t low, range; // of divisors with close quotients
    Mask<uint16_t> any;  // whether there are some

    explicit LoweredWordQuotient(int scaleFactor)
        : factor(factorOf<float>(scaleFactor, 1, 17)), shift(scaleFactor - 1),
          low(static_cast<uint16_t>((65536 >> scaleFactor) + 1)),
          range(static_cast<uint16_t>((131069 >> scaleFactor) - low)),
          any(Set<uint16_t>(scaleFactor < 16 ? 0xFFFF : 0)) {}

    PXL_INLINE Divisor prepare(Vec<uint16_t> x) const {
        const Vec<uint16_t> above = x - Set<uint16_t>(low);
        return {BlockNumbers(x), ShiftLeftSame(x, shift), any & (Min(above, Set<uint16_t>(range)) == above),
                x == Zero<uint16_t>()};
    }
    PXL_INLINE Vec<uint16_t> operator()(Vec<uint16_t> y, const Divisor& x) const {
        const BlockNumbers dividend(y);
        const auto divide = [&](Vec<float> number, Vec<float> by) {
            return NearestInt(limitWord(number * Set<float>(factor) / by));
        };
        const auto quotients =
            ReorderDemote2To<uint16_t>(divide(dividend.lower, x.number.lower), divide(dividend.upper, x.number.upper));
        return quotients + (x.close & (y - x.half == Set<uint16_t>(1)));
    }
};

// scaleFactor from -8 to -1, 16u and magnitudes of 16s. The dividend is less than 2^24, so the quotient in single precision, cut
// to an integer, is never above the true one, and one below it only where that is an integer. The remainder, which lower halves
// of dividend and product have, tells whether it goes up: where it is larger than `even`, or than even - between where the
// quotient is odd. Both come from a Rounding.
template <class T, class Rounding>
struct RaisedQuotient : Quotient {
    struct Divisor {
        BlockNumbers number;
        Vec<uint16_t> x, even, between, minus;
        Mask<T> zero;
    };
    float factor;
    int shift; // of the dividend

    explicit RaisedQuotient(int scaleFactor) : factor(factorOf<float>(scaleFactor, -8, -1)), shift(-scaleFactor) {}

    PXL_INLINE Divisor prepare(Vec<T> v) const {
        const Vec<uint16_t> minus = minusOf(v), x = (BitCast<uint16_t>(v) ^ minus) - minus;
        return {BlockNumbers(x), x, Rounding::even(x), Rounding::between(x), minus, v == Zero<T>()};
    }
    PXL_INLINE Vec<T> operator()(Vec<T> v, const Divisor& x) const {
        const Vec<uint16_t> minus = minusOf(v), y = (BitCast<uint16_t>(v) ^ minus) - minus;
        const BlockNumbers dividend(y);
        const auto divide = [&](Vec<float> number, Vec<float> by) {
            return TruncateToInt(limitWord(number * Set<float>(factor) / by));
        };
        const auto q =
            ReorderDemote2To<uint16_t>(divide(dividend.lower, x.number.lower), divide(dividend.upper, x.number.upper));
        const Vec<uint16_t> one = Set<uint16_t>(1), remainder = ShiftLeftSame(y, shift) - q * x.x;
        const Vec<uint16_t> up = Min(SaturatedSub(remainder, x.even - (q & one) * x.between), one);
        const Vec<uint16_t> magnitude = SaturatedAdd(q, AndNot(BitCast<uint16_t>(x.zero), up));
        if constexpr (std::is_unsigned_v<T>) return magnitude;
        const Vec<uint16_t> sign = minus ^ x.minus;
        return BitCast<T>((Min(magnitude, Set<uint16_t>(32767) - sign) ^ sign) - sign);
    }

private:
    PXL_INLINE static Vec<uint16_t> minusOf(Vec<T> v) {
        if constexpr (std::is_unsigned_v<T>) return Zero<uint16_t>();
        return BitCast<uint16_t>(ShiftRight<15>(v));
    }
};

// For odd x half of it is no tie, but above 32768 both neighbours of the half are.
struct CutTies {
    PXL_INLINE static Vec<uint16_t> close(Vec<uint16_t> x) { return x & ShiftRight<15>(x); }
    PXL_INLINE static Vec<uint16_t> even(Vec<uint16_t> x) { return ShiftRight<1>(x) + close(x); }
    PXL_INLINE static Vec<uint16_t> between(Vec<uint16_t> x) {
        return (AndNot(x, Set<uint16_t>(1)) + close(x)) + close(x);
    }
};

// What is left, in double precision: quotients are rounded to multiples of 2^-15, ties to even, and then to nearest. The first
// step makes ties of all that are less than 2^-16 away from one; those just 2^-16 away from one come with scaleFactor > 0 only.
struct RoundWord {
    PXL_INLINE Vec<uint64_t> operator()(Vec<double> q) const {
        const Vec<double> snapped = RoundToGrid(AtMost(65535, q), unitsAtEnd / 32768);
        return BitCast<uint64_t>(snapped + Set<double>(unitsAtEnd));
    }
};
using FarWordQuotient = RealQuotient<uint16_t, double, RoundWord>;

// ---- regions --------------------------------------------------------------------------------------------------------

// apply(operation) with the one for the scale factor. From 9 (8u), 17 (16u, 16s) up all quotients are rounded to 0;
// from -16, -32 and -31 down all but 0 saturate.
template <class L, class Apply>
PXL_INLINE auto withQuotient(int scaleFactor, Apply&& apply) {
    if constexpr (std::is_same_v<L, uint8_t>) {
        if (scaleFactor == 0) return apply(ByteQuotient{});
        return apply(ScaledByteQuotient(factorOf<float>(scaleFactor, -16, 9)));
    } else if constexpr (std::is_same_v<L, uint16_t>) {
        if (scaleFactor == 0) return apply(WordQuotient{});
        if (scaleFactor < -8) return apply(FarWordQuotient(factorOf<double>(scaleFactor, -32, -9)));
        if (scaleFactor < 0) return apply(RaisedQuotient<uint16_t, CutTies>(scaleFactor));
        return apply(LoweredWordQuotient(scaleFactor < 17 ? scaleFactor : 17));
    } else {
        if (scaleFactor == 0) return apply(ShortQuotient{});
        return apply(ScaledShortQuotient(factorOf<float>(scaleFactor, -31, 17)));
    }
}

// Of pointwise::TwoSources, the dividends first, or of pointwise::WithConstants.
template <class L, class Operands>
[[gnu::noinline]] PxlStatus divide(const Operands& operands, int scaleFactor) {
    return withQuotient<L>(scaleFactor, [&](const auto& op) { return pointwise::run<L>(operands, op); });
}

} // namespace pxl::PXL_TARGET::arith
