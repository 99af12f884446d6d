// Convert: dst = src in another element type. Widening is exact, integer narrowing saturates.
//
// From 32f, v is bounded by the destination's maximum M first, then
//   roundMode 0      truncated toward zero
//   roundMode 1      rounded to nearest, ties to even; see exchange/rounding.h
//   any other        v + 0.5 with the sign of v, a single-precision sum, truncated: 0.49999997 becomes 1
// and NaN gives 0. The lower bound needs no operation of its own: what lies below the range of 32s converts to its
// minimum, and narrowing saturates. That minimum is what NaN converts to as well, which is the wanted 0 for unsigned
// destinations.
#include "pointwise/convert.h"
#include "exchange/rounding.h"
#include "frame/checks.h"
#include "frame/ranges.h"

namespace pxl::PXL_TARGET::exchange {
namespace {

// Between integers, and from integers to float.
template <class S, class D>
struct KeepValue {
    using Source = S;
    using Result = D;
    using Lane = std::conditional_t<(sizeof(S) < sizeof(D)), D, std::make_signed_t<S>>;

    PXL_INLINE Vec<Lane> operator()(Vec<S> v) const {
        if constexpr (sizeof(S) < sizeof(D))
            return PromoteTo<D>(v);
        else if constexpr (std::is_same_v<S, uint16_t>)
            return BitCast<Lane>(Min255(v)); // narrowing takes its lanes for signed ones
        else
            return v;
    }
};

template <class D>
struct RoundToNearest {
    using Source = float;
    using Result = D;
    using Lane = int32_t;

    PXL_INLINE Vec<int32_t> operator()(Vec<float> v) const {
        const Vec<float> maximum = Set<float>(highestOf<D>);
        if constexpr (std::is_unsigned_v<D>) return NearestInt(Min(maximum, tiesToEven(v)));
        return NearestInt(Min(maximum, IfThenElseZero(roundsAwayFrom0(v), v)));
    }
};

// v + bias with the sign of v, truncated: bias 0 for roundMode 0, 0.5 for ties away from zero. A negative v that takes
// the bias as it is still ends at or below 0, which is enough for unsigned destinations.
template <class D>
struct Truncate {
    using Source = float;
    using Result = D;
    using Lane = int32_t;
    float bias;

    PXL_INLINE Vec<int32_t> operator()(Vec<float> v) const {
        const Vec<float> bounded = Min(Set<float>(highestOf<D>), v);
        if constexpr (std::is_unsigned_v<D>) return TruncateToInt(bounded + Set<float>(bias));
        const Vec<float> signedBias = (v & Set<float>(-0.0f)) | Set<float>(bias);
        return TruncateToInt(IfThenElseZero(v == v, bounded + signedBias));
    }
};

template <class S, class D, int Elements, int Channels>
PxlStatus Convert(Image<const S, Elements, Channels> src, Image<D, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = check(widenedSize(dst, roi), null(src, dst), size(roi), steps(src, dst)))
        return status;
    return pointwise::convert(KeepValue<S, D>(), src, dst, roi);
}

template <class D, int Elements, int Channels>
PxlStatus ConvertRounded(Image<const float, Elements, Channels> src, Image<D, Elements, Channels> dst, ImageSize roi,
                         int mode) {
    if (const PxlStatus status = check(widenedSize(dst, roi), null(src, dst), size(roi), steps(src, dst)))
        return status;
    if (mode == PXL_ROUND_NEAR_EVEN) return pointwise::convert(RoundToNearest<D>(), src, dst, roi);
    return pointwise::convert(Truncate<D>{mode == PXL_ROUND_ZERO ? 0.0f : 0.5f}, src, dst, roi);
}

} // namespace
} // namespace pxl::PXL_TARGET::exchange

#include "members/exchange/convert.inc"
