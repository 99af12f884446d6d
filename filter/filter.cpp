// Convolution with a kernel of the image's own kind: integer kernels with a divisor on integer images, float kernels on
// 32f.
#include "filter/linear.h"

namespace pxl::PXL_TARGET {
namespace {

template <class T, int Elements, int Channels>
PxlStatus Filter(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const int32_t* kernel, ImageSize size,
                 ImagePoint anchor, int divisor) {
    return filterByIntegers(filtering<Elements, Channels>(src, srcStep, dst, dstStep, roi, kernel, size, anchor),
                            divisor);
}

template <class T, int Elements, int Channels>
PxlStatus FilterFloat(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const float* kernel,
                      ImageSize size, ImagePoint anchor) {
    return filterFloats(filtering<Elements, Channels>(src, srcStep, dst, dstStep, roi, kernel, size, anchor));
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/filter/filter.inc"
