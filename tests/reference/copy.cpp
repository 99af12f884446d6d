// Copy moves elements bit for bit between layouts; Dup spreads one channel over three.
#include <algorithm>

#include "image.h"

namespace reference {

namespace {

// The layouts whose elements are all alike: where source and destination overlap, each element counts for itself.
bool movesElements(const Member& member) {
    return member.mode == "R" && (member.layout == "C1" || member.layout == "C3" || member.layout == "C4");
}

void copyElements(const Image& src, const Image& dst, const Arg& roi) {
    forEachPixel(roi, [&](int64_t x, int64_t y) {
        for (int c = 0; c < src.active; ++c) {
            std::copy_n(src.at(x, y, c), src.elementBytes, dst.at(x, y, c));
        }
    });
}

int32_t copy(const Member& member, const Arg* args) {
    const Arg& roi = args[4];
    const Element type = elementOf(member.src);
    Layout layout = layoutOf(member.layout);
    // C3AC4 and AC4C3 share three channels; C1C3 and C3C1 only the one that the pointers address.
    layout.src.active = layout.dst.active = std::min(layout.src.active, layout.dst.active);
    const bool masked = member.mode == "MR";

    if (isNull(args[0], layout.src) || isNull(args[2], layout.dst)) return nullPtrError;
    if (masked && args[5].ptr == nullptr) return nullPtrError;
    if (isEmpty(roi)) return sizeError;

    const Image src = imageOf(args[0], args[1], layout.src, type);
    const Image dst = imageOf(args[2], args[3], layout.dst, type);
    if (movesElements(member)) {
        copyElements(src, dst, roi);
        return ok;
    }
    const Image mask = masked ? imageOf(args[5], args[6], layoutOf("C1").src, elementOf("8u")) : Image{};
    forEachPixel(roi, [&](int64_t x, int64_t y) {
        if (!masked || *mask.at(x, y) != 0) dst.store(x, y, src.load(x, y));
    });
    return ok;
}

int32_t dup(const Member& member, const Arg* args) {
    const Arg& roi = args[4];
    const Element type = elementOf(member.src);
    const Layout layout = layoutOf(member.layout);
    if (args[0].ptr == nullptr || args[2].ptr == nullptr) return nullPtrError;
    if (isEmpty(roi)) return sizeError;

    const Image src = imageOf(args[0], args[1], layout.src, type);
    const Image dst = imageOf(args[2], args[3], layout.dst, type);
    forEachPixel(roi, [&](int64_t x, int64_t y) {
        const Pixel gray = src.load(x, y);
        for (int c = 0; c < dst.active; ++c) {
            std::copy_n(gray.data(), dst.elementBytes, dst.at(x, y, c));
        }
    });
    return ok;
}

const Registered copyFamily("Copy", copy);
const Registered copyManagedFamily("CopyManaged", copy);
const Registered dupFamily("Dup", dup);

} // namespace

} // namespace reference
