// Sums over windows of one row or one column, as running sums in single precision: a sum starts as the samples of the first
// window, added one by one, and goes on by adding the difference of the sample that enters and the one that leaves, which is
// taken in integers. Sums beyond 2^24 round at every step, so the order of these additions belongs to the result.
#include "filter/squares.h"
#include "frame/checks.h"
#include "frame/memory.h"
#include "frame/vec/convert.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {
namespace {

PxlStatus ownCheckWindow(int maskSize, int anchor) {
    if (maskSize < 1) return PXL_E_MASK_SIZE;
    return anchor < 0 || anchor >= maskSize ? PXL_E_ANCHOR : PXL_OK;
}

// Only the 16u forms check the region.
template <class T>
PxlStatus ownCheckSum(bool null, ImageSize roi, int maskSize, int anchor) {
    if (null) return PXL_E_NULL_PTR;
    if (std::is_same_v<T, uint16_t> && isEmpty(roi)) return PXL_E_SIZE;
    return ownCheckWindow(maskSize, anchor);
}

// Steps count whole elements, rounded down.
template <class T>
ptrdiff_t wholeElements(int step) {
    return step >> (std::bit_width(sizeof(T)) - 1);
}

// What the window gains in front and loses behind.
template <class T>
PXL_INLINE Vec<int32_t> differences(const T* entering, const T* leaving) {
    return LoadPromote<int32_t>(entering) - LoadPromote<int32_t>(leaving);
}

// ---- rows ----------------------------------------------------------------------------------------------------------------------

// Up to squareSide<float> rows at a time, each in a lane of its own. `width` and `reach` (of the window) are in elements.
template <class T, int Elements>
struct SumRows {
    static constexpr int side = squareSide<float>;
    const T* src; // the first sample of the first window
    ptrdiff_t srcStep;
    float* dst;
    ptrdiff_t dstStep, width, reach;
    int firstChannel = 0;                             // of the next element
    alignas(vecBytes) float sum[Elements][side] = {}; // of every row

    void run(int rows) {
        for (ptrdiff_t i = 0; i < reach; i += Elements)
            for (int j = 0; j < rows; ++j)
                for (int c = 0; c < Elements; ++c) sum[c][j] += static_cast<float>(load1(src + j * srcStep + i + c));
        // The sums of a square are stored with those of the pixel that follows them still to come, so that only samples of
        // windows of this row are read.
        ptrdiff_t x = 0;
        if (rows == side)
            for (; x + side + Elements <= width; x += side) square(x);
        for (int j = 0; j < rows; ++j) restOfRow(x, j);
    }

    void square(ptrdiff_t x) {
        Vec<int32_t> gain[side];
#pragma GCC unroll 8
        for (int j = 0; j < side; ++j) gain[j] = differences(src + j * srcStep + x + reach, src + j * srcStep + x);
        TransposeSquare(gain);
        Vec<float> s[Elements], out[side];
        const auto sumOf = [&](int i) { return sum[(firstChannel + i) % Elements]; };
#pragma GCC unroll 4
        for (int c = 0; c < Elements; ++c) s[c] = LoadU(sumOf(c));
#pragma GCC unroll 8
        for (int i = 0; i < side; ++i) {
            out[i] = s[i % Elements];
            s[i % Elements] = out[i] + ConvertToFloat(gain[i]);
        }
#pragma GCC unroll 4
        for (int c = 0; c < Elements; ++c) StoreU(s[c], sumOf(c));
        firstChannel = (firstChannel + side) % Elements;
        StoreSquare(out, dst + x, dstStep * static_cast<ptrdiff_t>(sizeof(float)), Zero<float>());
    }

