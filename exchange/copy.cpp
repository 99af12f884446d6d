// Copies: dst = src, element by element. AC4 forms leave the fourth element of the destination as it is and never read
// that of the source.
#include "exchange/group_rows.h"
#include "frame/checks.h"
#include "frame/vec/memory.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {
namespace {

// Short rows are copied in line: the call would cost as much as the copy.
PXL_INLINE void copyBytes(uint8_t* d, const uint8_t* s, ptrdiff_t n) {
    if (n < 32) return copyFew<32>(d, s, static_cast<size_t>(n));
    if (n > 64) return static_cast<void>(std::memmove(d, s, static_cast<size_t>(n)));
    // Both ends of the row, as two runs of 32 bytes that may overlap.
    const Vec<uint8_t> ends[] = {LoadU(s), LoadU(s + 32 - vecBytes), LoadU(s + n - 32), LoadU(s + n - vecBytes)};
    StoreU(ends[0], d);
    StoreU(ends[1], d + 32 - vecBytes);
    StoreU(ends[2], d + n - 32);
    StoreU(ends[3], d + n - vecBytes);
}

void streamBytes(uint8_t* d, const uint8_t* s, ptrdiff_t n) {
    ptrdiff_t x = 0;
    for (; x + 128 <= n; x += 128)
#pragma GCC unroll 8
        for (int i = 0; i < 128; i += vecBytes) Streamed::store(LoadU(s + x + i), d + x + i);
    copyBytes(d + x, s + x, n - x);
}

template <class T, int Channels>
PxlStatus CopyElements(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi) {
    if (anyNull(src, dst)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    const auto s = operand(src, srcStep);
    const auto d = operand(dst, dstStep);
    const auto walkBytes = [&](auto copy) {
        const auto row = [=](ptrdiff_t n, const T* from, T* to) {
            const auto* sourceBytes = reinterpret_cast<const uint8_t*>(from);
            copy(reinterpret_cast<uint8_t*>(to), sourceBytes, n * static_cast<ptrdiff_t>(sizeof(T)));
        };
        walkElements(roi, Channels, row, s, d);
    };
    const bool streamed = src != dst && isStreamed(ptrdiff_t{roi.width} * Channels, roi.height, s, d);
    if (streamed)
        walkBytes(streamBytes);
    else
        walkBytes([](auto... row) { copyBytes(row...); });
    finishStreamed(streamed);
    return PXL_OK;
}

template <class T, GroupForm Form, class Change>
PxlStatus ownCopyColour(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, Change change) {
    if (anyNull(src, dst)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    walkGroups<T, Form>(roi, change, src, srcStep, dst, dstStep);
    return PXL_OK;
}

template <class T>
PxlStatus CopyColour(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi) {
    constexpr GroupForm form{.srcElements = 4, .dstElements = 4, .readsFourth = false, .keepsOld = true};
    const auto change = [](Vec<T> s, Vec<T> old) { return KeepAlpha(old, s); };
    return ownCopyColour<T, form>(src, srcStep, dst, dstStep, roi, change);
}

template <class T>
PxlStatus CopyToColour(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi) {
    constexpr GroupForm form{.srcElements = 3, .dstElements = 4, .readsFourth = false, .keepsOld = true};
    const auto change = [](Vec<T> s, Vec<T> old) { return KeepAlpha(old, ExpandGroups(s)); };
    return ownCopyColour<T, form>(src, srcStep, dst, dstStep, roi, change);
}

template <class T>
PxlStatus CopyFromColour(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi) {
    constexpr GroupForm form{.srcElements = 4, .dstElements = 3, .readsFourth = false, .keepsOld = false};
    const auto change = [](Vec<T> s, Vec<T>) { return CompressGroups(s); };
    return ownCopyColour<T, form>(src, srcStep, dst, dstStep, roi, change);
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/exchange/copy.inc"
