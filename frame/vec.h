// Vectors of one register: value types over GCC vector extensions, with the vocabulary of Highway.
//
// Kernels are written once over these functions; the register is 16 bytes wide on the SSE2 target and 32 on AVX2. Lane i of a
// vector loaded from p is p[i], and functions keep that order over the whole register unless their name says that they work
// in blocks of 16 bytes. Intrinsics stand here and in the other frame/vec_*.h only.
#pragma once

#include <immintrin.h>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#define PXL_INLINE inline __attribute__((always_inline))

namespace pxl::PXL_TARGET {

#ifdef __AVX2__
inline constexpr bool isAvx2 = true;
inline constexpr int vecBytes = 32;
#else
inline constexpr bool isAvx2 = false;
inline constexpr int vecBytes = 16;
#endif

template <class T>
struct Vec {
    typedef T Raw __attribute__((vector_size(vecBytes)));
    Raw raw;
};

template <class T>
inline constexpr int lanes = vecBytes / static_cast<int>(sizeof(T));

template <size_t Bytes>
struct UnsignedOf;
template <>
struct UnsignedOf<1> {
    using type = uint8_t;
};
template <>
struct UnsignedOf<2> {
    using type = uint16_t;
};
template <>
struct UnsignedOf<4> {
    using type = uint32_t;
};
template <>
struct UnsignedOf<8> {
    using type = uint64_t;
};

// Comparisons give all-ones or all-zeros lanes of the unsigned type of the same size.
template <class T>
using MaskLane = typename UnsignedOf<sizeof(T)>::type;
template <class T>
using Mask = Vec<MaskLane<T>>;

#ifdef __AVX2__
typedef __m256i IntRegister;
#else
typedef __m128i IntRegister;
#endif

template <class T>
PXL_INLINE IntRegister ints(Vec<T> v) {
    return (IntRegister)v.raw;
}
template <class T>
PXL_INLINE Vec<T> fromInts(IntRegister r) {
    return {(typename Vec<T>::Raw)r};
}
template <class U, class T>
PXL_INLINE Vec<U> BitCast(Vec<T> v) {
    return {(typename Vec<U>::Raw)v.raw};
}

// ---- scalars: through memcpy, since odd steps misalign elements ------------------------------------------------------------

template <class T>
PXL_INLINE T load1(const T* p) {
    T value;
    std::memcpy(&value, p, sizeof value);
    return value;
}
template <class T>
PXL_INLINE void store1(T* p, T value) {
    std::memcpy(p, &value, sizeof value);
}

// Register moves from and to memory by name.
#ifdef __AVX2__
#define PXL_VEC_MEMORY(op) _mm256_##op##_si256
#else
#define PXL_VEC_MEMORY(op) _mm_##op##_si128
#endif

// ---- memory ----------------------------------------------------------------------------------------------------------------

template <class T>
PXL_INLINE Vec<T> LoadU(const T* p) {
    return fromInts<T>(PXL_VEC_MEMORY(loadu)(reinterpret_cast<const IntRegister*>(p)));
}
// Not through memcpy, which GCC takes apart into smaller stores.
template <class T>
PXL_INLINE void StoreU(Vec<T> v, T* p) {
    PXL_VEC_MEMORY(storeu)(reinterpret_cast<IntRegister*>(p), ints(v));
}

// Copies n < Limit bytes that do not overlap, without a call and without touching anything beside them.
template <size_t Limit>
PXL_INLINE void copyFew(void* to, const void* from, size_t n) {
    char* d = static_cast<char*>(to);
    const char* s = static_cast<const char*>(from);
    const auto ends = [&](auto word) { // both ends of n bytes, as two words that may overlap
        decltype(word) last;
        std::memcpy(&word, s, sizeof word);
        std::memcpy(&last, s + n - sizeof last, sizeof last);
        std::memcpy(d, &word, sizeof word);
        std::memcpy(d + n - sizeof last, &last, sizeof last);
    };
    if constexpr (Limit > 16) {
        if (n >= 16) {
            if constexpr (Limit > 32)
                for (; n > 32; n -= 16, s += 16, d += 16) std::memcpy(d, s, 16);
            return ends(__m128i{});
        }
    }
    if constexpr (Limit > 8)
        if (n >= 8) return ends(uint64_t{});
    if constexpr (Limit > 4)
        if (n >= 4) return ends(uint32_t{});
    if constexpr (Limit > 2)
        if (n >= 2) return ends(uint16_t{});
    if (n == 1) *d = *s;
}

// Count elements of scratch, the first few of them copied from a row and the others zero.
template <class T, int Count>
struct Few {
    alignas(vecBytes) T data[Count] = {};
    PXL_INLINE Few(const T* from, size_t n) { copyFew<sizeof data>(data, from, n * sizeof(T)); }
};

// The first n lanes (n below the count of lanes), zero behind them; nothing else is read.
template <class T>
PXL_INLINE Vec<T> LoadN(const T* p, ptrdiff_t n) {
    return LoadU(Few<T, lanes<T>>(p, static_cast<size_t>(n)).data);
}
// Stores the first n lanes, and nothing else.
template <class T>
PXL_INLINE void StoreN(Vec<T> v, T* p, ptrdiff_t n) {
    alignas(vecBytes) T few[lanes<T>];
    StoreU(v, few);
    copyFew<vecBytes>(p, few, static_cast<size_t>(n) * sizeof(T));
}

template <class T>
PXL_INLINE Vec<T> Zero() {
    return {typename Vec<T>::Raw{}};
}
template <class T>
PXL_INLINE Vec<T> Set(std::type_identity_t<T> value) {
    return {value - typename Vec<T>::Raw{}}; // x - 0 keeps every bit of x, -0.0 too
}

// ---- arithmetic and bits ---------------------------------------------------------------------------------------------------

template <class T>
PXL_INLINE Vec<T> operator+(Vec<T> a, Vec<T> b) {
    return {a.raw + b.raw};
}
template <class T>
PXL_INLINE Vec<T> operator-(Vec<T> a, Vec<T> b) {
    return {a.raw - b.raw};
}
template <class T>
PXL_INLINE Vec<T> operator*(Vec<T> a, Vec<T> b) {
    return {a.raw * b.raw};
}
template <class T>
PXL_INLINE Vec<T> operator/(Vec<T> a, Vec<T> b) {
    static_assert(std::is_floating_point_v<T>);
    return {a.raw / b.raw};
}
template <class T>
PXL_INLINE Vec<T> operator&(Vec<T> a, Vec<T> b) {
    return fromInts<T>((IntRegister)(ints(a) & ints(b)));
}
template <class T>
PXL_INLINE Vec<T> operator|(Vec<T> a, Vec<T> b) {
    return fromInts<T>((IntRegister)(ints(a) | ints(b)));
}
template <class T>
PXL_INLINE Vec<T> operator^(Vec<T> a, Vec<T> b) {
    return fromInts<T>((IntRegister)(ints(a) ^ ints(b)));
}
template <class T>
PXL_INLINE Vec<T> operator~(Vec<T> a) {
    return fromInts<T>(~ints(a));
}
// ~a & b
template <class T>
PXL_INLINE Vec<T> AndNot(Vec<T> a, Vec<T> b) {
    return fromInts<T>((IntRegister)(~ints(a) & ints(b)));
}

// Shifts of lanes of 2, 4 or 8 bytes; signed lanes shift right arithmetically.
template <int Count, class T>
PXL_INLINE Vec<T> ShiftLeft(Vec<T> v) {
    static_assert(sizeof(T) > 1);
    return {v.raw << Count};
}
template <int Count, class T>
PXL_INLINE Vec<T> ShiftRight(Vec<T> v) {
    static_assert(sizeof(T) > 1);
    return {v.raw >> Count};
}

template <class T>
PXL_INLINE Mask<T> operator==(Vec<T> a, Vec<T> b) {
    return {(typename Mask<T>::Raw)(a.raw == b.raw)};
}
template <class T>
PXL_INLINE Mask<T> operator<(Vec<T> a, Vec<T> b) {
    return {(typename Mask<T>::Raw)(a.raw < b.raw)};
}
template <class T>
PXL_INLINE Mask<T> operator>(Vec<T> a, Vec<T> b) {
    return {(typename Mask<T>::Raw)(a.raw > b.raw)};
}
template <class T>
PXL_INLINE Mask<T> operator<=(Vec<T> a, Vec<T> b) {
    return {(typename Mask<T>::Raw)(a.raw <= b.raw)};
}

// mask ? a : b, lane by lane; mask lanes are all ones or all zeros.
template <class T>
PXL_INLINE Vec<T> IfThenElse(Mask<T> mask, Vec<T> a, Vec<T> b) {
#ifdef __AVX2__
    return fromInts<T>(_mm256_blendv_epi8(ints(b), ints(a), ints(mask)));
#else
    return fromInts<T>((ints(mask) & ints(a)) | (~ints(mask) & ints(b)));
#endif
}
template <class T>
PXL_INLINE Vec<T> IfThenElseZero(Mask<T> mask, Vec<T> a) {
    return fromInts<T>(ints(mask) & ints(a));
}

// Whether any bit of v is set.
template <class T>
PXL_INLINE bool AnyBit(Vec<T> v) {
#ifdef __AVX2__
    return !_mm256_testz_si256(ints(v), ints(v));
#else
    return _mm_movemask_epi8(_mm_cmpeq_epi8(ints(v), _mm_setzero_si128())) != 0xFFFF;
#endif
}

// One register operation by name on both targets.
#ifdef __AVX2__
#define PXL_VEC_OP(op) _mm256_##op
#else
#define PXL_VEC_OP(op) _mm_##op
#endif

// Floats: as the instruction does, the second operand where either is NaN.
PXL_INLINE Vec<float> Min(Vec<float> a, Vec<float> b) { return {PXL_VEC_OP(min_ps)(a.raw, b.raw)}; }
PXL_INLINE Vec<float> Max(Vec<float> a, Vec<float> b) { return {PXL_VEC_OP(max_ps)(a.raw, b.raw)}; }
PXL_INLINE Vec<double> Min(Vec<double> a, Vec<double> b) { return {PXL_VEC_OP(min_pd)(a.raw, b.raw)}; }
PXL_INLINE Vec<double> Max(Vec<double> a, Vec<double> b) { return {PXL_VEC_OP(max_pd)(a.raw, b.raw)}; }

template <class T>
PXL_INLINE Vec<T> Min(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, uint8_t>) return fromInts<T>(PXL_VEC_OP(min_epu8)(ints(a), ints(b)));
    if constexpr (std::is_same_v<T, int16_t>) return fromInts<T>(PXL_VEC_OP(min_epi16)(ints(a), ints(b)));
#ifndef __AVX2__
    if constexpr (std::is_same_v<T, uint16_t>)
        return fromInts<T>(_mm_sub_epi16(ints(a), _mm_subs_epu16(ints(a), ints(b))));
#endif
    return {a.raw < b.raw ? a.raw : b.raw};
}
template <class T>
PXL_INLINE Vec<T> Max(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, uint8_t>) return fromInts<T>(PXL_VEC_OP(max_epu8)(ints(a), ints(b)));
    if constexpr (std::is_same_v<T, int16_t>) return fromInts<T>(PXL_VEC_OP(max_epi16)(ints(a), ints(b)));
