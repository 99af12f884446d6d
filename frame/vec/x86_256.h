// Vectors of 32 bytes: AVX2.
#pragma once

#include <immintrin.h>

#define PXL_VEC_OP(op) _mm256_##op
#define PXL_VEC_MEMORY(op) _mm256_##op##_si256

namespace pxl::PXL_TARGET {

inline constexpr int vecBytes = 32;
typedef __m256i IntRegister;

// Abilities: shuffles of the bytes of a block by a vector of places, sums of products of byte pairs, and the
// smaller and the larger one of 32-bit lanes.
inline constexpr bool hasByteShuffle = true;
inline constexpr bool hasBytePairSums = true;
inline constexpr bool hasIntMinMax = true;

} // namespace pxl::PXL_TARGET

#include "frame/vec/x86_common.h"

namespace pxl::PXL_TARGET {

// ---- what goes with the abilities -------------------------------------------------------------------------------------

// Byte i of a block of the result is byte from[i] of that block of v, or 0 where from[i] has its highest bit set.
template <class T>
PXL_INLINE Vec<T> TableLookupBytesOr0(Vec<T> v, Vec<uint8_t> from) {
    return fromInts<T>(_mm256_shuffle_epi8(ints(v), ints(from)));
}
PXL_INLINE Block TableLookupBytesOr0(Block v, Block from) { return _mm_shuffle_epi8(v, from); }

// a[2i] * b[2i] + a[2i + 1] * b[2i + 1], saturated.
PXL_INLINE Vec<int16_t> SatWidenMulPairwiseAdd(Vec<uint8_t> a, Vec<int8_t> b) {
    return fromInts<int16_t>(_mm256_maddubs_epi16(ints(a), ints(b)));
}

// ---- vectors and blocks -----------------------------------------------------------------------------------------------

// The vector whose block k is make(k).
template <class T, class Make>
PXL_INLINE Vec<T> FromBlocks(Make&& make) {
    const Block first = make(std::integral_constant<int, 0>{});
    return fromInts<T>(
        _mm256_inserti128_si256(_mm256_castsi128_si256(first), make(std::integral_constant<int, 1>{}), 1));
}
// The first block; what stands above it is undefined, or zero.
template <class T>
PXL_INLINE Vec<T> FromBlock(Block v) {
    return fromInts<T>(_mm256_castsi128_si256(v));
}
template <class T>
PXL_INLINE Vec<T> ZeroExtend(Block v) {
    return fromInts<T>(_mm256_zextsi128_si256(v));
}
template <int K, class T>
PXL_INLINE Block ExtractBlock(Vec<T> v) {
    if constexpr (K == 0)
        return _mm256_castsi256_si128(ints(v));
    else
        return _mm256_extracti128_si256(ints(v), K);
}
// The block in every block.
template <class T>
PXL_INLINE Vec<T> BroadcastBlock(Block v) {
    return fromInts<T>(_mm256_broadcastsi128_si256(v));
}
// The first Bytes bytes of the block over and over.
template <int Bytes>
PXL_INLINE Vec<uint8_t> BroadcastWord(Block v) {
    if constexpr (Bytes == 1) return fromInts<uint8_t>(_mm256_broadcastb_epi8(v));
    if constexpr (Bytes == 2) return fromInts<uint8_t>(_mm256_broadcastw_epi16(v));
    if constexpr (Bytes == 4) return fromInts<uint8_t>(_mm256_broadcastd_epi32(v));
    if constexpr (Bytes == 8) return fromInts<uint8_t>(_mm256_broadcastq_epi64(v));
    if constexpr (Bytes == 16) return BroadcastBlock<uint8_t>(v);
}
// Block j of v[i] <-> block i of v[j].
template <class T>
PXL_INLINE void TransposeBlocks(Vec<T> (&v)[vecBlocks]) {
    const IntRegister a = ints(v[0]), b = ints(v[1]);
    v[0] = fromInts<T>(_mm256_permute2x128_si256(a, b, 0x20));
    v[1] = fromInts<T>(_mm256_permute2x128_si256(a, b, 0x31));
}

// ---- masks ------------------------------------------------------------------------------------------------------------

// mask ? a : b, lane by lane; mask lanes are all ones or all zeros.
PXL_INLINE Block IfThenElse(Block mask, Block a, Block b) { return _mm_blendv_epi8(b, a, mask); }
template <class T>
PXL_INLINE Vec<T> IfThenElse(Mask<T> mask, Vec<T> a, Vec<T> b) {
    return fromInts<T>(_mm256_blendv_epi8(ints(b), ints(a), ints(mask)));
}
// Lanes of a where the lanes of `sign` have their sign bit set, else lanes of b.
PXL_INLINE Vec<int32_t> IfNegativeThenElse(Vec<int32_t> sign, Vec<int32_t> a, Vec<int32_t> b) {
    return fromInts<int32_t>((__m256i)_mm256_blendv_ps((__m256)b.raw, (__m256)a.raw, (__m256)sign.raw));
}
// Lane i from b where FromB(i) holds, else from a.
template <auto FromB, class T>
PXL_INLINE Vec<T> BlendLanes(Vec<T> a, Vec<T> b) {
    return [&]<int... I>(std::integer_sequence<int, I...>) {
        return Vec<T>{__builtin_shufflevector(a.raw, b.raw, (FromB(I) ? I + lanes<T> : I)...)};
    }
    (std::make_integer_sequence<int, lanes<T>>{});
}
// Whether any bit of v is set.
template <class T>
PXL_INLINE bool AnyBit(Vec<T> v) {
    return !_mm256_testz_si256(ints(v), ints(v));
}

// ---- arithmetic -------------------------------------------------------------------------------------------------------

// The 64-bit products of lanes 2i.
PXL_INLINE Vec<int64_t> MulEven(Vec<int32_t> a, Vec<int32_t> b) {
    return fromInts<int64_t>(_mm256_mul_epi32(ints(a), ints(b)));
}
// a - b in lanes 2i, a + b in lanes 2i + 1.
PXL_INLINE Vec<float> AddSub(Vec<float> a, Vec<float> b) { return {_mm256_addsub_ps(a.raw, b.raw)}; }

// A count for all lanes. Counts from the lane's width up give 0, or the sign where signed lanes shift right. Lanes of one byte
// shift in pairs: what crosses from one to the other is masked away by the caller.
template <class T>
struct ShiftCount {
    IntRegister bits;

