// Sums and differences of an image and one constant per channel: dst = src + value, dst = src - value, as those of two
// images.
#include "arith/sums.h"
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
PXL_INLINE PxlStatus AddC(Image<const T, Elements, Channels> src, Values<T, Channels> values,
                          Image<T, Elements, Channels> dst, ImageSize roi, int scaleFactor) {
    if (const PxlStatus status = checkConstants(src, values, dst, roi)) return status;
    return add<LaneOf<T>>(pointwise::WithConstants(src, values, dst, roi), scaleFactor);
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus SubC(Image<const T, Elements, Channels> src, Values<T, Channels> values,
                          Image<T, Elements, Channels> dst, ImageSize roi, int scaleFactor) {
    if (const PxlStatus status = checkConstants(src, values, dst, roi)) return status;
    return subtract<LaneOf<T>>(pointwise::WithConstants(src, values, dst, roi), scaleFactor);
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus AddCFloat(Image<const T, Elements, Channels> src, Values<T, Channels> values,
                               Image<T, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = checkConstants(src, values, dst, roi)) return status;
    return pointwise::run<float>(pointwise::WithConstants(src, values, dst, roi), FloatSum{});
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus SubCFloat(Image<const T, Elements, Channels> src, Values<T, Channels> values,
                               Image<T, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = checkConstants(src, values, dst, roi)) return status;
    return pointwise::run<float>(pointwise::WithConstants(src, values, dst, roi), FloatDifference{});
}

} // namespace
} // namespace pxl::PXL_TARGET::arith

#include "members/arith/add_sub_c.inc"
