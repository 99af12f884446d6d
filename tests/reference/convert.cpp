// Convert keeps the number: it widens exactly, saturates where the destination is narrower, and rounds floats as asked.
#include "bits.h"
#include "image.h"

namespace reference {

namespace {

// Both take x above 0. The sum is rounded to single precision before it is looked at.
int64_t roundNearEven(float x) {
    const float sum = x + 0.5F;
    return truncateTiesEven(sum);
}

int64_t roundHalfAway(float x) {
    const float sum = x + 0.5F;
    return static_cast<int64_t>(sum);
}

// Every mode treats a negative value as the mirror image of the positive one.
int64_t roundFloat(float x, int64_t mode) {
    if (x < 0) return -roundFloat(-x, mode);
    switch (mode) {
    case 0:
        return static_cast<int64_t>(x);
    case 1:
        return roundNearEven(x);
    default:
        return roundHalfAway(x);
    }
}

int64_t floatToInt(const Element& type, float x, int64_t mode) {
    if (x != x) return 0;
    if (x >= static_cast<float>(highest(type))) return highest(type);
    if (x <= static_cast<float>(lowest(type))) return lowest(type);
    return roundFloat(x, mode);
}

void convertElement(const Element& srcType, const uint8_t* src, const Element& dstType, uint8_t* dst, int64_t mode) {
    if (srcType.isFloat) {
        writeInt(dstType, dst, floatToInt(dstType, static_cast<float>(readReal(srcType, src)), mode));
    } else if (dstType.isFloat) {
        writeReal(dstType, dst, static_cast<double>(readInt(srcType, src)));
    } else {
        writeInt(dstType, dst, saturate(dstType, readInt(srcType, src)));
    }
}

int32_t convert(const Member& member, const Arg* args) {
    if (member.dst == "1u") return packBits(args);
    if (member.src == "1u") return unpackBits(args);
    if (const int32_t status = checkConversion(member, args); status != ok) return status;

    const Element srcType = elementOf(member.src);
    const Element dstType = elementOf(member.dst);
    const Layout layout = layoutOf(member.layout);
    const Image src = imageOf(args[0], args[1], layout.src, srcType);
    const Image dst = imageOf(args[2], args[3], layout.dst, dstType);
    const int64_t mode = srcType.isFloat ? args[5].num : 0;
    forEachPixel(args[4], [&](int64_t x, int64_t y) {
        for (int c = 0; c < src.active; ++c) {
            convertElement(srcType, src.at(x, y, c), dstType, dst.at(x, y, c), mode);
        }
    });
    return ok;
}

const Registered convertFamily("Convert", convert);

} // namespace

} // namespace reference
