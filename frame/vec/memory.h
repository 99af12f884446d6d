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

// Rows of more than 8 vectors. Up to some size vectors as wide as these gain on the call; narrower ones lose to it.
[[gnu::noinline]] inline void copyLongRow(const uint8_t* s, uint8_t* d, ptrdiff_t bytes) {
    constexpr ptrdiff_t most = vecBytes > 16 ? 4096 : 0, run = 4 * vecBytes;
    if (bytes > most) return static_cast<void>(std::memmove(d, s, static_cast<size_t>(bytes)));
    const Vec<uint8_t> last = LoadU(s + bytes - vecBytes);
    ptrdiff_t x = 0;
    for (; x + run <= bytes; x += run)
        unrolled<4>([&](auto j)
                        __attribute__((always_inline)) { StoreU(LoadU(s + x + j * vecBytes), d + x + j * vecBytes); });
    for (; x + vecBytes < bytes; x += vecBytes) StoreU(LoadU(s + x), d + x);
    if (x < bytes) StoreU(last, d + bytes - vecBytes);
}

// Copies a row to one that is disjoint from it, or to itself. Short rows in line: a call would cost as much as the copy.
// The vector at the end is loaded first, since it may overlap what is stored before it.
PXL_INLINE void copyRow(const uint8_t* s, uint8_t* d, ptrdiff_t bytes) {
    if (bytes < 32) return copyFew<32>(d, s, static_cast<size_t>(bytes));
    if (bytes > 8 * vecBytes) return copyLongRow(s, d, bytes);
    if (bytes <= 64 && vecBytes <= 32) { // both ends, as runs of 32 bytes
        const Vec<uint8_t> ends[] = {LoadU(s), LoadU(s + 32 - vecBytes), LoadU(s + bytes - 32),
                                     LoadU(s + bytes - vecBytes)};
        StoreU(ends[0], d);
        StoreU(ends[1], d + 32 - vecBytes);
        StoreU(ends[2], d + bytes - 32);
        StoreU(ends[3], d + bytes - vecBytes);
        return;
    }
    const Vec<uint8_t> last = LoadU(s + bytes - vecBytes);
    for (ptrdiff_t x = 0; x < bytes - vecBytes; x += vecBytes) StoreU(LoadU(s + x), d + x);
    StoreU(last, d + bytes - vecBytes);
}

} // namespace pxl::PXL_TARGET
