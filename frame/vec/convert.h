// Conversions between element types: the first lanes of a vector widened, vectors narrowed to their first lanes.
#pragma once

#include "frame/vec/partial.h"

namespace pxl::PXL_TARGET {

// The first lanes, each widened with its value kept.
template <class Wide, class Narrow>
PXL_INLINE Vec<Wide> PromoteTo(Vec<Narrow> v) {
    if constexpr (std::is_same_v<Wide, float>)
        return ConvertToFloat(PromoteInts<int32_t>(v));
    else
        return PromoteInts<Wide>(v);
}
// The same from memory.
template <class Wide, class Narrow>
PXL_INLINE Vec<Wide> LoadPromote(const Narrow* p) {
    return PromoteTo<Wide>(LoadFirst<lanes<Wide>>(p));
}

// Narrows one vector with saturation; the lanes come first in the result, what stands behind them is undefined.
template <class Narrow, class Wide>
PXL_INLINE Vec<Narrow> DemoteTo(Vec<Wide> v) {
    if constexpr (sizeof(Wide) == sizeof(Narrow)) return BitCast<Narrow>(v);
    if constexpr (sizeof(Wide) == 2 * sizeof(Narrow)) return OrderedDemote2To<Narrow>(v, v);
    if constexpr (sizeof(Wide) == 4 * sizeof(Narrow)) return OrderedDemote4To<Narrow>(v, v, v, v);
}

// Unsigned words as signed ones that saturate alike when they are narrowed to bytes.
PXL_INLINE Vec<uint16_t> Min255(Vec<uint16_t> v) { return Min(v, Set<uint16_t>(255)); }

} // namespace pxl::PXL_TARGET
