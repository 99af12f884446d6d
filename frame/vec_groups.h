// Groups: the pixels of a 16-byte block with four elements each, so 4, 2 or 1 of them. With three elements they are 12
// bytes, which lie in a block of their own and leave its last 4 bytes free. All changes of the channels of a pixel are
// shuffles inside such blocks.
#pragma once

#include "frame/vec_interleave.h"

namespace pxl::PXL_TARGET {

template <class T>
inline constexpr int groupPixels = 4 / static_cast<int>(sizeof(T));
inline constexpr int vecGroups = vecBytes / 16;

// ---- memory -------------------------------------------------------------------------------------------------------

// The groups of four vectors from three vectors of dense pixels. The free bytes of a block are unspecified.
template <class T>
PXL_INLINE void LoadGroups3(const T* p, Vec<T>& v0, Vec<T>& v1, Vec<T>& v2, Vec<T>& v3) {
    const char* s = reinterpret_cast<const char*>(p);
    const auto load = [&](int group) { return loadBlock<16>(s + 12 * group); };
    const auto last = [&](int group) { return _mm_srli_si128(loadBlock<16>(s + 12 * group - 4), 4); };
#ifdef __AVX2__
    v0 = fromInts<T>(_mm256_inserti128_si256(fromBlock(load(0)), load(1), 1));
    v1 = fromInts<T>(_mm256_inserti128_si256(fromBlock(load(2)), load(3), 1));
    v2 = fromInts<T>(_mm256_inserti128_si256(fromBlock(load(4)), load(5), 1));
    v3 = fromInts<T>(_mm256_inserti128_si256(fromBlock(load(6)), last(7), 1));
#else
    v0 = fromInts<T>(load(0));
    v1 = fromInts<T>(load(1));
    v2 = fromInts<T>(load(2));
    v3 = fromInts<T>(last(3));
#endif
}

#ifdef __AVX2__
// The dense 6 words of vector Index of four, at the place that they have in the stream of all words.
template <int Index>
PXL_INLINE Vec<uint32_t> denseWords(Vec<uint32_t> v) {
    return shuffle2<[](int lane) {
        const int word = (lane + 8 * Index - 6 * Index) % 8;
        return word < 6 ? word + word / 3 : 7;
    }>(v, v);
}
// Word by word from a, which holds words 6 * Index and up, then from b, which goes on.
template <int Index>
PXL_INLINE Vec<uint32_t> joinWords(Vec<uint32_t> a, Vec<uint32_t> b) {
    return shuffle2<[](int lane) { return 8 * Index + lane < 6 * (Index + 1) ? lane : lane + 8; }>(a, b);
}
#endif

// The reverse. The free bytes of every block must be 0.
template <class Stores, class T>
PXL_INLINE void StoreGroups3(Vec<T> v0, Vec<T> v1, Vec<T> v2, Vec<T> v3, T* p) {
    Vec<uint32_t> w0 = BitCast<uint32_t>(v0), w1 = BitCast<uint32_t>(v1), w2 = BitCast<uint32_t>(v2);
#ifdef __AVX2__
    w1 = denseWords<1>(w1);
    w2 = denseWords<2>(w2);
    w0 = joinWords<0>(denseWords<0>(w0), w1);
    w1 = joinWords<1>(w1, w2);
    w2 = joinWords<2>(w2, denseWords<3>(BitCast<uint32_t>(v3)));
#else
    __m128i b0 = ints(w0), b1 = ints(w1), b2 = ints(w2);
    joinBlocks(b0, b1, b2, ints(v3));
    w0 = fromInts<uint32_t>(b0);
    w1 = fromInts<uint32_t>(b1);
    w2 = fromInts<uint32_t>(b2);
#endif
    Stores::store(BitCast<T>(w0), p);
    Stores::store(BitCast<T>(w1), p + lanes<T>);
    Stores::store(BitCast<T>(w2), p + 2 * lanes<T>);
}

// ---- changes of the number of elements ----------------------------------------------------------------------------

#ifdef __AVX2__

// Byte i of a block of the result is byte control[i] of that block of v, or 0 where the control has its highest bit
// set.
template <class T>
PXL_INLINE Vec<T> TableLookupBytesOr0(Vec<T> v, Vec<uint8_t> control) {
    return fromInts<T>(_mm256_shuffle_epi8(ints(v), ints(control)));
}

// Three-element pixels to four elements, the fourth unspecified; and four-element pixels to three, the free bytes 0.
template <class T>
PXL_INLINE Vec<T> ExpandGroups(Vec<T> v) {
    constexpr auto from = [](int i) {
        return i % 16 / int(4 * sizeof(T)) * int(3 * sizeof(T)) + i % int(4 * sizeof(T));
    };
    return TableLookupBytesOr0(v, fromLanes<uint8_t, from>());
}
template <class T>
PXL_INLINE Vec<T> CompressGroups(Vec<T> v) {
    constexpr auto from = [](int i) {
        const int j = i % 16;
        return j < 12 ? j / int(3 * sizeof(T)) * int(4 * sizeof(T)) + j % int(3 * sizeof(T)) : 0x80;
    };
    return TableLookupBytesOr0(v, fromLanes<uint8_t, from>());
}

// The shuffle of groups of S-element pixels to groups of D-element ones in which element k of a pixel receives element
// from[k]. With S = 3 an entry 3 stands for a value; entries above 3, and a fourth that is not given, keep what the
// destination held. The shuffled source is 0 in both.
template <class T, int S, int D, int Entries>
struct OrderLookup {
    Vec<uint8_t> control;
    Vec<T> value;
    Vec<T> keep; // ones where the destination keeps its element

