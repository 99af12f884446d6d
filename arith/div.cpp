// Quotients of two images: dst = src2 / src1, the first source being the divisor. How integers are scaled stands in
// arith/quotients.h.
//
// 16u members do not test their steps, and their C3 and C4 forms test the width before all else.
#include "arith/quotients.h"

namespace pxl::PXL_TARGET {
namespace {

// A divisor of 0, of either sign, gives the infinity with the sign of the dividend; for 0 and NaN the NaN that the
// processor makes of 0 / 0.
struct FloatQuotient {
    struct Divisor {
        Vec<float> x;
        Mask<float> zero;
    };

    PXL_INLINE Divisor prepare(Vec<float> x) const {
        const Mask<float> zero = x == Zero<float>();
        return {AndNot(BitCast<float>(zero), x), zero};
    }
    PXL_INLINE Vec<float> operator()(const Divisor& x, Vec<float> y) const {
        const Vec<float> q = y / x.x;
        const Vec<float> undefined = BitCast<float>(Set<uint32_t>(0xFFC00000));
        return IfThenElse(AndNot(q == q, x.zero), undefined, q);
    }
};

// Runs divide(region), which says whether a divisor was 0, if the arguments are good.
template <int Elements, int Channels, class T, class Divide>
PxlStatus withDivision(const T* src1, int step1, const T* src2, int step2, T* dst, int dstStep, ImageSize roi,
                       Divide&& divide) {
    constexpr bool anyStep = std::is_same_v<T, uint16_t>;
    if (anyStep && Elements > 1 && Channels == Elements && roi.width < 1) return PXL_E_SIZE;
    if (anyNull(src1, src2, static_cast<const T*>(dst))) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    if (!anyStep && anyStepBelow1(step1, step2, dstStep)) return PXL_E_STEP;
    const bool byZero = divide(regionOf<Elements, Channels>(src1, step1, src2, step2, dst, dstStep, roi));
    return byZero ? PXL_W_DIV_BY_ZERO : PXL_OK;
}

template <class T, int Elements, int Channels>
PxlStatus Div(const T* src1, int step1, const T* src2, int step2, T* dst, int dstStep, ImageSize roi, int scaleFactor) {
    return withDivision<Elements, Channels>(src1, step1, src2, step2, dst, dstStep, roi,
                                            [&](const Region& region) { return divideRegion<T>(region, scaleFactor); });
}

template <class T, int Elements, int Channels>
PxlStatus DivFloat(const T* src1, int step1, const T* src2, int step2, T* dst, int dstStep, ImageSize roi) {
    return withDivision<Elements, Channels>(src1, step1, src2, step2, dst, dstStep, roi, [](const Region& region) {
        return divideImages<float>(region, FloatQuotient{});
    });
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/arith/div.inc"
