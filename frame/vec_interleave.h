// Interleaved pixels of three and four elements from memory to one vector per channel, and back.
//
// Every function moves Pixels pixels, by default as many as a vector has lanes, else a half, a quarter or an eighth of that,
// down to 4 bytes per channel. Exactly the memory of those pixels is read or written; lanes behind them are unspecified.
//
// The 16-byte blocks of that memory are spread over one register per element of the pixel, N in all: block k lies in the
// lower half of register k, and on AVX2 block k + N in its upper half. So each half of the registers holds a run of
// consecutive pixels, and no shuffle has to cross the halves.
#pragma once

#include <utility>

#include "frame/vec.h"

namespace pxl::PXL_TARGET {

// ---- parts of a vector -------------------------------------------------------------------------------------------------------

// The first Bytes bytes of a block, zero behind them. Nothing else is read.
template <int Bytes>
PXL_INLINE __m128i loadBlock(const void* p) {
    const char* s = static_cast<const char*>(p);
    if constexpr (Bytes <= 0) return _mm_setzero_si128();
    if constexpr (Bytes == 4) return _mm_cvtsi32_si128(load1(reinterpret_cast<const int32_t*>(s)));
    if constexpr (Bytes == 8) return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(s));
    if constexpr (Bytes > 8 && Bytes < 16) // two parts that share bytes
        return loadBlock<8>(s) | _mm_slli_si128(loadBlock<8>(s + Bytes - 8), Bytes - 8);
    if constexpr (Bytes >= 16) return _mm_loadu_si128(reinterpret_cast<const __m128i*>(s));
}

// Stores the first Bytes bytes of a block, and nothing else.
template <int Bytes>
PXL_INLINE void storeBlock(__m128i v, void* p) {
    char* d = static_cast<char*>(p);
    if constexpr (Bytes == 4) store1(reinterpret_cast<int32_t*>(d), _mm_cvtsi128_si32(v));
    if constexpr (Bytes == 8 || Bytes == 12) _mm_storel_epi64(reinterpret_cast<__m128i*>(d), v);
    if constexpr (Bytes == 12) storeBlock<4>(_mm_unpackhi_epi64(v, v), d + 8);
    if constexpr (Bytes >= 16) _mm_storeu_si128(reinterpret_cast<__m128i*>(d), v);
}

PXL_INLINE IntRegister fromBlock(__m128i block) {
#ifdef __AVX2__
    return _mm256_zextsi128_si256(block);
#else
    return block;
#endif
}

PXL_INLINE __m128i lowerBlock(IntRegister r) {
#ifdef __AVX2__
    return _mm256_castsi256_si128(r);
#else
    return r;
#endif
}

// The first Lanes lanes of a vector: 4, 8, 16 or all of its bytes.
template <int Lanes, class T>
PXL_INLINE Vec<T> LoadPart(const T* p) {
    if constexpr (Lanes == lanes<T>) return LoadU(p);
    return fromInts<T>(fromBlock(loadBlock<Lanes * static_cast<int>(sizeof(T))>(p)));
}
template <int Lanes, class T>
PXL_INLINE void StorePart(Vec<T> v, T* p) {
    if constexpr (Lanes == lanes<T>)
        StoreU(v, p);
    else
        storeBlock<Lanes * static_cast<int>(sizeof(T))>(lowerBlock(ints(v)), p);
}

// Register Index of the N that hold Bytes bytes from p on, arranged as said above.
template <int N, int Index, int Bytes>
PXL_INLINE IntRegister loadBlocks(const void* p) {
    const char* s = static_cast<const char*>(p);
    const __m128i lower = loadBlock<Bytes - 16 * Index>(s + 16 * Index);
#ifdef __AVX2__
    if constexpr (Bytes > 16 * N) return _mm256_inserti128_si256(fromBlock(lower), loadBlock<16>(s + 16 * (Index + N)), 1);
#endif
    return fromBlock(lower);
}
template <int N, int Index, int Bytes>
PXL_INLINE void storeBlocks(IntRegister r, void* p) {
    char* d = static_cast<char*>(p);
    storeBlock<Bytes - 16 * Index>(lowerBlock(r), d + 16 * Index);
#ifdef __AVX2__
    if constexpr (Bytes > 16 * N) storeBlock<16>(_mm256_extracti128_si256(r, 1), d + 16 * (Index + N));
#endif
}

template <class T, int N, int Index, int Pixels>
PXL_INLINE Vec<T> loadPixels(const T* p) {
    return fromInts<T>(loadBlocks<N, Index, N * Pixels * static_cast<int>(sizeof(T))>(p));
}
template <int N, int Index, int Pixels, class T>
PXL_INLINE void storePixels(Vec<T> v, T* p) {
    storeBlocks<N, Index, N * Pixels * static_cast<int>(sizeof(T))>(ints(v), p);
}

