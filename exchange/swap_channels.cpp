// Channel orders: element k of a destination pixel receives element dstOrder[k] of the source pixel. All elements of a
// pixel are read before one is written. With shuffles of bytes an order is one of them per group of pixels, made once
// per call; without, channels are taken apart and put together again.
#include "exchange/group_rows.h"
#include "frame/checks.h"
#include "frame/row_parts.h"
#include "frame/vec/partial.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {
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

// ---- rows ---------------------------------------------------------------------------------------------------------

struct Order {
    int32_t from[4] = {keep, keep, keep, keep};
};

template <class T, GroupForm Form>
void swapPixels(ptrdiff_t n, const T* s, T* d, const Order& order, T value) {
    for (; n > 0; --n, s += Form.srcElements, d += Form.dstElements) {
        T source[4] = {value, value, value, value};
        std::memcpy(source, s, Form.srcRead() * sizeof(T));
        for (int k = 0; k < Form.dstElements; ++k)
            if (!Form.keepsOld || order.from[k] < keep) store1(d + k, source[order.from[k]]);
    }
}

// As many pixels as a vector has lanes.
template <class T, GroupForm Form>
PXL_INLINE void swapVectors(const T* s, T* d, const Order& order, T value) {
    Vec<T> pixels[Form.srcElements];
    loadPixels<lanes<T>>(s, pixels);
    deinterleave(pixels);
    Vec<T> source[4] = {pixels[0], pixels[1], pixels[2], Set<T>(value)};
    if constexpr (Form.srcElements == 4) source[3] = pixels[3];
    Vec<T> swapped[Form.dstElements];
    if constexpr (Form.keepsOld) {
        loadPixels<lanes<T>>(d, swapped);
        deinterleave(swapped);
    }
    for (int k = 0; k < Form.dstElements; ++k)
        if (!Form.keepsOld || order.from[k] < keep) swapped[k] = source[order.from[k]];
    interleave(swapped);
    storePixels<lanes<T>>(swapped, d);
}

template <class T, GroupForm Form>
PXL_INLINE void swapRow(ptrdiff_t n, const T* s, T* d, const Order& order, T value) {
    const ptrdiff_t readable = Form.srcRead() == Form.srcElements ? n : n - 1;
    ptrdiff_t x = 0;
    for (; x + lanes<T> <= readable; x += lanes<T>)
        swapVectors<T, Form>(s + x * Form.srcElements, d + x * Form.dstElements, order, value);
    swapPixels<T, Form>(n - x, s + x * Form.srcElements, d + x * Form.dstElements, order, value);
}

template <class T, GroupForm Form, int Entries>
void swapChannels(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const int32_t* dstOrder, T value = 0) {
    if constexpr (hasByteShuffle) {
        const OrderLookup<T, Form.srcElements, Form.dstElements, Entries> lookup(dstOrder, value);
        const auto change = [=](Vec<T> source, Vec<T> old) {
            Vec<T> pixels = lookup(source);
            if constexpr (Form.srcElements < Form.dstElements) pixels = pixels | lookup.value;
            if constexpr (Form.keepsOld) pixels = pixels | (old & lookup.keep);
            return pixels;
        };
        walkGroups<T, Form>(roi, change, src, srcStep, dst, dstStep);
    } else {
        Order order;
        std::memcpy(order.from, dstOrder, Entries * sizeof(int32_t));
        const auto row = [=](ptrdiff_t n, const T* s, T* d) { swapRow<T, Form>(n, s, d, order, value); };
        walk(roi, row, operand(src, srcStep, Form.srcElements), operand(dst, dstStep, Form.dstElements));
    }
}

// ---- members ------------------------------------------------------------------------------------------------------

template <class T, int Elements>
PxlStatus SwapChannels(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const int32_t* dstOrder) {
    constexpr GroupForm form{
        .srcElements = Elements, .dstElements = Elements, .readsFourth = false, .keepsOld = Elements == 4};
    if (anyNull(src, dst, dstOrder)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    if (anyStepBelow1(srcStep, dstStep)) return PXL_E_STEP;
    if (!isInRange<3>(dstOrder, 2)) return PXL_E_CHANNEL_ORDER;
    swapChannels<T, form, 3>(src, srcStep, dst, dstStep, roi, dstOrder);
    return PXL_OK;
}

template <class T>
PxlStatus SwapChannelsInPlace3(T* srcDst, int step, ImageSize roi, const int32_t* dstOrder) {
    return SwapChannels<T, 3>(srcDst, step, srcDst, step, roi, dstOrder);
}

template <class T>
PxlStatus SwapChannelsInPlace4(T* srcDst, int step, ImageSize roi, const int32_t* dstOrder) {
    constexpr GroupForm form{.srcElements = 4, .dstElements = 4, .readsFourth = true, .keepsOld = false};
    if (anyNull(srcDst, dstOrder)) return PXL_E_NULL_PTR;
    if (anyStepBelow1(step)) return PXL_E_STEP; // before the size, unlike the other members
    if (isEmpty(roi)) return PXL_E_SIZE;
    if (!isInRange<4>(dstOrder, 3)) return PXL_E_CHANNEL_ORDER;
    swapChannels<T, form, 4>(srcDst, step, srcDst, step, roi, dstOrder);
    return PXL_OK;
}

template <class T>
PxlStatus SwapChannels3To4(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const int32_t* dstOrder,
                           T value) {
    constexpr GroupForm form{.srcElements = 3, .dstElements = 4, .readsFourth = false, .keepsOld = false};
    constexpr GroupForm keeping{.srcElements = 3, .dstElements = 4, .readsFourth = false, .keepsOld = true};
    if (anyNull(src, dst, dstOrder)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    if (!isInRange<4>(dstOrder, INT32_MAX)) return PXL_E_CHANNEL_ORDER;
    if (isInRange<4>(dstOrder, fill))
        swapChannels<T, form, 4>(src, srcStep, dst, dstStep, roi, dstOrder, value);
    else
        swapChannels<T, keeping, 4>(src, srcStep, dst, dstStep, roi, dstOrder, value);
    return PXL_OK;
}

template <class T>
PxlStatus SwapChannels4To3(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const int32_t* dstOrder) {
    constexpr GroupForm form{.srcElements = 4, .dstElements = 3, .readsFourth = true, .keepsOld = false};
    if (anyNull(src, dst, dstOrder)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    if (!isInRange<3>(dstOrder, 3)) return PXL_E_CHANNEL_ORDER;
    swapChannels<T, form, 3>(src, srcStep, dst, dstStep, roi, dstOrder);
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
PxlStatus Duplicate(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi) {
    if (anyNull(src, dst)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    walk(roi, duplicateRow<T>, operand(src, srcStep), operand(dst, dstStep, 3));
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/exchange/swap_channels.inc"
