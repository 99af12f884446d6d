// When rows are worth storing past the caches (frame/vec_stream.h).
#pragma once

#include "frame/vec_stream.h"
#include "frame/walk.h"

namespace pxl::PXL_TARGET {

template <class T>
inline bool isAligned(const Operand<T>& o) {
    return (reinterpret_cast<uintptr_t>(o.base) | static_cast<uintptr_t>(o.step)) % 32 == 0;
}

// Whether rows of the written operands may and should be streamed. Operands are disjoint where this is used.
template <class... T>
inline bool isStreamed(ptrdiff_t width, ptrdiff_t height, const Operand<T>&... o) {
    const ptrdiff_t pixelBytes = (... + o.pixelBytes);
    return pixelBytes * width * height >= streamedBytes && (... && (!Operand<T>::written || isAligned(o)));
}

} // namespace pxl::PXL_TARGET
