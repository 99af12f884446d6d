// Products of two images: dst = src1 * src2. How they are scaled stands in arith/products.h.
#include "arith/checks.h"
#include "arith/products.h"

namespace pxl::PXL_TARGET {
namespace {

template <class T, int Elements, int Channels>
PxlStatus Mul(const T* src1, int step1, const T* src2, int step2, T* dst, int dstStep, ImageSize roi, int scaleFactor) {
    return withPair<Elements, Channels>(src1, step1, src2, step2, dst, dstStep, roi,
                                        [&](const Region& r) { multiplyRegion<T>(r, scaleFactor); });
}

template <class T, int Elements, int Channels>
PxlStatus MulFloat(const T* src1, int step1, const T* src2, int step2, T* dst, int dstStep, ImageSize roi) {
    return withPair<Elements, Channels>(src1, step1, src2, step2, dst, dstStep, roi,
                                        [](const Region& r) { run<float>(r, FloatProduct{}); });
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/arith/mul.inc"
