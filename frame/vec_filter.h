// Vector pieces of linear filters: products of interleaved samples, sums in double precision, exact quotients.
#pragma once

#include "frame/vec.h"
#include "frame/vec_arith.h"

namespace pxl::PXL_TARGET {

// A vector that stays in its register. Where it is used more than once, GCC would rather load it again for each use.
template <class T>
PXL_INLINE Vec<T> Held(Vec<T> v) {
    asm("" : "+x"(v.raw));
    return v;
}

// ---- products of byte pairs -----------------------------------------------------------------------------------------

// Two 8-bit coefficients for lanes 2i and 2i + 1 of unsigned bytes.
class BytePair {
public:
    // Bytes k0 k1 k0 k1.
    PXL_INLINE explicit BytePair(int32_t coefficients) {
        const Vec<int16_t> both = BitCast<int16_t>(Set<int32_t>(coefficients));
#ifdef __AVX2__
        both_ = both;
#else
        even_ = ShiftRight<8>(ShiftLeft<8>(both));
        odd_ = ShiftRight<8>(both);
#endif
    }

    // k0 * v[2i] + k1 * v[2i + 1], which must fit 16 bits.
    PXL_INLINE Vec<int16_t> operator()(Vec<uint8_t> v) const {
#ifdef __AVX2__
        return fromInts<int16_t>(_mm256_maddubs_epi16(ints(v), ints(both_)));
#else
        const Vec<uint16_t> words = BitCast<uint16_t>(v);
        return BitCast<int16_t>(words & Set<uint16_t>(0xFF)) * even_ + BitCast<int16_t>(ShiftRight<8>(words)) * odd_;
#endif
    }

private:
#ifdef __AVX2__
    Vec<int16_t> both_;
#else
    Vec<int16_t> even_, odd_;
#endif
};

// ---- narrowing ------------------------------------------------------------------------------------------------------

// DemoteBlocks to any type half as wide, saturated; wide lanes are read as signed.
template <class Narrow, class Wide>
PXL_INLINE Vec<Narrow> SaturateBlocks(Vec<Wide> lower, Vec<Wide> upper) {
    if constexpr (!std::is_same_v<Narrow, uint16_t>) return DemoteBlocks<Narrow>(lower, upper);
#ifdef __AVX2__
    else
        return fromInts<Narrow>(_mm256_packus_epi32(ints(lower), ints(upper)));
#else
    else
        return Demote2<Narrow>(lower, upper);
#endif
}

// ---- single and double precision ------------------------------------------------------------------------------------

// The lanes of the lower and of the upper half of the register.
PXL_INLINE Vec<double> LowerToDouble(Vec<float> v) {
#ifdef __AVX2__
    return {_mm256_cvtps_pd(_mm256_castps256_ps128(v.raw))};
#else
    return {_mm_cvtps_pd(v.raw)};
#endif
}
PXL_INLINE Vec<double> UpperToDouble(Vec<float> v) {
#ifdef __AVX2__
    return {_mm256_cvtps_pd(_mm256_extractf128_ps(v.raw, 1))};
#else
    return {_mm_cvtps_pd(_mm_movehl_ps(v.raw, v.raw))};
#endif
}
PXL_INLINE Vec<float> ConvertToFloat(Vec<double> lower, Vec<double> upper) {
#ifdef __AVX2__
    return {_mm256_set_m128(_mm256_cvtpd_ps(upper.raw), _mm256_cvtpd_ps(lower.raw))};
#else
    return {_mm_movelh_ps(_mm_cvtpd_ps(lower.raw), _mm_cvtpd_ps(upper.raw))};
#endif
}

// Integers as doubles in two registers, and back from the lower half of every double: the lower and the upper half of
// each block of 16 bytes.
struct BlockDoubles {
    Vec<double> lower, upper;

    // Below 2^52 a biased integer is a double as soon as the upper half of 2^52 stands above it.
    PXL_INLINE explicit BlockDoubles(Vec<int32_t> v) {
        const Vec<uint32_t> biased = BitCast<uint32_t>(v) ^ Set<uint32_t>(0x80000000);
        const Vec<uint32_t> above = Set<uint32_t>(0x43300000);
        const Vec<double> bias = Set<double>(0x1p52 + 0x1p31);
        lower = BitCast<double>(InterleaveLowerBlocks(biased, above)) - bias;
        upper = BitCast<double>(InterleaveUpperBlocks(biased, above)) - bias;
    }

    // Of doubles in the range of 32s: to nearest, ties to even.
    PXL_INLINE Vec<int32_t> nearest() const {
        const Vec<double> unitsAtEnd = Set<double>(0x1.8p52);
        const Vec<float> low = BitCast<float>(lower + unitsAtEnd), high = BitCast<float>(upper + unitsAtEnd);
        return BitCast<int32_t>(Vec<float>{PXL_VEC_OP(shuffle_ps)(low.raw, high.raw, 0x88)});
    }
};

} // namespace pxl::PXL_TARGET
