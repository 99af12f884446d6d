// Ways to memory: stores that pass by the caches, lines asked for ahead of stores, and copies of short runs of bytes in line.
#pragma once

#include "frame/vec/vec.h"

namespace pxl::PXL_TARGET {

// ---- stores ---------------------------------------------------------------------------------------------------------

// From this size on, all operands together, streamed stores were faster (measured with 2 MB of L2 and a shared L3: up
// to a fifth slower at 46 MB, up to twice as fast above 50 MB).
inline constexpr ptrdiff_t streamedBytes = 48'000'000;

// The two ways to store a vector or a block. Streamed stores need an address that is a multiple of its size, and images
// so large that they would not stay in the caches: they spare reading the lines that they go to.
struct Cached {
    template <class T>
    PXL_INLINE static void store(Vec<T> v, T* p) {
        StoreU(v, p);
    }
    PXL_INLINE static void store(Block v, void* p) { StoreBlock<blockBytes>(v, p); }
};
struct Streamed {
    template <class T>
    PXL_INLINE static void store(Vec<T> v, T* p) {
        Stream(v, p);
    }
    PXL_INLINE static void store(Block v, void* p) { Stream(v, p); }
};

// Orders streamed stores before whatever the caller does next.
inline void finishStreamed(bool streamed) {
    if (streamed) FlushStream();
}

// The bytes of a line of the caches.
inline constexpr int lineBytes = 64;

// Asks for the lines of Bytes bytes that will be stored to soon.
template <int Bytes>
PXL_INLINE void fetchForStores(void* p) {
#pragma GCC unroll 4
    for (int i = 0; i < Bytes; i += lineBytes) PrefetchToStore(static_cast<char*>(p) + i);
}

// ---- copies ---------------------------------------------------------------------------------------------------------

// Copies n < Limit bytes that do not overlap, without a call and without touching anything beside them.
template <size_t Limit>
PXL_INLINE void copyFew(void* to, const void* from, size_t n) {
    char* d = static_cast<char*>(to);
    const char* s = static_cast<const char*>(from);
    const auto ends = [&](auto word) { // both ends of n bytes, as two words that may overlap
        decltype(word) last;
        std::memcpy(&word, s, sizeof word);
        std::memcpy(&last, s + n - sizeof last, sizeof last);
        std::memcpy(d, &word, sizeof word);
        std::memcpy(d + n - sizeof last, &last, sizeof last);
    };
    if constexpr (Limit > 16) {
        if (n >= 16) {
            if constexpr (Limit > 32)
                for (; n > 32; n -= 16, s += 16, d += 16) std::memcpy(d, s, 16);
            return ends(Block{});
        }
    }
    if constexpr (Limit > 8)
        if (n >= 8) return ends(uint64_t{});
    if constexpr (Limit > 4)
        if (n >= 4) return ends(uint32_t{});
    if constexpr (Limit > 2)
        if (n >= 2) return ends(uint16_t{});
    if (n == 1) *d = *s;
}

// Copies N vectors from each end of bytes, which may overlap. All are loaded before the first store, since a row may be
// copied to itself.
template <int N>
PXL_INLINE void copyEnds(const uint8_t* s, uint8_t* d, ptrdiff_t bytes) {
    const ptrdiff_t back = bytes - N * vecBytes;
    Vec<uint8_t> head[N], tail[N];
#pragma GCC unroll 4
    for (int i = 0; i < N; ++i) head[i] = LoadU(s + i * vecBytes), tail[i] = LoadU(s + back + i * vecBytes);
#pragma GCC unroll 4
    for (int i = 0; i < N; ++i) StoreU(head[i], d + i * vecBytes), StoreU(tail[i], d + back + i * vecBytes);
}

// Copies a row to one that is disjoint from it, or to itself. Short rows in line and without loops: a call would cost as
// much as the copy.
PXL_INLINE void copyRow(const uint8_t* s, uint8_t* d, ptrdiff_t bytes) {
    if (bytes < vecBytes) return copyFew<vecBytes>(d, s, static_cast<size_t>(bytes));
    if (bytes <= 2 * vecBytes) return copyEnds<1>(s, d, bytes);
    if (bytes <= 4 * vecBytes) return copyEnds<2>(s, d, bytes);
    if (bytes <= 6 * vecBytes) return copyEnds<3>(s, d, bytes);
    if (bytes <= 8 * vecBytes) return copyEnds<4>(s, d, bytes);
    std::memmove(d, s, static_cast<size_t>(bytes));
}

} // namespace pxl::PXL_TARGET
