// The ways from the arguments of a linear filter to its engine. Rows and columns are kernels of one row or one column.
#pragma once

#include "filter/pairs.h"

namespace pxl::PXL_TARGET {

template <int Elements, int Channels, class T, class K>
inline Filtering<T, K> filtering(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const K* kernel,
                                 ImageSize size, ImagePoint anchor) {
    return {src, srcStep, dst, dstStep, roi, kernel, size, anchor, Elements, Channels < Elements};
}

template <class T>
[[gnu::noinline]] PxlStatus filterByIntegers(const Filtering<T, int32_t>& f, int divisor) {
    const PxlStatus status = checkFilter(f, {.divisor = divisor});
    if (status == PXL_OK) filterIntegers(f, IntegerResult<T>(divisor));
    return status;
}

template <class T>
[[gnu::noinline]] PxlStatus filterByIntegers(const Filtering<T, int32_t>& f, int divisor, PxlRoundMode roundMode) {
    const PxlStatus status = checkFilter(f, {.divisor = divisor, .roundMode = roundMode});
    if (status == PXL_OK) filterIntegers(f, IntegerResult<T>(divisor, roundMode));
    return status;
}

// Float kernels on float images.
[[gnu::noinline]] inline PxlStatus filterFloats(const Filtering<float, float>& f) {
    const PxlStatus status = checkFilter(f);
    if (status == PXL_OK) filterBySums<PlainSums<float, float>>(f, SumItself{});
    return status;
}

// Float kernels on integer images.
template <class T>
[[gnu::noinline]] PxlStatus filterByFloats(const Filtering<T, float>& f) {
    const PxlStatus status = checkFilter(f);
    if (status == PXL_OK) filterBySums<PlainSums<T, float>>(f, FloatResult<T>());
    return status;
}

template <class T>
[[gnu::noinline]] PxlStatus filterByFloats(const Filtering<T, float>& f, PxlRoundMode roundMode) {
    const PxlStatus status = checkFilter(f, {.roundMode = roundMode});
    if (status == PXL_OK) filterBySums<WidenedSums<T>>(f, FloatResult<T>(roundMode));
    return status;
}

} // namespace pxl::PXL_TARGET
