// Copies: dst = src, element by element. AC4 forms leave the fourth element of the destination as it is and never read
// that of the source.
#include "exchange/group_rows.h"
#include "frame/checks.h"
#include "frame/vec/memory.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET::exchange {
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

template <class T, int Elements>
PxlStatus copy(Image<const T, Elements> src, Image<T, Elements> dst, ImageSize roi) {
    if (const PxlStatus status = check(null(src, dst), size(roi))) return status;
    const auto s = bytesOf(elementsOf(src));
    const auto d = bytesOf(elementsOf(dst));
    const auto walkBytes = [&](auto copyRow) {
        const auto row = [=](ptrdiff_t n, const uint8_t* from, uint8_t* to) { copyRow(to, from, n * s.pixelBytes); };
        walkElements(roi, Elements, row, s, d);
    };
    const bool streamed = src.base != dst.base && isStreamed(ptrdiff_t{roi.width} * Elements, roi.height, s, d);
    if (streamed)
        walkBytes(streamBytes);
    else
        walkBytes([](auto... row) { copyBytes(row...); });
    finishStreamed(streamed);
    return PXL_OK;
}

// AC4 to AC4, C3 to AC4 and AC4 to C3.
template <class T, int SrcElements, int DstElements>
PxlStatus copyColour(Image<const T, SrcElements, 3> src, Image<T, DstElements, 3> dst, ImageSize roi) {
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
