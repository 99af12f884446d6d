// What the arithmetic and logical families share: the two operands of a call and the loop over their elements.
//
// The first operand is an image (src1), a constant, or absent; the second (src2, or the source beside a constant) is
// the one that the in-place forms overwrite. That makes Sub and SubC, Div and DivC the same: second op first.
#pragma once

#include "image.h"

namespace reference {

struct Call {
    const Arg* first = nullptr; // null where a constant or nothing stands in its place
    const Arg* firstStep = nullptr;
    const Arg* value = nullptr;
    std::string_view valueType = {}; // shift counts differ from the image
    const Arg* second = nullptr;
    const Arg* secondStep = nullptr;
    const Arg* dst = nullptr;
    const Arg* dstStep = nullptr;
    const Arg* roi = nullptr;
    const Arg* rest = nullptr; // what follows the region
};

bool isInPlace(const Member& member);

Call twoImages(const Member& member, const Arg* args);
Call imageAndConstant(const Member& member, const Arg* args);
Call oneImage(const Member& member, const Arg* args);

// Images, and the value array of the multi-channel forms.
bool hasNull(const Member& member, const Call& call);
bool hasBadStep(const Call& call);

// C3 and C4, where they are a C1 call of three or four times the width: that width is looked at first of all.
bool isEmptyWidened(const Member& member, const Call& call);

// The two orders of checks: pointers, region [, steps], and the logical families' pointers, steps, region.
int32_t checkRegionFirst(const Member& member, const Call& call, bool checkSteps);
int32_t checkStepsFirst(const Member& member, const Call& call);

// The constant's entries for the channels that take part, one behind the other.
Pixel valuesOf(const Member& member, const Call& call);

// The constant as an image that is the same in every pixel. It refers to the values.
Image constantImage(const Pixel& values, const Element& type);

// Rows from the top, each from left to right, element by element: visit(first, second, dst) sees addresses.
template <typename Visit>
void forEachElement(const Member& member, const Call& call, Visit visit) {
    const Element type = elementOf(member.src);
    const Side side = layoutOf(member.layout).src;
    const Pixel values = call.value ? valuesOf(member, call) : Pixel{};
    const Image first = call.first ? imageOf(*call.first, *call.firstStep, side, type)
                                   : constantImage(values, elementOf(call.valueType));
    const Image second = imageOf(*call.second, *call.secondStep, side, type);
    const Image dst = imageOf(*call.dst, *call.dstStep, side, type);
    forEachPixel(*call.roi, [&](int64_t x, int64_t y) {
        for (int c = 0; c < side.active; ++c) {
            visit(first.at(x, y, c), second.at(x, y, c), dst.at(x, y, c));
        }
    });
}

} // namespace reference
