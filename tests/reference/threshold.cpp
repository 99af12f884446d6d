// Thresholds of all kinds: pixels beyond a threshold are replaced; and the automatic threshold of a histogram.
#include <algorithm>
#include <array>

#include "image.h"

namespace reference {

namespace {

constexpr int32_t thresholdError = -18;
constexpr int32_t modeError = -9999;

struct Operands {
    const Arg *src, *srcStep, *dst, *dstStep, *roi;
    const Arg* rest; // what follows the region

    Operands(const Member& member, const Arg* args) : src(args), srcStep(args + 1) {
        const bool inPlace = member.mode.starts_with('I');
        dst = inPlace ? args : args + 2;
        dstStep = dst + 1;
        roi = dst + 2;
        rest = dst + 3;
    }
};

// Numbers are compared as they are: integers of at most 16 bits and floats are exact in double precision.
std::array<double, 4> numbersOf(const Member& member, const Arg& arg) {
    const Element type = elementOf(member.src);
    const int count = layoutOf(member.layout).src.active;
    const Pixel values = count > 1 ? arrayValues(type, arg, count) : scalarValue(type, arg);
    std::array<double, 4> numbers{};
    for (int c = 0; c < count; ++c) {
        const uint8_t* address = values.data() + c * type.bytes();
        numbers[c] = type.isFloat ? readReal(type, address) : static_cast<double>(readInt(type, address));
    }
    return numbers;
}

int32_t check(const Member& member, const Operands& o, int arrays) {
    if (!o.src->ptr || !o.dst->ptr) return nullPtrError;
    if (isEmpty(*o.roi)) return sizeError;
    if (o.srcStep->num < 1 || o.dstStep->num < 1) return stepError;
    if (layoutOf(member.layout).src.active == 1) return ok;
    for (int i = 0; i < arrays; ++i) {
        if (!o.rest[i].ptr) return nullPtrError;
    }
    return ok;
}

// choose(v, channel, replacement) tells whether a value is replaced.
template <typename Choose>
void replace(const Member& member, const Operands& o, Choose choose) {
    const Element type = elementOf(member.src);
    const Side side = layoutOf(member.layout).src;
    const Image src = imageOf(*o.src, *o.srcStep, side, type);
    const Image dst = imageOf(*o.dst, *o.dstStep, side, type);
    forEachPixel(*o.roi, [&](int64_t x, int64_t y) {
        for (int c = 0; c < side.active; ++c) {
            const uint8_t* from = src.at(x, y, c);
            uint8_t* to = dst.at(x, y, c);
            double value = type.isFloat ? readReal(type, from) : static_cast<double>(readInt(type, from));
            if (!choose(value, c)) {
                std::copy_n(from, type.bytes(), to);
            } else if (type.isFloat) {
                writeReal(type, to, value);
            } else {
                writeInt(type, to, static_cast<int64_t>(value));
            }
        }
    });
}

int32_t replaceOnOneSide(const Member& member, const Operands& o, int64_t op, bool hasValue) {
    if (op != 0 && op != 4) return modeError;
    if (const int32_t status = check(member, o, hasValue ? 2 : 1); status != ok) return status;
    const auto thresholds = numbersOf(member, o.rest[0]);
    const auto values = hasValue ? numbersOf(member, o.rest[1]) : thresholds;
    replace(member, o, [&](double& v, int c) {
        const bool beyond = op == 0 ? v < thresholds[c] : v > thresholds[c];
        if (beyond) v = values[c];
        return beyond;
    });
    return ok;
}

int32_t plain(const Member& member, const Arg* args) {
    const Operands o(member, args);
    return replaceOnOneSide(member, o, o.rest[1].num, false);
}
int32_t above(const Member& member, const Arg* args) {
    return replaceOnOneSide(member, Operands(member, args), 4, false);
}
int32_t below(const Member& member, const Arg* args) {
    return replaceOnOneSide(member, Operands(member, args), 0, false);
}
int32_t byValue(const Member& member, const Arg* args) {
    const Operands o(member, args);
    return replaceOnOneSide(member, o, o.rest[2].num, true);
}
int32_t aboveByValue(const Member& member, const Arg* args) {
    return replaceOnOneSide(member, Operands(member, args), 4, true);
}
int32_t belowByValue(const Member& member, const Arg* args) {
    return replaceOnOneSide(member, Operands(member, args), 0, true);
}

int32_t onBothSides(const Member& member, const Arg* args) {
    const Operands o(member, args);
    if (const int32_t status = check(member, o, 4); status != ok) return status;
    const auto low = numbersOf(member, o.rest[0]), lowValue = numbersOf(member, o.rest[1]);
    const auto high = numbersOf(member, o.rest[2]), highValue = numbersOf(member, o.rest[3]);
    for (int c = 0; c < layoutOf(member.layout).src.active; ++c) {
        if (high[c] < low[c]) return thresholdError;
    }
    replace(member, o, [&](double& v, int c) {
        const bool isAbove = v > high[c], isBelow = v < low[c];
        if (isAbove) {
            v = highValue[c];
        } else if (isBelow) {
            v = lowValue[c];
        }
        return isAbove || isBelow;
    });
    return ok;
}

int32_t otsu(const Member& member, const Arg* args) {
    if (!args[0].ptr || !args[3].ptr) return nullPtrError;
    if (isEmpty(args[2])) return sizeError;
    if (args[1].num < args[2].width) return stepError;
    const Element type = elementOf(member.src);
    const Image src = imageOf(args[0], args[1], layoutOf(member.layout).src, type);
    double h[256] = {};
    forEachPixel(args[2], [&](int64_t x, int64_t y) { h[*src.at(x, y)] += 1; });
    double n = 0, s = 0;
    for (int i = 0; i < 256; ++i) {
        n += h[i];
        s += (i + 0.5) * h[i];
    }
    const double inverse = 1 / n;
    double w0 = 0, m0 = 0, best = 0, t = 0;
    for (int i = 0; i < 256; ++i) {
        const double p = inverse * h[i];
        m0 = m0 * w0;
        w0 = w0 + p;
        const double w1 = 1 - w0;
        if (std::min(w0, w1) < 1.1920928955078125e-7 || std::max(w0, w1) > 0.9999998807907104) continue;
        const double moment = p * (i + 0.5);
        m0 = (m0 + moment) / w0;
        const double lower = w0 * m0;
        const double m1 = (s * inverse - lower) / w1;
        const double sigma = w1 * w0 * (m0 - m1) * (m0 - m1);
        if (sigma > best) {
            best = sigma;
            t = i + 0.5;
        }
    }
    *static_cast<uint8_t*>(const_cast<void*>(args[3].ptr)) = static_cast<uint8_t>(t);
    return ok;
}

const Registered families[] = {{"Threshold", plain},
                               {"Threshold_GT", above},
                               {"Threshold_LT", below},
                               {"Threshold_Val", byValue},
                               {"Threshold_GTVal", aboveByValue},
                               {"Threshold_LTVal", belowByValue},
                               {"Threshold_LTValGTVal", onBothSides},
                               {"ComputeThreshold_Otsu", otsu}};

} // namespace

} // namespace reference
