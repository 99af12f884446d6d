// Box filters where random calls do not come: masks whose sums need more than 31 bits, and regions so high that the sums of
// floats begin anew within them.
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "generic/member.h"
#include "pxlcore.h"
#include "pxli.h"
#include "targets.h"

namespace {

using generic::Member;

const Member& memberOf(const std::string& suffix) {
    for (const Member& member : generic::members())
        if (member.name == "pxliFilterBox_" + suffix) return member;
    throw std::out_of_range(suffix);
}

struct Box {
    ImageSize roi, mask;
    ImagePoint anchor;
};

// An image with all that the windows of a region reach, and the region's place in it.
struct Picture {
    int64_t pixelBytes, step, rows, origin;
    std::vector<uint8_t> bytes;

    Picture(const Member& member, const Box& box)
        : pixelBytes(member.params[0].elements * generic::elementBytes(member.src)),
          step((box.roi.width + box.mask.width - 1) * pixelBytes), rows(box.roi.height + box.mask.height - 1),
          origin(box.anchor.y * step + box.anchor.x * pixelBytes), bytes(static_cast<size_t>(rows * step)) {}

    reference::Arg at() { return {.ptr = bytes.data() + origin}; }
    reference::Arg stepArg() const { return {.num = step}; }
};

// Calls run(arguments) with `image` as the source, and returns what the destination, in place the image, holds then.
template <class Run>
std::vector<uint8_t> resultOf(const Member& member, const Box& box, const Picture& image, const Run& run) {
    Picture src = image, dst(member, {box.roi, {1, 1}, {0, 0}});
    const reference::Arg roi{.width = box.roi.width, .height = box.roi.height};
    const reference::Arg mask{.width = box.mask.width, .height = box.mask.height};
    const reference::Arg anchor{.width = box.anchor.x, .height = box.anchor.y};
    std::vector<reference::Arg> args = {src.at(), src.stepArg()};
    if (member.mode == "R") args.insert(args.end(), {dst.at(), dst.stepArg()});
    args.insert(args.end(), {roi, mask, anchor});
    EXPECT_EQ(run(args.data()), PXL_OK);
    return member.mode == "R" ? dst.bytes : src.bytes;
}

// On every target, and by every team, the bytes of the definition.
void expectDefinition(const std::string& suffix, const Box& box, const Picture& image) {
    const Member& member = memberOf(suffix);
    const auto expected = resultOf(
        member, box, image, [&](const reference::Arg* args) { return reference::find(member.family)(member, args); });
    const int before = threads_omp_of_n_pxl;
    for (const pxl::KnownTarget& target : availableTargets(member))
        for (const int team : {1, 2, 3, 7}) {
            const TargetScope scope(target);
            threads_omp_of_n_pxl = team;
            EXPECT_TRUE(resultOf(member, box, image, member.call) == expected)
                << target.name << " " << member.name << " team " << team << " region " << box.roi.width << "x"
                << box.roi.height << " mask " << box.mask.width << "x" << box.mask.height;
        }
    threads_omp_of_n_pxl = before;
}

// ---- sums of more than 31 bits -------------------------------------------------------------------------------------

constexpr ImageSize wide{257, 131}, square{256, 256}, high{3, 70000}, higher{1, 140001};

// All samples as large as they can be, and random ones in the upper half of the range.
void expectExactSums(const std::string& suffix, const Box& box) {
    Picture image(memberOf(suffix), box);
    const bool bytes = suffix.starts_with("8u"), isSigned = suffix.starts_with("16s");
    const uint16_t most = isSigned ? 0x7FFF : 0xFFFF;
    for (size_t i = 0; i < image.bytes.size(); ++i)
        image.bytes[i] = static_cast<uint8_t>(bytes ? 0xFF : most >> (8 * (i % 2)));
    expectDefinition(suffix, box, image);
    std::mt19937 random(7);
    for (size_t i = bytes ? 0 : 1; i < image.bytes.size(); i += bytes ? 1 : 2)
        image.bytes[i] = static_cast<uint8_t>((isSigned ? 0x40 : 0x80) | random() >> (isSigned ? 26 : 25));
    expectDefinition(suffix, box, image);
}

TEST(BoxSums, LargeMasksOf16Bits) {
    for (const std::string type : {"16u", "16s"})
        for (const std::string layout : {"C1", "C3", "C4", "AC4"})
            for (const std::string mode : {"R", "IR"}) {
                expectExactSums(type + "_" + layout + mode, {{37, 20}, wide, {100, 17}});
                expectExactSums(type + "_" + layout + mode, {{5, 3}, square, {0, 255}});
                expectExactSums(type + "_" + layout + mode, {{21, 5}, high, {2, 69000}});
            }
}

// Column sums of more than 32 bits, too.
TEST(BoxSums, HighestMasks) {
    expectExactSums("16u_C1R", {{9, 12}, higher, {0, 140000}});
    expectExactSums("16s_C3IR", {{9, 12}, higher, {0, 0}});
    expectExactSums("8u_C1R", {{4, 12}, {1, 8421600}, {0, 4000000}});
    expectExactSums("8u_C1IR", {{4, 12}, {1, 8421600}, {0, 10}});
}

TEST(BoxSums, LargeMasksOfBytes) {
    expectExactSums("8u_C1R", {{20, 10}, {3000, 3000}, {1500, 1500}});
    expectExactSums("8u_C1IR", {{20, 10}, {3000, 3000}, {1500, 1500}});
}

// The switch from one width of sums to the next.
TEST(BoxSums, AroundTheLargestAreaOf31Bits) {
    for (const int width : {8192, 8193}) {
        expectExactSums("16u_C1R", {{70, 9}, {width, 4}, {width - 1, 0}});
        expectExactSums("16s_C4R", {{70, 9}, {width, 4}, {0, 3}});
    }
    for (const int height : {32768, 32769}) expectExactSums("16u_C3R", {{70, 9}, {1, height}, {0, 0}});
    for (const int width : {2105376, 2105377}) expectExactSums("8u_C1R", {{10, 9}, {width, 4}, {0, 0}});
}

// Taken from the formula itself: constant images, whose means are known.
TEST(BoxSums, ConstantImagesKeepTheirValue) {
    for (const pxl::KnownTarget& target : availableTargets()) {
        const TargetScope scope(target);
        const std::vector<uint16_t> bright(272 * 272, 65535);
        std::vector<uint16_t> mean(16 * 16);
        ASSERT_EQ(pxliFilterBox_16u_C1R(bright.data(), 272 * 2, mean.data(), 16 * 2, {16, 16}, {256, 256}, {0, 0}),
                  PXL_OK);
        EXPECT_EQ(mean, std::vector<uint16_t>(16 * 16, 65535)) << target.name;
        const std::vector<uint8_t> white(3010 * 3010, 255);
        std::vector<uint8_t> byte(8 * 8);
        ASSERT_EQ(pxliFilterBox_8u_C1R(white.data(), 3010, byte.data(), 8, {8, 8}, {3000, 3000}, {0, 0}), PXL_OK);
        EXPECT_EQ(byte, std::vector<uint8_t>(8 * 8, 255)) << target.name;
    }
}

// ---- sums of floats ------------------------------------------------------------------------------------------------

TEST(BoxSums, FloatsBeginAnewAtTheSameRowsForAll) {
    std::mt19937 random(11);
    std::uniform_real_distribution<float> value(-1000, 1000);
    for (const std::string layout : {"C1R", "C3R", "C4R", "AC4R", "C1IR", "C3IR", "C4IR", "AC4IR"})
        for (const int height : {31, 128, 255, 256, 257, 333, 520, 1030})
            for (const ImageSize mask : {ImageSize{3, 3}, ImageSize{5, 11}, ImageSize{1, 40}}) {
                const std::string suffix = "32f_" + layout;
                const Box box{{67, height}, mask, {mask.width / 2, mask.height - 1}};
                Picture image(memberOf(suffix), box);
                for (size_t i = 0; i < image.bytes.size(); i += 4) {
                    const float v = value(random);
                    std::memcpy(image.bytes.data() + i, &v, 4);
                }
                expectDefinition(suffix, box, image);
            }
}

} // namespace
