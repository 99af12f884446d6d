// Conversions at the values where rounding decides, which random ones hardly meet: ties and their neighbours, the ends
// of ranges, and float ranges that leave no precision to the formula.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "pxli.h"
#include "targets.h"

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float nan = std::numeric_limits<float>::quiet_NaN();

// Sums and products in single precision, each rounded by itself.
float sum(float a, float b) { return static_cast<float>(double{a} + double{b}); }
float product(float a, float b) { return static_cast<float>(double{a} * double{b}); }

// The value and three neighbours on either side.
void addNear(std::vector<float>& values, float value) {
    float below = value, above = value;
    for (int i = 0; i < 4; ++i) {
        values.insert(values.end(), {below, above});
        below = std::nextafter(below, -infinity);
        above = std::nextafter(above, infinity);
    }
}

// Rounds q, which has its 0.5 already: truncation, an odd number met exactly steps back.
int64_t tieToEven(float q) {
    const auto whole = static_cast<int64_t>(q);
    return whole % 2 != 0 && static_cast<float>(whole) == q ? whole - 1 : whole;
}

int64_t roundMagnitude(float v, int mode) {
    if (mode == 0) return static_cast<int64_t>(v);
    return mode == 1 ? tieToEven(sum(v, 0.5f)) : static_cast<int64_t>(sum(v, 0.5f));
}

template <class D>
int64_t rounded(float v, int mode) {
    if (std::isnan(v)) return 0;
    if (v >= std::numeric_limits<D>::max()) return std::numeric_limits<D>::max();
    if (v <= std::numeric_limits<D>::min()) return std::numeric_limits<D>::min();
    return v < 0 ? -roundMagnitude(-v, mode) : roundMagnitude(v, mode);
}

// Converts one row on every target and compares it with what `expected` gives for every value.
template <class S, class D>
void compare(const std::vector<S>& values, auto convert, auto expected) {
    const auto width = static_cast<int>(values.size());
    for (const pxl::KnownTarget& target : availableTargets()) {
        const TargetScope scope(target);
        std::vector<D> results(values.size());
        ASSERT_EQ(convert(values.data(), width * static_cast<int>(sizeof(S)), results.data(),
                          width * static_cast<int>(sizeof(D)), ImageSize{width, 1}),
                  PXL_OK);
        for (size_t i = 0; i < values.size(); ++i)
            ASSERT_EQ(int64_t{results[i]}, expected(values[i])) << target.name << ": " << std::hexfloat << +values[i];
    }
}

template <class D>
void checkRounding(auto convert) {
    std::vector<float> values = {nan, -nan, infinity, -infinity, 2147483648.0f, -2147483904.0f, 1e30f, -1e30f, 1e-40f};
    for (int half = -140000; half <= 140000; ++half) addNear(values, static_cast<float>(half) * 0.5f);
    for (const int mode : {0, 1, 2, 3, -1})
        compare<float, D>(
            values, [&](auto... args) { return convert(args..., mode); },
            [&](float v) { return rounded<D>(v, mode < 0 ? 2 : mode); });
}

TEST(Rounding, ConvertFromFloat) {
    checkRounding<uint8_t>(pxliConvert_32f8u_C1R);
    checkRounding<int8_t>(pxliConvert_32f8s_C1R);
    checkRounding<uint16_t>(pxliConvert_32f16u_C1R);
    checkRounding<int16_t>(pxliConvert_32f16s_C1R);
}

struct Range {
    float low, high;

    int64_t toByte(float x) const {
        if (!(x < high)) return 255;
        if (x <= low) return 0;
        const float slope = 255.0f / (high - low);
        const float q = sum(sum(product(x, slope), product(0.0f - slope, low)), 0.5f);
        if (!(q > 0.0f)) return 0;
        return tieToEven(q < 255.5f ? q : 255.5f);
    }
};

// Ranges from 0, around it, near it and far away, some too narrow for their place, some with overflow or NaN on the
// way.
TEST(Rounding, ScaleFromFloat) {
    constexpr Range ranges[] = {
        {0, 1},      {-0.0f, 255},     {-1, 1},          {-32, 288},           {0.001f, 0.7f},       {-0.5f, 127},
        {1e-8f, 1},  {1e6f, 1e6f + 1}, {777777, 777782}, {10000003, 10000012}, {16777216, 16777220}, {-1e-37f, 1e-37f},
        {0, 1e-38f}, {0, infinity},    {-infinity, 5},   {-3e38f, 3e38f},      {1e30f, 2e30f},       {nan, 1},
        {0, nan}};
    for (const Range& range : ranges) {
        std::vector<float> values = {nan, infinity, -infinity, 0.0f, range.low, range.high, 3e38f, -3e38f};
        for (int half = -4; half <= 516; ++half)
            addNear(values, range.low + (range.high - range.low) * (static_cast<float>(half) / 510.0f));
        SCOPED_TRACE(testing::Message() << range.low << " to " << range.high);
        compare<float, uint8_t>(
            values, [&](auto... args) { return pxliScale_32f8u_C1R(args..., range.low, range.high); },
            [&](float x) { return range.toByte(x); });
    }
}

// Around every value where the result of a narrowing scale changes.
template <class S>
void checkNarrowing(int64_t divisor, auto scale) {
    constexpr int64_t lowest = std::numeric_limits<S>::min(), highest = std::numeric_limits<S>::max();
    std::vector<S> values;
    for (int64_t step = 0; step <= 256; ++step)
        for (int64_t near = -300; near <= 300; ++near) {
            const int64_t value = lowest + step * divisor - divisor / 2 + near;
            if (value >= lowest && value <= highest) values.push_back(static_cast<S>(value));
        }
    for (const int hint : {0, 1, 2, 3})
        compare<S, uint8_t>(
            values, [&](auto... args) { return scale(args..., hint); },
            [&](int64_t value) { return (value - lowest + divisor / 2) / divisor; });
}

TEST(Rounding, ScaleToByte) {
    checkNarrowing<uint16_t>(257, pxliScale_16u8u_C1R);
    checkNarrowing<int16_t>(257, pxliScale_16s8u_C1R);
    checkNarrowing<int32_t>(16843009, pxliScale_32s8u_C1R);
}

} // namespace
