// Products of two complex images: dst = src1 * src2. How they are formed and scaled stands in arith/complex_products.h.
#include "arith/complex_products.h"
#include "frame/checks.h"

namespace pxl::PXL_TARGET::arith {
namespace {

template <class T, int Elements, int Channels>
PxlStatus checkPair(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                    Image<T, Elements, Channels> dst, ImageSize roi) {
    return check(widenedSize(dst, roi), null(src1, src2, dst), size(roi), steps(src1, src2, dst));
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus MulComplex(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                                Image<T, Elements, Channels> dst, ImageSize roi, int scaleFactor) {
    if (const PxlStatus status = checkPair(src1, src2, dst, roi)) return status;
    return multiplyComplex<LaneOf<T>>(pointwise::TwoSources(src1, src2, dst, roi), scaleFactor);
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus MulComplexFloat(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                                     Image<T, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = checkPair(src1, src2, dst, roi)) return status;
    return pointwise::run<float>(pointwise::TwoSources(src1, src2, dst, roi), ComplexFloatProduct{});
}

} // namespace
} // namespace pxl::PXL_TARGET::arith

#include "members/arith/mul_complex.inc"
