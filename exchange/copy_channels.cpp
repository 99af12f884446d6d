// Copies between interleaved pixels, single channels and planes.
//
// A channel form addresses one element per pixel: from the addressed element of the first pixel to that of the last
// one, its row may be read, and rewritten with what it held, but nothing before or behind. So a vector that starts with
// a pixel has the channel as its first element, and the vector at the end of a row has it as its last.
#include "frame/checks.h"
#include "frame/row_parts.h"
#include "frame/streaming.h"
#include "frame/vec/channels.h"
#include "frame/vec/partial.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET::exchange {
namespace {

// ---- rows of a channel --------------------------------------------------------------------------------------------

template <class T, int N>
struct PixelVectors {
    Vec<T> v[N];
};

template <int Channel>
using ChannelOf = std::integral_constant<int, Channel>;

template <class T, int N>
PXL_INLINE void extractChannelRow(ptrdiff_t n, const T* s, T* d) {
    const auto channel = [&]<int P, int Channel>(Part<P>, ChannelOf<Channel>, ptrdiff_t x) {
        Vec<T> v[N];
        loadPixels<P>(s + x * N - Channel, v);
        return gatherChannel<Channel>(v);
    };
    const auto part = [&]<int P>(Part<P> p, ptrdiff_t x) { StoreFirst<P>(channel(p, ChannelOf<0>{}, x), d + x); };
    const auto end = [&]<int P>(Part<P> p, ptrdiff_t x) {
        return [v = channel(p, ChannelOf<N - 1>{}, x), at = d + x] { StoreFirst<P>(v, at); };
    };
    if (rowByPartsAndEnd<lanes<T>, leastPart<T>>(n, part, end)) return;
    for (ptrdiff_t x = 0; x < n; ++x) store1(d + x, load1(s + x * N));
}

// How a channel of pixels is replaced: by whole vectors of pixels, with the lines of the destination fetched ahead in large
// images; or element by element, which is faster for elements of 4 bytes between the sizes of the first and the second-level
// cache: the line of a store need not have arrived before the next pixel is looked at.
enum class Replacing { ByVectors, ByElements, Fetched };

// source(Part<P>, ChannelOf<Channel>, x, vectors) gives P pixels from x on that hold the new values of the channel.
// False, and nothing done, for very short rows.
template <Replacing How, class T, int N, class Source>
PXL_INLINE bool replaceChannelRow(ptrdiff_t n, Source source, T* d) {
    if constexpr (How == Replacing::ByElements) return false;
    constexpr ptrdiff_t ahead = 16 * lanes<T>;
    const auto replaced = [&]<int P, int Channel>(Part<P> p, ChannelOf<Channel> c, ptrdiff_t x) {
        Vec<T> from[N];
        source(p, c, x, from);
        PixelVectors<T, N> pixels;
        loadPixels<P>(d + x * N - Channel, pixels.v);
        blendChannel<Channel>(pixels.v, from);
        return pixels;
    };
    const auto part = [&]<int P>(Part<P> p, ptrdiff_t x) {
        if (How == Replacing::Fetched && x + ahead + lanes<T> <= n) fetchForStores<N * vecBytes>(d + (x + ahead) * N);
        storePixels<P>(replaced(p, ChannelOf<0>{}, x).v, d + x * N);
    };
    const auto end = [&]<int P>(Part<P> p, ptrdiff_t x) {
        return
            [pixels = replaced(p, ChannelOf<N - 1>{}, x), at = d + x * N - (N - 1)] { storePixels<P>(pixels.v, at); };
    };
    return rowByPartsAndEnd<lanes<T>, leastPart<T>>(n, part, end);
}

template <Replacing How, class T, int N>
PXL_INLINE void insertChannelRow(ptrdiff_t n, const T* s, T* d) {
    const auto spread = [&]<int P, int Channel>(Part<P>, ChannelOf<Channel>, ptrdiff_t x, Vec<T>(&v)[N]) {
        spreadChannel<Channel>(LoadFirst<P>(s + x), v);
    };
    if (replaceChannelRow<How, T, N>(n, spread, d)) return;
#pragma GCC unroll 4
    for (ptrdiff_t x = 0; x < n; ++x) store1(d + x * N, load1(s + x));
}

template <Replacing How, class T, int N>
PXL_INLINE void moveChannelRow(ptrdiff_t n, const T* s, T* d) {
    const auto pixels = [&]<int P, int Channel>(Part<P>, ChannelOf<Channel>, ptrdiff_t x, Vec<T>(&v)[N]) {
        loadPixels<P>(s + x * N - Channel, v);
    };
    if (replaceChannelRow<How, T, N>(n, pixels, d)) return;
#pragma GCC unroll 4
    for (ptrdiff_t x = 0; x < n; ++x) store1(d + x * N, load1(s + x * N));
}

template <Replacing How, class T, int SrcElements, int DstElements>
void copyChannelRow(ptrdiff_t n, const T* s, T* d) {
    if constexpr (SrcElements == DstElements) moveChannelRow<How, T, SrcElements>(n, s, d);
    if constexpr (SrcElements > DstElements) extractChannelRow<T, SrcElements>(n, s, d);
    if constexpr (SrcElements < DstElements) insertChannelRow<How, T, DstElements>(n, s, d);
}

// Whether two channels of the same pixels are addressed, which overlap nowhere though their rows do.
template <class T, int Elements>
bool areChannelsOfOneImage(Image<const T, Elements, 1> src, Image<T, Elements, 1> dst) {
    const ptrdiff_t apart = reinterpret_cast<const char*>(dst.base) - reinterpret_cast<const char*>(src.base);
    const ptrdiff_t bytes = sizeof(T);
    return src.step == dst.step && apart % bytes == 0 && -dst.pixelBytes < apart && apart < dst.pixelBytes;
}

template <class T, int SrcElements, int DstElements>
PXL_INLINE void walkChannel(ImageSize roi, void (*row)(ptrdiff_t, const T*, T*), Image<const T, SrcElements, 1> src,
                            Image<T, DstElements, 1> dst) {
    if constexpr (SrcElements == DstElements)
        if (areChannelsOfOneImage(src, dst)) {
            const auto both = [=](ptrdiff_t n, T* d) { row(n, d + (src.base - dst.base), d); };
            return walk(roi, both, dst);
        }
    walk(roi, row, src, dst);
}

template <class T, int SrcElements, int DstElements>
[[gnu::noinline]] void replaceLargeChannel(ImageSize roi, Image<const T, SrcElements, 1> src,
                                           Image<T, DstElements, 1> dst) {
    if (isBeyondSecondCache(roi.width, roi.height, src, dst))
        walkChannel(roi, copyChannelRow<Replacing::Fetched, T, SrcElements, DstElements>, src, dst);
    else if constexpr (sizeof(T) == 4)
        walkChannel(roi, copyChannelRow<Replacing::ByElements, T, SrcElements, DstElements>, src, dst);
    else
        walkChannel(roi, copyChannelRow<Replacing::ByVectors, T, SrcElements, DstElements>, src, dst);
}

template <class T, int SrcElements, int DstElements>
PxlStatus CopyChannel(Image<const T, SrcElements, 1> src, Image<T, DstElements, 1> dst, ImageSize roi) {
    if (const PxlStatus status = check(null(src, dst), size(roi))) return status;
    if (SrcElements <= DstElements && isFetched(roi.width, roi.height, src, dst))
        replaceLargeChannel(roi, src, dst);
    else
        walkChannel(roi, copyChannelRow<Replacing::ByVectors, T, SrcElements, DstElements>, src, dst);
    return PXL_OK;
}

// ---- planes -------------------------------------------------------------------------------------------------------

template <class T, int Count>
PXL_INLINE void splitPixels(ptrdiff_t n, const T* s, T* const (&d)[Count]) {
    for (ptrdiff_t x = 0; x < n; ++x) {
        T pixel[Count];
        std::memcpy(pixel, s + x * Count, sizeof pixel);
        for (int p = 0; p < Count; ++p) store1(d[p] + x, pixel[p]);
    }
}

// Lines are fetched so many parts of a row ahead of the stores.
constexpr int fetchedParts = 8;

template <int P, class T, int Count>
PXL_INLINE void splitPart(const T* s, T* const (&d)[Count], ptrdiff_t x) {
    Vec<T> v[Count];
    LoadInterleaved<P>(s + x * Count, v);
#pragma GCC unroll 4
    for (int p = 0; p < Count; ++p) StoreFirst<P>(v[p], d[p] + x);
}

// A line of each plane, so that no line waits half filled for the others: few can be on their way at a time.
template <class T, int Count>
PXL_INLINE void streamSplitLines(const T* s, T* const (&d)[Count], ptrdiff_t x) {
    constexpr int most = lanes<T>;
    constexpr int parts = lineBytes / vecBytes;
    Vec<T> v[parts][Count];
#pragma GCC unroll 4
    for (int i = 0; i < parts; ++i) LoadInterleaved<most>(s + (x + i * most) * Count, v[i]);
#pragma GCC unroll 4
    for (int p = 0; p < Count; ++p)
#pragma GCC unroll 4
        for (int i = 0; i < parts; ++i) Streamed::store(v[i][p], d[p] + x + i * most);
}

template <class T, int Count>
PXL_INLINE void fetchPlanes(T* const (&d)[Count], ptrdiff_t x) {
#pragma GCC unroll 4
    for (int p = 0; p < Count; ++p) fetchForStores<vecBytes>(d[p] + x);
}

template <class T, int Count, int... P>
PXL_INLINE ptrdiff_t firstOfLines(T* const (&d)[Count], std::integer_sequence<int, P...>) {
    return firstOfLine(1, d[P]...);
}

template <bool Fetched, class T, int Count>
PXL_INLINE void splitCachedRow(ptrdiff_t n, const T* s, T* const (&d)[Count]) {
    constexpr int most = lanes<T>;
    ptrdiff_t x = 0;
    if constexpr (Fetched)
        for (; x + (fetchedParts + 1) * most <= n; x += most) {
            fetchPlanes(d, x + fetchedParts * most);
            splitPart<most>(s, d, x);
        }
    const auto part = [&]<int P>(Part<P>, ptrdiff_t at) __attribute__((always_inline)) { splitPart<P>(s, d, at); };
    if (!rowByParts<most, leastPart<T>>(n, part, x)) splitPixels(n, s, d);
}

// Whole lines are streamed. What lies before and behind them is done as rows of its own: stores of both kinds to one line
// would cost more than they save.
template <class T, int Count>
[[gnu::noinline]] void splitStreamedRow(ptrdiff_t n, const T* s, T* const (&d)[Count]) {
    constexpr int line = lineBytes / static_cast<int>(sizeof(T));
    ptrdiff_t x = firstOfLines(d, std::make_integer_sequence<int, Count>());
    if (x < 0 || x > n) return splitCachedRow<true>(n, s, d);
    splitCachedRow<false>(x, s, d);
    for (; x + line <= n; x += line) streamSplitLines(s, d, x);
    T* rest[Count];
    for (int p = 0; p < Count; ++p) rest[p] = d[p] + x;
    splitCachedRow<false>(n - x, s + x * Count, rest);
}

template <class T, int Count>
PXL_INLINE void mergePixels(ptrdiff_t n, const T* const (&s)[Count], T* d) {
    for (ptrdiff_t x = 0; x < n; ++x) {
        T pixel[Count];
        for (int p = 0; p < Count; ++p) pixel[p] = load1(s[p] + x);
        std::memcpy(d + x * Count, pixel, sizeof pixel);
    }
}

template <class Stores, int P, class T, int Count>
PXL_INLINE void mergePart(const T* const (&s)[Count], T* d, ptrdiff_t x) {
    Vec<T> v[Count];
#pragma GCC unroll 4
    for (int p = 0; p < Count; ++p) v[p] = LoadFirst<P>(s[p] + x);
    StoreInterleaved<P, Stores>(v, d + x * Count);
}

template <bool Fetched, class T, int Count>
PXL_INLINE void mergeCachedRow(ptrdiff_t n, const T* const (&s)[Count], T* d) {
    constexpr int most = lanes<T>;
    ptrdiff_t x = 0;
    if constexpr (Fetched)
        for (; x + (fetchedParts + 1) * most <= n; x += most) {
            fetchForStores<Count * vecBytes>(d + (x + fetchedParts * most) * Count);
            mergePart<Cached, most>(s, d, x);
        }
    const auto part = [&]<int P>(Part<P>, ptrdiff_t at) __attribute__((always_inline)) {
        mergePart<Cached, P>(s, d, at);
    };
    if (!rowByParts<most, leastPart<T>>(n, part, x)) mergePixels(n, s, d);
}

// As splitStreamedRow.
template <class T, int Count>
[[gnu::noinline]] void mergeStreamedRow(ptrdiff_t n, const T* const (&s)[Count], T* d) {
    constexpr int line =
        lineBytes / static_cast<int>(sizeof(T)); // so many pixels fill as many lines as they have elements
    ptrdiff_t x = firstOfLine(Count, d);
    if (x < 0 || x > n) return mergeCachedRow<true>(n, s, d);
    mergeCachedRow<false>(x, s, d);
    for (; x + line <= n; x += line)
#pragma GCC unroll 4
        for (int i = 0; i < line; i += lanes<T>) mergePart<Streamed, lanes<T>>(s, d, x + i);
    const T* rest[Count];
    for (int p = 0; p < Count; ++p) rest[p] = s[p] + x;
    mergeCachedRow<false>(n - x, rest, d + x * Count);
}

// Rows of small images, and of large ones.
template <class T, int Count>
struct SplitRows {
    static void small(ptrdiff_t n, const T* s, auto... d) { splitCachedRow<false, T, Count>(n, s, {d...}); }
    static void fetched(ptrdiff_t n, const T* s, auto... d) { splitCachedRow<true, T, Count>(n, s, {d...}); }
    static void streamed(ptrdiff_t n, const T* s, auto... d) { splitStreamedRow<T, Count>(n, s, {d...}); }
};
template <class T, int Count>
struct MergeRows {
    static void small(ptrdiff_t n, T* d, auto... s) { mergeCachedRow<false, T, Count>(n, {s...}, d); }
    static void fetched(ptrdiff_t n, T* d, auto... s) { mergeCachedRow<true, T, Count>(n, {s...}, d); }
    static void streamed(ptrdiff_t n, T* d, auto... s) { mergeStreamedRow<T, Count>(n, {s...}, d); }
};

// Calls walk with the planes, one by one.
template <class Walk, class T, int Count>
PXL_INLINE void withPlanes(Planes<T, Count> planes, Walk&& walkImages) {
    [&]<int... p>(std::integer_sequence<int, p...>) { walkImages(planes[p]...); }
    (std::make_integer_sequence<int, Count>{});
}

// A walk of its own, in which small calls take no part.
template <class Rows, class Pixels, class T, int Count>
[[gnu::noinline]] void walkLarge(ImageSize roi, Pixels pixels, Planes<T, Count> planes, Storing storing) {
    const auto fetched = [](auto... row) { Rows::fetched(row...); };
    const auto streamed = [](auto... row) { Rows::streamed(row...); };
    withPlanes(planes, [&](auto... plane) {
        if (storing == Storing::Streamed)
            walk(roi, streamed, pixels, plane...);
        else
            walk(roi, fetched, pixels, plane...);
    });
    finishStreamed(storing == Storing::Streamed);
}

// Walks an image of pixels and its planes.
template <class Rows, class Pixels, class T, int Count>
PXL_INLINE void walkPlanes(ImageSize roi, Pixels pixels, Planes<T, Count> planes) {
    const Storing storing = storingOfPlanes(roi.width, roi.height, pixels);
    if (storing != Storing::Cached) return walkLarge<Rows>(roi, pixels, planes, storing);
    const auto small = [](auto... row) { Rows::small(row...); };
    withPlanes(planes, [&](auto... plane) { walk(roi, small, pixels, plane...); });
}

template <class T, int Count>
PxlStatus Split(Image<const T, Count> src, Planes<T, Count> dst, ImageSize roi) {
    if (const PxlStatus status = check(null(src, dst), size(roi))) return status;
    walkPlanes<SplitRows<T, Count>>(roi, src, dst);
    return PXL_OK;
}

template <class T, int Count>
PxlStatus Merge(Planes<const T, Count> src, Image<T, Count> dst, ImageSize roi) {
    if (const PxlStatus status = check(null(src, dst), size(roi))) return status;
    walkPlanes<MergeRows<T, Count>>(roi, dst, src);
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET::exchange

#include "members/exchange/copy_channels.inc"
