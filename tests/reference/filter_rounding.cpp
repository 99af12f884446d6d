#include "filter_rounding.h"

#include <bit>

namespace reference {

namespace {

// Takes a value of at least 0.
int64_t roundNearEven(double value) {
    const auto n = static_cast<int64_t>(value + 0.5);
    const bool tie = static_cast<double>(n) - value == 0.5;
    return tie && n % 2 == 1 ? n - 1 : n;
}

// Negative values are the mirror image of the positive ones in every mode.
int64_t roundFinite(double value, int64_t mode) {
    if (value < 0) return -roundFinite(-value, mode);
    switch (mode) {
    case towardZero:
        return static_cast<int64_t>(value);
    case nearEven:
        return roundNearEven(value);
    default:
        return static_cast<int64_t>(value + 0.5);
    }
}

bool isPowerOfTwo(int32_t divisor) { return divisor > 1 && std::has_single_bit(static_cast<uint32_t>(divisor)); }

// Rounds down, then up again where the remainder is over one half, or is one half and the quotient is odd.
int64_t divideByPowerOfTwo(int64_t sum, int32_t divisor) {
    const int k = std::countr_zero(static_cast<uint32_t>(divisor));
    const int64_t q = sum >> k;
    const int64_t remainder = sum & (divisor - 1);
    return q + ((remainder + (q & 1) + divisor / 2 - 1) >> k);
}

// Bytes multiply with a single-precision reciprocal; the wider types truly divide, in double precision.
double quotient(const Element& type, int32_t sum, int32_t divisor) {
    if (type.partBytes > 1) return static_cast<double>(sum) / static_cast<double>(divisor);
    const float reciprocal = 1.0F / static_cast<float>(divisor);
    const float product = static_cast<float>(sum) * reciprocal;
    return static_cast<double>(product);
}

} // namespace

int64_t roundValue(const Element& type, double value, int64_t mode) {
    if (value != value) return 0; // no kernel of finite coefficients gets here
    if (value >= static_cast<double>(highest(type))) return highest(type);
    if (value <= static_cast<double>(lowest(type))) return lowest(type);
    return roundFinite(value, mode);
}

int64_t divideSum(const Element& type, int32_t sum, int32_t divisor) {
    if (divisor == 1) return saturate(type, sum);
    if (isPowerOfTwo(divisor)) return saturate(type, divideByPowerOfTwo(sum, divisor));
    return divideSum(type, sum, divisor, nearEven);
}

int64_t divideSum(const Element& type, int32_t sum, int32_t divisor, int64_t mode) {
    return roundValue(type, quotient(type, sum, divisor), mode);
}

} // namespace reference
