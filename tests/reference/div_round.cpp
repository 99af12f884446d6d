// Div_Round: the quotient in double precision, rounded as asked.
#include <cmath>

#include "arith.h"
#include "pointwise.h"
#include "scaling.h"

namespace reference {

namespace {

constexpr int32_t roundModeError = -213;

enum RoundMode : int64_t { towardZero = 0, nearEven = 1, halfAway = 2 };

double rounded(double q, int64_t mode) {
    const double truncated = std::trunc(q);
    if (mode == towardZero) return truncated;
    if (mode == halfAway) return std::trunc(q + std::copysign(0.5, q));
    const double fraction = std::fabs(q - truncated);
    const bool odd = std::fmod(truncated, 2) != 0;
    const bool away = fraction > 0.5 || (fraction == 0.5 && odd);
    return away ? truncated + std::copysign(1.0, q) : truncated;
}

int64_t divide(const Element& type, int64_t y, int64_t x, double factor, int64_t mode) {
    if (y == 0) return 0;
    if (x == 0) return y > 0 ? highest(type) : lowest(type);
    const double product = static_cast<double>(y) * factor;
    const double q = product / static_cast<double>(x);
    if (q >= static_cast<double>(highest(type))) return highest(type);
    if (q <= static_cast<double>(lowest(type))) return lowest(type);
    return static_cast<int64_t>(rounded(q, mode));
}

int32_t divRound(const Member& member, const Arg* args) {
    const Call call = twoImages(member, args);
    const int64_t mode = call.rest[0].num;
    if (const int32_t status = checkRegionFirst(member, call, true); status != ok) return status;
    if (mode < towardZero || mode > halfAway) return roundModeError;

    const Element type = elementOf(member.src);
    const auto factor = powerOfTwo<double>(scaleFactorOf(member, call.rest + 1));
    int32_t status = ok;
    forEachElement(member, call, [&](const uint8_t* divisor, const uint8_t* dividend, uint8_t* dst) {
        const int64_t x = readInt(type, divisor);
        const int64_t y = readInt(type, dividend);
        writeInt(type, dst, divide(type, y, x, factor, mode));
        if (x == 0) status = divByZeroWarning;
    });
    return status;
}

const Registered divRoundFamily("Div_Round", divRound);

} // namespace

} // namespace reference
