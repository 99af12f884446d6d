// Vectors of 16 bytes: SSE2, which every x86-64 processor has.
#pragma once

#include <emmintrin.h>

#define PXL_VEC_OP(op) _mm_##op
#define PXL_VEC_MEMORY(op) _mm_##op##_si128

namespace pxl::PXL_TARGET {

inline constexpr int vecBytes = 16;
typedef __m128i IntRegister;

// Abilities: shuffles of the bytes of a block by a vector of places, and sums of products of byte pairs.
inline constexpr bool hasByteShuffle = false;
inline constexpr bool hasBytePairSums = false;
inline constexpr bool hasIntMinMax = false;

} // namespace pxl::PXL_TARGET

#include "frame/vec/x86_common.h"

namespace pxl::PXL_TARGET {

// ---- what goes with the abilities: declared for kernels that ask for them ---------------------------------------------

template <class T>
Vec<T> TableLookupBytesOr0(Vec<T> v, Vec<uint8_t> from);
Block TableLookupBytesOr0(Block v, Block from);
Vec<int16_t> SatWidenMulPairwiseAdd(Vec<uint8_t> a, Vec<int8_t> b);

// ---- vectors and blocks -----------------------------------------------------------------------------------------------

// The vector whose block k is make(k).
template <class T, class Make>
PXL_INLINE Vec<T> FromBlocks(Make&& make) {
    return fromInts<T>(make(std::integral_constant<int, 0>{}));
}
// The first block; what stands above it is undefined, or zero.
template <class T>
PXL_INLINE Vec<T> FromBlock(Block v) {
    return fromInts<T>(v);
}
template <class T>
PXL_INLINE Vec<T> ZeroExtend(Block v) {
    return fromInts<T>(v);
}
template <int K, class T>
PXL_INLINE Block ExtractBlock(Vec<T> v) {
    return ints(v);
}
// The block in every block.
template <class T>
PXL_INLINE Vec<T> BroadcastBlock(Block v) {
    return fromInts<T>(v);
}
// The first Bytes bytes of the block over and over.
template <int Bytes>
PXL_INLINE Vec<uint8_t> BroadcastWord(Block v) {
    if constexpr (Bytes == 1) v = _mm_unpacklo_epi8(v, v);
    if constexpr (Bytes <= 2) v = _mm_shufflelo_epi16(v, 0);
    if constexpr (Bytes <= 4) v = _mm_shuffle_epi32(v, 0);
    if constexpr (Bytes == 8) v = _mm_unpacklo_epi64(v, v);
    return fromInts<uint8_t>(v);
}
// Block j of v[i] <-> block i of v[j].
template <class T>
PXL_INLINE void TransposeBlocks(Vec<T> (&)[vecBlocks]) {}

// ---- masks ------------------------------------------------------------------------------------------------------------

// mask ? a : b, lane by lane; mask lanes are all ones or all zeros.
PXL_INLINE Block IfThenElse(Block mask, Block a, Block b) {
    return _mm_or_si128(_mm_and_si128(mask, a), _mm_andnot_si128(mask, b));
}
template <class T>
PXL_INLINE Vec<T> IfThenElse(Mask<T> mask, Vec<T> a, Vec<T> b) {
    return fromInts<T>((ints(mask) & ints(a)) | (~ints(mask) & ints(b)));
}
// Lanes of a where the lanes of `sign` have their sign bit set, else lanes of b.
PXL_INLINE Vec<int32_t> IfNegativeThenElse(Vec<int32_t> sign, Vec<int32_t> a, Vec<int32_t> b) {
    return IfThenElse(BitCast<uint32_t>(Vec<int32_t>{sign.raw >> 31}), a, b);
}
// Lane i from b where FromB(i) holds, else from a.
template <auto FromB, class T>
PXL_INLINE Vec<T> BlendLanes(Vec<T> a, Vec<T> b) {
    const auto mask = []<int... I>(std::integer_sequence<int, I...>) {
        return Mask<T>{typename Mask<T>::Raw{static_cast<MaskLane<T>>(FromB(I) ? -1 : 0)...}};
    }
    (std::make_integer_sequence<int, lanes<T>>{});
    return IfThenElse(mask, b, a);
}
// Whether any bit of v is set.
template <class T>
PXL_INLINE bool AnyBit(Vec<T> v) {
    return _mm_movemask_epi8(_mm_cmpeq_epi8(ints(v), _mm_setzero_si128())) != 0xFFFF;
}

// ---- arithmetic -------------------------------------------------------------------------------------------------------

PXL_INLINE Vec<uint16_t> Min(Vec<uint16_t> a, Vec<uint16_t> b) {
    return fromInts<uint16_t>(_mm_sub_epi16(ints(a), _mm_subs_epu16(ints(a), ints(b))));
}
PXL_INLINE Vec<uint16_t> Max(Vec<uint16_t> a, Vec<uint16_t> b) {
    return fromInts<uint16_t>(_mm_add_epi16(_mm_subs_epu16(ints(a), ints(b)), ints(b)));
}

// The 64-bit products of lanes 2i. Of a negative factor, 2^32 was taken too much: the other factor times 2^32 is subtracted
// again.
PXL_INLINE Vec<int64_t> MulEven(Vec<int32_t> a, Vec<int32_t> b) {
    const __m128i excess = _mm_add_epi32(_mm_and_si128(_mm_srai_epi32(ints(a), 31), ints(b)),
                                         _mm_and_si128(_mm_srai_epi32(ints(b), 31), ints(a)));
    return fromInts<int64_t>(_mm_sub_epi64(_mm_mul_epu32(ints(a), ints(b)), _mm_slli_epi64(excess, 32)));
}

// a - b in lanes 2i, a + b in lanes 2i + 1.
PXL_INLINE Vec<float> AddSub(Vec<float> a, Vec<float> b) {
    const __m128 turned = _mm_xor_ps(b.raw, _mm_castsi128_ps(_mm_set1_epi64x(0x80000000)));
    return {_mm_add_ps(a.raw, turned)};
}

// A count for all lanes. Counts from the lane's width up give 0, or the sign where signed lanes shift right. Lanes of one byte
// shift in pairs: what crosses from one to the other is masked away by the caller.
template <class T>
struct ShiftCount {
    __m128i bits;

