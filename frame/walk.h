// The row walker: takes a region and its operands and calls a row kernel.
//
// Decided here once, for all families:
//   - offsets are 64-bit: a row offset can exceed 2^31;
//   - regions whose operands are all contiguous are walked as one long row;
//   - overlap: a kernel is called with rows that are disjoint or exactly in place. Where a written operand overlaps
//     another one in any other way, the kernel is called for one pixel at a time, from left to right: the plain loop.
//
// A kernel is a callable (ptrdiff_t pixels, pointers...) whose pointers come in the order of the operands. It must load all
// that a store may overwrite before the store when a source is the destination itself, and must never touch anything behind
// the last element that it processes in the row.
#pragma once

#include <utility>

#include "frame/image.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {

struct Extent {
    const char* begin;
    const char* end;
    bool meets(const Extent& other) const { return begin < other.end && other.begin < end; }
};

template <class I>
inline Extent extentOf(const I& o, ptrdiff_t width, ptrdiff_t height) {
    const char* first = reinterpret_cast<const char*>(o.base);
    const ptrdiff_t span = (height - 1) * o.step;
    return {first + (span < 0 ? span : 0), first + (span < 0 ? 0 : span) + width * o.pixelBytes};
}

template <class A, class B>
inline bool conflict(const A& a, const B& b, ptrdiff_t width, ptrdiff_t height) {
    if constexpr (!A::written && !B::written) return false;
    const void* pa = a.base;
    const void* pb = b.base;
    if (pa == pb && a.step == b.step && a.pixelBytes == b.pixelBytes) return false;
    return extentOf(a, width, height).meets(extentOf(b, width, height));
}

template <class A>
inline bool anyConflict(ptrdiff_t, ptrdiff_t, const A&) {
    return false;
}

template <class A, class... Rest>
inline bool anyConflict(ptrdiff_t width, ptrdiff_t height, const A& a, const Rest&... rest) {
    return (... || conflict(a, rest, width, height)) || anyConflict(width, height, rest...);
}

// The row y alone.
template <class I>
inline I rowOf(I o, ptrdiff_t y) {
    o.base = o.at(0, y);
    o.step = 0;
    return o;
}

// Whether a row conflicts once every operand stands at row y.
template <class... I>
inline bool rowConflict(ptrdiff_t width, ptrdiff_t y, const I&... o) {
    return anyConflict(width, 1, rowOf(o, y)...);
}

// Rows of operands that overlap somewhere. A function of its own: in line, it would take registers from the loop that
// nearly all calls run.
template <class Kernel, class... I>
[[gnu::noinline]] void walkOverlapping(ptrdiff_t width, ptrdiff_t height, Kernel kernel, I... o) {
    for (ptrdiff_t y = 0; y < height; ++y) {
        const ptrdiff_t run = rowConflict(width, y, o...) ? 1 : width;
        for (ptrdiff_t x = 0; x < width; x += run) kernel(run, o.at(x, y)...);
    }
}

template <class Kernel, class... I>
inline void walkRows(ptrdiff_t width, ptrdiff_t height, Kernel&& kernel, I... o) {
    if (anyConflict(width, height, o...)) return walkOverlapping(width, height, kernel, o...);
    const bool contiguous = (... && (o.step == width * o.pixelBytes));
    if (contiguous) {
        width *= height;
        height = 1;
    }
    for (; height > 0; --height) {
        kernel(width, o.base...);
        (..., (o.base = o.at(0, 1)));
    }
}

template <class Kernel, class... I>
inline void walk(ImageSize roi, Kernel&& kernel, I... images) {
    walkRows(roi.width, roi.height, std::forward<Kernel>(kernel), images...);
}

// Channels treated alike: the region is walked as elements, `channels` times as wide.
template <class Kernel, class... I>
inline void walkElements(ImageSize roi, int channels, Kernel&& kernel, I... images) {
    walkRows(static_cast<ptrdiff_t>(roi.width) * channels, roi.height, std::forward<Kernel>(kernel), images...);
}

} // namespace pxl::PXL_TARGET
