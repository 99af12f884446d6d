// Products of two complex images: dst = src1 * src2. How they are formed and scaled stands in arith/complex_products.h.
#include "arith/checks.h"
#include "arith/complex_products.h"

namespace pxl::PXL_TARGET {
namespace {

template <class T, int Elements, int Channels>
PxlStatus MulComplex(const T* src1, int step1, const T* src2, int step2, T* dst, int dstStep, ImageSize roi,
                     int scaleFactor) {
    return withPair<Elements, Channels>(src1, step1, src2, step2, dst, dstStep, roi,
                                        [&](const Region& r) { multiplyComplexRegion<LaneOf<T>>(r, scaleFactor); });
}

template <class T, int Elements, int Channels>
PxlStatus MulComplexFloat(const T* src1, int step1, const T* src2, int step2, T* dst, int dstStep, ImageSize roi) {
    return withPair<Elements, Channels>(src1, step1, src2, step2, dst, dstStep, roi,
                                        [](const Region& r) { run<float>(r, ComplexFloatProduct{}); });
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/arith/mul_complex.inc"
