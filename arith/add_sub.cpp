// Sums and differences of two images: dst = src1 + src2, dst = src2 - src1. How they are scaled stands in arith/sums.h.
//
// 16u members whose results all vanish are to look at the sources before the destination and the region, which no
// caller can tell from the order of the others.
#include "arith/sums.h"
#include "frame/checks.h"

namespace pxl::PXL_TARGET::arith {
namespace {

// Real members take any step.
template <class T, int Elements, int Channels>
PxlStatus checkPair(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                    Image<T, Elements, Channels> dst, ImageSize roi) {
    return check(widenedSize(dst, roi), null(src1, src2, dst), size(roi), onlyIf(isComplex<T>, steps(src1, src2, dst)));
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus Add(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                         Image<T, Elements, Channels> dst, ImageSize roi, int scaleFactor) {
    if (const PxlStatus status = checkPair(src1, src2, dst, roi)) return status;
    return add<LaneOf<T>>(pointwise::TwoSources(src1, src2, dst, roi), scaleFactor);
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus Sub(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                         Image<T, Elements, Channels> dst, ImageSize roi, int scaleFactor) {
    if (const PxlStatus status = checkPair(src1, src2, dst, roi)) return status;
    return subtract<LaneOf<T>>(pointwise::TwoSources(src2, src1, dst, roi), scaleFactor);
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus AddFloat(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                              Image<T, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = checkPair(src1, src2, dst, roi)) return status;
    return pointwise::run<float>(pointwise::TwoSources(src1, src2, dst, roi), FloatSum{});
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus SubFloat(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                              Image<T, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = checkPair(src1, src2, dst, roi)) return status;
    return pointwise::run<float>(pointwise::TwoSources(src2, src1, dst, roi), FloatDifference{});
}

} // namespace
} // namespace pxl::PXL_TARGET::arith

#include "members/arith/add_sub.inc"
