// Pixels chosen by a mask: 8u mask elements widened to the E bytes of their pixels, and rows blended by them.
#pragma once

#include "frame/vec.h"
#include "frame/vec_pattern.h"

namespace pxl::PXL_TARGET {

// Bits set in keep come from d, the others from s; a byte of keep is all ones or all zeros.
PXL_INLINE Piece blend(Piece keep, Piece d, Piece s) {
#ifdef __AVX2__
    return _mm_blendv_epi8(s, d, keep);
#else
    return _mm_or_si128(_mm_and_si128(keep, d), _mm_andnot_si128(keep, s));
#endif
}
PXL_INLINE Vec<uint8_t> blend(Vec<uint8_t> keep, Vec<uint8_t> d, Vec<uint8_t> s) {
#ifdef __AVX2__
    return IfThenElse(keep, d, s);
#else
    return fromInts<uint8_t>(blend(ints(keep), ints(d), ints(s)));
#endif
}

PXL_INLINE Piece zeroBytes(Piece m) { return _mm_cmpeq_epi8(m, _mm_setzero_si128()); }

// Up to 16 bytes, zeros behind them; nothing else is read. Built in registers, since a load of what was just stored in
// pieces would have to wait for them.
PXL_INLINE Piece loadFew16(const uint8_t* p, ptrdiff_t n) {
    if (n >= 8) {
        const Piece unread = _mm_cvtsi32_si128(static_cast<int>(128 - 8 * n)); // bits
        return _mm_unpacklo_epi64(loadPiece<8>(p), _mm_srl_epi64(loadPiece<8>(p + n - 8), unread));
    }
    uint64_t few = 0;
    if (n >= 4) {
        const uint64_t high = loadAs<uint32_t>(p + n - 4);
        few = loadAs<uint32_t>(p) | high << (8 * n - 32);
    } else if (n >= 1) {
        few = p[0] | static_cast<uint64_t>(p[n / 2]) << (n / 2 * 8) | static_cast<uint64_t>(p[n - 1]) << (n * 8 - 8);
    }
    return _mm_cvtsi64_si128(static_cast<int64_t>(few));
}

#ifdef __AVX2__

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

// A block of mask elements, as ones in all bytes of the pixels whose element is 0: those that keep their value.
template <int E>
struct BlockMask {
    static constexpr int pixels = E == 1 || E == 3 ? 32 : 16;
    __m256i keep[E == 3 ? 3 : 1];

    PXL_INLINE explicit BlockMask(const uint8_t* m) {
        if constexpr (E == 1)
            keep[0] = _mm256_cmpeq_epi8(ints(LoadU(m)), _mm256_setzero_si256());
        else
            keep[0] = keepOf16(m);
        if constexpr (E == 3) {
            keep[1] = keepOf16(m + 10); // the second vector begins in pixel 10, the third in 21
            keep[2] = keepOf16(m + 16);
        }
    }
    // Whether all pixels keep their value.
    PXL_INLINE bool keepsAll() const {
        __m256i all = keep[0];
        if constexpr (E == 3) all = _mm256_and_si256(_mm256_and_si256(all, keep[1]), keep[2]);
        return _mm256_movemask_epi8(all) == -1;
    }
    PXL_INLINE static __m256i keepOf16(const uint8_t* m) {
        return _mm256_cmpeq_epi8(_mm256_broadcastsi128_si256(loadPiece<16>(m)), _mm256_setzero_si256());
    }
    // Vector j of the block's bytes.
    template <int j>
    PXL_INLINE Vec<uint8_t> vector() const {
        if constexpr (E == 1) return fromInts<uint8_t>(keep[0]);
        constexpr int firstPixel = E == 3 ? (j == 0 ? 0 : j == 1 ? 10 : 16) : 0;
        const Vec<uint8_t> pixel = LoadU(pixelTable<E>.bytes + j * vecBytes - firstPixel * E);
        return fromInts<uint8_t>(_mm256_shuffle_epi8(keep[E == 3 ? j : 0], ints(pixel)));
    }
};

// The bytes of up to 16 pixels of a mask, none of them behind the row.
template <int E>
struct FewMask {
    Piece keep;

    PXL_INLINE FewMask(const uint8_t* m, ptrdiff_t n) : keep(zeroBytes(loadFew16(m, n))) {}

