// Quotients of an image and one constant per channel: dst = src / value, as those of two images; 32f multiplies by the
// reciprocals. A constant of 0 is an error: 0 of either sign, complex a + bi with a*a + b*b = 0.
#include "arith/complex_quotients.h"
#include "arith/constant_quotients.h"
#include "arith/products.h"
#include "frame/checks.h"

namespace pxl::PXL_TARGET::arith {
namespace {

template <class T>
bool isZero(T value) {
    if constexpr (partsOf<T> == 1)
        return value == 0;
    else if constexpr (std::is_same_v<LaneOf<T>, float>)
        return value.re * value.re + value.im * value.im == 0;
    else
        return value.re == 0 && value.im == 0;
}

template <class T, int Channels>
bool anyZero(Values<T, Channels> values) {
    for (int c = 0; c < Channels; ++c)
        if (isZero(values[c])) return true;
    return false;
}

template <class T, int Elements, int Channels>
PxlStatus checkConstants(Image<const T, Elements, Channels> src, Values<T, Channels> values,
                         Image<T, Elements, Channels> dst, ImageSize roi) {
    return check(null(src, values, dst), size(roi), steps(src, dst),
                 refuseIf([&] { return anyZero(values); }, PXL_E_DIV_BY_ZERO));
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus DivC(Image<const T, Elements, Channels> src, Values<T, Channels> values,
                          Image<T, Elements, Channels> dst, ImageSize roi, int scaleFactor) {
    if (const PxlStatus status = checkConstants(src, values, dst, roi)) return status;
    return divideByConstants(pointwise::WithConstants(src, values, dst, roi), values.base, Channels, scaleFactor);
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus DivCFloat(Image<const T, Elements, Channels> src, Values<T, Channels> values,
                               Image<T, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = checkConstants(src, values, dst, roi)) return status;
    T reciprocals[Channels];
    for (int c = 0; c < Channels; ++c) reciprocals[c] = 1 / values[c];
    const Values<T, Channels> factors{reciprocals};
    return pointwise::run<T>(pointwise::WithConstants(src, factors, dst, roi), FloatProduct{});
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus DivCComplex(Image<const T, Elements, Channels> src, Values<T, Channels> values,
                                 Image<T, Elements, Channels> dst, ImageSize roi, int scaleFactor) {
    if (const PxlStatus status = checkConstants(src, values, dst, roi)) return status;
    using L = LaneOf<T>;
    return pointwise::run<L>(pointwise::WithConstants(src, values, dst, roi), ComplexQuotient<L>(scaleFactor));
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus DivCComplexFloat(Image<const T, Elements, Channels> src, Values<T, Channels> values,
                                      Image<T, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = checkConstants(src, values, dst, roi)) return status;
    return pointwise::run<float>(pointwise::WithConstants(src, values, dst, roi), ComplexFloatQuotient{});
}

} // namespace
} // namespace pxl::PXL_TARGET::arith

#include "members/arith/div_c.inc"
