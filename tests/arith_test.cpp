// Arithmetic: all operand pairs of 8u, and the corners of the wider types against each other, at every scale factor
// that makes a difference.
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <limits>
#include <numeric>
#include <vector>

#include "pxli.h"
#include "reference/reference.h"
#include "targets.h"

namespace {

// Every value of `values` with every other, as two images of one row.
template <class T>
struct Pairs {
    std::vector<T> first, second;
    explicit Pairs(const std::vector<T>& values) {
        for (const T a : values)
            for (const T b : values) {
                first.push_back(a);
                second.push_back(b);
            }
    }
};

template <class T>
using TwoSources = PxlStatus (*)(const T*, int, const T*, int, T*, int, ImageSize, int);
template <class T>
using TwoSourcesRounded = PxlStatus (*)(const T*, int, const T*, int, T*, int, ImageSize, PxlRoundMode, int);

template <class T>
class PairTest {
public:
    PairTest(const char* type, const std::vector<T>& values)
        : type_(type), pairs_(values), size_{static_cast<int>(pairs_.first.size()), 1} {}

    void expectSame(const char* family, TwoSources<T> call, int scaleFactor) {
        expect(family, {scaleFactor}, [&](T* dst) {
            return call(pairs_.first.data(), step, pairs_.second.data(), step, dst, step, size_, scaleFactor);
        });
    }
    void expectSame(const char* family, TwoSourcesRounded<T> call, int roundMode, int scaleFactor) {
        expect(family, {roundMode, scaleFactor}, [&](T* dst) {
            return call(pairs_.first.data(), step, pairs_.second.data(), step, dst, step, size_, roundMode,
                        scaleFactor);
        });
    }

private:
    static constexpr int step = 1 << 24;

    template <class Call>
    void expect(const char* family, std::vector<int> own, Call call) {
        std::vector<T> expected(pairs_.first.size()), actual = expected;
        reference::Arg args[9];
        args[0].ptr = pairs_.first.data();
        args[2].ptr = pairs_.second.data();
        args[4].ptr = expected.data();
        args[1].num = args[3].num = args[5].num = step;
        args[6].width = size_.width;
        args[6].height = 1;
        for (size_t i = 0; i < own.size(); ++i) args[7 + i].num = own[i];
        const reference::Member member{"", family, type_, type_, "C1", "RSfs"};
        const int32_t status = reference::find(family)(member, args);
        for (const pxl::KnownTarget& target : availableTargets()) {
            const TargetScope scope(target);
            EXPECT_EQ(call(actual.data()), status) << target.name << " " << family;
            const auto at = std::ranges::mismatch(expected, actual).in1 - expected.begin();
            if (at == static_cast<ptrdiff_t>(expected.size())) continue;
            const auto i = static_cast<size_t>(at);
            FAIL() << target.name << " " << family << "_" << type_ << " scaleFactor " << own.back() << ": "
                   << +pairs_.first[i] << ", " << +pairs_.second[i] << " gives " << +actual[i] << " instead of "
                   << +expected[i];
        }
    }

