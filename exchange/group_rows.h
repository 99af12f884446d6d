// Rows of pixels whose three or four elements are changed group by group (exchange/groups.h), with the source disjoint
// from the destination or exactly in place. A source's fourth element that is not processed may lie outside the caller's
// memory, and is not read there.
#pragma once

#include "exchange/groups.h"
#include "frame/streaming.h"

namespace pxl::PXL_TARGET::exchange {

// A change makes blocks of the destination from blocks of the source, and perhaps from what the destination held.
template <class Change, class T>
inline constexpr bool needsOld = std::is_invocable_v<const Change&, Vec<T>, Vec<T>>;

template <class T, class Change, class Old>
PXL_INLINE Vec<T> changed(const Change& change, Vec<T> source, Old old) {
    if constexpr (needsOld<Change, T>)
        return change(source, old());
    else
        return change(source);
}

// One group in the first block.
template <class T, int Elements, int Read = Elements>
PXL_INLINE Vec<T> loadGroup(const T* p) {
    constexpr int unread = (Elements - Read) * static_cast<int>(sizeof(T)); // of the last pixel
    return ZeroExtend<T>(LoadBlock<4 * Elements - unread>(p));
}
template <int Elements, class T>
PXL_INLINE void storeGroup(Vec<T> v, T* p) {
    StoreBlock<4 * Elements>(ExtractBlock<0>(v), p);
}

// Four vectors of groups.
template <int Elements, class T>
PXL_INLINE void loadGroups(const T* p, Vec<T> (&v)[4]) {
    if constexpr (Elements == 3) {
        LoadGroups3(p, v);
    } else {
#pragma GCC unroll 4
        for (int i = 0; i < 4; ++i) v[i] = LoadU(p + i * lanes<T>);
    }
}
template <int Elements, class Stores, class T>
PXL_INLINE void storeGroups(const Vec<T> (&v)[4], T* p) {
    if constexpr (Elements == 3) {
        StoreGroups3<Stores>(v, p);
    } else {
#pragma GCC unroll 4
        for (int i = 0; i < 4; ++i) Stores::store(v[i], p + i * lanes<T>);
    }
}

// ---- rows of images of the types Src and Dst ------------------------------------------------------------------------

template <class Src, class T>
PXL_INLINE Vec<T> loadSourceGroup(const T* s) {
    return loadGroup<T, Src::elements, Src::channels>(s);
}

template <class Src, class Dst, class Stores, class T, class Change>
PXL_INLINE void changeGroups(const T* s, T* d, Change change) {
    Vec<T> v[4];
    loadGroups<Src::elements>(s, v);
#pragma GCC unroll 4
    for (int i = 0; i < 4; ++i) v[i] = changed(change, v[i], [=] { return LoadU(d + i * lanes<T>); });
    storeGroups<Dst::elements, Stores>(v, d);
}

template <class Dst, class T, class Change>
PXL_INLINE void changeGroup(Vec<T> source, T* d, Change change) {
    storeGroup<Dst::elements>(changed(change, source, [=] { return loadGroup<T, 4>(d); }), d);
}

// Fewer pixels than a group.
template <class Src, class Dst, class T, class Change>
inline void changePixels(ptrdiff_t n, const T* s, T* d, Change change) {
    for (; n > 0; --n, s += Src::elements, d += Dst::elements) {
        T source[lanes<T>] = {};
        T pixel[lanes<T>] = {};
        std::memcpy(source, s, Src::channels * sizeof(T));
        if constexpr (needsOld<Change, T>) std::memcpy(pixel, d, Dst::elements * sizeof(T));
        StoreU(changed(change, LoadU(source), [&] { return LoadU(pixel); }), pixel);
        std::memcpy(d, pixel, Dst::elements * sizeof(T));
    }
}

// A row of one or two groups, or of what lies between. False, and nothing done, for others.
template <class Src, class Dst, class T, class Change>
PXL_INLINE bool changeShortRow(ptrdiff_t n, const T* s, T* d, Change change) {
    constexpr int group = groupPixels<T>;
    if (n < group || n > 2 * group) return false;
    const auto source = [&](ptrdiff_t x) { return loadSourceGroup<Src>(s + x * Src::elements); };
    const Vec<T> first = source(0), last = source(n - group);
    changeGroup<Dst>(first, d, change);
    if (n > group) changeGroup<Dst>(last, d + (n - group) * Dst::elements, change);
    return true;
}

template <class Src, class Dst, class T, class Change>
[[gnu::noinline]] void changeRow(ptrdiff_t n, const T* s, T* d, bool streamed, const Change& constants) {
    const Change change = constants; // to registers, which no store can change
    constexpr int group = groupPixels<T>;
    constexpr int block = 4 * vecBlocks * group;
    if (n < group) return changePixels<Src, Dst>(n, s, d, change);
    const auto source = [&](ptrdiff_t x) { return loadSourceGroup<Src>(s + x * Src::elements); };
    // What is left of a group at the end is done with the pixels before it, which are loaded before anything is stored.
    Vec<T> last = Zero<T>();
    if (n % group != 0) last = source(n - group);
    const ptrdiff_t readable = Src::channels == Src::elements ? n : n - 1;
    const auto changeBlock = [&]<class Stores>(ptrdiff_t x, Stores) {
        changeGroups<Src, Dst, Stores>(s + x * Src::elements, d + x * Dst::elements, change);
    };
    ptrdiff_t x = 0;
    if constexpr (!needsOld<Change, T>)
        for (; streamed && x + block <= readable; x += block) changeBlock(x, Streamed{});
    for (; x + block <= readable; x += block) changeBlock(x, Cached{});
    if (x > 0 && readable - x > 2 * group && s != d) {
        changeBlock(readable - block, Cached{});
        x = readable == n ? n : n - group;
    }
    for (; x + group <= n; x += group) changeGroup<Dst>(source(x), d + x * Dst::elements, change);
    if (x < n) changeGroup<Dst>(last, d + (n - group) * Dst::elements, change);
}

template <class Src, class Dst, class Change>
inline void walkGroups(ImageSize roi, Change change, Src src, Dst dst) {
    using T = typename Dst::Element;
    const bool streamed = !needsOld<Change, T> && src.base != dst.base && isStreamed(roi.width, roi.height, src, dst);
    const auto row = [=](ptrdiff_t n, const T* s, T* d) {
        if (!changeShortRow<Src, Dst>(n, s, d, change)) changeRow<Src, Dst>(n, s, d, streamed, change);
    };
    walk(roi, row, src, dst);
    finishStreamed(streamed);
}

} // namespace pxl::PXL_TARGET::exchange