// ---- shuffles ------------------------------------------------------------------------------------------------------------------

template <class T>
inline constexpr int blockLanes = 16 / static_cast<int>(sizeof(T));

// A vector whose lane i is Lane(i).
template <class T, auto Lane>
PXL_INLINE Vec<T> fromLanes() {
    return []<int... I>(std::integer_sequence<int, I...>) {
        return Vec<T>{typename Vec<T>::Raw{static_cast<T>(Lane(I))...}};
    }(std::make_integer_sequence<int, lanes<T>>{});
}
// Ones in the lanes of a channel of four-element pixels, and in those of elements 0..2.
template <class T, int Channel>
PXL_INLINE Mask<T> channelMask4() {
    return fromLanes<MaskLane<T>, [](int i) { return i % 4 == Channel ? -1 : 0; }>();
}
template <class T>
PXL_INLINE Mask<T> colourMask4() {
    return fromLanes<MaskLane<T>, [](int i) { return i % 4 == 3 ? 0 : -1; }>();
}

#ifdef __AVX2__

// Lane i of the result is lane From(i) of a followed by b.
template <auto From, class T>
PXL_INLINE Vec<T> shuffle2(Vec<T> a, Vec<T> b) {
    return [&]<int... I>(std::integer_sequence<int, I...>) {
        return Vec<T>{__builtin_shufflevector(a.raw, b.raw, From(I)...)};
    }(std::make_integer_sequence<int, lanes<T>>{});
}
// Lane i of the result is lane From(i of its block) of the same block.
template <auto From, class T>
PXL_INLINE Vec<T> shuffleBlocks(Vec<T> v) {
    constexpr int perBlock = blockLanes<T>;
    return shuffle2<[](int i) { return i / perBlock * perBlock + From(i % perBlock); }>(v, v);
}

// Pixels of three elements: whether lane i of register Index belongs to Channel. In a given lane each of the three registers
// holds another channel, because 3 does not divide the lanes of a block.
template <int Index, int Channel, class T>
constexpr bool isChannel3(int i) {
    return (Index * blockLanes<T> + i % blockLanes<T>) % 3 == Channel;
}
// Lanes of b where register Index holds Channel, lanes of a elsewhere.
template <int Index, int Channel, class T>
PXL_INLINE Vec<T> blendChannel3(Vec<T> a, Vec<T> b) {
    return shuffle2<[](int i) { return isChannel3<Index, Channel, T>(i) ? i + lanes<T> : i; }>(a, b);
}
// From lane k of a block to the lane where the channel stands in pixel k of a block, for all three registers, and back.
template <int Channel, class T>
PXL_INLINE Vec<T> spread3(Vec<T> v) {
    return shuffleBlocks<[](int i) {
        int k = 0;
        while ((3 * k + Channel) % blockLanes<T> != i) ++k;
        return k;
    }>(v);
}
template <int Channel, class T>
PXL_INLINE Vec<T> gather3(Vec<T> v0, Vec<T> v1, Vec<T> v2) {
    const Vec<T> all = blendChannel3<2, Channel>(blendChannel3<1, Channel>(v0, v1), v2);
    return shuffleBlocks<[](int k) { return (3 * k + Channel) % blockLanes<T>; }>(all);
}

// Sorts a block of four-element pixels by channel: a a a a b b b b c c c c d d d d for bytes.
template <class T>
PXL_INLINE Vec<uint32_t> sortBlocks4(Vec<T> v) {
    constexpr int pixels = blockLanes<T> / 4;
    return BitCast<uint32_t>(shuffleBlocks<[](int i) { return i % pixels * 4 + i / pixels; }>(v));
}

#else

// A block of four-element pixels whose fourth is 0, with the fourth taken out: 12 bytes and four zeros.
template <class T>
PXL_INLINE __m128i compressBlock(__m128i v) {
    if constexpr (sizeof(T) == 1) { // two pixels in every 8 bytes, moved together first
        const __m128i first = _mm_and_si128(v, _mm_set1_epi64x(0xFFFFFF));
        v = _mm_or_si128(first, _mm_srli_epi64(_mm_xor_si128(v, first), 8));
    }
    if constexpr (sizeof(T) == 4) return v;
    const __m128i lower = _mm_move_epi64(v);
    return _mm_or_si128(lower, _mm_srli_si128(_mm_xor_si128(v, lower), 2));
}

// Four blocks of 12 bytes and four zeros, joined to three whole ones.
PXL_INLINE void joinBlocks(__m128i& v0, __m128i& v1, __m128i& v2, __m128i v3) {
    v0 |= _mm_slli_si128(v1, 12);
    v1 = _mm_srli_si128(v1, 4) | _mm_slli_si128(v2, 8);
    v2 = _mm_srli_si128(v2, 8) | _mm_slli_si128(v3, 4);
}

