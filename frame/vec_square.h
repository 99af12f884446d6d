// Squares of lanes whose columns are rows of an image: as many rows as a vector has 32-bit lanes, and as many columns.
//
// Loops that depend on the pixel before run over the columns of such a square, so that every lane follows its own row.
#pragma once

#include "frame/vec.h"

namespace pxl::PXL_TARGET {

inline constexpr int squareSide = lanes<uint32_t>;

// v[i] lane j <-> v[j] lane i
template <class T>
PXL_INLINE void TransposeSquare(Vec<T> (&v)[squareSide]) {
    static_assert(sizeof(T) == 4);
    IntRegister pairs[squareSide], fours[squareSide];
    using W = uint32_t;
    using D = uint64_t;
#pragma GCC unroll 4
    for (int i = 0; i < squareSide; i += 2) {
        pairs[i] = ints(InterleaveLowerBlocks(BitCast<W>(v[i]), BitCast<W>(v[i + 1])));
        pairs[i + 1] = ints(InterleaveUpperBlocks(BitCast<W>(v[i]), BitCast<W>(v[i + 1])));
    }
#pragma GCC unroll 2
    for (int i = 0; i < squareSide; i += 4) {
        fours[i] = ints(InterleaveLowerBlocks(fromInts<D>(pairs[i]), fromInts<D>(pairs[i + 2])));
        fours[i + 1] = ints(InterleaveUpperBlocks(fromInts<D>(pairs[i]), fromInts<D>(pairs[i + 2])));
        fours[i + 2] = ints(InterleaveLowerBlocks(fromInts<D>(pairs[i + 1]), fromInts<D>(pairs[i + 3])));
        fours[i + 3] = ints(InterleaveUpperBlocks(fromInts<D>(pairs[i + 1]), fromInts<D>(pairs[i + 3])));
    }
#pragma GCC unroll 4
    for (int i = 0; i < 4; ++i) {
#ifdef __AVX2__
        v[i] = fromInts<T>(_mm256_inserti128_si256(fours[i], _mm256_castsi256_si128(fours[i + 4]), 1));
        v[i + 4] = fromInts<T>(_mm256_permute2x128_si256(fours[i], fours[i + 4], 0x31));
#else
        v[i] = fromInts<T>(fours[i]);
#endif
    }
}

// trunc(v + added), the sum in double precision.
PXL_INLINE Vec<int32_t> TruncateSumInDouble(Vec<float> v, Vec<double> added) {
#ifdef __AVX2__
    const auto half = [&](__m128 f) { return _mm256_cvttpd_epi32(_mm256_add_pd(_mm256_cvtps_pd(f), added.raw)); };
    return fromInts<int32_t>(_mm256_set_m128i(half(_mm256_extractf128_ps(v.raw, 1)), half(_mm256_castps256_ps128(v.raw))));
#else
    const auto half = [&](__m128 f) { return _mm_cvttpd_epi32(_mm_add_pd(_mm_cvtps_pd(f), added.raw)); };
    return fromInts<int32_t>(_mm_unpacklo_epi64(half(v.raw), half(_mm_movehl_ps(v.raw, v.raw))));
#endif
}

// ---- a square of results from its columns to memory: `squareSide` rows of as many elements ------------------------------------

// The lower halves of 32-bit lanes of both, in pairs.
PXL_INLINE Vec<uint32_t> JoinWords(Vec<uint32_t> lower, Vec<uint32_t> upper) {
#ifdef __AVX2__
    return fromInts<uint32_t>(_mm256_blend_epi16(ints(lower), ints(ShiftLeft<16>(upper)), 0xAA));
#else
    return (lower & Set<uint32_t>(0xFFFF)) | ShiftLeft<16>(upper);
#endif
}
// Four columns of bytes; lanes hold 0..255.
PXL_INLINE Vec<uint32_t> JoinBytes(const Vec<uint32_t>* c) {
    return (c[0] | ShiftLeft<8>(c[1])) | (ShiftLeft<16>(c[2]) | ShiftLeft<24>(c[3]));
}

// Two rows of 8 bytes.
PXL_INLINE void storeTwoRows(__m128i v, char* d, ptrdiff_t step) {
    _mm_storel_epi64(reinterpret_cast<__m128i*>(d), v);
    _mm_storeh_pd(reinterpret_cast<double*>(d + step), _mm_castsi128_pd(v));
}

#ifdef __AVX2__
// A row of 16 bytes, and the one four rows on.
PXL_INLINE void storeRowAndFifth(__m256i v, char* d, ptrdiff_t step) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(d), _mm256_castsi256_si128(v));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(d + 4 * step), _mm256_extracti128_si256(v, 1));
}
#endif

