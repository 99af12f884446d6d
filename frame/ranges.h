// The ranges of element types.
#pragma once

#include <limits>

namespace pxl::PXL_TARGET {

template <class T>
inline constexpr T lowestOf = std::numeric_limits<T>::lowest();
template <class T>
inline constexpr T highestOf = std::numeric_limits<T>::max();

} // namespace pxl::PXL_TARGET
