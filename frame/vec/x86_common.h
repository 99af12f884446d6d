// What the x86 targets have in common: vectors of one register, as value types over GCC vector extensions, and the operations that
// are spelled alike but for the width in the names of instructions. Included by the files of the targets, which say first:
//     vecBytes, IntRegister                the width and the type of a register
//     PXL_VEC_OP(op), PXL_VEC_MEMORY(op)   the instructions of that width by name
//
// Lane i of a vector loaded from p is p[i]. Functions keep that order over the whole register unless they say that they work in
// blocks, which are the 16 bytes that most shuffles do not cross.
#pragma once

#include <immintrin.h>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

#define PXL_INLINE inline __attribute__((always_inline))

namespace pxl::PXL_TARGET {

// ---- types ----------------------------------------------------------------------------------------------------------

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

// 16 bytes by themselves; they take the operators of C as two numbers of 64 bits.
typedef __m128i Block;

inline constexpr int blockBytes = 16;
inline constexpr int vecBlocks = vecBytes / blockBytes;
template <class T>
inline constexpr int blockLanes = blockBytes / static_cast<int>(sizeof(T));

// ---- memory ---------------------------------------------------------------------------------------------------------

template <class T>
PXL_INLINE Vec<T> LoadU(const T* p) {
    return fromInts<T>(PXL_VEC_MEMORY(loadu)(reinterpret_cast<const IntRegister*>(p)));
}
// Not through memcpy, which GCC takes apart into smaller stores.
template <class T>
PXL_INLINE void StoreU(Vec<T> v, T* p) {
    PXL_VEC_MEMORY(storeu)(reinterpret_cast<IntRegister*>(p), ints(v));
}

// Stores that pass by the caches, to multiples of their size.
template <class T>
PXL_INLINE void Stream(Vec<T> v, T* p) {
    PXL_VEC_MEMORY(stream)(reinterpret_cast<IntRegister*>(p), ints(v));
}
PXL_INLINE void Stream(Block v, void* p) { _mm_stream_si128(static_cast<Block*>(p), v); }
// Orders them before whatever comes next.
PXL_INLINE void FlushStream() { _mm_sfence(); }

// Ask for the line of the caches at p. Nothing is read or written by that.
PXL_INLINE void Prefetch(const void* p) { _mm_prefetch(static_cast<const char*>(p), _MM_HINT_T0); }
PXL_INLINE void PrefetchToStore(void* p) { __builtin_prefetch(p, 1); }

// ---- order of instructions ------------------------------------------------------------------------------------------

// A vector that stays in its register. Where it is used more than once, GCC would rather load it again for each use.
template <class T>
PXL_INLINE Vec<T> Held(Vec<T> v) {
    asm("" : "+x"(v.raw));
    return v;
}
// Has v computed before the stores and other such statements that follow.
template <class T>
PXL_INLINE void ComputeHere(Vec<T> v) {
    asm volatile("" ::"x"(v.raw));
}

// ---- blocks of their own --------------------------------------------------------------------------------------------

PXL_INLINE Block BlockOf(uint64_t lower, uint64_t upper) {
    return _mm_set_epi64x(static_cast<int64_t>(upper), static_cast<int64_t>(lower));
}
PXL_INLINE uint64_t LowerHalf(Block v) { return static_cast<uint64_t>(_mm_cvtsi128_si64(v)); }
PXL_INLINE uint64_t UpperHalf(Block v) { return static_cast<uint64_t>(_mm_cvtsi128_si64(_mm_unpackhi_epi64(v, v))); }

// Two words of 8 bytes that lie apart.
PXL_INLINE Block LoadHalves(const void* lower, const void* upper) {
    const Block first = _mm_loadl_epi64(static_cast<const Block*>(lower));
    return _mm_castps_si128(_mm_loadh_pi(_mm_castsi128_ps(first), static_cast<const __m64*>(upper)));
}
PXL_INLINE void StoreHalves(Block v, void* lower, void* upper) {
    _mm_storel_epi64(static_cast<Block*>(lower), v);
    _mm_storeh_pi(static_cast<__m64*>(upper), _mm_castsi128_ps(v));
}

// The lower half, and zeros.
PXL_INLINE Block ZeroUpperHalf(Block v) { return _mm_move_epi64(v); }
// Byte i becomes byte i + Count (i - Count), zeros come in.
template <int Count>
PXL_INLINE Block ShiftLeftBytes(Block v) {
    return _mm_slli_si128(v, Count);
}
template <int Count>
PXL_INLINE Block ShiftRightBytes(Block v) {
    return _mm_srli_si128(v, Count);
}
// The lower half shifted right as a number, by 64 bits at most; the upper half is unspecified.
PXL_INLINE Block ShiftLowerHalfRight(Block v, ptrdiff_t bits) {
    return _mm_srl_epi64(v, _mm_cvtsi32_si128(static_cast<int>(bits)));
}

// The first Bytes bytes at p, zeros behind them; nothing else is read.
template <int Bytes>
PXL_INLINE Block LoadBlock(const void* p) {
    const char* s = static_cast<const char*>(p);
    if constexpr (Bytes <= 0) {
        return _mm_setzero_si128();
    } else if constexpr (Bytes >= 16) {
        return _mm_loadu_si128(reinterpret_cast<const Block*>(s));
    } else if constexpr (Bytes == 8) {
        return _mm_loadl_epi64(reinterpret_cast<const Block*>(s));
    } else if constexpr (std::has_single_bit(unsigned{Bytes})) {
        typename UnsignedOf<Bytes>::type word;
        std::memcpy(&word, s, sizeof word);
        return _mm_cvtsi32_si128(static_cast<int>(word));
    } else if constexpr (Bytes == 3 || Bytes == 6 || Bytes == 12) { // as StoreBlock stores them
        constexpr int first = Bytes / 3 * 2;
        return LoadBlock<first>(s) | ShiftLeftBytes<first>(LoadBlock<Bytes - first>(s + first));
    } else { // two words that share bytes
        static_assert(Bytes > 8);
        return LoadBlock<8>(s) | ShiftLeftBytes<Bytes - 8>(LoadBlock<8>(s + Bytes - 8));
    }
}
// Stores the first Bytes bytes, a power of two or three times one, and nothing else.
template <int Bytes>
PXL_INLINE void StoreBlock(Block v, void* p) {
    if constexpr (Bytes == 3 || Bytes == 6 || Bytes == 12) {
        constexpr int first = Bytes / 3 * 2;
        StoreBlock<first>(v, p);
        StoreBlock<Bytes - first>(ShiftRightBytes<first>(v), static_cast<char*>(p) + first);
    } else if constexpr (Bytes == 16) {
        _mm_storeu_si128(static_cast<Block*>(p), v);
    } else if constexpr (Bytes == 8) {
        _mm_storel_epi64(static_cast<Block*>(p), v);
    } else {
        const auto word = static_cast<typename UnsignedOf<Bytes>::type>(_mm_cvtsi128_si32(v));
        std::memcpy(p, &word, sizeof word);
    }
}

// Words of Bytes bytes of the lower (upper) halves of a and b, alternating.
template <int Bytes>
PXL_INLINE Block InterleaveLower(Block a, Block b) {
    if constexpr (Bytes == 1) return _mm_unpacklo_epi8(a, b);
    if constexpr (Bytes == 2) return _mm_unpacklo_epi16(a, b);
    if constexpr (Bytes == 4) return _mm_unpacklo_epi32(a, b);
    if constexpr (Bytes == 8) return _mm_unpacklo_epi64(a, b);
}
template <int Bytes>
PXL_INLINE Block InterleaveUpper(Block a, Block b) {
    if constexpr (Bytes == 1) return _mm_unpackhi_epi8(a, b);
    if constexpr (Bytes == 2) return _mm_unpackhi_epi16(a, b);
    if constexpr (Bytes == 4) return _mm_unpackhi_epi32(a, b);
    if constexpr (Bytes == 8) return _mm_unpackhi_epi64(a, b);
}

// Four 16-bit words in reverse order.
PXL_INLINE uint64_t ReverseWords(uint64_t words) {
    return static_cast<uint64_t>(
        _mm_cvtsi128_si64(_mm_shufflelo_epi16(_mm_cvtsi64_si128(static_cast<int64_t>(words)), 0x1B)));
}

// All ones in the bytes that are 0.
PXL_INLINE Block ZeroBytes(Block v) { return _mm_cmpeq_epi8(v, _mm_setzero_si128()); }
// Bit i is the sign of byte i.
PXL_INLINE uint32_t BitsFromMask(Block v) { return static_cast<uint32_t>(_mm_movemask_epi8(v)); }
// Every byte times two.
PXL_INLINE Block DoubleBytes(Block v) { return _mm_add_epi8(v, v); }
// Pairs of bytes, and halves, shifted as numbers.
template <int Count>
PXL_INLINE Block ShiftLeftPairs(Block v) {
    return _mm_slli_epi16(v, Count);
}
template <int Count>
PXL_INLINE Block ShiftLeftHalves(Block v) {
    return _mm_slli_epi64(v, Count);
}
template <int Count>
PXL_INLINE Block ShiftRightHalves(Block v) {
    return _mm_srli_epi64(v, Count);
}

// ---- arithmetic -----------------------------------------------------------------------------------------------------

// Floats: as the instruction does, the second operand where either is NaN.
PXL_INLINE Vec<float> Min(Vec<float> a, Vec<float> b) { return {PXL_VEC_OP(min_ps)(a.raw, b.raw)}; }
PXL_INLINE Vec<float> Max(Vec<float> a, Vec<float> b) { return {PXL_VEC_OP(max_ps)(a.raw, b.raw)}; }
PXL_INLINE Vec<double> Min(Vec<double> a, Vec<double> b) { return {PXL_VEC_OP(min_pd)(a.raw, b.raw)}; }
PXL_INLINE Vec<double> Max(Vec<double> a, Vec<double> b) { return {PXL_VEC_OP(max_pd)(a.raw, b.raw)}; }

template <class T>
PXL_INLINE Vec<T> Min(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, uint8_t>) return fromInts<T>(PXL_VEC_OP(min_epu8)(ints(a), ints(b)));
    if constexpr (std::is_same_v<T, int16_t>) return fromInts<T>(PXL_VEC_OP(min_epi16)(ints(a), ints(b)));
    return {a.raw < b.raw ? a.raw : b.raw};
}
template <class T>
PXL_INLINE Vec<T> Max(Vec<T> a, Vec<T> b) {
    if constexpr (std::is_same_v<T, uint8_t>) return fromInts<T>(PXL_VEC_OP(max_epu8)(ints(a), ints(b)));
    if constexpr (std::is_same_v<T, int16_t>) return fromInts<T>(PXL_VEC_OP(max_epi16)(ints(a), ints(b)));
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

// (a + b + 1) / 2
PXL_INLINE Vec<uint8_t> AverageRound(Vec<uint8_t> a, Vec<uint8_t> b) {
    return fromInts<uint8_t>(PXL_VEC_OP(avg_epu8)(ints(a), ints(b)));
}
PXL_INLINE Vec<uint16_t> AverageRound(Vec<uint16_t> a, Vec<uint16_t> b) {
    return fromInts<uint16_t>(PXL_VEC_OP(avg_epu16)(ints(a), ints(b)));
}

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
PXL_INLINE Vec<int32_t> WidenMulPairwiseAdd(Vec<int16_t> a, Vec<int16_t> b) {
    return fromInts<int32_t>(PXL_VEC_OP(madd_epi16)(ints(a), ints(b)));
}

// 1 / v with a relative error of at most 1.5 * 2^-12, which differs between processors; infinity for 0.
PXL_INLINE Vec<float> ApproximateReciprocal(Vec<float> v) { return {PXL_VEC_OP(rcp_ps)(v.raw)}; }

// ---- conversion -----------------------------------------------------------------------------------------------------

PXL_INLINE Vec<float> ConvertToFloat(Vec<int32_t> v) { return {PXL_VEC_OP(cvtepi32_ps)(ints(v))}; }
// Toward zero, and to nearest with ties to even; lanes outside the range of 32s and NaN give its minimum.
PXL_INLINE Vec<int32_t> TruncateToInt(Vec<float> v) { return fromInts<int32_t>(PXL_VEC_OP(cvttps_epi32)(v.raw)); }
PXL_INLINE Vec<int32_t> NearestInt(Vec<float> v) { return fromInts<int32_t>(PXL_VEC_OP(cvtps_epi32)(v.raw)); }

// ---- masks ----------------------------------------------------------------------------------------------------------

// Bit i is the sign of lane i.
PXL_INLINE uint32_t BitsFromMask(Vec<uint32_t> v) {
    return static_cast<uint32_t>(PXL_VEC_OP(movemask_ps)(BitCast<float>(v).raw));
}
PXL_INLINE uint32_t BitsFromMask(Vec<uint8_t> v) { return static_cast<uint32_t>(PXL_VEC_OP(movemask_epi8)(ints(v))); }

// ---- lanes of blocks ------------------------------------------------------------------------------------------------

// Lanes of the lower (upper) half of every block of a and b, alternating: a0 b0 a1 b1 ...
template <class T>
PXL_INLINE Vec<T> InterleaveLower(Vec<T> a, Vec<T> b) {
    if constexpr (sizeof(T) == 1) return fromInts<T>(PXL_VEC_OP(unpacklo_epi8)(ints(a), ints(b)));
    if constexpr (sizeof(T) == 2) return fromInts<T>(PXL_VEC_OP(unpacklo_epi16)(ints(a), ints(b)));
    if constexpr (sizeof(T) == 4) return fromInts<T>(PXL_VEC_OP(unpacklo_epi32)(ints(a), ints(b)));
    if constexpr (sizeof(T) == 8) return fromInts<T>(PXL_VEC_OP(unpacklo_epi64)(ints(a), ints(b)));
}
template <class T>
PXL_INLINE Vec<T> InterleaveUpper(Vec<T> a, Vec<T> b) {
    if constexpr (sizeof(T) == 1) return fromInts<T>(PXL_VEC_OP(unpackhi_epi8)(ints(a), ints(b)));
    if constexpr (sizeof(T) == 2) return fromInts<T>(PXL_VEC_OP(unpackhi_epi16)(ints(a), ints(b)));
    if constexpr (sizeof(T) == 4) return fromInts<T>(PXL_VEC_OP(unpackhi_epi32)(ints(a), ints(b)));
    if constexpr (sizeof(T) == 8) return fromInts<T>(PXL_VEC_OP(unpackhi_epi64)(ints(a), ints(b)));
}
// Lanes 2i of every block of a, and then those of b.
PXL_INLINE Vec<float> ConcatEvenBlocks(Vec<float> a, Vec<float> b) {
    return {PXL_VEC_OP(shuffle_ps)(a.raw, b.raw, 0x88)};
}

// Lanes 2i and 2i + 1 exchanged.
template <class T>
PXL_INLINE Vec<T> Reverse2(Vec<T> v) {
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

} // namespace pxl::PXL_TARGET
