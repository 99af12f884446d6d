// Integer sums by pairs of taps: samples of two taps side by side, multiplied with two coefficients and added in one
// instruction.
//
// The sums are exact modulo 2^32, so taps may be paired in any order and zeros left out. What a kernel allows is
// decided once per call:
//   bytes  8u, sums that fit 16 bits whatever the samples, signed or, without negative coefficients, unsigned: 8-bit
//          coefficients, 16-bit sums
//   words  16-bit coefficients: 32-bit sums. 16u samples are lowered by 32768 to be signed, and the sum is raised again.
//   none   other kernels, which take filter/sums.h, as do rows shorter than a block
#pragma once

#include "filter/sums.h"

namespace pxl::PXL_TARGET::filter {

enum class Pairing { none, words, bytes };

// Two taps as bytes from the first one of a window, and their coefficients as one word to be repeated over a register.
struct TapPair {
    int32_t first, second;
    uint32_t coefficients;
};

// What a kernel's coefficients are, looked at once.
struct Coefficients {
    int64_t positive = 0, negative = 0; // sums of either sign
    int64_t smallest = 0, largest = 0;
    int64_t nonZero = 0;

    Coefficients(const int32_t* kernel, int64_t count) {
        for (int64_t i = 0; i < count; ++i) {
            const int64_t k = load1(kernel + i);
            (k > 0 ? positive : negative) += k;
            smallest = k < smallest ? k : smallest;
            largest = k > largest ? k : largest;
            nonZero += k != 0;
        }
    }

    int64_t sum() const { return positive + negative; }
    bool fit16() const { return smallest >= INT16_MIN && largest <= INT16_MAX; }
    // 255 * 128 < 2^15. Coefficients are 128 only at the lower end of 8 bits.
    bool sumsFitSigned16() const { return positive <= 128 && negative >= -128 && largest <= INT8_MAX; }
    // 255 * 257 < 2^16, where the products of any two taps fit the signed sum of a pair.
    bool sumsFitUnsigned16() const { return positive <= 257 && negative == 0 && largest <= 64; }
    bool sumsFit16() const { return sumsFitSigned16() || sumsFitUnsigned16(); }
};

// The taps of a kernel that are not zero, two and two. The list is on the stack; a kernel that it has no room for does without.
class TapPairs {
public:
    static constexpr int capacity = 1024;

    template <class T>
    TapPairs(const Filtering<T, int32_t>& f, int shift) {
        const Coefficients all(f.kernel, f.taps());
        if (!all.fit16() || all.nonZero > 2 * capacity || !offsetsFit(f)) return;
        const bool bytes = sizeof(T) == 1 && all.sumsFit16() && shift <= 16;
        pairing_ = bytes ? Pairing::bytes : Pairing::words;
        signed_ = all.sumsFitSigned16();
        if constexpr (std::is_same_v<T, uint16_t>) start_ = static_cast<uint32_t>(all.sum()) << 15;
        collect(f, bytes);
    }

    Pairing pairing() const { return pairing_; }
    uint32_t start() const { return start_; }
    bool signedBytes() const { return signed_; } // of the 16-bit sums
    const TapPair* begin() const { return pairs_; }
    const TapPair* end() const { return pairs_ + count_; }

private:
    // The largest of them; steps are positive here.
    template <class T>
    static bool offsetsFit(const Filtering<T, int32_t>& f) {
        return f.windows.offset(f.windows.width - 1, f.windows.height - 1) <= INT32_MAX;
    }

    template <class T>
    void collect(const Filtering<T, int32_t>& f, bool bytes) {
        const int32_t* k = f.lastCoefficient();
        bool whole = true;
        for (int j = 0; j < f.windows.height; ++j)
            for (int i = 0; i < f.windows.width; ++i, --k) {
                const int32_t coefficient = load1(k);
                if (coefficient == 0) continue;
                append(static_cast<int32_t>(f.windows.offset(i, j)), static_cast<uint32_t>(coefficient), bytes, whole);
                whole = !whole;
            }
    }