    ShiftCount() = default;
    explicit ShiftCount(int count) : bits(_mm_cvtsi32_si128(count)) {}
};

template <class T>
PXL_INLINE Vec<T> operator<<(Vec<T> v, ShiftCount<T> count) {
    if constexpr (sizeof(T) <= 2) return fromInts<T>(_mm_sll_epi16(ints(v), count.bits));
    if constexpr (sizeof(T) == 4) return fromInts<T>(_mm_sll_epi32(ints(v), count.bits));
}
template <class T>
PXL_INLINE Vec<T> operator>>(Vec<T> v, ShiftCount<T> count) {
    constexpr bool sign = std::is_signed_v<T>;
    static_assert(!sign || sizeof(T) == 2 || sizeof(T) == 4);
    if constexpr (sizeof(T) <= 2)
        return fromInts<T>(sign ? _mm_sra_epi16(ints(v), count.bits) : _mm_srl_epi16(ints(v), count.bits));
    if constexpr (sizeof(T) == 4)
        return fromInts<T>(sign ? _mm_sra_epi32(ints(v), count.bits) : _mm_srl_epi32(ints(v), count.bits));
    if constexpr (sizeof(T) == 8) return fromInts<T>(_mm_srl_epi64(ints(v), count.bits));
}

// A count for every lane of 32 bits; zeros come in. Each stands where shifts of whole registers look for it.
struct LaneCounts {
    __m128i count[4];

