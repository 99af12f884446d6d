// Convolution with a kernel of the image's own kind: integer kernels with a divisor on integer images, float kernels on
// 32f.
#include "filter/linear.h"

namespace pxl::PXL_TARGET::filter {
namespace {

template <class T, int Elements, int Channels>
PxlStatus Filter(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst, ImageSize roi,
                 const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor) {
    return filterByIntegers<T>({src, dst, roi, kernel, kernelSize, anchor}, divisor);
}

template <int Elements, int Channels>
PxlStatus FilterFloat(Image<const float, Elements, Channels> src, Image<float, Elements, Channels> dst, ImageSize roi,
                      const float* kernel, ImageSize kernelSize, ImagePoint anchor) {
    return filterFloats({src, dst, roi, kernel, kernelSize, anchor});
}

} // namespace
} // namespace pxl::PXL_TARGET::filter

#include "members/filter/filter.inc"
