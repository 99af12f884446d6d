// The normalised products of two full-range images, or of an image and one constant per channel: 8u
// (p + (p >> 8) + 1) >> 8, 16u (p + (p >> 16) + 1) >> 16 with p the product. Steps are tested before the region.
#include "arith/products.h"
#include "frame/checks.h"

namespace pxl::PXL_TARGET::arith {
namespace {

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus MulScale(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                              Image<T, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = check(null(src1, src2, dst), steps(src1, src2, dst), size(roi))) return status;
    return pointwise::run<T>(pointwise::TwoSources(src1, src2, dst, roi), NormalisedProduct{});
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus MulCScale(Image<const T, Elements, Channels> src, Values<T, Channels> values,
                               Image<T, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = check(null(src, values, dst), steps(src, dst), size(roi))) return status;
    return pointwise::run<T>(pointwise::WithConstants(src, values, dst, roi), NormalisedProduct{});
}

} // namespace
} // namespace pxl::PXL_TARGET::arith

#include "members/arith/mul_scale.inc"
