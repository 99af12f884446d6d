// Plain access to images that are described by a pointer and a row step.
//
// Everything goes byte by byte through memcpy, because steps may be odd and misalign the elements, and every offset is
// a 64-bit number, because a row may lie more than 2^31 bytes away from the first one.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "reference.h"

namespace reference {

inline constexpr int32_t ok = 0;
inline constexpr int32_t sizeError = -6;
inline constexpr int32_t nullPtrError = -8;
inline constexpr int32_t memAllocError = -9;
inline constexpr int32_t scaleRangeError = -13;
inline constexpr int32_t stepError = -14;
inline constexpr int32_t mirrorAxisError = -21;
inline constexpr int32_t maskSizeError = -33;
inline constexpr int32_t anchorError = -34;
inline constexpr int32_t channelOrderError = -60;

// An element type code taken apart: "16sc" is two parts of two bytes each, signed.
struct Element {
    int partBytes = 0;
    int parts = 1;
    bool isSigned = false;
    bool isFloat = false;

    int bytes() const { return partBytes * parts; }
};

Element elementOf(std::string_view code);

// One number (of a complex element: one part).
int64_t readInt(const Element& type, const uint8_t* address);
void writeInt(const Element& type, uint8_t* address, int64_t value); // keeps the low bytes
double readReal(const Element& type, const uint8_t* address);
void writeReal(const Element& type, uint8_t* address, double value);

// The range of an integer type of at most 32 bits, and the nearest value within it.
int64_t lowest(const Element& type);
int64_t highest(const Element& type);
int64_t saturate(const Element& type, int64_t value);

// Truncates a sum of at least 0 that already contains the 0.5 of rounding; an exact tie goes to the even neighbour.
int64_t truncateTiesEven(double sum);

// One operand's half of a layout. Active counts the channels that take part: 3 of 4 in "AC4", 1 of 3 in "C3C".
struct Side {
    int elements = 0;
    int active = 0;
    bool planar = false;
};

struct Layout {
    Side src, dst;
};

Layout layoutOf(std::string_view code);

// The active elements of one pixel, one behind the other.
using Pixel = std::array<uint8_t, 64>;

struct Image {
    std::array<uint8_t*, 4> channel{}; // where each active channel of pixel (0, 0) lies
    int64_t step = 0;
    int64_t pixelBytes = 0;
    int elementBytes = 0;
    int active = 0;

    uint8_t* at(int64_t x, int64_t y, int c = 0) const { return channel[c] + y * step + x * pixelBytes; }
    Pixel load(int64_t x, int64_t y) const;
    void store(int64_t x, int64_t y, const Pixel& pixel) const;
};

// Both take the pointer argument as the caller gave it: for a planar side that is the array of plane pointers.
bool isNull(const Arg& pointer, const Side& side);
Image imageOf(const Arg& pointer, const Arg& step, const Side& side, const Element& type);

// For the families that count a step in elements: what is over a whole number of them, rounded down, is dropped.
Image imageOfWholeElements(const Arg& pointer, const Arg& step, const Side& side, const Element& type);

// The scalar argument as one element, and the first count entries of a value array.
Pixel scalarValue(const Element& type, const Arg& value);
Pixel arrayValues(const Element& type, const Arg& values, int count);

inline bool isEmpty(const Arg& roi) { return roi.width < 1 || roi.height < 1; }

// The checks that the type conversions and the range scalings share. The C3 and C4 forms stand for a C1 call of three
// or four times the width, and look at the width before they hand the call on.
int32_t checkConversion(const Member& member, const Arg* args);

// Rows from the top, each from left to right.
template <typename Visit>
void forEachPixel(const Arg& roi, Visit visit) {
    for (int64_t y = 0; y < roi.height; ++y) {
        for (int64_t x = 0; x < roi.width; ++x) {
            visit(x, y);
        }
    }
}

} // namespace reference
