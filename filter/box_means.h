// From the sums of windows to their means, exactly as each type has them. Means go to the lanes of the sums; of integers, the
// bits of the type count; means of 16s still have the bias of the samples.
#pragma once

#include "frame/vec/vec.h"

namespace pxl::PXL_TARGET::filter {

// Adds to 16s samples what makes every sum non-negative.
template <class T>
inline constexpr uint32_t boxBias = std::is_same_v<T, int16_t> ? 32768 : 0;

// 8u up to this mask area: by multiplication and shift.
inline constexpr int32_t boxIntegerArea = 8100;
// 8u up to this mask area: the sum fits 16 bits.
inline constexpr int32_t boxNarrowArea = 257;
// Up to this mask area, or of one column up to this height, the sum fits 31 bits: 8421504 of 8u, 32768 of 16-bit types.
template <class T>
inline constexpr int32_t boxPositiveArea = INT32_MAX / static_cast<std::make_unsigned_t<T>>(-1);

// The mean is (sum * factor) >> shift, with 2^shift / area < factor <= 4096: multiples of the area give the exact quotient and
// other sums its integer part. The shift is at most 24, so the product of a sum of 255s, 255 / 256 of 2^32 and less than
// 1 / 2048 of that more, fits 32 bits.
struct BoxFactor {
    uint32_t factor = 256;
    int shift = 8;

    explicit BoxFactor(int32_t area) {
        const float reciprocal = 1.0f / static_cast<float>(area);
        if (reciprocal >= 1.0f) return;
        uint32_t v = static_cast<uint32_t>(static_cast<int64_t>(static_cast<double>(reciprocal) * 4294967295.0));
        int doublings = 0;
        for (; doublings < 24 && !(v >> 31); ++doublings) v *= 2;
        factor = (v >> 20) + 1;
        shift = doublings + 12;
    }
    // Three channels with a 3x3 mask have a finer factor.
    BoxFactor(uint32_t f, int s) : factor(f), shift(s) {}
};

// 8u, in lanes of 32 bits.
struct BoxMeanInteger {
    using Sum = uint32_t;
    Vec<uint32_t> factor;
    ShiftCount<uint32_t> shift;

    explicit BoxMeanInteger(BoxFactor f) : factor(Set<uint32_t>(f.factor)), shift(f.shift) {}
    PXL_INLINE Vec<uint32_t> operator()(Vec<uint32_t> sum) const { return (sum * factor) >> shift; }
};

// 8u, in lanes of 16 bits that hold the whole sum: the upper half of the product with the factor moved up.
struct BoxMeanNarrow {
    using Sum = uint16_t;
    Vec<uint16_t> factor;
    ShiftCount<uint16_t> shift;

    explicit BoxMeanNarrow(BoxFactor f)
        : factor(Set<uint16_t>(static_cast<uint16_t>(f.shift < 16 ? f.factor << (16 - f.shift) : f.factor))),
          shift(f.shift < 16 ? 0 : f.shift - 16) {}
    PXL_INLINE Vec<uint16_t> operator()(Vec<uint16_t> sum) const { return MulHigh(sum, factor) >> shift; }
};

// The sums of a vector's windows where they need more than 31 bits: exact up to 53, rounded once when they become floats.
struct WideSums {
    Vec<double> lower, upper;

    WideSums() = default;
    PXL_INLINE WideSums(Vec<double> l, Vec<double> u) : lower(l), upper(u) {}
    // Of signed integers.
    PXL_INLINE explicit WideSums(Vec<uint32_t> v)
        : lower(PromoteLowerToDouble(BitCast<int32_t>(v))), upper(PromoteUpperToDouble(BitCast<int32_t>(v))) {}
};
PXL_INLINE WideSums operator+(const WideSums& sums, Vec<uint32_t> v) {
    const WideSums gain(v);
    return {sums.lower + gain.lower, sums.upper + gain.upper};
}

PXL_INLINE Vec<float> boxProduct(Vec<uint32_t> sum, Vec<float> reciprocal) {
    return ConvertToFloat(BitCast<int32_t>(sum)) * reciprocal;
}
PXL_INLINE Vec<float> boxProduct(const WideSums& sum, Vec<float> reciprocal) {
    return ConvertToFloat(sum.lower, sum.upper) * reciprocal;
}

// 8u above that area, and 16s.
template <class T>
struct BoxMeanFloat {
    using Sum = uint32_t;
    Vec<float> reciprocal;

    explicit BoxMeanFloat(float r) : reciprocal(Set<float>(r)) {}
    template <class WindowSum>
    PXL_INLINE Vec<uint32_t> operator()(const WindowSum& sum) const {
        const Vec<float> mean = boxProduct(sum, reciprocal) + Set<float>(9.0e-6f);
        const Vec<uint32_t> whole = BitCast<uint32_t>(TruncateToInt(mean));
        return sizeof(T) == 1 ? whole & Set<uint32_t>(0xFF) : whole;
    }
};

// trunc(v + added), the sum in double precision.
PXL_INLINE Vec<uint32_t> truncateSum(Vec<float> v, Vec<double> added) {
    return BitCast<uint32_t>(TruncateToInt(PromoteLowerToDouble(v) + added, PromoteUpperToDouble(v) + added));
}

// 16u, and 16s of four channels: a fraction is added to the single-precision product in double precision.
template <class T>
struct BoxMeanDouble {
    using Sum = uint32_t;
    Vec<float> reciprocal;

    explicit BoxMeanDouble(float r) : reciprocal(Set<float>(r)) {}
    template <class WindowSum>
    PXL_INLINE Vec<uint32_t> operator()(const WindowSum& sum) const {
        constexpr double added = std::is_same_v<T, uint16_t> ? 0.5000001 : 9.0e-6;
        return truncateSum(boxProduct(sum, reciprocal), Set<double>(added));
    }
};

// The same of sums that fit 31 bits, without double precision: the mean is the integer part of the product, and one more
// where the rest reaches 1 less that fraction. The rest is exact, and a multiple of 2^-25 where it matters. Of those, the
// first that reaches 1 - 0.5000001 is 0.5 - 3 * 2^-25, and the first that reaches 1 - 9.0e-6 is 1 - 150 * 2^-24; both are so
// far from the limit itself that the rounding of a sum in double precision changes nothing.
template <class T>
struct BoxMeanExact {
    using Sum = uint32_t;
    Vec<float> reciprocal;

    explicit BoxMeanExact(float r) : reciprocal(Set<float>(r)) {}
    PXL_INLINE Vec<uint32_t> operator()(Vec<uint32_t> sum) const {
        constexpr float least = std::is_same_v<T, uint16_t> ? 0.5f - 3 * 0x1p-25f : 1.0f - 150 * 0x1p-24f;
        const Vec<float> product = boxProduct(sum, reciprocal);
        const Vec<int32_t> whole = TruncateToInt(product);
        const Vec<float> rest = product - ConvertToFloat(whole);
        return BitCast<uint32_t>(whole) - (Set<float>(least) <= rest); // a mask that holds is -1
    }
};

struct BoxMean32f {
    using Sum = float;
    Vec<float> reciprocal;

    explicit BoxMean32f(float r) : reciprocal(Set<float>(r)) {}
    PXL_INLINE Vec<float> operator()(Vec<float> sum) const { return sum * reciprocal; }
};

} // namespace pxl::PXL_TARGET::filter
