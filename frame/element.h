// Elements as lanes of vectors: complex ones are pairs of lanes, and the fourth elements of AC4 pixels are lanes to keep.
#pragma once

#include "frame/vec.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {

template <class T>
struct ElementOf {
    using Lane = T;
    static constexpr int parts = 1;
};
template <>
struct ElementOf<Pxl16sc> {
    using Lane = int16_t;
    static constexpr int parts = 2;
};
template <>
struct ElementOf<Pxl32sc> {
    using Lane = int32_t;
    static constexpr int parts = 2;
};
template <>
struct ElementOf<Pxl32fc> {
    using Lane = float;
    static constexpr int parts = 2;
};
template <class T>
using LaneOf = typename ElementOf<T>::Lane;
template <class T>
inline constexpr int partsOf = ElementOf<T>::parts;
template <class T>
inline constexpr bool isComplex = partsOf<T> == 2;

// The lanes of a vector of AC4 pixels that keep their value, for every place in a pixel where the vector may begin.
template <int ElementBytes>
struct AlphaBytes {
    alignas(vecBytes) uint8_t bytes[3 * vecBytes];
    constexpr AlphaBytes() : bytes{} {
        for (int k = 0; k < 3 * vecBytes; ++k) bytes[k] = k / ElementBytes % 4 == 3 ? 0xFF : 0;
    }
};
template <int ElementBytes>
inline constexpr AlphaBytes<ElementBytes> alphaBytes;

} // namespace pxl::PXL_TARGET
