// Squares of lanes whose columns are rows of an image: as many rows as a vector has lanes of 16 or 32 bits, and as many columns.
//
// Loops that depend on the pixel before run over the columns of such a square, so that every lane follows its own row.
#pragma once

#include "frame/vec/shuffle.h"

namespace pxl::PXL_TARGET::filter {

template <class Lane>
inline constexpr int squareSide = lanes<Lane>;

// v[i] lane j <-> v[j] lane i
template <class T>
PXL_INLINE void TransposeSquare(Vec<T> (&v)[lanes<T>]) {
    constexpr int side = blockLanes<T>;
    Vec<T> part[vecBlocks][side]; // the columns of `side` rows
    unrolled<vecBlocks>([&](auto k) __attribute__((always_inline)) {
#pragma GCC unroll 16
        for (int i = 0; i < side; ++i) part[k][i] = v[k * side + i];
        InterleaveRows<sizeof(T)>(part[k]);
    });
#pragma GCC unroll 16
    for (int i = 0; i < side; ++i) {
        Vec<T> column[vecBlocks];
        for (int k = 0; k < vecBlocks; ++k) column[k] = part[k][i];
        TransposeBlocks(column);
        for (int k = 0; k < vecBlocks; ++k) v[k * side + i] = column[k];
    }
}

// ---- a square of results from its columns to memory ----------------------------------------------------------------------------

// The lower halves of the lanes of both side by side.
PXL_INLINE Vec<uint32_t> JoinHalves(Vec<uint32_t> lower, Vec<uint32_t> upper) {
    const auto moved = BitCast<uint16_t>(ShiftLeft<16>(upper));
    return BitCast<uint32_t>(BlendLanes<[](int i) { return i % 2 == 1; }>(BitCast<uint16_t>(lower), moved));
}

// Elements of T of consecutive columns joined to fill their lanes.
template <class T, class Lane>
PXL_INLINE Vec<Lane> joinColumns(const Vec<Lane>* c) {
    if constexpr (sizeof(Lane) == sizeof(T)) return c[0];
    if constexpr (sizeof(Lane) == 2) return c[0] | ShiftLeft<8>(c[1]);
    if constexpr (sizeof(Lane) == 4 && sizeof(T) == 2) return JoinHalves(c[0], c[1]);
    if constexpr (sizeof(Lane) == 4 && sizeof(T) == 1)
        return (c[0] | ShiftLeft<8>(c[1])) | (ShiftLeft<16>(c[2]) | ShiftLeft<24>(c[3]));
}

// The rows that a block holds, RowBytes each.
template <int RowBytes>
PXL_INLINE void storeRows(Block v, char* d, ptrdiff_t step) {
    if constexpr (RowBytes == 16) {
        StoreBlock<16>(v, d);
    } else if constexpr (RowBytes == 8) {
        StoreHalves(v, d, d + step);
    } else {
        alignas(16) int32_t rows[4];
        StoreBlock<16>(v, rows);
        for (int i = 0; i < 4; ++i) store1(reinterpret_cast<int32_t*>(d + i * step), rows[i]);
    }
}

// Lanes are results of 8u, in 0..255, of 16-bit types, of which the lower half counts, or floats. The step is in bytes. The bits
// of `flipped` are inverted in every element of integers.
template <class T, class Lane>
PXL_INLINE void StoreSquare(Vec<Lane> (&column)[lanes<Lane>], T* dst, ptrdiff_t step,
                            [[maybe_unused]] Vec<Lane> flipped) {
    constexpr int side = lanes<Lane>, joined = lanes<T> / lanes<Lane>, units = side / joined;
    char* d = reinterpret_cast<char*>(dst);
    if constexpr (joined == 1) {
        TransposeSquare(column);
#pragma GCC unroll 16
        for (int i = 0; i < side; ++i) StoreU(column[i], reinterpret_cast<T*>(d + i * step));
    } else {
        constexpr int rowBytes = side * sizeof(T), rowsOfBlock = 16 / rowBytes;
        Vec<Lane> r[units];
#pragma GCC unroll 16
        for (int i = 0; i < units; ++i) r[i] = joinColumns<T>(column + i * joined) ^ flipped;
        InterleaveRows<sizeof(Lane)>(r);
#pragma GCC unroll 16
        for (int i = 0; i < units; ++i) {
            char* row = d + i * rowsOfBlock * step;
            unrolled<vecBlocks>([&](auto k) __attribute__((always_inline)) {
                storeRows<rowBytes>(ExtractBlock<k>(r[i]), row + k * (side / vecBlocks) * step, step);
            });
        }
    }
}

} // namespace pxl::PXL_TARGET::filter
