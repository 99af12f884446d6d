// Quotients of complex elements: with the divisor x = a + bi, the dividend y = c + di and m = a*a + b*b the real part
// is (a*c + b*d) * (f/m), the imaginary part (a*d - b*c) * (f/m), with f = 2^-scaleFactor for integers and 1 for
// floats. All operations are rounded, in single precision for floats and in double precision for integers, and in just
// that order.
#pragma once

#include "arith/div_rows.h"
#include "frame/vec_arith.h"
#include "frame/vec_divide.h"

namespace pxl::PXL_TARGET {

// m = 0, which small divisors reach as well, makes both parts the NaN that the processor has for 0 / 0.
struct ComplexFloatQuotient {
    struct Divisor {
        Vec<float> real, minusImaginary, reciprocal; // in both lanes of a pair
        Mask<float> zero;
    };

    PXL_INLINE Divisor prepare(Vec<float> x) const {
        const Vec<float> squares = x * x, m = squares + SwapPairs(squares);
        const Vec<float> sign = BitCast<float>(Set<uint32_t>(0x80000000));
        return {DupEven(x), DupOdd(x) ^ sign, Set<float>(1) / m, m == Zero<float>()};
    }
    PXL_INLINE Vec<float> operator()(const Divisor& x, Vec<float> y) const {
        const Vec<float> product = SubAdd(x.real * y, x.minusImaginary * SwapPairs(y));
        const Vec<float> undefined = BitCast<float>(Set<uint32_t>(0xFFC00000));
        return IfThenElse(x.zero, undefined, product * x.reciprocal);
    }
};

// 16sc and 32sc. A part q is q + 2^15 + 0.5 (32sc: 2^31), truncated, a tie to even, less 2^15: the first addition
// rounds to a double, and what is left to do is rounding to nearest. Parts outside the range saturate; m = 0 gives 0 +
// 0i.
template <class L>
struct ComplexQuotient {
    static constexpr int fields = fieldsOf<L, double>; // real and imaginary parts by turns
    struct Element {
        Vec<double> real, imaginary, scale;
    };
    struct Divisor {
        Element element[fields / 2];
        Mask<L> zero; // not all 0 if a divisor is 0
    };
    double factor;

    // Parts for f = 1 are at most 2^15.5 (32sc: 2^31.5), so from 17 (34) up they all come to 0; those other than 0 are
    // at least 2^-31 (2^-63), so from -48 (-96) down they all saturate.
    explicit ComplexQuotient(int scaleFactor) : factor(factorOf<double>(scaleFactor, -48 * size, 17 * size)) {}

    PXL_INLINE Divisor prepare(Vec<L> x) const {
        Divisor divisor;
        divisor.zero = Zero<MaskLane<L>>();
        unrolled<fields / 2>([&](auto e) __attribute__((always_inline)) {
            const Vec<double> a = Field<double, 2 * e>(x), b = Field<double, 2 * e + 1>(x), m = a * a + b * b;
            const Mask<double> none = m == Zero<double>();
            divisor.element[e] = {a, b, AndNot(BitCast<double>(none), Set<double>(factor) / m)};
            divisor.zero = divisor.zero | BitCast<MaskLane<L>>(none);
        });
        return divisor;
    }

    PXL_INLINE Vec<L> operator()(const Divisor& x, Vec<L> y) const {
        Vec<uint64_t> part[fields];
        unrolled<fields / 2>([&](auto e) __attribute__((always_inline)) {
            const auto& [a, b, scale] = x.element[e];
            const Vec<double> c = Field<double, 2 * e>(y), d = Field<double, 2 * e + 1>(y);
            part[2 * e] = round((a * c + b * d) * scale);
            part[2 * e + 1] = round((a * d - b * c) * scale);
        });
        return JoinFields<L>(part) ^ Set<L>(static_cast<L>(~largest));
    }

private:
    static constexpr int size = sizeof(L) / 2;
    static constexpr L largest = sizeof(L) == 2 ? INT16_MAX : INT32_MAX;

    // What the part is more than the smallest number, in the lower bits.
    static PXL_INLINE Vec<uint64_t> round(Vec<double> q) {
        const Vec<double> limited = Max(Min(q, Set<double>(largest)), Set<double>(-1.0 - largest));
        return BitCast<uint64_t>((limited + Set<double>(1.0 + largest)) + Set<double>(unitsAtEnd));
    }
};

} // namespace pxl::PXL_TARGET
