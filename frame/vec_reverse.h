// Registers and short runs of pixels in reverse order. Pixels move whole: the bytes within one keep their order.
#pragma once

#include "frame/pixel.h"
#include "frame/vec.h"

namespace pxl::PXL_TARGET {

// Pixels of 1, 2, 4, 8 or 16 bytes reversed in every block of 16 bytes.
template <int Bytes>
PXL_INLINE __m128i reverseBlocks(__m128i v) {
    if constexpr (Bytes == 16) return v;
    if constexpr (Bytes == 8) return _mm_shuffle_epi32(v, _MM_SHUFFLE(1, 0, 3, 2));
    if constexpr (Bytes == 4) return _mm_shuffle_epi32(v, _MM_SHUFFLE(0, 1, 2, 3));
#ifdef __AVX2__
    if constexpr (Bytes == 2)
        return _mm_shuffle_epi8(v, _mm_setr_epi8(14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1));
    if constexpr (Bytes == 1)
        return _mm_shuffle_epi8(v, _mm_setr_epi8(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0));
#else
    if constexpr (Bytes == 2) {
        v = _mm_shufflelo_epi16(v, _MM_SHUFFLE(0, 1, 2, 3));
        v = _mm_shufflehi_epi16(v, _MM_SHUFFLE(0, 1, 2, 3));
        return _mm_shuffle_epi32(v, _MM_SHUFFLE(1, 0, 3, 2));
    }
    if constexpr (Bytes == 1) return reverseBlocks<2>(_mm_or_si128(_mm_slli_epi16(v, 8), _mm_srli_epi16(v, 8)));
#endif
}

#ifdef __AVX2__
template <int Bytes>
PXL_INLINE __m256i reverseBlocks(__m256i v) {
    if constexpr (Bytes == 2)
        return _mm256_shuffle_epi8(v, _mm256_setr_epi8(14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1, //
                                                       14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1));
    if constexpr (Bytes == 1)
        return _mm256_shuffle_epi8(v, _mm256_setr_epi8(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0, //
                                                       15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0));
}
#endif

// The vecBytes bytes at p with their pixels reversed.
template <int Bytes>
PXL_INLINE Vec<uint8_t> LoadReversed(const uint8_t* p) {
#ifdef __AVX2__
    const auto whole = [p] { return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p)); };
    if constexpr (Bytes == 16) {
        return fromInts<uint8_t>(_mm256_permute4x64_epi64(whole(), _MM_SHUFFLE(1, 0, 3, 2)));
    } else if constexpr (Bytes == 8) {
        return fromInts<uint8_t>(_mm256_permute4x64_epi64(whole(), _MM_SHUFFLE(0, 1, 2, 3)));
    } else if constexpr (Bytes == 4) {
        return fromInts<uint8_t>(_mm256_permutevar8x32_epi32(whole(), _mm256_setr_epi32(7, 6, 5, 4, 3, 2, 1, 0)));
    } else {
        // The halves change places on the way from memory, which leaves one shuffle within them.
        const __m256i halves = _mm256_inserti128_si256(_mm256_castsi128_si256(loadWord<__m128i>(p + 16)), //
                                                       loadWord<__m128i>(p), 1);
        return fromInts<uint8_t>(reverseBlocks<Bytes>(halves));
    }
#else
    return fromInts<uint8_t>(reverseBlocks<Bytes>(loadWord<__m128i>(p)));
#endif
}

// The 8 bytes at p with their pixels of 1, 2, 4 or 8 bytes reversed.
template <int Bytes>
PXL_INLINE uint64_t loadReversed8(const uint8_t* p) {
    const auto word = loadWord<uint64_t>(p);
    if constexpr (Bytes == 8) return word;
    if constexpr (Bytes == 4) return word << 32 | word >> 32;
    if constexpr (Bytes == 1) return __builtin_bswap64(word);
    if constexpr (Bytes == 2)
        return static_cast<uint64_t>(
            _mm_cvtsi128_si64(_mm_shufflelo_epi16(_mm_cvtsi64_si128(static_cast<long long>(word)), 0x1B)));
}

