// The argument checks of windows, beside those of frame/checks.h:
//     check(null(src, dst), steps(src, dst), size(roi), window::mask(maskSize), window::anchor(point, maskSize))
#pragma once

#include "frame/checks.h"

namespace pxl::PXL_TARGET::window {

inline Check mask(ImageSize maskSize) { return {isEmpty(maskSize), PXL_E_MASK_SIZE}; }

// The pixel must be in its mask.
inline Check anchor(ImagePoint place, ImageSize maskSize) {
    const bool inside = place.x >= 0 && place.y >= 0 && place.x < maskSize.width && place.y < maskSize.height;
    return {!inside, PXL_E_ANCHOR};
}

// Rows must lie apart. Compared in 64 bits: a window may be wider than any step.
template <class Rows>
inline Check stepHolds(const Rows& image, int64_t rowBytes) {
    return {image.step < rowBytes, PXL_E_STEP};
}

} // namespace pxl::PXL_TARGET::window
