// What all linear filters share: a region, its windows and the coefficients that belong to them.
#pragma once

#include "window/rows.h"

namespace pxl::PXL_TARGET::filter {

using window::byBytes;
using window::Destination;
using window::DestinationRow;
using window::forEachBlockOfRow;

// What a call is about. Coefficients are in row-major order, and the anchor may be anywhere. Layouts are told apart at
// run time, so that they share the code behind the members.
template <class T, class K>
struct Operands {
    Image<const T, anyElements> src;
    Destination<T> dst;
    ImageSize roi;
    const K* kernel;
    ImageSize kernelSize;
    ImagePoint anchor;
};

// The kernel is walked backwards while windows are walked forwards, row by row.
template <class T, class K>
struct Filtering {
    window::Windows<T> windows;
    Destination<T> dst;
    const K* kernel;

    Filtering(const Operands<T, K>& o)
        : windows(o.src, o.dst.keepsAlpha, o.roi, window::kernelShape(o.kernelSize, o.anchor)), dst(o.dst),
          kernel(o.kernel) {}

    ptrdiff_t taps() const { return ptrdiff_t{windows.width} * windows.height; }
    const K* lastCoefficient() const { return kernel + taps() - 1; }
};

} // namespace pxl::PXL_TARGET::filter
