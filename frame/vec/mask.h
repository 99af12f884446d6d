// AC4: pixels of four elements of which the fourth is not processed. One table per element size has the fourth elements for any
// place in a pixel where a vector may begin; where that is known at compile time, a blend may need no mask.
#pragma once

#include "frame/vec/vec.h"

namespace pxl::PXL_TARGET {

// All ones in fourth elements. Pixels are two vectors long at most.
template <int ElementBytes>
struct AlphaBytes {
    alignas(vecBytes) uint8_t bytes[3 * vecBytes];
    constexpr AlphaBytes() : bytes{} {
        for (int k = 0; k < 3 * vecBytes; ++k) bytes[k] = k / ElementBytes % 4 == 3 ? 0xFF : 0;
    }
};
template <int ElementBytes>
inline constexpr AlphaBytes<ElementBytes> alphaBytes;

// For a vector that begins with element `first` of a pixel.
template <class T>
PXL_INLINE Mask<T> AlphaMask(ptrdiff_t first = 0) {
    return LoadU(reinterpret_cast<const MaskLane<T>*>(alphaBytes<sizeof(T)>.bytes) + first);
}

// v, but `old` in lanes First, First + 4, First + 8 ...
template <int First = 3, class T>
PXL_INLINE Vec<T> KeepAlpha(Vec<T> old, Vec<T> v) {
    return BlendLanes<[](int i) { return i % 4 == First; }>(v, old);
}

} // namespace pxl::PXL_TARGET
