// Vector pieces of scaled arithmetic: averages, products, shifts by counts that are known once per call, packing in
// blocks.
#pragma once

#include "frame/vec.h"

namespace pxl::PXL_TARGET {

// ---- sums -----------------------------------------------------------------------------------------------------------

// (a + b + 1) / 2
PXL_INLINE Vec<uint8_t> Average(Vec<uint8_t> a, Vec<uint8_t> b) {
    return fromInts<uint8_t>(PXL_VEC_OP(avg_epu8)(ints(a), ints(b)));
}
PXL_INLINE Vec<uint16_t> Average(Vec<uint16_t> a, Vec<uint16_t> b) {
    return fromInts<uint16_t>(PXL_VEC_OP(avg_epu16)(ints(a), ints(b)));
}

// Lanes of a where the lanes of `sign` have their sign bit set, else lanes of b.
PXL_INLINE Vec<int32_t> IfNegativeThenElse(Vec<int32_t> sign, Vec<int32_t> a, Vec<int32_t> b) {
#ifdef __AVX2__
    return fromInts<int32_t>((__m256i)_mm256_blendv_ps((__m256)b.raw, (__m256)a.raw, (__m256)sign.raw));
#else
    return IfThenElse(BitCast<uint32_t>(ShiftRight<31>(sign)), a, b);
#endif
}

// The largest value where v is not negative, else the smallest.
template <class T>
PXL_INLINE Vec<T> SaturatedSign(Vec<T> v) {
    constexpr int bits = 8 * sizeof(T) - 1;
    return ShiftRight<bits>(v) ^ Set<T>(static_cast<T>(~(T{1} << bits)));
}

PXL_INLINE Vec<int32_t> SaturatedAdd(Vec<int32_t> a, Vec<int32_t> b) {
    const Vec<int32_t> sum = BitCast<int32_t>(BitCast<uint32_t>(a) + BitCast<uint32_t>(b));
    return IfNegativeThenElse((a ^ sum) & (b ^ sum), SaturatedSign(a), sum);
}
PXL_INLINE Vec<int32_t> SaturatedSub(Vec<int32_t> a, Vec<int32_t> b) {
    const Vec<int32_t> difference = BitCast<int32_t>(BitCast<uint32_t>(a) - BitCast<uint32_t>(b));
    return IfNegativeThenElse((a ^ b) & (a ^ difference), SaturatedSign(a), difference);
}

// ---- products -------------------------------------------------------------------------------------------------------

// The upper halves of the 32-bit products; the lower halves are a * b.
template <class T>
PXL_INLINE Vec<T> MulHigh(Vec<T> a, Vec<T> b) {
    static_assert(sizeof(T) == 2);
    if constexpr (std::is_signed_v<T>)
        return fromInts<T>(PXL_VEC_OP(mulhi_epi16)(ints(a), ints(b)));
    else
        return fromInts<T>(PXL_VEC_OP(mulhi_epu16)(ints(a), ints(b)));
}

// Sums of the products of lanes 2i and 2i + 1, modulo 2^32.
PXL_INLINE Vec<int32_t> MulPairsAdd(Vec<int16_t> a, Vec<int16_t> b) {
    return fromInts<int32_t>(PXL_VEC_OP(madd_epi16)(ints(a), ints(b)));
}

// The 64-bit products of lanes 2i.
PXL_INLINE Vec<int64_t> MulEven(Vec<int32_t> a, Vec<int32_t> b) {
#ifdef __AVX2__
    return fromInts<int64_t>(_mm256_mul_epi32(ints(a), ints(b)));
#else
    // Of a negative factor, 2^32 was taken too much: the other factor times 2^32 is subtracted again.
    const __m128i excess = _mm_add_epi32(_mm_and_si128(_mm_srai_epi32(ints(a), 31), ints(b)),
                                         _mm_and_si128(_mm_srai_epi32(ints(b), 31), ints(a)));
    return fromInts<int64_t>(_mm_sub_epi64(_mm_mul_epu32(ints(a), ints(b)), _mm_slli_epi64(excess, 32)));
#endif
}

// ---- pairs of lanes -------------------------------------------------------------------------------------------------

// Lanes 2i and 2i + 1 exchanged.
template <class T>
PXL_INLINE Vec<T> SwapPairs(Vec<T> v) {
    if constexpr (sizeof(T) == 2)
        return fromInts<T>(PXL_VEC_OP(shufflehi_epi16)(PXL_VEC_OP(shufflelo_epi16)(ints(v), 0xB1), 0xB1));
    else
        return fromInts<T>(PXL_VEC_OP(shuffle_epi32)(ints(v), 0xB1));
}
// Lanes 2i twice, and lanes 2i + 1 twice.
template <class T>
PXL_INLINE Vec<T> DupEven(Vec<T> v) {
    static_assert(sizeof(T) == 4);
    return fromInts<T>(PXL_VEC_OP(shuffle_epi32)(ints(v), 0xA0));
}
template <class T>
PXL_INLINE Vec<T> DupOdd(Vec<T> v) {
    static_assert(sizeof(T) == 4);
    return fromInts<T>(PXL_VEC_OP(shuffle_epi32)(ints(v), 0xF5));
}
// a - b in lanes 2i, a + b in lanes 2i + 1.
PXL_INLINE Vec<float> SubAdd(Vec<float> a, Vec<float> b) {
#ifdef __AVX2__
    return {_mm256_addsub_ps(a.raw, b.raw)};
#else
    return a + (b ^ BitCast<float>(Set<uint64_t>(0x80000000)));
#endif
}

// ---- shifts by one count for all lanes ------------------------------------------------------------------------------

// A count. Counts from the lane's width up give 0, or the sign where signed lanes shift right. Lanes of one byte shift
// in pairs: what crosses from one to the other is masked away by the caller.
template <class T>
struct ShiftCount {
    IntRegister bits;

