// Products of real elements with result scaling, of two images or an image and constants: dst = a * b; and the
// normalised products of full-range values.
//
// Lanes of 8 bits widen to 16. A product of 16-bit lanes is kept as its upper and its lower half, each in a vector of
// its own, and 16u results come from those halves; 16s ones need 32-bit lanes for their sign.
#pragma once

#include "frame/scaling.h"
#include "pointwise/run.h"

namespace pxl::PXL_TARGET::arith {

struct FloatProduct {
    PXL_INLINE Vec<float> operator()(Vec<float> a, Vec<float> b) const { return a * b; }
};

// ---- 8u -------------------------------------------------------------------------------------------------------------

// narrow(product) is applied to products in 16-bit lanes and must leave at most 32767.
template <class Narrow>
PXL_INLINE Vec<uint8_t> productOf(Vec<uint8_t> a, Vec<uint8_t> b, Narrow&& narrow) {
    const Vec<uint8_t> zero = Zero<uint8_t>();
    const auto lower = BitCast<uint16_t>(InterleaveLower(a, zero)) * BitCast<uint16_t>(InterleaveLower(b, zero));
    const auto upper = BitCast<uint16_t>(InterleaveUpper(a, zero)) * BitCast<uint16_t>(InterleaveUpper(b, zero));
    return ReorderDemote2To<uint8_t>(narrow(lower), narrow(upper));
}

// ---- 16u, 16s -------------------------------------------------------------------------------------------------------

template <class L>
struct Halves {
    Vec<L> high;
    Vec<uint16_t> low;
    PXL_INLINE Halves(Vec<L> a, Vec<L> b) : high(MulHigh(a, b)), low(BitCast<uint16_t>(a) * BitCast<uint16_t>(b)) {}
};

// narrow(product) is applied to products in 32-bit lanes.
template <class Narrow>
PXL_INLINE Vec<int16_t> productOf(Vec<int16_t> a, Vec<int16_t> b, Narrow&& narrow) {
    const Halves<int16_t> p(a, b);
    const Vec<int16_t> low = BitCast<int16_t>(p.low);
    const auto lower = BitCast<int32_t>(InterleaveLower(low, p.high));
    const auto upper = BitCast<int32_t>(InterleaveUpper(low, p.high));
    return ReorderDemote2To<int16_t>(narrow(lower), narrow(upper));
}

// ---- scaleFactor 0 --------------------------------------------------------------------------------------------------

struct SaturatedProduct {
    PXL_INLINE Vec<uint8_t> operator()(Vec<uint8_t> a, Vec<uint8_t> b) const {
        return productOf(a, b, [](Vec<uint16_t> p) { return BitCast<int16_t>(Min(p, Set<uint16_t>(255))); });
    }
    PXL_INLINE Vec<uint16_t> operator()(Vec<uint16_t> a, Vec<uint16_t> b) const {
        const Halves<uint16_t> p(a, b);
        return p.low | ~(p.high == Zero<uint16_t>());
    }
    PXL_INLINE Vec<int16_t> operator()(Vec<int16_t> a, Vec<int16_t> b) const {
        return productOf(a, b, [](Vec<int32_t> p) { return p; });
    }
};

// ---- scaleFactor > 0 ------------------------------------------------------------------------------------------------

template <class L>
struct ShiftedProduct;

template <>
struct ShiftedProduct<uint8_t> {
    RoundingShift<uint16_t> shift;

    explicit ShiftedProduct(int scaleFactor) : shift(scaleFactor) {}

    PXL_INLINE Vec<uint8_t> operator()(Vec<uint8_t> a, Vec<uint8_t> b) const {
        return productOf(a, b, [this](Vec<uint16_t> p) { return BitCast<int16_t>(shift(p)); });
    }
};

template <>
struct ShiftedProduct<int16_t> {
    RoundingShift<int32_t> shift; // products are at most 2^30 in magnitude

    explicit ShiftedProduct(int scaleFactor) : shift(scaleFactor) {}

