// One-bit images: eight pixels per byte, the first in the most significant bit, rows that start at any bit. Unpacking
// writes 255 or 0; packing dithers, see exchange/diffusion.h.
#include "exchange/bit_vectors.h"
#include "exchange/diffusion.h"
#include "frame/checks.h"
#include "frame/memory.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET::exchange {
namespace {

// Rows of bits: the bytes that hold them.
template <class T>
struct Bits {
    Image<T> bytes;
    int first;           // bit of the first byte, where a row starts
    ptrdiff_t byteCount; // of a row

    Bits(Image<T> image, int offset, int width)
        : bytes(startingAt(image, offset / 8, 0)), first(offset % 8), byteCount((first + ptrdiff_t{width} + 7) / 8) {}
};

inline uint8_t unpackBit(const uint8_t* bits, ptrdiff_t index) {
    return (bits[index / 8] << (index % 8) & 0x80) != 0 ? 255 : 0;
}

// vecBytes pixels from the most significant bits.
PXL_INLINE Vec<uint8_t> unpackVector(uint64_t bits) { return ExpandBits<0>(__builtin_bswap64(bits)); }

PXL_INLINE void unpack64(uint64_t bits, uint8_t* d) {
    const uint64_t bytes = __builtin_bswap64(bits);
    unrolled<64 / vecBytes>([&](auto part) __attribute__((always_inline)) {
        StoreU(ExpandBits<part>(bytes), d + part * vecBytes);
    });
}

// n < 64; the last vector overlaps the one before it.
PXL_INLINE void unpackFew(uint64_t bits, ptrdiff_t n, uint8_t* d) {
    if (n < vecBytes) return StoreN(unpackVector(bits), d, n);
    for (ptrdiff_t x = 0; x + vecBytes < n; x += vecBytes) StoreU(unpackVector(bits << x), d + x);
    StoreU(unpackVector(bits << (n - vecBytes)), d + n - vecBytes);
}

// The byte and the bit of pixel i, for rows that begin at bit 0.
struct BitPlaces {
    uint8_t byte[64], flag[64];
    constexpr BitPlaces() : byte(), flag() {
        for (int i = 0; i < 64; ++i) {
            byte[i] = static_cast<uint8_t>(i / 8);
            flag[i] = static_cast<uint8_t>(0x80 >> i % 8);
        }
    }
};
inline constexpr BitPlaces bitPlaces;

// A vector of pixels from bits that begin `offset` bits into 8 bytes and end in them: every lane takes its byte and looks at its bit.
struct UnpackLanes {
    Vec<uint8_t> byte, flag;

    PXL_INLINE explicit UnpackLanes(ptrdiff_t offset)
        : byte(LoadU(bitPlaces.byte + offset)), flag(LoadU(bitPlaces.flag + offset)) {}
    PXL_INLINE Vec<uint8_t> operator()(const uint8_t* p) const {
        const auto eight = load1(reinterpret_cast<const uint64_t*>(p));
        return (TableLookupBytesOr0(BitCast<uint8_t>(Set<uint64_t>(eight)), byte) & flag) == flag;
    }
};

void unpackRow(ptrdiff_t n, const uint8_t* s, int bit, uint8_t* d) {
    if (n < 64) return unpackFew(loadFewBits(s, bit, n), n, d);
    for (ptrdiff_t x = 0; x + 64 < n; x += 64) unpack64(load64Bits(s + x / 8, bit), d + x);
    const ptrdiff_t last = bit + n - 64;
    unpack64(load64Bits(s + last / 8, static_cast<int>(last % 8)), d + n - 64);
}

// The same for rows of at least 96 pixels, or of exactly 64. The last two vectors end with the row, and so do their bits.
class LongRows {
public:
    LongRows(ptrdiff_t n, int bit, ptrdiff_t byteCount)
        : n_(n), end_(byteCount - 8), lanes_(bit), lastLanes_(bit + n - vecBytes - 8 * end_) {}

    static constexpr ptrdiff_t fetched = 512; // lines are asked for so many pixels ahead
    static bool suit(ptrdiff_t n) { return n >= 64 + vecBytes || n == 64; }

