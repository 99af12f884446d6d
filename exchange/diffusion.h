// Dithering to one bit by error diffusion (Floyd and Steinberg, 1976), with 13 fractional bits:
//     value = pixel * 8192 + error carried to it
//     bit   = value >= threshold * 8192
//     error = value - (bit ? 255 * 8192 : 0)
// of which error * 7 >> 4 goes right, error * 3 >> 4 below left, error * 5 >> 4 below and error >> 4 below right; what
// leaves the row is lost. Errors stay within 255 * 8192 and a few, so all products fit in 32 bits.
//
// A pixel waits for its left neighbour, so one row alone cannot be faster than that chain. But a row can follow the row
// above two pixels behind it: a band of rows is walked as a wavefront, one row per vector lane, each `lag` pixels
// behind the one above.
#pragma once

#include "exchange/bit_vectors.h"
#include "frame/vec/convert.h"
#include "frame/walk.h"

namespace pxl::PXL_TARGET::exchange {

inline constexpr int32_t fraction = 13;
inline constexpr int32_t white = 255 << fraction;

// carried[x] is the sum of the shares that row y - 1 sent to pixel x, and then, behind the pixel at work, those of row
// y. One entry before the first takes what leaves the row on the left.
inline void ditherRow(ptrdiff_t width, const uint8_t* s, int32_t level, int32_t* carried, uint8_t* bits, int bit) {
    int32_t right = 0, belowRight = 0;
    carried[-1] = 0;
    for (ptrdiff_t x = 0; x < width; ++x) {
        const int32_t value = (s[x] << fraction) + carried[x] + right;
        const bool set = value >= level;
        const int32_t error = value - (set ? white : 0);
        carried[x - 1] += error * 3 >> 4;
        carried[x] = (error * 5 >> 4) + belowRight;
        right = error * 7 >> 4;
        belowRight = error >> 4;
        const int flag = 0x80 >> ((bit + x) % 8);
        uint8_t& byte = bits[(bit + x) / 8];
        byte = static_cast<uint8_t>(set ? byte | flag : byte & ~flag);
    }
}

inline constexpr int bandRows = lanes<int32_t>;
static_assert(bandRows <= 8);       // the bits of a step fill a byte
inline constexpr ptrdiff_t lag = 3; // 2 would do, but makes every step wait for the rows above
inline constexpr ptrdiff_t lastLag = lag * (bandRows - 1);
inline constexpr int stepsAtOnce = 16;

// The bits of a row of the band, as a stream in scratch memory: a byte to spare, then one bit per step. Row r is
// lag * r steps late.
struct Streams {
    uint8_t* base;
    ptrdiff_t rowBytes;

    static ptrdiff_t blocks(ptrdiff_t width) { return (width + lastLag + 1 + stepsAtOnce - 1) / stepsAtOnce; }
    Streams(void* memory, ptrdiff_t width) : base(static_cast<uint8_t*>(memory)), rowBytes(2 * blocks(width) + 3) {}

    PXL_INLINE void put(int row, ptrdiff_t step, uint32_t bits) const {
        uint8_t* p = base + row * rowBytes + 1 + step / 8;
        p[0] = static_cast<uint8_t>(bits >> 8);
        p[1] = static_cast<uint8_t>(bits);
    }

    // Eight bits from the given step on, -7 at least.
    PXL_INLINE uint32_t get(int row, ptrdiff_t step) const {
        const ptrdiff_t at = step + 8;
        const uint8_t* p = base + row * rowBytes + at / 8;
        return ((uint32_t{p[0]} << 8 | p[1]) >> (8 - at % 8)) & 0xFF;
    }
    PXL_INLINE uint64_t get64(int row, ptrdiff_t step) const {
        const uint64_t bits = load64Bits(base + row * rowBytes + 1 + step / 8, static_cast<int>(step % 8));
        return __builtin_bswap64(bits); // the first byte is the lowest
    }
};

// Replaces the bits of mask.
inline void storeBits(uint8_t* p, uint32_t bits, uint32_t mask) {
    *p = static_cast<uint8_t>((*p & ~mask) | (bits & mask));
}

inline void copyBits(const Streams& streams, int row, uint8_t* d, int bit, ptrdiff_t width) {
    ptrdiff_t step = lag * row; // of the next bit
    ptrdiff_t left = width;
    if (bit > 0) {
        const ptrdiff_t first = left < 8 - bit ? left : 8 - bit;
        storeBits(d, streams.get(row, step - bit), (0xFFu >> bit) & ~(0xFFu >> (bit + first)));
        step += first;
        left -= first;
        ++d;
    }
    for (; left >= 64; left -= 64, step += 64, d += 8) store1(reinterpret_cast<uint64_t*>(d), streams.get64(row, step));
    for (; left > 0; left -= 8, step += 8, ++d)
        storeBits(d, streams.get(row, step), left < 8 ? ~(0xFFu >> left) : 0xFF);
}

// A band of rows under way. At step t, lane r works on pixel t - lag * r of row r.
class Wavefront {
public:
    Wavefront(int32_t level, ptrdiff_t width, int32_t* carried) : level_(level), width_(width), carried_(carried) {}