    PXL_INLINE explicit LaneCounts(Vec<uint32_t> counts) {
        const __m128i zero = _mm_setzero_si128();
        count[0] = _mm_unpacklo_epi32(ints(counts), zero);
        count[1] = _mm_srli_si128(count[0], 8);
        count[2] = _mm_unpackhi_epi32(ints(counts), zero);
        count[3] = _mm_srli_si128(count[2], 8);
    }
    // Lane i of by(count[i]).
    template <class By>
    PXL_INLINE Vec<uint32_t> each(By&& by) const {
        const __m128i even =
            _mm_castpd_si128(_mm_move_sd(_mm_castsi128_pd(by(count[2])), _mm_castsi128_pd(by(count[0]))));
        const __m128i odd =
            _mm_castpd_si128(_mm_move_sd(_mm_castsi128_pd(by(count[3])), _mm_castsi128_pd(by(count[1]))));
        const __m128i evenLanes = _mm_set_epi32(0, -1, 0, -1);
        return fromInts<uint32_t>(_mm_or_si128(_mm_and_si128(even, evenLanes), _mm_andnot_si128(evenLanes, odd)));
    }
};
PXL_INLINE Vec<uint32_t> operator<<(Vec<uint32_t> v, const LaneCounts& counts) {
    return counts.each([&](__m128i count) { return _mm_sll_epi32(ints(v), count); });
}
PXL_INLINE Vec<uint32_t> operator>>(Vec<uint32_t> v, const LaneCounts& counts) {
    return counts.each([&](__m128i count) { return _mm_srl_epi32(ints(v), count); });
}

// ---- conversion -------------------------------------------------------------------------------------------------------

// The lanes in the lower half of a block widened to twice their size, with their value kept.
template <class Narrow>
PXL_INLINE Block WidenLower(Block v) {
    const __m128i zero = _mm_setzero_si128();
    if constexpr (std::is_same_v<Narrow, uint8_t>) return _mm_unpacklo_epi8(v, zero);
    if constexpr (std::is_same_v<Narrow, int8_t>) return _mm_srai_epi16(_mm_unpacklo_epi8(v, v), 8);
    if constexpr (std::is_same_v<Narrow, uint16_t>) return _mm_unpacklo_epi16(v, zero);
    if constexpr (std::is_same_v<Narrow, int16_t>) return _mm_srai_epi32(_mm_unpacklo_epi16(v, v), 16);
}

// The first lanes as integers of twice or four times their size.
template <class Wide, class Narrow>
PXL_INLINE Vec<Wide> PromoteInts(Vec<Narrow> first) {
    __m128i v = WidenLower<Narrow>(ints(first));
    if constexpr (sizeof(Wide) == 4 * sizeof(Narrow))
        v = WidenLower<std::conditional_t<std::is_signed_v<Narrow>, int16_t, uint16_t>>(v);
    return fromInts<Wide>(v);
}

// The first bytes, each repeated in every byte of a wide lane.
template <class Wide>
PXL_INLINE Vec<Wide> RepeatFirst(Vec<uint8_t> v) {
    const __m128i twice = _mm_unpacklo_epi8(ints(v), ints(v));
    return fromInts<Wide>(sizeof(Wide) == 2 ? twice : _mm_unpacklo_epi16(twice, twice));
}

// Of every block, the lanes of a and then those of b, which are read as signed and saturated to half their size.
template <class Narrow, class Wide>
PXL_INLINE Vec<Narrow> ReorderDemote2To(Vec<Wide> a, Vec<Wide> b) {
    static_assert(sizeof(Wide) == 2 * sizeof(Narrow) && std::is_signed_v<Wide>);
    if constexpr (std::is_same_v<Narrow, uint8_t>) return fromInts<Narrow>(_mm_packus_epi16(ints(a), ints(b)));
    if constexpr (std::is_same_v<Narrow, int8_t>) return fromInts<Narrow>(_mm_packs_epi16(ints(a), ints(b)));
    if constexpr (std::is_same_v<Narrow, int16_t>) return fromInts<Narrow>(_mm_packs_epi32(ints(a), ints(b)));
    if constexpr (std::is_same_v<Narrow, uint16_t>) {
        // 0..65535 shifted down to the signed range, packed with signed saturation, and shifted back. The lower bound is
        // clamped first so that the shift cannot wrap.
        const __m128i bias = _mm_set1_epi32(32768);
        const auto biased = [&](__m128i v) { return _mm_sub_epi32(_mm_andnot_si128(_mm_srai_epi32(v, 31), v), bias); };
        return fromInts<Narrow>(
            _mm_xor_si128(_mm_packs_epi32(biased(ints(a)), biased(ints(b))), _mm_set1_epi16(-32768)));
    }
}
// The lanes of a, and then those of b.
template <class Narrow, class Wide>
PXL_INLINE Vec<Narrow> OrderedDemote2To(Vec<Wide> a, Vec<Wide> b) {
    return ReorderDemote2To<Narrow>(a, b);
}
// The lanes of four vectors in order, saturated to bytes.
template <class Narrow>
PXL_INLINE Vec<Narrow> OrderedDemote4To(Vec<int32_t> a, Vec<int32_t> b, Vec<int32_t> c, Vec<int32_t> d) {
    return ReorderDemote2To<Narrow>(ReorderDemote2To<int16_t>(a, b), ReorderDemote2To<int16_t>(c, d));
}

// The lanes of the lower and of the upper half of the register as doubles, and back.
PXL_INLINE Vec<double> PromoteLowerToDouble(Vec<float> v) { return {_mm_cvtps_pd(v.raw)}; }
PXL_INLINE Vec<double> PromoteUpperToDouble(Vec<float> v) { return {_mm_cvtps_pd(_mm_movehl_ps(v.raw, v.raw))}; }
PXL_INLINE Vec<double> PromoteLowerToDouble(Vec<int32_t> v) { return {_mm_cvtepi32_pd(ints(v))}; }
PXL_INLINE Vec<double> PromoteUpperToDouble(Vec<int32_t> v) {
    return {_mm_cvtepi32_pd(_mm_unpackhi_epi64(ints(v), ints(v)))};
}
PXL_INLINE Vec<float> ConvertToFloat(Vec<double> lower, Vec<double> upper) {
    return {_mm_movelh_ps(_mm_cvtpd_ps(lower.raw), _mm_cvtpd_ps(upper.raw))};
}
PXL_INLINE Vec<int32_t> TruncateToInt(Vec<double> lower, Vec<double> upper) {
    return fromInts<int32_t>(_mm_unpacklo_epi64(_mm_cvttpd_epi32(lower.raw), _mm_cvttpd_epi32(upper.raw)));
}

// ---- lanes ------------------------------------------------------------------------------------------------------------

PXL_INLINE Vec<int32_t> ReplaceFirstLane(Vec<int32_t> v, int32_t first) {
    const __m128 lane = _mm_castsi128_ps(_mm_cvtsi32_si128(first));
    return fromInts<int32_t>(_mm_castps_si128(_mm_move_ss(_mm_castsi128_ps(ints(v)), lane)));
}

// Words of Bytes bytes in reverse order in every block.
template <int Bytes>
PXL_INLINE Block ReverseBlock(Block v) {
    if constexpr (Bytes == 16) return v;
    if constexpr (Bytes == 8) return _mm_shuffle_epi32(v, _MM_SHUFFLE(1, 0, 3, 2));
    if constexpr (Bytes == 4) return _mm_shuffle_epi32(v, _MM_SHUFFLE(0, 1, 2, 3));
    if constexpr (Bytes == 2) {
        v = _mm_shufflelo_epi16(v, _MM_SHUFFLE(0, 1, 2, 3));
        v = _mm_shufflehi_epi16(v, _MM_SHUFFLE(0, 1, 2, 3));
        return _mm_shuffle_epi32(v, _MM_SHUFFLE(1, 0, 3, 2));
    }
    if constexpr (Bytes == 1) return ReverseBlock<2>(_mm_or_si128(_mm_slli_epi16(v, 8), _mm_srli_epi16(v, 8)));
}
// The vector at p with its words of Bytes bytes in reverse order.
template <int Bytes>
PXL_INLINE Vec<uint8_t> LoadReversed(const uint8_t* p) {
    return fromInts<uint8_t>(ReverseBlock<Bytes>(ints(LoadU(p))));
}

// Part j of a block's words of Bytes bytes, each three times.
template <int Bytes, int J>
PXL_INLINE Block TripleWords(Block v) {
    if constexpr (Bytes == 2) { // 0 0 0 1 1 1 2 2 | 2 3 3 3 4 4 4 5 | 5 5 6 6 6 7 7 7
        if constexpr (J == 0) return _mm_shufflehi_epi16(_mm_shufflelo_epi16(_mm_shuffle_epi32(v, 0x44), 0x40), 0xA5);
        if constexpr (J == 1) return _mm_shufflehi_epi16(_mm_shufflelo_epi16(_mm_shuffle_epi32(v, 0xA5), 0x54), 0x40);
        if constexpr (J == 2) return _mm_shufflehi_epi16(_mm_shufflelo_epi16(_mm_shuffle_epi32(v, 0xFE), 0xA5), 0x54);
    } else { // 0 0 0 1 | 1 1 2 2 | 2 3 3 3
        static_assert(Bytes == 4);
        return _mm_shuffle_epi32(v, J == 0 ? 0x40 : J == 1 ? 0xA5 : 0xFE);
    }
}

} // namespace pxl::PXL_TARGET

#undef PXL_VEC_OP
#undef PXL_VEC_MEMORY
