// Data exchange: what random calls are unlikely to hit.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "pxli.h"
#include "targets.h"

namespace {

class EveryTarget : public testing::TestWithParam<pxl::KnownTarget> {
    TargetScope scope_{GetParam()};
};

// Half of the bits of a middle gray are ones: the error is carried, not lost.
TEST_P(EveryTarget, DitheringKeepsTheMean) {
    const int side = 256;
    std::vector<uint8_t> src(side * side), dst(side * side / 8);
    for (const int gray : {1, 64, 128, 200, 254}) {
        std::fill(src.begin(), src.end(), static_cast<uint8_t>(gray));
        ASSERT_EQ(pxliConvert_8u1u_C1R(src.data(), side, dst.data(), side / 8, 0, {side, side}, 128), PXL_OK);
        int ones = 0;
        for (const uint8_t byte : dst) ones += __builtin_popcount(byte);
        EXPECT_NEAR(ones * 255.0 / (side * side), gray, 1.5);
    }
}

// A destination in constant memory: a store would end the test.
TEST_P(EveryTarget, MaskOfZerosWritesNothing) {
    static const uint8_t constant[300] = {1, 2, 3};
    const std::vector<uint8_t> src(300, 9), mask(100, 0);
    uint8_t* dst = const_cast<uint8_t*>(constant);
    for (int width = 1; width <= 100; ++width) {
        EXPECT_EQ(pxliCopy_8u_C1MR(src.data(), 300, dst, 300, {width, 1}, mask.data(), 100), PXL_OK);
        EXPECT_EQ(pxliCopy_8u_C3MR(src.data(), 300, dst, 300, {width, 1}, mask.data(), 100), PXL_OK);
        EXPECT_EQ(pxliSet_8u_C3MR(src.data(), dst, 300, {width, 1}, mask.data(), 100), PXL_OK);
    }
}

// Every width and bit offset around those of vectors and words.
TEST_P(EveryTarget, UnpackingFindsEveryBit) {
    std::vector<uint8_t> bits(100), dst(702);
    for (size_t i = 0; i < bits.size(); ++i) bits[i] = static_cast<uint8_t>(i * 2654435761u >> 11);
    for (int offset = 0; offset < 8; ++offset)
        for (int width = 1; width <= 700; ++width) {
            std::fill(dst.begin(), dst.end(), 77);
            ASSERT_EQ(pxliConvert_1u8u_C1R(bits.data(), 100, offset, dst.data(), 700, {width, 1}), PXL_OK);
            for (int x = 0; x < width; ++x) {
                const bool bit = bits[static_cast<size_t>((offset + x) / 8)] >> (7 - (offset + x) % 8) & 1;
                ASSERT_EQ(dst[static_cast<size_t>(x)], bit ? 255 : 0) << offset << " " << width << " " << x;
            }
            ASSERT_EQ(dst[static_cast<size_t>(width)], 77);
        }
}

// Images too large for the first cache have their lines fetched ahead, those too large for all are stored past them; row by
// row they are not.
TEST_P(EveryTarget, LargeImagesEqualTheirRows) {
    const int width = 2731;
    const int step = 8256;
    std::vector<uint8_t> src(size_t{3000} * step), memory[2];
    for (size_t i = 0; i < src.size(); ++i) src[i] = static_cast<uint8_t>(i * 2654435761u >> 13);
    for (auto& m : memory) m.assign(src.size() + 64, 0);
    const auto aligned = [](std::vector<uint8_t>& m) {
        return m.data() + (-reinterpret_cast<uintptr_t>(m.data()) & 31);
    };
    uint8_t *large = aligned(memory[0]), *rows = aligned(memory[1]);
    const int reversed[3] = {2, 1, 0};
    const auto compare = [&](const char* what, auto call) {
        for (const int height : {12, 3000}) {
            ASSERT_EQ(call(src.data(), large, ImageSize{width, height}), PXL_OK) << what;
            for (ptrdiff_t y = 0; y < height; ++y)
                ASSERT_EQ(call(src.data() + y * step, rows + y * step, ImageSize{width, 1}), PXL_OK) << what;
            EXPECT_EQ(std::memcmp(large, rows, src.size()), 0) << what << " " << height;
        }
    };
    const ptrdiff_t plane = 2752; // beside each other in the rows of the destination
    compare("copy", [&](auto* s, auto* d, auto roi) { return pxliCopy_8u_C3R(s, step, d, step, roi); });
    compare("swap",
            [&](auto* s, auto* d, auto roi) { return pxliSwapChannels_8u_C3R(s, step, d, step, roi, reversed); });
    compare("split", [&](auto* s, auto* d, auto roi) {
        uint8_t* planes[3] = {d, d + plane, d + 2 * plane};
        return pxliCopy_8u_C3P3R(s, step, planes, step, roi);
    });
    compare("merge", [&](auto* s, auto* d, auto roi) {
        const uint8_t* planes[3] = {s, s + plane, s + 2 * plane};
        return pxliCopy_8u_P3C3R(planes, step, d, step, roi);
    });
    // Planes whose lines begin at the same pixel, and some that have none in common.
    compare("split at odd places", [&](auto* s, auto* d, auto roi) {
        uint8_t* planes[3] = {d + 5, d + 5 + plane, d + 5 + 2 * plane};
        return pxliCopy_8u_C3P3R(s, step, planes, step, {roi.width - 7, roi.height});
    });
    compare("split apart", [&](auto* s, auto* d, auto roi) {
        uint8_t* planes[3] = {d, d + 1 + plane, d + 2 + 2 * plane};
        return pxliCopy_8u_C3P3R(s, step, planes, step, {roi.width - 7, roi.height});
    });
    compare("merge at odd places", [&](auto* s, auto* d, auto roi) {
        const uint8_t* planes[3] = {s, s + plane, s + 2 * plane};
        return pxliCopy_8u_P3C3R(planes, step, d + 25, step, {roi.width - 9, roi.height});
    });
    const auto floats = [](auto* p) {
        return reinterpret_cast<
            std::conditional_t<std::is_const_v<std::remove_pointer_t<decltype(p)>>, const float*, float*>>(p);
    };
    compare("insert", [&](auto* s, auto* d, auto roi) {
        return pxliCopy_32f_C1C3R(floats(s), step, floats(d) + 1, step, {roi.width / 4, roi.height});
    });
    compare("move a channel", [&](auto* s, auto* d, auto roi) {
        return pxliCopy_32f_C4CR(floats(s) + 2, step, floats(d) + 2, step, {roi.width / 6, roi.height});
    });
    compare("narrow", [&](auto* s, auto* d, auto roi) {
        return pxliConvert_32f8s_C1R(floats(s), step, reinterpret_cast<int8_t*>(d), step, {roi.width / 2, roi.height},
                                     PXL_ROUND_NEAR_EVEN);
    });
    compare("add", [&](auto* s, auto* d, auto roi) { return pxliAdd_8u_C3RSfs(s, step, s, step, d, step, roi, 0); });
}

TEST_P(EveryTarget, LargeFillsPastTheCache) {
    const int pixels = 16'100'000;
    const uint8_t colour[3] = {7, 77, 177};
    std::vector<uint8_t> image(size_t{pixels} * 3 + 2, 1);
    ASSERT_EQ(pxliSet_8u_C3R(colour, image.data() + 1, 1, {pixels, 1}), PXL_OK);
    for (size_t i = 0; i < size_t{pixels} * 3; ++i) ASSERT_EQ(image[i + 1], colour[i % 3]) << i;
    EXPECT_EQ(image.front(), 1);
    EXPECT_EQ(image.back(), 1);
}

// Regions whose row offsets pass 2^31: two rows, more than 2 GiB apart, of memory that is never touched in between.
TEST_P(EveryTarget, RowOffsetsAre64Bit) {
    const int step = 0x40000000;
    auto* memory = static_cast<uint8_t*>(std::calloc(size_t{3} * 0x40000000 + 64, 1));
    if (!memory) GTEST_SKIP() << "not enough address space";
    for (int y = 0; y < 4; ++y) memory[size_t{0x40000000} * static_cast<size_t>(y)] = static_cast<uint8_t>(y + 1);
    uint8_t column[4] = {};
    EXPECT_EQ(pxliCopy_8u_C1R(memory, step, column, 1, {1, 4}), PXL_OK);
    EXPECT_EQ(pxliMirror_8u_C1IR(memory, step, {1, 4}, PXL_AXIS_HORIZONTAL), PXL_OK);
    EXPECT_EQ(memory[size_t{3} * 0x40000000], 1);
    for (int y = 0; y < 4; ++y) EXPECT_EQ(column[y], y + 1);
    std::free(memory);
}

INSTANTIATE_TEST_SUITE_P(, EveryTarget, testing::ValuesIn(availableTargets()),
                         [](const auto& target) { return std::string(target.param.name); });

} // namespace
