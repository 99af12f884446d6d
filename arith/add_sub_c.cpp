// Sums and differences of an image and one constant per channel: dst = src + value, dst = src - value, as those of two
// images.
#include "arith/checks.h"
#include "arith/sums.h"

namespace pxl::PXL_TARGET {
namespace {

template <class T, int Elements, int Channels>
PxlStatus AddC(const T* src, int srcStep, ValueArg<T, Channels> value, T* dst, int dstStep, ImageSize roi,
               int scaleFactor) {
    return withConstants<Elements, Channels>(src, srcStep, valuesOf<Channels>(value), dst, dstStep, roi,
                                             [&](const Region& r) { addRegion<LaneOf<T>>(r, scaleFactor); });
}

template <class T, int Elements, int Channels>
PxlStatus SubC(const T* src, int srcStep, ValueArg<T, Channels> value, T* dst, int dstStep, ImageSize roi,
               int scaleFactor) {
    return withConstants<Elements, Channels>(src, srcStep, valuesOf<Channels>(value), dst, dstStep, roi,
                                             [&](const Region& r) { subtractRegion<LaneOf<T>>(r, scaleFactor); });
}

template <class T, int Elements, int Channels>
PxlStatus AddCFloat(const T* src, int srcStep, ValueArg<T, Channels> value, T* dst, int dstStep, ImageSize roi) {
    return withConstants<Elements, Channels>(src, srcStep, valuesOf<Channels>(value), dst, dstStep, roi,
                                             [](const Region& r) { run<float>(r, FloatSum{}); });
}

template <class T, int Elements, int Channels>
PxlStatus SubCFloat(const T* src, int srcStep, ValueArg<T, Channels> value, T* dst, int dstStep, ImageSize roi) {
    return withConstants<Elements, Channels>(src, srcStep, valuesOf<Channels>(value), dst, dstStep, roi,
                                             [](const Region& r) { run<float>(r, FloatDifference{}); });
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/arith/add_sub_c.inc"
