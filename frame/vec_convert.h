// Vector pieces of conversions between element types: partial loads and stores of fixed length, and narrowing helpers
// that go with the saturating functions of vec.h.
#pragma once

#include "frame/vec.h"

namespace pxl::PXL_TARGET {

// ---- the first Count lanes: all of a register, half or a quarter of it

template <class T>
PXL_INLINE __m128i lowerHalf(Vec<T> v) {
#ifdef __AVX2__
    return _mm256_castsi256_si128(ints(v));
#else
    return ints(v);
#endif
}
// What stands above v is undefined.
template <class T>
PXL_INLINE Vec<T> fromLowerHalf(__m128i v) {
#ifdef __AVX2__
    return fromInts<T>(_mm256_castsi128_si256(v));
#else
    return fromInts<T>(v);
#endif
}

template <int Count, class T>
PXL_INLINE void StoreFirst(Vec<T> v, T* p) {
    constexpr int bytes = Count * static_cast<int>(sizeof(T));
    static_assert(bytes == vecBytes || bytes == 16 || bytes == 8 || bytes == 4);
    if constexpr (bytes == vecBytes) return StoreU(v, p);
    if constexpr (bytes == 16) _mm_storeu_si128(reinterpret_cast<__m128i*>(p), lowerHalf(v));
    if constexpr (bytes == 8) _mm_storel_epi64(reinterpret_cast<__m128i*>(p), lowerHalf(v));
    if constexpr (bytes == 4) store1(reinterpret_cast<int32_t*>(p), _mm_cvtsi128_si32(lowerHalf(v)));
}

// Lanes behind Count are undefined.
template <int Count, class T>
PXL_INLINE Vec<T> LoadFirst(const T* p) {
    constexpr int bytes = Count * static_cast<int>(sizeof(T));
    static_assert(bytes == vecBytes || bytes == 16 || bytes == 8 || bytes == 4);
    if constexpr (bytes == vecBytes) return LoadU(p);
    if constexpr (bytes == 16) return fromLowerHalf<T>(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)));
    if constexpr (bytes == 8) return fromLowerHalf<T>(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)));
    if constexpr (bytes == 4) return fromLowerHalf<T>(_mm_cvtsi32_si128(load1(reinterpret_cast<const int32_t*>(p))));
}

// n bytes, below 16, in a register without a detour through memory; zero behind them. Each word is read from both of
// its ends, and where those overlap they agree.
PXL_INLINE __m128i loadFewBytes(const char* p, size_t n) {
    const auto at = [p](auto word, size_t offset) {
        std::memcpy(&word, p + offset, sizeof word);
        return uint64_t{word};
    };
    uint64_t lower = 0, upper = 0;
    if (n >= 8) {
        lower = at(uint64_t{}, 0);
        upper = at(uint64_t{}, n - 8) >> 1 >> (8 * (16 - n) - 1); // for n = 8 a shift by 64
    } else if (n >= 4) {
        lower = at(uint32_t{}, 0) | at(uint32_t{}, n - 4) << (8 * (n - 4));
    } else if (n >= 2) {
        lower = at(uint16_t{}, 0) | at(uint16_t{}, n - 2) << (8 * (n - 2));
    } else if (n == 1) {
        lower = at(uint8_t{}, 0);
    }
    return _mm_set_epi64x(static_cast<int64_t>(upper), static_cast<int64_t>(lower));
}

// n < Count lanes, zero behind them up to Count; nothing else is read.
template <int Count, class T>
PXL_INLINE Vec<T> LoadFew(const T* p, ptrdiff_t n) {
    const char* from = reinterpret_cast<const char*>(p);
    const size_t bytes = static_cast<size_t>(n) * sizeof(T);
#ifdef __AVX2__
    if constexpr (Count * sizeof(T) == 32) {
        if (bytes >= 16) {
            const __m128i lower = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
            return fromInts<T>(_mm256_set_m128i(loadFewBytes(from + 16, bytes - 16), lower));
        }
        return fromInts<T>(_mm256_zextsi128_si256(loadFewBytes(from, bytes)));
    }
#endif
    return fromLowerHalf<T>(loadFewBytes(from, bytes));
}

// ---- every fourth lane

