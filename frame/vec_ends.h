// Rows shorter than a register, in one register: the words at both ends of the row, side by side.
//
// The words are the largest ones that fit the row and meet or overlap in the middle, so lane i is not element i; but
// every operand of the same length has its elements in the same lanes, which is all that an element-wise operation
// needs. Rows of whole pairs of lanes are split into words of whole pairs.
#pragma once

#include "frame/vec.h"

namespace pxl::PXL_TARGET {

// Both ends of n bytes as one 64-bit word; the upper word is shifted by its own width.
template <class Word>
PXL_INLINE uint64_t loadWordEnds(const char* p, ptrdiff_t n) {
    Word first, last;
    std::memcpy(&first, p, sizeof first);
    std::memcpy(&last, p + n - sizeof last, sizeof last);
    return first | static_cast<uint64_t>(last) << (8 * sizeof last);
}
template <class Word>
PXL_INLINE void storeWordEnds(uint64_t words, char* p, ptrdiff_t n) {
    const Word first = static_cast<Word>(words), last = static_cast<Word>(words >> (8 * sizeof last));
    std::memcpy(p, &first, sizeof first);
    std::memcpy(p + n - sizeof last, &last, sizeof last);
}

PXL_INLINE __m128i loadWord64Ends(const char* p, ptrdiff_t n) {
    const __m128i first = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
    return _mm_castps_si128(_mm_loadh_pi(_mm_castsi128_ps(first), reinterpret_cast<const __m64*>(p + n - 8)));
}
PXL_INLINE void storeWord64Ends(__m128i v, char* p, ptrdiff_t n) {
    _mm_storel_epi64(reinterpret_cast<__m128i*>(p), v);
    _mm_storeh_pi(reinterpret_cast<__m64*>(p + n - 8), _mm_castsi128_ps(v));
}

// 0 < n < 16 bytes, in units of Least.
template <int Least>
PXL_INLINE __m128i loadBlockEnds(const char* p, ptrdiff_t n) {
    if (Least == 8 || n >= 8) return loadWord64Ends(p, n);
    if (Least == 4 || n >= 4) return _mm_cvtsi64_si128(static_cast<int64_t>(loadWordEnds<uint32_t>(p, n)));
    if (Least == 2 || n >= 2) return _mm_cvtsi64_si128(static_cast<int64_t>(loadWordEnds<uint16_t>(p, n)));
    return _mm_cvtsi32_si128(static_cast<uint8_t>(*p));
}
template <int Least>
PXL_INLINE void storeBlockEnds(__m128i v, char* p, ptrdiff_t n) {
    if (Least == 8 || n >= 8) return storeWord64Ends(v, p, n);
    const uint64_t words = static_cast<uint64_t>(_mm_cvtsi128_si64(v));
    if (Least == 4 || n >= 4) return storeWordEnds<uint32_t>(words, p, n);
    if (Least == 2 || n >= 2) return storeWordEnds<uint16_t>(words, p, n);
    *p = static_cast<char>(words);
}

// The ends of n lanes, 0 < n < lanes<T>; the lanes that belong to neither are zero.
template <class T>
PXL_INLINE Vec<T> LoadEnds(const T* from, ptrdiff_t n) {
    const char* p = reinterpret_cast<const char*>(from);
    const ptrdiff_t bytes = n * static_cast<ptrdiff_t>(sizeof(T));
#ifdef __AVX2__
    if (bytes >= 16)
        return fromInts<T>(
            _mm256_loadu2_m128i(reinterpret_cast<const __m128i*>(p + bytes - 16), reinterpret_cast<const __m128i*>(p)));
    return fromInts<T>(_mm256_zextsi128_si256(loadBlockEnds<sizeof(T)>(p, bytes)));
#else
    return fromInts<T>(loadBlockEnds<sizeof(T)>(p, bytes));
#endif
}
template <class T>
PXL_INLINE void StoreEnds(Vec<T> v, T* to, ptrdiff_t n) {
    char* p = reinterpret_cast<char*>(to);
    const ptrdiff_t bytes = n * static_cast<ptrdiff_t>(sizeof(T));
#ifdef __AVX2__
    if (bytes >= 16)
        return _mm256_storeu2_m128i(reinterpret_cast<__m128i*>(p + bytes - 16), reinterpret_cast<__m128i*>(p), ints(v));
    storeBlockEnds<sizeof(T)>(_mm256_castsi256_si128(ints(v)), p, bytes);
#else
    storeBlockEnds<sizeof(T)>(ints(v), p, bytes);
#endif
}

} // namespace pxl::PXL_TARGET
