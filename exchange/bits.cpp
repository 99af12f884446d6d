// One-bit images: eight pixels per byte, the first in the most significant bit, rows that start at any bit. Unpacking
// writes 255 or 0; packing dithers, see exchange/diffusion.h.
#include "exchange/bit_vectors.h"
#include "exchange/diffusion.h"
#include "frame/checks.h"
#include "frame/memory.h"
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

void unpackRow(ptrdiff_t n, const uint8_t* s, int bit, uint8_t* d) {
    if (n < 64) return unpackFew(loadFewBits(s, bit, n), n, d);
    for (ptrdiff_t x = 0; x + 64 < n; x += 64) unpack64(load64Bits(s + x / 8, bit), d + x);
    const ptrdiff_t last = bit + n - 64;
    unpack64(load64Bits(s + last / 8, static_cast<int>(last % 8)), d + n - 64);
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

// Where the operands share memory, pixels are read while bits are written: row by row. Narrow regions would spend their
// time on getting the wavefront going.
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
