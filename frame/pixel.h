// A pixel moved whole: 1, 2, 3, 4, 6, 8, 12 or 16 bytes, as one word or two of different size.
//
// Pixels go through words and not through arrays of bytes, since GCC keeps an array that memcpy fills in memory.
#pragma once

#include "frame/vec/vec.h"

namespace pxl::PXL_TARGET {

template <class Word>
PXL_INLINE Word loadWord(const uint8_t* p) {
    Word word;
    std::memcpy(&word, p, sizeof word);
    return word;
}
template <class Word>
PXL_INLINE void storeWord(Word word, uint8_t* p) {
    std::memcpy(p, &word, sizeof word);
}

template <int Bytes>
struct WordOf {
    using type = typename UnsignedOf<Bytes>::type;
};
template <>
struct WordOf<16> {
    using type = Block;
};

// The larger word of a pixel comes first; there is no smaller one where it holds the whole pixel.
template <int Bytes, int Large = static_cast<int>(std::bit_floor(unsigned{Bytes}))>
struct Pixel {
    typename WordOf<Large>::type large;
    typename WordOf<Bytes - Large>::type small;
};
template <int Bytes>
struct Pixel<Bytes, Bytes> {
    typename WordOf<Bytes>::type large;
};

template <int Bytes>
PXL_INLINE Pixel<Bytes> loadPixel(const uint8_t* p) {
    Pixel<Bytes> pixel;
    pixel.large = loadWord<decltype(pixel.large)>(p);
    if constexpr (requires { pixel.small; }) pixel.small = loadWord<decltype(pixel.small)>(p + sizeof pixel.large);
    return pixel;
}
template <int Bytes>
PXL_INLINE void storePixel(Pixel<Bytes> pixel, uint8_t* p) {
    storeWord(pixel.large, p);
    if constexpr (requires { pixel.small; }) storeWord(pixel.small, p + sizeof pixel.large);
}
template <int Bytes>
PXL_INLINE void movePixel(const uint8_t* s, uint8_t* d) {
    storePixel<Bytes>(loadPixel<Bytes>(s), d);
}
template <int Bytes>
PXL_INLINE void exchangePixels(uint8_t* a, uint8_t* b) {
    const Pixel<Bytes> held = loadPixel<Bytes>(a);
    movePixel<Bytes>(b, a);
    storePixel<Bytes>(held, b);
}

} // namespace pxl::PXL_TARGET
