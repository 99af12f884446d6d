// Quotients of an image and one constant per channel: dst = src / value, as those of two images; 32f multiplies by the
// reciprocals. A constant of 0 is an error: 0 of either sign, complex a + bi with a*a + b*b = 0.
#include "arith/complex_quotients.h"
#include "arith/products.h"
#include "arith/quotients.h"

namespace pxl::PXL_TARGET {
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

template <int Channels, class T>
bool anyZero(const T* values) {
    for (int c = 0; c < Channels; ++c)
        if (isZero(load1(values + c))) return true;
    return false;
}

template <int Channels, class T>
PxlStatus testDivisors(const T* src, int srcStep, const T* values, const T* dst, int dstStep, ImageSize roi) {
    if (anyNull(src, values, dst)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    if (anyStepBelow1(srcStep, dstStep)) return PXL_E_STEP;
    return anyZero<Channels>(values) ? PXL_E_DIV_BY_ZERO : PXL_OK;
}

// Runs work(region) if the arguments are good.
template <int Elements, int Channels, class T, class Work>
PxlStatus withDivisors(const T* src, int srcStep, const T* values, T* dst, int dstStep, ImageSize roi, Work&& work) {
    const PxlStatus status = testDivisors<Channels, T>(src, srcStep, values, dst, dstStep, roi);
    if (status != PXL_OK) return status;
    ConstantRow row;
    work(constantRegionOf<Elements, Channels>(src, srcStep, values, dst, dstStep, roi, row));
    return PXL_OK;
}

template <class T, int Elements, int Channels>
PxlStatus DivC(const T* src, int srcStep, ValueArg<T, Channels> value, T* dst, int dstStep, ImageSize roi,
               int scaleFactor) {
    return withDivisors<Elements, Channels>(
        src, srcStep, valuesOf<Channels>(value), dst, dstStep, roi,
        [&](const Region& region) { divideRegionByConstants<T>(region, scaleFactor); });
}

template <class T, int Elements, int Channels>
PxlStatus DivCFloat(const T* src, int srcStep, ValueArg<T, Channels> value, T* dst, int dstStep, ImageSize roi) {
    const T* values = valuesOf<Channels>(value);
    const PxlStatus status = testDivisors<Channels, T>(src, srcStep, values, dst, dstStep, roi);
    if (status != PXL_OK) return status;
    T reciprocals[Channels];
    for (int c = 0; c < Channels; ++c) reciprocals[c] = 1 / load1(values + c);
    ConstantRow row;
    run<T>(constantRegionOf<Elements, Channels>(src, srcStep, reciprocals, dst, dstStep, roi, row), FloatProduct{});
    return PXL_OK;
}

template <class T, int Elements, int Channels>
PxlStatus DivCComplex(const T* src, int srcStep, ValueArg<T, Channels> value, T* dst, int dstStep, ImageSize roi,
                      int scaleFactor) {
    using L = LaneOf<T>;
    return withDivisors<Elements, Channels>(
        src, srcStep, valuesOf<Channels>(value), dst, dstStep, roi,
        [&](const Region& region) { divideByConstants<L>(region, ComplexQuotient<L>(scaleFactor)); });
}

template <class T, int Elements, int Channels>
PxlStatus DivCComplexFloat(const T* src, int srcStep, ValueArg<T, Channels> value, T* dst, int dstStep, ImageSize roi) {
    return withDivisors<Elements, Channels>(
        src, srcStep, valuesOf<Channels>(value), dst, dstStep, roi,
        [](const Region& region) { divideByConstants<float>(region, ComplexFloatQuotient{}); });
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/arith/div_c.inc"