// Lanes are results of 8u, in 0..255, of 16-bit types, of which the lower half counts, or floats. The step is in bytes.
template <class T, class Lane>
PXL_INLINE void StoreSquare(Vec<Lane> (&column)[squareSide], T* dst, ptrdiff_t step) {
    char* d = reinterpret_cast<char*>(dst);
    if constexpr (sizeof(T) == 4) {
        TransposeSquare(column);
#pragma GCC unroll 8
        for (int i = 0; i < squareSide; ++i) StoreU(column[i], reinterpret_cast<T*>(d + i * step));
    } else if constexpr (sizeof(T) == 1) {
        const Vec<uint32_t> first = JoinBytes(column);
#ifdef __AVX2__
        const Vec<uint32_t> second = JoinBytes(column + 4);
        const __m256i rows0145 = ints(InterleaveLowerBlocks(first, second));
        const __m256i rows2367 = ints(InterleaveUpperBlocks(first, second));
        storeTwoRows(_mm256_castsi256_si128(rows0145), d, step);
        storeTwoRows(_mm256_castsi256_si128(rows2367), d + 2 * step, step);
        storeTwoRows(_mm256_extracti128_si256(rows0145, 1), d + 4 * step, step);
        storeTwoRows(_mm256_extracti128_si256(rows2367, 1), d + 6 * step, step);
#else
        alignas(16) int32_t rows[4];
        StoreU(BitCast<int32_t>(first), rows);
        for (int i = 0; i < 4; ++i) store1(reinterpret_cast<int32_t*>(d + i * step), rows[i]);
#endif
    } else {
        const Vec<uint32_t> a = JoinWords(column[0], column[1]), b = JoinWords(column[2], column[3]);
#ifdef __AVX2__
        const Vec<uint32_t> e = JoinWords(column[4], column[5]), f = JoinWords(column[6], column[7]);
        const auto lower = [](Vec<uint32_t> p, Vec<uint32_t> q) {
            return BitCast<uint64_t>(InterleaveLowerBlocks(p, q)); // rows 0, 1 and 4, 5
        };
        const auto upper = [](Vec<uint32_t> p, Vec<uint32_t> q) {
            return BitCast<uint64_t>(InterleaveUpperBlocks(p, q)); // rows 2, 3 and 6, 7
        };
        storeRowAndFifth(ints(InterleaveLowerBlocks(lower(a, b), lower(e, f))), d, step);
        storeRowAndFifth(ints(InterleaveUpperBlocks(lower(a, b), lower(e, f))), d + step, step);
        storeRowAndFifth(ints(InterleaveLowerBlocks(upper(a, b), upper(e, f))), d + 2 * step, step);
        storeRowAndFifth(ints(InterleaveUpperBlocks(upper(a, b), upper(e, f))), d + 3 * step, step);
#else
        storeTwoRows(ints(InterleaveLowerBlocks(a, b)), d, step);
        storeTwoRows(ints(InterleaveUpperBlocks(a, b)), d + 2 * step, step);
#endif
    }
}

} // namespace pxl::PXL_TARGET
