// Less than a vector, without touching anything beside it:
//     LoadFirst, StoreFirst   a count of lanes known at compile time, which is that of a power of two of bytes from 4 on
//     LoadN, StoreN           a count known at run time
//     LoadEnds, StoreEnds     the words at both ends of a row shorter than a vector, side by side
// and rows in blocks of which the last, shorter one works on copies. Blocks of 16 bytes by themselves: LoadBlock and StoreBlock
// of the target, and LoadBlockN.
#pragma once

#include "frame/vec/memory.h"

namespace pxl::PXL_TARGET {

// ---- a count known at compile time ----------------------------------------------------------------------------------

// Lanes behind Count are undefined.
template <int Count, class T>
PXL_INLINE Vec<T> LoadFirst(const T* p) {
    constexpr int bytes = Count * static_cast<int>(sizeof(T));
    if constexpr (bytes == vecBytes)
        return LoadU(p);
    else if constexpr (bytes <= blockBytes)
        return FromBlock<T>(LoadBlock<bytes>(p));
    else
        return FromBlocks<T>([p](auto k) {
            return LoadBlock<bytes - k * blockBytes>(reinterpret_cast<const char*>(p) + k * blockBytes);
        });
}
template <int Count, class T>
PXL_INLINE void StoreFirst(Vec<T> v, T* p) {
    constexpr int bytes = Count * static_cast<int>(sizeof(T));
    if constexpr (bytes == vecBytes)
        StoreU(v, p);
    else
        unrolled<(bytes + blockBytes - 1) / blockBytes>([&](auto k) __attribute__((always_inline)) {
            constexpr int left = bytes - k * blockBytes;
            StoreBlock<(left < blockBytes ? left : blockBytes)>(ExtractBlock<k>(v),
                                                                reinterpret_cast<char*>(p) + k * blockBytes);
        });
}

// ---- a count known at run time --------------------------------------------------------------------------------------

// n < Limit bytes in units of Unit, 16 at most, zeros behind them. Built in registers, since a load of what was just stored in
// pieces would have to wait for them.
template <int Unit = 1, int Limit = blockBytes + 1>
PXL_INLINE Block LoadBlockN(const void* from, ptrdiff_t n) {
    const uint8_t* p = static_cast<const uint8_t*>(from);
    if constexpr (Limit > 8)
        if (n >= 8) {
            const Block last = ShiftLowerHalfRight(LoadBlock<8>(p + n - 8), 128 - 8 * n); // without the first 8 bytes
            return InterleaveLower<8>(LoadBlock<8>(p), last);
        }
    uint64_t few = 0;
    if constexpr (Unit == 4) {
        if (n > 0) few = load1(reinterpret_cast<const uint32_t*>(p));
    } else if constexpr (Unit < 4) {
        if (n >= 4) {
            const uint64_t high = load1(reinterpret_cast<const uint32_t*>(p + n - 4));
            few = load1(reinterpret_cast<const uint32_t*>(p)) | high << (8 * n - 32);
        } else if (n >= 1) {
            few =
                p[0] | static_cast<uint64_t>(p[n / 2]) << (n / 2 * 8) | static_cast<uint64_t>(p[n - 1]) << (n * 8 - 8);
        }
    }
    return BlockOf(few, 0);
}

// n lanes, fewer than Count, zeros behind them up to Count.
template <int Count, class T>
PXL_INLINE Vec<T> LoadN(const T* p, ptrdiff_t n) {
    const char* from = reinterpret_cast<const char*>(p);
    constexpr int unit = sizeof(T);
    const ptrdiff_t bytes = n * unit;
    constexpr int limit = Count * unit < blockBytes ? Count * unit : blockBytes;
    if constexpr (Count * unit > blockBytes) {
        if (bytes >= blockBytes)
            return FromBlocks<T>([=](int k) __attribute__((always_inline)) {
                return k == 0 ? LoadBlock<blockBytes>(from)
                              : LoadBlockN<unit, limit>(from + blockBytes, bytes - blockBytes);
            });
        return ZeroExtend<T>(LoadBlockN<unit, limit>(from, bytes));
    }
    return FromBlock<T>(LoadBlockN<unit, limit>(from, bytes));
}

// Stores the first n lanes, n below their count.
template <class T>
PXL_INLINE void StoreN(Vec<T> v, T* p, ptrdiff_t n) {
    alignas(vecBytes) T few[lanes<T>];
    StoreU(v, few);
    copyFew<vecBytes>(p, few, static_cast<size_t>(n) * sizeof(T));
}

// ---- both ends of a row ---------------------------------------------------------------------------------------------

// The words are the largest ones that fit the row and meet or overlap in the middle, so lane i is not element i; but
// every operand of the same length has its elements in the same lanes, which is all that an element-wise operation
// needs. Rows of whole pairs of lanes are split into words of whole pairs.

// Both ends of n bytes as one 64-bit word; the upper word is shifted by its own width.
template <class Word>
PXL_INLINE uint64_t loadWordEnds(const char* p, ptrdiff_t n) {
    Word first, last;
    std::memcpy(&first, p, sizeof first);
    std::memcpy(&last, p + n - sizeof last, sizeof last);
    return first | static_cast<uint64_t>(last) << (8 * sizeof last);
}
template <class Word>
PXL_INLINE void storeWordEnds(uint64_t words, char* p, ptrdiff_t n) {
    const Word first = static_cast<Word>(words), last = static_cast<Word>(words >> (8 * sizeof last));
    std::memcpy(p, &first, sizeof first);
    std::memcpy(p + n - sizeof last, &last, sizeof last);
}

// 0 < n < 16 bytes, in units of Least.
template <int Least>
PXL_INLINE Block loadBlockEnds(const char* p, ptrdiff_t n) {
    if (Least == 8 || n >= 8) return LoadHalves(p, p + n - 8);
    if (Least == 4 || n >= 4) return BlockOf(loadWordEnds<uint32_t>(p, n), 0);
    if (Least == 2 || n >= 2) return BlockOf(loadWordEnds<uint16_t>(p, n), 0);
    return LoadBlock<1>(p);
}
template <int Least>
PXL_INLINE void storeBlockEnds(Block v, char* p, ptrdiff_t n) {
    if (Least == 8 || n >= 8) return StoreHalves(v, p, p + n - 8);
    const uint64_t words = LowerHalf(v);
    if (Least == 4 || n >= 4) return storeWordEnds<uint32_t>(words, p, n);
    if (Least == 2 || n >= 2) return storeWordEnds<uint16_t>(words, p, n);
    *p = static_cast<char>(words);
}

static_assert(vecBlocks <= 2, "rows of two blocks and more have two ends of a block each");

// The ends of n lanes, 0 < n < lanes<T>; the lanes that belong to neither are zero.
template <class T>
PXL_INLINE Vec<T> LoadEnds(const T* from, ptrdiff_t n) {
    const char* p = reinterpret_cast<const char*>(from);
    const ptrdiff_t bytes = n * static_cast<ptrdiff_t>(sizeof(T));
    if constexpr (vecBlocks > 1)
        if (bytes >= blockBytes)
            return FromBlocks<T>([=](int k) __attribute__((always_inline)) {
                return LoadBlock<blockBytes>(k == 0 ? p : p + bytes - blockBytes);
            });
    return ZeroExtend<T>(loadBlockEnds<sizeof(T)>(p, bytes));
}
template <class T>
PXL_INLINE void StoreEnds(Vec<T> v, T* to, ptrdiff_t n) {
    char* p = reinterpret_cast<char*>(to);
    const ptrdiff_t bytes = n * static_cast<ptrdiff_t>(sizeof(T));
    if constexpr (vecBlocks > 1)
        if (bytes >= blockBytes) {
            StoreBlock<blockBytes>(ExtractBlock<0>(v), p);
            return StoreBlock<blockBytes>(ExtractBlock<vecBlocks - 1>(v), p + bytes - blockBytes);
        }
    storeBlockEnds<sizeof(T)>(ExtractBlock<0>(v), p, bytes);
}

// ---- rows -----------------------------------------------------------------------------------------------------------

// Count elements of scratch, the first few of them copied from a row and the others zero.
template <class T, int Count>
struct Few {
    alignas(vecBytes) T data[Count] = {};
    PXL_INLINE Few(const T* from, size_t n) { copyFew<sizeof data>(data, from, n * sizeof(T)); }
};

// Runs block(destination, sources...) over a row of n elements, Count elements at a time. The last, shorter block works
// on copies, so a block may always load and store Count elements of every operand and the row is never left.
template <int Count, class Block, class D, class... S>
PXL_INLINE void rowByBlocks(ptrdiff_t n, Block&& block, D* d, const S*... s) {
    ptrdiff_t x = 0;
    for (; x + Count <= n; x += Count) block(d + x, (s + x)...);
    const size_t rest = static_cast<size_t>(n - x);
    if (rest == 0) return;
    alignas(vecBytes) D few[Count];
    block(few, static_cast<const S*>(Few<S, Count>(s + x, rest).data)...);
    copyFew<sizeof few>(d + x, few, rest * sizeof(D));
}

} // namespace pxl::PXL_TARGET