// One step of the perfect shuffle of three (four) registers: element i of the first half of all their elements, and element i
// of the second half behind it. log2(lanes) steps deinterleave: they bring element 3k (4k) to place k.
template <class T>
PXL_INLINE void perfectShuffle(Vec<T>& v0, Vec<T>& v1, Vec<T>& v2) {
    const auto upper = [](Vec<T> v) { return fromInts<T>(_mm_unpackhi_epi64(ints(v), ints(v))); };
    const Vec<T> first = InterleaveLowerBlocks(v0, upper(v1));
    const Vec<T> second = InterleaveLowerBlocks(upper(v0), v2);
    v2 = InterleaveLowerBlocks(v1, upper(v2));
    v0 = first;
    v1 = second;
}
template <class T>
PXL_INLINE void perfectShuffle(Vec<T>& v0, Vec<T>& v1, Vec<T>& v2, Vec<T>& v3) {
    const Vec<T> first = InterleaveLowerBlocks(v0, v2);
    const Vec<T> second = InterleaveUpperBlocks(v0, v2);
    v2 = InterleaveLowerBlocks(v1, v3);
    v3 = InterleaveUpperBlocks(v1, v3);
    v0 = first;
    v1 = second;
}
template <class T, class... Rest>
PXL_INLINE void deinterleave(Vec<T>& first, Rest&... rest) {
    perfectShuffle(first, rest...);
    perfectShuffle(first, rest...);
    if constexpr (sizeof(T) <= 2) perfectShuffle(first, rest...);
    if constexpr (sizeof(T) == 1) perfectShuffle(first, rest...);
}

#endif

// Four channels to pixels: pixel k of a block in order over the four registers.
template <class T>
PXL_INLINE void interleave4(Vec<T>& a, Vec<T>& b, Vec<T>& c, Vec<T>& d) {
    using Pair = typename UnsignedOf<2 * sizeof(T)>::type;
    const Vec<Pair> ab = BitCast<Pair>(InterleaveLowerBlocks(a, b));
    const Vec<Pair> abUpper = BitCast<Pair>(InterleaveUpperBlocks(a, b));
    const Vec<Pair> cd = BitCast<Pair>(InterleaveLowerBlocks(c, d));
    const Vec<Pair> cdUpper = BitCast<Pair>(InterleaveUpperBlocks(c, d));
    a = BitCast<T>(InterleaveLowerBlocks(ab, cd));
    b = BitCast<T>(InterleaveUpperBlocks(ab, cd));
    c = BitCast<T>(InterleaveLowerBlocks(abUpper, cdUpper));
    d = BitCast<T>(InterleaveUpperBlocks(abUpper, cdUpper));
}

// ---- three elements ------------------------------------------------------------------------------------------------------------

template <class T, int Pixels = lanes<T>>
PXL_INLINE void LoadInterleaved3(const T* p, Vec<T>& a, Vec<T>& b, Vec<T>& c) {
    Vec<T> v0 = loadPixels<T, 3, 0, Pixels>(p);
    Vec<T> v1 = loadPixels<T, 3, 1, Pixels>(p);
    Vec<T> v2 = loadPixels<T, 3, 2, Pixels>(p);
#ifdef __AVX2__
    a = gather3<0>(v0, v1, v2);
    b = gather3<1>(v0, v1, v2);
    c = gather3<2>(v0, v1, v2);
#else
    deinterleave(v0, v1, v2);
    a = v0;
    b = v1;
    c = v2;
#endif
}

template <class T, int Pixels = lanes<T>>
PXL_INLINE void StoreInterleaved3(Vec<T> a, Vec<T> b, Vec<T> c, T* p) {
#ifdef __AVX2__
    const Vec<T> sa = spread3<0>(a), sb = spread3<1>(b), sc = spread3<2>(c);
    storePixels<3, 0, Pixels>(blendChannel3<0, 2>(blendChannel3<0, 1>(sa, sb), sc), p);
    storePixels<3, 1, Pixels>(blendChannel3<1, 2>(blendChannel3<1, 1>(sa, sb), sc), p);
    storePixels<3, 2, Pixels>(blendChannel3<2, 2>(blendChannel3<2, 1>(sa, sb), sc), p);
#else
    Vec<T> d = Zero<T>();
    interleave4(a, b, c, d);
    __m128i v0 = compressBlock<T>(ints(a)), v1 = compressBlock<T>(ints(b)), v2 = compressBlock<T>(ints(c));
    joinBlocks(v0, v1, v2, compressBlock<T>(ints(d)));
    storePixels<3, 0, Pixels>(fromInts<T>(v0), p);
    storePixels<3, 1, Pixels>(fromInts<T>(v1), p);
    storePixels<3, 2, Pixels>(fromInts<T>(v2), p);
#endif
}