    PXL_INLINE Vec<int16_t> operator()(Vec<int16_t> a, Vec<int16_t> b) const { return productOf(a, b, shift); }
};

// 16u, scaleFactor up to 16. The quotient is put together from the upper half, shifted up, and the lower one, which is
// rounded as in RoundingShift and may carry into the upper one. Upper halves of 2^scaleFactor and more overflow: adding
// what brings the smallest of them to 65535 finds them.
template <>
struct ShiftedProduct<uint16_t> {
    Vec<uint16_t> up, down, filling;
    RoundedAverage<uint16_t> rounded;

    explicit ShiftedProduct(int scaleFactor)
        : up(powerToShiftLeft(16 - scaleFactor)), down(powerToShiftRight(scaleFactor)),
          filling(Set<uint16_t>(static_cast<uint16_t>(scaleFactor > 15 ? 0 : 65535 - (1 << scaleFactor)))),
          rounded(scaleFactor) {}

    PXL_INLINE Vec<uint16_t> operator()(Vec<uint16_t> a, Vec<uint16_t> b) const {
        const Halves<uint16_t> p(a, b);
        const Vec<uint16_t> raised = p.high * up;
        const Vec<uint16_t> odd = raised | MulHigh(p.low, down);
        const Vec<uint16_t> lowered = rounded(SaturatedSub(p.low, AndNot(odd, Set<uint16_t>(1))));
        return SaturatedAdd(raised, lowered) | (SaturatedAdd(p.high, filling) == ~Zero<uint16_t>());
    }
};

// 16u, scaleFactor from 17 up: the upper half is the value, and the lower one a fraction of it.
struct ShiftedHighProduct {
    RoundingShift<uint16_t> shift;

    explicit ShiftedHighProduct(int scaleFactor) : shift(scaleFactor - 16) {}

    PXL_INLINE Vec<uint16_t> operator()(Vec<uint16_t> a, Vec<uint16_t> b) const {
        const Halves<uint16_t> p(a, b);
        return shift.apply(p.high, shift.quotient(p.high) | ~(p.low == Zero<uint16_t>()));
    }
};

// ---- normalised products --------------------------------------------------------------------------------------------

// p / 255 and p / 65535, rounded up or down a little: 8u (p + (p >> 8) + 1) >> 8, 16u (p + (p >> 16) + 1) >> 16.
struct NormalisedProduct {
    // With p = 256 * h + l the result is h, and one more where h + l + 1 carries out of 8 bits; (p + 1) * 257 carries
    // out of its lower half into h for just the same h and l.
    PXL_INLINE Vec<uint8_t> operator()(Vec<uint8_t> a, Vec<uint8_t> b) const {
        return productOf(
            a, b, [](Vec<uint16_t> p) { return BitCast<int16_t>(MulHigh(p + Set<uint16_t>(1), Set<uint16_t>(257))); });
    }
    // The carry of h + l + 1 is the highest bit of their average.
    PXL_INLINE Vec<uint16_t> operator()(Vec<uint16_t> a, Vec<uint16_t> b) const {
        const Halves<uint16_t> p(a, b);
        return p.high + ShiftRight<15>(AverageRound(p.high, p.low));
    }
};

// ---- regions --------------------------------------------------------------------------------------------------------

// The scale factor from which on every product is rounded to 0.
template <class L>
inline constexpr int productsVanishFrom = sizeof(L) == 1        ? 17
                                          : std::is_signed_v<L> ? 31
                                                                : 33;

template <class L>
[[gnu::noinline]] inline PxlStatus multiply(const pointwise::Operands& operands, int scaleFactor) {
    if (scaleFactor >= productsVanishFrom<L>) return pointwise::setZero(operands);
    if (scaleFactor == 0) return pointwise::run<L>(operands, SaturatedProduct{});
    if (scaleFactor < 0)
        return pointwise::run<L>(operands, Scaled{SaturatedProduct{}, SaturatingShift<L>(leftShiftOf(scaleFactor))});
    if constexpr (std::is_same_v<L, uint16_t>)
        if (scaleFactor > 16) return pointwise::run<L>(operands, ShiftedHighProduct(scaleFactor));
    return pointwise::run<L>(operands, ShiftedProduct<L>(scaleFactor));
}

} // namespace pxl::PXL_TARGET::arith
