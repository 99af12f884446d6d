// Shifts by one count for all lanes, and by a count of its own for every lane, for lanes of 1, 2 and 4 bytes.
//
// Left shifts and right shifts of unsigned lanes bring in zeros, also for counts from the lane's width up; right shifts of
// signed lanes bring in the sign. What the counts need is prepared once.
#pragma once

#include "frame/vec/arithmetic.h"

namespace pxl::PXL_TARGET::arith {

template <class T>
inline constexpr uint32_t bitsOf = 8 * sizeof(T);
template <class T>
using UnsignedLane = typename UnsignedOf<sizeof(T)>::type;

// One count, at most the width of the lane less one.
template <class T, bool Left>
struct SameShift {
    using U = UnsignedLane<T>;
    int count;
    Vec<U> kept; // 1-byte lanes shift as pairs: the bits that stay within their byte
    Vec<U> sign; // where the sign bit, biased away before the shift, has gone

    PXL_INLINE explicit SameShift(uint32_t n)
        : count(static_cast<int>(n)), kept(Set<U>(static_cast<U>(Left ? 0xFF << n : 0xFF >> n))),
          sign(Set<U>(static_cast<U>(U{1} << (bitsOf<T> - 1) >> n))) {}

    PXL_INLINE Vec<T> operator()(Vec<T> v) const {
        if constexpr (sizeof(T) > 1) {
            return Left ? ShiftLeftSame(v, count) : ShiftRightSame(v, count);
        } else if constexpr (!Left && std::is_signed_v<T>) {
            const Vec<U> biased = BitCast<U>(v) ^ Set<U>(0x80);
            return BitCast<T>((inPairs(biased) & kept) - sign);
        } else {
            return BitCast<T>(inPairs(BitCast<U>(v)) & kept);
        }
    }

private:
    PXL_INLINE Vec<U> inPairs(Vec<U> v) const {
        const Vec<uint16_t> pairs = BitCast<uint16_t>(v);
        return BitCast<U>(Left ? ShiftLeftSame(pairs, count) : ShiftRightSame(pairs, count));
    }
};

// 2^n modulo 2^16, for lanes n of 0..16.
PXL_INLINE Vec<uint16_t> powersOf2(Vec<uint16_t> n) {
    const Vec<uint16_t> one = Set<uint16_t>(1);
    const auto factor = [&](Vec<uint16_t> bit, uint16_t power) __attribute__((always_inline)) {
        return one + (bit & one) * Set<uint16_t>(static_cast<uint16_t>(power - 1));
    };
    const Vec<uint16_t> lower = factor(n, 2) * factor(ShiftRight<1>(n), 4);
    const Vec<uint16_t> upper = factor(ShiftRight<2>(n), 16) * factor(ShiftRight<3>(n), 256);
    return lower * upper * (one - ShiftRight<4>(n));
}

// A count for every lane, at most its width, zeros coming in. Lanes of 1 and 2 bytes shift by multiplying with powers of two.
template <size_t Bytes, bool Left>
struct UnsignedLaneShift;

template <bool Left>
struct UnsignedLaneShift<1, Left> {
    Vec<uint16_t> even, odd; // factors of the lower and the upper byte of every pair

    PXL_INLINE explicit UnsignedLaneShift(Vec<uint8_t> counts) {
        const Vec<uint16_t> n = BitCast<uint16_t>(Left ? counts : Set<uint8_t>(8) - counts);
        even = powersOf2(n & Set<uint16_t>(0xFF));
        odd = powersOf2(ShiftRight<8>(n));
    }
    PXL_INLINE Vec<uint8_t> operator()(Vec<uint8_t> v) const {
        const Vec<uint16_t> pairs = BitCast<uint16_t>(v), low = Set<uint16_t>(0xFF);
        if constexpr (Left) return BitCast<uint8_t>(((pairs * even) & low) | (AndNot(low, pairs) * odd));
        return BitCast<uint8_t>(ShiftRight<8>((pairs & low) * even) | AndNot(low, ShiftRight<8>(pairs) * odd));
    }
};

template <bool Left>
struct UnsignedLaneShift<2, Left> {
    Vec<uint16_t> factor;
    Mask<uint16_t> unshifted; // right: lanes of count 0, whose factor of 2^16 does not fit

    PXL_INLINE explicit UnsignedLaneShift(Vec<uint16_t> counts)
        : factor(powersOf2(Left ? counts : Set<uint16_t>(16) - counts)), unshifted(counts == Zero<uint16_t>()) {}
    PXL_INLINE Vec<uint16_t> operator()(Vec<uint16_t> v) const {
        if constexpr (Left) return v * factor;
        return MulHigh(v, factor) | (v & unshifted);
    }
};

template <bool Left>
struct UnsignedLaneShift<4, Left> {
    LaneCounts counts;

    PXL_INLINE explicit UnsignedLaneShift(Vec<uint32_t> n) : counts(n) {}
    PXL_INLINE Vec<uint32_t> operator()(Vec<uint32_t> v) const { return Left ? v << counts : v >> counts; }
};

template <class T, bool Left>
struct LaneShift {
    using U = UnsignedLane<T>;
    static constexpr U signBit = U{1} << (bitsOf<T> - 1);
    UnsignedLaneShift<sizeof(T), Left> shift;
    Vec<U> sign; // where the sign bit, biased away before an arithmetic shift, has gone

    PXL_INLINE explicit LaneShift(Vec<U> counts) : shift(counts), sign(shift(Set<U>(signBit))) {}

    PXL_INLINE Vec<T> operator()(Vec<T> v) const {
        const Vec<U> u = BitCast<U>(v);
        if constexpr (!Left && std::is_signed_v<T>)
            return BitCast<T>(shift(u ^ Set<U>(signBit)) - sign);
        else
            return BitCast<T>(shift(u));
    }
};

} // namespace pxl::PXL_TARGET::arith
