// 8u mask elements widened to the E bytes of their pixels.
#pragma once

#include "frame/vec/partial.h"
#include "frame/vec/pattern.h"

namespace pxl::PXL_TARGET::exchange {

// ---- with shuffles of bytes -----------------------------------------------------------------------------------------

// Byte k of a row belongs to pixel k / E. Of 16 pixels, and a register more for loads behind them.
template <int E>
struct PixelTable {
    alignas(vecBytes) uint8_t bytes[16 * E + vecBytes];
    constexpr PixelTable() : bytes{} {
        for (int k = 0; k < 16 * E + vecBytes; ++k) bytes[k] = static_cast<uint8_t>(k / E % 16);
    }
};
template <int E>
inline constexpr PixelTable<E> pixelTable;

// The mask elements of up to 16 pixels in every block, as ones where they are 0.
PXL_INLINE Vec<uint8_t> keepOf16(const uint8_t* m) {
    return BroadcastBlock<uint8_t>(LoadBlock<16>(m)) == Zero<uint8_t>();
}

// A block of mask elements, as ones in all bytes of the pixels whose element is 0: those that keep their value.
template <int E>
struct ShuffledMask {
    static constexpr int vectors = E == 3 ? 3 : 1; // that take mask elements of their own
    static constexpr int pixels = E == 1 ? vecBytes : E == 3 ? vecBytes : 16;
    Vec<uint8_t> keep[vectors];

    // Of 16 pixels that hold those of vector j, the first.
    static constexpr int firstPixel(int j) {
        const int pixel = E == 3 ? j * vecBytes / E : 0;
        return pixel + 16 > pixels ? pixels - 16 : pixel;
    }
    static_assert(E != 3 || vecBytes / E + 2 <= 16);

    PXL_INLINE explicit ShuffledMask(const uint8_t* m) {
        if constexpr (E == 1)
            keep[0] = LoadU(m) == Zero<uint8_t>();
        else
            unrolled<vectors>([&](auto j) __attribute__((always_inline)) { keep[j] = keepOf16(m + firstPixel(j)); });
    }
    // Whether all pixels keep their value.
    PXL_INLINE bool keepsAll() const {
        Vec<uint8_t> all = keep[0];
        if constexpr (vectors == 3) all = all & keep[1] & keep[2];
        return BitsFromMask(all) == BitsFromMask(~Zero<uint8_t>());
    }
    // Vector j of the block's bytes.
    template <int j>
    PXL_INLINE Vec<uint8_t> vector() const {
        if constexpr (E == 1) return keep[0];
        const uint8_t* pixel = pixelTable<E>.bytes + j * vecBytes - firstPixel(j) * E;
        return TableLookupBytesOr0(keep[E == 3 ? j : 0], LoadU(pixel));
    }
};

// ---- without: vectors of one block ----------------------------------------------------------------------------------

// The 18 bytes of six pixels of 3, ones where bit p of the index is set.
struct SixPixelTable {
    uint8_t bytes[64][18];
    constexpr SixPixelTable() : bytes{} {
        for (int bits = 0; bits < 64; ++bits)
            for (int k = 0; k < 18; ++k) bytes[bits][k] = bits >> (k / 3) & 1 ? 0xFF : 0;
    }
};
inline constexpr SixPixelTable sixPixelTable;

// Elements of Size bytes doubled: those of the lower half for Half 0, of the upper one for 1.
template <int Size, int Half>
PXL_INLINE Block doubled(Block v) {
    return Half ? InterleaveUpper<Size>(v, v) : InterleaveLower<Size>(v, v);
}

// As above.
template <int E>
struct WidenedMask {
    static constexpr int pixels = 16;
    Block keep;

    PXL_INLINE explicit WidenedMask(const uint8_t* m) : keep(ZeroBytes(LoadBlock<16>(m))) {}
    PXL_INLINE explicit WidenedMask(Block m) : keep(ZeroBytes(m)) {}

    PXL_INLINE bool keepsAll() const { return BitsFromMask(keep) == 0xFFFF; }
    template <int j>
    PXL_INLINE Vec<uint8_t> vector() const {
        return FromBlock<uint8_t>(widened<E, j>());
    }
    template <int Bytes, int j>
    PXL_INLINE Block widened() const {
        if constexpr (Bytes == 1)
            return keep;
        else if constexpr (Bytes == 3)
            return tripledBytes<j>();
        else if constexpr (Bytes == 6 || Bytes == 12)
            return TripleWords<Bytes / 3, j % 3>(widened<Bytes / 3, j / 3>());
        else
            return doubled<Bytes / 2, j % 2>(widened<Bytes / 2, j / 2>());
    }
    // Vector j begins in byte j of pixel 5 j.
    template <int j>
    PXL_INLINE Block tripledBytes() const {
        return LoadBlock<16>(sixPixelTable.bytes[BitsFromMask(keep) >> 5 * j & 63] + j);
    }
};

template <int E>
using BlockMask = std::conditional_t<hasByteShuffle, ShuffledMask<E>, WidenedMask<E>>;

// ---- few pixels -----------------------------------------------------------------------------------------------------

// The bytes of up to 16 pixels of a mask, none of them behind the row.
template <int E>
struct ShuffledFew {
    Block keep;

    PXL_INLINE ShuffledFew(const uint8_t* m, ptrdiff_t n) : keep(ZeroBytes(LoadBlockN(m, n))) {}

    // From any byte of the pixels.
    template <int Bytes>
    PXL_INLINE Block piece(ptrdiff_t offset) const {
        return TableLookupBytesOr0(keep, LoadBlock<16>(pixelTable<E>.bytes + offset));
    }
};
template <int E>
struct WidenedFew {
    alignas(16) uint8_t keep[16 * E];

    PXL_INLINE WidenedFew(const uint8_t* m, ptrdiff_t n) {
        const WidenedMask<E> block(LoadBlockN(m, n));
        unrolled<E>([&](auto j) { StoreU(block.template vector<j>(), keep + j * 16); });
    }
    template <int Bytes>
    PXL_INLINE Block piece(ptrdiff_t offset) const {
        return LoadBlock<Bytes>(keep + offset);
    }
};

// The mask elements of the first pixels of a block.
template <int E>
PXL_INLINE Block widenMask(Block keep) {
    if constexpr (hasByteShuffle)
        return TableLookupBytesOr0(keep, LoadBlock<16>(pixelTable<E>.bytes));
    else if constexpr (E == 1)
        return keep;
    else
        return doubled<E / 2, 0>(widenMask<E / 2>(keep));
}

// Pixels that fill pieces evenly: every piece has its own mask elements.
template <int E>
struct EvenFew {
    const uint8_t* m;

    PXL_INLINE EvenFew(const uint8_t* mask, ptrdiff_t) : m(mask) {}

    template <int Bytes>
    PXL_INLINE Block piece(ptrdiff_t offset) const {
        return widenMask<E>(ZeroBytes(LoadBlock<Bytes / E>(m + offset / E)));
    }
};

template <int E>
using FewMask =
    std::conditional_t<E % 3 != 0, EvenFew<E>, std::conditional_t<hasByteShuffle, ShuffledFew<E>, WidenedFew<E>>>;

} // namespace pxl::PXL_TARGET::exchange