template <class T, int First>
PXL_INLINE Mask<T> EveryFourth() {
    if constexpr (sizeof(T) == 1) return BitCast<MaskLane<T>>(Set<uint32_t>(0xFFu << (8 * First)));
    if constexpr (sizeof(T) == 2) return BitCast<MaskLane<T>>(Set<uint64_t>(uint64_t{0xFFFF} << (16 * First)));
    const auto lane = [](int i) { return i % 4 == First ? -1 : 0; };
    const __m128i four = _mm_setr_epi32(lane(0), lane(1), lane(2), lane(3));
#ifdef __AVX2__
    return fromInts<MaskLane<T>>(_mm256_broadcastsi128_si256(four));
#else
    return fromInts<MaskLane<T>>(four);
#endif
}

// Lanes First, First + 4, First + 8 ... of `kept`, the others of `v`.
template <int First, class T>
PXL_INLINE Vec<T> KeepEveryFourth(Vec<T> kept, Vec<T> v) {
#ifdef __AVX2__
    if constexpr (sizeof(T) == 4) return fromInts<T>(_mm256_blend_epi32(ints(v), ints(kept), 0x11 << First));
    if constexpr (sizeof(T) == 2) return fromInts<T>(_mm256_blend_epi16(ints(v), ints(kept), 0x11 << First));
#endif
    return IfThenElse(EveryFourth<T, First>(), kept, v);
}

// ---- widening and narrowing

// The first lanes, each widened with its value kept.
template <class Wide, class Narrow>
PXL_INLINE Vec<Wide> PromoteFirst(Vec<Narrow> v) {
    if constexpr (std::is_same_v<Wide, float>)
        return ConvertToFloat(promoteLower<int32_t, Narrow>(lowerHalf(v)));
    else
        return promoteLower<Wide, Narrow>(lowerHalf(v));
}

// The first bytes, each repeated in every byte of a wide lane.
template <class Wide>
PXL_INLINE Vec<Wide> RepeatFirst(Vec<uint8_t> v) {
    const __m128i bytes = lowerHalf(v);
#ifdef __AVX2__
    if constexpr (sizeof(Wide) == 2) {
        const __m256i halves = _mm256_permute4x64_epi64(_mm256_castsi128_si256(bytes), 0x10); // 8 bytes to either half
        return fromInts<Wide>(_mm256_unpacklo_epi8(halves, halves));
    } else {
        const __m256i places = _mm256_setr_epi8(0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 3, //
                                                4, 4, 4, 4, 5, 5, 5, 5, 6, 6, 6, 6, 7, 7, 7, 7);
        return fromInts<Wide>(_mm256_shuffle_epi8(_mm256_broadcastq_epi64(bytes), places));
    }
#else
    const __m128i twice = _mm_unpacklo_epi8(bytes, bytes);
    return fromInts<Wide>(sizeof(Wide) == 2 ? twice : _mm_unpacklo_epi16(twice, twice));
#endif
}

// Narrows one vector with saturation; the lanes come first in the result, what stands behind them is undefined.
template <class Narrow, class Wide>
PXL_INLINE Vec<Narrow> DemoteFirst(Vec<Wide> v) {
    if constexpr (sizeof(Wide) == sizeof(Narrow)) return BitCast<Narrow>(v);
    if constexpr (sizeof(Wide) == 2 * sizeof(Narrow)) return Demote2<Narrow>(v, v);
    if constexpr (sizeof(Wide) == 4 * sizeof(Narrow)) return Demote4<Narrow>(v, v, v, v);
}

PXL_INLINE Vec<uint16_t> Min255(Vec<uint16_t> v) {
#ifdef __AVX2__
    return fromInts<uint16_t>(_mm256_min_epu16(ints(v), _mm256_set1_epi16(255)));
#else
    return v - SaturatedSub(v, Set<uint16_t>(255));
#endif
}

// The upper halves of the 32-bit products.
PXL_INLINE Vec<uint16_t> MultiplyHigh(Vec<uint16_t> a, Vec<uint16_t> b) {
    return fromInts<uint16_t>(PXL_VEC_OP(mulhi_epu16)(ints(a), ints(b)));
}

} // namespace pxl::PXL_TARGET
