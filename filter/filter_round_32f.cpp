// Convolution of integer images with a float kernel, summed in double precision and rounded by a mode. No buffer is
// needed.
#include "filter/linear.h"

namespace pxl::PXL_TARGET {
namespace {

template <class T, int Elements, int Channels>
PxlStatus FilterRound32f(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const float* kernel,
                         ImageSize size, ImagePoint anchor, PxlRoundMode roundMode, uint8_t* /*buffer*/) {
    return filterByFloats(filtering<Elements, Channels>(src, srcStep, dst, dstStep, roi, kernel, size, anchor),
                          roundMode);
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/filter/filter_round_32f.inc"
