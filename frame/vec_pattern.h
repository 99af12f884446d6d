// Rows filled with one pixel over and over: patterns of a whole number of pixels that fit whole registers.
#pragma once

#include <utility>

#include "frame/vec.h"

namespace pxl::PXL_TARGET {

// ---- words: pieces of rows that are shorter than a register --------------------------------------------------------------------

// Sixteen bytes as one word, beside uint64_t and the smaller ones.
typedef long long Word16 __attribute__((vector_size(16)));

template <class Word>
PXL_INLINE Word loadWord(const void* p) {
    Word word;
    std::memcpy(&word, p, sizeof word);
    return word;
}

// The low and the high bytes of a register.
template <class Word>
PXL_INLINE Word headOf(__m128i v) {
    if constexpr (sizeof(Word) == 16) return (Word)v;
    else return static_cast<Word>(_mm_cvtsi128_si64(v));
}
template <class Word>
PXL_INLINE Word tailOf(__m128i v) {
    if constexpr (sizeof(Word) == 16) return (Word)v;
    else
        return static_cast<Word>(static_cast<uint64_t>(_mm_cvtsi128_si64(_mm_unpackhi_epi64(v, v))) >>
                                 (64 - 8 * sizeof(Word)));
}
#ifdef __AVX2__
template <class Word>
PXL_INLINE Word headOf(__m256i v) {
    return headOf<Word>(_mm256_castsi256_si128(v));
}
template <class Word>
PXL_INLINE Word tailOf(__m256i v) {
    return tailOf<Word>(_mm256_extracti128_si256(v, 1));
}
#endif

// Stores a register or a word; the form with `keep` leaves the bits that it has set, where value must have none.
PXL_INLINE void put(uint8_t* d, Vec<uint8_t> value) { StoreU(value, d); }
PXL_INLINE void put(uint8_t* d, Vec<uint8_t> value, Vec<uint8_t> keep) { StoreU(value | (keep & LoadU(d)), d); }
template <class Word>
PXL_INLINE void put(uint8_t* d, Word value) {
    std::memcpy(d, &value, sizeof value);
}
template <class Word>
PXL_INLINE void put(uint8_t* d, Word value, Word keep) {
    put(d, static_cast<Word>(value | (keep & loadWord<Word>(d))));
}

// Calls body(j) for j = 0 .. Count - 1, each a constant.
template <int Count, class Body>
PXL_INLINE void unrolled(Body&& body) {
    [&]<int... j>(std::integer_sequence<int, j...>) __attribute__((always_inline)) {
        (body(std::integral_constant<int, j>{}), ...);
    }(std::make_integer_sequence<int, Count>{});
}

// ---- patterns ------------------------------------------------------------------------------------------------------------------

// Pixels of E bytes, end to end. The first vector begins with a pixel and the last one ends with one.
template <int E>
struct Pattern {
    static constexpr int count = E % 3 == 0 ? 3 : 1;
    Vec<uint8_t> v[count];
};

// The E bytes of a pixel and zeros behind them.
template <int E>
PXL_INLINE __m128i loadPixel(const void* pixel) {
    const char* p = static_cast<const char*>(pixel);
    if constexpr (E == 1) return _mm_cvtsi32_si128(loadWord<uint8_t>(p));
    if constexpr (E == 2) return _mm_cvtsi32_si128(loadWord<uint16_t>(p));
    if constexpr (E == 3) return _mm_cvtsi32_si128(loadWord<uint16_t>(p) | loadWord<uint8_t>(p + 2) << 16);
    if constexpr (E == 4) return _mm_cvtsi32_si128(loadWord<int32_t>(p));
    if constexpr (E == 6)
        return _mm_cvtsi64_si128(loadWord<uint32_t>(p) | static_cast<int64_t>(loadWord<uint16_t>(p + 4)) << 32);
    if constexpr (E == 8) return _mm_cvtsi64_si128(loadWord<int64_t>(p));
    if constexpr (E == 12) return _mm_set_epi64x(loadWord<uint32_t>(p + 8), loadWord<int64_t>(p));
    if constexpr (E == 16) return (__m128i)loadWord<Word16>(p);
}

#ifdef __AVX2__

// Byte k of a pattern is byte k % E of the pixel.
template <int E>
struct RepeatTable {
    alignas(vecBytes) uint8_t bytes[3 * vecBytes];
    constexpr RepeatTable() : bytes{} {
        for (int k = 0; k < 3 * vecBytes; ++k) bytes[k] = static_cast<uint8_t>(k % E);
    }
};
template <int E>
inline constexpr RepeatTable<E> repeatTable;

template <int E>
PXL_INLINE Pattern<E> repeatPixel(__m128i pixel) {
    if constexpr (E == 1) return {{fromInts<uint8_t>(_mm256_broadcastb_epi8(pixel))}};
    if constexpr (E == 2) return {{fromInts<uint8_t>(_mm256_broadcastw_epi16(pixel))}};
    if constexpr (E == 4) return {{fromInts<uint8_t>(_mm256_broadcastd_epi32(pixel))}};
    if constexpr (E == 8) return {{fromInts<uint8_t>(_mm256_broadcastq_epi64(pixel))}};
    const __m256i twice = _mm256_broadcastsi128_si256(pixel);
    if constexpr (E == 16) return {{fromInts<uint8_t>(twice)}};
    if constexpr (E % 3 == 0) {
        const auto vector = [&](int j) {
            const Vec<uint8_t> from = LoadU(repeatTable<E>.bytes + j * vecBytes);
            return fromInts<uint8_t>(_mm256_shuffle_epi8(twice, ints(from)));
        };
        return {{vector(0), vector(1), vector(2)}};
    }
}

#else

// A pattern whose period is three words of 8 bytes.
template <int E>
PXL_INLINE Pattern<E> repeatWords(uint64_t w0, uint64_t w1, uint64_t w2) {
    const auto vector = [](uint64_t low, uint64_t high) {
        return fromInts<uint8_t>(_mm_set_epi64x(static_cast<int64_t>(high), static_cast<int64_t>(low)));
    };
    return {{vector(w0, w1), vector(w2, w0), vector(w1, w2)}};
}

template <int E>
PXL_INLINE Pattern<E> repeatPixel(__m128i pixel) {
    if constexpr (E % 3 == 0) {
        const uint64_t low = static_cast<uint64_t>(_mm_cvtsi128_si64(pixel));
        const uint64_t high = static_cast<uint64_t>(_mm_cvtsi128_si64(_mm_unpackhi_epi64(pixel, pixel)));
        if constexpr (E == 12) return repeatWords<E>(low, high | low << 32, low >> 32 | high << 32);
        const uint64_t six = E == 3 ? low | low << 24 : low;
        return repeatWords<E>(six | six << 48, six >> 16 | six << 32, six >> 32 | six << 16);
    } else {
        if constexpr (E == 1) pixel = _mm_unpacklo_epi8(pixel, pixel);
        if constexpr (E <= 2) pixel = _mm_shufflelo_epi16(pixel, 0);
        if constexpr (E <= 4) pixel = _mm_shuffle_epi32(pixel, 0);
        if constexpr (E == 8) pixel = _mm_unpacklo_epi64(pixel, pixel);
        return {{fromInts<uint8_t>(pixel)}};
    }
}

#endif

template <int E>
PXL_INLINE Pattern<E> patternOf(const void* pixel) {
    return repeatPixel<E>(loadPixel<E>(pixel));
}

// All ones in bytes From .. To - 1 of every pixel and zeros elsewhere.
template <int E, int From, int To>
struct BytesOfPixel {
    alignas(vecBytes) uint8_t bytes[Pattern<E>::count * vecBytes];
    constexpr BytesOfPixel() : bytes{} {
        for (int k = 0; k < Pattern<E>::count * vecBytes; ++k) bytes[k] = k % E >= From && k % E < To ? 0xFF : 0;
    }
};
template <int E, int From, int To>
inline constexpr BytesOfPixel<E, From, To> bytesOfPixel;

template <int E, int From, int To>
PXL_INLINE Pattern<E> maskPattern() {
    Pattern<E> p;
    unrolled<Pattern<E>::count>([&](auto j) { p.v[j] = LoadU(bytesOfPixel<E, From, To>.bytes + j * vecBytes); });
    return p;
}

// ---- filling -------------------------------------------------------------------------------------------------------------------

// Less than a register: two words that may overlap, one at each end.
template <class Word, int E, class... Keep>
PXL_INLINE void putEnds(uint8_t* d, ptrdiff_t bytes, const Pattern<E>& value, const Keep&... keep) {
    constexpr int last = Pattern<E>::count - 1;
    put(d, headOf<Word>(ints(value.v[0])), headOf<Word>(ints(keep.v[0]))...);
    put(d + bytes - sizeof(Word), tailOf<Word>(ints(value.v[last])), tailOf<Word>(ints(keep.v[last]))...);
}

template <int E, class... Keep>
PXL_INLINE void fillShort(uint8_t* d, ptrdiff_t bytes, const Pattern<E>& value, const Keep&... keep) {
    if (bytes >= 16) return putEnds<Word16>(d, bytes, value, keep...);
    if (bytes >= 8) return putEnds<uint64_t>(d, bytes, value, keep...);
    if (bytes >= 4) return putEnds<uint32_t>(d, bytes, value, keep...);
    if (bytes >= 2) return putEnds<uint16_t>(d, bytes, value, keep...);
    if (bytes == 1) put(d, headOf<uint8_t>(ints(value.v[0])), headOf<uint8_t>(ints(keep.v[0]))...);
}

// Fills whole pixels, bytes in all, with a pattern. With `keep`, another pattern, the bytes that it has set keep their value,
// and the first one must be zero there. The last register of a row is stored over what the ones before it wrote.
template <int E, class... Keep>
PXL_INLINE void fillPixels(uint8_t* d, ptrdiff_t bytes, const Pattern<E>& value, const Keep&... keep) {
    if (bytes < vecBytes) return fillShort(d, bytes, value, keep...);
    constexpr int count = Pattern<E>::count;
    constexpr int run = count == 1 ? 4 : 3; // vectors
    ptrdiff_t o = 0;
    for (; o + run * vecBytes <= bytes; o += run * vecBytes)
        unrolled<run>([&](auto j) __attribute__((always_inline)) {
            put(d + o + j * vecBytes, value.v[j % count], keep.v[j % count]...);
        });
    unrolled<run - 1>([&](auto j) __attribute__((always_inline)) {
        if (o + (j + 1) * vecBytes <= bytes) put(d + o + j * vecBytes, value.v[j % count], keep.v[j % count]...);
    });
    put(d + bytes - vecBytes, value.v[count - 1], keep.v[count - 1]...);
}

} // namespace pxl::PXL_TARGET
