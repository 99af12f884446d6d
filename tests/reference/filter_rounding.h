// From the sum of a linear filter to an integer element: division by the divisor, rounding and saturation.
#pragma once

#include "image.h"

namespace reference {

enum RoundMode : int64_t { towardZero = 0, nearEven = 1, halfAway = 2 };

// Saturates first, then rounds. Single-precision values come widened, so that adding 0.5 to them is exact.
int64_t roundValue(const Element& type, double value, int64_t mode);

// The plain forms with an integer kernel. They have rules of their own for divisor 1 and for powers of two.
int64_t divideSum(const Element& type, int32_t sum, int32_t divisor);

// The forms that take a rounding mode: the quotient, whatever the divisor.
int64_t divideSum(const Element& type, int32_t sum, int32_t divisor, int64_t mode);

} // namespace reference
