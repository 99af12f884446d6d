// Fills: every pixel, or every chosen channel, of a region receives the same value.
//
// The kernels see pixels of E bytes, whatever their elements are, and fill with patterns of them. Where a fourth
// element or other channels keep their value, whole registers are rewritten with what they held.
#include "exchange/masked_row.h"
#include "frame/checks.h"
#include "frame/vec/memory.h"
#include "frame/vec/pattern.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET::exchange {
namespace {

// A run of pixels too long to stay in the caches. Streamed stores are aligned, so they begin in the middle of the first
// register; the last ones end with the run.
template <int E>
void streamPixels(uint8_t* d, ptrdiff_t bytes, const Pattern<E>& pattern) {
    constexpr int count = Pattern<E>::count;
    alignas(vecBytes) uint8_t pixels[(count + 1) * vecBytes];
    unrolled<count + 1>([&](auto j) { StoreU(pattern.v[j % count], pixels + j * vecBytes); });
    StoreU(pattern.v[0], d);
    ptrdiff_t o = -reinterpret_cast<intptr_t>(d) & (vecBytes - 1);
    Vec<uint8_t> turned[count];
    unrolled<count>([&](auto j) { turned[j] = LoadU(pixels + o + j * vecBytes); });
    for (; o + count * vecBytes <= bytes; o += count * vecBytes)
        unrolled<count>([&](auto j) { Streamed::store(turned[j], d + o + j * vecBytes); });
    finishStreamed(true);
    unrolled<count>([&](auto j) { StoreU(pattern.v[j], d + bytes - (count - j) * vecBytes); });
}

// Long runs of bytes are left to memset, which knows more ways to fill than there are here; below it is as fast.
template <int E>
PXL_INLINE void fillRow(uint8_t* d, ptrdiff_t bytes, const Pattern<E>& pattern) {
    constexpr ptrdiff_t longRun = E == 1 ? 4096 : streamedBytes;
    if (bytes < longRun)
        fillPixels(d, bytes, pattern);
    else if (bytes < streamedBytes)
        std::memset(d, pattern.v[0].raw[0], static_cast<size_t>(bytes));
    else
        streamPixels(d, bytes, pattern);
}

template <int E, int Processed>
PxlStatus setPixels(Values<uint8_t, Processed> value, Image<uint8_t, E, Processed> dst, ImageSize roi) {
    if (const PxlStatus status = check(null(dst, value), size(roi))) return status;
    const Pattern<E> pattern = pixelPattern<E, Processed>(value.base);
    const auto row = [&](ptrdiff_t n, uint8_t* d) {
        if constexpr (E == Processed)
            fillRow(d, n * E, pattern);
        else
            fillPixels(d, n * E, pattern, alphaPattern<E>());
    };
    walk(roi, row, dst);
    return PXL_OK;
}

template <class T, int Elements, int Channels>
PxlStatus Set(Values<T, Channels> value, Image<T, Elements, Channels> dst, ImageSize roi) {
    return setPixels(bytesOf(value), bytesOf(dst), roi);
}

// All ones behind the first First bytes of every pixel.
template <int E, int First>
struct BytesBehind {
    alignas(vecBytes) uint8_t bytes[Pattern<E>::count * vecBytes];
    constexpr BytesBehind() : bytes{} {
        for (int k = 0; k < Pattern<E>::count * vecBytes; ++k) bytes[k] = k % E >= First ? 0xFF : 0;
    }
};
template <int E, int First>
inline constexpr BytesBehind<E, First> bytesBehind;

// The pointer stands at the chosen channel, so the last pixel of a row may end right behind it.
template <class T, int Elements>
PxlStatus SetChannel(Values<T, 1> value, Image<T, Elements, 1> dst, ImageSize roi) {
    if (const PxlStatus status = check(null(dst), size(roi))) return status;
    constexpr int E = Elements * sizeof(T);
    const T pixel[Elements] = {value[0]};
    const Pattern<E> channel = patternOf<E>(pixel);
    const auto row = [&](ptrdiff_t n, uint8_t* d) {
        const ptrdiff_t before = (n - 1) * E;
        fillPixels(d, before, channel, loadPattern<E>(bytesBehind<E, sizeof(T)>.bytes));
        store1(reinterpret_cast<T*>(d + before), pixel[0]);
    };
    walk(roi, row, bytesOf(dst));
    return PXL_OK;
}

// ---- masked ---------------------------------------------------------------------------------------------------------

template <int E>
void setMaskedRow(ptrdiff_t n, uint8_t* d, const uint8_t* m, const void* pattern) {
    blendRow<E>(n, m, d, PatternSource<E>(pattern));
}

template <int E>
void setColourRow(ptrdiff_t n, uint8_t* d, const uint8_t* m, const void* pattern) {
    blendRow<E>(n, m, d, PatternSource<E>(pattern), alphaPattern<E>());
}

using MaskedRow = void(ptrdiff_t n, uint8_t* d, const uint8_t* m, const void* pattern);

// One walk for pixels of every size, which comes beside the image: so all go through registers.
void setMaskedRows(Image<uint8_t> dst, ptrdiff_t pixelBytes, ImageSize roi, Image<const uint8_t> mask, MaskedRow* row,
                   const void* pattern) {
    const auto kernel = [=](ptrdiff_t n, uint8_t* d, const uint8_t* m) { row(n, d, m, pattern); };
    walk(roi, kernel, Image<uint8_t, anyElements>(dst.base, dst.step, pixelBytes), mask);
}

template <int E, int Processed>
PxlStatus setMaskedPixels(Values<uint8_t, Processed> value, Image<uint8_t, E, Processed> dst, ImageSize roi,
                          Image<const uint8_t> mask) {
    if (const PxlStatus status = check(null(dst, value, mask), size(roi))) return status;
    const Pattern<E> pattern = pixelPattern<E, Processed>(value.base);
    if constexpr (E == Processed)
        setMaskedRows(elementsOf(dst), E, roi, mask, setMaskedRow<E>, &pattern);
    else
        setMaskedRows(elementsOf(dst), E, roi, mask, setColourRow<E>, &pattern);
    return PXL_OK;
}

template <class T, int Elements, int Channels>
PxlStatus SetMasked(Values<T, Channels> value, Image<T, Elements, Channels> dst, ImageSize roi,
                    Image<const uint8_t> mask) {
    return setMaskedPixels(bytesOf(value), bytesOf(dst), roi, mask);
}

} // namespace
} // namespace pxl::PXL_TARGET::exchange

#include "members/exchange/set.inc"