#ifndef __AVX2__
    if constexpr (std::is_same_v<T, uint16_t>)
        return fromInts<T>(_mm_add_epi16(_mm_subs_epu16(ints(a), ints(b)), ints(b)));
#endif
    return {a.raw > b.raw ? a.raw : b.raw};
}

PXL_INLINE Vec<uint8_t> SaturatedAdd(Vec<uint8_t> a, Vec<uint8_t> b) {
    return fromInts<uint8_t>(PXL_VEC_OP(adds_epu8)(ints(a), ints(b)));
}
PXL_INLINE Vec<uint16_t> SaturatedAdd(Vec<uint16_t> a, Vec<uint16_t> b) {
    return fromInts<uint16_t>(PXL_VEC_OP(adds_epu16)(ints(a), ints(b)));
}
PXL_INLINE Vec<int16_t> SaturatedAdd(Vec<int16_t> a, Vec<int16_t> b) {
    return fromInts<int16_t>(PXL_VEC_OP(adds_epi16)(ints(a), ints(b)));
}
PXL_INLINE Vec<uint8_t> SaturatedSub(Vec<uint8_t> a, Vec<uint8_t> b) {
    return fromInts<uint8_t>(PXL_VEC_OP(subs_epu8)(ints(a), ints(b)));
}
PXL_INLINE Vec<uint16_t> SaturatedSub(Vec<uint16_t> a, Vec<uint16_t> b) {
    return fromInts<uint16_t>(PXL_VEC_OP(subs_epu16)(ints(a), ints(b)));
}
PXL_INLINE Vec<int16_t> SaturatedSub(Vec<int16_t> a, Vec<int16_t> b) {
    return fromInts<int16_t>(PXL_VEC_OP(subs_epi16)(ints(a), ints(b)));
}

