// Copies: dst = src, element by element. AC4 forms leave the fourth element of the destination as it is and never read
// that of the source.
#include "exchange/group_rows.h"
#include "frame/checks.h"
#include "frame/vec/memory.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET::exchange {
namespace {

void streamRow(const uint8_t* s, uint8_t* d, ptrdiff_t n) {
    ptrdiff_t x = 0;
    constexpr int run = 2 * lineBytes;
    for (; x + run <= n; x += run)
#pragma GCC unroll 8
        for (int i = 0; i < run; i += vecBytes) Streamed::store(LoadU(s + x + i), d + x + i);
    copyRow(s + x, d + x, n - x);
}

template <class T, int Elements>
PxlStatus Copy(Image<const T, Elements> src, Image<T, Elements> dst, ImageSize roi) {
    if (const PxlStatus status = check(null(src, dst), size(roi))) return status;
    const auto s = bytesOf(elementsOf(src));
    const auto d = bytesOf(elementsOf(dst));
    const auto walkBytes = [&](auto moveRow) {
        // In line, though the walker calls it in two places: a call would cost as much as a short row.
        const auto row = [=](ptrdiff_t n, const uint8_t* from, uint8_t* to) __attribute__((always_inline)) {
            moveRow(from, to, n * s.pixelBytes);
        };
        walkElements(roi, Elements, row, s, d);
    };
    const bool streamed = src.base != dst.base && isStreamed(ptrdiff_t{roi.width} * Elements, roi.height, s, d);
    if (streamed)
        walkBytes(streamRow);
    else
        walkBytes([](auto... row) __attribute__((always_inline)) { copyRow(row...); });
    finishStreamed(streamed);
    return PXL_OK;
}

// AC4 to AC4, C3 to AC4 and AC4 to C3.
template <class T, int SrcElements, int DstElements>
PxlStatus CopyColour(Image<const T, SrcElements, 3> src, Image<T, DstElements, 3> dst, ImageSize roi) {
    if (const PxlStatus status = check(null(src, dst), size(roi))) return status;
    if constexpr (DstElements == 3) {
        walkGroups(
            roi, [](Vec<T> s) { return CompressGroups(s); }, src, dst);
    } else {
        const auto change = [](Vec<T> s, Vec<T> old) {
            if constexpr (SrcElements == 3) s = ExpandGroups(s);
            return KeepAlpha(old, s);
        };
        walkGroups(roi, change, src, dst);
    }
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET::exchange

#include "members/exchange/copy.inc"
