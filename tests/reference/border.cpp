// A source region set into a larger destination region, with a margin that is constant, repeats the nearest edge pixel,
// or continues the source periodically.
#include <algorithm>

#include "image.h"

namespace reference {

namespace {

struct Call {
    Arg src, srcStep, srcSize;
    Arg dst, dstStep, dstSize;
    Arg top, left;
    bool inPlace;
};

// In place the one pointer addresses the source region inside the destination.
Call callOf(const Member& member, const Arg* args) {
    if (member.mode == "IR") return {args[0], args[1], args[2], args[0], args[1], args[3], args[4], args[5], true};
    return {args[0], args[1], args[2], args[3], args[4], args[5], args[6], args[7], false};
}

int32_t check(const Call& call) {
    if (call.src.ptr == nullptr || call.dst.ptr == nullptr) return nullPtrError;
    if (call.srcStep.num < 1 || call.dstStep.num < 1) return stepError;
    if (isEmpty(call.srcSize) || isEmpty(call.dstSize)) return sizeError;
    if (call.top.num < 0 || call.left.num < 0) return sizeError;
    if (call.dstSize.width < call.left.num + call.srcSize.width) return sizeError;
    if (call.dstSize.height < call.top.num + call.srcSize.height) return sizeError;
    return ok;
}

Image destinationOf(const Call& call, const Side& side, const Element& type) {
    Arg origin = call.dst;
    if (call.inPlace) {
        const int64_t ahead = call.top.num * call.dstStep.num + call.left.num * side.elements * type.bytes();
        origin.ptr = static_cast<const uint8_t*>(call.dst.ptr) - ahead;
    }
    return imageOf(origin, call.dstStep, side, type);
}

int64_t nearest(int64_t position, int64_t size) { return std::clamp<int64_t>(position, 0, size - 1); }

int64_t periodic(int64_t position, int64_t size) { return ((position % size) + size) % size; }

bool isInside(int64_t x, int64_t y, const Arg& size) { return x >= 0 && x < size.width && y >= 0 && y < size.height; }

using Fold = int64_t (*)(int64_t position, int64_t size);

int32_t extend(const Member& member, const Arg* args, Fold fold) {
    const Call call = callOf(member, args);
    if (const int32_t status = check(call); status != ok) return status;

    const Element type = elementOf(member.src);
    const Side side = layoutOf(member.layout).src;
    const Image src = imageOf(call.src, call.srcStep, side, type);
    const Image dst = destinationOf(call, side, type);
    forEachPixel(call.dstSize, [&](int64_t dstX, int64_t dstY) {
        const int64_t x = dstX - call.left.num;
        const int64_t y = dstY - call.top.num;
        if (call.inPlace && isInside(x, y, call.srcSize)) return;
        dst.store(dstX, dstY, src.load(fold(x, call.srcSize.width), fold(y, call.srcSize.height)));
    });
    return ok;
}

int32_t copyConstBorder(const Member& member, const Arg* args) {
    const Call call = callOf(member, args);
    const Arg& value = args[8];
    const Element type = elementOf(member.src);
    const Side side = layoutOf(member.layout).src;
    const bool hasArray = side.active > 1;
    if (const int32_t status = check(call); status != ok) return status;
    if (hasArray && value.ptr == nullptr) return nullPtrError;

    const Pixel margin = hasArray ? arrayValues(type, value, side.active) : scalarValue(type, value);
    const Image src = imageOf(call.src, call.srcStep, side, type);
    const Image dst = imageOf(call.dst, call.dstStep, side, type);
    forEachPixel(call.dstSize, [&](int64_t dstX, int64_t dstY) {
        const int64_t x = dstX - call.left.num;
        const int64_t y = dstY - call.top.num;
        dst.store(dstX, dstY, isInside(x, y, call.srcSize) ? src.load(x, y) : margin);
    });
    return ok;
}

int32_t copyReplicateBorder(const Member& member, const Arg* args) { return extend(member, args, nearest); }

int32_t copyWrapBorder(const Member& member, const Arg* args) { return extend(member, args, periodic); }

const Registered copyConstBorderFamily("CopyConstBorder", copyConstBorder);
const Registered copyReplicateBorderFamily("CopyReplicateBorder", copyReplicateBorder);
const Registered copyWrapBorderFamily("CopyWrapBorder", copyWrapBorder);

} // namespace

} // namespace reference
