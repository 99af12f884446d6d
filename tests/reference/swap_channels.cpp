// Destination channel k receives source channel dstOrder[k]. Only C3C4 gives a meaning to entries beyond the source's
// channels: 3 writes the value, more leaves the destination channel as it was.
#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

#include "image.h"

namespace reference {

namespace {

using Order = std::array<int32_t, 4>;

Order orderOf(const Arg& argument, int entries) {
    Order order{};
    std::memcpy(order.data(), argument.ptr, sizeof(int32_t) * static_cast<size_t>(entries));
    return order;
}

bool isInRange(const Order& order, int entries, int32_t last) {
    return std::all_of(order.begin(), order.begin() + entries, [&](int32_t k) { return k >= 0 && k <= last; });
}

// Size before steps, except in place with four channels; the members that change the channel count take any step.
int32_t checkRegion(const Member& member, const Arg& roi, const Arg& srcStep, const Arg& dstStep) {
    const bool badStep = srcStep.num < 1 || dstStep.num < 1;
    if (member.layout == "C4" && badStep) return stepError;
    if (isEmpty(roi)) return sizeError;
    if ((member.layout == "C3" || member.layout == "AC4") && badStep) return stepError;
    return ok;
}

int32_t swapChannels(const Member& member, const Arg* args) {
    const Arg* dstArgs = member.mode == "IR" ? args : args + 2;
    const Arg& roi = dstArgs[2];
    const Arg& orderArg = dstArgs[3];
    const Element type = elementOf(member.src);
    const Layout layout = layoutOf(member.layout);
    const bool extends = member.layout == "C3C4";

    if (args[0].ptr == nullptr || dstArgs[0].ptr == nullptr || orderArg.ptr == nullptr) return nullPtrError;
    if (const int32_t status = checkRegion(member, roi, args[1], dstArgs[1]); status != ok) return status;
    const int entries = layout.dst.active;
    const Order order = orderOf(orderArg, entries);
    const int32_t last = extends ? std::numeric_limits<int32_t>::max() : layout.src.active - 1;
    if (!isInRange(order, entries, last)) return channelOrderError;

    const Image src = imageOf(args[0], args[1], layout.src, type);
    const Image dst = imageOf(dstArgs[0], dstArgs[1], layout.dst, type);
    const Pixel value = extends ? scalarValue(type, args[6]) : Pixel{};
    forEachPixel(roi, [&](int64_t x, int64_t y) {
        const Pixel pixel = src.load(x, y);
        for (int k = 0; k < entries; ++k) {
            if (order[k] < src.active) {
                std::copy_n(pixel.data() + order[k] * type.bytes(), type.bytes(), dst.at(x, y, k));
            } else if (order[k] == src.active) {
                std::copy_n(value.data(), type.bytes(), dst.at(x, y, k));
            }
        }
    });
    return ok;
}

const Registered swapChannelsFamily("SwapChannels", swapChannels);

} // namespace

} // namespace reference
