// The box filter for integers and masks so high that already the sums of their columns need more than 31 bits: sums of 64
// bits, one row at a time. Most of the time goes into the sums of the first row anyway.
#pragma once

#include "filter/box_means.h"
#include "window/rows.h"

namespace pxl::PXL_TARGET::filter {

using window::byBytes;

// A worker (window/workers.h), which withWorker of box.cpp chooses.
template <class T, int Elements, class Mean>
class BoxTall {
public:
    static constexpr int groupRows = 1;

    BoxTall(const window::Windows<T>& windows, const Mean& mean)
        : w(windows), reach(ptrdiff_t{windows.width} * Elements), meanOf(mean) {}

    ptrdiff_t startNear(ptrdiff_t y) const { return y; }

    // Sums of columns, and zeros as far as the window behind the last one of a row reaches.
    ptrdiff_t scratchBytes() const { return tableColumns() * static_cast<ptrdiff_t>(sizeof(int64_t)); }

    void start(char* scratch, ptrdiff_t y) {
        columnSums = reinterpret_cast<int64_t*>(scratch);
        std::memset(scratch, 0, static_cast<size_t>(scratchBytes()));
        for (ptrdiff_t x = 0; x < w.columns; ++x) columnSums[x] = int64_t{boxBias<T>} * w.height;
        for (ptrdiff_t j = 0; j < w.height; ++j) {
            const T* row = w.row(y + j);
            for (ptrdiff_t x = 0; x < w.columns; ++x) columnSums[x] += load1(row + x);
        }
    }

    [[gnu::noinline]] void group(ptrdiff_t y, int, bool last, const window::Destination<T>& dst) {
        int64_t sum[Elements] = {};
        for (ptrdiff_t x = 0; x < reach; ++x) sum[x % Elements] += columnSums[x];
        for (ptrdiff_t x = 0; x < w.outputs; x += strip) {
            const ptrdiff_t n = w.outputs - x < strip ? w.outputs - x : strip;
            meansAlong(x, n, sum, dst.row(0).from(x));
        }
        if (last) return;
        const T* leaving = w.row(y);
        const T* entering = w.row(y + w.height);
        for (ptrdiff_t x = 0; x < w.columns; ++x) columnSums[x] += load1(entering + x) - load1(leaving + x);
    }

private:
    static constexpr int unit = lanes<uint32_t>;
    static constexpr int strip = 12 * unit; // whole pixels, whatever the elements of one

    ptrdiff_t tableColumns() const { return w.outputs + reach; }

    void meansAlong(ptrdiff_t x, ptrdiff_t n, int64_t (&sum)[Elements], window::DestinationRow<T> d) const {
        double sums[strip] = {};
        for (ptrdiff_t i = 0; i < n; ++i) {
            int64_t& s = sum[i % Elements];
            sums[i] = static_cast<double>(s);
            s += columnSums[x + i + reach] - columnSums[x + i];
        }
        T results[strip];
        for (int i = 0; i < strip; i += unit) {
            uint32_t mean[unit];
            StoreU(meanOf(WideSums(LoadU(sums + i), LoadU(sums + i + unit / 2))), mean);
            for (int j = 0; j < unit; ++j) results[i + j] = static_cast<T>(mean[j] - boxBias<T>);
        }
        window::copyRow<T>(results, d, n);
    }

    window::Windows<T> w;
    ptrdiff_t reach; // of a window, in elements
    Mean meanOf;
    int64_t* columnSums = nullptr;
};

} // namespace pxl::PXL_TARGET::filter