    // From any byte of the pixels.
    template <int Bytes>
    PXL_INLINE Piece piece(ptrdiff_t offset) const {
        return _mm_shuffle_epi8(keep, loadPiece<16>(pixelTable<E>.bytes + offset));
    }
};

template <int E>
PXL_INLINE Piece widenMask(Piece keep) {
    return _mm_shuffle_epi8(keep, loadPiece<16>(pixelTable<E>.bytes));
}

#else

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
PXL_INLINE __m128i doubled(__m128i v) {
    using T = typename UnsignedOf<Size>::type;
    const Vec<T> elements = fromInts<T>(v);
    return ints(Half ? InterleaveUpperBlocks(elements, elements) : InterleaveLowerBlocks(elements, elements));
}

// A block of mask elements, as ones in all bytes of the pixels whose element is 0: those that keep their value.
template <int E>
struct BlockMask {
    static constexpr int pixels = 16;
    __m128i keep;

    PXL_INLINE explicit BlockMask(const uint8_t* m) : keep(zeroBytes(loadPiece<16>(m))) {}
    PXL_INLINE explicit BlockMask(__m128i m) : keep(zeroBytes(m)) {}

    // Whether all pixels keep their value.
    PXL_INLINE bool keepsAll() const { return _mm_movemask_epi8(keep) == 0xFFFF; }
    // Vector j of the block's bytes.
    template <int j>
    PXL_INLINE Vec<uint8_t> vector() const {
        return fromInts<uint8_t>(widened<E, j>());
    }
    template <int Bytes, int j>
    PXL_INLINE __m128i widened() const {
        if constexpr (Bytes == 1)
            return keep;
        else if constexpr (Bytes == 3)
            return tripledBytes<j>();
        else if constexpr (Bytes == 6)
            return tripledWords<j % 3>(widened<2, j / 3>());
        else if constexpr (Bytes == 12)
            return tripledDwords<j % 3>(widened<4, j / 3>());
        else
            return doubled<Bytes / 2, j % 2>(widened<Bytes / 2, j / 2>());
    }
    // Vector j begins in byte j of pixel 5 j.
    template <int j>
    PXL_INLINE __m128i tripledBytes() const {
        return loadPiece<16>(sixPixelTable.bytes[_mm_movemask_epi8(keep) >> 5 * j & 63] + j);
    }
    // 0 0 0 1 1 1 2 2 | 2 3 3 3 4 4 4 5 | 5 5 6 6 6 7 7 7
    template <int j>
    PXL_INLINE static __m128i tripledWords(__m128i v) {
        if constexpr (j == 0) return _mm_shufflehi_epi16(_mm_shufflelo_epi16(_mm_shuffle_epi32(v, 0x44), 0x40), 0xA5);
        if constexpr (j == 1) return _mm_shufflehi_epi16(_mm_shufflelo_epi16(_mm_shuffle_epi32(v, 0xA5), 0x54), 0x40);
        if constexpr (j == 2) return _mm_shufflehi_epi16(_mm_shufflelo_epi16(_mm_shuffle_epi32(v, 0xFE), 0xA5), 0x54);
    }
    // 0 0 0 1 | 1 1 2 2 | 2 3 3 3
    template <int j>
    PXL_INLINE static __m128i tripledDwords(__m128i v) {
        return _mm_shuffle_epi32(v, j == 0 ? 0x40 : j == 1 ? 0xA5 : 0xFE);
    }
};

// The bytes of up to 16 pixels of a mask, none of them behind the row.
template <int E>
struct FewMask {
    alignas(16) uint8_t keep[16 * E];

    PXL_INLINE FewMask(const uint8_t* m, ptrdiff_t n) {
        const BlockMask<E> block(loadFew16(m, n));
        unrolled<E>([&](auto j) { StoreU(block.template vector<j>(), keep + j * 16); });
    }
    // From any byte of the pixels.
    template <int Bytes>
    PXL_INLINE Piece piece(ptrdiff_t offset) const {
        return loadPiece<Bytes>(keep + offset);
    }
};

template <int E>
PXL_INLINE Piece widenMask(Piece keep) {
    if constexpr (E == 1)
        return keep;
    else
        return doubled<E / 2, 0>(widenMask<E / 2>(keep));
}

#endif

// Pixels that fill pieces evenly: every piece has its own mask elements.
template <int E>
requires(E % 3 != 0) struct FewMask<E> {
    const uint8_t* m;

    PXL_INLINE FewMask(const uint8_t* mask, ptrdiff_t) : m(mask) {}

    template <int Bytes>
    PXL_INLINE Piece piece(ptrdiff_t offset) const {
        return widenMask<E>(zeroBytes(loadPiece<Bytes / E>(m + offset / E)));
    }
};

} // namespace pxl::PXL_TARGET
