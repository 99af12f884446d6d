// And, Or, Xor of two images or of an image and a constant, and Not.
#include "image.h"
#include "pointwise.h"

namespace reference {

namespace {

// By the family's first letter: And, Or or Xor, with or without C.
int64_t combine(std::string_view family, int64_t first, int64_t second) {
    switch (family.front()) {
    case 'A':
        return first & second;
    case 'O':
        return first | second;
    default:
        return first ^ second;
    }
}

int32_t logical(const Member& member, const Call& call) {
    if (const int32_t status = checkStepsFirst(member, call); status != ok) return status;
    const Element type = elementOf(member.src);
    forEachElement(member, call, [&](const uint8_t* first, const uint8_t* second, uint8_t* dst) {
        writeInt(type, dst, combine(member.family, readInt(type, first), readInt(type, second)));
    });
    return ok;
}

// Of the logical families these alone hand C3 and C4 on to C1.
int32_t logicalOfImages(const Member& member, const Arg* args) {
    const Call call = twoImages(member, args);
    if (isEmptyWidened(member, call)) return sizeError;
    return logical(member, call);
}

int32_t logicalWithConstant(const Member& member, const Arg* args) {
    return logical(member, imageAndConstant(member, args));
}

int32_t bitNot(const Member& member, const Arg* args) {
    const Call call = oneImage(member, args);
    if (const int32_t status = checkStepsFirst(member, call); status != ok) return status;
    const Element type = elementOf(member.src);
    forEachElement(member, call,
                   [&](const uint8_t*, const uint8_t* src, uint8_t* dst) { writeInt(type, dst, ~readInt(type, src)); });
    return ok;
}

const Registered andFamily("And", logicalOfImages);
const Registered orFamily("Or", logicalOfImages);
const Registered xorFamily("Xor", logicalOfImages);
const Registered andCFamily("AndC", logicalWithConstant);
const Registered orCFamily("OrC", logicalWithConstant);
const Registered xorCFamily("XorC", logicalWithConstant);
const Registered notFamily("Not", bitNot);

} // namespace

} // namespace reference
