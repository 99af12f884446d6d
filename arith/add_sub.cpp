// Sums and differences of two images: dst = src1 + src2, dst = src2 - src1. How they are scaled stands in arith/sums.h.
//
// 16u members whose results all vanish are to look at the sources before the destination and the region, which no
// caller can tell from the order of the others.
#include "arith/checks.h"
#include "arith/sums.h"

namespace pxl::PXL_TARGET {
namespace {

template <class T, int Elements, int Channels>
PxlStatus Add(const T* src1, int step1, const T* src2, int step2, T* dst, int dstStep, ImageSize roi, int scaleFactor) {
    return withPair<Elements, Channels>(src1, step1, src2, step2, dst, dstStep, roi,
                                        [&](const Region& r) { addRegion<LaneOf<T>>(r, scaleFactor); });
}

template <class T, int Elements, int Channels>
PxlStatus Sub(const T* src1, int step1, const T* src2, int step2, T* dst, int dstStep, ImageSize roi, int scaleFactor) {
    return withPair<Elements, Channels>(src2, step2, src1, step1, dst, dstStep, roi,
                                        [&](const Region& r) { subtractRegion<LaneOf<T>>(r, scaleFactor); });
}

template <class T, int Elements, int Channels>
PxlStatus AddFloat(const T* src1, int step1, const T* src2, int step2, T* dst, int dstStep, ImageSize roi) {
    return withPair<Elements, Channels>(src1, step1, src2, step2, dst, dstStep, roi,
                                        [](const Region& r) { run<float>(r, FloatSum{}); });
}

template <class T, int Elements, int Channels>
PxlStatus SubFloat(const T* src1, int step1, const T* src2, int step2, T* dst, int dstStep, ImageSize roi) {
    return withPair<Elements, Channels>(src2, step2, src1, step1, dst, dstStep, roi,
                                        [](const Region& r) { run<float>(r, FloatDifference{}); });
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/arith/add_sub.inc"
