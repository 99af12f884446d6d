// Interleaved pixels of three and four elements from memory to one vector per channel, and back.
//
// Every function moves Pixels pixels, by default as many as a vector has lanes, else a half, a quarter or an eighth of
// that, down to 4 bytes per channel. Exactly the memory of those pixels is read or written; lanes behind them are
// unspecified.
//
// The blocks of that memory are spread over one vector per element of the pixel, N in all: block k goes to vector k % N,
// as block k / N of it. So each block of the vectors holds a run of consecutive pixels, and no shuffle has to cross
// blocks.
#pragma once

#include "frame/vec/memory.h"
#include "frame/vec/shuffle.h"

namespace pxl::PXL_TARGET {

// ---- memory -------------------------------------------------------------------------------------------------------

// Vector Index of the N that hold Bytes bytes from p on, arranged as said above.
template <int N, int Index, int Bytes, class T>
PXL_INLINE Vec<T> loadBlocks(const T* p) {
    const char* s = reinterpret_cast<const char*>(p) + blockBytes * Index;
    const auto block = [s](auto k) __attribute__((always_inline)) {
        constexpr int at = blockBytes * N * k;
        return LoadBlock<Bytes - blockBytes * Index - at>(s + at);
    };
    if constexpr (Bytes <= blockBytes * N) return FromBlock<T>(block(std::integral_constant<int, 0>{}));
    return FromBlocks<T>(block);
}
template <int Pixels, int N, class T>
PXL_INLINE void loadPixels(const T* p, Vec<T> (&v)[N]) {
    constexpr int bytes = N * Pixels * static_cast<int>(sizeof(T));
    unrolled<N>([&](auto i) __attribute__((always_inline)) { v[i] = loadBlocks<N, i, bytes>(p); });
}

// The first Bytes bytes of a block, or all of it.
template <class Stores, int Bytes>
PXL_INLINE void storeBlockOf(Block block, char* d) {
    if constexpr (Bytes >= blockBytes)
        Stores::store(block, d);
    else if constexpr (Bytes > 0)
        StoreBlock<Bytes>(block, d);
}
// In ascending order of addresses, which streamed stores need to be fast.
template <int Pixels, class Stores = Cached, int N, class T>
PXL_INLINE void storePixels(const Vec<T> (&v)[N], T* p) {
    constexpr int bytes = N * Pixels * static_cast<int>(sizeof(T));
    char* d = reinterpret_cast<char*>(p);
    unrolled<N * vecBlocks>([&](auto k) __attribute__((always_inline)) {
        constexpr int at = k * blockBytes;
        storeBlockOf<Stores, bytes - at>(ExtractBlock<k / N>(v[k % N]), d + at);
    });
}

// ---- lanes --------------------------------------------------------------------------------------------------------

// Which channel lane i of vector Index of N holds.
template <class T, int N, int Index>
constexpr int channelOfLane(int i) {
    return (Index * blockLanes<T> + i % blockLanes<T>) % N;
}
// Takes the lanes of one channel from another vector: those of vector Index.
template <int Channel, int N, int Index, class T>
PXL_INLINE Vec<T> blendChannelOf(Vec<T> v, Vec<T> from) {
    return BlendLanes<[](int i) { return channelOfLane<T, N, Index>(i) == Channel; }>(v, from);
}
template <int Channel, int N, class T>
PXL_INLINE void blendChannel(Vec<T> (&v)[N], const Vec<T> (&from)[N]) {
    unrolled<N>([&](auto i) __attribute__((always_inline)) { v[i] = blendChannelOf<Channel, N, i>(v[i], from[i]); });
}

// ---- three elements: with shuffles of bytes -------------------------------------------------------------------------

// In any lane each of the three vectors holds another channel, because 3 does not divide the lanes of a block. So the
// vectors trade lanes until each holds one channel, and a shuffle in the blocks sorts its pixels.

// Lane k of a block to the lane where the channel stands in pixel k of a block, for all three vectors; and back.
template <int Channel, class T>
PXL_INLINE Vec<T> spreadLanes3(Vec<T> v) {
    return ShuffleBlocks<[](int i) {
        int k = 0;
        while ((3 * k + Channel) % blockLanes<T> != i) ++k;
        return k;
    }>(v);
}
template <int Channel, class T>
PXL_INLINE Vec<T> gatherLanes3(Vec<T> v) {
    return ShuffleBlocks<[](int k) { return (3 * k + Channel) % blockLanes<T>; }>(v);
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
    const Mask<T> mask = fromLanes<MaskLane<T>, [](int i) { return Lane(i) ? -1 : 0; }>();
    const Vec<T> difference = IfThenElseZero(mask, a ^ b);
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

template <class T>
PXL_INLINE void sortChannels(Vec<T> (&v)[3]) {
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
PXL_INLINE void sortPixels(Vec<T> (&v)[3]) {
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

// Blocks sorted by channel (a a a a b b b b c c c c d d d d for bytes) hold one 32-bit lane per channel.
template <class T>
PXL_INLINE Vec<uint32_t> sortedWords(Vec<T> v) {
    constexpr int pixels = blockLanes<T> / 4;
    return BitCast<uint32_t>(ShuffleBlocks<[](int i) { return i % pixels * 4 + i / pixels; }>(v));
}

// ---- without: vectors of one block ----------------------------------------------------------------------------------

static_assert(hasByteShuffle || vecBlocks == 1);

// A block of four-element pixels whose fourth is 0, with the fourth taken out: 12 bytes and four zeros.
template <class T>
PXL_INLINE Block compressBlock(Block v) {
    if constexpr (sizeof(T) == 1) { // two pixels in every 8 bytes, moved together first
        const Block first = v & BlockOf(0xFFFFFF, 0xFFFFFF);
        v = first | ShiftRightHalves<8>(v ^ first);
    }
    if constexpr (sizeof(T) == 4) return v;
    const Block lower = ZeroUpperHalf(v);
    return lower | ShiftRightBytes<2>(v ^ lower);
}

// Four blocks of 12 bytes and four zeros, joined to three whole ones.
PXL_INLINE void joinBlocks(Block& v0, Block& v1, Block& v2, Block v3) {
    v0 |= ShiftLeftBytes<12>(v1);
    v1 = ShiftRightBytes<4>(v1) | ShiftLeftBytes<8>(v2);
    v2 = ShiftRightBytes<8>(v2) | ShiftLeftBytes<4>(v3);
}

// One step of the perfect shuffle of all elements: element i of their first half, and element i of the second behind
// it.
template <class T>
PXL_INLINE void perfectShuffle(Vec<T> (&v)[3]) {
    const auto upper = [](Vec<T> a) { return InterleaveUpper<8>(a, a); };
    const Vec<T> first = InterleaveLower(v[0], upper(v[1]));
    const Vec<T> second = InterleaveLower(upper(v[0]), v[2]);
    v[2] = InterleaveLower(v[1], upper(v[2]));
    v[0] = first;
    v[1] = second;
}
template <class T>
PXL_INLINE void perfectShuffle(Vec<T> (&v)[4]) {
    const Vec<T> first = InterleaveLower(v[0], v[2]);
    const Vec<T> second = InterleaveUpper(v[0], v[2]);
    v[2] = InterleaveLower(v[1], v[3]);
    v[3] = InterleaveUpper(v[1], v[3]);
    v[0] = first;
    v[1] = second;
}
// As many steps as double 1 to the lanes of a vector bring element N * k to place k.
template <int N, class T>
PXL_INLINE void perfectShuffles(Vec<T> (&v)[N]) {
    perfectShuffle(v);
    perfectShuffle(v);
    if constexpr (sizeof(T) <= 2) perfectShuffle(v);
    if constexpr (sizeof(T) == 1) perfectShuffle(v);
}

// ---- all channels ---------------------------------------------------------------------------------------------------

// Channels to pixels: the second elements behind the first and the fourth behind the third, then these pairs.
template <class T>
PXL_INLINE void interleave(Vec<T> (&v)[4]) {
    using Pair = typename UnsignedOf<2 * sizeof(T)>::type;
    const Vec<Pair> ab = BitCast<Pair>(InterleaveLower(v[0], v[1]));
    const Vec<Pair> abUpper = BitCast<Pair>(InterleaveUpper(v[0], v[1]));
    const Vec<Pair> cd = BitCast<Pair>(InterleaveLower(v[2], v[3]));
    const Vec<Pair> cdUpper = BitCast<Pair>(InterleaveUpper(v[2], v[3]));
    v[0] = BitCast<T>(InterleaveLower(ab, cd));
    v[1] = BitCast<T>(InterleaveUpper(ab, cd));
    v[2] = BitCast<T>(InterleaveLower(abUpper, cdUpper));
    v[3] = BitCast<T>(InterleaveUpper(abUpper, cdUpper));
}
template <class T>
PXL_INLINE void interleave(Vec<T> (&v)[3]) {
    if constexpr (hasByteShuffle) {
        sortPixels(v);
    } else {
        Vec<T> four[4] = {v[0], v[1], v[2], Zero<T>()};
        interleave(four);
        const auto compressed = [&](int i) { return compressBlock<T>(ExtractBlock<0>(four[i])); };
        Block v0 = compressed(0), v1 = compressed(1), v2 = compressed(2);
        joinBlocks(v0, v1, v2, compressed(3));
        v[0] = FromBlock<T>(v0);
        v[1] = FromBlock<T>(v1);
        v[2] = FromBlock<T>(v2);
    }
}

// Pixels to channels.
template <class T>
PXL_INLINE void deinterleave(Vec<T> (&v)[3]) {
    if constexpr (hasByteShuffle)
        sortChannels(v);
    else
        perfectShuffles(v);
}
// Interleaving four blocks of words is the 4x4 transpose that brings the words of a channel together.
template <class T>
PXL_INLINE void deinterleave(Vec<T> (&v)[4]) {
    if constexpr (hasByteShuffle) {
        Vec<uint32_t> words[4] = {sortedWords(v[0]), sortedWords(v[1]), sortedWords(v[2]), sortedWords(v[3])};
        interleave(words);
        v[0] = BitCast<T>(words[0]);
        v[1] = BitCast<T>(words[1]);
        v[2] = BitCast<T>(words[2]);
        v[3] = BitCast<T>(words[3]);
    } else {
        perfectShuffles(v);
    }
}

// ---- whole pixels from and to memory ------------------------------------------------------------------------------

// Bytes of three channels by one permute of a vector for each. In three vectors of pixels as they lie in memory, no two hold
// the same channel in the same lane: the lanes of a channel are blended and then put in order. The other way round alike.
template <int Vector>
constexpr int channelInLane(int lane) {
    return (Vector * vecBytes + lane) % 3;
}
template <int Channel>
PXL_INLINE Vec<uint8_t> blendedLanes(Vec<uint8_t> a, Vec<uint8_t> b, Vec<uint8_t> c) {
    a = BlendLanes<[](int lane) { return channelInLane<1>(lane) == Channel; }>(a, b);
    return BlendLanes<[](int lane) { return channelInLane<2>(lane) == Channel; }>(a, c);
}
template <int Channel>
PXL_INLINE Vec<uint8_t> permutedChannel(Vec<uint8_t> a, Vec<uint8_t> b, Vec<uint8_t> c) {
    constexpr auto from = [](int pixel) { return (3 * pixel + Channel) % vecBytes; };
    return TableLookupLanes(blendedLanes<Channel>(a, b, c), fromLanes<uint8_t, from>());
}
// A channel in the lanes that it takes in the vectors of pixels, whichever of the three it is in.
template <int Channel>
PXL_INLINE Vec<uint8_t> spreadLanes(Vec<uint8_t> v) {
    constexpr auto from = [](int lane) {
        const int vector = channelInLane<0>(lane) == Channel ? 0 : channelInLane<1>(lane) == Channel ? 1 : 2;
        return (vector * vecBytes + lane) / 3;
    };
    return TableLookupLanes(v, fromLanes<uint8_t, from>());
}
template <int Index>
PXL_INLINE Vec<uint8_t> blendedPixels(Vec<uint8_t> v0, Vec<uint8_t> v1, Vec<uint8_t> v2) {
    v0 = BlendLanes<[](int lane) { return channelInLane<Index>(lane) == 1; }>(v0, v1);
    return BlendLanes<[](int lane) { return channelInLane<Index>(lane) == 2; }>(v0, v2);
}
template <int Pixels, int N, class T>
inline constexpr bool permutesPixels = hasBytePermute&& N == 3 && sizeof(T) == 1 && Pixels == lanes<T>;

// Pixels from memory to channels, and channels to pixels in memory.
template <int Pixels, int N, class T>
PXL_INLINE void LoadInterleaved(const T* p, Vec<T> (&v)[N]) {
    if constexpr (permutesPixels<Pixels, N, T>) {
        const Vec<T> a = LoadU(p), b = LoadU(p + vecBytes), c = LoadU(p + 2 * vecBytes);
        unrolled<N>([&](auto k) __attribute__((always_inline)) { v[k] = permutedChannel<k>(a, b, c); });
    } else {
        loadPixels<Pixels>(p, v);
        deinterleave(v);
    }
}
template <int Pixels, class Stores = Cached, int N, class T>
PXL_INLINE void StoreInterleaved(Vec<T> (&v)[N], T* p) {
    if constexpr (permutesPixels<Pixels, N, T>) {
        const Vec<uint8_t> a = spreadLanes<0>(v[0]), b = spreadLanes<1>(v[1]), c = spreadLanes<2>(v[2]);
        unrolled<N>([&](auto j)
                        __attribute__((always_inline)) { Stores::store(blendedPixels<j>(a, b, c), p + j * vecBytes); });
    } else {
        interleave(v);
        storePixels<Pixels, Stores>(v, p);
    }
}

// ---- one channel ----------------------------------------------------------------------------------------------------

// One channel of N vectors of pixels.
template <int Channel, int N, class T>
PXL_INLINE Vec<T> gatherChannel(Vec<T> (&v)[N]) {
    if constexpr (hasByteShuffle && N == 3) return gatherChannel3<Channel>(v);
    deinterleave(v);
    return v[Channel];
}

// N vectors of pixels with v in one channel; the others are unspecified.
template <int Channel, class T>
PXL_INLINE void spreadChannel(Vec<T> v, Vec<T> (&pixels)[3]) {
    if constexpr (hasByteShuffle) {
        pixels[0] = pixels[1] = pixels[2] = spreadLanes3<Channel>(v);
    } else {
        pixels[0] = pixels[1] = pixels[2] = v;
        interleave(pixels);
    }
}
template <int Channel, class T>
PXL_INLINE void spreadChannel(Vec<T> v, Vec<T> (&pixels)[4]) {
    pixels[0] = pixels[1] = pixels[2] = pixels[3] = v;
    interleave(pixels);
}

// The same value in all three channels.
template <class T>
PXL_INLINE void repeatChannel3(Vec<T> v, Vec<T> (&pixels)[3]) {
    if constexpr (hasByteShuffle) {
        constexpr int perBlock = blockLanes<T>;
        pixels[0] = ShuffleBlocks<[](int i) { return i / 3; }>(v);
        pixels[1] = ShuffleBlocks<[](int i) { return (perBlock + i) / 3; }>(v);
        pixels[2] = ShuffleBlocks<[](int i) { return (2 * perBlock + i) / 3; }>(v);
    } else {
        spreadChannel<0>(v, pixels);
    }
}

} // namespace pxl::PXL_TARGET
