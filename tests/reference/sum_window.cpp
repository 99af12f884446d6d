// Window sums along rows or columns, as running sums in single precision. Samples enter the first window one by one;
// after that the difference of the one that enters and the one that leaves is formed in integers.
#include <vector>

#include "image.h"

namespace reference {

namespace {

struct Window {
    int64_t size;
    int64_t anchor;
};

// The members do not agree: one looks at the region first of all, some never.
int32_t check(const Member& member, const Arg* args) {
    const Arg& src = args[0];
    const Arg& dst = args[2];
    const Arg& roi = args[4];
    const Window window{args[5].num, args[6].num};
    const bool regionFirst = member.family == "SumWindowColumn" && member.src == "16s" && member.layout == "C3";
    if (regionFirst && isEmpty(roi)) return sizeError;
    if (src.ptr == nullptr || dst.ptr == nullptr) return nullPtrError;
    if (member.src == "16u" && isEmpty(roi)) return sizeError;
    if (window.size < 1) return maskSizeError;
    if (window.anchor < 0 || window.anchor >= window.size) return anchorError;
    return ok;
}

struct Images {
    Element srcType, dstType;
    Image src, dst;

    Images(const Member& member, const Arg* args)
        : srcType(elementOf(member.src)), dstType(elementOf(member.dst)),
          src(imageOfWholeElements(args[0], args[1], layoutOf(member.layout).src, srcType)),
          dst(imageOfWholeElements(args[2], args[3], layoutOf(member.layout).dst, dstType)) {}

    int64_t sample(int64_t x, int64_t y, int c) const { return readInt(srcType, src.at(x, y, c)); }
    void write(int64_t x, int64_t y, int c, float sum) const {
        writeReal(dstType, dst.at(x, y, c), static_cast<double>(sum));
    }
};

void sumRow(const Images& images, const Window& window, int64_t width, int64_t y, int c) {
    float sum = 0;
    for (int64_t i = 0; i < window.size; ++i) {
        sum = sum + static_cast<float>(images.sample(i - window.anchor, y, c));
    }
    images.write(0, y, c, sum);
    for (int64_t x = 1; x < width; ++x) {
        const int64_t leaves = x - 1 - window.anchor;
        const int64_t difference = images.sample(leaves + window.size, y, c) - images.sample(leaves, y, c);
        sum = sum + static_cast<float>(difference);
        images.write(x, y, c, sum);
    }
}

float firstColumnSum(const Images& images, const Window& window, int64_t x, int c) {
    float sum = 0;
    for (int64_t j = 0; j < window.size; ++j) {
        sum = sum + static_cast<float>(images.sample(x, j - window.anchor, c));
    }
    return sum;
}

float movedDown(float sum, const Images& images, const Window& window, int64_t x, int64_t y, int c) {
    const int64_t leaves = y - 1 - window.anchor;
    const int64_t difference = images.sample(x, leaves + window.size, c) - images.sample(x, leaves, c);
    return sum + static_cast<float>(difference);
}

int32_t sumWindowRow(const Member& member, const Arg* args) {
    if (const int32_t status = check(member, args); status != ok) return status;
    const Arg& roi = args[4];
    if (isEmpty(roi)) return ok;

    const Images images(member, args);
    for (int64_t y = 0; y < roi.height; ++y) {
        for (int c = 0; c < images.src.active; ++c) {
            sumRow(images, {args[5].num, args[6].num}, roi.width, y, c);
        }
    }
    return ok;
}

// An empty row of sums cannot be allocated; without rows nothing is tried.
int32_t sumWindowColumn(const Member& member, const Arg* args) {
    if (const int32_t status = check(member, args); status != ok) return status;
    const Arg& roi = args[4];
    if (roi.height < 1) return ok;
    if (roi.width < 1) return memAllocError;

    const Images images(member, args);
    const Window window{args[5].num, args[6].num};
    std::vector<float> sums(static_cast<size_t>(int64_t{roi.width} * images.src.active));
    forEachPixel(roi, [&](int64_t x, int64_t y) {
        for (int c = 0; c < images.src.active; ++c) {
            float& sum = sums[static_cast<size_t>(x * images.src.active + c)];
            sum = y == 0 ? firstColumnSum(images, window, x, c) : movedDown(sum, images, window, x, y, c);
            images.write(x, y, c, sum);
        }
    });
    return ok;
}

const Registered sumWindowRowFamily("SumWindowRow", sumWindowRow);
const Registered sumWindowColumnFamily("SumWindowColumn", sumWindowColumn);

} // namespace

} // namespace reference
