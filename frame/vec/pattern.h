// Rows filled with one pixel over and over: patterns of a whole number of pixels that fit whole registers.
#pragma once

#include "frame/vec/mask.h"

namespace pxl::PXL_TARGET {

// ---- pieces of rows that are shorter than a register ----------------------------------------------------------------

// The first and the last bytes of a vector, as a block.
PXL_INLINE Block headOf(Vec<uint8_t> v) { return ExtractBlock<0>(v); }
template <int Bytes>
PXL_INLINE Block tailOf(Vec<uint8_t> v) {
    return ShiftRightBytes<blockBytes - Bytes>(ExtractBlock<vecBlocks - 1>(v));
}

// Calls body with the largest power of two, up to 16, that a row of whole pixels holds, as a constant.
template <int E, class Body>
PXL_INLINE void withPieceSize(ptrdiff_t bytes, Body&& body) {
    if (E >= 16 || bytes >= 16) return body(std::integral_constant<int, 16>{});
    if constexpr (E < 16)
        if (E >= 8 || bytes >= 8) return body(std::integral_constant<int, 8>{});
    if constexpr (E < 8)
        if (E >= 4 || bytes >= 4) return body(std::integral_constant<int, 4>{});
    if constexpr (E < 4)
        if (E >= 2 || bytes >= 2) return body(std::integral_constant<int, 2>{});
    if constexpr (E < 2) body(std::integral_constant<int, 1>{});
}

// ---- patterns -------------------------------------------------------------------------------------------------------

// Pixels of E bytes, end to end. The first vector begins with a pixel and the last one ends with one.
template <int E>
struct Pattern {
    static constexpr int count = E % 3 == 0 ? 3 : 1;
    Vec<uint8_t> v[count];
};

// Register by register: GCC copies the struct in smaller pieces, and a load would have to wait for them.
template <int E>
PXL_INLINE Pattern<E> loadPattern(const void* bytes) {
    Pattern<E> p;
    unrolled<Pattern<E>::count>([&](auto j) { p.v[j] = LoadU(static_cast<const uint8_t*>(bytes) + j * vecBytes); });
    return p;
}

// Byte k of a pattern is byte k % E of the pixel.
template <int E>
struct RepeatTable {
    alignas(vecBytes) uint8_t bytes[3 * vecBytes];
    constexpr RepeatTable() : bytes{} {
        for (int k = 0; k < 3 * vecBytes; ++k) bytes[k] = static_cast<uint8_t>(k % E);
    }
};
template <int E>
inline constexpr RepeatTable<E> repeatTable;

// A pattern whose period is three words of 8 bytes.
template <int E>
PXL_INLINE Pattern<E> repeatWords(uint64_t w0, uint64_t w1, uint64_t w2) {
    return {{FromBlock<uint8_t>(BlockOf(w0, w1)), FromBlock<uint8_t>(BlockOf(w2, w0)),
             FromBlock<uint8_t>(BlockOf(w1, w2))}};
}
// The same from its pixel, for vectors of one block.
template <int E>
PXL_INLINE Pattern<E> repeatByWords(Block pixel) {
    static_assert(hasByteShuffle || vecBlocks == 1);
    const uint64_t low = LowerHalf(pixel);
    if constexpr (E == 12) {
        const uint64_t high = UpperHalf(pixel);
        return repeatWords<E>(low, high | low << 32, low >> 32 | high << 32);
    }
    const uint64_t six = E == 3 ? low | low << 24 : low;
    return repeatWords<E>(six | six << 48, six >> 16 | six << 32, six >> 32 | six << 16);
}

template <int E>
PXL_INLINE Pattern<E> repeatPixel(Block pixel) {
    if constexpr (E % 3 != 0) {
        return {{BroadcastWord<E>(pixel)}};
    } else if constexpr (hasByteShuffle) {
        const Vec<uint8_t> everywhere = BroadcastBlock<uint8_t>(pixel);
        const auto vector = [&](int j) {
            return TableLookupBytesOr0(everywhere, LoadU(repeatTable<E>.bytes + j * vecBytes));
        };
        return {{vector(0), vector(1), vector(2)}};
    } else {
        return repeatByWords<E>(pixel);
    }
}

template <int E>
PXL_INLINE Pattern<E> patternOf(const void* pixel) {
    return repeatPixel<E>(LoadBlock<E>(pixel));
}

// ---- AC4: pixels of which the fourth element is not processed -------------------------------------------------------

// Bytes of the three processed elements.
template <int E>
inline constexpr int colourBytes = E / 4 * 3;

// The three elements and a zero.
template <int E>
PXL_INLINE Pattern<E> colourPattern(const void* pixel) {
    return repeatPixel<E>(LoadBlock<colourBytes<E>>(pixel));
}
template <int E, int Processed>
PXL_INLINE Pattern<E> pixelPattern(const void* pixel) {
    if constexpr (E == Processed)
        return patternOf<E>(pixel);
    else
        return colourPattern<E>(pixel);
}
// All ones in fourth elements.
template <int E>
PXL_INLINE Pattern<E> alphaPattern() {
    return loadPattern<E>(alphaBytes<E / 4>.bytes);
}

// ---- filling --------------------------------------------------------------------------------------------------------

// What to store at d: value, or value together with the bits of d that keep has set.
PXL_INLINE Vec<uint8_t> filled(const uint8_t*, Vec<uint8_t> value) { return value; }
PXL_INLINE Vec<uint8_t> filled(const uint8_t* d, Vec<uint8_t> value, Vec<uint8_t> keep) {
    return value | (keep & LoadU(d));
}
template <int Bytes>
PXL_INLINE Block filledPiece(const uint8_t*, Block value) {
    return value;
}
template <int Bytes>
PXL_INLINE Block filledPiece(const uint8_t* d, Block value, Block keep) {
    return value | (keep & LoadBlock<Bytes>(d));
}

// Less than a register: two pieces that may overlap, one at each end, both made before the first store.
template <int E, class... Keep>
PXL_INLINE void fillShort(uint8_t* d, ptrdiff_t bytes, const Pattern<E>& value, const Keep&... keep) {
    constexpr int end = Pattern<E>::count - 1;
    withPieceSize<E>(
        bytes, [&](auto size) __attribute__((always_inline)) {
            uint8_t* const behind = d + bytes - size;
            const Block first = filledPiece<size>(d, headOf(value.v[0]), headOf(keep.v[0])...);
            const Block last = filledPiece<size>(behind, tailOf<size>(value.v[end]), tailOf<size>(keep.v[end])...);
            StoreBlock<size>(first, d);
            StoreBlock<size>(last, behind);
        });
}

// Fills whole pixels, bytes in all (or none), with a pattern. With `keep`, another pattern, the bits that it has set
// keep their value; the first pattern must have none there. The last register may overlap the one before, and is made
// ahead: a load of what was just stored in pieces would have to wait for them.
template <int E, class... Keep>
PXL_INLINE void fillPixels(uint8_t* d, ptrdiff_t bytes, const Pattern<E>& value, const Keep&... keep) {
    if (bytes < vecBytes) {
        if (bytes > 0) fillShort(d, bytes, value, keep...);
        return;
    }
    constexpr int count = Pattern<E>::count;
    constexpr int run = count == 1 ? 4 : 3; // vectors
    const Vec<uint8_t> last = filled(d + bytes - vecBytes, value.v[count - 1], keep.v[count - 1]...);
    const auto fill = [&](uint8_t * to, auto j) __attribute__((always_inline)) {
        StoreU(filled(to + j * vecBytes, value.v[j % count], keep.v[j % count]...), to + j * vecBytes);
    };
    ptrdiff_t o = 0;
    for (; o + run * vecBytes <= bytes; o += run * vecBytes)
        unrolled<run>([&](auto j) __attribute__((always_inline)) { fill(d + o, j); });
    unrolled<run - 1>([&](auto j) __attribute__((always_inline)) {
        if (o + (j + 1) * vecBytes <= bytes) fill(d + o, j);
    });
    StoreU(last, d + bytes - vecBytes);
}

} // namespace pxl::PXL_TARGET
