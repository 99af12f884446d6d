#include "image.h"

namespace reference {

namespace {

int32_t set(const Member& member, const Arg* args) {
    const Arg& value = args[0];
    const Arg& roi = args[3];
    const Element type = elementOf(member.dst);
    const Side side = layoutOf(member.layout).dst;
    const bool masked = member.mode == "MR";
    const bool hasArray = side.active > 1;

    if (args[1].ptr == nullptr) return nullPtrError;
    if (hasArray && value.ptr == nullptr) return nullPtrError;
    if (masked && args[4].ptr == nullptr) return nullPtrError;
    if (isEmpty(roi)) return sizeError;

    const Pixel pixel = hasArray ? arrayValues(type, value, side.active) : scalarValue(type, value);
    const Image dst = imageOf(args[1], args[2], side, type);
    const Image mask = masked ? imageOf(args[4], args[5], layoutOf("C1").src, elementOf("8u")) : Image{};
    forEachPixel(roi, [&](int64_t x, int64_t y) {
        if (!masked || *mask.at(x, y) != 0) dst.store(x, y, pixel);
    });
    return ok;
}

const Registered setFamily("Set", set);

} // namespace

} // namespace reference
