// The argument checks of sums and products, in their order, and the region of a call that passes them.
#pragma once

#include "arith/region.h"
#include "frame/checks.h"

namespace pxl::PXL_TARGET {

// Two images: runs work(region). C3 and C4 members test the width before all else, complex ones the steps at last; real
// ones take any step.
template <int Elements, int Channels, class T, class Work>
inline PxlStatus withPair(const T* a, int aStep, const T* b, int bStep, T* dst, int dstStep, ImageSize roi,
                          Work&& work) {
    if (Elements > 1 && Channels == Elements && roi.width < 1) return PXL_E_SIZE;
    if (anyNull(a, b, static_cast<const T*>(dst))) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    if (partsOf<T> == 2 && anyStepBelow1(aStep, bStep, dstStep)) return PXL_E_STEP;
    work(regionOf<Elements, Channels>(a, aStep, b, bStep, dst, dstStep, roi));
    return PXL_OK;
}

// An image and constants: runs work(region). Any step is taken.
template <int Elements, int Channels, class T, class Work>
inline PxlStatus withConstants(const T* src, int srcStep, const T* values, T* dst, int dstStep, ImageSize roi,
                               Work&& work) {
    if (anyNull(src, values, static_cast<const T*>(dst))) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    ConstantRow row;
    work(constantRegionOf<Elements, Channels>(src, srcStep, values, dst, dstStep, roi, row));
    return PXL_OK;
}

} // namespace pxl::PXL_TARGET
