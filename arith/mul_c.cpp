// Products of an image and one constant per channel: dst = src * value, as those of two images.
#include "arith/complex_products.h"
#include "arith/division.h"
#include "arith/fields.h"
#include "arith/products.h"
#include "frame/checks.h"

namespace pxl::PXL_TARGET::arith {
namespace {

// Any step is taken.
template <class T, int Elements, int Channels>
PxlStatus checkConstants(Image<const T, Elements, Channels> src, Values<T, Channels> values,
                         Image<T, Elements, Channels> dst, ImageSize roi) {
    return check(null(src, values, dst), size(roi));
}

// Products of 16-bit lanes and constants in single precision, rounded by the conversion to integers. For 1 <= scaleFactor <= 8
// they are exact: those below 2^16 are multiples of 2^-8, which a float holds, and larger ones stay as large. scaleFactor < 0
// makes products that are too large to convert, so they are Limited.
template <class L, bool Limited>
struct FloatScaledProduct {
    struct Factor {
        Vec<float> lower, upper;
    };
    static constexpr bool isSigned = std::is_signed_v<L>;
    float scale;

    explicit FloatScaledProduct(int scaleFactor) : scale(factorOf<float>(scaleFactor, -32, 8)) {
        if (isSigned) scale /= 65536.f * 65536.f; // the numbers of a and b are 65536 times as much
    }

    PXL_INLINE Vec<int32_t> round(Vec<float> product) const {
        return NearestInt(Limited ? Min(product, Set<float>(65536)) : product);
    }
    PXL_INLINE Factor prepare(Vec<L> b) const {
        const BlockNumbers numbers = blockNumbersOf(b);
        return {numbers.lower * Set<float>(scale), numbers.upper * Set<float>(scale)};
    }
    PXL_INLINE Vec<L> operator()(Vec<L> a, const Factor& b) const {
        const BlockNumbers numbers = blockNumbersOf(a);
        return ReorderDemote2To<L>(round(numbers.lower * b.lower), round(numbers.upper * b.upper));
    }
};

template <class L>
[[gnu::noinline]] PxlStatus multiplyByConstants(const pointwise::WithConstants& operands, int scaleFactor) {
    if constexpr (sizeof(L) == 2) {
        if (scaleFactor < 0) return pointwise::run<L>(operands, FloatScaledProduct<L, true>(scaleFactor));
        if (scaleFactor > 0 && scaleFactor <= 8)
            return pointwise::run<L>(operands, FloatScaledProduct<L, false>(scaleFactor));
    }
    return multiply<L>(operands, scaleFactor);
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus MulC(Image<const T, Elements, Channels> src, Values<T, Channels> values,
                          Image<T, Elements, Channels> dst, ImageSize roi, int scaleFactor) {
    if (const PxlStatus status = checkConstants(src, values, dst, roi)) return status;
    return multiplyByConstants<T>(pointwise::WithConstants(src, values, dst, roi), scaleFactor);
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus MulCFloat(Image<const T, Elements, Channels> src, Values<T, Channels> values,
                               Image<T, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = checkConstants(src, values, dst, roi)) return status;
    return pointwise::run<float>(pointwise::WithConstants(src, values, dst, roi), FloatProduct{});
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus MulCComplex(Image<const T, Elements, Channels> src, Values<T, Channels> values,
                                 Image<T, Elements, Channels> dst, ImageSize roi, int scaleFactor) {
    if (const PxlStatus status = checkConstants(src, values, dst, roi)) return status;
    return multiplyComplex<LaneOf<T>>(pointwise::WithConstants(src, values, dst, roi), scaleFactor);
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus MulCComplexFloat(Image<const T, Elements, Channels> src, Values<T, Channels> values,
                                      Image<T, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = checkConstants(src, values, dst, roi)) return status;
    return pointwise::run<float>(pointwise::WithConstants(src, values, dst, roi), ComplexFloatProduct{});
}

} // namespace
} // namespace pxl::PXL_TARGET::arith

#include "members/arith/mul_c.inc"