    ShiftCount() = default;
    // 32- and 64-bit lanes have shifts by a count per lane, which cost less than those by one for all.
    explicit ShiftCount(int count) {
        if constexpr (sizeof(T) == 8)
            bits = _mm256_set1_epi64x(count);
        else if constexpr (sizeof(T) == 4)
            bits = _mm256_set1_epi32(count);
        else
            bits = _mm256_zextsi128_si256(_mm_cvtsi32_si128(count));
    }
    PXL_INLINE __m128i forAll() const { return _mm256_castsi256_si128(bits); }
};

template <class T>
PXL_INLINE Vec<T> operator<<(Vec<T> v, ShiftCount<T> count) {
    if constexpr (sizeof(T) <= 2) return fromInts<T>(_mm256_sll_epi16(ints(v), count.forAll()));
    if constexpr (sizeof(T) == 4) return fromInts<T>(_mm256_sllv_epi32(ints(v), count.bits));
}
template <class T>
PXL_INLINE Vec<T> operator>>(Vec<T> v, ShiftCount<T> count) {
    constexpr bool sign = std::is_signed_v<T>;
    static_assert(!sign || sizeof(T) == 2 || sizeof(T) == 4);
    if constexpr (sizeof(T) <= 2)
        return fromInts<T>(sign ? _mm256_sra_epi16(ints(v), count.forAll())
                                : _mm256_srl_epi16(ints(v), count.forAll()));
    if constexpr (sizeof(T) == 4)
        return fromInts<T>(sign ? _mm256_srav_epi32(ints(v), count.bits) : _mm256_srlv_epi32(ints(v), count.bits));
    if constexpr (sizeof(T) == 8) return fromInts<T>(_mm256_srlv_epi64(ints(v), count.bits));
}

// A count for every lane of 32 bits; zeros come in.
struct LaneCounts {
    Vec<uint32_t> count;

