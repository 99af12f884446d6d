// Short runs of pixels in reverse order. Pixels move whole: the bytes within one keep their order.
#pragma once

#include "frame/pixel.h"
#include "frame/vec/mask.h"
#include "frame/vec/shuffle.h"

namespace pxl::PXL_TARGET::exchange {

// The 8 bytes at p with their pixels of 1, 2, 4 or 8 bytes reversed.
template <int Bytes>
PXL_INLINE uint64_t loadReversed8(const uint8_t* p) {
    const auto word = loadWord<uint64_t>(p);
    if constexpr (Bytes == 8) return word;
    if constexpr (Bytes == 4) return word << 32 | word >> 32;
    if constexpr (Bytes == 2) return ReverseWords(word);
    if constexpr (Bytes == 1) return __builtin_bswap64(word);
}

// Pixels of 3, 6 and 12 bytes fill a word but for a few bytes.
template <int Bytes>
struct PixelWord;
template <>
struct PixelWord<3> {
    using type = uint32_t;
};
template <>
struct PixelWord<6> {
    using type = uint64_t;
};
template <>
struct PixelWord<12> {
    using type = Block;
};

// One pixel, loaded with a word that ends with it and stored with a word that begins with it. The bytes stored behind
// the pixel are unspecified.
template <int Bytes>
PXL_INLINE void storePixelWord(const uint8_t* s, uint8_t* d) {
    auto word = loadWord<typename PixelWord<Bytes>::type>(s);
    if constexpr (Bytes == 12)
        word = ShiftRightBytes<4>(word);
    else
        word >>= 8 * (sizeof word - Bytes);
    storeWord(word, d);
}

// ---- with shuffles of bytes ---------------------------------------------------------------------------------------

// The places of the bytes of 5 pixels of 3 bytes or 2 pixels of 6 bytes that end a word of 16 bytes, in reverse order.
template <int Bytes>
struct Reversal16 {
    alignas(16) uint8_t from[16];
    constexpr Reversal16() : from() {
        for (int at = 0; at < 16; ++at) {
            const int source = 16 - Bytes - at / Bytes * Bytes + at % Bytes;
            from[at] = static_cast<uint8_t>(at < 16 / Bytes * Bytes ? source : 0x80);
        }
    }
};
template <int Bytes>
inline constexpr Reversal16<Bytes> reversal16;

// As storePixelWord for those pixels.
template <int Bytes>
PXL_INLINE void storeReversed16(const uint8_t* s, uint8_t* d) {
    storeWord(TableLookupBytesOr0(loadWord<Block>(s), loadWord<Block>(reversal16<Bytes>.from)), d);
}

// How a run of 96 bytes is made of pixels of 3, 6 or 12 bytes in reverse order, Unit bytes at a time. Their sources lie
// in a window that is little wider than Unit: two loads, one from its beginning and one to its end, hold them all.
template <int Bytes, int Unit>
struct Reversal96 {
    static constexpr int units = 96 / Unit;
    static_assert(96 % Unit == 0);
    int first[units], last[units]; // where the loads begin
    // The places of the bytes in the first load, and 0x80 where they are not in it; the other way round for the last.
    alignas(vecBytes) uint8_t fromFirst[96], fromLast[96];
    alignas(vecBytes) uint8_t fromBoth[96]; // in the first load followed by the last

    static constexpr int source(int at) { return 96 - Bytes - at / Bytes * Bytes + at % Bytes; }

    constexpr Reversal96() : first(), last(), fromFirst(), fromLast(), fromBoth() {
        for (int unit = 0; unit < units; ++unit) {
            int low = 96, high = 0;
            for (int at = Unit * unit; at < Unit * unit + Unit; ++at) {
                low = source(at) < low ? source(at) : low;
                high = source(at) > high ? source(at) : high;
            }
            first[unit] = low;
            last[unit] = high - (Unit - 1);
            for (int at = Unit * unit; at < Unit * unit + Unit; ++at) {
                const int inFirst = source(at) - low, inLast = source(at) - last[unit];
                fromFirst[at] = static_cast<uint8_t>(inFirst < Unit ? inFirst : 0x80);
                fromLast[at] = static_cast<uint8_t>(inFirst < Unit ? 0x80 : inLast);
                fromBoth[at] = static_cast<uint8_t>(inFirst < Unit ? inFirst : Unit + inLast);
            }
        }
    }
};
template <int Bytes, int Unit>
inline constexpr Reversal96<Bytes, Unit> reversal96;

// Bytes At and up of the run, a vector of them.
template <int Bytes, int At>
PXL_INLINE Vec<uint8_t> reversedVector(const uint8_t* s) {
    if constexpr (hasBytePermute) {
        constexpr auto& plan = reversal96<Bytes, vecBytes>;
        constexpr int unit = At / vecBytes;
        const Vec<uint8_t> first = LoadU(s + plan.first[unit]), last = LoadU(s + plan.last[unit]);
        return TwoTablesLookupLanes(first, last, LoadU(plan.fromBoth + At));
    } else {
        constexpr auto& plan = reversal96<Bytes, blockBytes>;
        const auto pick = [&](const int* begin, const uint8_t* from) __attribute__((always_inline)) {
            const auto block = [&](int k) { return loadWord<Block>(s + begin[At / blockBytes + k]); };
            return TableLookupBytesOr0(FromBlocks<uint8_t>(block), LoadU(from + At));
        };
        return pick(plan.first, plan.fromFirst) | pick(plan.last, plan.fromLast);
    }
}
template <int Bytes>
PXL_INLINE void storeReversed96(const uint8_t* s, uint8_t* d) {
    unrolled<96 / vecBytes>([&](auto j) __attribute__((always_inline)) {
        StoreU(reversedVector<Bytes, j * vecBytes>(s), d + j * vecBytes);
    });
}

// Pixels of 3, 6 and 12 bytes.
template <int Bytes>
PXL_INLINE void reverseRowOfThrees(const uint8_t* s, uint8_t* d, ptrdiff_t bytes) {
    const uint8_t* end = s + bytes;
    ptrdiff_t x = 0;
    if constexpr (hasByteShuffle) {
        if (bytes >= 96) {
            for (; x + 96 <= bytes; x += 96) storeReversed96<Bytes>(end - x - 96, d + x);
            if (x < bytes) storeReversed96<Bytes>(s, d + bytes - 96);
            return;
        }
        if constexpr (Bytes < 12)
            for (; x + 16 <= bytes; x += 16 / Bytes * Bytes) storeReversed16<Bytes>(end - x - 16, d + x);
    }
    constexpr ptrdiff_t word = sizeof(typename PixelWord<Bytes>::type);
    for (; x + word <= bytes; x += Bytes) storePixelWord<Bytes>(end - x - word, d + x);
    for (; x < bytes; x += Bytes) movePixel<Bytes>(end - x - Bytes, d + x);
}

// ---- alpha ----------------------------------------------------------------------------------------------------------

// What is stored at d where pixels of AC4 move there.
template <int Bytes>
PXL_INLINE Vec<uint8_t> keepingAlpha(Vec<uint8_t> v, const uint8_t* d) {
    return IfThenElse(LoadU(alphaBytes<Bytes / 4>.bytes), LoadU(d), v);
}
template <int Bytes>
PXL_INLINE Block keepingAlpha(Block v, const uint8_t* d) {
    return IfThenElse(LoadBlock<16>(alphaBytes<Bytes / 4>.bytes), loadWord<Block>(d), v);
}

} // namespace pxl::PXL_TARGET::exchange
