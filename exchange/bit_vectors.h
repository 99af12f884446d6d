// Bits of one-bit images as bytes of vectors, and bits of lanes back.
#pragma once

#include "frame/vec/partial.h"
#include "frame/vec/shuffle.h"

namespace pxl::PXL_TARGET::exchange {

// 64 bits from `bit` (0..7) on, the first one the most significant. Reads the bytes that hold them.
PXL_INLINE uint64_t load64Bits(const uint8_t* p, int bit) {
    const uint64_t word = __builtin_bswap64(load1(reinterpret_cast<const uint64_t*>(p)));
    const uint64_t last = p[(bit + 63) / 8]; // for bit 0 the last byte of the word, shifted away
    return word << bit | last >> (8 - bit);
}

// The same for n < 64 bits.
PXL_INLINE uint64_t loadFewBits(const uint8_t* p, int bit, ptrdiff_t n) {
    const Block bytes = LoadBlockN(p, (bit + n + 7) / 8); // 9 at most
    return __builtin_bswap64(LowerHalf(bytes)) << bit | UpperHalf(bytes) >> (8 - bit);
}

static_assert(hasByteShuffle || vecBlocks == 1);

// The bytes of `bits` from Part * vecBytes / 8 on, each in eight lanes.
template <int Part, class Bits>
PXL_INLINE Vec<uint8_t> spreadBytes(Bits bits) {
    if constexpr (hasByteShuffle) {
        constexpr auto byte = [](int i) { return Part * (vecBytes / 8) + i / 8; };
        return TableLookupBytesOr0(BitCast<uint8_t>(Set<Bits>(bits)), fromLanes<uint8_t, byte>());
    } else {
        Block spread = BlockOf(bits >> (16 * Part), 0);
        spread = InterleaveLower<1>(spread, spread);
        spread = InterleaveLower<2>(spread, spread);
        return FromBlock<uint8_t>(InterleaveLower<4>(spread, spread));
    }
}
// Eight bits per byte of `bits`, lowest byte first and the most significant bit of a byte first: bits
// Part * vecBytes ... as bytes of 255 (set) and 0.
template <int Part>
PXL_INLINE Vec<uint8_t> ExpandBits(uint64_t bits) {
    const Vec<uint8_t> flags = BitCast<uint8_t>(Set<uint64_t>(0x0102040810204080));
    return (spreadBytes<Part>(bits) & flags) == flags;
}

// Rows of 16 bytes to 16 columns of `Rows` bytes, a power of two.
template <int Rows>
PXL_INLINE void TransposeBytes(const uint8_t* const (&rows)[Rows], uint8_t (&columns)[16 * Rows]) {
    Block v[Rows];
#pragma GCC unroll 16
    for (int i = 0; i < Rows; ++i) v[i] = LoadBlock<16>(rows[i]);
    InterleaveRows<1>(v);
#pragma GCC unroll 16
    for (int i = 0; i < Rows; ++i) StoreBlock<16>(v[i], columns + 16 * i);
}

// The other way round for bits: byte 15 - i of the 16 bytes holds, in its bits 0 ... Rows - 1, column i of `Rows` rows.
// Calls store(row, bits) with the 16 bits of every row, the first column in the most significant one.
template <int Rows, class Store>
PXL_INLINE void TransposeBits(uint64_t lower, uint64_t upper, Store&& store) {
    Block v = ShiftLeftPairs<8 - Rows>(BlockOf(lower, upper));
#pragma GCC unroll 8
    for (int row = Rows - 1; row >= 0; --row) {
        store(row, BitsFromMask(v));
        v = DoubleBytes(v);
    }
}

} // namespace pxl::PXL_TARGET::exchange