// ---- blocks of 16 bytes ----------------------------------------------------------------------------------------------------

// Lanes of the lower (upper) half of every 16-byte block of a and b, alternating: a0 b0 a1 b1 ...
template <class T>
PXL_INLINE Vec<T> InterleaveLowerBlocks(Vec<T> a, Vec<T> b) {
    if constexpr (sizeof(T) == 1) return fromInts<T>(PXL_VEC_OP(unpacklo_epi8)(ints(a), ints(b)));
    if constexpr (sizeof(T) == 2) return fromInts<T>(PXL_VEC_OP(unpacklo_epi16)(ints(a), ints(b)));
    if constexpr (sizeof(T) == 4) return fromInts<T>(PXL_VEC_OP(unpacklo_epi32)(ints(a), ints(b)));
    if constexpr (sizeof(T) == 8) return fromInts<T>(PXL_VEC_OP(unpacklo_epi64)(ints(a), ints(b)));
}
template <class T>
PXL_INLINE Vec<T> InterleaveUpperBlocks(Vec<T> a, Vec<T> b) {
    if constexpr (sizeof(T) == 1) return fromInts<T>(PXL_VEC_OP(unpackhi_epi8)(ints(a), ints(b)));
    if constexpr (sizeof(T) == 2) return fromInts<T>(PXL_VEC_OP(unpackhi_epi16)(ints(a), ints(b)));
    if constexpr (sizeof(T) == 4) return fromInts<T>(PXL_VEC_OP(unpackhi_epi32)(ints(a), ints(b)));
    if constexpr (sizeof(T) == 8) return fromInts<T>(PXL_VEC_OP(unpackhi_epi64)(ints(a), ints(b)));
}

