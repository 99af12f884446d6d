// Rows of pixels whose three or four elements are changed group by group (exchange/groups.h), with the source disjoint
// from the destination or exactly in place.
#pragma once

#include "exchange/groups.h"
#include "frame/streaming.h"

namespace pxl::PXL_TARGET {

// What a row of groups reads and writes. A source's fourth element that is not read may lie outside the caller's
// memory.
struct GroupForm {
    int srcElements;
    int dstElements;
    bool readsFourth;
    bool keepsOld; // the change needs what the destination held

    constexpr int srcRead() const { return srcElements == 4 && readsFourth ? 4 : 3; }
};

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

// change(source, old) makes blocks of the destination from blocks of the source; old is what the destination held,
// where the form keeps any of it.
template <class T, GroupForm Form, class Stores, class Change>
PXL_INLINE void changeGroups(const T* s, T* d, Change change) {
    Vec<T> v[4];
    loadGroups<Form.srcElements>(s, v);
#pragma GCC unroll 4
    for (int i = 0; i < 4; ++i) v[i] = change(v[i], Form.keepsOld ? LoadU(d + i * lanes<T>) : Zero<T>());
    storeGroups<Form.dstElements, Stores>(v, d);
}

template <class T, GroupForm Form, class Change>
PXL_INLINE void changeGroup(Vec<T> source, T* d, Change change) {
    Vec<T> old = Zero<T>();
    if constexpr (Form.keepsOld) old = loadGroup<T, 4>(d);
    storeGroup<Form.dstElements>(change(source, old), d);
}

// Fewer pixels than a group.
template <class T, GroupForm Form, class Change>
inline void changePixels(ptrdiff_t n, const T* s, T* d, Change change) {
    for (; n > 0; --n, s += Form.srcElements, d += Form.dstElements) {
        T source[lanes<T>] = {};
        T pixel[lanes<T>] = {};
        std::memcpy(source, s, Form.srcRead() * sizeof(T));
        if constexpr (Form.keepsOld) std::memcpy(pixel, d, Form.dstElements * sizeof(T));
        StoreU(change(LoadU(source), LoadU(pixel)), pixel);
        std::memcpy(d, pixel, Form.dstElements * sizeof(T));
    }
}

// A row of one or two groups, or of what lies between. False, and nothing done, for others.
template <class T, GroupForm Form, class Change>
PXL_INLINE bool changeShortRow(ptrdiff_t n, const T* s, T* d, Change change) {
    constexpr int group = groupPixels<T>;
    if (n < group || n > 2 * group) return false;
    const auto source = [&](ptrdiff_t x) {
        return loadGroup<T, Form.srcElements, Form.srcRead()>(s + x * Form.srcElements);
    };
    const Vec<T> first = source(0), last = source(n - group);
    changeGroup<T, Form>(first, d, change);
    if (n > group) changeGroup<T, Form>(last, d + (n - group) * Form.dstElements, change);
    return true;
}

template <class T, GroupForm Form, class Change>
[[gnu::noinline]] void ownChangeRow(ptrdiff_t n, const T* s, T* d, bool streamed, const Change& constants) {
    const Change change = constants; // to registers, which no store can change
    constexpr int group = groupPixels<T>;
    constexpr int block = 4 * vecBlocks * group;
    if (n < group) return changePixels<T, Form>(n, s, d, change);
    const auto source = [&](ptrdiff_t x) {
        return loadGroup<T, Form.srcElements, Form.srcRead()>(s + x * Form.srcElements);
    };
    // What is left of a group at the end is done with the pixels before it, which are loaded before anything is stored.
    Vec<T> last = Zero<T>();
    if (n % group != 0) last = source(n - group);
    const ptrdiff_t readable = Form.srcRead() == Form.srcElements ? n : n - 1;
    const auto changeBlock = [&]<class Stores>(ptrdiff_t x, Stores) {
        changeGroups<T, Form, Stores>(s + x * Form.srcElements, d + x * Form.dstElements, change);
    };
    ptrdiff_t x = 0;
    if constexpr (!Form.keepsOld)
        for (; streamed && x + block <= readable; x += block) changeBlock(x, Streamed{});
    for (; x + block <= readable; x += block) changeBlock(x, Cached{});
    if (x > 0 && readable - x > 2 * group && s != d) {
        changeBlock(readable - block, Cached{});
        x = readable == n ? n : n - group;
    }
    for (; x + group <= n; x += group) changeGroup<T, Form>(source(x), d + x * Form.dstElements, change);
    if (x < n) changeGroup<T, Form>(last, d + (n - group) * Form.dstElements, change);
}

// Walks a region; change as above.
template <class T, GroupForm Form, class Change>
inline void walkGroups(ImageSize roi, Change change, const T* src, int srcStep, T* dst, int dstStep) {
    const auto s = operand(src, srcStep, Form.srcElements);
    const auto d = operand(dst, dstStep, Form.dstElements);
    const bool streamed = !Form.keepsOld && src != dst && isStreamed(roi.width, roi.height, s, d);
    const auto row = [=](ptrdiff_t n, const T* from, T* to) {
        if (!changeShortRow<T, Form>(n, from, to, change)) ownChangeRow<T, Form>(n, from, to, streamed, change);
    };
    walk(roi, row, s, d);
    finishStreamed(streamed);
}

} // namespace pxl::PXL_TARGET
