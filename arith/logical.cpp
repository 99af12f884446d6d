// Bitwise operations between two images, or an image and one constant per channel. Checks come in the order pointers, steps,
// size; the two-image C3 and C4 members test the width before all of them.
#include "arith/rows.h"
#include "frame/checks.h"

namespace pxl::PXL_TARGET {
namespace {

struct And {
    template <class L>
    PXL_INLINE Vec<L> operator()(Vec<L> a, Vec<L> b) const {
        return a & b;
    }
};
struct Or {
    template <class L>
    PXL_INLINE Vec<L> operator()(Vec<L> a, Vec<L> b) const {
        return a | b;
    }
};
struct Xor {
    template <class L>
    PXL_INLINE Vec<L> operator()(Vec<L> a, Vec<L> b) const {
        return a ^ b;
    }
};

template <class T, int Elements, int Channels, class Op>
PxlStatus Logical(const T* src1, int step1, const T* src2, int step2, T* dst, int dstStep, ImageSize roi) {
    if (Elements > 1 && Channels == Elements && roi.width < 1) return PXL_E_SIZE;
    if (anyNull(src1, src2, dst)) return PXL_E_NULL_PTR;
    if (anyStepBelow1(step1, step2, dstStep)) return PXL_E_STEP;
    if (isEmpty(roi)) return PXL_E_SIZE;
    walkBinary<Elements, Channels>(src1, step1, src2, step2, dst, dstStep, roi, Op{});
    return PXL_OK;
}

template <class T, int Elements, int Channels, class Op>
PxlStatus LogicalC(const T* src, int srcStep, ValueArg<T, Channels> value, T* dst, int dstStep, ImageSize roi) {
    const T* values = valuesOf<Channels>(value);
    if (anyNull(src, values, static_cast<const T*>(dst))) return PXL_E_NULL_PTR;
    if (anyStepBelow1(srcStep, dstStep)) return PXL_E_STEP;
    if (isEmpty(roi)) return PXL_E_SIZE;
    walkConstant<Elements, Channels>(src, srcStep, values, dst, dstStep, roi, Op{});
    return PXL_OK;
}

template <class T, int Elements, int Channels>
PxlStatus Not(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi) {
    static constexpr T ones[] = {0xFF, 0xFF, 0xFF, 0xFF};
    if constexpr (Channels == 1)
        return LogicalC<T, Elements, Channels, Xor>(src, srcStep, ones[0], dst, dstStep, roi);
    else
        return LogicalC<T, Elements, Channels, Xor>(src, srcStep, ones, dst, dstStep, roi);
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/arith/logical.inc"