    ShiftCount() = default;
    explicit ShiftCount(int count) {
#ifdef __AVX2__
        // 32- and 64-bit lanes have shifts by a count per lane, which cost less than those by one for all.
        bits = sizeof(T) >= 4 ? ints(Set<MaskLane<T>>(static_cast<MaskLane<T>>(count)))
                              : _mm256_zextsi128_si256(_mm_cvtsi32_si128(count));
#else
        bits = _mm_cvtsi32_si128(count);
#endif
    }
    PXL_INLINE __m128i forAll() const {
#ifdef __AVX2__
        return _mm256_castsi256_si128(bits);
#else
        return bits;
#endif
    }
};

template <class T>
PXL_INLINE Vec<T> operator<<(Vec<T> v, ShiftCount<T> count) {
    if constexpr (sizeof(T) <= 2) return fromInts<T>(PXL_VEC_OP(sll_epi16)(ints(v), count.forAll()));
#ifdef __AVX2__
    if constexpr (sizeof(T) == 4) return fromInts<T>(_mm256_sllv_epi32(ints(v), count.bits));
#else
    if constexpr (sizeof(T) == 4) return fromInts<T>(_mm_sll_epi32(ints(v), count.bits));
#endif
}
template <class T>
PXL_INLINE Vec<T> operator>>(Vec<T> v, ShiftCount<T> count) {
    constexpr bool sign = std::is_signed_v<T>;
    static_assert(!sign || sizeof(T) == 2 || sizeof(T) == 4);
    if constexpr (sizeof(T) <= 2)
        return fromInts<T>(sign ? PXL_VEC_OP(sra_epi16)(ints(v), count.forAll())
                                : PXL_VEC_OP(srl_epi16)(ints(v), count.forAll()));
#ifdef __AVX2__
    if constexpr (sizeof(T) == 4)
        return fromInts<T>(sign ? _mm256_srav_epi32(ints(v), count.bits) : _mm256_srlv_epi32(ints(v), count.bits));
    if constexpr (sizeof(T) == 8) return fromInts<T>(_mm256_srlv_epi64(ints(v), count.bits));
#else
    if constexpr (sizeof(T) == 4)
        return fromInts<T>(sign ? _mm_sra_epi32(ints(v), count.bits) : _mm_srl_epi32(ints(v), count.bits));
    if constexpr (sizeof(T) == 8) return fromInts<T>(_mm_srl_epi64(ints(v), count.bits));
#endif
}

// ---- blocks of 16 bytes ---------------------------------------------------------------------------------------------

// The counterpart of InterleaveLowerBlocks and InterleaveUpperBlocks: of every block, the lanes of a and then those of
// b, read as signed and saturated. 8u lanes take what 16s lanes hold, 16s and 16u lanes what 32s lanes hold.
template <class Narrow, class Wide>
PXL_INLINE Vec<Narrow> DemoteBlocks(Vec<Wide> lower, Vec<Wide> upper) {
    if constexpr (std::is_same_v<Narrow, uint8_t>)
        return fromInts<Narrow>(PXL_VEC_OP(packus_epi16)(ints(lower), ints(upper)));
    if constexpr (std::is_same_v<Narrow, int16_t>)
        return fromInts<Narrow>(PXL_VEC_OP(packs_epi32)(ints(lower), ints(upper)));
#ifdef __AVX2__
    if constexpr (std::is_same_v<Narrow, uint16_t>)
        return fromInts<Narrow>(_mm256_packus_epi32(ints(lower), ints(upper)));
#else
    if constexpr (std::is_same_v<Narrow, uint16_t>) return Demote2<Narrow>(lower, upper);
#endif
}

} // namespace pxl::PXL_TARGET
