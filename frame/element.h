// Elements as lanes of vectors: complex ones are pairs of lanes.
#pragma once

#include <cstdint>

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

} // namespace pxl::PXL_TARGET
