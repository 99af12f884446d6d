// The argument checks that every family is made of. A family writes them down in its own order.
#pragma once

#include "pxli.h"

namespace pxl::PXL_TARGET {

template <class... Pointer>
inline bool anyNull(Pointer... pointers) {
    return (... || (pointers == nullptr));
}

// The array and then each of its planes.
template <int Planes, class T>
inline bool anyPlaneNull(T* const* planes) {
    if (!planes) return true;
    for (int p = 0; p < Planes; ++p)
        if (!planes[p]) return true;
    return false;
}

inline bool isEmpty(ImageSize size) { return size.width < 1 || size.height < 1; }

template <class... Step>
inline bool anyStepBelow1(Step... steps) {
    return (... || (steps < 1));
}

} // namespace pxl::PXL_TARGET
