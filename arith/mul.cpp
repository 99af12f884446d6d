// Products of two images: dst = src1 * src2. How they are scaled stands in arith/products.h.
#include "arith/products.h"
#include "frame/checks.h"

namespace pxl::PXL_TARGET::arith {
namespace {

template <class T, int Elements, int Channels>
PxlStatus checkPair(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                    Image<T, Elements, Channels> dst, ImageSize roi) {
    return check(widenedSize(dst, roi), null(src1, src2, dst), size(roi));
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus Mul(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                         Image<T, Elements, Channels> dst, ImageSize roi, int scaleFactor) {
    if (const PxlStatus status = checkPair(src1, src2, dst, roi)) return status;
    return multiply<T>(pointwise::TwoSources(src1, src2, dst, roi), scaleFactor);
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus MulFloat(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                              Image<T, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = checkPair(src1, src2, dst, roi)) return status;
    return pointwise::run<float>(pointwise::TwoSources(src1, src2, dst, roi), FloatProduct{});
}

} // namespace
} // namespace pxl::PXL_TARGET::arith

#include "members/arith/mul.inc"
