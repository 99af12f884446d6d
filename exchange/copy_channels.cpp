// Copies between interleaved pixels, single channels and planes.
//
// A channel form addresses one element per pixel: from the addressed element of the first pixel to that of the last one, its
// row may be read, and rewritten with what it held, but nothing before or behind. So a vector that starts with a pixel has
// the channel as its first element, and the vector at the end of a row has it as its last.
#include "frame/checks.h"
#include "frame/row_parts.h"
#include "frame/vec_interleave.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {
namespace {

// ---- rows of a channel -------------------------------------------------------------------------------------------------------

// Ones in every element that is a multiple of Elements, from any element on.
template <class T, int Elements>
struct ChannelPattern {
    T ones[lanes<T> + Elements - 1] = {};
    constexpr ChannelPattern() {
        for (int i = 0; i < lanes<T> + Elements - 1; i += Elements) ones[i] = static_cast<T>(-1);
    }
    PXL_INLINE Mask<T> from(ptrdiff_t x) const { return LoadU(ones + x % Elements); }
};

template <class T, int Elements>
PXL_INLINE void ownBlendChannelRow(ptrdiff_t n, const T* s, T* d) {
    static constexpr ChannelPattern<T, Elements> pattern;
    const auto blend = [&]<int P>(Part<P>, ptrdiff_t x, Mask<T> mask) {
        StorePart<P>(IfThenElse(mask, LoadPart<P>(s + x), LoadPart<P>(d + x)), d + x);
    };
    const ptrdiff_t elements = (n - 1) * Elements + 1;
    ptrdiff_t x = 0;
    for (; x + Elements * lanes<T> <= elements; x += Elements * lanes<T>)
        for (int i = 0; i < Elements * lanes<T>; i += lanes<T>) blend(Part<lanes<T>>{}, x + i, pattern.from(i));
    const auto part = [&](auto p, ptrdiff_t at) { blend(p, at, pattern.from(at)); };
    if (!rowByParts<lanes<T>, leastPart<T>>(elements, part, x)) store1(d, load1(s));
}

template <class T, int Elements, int Pixels, int Channel>
PXL_INLINE Vec<T> loadChannel(const T* s) {
    Vec<T> channels[4];
    if constexpr (Elements == 3)
        LoadInterleaved3<T, Pixels>(s, channels[0], channels[1], channels[2]);
    else
        LoadInterleaved4<T, Pixels>(s, channels[0], channels[1], channels[2], channels[3]);
    return channels[Channel];
}

template <class T, int Elements>
PXL_INLINE void ownExtractChannelRow(ptrdiff_t n, const T* s, T* d) {
    const auto part = [&]<int P>(Part<P>, ptrdiff_t x) {
        StorePart<P>(loadChannel<T, Elements, P, 0>(s + x * Elements), d + x);
    };
    const auto end = [&]<int P>(Part<P>, ptrdiff_t x) {
        StorePart<P>(loadChannel<T, Elements, P, Elements - 1>(s + x * Elements - (Elements - 1)), d + x);
    };
    if (rowByPartsAndEnd<lanes<T>, leastPart<T>>(n, part, end)) return;
    for (ptrdiff_t x = 0; x < n; ++x) store1(d + x, load1(s + x * Elements));
}

template <class T, int Elements, int Pixels, int Channel>
PXL_INLINE void replaceChannel(Vec<T> v, T* d) {
    if constexpr (Elements == 3)
        ReplaceChannel3<Channel, T, Pixels>(v, d);
    else
        ReplaceChannel4<Channel, T, Pixels>(v, d);
}

template <class T, int Elements>
PXL_INLINE void ownInsertChannelRow(ptrdiff_t n, const T* s, T* d) {
    const auto part = [&]<int P>(Part<P>, ptrdiff_t x) {
        replaceChannel<T, Elements, P, 0>(LoadPart<P>(s + x), d + x * Elements);
    };
    const auto end = [&]<int P>(Part<P>, ptrdiff_t x) {
        replaceChannel<T, Elements, P, Elements - 1>(LoadPart<P>(s + x), d + x * Elements - (Elements - 1));
    };
    if (rowByPartsAndEnd<lanes<T>, leastPart<T>>(n, part, end)) return;
    for (ptrdiff_t x = 0; x < n; ++x) store1(d + x * Elements, load1(s + x));
}

template <class T, int SrcElements, int DstElements>
void ownCopyChannelRow(ptrdiff_t n, const T* s, T* d) {
    if constexpr (SrcElements == DstElements) ownBlendChannelRow<T, SrcElements>(n, s, d);
    if constexpr (SrcElements > DstElements) ownExtractChannelRow<T, SrcElements>(n, s, d);
    if constexpr (SrcElements < DstElements) ownInsertChannelRow<T, DstElements>(n, s, d);
}

// Whether two channels of the same pixels are addressed, which overlap nowhere though their rows do.
template <int Elements, class T>
bool areChannelsOfOneImage(const T* src, int srcStep, const T* dst, int dstStep) {
    const ptrdiff_t apart = reinterpret_cast<const char*>(dst) - reinterpret_cast<const char*>(src);
    const ptrdiff_t bytes = sizeof(T);
    return srcStep == dstStep && apart % bytes == 0 && -Elements * bytes < apart && apart < Elements * bytes;
}

template <class T, int SrcElements, int DstElements>
PxlStatus CopyChannel(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi) {
    if (anyNull(src, dst)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    const auto row = ownCopyChannelRow<T, SrcElements, DstElements>;
    if constexpr (SrcElements == DstElements)
        if (areChannelsOfOneImage<SrcElements>(src, srcStep, dst, dstStep)) {
            const auto both = [&](ptrdiff_t n, T* d) { row(n, d + (src - dst), d); };
            walk(roi, both, operand(dst, dstStep, DstElements));
            return PXL_OK;
        }
    walk(roi, row, operand(src, srcStep, SrcElements), operand(dst, dstStep, DstElements));
    return PXL_OK;
}

// ---- planes --------------------------------------------------------------------------------------------------------------------

template <class T, int Planes>
PXL_INLINE void splitPixels(ptrdiff_t n, const T* s, T* const (&d)[Planes]) {
    for (ptrdiff_t x = 0; x < n; ++x) {
        T pixel[Planes];
        std::memcpy(pixel, s + x * Planes, sizeof pixel);
        for (int p = 0; p < Planes; ++p) store1(d[p] + x, pixel[p]);
    }
}

template <class T, int Planes>
PXL_INLINE void ownSplitRow(ptrdiff_t n, const T* s, T* const (&d)[Planes]) {
    const auto part = [&]<int P>(Part<P>, ptrdiff_t x) {
        Vec<T> v[4];
        if constexpr (Planes == 3)
            LoadInterleaved3<T, P>(s + x * 3, v[0], v[1], v[2]);
        else
            LoadInterleaved4<T, P>(s + x * 4, v[0], v[1], v[2], v[3]);
        for (int p = 0; p < Planes; ++p) StorePart<P>(v[p], d[p] + x);
    };
    if (!rowByParts<lanes<T>, leastPart<T>>(n, part)) splitPixels(n, s, d);
}

template <class T, int Planes>
PXL_INLINE void mergePixels(ptrdiff_t n, const T* const (&s)[Planes], T* d) {
    for (ptrdiff_t x = 0; x < n; ++x) {
        T pixel[Planes];
        for (int p = 0; p < Planes; ++p) pixel[p] = load1(s[p] + x);
        std::memcpy(d + x * Planes, pixel, sizeof pixel);
    }
}

template <class T, int Planes>
PXL_INLINE void ownMergeRow(ptrdiff_t n, const T* const (&s)[Planes], T* d) {
    const auto part = [&]<int P>(Part<P>, ptrdiff_t x) {
        const auto plane = [&](int p) { return LoadPart<P>(s[p] + x); };
        if constexpr (Planes == 3)
            StoreInterleaved3<T, P>(plane(0), plane(1), plane(2), d + x * 3);
        else
            StoreInterleaved4<T, P>(plane(0), plane(1), plane(2), plane(3), d + x * 4);
    };
    if (!rowByParts<lanes<T>, leastPart<T>>(n, part)) mergePixels(n, s, d);
}

// Walks Planes operands of one element and whatever else there is; the kernel gets the planes last.
template <class Kernel, class T, class Pixels, int... P>
void walkPlanes(ImageSize roi, Kernel&& kernel, Operand<Pixels> pixels, T* const* planes, int step,
                std::integer_sequence<int, P...>) {
    walk(roi, kernel, pixels, operand(planes[P], step)...);
}

template <class T, int Planes>
PxlStatus Split(const T* src, int srcStep, T* const* dst, int dstStep, ImageSize roi) {
    if (anyNull(src) || anyPlaneNull<Planes>(dst)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    const auto row = [](ptrdiff_t n, const T* s, auto... d) { ownSplitRow<T, Planes>(n, s, {d...}); };
    walkPlanes(roi, row, operand(src, srcStep, Planes), dst, dstStep, std::make_integer_sequence<int, Planes>{});
    return PXL_OK;
}

template <class T, int Planes>
PxlStatus Merge(const T* const* src, int srcStep, T* dst, int dstStep, ImageSize roi) {
    if (anyPlaneNull<Planes>(src) || anyNull(dst)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    const auto row = [](ptrdiff_t n, T* d, auto... s) { ownMergeRow<T, Planes>(n, {s...}, d); };
    walkPlanes(roi, row, operand(dst, dstStep, Planes), src, srcStep, std::make_integer_sequence<int, Planes>{});
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/exchange/copy_channels.inc"
