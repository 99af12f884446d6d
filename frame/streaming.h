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

enum class Storing { Cached, Fetched, Streamed };

template <class... I>
inline Storing storingOf(ptrdiff_t width, ptrdiff_t height, const I&... o) {
    if (isStreamed(width, height, o...)) return Storing::Streamed;
    return isFetched(width, height, o...) ? Storing::Fetched : Storing::Cached;
}

} // namespace pxl::PXL_TARGET
