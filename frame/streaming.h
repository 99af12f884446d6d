// When rows are worth storing past the caches, or with their lines fetched ahead (frame/vec/memory.h).
#pragma once

#include "frame/vec/memory.h"
#include "frame/walk.h"

namespace pxl::PXL_TARGET {

template <class T>
inline bool isAligned(const Operand<T>& o) {
    return (reinterpret_cast<uintptr_t>(o.base) | static_cast<uintptr_t>(o.step)) % vecBytes == 0;
}

// Whether rows of the written operands may and should be streamed. Operands are disjoint where this is used.
template <class... T>
inline bool isStreamed(ptrdiff_t width, ptrdiff_t height, const Operand<T>&... o) {
    const ptrdiff_t pixelBytes = (... + o.pixelBytes);
    return pixelBytes * width * height >= streamedBytes && (... && (!Operand<T>::written || isAligned(o)));
}

// From this size on, all operands together, the written lines are no longer in the first-level cache; below, fetching
// them would only take time.
inline constexpr ptrdiff_t fetchedBytes = 64'000;

template <class... T>
inline bool isFetched(ptrdiff_t width, ptrdiff_t height, const Operand<T>&... o) {
    return (... + o.pixelBytes) * width * height >= fetchedBytes;
}

enum class Storing { Cached, Fetched, Streamed };

template <class... T>
inline Storing storingOf(ptrdiff_t width, ptrdiff_t height, const Operand<T>&... o) {
    if (isStreamed(width, height, o...)) return Storing::Streamed;
    return isFetched(width, height, o...) ? Storing::Fetched : Storing::Cached;
}

} // namespace pxl::PXL_TARGET
