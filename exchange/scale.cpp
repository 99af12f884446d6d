// Scale: the whole range of the source type mapped linearly onto the whole range of the destination type, where 32f stands
// for vMin..vMax.
//
// Integer types: the spans divide without remainder (65535 = 257 * 255 and 4294967295 = 16843009 * 255), so widening repeats
// the byte, and narrowing divides by an odd number: no value lies half way and rounding to nearest leaves no choice.
// 32f8u: the formula is applied literally in single precision; see FromFloat for the ends of the range.
#include "exchange/conversion.h"
#include "exchange/rounding.h"

namespace pxl::PXL_TARGET {
namespace {

// The byte repeated in every byte of D is the byte times 257 or 16843009; signed types start at their minimum.
template <class D>
struct RepeatByte {
    using Source = uint8_t;
    using Result = D;
    using Lane = D;

    PXL_INLINE Vec<D> operator()(Vec<uint8_t> bytes) const {
        using Bits = std::make_unsigned_t<D>;
        constexpr Bits signBit = std::is_signed_v<D> ? Bits{1} << (8 * sizeof(D) - 1) : 0;
        return BitCast<D>(RepeatFirst<Bits>(bytes) ^ Set<Bits>(signBit));
    }
};

template <class S>
struct NarrowToByte;

// (u + 128) / 257 for u = 0..65535 above the minimum of S. 65281 / 2^24 is 1 / 257 with an error that no 17-bit number can
// see, and where the sum saturates the quotient is 255 either way.
template <class S>
    requires(sizeof(S) == 2)
struct NarrowToByte<S> {
    using Source = S;
    using Result = uint8_t;
    using Lane = int16_t;

    PXL_INLINE Vec<int16_t> operator()(Vec<S> v) const {
        Vec<uint16_t> u = BitCast<uint16_t>(v);
        if constexpr (std::is_signed_v<S>) u = u ^ Set<uint16_t>(0x8000);
        const Vec<uint16_t> sum = SaturatedAdd(u, Set<uint16_t>(128));
        return BitCast<int16_t>(ShiftRight<8>(MultiplyHigh(sum, Set<uint16_t>(65281))));
    }
};

// v / 16843009 rounded down, plus 128. With b = 16843009 the multiples of b are k * 2^24 + (k * b >> 8), so taking v >> 8
// from v leaves the quotient in the upper byte; negative values sit one higher.
template <>
struct NarrowToByte<int32_t> {
    using Source = int32_t;
    using Result = uint8_t;
    using Lane = int32_t;

    PXL_INLINE Vec<int32_t> operator()(Vec<int32_t> v) const {
        const Vec<int32_t> quotient = ShiftRight<24>(v - ShiftRight<8>(v) + ShiftRight<31>(v));
        return quotient + Set<int32_t>(128);
    }
};

struct ToFloat {
    using Source = uint8_t;
    using Result = float;
    using Lane = float;
    float slope, vMin;

    PXL_INLINE Vec<float> operator()(Vec<uint8_t> v) const {
        return PromoteFirst<float>(v) * Set<float>(slope) + Set<float>(vMin);
    }
};

// Inside vMin..vMax, x becomes x * slope + origin, rounded as exchange/rounding.h tells.
struct Line {
    float slope, origin;

    float at(float x) const { return x * slope + origin; }
    PXL_INLINE Vec<float> at(Vec<float> x) const { return x * Set<float>(slope) + Set<float>(origin); }
};

inline Line lineOf(float vMin, float vMax) {
    const float slope = 255.0f / (vMax - vMin);
    return {slope, (0.0f - slope) * vMin};
}

// At or above vMax, and for NaN, 255; at or below vMin, 0; between, the line, with NaN as 0.
struct FromFloat {
    using Source = float;
    using Result = uint8_t;
    using Lane = int32_t;
    float vMin, vMax;
    Line line;

    PXL_INLINE Vec<int32_t> operator()(Vec<float> x) const {
        const Vec<float> onLine = tiesToEven(line.at(x));
        const Vec<int32_t> v = NearestInt(Min(Set<float>(255.0f), onLine)); // NaN: the minimum of 32s, narrowed to 0
        const Vec<int32_t> above0 = IfThenElseZero(x > Set<float>(vMin), v);
        return IfThenElse(x < Set<float>(vMax), above0, Set<int32_t>(255));
    }
};

// The same where the line covers all x by itself.
struct FromFloatSteady {
    using Source = float;
    using Result = uint8_t;
    using Lane = int32_t;
    Line line;

