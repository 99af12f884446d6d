// Convolution with an integer kernel and a divisor, the quotient rounded by a mode. No buffer is needed.
#include "filter/linear.h"

namespace pxl::PXL_TARGET::filter {
namespace {

template <class T, int Elements, int Channels>
PxlStatus FilterRound(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst, ImageSize roi,
                      const int32_t* kernel, ImageSize kernelSize, ImagePoint anchor, int divisor, PxlRoundMode mode,
                      uint8_t* /*buffer*/) {
    return filterByIntegers<T>({src, dst, roi, kernel, kernelSize, anchor}, divisor, mode);
}

} // namespace
} // namespace pxl::PXL_TARGET::filter

#include "members/filter/filter_round_int.inc"
