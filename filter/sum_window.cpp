// Sums over windows of one row or one column, as running sums in single precision: a sum starts as the samples of the first
// window, added one by one, and goes on by adding the difference of the sample that enters and the one that leaves, which is
// taken in integers. Sums beyond 2^24 round at every step, so the order of these additions belongs to the result.
#include "filter/squares.h"
#include "frame/memory.h"
#include "frame/vec/convert.h"
#include "window/checks.h"
#include "window/geometry.h"

namespace pxl::PXL_TARGET::filter {
namespace {

// Only the 16u forms check the region.
template <class T>
PXL_INLINE PxlStatus checkSum(const Image<const T, anyElements>& src, const Image<float, anyElements>& dst,
                              ImageSize roi, ImageSize mask, ImagePoint anchor) {
    return check(null(src, dst), refuse(std::is_same_v<T, uint16_t> && isEmpty(roi), PXL_E_SIZE), window::mask(mask),
                 window::anchor(anchor, mask));
}

// What the window gains in front and loses behind.
template <class T>
PXL_INLINE Vec<int32_t> differences(const T* entering, const T* leaving) {
    return LoadPromote<int32_t>(entering) - LoadPromote<int32_t>(leaving);
}

// ---- rows ----------------------------------------------------------------------------------------------------------

// Up to squareSide<float> rows at a time, each in a lane of its own. `width` and `reach` (of the window) are in elements.
template <class T, int Elements>
struct RowGroup {
    static constexpr int side = squareSide<float>;
    const T* src; // the first sample of the first window
    ptrdiff_t srcStep;
    float* dst;
    ptrdiff_t dstStep, width, reach;
    int firstChannel = 0;                             // of the next element
    alignas(vecBytes) float sum[Elements][side] = {}; // of every row

    const T* sourceRow(int j) const { return window::byBytes(src, j * srcStep); }

    void run(int rows) {
        for (ptrdiff_t i = 0; i < reach; i += Elements)
            for (int j = 0; j < rows; ++j)
                for (int c = 0; c < Elements; ++c) sum[c][j] += static_cast<float>(load1(sourceRow(j) + i + c));
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
        for (int j = 0; j < side; ++j) gain[j] = differences(sourceRow(j) + x + reach, sourceRow(j) + x);
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
        StoreSquare(out, dst + x, dstStep, Zero<float>());
    }

    void restOfRow(ptrdiff_t x, int j) {
        const T* s = sourceRow(j);
        for (int channel = firstChannel; x < width; ++x, channel = (channel + 1) % Elements) {
            float& now = sum[channel][j];
            store1(window::byBytes(dst, j * dstStep) + x, now);
            if (x + Elements < width) now += static_cast<float>(load1(s + x + reach) - load1(s + x));
        }
    }
};

template <class T, int Elements>
PxlStatus SumWindowRow(Image<const T, Elements> src, Image<float, Elements> dst, ImageSize roi, int maskSize,
                       int anchor) {
    const ImageSize mask{maskSize, 1};
    const ImagePoint place{anchor, 0};
    if (const PxlStatus status = checkSum<T>(src, dst, roi, mask, place)) return status;
    if (isEmpty(roi)) return PXL_OK;
    const window::Windows<T> windows(window::wholeSteps(src), false, roi, window::maskShape(mask, place));
    const Image<float, Elements> to = window::wholeSteps(dst);
    // Steps are not checked: rows of results that overlap are written one after the other.
    const ptrdiff_t rowBytes = roi.width * to.pixelBytes;
    const bool apart = to.step >= rowBytes || -to.step >= rowBytes;
    const int together = apart ? squareSide<float> : 1;
    for (ptrdiff_t y = 0; y < roi.height; y += together) {
        RowGroup<T, Elements> group{.src = windows.row(y),
                                    .srcStep = windows.step,
                                    .dst = to.at(0, y),
                                    .dstStep = to.step,
                                    .width = windows.outputs,
                                    .reach = ptrdiff_t{maskSize} * Elements};
        group.run(roi.height - y < together ? static_cast<int>(roi.height - y) : together);
    }
    return PXL_OK;
}

// ---- columns -------------------------------------------------------------------------------------------------------

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

template <class T>
[[gnu::noinline]] PxlStatus sumColumns(const Image<const T, anyElements>& src, const Image<float, anyElements>& dst,
                                       ImageSize roi, int maskSize, int anchor) {
    const ImageSize mask{1, maskSize};
    const ImagePoint place{0, anchor};
    if (const PxlStatus status = checkSum<T>(src, dst, roi, mask, place)) return status;
    if (roi.height < 1) return PXL_OK;
    const window::Windows<T> windows(window::wholeSteps(src), false, roi, window::maskShape(mask, place));
    const Image<float, anyElements> to = window::wholeSteps(dst);
    const ptrdiff_t width = windows.outputs;
    const Scratch<float> scratch(width);
    if (!scratch) return PXL_E_MEM_ALLOC;
    float* const sums = scratch.get();
    std::memset(sums, 0, static_cast<size_t>(width) * sizeof(float));
    for (int j = 0; j < maskSize; ++j) addRow(width, windows.row(j), sums);
    for (int y = 0; y + 1 < roi.height; ++y)
        storeAndMove(width, windows.row(ptrdiff_t{y} + maskSize), windows.row(y), sums, to.at(0, y));
    std::memcpy(to.at(0, roi.height - 1), sums, static_cast<size_t>(width) * sizeof(float));
    return PXL_OK;
}

template <class T, int Elements>
PxlStatus SumWindowColumn(Image<const T, Elements> src, Image<float, Elements> dst, ImageSize roi, int maskSize,
                          int anchor) {
    if (std::is_same_v<T, int16_t> && Elements == 3 && isEmpty(roi)) return PXL_E_SIZE; // this member alone, and first
    return sumColumns<T>(src, dst, roi, maskSize, anchor);
}

} // namespace
} // namespace pxl::PXL_TARGET::filter

#include "members/filter/sum_window.inc"
