// Images of one bit per pixel, the first pixel in the most significant bit. A bit offset counts from the start of each
// row and may reach beyond its first byte.
//
// Packing spreads the error of every decision over the neighbours that are still to come, with the weights of Floyd and
// Steinberg ("An adaptive algorithm for spatial grey scale", 1976): 7/16 right, 3/16 below left, 5/16 below, 1/16 below
// right. Errors carry 13 fractional bits; what would leave the row on either side is lost.
#include <vector>

#include "bits.h"
#include "image.h"

namespace reference {

namespace {

constexpr int32_t one = 8192;

bool readBit(const uint8_t* row, int64_t index) { return (row[index / 8] >> (7 - index % 8) & 1) != 0; }

void writeBit(uint8_t* row, int64_t index, bool bit) {
    const int flag = 0x80 >> (index % 8);
    uint8_t& byte = row[index / 8];
    byte = static_cast<uint8_t>(bit ? byte | flag : byte & ~flag);
}

// The errors carried to the pixels of one row; positions outside the row swallow theirs.
class CarriedErrors {
public:
    explicit CarriedErrors(int64_t width) : errors(static_cast<size_t>(width), 0) {}

    int32_t at(int64_t x) const { return errors[static_cast<size_t>(x)]; }

    void add(int64_t x, int32_t share) {
        if (x >= 0 && x < static_cast<int64_t>(errors.size())) errors[static_cast<size_t>(x)] += share;
    }

private:
    std::vector<int32_t> errors;
};

void packRow(const uint8_t* src, uint8_t* dst, int64_t offset, int64_t width, int32_t threshold, CarriedErrors& row,
             CarriedErrors& below) {
    for (int64_t x = 0; x < width; ++x) {
        const int32_t value = src[x] * one + row.at(x);
        const bool bit = value >= threshold * one;
        const int32_t error = bit ? value - 255 * one : value;
        writeBit(dst, offset + x, bit);
        row.add(x + 1, (error * 7) >> 4);
        below.add(x - 1, (error * 3) >> 4);
        below.add(x, (error * 5) >> 4);
        below.add(x + 1, error >> 4);
    }
}

} // namespace

int32_t packBits(const Arg* args) {
    const Arg& roi = args[5];
    const int64_t offset = args[4].num;
    if (args[0].ptr == nullptr || args[2].ptr == nullptr) return nullPtrError;
    if (isEmpty(roi) || offset < 0) return sizeError;

    const auto* src = static_cast<const uint8_t*>(args[0].ptr);
    auto* dst = static_cast<uint8_t*>(const_cast<void*>(args[2].ptr));
    const auto threshold = static_cast<int32_t>(args[6].num);
    CarriedErrors row(roi.width);
    for (int64_t y = 0; y < roi.height; ++y) {
        CarriedErrors below(roi.width);
        packRow(src + y * args[1].num, dst + y * args[3].num, offset, roi.width, threshold, row, below);
        row = below;
    }
    return ok;
}

int32_t unpackBits(const Arg* args) {
    const Arg& roi = args[5];
    const int64_t offset = args[2].num;
    if (args[0].ptr == nullptr || args[3].ptr == nullptr) return nullPtrError;
    if (isEmpty(roi)) return sizeError;
    if (args[1].num < 1 || args[4].num < 1) return stepError;
    if (offset < 0) return sizeError;

    const auto* src = static_cast<const uint8_t*>(args[0].ptr);
    auto* dst = static_cast<uint8_t*>(const_cast<void*>(args[3].ptr));
    forEachPixel(roi, [&](int64_t x, int64_t y) {
        dst[y * args[4].num + x] = readBit(src + y * args[1].num, offset + x) ? 255 : 0;
    });
    return ok;
}

} // namespace reference
