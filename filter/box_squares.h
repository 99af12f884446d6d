// The box filter for all types and masks: squares of as many rows and columns as a vector has lanes.
//
// Going down, column sums of the window lie side by side, and a square of them is made from top to bottom: each row adds the
// samples that enter and subtracts those that leave. Transposed, a vector holds one column of all rows, and the sums of the
// windows run along with every row in a lane of its own: floats thus follow the same chain of additions row by row, on every
// target. Results are transposed back where they are stored.
//
// Column sums of floats begin anew at rows that the region and the mask tell, and no thread: one that starts between two of
// them goes through the additions since the first.
#pragma once

#include "filter/box_means.h"
#include "filter/squares.h"
#include "frame/vec/convert.h"
#include "window/rows.h"

namespace pxl::PXL_TARGET::filter {

using window::byBytes;

// The rows where column sums of floats begin anew are multiples of this: the height in as many parts, a power of two, as
// leaves them at least 128 rows and four masks high, rounded up to whole groups of every target. Many parts leave the threads
// of a team few additions to go through; few parts leave few sums to be made from scratch.
inline ptrdiff_t restartDistance(int height, int maskHeight) {
    const ptrdiff_t least = maskHeight > 32 ? 4 * ptrdiff_t{maskHeight} : 128;
    int halvings = 0;
    while (least << (halvings + 1) <= height) ++halvings;
    const int unit = 3 + halvings;
    return (height + (ptrdiff_t{1} << unit) - 1) >> unit << 3;
}

// Column sums in lanes of type Sum: modulo 2^16 or 2^32, or floats.
template <class T, class Sum>
class BoxColumns {
public:
    static constexpr int side = squareSide<Sum>;
    const window::Windows<T> w;

    // `margin`: how far behind the results of a row the windows of its last square may reach; there the table has zeros.
    BoxColumns(const window::Windows<T>& windows, ptrdiff_t margin)
        : w(windows), tableColumns(w.outputs + margin + side) {}

    // The table, and column sums for a whole number of vectors.
    ptrdiff_t scratchBytes() const {
        return (tableColumns * side + w.columns + side) * static_cast<ptrdiff_t>(sizeof(Sum));
    }

    void place(void* scratch) {
        columnsOfRows = static_cast<Sum*>(scratch);
        columnSums = columnsOfRows + tableColumns * side;
        for (ptrdiff_t x = w.columns; x < tableColumns; ++x) StoreU(Zero<Sum>(), columnsOfRows + x * side);
    }

    // Makes the column sums of row `from`, and of those the ones of row y. Several rows at a time, along the whole of them.
    void start(ptrdiff_t from, ptrdiff_t y) {
        const Sum bias = static_cast<Sum>(boxBias<T> * static_cast<uint32_t>(w.height));
        for (ptrdiff_t x = 0; x < w.columns; x += side) StoreU(Set<Sum>(bias), columnSums + x);
        addRows<false>(from, w.height);
        if constexpr (std::is_same_v<T, float>) addRows<true>(from + w.height, y - from);
    }

    // Begins a group of rows from y on, of which the first `count` are followed by another.
    void startGroup(ptrdiff_t y, int count) {
        first = y;
        updates = count;
        ready = 0;
        lastSums = LoadU(columnSums + lastSquare());
    }

    // Fills the table as far as `columns`, if the row has so many.
    void makeReady(ptrdiff_t columns) {
        if (columns > w.columns) columns = w.columns;
        if (updates < side || w.columns < side) return makeReadySlowly(columns);
        for (; ready < columns; ready += side) {
            const ptrdiff_t x = ready < lastSquare() ? ready : lastSquare();
            const T* leaving = w.row(first) + x;
            const T* entering = byBytes(leaving, w.height * w.step);
            Vec<Sum> sums = sumsOfFirst(x), square[side];
#pragma GCC unroll 16
            for (int j = 0; j < side; ++j, leaving = byBytes(leaving, w.step), entering = byBytes(entering, w.step)) {
                square[j] = sums;
                sums = sums + (samples(entering) - samples(leaving));
            }
            finishSquare(x, square, sums);
        }
    }

    // Column x of all rows of the group.
    const Sum* table(ptrdiff_t x) const { return columnsOfRows + x * side; }

private:
    // Where columns are no multiple of a square, the last one overlaps the one before.
    ptrdiff_t lastSquare() const { return w.columns < side ? 0 : w.columns - side; }
    PXL_INLINE Vec<Sum> sumsOfFirst(ptrdiff_t x) const { return x < lastSquare() ? LoadU(columnSums + x) : lastSums; }

