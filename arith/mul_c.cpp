// Products of an image and one constant per channel: dst = src * value, as those of two images.
#include "arith/complex_products.h"
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

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus MulC(Image<const T, Elements, Channels> src, Values<T, Channels> values,
                          Image<T, Elements, Channels> dst, ImageSize roi, int scaleFactor) {
    if (const PxlStatus status = checkConstants(src, values, dst, roi)) return status;
    return multiply<T>(pointwise::WithConstants(src, values, dst, roi), scaleFactor);
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
