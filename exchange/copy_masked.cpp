// Masked copies: dst = src where the mask is not 0.
//
// The kernels see pixels of E bytes, whatever their elements are. The last pixel of an AC4 row is copied alone, because
// the source need not end with a fourth element.
#include "exchange/masked_row.h"
#include "frame/checks.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET::exchange {
namespace {

template <int E>
void copyMaskedRow(ptrdiff_t n, const uint8_t* s, uint8_t* d, const uint8_t* m) {
    blendRow<E>(n, m, d, RowSource{s});
}

template <int E>
void copyMaskedColours(ptrdiff_t n, const uint8_t* s, uint8_t* d, const uint8_t* m) {
    const ptrdiff_t last = (n - 1) * E;
    blendRow<E>(n - 1, m, d, RowSource{s}, alphaPattern<E>());
    const Block keep = widenMask<E>(ZeroBytes(LoadBlock<1>(m + n - 1)));
    constexpr int colour = colourBytes<E>;
    StoreBlock<colour>(IfThenElse(keep, LoadBlock<colour>(d + last), LoadBlock<colour>(s + last)), d + last);
}

using Row = void(ptrdiff_t n, const uint8_t* s, uint8_t* d, const uint8_t* m);

// One walk for pixels of every size.
PxlStatus copyPixels(Image<const uint8_t, anyElements> src, Image<uint8_t, anyElements> dst, ImageSize roi,
                     Image<const uint8_t> mask, Row* row) {
    if (const PxlStatus status = check(null(src, dst, mask), size(roi))) return status;
    walk(roi, row, src, dst, mask);
    return PXL_OK;
}

template <class T, int Elements, int Channels>
PxlStatus CopyMasked(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst, ImageSize roi,
                     Image<const uint8_t> mask) {
    constexpr int E = Elements * sizeof(T);
    if constexpr (Channels == Elements)
        return copyPixels(bytesOf(src), bytesOf(dst), roi, mask, copyMaskedRow<E>);
    else
        return copyPixels(bytesOf(src), bytesOf(dst), roi, mask, copyMaskedColours<E>);
}

} // namespace
} // namespace pxl::PXL_TARGET::exchange

#include "members/exchange/copy_masked.inc"
