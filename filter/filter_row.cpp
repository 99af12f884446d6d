// Convolution with one row of coefficients: integers with a divisor, or floats.
#include "filter/linear.h"

namespace pxl::PXL_TARGET::filter {
namespace {

template <class T, int Elements, int Channels>
PxlStatus FilterRow(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst, ImageSize roi,
                    const int32_t* kernel, int kernelSize, int xAnchor, int divisor) {
    return filterByIntegers<T>({src, dst, roi, kernel, {kernelSize, 1}, {xAnchor, 0}}, divisor);
}

template <int Elements, int Channels>
PxlStatus FilterRowFloat(Image<const float, Elements, Channels> src, Image<float, Elements, Channels> dst,
                         ImageSize roi, const float* kernel, int kernelSize, int xAnchor) {
    return filterFloats({src, dst, roi, kernel, {kernelSize, 1}, {xAnchor, 0}});
}

template <class T, int Elements, int Channels>
PxlStatus FilterRow32f(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst, ImageSize roi,
                       const float* kernel, int kernelSize, int xAnchor) {
    return filterByFloats<T>({src, dst, roi, kernel, {kernelSize, 1}, {xAnchor, 0}});
}

} // namespace
} // namespace pxl::PXL_TARGET::filter

#include "members/filter/filter_row.inc"
