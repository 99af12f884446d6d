// Bitwise operations between two images, or an image and one constant per channel; and the complement of an image. Checks come
// in the order pointers, steps, size; the two-image C3 and C4 members test the width before all of them.
#include "frame/checks.h"
#include "pointwise/run.h"

namespace pxl::PXL_TARGET::arith {
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
struct Complement {
    template <class L>
    PXL_INLINE Vec<L> operator()(Vec<L> a) const {
        return ~a;
    }
};

template <class Op, class T, int Elements, int Channels>
PXL_INLINE PxlStatus Logical(Image<const T, Elements, Channels> src1, Image<const T, Elements, Channels> src2,
                             Image<T, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = check(widenedSize(dst, roi), null(src1, src2, dst), steps(src1, src2, dst), size(roi)))
        return status;
    return pointwise::run<T>(pointwise::TwoSources(src1, src2, dst, roi), Op{});
}

template <class Op, class T, int Elements, int Channels>
PXL_INLINE PxlStatus LogicalC(Image<const T, Elements, Channels> src, Values<T, Channels> values,
                              Image<T, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = check(null(src, values, dst), steps(src, dst), size(roi))) return status;
    return pointwise::run<T>(pointwise::WithConstants(src, values, dst, roi), Op{});
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus Not(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = check(null(src, dst), steps(src, dst), size(roi))) return status;
    return pointwise::run<T>(pointwise::OneSource(src, dst, roi), Complement{});
}

} // namespace
} // namespace pxl::PXL_TARGET::arith

#include "members/arith/logical.inc"