    PXL_INLINE explicit LaneCounts(Vec<uint32_t> counts) : count(counts) {}
};
PXL_INLINE Vec<uint32_t> operator<<(Vec<uint32_t> v, const LaneCounts& counts) {
    return fromInts<uint32_t>(_mm256_sllv_epi32(ints(v), ints(counts.count)));
}
PXL_INLINE Vec<uint32_t> operator>>(Vec<uint32_t> v, const LaneCounts& counts) {
    return fromInts<uint32_t>(_mm256_srlv_epi32(ints(v), ints(counts.count)));
}

// ---- conversion -------------------------------------------------------------------------------------------------------

// The first lanes as integers of twice or four times their size.
template <class Wide, class Narrow>
PXL_INLINE Vec<Wide> PromoteInts(Vec<Narrow> first) {
    const __m128i v = _mm256_castsi256_si128(ints(first));
    constexpr bool sign = std::is_signed_v<Narrow>;
    if constexpr (sizeof(Narrow) == 1 && sizeof(Wide) == 2)
        return fromInts<Wide>(sign ? _mm256_cvtepi8_epi16(v) : _mm256_cvtepu8_epi16(v));
    if constexpr (sizeof(Narrow) == 1 && sizeof(Wide) == 4)
        return fromInts<Wide>(sign ? _mm256_cvtepi8_epi32(v) : _mm256_cvtepu8_epi32(v));
    if constexpr (sizeof(Narrow) == 2 && sizeof(Wide) == 4)
        return fromInts<Wide>(sign ? _mm256_cvtepi16_epi32(v) : _mm256_cvtepu16_epi32(v));
}

// The first bytes, each repeated in every byte of a wide lane.
template <class Wide>
PXL_INLINE Vec<Wide> RepeatFirst(Vec<uint8_t> v) {
    if constexpr (sizeof(Wide) == 2) {
        const __m256i halves = _mm256_permute4x64_epi64(ints(v), 0x10); // 8 bytes to either half
        return fromInts<Wide>(_mm256_unpacklo_epi8(halves, halves));
    } else {
        const __m256i places = _mm256_setr_epi8(0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 3, //
                                                4, 4, 4, 4, 5, 5, 5, 5, 6, 6, 6, 6, 7, 7, 7, 7);
        return fromInts<Wide>(_mm256_shuffle_epi8(_mm256_broadcastq_epi64(_mm256_castsi256_si128(ints(v))), places));
    }
}

// Of every block, the lanes of a and then those of b, which are read as signed and saturated to half their size.
template <class Narrow, class Wide>
PXL_INLINE Vec<Narrow> ReorderDemote2To(Vec<Wide> a, Vec<Wide> b) {
    static_assert(sizeof(Wide) == 2 * sizeof(Narrow) && std::is_signed_v<Wide>);
    if constexpr (std::is_same_v<Narrow, uint8_t>) return fromInts<Narrow>(_mm256_packus_epi16(ints(a), ints(b)));
    if constexpr (std::is_same_v<Narrow, int8_t>) return fromInts<Narrow>(_mm256_packs_epi16(ints(a), ints(b)));
    if constexpr (std::is_same_v<Narrow, int16_t>) return fromInts<Narrow>(_mm256_packs_epi32(ints(a), ints(b)));
    if constexpr (std::is_same_v<Narrow, uint16_t>) return fromInts<Narrow>(_mm256_packus_epi32(ints(a), ints(b)));
}
// The lanes of a, and then those of b.
template <class Narrow, class Wide>
PXL_INLINE Vec<Narrow> OrderedDemote2To(Vec<Wide> a, Vec<Wide> b) {
    return fromInts<Narrow>(_mm256_permute4x64_epi64(ints(ReorderDemote2To<Narrow>(a, b)), 0xD8));
}
// The lanes of four vectors in order, saturated to bytes.
template <class Narrow>
PXL_INLINE Vec<Narrow> OrderedDemote4To(Vec<int32_t> a, Vec<int32_t> b, Vec<int32_t> c, Vec<int32_t> d) {
    const auto packed = ReorderDemote2To<Narrow>(ReorderDemote2To<int16_t>(a, b), ReorderDemote2To<int16_t>(c, d));
    const __m256i order = _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7);
    return fromInts<Narrow>(_mm256_permutevar8x32_epi32(ints(packed), order));
}

