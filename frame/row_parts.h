// Rows in parts of whole vectors, and rows shorter than a vector in halves, quarters or eighths of one. The last part
// ends with the row and shares pixels with the one before, so these are for rows whose operands are disjoint.
#pragma once

#include <type_traits>

#include "frame/vec/vec.h"

namespace pxl::PXL_TARGET {

template <int Pixels>
using Part = std::integral_constant<int, Pixels>;

// The fewest pixels in a part: 4 bytes per channel.
template <class T>
inline constexpr int leastPart = 4 / static_cast<int>(sizeof(T));

// Calls part(Part<P>, x) until pixels 0..n-1 are done, with x + P <= n. False, and nothing done, where n < Least. The
// first pixels may be done already, by parts of Most.
template <int Most, int Least, class PartOfRow>
PXL_INLINE bool rowByParts(ptrdiff_t n, PartOfRow&& part, ptrdiff_t done = 0) {
    if (n >= Most) {
        ptrdiff_t x = done;
        for (; x + Most <= n; x += Most) part(Part<Most>{}, x);
        if (x < n) part(Part<Most>{}, n - Most);
        return true;
    }
    if constexpr (Most > Least) return rowByParts<Most / 2, Least>(n, part);
    return false;
}

// The same with another function for the part at the end: for operands of which nothing behind the addressed channel of
// the last pixel may be touched. Done where n > Least: at the end there is always a pixel before the part. end(Part<P>,
// x) loads the part before anything is stored, and returns the function that stores it.
template <int Most, int Least, class PartOfRow, class EndOfRow>
PXL_INLINE bool rowByPartsAndEnd(ptrdiff_t n, PartOfRow&& part, EndOfRow&& end) {
    if (n > Most) {
        const auto storeEnd = end(Part<Most>{}, n - Most);
        for (ptrdiff_t x = 0; x + Most < n; x += Most) part(Part<Most>{}, x);
        storeEnd();
        return true;
    }
    if constexpr (Most > Least) return rowByPartsAndEnd<Most / 2, Least>(n, part, end);
    return false;
}

} // namespace pxl::PXL_TARGET
