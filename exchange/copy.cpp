// Copies: dst = src, element by element. AC4 forms leave the fourth element of the destination as it is and never read
// that of the source.
#include "exchange/group_rows.h"
#include "frame/checks.h"
#include "frame/vec/memory.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {
namespace {

void streamRow(const uint8_t* s, uint8_t* d, ptrdiff_t n) {
    ptrdiff_t x = 0;
    constexpr int run = 2 * lineBytes;
    for (; x + run <= n; x += run)
#pragma GCC unroll 8
        for (int i = 0; i < run; i += vecBytes) Streamed::store(LoadU(s + x + i), d + x + i);
    copyRow(s + x, d + x, n - x);
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
            copy(sourceBytes, reinterpret_cast<uint8_t*>(to), n * static_cast<ptrdiff_t>(sizeof(T)));
        };
        walkElements(roi, Channels, row, s, d);
    };
    const bool streamed = src != dst && isStreamed(ptrdiff_t{roi.width} * Channels, roi.height, s, d);
    if (streamed)
        walkBytes(streamRow);
    else
        walkBytes([](auto... row) { copyRow(row...); });
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