    PXL_INLINE void operator()(const uint8_t* s, uint8_t* d) const {
        ptrdiff_t x = 0;
        for (; x + 64 + fetched <= n_; x += 64) {
            fetchForStores<lineBytes>(d + x + fetched);
            unrolled<64 / vecBytes>([&](auto k) __attribute__((always_inline)) {
                StoreU(lanes_(s + x / 8 + k * (vecBytes / 8)), d + x + k * vecBytes);
            });
        }
        for (; x + 64 <= n_; x += vecBytes) StoreU(lanes_(s + x / 8), d + x);
        if (n_ - x > vecBytes) StoreU(lastLanes_(s + end_ - vecBytes / 8), d + n_ - 2 * vecBytes);
        StoreU(lastLanes_(s + end_), d + n_ - vecBytes);
    }

private:
    ptrdiff_t n_, end_; // where the last 8 bytes begin
    UnpackLanes lanes_, lastLanes_;
};

PxlStatus UnpackBits(Image<const uint8_t> src, int srcBitOffset, Image<uint8_t> dst, ImageSize roi) {
    if (const PxlStatus status =
            check(null(src, dst), size(roi), steps(src, dst), refuse(srcBitOffset < 0, PXL_E_SIZE)))
        return status;
    const Bits bits(src, srcBitOffset, roi.width);
    const bool overlap = extentOf(bits.bytes, bits.byteCount, roi.height).meets(extentOf(dst, roi.width, roi.height));
    if constexpr (hasByteShuffle)
        if (LongRows::suit(roi.width) && !overlap) {
            const LongRows row(roi.width, bits.first, bits.byteCount);
            for (ptrdiff_t y = 0; y < roi.height; ++y) row(bits.bytes.at(0, y), dst.at(0, y));
            return PXL_OK;
        }
    for (ptrdiff_t y = 0; y < roi.height; ++y) {
        const auto s = rowOf(bits.bytes, y);
        const auto d = rowOf(dst, y);
        if (!extentOf(s, bits.byteCount, 1).meets(extentOf(d, roi.width, 1))) {
            unpackRow(roi.width, s.base, bits.first, d.base);
        } else {
            for (ptrdiff_t x = 0; x < roi.width; ++x) d.base[x] = unpackBit(s.base, bits.first + x);
        }
    }
    return PXL_OK;
}

// Where the operands share memory, pixels are read while bits are written: row by row. Narrow regions would spend their
// time on getting the wavefront going.
inline ptrdiff_t rowsPerBand(Image<const uint8_t> src, const Bits<uint8_t>& dst, ImageSize roi) {
    constexpr int worthwhile = 32;
    const Extent written = extentOf(dst.bytes, dst.byteCount, roi.height);
    return roi.width < worthwhile || extentOf(src, roi.width, roi.height).meets(written) ? 1 : bandRows;
}

PxlStatus DitherToBits(Image<const uint8_t> src, Image<uint8_t> dst, int dstBitOffset, ImageSize roi,
                       uint8_t threshold) {
    if (const PxlStatus status = check(null(src, dst), size(roi), refuse(dstBitOffset < 0, PXL_E_SIZE))) return status;
    // One row of errors, with room on its left; the bits of a band take less than the other two rows.
    const ptrdiff_t row = ptrdiff_t{roi.width} + 4;
    const ptrdiff_t count = 3 * row + 12;
    const Scratch<int32_t> scratch(count);
    if (!scratch) return PXL_E_MEM_ALLOC;
    std::memset(scratch.get(), 0, static_cast<size_t>(count) * sizeof(int32_t));
    int32_t* carried = scratch.get() + 4;
    const Streams streams(scratch.get() + row, roi.width);

    const Bits bits(dst, dstBitOffset, roi.width);
    const int32_t level = threshold << fraction;
    const ptrdiff_t most = rowsPerBand(src, bits, roi);
    for (ptrdiff_t y = 0; y < roi.height; y += most) {
        const ptrdiff_t rows = roi.height - y < most ? roi.height - y : most;
        if (rows == 1) {
            ditherRow(roi.width, src.at(0, y), level, carried, bits.bytes.at(0, y), bits.first);
            continue;
        }
        ditherBand(roi.width, src, y, rows, level, carried, streams);
        for (int r = 0; r < rows; ++r) copyBits(streams, r, bits.bytes.at(0, y + r), bits.first, roi.width);
    }
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET::exchange

#include "members/exchange/bits.inc"
