// Rows filled with one pixel over and over: patterns of a whole number of pixels that fit whole registers.
#pragma once

#include <utility>

#include "frame/vec.h"

namespace pxl::PXL_TARGET {

// ---- pieces of rows that are shorter than a register ----------------------------------------------------------------

// 16 bytes and less, in the low end of a register and with zeros behind them: a power of two, or three times one, which
// moves as two words.
typedef __m128i Piece;

template <class T>
PXL_INLINE T loadAs(const void* p) {
    T value;
    std::memcpy(&value, p, sizeof value);
    return value;
}

template <int Bytes>
PXL_INLINE Piece loadPiece(const void* p) {
    if constexpr (Bytes % 3 == 0) {
        constexpr int first = Bytes / 3 * 2;
        const Piece second = loadPiece<Bytes - first>(static_cast<const char*>(p) + first);
        return _mm_or_si128(loadPiece<first>(p), _mm_slli_si128(second, first));
    } else if constexpr (Bytes == 16) {
        return _mm_loadu_si128(static_cast<const __m128i*>(p));
    } else if constexpr (Bytes == 8) {
        return _mm_loadl_epi64(static_cast<const __m128i*>(p));
    } else {
        return _mm_cvtsi32_si128(static_cast<int>(loadAs<typename UnsignedOf<Bytes>::type>(p)));
    }
}
template <int Bytes>
PXL_INLINE void storePiece(Piece v, void* p) {
    if constexpr (Bytes % 3 == 0) {
        constexpr int first = Bytes / 3 * 2;
        storePiece<first>(v, p);
        storePiece<Bytes - first>(_mm_srli_si128(v, first), static_cast<char*>(p) + first);
    } else if constexpr (Bytes == 16) {
        _mm_storeu_si128(static_cast<__m128i*>(p), v);
    } else if constexpr (Bytes == 8) {
        _mm_storel_epi64(static_cast<__m128i*>(p), v);
    } else {
        const auto few = static_cast<typename UnsignedOf<Bytes>::type>(_mm_cvtsi128_si32(v));
        std::memcpy(p, &few, sizeof few);
    }
}

// The first and the last bytes of a register.
PXL_INLINE Piece headOf(__m128i v) { return v; }
template <int Bytes>
PXL_INLINE Piece tailOf(__m128i v) {
    return _mm_srli_si128(v, 16 - Bytes);
}
#ifdef __AVX2__
PXL_INLINE Piece headOf(__m256i v) { return _mm256_castsi256_si128(v); }
template <int Bytes>
PXL_INLINE Piece tailOf(__m256i v) {
    return tailOf<Bytes>(_mm256_extracti128_si256(v, 1));
}
#endif

// Calls body with the largest power of two, up to 16, that a row of whole pixels holds, as a constant.
template <int E, class Body>
PXL_INLINE void withPieceSize(ptrdiff_t bytes, Body&& body) {
    if (E >= 16 || bytes >= 16) return body(std::integral_constant<int, 16>{});
    if constexpr (E < 16)
        if (E >= 8 || bytes >= 8) return body(std::integral_constant<int, 8>{});
    if constexpr (E < 8)
        if (E >= 4 || bytes >= 4) return body(std::integral_constant<int, 4>{});
    if constexpr (E < 4)
        if (E >= 2 || bytes >= 2) return body(std::integral_constant<int, 2>{});
    if constexpr (E < 2) body(std::integral_constant<int, 1>{});
}

// Calls body(j) for j = 0 .. Count - 1, each a constant.
template <int Count, class Body>
PXL_INLINE void unrolled(Body&& body) {
    [&]<int... j>(std::integer_sequence<int, j...>) __attribute__((always_inline)) {
        (body(std::integral_constant<int, j>{}), ...);
    }
    (std::make_integer_sequence<int, Count>{});
}

// ---- patterns -------------------------------------------------------------------------------------------------------

// Pixels of E bytes, end to end. The first vector begins with a pixel and the last one ends with one.
template <int E>
struct Pattern {
    static constexpr int count = E % 3 == 0 ? 3 : 1;
    Vec<uint8_t> v[count];
};

// Register by register: GCC copies the struct in smaller pieces, and a load would have to wait for them.
template <int E>
PXL_INLINE Pattern<E> loadPattern(const void* bytes) {
    Pattern<E> p;
    unrolled<Pattern<E>::count>([&](auto j) { p.v[j] = LoadU(static_cast<const uint8_t*>(bytes) + j * vecBytes); });
    return p;
}

#ifdef __AVX2__

// Byte k of a pattern is byte k % E of the pixel.
template <int E>
struct RepeatTable {
    alignas(vecBytes) uint8_t bytes[3 * vecBytes];
    constexpr RepeatTable() : bytes{} {
        for (int k = 0; k < 3 * vecBytes; ++k) bytes[k] = static_cast<uint8_t>(k % E);
    }
};
template <int E>
inline constexpr RepeatTable<E> repeatTable;

template <int E>
PXL_INLINE Pattern<E> repeatPixel(Piece pixel) {
    if constexpr (E == 1) return {{fromInts<uint8_t>(_mm256_broadcastb_epi8(pixel))}};
    if constexpr (E == 2) return {{fromInts<uint8_t>(_mm256_broadcastw_epi16(pixel))}};
    if constexpr (E == 4) return {{fromInts<uint8_t>(_mm256_broadcastd_epi32(pixel))}};
    if constexpr (E == 8) return {{fromInts<uint8_t>(_mm256_broadcastq_epi64(pixel))}};
    const __m256i twice = _mm256_broadcastsi128_si256(pixel);
    if constexpr (E == 16) return {{fromInts<uint8_t>(twice)}};
    if constexpr (E % 3 == 0) {
        const auto vector = [&](int j) {
            const Vec<uint8_t> from = LoadU(repeatTable<E>.bytes + j * vecBytes);
            return fromInts<uint8_t>(_mm256_shuffle_epi8(twice, ints(from)));
        };
        return {{vector(0), vector(1), vector(2)}};
    }
}

#else

// A pattern whose period is three words of 8 bytes.
template <int E>
PXL_INLINE Pattern<E> repeatWords(uint64_t w0, uint64_t w1, uint64_t w2) {
    const auto vector = [](uint64_t low, uint64_t high) {
        return fromInts<uint8_t>(_mm_set_epi64x(static_cast<int64_t>(high), static_cast<int64_t>(low)));
    };
    return {{vector(w0, w1), vector(w2, w0), vector(w1, w2)}};
}

template <int E>
PXL_INLINE Pattern<E> repeatPixel(Piece pixel) {
    if constexpr (E % 3 == 0) {
        const uint64_t low = static_cast<uint64_t>(_mm_cvtsi128_si64(pixel));
        const uint64_t high = static_cast<uint64_t>(_mm_cvtsi128_si64(_mm_unpackhi_epi64(pixel, pixel)));
        if constexpr (E == 12) return repeatWords<E>(low, high | low << 32, low >> 32 | high << 32);
        const uint64_t six = E == 3 ? low | low << 24 : low;
        return repeatWords<E>(six | six << 48, six >> 16 | six << 32, six >> 32 | six << 16);
    } else {
        if constexpr (E == 1) pixel = _mm_unpacklo_epi8(pixel, pixel);
        if constexpr (E <= 2) pixel = _mm_shufflelo_epi16(pixel, 0);
        if constexpr (E <= 4) pixel = _mm_shuffle_epi32(pixel, 0);
        if constexpr (E == 8) pixel = _mm_unpacklo_epi64(pixel, pixel);
        return {{fromInts<uint8_t>(pixel)}};
    }
}

#endif

template <int E>
PXL_INLINE Pattern<E> patternOf(const void* pixel) {
    return repeatPixel<E>(loadPiece<E>(pixel));
}

// All ones in bytes From .. To - 1 of every pixel and zeros elsewhere.
template <int E, int From, int To>
struct BytesOfPixel {
    alignas(vecBytes) uint8_t bytes[Pattern<E>::count * vecBytes];
    constexpr BytesOfPixel() : bytes{} {
        for (int k = 0; k < Pattern<E>::count * vecBytes; ++k) bytes[k] = k % E >= From && k % E < To ? 0xFF : 0;
    }
};
template <int E, int From, int To>
inline constexpr BytesOfPixel<E, From, To> bytesOfPixel;

template <int E, int From, int To>
PXL_INLINE Pattern<E> maskPattern() {
    return loadPattern<E>(bytesOfPixel<E, From, To>.bytes);
}

// ---- AC4: pixels of which the fourth element is not processed -------------------------------------------------------

// Bytes of the three processed elements.
template <int E>
inline constexpr int colourBytes = E / 4 * 3;

// The three elements and a zero.
template <int E>
PXL_INLINE Pattern<E> colourPattern(const void* pixel) {
    return repeatPixel<E>(loadPiece<colourBytes<E>>(pixel));
}
// All ones in fourth elements.
template <int E>
PXL_INLINE Pattern<E> alphaPattern() {
    return maskPattern<E, colourBytes<E>, E>();
}

// ---- filling --------------------------------------------------------------------------------------------------------

// What to store at d: value, or value together with the bits of d that keep has set.
PXL_INLINE Vec<uint8_t> filled(const uint8_t*, Vec<uint8_t> value) { return value; }
PXL_INLINE Vec<uint8_t> filled(const uint8_t* d, Vec<uint8_t> value, Vec<uint8_t> keep) {
    return value | (keep & LoadU(d));
}
template <int Bytes>
PXL_INLINE Piece filledPiece(const uint8_t*, Piece value) {
    return value;
}
template <int Bytes>
PXL_INLINE Piece filledPiece(const uint8_t* d, Piece value, Piece keep) {
    return _mm_or_si128(value, _mm_and_si128(keep, loadPiece<Bytes>(d)));
}

// Less than a register: two pieces that may overlap, one at each end, both made before the first store.
template <int E, class... Keep>
PXL_INLINE void fillShort(uint8_t* d, ptrdiff_t bytes, const Pattern<E>& value, const Keep&... keep) {
    constexpr int end = Pattern<E>::count - 1;
    withPieceSize<E>(
        bytes, [&](auto size) __attribute__((always_inline)) {
            uint8_t* const behind = d + bytes - size;
            const Piece first = filledPiece<size>(d, headOf(ints(value.v[0])), headOf(ints(keep.v[0]))...);
            const Piece last =
                filledPiece<size>(behind, tailOf<size>(ints(value.v[end])), tailOf<size>(ints(keep.v[end]))...);
            storePiece<size>(first, d);
            storePiece<size>(last, behind);
        });
}

// Fills whole pixels, bytes in all (or none), with a pattern. With `keep`, another pattern, the bits that it has set
// keep their value; the first pattern must have none there. The last register may overlap the one before, and is made
// ahead: a load of what was just stored in pieces would have to wait for them.
template <int E, class... Keep>
PXL_INLINE void fillPixels(uint8_t* d, ptrdiff_t bytes, const Pattern<E>& value, const Keep&... keep) {
    if (bytes < vecBytes) {
        if (bytes > 0) fillShort(d, bytes, value, keep...);
        return;
    }
    constexpr int count = Pattern<E>::count;
    constexpr int run = count == 1 ? 4 : 3; // vectors
    const Vec<uint8_t> last = filled(d + bytes - vecBytes, value.v[count - 1], keep.v[count - 1]...);
    const auto fill = [&](uint8_t * to, auto j) __attribute__((always_inline)) {
        StoreU(filled(to + j * vecBytes, value.v[j % count], keep.v[j % count]...), to + j * vecBytes);
    };
    ptrdiff_t o = 0;
    for (; o + run * vecBytes <= bytes; o += run * vecBytes)
        unrolled<run>([&](auto j) __attribute__((always_inline)) { fill(d + o, j); });
    unrolled<run - 1>([&](auto j) __attribute__((always_inline)) {
        if (o + (j + 1) * vecBytes <= bytes) fill(d + o, j);
    });
    StoreU(last, d + bytes - vecBytes);
}

} // namespace pxl::PXL_TARGET
