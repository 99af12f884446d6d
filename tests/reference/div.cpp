// Div: second / first times 2^-scaleFactor. A zero divisor gives a substitute and the warning, never a stop.
//
// The floating-point variables carry the precision that is meant: no step may be kept in a wider one.
#include <bit>
#include <limits>

#include "arith.h"
#include "pointwise.h"
#include "scaling.h"

namespace reference {

namespace {

// Formed once per call.
struct Factor {
    int32_t scaleFactor;
    float power; // 2^-scaleFactor
};

constexpr uint32_t undefinedBits = 0xFFC00000;

float undefined() { return std::bit_cast<float>(undefinedBits); }

int64_t overZero(const Element& type, int64_t y) {
    if (y == 0) return 0;
    return y > 0 ? highest(type) : lowest(type);
}

int64_t divideBytes(const Element& type, int64_t y, int64_t x, const Factor& factor) {
    if (factor.scaleFactor < -15) return y != 0 ? 255 : 0;
    if (factor.scaleFactor > 8) return 0;
    const float product = static_cast<float>(y) * factor.power;
    const float ratio = product / static_cast<float>(x);
    const float q = ratio + 0.5F;
    return saturate(type, truncateTiesEven(q));
}

// Shifting by the type's lowest value makes the sum positive. The two additions round to Real one after the other.
template <typename Real>
int64_t roundSigned(const Element& type, Real q) {
    const auto low = static_cast<Real>(lowest(type));
    const auto high = static_cast<Real>(highest(type));
    if (!(low <= q && q <= high)) return q >= 0 ? highest(type) : lowest(type);
    const Real shifted = q - low;
    const Real sum = shifted + Real{0.5};
    return truncateTiesEven(sum) + lowest(type);
}

int64_t divideShorts(const Element& type, int64_t y, int64_t x, const Factor& factor) {
    if (y == 0) return 0; // also where the factor is infinite
    const float product = static_cast<float>(y) * factor.power;
    const float q = product / static_cast<float>(x);
    return roundSigned(type, q);
}

// Sixteen fractional bits, cut off before the tie is looked for.
int64_t divideWords(const Element& type, int64_t y, int64_t x, const Factor& factor) {
    const int32_t scaleFactor = factor.scaleFactor;
    if (scaleFactor < -31) return y != 0 ? 65535 : 0;
    if (scaleFactor > 16) return 0;
    const auto dividend = static_cast<uint64_t>(y);
    const auto divisor = static_cast<uint64_t>(x);
    const uint64_t q16 =
        scaleFactor <= 0 ? ((dividend << -scaleFactor) << 16) / divisor : (dividend << 16) / (divisor << scaleFactor);
    const uint64_t r = (q16 + ((q16 & 65536) >> 15) + 32767) >> 16;
    return saturate(type, static_cast<int64_t>(r));
}

template <typename Divide>
Division onIntegers(const Element& type, int32_t scaleFactor, Divide divide) {
    const Factor factor = {scaleFactor, powerOfTwo<float>(scaleFactor)};
    return [=](const uint8_t* divisor, const uint8_t* dividend, uint8_t* dst) {
        const int64_t x = readInt(type, divisor);
        const int64_t y = readInt(type, dividend);
        writeInt(type, dst, x == 0 ? overZero(type, y) : divide(type, y, x, factor));
        return x == 0;
    };
}

float floatOverZero(float y) {
    const float infinity = std::numeric_limits<float>::infinity();
    if (y > 0) return infinity;
    return y < 0 ? -infinity : undefined();
}

Division onFloats(const Element& type) {
    return [=](const uint8_t* divisor, const uint8_t* dividend, uint8_t* dst) {
        const auto x = static_cast<float>(readReal(type, divisor));
        const auto y = static_cast<float>(readReal(type, dividend));
        const float result = x == 0 ? floatOverZero(y) : y / x;
        writeReal(type, dst, static_cast<double>(result));
        return x == 0;
    };
}

// y / x = y * conj(x) * factor, with x = a + bi, y = c + di, and factor = 1 / |x|^2.
template <typename Real>
Pair<Real> timesConjugate(const Pair<Real>& y, const Pair<Real>& x) {
    const Real ac = x.re * y.re;
    const Real bd = x.im * y.im;
    const Real ad = x.re * y.im;
    const Real bc = x.im * y.re;
    return {ac + bd, ad - bc};
}

Division onFloatPairs(const Element& type) {
    return [=](const uint8_t* divisor, const uint8_t* dividend, uint8_t* dst) {
        const Pair<float> x = readFloatPair(type, divisor);
        const Pair<float> product = timesConjugate(readFloatPair(type, dividend), x);
        const float m = squaredMagnitude(x);
        const float reciprocal = 1.0F / m;
        const Pair<float> ratio = {product.re * reciprocal, product.im * reciprocal};
        writeFloatPair(type, dst, m == 0 ? Pair<float>{undefined(), undefined()} : ratio);
        return m == 0;
    };
}

Pair<double> readIntsAsDoubles(const Element& type, const uint8_t* address) {
    const Pair<int64_t> value = readIntPair(type, address);
    return {static_cast<double>(value.re), static_cast<double>(value.im)};
}

int64_t scaledPart(const Element& type, double product, double factor) {
    if (product == 0) return 0; // also where the factor is infinite
    const double q = product * factor;
    return roundSigned(type, q);
}

Division onIntPairs(const Element& type, int32_t scaleFactor) {
    const auto power = powerOfTwo<double>(scaleFactor);
    return [=](const uint8_t* divisor, const uint8_t* dividend, uint8_t* dst) {
        const Pair<double> x = readIntsAsDoubles(type, divisor);
        const Pair<double> product = timesConjugate(readIntsAsDoubles(type, dividend), x);
        const double aa = x.re * x.re;
        const double bb = x.im * x.im;
        const double m = aa + bb;
        const double factor = power / m;
        const Pair<int64_t> ratio = {scaledPart(type, product.re, factor), scaledPart(type, product.im, factor)};
        writeIntPair(type, dst, m == 0 ? Pair<int64_t>{0, 0} : ratio);
        return m == 0;
    };
}

// The 16u members are apart: they look at no step, and their C3 and C4 forms are C1 calls.
int32_t check(const Member& member, const Call& call) {
    if (member.src != "16u") return checkRegionFirst(member, call, true);
    if (isEmptyWidened(member, call)) return sizeError;
    return checkRegionFirst(member, call, false);
}

} // namespace

float squaredMagnitude(const Pair<float>& x) {
    const float aa = x.re * x.re;
    const float bb = x.im * x.im;
    return aa + bb;
}

Division quotient(const Member& member, int32_t scaleFactor) {
    const Element type = elementOf(member.src);
    if (type.parts == 2) return type.isFloat ? onFloatPairs(type) : onIntPairs(type, scaleFactor);
    if (type.isFloat) return onFloats(type);
    if (member.src == "8u") return onIntegers(type, scaleFactor, divideBytes);
    if (member.src == "16u") return onIntegers(type, scaleFactor, divideWords);
    return onIntegers(type, scaleFactor, divideShorts);
}

namespace {

int32_t div(const Member& member, const Arg* args) {
    const Call call = twoImages(member, args);
    if (const int32_t status = check(member, call); status != ok) return status;
    const Division divide = quotient(member, scaleFactorOf(member, call.rest));
    int32_t status = ok;
    forEachElement(member, call, [&](const uint8_t* divisor, const uint8_t* dividend, uint8_t* dst) {
        if (divide(divisor, dividend, dst)) status = divByZeroWarning;
    });
    return status;
}

const Registered divFamily("Div", div);

} // namespace

} // namespace reference
