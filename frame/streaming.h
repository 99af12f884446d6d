// When rows are worth storing past the caches, or with their lines fetched ahead (frame/vec/memory.h).
#pragma once

#include "frame/vec/memory.h"
#include "frame/walk.h"

namespace pxl::PXL_TARGET {

template <class I>
inline bool isAligned(const I& o) {
    return (reinterpret_cast<uintptr_t>(o.base) | static_cast<uintptr_t>(o.step)) % vecBytes == 0;
}

// Whether rows of the written operands may and should be streamed. Operands are disjoint where this is used.
template <class... I>
inline bool isStreamed(ptrdiff_t width, ptrdiff_t height, const I&... o) {
    const ptrdiff_t pixelBytes = (... + o.pixelBytes);
    return pixelBytes * width * height >= streamedBytes && (... && (!I::written || isAligned(o)));
}

// From this size on, all operands together, the written lines are no longer in the first-level cache; below, fetching
// them would only take time.
inline constexpr ptrdiff_t fetchedBytes = 64'000;

template <class... I>
inline bool isFetched(ptrdiff_t width, ptrdiff_t height, const I&... o) {
    return (... + o.pixelBytes) * width * height >= fetchedBytes;
}
// From this size on they fill the second-level cache.
inline constexpr ptrdiff_t secondCacheBytes = 1'700'000;

template <class... I>
inline bool isBeyondSecondCache(ptrdiff_t width, ptrdiff_t height, const I&... o) {
    return (... + o.pixelBytes) * width * height >= secondCacheBytes;
}

enum class Storing { Cached, Fetched, Streamed };

// Planes and their interleaved image fill the caches' lines in several places at a time, and are better streamed as soon as
// they no longer fit the second-level cache (measured with 2 MB of it: cached stores were up to twice as fast at 1.8 MB, a
// tenth at 2.4 MB, and streamed ones by two fifths at 3.7 MB).
inline constexpr ptrdiff_t streamedPlaneBytes = 3'000'000;

// All planes together are as large as the image.
template <class I>
inline Storing storingOfPlanes(ptrdiff_t width, ptrdiff_t height, const I& pixels) {
    const ptrdiff_t bytes = 2 * pixels.pixelBytes * width * height;
    if (bytes >= streamedPlaneBytes) return Storing::Streamed;
    return bytes >= fetchedBytes ? Storing::Fetched : Storing::Cached;
}

// The first pixel of a row that begins a line of the caches for every pointer, -1 where there is none.
template <class T, class... Rest>
inline ptrdiff_t firstOfLine(ptrdiff_t elements, const T* p, const Rest*... rest) {
    constexpr ptrdiff_t pixelsToRepeat = lineBytes / sizeof(T);
    for (ptrdiff_t x = 0; x < pixelsToRepeat; ++x) {
        const auto address = [=](const T* at) { return reinterpret_cast<uintptr_t>(at + x * elements); };
        if ((address(p) | ... | address(rest)) % lineBytes == 0) return x;
    }
    return -1;
}

} // namespace pxl::PXL_TARGET
