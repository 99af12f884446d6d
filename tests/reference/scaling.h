// Result scaling: an exact integer result times 2^-scaleFactor, and that power as a floating-point factor.
#pragma once

#include <cstdint>

#include "image.h"

namespace reference {

// Holds every exact result; the largest is 2^63, the imaginary part of a 32sc product.
using Wide = __int128;

// Rounds to nearest with ties to even, then saturates to the (part of the) type.
int64_t scaled(const Element& type, Wide value, int32_t scaleFactor);

// 2^-scaleFactor by repeated halving or doubling, which ends at 0 or infinity.
template <typename Real>
Real powerOfTwo(int32_t scaleFactor) {
    Real factor = 1;
    for (int64_t i = 0; i < scaleFactor && factor > 0; ++i) {
        factor = factor / 2;
    }
    for (int64_t i = 0; i > scaleFactor && factor + factor != factor; --i) {
        factor = factor + factor;
    }
    return factor;
}

} // namespace reference
