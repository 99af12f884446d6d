// Groups: the pixels of a block with four elements each, so 4, 2 or 1 of them. With three elements they are 12 bytes,
// which lie in a block of their own and leave its last 4 bytes free. All changes of the channels of a pixel are shuffles
// inside such blocks.
#pragma once

#include "frame/vec/channels.h"
#include "frame/vec/mask.h"

namespace pxl::PXL_TARGET::exchange {

template <class T>
inline constexpr int groupPixels = 4 / static_cast<int>(sizeof(T));

// ---- memory -------------------------------------------------------------------------------------------------------

// The groups of four vectors from three vectors of dense pixels. The free bytes of a block are unspecified. The last
// group is loaded with what stands before it.
template <class T>
PXL_INLINE void LoadGroups3(const T* p, Vec<T> (&v)[4]) {
    const char* s = reinterpret_cast<const char*>(p);
    unrolled<4>([&](auto i) __attribute__((always_inline)) {
        v[i] = FromBlocks<T>([&](auto k) __attribute__((always_inline)) {
            constexpr int group = i * vecBlocks + k;
            if constexpr (group < 4 * vecBlocks - 1) return LoadBlock<16>(s + 12 * group);
            return ShiftRightBytes<4>(LoadBlock<16>(s + 12 * group - 4));
        });
    });
}

// The dense words of vector Index of four, three of every block, at the place that they have in the stream of all words.
template <int Index>
PXL_INLINE Vec<uint32_t> denseWords(Vec<uint32_t> v) {
    constexpr int count = lanes<uint32_t>, dense = count / 4 * 3;
    return Shuffle2<[](int lane) {
        const int word = (lane + (count - dense) * Index) % count;
        return word < dense ? word + word / 3 : count - 1;
    }>(v, v);
}
// Word by word from a, which holds the words of vector Index and up, then from b, which goes on.
template <int Index>
PXL_INLINE Vec<uint32_t> joinWords(Vec<uint32_t> a, Vec<uint32_t> b) {
    constexpr int count = lanes<uint32_t>, dense = count / 4 * 3;
    return Shuffle2<[](int lane) { return count * Index + lane < dense * (Index + 1) ? lane : lane + count; }>(a, b);
}

// The reverse. The free bytes of every block must be 0.
template <class Stores, class T>
PXL_INLINE void StoreGroups3(const Vec<T> (&v)[4], T* p) {
    Vec<uint32_t> w[3] = {BitCast<uint32_t>(v[0]), BitCast<uint32_t>(v[1]), BitCast<uint32_t>(v[2])};
    if constexpr (hasByteShuffle) {
        w[1] = denseWords<1>(w[1]);
        w[2] = denseWords<2>(w[2]);
        w[0] = joinWords<0>(denseWords<0>(w[0]), w[1]);
        w[1] = joinWords<1>(w[1], w[2]);
        w[2] = joinWords<2>(w[2], denseWords<3>(BitCast<uint32_t>(v[3])));
    } else {
        Block b0 = ExtractBlock<0>(w[0]), b1 = ExtractBlock<0>(w[1]), b2 = ExtractBlock<0>(w[2]);
        joinBlocks(b0, b1, b2, ExtractBlock<0>(v[3]));
        w[0] = FromBlock<uint32_t>(b0);
        w[1] = FromBlock<uint32_t>(b1);
        w[2] = FromBlock<uint32_t>(b2);
    }
    Stores::store(BitCast<T>(w[0]), p);
    Stores::store(BitCast<T>(w[1]), p + lanes<T>);
    Stores::store(BitCast<T>(w[2]), p + 2 * lanes<T>);
}

// ---- changes of the number of elements ----------------------------------------------------------------------------

// Three-element pixels to four elements, the fourth unspecified; and four-element pixels to three, the free bytes 0.
template <class T>
PXL_INLINE Vec<T> ExpandGroups(Vec<T> v) {
    if constexpr (hasByteShuffle) {
        constexpr auto from = [](int i) {
            return i % 16 / int(4 * sizeof(T)) * int(3 * sizeof(T)) + i % int(4 * sizeof(T));
        };
        return TableLookupBytesOr0(v, fromLanes<uint8_t, from>());
    } else if constexpr (sizeof(T) == 4) {
        return v;
    } else {
        const Block pixels = ExtractBlock<0>(v);
        Block pairs = InterleaveLower<8>(pixels, ShiftRightBytes<6>(pixels)); // half of the pixels in each half
        if constexpr (sizeof(T) == 1) {
            const Block first = BlockOf(0xFFFFFFFF, 0xFFFFFFFF);
            pairs = (first & pairs) | (~first & ShiftLeftHalves<8>(pairs));
        }
        return FromBlock<T>(pairs);
    }
}
template <class T>
PXL_INLINE Vec<T> CompressGroups(Vec<T> v) {
    if constexpr (hasByteShuffle) {
        constexpr auto from = [](int i) {
            const int j = i % 16;
            return j < 12 ? j / int(3 * sizeof(T)) * int(4 * sizeof(T)) + j % int(3 * sizeof(T)) : 0x80;
        };
        return TableLookupBytesOr0(v, fromLanes<uint8_t, from>());
    } else {
        return FromBlock<T>(compressBlock<T>(ExtractBlock<0>(AndNot(BitCast<T>(AlphaMask<T>()), v))));
    }
}

// The shuffle of bytes that turns groups of S-element pixels into groups of D-element ones in which element k of a pixel
// receives element from[k]. With S = 3 an entry 3 stands for a value; entries above 3, and a fourth that is not given,
// keep what the destination held. The shuffled source is 0 in both.
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
        const Block given = LoadBlock<4 * Entries>(from) | BlockOf(0, Entries == 3 ? uint64_t{4} << 32 : 0);
        const Vec<int32_t> entries = Min(BroadcastBlock<int32_t>(given), Set<int32_t>(4));
        const Vec<uint8_t> order = TableLookupBytesOr0(BitCast<uint8_t>(entries), fromLanes<uint8_t, entry>());
        // Entries of at most 4 times 1, 2 or 4.
        const Vec<uint8_t> source = BitCast<uint8_t>(ShiftLeft<size / 2>(BitCast<uint16_t>(order)));
        control = (source + fromLanes<uint8_t, place>()) | (order > Set<uint8_t>(S - 1));
        value = IfThenElseZero(BitCast<T>(order == Set<uint8_t>(3)), Set<T>(fill));
        keep = BitCast<T>(order > Set<uint8_t>(3));
    }

    PXL_INLINE Vec<T> operator()(Vec<T> source) const {
        const Vec<T> shuffled = TableLookupBytesOr0(source, control);
        if constexpr (S < D)
            return shuffled | value;
        else
            return shuffled;
    }
};

} // namespace pxl::PXL_TARGET::exchange
