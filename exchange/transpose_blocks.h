// Blocks of pixels transposed in registers.
//
// A block is made of rows that lie in 16 bytes each; interleaving these pixel by pixel lines up the columns. The blocks
// of a vector hold rows that are 16 / Bytes apart (pixels of `Bytes` bytes), and all of them are transposed at once.
#pragma once

#include "frame/vec/partial.h"
#include "frame/vec/shuffle.h"

namespace pxl::PXL_TARGET::exchange {

// A row, and those that lie `apart` bytes behind one another, in the blocks of a vector.
PXL_INLINE Vec<uint8_t> loadRows(const uint8_t* s, ptrdiff_t apart) {
    return FromBlocks<uint8_t>([=](int k) { return LoadBlock<16>(s + k * apart); });
}

// vecBytes / Bytes rows of 16 / Bytes columns.
template <int Bytes>
PXL_INLINE void transposeBlock(const uint8_t* s, ptrdiff_t srcStep, uint8_t* d, ptrdiff_t dstStep) {
    constexpr int columns = 16 / Bytes;
    Vec<uint8_t> r[columns];
#pragma GCC unroll 16
    for (int i = 0; i < columns; ++i) r[i] = loadRows(s + i * srcStep, columns * srcStep);
    InterleaveRows<Bytes>(r);
#pragma GCC unroll 16
    for (int i = 0; i < columns; ++i) StoreU(r[i], d + i * dstStep);
}

// 16 / Bytes rows and columns.
template <int Bytes>
PXL_INLINE void transposeSquare16(const uint8_t* s, ptrdiff_t srcStep, uint8_t* d, ptrdiff_t dstStep) {
    constexpr int side = 16 / Bytes;
    Block r[side];
#pragma GCC unroll 16
    for (int i = 0; i < side; ++i) std::memcpy(&r[i], s + i * srcStep, 16);
    InterleaveRows<Bytes>(r);
#pragma GCC unroll 16
    for (int i = 0; i < side; ++i) std::memcpy(d + i * dstStep, &r[i], 16);
}

// 8 / Bytes rows and columns; every register ends up with two columns.
template <int Bytes>
PXL_INLINE void transposeSquare8(const uint8_t* s, ptrdiff_t srcStep, uint8_t* d, ptrdiff_t dstStep) {
    constexpr int side = 8 / Bytes;
    Block r[side];
#pragma GCC unroll 8
    for (int i = 0; i < side; ++i) r[i] = LoadBlock<8>(s + i * srcStep);
    InterleaveRows<Bytes>(r);
#pragma GCC unroll 4
    for (int i = 0; i < side / 2; ++i) {
        StoreBlock<8>(r[i], d + 2 * i * dstStep);
        StoreBlock<8>(InterleaveUpper<8>(r[i], r[i]), d + (2 * i + 1) * dstStep);
    }
}

// Pixels of 3 or 6 bytes, with shuffles of bytes: 4 or 2 of them (12 bytes) of as many rows in every block of a vector.
// They are widened by a third for the way through the registers.
//
// Of every row 16 bytes are read: those from s on, or with `early` those up to the end of the 12, so that a row need
// not be left on either side. Of every destination row 12 bytes are filled for each block; unless `exact`, the rest of a
// vector is written behind with unspecified ones.
template <int Bytes>
struct TransposeOfThrees {
    static constexpr int wide = Bytes / 3 * 4;
    static constexpr int columns = 16 / wide;
    static constexpr int rows = vecBlocks * columns;

    alignas(16) uint8_t widen[2][16], narrow[16]; // widen[1] for early loads

    constexpr TransposeOfThrees() : widen(), narrow() {
        for (int i = 0; i < 16; ++i) {
            const int from = i / wide * Bytes + i % wide;
            widen[0][i] = static_cast<uint8_t>(i % wide < Bytes ? from : 0x80);
            widen[1][i] = static_cast<uint8_t>(i % wide < Bytes ? from + 4 : 0x80);
            narrow[i] = static_cast<uint8_t>(i < 12 ? i / Bytes * wide + i % Bytes : 0x80);
        }
    }
};

template <int Bytes>
PXL_INLINE void transposeBlockOfThrees(const uint8_t* s, ptrdiff_t srcStep, uint8_t* d, ptrdiff_t dstStep, bool early,
                                       bool exact) {
    static constexpr TransposeOfThrees<Bytes> plan;
    const auto order = [](const uint8_t* p) { return BroadcastBlock<uint8_t>(*reinterpret_cast<const Block*>(p)); };
    const Vec<uint8_t> widen = order(plan.widen[early]), narrow = order(plan.narrow);
    // Three words of every block, side by side.
    constexpr auto dense = [](int i) { return i < 3 * vecBlocks ? i / 3 * 4 + i % 3 : lanes<uint32_t> - 1; };
    s -= early ? 4 : 0;
    Vec<uint8_t> r[plan.columns];
#pragma GCC unroll 4
    for (int i = 0; i < plan.columns; ++i)
        r[i] = TableLookupBytesOr0(loadRows(s + i * srcStep, plan.columns * srcStep), widen);
    InterleaveRows<plan.wide>(r);
#pragma GCC unroll 4
    for (int i = 0; i < plan.columns; ++i) {
        const auto words = BitCast<uint32_t>(TableLookupBytesOr0(r[i], narrow));
        r[i] = BitCast<uint8_t>(Shuffle2<dense>(words, words));
        uint8_t* row = d + i * dstStep;
        if (exact)
            StoreFirst<12 * vecBlocks>(r[i], row);
        else
            StoreU(r[i], row);
    }
}

} // namespace pxl::PXL_TARGET::exchange
