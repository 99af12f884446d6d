// Masked copies: dst = src where the mask is not 0.
//
// The kernels see pixels of E bytes, whatever their elements are. The last pixel of an AC4 row is copied alone, because
// the source need not end with a fourth element.
#include "exchange/masked_row.h"
#include "frame/checks.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {
namespace {

using Row = void(ptrdiff_t n, const uint8_t* s, uint8_t* d, const uint8_t* m);

PxlStatus copyMasked(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roi, const uint8_t* mask,
                     int maskStep, int pixelBytes, Row* row) {
    if (anyNull(src, dst, mask)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    walk(roi, row, operand(src, srcStep, pixelBytes), operand(dst, dstStep, pixelBytes), operand(mask, maskStep));
    return PXL_OK;
}

template <int E>
void copyMaskedRow(ptrdiff_t n, const uint8_t* s, uint8_t* d, const uint8_t* m) {
    blendRow<E>(n, m, d, RowSource{s});
}

template <class T, int Elements>
PxlStatus CopyMasked(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const uint8_t* mask, int maskStep) {
    constexpr int E = Elements * sizeof(T);
    return copyMasked(reinterpret_cast<const uint8_t*>(src), srcStep, reinterpret_cast<uint8_t*>(dst), dstStep, roi,
                      mask, maskStep, E, copyMaskedRow<E>);
}

template <int E>
void copyColourRow(ptrdiff_t n, const uint8_t* s, uint8_t* d, const uint8_t* m) {
    const ptrdiff_t last = (n - 1) * E;
    blendRow<E>(n - 1, m, d, RowSource{s}, alphaPattern<E>());
    const Block keep = widenMask<E>(ZeroBytes(LoadBlock<1>(m + n - 1)));
    constexpr int colour = colourBytes<E>;
    StoreBlock<colour>(IfThenElse(keep, LoadBlock<colour>(d + last), LoadBlock<colour>(s + last)), d + last);
}

template <class T>
PxlStatus CopyColourMasked(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const uint8_t* mask,
                           int maskStep) {
    constexpr int E = 4 * sizeof(T);
    return copyMasked(reinterpret_cast<const uint8_t*>(src), srcStep, reinterpret_cast<uint8_t*>(dst), dstStep, roi,
                      mask, maskStep, E, copyColourRow<E>);
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/exchange/copy_masked.inc"
