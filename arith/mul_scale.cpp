// The normalised products of two full-range images, or of an image and one constant per channel: 8u
// (p + (p >> 8) + 1) >> 8, 16u (p + (p >> 16) + 1) >> 16 with p the product. Steps are tested before the region.
#include "arith/checks.h"
#include "arith/products.h"

namespace pxl::PXL_TARGET {
namespace {

template <class T, class... Step>
inline PxlStatus check(const T* src, const T* second, const T* dst, ImageSize roi, Step... steps) {
    if (anyNull(src, second, dst)) return PXL_E_NULL_PTR;
    if (anyStepBelow1(steps...)) return PXL_E_STEP;
    if (isEmpty(roi)) return PXL_E_SIZE;
    return PXL_OK;
}

template <class T, int Elements, int Channels>
PxlStatus MulScale(const T* src1, int step1, const T* src2, int step2, T* dst, int dstStep, ImageSize roi) {
    const PxlStatus status = check(src1, src2, static_cast<const T*>(dst), roi, step1, step2, dstStep);
    if (status != PXL_OK) return status;
    run<T>(regionOf<Elements, Channels>(src1, step1, src2, step2, dst, dstStep, roi), NormalisedProduct{});
    return PXL_OK;
}

template <class T, int Elements, int Channels>
PxlStatus MulCScale(const T* src, int srcStep, ValueArg<T, Channels> value, T* dst, int dstStep, ImageSize roi) {
    const T* values = valuesOf<Channels>(value);
    const PxlStatus status = check(src, values, static_cast<const T*>(dst), roi, srcStep, dstStep);
    if (status != PXL_OK) return status;
    ConstantRow row;
    run<T>(constantRegionOf<Elements, Channels>(src, srcStep, values, dst, dstStep, roi, row), NormalisedProduct{});
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/arith/mul_scale.inc"
