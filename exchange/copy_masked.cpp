// Masked copies: dst = src where the mask is not 0.
//
// The kernels see pixels of E bytes, whatever their elements are. The last pixel of an AC4 row is copied element by element,
// because the source need not end with a fourth one.
#include "exchange/masked_row.h"
#include "frame/checks.h"
#include "frame/vec.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {
namespace {

template <class Row>
PxlStatus copyMasked(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roi, const uint8_t* mask,
                     int maskStep, int pixelBytes, Row&& row) {
    if (anyNull(src, dst, mask)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    walk(roi, row, operand(src, srcStep, pixelBytes), operand(dst, dstStep, pixelBytes), operand(mask, maskStep));
    return PXL_OK;
}

template <int E>
PxlStatus copyMaskedPixels(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roi,
                           const uint8_t* mask, int maskStep) {
    const auto row = [](ptrdiff_t n, const uint8_t* s, uint8_t* d, const uint8_t* m) {
        blendRow<E>(n, m, d, RowSource{s});
    };
    return copyMasked(src, srcStep, dst, dstStep, roi, mask, maskStep, E, row);
}

template <class T, int Elements>
PxlStatus CopyMasked(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const uint8_t* mask, int maskStep) {
    return copyMaskedPixels<Elements * sizeof(T)>(reinterpret_cast<const uint8_t*>(src), srcStep,
                                                  reinterpret_cast<uint8_t*>(dst), dstStep, roi, mask, maskStep);
}

template <class T>
PXL_INLINE void copyColour1(const uint8_t* s, uint8_t* d, uint8_t m) {
    const T keep = static_cast<T>(m ? 0 : ~T{0}); // a mask and no branch: masks are hard to predict
    T colour[3], old[3];
    std::memcpy(colour, s, sizeof colour);
    std::memcpy(old, d, sizeof old);
    for (int c = 0; c < 3; ++c) old[c] = blend(keep, old[c], colour[c]);
    std::memcpy(d, old, sizeof old);
}

template <class T>
PxlStatus CopyColourMasked(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const uint8_t* mask,
                           int maskStep) {
    constexpr int E = 4 * sizeof(T);
    const auto row = [](ptrdiff_t n, const uint8_t* s, uint8_t* d, const uint8_t* m) {
        const ptrdiff_t last = n - 1;
        blendRow<E>(last, m, d, RowSource{s}, maskPattern<E, 3 * sizeof(T), E>());
        copyColour1<T>(s + last * E, d + last * E, m[last]);
    };
    return copyMasked(reinterpret_cast<const uint8_t*>(src), srcStep, reinterpret_cast<uint8_t*>(dst), dstStep, roi,
                      mask, maskStep, E, row);
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/exchange/copy_masked.inc"
