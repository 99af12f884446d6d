// Rows of pixels of E bytes, written where the mask element of a pixel is not 0.
//
// Chosen and unchosen bytes are blended and stored together, so unchosen ones are rewritten with the value they had. Blending
// twice gives the same as once, also when the destination is the source or the mask itself; so the last block of a row is laid
// over the one before it.
#pragma once

#include "frame/vec.h"
#include "frame/vec_mask.h"
#include "frame/vec_pattern.h"

namespace pxl::PXL_TARGET {

// Where the values come from: a row of the source image, or a pixel repeated.
struct RowSource {
    const uint8_t* s;

    PXL_INLINE RowSource from(ptrdiff_t offset) const { return {s + offset}; }
    template <class Word>
    PXL_INLINE Word word(ptrdiff_t offset) const {
        return loadWord<Word>(s + offset);
    }
    PXL_INLINE Vec<uint8_t> vector(ptrdiff_t offset, int j) const { return LoadU(s + offset + j * vecBytes); }
};

template <int E>
struct PatternSource {
    Pattern<E> pattern;

    // Offsets of blocks and of what follows them are those of a pixel.
    PXL_INLINE const PatternSource& from(ptrdiff_t) const { return *this; }
    PXL_INLINE Vec<uint8_t> vector(ptrdiff_t, int j) const { return pattern.v[j % Pattern<E>::count]; }
    template <class Word>
    PXL_INLINE Word word(ptrdiff_t offset) const {
        return loadWord<Word>(reinterpret_cast<const uint8_t*>(pattern.v) + static_cast<uint32_t>(offset) % E);
    }
};

// 1 to 16 pixels. Less than 16 bytes are two words that may overlap, one at each end; both are blended before the first store,
// since a lone pixel may overlap its source.
template <int E, class Source, class... Always>
PXL_INLINE void blendFew(ptrdiff_t n, const uint8_t* m, uint8_t* d, const Source& source, const Always&... always) {
    const FewMask<E> mask(m, n);
    const ptrdiff_t bytes = n * E;
    const auto blended = [&]<class Word>(Word, ptrdiff_t o) __attribute__((always_inline)) {
        const Word keep = static_cast<Word>((mask.template word<Word>(o) | ... | headOf<Word>(ints(always.v[0]))));
        return blend(keep, loadWord<Word>(d + o), source.template word<Word>(o));
    };
    const auto blendEnds = [&](auto word) __attribute__((always_inline)) {
        const ptrdiff_t end = bytes - static_cast<ptrdiff_t>(sizeof word);
        const auto first = blended(word, 0);
        const auto last = blended(word, end);
        put(d, first);
        put(d + end, last);
    };
    if (bytes >= 16) {
        for (ptrdiff_t o = 0; o < bytes - 16; o += 16) put(d + o, blended(Word16{}, o));
        put(d + bytes - 16, blended(Word16{}, bytes - 16));
    } else if (bytes >= 8) {
        blendEnds(uint64_t{});
    } else if (bytes >= 4) {
        blendEnds(uint32_t{});
    } else if (bytes >= 2) {
        blendEnds(uint16_t{});
    } else {
        put(d, blended(uint8_t{}, 0));
    }
}

// A row of n pixels, or none. With `always`, a pattern of one register, the bytes that it has set keep their value too.
template <int E, class Source, class... Always>
PXL_INLINE void blendRow(ptrdiff_t n, const uint8_t* m, uint8_t* d, const Source& source, const Always&... always) {
    constexpr int block = BlockMask<E>::pixels;
    const auto blendBlock = [&](ptrdiff_t x) __attribute__((always_inline)) {
        const BlockMask<E> mask(m + x);
        unrolled<block * E / vecBytes>([&](auto j) __attribute__((always_inline)) {
            uint8_t* to = d + x * E + j * vecBytes;
            const Vec<uint8_t> keep = (mask.template vector<j>() | ... | always.v[0]);
            StoreU(blend(keep, LoadU(to), source.vector(x * E, j)), to);
        });
    };
    if (n >= block) {
        ptrdiff_t x = 0;
        for (; x + block <= n; x += block) blendBlock(x);
        if (x < n) blendBlock(n - block);
    } else if (n > 16) {
        blendFew<E>(16, m, d, source, always...);
        blendFew<E>(16, m + n - 16, d + (n - 16) * E, source.from((n - 16) * E), always...);
    } else if (n > 0) {
        blendFew<E>(n, m, d, source, always...);
    }
}

} // namespace pxl::PXL_TARGET