    // Steps t to t + 15. Inner: all pixels of all lanes are inside the row.
    template <bool Inner>
    void run(ptrdiff_t t, const uint8_t* const* rows, const Streams& streams) {
        uint8_t pixels[stepsAtOnce * bandRows];
        gather<Inner>(t, rows, pixels);
        Shares shares = shares_; // a copy, to keep it in registers while memory is written
        const uint64_t upper = eightSteps<Inner>(shares, t, pixels);
        const uint64_t lower = eightSteps<Inner>(shares, t + 8, pixels + 8 * bandRows);
        shares_ = shares;
        TransposeBits<bandRows>(lower, upper, [&](int row, uint32_t word) { streams.put(row, t, word); });
    }

private:
    struct Shares {
        Vec<int32_t> right = Zero<int32_t>();      // to the next pixel of the lane
        Vec<int32_t> belowRight = Zero<int32_t>(); // the previous pixel's
        Vec<int32_t> started = Zero<int32_t>();    // below the previous pixel, its right neighbour's share missing
        Vec<int32_t> next = Zero<int32_t>();       // complete, in the lanes of the rows they belong to
        Vec<int32_t> afterNext = Zero<int32_t>();
    };

    template <bool Inner>
    PXL_INLINE void gather(ptrdiff_t t, const uint8_t* const* rows, uint8_t (&pixels)[stepsAtOnce * bandRows]) const {
        const uint8_t* from[bandRows];
        uint8_t edge[Inner ? 1 : bandRows][stepsAtOnce] = {};
        for (int r = 0; r < bandRows; ++r) {
            const ptrdiff_t x = t - lag * r;
            if constexpr (Inner) {
                from[r] = rows[r] + x;
            } else {
                const ptrdiff_t begin = x < 0 ? 0 : x;
                const ptrdiff_t end = x + stepsAtOnce < width_ ? x + stepsAtOnce : width_;
                if (begin < end)
                    copyFew<stepsAtOnce + 1>(edge[r] + (begin - x), rows[r] + begin, static_cast<size_t>(end - begin));
                from[r] = edge[r];
            }
        }
        TransposeBytes<bandRows>(from, pixels);
    }

    // All ones where a lane is inside its row.
    Vec<int32_t> inside(ptrdiff_t t) const {
        const auto near = [](ptrdiff_t v) { return static_cast<int32_t>(v < -1 ? -1 : v > lastLag ? lastLag : v); };
        const Vec<int32_t> delay = fromLanes<int32_t, [](int r) { return lag * r; }>();
        const Mask<int32_t> started = delay <= Set<int32_t>(near(t));
        return BitCast<int32_t>(started & (delay > Set<int32_t>(near(t - width_))));
    }

    // A byte of bits per step, the first in the highest byte.
    template <bool Inner>
    PXL_INLINE uint64_t eightSteps(Shares& shares, ptrdiff_t t, const uint8_t* pixels) const {
        uint64_t bits = 0;
        for (int i = 0; i < 8; ++i)
            bits = bits << 8 | step<Inner>(shares, t + i, LoadPromote<int32_t>(pixels + i * bandRows));
        return bits;
    }

    // One pixel of every row; returns their bits, row r in bit r.
    template <bool Inner>
    PXL_INLINE uint32_t step(Shares& shares, ptrdiff_t t, Vec<int32_t> pixels) const {
        const int32_t fromBand = Inner || t < width_ ? carried_[t] : 0;
        Vec<int32_t> value = ShiftLeft<fraction>(pixels) + ReplaceFirstLane(shares.next, fromBand) + shares.right;
        Mask<int32_t> set = value > Set<int32_t>(level_ - 1);
        if constexpr (!Inner) {
            value = value & inside(t);
            set = set & BitCast<uint32_t>(inside(t));
        }
        const Vec<int32_t> error = value - IfThenElseZero(set, Set<int32_t>(white));
        const Vec<int32_t> error8 = ShiftLeft<3>(error), error3 = error + error + error;
        shares.right = ShiftRight<4>(error8 - error);
        sendBelow<Inner>(shares, t, ShiftRight<4>(error3), ShiftRight<4>(error8 - error3), ShiftRight<4>(error));
        return BitsFromMask(set);
    }

    // Completes the share of the pixel below left, which the next lane needs lag - 1 steps later. The last lane's goes
    // to the next band; the first lane has read its entry long ago.
    template <bool Inner>
    PXL_INLINE void sendBelow(Shares& shares, ptrdiff_t t, Vec<int32_t> left, Vec<int32_t> below,
                              Vec<int32_t> right) const {
        const Vec<int32_t> complete = left + shares.started;
        shares.started = below + shares.belowRight;
        shares.belowRight = right;
        shares.next = shares.afterNext;
        shares.afterNext = Shuffle2<[](int i) { return (i + bandRows - 1) % bandRows; }>(complete, complete);
        const ptrdiff_t x = t - lastLag - 1;
        if (Inner || (x >= 0 && x < width_)) carried_[x] = shares.afterNext.raw[0];
    }

    const int32_t level_;
    const ptrdiff_t width_;
    int32_t* const carried_;
    Shares shares_;
};

// Fewer rows than lanes, at the end of an image: the last one is walked again in the lanes that are left over.
inline void ditherBand(ptrdiff_t width, Image<const uint8_t> src, ptrdiff_t y, ptrdiff_t rowCount, int32_t level,
                       int32_t* carried, const Streams& streams) {
    const uint8_t* rows[bandRows];
    for (ptrdiff_t r = 0; r < bandRows; ++r) rows[r] = src.at(0, y + (r < rowCount ? r : rowCount - 1));
    Wavefront wavefront(level, width, carried);
    const ptrdiff_t end = Streams::blocks(width) * stepsAtOnce;
    for (ptrdiff_t t = 0; t < end; t += stepsAtOnce) {
        if (t > lastLag && t + stepsAtOnce <= width)
            wavefront.run<true>(t, rows, streams);
        else
            wavefront.run<false>(t, rows, streams);
    }
}

} // namespace pxl::PXL_TARGET::exchange
