// Quotients of two complex images: dst = src2 / src1, the first source being the divisor.
#include "arith/complex_quotients.h"

namespace pxl::PXL_TARGET {
namespace {

template <class T, int Elements, int Channels, class Op>
PxlStatus divideComplex(const T* src1, int step1, const T* src2, int step2, T* dst, int dstStep, ImageSize roi,
                        const Op& op) {
    if (anyNull(src1, src2, static_cast<const T*>(dst))) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    if (anyStepBelow1(step1, step2, dstStep)) return PXL_E_STEP;
    const Region region = regionOf<Elements, Channels>(src1, step1, src2, step2, dst, dstStep, roi);
    return divideImages<LaneOf<T>>(region, op) ? PXL_W_DIV_BY_ZERO : PXL_OK;
}

template <class T, int Elements, int Channels>
PxlStatus DivComplex(const T* src1, int step1, const T* src2, int step2, T* dst, int dstStep, ImageSize roi,
                     int scaleFactor) {
    const ComplexQuotient<LaneOf<T>> op(scaleFactor);
    return divideComplex<T, Elements, Channels>(src1, step1, src2, step2, dst, dstStep, roi, op);
}

template <class T, int Elements, int Channels>
PxlStatus DivComplexFloat(const T* src1, int step1, const T* src2, int step2, T* dst, int dstStep, ImageSize roi) {
    return divideComplex<T, Elements, Channels>(src1, step1, src2, step2, dst, dstStep, roi, ComplexFloatQuotient{});
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/arith/div_complex.inc"
