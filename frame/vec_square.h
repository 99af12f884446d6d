// Squares of lanes whose columns are rows of an image: as many rows as a vector has lanes of 16 or 32 bits, and as many columns.
//
// Loops that depend on the pixel before run over the columns of such a square, so that every lane follows its own row.
#pragma once

#include "frame/vec.h"
#include "frame/vec_transpose.h"

namespace pxl::PXL_TARGET {

template <class Lane>
inline constexpr int squareSide = lanes<Lane>;

// The lower (upper) halves of a and b, or a itself where a register is one half.
PXL_INLINE IntRegister joinLowerHalves(IntRegister a, [[maybe_unused]] IntRegister b) {
#ifdef __AVX2__
    return _mm256_permute2x128_si256(a, b, 0x20);
#else
    return a;
#endif
}
PXL_INLINE IntRegister joinUpperHalves(IntRegister a, [[maybe_unused]] IntRegister b) {
#ifdef __AVX2__
    return _mm256_permute2x128_si256(a, b, 0x31);
#else
    return a;
#endif
}

// v[i] lane j <-> v[j] lane i
template <class T>
PXL_INLINE void TransposeSquare(Vec<T> (&v)[lanes<T>]) {
    constexpr int side = lanes<T>, half = 16 / static_cast<int>(sizeof(T));
    IntRegister first[half], second[half]; // halves of columns, of the first rows and, on AVX2, of the second
#pragma GCC unroll 16
    for (int i = 0; i < half; ++i) first[i] = ints(v[i]), second[i] = ints(v[side - half + i]);
    interleaveRows<sizeof(T)>(first);
    if constexpr (side > half) interleaveRows<sizeof(T)>(second);
#pragma GCC unroll 16
    for (int i = 0; i < half; ++i) {
        v[i] = fromInts<T>(joinLowerHalves(first[i], second[i]));
        if constexpr (side > half) v[half + i] = fromInts<T>(joinUpperHalves(first[i], second[i]));
    }
}

// trunc(v + added), the sum in double precision.
PXL_INLINE Vec<int32_t> TruncateSumInDouble(Vec<float> v, Vec<double> added) {
#ifdef __AVX2__
    const auto half = [&](__m128 f) { return _mm256_cvttpd_epi32(_mm256_add_pd(_mm256_cvtps_pd(f), added.raw)); };
    return fromInts<int32_t>(
        _mm256_set_m128i(half(_mm256_extractf128_ps(v.raw, 1)), half(_mm256_castps256_ps128(v.raw))));
#else
    const auto half = [&](__m128 f) { return _mm_cvttpd_epi32(_mm_add_pd(_mm_cvtps_pd(f), added.raw)); };
    return fromInts<int32_t>(_mm_unpacklo_epi64(half(v.raw), half(_mm_movehl_ps(v.raw, v.raw))));
#endif
}

// ---- a square of results from its columns to memory ----------------------------------------------------------------------------

// The lower halves of the lanes of both side by side.
PXL_INLINE Vec<uint32_t> JoinHalves(Vec<uint32_t> lower, Vec<uint32_t> upper) {
#ifdef __AVX2__
    return fromInts<uint32_t>(_mm256_blend_epi16(ints(lower), ints(ShiftLeft<16>(upper)), 0xAA));
#else
    return (lower & Set<uint32_t>(0xFFFF)) | ShiftLeft<16>(upper);
#endif
}

// Elements of T of consecutive columns joined to fill their lanes.
template <class T, class Lane>
PXL_INLINE Vec<Lane> joinColumns(const Vec<Lane>* c) {
    if constexpr (sizeof(Lane) == sizeof(T)) return c[0];
    if constexpr (sizeof(Lane) == 2) return c[0] | ShiftLeft<8>(c[1]);
    if constexpr (sizeof(Lane) == 4 && sizeof(T) == 2) return JoinHalves(c[0], c[1]);
    if constexpr (sizeof(Lane) == 4 && sizeof(T) == 1)
        return (c[0] | ShiftLeft<8>(c[1])) | (ShiftLeft<16>(c[2]) | ShiftLeft<24>(c[3]));
}

// The rows that a half of a register holds, RowBytes each.
template <int RowBytes>
PXL_INLINE void storeRows(__m128i v, char* d, ptrdiff_t step) {
    if constexpr (RowBytes == 16) {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(d), v);
    } else if constexpr (RowBytes == 8) {
        _mm_storel_epi64(reinterpret_cast<__m128i*>(d), v);
        _mm_storeh_pi(reinterpret_cast<__m64*>(d + step), _mm_castsi128_ps(v));
    } else {
        alignas(16) int32_t rows[4];
        _mm_store_si128(reinterpret_cast<__m128i*>(rows), v);
        for (int i = 0; i < 4; ++i) store1(reinterpret_cast<int32_t*>(d + i * step), rows[i]);
    }
}

// Lanes are results of 8u, in 0..255, of 16-bit types, of which the lower half counts, or floats. The step is in bytes. The bits
// of `flipped` are inverted in every element of integers.
template <class T, class Lane>
PXL_INLINE void StoreSquare(Vec<Lane> (&column)[lanes<Lane>], T* dst, ptrdiff_t step,
                            [[maybe_unused]] Vec<Lane> flipped) {
    constexpr int side = lanes<Lane>, joined = sizeof(Lane) / sizeof(T), units = side / joined;
    char* d = reinterpret_cast<char*>(dst);
    if constexpr (joined == 1) {
        TransposeSquare(column);
#pragma GCC unroll 16
        for (int i = 0; i < side; ++i) StoreU(column[i], reinterpret_cast<T*>(d + i * step));
    } else {
        constexpr int rowBytes = side * sizeof(T), rowsOfHalf = 16 / rowBytes;
        IntRegister r[units];
#pragma GCC unroll 16
        for (int i = 0; i < units; ++i) r[i] = ints(joinColumns<T>(column + i * joined) ^ flipped);
        interleaveRows<sizeof(Lane)>(r);
#pragma GCC unroll 16
        for (int i = 0; i < units; ++i) {
            char* row = d + i * rowsOfHalf * step;
#ifdef __AVX2__
            storeRows<rowBytes>(_mm256_castsi256_si128(r[i]), row, step);
            storeRows<rowBytes>(_mm256_extracti128_si256(r[i], 1), row + side / 2 * step, step);
#else
            storeRows<rowBytes>(r[i], row, step);
#endif
        }
    }
}

} // namespace pxl::PXL_TARGET
