// Rows of pixels of E bytes, written where the mask element of a pixel is not 0.
//
// Chosen and unchosen bytes of a block are blended and stored together, so unchosen ones beside chosen ones are rewritten with
// the value they had. Where a block has no chosen pixel, nothing is stored.
#pragma once

#include "exchange/pixel_masks.h"

namespace pxl::PXL_TARGET::exchange {

// Where the values come from: a row of the source image, or a pixel repeated.
struct RowSource {
    const uint8_t* s;

    PXL_INLINE RowSource from(ptrdiff_t offset) const { return {s + offset}; }
    template <int Bytes>
    PXL_INLINE Block piece(ptrdiff_t offset) const {
        return LoadBlock<Bytes>(s + offset);
    }
    PXL_INLINE Vec<uint8_t> vector(ptrdiff_t offset, int j) const { return LoadU(s + offset + j * vecBytes); }
};

template <int E>
struct PatternSource {
    const uint8_t* bytes;
    Pattern<E> pattern; // of those bytes

    PXL_INLINE explicit PatternSource(const void* p)
        : bytes(static_cast<const uint8_t*>(p)), pattern(loadPattern<E>(p)) {}

    // Offsets of blocks and of what follows them are those of a pixel.
    PXL_INLINE const PatternSource& from(ptrdiff_t) const { return *this; }
    PXL_INLINE Vec<uint8_t> vector(ptrdiff_t, int j) const { return pattern.v[j % Pattern<E>::count]; }
    template <int Bytes>
    PXL_INLINE Block piece(ptrdiff_t offset) const {
        if constexpr (E % 3 != 0)
            return headOf(pattern.v[0]);
        else
            return LoadBlock<Bytes>(bytes + static_cast<uint32_t>(offset) % E);
    }
};

// 1 to 16 pixels, in pieces of one size of which the last two may overlap. The last one is blended before the first
// store: a lone pixel may overlap its source, and a load of bytes that were just stored in pieces would have to wait
// for them.
template <int E, class Source, class... Always>
PXL_INLINE void blendFew(ptrdiff_t n, const uint8_t* m, uint8_t* d, const Source& source, const Always&... always) {
    const FewMask<E> mask(m, n);
    withPieceSize<E>(
        n * E, [&](auto size) __attribute__((always_inline)) {
            const auto blended = [&](ptrdiff_t o) __attribute__((always_inline)) {
                const Block keep = (mask.template piece<size>(o) | ... | headOf(always.v[0]));
                return IfThenElse(keep, LoadBlock<size>(d + o), source.template piece<size>(o));
            };
            const ptrdiff_t end = n * E - size;
            const Block last = blended(end);
            if constexpr (size < 16) {
                StoreBlock<size>(blended(0), d);
            } else {
                for (ptrdiff_t o = 0; o < end; o += size) StoreBlock<size>(blended(o), d + o);
            }
            StoreBlock<size>(last, d + end);
        });
}

// A row of n pixels, or none. With `always`, a pattern of one register, the bytes that it has set keep their value too.
template <int E, class Source, class... Always>
PXL_INLINE void blendRow(ptrdiff_t n, const uint8_t* m, uint8_t* d, const Source& source, const Always&... always) {
    constexpr int block = BlockMask<E>::pixels;
    const auto blendBlock = [&](const BlockMask<E>& mask, ptrdiff_t x) __attribute__((always_inline)) {
        unrolled<block * E / vecBytes>([&](auto j) __attribute__((always_inline)) {
            uint8_t* to = d + x * E + j * vecBytes;
            const Vec<uint8_t> keep = (mask.template vector<j>() | ... | always.v[0]);
            StoreU(IfThenElse(keep, LoadU(to), source.vector(x * E, j)), to);
        });
    };
    ptrdiff_t x = 0;
    for (; E < 8 && x + 2 * block <= n; x += 2 * block) { // small blocks: one branch for two of them
        const BlockMask<E> first(m + x), second(m + x + block);
        if (first.keepsAll() && second.keepsAll()) continue;
        blendBlock(first, x);
        blendBlock(second, x + block);
    }
    for (; x + block <= n; x += block) {
        const BlockMask<E> mask(m + x);
        if (!mask.keepsAll()) blendBlock(mask, x);
    }
    for (ptrdiff_t few; x < n; x += few) {
        few = n - x < 16 ? n - x : 16;
        if (BitsFromMask(ZeroBytes(LoadBlockN(m + x, few))) != 0xFFFF)
            blendFew<E>(few, m + x, d + x * E, source.from(x * E), always...);
    }
}

} // namespace pxl::PXL_TARGET::exchange
