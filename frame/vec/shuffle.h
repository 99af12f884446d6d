// Lanes in other places: by a function of the lane, and rows of pixels to columns.
#pragma once

#include "frame/vec/vec.h"

namespace pxl::PXL_TARGET {

// Lane i of the result is lane From(i) of a followed by b.
template <auto From, class T>
PXL_INLINE Vec<T> Shuffle2(Vec<T> a, Vec<T> b) {
    return [&]<int... I>(std::integer_sequence<int, I...>) {
        return Vec<T>{__builtin_shufflevector(a.raw, b.raw, From(I)...)};
    }
    (std::make_integer_sequence<int, lanes<T>>{});
}
// Lane i of the result is lane From(i of its block) of the same block.
template <auto From, class T>
PXL_INLINE Vec<T> ShuffleBlocks(Vec<T> v) {
    constexpr int perBlock = blockLanes<T>;
    return Shuffle2<[](int i) { return i / perBlock * perBlock + From(i % perBlock); }>(v, v);
}

// An ability: TableLookupLanes and TwoTablesLookupLanes of bytes, which cross blocks, the second between two vectors.
template <class V>
concept HasTwoTables = requires(V v) {
    TwoTablesLookupLanes(v, v, v);
};
inline constexpr bool hasBytePermute = HasTwoTables<Vec<uint8_t>>;

// Pixels of Bytes bytes, whatever the lanes are.
template <int Bytes, class T>
PXL_INLINE Vec<T> InterleaveLower(Vec<T> a, Vec<T> b) {
    using Pixel = typename UnsignedOf<Bytes>::type;
    return BitCast<T>(InterleaveLower(BitCast<Pixel>(a), BitCast<Pixel>(b)));
}
template <int Bytes, class T>
PXL_INLINE Vec<T> InterleaveUpper(Vec<T> a, Vec<T> b) {
    using Pixel = typename UnsignedOf<Bytes>::type;
    return BitCast<T>(InterleaveUpper(BitCast<Pixel>(a), BitCast<Pixel>(b)));
}

// The rows r[0], r[1], ..., vectors or blocks, become one run, pixel by pixel: r[0][0] r[1][0] r[2][0] ... r[0][1]
// r[1][1] ... (in every block).
template <int Bytes, int Rows, class Register>
PXL_INLINE void InterleaveRows(Register (&r)[Rows]) {
#pragma GCC unroll 4
    for (int stage = 1; stage < Rows; stage *= 2) {
        Register next[Rows];
#pragma GCC unroll 8
        for (int i = 0; i < Rows / 2; ++i) {
            next[2 * i] = InterleaveLower<Bytes>(r[i], r[i + Rows / 2]);
            next[2 * i + 1] = InterleaveUpper<Bytes>(r[i], r[i + Rows / 2]);
        }
#pragma GCC unroll 16
        for (int i = 0; i < Rows; ++i) r[i] = next[i];
    }
}

} // namespace pxl::PXL_TARGET
