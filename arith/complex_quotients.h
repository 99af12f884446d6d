// Quotients of complex elements: with the divisor x = a + bi, the dividend y = c + di and m = a*a + b*b the real part
// is (a*c + b*d) * (f/m), the imaginary part (a*d - b*c) * (f/m), with f = 2^-scaleFactor for integers and 1 for
// floats. All operations are rounded, in single precision for floats and in double precision for integers, and in just
// that order.
#pragma once

#include "arith/division.h"
#include "arith/fields.h"
#include "frame/ranges.h"

namespace pxl::PXL_TARGET::arith {

// m = 0, which small divisors reach as well, makes both parts the NaN that the processor has for 0 / 0.
struct ComplexFloatQuotient : Quotient {
    struct Divisor {
        Vec<float> real, minusImaginary, reciprocal; // in both lanes of a pair
        Mask<float> zero;
    };

    PXL_INLINE Divisor prepare(Vec<float> x) const {
        const Vec<float> squares = x * x, m = squares + Reverse2(squares);
        const Vec<float> sign = BitCast<float>(Set<uint32_t>(0x80000000));
        return {DupEven(x), DupOdd(x) ^ sign, Set<float>(1) / m, m == Zero<float>()};
    }
    PXL_INLINE Vec<float> operator()(Vec<float> y, const Divisor& x) const {
        const Vec<float> product = AddSub(x.real * y, x.minusImaginary * Reverse2(y));
        const Vec<float> undefined = BitCast<float>(Set<uint32_t>(0xFFC00000));
        return IfThenElse(x.zero, undefined, product * x.reciprocal);
    }
};

// Parts of integer elements: q + 2^15 + 0.5 (32sc: 2^31 + 0.5), truncated, a tie to even, less 2^15. The first addition
// rounds to a double, and what is left to do then is rounding to nearest. Parts outside the range saturate.
template <class L>
struct RoundPart {
    static constexpr L largest = highestOf<L>;

    // What the part is more than the smallest number, in the lower bits.
    static PXL_INLINE Vec<uint64_t> above(Vec<double> q) {
        const Vec<double> limited = Max(Min(q, Set<double>(largest)), Set<double>(-1.0 - largest));
        return BitCast<uint64_t>((limited + Set<double>(1.0 + largest)) + Set<double>(unitsAtEnd));
    }
    template <int Fields>
    static PXL_INLINE Vec<L> join(const Vec<uint64_t> (&parts)[Fields]) {
        return JoinFields<L>(parts) ^ Set<L>(static_cast<L>(~largest));
    }
};

// Parts for f = 1 are at most 2^15.5 (32sc: 2^31.5), so from 17 (34) up they all come to 0; those other than 0 are at
// least 2^-31 (2^-63), so from -48 (-96) down they all saturate.
template <class L>
inline double complexFactorOf(int scaleFactor) {
    constexpr int size = sizeof(L) / 2;
    return factorOf<double>(scaleFactor, -48 * size, 17 * size);
}

// f/m, or 0 for m = 0, which gives 0 + 0i; `zero` gets bits where m is 0.
PXL_INLINE Vec<double> scaleBy(double factor, Vec<double> m, Mask<double>& zero) {
    const Mask<double> none = m == Zero<double>();
    zero = zero | none;
    return AndNot(BitCast<double>(none), Set<double>(factor) / m);
}

template <class L>
struct ComplexQuotient;

template <>
struct ComplexQuotient<int32_t> : Quotient {
    struct Divisor {
        Vec<double> real, imaginary, scale;
        Mask<int32_t> zero; // not all 0 if a divisor is 0
    };
    double factor;

    explicit ComplexQuotient(int scaleFactor) : factor(complexFactorOf<int32_t>(scaleFactor)) {}

    PXL_INLINE Divisor prepare(Vec<int32_t> x) const {
        const Vec<double> a = Field<double, 0>(x), b = Field<double, 1>(x);
        auto zero = Zero<uint64_t>();
        const Vec<double> scale = scaleBy(factor, a * a + b * b, zero);
        return {a, b, scale, BitCast<uint32_t>(zero)};
    }
    PXL_INLINE Vec<int32_t> operator()(Vec<int32_t> y, const Divisor& x) const {
        using Part = RoundPart<int32_t>;
        const Vec<double> c = Field<double, 0>(y), d = Field<double, 1>(y);
        return Part::join({Part::above((x.real * c + x.imaginary * d) * x.scale),
                           Part::above((x.real * d - x.imaginary * c) * x.scale)});
    }
};

// Sums of products are more than -2^31, and at most 2^31: modulo 2^32 that is no loss.
template <>
struct ComplexQuotient<int16_t> : Quotient {
    struct Divisor {
        Vec<int16_t> x;
        Vec<uint32_t> imaginary;
        Vec<double> scale[2];
        Mask<int16_t> zero; // not all 0 if a divisor is 0
    };
    double factor;

    explicit ComplexQuotient(int scaleFactor) : factor(complexFactorOf<int16_t>(scaleFactor)) {}

    PXL_INLINE Divisor prepare(Vec<int16_t> x) const {
        const Vec<uint32_t> m = sums(x, x), b = BitCast<uint32_t>(ShiftRight<16>(BitCast<int32_t>(x)));
        auto zero = Zero<uint64_t>();
        const Vec<double> first = scaleBy(factor, numbers<0>(m), zero), second = scaleBy(factor, numbers<1>(m), zero);
        return {x, b, {first, second}, BitCast<uint16_t>(zero)};
    }
    PXL_INLINE Vec<int16_t> operator()(Vec<int16_t> y, const Divisor& x) const {
        using Part = RoundPart<int16_t>;
        // a*d + b*(-1 - c) and b more is a*d - b*c; -c itself might not fit.
        const Vec<int16_t> turned = Reverse2(y) ^ BitCast<int16_t>(Set<uint32_t>(0xFFFF0000));
        const Vec<uint32_t> real = sums(x.x, y), imaginary = sums(x.x, turned) + x.imaginary;
        return Part::join({Part::above(numbers<0>(real) * x.scale[0]), Part::above(numbers<0>(imaginary) * x.scale[0]),
                           Part::above(numbers<1>(real) * x.scale[1]),
                           Part::above(numbers<1>(imaginary) * x.scale[1])});
    }

private:
    static PXL_INLINE Vec<uint32_t> sums(Vec<int16_t> x, Vec<int16_t> y) {
        return BitCast<uint32_t>(WidenMulPairwiseAdd(x, y));
    }
    template <int K>
    static PXL_INLINE Vec<double> numbers(Vec<uint32_t> sum) {
        return BiasedField<K>(sum + Set<uint32_t>(INT32_MAX), INT32_MAX);
    }
};

} // namespace pxl::PXL_TARGET::arith
