// Convolution with one row of coefficients: integers with a divisor, or floats.
#include "filter/linear.h"

namespace pxl::PXL_TARGET {
namespace {

template <class T, int Elements, int Channels, class K>
Filtering<T, K> rowFiltering(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const K* kernel, int size,
                             int xAnchor) {
    return filtering<Elements, Channels>(src, srcStep, dst, dstStep, roi, kernel, {size, 1}, {xAnchor, 0});
}

template <class T, int Elements, int Channels>
PxlStatus FilterRow(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const int32_t* kernel, int size,
                    int xAnchor, int divisor) {
    return filterByIntegers(rowFiltering<T, Elements, Channels>(src, srcStep, dst, dstStep, roi, kernel, size, xAnchor),
                            divisor);
}

template <class T, int Elements, int Channels>
PxlStatus FilterRowFloat(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const float* kernel, int size,
                         int xAnchor) {
    return filterFloats(rowFiltering<T, Elements, Channels>(src, srcStep, dst, dstStep, roi, kernel, size, xAnchor));
}

template <class T, int Elements, int Channels>
PxlStatus FilterRow32f(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const float* kernel, int size,
                       int xAnchor) {
    return filterByFloats(rowFiltering<T, Elements, Channels>(src, srcStep, dst, dstStep, roi, kernel, size, xAnchor));
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/filter/filter_row.inc"
