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

// A count for every lane, zeros coming in. Lanes of 1 and 2 bytes shift by multiplying with powers of two.
template <size_t Bytes, bool Left>
struct UnsignedLaneShift;

template <bool Left>
struct UnsignedLaneShift<1, Left> {
    Vec<uint16_t> even, odd; // factors of the lower and the upper byte of every pair

    PXL_INLINE explicit UnsignedLaneShift(const uint32_t* counts) {
        alignas(vecBytes) uint16_t factors[2][lanes<uint16_t>];
        for (int i = 0; i < lanes<uint8_t>; ++i) {
            const uint32_t n = counts[i];
            factors[i % 2][i / 2] = static_cast<uint16_t>(n > 7 ? 0 : Left ? 1 << n : 256 >> n);
        }
        even = LoadU(factors[0]);
        odd = LoadU(factors[1]);
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
    Vec<uint16_t> unshifted; // right: lanes of count 0, whose factor of 2^16 does not fit

    PXL_INLINE explicit UnsignedLaneShift(const uint32_t* counts) {
        alignas(vecBytes) uint16_t factors[lanes<uint16_t>], zeros[lanes<uint16_t>];
        for (int i = 0; i < lanes<uint16_t>; ++i) {
            const uint32_t n = counts[i];
            factors[i] = static_cast<uint16_t>(n > 15 ? 0 : Left ? 1 << n : 0x10000 >> n);
            zeros[i] = n == 0 ? 0xFFFF : 0;
        }
        factor = LoadU(factors);
        unshifted = LoadU(zeros);
    }
    PXL_INLINE Vec<uint16_t> operator()(Vec<uint16_t> v) const {
        if constexpr (Left) return v * factor;
        return MulHigh(v, factor) | (v & unshifted);
    }
};

template <bool Left>
struct UnsignedLaneShift<4, Left> {
    LaneCounts counts;

    PXL_INLINE explicit UnsignedLaneShift(const uint32_t* n) : counts(n) {}
    PXL_INLINE Vec<uint32_t> operator()(Vec<uint32_t> v) const { return Left ? v << counts : v >> counts; }
};

template <class T, bool Left>
struct LaneShift {
    using U = UnsignedLane<T>;
    static constexpr bool arithmetic = !Left && std::is_signed_v<T>;
    UnsignedLaneShift<sizeof(T), Left> shift;
    Vec<U> sign; // where the sign bit, biased away before an arithmetic shift, has gone

    // counts: one per lane
    PXL_INLINE explicit LaneShift(const uint32_t* counts) : shift(counts) {
        alignas(vecBytes) U bits[lanes<U>];
        for (int i = 0; i < lanes<U>; ++i) bits[i] = static_cast<U>(U{1} << (bitsOf<T> - 1) >> (counts[i] & 31));
        sign = LoadU(bits);
    }
    PXL_INLINE Vec<T> operator()(Vec<T> v) const {
        const Vec<U> u = BitCast<U>(v);
        if constexpr (arithmetic)
            return BitCast<T>(shift(u ^ Set<U>(U{1} << (bitsOf<T> - 1))) - sign);
        else
            return BitCast<T>(shift(u));
    }
};

} // namespace pxl::PXL_TARGET::arith
