// Channel orders: element k of a destination pixel receives element dstOrder[k] of the source pixel. All elements of a pixel
// are read before one is written. On AVX2 an order is one byte shuffle per group of pixels, made once per call; on SSE2,
// which has none, channels are taken apart and put together again.
#include "exchange/group_rows.h"
#include "frame/checks.h"
#include "frame/row_parts.h"
#include "frame/walk.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {
namespace {

// ---- orders ------------------------------------------------------------------------------------------------------------------

// An order for pixels of four elements; where the destination has three, the last entry is not used.
struct Order {
    int32_t from[4];

    static constexpr int32_t fill = 3; // where the source has three elements: writes a value
    static constexpr int32_t keep = 4; // this and above: the destination keeps its element
};

template <int Entries>
bool isInRange(const int32_t* order, int32_t last) {
    for (int k = 0; k < Entries; ++k)
        if (order[k] < 0 || order[k] > last) return false;
    return true;
}

template <int Entries>
Order orderOf(const int32_t* entries) {
    Order order{{Order::keep, Order::keep, Order::keep, Order::keep}};
    std::memcpy(order.from, entries, Entries * sizeof(int32_t));
    return order;
}

// ---- rows --------------------------------------------------------------------------------------------------------------------

#ifdef __AVX2__

// A row kernel: (pixels, source, destination).
template <class T, GroupForm Form>
auto swapRow(const Order& order, T value) {
    return [lookup = OrderLookup<T, Form.srcElements, Form.dstElements>(order.from, value)](ptrdiff_t n, const T* s, T* d) {
        ownChangeRow<T, Form>(n, s, d, [&](Vec<T> source, Vec<T> old) {
            Vec<T> pixels = lookup(source);
            if constexpr (Form.srcElements < Form.dstElements) pixels = pixels | lookup.value;
            if constexpr (Form.keepsOld) pixels = pixels | (old & lookup.keep);
            return pixels;
        });
    };
}

#else

template <class T, GroupForm Form>
void swapPixels(ptrdiff_t n, const T* s, T* d, const Order& order, T value) {
    for (; n > 0; --n, s += Form.srcElements, d += Form.dstElements) {
        T source[4] = {value, value, value, value};
        std::memcpy(source, s, Form.srcRead() * sizeof(T));
        for (int k = 0; k < Form.dstElements; ++k)
            if (!Form.keepsOld || order.from[k] < Order::keep) store1(d + k, source[order.from[k]]);
    }
}

// As many pixels as a vector has lanes.
template <class T, GroupForm Form>
PXL_INLINE void swapChannels(const T* s, T* d, const Order& order, T value) {
    Vec<T> source[4] = {{}, {}, {}, Set<T>(value)};
    if constexpr (Form.srcElements == 3)
        LoadInterleaved3(s, source[0], source[1], source[2]);
    else
        LoadInterleaved4(s, source[0], source[1], source[2], source[3]);
    Vec<T> old[4];
    if constexpr (Form.keepsOld) LoadInterleaved4(d, old[0], old[1], old[2], old[3]);
    const auto channel = [&](int k) {
        return Form.keepsOld && order.from[k] >= Order::keep ? old[k] : source[order.from[k]];
    };
    if constexpr (Form.dstElements == 3)
        StoreInterleaved3(channel(0), channel(1), channel(2), d);
    else
        StoreInterleaved4(channel(0), channel(1), channel(2), channel(3), d);
}

// A row kernel: (pixels, source, destination).
template <class T, GroupForm Form>
auto swapRow(const Order& order, T value) {
    return [order, value](ptrdiff_t n, const T* s, T* d) {
        const ptrdiff_t readable = Form.srcRead() == Form.srcElements ? n : n - 1;
        ptrdiff_t x = 0;
        for (; x + lanes<T> <= readable; x += lanes<T>)
            swapChannels<T, Form>(s + x * Form.srcElements, d + x * Form.dstElements, order, value);
        swapPixels<T, Form>(n - x, s + x * Form.srcElements, d + x * Form.dstElements, order, value);
    };
}

#endif

template <class T, GroupForm Form>
void ownSwap(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const Order& order, T value = 0) {
    walk(roi, swapRow<T, Form>(order, value), operand(src, srcStep, Form.srcElements),
         operand(dst, dstStep, Form.dstElements));
}

// ---- members -----------------------------------------------------------------------------------------------------------------

template <class T, int Elements>
PxlStatus SwapChannels(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const int32_t* dstOrder) {
    constexpr GroupForm form{
        .srcElements = Elements, .dstElements = Elements, .readsFourth = false, .keepsOld = Elements == 4};
    if (anyNull(src, dst, dstOrder)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    if (anyStepBelow1(srcStep, dstStep)) return PXL_E_STEP;
    if (!isInRange<3>(dstOrder, 2)) return PXL_E_CHANNEL_ORDER;
    ownSwap<T, form>(src, srcStep, dst, dstStep, roi, orderOf<3>(dstOrder));
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
    ownSwap<T, form>(srcDst, step, srcDst, step, roi, orderOf<4>(dstOrder));
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
    const Order order = orderOf<4>(dstOrder);
    if (isInRange<4>(dstOrder, Order::fill))
        ownSwap<T, form>(src, srcStep, dst, dstStep, roi, order, value);
    else
        ownSwap<T, keeping>(src, srcStep, dst, dstStep, roi, order, value);
    return PXL_OK;
}

template <class T>
PxlStatus SwapChannels4To3(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, const int32_t* dstOrder) {
    constexpr GroupForm form{.srcElements = 4, .dstElements = 3, .readsFourth = true, .keepsOld = false};
    if (anyNull(src, dst, dstOrder)) return PXL_E_NULL_PTR;
    if (isEmpty(roi)) return PXL_E_SIZE;
    if (!isInRange<3>(dstOrder, 3)) return PXL_E_CHANNEL_ORDER;
    ownSwap<T, form>(src, srcStep, dst, dstStep, roi, orderOf<3>(dstOrder));
    return PXL_OK;
}

// ---- one channel to three ------------------------------------------------------------------------------------------------------

template <class T>
void ownDuplicateRow(ptrdiff_t n, const T* s, T* d) {
    const auto part = [&]<int P>(Part<P>, ptrdiff_t x) { StoreRepeated3<T, P>(LoadPart<P>(s + x), d + x * 3); };
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
    walk(roi, ownDuplicateRow<T>, operand(src, srcStep), operand(dst, dstStep, 3));
    return PXL_OK;
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/exchange/swap_channels.inc"