    PXL_INLINE void finishSquare(ptrdiff_t x, Vec<Sum> (&square)[side], Vec<Sum> sums) {
        StoreU(sums, columnSums + x);
        TransposeSquare(square);
#pragma GCC unroll 16
        for (int i = 0; i < side; ++i) StoreU(square[i], columnsOfRows + (x + i) * side);
    }

    // The same for the last group, and where rows are shorter than a vector.
    void makeReadySlowly(ptrdiff_t columns) {
        const auto load = [this](const T* p) { return w.columns < side ? fewSamples(p, w.columns) : samples(p); };
        for (; ready < columns; ready += side) {
            const ptrdiff_t x = ready < lastSquare() ? ready : lastSquare();
            const T* leaving = w.row(first) + x;
            Vec<Sum> sums = sumsOfFirst(x), square[side];
#pragma GCC unroll 1
            for (int j = 0; j < side; ++j, leaving = byBytes(leaving, w.step)) {
                square[j] = sums;
                if (j < updates) sums = sums + (load(byBytes(leaving, w.height * w.step)) - load(leaving));
            }
            finishSquare(x, square, sums);
        }
    }

    static PXL_INLINE Vec<Sum> samples(const T* p) {
        if constexpr (std::is_same_v<T, Sum>)
            return LoadU(p);
        else
            return LoadPromote<Sum>(p);
    }
    // n of them, zero behind them.
    static PXL_INLINE Vec<Sum> fewSamples(const T* p, ptrdiff_t n) {
        if constexpr (std::is_same_v<T, Sum>)
            return LoadN<side>(p, n);
        else
            return PromoteTo<Sum>(LoadN<side>(p, n));
    }

    // Adds source rows y ... y + rows - 1 to the column sums, if `Moving` less those that leave the windows.
    template <bool Moving>
    void addRows(ptrdiff_t y, ptrdiff_t rows) {
        for (; rows >= 8; rows -= 8, y += 8) addSomeRows<Moving, 8>(w.row(y));
        for (; rows >= 2; rows -= 2, y += 2) addSomeRows<Moving, 2>(w.row(y));
        if (rows > 0) addSomeRows<Moving, 1>(w.row(y));
    }

    template <bool Moving, int Rows>
    [[gnu::noinline]] void addSomeRows(const T* p) {
        const auto add = [&](ptrdiff_t x, const auto& load) __attribute__((always_inline)) {
            Vec<Sum> sum = LoadU(columnSums + x);
#pragma GCC unroll 8
            for (int j = 0; j < Rows; ++j) {
                const T* entering = byBytes(p + x, j * w.step);
                if constexpr (Moving)
                    sum = sum + (load(entering) - load(byBytes(entering, -w.height * w.step)));
                else
                    sum = sum + load(entering);
            }
            StoreU(sum, columnSums + x);
        };
        ptrdiff_t x = 0;
        for (; x + side <= w.columns; x += side) add(x, [](const T* row) { return samples(row); });
        if (x < w.columns) add(x, [n = w.columns - x](const T* row) { return fewSamples(row, n); });
    }

    ptrdiff_t tableColumns;
    Sum* columnsOfRows = nullptr; // column by column
    Sum* columnSums = nullptr;    // of the first row of the group, and of the next one where the table is ready
    // The group under way.
    ptrdiff_t first = 0, ready = 0;
    int updates = 0;
    Vec<Sum> lastSums{}; // column sums of the last square as the group began
};

// The filter with the means of one type and mask: a worker (window/workers.h), which withWorker of box.cpp chooses. Sums of
// windows are vectors of the sums of columns, or WideSums.
template <class T, int Elements, class Mean, class WindowSum = Vec<typename Mean::Sum>>
class BoxSquares {
public:
    using Sum = typename Mean::Sum;
    static constexpr int side = squareSide<Sum>;
    static constexpr int groupRows = side;

    BoxSquares(const window::Windows<T>& windows, const Mean& mean)
        : distance(restarts ? restartDistance(windows.region.height, windows.height) : windows.region.height),
          meanOf(mean), columns(windows, windows.width * Elements) {}

    ptrdiff_t scratchBytes() const { return columns.scratchBytes(); }

    // A few rows more for the thread above cost less than the additions of a whole block.
    ptrdiff_t startNear(ptrdiff_t y) const {
        if (!restarts || y % distance == 0) return y;
        const ptrdiff_t below = distance - y % distance;
        return below <= distance / 8 ? y + below : y;
    }

