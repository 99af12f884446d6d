// Result scaling: an exact integer result times 2 to the power of minus scaleFactor, to nearest with ties to even,
// saturated.
//
// The shifts are operations on vectors whose constants are set up once per call; a family picks the one for its scale
// factor before it walks the region, so that no row kernel branches. scaleFactor > 0 is a rounding shift to the right
// of the exact result; scaleFactor < 0 a saturating shift to the left of the saturated result, which is the same as
// saturating the shifted one. A shift by the whole width of the lane gives the saturated sign, so there is no case of
// its own for it.
#pragma once

#include "frame/vec/arithmetic.h"

namespace pxl::PXL_TARGET {

// The count of a left shift for a negative scale factor: none acts differently from a shift by 32.
inline int leftShiftOf(int scaleFactor) { return scaleFactor < -32 ? 32 : -scaleFactor; }

// ---- to the right ---------------------------------------------------------------------------------------------------

template <class T>
class RoundingShift;

// Shifts of 16-bit lanes, and of bytes in pairs, are halves of products with powers of two, which cost half of a shift
// by a count in a register: the lower half for 0 <= count <= 16 to the left, the upper one for 1 <= count <= 16 to the
// right.
PXL_INLINE Vec<uint16_t> powerToShiftLeft(int count) { return Set<uint16_t>(static_cast<uint16_t>(1 << count)); }
PXL_INLINE Vec<uint16_t> powerToShiftRight(int count) {
    return Set<uint16_t>(static_cast<uint16_t>(1 << (16 - count)));
}

// The rounding in 16-bit lanes or bytes: (v + 2^(count-1)) >> count without overflow, as the average of v and
// 2^(count-1) - 1, shifted by one place less. There is no product for no place, so then v is averaged with 2 more and
// 2^16 - 1 times it brings it down by 1; of a pair of bytes, only the lower one is brought down.
template <class T>
class RoundedAverage {
public:
    explicit RoundedAverage(int count)
        : half_(Set<uint16_t>(static_cast<uint16_t>(((1 << (count - 1)) - 1) * (sizeof(T) == 1 ? 0x0101 : 1)))),
          power_(Set<uint16_t>(0xFFFF)), kept_(Set<uint8_t>(static_cast<uint8_t>(0xFF >> (count - 1)))) {
        if (count == 1)
            half_ = Set<uint16_t>(2);
        else
            power_ = powerToShiftRight(count - 1);
    }

    PXL_INLINE Vec<T> operator()(Vec<T> v) const {
        const Vec<T> average = AverageRound(v, BitCast<T>(half_));
        const Vec<T> shifted = BitCast<T>(MulHigh(BitCast<uint16_t>(average), power_));
        if constexpr (sizeof(T) == 1)
            return shifted & kept_;
        else
            return shifted;
    }

private:
    Vec<uint16_t> half_, power_;
    Vec<uint8_t> kept_; // the bits of a byte that come from itself
};

// Unsigned lanes of 8 or 16 bits; 1 <= count <= width. With q = v >> count the result is
// (v - 1 + q % 2 + 2^(count-1)) >> count, and v - 1 may stop at 0: 0 gives 0 both ways.
template <class T>
requires(std::is_unsigned_v<T> && sizeof(T) <= 2) class RoundingShift<T> {
public:
    explicit RoundingShift(int count)
        // Bits of a neighbouring byte must not come to stand in the lowest place, where odd quotients are looked for.
        : power_(powerToShiftRight(sizeof(T) == 1 && count > 7 ? 16 : count)), rounded_(count) {}

    PXL_INLINE Vec<T> operator()(Vec<T> v) const { return apply(v, quotient(v)); }

    // In bit 0, whether the quotient is odd; the other bits mean nothing.
    PXL_INLINE Vec<T> quotient(Vec<T> v) const { return BitCast<T>(MulHigh(BitCast<uint16_t>(v), power_)); }

    // The same for v and a fraction: bit 0 of `odd` is to be set where v is less than the value by a fraction too, and
    // clear where v is more than it by a fraction, below 1 in both cases.
    PXL_INLINE Vec<T> apply(Vec<T> v, Vec<T> odd) const { return applyEven(v, ~odd); }
    // From the complement of `odd`.
    PXL_INLINE Vec<T> applyEven(Vec<T> v, Vec<T> even) const { return rounded_(SaturatedSub(v, even & Set<T>(1))); }

private:
    Vec<uint16_t> power_;
    RoundedAverage<T> rounded_;
};

// 32-bit lanes; 1 <= count <= 30. v + 2^(count-1) must not overflow.
template <>
class RoundingShift<int32_t> {
public:
    explicit RoundingShift(int count) : count_(count), half_(Set<int32_t>((1 << (count - 1)) - 1)) {}

