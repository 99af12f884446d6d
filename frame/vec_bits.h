// Vector pieces for images of one bit per pixel, and for loops whose lanes are rows.
#pragma once

#include "frame/vec.h"
#include "frame/vec_convert.h"

namespace pxl::PXL_TARGET {

// 64 bits from `bit` (0..7) on, the first one the most significant. Reads the bytes that hold them.
PXL_INLINE uint64_t load64Bits(const uint8_t* p, int bit) {
    const uint64_t word = __builtin_bswap64(load1(reinterpret_cast<const uint64_t*>(p)));
    const uint64_t last = p[(bit + 63) / 8]; // for bit 0 the last byte of the word, shifted away
    return word << bit | last >> (8 - bit);
}

// The same for n < 64 bits.
PXL_INLINE uint64_t loadFewBits(const uint8_t* p, int bit, ptrdiff_t n) {
    const Vec<uint64_t> words = BitCast<uint64_t>(LoadFew<16>(p, (bit + n + 7) / 8)); // 9 bytes at most
    return __builtin_bswap64(words.raw[0]) << bit | words.raw[1] >> (8 - bit);
}

// Eight bits per byte of `bits`, lowest byte first and the most significant bit of a byte first: bits
// Part * vecBytes ... as bytes of 255 (set) and 0.
template <int Part>
PXL_INLINE Vec<uint8_t> ExpandBits(uint64_t bits) {
    const auto word = static_cast<int64_t>(bits);
#ifdef __AVX2__
    const __m256i spread = _mm256_shuffle_epi8(
        _mm256_set1_epi64x(word),
        _mm256_add_epi8(_mm256_setr_epi64x(0, 0x0101010101010101, 0x0202020202020202, 0x0303030303030303),
                        _mm256_set1_epi8(4 * Part)));
#else
    __m128i spread = _mm_cvtsi64_si128(word >> (16 * Part));
    spread = _mm_unpacklo_epi8(spread, spread);
    spread = _mm_unpacklo_epi16(spread, spread);
    spread = _mm_unpacklo_epi32(spread, spread);
#endif
    const Vec<uint8_t> flags = BitCast<uint8_t>(Set<uint64_t>(0x0102040810204080));
    return (fromInts<uint8_t>(spread) & flags) == flags;
}

// Bit i is the sign of lane i.
PXL_INLINE uint32_t SignBits(Vec<uint32_t> v) {
    return static_cast<uint32_t>(PXL_VEC_OP(movemask_ps)(BitCast<float>(v).raw));
}

// Lane i becomes lane i + 1, the last one lane 0.
PXL_INLINE Vec<int32_t> RotateUp(Vec<int32_t> v) {
#ifdef __AVX2__
    return fromInts<int32_t>(_mm256_permutevar8x32_epi32(ints(v), _mm256_setr_epi32(7, 0, 1, 2, 3, 4, 5, 6)));
#else
    return fromInts<int32_t>(_mm_shuffle_epi32(ints(v), 0x93));
#endif
}

PXL_INLINE int32_t FirstLane(Vec<int32_t> v) {
#ifdef __AVX2__
    return _mm_cvtsi128_si32(_mm256_castsi256_si128(ints(v)));
#else
    return _mm_cvtsi128_si32(ints(v));
#endif
}

PXL_INLINE Vec<int32_t> ReplaceFirstLane(Vec<int32_t> v, int32_t first) {
    const __m128i lane = _mm_cvtsi32_si128(first);
#ifdef __AVX2__
    return fromInts<int32_t>(_mm256_blend_epi32(ints(v), _mm256_castsi128_si256(lane), 1));
#else
    return fromInts<int32_t>(_mm_castps_si128(_mm_move_ss(_mm_castsi128_ps(ints(v)), _mm_castsi128_ps(lane))));
#endif
}

// Rows of 16 bytes to 16 columns of `Rows` bytes (a power of two): each round interleaves the lower half of the rows
// with the upper half.
template <int Rows>
PXL_INLINE void TransposeBytes(const uint8_t* const (&rows)[Rows], uint8_t (&columns)[16 * Rows]) {
    __m128i v[Rows], w[Rows];
#pragma GCC unroll 8
    for (int i = 0; i < Rows; ++i) std::memcpy(&v[i], rows[i], sizeof v[i]);
#pragma GCC unroll 3
    for (int round = 1; round < Rows; round *= 2) {
#pragma GCC unroll 4
        for (int i = 0; i < Rows / 2; ++i) {
            w[2 * i] = _mm_unpacklo_epi8(v[i], v[i + Rows / 2]);
            w[2 * i + 1] = _mm_unpackhi_epi8(v[i], v[i + Rows / 2]);
        }
#pragma GCC unroll 8
        for (int i = 0; i < Rows; ++i) v[i] = w[i];
    }
#pragma GCC unroll 8
    for (int i = 0; i < Rows; ++i) std::memcpy(columns + 16 * i, &v[i], sizeof v[i]);
}

// The other way round for bits: byte 15 - i of the 16 bytes holds, in its bits 0 ... Rows - 1, column i of `Rows` rows.
// Calls store(row, bits) with the 16 bits of every row, the first column in the most significant one.
template <int Rows, class Store>
PXL_INLINE void TransposeBits(uint64_t lower, uint64_t upper, Store&& store) {
    __m128i v = _mm_set_epi64x(static_cast<int64_t>(upper), static_cast<int64_t>(lower));
    v = _mm_slli_epi16(v, 8 - Rows);
#pragma GCC unroll 8
    for (int row = Rows - 1; row >= 0; --row) {
        store(row, static_cast<uint32_t>(_mm_movemask_epi8(v)));
        v = _mm_add_epi8(v, v);
    }
}

} // namespace pxl::PXL_TARGET
