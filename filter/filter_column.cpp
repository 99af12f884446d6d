// Convolution with one column of coefficients: integers with a divisor, or floats.
#include "filter/linear.h"

namespace pxl::PXL_TARGET {
namespace {

template <class T, int Elements, int Channels, class K>
Filtering<T, K> columnFiltering(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const K* kernel,
                                int size, int yAnchor) {
    return filtering<Elements, Channels>(src, srcStep, dst, dstStep, roi, kernel, {1, size}, {0, yAnchor});
}

template <class T, int Elements, int Channels>
PxlStatus FilterColumn(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const int32_t* kernel, int size,
                       int yAnchor, int divisor) {
    return filterByIntegers(
        columnFiltering<T, Elements, Channels>(src, srcStep, dst, dstStep, roi, kernel, size, yAnchor), divisor);
}

template <class T, int Elements, int Channels>
PxlStatus FilterColumnFloat(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const float* kernel,
                            int size, int yAnchor) {
    return filterFloats(columnFiltering<T, Elements, Channels>(src, srcStep, dst, dstStep, roi, kernel, size, yAnchor));
}

template <class T, int Elements, int Channels>
PxlStatus FilterColumn32f(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const float* kernel, int size,
                          int yAnchor) {
    return filterByFloats(
        columnFiltering<T, Elements, Channels>(src, srcStep, dst, dstStep, roi, kernel, size, yAnchor));
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/filter/filter_column.inc"