// Pixels of 3, 6 and 12 bytes fill a word but for a few bytes.
template <int Bytes>
struct PixelWord;
template <>
struct PixelWord<3> {
    using type = uint32_t;
};
template <>
struct PixelWord<6> {
    using type = uint64_t;
};
template <>
struct PixelWord<12> {
    using type = __m128i;
};

// One pixel, loaded with a word that ends with it and stored with a word that begins with it. The bytes stored behind
// the pixel are unspecified.
template <int Bytes>
PXL_INLINE void storePixelWord(const uint8_t* s, uint8_t* d) {
    auto word = loadWord<typename PixelWord<Bytes>::type>(s);
    if constexpr (Bytes == 12)
        word = _mm_srli_si128(word, 4);
    else
        word >>= 8 * (sizeof word - Bytes);
    storeWord(word, d);
}

#ifdef __AVX2__
// The same for the 5 pixels of 3 bytes or 2 pixels of 6 bytes that a word of 16 bytes holds.
template <int Bytes>
PXL_INLINE void storeReversed16(const uint8_t* s, uint8_t* d) {
    const __m128i order = Bytes == 3 ? _mm_setr_epi8(13, 14, 15, 10, 11, 12, 7, 8, 9, 4, 5, 6, 1, 2, 3, -1)
                                     : _mm_setr_epi8(10, 11, 12, 13, 14, 15, 4, 5, 6, 7, 8, 9, -1, -1, -1, -1);
    storeWord(_mm_shuffle_epi8(loadWord<__m128i>(s), order), d);
}

// How a run of 96 bytes is made of pixels of 3, 6 or 12 bytes in reverse order, 16 bytes at a time. The sources of 16
// bytes lie in a window that is little wider than 16: two loads, one from its beginning and one to its end, hold them
// all.
template <int Bytes>
struct Reversal96 {
    int first[6], last[6]; // where the loads begin
    alignas(32) int8_t fromFirst[96], fromLast[96];

    static constexpr int source(int at) { return 96 - Bytes - at / Bytes * Bytes + at % Bytes; }

    constexpr Reversal96() : first(), last(), fromFirst(), fromLast() {
        for (int block = 0; block < 6; ++block) {
            int low = 96, high = 0;
            for (int at = 16 * block; at < 16 * block + 16; ++at) {
                low = source(at) < low ? source(at) : low;
                high = source(at) > high ? source(at) : high;
            }
            first[block] = low;
            last[block] = high - 15;
            for (int at = 16 * block; at < 16 * block + 16; ++at) {
                const int offset = source(at) - low;
                fromFirst[at] = static_cast<int8_t>(offset < 16 ? offset : -1);
                fromLast[at] = static_cast<int8_t>(offset < 16 ? -1 : source(at) - last[block]);
            }
        }
    }
};

template <int Bytes>
PXL_INLINE void storeReversed96(const uint8_t* s, uint8_t* d) {
    static constexpr Reversal96<Bytes> plan;
#pragma GCC unroll 3
    for (int i = 0; i < 3; ++i) {
        const auto pick = [&](const int* begin, const int8_t* order) {
            const __m256i blocks = _mm256_inserti128_si256(_mm256_castsi128_si256(loadWord<__m128i>(s + begin[2 * i])),
                                                           loadWord<__m128i>(s + begin[2 * i + 1]), 1);
            return _mm256_shuffle_epi8(blocks, *reinterpret_cast<const __m256i*>(order + 32 * i));
        };
        StoreU(fromInts<uint8_t>(pick(plan.first, plan.fromFirst) | pick(plan.last, plan.fromLast)), d + 32 * i);
    }
}
#endif

} // namespace pxl::PXL_TARGET