    void start(char* scratch, ptrdiff_t y) {
        columns.place(scratch);
        anew = y;
        origin = restarts ? y - y % distance : y;
    }

    [[gnu::noinline]] void group(ptrdiff_t y, int rows, bool last, const window::Destination<T>& dst) {
        const ptrdiff_t reach = columns.w.width * Elements, outputs = columns.w.outputs;
        if (y == anew) {
            columns.start(origin, y);
            anew = origin += distance;
        }
        columns.startGroup(y, last ? rows - 1 : rows);
        columns.makeReady(strip + reach);
        WindowSum sum[Elements];
        firstWindow(sum);
        for (ptrdiff_t x = 0; x < outputs; x += strip) {
            const ptrdiff_t n = outputs - x < strip ? outputs - x : strip;
            alignas(vecBytes) T results[side * strip];
            const bool direct = rows == side && n % side == 0 && !viaScratch(dst);
            meansAlong(x, n, sum, direct ? dst.base + x : results, direct ? dst.step : strip * bytes);
            columns.makeReady(x + 2 * strip + reach);
            // The results are read back after that, since loads of what has just been stored in pieces have to wait.
            for (int j = 0; j < rows && !direct; ++j) window::copyRow<T>(results + j * strip, dst.row(j).from(x), n);
        }
    }

private:
    static constexpr bool restarts = std::is_same_v<T, float>;
    static constexpr ptrdiff_t bytes = sizeof(T);
    static constexpr ptrdiff_t strip = 8 * side; // as far as one pass goes: its columns stay in the first-level cache

    // Whether rows of results are put together before they are stored, in order to keep an alpha, or because more rows than a
    // set of the cache has lines lie all in the same set, so that a visit for every square would load their lines again.
    static bool viaScratch(const window::Destination<T>& dst) {
        return dst.keepsAlpha || (side > 8 && dst.step % 4096 == 0);
    }

    void firstWindow(WindowSum (&sum)[Elements]) const {
        const Sum* p = columns.table(0);
        for (auto& s : sum) s = WindowSum(LoadU(p)), p += side;
        for (ptrdiff_t i = 1; i < columns.w.width; ++i)
            for (auto& s : sum) s = s + LoadU(p), p += side;
    }

    // The means of n windows from x on, in whole squares; leaves the sums of the windows behind them.
    void meansAlong(ptrdiff_t x, ptrdiff_t n, WindowSum (&sums)[Elements], T* results, ptrdiff_t step) const {
        WindowSum sum[Elements];
        Vec<Sum> mean[side];
        for (int c = 0; c < Elements; ++c) sum[c] = sums[c];
        for (ptrdiff_t i = 0; i < n; i += side) {
            meansOfSquare(columns.table(x + i), sum, mean);
            constexpr Sum bias = static_cast<Sum>(boxBias<T> * 0x10001);
            StoreSquare(mean, results + i, step, Set<Sum>(bias));
        }
        for (int c = 0; c < Elements; ++c) sums[c] = sum[c];
    }

    PXL_INLINE void meansOfSquare(const Sum* leaving, WindowSum (&sum)[Elements], Vec<Sum> (&mean)[side]) const {
        const Sum* entering = leaving + columns.w.width * Elements * side;
#pragma GCC unroll 16
        for (int i = 0; i < side; ++i) {
            WindowSum& s = sum[i % Elements];
            mean[i] = meanOf(s);
            s = moved(s, LoadU(entering + i * side), LoadU(leaving + i * side));
        }
        if constexpr (Elements == 3) { // the next element is of channel side % 3
            const WindowSum first = sum[0];
            sum[0] = sum[side % 3];
            sum[side % 3] = sum[2 * side % 3];
            sum[2 * side % 3] = first;
        }
    }

    static PXL_INLINE Vec<Sum> moved(Vec<Sum> sum, Vec<Sum> entering, Vec<Sum> leaving) {
        return sum + entering - leaving;
    }
    static PXL_INLINE WideSums moved(const WideSums& sum, Vec<uint32_t> entering, Vec<uint32_t> leaving) {
        return sum + (entering - leaving);
    }

    ptrdiff_t distance;             // of restarts
    ptrdiff_t anew = 0, origin = 0; // the next row with column sums anew, and from which row they follow
    Mean meanOf;
    BoxColumns<T, Sum> columns;
};

} // namespace pxl::PXL_TARGET::filter