    PXL_INLINE Vec<int32_t> operator()(Vec<float> x) const {
        return NearestInt(Min(line.at(x), Set<float>(255.0f))); // NaN: 255
    }
};

inline bool isFinite(float x) { return x - x == 0.0f; }
inline float magnitudeOf(float x) { return x < 0.0f ? -x : x; }

// Whether a line can do without the bounds and without care for the one value that rounds differently.
//   - It rises, its roundings included, so one look at each end covers all that lies beyond. Bounds close together and far
//     from 0 lose the ends to cancellation; extreme ones overflow.
//   - With an origin of 2 or more, what adds up to about 0.5 has magnitudes of 1.5 or more: the sum is exact and a multiple of
//     2^-23, so it is not 0.5 + 2^-24. With an origin of 0, the sum that is not needed makes the adjustment.
inline bool makeSteady(Line& line, float vMin, float vMax) {
    if (!isFinite(line.slope) || !isFinite(line.origin) || !(line.slope > 0.0f)) return false;
    if (line.origin == 0.0f)
        line.origin = -tieReach;
    else if (magnitudeOf(line.origin) < 2.0f)
        return false;
    return line.at(vMin) <= 0.5f && line.at(vMax) > 254.5f;
}

template <class D, int Elements>
PxlStatus ScaleWiden(const uint8_t* src, int srcStep, D* dst, int dstStep, ImageSize roi) {
    const PxlStatus status = checkConversion<Elements>(src, srcStep, dst, dstStep, roi);
    if (status != PXL_OK) return status;
    return convertElements(RepeatByte<D>(), src, srcStep, dst, dstStep, roi, Elements);
}

template <class D>
PxlStatus ScaleWidenColour(const uint8_t* src, int srcStep, D* dst, int dstStep, ImageSize roi) {
    const PxlStatus status = checkConversion<1>(src, srcStep, dst, dstStep, roi);
    if (status != PXL_OK) return status;
    return convertColours(RepeatByte<D>(), src, srcStep, dst, dstStep, roi);
}

// Every hint gives the same, exact, result: the single-precision formula that hint 2 stands for in 16s8u agrees with it.
template <class S, int Elements>
PxlStatus ScaleNarrow(const S* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roi, int /*hint*/) {
    const PxlStatus status = checkConversion<Elements>(src, srcStep, dst, dstStep, roi);
    if (status != PXL_OK) return status;
    return convertElements(NarrowToByte<S>(), src, srcStep, dst, dstStep, roi, Elements);
}

template <class S>
PxlStatus ScaleNarrowColour(const S* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roi, int /*hint*/) {
    const PxlStatus status = checkConversion<1>(src, srcStep, dst, dstStep, roi);
    if (status != PXL_OK) return status;
    return convertColours(NarrowToByte<S>(), src, srcStep, dst, dstStep, roi);
}

// Tested before anything else, the pointers included. A NaN bound passes.
inline bool isEmptyRange(float vMin, float vMax) { return vMax - vMin <= 0.0f; }

template <int Elements>
PxlStatus ScaleToFloat(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roi, float vMin, float vMax) {
    if (isEmptyRange(vMin, vMax)) return PXL_E_SCALE_RANGE;
    const PxlStatus status = checkConversion<Elements>(src, srcStep, dst, dstStep, roi);
    if (status != PXL_OK) return status;
    return convertElements(ToFloat{(vMax - vMin) / 255.0f, vMin}, src, srcStep, dst, dstStep, roi, Elements);
}

PxlStatus ScaleToFloatColour(const uint8_t* src, int srcStep, float* dst, int dstStep, ImageSize roi, float vMin,
                             float vMax) {
    if (isEmptyRange(vMin, vMax)) return PXL_E_SCALE_RANGE;
    const PxlStatus status = checkConversion<1>(src, srcStep, dst, dstStep, roi);
    if (status != PXL_OK) return status;
    return convertColours(ToFloat{(vMax - vMin) / 255.0f, vMin}, src, srcStep, dst, dstStep, roi);
}

template <int Elements>
PxlStatus ScaleFromFloat(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roi, float vMin,
                         float vMax) {
    if (isEmptyRange(vMin, vMax)) return PXL_E_SCALE_RANGE;
    const PxlStatus status = checkConversion<Elements>(src, srcStep, dst, dstStep, roi);
    if (status != PXL_OK) return status;
    Line steady = lineOf(vMin, vMax);
    if (makeSteady(steady, vMin, vMax))
        return convertElements(FromFloatSteady{steady}, src, srcStep, dst, dstStep, roi, Elements);
    return convertElements(FromFloat{vMin, vMax, lineOf(vMin, vMax)}, src, srcStep, dst, dstStep, roi, Elements);
}

PxlStatus ScaleFromFloatColour(const float* src, int srcStep, uint8_t* dst, int dstStep, ImageSize roi, float vMin,
                               float vMax) {
    if (isEmptyRange(vMin, vMax)) return PXL_E_SCALE_RANGE;
    const PxlStatus status = checkConversion<1>(src, srcStep, dst, dstStep, roi);
    if (status != PXL_OK) return status;
    Line steady = lineOf(vMin, vMax);
    if (makeSteady(steady, vMin, vMax))
        return convertColours(FromFloatSteady{steady}, src, srcStep, dst, dstStep, roi);
    return convertColours(FromFloat{vMin, vMax, lineOf(vMin, vMax)}, src, srcStep, dst, dstStep, roi);
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/exchange/scale.inc"
