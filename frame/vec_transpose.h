// Blocks of pixels transposed in registers.
//
// A block is made of rows that lie in one register each; interleaving these registers pixel by pixel lines up the columns.
// On AVX2 the two halves of a register hold two rows that are 16 / Bytes apart, and both halves are transposed at once.
#pragma once

#include "frame/vec.h"

namespace pxl::PXL_TARGET {

template <int Bytes>
PXL_INLINE __m128i interleaveLower(__m128i a, __m128i b) {
    if constexpr (Bytes == 1) return _mm_unpacklo_epi8(a, b);
    if constexpr (Bytes == 2) return _mm_unpacklo_epi16(a, b);
    if constexpr (Bytes == 4) return _mm_unpacklo_epi32(a, b);
    if constexpr (Bytes == 8) return _mm_unpacklo_epi64(a, b);
}
template <int Bytes>
PXL_INLINE __m128i interleaveUpper(__m128i a, __m128i b) {
    if constexpr (Bytes == 1) return _mm_unpackhi_epi8(a, b);
    if constexpr (Bytes == 2) return _mm_unpackhi_epi16(a, b);
    if constexpr (Bytes == 4) return _mm_unpackhi_epi32(a, b);
    if constexpr (Bytes == 8) return _mm_unpackhi_epi64(a, b);
}
#ifdef __AVX2__
template <int Bytes>
PXL_INLINE __m256i interleaveLower(__m256i a, __m256i b) {
    using T = typename UnsignedOf<Bytes>::type;
    return ints(InterleaveLowerBlocks(fromInts<T>(a), fromInts<T>(b)));
}
template <int Bytes>
PXL_INLINE __m256i interleaveUpper(__m256i a, __m256i b) {
    using T = typename UnsignedOf<Bytes>::type;
    return ints(InterleaveUpperBlocks(fromInts<T>(a), fromInts<T>(b)));
}
#endif

// The rows r[0], r[1], ... become one run, pixel by pixel: r[0][0] r[1][0] r[2][0] ... r[0][1] r[1][1] ... (in each half).
template <int Bytes, int Rows, class Register>
PXL_INLINE void interleaveRows(Register (&r)[Rows]) {
#pragma GCC unroll 4
    for (int stage = 1; stage < Rows; stage *= 2) {
        Register next[Rows];
#pragma GCC unroll 8
        for (int i = 0; i < Rows / 2; ++i) {
            next[2 * i] = interleaveLower<Bytes>(r[i], r[i + Rows / 2]);
            next[2 * i + 1] = interleaveUpper<Bytes>(r[i], r[i + Rows / 2]);
        }
#pragma GCC unroll 16
        for (int i = 0; i < Rows; ++i) r[i] = next[i];
    }
}

// vecBytes / Bytes rows of 16 / Bytes columns.
template <int Bytes>
PXL_INLINE void transposeBlock(const uint8_t* s, ptrdiff_t srcStep, uint8_t* d, ptrdiff_t dstStep) {
    constexpr int columns = 16 / Bytes;
    IntRegister r[columns];
#pragma GCC unroll 16
    for (int i = 0; i < columns; ++i) {
        const auto at = [&](int row) { return reinterpret_cast<const __m128i*>(s + row * srcStep); };
#ifdef __AVX2__
        r[i] = _mm256_inserti128_si256(_mm256_castsi128_si256(_mm_loadu_si128(at(i))), _mm_loadu_si128(at(i + columns)), 1);
#else
        r[i] = _mm_loadu_si128(at(i));
#endif
    }
    interleaveRows<Bytes>(r);
#pragma GCC unroll 16
    for (int i = 0; i < columns; ++i) StoreU(fromInts<uint8_t>(r[i]), d + i * dstStep);
}

// 16 / Bytes rows and columns.
template <int Bytes>
PXL_INLINE void transposeSquare16(const uint8_t* s, ptrdiff_t srcStep, uint8_t* d, ptrdiff_t dstStep) {
    constexpr int side = 16 / Bytes;
    __m128i r[side];
#pragma GCC unroll 16
    for (int i = 0; i < side; ++i) std::memcpy(&r[i], s + i * srcStep, 16);
    interleaveRows<Bytes>(r);
#pragma GCC unroll 16
    for (int i = 0; i < side; ++i) std::memcpy(d + i * dstStep, &r[i], 16);
}

// 8 / Bytes rows and columns; every register ends up with two columns.
template <int Bytes>
PXL_INLINE void transposeSquare8(const uint8_t* s, ptrdiff_t srcStep, uint8_t* d, ptrdiff_t dstStep) {
    constexpr int side = 8 / Bytes;
    __m128i r[side];
#pragma GCC unroll 8
    for (int i = 0; i < side; ++i) r[i] = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(s + i * srcStep));
    interleaveRows<Bytes>(r);
#pragma GCC unroll 4
    for (int i = 0; i < side / 2; ++i) {
        _mm_storel_epi64(reinterpret_cast<__m128i*>(d + 2 * i * dstStep), r[i]);
        _mm_storeh_pd(reinterpret_cast<double*>(d + (2 * i + 1) * dstStep), _mm_castsi128_pd(r[i]));
    }
}

#ifdef __AVX2__
// 8 rows of 4 pixels of 3 bytes. The pixels are widened to 4 bytes for the way through the registers. Of every row 16 bytes
// are read, 12 of which are the pixels: the first ones, or with `early` the last ones, so that a row need not be left.
PXL_INLINE void transposeBlock3(const uint8_t* s, ptrdiff_t srcStep, uint8_t* d, ptrdiff_t dstStep, bool early) {
    const __m128i first = _mm_setr_epi8(0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1);
    const __m128i offset = _mm_set1_epi8(early ? 4 : 0);
    const __m256i widen = _mm256_broadcastsi128_si256(_mm_add_epi8(first, offset));
    const __m256i narrow = _mm256_broadcastsi128_si256(_mm_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1));
    s -= early ? 4 : 0;
    __m256i r[4];
#pragma GCC unroll 4
    for (int i = 0; i < 4; ++i) {
        const auto at = [&](int row) { return reinterpret_cast<const __m128i*>(s + row * srcStep); };
        r[i] = _mm256_inserti128_si256(_mm256_castsi128_si256(_mm_loadu_si128(at(i))), _mm_loadu_si128(at(i + 4)), 1);
        r[i] = _mm256_shuffle_epi8(r[i], widen);
    }
    interleaveRows<4>(r);
#pragma GCC unroll 4
    for (int i = 0; i < 4; ++i) {
        r[i] = _mm256_shuffle_epi8(r[i], narrow);
        uint8_t* row = d + i * dstStep;
        const __m128i upper = _mm256_extracti128_si256(r[i], 1);
        const int last = _mm_extract_epi32(upper, 2);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(row), _mm256_castsi256_si128(r[i])); // 4 bytes too many: see below
        _mm_storel_epi64(reinterpret_cast<__m128i*>(row + 12), upper);
        std::memcpy(row + 20, &last, sizeof last);
    }
}
#endif

} // namespace pxl::PXL_TARGET
