// MulScale and MulCScale: a product of two unsigned values, divided by the type's highest value with shifts.
#include "image.h"
#include "pointwise.h"

namespace reference {

namespace {

int32_t normalisedProduct(const Member& member, const Call& call) {
    if (const int32_t status = checkStepsFirst(member, call); status != ok) return status;
    const Element type = elementOf(member.src);
    const int bits = 8 * type.partBytes;
    forEachElement(member, call, [&](const uint8_t* first, const uint8_t* second, uint8_t* dst) {
        const int64_t p = readInt(type, first) * readInt(type, second);
        writeInt(type, dst, (p + (p >> bits) + 1) >> bits);
    });
    return ok;
}

int32_t mulScale(const Member& member, const Arg* args) { return normalisedProduct(member, twoImages(member, args)); }

int32_t mulCScale(const Member& member, const Arg* args) {
    return normalisedProduct(member, imageAndConstant(member, args));
}

const Registered mulScaleFamily("MulScale", mulScale);
const Registered mulCScaleFamily("MulCScale", mulCScale);

} // namespace

} // namespace reference
