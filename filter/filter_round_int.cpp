// Convolution with an integer kernel and a divisor, the quotient rounded by a mode. No buffer is needed.
#include "filter/linear.h"

namespace pxl::PXL_TARGET {
namespace {

template <class T, int Elements, int Channels>
PxlStatus FilterRound(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const int32_t* kernel,
                      ImageSize size, ImagePoint anchor, int divisor, PxlRoundMode roundMode, uint8_t* /*buffer*/) {
    return filterByIntegers(filtering<Elements, Channels>(src, srcStep, dst, dstStep, roi, kernel, size, anchor),
                            divisor, roundMode);
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/filter/filter_round_int.inc"