    // A pair is begun with its tap twice, the second time times 0.
    void append(int32_t offset, uint32_t coefficient, bool bytes, bool begin) {
        const int width = bytes ? 8 : 16;
        uint32_t field = coefficient & ((1u << width) - 1);
        if (!begin) field <<= width;
        if (bytes) field |= field << 16;
        if (begin) {
            pairs_[count_++] = {offset, offset, field};
        } else {
            pairs_[count_ - 1].second = offset;
            pairs_[count_ - 1].coefficients |= field;
        }
    }

    Pairing pairing_ = Pairing::none;
    bool signed_ = false;
    uint32_t start_ = 0;
    int count_ = 0;
    TapPair pairs_[capacity];
};

// ---- words ----------------------------------------------------------------------------------------------------------

// Elements of a block: four vectors of 32-bit sums.
inline constexpr int wordBlock = 4 * lanes<int32_t>;

PXL_INLINE void interleave(const uint8_t* a, const uint8_t* b, Vec<int16_t> (&pairs)[4]) {
    const Vec<uint8_t> va = LoadU(a), vb = LoadU(b);
    const Vec<uint8_t> lower = InterleaveLower(va, vb), upper = InterleaveUpper(va, vb);
    pairs[0] = BitCast<int16_t>(InterleaveLower(lower, Zero<uint8_t>()));
    pairs[1] = BitCast<int16_t>(InterleaveUpper(lower, Zero<uint8_t>()));
    pairs[2] = BitCast<int16_t>(InterleaveLower(upper, Zero<uint8_t>()));
    pairs[3] = BitCast<int16_t>(InterleaveUpper(upper, Zero<uint8_t>()));
}
template <class T>
PXL_INLINE Vec<int16_t> loadSigned(const T* p) {
    const Vec<uint16_t> bias = Set<uint16_t>(std::is_signed_v<T> ? 0 : 0x8000);
    return BitCast<int16_t>(BitCast<uint16_t>(LoadU(p)) ^ bias);
}
template <class T>
PXL_INLINE void interleave(const T* a, const T* b, Vec<int16_t> (&pairs)[4]) {
#pragma GCC unroll 2
    for (int half = 0; half < 2; ++half) {
        const Vec<int16_t> va = loadSigned(a + half * lanes<T>), vb = loadSigned(b + half * lanes<T>);
        pairs[2 * half] = InterleaveLower(va, vb);
        pairs[2 * half + 1] = InterleaveUpper(va, vb);
    }
}

PXL_INLINE void storeBlocks(const Vec<int32_t> (&v)[4], DestinationRow<uint8_t> d, ptrdiff_t x) {
    const Vec<int16_t> lower = ReorderDemote2To<int16_t>(v[0], v[1]), upper = ReorderDemote2To<int16_t>(v[2], v[3]);
    d.store<lanes<uint8_t>>(ReorderDemote2To<uint8_t>(lower, upper), x);
}
template <class T>
PXL_INLINE void storeBlocks(const Vec<int32_t> (&v)[4], DestinationRow<T> d, ptrdiff_t x) {
    d.template store<lanes<T>>(ReorderDemote2To<T>(v[0], v[1]), x);
    d.template store<lanes<T>>(ReorderDemote2To<T>(v[2], v[3]), x + lanes<T>);
}

template <class T>
PXL_INLINE void wordPairsBlock(const T* s, DestinationRow<T> d, ptrdiff_t x, const TapPairs& taps,
                               const IntegerResult<T>& toResult) {
    Vec<uint32_t> sum[4];
#pragma GCC unroll 4
    for (int i = 0; i < 4; ++i) sum[i] = Set<uint32_t>(taps.start());
    for (const TapPair& tap : taps) {
        Vec<int16_t> samples[4];
        interleave(byBytes(s + x, tap.first), byBytes(s + x, tap.second), samples);
        const Vec<int16_t> factors = BitCast<int16_t>(Set<uint32_t>(tap.coefficients));
#pragma GCC unroll 4
        for (int i = 0; i < 4; ++i) sum[i] = sum[i] + BitCast<uint32_t>(WidenMulPairwiseAdd(samples[i], factors));
    }
    Vec<int32_t> value[4], result[4];
#pragma GCC unroll 4
    for (int i = 0; i < 4; ++i) value[i] = BitCast<int32_t>(sum[i]);
    toResult(value, result);
    storeBlocks(result, d, x);
}

template <class T>
[[gnu::noinline]] void wordPairsRow(ptrdiff_t n, const T* s, DestinationRow<T> d, const TapPairs& taps,
                                    const IntegerResult<T>& result) {
    forEachBlockOfRow<wordBlock>(
        n, [&](ptrdiff_t x) __attribute__((always_inline)) { wordPairsBlock(s, d, x, taps, result); });
}

// ---- bytes ----------------------------------------------------------------------------------------------------------

// Of the 16-bit sums of one register of elements, in blocks.
class ByteResult {
public:
    ByteResult(const IntegerResult<uint8_t>& wide, bool isSigned)
        : wide_(wide), division_(wide.division()), signed_(isSigned), shifted_(wide.shift()) {}

