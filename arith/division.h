// What all quotients share: dst = dividends / divisors, of two images or of an image and one constant per channel.
//
// An operation makes a Divisor of a vector of divisors, whose member `zero` tells where they are 0. Of images that is a warning;
// constants have been tested before.
#pragma once

#include "pointwise/run.h"

namespace pxl::PXL_TARGET::arith {

struct Quotient {
    static constexpr bool isLong = true;
    static constexpr PxlStatus warning = PXL_W_DIV_BY_ZERO;

    template <class Divisor>
    PXL_INLINE static auto warned(const Divisor& x) {
        return x.zero;
    }
};

// 2^-scaleFactor by repeated doubling or halving, for a scaleFactor from `from` to `to`; beyond those that of the
// nearest of them, which has the same results.
template <class Real>
inline Real factorOf(int scaleFactor, int from, int to) {
    const int limited = scaleFactor < from ? from : scaleFactor > to ? to : scaleFactor;
    Real factor = 1;
    for (int s = limited; s < 0; ++s) factor *= 2;
    for (int s = limited; s > 0; --s) factor /= 2;
    return factor;
}

} // namespace pxl::PXL_TARGET::arith
