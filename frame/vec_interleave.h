// Interleaved pixels of three and four elements from memory to one vector per channel, and back.
//
// Every function moves Pixels pixels, by default as many as a vector has lanes, else a half, a quarter or an eighth of
// that, down to 4 bytes per channel. Exactly the memory of those pixels is read or written; lanes behind them are
// unspecified.
//
// The 16-byte blocks of that memory are spread over one vector per element of the pixel, N in all: block k lies in the
// lower half of vector k, and on AVX2 block k + N in its upper half. So each half of the vectors holds a run of
// consecutive pixels, and no shuffle has to cross the halves.
#pragma once

#include <utility>

#include "frame/vec.h"
#include "frame/vec_stream.h"

namespace pxl::PXL_TARGET {

// ---- parts of a vector --------------------------------------------------------------------------------------------

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
    if constexpr (Bytes == 16) _mm_storeu_si128(reinterpret_cast<__m128i*>(d), v);
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

#ifdef __AVX2__
PXL_INLINE __m128i upperBlock(IntRegister r) { return _mm256_extracti128_si256(r, 1); }
#endif

// The first Lanes lanes of a vector: 4, 8, 16 or all of its bytes.
template <int Lanes, class T>
PXL_INLINE Vec<T> LoadPart(const T* p) {
    if constexpr (Lanes == lanes<T>) return LoadU(p);
    return fromInts<T>(fromBlock(loadBlock<Lanes* static_cast<int>(sizeof(T))>(p)));
}
template <int Lanes, class T>
PXL_INLINE void StorePart(Vec<T> v, T* p) {
    if constexpr (Lanes == lanes<T>)
        StoreU(v, p);
    else
        storeBlock<Lanes* static_cast<int>(sizeof(T))>(lowerBlock(ints(v)), p);
}

// Vector Index of the N that hold Bytes bytes from p on, arranged as said above.
template <int N, int Index, int Bytes>
PXL_INLINE IntRegister loadBlocks(const void* p) {
    const char* s = static_cast<const char*>(p) + 16 * Index;
    const __m128i lower = loadBlock<Bytes - 16 * Index>(s);
#ifdef __AVX2__
    if constexpr (Bytes > 16 * N) return _mm256_inserti128_si256(fromBlock(lower), loadBlock<16>(s + 16 * N), 1);
#endif
    return fromBlock(lower);
}
template <class Stores, int Bytes>
PXL_INLINE void storeFirst(__m128i block, char* d) {
    if constexpr (Bytes >= 16)
        Stores::store(block, d);
    else
        storeBlock<Bytes>(block, d);
}

template <int Pixels, int N, class T>
PXL_INLINE void loadPixels(const T* p, Vec<T> (&v)[N]) {
    constexpr int bytes = N * Pixels * static_cast<int>(sizeof(T));
    v[0] = fromInts<T>(loadBlocks<N, 0, bytes>(p));
    v[1] = fromInts<T>(loadBlocks<N, 1, bytes>(p));
    v[2] = fromInts<T>(loadBlocks<N, 2, bytes>(p));
    if constexpr (N == 4) v[3] = fromInts<T>(loadBlocks<N, 3, bytes>(p));
}
// In ascending order of addresses, which streamed stores need to be fast.
template <int Pixels, class Stores = Cached, int N, class T>
PXL_INLINE void storePixels(const Vec<T> (&v)[N], T* p) {
    constexpr int bytes = N * Pixels * static_cast<int>(sizeof(T));
    char* d = reinterpret_cast<char*>(p);
    storeFirst<Stores, bytes>(lowerBlock(ints(v[0])), d);
    storeFirst<Stores, bytes - 16>(lowerBlock(ints(v[1])), d + 16);
    storeFirst<Stores, bytes - 32>(lowerBlock(ints(v[2])), d + 32);
    if constexpr (N == 4) storeFirst<Stores, bytes - 48>(lowerBlock(ints(v[3])), d + 48);
#ifdef __AVX2__
    if constexpr (bytes > 16 * N) {
        Stores::store(upperBlock(ints(v[0])), d + 16 * N);
        Stores::store(upperBlock(ints(v[1])), d + 16 * N + 16);
        Stores::store(upperBlock(ints(v[2])), d + 16 * N + 32);
        if constexpr (N == 4) Stores::store(upperBlock(ints(v[3])), d + 16 * N + 48);
    }
#endif
}

// ---- lanes --------------------------------------------------------------------------------------------------------

template <class T>
inline constexpr int blockLanes = 16 / static_cast<int>(sizeof(T));

// A vector whose lane i is Lane(i).
template <class T, auto Lane>
PXL_INLINE Vec<T> fromLanes() {
    return []<int... I>(std::integer_sequence<int, I...>) {
        return Vec<T>{typename Vec<T>::Raw{static_cast<T>(Lane(I))...}};
    }
    (std::make_integer_sequence<int, lanes<T>>{});
}
// Ones in the lanes where Lane(i) holds.
template <class T, auto Lane>
PXL_INLINE Mask<T> maskLanes() {
    return fromLanes<MaskLane<T>, [](int i) { return Lane(i) ? -1 : 0; }>();
}
// Ones in elements 0..2 of pixels of four.
template <class T>
PXL_INLINE Mask<T> colourMask4() {
    return maskLanes<T, [](int i) { return i % 4 < 3; }>();
}

#ifdef __AVX2__

// Lane i of the result is lane From(i) of a followed by b.
template <auto From, class T>
PXL_INLINE Vec<T> shuffle2(Vec<T> a, Vec<T> b) {
    return [&]<int... I>(std::integer_sequence<int, I...>) {
        return Vec<T>{__builtin_shufflevector(a.raw, b.raw, From(I)...)};
    }
    (std::make_integer_sequence<int, lanes<T>>{});
}
// Lane i of the result is lane From(i of its block) of the same block.
template <auto From, class T>
PXL_INLINE Vec<T> shuffleBlocks(Vec<T> v) {
    constexpr int perBlock = blockLanes<T>;
    return shuffle2<[](int i) { return i / perBlock * perBlock + From(i % perBlock); }>(v, v);
}

#endif

// Which channel lane i of vector Index of N holds.
template <class T, int N, int Index>
constexpr int channelOfLane(int i) {
    return (Index * blockLanes<T> + i % blockLanes<T>) % N;
}
// Takes the lanes of one channel from another vector: those of vector Index.
template <int Channel, int N, int Index, class T>
PXL_INLINE Vec<T> blendChannelOf(Vec<T> v, Vec<T> from) {
#ifdef __AVX2__
    return shuffle2<[](int i) { return channelOfLane<T, N, Index>(i) == Channel ? i + lanes<T> : i; }>(v, from);
#else
    return IfThenElse(maskLanes<T, [](int i) { return channelOfLane<T, N, Index>(i) == Channel; }>(), from, v);
#endif
}
template <int Channel, int N, class T>
PXL_INLINE void blendChannel(Vec<T> (&v)[N], const Vec<T> (&from)[N]) {
    v[0] = blendChannelOf<Channel, N, 0>(v[0], from[0]);
    v[1] = blendChannelOf<Channel, N, 1>(v[1], from[1]);
    v[2] = blendChannelOf<Channel, N, 2>(v[2], from[2]);
    if constexpr (N == 4) v[3] = blendChannelOf<Channel, N, 3>(v[3], from[3]);
}

// ---- three elements -----------------------------------------------------------------------------------------------

#ifdef __AVX2__

// In any lane each of the three vectors holds another channel, because 3 does not divide the lanes of a block. So the
// vectors trade lanes until each holds one channel, and a shuffle in the blocks sorts its pixels.

// Lane k of a block to the lane where the channel stands in pixel k of a block, for all three vectors; and back.
template <int Channel, class T>
PXL_INLINE Vec<T> spreadLanes3(Vec<T> v) {
    return shuffleBlocks<[](int i) {
        int k = 0;
        while ((3 * k + Channel) % blockLanes<T> != i) ++k;
        return k;
    }>(v);
}
template <int Channel, class T>
PXL_INLINE Vec<T> gatherLanes3(Vec<T> v) {
    return shuffleBlocks<[](int k) { return (3 * k + Channel) % blockLanes<T>; }>(v);
}

// One channel of three vectors of pixels.
template <int Channel, class T>
PXL_INLINE Vec<T> gatherChannel3(const Vec<T> (&v)[3]) {
    return gatherLanes3<Channel>(blendChannelOf<Channel, 3, 2>(blendChannelOf<Channel, 3, 1>(v[0], v[1]), v[2]));
}
template <int Index, class T>
PXL_INLINE Vec<T> joinChannels3(const Vec<T> (&spread)[3]) {
    return blendChannelOf<2, 3, Index>(blendChannelOf<1, 3, Index>(spread[0], spread[1]), spread[2]);
}

// For bytes, a blend costs three operations; exchanges of lanes take 12 for all three vectors.
template <class T, auto Lane>
PXL_INLINE void exchangeLanes(Vec<T>& a, Vec<T>& b) {
    const Vec<T> difference = IfThenElseZero(maskLanes<T, Lane>(), a ^ b);
    a = a ^ difference;
    b = b ^ difference;
}
// Vector j, lane i of a block: from vector j - i (mod 3), and from vector j + i.
template <class T>
PXL_INLINE void rotateLanesDown(Vec<T> (&v)[3]) {
    exchangeLanes<T, [](int i) { return i % 16 % 3 == 2; }>(v[0], v[1]);
    exchangeLanes<T, [](int i) { return i % 16 % 3 != 0; }>(v[1], v[2]);
    exchangeLanes<T, [](int i) { return i % 16 % 3 == 1; }>(v[0], v[1]);
}
template <class T>
PXL_INLINE void rotateLanesUp(Vec<T> (&v)[3]) {
    exchangeLanes<T, [](int i) { return i % 16 % 3 == 1; }>(v[0], v[1]);
    exchangeLanes<T, [](int i) { return i % 16 % 3 != 0; }>(v[1], v[2]);
    exchangeLanes<T, [](int i) { return i % 16 % 3 == 2; }>(v[0], v[1]);
}

// Pixels to channels, and channels to pixels.
template <class T>
PXL_INLINE void deinterleave(Vec<T> (&v)[3]) {
    if constexpr (sizeof(T) == 1) {
        rotateLanesDown(v);
        v[0] = gatherLanes3<0>(v[0]);
        v[1] = gatherLanes3<1>(v[1]);
        v[2] = gatherLanes3<2>(v[2]);
    } else {
        const Vec<T> a = gatherChannel3<0>(v), b = gatherChannel3<1>(v);
        v[2] = gatherChannel3<2>(v);
        v[0] = a;
        v[1] = b;
    }
}
template <class T>
PXL_INLINE void interleave(Vec<T> (&v)[3]) {
    v[0] = spreadLanes3<0>(v[0]);
    v[1] = spreadLanes3<1>(v[1]);
    v[2] = spreadLanes3<2>(v[2]);
    if constexpr (sizeof(T) == 1) {
        rotateLanesUp(v);
    } else {
        const Vec<T> first = joinChannels3<0>(v), second = joinChannels3<1>(v);
        v[2] = joinChannels3<2>(v);
        v[0] = first;
        v[1] = second;
    }
}

#else // SSE2, which has no shuffle of bytes

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

// One step of the perfect shuffle of all elements: element i of their first half, and element i of the second behind
// it.
template <class T>
PXL_INLINE void perfectShuffle(Vec<T> (&v)[3]) {
    const auto upper = [](Vec<T> a) { return fromInts<T>(_mm_unpackhi_epi64(ints(a), ints(a))); };
    const Vec<T> first = InterleaveLowerBlocks(v[0], upper(v[1]));
    const Vec<T> second = InterleaveLowerBlocks(upper(v[0]), v[2]);
    v[2] = InterleaveLowerBlocks(v[1], upper(v[2]));
    v[0] = first;
    v[1] = second;
}
template <class T>
PXL_INLINE void perfectShuffle(Vec<T> (&v)[4]) {
    const Vec<T> first = InterleaveLowerBlocks(v[0], v[2]);
    const Vec<T> second = InterleaveUpperBlocks(v[0], v[2]);
    v[2] = InterleaveLowerBlocks(v[1], v[3]);
    v[3] = InterleaveUpperBlocks(v[1], v[3]);
    v[0] = first;
    v[1] = second;
}
// Pixels to channels: as many steps as double 1 to the lanes of a vector bring element N * k to place k.
template <int N, class T>
PXL_INLINE void deinterleave(Vec<T> (&v)[N]) {
    perfectShuffle(v);
    perfectShuffle(v);
    if constexpr (sizeof(T) <= 2) perfectShuffle(v);
    if constexpr (sizeof(T) == 1) perfectShuffle(v);
}

#endif

// ---- four elements ------------------------------------------------------------------------------------------------

// Channels to pixels: the second elements behind the first and the fourth behind the third, then these pairs.
template <class T>
PXL_INLINE void interleave(Vec<T> (&v)[4]) {
    using Pair = typename UnsignedOf<2 * sizeof(T)>::type;
    const Vec<Pair> ab = BitCast<Pair>(InterleaveLowerBlocks(v[0], v[1]));
    const Vec<Pair> abUpper = BitCast<Pair>(InterleaveUpperBlocks(v[0], v[1]));
    const Vec<Pair> cd = BitCast<Pair>(InterleaveLowerBlocks(v[2], v[3]));
    const Vec<Pair> cdUpper = BitCast<Pair>(InterleaveUpperBlocks(v[2], v[3]));
    v[0] = BitCast<T>(InterleaveLowerBlocks(ab, cd));
    v[1] = BitCast<T>(InterleaveUpperBlocks(ab, cd));
    v[2] = BitCast<T>(InterleaveLowerBlocks(abUpper, cdUpper));
    v[3] = BitCast<T>(InterleaveUpperBlocks(abUpper, cdUpper));
}

#ifdef __AVX2__

// Pixels to channels. Blocks sorted by channel (a a a a b b b b c c c c d d d d for bytes) hold one 32-bit lane per
// channel, and interleaving four such blocks is the 4x4 transpose that brings the lanes of a channel together.
template <class T>
PXL_INLINE void deinterleave(Vec<T> (&v)[4]) {
    constexpr int pixels = blockLanes<T> / 4;
    constexpr auto sorted = [](int i) { return i % pixels * 4 + i / pixels; };
    Vec<uint32_t> words[4] = {
        BitCast<uint32_t>(shuffleBlocks<sorted>(v[0])), BitCast<uint32_t>(shuffleBlocks<sorted>(v[1])),
        BitCast<uint32_t>(shuffleBlocks<sorted>(v[2])), BitCast<uint32_t>(shuffleBlocks<sorted>(v[3]))};
    interleave(words);
    v[0] = BitCast<T>(words[0]);
    v[1] = BitCast<T>(words[1]);
    v[2] = BitCast<T>(words[2]);
    v[3] = BitCast<T>(words[3]);
}

#else

template <class T>
PXL_INLINE void interleave(Vec<T> (&v)[3]) {
    Vec<T> four[4] = {v[0], v[1], v[2], Zero<T>()};
    interleave(four);
    __m128i v0 = compressBlock<T>(ints(four[0])), v1 = compressBlock<T>(ints(four[1]));
    __m128i v2 = compressBlock<T>(ints(four[2]));
    joinBlocks(v0, v1, v2, compressBlock<T>(ints(four[3])));
    v[0] = fromInts<T>(v0);
    v[1] = fromInts<T>(v1);
    v[2] = fromInts<T>(v2);
}

#endif

// ---- one channel --------------------------------------------------------------------------------------------------

// One channel of N vectors of pixels.
template <int Channel, int N, class T>
PXL_INLINE Vec<T> gatherChannel(Vec<T> (&v)[N]) {
#ifdef __AVX2__
    if constexpr (N == 3) return gatherChannel3<Channel>(v);
#endif
    deinterleave(v);
    return v[Channel];
}

// N vectors of pixels with v in one channel; the others are unspecified.
template <int Channel, class T>
PXL_INLINE void spreadChannel(Vec<T> v, Vec<T> (&pixels)[3]) {
#ifdef __AVX2__
    pixels[0] = pixels[1] = pixels[2] = spreadLanes3<Channel>(v);
#else
    pixels[0] = pixels[1] = pixels[2] = v;
    interleave(pixels);
#endif
}
template <int Channel, class T>
PXL_INLINE void spreadChannel(Vec<T> v, Vec<T> (&pixels)[4]) {
    pixels[0] = pixels[1] = pixels[2] = pixels[3] = v;
    interleave(pixels);
}

// The same value in all three channels.
template <class T>
PXL_INLINE void repeatChannel3(Vec<T> v, Vec<T> (&pixels)[3]) {
#ifdef __AVX2__
    constexpr int perBlock = blockLanes<T>;
    pixels[0] = shuffleBlocks<[](int i) { return i / 3; }>(v);
    pixels[1] = shuffleBlocks<[](int i) { return (perBlock + i) / 3; }>(v);
    pixels[2] = shuffleBlocks<[](int i) { return (2 * perBlock + i) / 3; }>(v);
#else
    spreadChannel<0>(v, pixels);
#endif
}

} // namespace pxl::PXL_TARGET
