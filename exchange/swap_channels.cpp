// Channel orders: element k of a destination pixel receives element dstOrder[k] of the source pixel. All elements of a
// pixel are read before one is written. With shuffles of bytes an order is one of them per group of pixels, made once
// per call; without, channels are taken apart and put together again.
#include "exchange/group_rows.h"
#include "frame/checks.h"
#include "frame/row_parts.h"
#include "frame/vec/partial.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET::exchange {
namespace {

// ---- orders -------------------------------------------------------------------------------------------------------

// In the order of three elements to four: writes a value. This and above: keeps the destination's element, as a fourth
// one that has no entry does.
constexpr int32_t fill = 3;
constexpr int32_t keep = 4;

template <int Entries>
bool isInRange(const int32_t* order, int32_t last) {
    for (int k = 0; k < Entries; ++k)
        if (order[k] < 0 || order[k] > last) return false;
    return true;
}

template <int Entries>
auto order(const int32_t* dstOrder, int32_t last) {
    return refuseIf([=] { return !isInRange<Entries>(dstOrder, last); }, PXL_E_CHANNEL_ORDER);
}

// ---- rows ---------------------------------------------------------------------------------------------------------

struct Order {
    int32_t from[4] = {keep, keep, keep, keep};
};

template <bool Keeps, class Src, class Dst, class T>
void swapPixels(ptrdiff_t n, const T* s, T* d, const Order& order, T value) {
    for (; n > 0; --n, s += Src::elements, d += Dst::elements) {
        T source[4] = {value, value, value, value};
        std::memcpy(source, s, Src::channels * sizeof(T));
        for (int k = 0; k < Dst::elements; ++k)
            if (!Keeps || order.from[k] < keep) store1(d + k, source[order.from[k]]);
    }
}

// As many pixels as a vector has lanes.
template <bool Keeps, class Src, class Dst, class T>
PXL_INLINE void swapVectors(const T* s, T* d, const Order& order, T value) {
    Vec<T> pixels[Src::elements];
    loadPixels<lanes<T>>(s, pixels);
    deinterleave(pixels);
    Vec<T> source[4] = {pixels[0], pixels[1], pixels[2], Set<T>(value)};
    if constexpr (Src::elements == 4) source[3] = pixels[3];
    Vec<T> swapped[Dst::elements];
    if constexpr (Keeps) {
        loadPixels<lanes<T>>(d, swapped);
        deinterleave(swapped);
    }
    for (int k = 0; k < Dst::elements; ++k)
        if (!Keeps || order.from[k] < keep) swapped[k] = source[order.from[k]];
    interleave(swapped);
    storePixels<lanes<T>>(swapped, d);
}

template <bool Keeps, class Src, class Dst, class T>
PXL_INLINE void swapRow(ptrdiff_t n, const T* s, T* d, const Order& order, T value) {
    const ptrdiff_t readable = Src::channels == Src::elements ? n : n - 1;
    ptrdiff_t x = 0;
    for (; x + lanes<T> <= readable; x += lanes<T>)
        swapVectors<Keeps, Src, Dst>(s + x * Src::elements, d + x * Dst::elements, order, value);
    swapPixels<Keeps, Src, Dst>(n - x, s + x * Src::elements, d + x * Dst::elements, order, value);
}

// Keeps: entries may say that the destination keeps its element.
template <int Entries, bool Keeps, class Src, class Dst>
void swap(Src src, Dst dst, ImageSize roi, const int32_t* dstOrder, typename Dst::Element value = 0) {
    using T = typename Dst::Element;
    if constexpr (hasByteShuffle) {
        const OrderLookup<T, Src::elements, Dst::elements, Entries> lookup(dstOrder, value);
        if constexpr (Keeps)
            walkGroups(
                roi, [=](Vec<T> source, Vec<T> old) { return lookup(source) | (old & lookup.keep); }, src, dst);
        else
            walkGroups(
                roi, [=](Vec<T> source) { return lookup(source); }, src, dst);
    } else {
        Order order;
        std::memcpy(order.from, dstOrder, Entries * sizeof(int32_t));
        const auto row = [=](ptrdiff_t n, const T* s, T* d) { swapRow<Keeps, Src, Dst>(n, s, d, order, value); };
        walk(roi, row, src, dst);
    }
}

// ---- members ------------------------------------------------------------------------------------------------------

// C3 and AC4, which keeps its fourth element.
template <class T, int Elements>
PxlStatus SwapChannels(Image<const T, Elements, 3> src, Image<T, Elements, 3> dst, ImageSize roi,
                       const int32_t* dstOrder) {
    if (const PxlStatus status = check(null(src, dst, dstOrder), size(roi), steps(src, dst), order<3>(dstOrder, 2)))
        return status;
    swap<3, Elements == 4>(src, dst, roi, dstOrder);
    return PXL_OK;
}

// The step before the size, unlike the other members.
template <class T>
PxlStatus SwapFourInPlace(Image<const T, 4> src, Image<T, 4> dst, ImageSize roi, const int32_t* dstOrder) {
    if (const PxlStatus status = check(null(dst, dstOrder), steps(dst), size(roi), order<4>(dstOrder, 3)))
        return status;
    swap<4, false>(src, dst, roi, dstOrder);
    return PXL_OK;
}

template <class T>
PxlStatus SwapThreeToFour(Image<const T, 3> src, Image<T, 4> dst, ImageSize roi, const int32_t* dstOrder, T value) {
    if (const PxlStatus status = check(null(src, dst, dstOrder), size(roi), order<4>(dstOrder, INT32_MAX)))
        return status;
    if (isInRange<4>(dstOrder, fill))
        swap<4, false>(src, dst, roi, dstOrder, value);
    else
        swap<4, true>(src, dst, roi, dstOrder, value);
    return PXL_OK;
}

template <class T>
PxlStatus SwapFourToThree(Image<const T, 4> src, Image<T, 3> dst, ImageSize roi, const int32_t* dstOrder) {
    if (const PxlStatus status = check(null(src, dst, dstOrder), size(roi), order<3>(dstOrder, 3))) return status;
    swap<3, false>(src, dst, roi, dstOrder);
    return PXL_OK;
}

// ---- one channel to three -----------------------------------------------------------------------------------------

template <class T>
void duplicateRow(ptrdiff_t n, const T* s, T* d) {
    const auto part = [&]<int P>(Part<P>, ptrdiff_t x) {
        Vec<T> pixels[3];
        repeatChannel3(LoadFirst<P>(s + x), pixels);
        storePixels<P>(pixels, d + x * 3);
    };
    if (rowByParts<lanes<T>, leastPart<T>>(n, part)) return;
    for (ptrdiff_t x = 0; x < n; ++x) {
        const T value = load1(s + x);
        for (int k = 0; k < 3; ++k) store1(d + x * 3 + k, value);
    }
}

template <class T>
PxlStatus Duplicate(Image<const T> src, Image<T, 3> dst, ImageSize roi) {
    if (const PxlStatus status = check(null(src, dst), size(roi))) return status;
    walk(roi, duplicateRow<T>, src, dst);
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET::exchange

#include "members/exchange/swap_channels.inc"
