// Ways to keep stores from waiting for the lines that they go to: asking for the lines ahead of them, and, for images
// that would not stay in the caches, passing by those, so that the lines need not be read at all.
#pragma once

#include "frame/vec.h"

namespace pxl::PXL_TARGET {

// From this size on, all operands together, streamed stores were faster (measured with 2 MB of L2 and a shared L3: up
// to a fifth slower at 46 MB, up to twice as fast above 50 MB).
inline constexpr ptrdiff_t streamedBytes = 48'000'000;

// The two ways to store a vector. Streamed stores need an address that is a multiple of 32.
struct Cached {
    template <class T>
    PXL_INLINE static void store(Vec<T> v, T* p) {
        StoreU(v, p);
    }
    PXL_INLINE static void store(__m128i v, void* p) { _mm_storeu_si128(static_cast<__m128i*>(p), v); }
};
struct Streamed {
    template <class T>
    PXL_INLINE static void store(Vec<T> v, T* p) {
#ifdef __AVX2__
        _mm256_stream_si256(reinterpret_cast<__m256i*>(p), ints(v));
#else
        _mm_stream_si128(reinterpret_cast<__m128i*>(p), ints(v));
#endif
    }
    PXL_INLINE static void store(__m128i v, void* p) { _mm_stream_si128(static_cast<__m128i*>(p), v); }
};

// The bytes of a line of the caches.
inline constexpr int lineBytes = 64;

// Asks for the lines of Bytes bytes that will be stored to soon. Nothing is read or written by that.
template <int Bytes>
PXL_INLINE void fetchForStores(void* p) {
#pragma GCC unroll 4
    for (int i = 0; i < Bytes; i += lineBytes) __builtin_prefetch(static_cast<char*>(p) + i, 1);
}

// Orders streamed stores before whatever the caller does next.
inline void finishStreamed(bool streamed) {
    if (streamed) _mm_sfence();
}

} // namespace pxl::PXL_TARGET
