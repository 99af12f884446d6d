// Shifts of every element by one count per channel. Counts from the element's width up give 0, or the sign for right shifts of
// signed types. Checks come in the order pointers, steps, size.
#include "arith/lane_shifts.h"
#include "arith/rows.h"
#include "frame/checks.h"

namespace pxl::PXL_TARGET {
namespace {

template <class T, bool Left>
inline constexpr bool bringsSign = !Left && std::is_signed_v<T>;

// The shifts of a row for counts that differ by channel, as vectors of one period. The fourth of AC4 is not shifted.
template <class T, bool Left>
struct ShiftsOf {
    template <int Elements, int Channels>
    struct Make {
        static constexpr int count = Elements == 3 ? 3 : 1;
        LaneShift<T, Left> vectors[count];

        explicit Make(const uint32_t* counts) : Make(counts, std::make_integer_sequence<int, count>()) {}

    private:
        template <int... V>
        Make(const uint32_t* counts, std::integer_sequence<int, V...>) : vectors{forVector(counts, V)...} {}

        static LaneShift<T, Left> forVector(const uint32_t* counts, int v) {
            alignas(vecBytes) uint32_t own[lanes<T>];
            for (int i = 0; i < lanes<T>; ++i) {
                const int channel = (v * lanes<T> + i) % Elements;
                const uint32_t n = channel < Channels ? counts[channel] : 0;
                own[i] = bringsSign<T, Left> && n >= bitsOf<T> ? bitsOf<T> - 1 : n;
            }
            return LaneShift<T, Left>(own);
        }
    };
};

template <class T, bool Left>
struct ShiftBy {
    PXL_INLINE Vec<T> operator()(Vec<T> v, const LaneShift<T, Left>& shift) const { return shift(v); }
};

// The same count in all channels. A count that leaves nothing of the element becomes a mask without bits.
template <class T, bool Left>
struct ShiftSame {
    SameShift<T, Left> shift;
    Mask<T> kept;

    explicit ShiftSame(uint32_t n)
        : shift(n < bitsOf<T> ? n : bitsOf<T> - 1),
          kept(n < bitsOf<T> || bringsSign<T, Left> ? ~Zero<MaskLane<T>>() : Zero<MaskLane<T>>()) {}

    template <class C>
    PXL_INLINE Vec<T> operator()(Vec<T> v, const C&) const {
        return IfThenElseZero(kept, shift(v));
    }
};

template <int Channels>
bool allEqual(const uint32_t* counts) {
    for (int c = 1; c < Channels; ++c)
        if (counts[c] != counts[0]) return false;
    return true;
}

template <class T, int Elements, int Channels, bool Left>
PxlStatus Shift(const T* src, int srcStep, const uint32_t* counts, T* dst, int dstStep, ImageSize roi) {
    if (anyNull(src, static_cast<const T*>(dst)) || !counts) return PXL_E_NULL_PTR;
    if (anyStepBelow1(srcStep, dstStep)) return PXL_E_STEP;
    if (isEmpty(roi)) return PXL_E_SIZE;
    if (allEqual<Channels>(counts)) {
        constexpr T none[4] = {};
        walkConstant<Elements, Channels>(src, srcStep, none, dst, dstStep, roi, ShiftSame<T, Left>(counts[0]));
    } else if constexpr (Channels > 1) {
        using Shifts = ShiftsOf<T, Left>;
        walkWithConstants<Elements, Channels, Shifts::template Make>(src, srcStep, counts, dst, dstStep, roi,
                                                                     ShiftBy<T, Left>{});
    }
    return PXL_OK;
}

template <class T, int Elements, int Channels>
PxlStatus LShiftC(const T* src, int srcStep, ValueArg<uint32_t, Channels> count, T* dst, int dstStep, ImageSize roi) {
    return Shift<T, Elements, Channels, true>(src, srcStep, valuesOf<Channels>(count), dst, dstStep, roi);
}

template <class T, int Elements, int Channels>
PxlStatus RShiftC(const T* src, int srcStep, ValueArg<uint32_t, Channels> count, T* dst, int dstStep, ImageSize roi) {
    return Shift<T, Elements, Channels, false>(src, srcStep, valuesOf<Channels>(count), dst, dstStep, roi);
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/arith/shift.inc"