// Every lane to all three elements of a pixel.
template <class T, int Pixels = lanes<T>>
PXL_INLINE void StoreRepeated3(Vec<T> v, T* p) {
#ifdef __AVX2__
    constexpr int perBlock = blockLanes<T>;
    storePixels<3, 0, Pixels>(shuffleBlocks<[](int i) { return i / 3; }>(v), p);
    storePixels<3, 1, Pixels>(shuffleBlocks<[](int i) { return (perBlock + i) / 3; }>(v), p);
    storePixels<3, 2, Pixels>(shuffleBlocks<[](int i) { return (2 * perBlock + i) / 3; }>(v), p);
#else
    StoreInterleaved3<T, Pixels>(v, v, v, p);
#endif
}

// Replaces one channel of the pixels at p; the others are stored as they were.
template <int Channel, class T, int Pixels = lanes<T>>
PXL_INLINE void ReplaceChannel3(Vec<T> v, T* p) {
#ifdef __AVX2__
    const Vec<T> spread = spread3<Channel>(v);
    const Vec<T> v0 = loadPixels<T, 3, 0, Pixels>(p), v1 = loadPixels<T, 3, 1, Pixels>(p), v2 = loadPixels<T, 3, 2, Pixels>(p);
    storePixels<3, 0, Pixels>(blendChannel3<0, Channel>(v0, spread), p);
    storePixels<3, 1, Pixels>(blendChannel3<1, Channel>(v1, spread), p);
    storePixels<3, 2, Pixels>(blendChannel3<2, Channel>(v2, spread), p);
#else
    Vec<T> channels[3];
    LoadInterleaved3<T, Pixels>(p, channels[0], channels[1], channels[2]);
    channels[Channel] = v;
    StoreInterleaved3<T, Pixels>(channels[0], channels[1], channels[2], p);
#endif
}

// ---- four elements -------------------------------------------------------------------------------------------------------------

template <class T, int Pixels = lanes<T>>
PXL_INLINE void LoadInterleaved4(const T* p, Vec<T>& a, Vec<T>& b, Vec<T>& c, Vec<T>& d) {
    Vec<T> v0 = loadPixels<T, 4, 0, Pixels>(p);
    Vec<T> v1 = loadPixels<T, 4, 1, Pixels>(p);
    Vec<T> v2 = loadPixels<T, 4, 2, Pixels>(p);
    Vec<T> v3 = loadPixels<T, 4, 3, Pixels>(p);
#ifdef __AVX2__
    // Sorted blocks hold one 32-bit lane per channel. Interleaving four of them is the 4x4 transpose that brings the lanes
    // of a channel together.
    Vec<uint32_t> a0 = sortBlocks4(v0), a1 = sortBlocks4(v1), a2 = sortBlocks4(v2), a3 = sortBlocks4(v3);
    interleave4(a0, a1, a2, a3);
    a = BitCast<T>(a0);
    b = BitCast<T>(a1);
    c = BitCast<T>(a2);
    d = BitCast<T>(a3);
#else
    deinterleave(v0, v1, v2, v3);
    a = v0;
    b = v1;
    c = v2;
    d = v3;
#endif
}

template <class T, int Pixels = lanes<T>>
PXL_INLINE void StoreInterleaved4(Vec<T> a, Vec<T> b, Vec<T> c, Vec<T> d, T* p) {
    interleave4(a, b, c, d);
    storePixels<4, 0, Pixels>(a, p);
    storePixels<4, 1, Pixels>(b, p);
    storePixels<4, 2, Pixels>(c, p);
    storePixels<4, 3, Pixels>(d, p);
}

// Replaces one channel of the pixels at p; the others are stored as they were.
template <int Channel, class T, int Pixels = lanes<T>>
PXL_INLINE void ReplaceChannel4(Vec<T> v, T* p) {
    Vec<T> spread[4] = {};
    spread[Channel] = v;
    interleave4(spread[0], spread[1], spread[2], spread[3]);
    const Mask<T> mask = channelMask4<T, Channel>();
    storePixels<4, 0, Pixels>(IfThenElse(mask, spread[0], loadPixels<T, 4, 0, Pixels>(p)), p);
    storePixels<4, 1, Pixels>(IfThenElse(mask, spread[1], loadPixels<T, 4, 1, Pixels>(p)), p);
    storePixels<4, 2, Pixels>(IfThenElse(mask, spread[2], loadPixels<T, 4, 2, Pixels>(p)), p);
    storePixels<4, 3, Pixels>(IfThenElse(mask, spread[3], loadPixels<T, 4, 3, Pixels>(p)), p);
}

} // namespace pxl::PXL_TARGET
