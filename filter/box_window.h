// What the workers of the box filter share: the place of the windows in memory, and the stores that keep an alpha element.
#pragma once

#include "frame/vec/mask.h"
#include "frame/vec/partial.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {

// Rows as elements. Row y of results needs the source rows y ... y + height - 1, counted from `top`, whose first element
// belongs to the leftmost pixel of the first window.
template <class T>
struct BoxWindow {
    const T* top;
    ptrdiff_t step;    // elements from row to row
    ptrdiff_t outputs; // of a row of results
    ptrdiff_t columns; // of a source row that windows reach; the alpha of its last pixel is not read
    ptrdiff_t width;   // of the window
    int height;
    bool keepAlpha;

    const T* row(ptrdiff_t y) const { return top + y * step; }
};

// Adds to 16s samples what makes every sum non-negative.
template <class T>
inline constexpr uint32_t boxBias = std::is_same_v<T, int16_t> ? 32768 : 0;

// n results from scratch to their place. Alpha elements are stored as they were.
template <class T>
inline void copyKeeping(const T* s, T* d, ptrdiff_t n, bool keepAlpha) {
    constexpr int step = lanes<T>;
    ptrdiff_t x = 0;
    for (; x + step <= n; x += step) {
        const Vec<T> v = LoadU(s + x);
        StoreU(keepAlpha ? KeepAlpha(LoadU(d + x), v) : v, d + x);
    }
    const ptrdiff_t rest = n - x;
    if (rest == 0) return;
    const Vec<T> v = LoadN<step>(s + x, rest);
    StoreN(keepAlpha ? KeepAlpha(LoadN<step>(d + x, rest), v) : v, d + x, rest);
}

} // namespace pxl::PXL_TARGET
