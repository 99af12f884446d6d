#include "image.h"

#include <algorithm>
#include <cstring>

namespace reference {

Element elementOf(std::string_view code) {
    int bits = 0;
    size_t at = 0;
    for (; at < code.size() && code[at] >= '0' && code[at] <= '9'; ++at) {
        bits = bits * 10 + (code[at] - '0');
    }
    const char kind = at < code.size() ? code[at] : 'u';
    const bool complex = code.ends_with('c');
    return {.partBytes = bits / 8, .parts = complex ? 2 : 1, .isSigned = kind != 'u', .isFloat = kind == 'f'};
}

int64_t readInt(const Element& type, const uint8_t* address) {
    uint64_t bits = 0;
    std::memcpy(&bits, address, static_cast<size_t>(type.partBytes));
    const int unused = 64 - 8 * type.partBytes;
    return type.isSigned ? static_cast<int64_t>(bits << unused) >> unused : static_cast<int64_t>(bits);
}

void writeInt(const Element& type, uint8_t* address, int64_t value) {
    std::memcpy(address, &value, static_cast<size_t>(type.partBytes));
}

double readReal(const Element& type, const uint8_t* address) {
    float single = 0;
    double wide = 0;
    if (type.partBytes == 4) {
        std::memcpy(&single, address, sizeof single);
        return static_cast<double>(single);
    }
    std::memcpy(&wide, address, sizeof wide);
    return wide;
}

void writeReal(const Element& type, uint8_t* address, double value) {
    const float single = static_cast<float>(value);
    if (type.partBytes == 4) {
        std::memcpy(address, &single, sizeof single);
    } else {
        std::memcpy(address, &value, sizeof value);
    }
}

int64_t lowest(const Element& type) { return type.isSigned ? -(int64_t{1} << (8 * type.partBytes - 1)) : 0; }

int64_t highest(const Element& type) {
    return (int64_t{1} << (type.isSigned ? 8 * type.partBytes - 1 : 8 * type.partBytes)) - 1;
}

int64_t saturate(const Element& type, int64_t value) { return std::clamp(value, lowest(type), highest(type)); }

int64_t truncateTiesEven(double sum) {
    const auto truncated = static_cast<int64_t>(sum);
    const bool tie = static_cast<double>(truncated) == sum;
    return tie && truncated % 2 == 1 ? truncated - 1 : truncated;
}

namespace {

// Takes "C3", "AC4" or "P4" off the front of the code.
Side takeSide(std::string_view& code) {
    const bool alpha = code.starts_with('A');
    if (alpha) code.remove_prefix(1);
    const int elements = code[1] - '0';
    const Side side{.elements = elements, .active = alpha ? elements - 1 : elements, .planar = code[0] == 'P'};
    code.remove_prefix(2);
    return side;
}

const uint8_t* planeOf(const Arg& planes, int index) {
    const uint8_t* plane = nullptr;
    std::memcpy(&plane, static_cast<const uint8_t*>(planes.ptr) + sizeof plane * static_cast<size_t>(index),
                sizeof plane);
    return plane;
}

} // namespace

Layout layoutOf(std::string_view code) {
    Layout layout;
    layout.src = takeSide(code);
    layout.dst = layout.src;
    if (code == "C") { // channel of interest
        layout.src.active = layout.dst.active = 1;
    } else if (!code.empty()) {
        layout.dst = takeSide(code);
    }
    return layout;
}

Pixel Image::load(int64_t x, int64_t y) const {
    Pixel pixel{};
    for (int c = 0; c < active; ++c) {
        std::memcpy(&pixel[static_cast<size_t>(c * elementBytes)], at(x, y, c), static_cast<size_t>(elementBytes));
    }
    return pixel;
}

void Image::store(int64_t x, int64_t y, const Pixel& pixel) const {
    for (int c = 0; c < active; ++c) {
        std::memcpy(at(x, y, c), &pixel[static_cast<size_t>(c * elementBytes)], static_cast<size_t>(elementBytes));
    }
}

bool isNull(const Arg& pointer, const Side& side) {
    if (pointer.ptr == nullptr) return true;
    for (int c = 0; side.planar && c < side.elements; ++c) {
        if (planeOf(pointer, c) == nullptr) return true;
    }
    return false;
}

Image imageOf(const Arg& pointer, const Arg& step, const Side& side, const Element& type) {
    Image image;
    image.step = step.num;
    image.elementBytes = type.bytes();
    image.pixelBytes = side.planar ? type.bytes() : side.elements * type.bytes();
    image.active = side.active;
    for (int c = 0; c < side.active; ++c) {
        const uint8_t* first =
            side.planar ? planeOf(pointer, c) : static_cast<const uint8_t*>(pointer.ptr) + c * type.bytes();
        image.channel[c] = const_cast<uint8_t*>(first);
    }
    return image;
}

Image imageOfWholeElements(const Arg& pointer, const Arg& step, const Side& side, const Element& type) {
    Image image = imageOf(pointer, step, side, type);
    const int64_t bytes = type.bytes();
    const int64_t over = ((image.step % bytes) + bytes) % bytes;
    image.step -= over;
    return image;
}

Pixel scalarValue(const Element& type, const Arg& value) {
    Pixel pixel{};
    if (type.isFloat) {
        writeReal(type, pixel.data(), value.real);
    } else {
        writeInt(type, pixel.data(), value.num);
    }
    return pixel;
}

Pixel arrayValues(const Element& type, const Arg& values, int count) {
    Pixel pixel{};
    std::memcpy(pixel.data(), values.ptr, static_cast<size_t>(count * type.bytes()));
    return pixel;
}

int32_t checkConversion(const Member& member, const Arg* args) {
    const Arg& src = args[0];
    const Arg& srcStep = args[1];
    const Arg& dst = args[2];
    const Arg& dstStep = args[3];
    const Arg& roi = args[4];
    if ((member.layout == "C3" || member.layout == "C4") && roi.width < 1) return sizeError;
    if (src.ptr == nullptr || dst.ptr == nullptr) return nullPtrError;
    if (isEmpty(roi)) return sizeError;
    if (srcStep.num < 1 || dstStep.num < 1) return stepError;
    return ok;
}

} // namespace reference
