// One-bit images: eight pixels per byte, the first in the most significant bit, rows that start at any bit.
//
// Unpacking writes 255 or 0. Packing dithers by error diffusion (Floyd and Steinberg, 1976), with 13 fractional bits:
//     value = pixel * 8192 + error carried to it
//     bit   = value >= threshold * 8192
//     error = value - (bit ? 255 * 8192 : 0)
// of which error * 7 >> 4 goes right, error * 3 >> 4 below left, error * 5 >> 4 below and error >> 4 below right; what leaves
// the row is lost. Errors stay within 255 * 8192 and a few, so all products fit in 32 bits.
//
// A pixel waits for its left neighbour, so one row alone cannot be faster than that chain. But a row can follow the row above
// two pixels behind it: a band of rows is walked as a wavefront, one row per vector lane, each `lag` pixels behind the one
// above.
#include "frame/checks.h"
#include "frame/memory.h"
#include "frame/vec.h"
#include "frame/vec_bits.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {
namespace {

// The bytes of a region of bits, as an operand of whole bytes.
template <class T>
struct BitRegion {
    Operand<T> bytes;
    int bit;             // where a row starts in its first byte
    ptrdiff_t byteCount; // of a row

    BitRegion(T* base, int step, int bitOffset, int width)
        : bytes(operand(base + bitOffset / 8, step)), bit(bitOffset % 8), byteCount((bit + ptrdiff_t{width} + 7) / 8) {}

