// Scale: the whole range of the source type mapped linearly onto the whole range of the destination type, where 32f
// stands for vMin..vMax.
//
// Integer types: the spans divide without remainder (65535 = 257 * 255 and 4294967295 = 16843009 * 255), so widening
// repeats the byte, and narrowing divides by an odd number: no value lies half way and rounding to nearest leaves no
// choice. 32f8u: the formula is applied literally in single precision; see FromFloat for the ends of the range.
#include "exchange/rounding.h"
#include "frame/checks.h"
#include "pointwise/convert.h"

namespace pxl::PXL_TARGET::exchange {
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

// (u + 128) / 257 for u = 0..65535 above the minimum of S. 65281 / 2^24 is 1 / 257 with an error that no 17-bit number
// can see, and where the sum saturates the quotient is 255 either way.
template <class S>
struct NarrowToByte {
    using Source = S;
    using Result = uint8_t;
    using Lane = int16_t;

    PXL_INLINE Vec<int16_t> operator()(Vec<S> v) const {
        Vec<uint16_t> u = BitCast<uint16_t>(v);
        if constexpr (std::is_signed_v<S>) u = u ^ Set<uint16_t>(0x8000);
        const Vec<uint16_t> sum = SaturatedAdd(u, Set<uint16_t>(128));
        return BitCast<int16_t>(ShiftRight<8>(MulHigh(sum, Set<uint16_t>(65281))));
    }
};

// v / 16843009 rounded down, plus 128. With b = 16843009, k * b is k * 2^24 + (k * b >> 8), so without its own v >> 8 a
// v has the quotient in its upper byte; negative values sit one too high. Quotients are those of signed bytes, whose sign
// bit is turned when they are narrow.
template <>
struct NarrowToByte<int32_t> {
    using Source = int32_t;
    using Result = uint8_t;
    using Lane = int32_t;
    using Narrow = int8_t;

    PXL_INLINE Vec<int32_t> operator()(Vec<int32_t> v) const {
        return ShiftRight<24>(v - ShiftRight<8>(v) + ShiftRight<31>(v));
    }
    PXL_INLINE Vec<uint8_t> finish(Vec<int8_t> v) const { return BitCast<uint8_t>(v) ^ Set<uint8_t>(0x80); }
};

struct ToFloat {
    using Source = uint8_t;
    using Result = float;
    using Lane = float;
    float slope, vMin;

    PXL_INLINE Vec<float> operator()(Vec<uint8_t> v) const {
        return PromoteTo<float>(v) * Set<float>(slope) + Set<float>(vMin);
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
        const Vec<float> onLine = Max(tiesToEven(line.at(x)), Zero<float>()); // NaN becomes 0
        const Vec<float> above0 = IfThenElseZero(x > Set<float>(vMin), onLine);
        const Mask<float> below255 = x < Set<float>(vMax);
        const Vec<float> or255 = above0 | BitCast<float>(~below255); // a NaN outside
        return NearestInt(Min(or255, Set<float>(255.0f)));           // and now 255
    }
};

// The same on a line that reaches both ends by itself: only NaN is left to become 255.
template <bool WithTies>
struct FromFloatSteady {
    using Source = float;
    using Result = uint8_t;
    using Lane = int32_t;
    Line line;

    PXL_INLINE Vec<int32_t> operator()(Vec<float> x) const {
        const Vec<float> onLine = WithTies ? tiesToEven(line.at(x)) : line.at(x);
        return NearestInt(Min(onLine, Set<float>(255.0f)));
    }
};

// The line rises, its roundings included, and is 0 at vMin, where both products are the same. So all below vMin is done
// with, and one look at vMax covers all above: bounds close together and far from 0 lose it to cancellation. The slope
// overflows for bounds that are closest to each other, and is 0 or NaN for infinite ones.
inline bool isSteady(Line line, float vMax) { return line.slope - line.slope == 0.0f && line.at(vMax) > 254.5f; }

// Whether tiesToEven would change nothing. With an origin of 2 or more, what adds up to about 0.5 has magnitudes of 1.5
// or more: the sum is exact and a multiple of 2^-23, so it is never the one value that matters.
inline bool isFarFrom0(float origin) { return origin >= 2.0f || origin <= -2.0f; }

template <class D, int Elements, int Channels>
PxlStatus ScaleWiden(Image<const uint8_t, Elements, Channels> src, Image<D, Elements, Channels> dst, ImageSize roi) {
    if (const PxlStatus status = check(widenedSize(dst, roi), null(src, dst), size(roi), steps(src, dst)))
        return status;
    return pointwise::convert(RepeatByte<D>(), src, dst, roi);
}

// Every hint gives the same result, the exact one. So does the single-precision formula that hint 2 stands for in
// 16s8u.
template <class S, int Elements, int Channels>
PxlStatus ScaleNarrow(Image<const S, Elements, Channels> src, Image<uint8_t, Elements, Channels> dst, ImageSize roi,
                      int /*hint*/) {
    if (const PxlStatus status = check(widenedSize(dst, roi), null(src, dst), size(roi), steps(src, dst)))
        return status;
    return pointwise::convert(NarrowToByte<S>(), src, dst, roi);
}

// Tested before anything else, the pointers included. A NaN bound passes.
inline Check scaleRange(float vMin, float vMax) { return refuse(vMax - vMin <= 0.0f, PXL_E_SCALE_RANGE); }

template <int Elements, int Channels>
PxlStatus ScaleToFloat(Image<const uint8_t, Elements, Channels> src, Image<float, Elements, Channels> dst,
                       ImageSize roi, float vMin, float vMax) {
    if (const PxlStatus status =
            check(scaleRange(vMin, vMax), widenedSize(dst, roi), null(src, dst), size(roi), steps(src, dst)))
        return status;
    return pointwise::convert(ToFloat{(vMax - vMin) / 255.0f, vMin}, src, dst, roi);
}

template <int Elements, int Channels>
PxlStatus ScaleFromFloat(Image<const float, Elements, Channels> src, Image<uint8_t, Elements, Channels> dst,
                         ImageSize roi, float vMin, float vMax) {
    if (const PxlStatus status =
            check(scaleRange(vMin, vMax), widenedSize(dst, roi), null(src, dst), size(roi), steps(src, dst)))
        return status;
    const auto run = [&](auto operation) { return pointwise::convert(operation, src, dst, roi); };
    const Line line = lineOf(vMin, vMax);
    if (!isSteady(line, vMax)) return run(FromFloat{vMin, vMax, line});
    if (line.origin == 0.0f) return run(FromFloatSteady<false>{{line.slope, -tieReach}}); // a sum that costs nothing
    if (isFarFrom0(line.origin)) return run(FromFloatSteady<false>{line});
    return run(FromFloatSteady<true>{line});
}

} // namespace
} // namespace pxl::PXL_TARGET::exchange

#include "members/exchange/scale.inc"
