// The operands of a call, as generated members hand them to the templates of families.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace pxl::PXL_TARGET {

// The elements per pixel of an image whose pixels are known at run time only.
inline constexpr int anyElements = 0;

// A region of an image of `Elements` elements per pixel, of which the first `Channels` are processed; const T is read, T is
// written. The base of an image with a channel of interest (Channels = 1) addresses that channel. Steps may be odd, so elements
// may be misaligned.
template <class T, int Elements = 1, int Channels = Elements>
struct Image {
    using Element = std::remove_const_t<T>;
    static constexpr bool written = !std::is_const_v<T>;
    static constexpr int elements = Elements;
    static constexpr int channels = Channels;
    static constexpr ptrdiff_t pixelBytes = Elements * static_cast<ptrdiff_t>(sizeof(T));

    T* base;
    ptrdiff_t step; // bytes from row to row

    template <class U>
    requires std::is_convertible_v<T*, U*>
    operator Image<U, anyElements, anyElements>() const { return {base, step, pixelBytes}; }

    T* at(ptrdiff_t x, ptrdiff_t y) const {
        using Byte = std::conditional_t<written, char, const char>;
        return reinterpret_cast<T*>(reinterpret_cast<Byte*>(base) + y * step + x * pixelBytes);
    }
};

// Without constructors, for which GCC would keep walked images in memory.
template <class T>
struct Image<T, anyElements, anyElements> {
    using Element = std::remove_const_t<T>;
    static constexpr bool written = !std::is_const_v<T>;

    T* base;
    ptrdiff_t step;
    ptrdiff_t pixelBytes;

    operator Image<const T, anyElements, anyElements>() const requires written { return {base, step, pixelBytes}; }

    T* at(ptrdiff_t x, ptrdiff_t y) const {
        using Byte = std::conditional_t<written, char, const char>;
        return reinterpret_cast<T*>(reinterpret_cast<Byte*>(base) + y * step + x * pixelBytes);
    }
};

// The image whose first pixel is pixel (x, y) of this one.
template <class I>
inline I startingAt(I image, ptrdiff_t x, ptrdiff_t y) {
    image.base = image.at(x, y);
    return image;
}

// Channels alike: every element a pixel of its own. The region is then so many times as wide.
template <class T, int Elements, int Channels>
inline Image<T> elementsOf(const Image<T, Elements, Channels>& image) {
    return {image.base, image.step};
}

// Pixels as so many bytes, whatever their elements are.
template <class T, int Elements, int Channels>
inline auto bytesOf(const Image<T, Elements, Channels>& image) {
    using Byte = std::conditional_t<std::is_const_v<T>, const uint8_t, uint8_t>;
    constexpr int size = sizeof(T);
    return Image<Byte, Elements * size, Channels * size>{reinterpret_cast<Byte*>(image.base), image.step};
}

// One-channel images that share a step.
template <class T, int Count>
struct Planes {
    static constexpr int count = Count;

    T* const* bases;
    ptrdiff_t step;

    Image<T> operator[](int plane) const { return {bases[plane], step}; }
};

// One constant per processed channel; the caller's array may be misaligned, and a destination may overlap it.
template <class T, int Count>
struct Values {
    const T* base;

    T operator[](int channel) const {
        T value;
        std::memcpy(&value, base + channel, sizeof value);
        return value;
    }
};

template <class T, int Count>
inline auto bytesOf(const Values<T, Count>& values) {
    return Values<uint8_t, Count* static_cast<int>(sizeof(T))>{reinterpret_cast<const uint8_t*>(values.base)};
}

} // namespace pxl::PXL_TARGET
