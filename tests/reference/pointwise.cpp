#include "pointwise.h"

namespace reference {

bool isInPlace(const Member& member) { return member.mode.starts_with('I'); }

Call twoImages(const Member& member, const Arg* args) {
    const Arg* dst = isInPlace(member) ? args + 2 : args + 4;
    return {.first = args,
            .firstStep = args + 1,
            .second = args + 2,
            .secondStep = args + 3,
            .dst = dst,
            .dstStep = dst + 1,
            .roi = dst + 2,
            .rest = dst + 3};
}

Call imageAndConstant(const Member& member, const Arg* args) {
    const Arg* src = isInPlace(member) ? args + 1 : args;
    const Arg* dst = isInPlace(member) ? args + 1 : args + 3;
    return {.value = isInPlace(member) ? args : args + 2,
            .valueType = member.src,
            .second = src,
            .secondStep = src + 1,
            .dst = dst,
            .dstStep = dst + 1,
            .roi = dst + 2,
            .rest = dst + 3};
}

Call oneImage(const Member& member, const Arg* args) {
    const Arg* dst = isInPlace(member) ? args : args + 2;
    return {.valueType = member.src,
            .second = args,
            .secondStep = args + 1,
            .dst = dst,
            .dstStep = dst + 1,
            .roi = dst + 2,
            .rest = dst + 3};
}

bool hasNull(const Member& member, const Call& call) {
    const bool hasArray = call.value && layoutOf(member.layout).src.active > 1;
    if (call.first && call.first->ptr == nullptr) return true;
    if (hasArray && call.value->ptr == nullptr) return true;
    return call.second->ptr == nullptr || call.dst->ptr == nullptr;
}

bool hasBadStep(const Call& call) {
    if (call.first && call.firstStep->num < 1) return true;
    return call.secondStep->num < 1 || call.dstStep->num < 1;
}

bool isEmptyWidened(const Member& member, const Call& call) {
    return (member.layout == "C3" || member.layout == "C4") && call.roi->width < 1;
}

int32_t checkRegionFirst(const Member& member, const Call& call, bool checkSteps) {
    if (hasNull(member, call)) return nullPtrError;
    if (isEmpty(*call.roi)) return sizeError;
    if (checkSteps && hasBadStep(call)) return stepError;
    return ok;
}

int32_t checkStepsFirst(const Member& member, const Call& call) {
    if (hasNull(member, call)) return nullPtrError;
    if (hasBadStep(call)) return stepError;
    if (isEmpty(*call.roi)) return sizeError;
    return ok;
}

Pixel valuesOf(const Member& member, const Call& call) {
    const Element type = elementOf(call.valueType);
    const int count = layoutOf(member.layout).src.active;
    // A single complex constant comes as the address of its pair.
    const bool byAddress = count > 1 || type.parts > 1;
    return byAddress ? arrayValues(type, *call.value, count) : scalarValue(type, *call.value);
}

Image constantImage(const Pixel& values, const Element& type) {
    Image image;
    for (int c = 0; c < 4; ++c) {
        image.channel[c] = const_cast<uint8_t*>(values.data()) + c * type.bytes();
    }
    return image;
}

} // namespace reference