    PXL_INLINE Vec<int32_t> operator()(Vec<int32_t> v) const {
        const Vec<int32_t> odd = (v >> count_) & Set<int32_t>(1);
        return (v + half_ + odd) >> count_;
    }

private:
    ShiftCount<int32_t> count_;
    Vec<int32_t> half_;
};

// Any 32-bit value, or one of more bits whose quotient fits into 32; 1 <= count <= 31. The quotient is rounded up where
// the lowest `count` bits of the value are more than half of 2^count, or half of it and the quotient is odd. No sum
// overflows but that of the largest quotient and 1.
class RoundingQuotient {
public:
    explicit RoundingQuotient(int count)
        : count_(count), fraction_(Set<int32_t>(static_cast<int32_t>((1u << count) - 1))),
          half_(Set<int32_t>(1 << (count - 1))) {}

    PXL_INLINE Vec<int32_t> operator()(Vec<int32_t> v) const { return apply(v >> count_, v); }

    // lowest: the low 32 bits of the value, or its low count bits and anything above.
    PXL_INLINE Vec<int32_t> apply(Vec<int32_t> quotient, Vec<int32_t> lowest) const {
        const Vec<int32_t> odd = quotient & Set<int32_t>(1);
        const Mask<int32_t> up = odd > half_ - (lowest & fraction_);
        return BitCast<int32_t>(BitCast<uint32_t>(quotient) - up);
    }

private:
    ShiftCount<int32_t> count_;
    Vec<int32_t> fraction_, half_;
};

// 64-bit lanes; 1 <= count <= 63.
template <>
class RoundingShift<int64_t> {
public:
    explicit RoundingShift(int count)
        : count_(count), bias_(Set<uint64_t>(uint64_t{1} << (63 - count))),
          fraction_(Set<uint64_t>((uint64_t{1} << count) - 1)), half_(Set<uint64_t>((uint64_t{1} << (count - 1)) - 1)) {
    }

    PXL_INLINE Vec<int64_t> operator()(Vec<int64_t> v) const {
        const Vec<uint64_t> bits = BitCast<uint64_t>(v);
        // There is no arithmetic shift of 64 bits: the sign is biased away before and taken off again after it.
        const Vec<uint64_t> q = ((bits ^ Set<uint64_t>(uint64_t{1} << 63)) >> count_) - bias_;
        const Vec<uint64_t> odd = q & Set<uint64_t>(1);
        return BitCast<int64_t>(q + (((bits & fraction_) + half_ + odd) >> count_));
    }

private:
    ShiftCount<uint64_t> count_;
    Vec<uint64_t> bias_, fraction_, half_;
};

// ---- to the left ----------------------------------------------------------------------------------------------------

template <class T>
class SaturatingShift;

// Unsigned lanes; 1 <= count, from the width up as the width. A lane overflows where adding all but one of what lies
// above the largest value that does not overflow fills it with ones.
template <class T>
requires std::is_unsigned_v<T>
class SaturatingShift<T> {
public:
    explicit SaturatingShift(int count) {
        constexpr int width = 8 * sizeof(T), largest = (1 << width) - 1;
        if (count > width) count = width;
        power_ = powerToShiftLeft(count);
        kept_ = Set<T>(static_cast<T>(largest << count));
        filling_ = Set<T>(static_cast<T>(largest - 1 - (largest >> count)));
    }

    PXL_INLINE Vec<T> operator()(Vec<T> v) const {
        const Mask<T> overflow = SaturatedAdd(v, filling_) == ~Zero<T>();
        const Vec<T> shifted = BitCast<T>(BitCast<uint16_t>(v) * power_);
        return (sizeof(T) == 1 ? shifted & kept_ : shifted) | overflow;
    }

private:
    Vec<uint16_t> power_;
    Vec<T> kept_, filling_;
};

// Signed lanes; 1 <= count. Where shifting back does not give the lane again it overflows.
template <class T>
requires std::is_signed_v<T>
class SaturatingShift<T> {
public:
    explicit SaturatingShift(int count) : count_(count) {}

    PXL_INLINE Vec<T> operator()(Vec<T> v) const {
        const Vec<T> shifted = v << count_;
        return IfThenElse(shifted >> count_ == v, shifted, SaturatedSign(v));
    }

private:
    ShiftCount<T> count_;
};

// An operation and the shift of its result.
template <class Op, class Shift>
struct Scaled {
    static constexpr bool isLong = requires { requires Op::isLong; };
    Op op;
    Shift shift;

    template <class L>
    PXL_INLINE Vec<L> operator()(Vec<L> a, Vec<L> b) const {
        return shift(op(a, b));
    }
};
template <class Op, class Shift>
Scaled(Op, Shift) -> Scaled<Op, Shift>;

} // namespace pxl::PXL_TARGET
