// Shifts of every element by one count per channel. Counts from the element's width up give 0, or the sign for right shifts of
// signed types. Checks come in the order pointers, steps, size.
#include "arith/lane_shifts.h"
#include "frame/checks.h"
#include "pointwise/run.h"

namespace pxl::PXL_TARGET::arith {
namespace {

template <class T, bool Left>
inline constexpr bool bringsSign = !Left && std::is_signed_v<T>;

// The same count in all channels. A count that leaves nothing of the element becomes a mask without bits.
template <class T, bool Left>
struct ShiftSame {
    SameShift<T, Left> shift;
    Mask<T> kept;

    explicit ShiftSame(uint32_t n)
        : shift(n < bitsOf<T> ? n : bitsOf<T> - 1),
          kept(n < bitsOf<T> || bringsSign<T, Left> ? ~Zero<MaskLane<T>>() : Zero<MaskLane<T>>()) {}

    PXL_INLINE Vec<T> operator()(Vec<T> v) const { return IfThenElseZero(kept, shift(v)); }
};

// A count for every channel, as a constant of the elements' type that is at most their width.
template <class T, bool Left>
struct ShiftEach {
    PXL_INLINE LaneShift<T, Left> prepare(Vec<T> counts) const {
        return LaneShift<T, Left>(BitCast<UnsignedLane<T>>(counts));
    }
    PXL_INLINE Vec<T> operator()(Vec<T> v, const LaneShift<T, Left>& shift) const { return shift(v); }

    static T countOf(uint32_t n) {
        constexpr uint32_t most = bringsSign<T, Left> ? bitsOf<T> - 1 : bitsOf<T>;
        return static_cast<T>(n < most ? n : most);
    }
};

template <int Channels>
bool allEqual(Values<uint32_t, Channels> counts) {
    for (int c = 1; c < Channels; ++c)
        if (counts[c] != counts[0]) return false;
    return true;
}

template <bool Left, class T, int Elements, int Channels>
PxlStatus shift(Image<const T, Elements, Channels> src, Values<uint32_t, Channels> counts,
                Image<T, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = check(null(src, counts, dst), steps(src, dst), size(roi))) return status;
    if (Channels == 1 || allEqual(counts))
        return pointwise::run<T>(pointwise::OneSource(src, dst, roi), ShiftSame<T, Left>(counts[0]));
    using Op = ShiftEach<T, Left>;
    T each[Channels];
    for (int c = 0; c < Channels; ++c) each[c] = Op::countOf(counts[c]);
    return pointwise::run<T>(pointwise::WithConstants(src, Values<T, Channels>{each}, dst, roi), Op{});
}

template <class T, int Elements, int Channels>
PxlStatus LShiftC(Image<const T, Elements, Channels> src, Values<uint32_t, Channels> counts,
                  Image<T, Elements, Channels> dst, ImageSize roi) {
    return shift<true>(src, counts, dst, roi);
}

template <class T, int Elements, int Channels>
PxlStatus RShiftC(Image<const T, Elements, Channels> src, Values<uint32_t, Channels> counts,
                  Image<T, Elements, Channels> dst, ImageSize roi) {
    return shift<false>(src, counts, dst, roi);
}

} // namespace
} // namespace pxl::PXL_TARGET::arith

#include "members/arith/shift.inc"
