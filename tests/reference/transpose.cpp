// Transpose exchanges rows and columns: a region of width x height becomes one of height x width.
#include "image.h"

namespace reference {

namespace {

void transposeInPlace(const Image& image, const Arg& roi) {
    forEachPixel(roi, [&](int64_t x, int64_t y) {
        if (x <= y) return;
        const Pixel upper = image.load(x, y);
        const Pixel lower = image.load(y, x);
        image.store(x, y, lower);
        image.store(y, x, upper);
    });
}

int32_t transpose(const Member& member, const Arg* args) {
    const bool inPlace = member.mode == "IR";
    const Arg* dstArgs = inPlace ? args : args + 2;
    const Arg& roi = dstArgs[2];
    if (args[0].ptr == nullptr || dstArgs[0].ptr == nullptr) return nullPtrError;
    if (isEmpty(roi) || (inPlace && roi.width != roi.height)) return sizeError;

    const Element type = elementOf(member.src);
    const Side side = layoutOf(member.layout).src;
    const Image dst = imageOf(dstArgs[0], dstArgs[1], side, type);
    if (inPlace) {
        transposeInPlace(dst, roi);
        return ok;
    }
    const Image src = imageOf(args[0], args[1], side, type);
    forEachPixel(roi, [&](int64_t x, int64_t y) { dst.store(y, x, src.load(x, y)); });
    return ok;
}

const Registered transposeFamily("Transpose", transpose);

} // namespace

} // namespace reference
