// Convolution of integer images with a float kernel, summed in double precision and rounded by a mode. No buffer is
// needed.
#include "filter/linear.h"

namespace pxl::PXL_TARGET::filter {
namespace {

template <class T, int Elements, int Channels>
PxlStatus FilterRound32f(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst, ImageSize roi,
                         const float* kernel, ImageSize kernelSize, ImagePoint anchor, PxlRoundMode mode,
                         uint8_t* /*buffer*/) {
    return filterByFloats<T>({src, dst, roi, kernel, kernelSize, anchor}, mode);
}

} // namespace
} // namespace pxl::PXL_TARGET::filter

#include "members/filter/filter_round_32f.inc"
