// Quotients of two images: dst = src2 / src1, the first source being the divisor. How integers are scaled stands in
// arith/quotients.h.
//
// 16u members do not test their steps, and their C3 and C4 forms test the width before all else.
#include "arith/quotients.h"
#include "frame/checks.h"

namespace pxl::PXL_TARGET::arith {
namespace {

// A divisor of 0, of either sign, gives the infinity with the sign of the dividend; for 0 and NaN the NaN that the
// processor makes of 0 / 0.
struct FloatQuotient : Quotient {
    struct Divisor {
        Vec<float> x;
        Mask<float> zero;
    };

    PXL_INLINE Divisor prepare(Vec<float> x) const {
        const Mask<float> zero = x == Zero<float>();
        return {AndNot(BitCast<float>(zero), x), zero};
    }
    PXL_INLINE Vec<float> operator()(Vec<float> y, const Divisor& x) const {
        const Vec<float> q = y / x.x;
        const Vec<float> undefined = BitCast<float>(Set<uint32_t>(0xFFC00000));
        return IfThenElse(AndNot(q == q, x.zero), undefined, q);
    }
};

template <class T, int Elements, int Channels>
PxlStatus checkPair(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                    Image<T, Elements, Channels> dst, ImageSize roi) {
    constexpr bool anyStep = std::is_same_v<T, uint16_t>;
    return check(onlyIf(anyStep, widenedSize(dst, roi)), null(src1, src2, dst), size(roi),
                 onlyIf(!anyStep, steps(src1, src2, dst)));
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus Div(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                         Image<T, Elements, Channels> dst, ImageSize roi, int scaleFactor) {
    if (const PxlStatus status = checkPair(src1, src2, dst, roi)) return status;
    return divide<T>(pointwise::TwoSources(src2, src1, dst, roi), scaleFactor);
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus DivFloat(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                              Image<T, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = checkPair(src1, src2, dst, roi)) return status;
    return pointwise::run<float>(pointwise::TwoSources(src2, src1, dst, roi), FloatQuotient{});
}

} // namespace
} // namespace pxl::PXL_TARGET::arith

#include "members/arith/div.inc"
