// AddC, SubC, MulC and DivC: the elements of the two-image families with the constant as first operand.
//
// The 8u members hand some scale factors and a constant of 0 to Copy or Set. Those look at fewer arguments than have
// been checked by then and give the same elements, so that the shortcuts cannot be seen.
#include "arith.h"
#include "pointwise.h"

namespace reference {

namespace {

int32_t sumOrProductWithConstant(const Member& member, const Arg* args) {
    const Call call = imageAndConstant(member, args);
    if (const int32_t status = checkRegionFirst(member, call, false); status != ok) return status;
    forEachElement(member, call, sumOrProduct(member, scaleFactorOf(member, call.rest)));
    return ok;
}

// Complex: |value|^2 is exact for integers; in single precision a small value counts as zero too.
bool isZero(const Element& type, const uint8_t* value) {
    if (type.isFloat)
        return type.parts == 2 ? squaredMagnitude(readFloatPair(type, value)) == 0 : readReal(type, value) == 0;
    return readInt(type, value) == 0 && (type.parts == 1 || readIntPair(type, value).im == 0);
}

bool hasZero(const Member& member, const Call& call) {
    const Element type = elementOf(member.src);
    const Pixel values = valuesOf(member, call);
    for (int c = 0; c < layoutOf(member.layout).src.active; ++c) {
        if (isZero(type, values.data() + c * type.bytes())) return true;
    }
    return false;
}

// 32f alone multiplies by the reciprocal; all others divide like two images.
void timesReciprocal(const Element& type, const uint8_t* value, const uint8_t* src, uint8_t* dst) {
    const float reciprocal = 1.0F / static_cast<float>(readReal(type, value));
    const float product = static_cast<float>(readReal(type, src)) * reciprocal;
    writeReal(type, dst, static_cast<double>(product));
}

int32_t divC(const Member& member, const Arg* args) {
    const Call call = imageAndConstant(member, args);
    if (const int32_t status = checkRegionFirst(member, call, true); status != ok) return status;
    if (hasZero(member, call)) return divByZeroError;

    const Element type = elementOf(member.src);
    if (member.src == "32f") {
        forEachElement(member, call, [&](const uint8_t* value, const uint8_t* src, uint8_t* dst) {
            timesReciprocal(type, value, src, dst);
        });
    } else {
        forEachElement(member, call, quotient(member, scaleFactorOf(member, call.rest)));
    }
    return ok;
}

const Registered addCFamily("AddC", sumOrProductWithConstant);
const Registered subCFamily("SubC", sumOrProductWithConstant);
const Registered mulCFamily("MulC", sumOrProductWithConstant);
const Registered divCFamily("DivC", divC);

} // namespace

} // namespace reference