// ---- widening, narrowing, conversion -----------------------------------------------------------------------------------------

// Widens the lanes in the lower half of a 16-byte register to twice their size, keeping their value.
template <class Narrow>
PXL_INLINE __m128i widenLower(__m128i v) {
    const __m128i zero = _mm_setzero_si128();
    if constexpr (std::is_same_v<Narrow, uint8_t>) return _mm_unpacklo_epi8(v, zero);
    if constexpr (std::is_same_v<Narrow, int8_t>) return _mm_srai_epi16(_mm_unpacklo_epi8(v, v), 8);
    if constexpr (std::is_same_v<Narrow, uint16_t>) return _mm_unpacklo_epi16(v, zero);
    if constexpr (std::is_same_v<Narrow, int16_t>) return _mm_srai_epi32(_mm_unpacklo_epi16(v, v), 16);
}

// lanes<Wide> integers, the first ones of a 16-byte register, each widened with its value kept.
template <class Wide, class Narrow>
PXL_INLINE Vec<Wide> promoteLower(__m128i v) {
#ifdef __AVX2__
    if constexpr (sizeof(Narrow) == 1 && sizeof(Wide) == 2)
        return fromInts<Wide>(std::is_signed_v<Narrow> ? _mm256_cvtepi8_epi16(v) : _mm256_cvtepu8_epi16(v));
    if constexpr (sizeof(Narrow) == 1 && sizeof(Wide) == 4)
        return fromInts<Wide>(std::is_signed_v<Narrow> ? _mm256_cvtepi8_epi32(v) : _mm256_cvtepu8_epi32(v));
    if constexpr (sizeof(Narrow) == 2 && sizeof(Wide) == 4)
        return fromInts<Wide>(std::is_signed_v<Narrow> ? _mm256_cvtepi16_epi32(v) : _mm256_cvtepu16_epi32(v));
#else
    v = widenLower<Narrow>(v);
    if constexpr (sizeof(Wide) == 4 * sizeof(Narrow))
        v = widenLower<std::conditional_t<std::is_signed_v<Narrow>, int16_t, uint16_t>>(v);
    return fromInts<Wide>(v);
#endif
}

// The same from memory.
template <class Wide, class Narrow>
PXL_INLINE Vec<Wide> LoadPromoteInt(const Narrow* p) {
    constexpr int bytes = vecBytes * static_cast<int>(sizeof(Narrow)) / static_cast<int>(sizeof(Wide)); // 4, 8 or 16
    __m128i v = _mm_setzero_si128();
    if constexpr (bytes == 4) {
        int32_t few;
        std::memcpy(&few, p, sizeof few);
        v = _mm_cvtsi32_si128(few);
    } else if constexpr (bytes == 8) {
        v = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
    } else {
        v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
    }
    return promoteLower<Wide, Narrow>(v);
}

