// The ways from the arguments of a linear filter to its engine. Rows and columns are kernels of one row or one column.
#pragma once

#include "filter/pairs.h"
#include "window/checks.h"

namespace pxl::PXL_TARGET::filter {

// Forms without a divisor or a mode leave them as they are.
template <class T, class K>
inline PxlStatus checkLinear(const Operands<T, K>& o, int divisor = 1, PxlRoundMode mode = PXL_ROUND_NEAR_EVEN) {
    const int64_t width = o.roi.width, reach = int64_t{o.kernelSize.width} - 1, pixelBytes = o.src.pixelBytes;
    return check(null(o.src, o.dst.base, o.kernel), size(o.roi), size(o.kernelSize),
                 refuse(divisor == 0, PXL_E_DIVISOR), window::stepHolds(o.src, (width + reach) * pixelBytes),
                 window::stepHolds(o.dst, width * pixelBytes), roundMode(mode));
}

template <class T>
[[gnu::noinline]] PxlStatus filterByIntegers(const Operands<T, int32_t>& o, int divisor) {
    if (const PxlStatus status = checkLinear(o, divisor)) return status;
    filterIntegers(o, IntegerResult<T>(divisor));
    return PXL_OK;
}

template <class T>
[[gnu::noinline]] PxlStatus filterByIntegers(const Operands<T, int32_t>& o, int divisor, PxlRoundMode mode) {
    if (const PxlStatus status = checkLinear(o, divisor, mode)) return status;
    filterIntegers(o, IntegerResult<T>(divisor, mode));
    return PXL_OK;
}

// Float kernels on float images.
[[gnu::noinline]] inline PxlStatus filterFloats(const Operands<float, float>& o) {
    if (const PxlStatus status = checkLinear(o)) return status;
    filterBySums<PlainSums<float, float>>(o, SumItself{});
    return PXL_OK;
}

// Float kernels on integer images.
template <class T>
[[gnu::noinline]] PxlStatus filterByFloats(const Operands<T, float>& o) {
    if (const PxlStatus status = checkLinear(o)) return status;
    filterBySums<PlainSums<T, float>>(o, FloatResult<T>());
    return PXL_OK;
}

template <class T>
[[gnu::noinline]] PxlStatus filterByFloats(const Operands<T, float>& o, PxlRoundMode mode) {
    if (const PxlStatus status = checkLinear(o, 1, mode)) return status;
    filterBySums<WidenedSums<T>>(o, FloatResult<T>(mode));
    return PXL_OK;
}

} // namespace pxl::PXL_TARGET::filter