    PXL_INLINE Vec<uint8_t> operator()(Vec<int16_t> lower, Vec<int16_t> upper) const {
        switch (division_) {
        case Division::none:
            return ReorderDemote2To<uint8_t>(packable(lower), packable(upper));
        case Division::shift:
            return ReorderDemote2To<uint8_t>(shifted(lower), shifted(upper));
        default:
            return divided(lower, upper);
        }
    }

private:
    // Unsigned sums as signed ones that saturate alike.
    PXL_INLINE Vec<int16_t> packable(Vec<int16_t> v) const {
        return signed_ ? v : BitCast<int16_t>(Min255(BitCast<uint16_t>(v)));
    }
    // Negative sums give 0.
    PXL_INLINE Vec<int16_t> shifted(Vec<int16_t> v) const {
        if (signed_) v = Max(v, Zero<int16_t>());
        return packable(BitCast<int16_t>(shifted_(BitCast<uint16_t>(v))));
    }
    PXL_INLINE Vec<uint8_t> divided(Vec<int16_t> lower, Vec<int16_t> upper) const {
        const Vec<int16_t> aboveLower = above(lower), aboveUpper = above(upper);
        const Vec<int32_t> v[4] = {
            BitCast<int32_t>(InterleaveLower(lower, aboveLower)), BitCast<int32_t>(InterleaveUpper(lower, aboveLower)),
            BitCast<int32_t>(InterleaveLower(upper, aboveUpper)), BitCast<int32_t>(InterleaveUpper(upper, aboveUpper))};
        Vec<int32_t> q[4];
        wide_(v, q);
        return ReorderDemote2To<uint8_t>(ReorderDemote2To<int16_t>(q[0], q[1]), ReorderDemote2To<int16_t>(q[2], q[3]));
    }
    // The upper halves of the sums in 32 bits.
    PXL_INLINE Vec<int16_t> above(Vec<int16_t> v) const { return signed_ ? ShiftRight<15>(v) : Zero<int16_t>(); }