    T* row(ptrdiff_t y) const { return bytes.at(0, y); }
    Extent extent(ptrdiff_t height) const { return extentOf(bytes, byteCount, height); }
};

// ---- unpacking --------------------------------------------------------------------------------------------------------------

inline uint8_t unpackBit(const uint8_t* bits, ptrdiff_t index) {
    return (bits[index / 8] << (index % 8) & 0x80) != 0 ? 255 : 0;
}

// 64 bits from `bit` on, in bytes of their own, the first in the lowest byte. Reads the bytes that hold them.
PXL_INLINE uint64_t load64Bits(const uint8_t* p, int bit) {
    const uint64_t word = __builtin_bswap64(load1(reinterpret_cast<const uint64_t*>(p)));
    const uint64_t last = p[(bit + 63) / 8]; // for bit 0 the last byte of the word, shifted away
    return __builtin_bswap64(word << bit | last >> (8 - bit));
}

PXL_INLINE void unpack64(uint64_t bits, uint8_t* d) {
    StoreU(ExpandBits<0>(bits), d);
    StoreU(ExpandBits<1>(bits), d + vecBytes);
    if constexpr (!isAvx2) {
        StoreU(ExpandBits<2>(bits), d + 2 * vecBytes);
        StoreU(ExpandBits<3>(bits), d + 3 * vecBytes);
    }
}

void unpackRow(ptrdiff_t n, const uint8_t* s, int bit, uint8_t* d) {
    for (; n >= 64; n -= 64, s += 8, d += 64) unpack64(load64Bits(s, bit), d);
    if (n == 0) return;
    const auto rest = static_cast<size_t>(n);
    const Few<uint8_t, 16> last(s, (static_cast<size_t>(bit) + rest + 7) / 8);
    uint8_t pixels[64];
    unpack64(load64Bits(last.data, bit), pixels);
    copyFew<sizeof pixels>(d, pixels, rest);
}

PxlStatus ownUnpackBits(const uint8_t* src, int srcStep, int srcBitOffset, uint8_t* dst, int dstStep, ImageSize roi) {
    if (anyNull(src, dst)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    if (anyStepBelow1(srcStep, dstStep)) return PXL_E_STEP;
    if (srcBitOffset < 0) return PXL_E_SIZE;
    const BitRegion<const uint8_t> bits(src, srcStep, srcBitOffset, roi.width);
    const Operand<uint8_t> pixels = operand(dst, dstStep);
    for (ptrdiff_t y = 0; y < roi.height; ++y) {
        const uint8_t* s = bits.row(y);
        uint8_t* d = pixels.at(0, y);
        const Extent written{reinterpret_cast<const char*>(d), reinterpret_cast<const char*>(d + roi.width)};
        const Extent read{reinterpret_cast<const char*>(s), reinterpret_cast<const char*>(s + bits.byteCount)};
        if (!read.meets(written)) {
            unpackRow(roi.width, s, bits.bit, d);
        } else {
            for (ptrdiff_t x = 0; x < roi.width; ++x) d[x] = unpackBit(s, bits.bit + x);
        }
    }
    return PXL_OK;
}

// ---- packing ----------------------------------------------------------------------------------------------------------------

constexpr int32_t fraction = 13;
constexpr int32_t white = 255 << fraction;

// carried[x] is the sum of the shares that row y - 1 sent to pixel x, and then, behind the pixel at work, those of row y. One
// entry before the first takes what leaves the row on the left.
void ditherRow(ptrdiff_t width, const uint8_t* s, int32_t level, int32_t* carried, uint8_t* bits, int bit) {
    int32_t right = 0, belowRight = 0;
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

constexpr int bandRows = lanes<int32_t>;
constexpr ptrdiff_t lag = 3; // 2 would do, but makes every step wait for the rows above
constexpr ptrdiff_t lastLag = lag * (bandRows - 1);
constexpr int stepsAtOnce = 16;

// The bits of a row of the band, as a stream in scratch memory: a byte to spare, then one bit per step. Row r is lag * r steps
// late.
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
};

// Replaces the bits of mask.
inline void storeBits(uint8_t* p, uint32_t bits, uint32_t mask) {
    *p = static_cast<uint8_t>((*p & ~mask) | (bits & mask));
}

void copyBits(const Streams& streams, int row, uint8_t* d, int bit, ptrdiff_t width) {
    ptrdiff_t step = lag * row - bit; // of the first bit in the byte at d
    ptrdiff_t left = bit + width;
    uint32_t mask = 0xFFu >> bit;
    for (; left >= 8; left -= 8, step += 8, ++d) {
        storeBits(d, streams.get(row, step), mask);
        mask = 0xFF;
    }
    if (left > 0) storeBits(d, streams.get(row, step), mask & ~(0xFFu >> left));
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
        uint64_t bits[2] = {0, 0};
        for (int i = 0; i < stepsAtOnce; ++i)
            bits[i / 8] = bits[i / 8] << 8 | step<Inner>(t + i, LoadPromote<int32_t>(pixels + i * bandRows));
        TransposeBits<bandRows>(bits[1], bits[0], [&](int row, uint32_t word) { streams.put(row, t, word); });
    }

private:
    template <bool Inner>
    PXL_INLINE void gather(ptrdiff_t t, const uint8_t* const* rows, uint8_t (&pixels)[stepsAtOnce * bandRows]) const {
        const uint8_t* from[bandRows];
        uint8_t edge[Inner ? 1 : bandRows][stepsAtOnce] = {};
        for (int r = 0; r < bandRows; ++r) {
            const ptrdiff_t x = t - lag * r;
            from[r] = rows[r] + x;
            if constexpr (!Inner) {
                const ptrdiff_t begin = x < 0 ? -x : 0;
                const ptrdiff_t end = x + stepsAtOnce > width_ ? width_ - x : stepsAtOnce;
                for (ptrdiff_t i = begin; i < end; ++i) edge[r][i] = from[r][i];
                from[r] = edge[r];
            }
        }
        TransposeBytes<bandRows>(from, pixels);
    }

    // All ones where a lane is inside its row.
    Vec<int32_t> inside(ptrdiff_t t) const {
        alignas(vecBytes) int32_t flags[bandRows];
        for (int r = 0; r < bandRows; ++r) flags[r] = t >= lag * r && t < lag * r + width_ ? -1 : 0;
        return LoadU(flags);
    }

    // One pixel of every row; returns their bits, row r in bit r.
    template <bool Inner>
    PXL_INLINE uint32_t step(ptrdiff_t t, Vec<int32_t> pixels) {
        const int32_t fromBand = Inner || t < width_ ? carried_[t] : 0;
        Vec<int32_t> value = ShiftLeft<fraction>(pixels) + ReplaceFirstLane(below_[0], fromBand) + right_;
        Vec<uint32_t> set = value > Set<int32_t>(level_ - 1);
        if constexpr (!Inner) {
            value = value & inside(t);
            set = set & BitCast<uint32_t>(inside(t));
        }
        const Vec<int32_t> error = value - IfThenElseZero(set, Set<int32_t>(white));
        right_ = ShiftRight<4>(ShiftLeft<3>(error) - error);
        sendBelow<Inner>(t, error);
        return SignBits(set);
    }

    // Completes the share of the pixel below left, which the next lane needs lag - 1 steps later. The last lane's goes to
    // the next band; the first lane has read its entry long ago.
    template <bool Inner>
    PXL_INLINE void sendBelow(ptrdiff_t t, Vec<int32_t> error) {
        const Vec<int32_t> belowLeft = ShiftRight<4>(error + error + error) + started_;
        started_ = ShiftRight<4>(ShiftLeft<2>(error) + error) + belowRight_;
        belowRight_ = ShiftRight<4>(error);
        below_[0] = below_[1];
        below_[1] = RotateUp(belowLeft);
        const ptrdiff_t x = t - lastLag - 1;
        if (Inner || (x >= 0 && x < width_)) carried_[x] = FirstLane(below_[1]);
    }

    int32_t level_;
    ptrdiff_t width_;
    int32_t* carried_;
    Vec<int32_t> right_ = Zero<int32_t>();      // to the next pixel of the lane
    Vec<int32_t> belowRight_ = Zero<int32_t>(); // the previous pixel's
    Vec<int32_t> started_ = Zero<int32_t>();    // below the previous pixel, its right neighbour's share missing
    Vec<int32_t> below_[2] = {Zero<int32_t>(), Zero<int32_t>()}; // complete, in the lanes of the rows they belong to
};

// Fewer rows than lanes, at the end of an image: the last one is walked again in the lanes that are left over.
void ditherBand(ptrdiff_t width, const Operand<const uint8_t>& src, ptrdiff_t y, ptrdiff_t rowCount, int32_t level,
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

// Where the operands share memory, pixels are read while bits are written: row by row. Narrow regions would spend their time
// on getting the wavefront going.
inline ptrdiff_t rowsPerBand(const Operand<const uint8_t>& src, const BitRegion<uint8_t>& dst, ImageSize roi) {
    constexpr int worthwhile = 32;
    if (roi.width < worthwhile || extentOf(src, roi.width, roi.height).meets(dst.extent(roi.height))) return 1;
    return bandRows;
}

PxlStatus ownDitherToBits(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, int dstBitOffset, ImageSize roi,
                          uint8_t threshold) {
    if (anyNull(src, dst)) return PXL_E_NULL_PTR;
    if (isEmpty(roi) || dstBitOffset < 0) return PXL_E_SIZE;
    // One row of errors, with room on its left; the bits of a band take less than the other two rows.
    const ptrdiff_t row = ptrdiff_t{roi.width} + 4;
    const ptrdiff_t count = 3 * row + 12;
    const Scratch<int32_t> scratch(count);
    if (!scratch) return PXL_E_MEM_ALLOC;
    std::memset(scratch.get(), 0, static_cast<size_t>(count) * sizeof(int32_t));
    int32_t* carried = scratch.get() + 4;
    const Streams streams(scratch.get() + row, roi.width);

    const Operand<const uint8_t> pixels = operand(src, srcStep);
    const BitRegion<uint8_t> bits(dst, dstStep, dstBitOffset, roi.width);
    const int32_t level = threshold << fraction;
    const ptrdiff_t most = rowsPerBand(pixels, bits, roi);
    for (ptrdiff_t y = 0; y < roi.height; y += most) {
        const ptrdiff_t rows = roi.height - y < most ? roi.height - y : most;
        if (rows == 1) {
            ditherRow(roi.width, pixels.at(0, y), level, carried, bits.row(y), bits.bit);
            continue;
        }
        ditherBand(roi.width, pixels, y, rows, level, carried, streams);
        for (int r = 0; r < rows; ++r) copyBits(streams, r, bits.row(y + r), bits.bit, roi.width);
    }
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/exchange/bits.inc"
