// Products of an image and one constant per channel: dst = src * value, as those of two images.
#include "arith/checks.h"
#include "arith/complex_products.h"
#include "arith/products.h"

namespace pxl::PXL_TARGET {
namespace {

template <class T, int Elements, int Channels>
PxlStatus MulC(const T* src, int srcStep, ValueArg<T, Channels> value, T* dst, int dstStep, ImageSize roi,
               int scaleFactor) {
    return withConstants<Elements, Channels>(src, srcStep, valuesOf<Channels>(value), dst, dstStep, roi,
                                             [&](const Region& r) { multiplyRegion<T>(r, scaleFactor); });
}

template <class T, int Elements, int Channels>
PxlStatus MulCFloat(const T* src, int srcStep, ValueArg<T, Channels> value, T* dst, int dstStep, ImageSize roi) {
    return withConstants<Elements, Channels>(src, srcStep, valuesOf<Channels>(value), dst, dstStep, roi,
                                             [](const Region& r) { run<float>(r, FloatProduct{}); });
}

template <class T, int Elements, int Channels>
PxlStatus MulCComplex(const T* src, int srcStep, ValueArg<T, Channels> value, T* dst, int dstStep, ImageSize roi,
                      int scaleFactor) {
    return withConstants<Elements, Channels>(
        src, srcStep, valuesOf<Channels>(value), dst, dstStep, roi,
        [&](const Region& r) { multiplyComplexRegion<LaneOf<T>>(r, scaleFactor); });
}

template <class T, int Elements, int Channels>
PxlStatus MulCComplexFloat(const T* src, int srcStep, ValueArg<T, Channels> value, T* dst, int dstStep, ImageSize roi) {
    return withConstants<Elements, Channels>(src, srcStep, valuesOf<Channels>(value), dst, dstStep, roi,
                                             [](const Region& r) { run<float>(r, ComplexFloatProduct{}); });
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/arith/mul_c.inc"
