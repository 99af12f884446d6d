// Convolution of integer images with a float kernel, rounded to nearest even.
#include "filter/linear.h"

namespace pxl::PXL_TARGET::filter {
namespace {

template <class T, int Elements, int Channels>
PxlStatus Filter32f(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst, ImageSize roi,
                    const float* kernel, ImageSize kernelSize, ImagePoint anchor) {
    return filterByFloats<T>({src, dst, roi, kernel, kernelSize, anchor});
}

} // namespace
} // namespace pxl::PXL_TARGET::filter

#include "members/filter/filter_32f.inc"
