// Quotients of two complex images: dst = src2 / src1, the first source being the divisor.
#include "arith/complex_quotients.h"
#include "frame/checks.h"

namespace pxl::PXL_TARGET::arith {
namespace {

template <class T, int Elements, int Channels>
PxlStatus checkPair(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                    Image<T, Elements, Channels> dst, ImageSize roi) {
    return check(null(src1, src2, dst), size(roi), steps(src1, src2, dst));
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus DivComplex(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                                Image<T, Elements, Channels> dst, ImageSize roi, int scaleFactor) {
    if (const PxlStatus status = checkPair(src1, src2, dst, roi)) return status;
    using L = LaneOf<T>;
    return pointwise::run<L>(pointwise::TwoSources(src2, src1, dst, roi), ComplexQuotient<L>(scaleFactor));
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus DivComplexFloat(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                                     Image<T, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = checkPair(src1, src2, dst, roi)) return status;
    return pointwise::run<float>(pointwise::TwoSources(src2, src1, dst, roi), ComplexFloatQuotient{});
}

} // namespace
} // namespace pxl::PXL_TARGET::arith

#include "members/arith/div_complex.inc"
