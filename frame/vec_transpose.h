// Blocks of pixels transposed in registers.
//
// A block is made of rows that lie in one register each; interleaving these registers pixel by pixel lines up the
// columns. On AVX2 the two halves of a register hold two rows that are 16 / Bytes apart (pixels of `Bytes` bytes), and
// both halves are transposed at once.
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

// The rows r[0], r[1], ... become one run, pixel by pixel: r[0][0] r[1][0] r[2][0] ... r[0][1] r[1][1] ... (in each
// half).
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

// One row, or with AVX2 the row at `other` bytes behind it in the upper half.
PXL_INLINE IntRegister loadRows(const uint8_t* s, [[maybe_unused]] ptrdiff_t other) {
    const auto row = [](const uint8_t* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); };
#ifdef __AVX2__
    return _mm256_inserti128_si256(_mm256_castsi128_si256(row(s)), row(s + other), 1);
#else
    return row(s);
#endif
}

// vecBytes / Bytes rows of 16 / Bytes columns.
template <int Bytes>
PXL_INLINE void transposeBlock(const uint8_t* s, ptrdiff_t srcStep, uint8_t* d, ptrdiff_t dstStep) {
    constexpr int columns = 16 / Bytes;
    IntRegister r[columns];
#pragma GCC unroll 16
    for (int i = 0; i < columns; ++i) r[i] = loadRows(s + i * srcStep, columns * srcStep);
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
        _mm_storel_epi64(reinterpret_cast<__m128i*>(d + (2 * i + 1) * dstStep), _mm_unpackhi_epi64(r[i], r[i]));
    }
}

#ifdef __AVX2__
// Pixels of 3 or 6 bytes: 4 or 2 of them (12 bytes) of twice as many rows. They are widened by a third for the way
// through the registers.
//
// Of every row 16 bytes are read: those from s on, or with `early` those up to the end of the 12, so that a row need
// not be left on either side. Of every destination row 24 bytes are filled; unless `exact`, 8 unspecified ones are
// written behind.
template <int Bytes>
struct TransposeOfThrees {
    static constexpr int wide = Bytes / 3 * 4;
    static constexpr int columns = 16 / wide;
    static constexpr int rows = 2 * columns;

    alignas(16) int8_t widen[2][16], narrow[16]; // widen[1] for early loads

    constexpr TransposeOfThrees() : widen(), narrow() {
        for (int i = 0; i < 16; ++i) {
            const int from = i / wide * Bytes + i % wide;
            widen[0][i] = static_cast<int8_t>(i % wide < Bytes ? from : -1);
            widen[1][i] = static_cast<int8_t>(i % wide < Bytes ? from + 4 : -1);
            narrow[i] = static_cast<int8_t>(i < 12 ? i / Bytes * wide + i % Bytes : -1);
        }
    }
};

template <int Bytes>
PXL_INLINE void transposeBlockOfThrees(const uint8_t* s, ptrdiff_t srcStep, uint8_t* d, ptrdiff_t dstStep, bool early,
                                       bool exact) {
    static constexpr TransposeOfThrees<Bytes> plan;
    const auto order = [](const int8_t* p) {
        return _mm256_broadcastsi128_si256(*reinterpret_cast<const __m128i*>(p));
    };
    const __m256i widen = order(plan.widen[early]), narrow = order(plan.narrow);
    const __m256i together = _mm256_setr_epi32(0, 1, 2, 4, 5, 6, 7, 7);
    s -= early ? 4 : 0;
    __m256i r[plan.columns];
#pragma GCC unroll 4
    for (int i = 0; i < plan.columns; ++i)
        r[i] = _mm256_shuffle_epi8(loadRows(s + i * srcStep, plan.columns * srcStep), widen);
    interleaveRows<plan.wide>(r);
#pragma GCC unroll 4
    for (int i = 0; i < plan.columns; ++i) {
        r[i] = _mm256_permutevar8x32_epi32(_mm256_shuffle_epi8(r[i], narrow), together);
        uint8_t* row = d + i * dstStep;
        if (exact) {
            _mm_storeu_si128(reinterpret_cast<__m128i*>(row), _mm256_castsi256_si128(r[i]));
            _mm_storel_epi64(reinterpret_cast<__m128i*>(row + 16), _mm256_extracti128_si256(r[i], 1));
        } else {
            StoreU(fromInts<uint8_t>(r[i]), row);
        }
    }
}
#endif

} // namespace pxl::PXL_TARGET
