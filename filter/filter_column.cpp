// Convolution with one column of coefficients: integers with a divisor, or floats.
#include "filter/linear.h"

namespace pxl::PXL_TARGET::filter {
namespace {

template <class T, int Elements, int Channels>
PxlStatus FilterColumn(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst, ImageSize roi,
                       const int32_t* kernel, int kernelSize, int yAnchor, int divisor) {
    return filterByIntegers<T>({src, dst, roi, kernel, {1, kernelSize}, {0, yAnchor}}, divisor);
}

template <int Elements, int Channels>
PxlStatus FilterColumnFloat(Image<const float, Elements, Channels> src, Image<float, Elements, Channels> dst,
                            ImageSize roi, const float* kernel, int kernelSize, int yAnchor) {
    return filterFloats({src, dst, roi, kernel, {1, kernelSize}, {0, yAnchor}});
}

template <class T, int Elements, int Channels>
PxlStatus FilterColumn32f(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst, ImageSize roi,
                          const float* kernel, int kernelSize, int yAnchor) {
    return filterByFloats<T>({src, dst, roi, kernel, {1, kernelSize}, {0, yAnchor}});
}

} // namespace
} // namespace pxl::PXL_TARGET::filter

#include "members/filter/filter_column.inc"
