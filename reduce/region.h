// The walk of reductions over regions: any number of sources of one type, any layout.
//
// A layout is a stride over the row: pixels of `elements` elements (an operand's pixelBytes), of which the first `channels`
// are reduced. C1, C3 and C4 reduce all; AC4 is 3 of 4; one channel of C3 or C4 is 1 of 3 or 4, and the operand begins there.
#pragma once

#include "frame/walk.h"
#include "reduce/fold.h"

namespace pxl::PXL_TARGET::reduce {

template <class T>
PXL_INLINE ptrdiff_t elementsOf(const Image<T, anyElements>& o) {
    return o.pixelBytes / static_cast<ptrdiff_t>(sizeof(T));
}

// Runs a fold over rows: addPixels(states, room, pixels, pointers...) adds a row, or the whole region as one.
template <class Fold, class AddPixels, class... T>
PXL_INLINE void walkFold(Fold& fold, ImageSize roi, AddPixels&& addPixels, const Image<T, anyElements>&... o) {
    StatesOf<Fold> s;
    s.restart(fold);
    Room<Fold> room;
    if constexpr (requires { &Fold::endRow; }) {
        for (ptrdiff_t y = 0; y < roi.height; ++y) {
            addPixels(s, room, roi.width, o.at(0, y)...);
            room.renew(fold, s);
            fold.endRow(s);
        }
    } else {
        const auto row = [&](ptrdiff_t pixels, T * ... p) __attribute__((always_inline)) {
            addPixels(s, room, pixels, p...);
        };
        walk(roi, row, o...);
        room.renew(fold, s);
    }
    fold.finish(s);
}

// Folds the regions of sources whose pixels have the same size.
template <class Fold, class First, class... More>
[[gnu::noinline, gnu::flatten]] void foldRegion(Fold& fold, ImageSize roi, int channels,
                                                Image<First, anyElements> source, Image<More, anyElements>... more) {
    const ptrdiff_t elements = elementsOf(source), unread = elements - channels; // behind the last pixel
    const auto add = [&](auto& s, auto& room, ptrdiff_t pixels, auto... p) __attribute__((always_inline)) {
        addRow(fold, s, room, pixels * elements - unread, p...);
    };
    walkFold(fold, roi, add, source, more...);
}

} // namespace pxl::PXL_TARGET::reduce
