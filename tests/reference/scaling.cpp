#include "scaling.h"

#include <algorithm>

namespace reference {

namespace {

// From here on 2^(s-1) is at least as large as any result, and a result of exactly half goes to 0.
constexpr int32_t allRoundToZero = 65;

int64_t clampWide(const Element& type, Wide value) {
    return static_cast<int64_t>(std::clamp<Wide>(value, lowest(type), highest(type)));
}

int64_t saturatedSign(const Element& type, Wide value) {
    if (value == 0) return 0;
    return value > 0 ? highest(type) : lowest(type);
}

} // namespace

int64_t scaled(const Element& type, Wide value, int32_t scaleFactor) {
    const int s = scaleFactor;
    if (s == 0) return clampWide(type, value);
    if (s <= -8 * type.partBytes) return saturatedSign(type, value);
    if (s < 0) return clampWide(type, value * (Wide{1} << -s));
    if (s >= allRoundToZero) return 0;
    return clampWide(type, (value + (Wide{1} << (s - 1)) - 1 + ((value >> s) & 1)) >> s);
}

} // namespace reference
