// Reductions by tiles, for results that come with a position: an extremum is found tile by tile, and its place is then
// searched in the first tile that holds it.
#pragma once

#include "frame/walk.h"
#include "reduce/fold.h"

namespace pxl::PXL_TARGET::reduce {

struct Tile {
    ImagePoint at;
    ImageSize size;
};

inline constexpr int tileBytes = 16 << 10; // half of a first-level cache

// Calls visit(tile) in the order of the scan: rows that fit a tile together, or the parts of one row, each of whole blocks
// but for the last.
template <class Visit>
PXL_INLINE void forEachTile(ImageSize roi, ptrdiff_t pixelBytes, Visit&& visit) {
    const ptrdiff_t rowBytes = roi.width * pixelBytes;
    const bool wide = rowBytes > tileBytes;
    const int mostRows = wide ? 1 : static_cast<int>(tileBytes / rowBytes);
    const int mostColumns = wide ? static_cast<int>(tileBytes / periodBytes * (periodBytes / pixelBytes)) : roi.width;
    for (int y = 0, rows; y < roi.height; y += rows) {
        rows = roi.height - y < mostRows ? roi.height - y : mostRows;
        for (int x = 0, columns; x < roi.width; x += columns) {
            columns = roi.width - x < mostColumns ? roi.width - x : mostColumns;
            visit(Tile{{x, y}, {columns, rows}});
        }
    }
}

template <class T>
inline Image<T, anyElements> tileOf(const Image<T, anyElements>& image, const Tile& tile) {
    return {image.at(tile.at.x, tile.at.y), image.step, image.pixelBytes};
}

// All ones in the first of every `Elements` lanes of a block.
template <class T, int Elements>
struct FirstOfPixels {
    alignas(vecBytes) MaskLane<T> lane[periodLanes<T>];
    constexpr FirstOfPixels() : lane{} {
        for (int k = 0; k < periodLanes<T>; k += Elements) lane[k] = static_cast<MaskLane<T>>(~MaskLane<T>{});
    }
};
template <class T, int Elements>
inline constexpr FirstOfPixels<T, Elements> firstOfPixels;

// The first place from `x` on, in steps of a register, that may hold `value` in a first element of a pixel; n without one.
template <int Elements, class T>
PXL_INLINE ptrdiff_t findRegister(const T* p, ptrdiff_t n, Vec<T> value) {
    constexpr ptrdiff_t step = lanes<T>, run = periodLanes<T>;
    const MaskLane<T>* firsts = firstOfPixels<T, Elements>.lane;
    const auto found = [&](Vec<T> v, ptrdiff_t o) __attribute__((always_inline)) {
        return (v == value) & LoadU(firsts + o);
    };
    ptrdiff_t x = 0;
    for (; x + run <= n; x += run) {
        Mask<T> any = Zero<MaskLane<T>>();
        unrolled<periodVectors>([&](auto j) __attribute__((always_inline)) {
            any = any | found(LoadU(p + x + j * step), j * step);
        });
        if (AnyBit(any)) return x;
    }
    ptrdiff_t o = 0;
    for (; x + o + step <= n; o += step)
        if (AnyBit(found(LoadU(p + x + o), o))) return x + o;
    if (x + o == n) return n;
    return AnyBit(found(LoadRest(p + x + o, n - x - o), o) & FirstN<T>(n - x - o)) ? x + o : n;
}

// Where `value` stands first, in the order of the scan, in the channel that `image` begins with; it must stand somewhere.
template <int Elements, class T>
[[gnu::noinline]] ImagePoint findFirst(const Image<const T, anyElements>& image, ImageSize size, T value) {
    const Vec<T> wanted = Set<T>(value);
    const bool joined = image.step == size.width * image.pixelBytes;
    const ptrdiff_t pixels = joined ? static_cast<ptrdiff_t>(size.width) * size.height : size.width;
    for (int y = 0;; ++y) {
        const T* row = image.at(0, y);
        const ptrdiff_t n = pixels * Elements - (Elements - 1);
        ptrdiff_t x = findRegister<Elements>(row, n, wanted);
        if (x == n) continue;
        x = (x + Elements - 1) / Elements;
        while (load1(row + x * Elements) != value) ++x;
        return {static_cast<int>(x % size.width), static_cast<int>(y + x / size.width)};
    }
}

} // namespace pxl::PXL_TARGET::reduce