    PXL_INLINE OrderLookup(const int32_t* from, T fill) {
        constexpr int size = sizeof(T);
        // For every byte of a block: the place of its element's entry, and what it adds to the place of its source
        // byte.
        constexpr auto entry = [](int i) { return i % 16 < 4 * D ? i % 16 / size % D * 4 : 0x80; };
        constexpr auto place = [](int i) {
            return i % 16 < 4 * D ? i % 16 / (D * size) * (S * size) + i % size : 0x80;
        };
        const __m128i given = loadBlock<4 * Entries>(from) | _mm_setr_epi32(0, 0, 0, Entries == 3 ? 4 : 0);
        const __m256i entries = _mm256_broadcastsi128_si256(_mm_min_epi32(given, _mm_set1_epi32(4)));
        const Vec<uint8_t> order = TableLookupBytesOr0(fromInts<uint8_t>(entries), fromLanes<uint8_t, entry>());
        // Entries of at most 4 times 1, 2 or 4.
        const Vec<uint8_t> source = fromInts<uint8_t>(_mm256_slli_epi16(ints(order), size / 2));
        control = (source + fromLanes<uint8_t, place>()) | (order > Set<uint8_t>(S - 1));
        value = IfThenElseZero(BitCast<T>(order == Set<uint8_t>(3)), Set<T>(fill));
        keep = BitCast<T>(order > Set<uint8_t>(3));
    }

    PXL_INLINE Vec<T> operator()(Vec<T> source) const { return TableLookupBytesOr0(source, control); }
};

#else

template <class T>
PXL_INLINE Vec<T> ExpandGroups(Vec<T> v) {
    if constexpr (sizeof(T) == 4) return v;
    __m128i pairs = _mm_unpacklo_epi64(ints(v), _mm_srli_si128(ints(v), 6)); // half of the pixels in each half
    if constexpr (sizeof(T) == 1) {
        const __m128i first = _mm_set1_epi64x(0xFFFFFFFF);
        pairs = (first & pairs) | _mm_andnot_si128(first, _mm_slli_epi64(pairs, 8));
    }
    return fromInts<T>(pairs);
}
template <class T>
PXL_INLINE Vec<T> CompressGroups(Vec<T> v) {
    return fromInts<T>(compressBlock<T>(ints(IfThenElseZero(colourMask4<T>(), v))));
}

#endif

} // namespace pxl::PXL_TARGET
