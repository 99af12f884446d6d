// Thresholds: pixels on one side of a threshold, or of one of two, are replaced. All comparisons are strict and ordered, so a
// pixel equal to its threshold stays, and so does NaN.
#include "frame/checks.h"
#include "pointwise/by_channel.h"
#include "pointwise/run.h"

namespace pxl::PXL_TARGET::threshold {
namespace {

// By the threshold itself. The second operand is what comes out where they are equal or one is NaN.
struct NotAbove {
    template <class T>
    PXL_INLINE Vec<T> operator()(Vec<T> v, Vec<T> threshold) const {
        return Min(threshold, v);
    }
};
struct NotBelow {
    template <class T>
    PXL_INLINE Vec<T> operator()(Vec<T> v, Vec<T> threshold) const {
        return Max(threshold, v);
    }
};

// By a value of its own. Of unsigned integers it is told which stay, since they have no comparison but for equality.
template <bool Above, class T>
PXL_INLINE Vec<T> replaced(Vec<T> v, Vec<T> threshold, Vec<T> value) {
    if constexpr (!std::is_unsigned_v<T>) return IfThenElse(Above ? v > threshold : v < threshold, value, v);
    return IfThenElse((Above ? Min(v, threshold) : Max(v, threshold)) == v, v, value);
}

template <class T, bool Above>
struct Replace {
    pointwise::ByChannel<T> threshold, value;
    struct Prepared {
        Vec<T> threshold, value;
    };

    PXL_INLINE Prepared prepare(Vec<T> channels) const {
        return {threshold.inLanes(channels), value.inLanes(channels)};
    }
    PXL_INLINE Vec<T> operator()(Vec<T> v, const Prepared& p) const { return replaced<Above>(v, p.threshold, p.value); }
};

template <class T>
struct ReplaceOutside {
    static constexpr bool isLong = true;
    pointwise::ByChannel<T> low, below, high, above;
    struct Prepared {
        Vec<T> low, below, high, above;
    };

    PXL_INLINE Prepared prepare(Vec<T> channels) const {
        return {low.inLanes(channels), below.inLanes(channels), high.inLanes(channels), above.inLanes(channels)};
    }
    PXL_INLINE Vec<T> operator()(Vec<T> v, const Prepared& p) const {
        const Vec<T> notBelow = replaced<false>(v, p.low, p.below);
        if constexpr (!std::is_unsigned_v<T>) return IfThenElse(v > p.high, p.above, notBelow);
        return IfThenElse(Min(v, p.high) == v, notBelow, p.above);
    }
};

Check strict(PxlCmpOp op) { return refuse(op != PXL_CMP_LESS && op != PXL_CMP_GREATER, PXL_E_NOT_SUPPORTED_MODE); }

template <class T, int Elements, int Channels>
PxlStatus Threshold(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst, ImageSize roi,
                    Values<T, Channels> thresholds, PxlCmpOp op) {
    if (const PxlStatus status = check(strict(op), null(src, dst), size(roi), steps(src, dst), null(thresholds)))
        return status;
    const pointwise::WithConstants operands(src, thresholds, dst, roi);
    return op == PXL_CMP_LESS ? pointwise::run<T>(operands, NotBelow{}) : pointwise::run<T>(operands, NotAbove{});
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus ThresholdGT(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst,
                                 ImageSize roi, Values<T, Channels> thresholds) {
    return Threshold(src, dst, roi, thresholds, PXL_CMP_GREATER);
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus ThresholdLT(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst,
                                 ImageSize roi, Values<T, Channels> thresholds) {
    return Threshold(src, dst, roi, thresholds, PXL_CMP_LESS);
}

template <class T, int Elements, int Channels>
PxlStatus ThresholdVal(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst, ImageSize roi,
                       Values<T, Channels> thresholds, Values<T, Channels> values, PxlCmpOp op) {
    if (const PxlStatus status =
            check(strict(op), null(src, dst), size(roi), steps(src, dst), null(thresholds, values)))
        return status;
    const pointwise::WithConstants operands(src, pointwise::numbersOfChannels<T, Channels>, dst, roi);
    const pointwise::ByChannel<T> threshold(thresholds), value(values);
    return op == PXL_CMP_LESS ? pointwise::run<T>(operands, Replace<T, false>{threshold, value})
                              : pointwise::run<T>(operands, Replace<T, true>{threshold, value});
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus ThresholdGTVal(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst,
                                    ImageSize roi, Values<T, Channels> thresholds, Values<T, Channels> values) {
    return ThresholdVal(src, dst, roi, thresholds, values, PXL_CMP_GREATER);
}

template <class T, int Elements, int Channels>
PXL_INLINE PxlStatus ThresholdLTVal(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst,
                                    ImageSize roi, Values<T, Channels> thresholds, Values<T, Channels> values) {
    return ThresholdVal(src, dst, roi, thresholds, values, PXL_CMP_LESS);
}

template <class T, int Channels>
bool anyCrossed(Values<T, Channels> low, Values<T, Channels> high) {
    for (int c = 0; c < Channels; ++c)
        if (high[c] < low[c]) return true;
    return false;
}

template <class T, int Elements, int Channels>
PxlStatus ThresholdLTValGTVal(Image<const T, Elements, Channels> src, Image<T, Elements, Channels> dst, ImageSize roi,
                              Values<T, Channels> low, Values<T, Channels> below, Values<T, Channels> high,
                              Values<T, Channels> above) {
    if (const PxlStatus status = check(null(src, dst), size(roi), steps(src, dst), null(low, below, high, above),
                                       refuseIf([&] { return anyCrossed(low, high); }, PXL_E_THRESHOLD)))
        return status;
    using pointwise::ByChannel;
    const pointwise::WithConstants operands(src, pointwise::numbersOfChannels<T, Channels>, dst, roi);
    const ReplaceOutside<T> op{ByChannel<T>(low), ByChannel<T>(below), ByChannel<T>(high), ByChannel<T>(above)};
    return pointwise::run<T>(operands, op);
}

} // namespace
} // namespace pxl::PXL_TARGET::threshold

#include "members/threshold/threshold.inc"