// The lanes of the lower and of the upper half of the register as doubles, and back.
PXL_INLINE Vec<double> PromoteLowerToDouble(Vec<float> v) { return {_mm256_cvtps_pd(_mm256_castps256_ps128(v.raw))}; }
PXL_INLINE Vec<double> PromoteUpperToDouble(Vec<float> v) { return {_mm256_cvtps_pd(_mm256_extractf128_ps(v.raw, 1))}; }
PXL_INLINE Vec<double> PromoteLowerToDouble(Vec<int32_t> v) {
    return {_mm256_cvtepi32_pd(_mm256_castsi256_si128(ints(v)))};
}
PXL_INLINE Vec<double> PromoteUpperToDouble(Vec<int32_t> v) {
    return {_mm256_cvtepi32_pd(_mm256_extracti128_si256(ints(v), 1))};
}
PXL_INLINE Vec<float> ConvertToFloat(Vec<double> lower, Vec<double> upper) {
    return {_mm256_set_m128(_mm256_cvtpd_ps(upper.raw), _mm256_cvtpd_ps(lower.raw))};
}
PXL_INLINE Vec<int32_t> TruncateToInt(Vec<double> lower, Vec<double> upper) {
    return fromInts<int32_t>(_mm256_set_m128i(_mm256_cvttpd_epi32(upper.raw), _mm256_cvttpd_epi32(lower.raw)));
}

// ---- lanes ------------------------------------------------------------------------------------------------------------

PXL_INLINE Vec<int32_t> ReplaceFirstLane(Vec<int32_t> v, int32_t first) {
    return fromInts<int32_t>(_mm256_blend_epi32(ints(v), _mm256_castsi128_si256(_mm_cvtsi32_si128(first)), 1));
}

// Words of Bytes bytes in reverse order in every block.
template <int Bytes>
PXL_INLINE Block ReverseBlock(Block v) {
    if constexpr (Bytes == 16) return v;
    if constexpr (Bytes == 8) return _mm_shuffle_epi32(v, _MM_SHUFFLE(1, 0, 3, 2));
    if constexpr (Bytes == 4) return _mm_shuffle_epi32(v, _MM_SHUFFLE(0, 1, 2, 3));
    if constexpr (Bytes == 2)
        return _mm_shuffle_epi8(v, _mm_setr_epi8(14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1));
    if constexpr (Bytes == 1)
        return _mm_shuffle_epi8(v, _mm_setr_epi8(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0));
}
// The vector at p with its words of Bytes bytes in reverse order.
template <int Bytes>
PXL_INLINE Vec<uint8_t> LoadReversed(const uint8_t* p) {
    const __m256i v = ints(LoadU(p));
    if constexpr (Bytes == 16) {
        return fromInts<uint8_t>(_mm256_permute4x64_epi64(v, _MM_SHUFFLE(1, 0, 3, 2)));
    } else if constexpr (Bytes == 8) {
        return fromInts<uint8_t>(_mm256_permute4x64_epi64(v, _MM_SHUFFLE(0, 1, 2, 3)));
    } else if constexpr (Bytes == 4) {
        return fromInts<uint8_t>(_mm256_permutevar8x32_epi32(v, _mm256_setr_epi32(7, 6, 5, 4, 3, 2, 1, 0)));
    } else {
        // The halves change places on the way from memory, which leaves one shuffle within them.
        const Vec<uint8_t> swapped = FromBlocks<uint8_t>([p](int k) { return LoadBlock<16>(p + 16 - 16 * k); });
        const __m256i places = Bytes == 2 ? _mm256_setr_epi8(14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1, //
                                                             14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1)
                                          : _mm256_setr_epi8(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0, //
                                                             15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0);
        return TableLookupBytesOr0(swapped, fromInts<uint8_t>(places));
    }
}

} // namespace pxl::PXL_TARGET

#undef PXL_VEC_OP
#undef PXL_VEC_MEMORY
