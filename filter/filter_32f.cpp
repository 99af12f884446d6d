// Convolution of integer images with a float kernel, rounded to nearest even.
#include "filter/linear.h"

namespace pxl::PXL_TARGET {
namespace {

template <class T, int Elements, int Channels>
PxlStatus Filter32f(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const float* kernel, ImageSize size,
                    ImagePoint anchor) {
    return filterByFloats(filtering<Elements, Channels>(src, srcStep, dst, dstStep, roi, kernel, size, anchor));
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/filter/filter_32f.inc"
