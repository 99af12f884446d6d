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

namespace pxl::PXL_TARGET {
namespace {

template <class T>
PXL_INLINE uint8_t* bytesOf(T* p) {
    return reinterpret_cast<uint8_t*>(p);
}

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
PXL_INLINE void fillRun(uint8_t* d, ptrdiff_t bytes, const Pattern<E>& pattern) {
    constexpr ptrdiff_t longRun = E == 1 ? 4096 : streamedBytes;
    if (bytes < longRun)
        fillPixels(d, bytes, pattern);
    else if (bytes < streamedBytes)
        std::memset(d, pattern.v[0].raw[0], static_cast<size_t>(bytes));
    else
        streamPixels(d, bytes, pattern);
}

template <int E>
PxlStatus setPixels(const void* value, uint8_t* dst, int dstStep, ImageSize roi) {
    if (anyNull(dst, value)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    const Pattern<E> pattern = patternOf<E>(value);
    const auto row = [&](ptrdiff_t n, uint8_t* d) { fillRun(d, n * E, pattern); };
    walk(roi, row, operand(dst, dstStep, E));
    return PXL_OK;
}

template <class T, int Elements>
PxlStatus SetElements(const T* value, T* dst, int dstStep, ImageSize roi) {
    return setPixels<Elements * sizeof(T)>(value, bytesOf(dst), dstStep, roi);
}
template <class T, int Elements>
PxlStatus SetElements(T value, T* dst, int dstStep, ImageSize roi) {
    return setPixels<sizeof(T)>(&value, bytesOf(dst), dstStep, roi);
}

template <class T>
PxlStatus SetColour(const T* value, T* dst, int dstStep, ImageSize roi) {
    if (anyNull(dst, value)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    constexpr int E = 4 * sizeof(T);
    const Pattern<E> colour = colourPattern<E>(value);
    const auto row = [&](ptrdiff_t n, uint8_t* d) { fillPixels(d, n * E, colour, alphaPattern<E>()); };
    walk(roi, row, operand(bytesOf(dst), dstStep, E));
    return PXL_OK;
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
PxlStatus SetChannel(T value, T* dst, int dstStep, ImageSize roi) {
    if (anyNull(dst)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    constexpr int E = Elements * sizeof(T);
    const T pixel[Elements] = {value};
    const Pattern<E> channel = patternOf<E>(pixel);
    const auto row = [&](ptrdiff_t n, uint8_t* d) {
        const ptrdiff_t before = (n - 1) * E;
        fillPixels(d, before, channel, loadPattern<E>(bytesBehind<E, sizeof(T)>.bytes));
        store1(reinterpret_cast<T*>(d + before), value);
    };
    walk(roi, row, operand(bytesOf(dst), dstStep, E));
    return PXL_OK;
}

// ---- masked ---------------------------------------------------------------------------------------------------------

using MaskedRow = void(ptrdiff_t n, uint8_t* d, const uint8_t* m, const void* pattern);

template <int E>
void setMaskedRow(ptrdiff_t n, uint8_t* d, const uint8_t* m, const void* pattern) {
    blendRow<E>(n, m, d, PatternSource<E>(pattern));
}

template <int E>
void setColourRow(ptrdiff_t n, uint8_t* d, const uint8_t* m, const void* pattern) {
    blendRow<E>(n, m, d, PatternSource<E>(pattern), alphaPattern<E>());
}

void setMaskedRows(uint8_t* dst, int dstStep, ImageSize roi, const uint8_t* mask, int maskStep, int pixelBytes,
                   MaskedRow* row, const void* pattern) {
    const auto kernel = [=](ptrdiff_t n, uint8_t* d, const uint8_t* m) { row(n, d, m, pattern); };
    walk(roi, kernel, operand(dst, dstStep, pixelBytes), operand(mask, maskStep));
}

template <int E>
PxlStatus setMaskedPixels(const void* value, uint8_t* dst, int dstStep, ImageSize roi, const uint8_t* mask,
                          int maskStep) {
    if (anyNull(dst, value, mask)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    const Pattern<E> pattern = patternOf<E>(value);
    setMaskedRows(dst, dstStep, roi, mask, maskStep, E, setMaskedRow<E>, &pattern);
    return PXL_OK;
}

template <class T, int Elements>
PxlStatus SetMasked(const T* value, T* dst, int dstStep, ImageSize roi, const uint8_t* mask, int maskStep) {
    return setMaskedPixels<Elements * sizeof(T)>(value, bytesOf(dst), dstStep, roi, mask, maskStep);
}
template <class T, int Elements>
PxlStatus SetMasked(T value, T* dst, int dstStep, ImageSize roi, const uint8_t* mask, int maskStep) {
    return setMaskedPixels<sizeof(T)>(&value, bytesOf(dst), dstStep, roi, mask, maskStep);
}

template <class T>
PxlStatus SetColourMasked(const T* value, T* dst, int dstStep, ImageSize roi, const uint8_t* mask, int maskStep) {
    if (anyNull(dst, value, mask)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    constexpr int E = 4 * sizeof(T);
    const Pattern<E> colour = colourPattern<E>(value);
    setMaskedRows(bytesOf(dst), dstStep, roi, mask, maskStep, E, setColourRow<E>, &colour);
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/exchange/set.inc"
