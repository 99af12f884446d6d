// The arithmetic of single elements, which the two-image and the constant families share.
#pragma once

#include <functional>

#include "image.h"

namespace reference {

inline constexpr int32_t divByZeroWarning = 6;
inline constexpr int32_t divByZeroError = -10;

// A complex element, both parts read before either is written.
template <typename Real>
struct Pair {
    Real re, im;
};

Pair<int64_t> readIntPair(const Element& type, const uint8_t* address);
Pair<float> readFloatPair(const Element& type, const uint8_t* address);
void writeIntPair(const Element& type, uint8_t* address, const Pair<int64_t>& value);
void writeFloatPair(const Element& type, uint8_t* address, const Pair<float>& value);

// Writes second op first. Reads both operands before it writes.
using Operation = std::function<void(const uint8_t* first, const uint8_t* second, uint8_t* dst)>;

// By the family's first three letters: Add, Sub or Mul.
Operation sumOrProduct(const Member& member, int32_t scaleFactor);

// Writes second / first, and tells whether the divisor was zero.
using Division = std::function<bool(const uint8_t* divisor, const uint8_t* dividend, uint8_t* dst)>;
Division quotient(const Member& member, int32_t scaleFactor);

// |x|^2 in single precision, where a small divisor becomes 0.
float squaredMagnitude(const Pair<float>& x);

// The last argument; the floating-point members have none.
int32_t scaleFactorOf(const Member& member, const Arg* rest);

} // namespace reference