    const IntegerResult<uint8_t>& wide_;
    Division division_;
    bool signed_;
    RoundingShift<uint16_t> shifted_;
};

// Two 8-bit coefficients k0 k1, given as bytes k0 k1 k0 k1, for lanes 2i and 2i + 1: v[2i] * k0 + v[2i + 1] * k1, which
// must fit 16 bits.
class PairSums {
public:
    PXL_INLINE explicit PairSums(uint32_t coefficients) : both_(BitCast<int8_t>(Set<uint32_t>(coefficients))) {}
    PXL_INLINE Vec<int16_t> operator()(Vec<uint8_t> v) const { return SatWidenMulPairwiseAdd(v, both_); }

private:
    Vec<int8_t> both_;
};
class WidenedPairSums {
public:
    PXL_INLINE explicit WidenedPairSums(uint32_t coefficients) {
        const Vec<int16_t> both = BitCast<int16_t>(Set<uint32_t>(coefficients));
        even_ = ShiftRight<8>(ShiftLeft<8>(both));
        odd_ = ShiftRight<8>(both);
    }
    PXL_INLINE Vec<int16_t> operator()(Vec<uint8_t> v) const {
        const Vec<uint16_t> words = BitCast<uint16_t>(v);
        return BitCast<int16_t>(words & Set<uint16_t>(0xFF)) * even_ + BitCast<int16_t>(ShiftRight<8>(words)) * odd_;
    }

private:
    Vec<int16_t> even_, odd_;
};
using BytePair = std::conditional_t<hasBytePairSums, PairSums, WidenedPairSums>;

template <int Registers>
PXL_INLINE void bytePairsBlock(const uint8_t* s, DestinationRow<uint8_t> d, ptrdiff_t x, const TapPairs& taps,
                               const ByteResult& result) {
    constexpr int step = lanes<uint8_t>;
    Vec<int16_t> lower[Registers] = {}, upper[Registers] = {};
    for (const TapPair& tap : taps) {
        const BytePair product(tap.coefficients);
        const uint8_t* a = byBytes(s + x, tap.first);
        const uint8_t* b = byBytes(s + x, tap.second);
#pragma GCC unroll 2
        for (int r = 0; r < Registers; ++r) {
            const Vec<uint8_t> va = LoadU(a + r * step), vb = LoadU(b + r * step);
            lower[r] = lower[r] + product(InterleaveLower(va, vb));
            upper[r] = upper[r] + product(InterleaveUpper(va, vb));
        }
    }
#pragma GCC unroll 2
    for (int r = 0; r < Registers; ++r) d.store<step>(result(lower[r], upper[r]), x + r * step);
}

[[gnu::noinline]] inline void bytePairsRow(ptrdiff_t n, const uint8_t* s, DestinationRow<uint8_t> d,
                                           const TapPairs& taps, const ByteResult& result) {
    constexpr int step = lanes<uint8_t>;
    if (n < 2 * step)
        forEachBlockOfRow<step>(
            n, [&](ptrdiff_t x) __attribute__((always_inline)) { bytePairsBlock<1>(s, d, x, taps, result); });
    else
        forEachBlockOfRow<2 * step>(
            n, [&](ptrdiff_t x) __attribute__((always_inline)) { bytePairsBlock<2>(s, d, x, taps, result); });
}

// ---- integer kernels ------------------------------------------------------------------------------------------------

// Any integer kernel, with a result that knows the divisor.
template <class T>
[[gnu::noinline]] void filterIntegers(const Operands<T, int32_t>& operands, const IntegerResult<T>& result) {
    const Filtering<T, int32_t> f(operands);
    const ptrdiff_t n = f.windows.processed;
    if (n < wordBlock) return filterBySums<IntegerSums<T>>(f, result);
    const TapPairs taps(f, result.shift());
    if (taps.pairing() == Pairing::none) return filterBySums<IntegerSums<T>>(f, result);
    const auto byRows = [&](const auto& row) { window::forEachRowByTeam(f.windows, f.dst, row); };
    if constexpr (sizeof(T) == 1)
        if (taps.pairing() == Pairing::bytes) {
            const ByteResult byteResult(result, taps.signedBytes());
            return byRows([&](const T* s, DestinationRow<T> d) { bytePairsRow(n, s, d, taps, byteResult); });
        }
    byRows([&](const T* s, DestinationRow<T> d) { wordPairsRow(n, s, d, taps, result); });
}

} // namespace pxl::PXL_TARGET::filter