    const char* type_;
    Pairs<T> pairs_;
    ImageSize size_;
};

TEST(AllPairs, Of8u) {
    std::vector<uint8_t> values(256);
    for (int i = 0; i < 256; ++i) values[static_cast<size_t>(i)] = static_cast<uint8_t>(i);
    PairTest<uint8_t> pairs("8u", values);
    for (int scaleFactor = -17; scaleFactor <= 18; ++scaleFactor) {
        pairs.expectSame("Add", pxliAdd_8u_C1RSfs, scaleFactor);
        pairs.expectSame("Sub", pxliSub_8u_C1RSfs, scaleFactor);
        pairs.expectSame("Mul", pxliMul_8u_C1RSfs, scaleFactor);
        pairs.expectSame("Div", pxliDiv_8u_C1RSfs, scaleFactor);
        for (int mode = 0; mode < 3; ++mode) pairs.expectSame("Div_Round", pxliDiv_Round_8u_C1RSfs, mode, scaleFactor);
    }
}

// Powers of two, their neighbours, small numbers and odd ones in between.
template <class T>
std::vector<T> corners() {
    std::vector<T> values;
    for (int bit = 0; bit <= 16; ++bit)
        for (int d = -2; d <= 2; ++d)
            for (const int sign : {1, -1}) values.push_back(static_cast<T>(sign * (1 << bit) + d));
    for (int v = 1; v < 60000; v = v * 5 / 3 + 7) values.push_back(static_cast<T>(v));
    std::ranges::sort(values);
    const auto rest = std::ranges::unique(values);
    values.erase(rest.begin(), rest.end());
    return values;
}

template <class T>
void checkCorners(const char* type, TwoSources<T> add, TwoSources<T> sub, TwoSources<T> mul, TwoSources<T> div,
                  TwoSourcesRounded<T> divRound) {
    PairTest<T> pairs(type, corners<T>());
    for (int scaleFactor = -34; scaleFactor <= 35; ++scaleFactor) {
        pairs.expectSame("Add", add, scaleFactor);
        pairs.expectSame("Sub", sub, scaleFactor);
        pairs.expectSame("Mul", mul, scaleFactor);
        pairs.expectSame("Div", div, scaleFactor);
        for (int mode = 0; mode < 3; ++mode) pairs.expectSame("Div_Round", divRound, mode, scaleFactor);
    }
}

TEST(Corners, Of16u) {
    checkCorners<uint16_t>("16u", pxliAdd_16u_C1RSfs, pxliSub_16u_C1RSfs, pxliMul_16u_C1RSfs, pxliDiv_16u_C1RSfs,
                           pxliDiv_Round_16u_C1RSfs);
}
TEST(Corners, Of16s) {
    checkCorners<int16_t>("16s", pxliAdd_16s_C1RSfs, pxliSub_16s_C1RSfs, pxliMul_16s_C1RSfs, pxliDiv_16s_C1RSfs,
                          pxliDiv_Round_16s_C1RSfs);
}

// All dividends by four constants, one for each channel.
template <class T>
void checkConstants(const char* type, PxlStatus (*divide)(const T*, int, const T*, T*, int, ImageSize, int),
                    const std::vector<int>& constants, const std::vector<int>& scaleFactors) {
    constexpr size_t values = size_t{1} << 8 * sizeof(T), channels = 4;
    constexpr int step = static_cast<int>(values * channels * sizeof(T));
    std::vector<T> dividends(values * channels), expected(dividends.size()), actual(dividends.size());
    for (size_t i = 0; i < dividends.size(); ++i) dividends[i] = static_cast<T>(i / channels);
    for (size_t first = 0; first < constants.size(); first += channels) {
        T four[channels];
        for (size_t c = 0; c < channels; ++c) four[c] = static_cast<T>(constants[(first + c) % constants.size()]);
        for (const int scaleFactor : scaleFactors) {
            reference::Arg args[7];
            args[0].ptr = dividends.data(), args[2].ptr = four, args[3].ptr = expected.data();
            args[1].num = args[4].num = step;
            args[5].width = static_cast<int32_t>(values), args[5].height = 1;
            args[6].num = scaleFactor;
            reference::find("DivC")({"", "DivC", type, type, "C4", "RSfs"}, args);
            for (const pxl::KnownTarget& target : availableTargets()) {
                const TargetScope scope(target);
                EXPECT_EQ(divide(dividends.data(), step, four, actual.data(), step, {static_cast<int>(values), 1},
                                 scaleFactor),
                          PXL_OK);
                const auto at = static_cast<size_t>(std::ranges::mismatch(expected, actual).in1 - expected.begin());
                ASSERT_EQ(at, expected.size())
                    << target.name << " " << type << " scaleFactor " << scaleFactor << ": " << +dividends[at] << " / "
                    << +four[at % channels] << " gives " << +actual[at] << " instead of " << +expected[at];
            }
        }
    }
}

TEST(ConstantDivision, Of8u) {
    std::vector<int> constants(255), scaleFactors(28);
    std::iota(constants.begin(), constants.end(), 1);
    std::iota(scaleFactors.begin(), scaleFactors.end(), -17);
    checkConstants<uint8_t>("8u", pxliDivC_8u_C4RSfs, constants, scaleFactors);
}
// Among them divisors whose quotients come near to ties, and those on both sides of every limit.
const std::vector<int> constants16{1,    2,    3,    5,    7,    10,   255,  256,   257,   510,   511,   767,   1000,
                                   1535, 1536, 2559, 3070, 3584, 4095, 7680, 10239, 21845, 26214, 32767, 32768, 31231};
TEST(ConstantDivision, Of16u) {
    std::vector<int> constants = constants16;
    for (const int large : {32769, 32770, 40001, 43690, 43691, 65533, 65534, 65535}) constants.push_back(large);
    checkConstants<uint16_t>("16u", pxliDivC_16u_C4RSfs, constants, {-33, -16, -9, -8, -1, 0, 1, 2, 8, 15, 16, 17});
}
TEST(ConstantDivision, Of16s) {
    std::vector<int> constants = constants16;
    for (const int c : constants16) constants.push_back(-c);
    checkConstants<int16_t>("16s", pxliDivC_16s_C4RSfs, constants, {-33, -8, -1, 0, 1, 2, 8, 15, 17});
}

// The one imaginary sum that does not fit 32 bits, and products near the ends of 64 bits.
TEST(Corners, OfComplexProducts) {
    for (const pxl::KnownTarget& target : availableTargets()) {
        const TargetScope scope(target);
        const Pxl16sc low{-32768, -32768};
        Pxl16sc product;
        EXPECT_EQ(pxliMul_16sc_C1RSfs(&low, 4, &low, 4, &product, 4, {1, 1}, 0), PXL_OK);
        EXPECT_EQ(product.re, 0);
        EXPECT_EQ(product.im, 32767);
        const Pxl32sc lowest{INT32_MIN, INT32_MIN};
        Pxl32sc wide;
        EXPECT_EQ(pxliMul_32sc_C1RSfs(&lowest, 8, &lowest, 8, &wide, 8, {1, 1}, 33), PXL_OK);
        EXPECT_EQ(wide.re, 0);
        EXPECT_EQ(wide.im, 1 << 30); // 2^63 / 2^33
    }
}

// Special values of 32f division, with the warning and the documented NaN.
TEST(Division, SpecialValuesOf32f) {
    const float infinity = std::numeric_limits<float>::infinity(), nan = std::numeric_limits<float>::quiet_NaN();
    const float divisor[] = {0.0f, -0.0f, 0.0f, -0.0f, 0.0f, nan, infinity, 2.0f};
    const float dividend[] = {1.0f, 1.0f, -1.0f, 0.0f, nan, 1.0f, 5.0f, 3.0f};
    const uint32_t expected[] = {0x7F800000, 0x7F800000, 0xFF800000, 0xFFC00000, 0xFFC00000, 0x7FC00000, 0, 0x3FC00000};
    for (const pxl::KnownTarget& target : availableTargets()) {
        const TargetScope scope(target);
        float quotient[8];
        EXPECT_EQ(pxliDiv_32f_C1R(divisor, 32, dividend, 32, quotient, 32, {8, 1}), PXL_W_DIV_BY_ZERO);
        for (int i = 0; i < 8; ++i)
            EXPECT_EQ(std::bit_cast<uint32_t>(quotient[i]), expected[i]) << target.name << " " << i;
        EXPECT_EQ(pxliDiv_32f_C1R(divisor + 5, 12, dividend + 5, 12, quotient, 12, {3, 1}),
                  PXL_OK); // tails raise no warning
    }
}

} // namespace
