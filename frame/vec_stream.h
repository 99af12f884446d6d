// Stores that pass by the caches, for images that would not stay there: the lines that they fill need not be read
// first.
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

// Orders streamed stores before whatever the caller does next.
inline void finishStreamed(bool streamed) {
    if (streamed) _mm_sfence();
}

} // namespace pxl::PXL_TARGET