// The same to any wider type, float included.
template <class Wide, class Narrow>
PXL_INLINE Vec<Wide> LoadPromote(const Narrow* p) {
    if constexpr (std::is_same_v<Wide, float>)
        return {PXL_VEC_OP(cvtepi32_ps)(ints(LoadPromoteInt<int32_t>(p)))};
    else
        return LoadPromoteInt<Wide>(p);
}

// Narrows two vectors to one with saturation, in order: lanes of a, then lanes of b. Wide lanes are read as signed.
template <class Narrow, class Wide>
PXL_INLINE Vec<Narrow> Demote2(Vec<Wide> a, Vec<Wide> b) {
    static_assert(sizeof(Wide) == 2 * sizeof(Narrow) && std::is_signed_v<Wide>);
    IntRegister packed;
    if constexpr (std::is_same_v<Narrow, uint8_t>) packed = PXL_VEC_OP(packus_epi16)(ints(a), ints(b));
    if constexpr (std::is_same_v<Narrow, int8_t>) packed = PXL_VEC_OP(packs_epi16)(ints(a), ints(b));
    if constexpr (std::is_same_v<Narrow, int16_t>) packed = PXL_VEC_OP(packs_epi32)(ints(a), ints(b));
    if constexpr (std::is_same_v<Narrow, uint16_t>) {
#ifdef __AVX2__
        packed = _mm256_packus_epi32(ints(a), ints(b));
#else
        // 0..65535 shifted down to the signed range, packed with signed saturation, and shifted back. The lower bound is
        // clamped first so that the shift cannot wrap.
        const __m128i bias = _mm_set1_epi32(32768);
        const auto biased = [&](__m128i v) { return _mm_sub_epi32(_mm_andnot_si128(_mm_srai_epi32(v, 31), v), bias); };
        packed = _mm_xor_si128(_mm_packs_epi32(biased(ints(a)), biased(ints(b))), _mm_set1_epi16(-32768));
#endif
    }
#ifdef __AVX2__
    packed = _mm256_permute4x64_epi64(packed, 0xD8); // packing works in blocks of 16 bytes: put the quarters in order
#endif
    return fromInts<Narrow>(packed);
}

// Narrows four vectors of 32-bit lanes to one of 8-bit lanes with saturation, in order.
template <class Narrow>
PXL_INLINE Vec<Narrow> Demote4(Vec<int32_t> a, Vec<int32_t> b, Vec<int32_t> c, Vec<int32_t> d) {
#ifdef __AVX2__
    const __m256i ab = _mm256_packs_epi32(ints(a), ints(b));
    const __m256i cd = _mm256_packs_epi32(ints(c), ints(d));
    const __m256i packed = std::is_same_v<Narrow, uint8_t> ? _mm256_packus_epi16(ab, cd) : _mm256_packs_epi16(ab, cd);
    return fromInts<Narrow>(_mm256_permutevar8x32_epi32(packed, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7)));
#else
    return Demote2<Narrow>(Demote2<int16_t>(a, b), Demote2<int16_t>(c, d));
#endif
}

PXL_INLINE Vec<float> ConvertToFloat(Vec<int32_t> v) { return {PXL_VEC_OP(cvtepi32_ps)(ints(v))}; }
// Toward zero, and to nearest with ties to even; lanes outside the range of 32s and NaN give its minimum.
PXL_INLINE Vec<int32_t> TruncateToInt(Vec<float> v) { return fromInts<int32_t>(PXL_VEC_OP(cvttps_epi32)(v.raw)); }
PXL_INLINE Vec<int32_t> NearestInt(Vec<float> v) { return fromInts<int32_t>(PXL_VEC_OP(cvtps_epi32)(v.raw)); }

// ---- rows -------------------------------------------------------------------------------------------------------------------

// Runs block(destination, sources...) over a row of n elements, Count elements at a time. The last, shorter block works on
// copies, so a block may always load and store Count elements of every operand and the row is never left.
template <int Count, class Block, class D, class... S>
PXL_INLINE void rowByBlocks(ptrdiff_t n, Block&& block, D* d, const S*... s) {
    ptrdiff_t x = 0;
    for (; x + Count <= n; x += Count) block(d + x, (s + x)...);
    const size_t rest = static_cast<size_t>(n - x);
    if (rest == 0) return;
    alignas(vecBytes) D few[Count];
    block(few, static_cast<const S*>(Few<S, Count>(s + x, rest).data)...);
    copyFew<sizeof few>(d + x, few, rest * sizeof(D));
}

} // namespace pxl::PXL_TARGET
