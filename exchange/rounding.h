// Rounding of floats to nearest, ties to even, as a single-precision sum defines it: q = v + 0.5 is truncated, and an
// odd result that q meets exactly steps back. For negative v the same is done to -v.
//
// The conversion instruction rounds v itself, and agrees for every v but one: q of 0.5 + 2^-24 is rounded to 1, a tie
// by this rule, and gives 0. (The other q that are rounded up to an integer end at an even one, which is where v goes
// anyway.)
#pragma once

#include "frame/vec/vec.h"

namespace pxl::PXL_TARGET::exchange {

inline constexpr float tieReach = 0x1p-25f;

// For values whose negative results do not matter: ready for NearestInt. The one value falls to 0.5, those above it in
// 0.5..1 do not fall below the next one, and from 1 on the difference is rounded back to v.
PXL_INLINE Vec<float> tiesToEven(Vec<float> v) { return v - Set<float>(tieReach); }

// Where the magnitude rounds to 1 or more. False for NaN.
PXL_INLINE Mask<float> roundsAwayFrom0(Vec<float> v) {
    const Vec<float> magnitude = AndNot(Set<float>(-0.0f), v);
    return magnitude > Set<float>(0.5f + 0x1p-24f);
}

} // namespace pxl::PXL_TARGET::exchange
