// Scale maps the whole range of one integer type linearly onto that of another; the float side takes the range
// vMin..vMax.
#include "image.h"

namespace reference {

namespace {

float intToFloat(const Element& srcType, int64_t value, float vMin, float vMax) {
    const float range = static_cast<float>(highest(srcType) - lowest(srcType));
    const float slope = (vMax - vMin) / range;
    const float product = static_cast<float>(value) * slope;
    return product + vMin;
}

int64_t floatToByte(float x, float vMin, float vMax) {
    if (!(x < vMax)) return 255;
    if (x <= vMin) return 0;
    const float slope = 255.0F / (vMax - vMin);
    const float scaled = x * slope;
    const float origin = (0.0F - slope) * vMin;
    const float shifted = scaled + origin;
    const float q = shifted + 0.5F;
    if (!(q > 0.0F)) return 0; // rounding errors of extreme ranges, and NaN
    return truncateTiesEven(q > 255.5F ? 255.5F : q);
}

// Widening: the spans divide without remainder. Narrowing: they divide by an odd number, so that no value lies half
// way.
int64_t intToInt(const Element& srcType, const Element& dstType, int64_t value) {
    const int64_t srcSpan = highest(srcType) - lowest(srcType);
    const int64_t dstSpan = highest(dstType) - lowest(dstType);
    const int64_t above = value - lowest(srcType);
    if (dstSpan >= srcSpan) return above * (dstSpan / srcSpan) + lowest(dstType);
    const int64_t divisor = srcSpan / dstSpan;
    return (above + divisor / 2) / divisor + lowest(dstType);
}

// The form of 16s8u that hint 2 chooses: (value + 32768) * 255 / 65535 + 0.5 in single precision.
int64_t shortToByteInFloat(int64_t value) {
    const float product = static_cast<float>(value) * 0.0038910506F;
    const float q = product + 128.00195F;
    return truncateTiesEven(q);
}

class ElementScale {
public:
    ElementScale(const Member& member, const Arg* args)
        : srcType(elementOf(member.src)), dstType(elementOf(member.dst)) {
        if (srcType.isFloat || dstType.isFloat) {
            vMin = static_cast<float>(args[5].real);
            vMax = static_cast<float>(args[6].real);
        }
        inFloat = member.src == "16s" && member.dst == "8u" && args[5].num == 2;
    }

    // False for a NaN bound, which the comparison does not catch.
    bool isEmptyRange() const { return (srcType.isFloat || dstType.isFloat) && vMax - vMin <= 0.0F; }

    void operator()(const uint8_t* src, uint8_t* dst) const {
        if (srcType.isFloat) {
            writeInt(dstType, dst, floatToByte(static_cast<float>(readReal(srcType, src)), vMin, vMax));
        } else if (dstType.isFloat) {
            writeReal(dstType, dst, static_cast<double>(intToFloat(srcType, readInt(srcType, src), vMin, vMax)));
        } else if (inFloat) {
            writeInt(dstType, dst, shortToByteInFloat(readInt(srcType, src)));
        } else {
            writeInt(dstType, dst, intToInt(srcType, dstType, readInt(srcType, src)));
        }
    }

private:
    Element srcType, dstType;
    float vMin = 0;
    float vMax = 0;
    bool inFloat = false;
};

int32_t scale(const Member& member, const Arg* args) {
    const ElementScale scaleElement(member, args);
    if (scaleElement.isEmptyRange()) return scaleRangeError;
    if (const int32_t status = checkConversion(member, args); status != ok) return status;

    const Layout layout = layoutOf(member.layout);
    const Image src = imageOf(args[0], args[1], layout.src, elementOf(member.src));
    const Image dst = imageOf(args[2], args[3], layout.dst, elementOf(member.dst));
    forEachPixel(args[4], [&](int64_t x, int64_t y) {
        for (int c = 0; c < src.active; ++c) {
            scaleElement(src.at(x, y, c), dst.at(x, y, c));
        }
    });
    return ok;
}

const Registered scaleFamily("Scale", scale);

} // namespace

} // namespace reference