    void restOfRow(ptrdiff_t x, int j) {
        const T* s = src + j * srcStep;
        for (int channel = firstChannel; x < width; ++x, channel = (channel + 1) % Elements) {
            float& now = sum[channel][j];
            store1(dst + j * dstStep + x, now);
            if (x + Elements < width) now += static_cast<float>(load1(s + x + reach) - load1(s + x));
        }
    }
};

template <class T, int Elements>
PxlStatus SumWindowRow(const T* src, int srcStep, float* dst, int dstStep, ImageSize roi, int maskSize, int anchor) {
    const PxlStatus status = ownCheckSum<T>(anyNull(src, dst), roi, maskSize, anchor);
    if (status != PXL_OK || isEmpty(roi)) return status;
    const ptrdiff_t s = wholeElements<T>(srcStep), d = wholeElements<float>(dstStep);
    // Steps are not checked: rows of results that overlap are written one after the other.
    const ptrdiff_t width = ptrdiff_t{roi.width} * Elements;
    const bool apart = d >= width || -d >= width;
    const int together = apart ? squareSide<float> : 1;
    for (int y = 0; y < roi.height; y += together) {
        SumRows<T, Elements> group{.src = src + y * s - ptrdiff_t{anchor} * Elements,
                                   .srcStep = s,
                                   .dst = dst + y * d,
                                   .dstStep = d,
                                   .width = width,
                                   .reach = ptrdiff_t{maskSize} * Elements};
        group.run(roi.height - y < together ? roi.height - y : together);
    }
    return PXL_OK;
}

// ---- columns -------------------------------------------------------------------------------------------------------------------

template <class T>
void addRow(ptrdiff_t n, const T* s, float* sums) {
    const auto block = [](float* to, const T* p, const float* old) { StoreU(LoadU(old) + LoadPromote<float>(p), to); };
    rowByBlocks<lanes<float>>(n, block, sums, s, static_cast<const float*>(sums));
}

// Stores the sums of a row and moves them one row down.
template <class T>
void storeAndMove(ptrdiff_t n, const T* entering, const T* leaving, float* sums, float* d) {
    constexpr int step = lanes<float>;
    const auto moved = [&](ptrdiff_t x, Vec<float> sum) {
        return sum + ConvertToFloat(differences(entering + x, leaving + x));
    };
    ptrdiff_t x = 0;
    for (; x + 2 * step <= n; x += 2 * step) {
        const Vec<float> a = LoadU(sums + x), b = LoadU(sums + x + step);
        StoreU(a, d + x);
        StoreU(b, d + x + step);
        StoreU(moved(x, a), sums + x);
        StoreU(moved(x + step, b), sums + x + step);
    }
    for (; x < n; ++x) {
        store1(d + x, sums[x]);
        sums[x] += static_cast<float>(load1(entering + x) - load1(leaving + x));
    }
}

// In elements; src is the first sample of the first windows.
template <class T>
PxlStatus ownSumColumns(const T* src, ptrdiff_t srcStep, float* dst, ptrdiff_t dstStep, ptrdiff_t width, int height,
                        int maskSize) {
    const Scratch<float> scratch(width);
    if (!scratch) return PXL_E_MEM_ALLOC;
    float* const sums = scratch.get();
    std::memset(sums, 0, static_cast<size_t>(width) * sizeof(float));
    for (int j = 0; j < maskSize; ++j) addRow(width, src + j * srcStep, sums);
    for (int y = 0; y + 1 < height; ++y)
        storeAndMove(width, src + (ptrdiff_t{y} + maskSize) * srcStep, src + y * srcStep, sums, dst + y * dstStep);
    std::memcpy(dst + (ptrdiff_t{height} - 1) * dstStep, sums, static_cast<size_t>(width) * sizeof(float));
    return PXL_OK;
}

template <class T, int Elements>
PxlStatus SumWindowColumn(const T* src, int srcStep, float* dst, int dstStep, ImageSize roi, int maskSize, int anchor) {
    if (std::is_same_v<T, int16_t> && Elements == 3 && isEmpty(roi)) return PXL_E_SIZE; // this member alone, and first
    const PxlStatus status = ownCheckSum<T>(anyNull(src, dst), roi, maskSize, anchor);
    if (status != PXL_OK || roi.height < 1) return status;
    const ptrdiff_t step = wholeElements<T>(srcStep);
    return ownSumColumns(src - anchor * step, step, dst, wholeElements<float>(dstStep), ptrdiff_t{roi.width} * Elements,
                         roi.height, maskSize);
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/filter/sum_window.inc"
