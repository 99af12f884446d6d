// Filters that carry something from row to row, such as sums of columns: workers with scratch memory, run over a region
// out of place, by a team, or in place.
//
// A worker makes the results of a few rows at a time and goes downwards:
//     groupRows                   the most rows of a group
//     scratchBytes()              what it needs
//     startNear(y)                where a run may as well start as at row y: there or somewhat below
//     start(scratch, y)           before a run of groups, of which the first begins with row y
//     group(y, rows, last, dst)   the results of rows y ... y + rows - 1, to dst, which begins with row y; only the last
//                                 group may have fewer than groupRows rows
// It may read the source rows of the windows of its group and, unless that is the last, of the row behind it; where a run
// starts, also those of the rows above.
#pragma once

#include "frame/parallel.h"
#include "window/rows.h"

namespace pxl::PXL_TARGET::window {

inline ptrdiff_t wholeLines(ptrdiff_t bytes) { return (bytes + 63) & ~ptrdiff_t{63}; }

// Calls finished(y) after each group, whose results went to resultsAt(its first row), with the first row behind it.
template <class Worker, class ResultsAt, class Finished>
inline void runGroups(Worker& worker, ptrdiff_t first, ptrdiff_t end, const ResultsAt& resultsAt,
                      const Finished& finished) {
    for (ptrdiff_t y = first; y < end; y += Worker::groupRows) {
        const int rows = end - y < Worker::groupRows ? static_cast<int>(end - y) : Worker::groupRows;
        worker.group(y, rows, y + rows == end, resultsAt(y));
        finished(y + rows);
    }
}

// Out of place: one block of whole groups, and one copy of the worker, per thread.
template <class Worker, class T>
inline PxlStatus runByTeam(const Worker& worker, const Windows<T>& windows, const Destination<T>& dst,
                           bool worthForking) {
    const ptrdiff_t slice = wholeLines(worker.scratchBytes());
    const int height = windows.region.height;
    const int groups = (height - 1) / Worker::groupRows + 1;
    const auto rowOf = [&](int group) {
        if (group == groups) return ptrdiff_t{height};
        const ptrdiff_t y = worker.startNear(ptrdiff_t{group} * Worker::groupRows);
        return y < height ? y : height;
    };
    return forEachBlock({windows.region.width, groups}, worthForking, slice, [&](int first, int end, char* scratch) {
        const ptrdiff_t y = rowOf(first), endRow = rowOf(end);
        if (y == endRow) return;
        auto own = worker;
        own.start(scratch, y);
        runGroups(
            own, y, endRow, [&](ptrdiff_t row) { return dst.from(row); }, [](ptrdiff_t) {});
    });
}

// ---- in place -------------------------------------------------------------------------------------------------------

// Results that wait in a ring of rows, each group of them in one piece, until no later window needs the source rows that
// they replace. Alpha elements have no meaning there.
template <class T>
class WaitingRows {
public:
    WaitingRows(const Windows<T>& windows, const Destination<T>& image, int group)
        : image_(image), above_(windows.above), outputs_(windows.outputs), height_(windows.region.height),
          slots_(((above_ < height_ ? above_ : height_) + 2 * group - 1) / group * group),
          step_(((outputs_ + 31) & ~ptrdiff_t{31}) * static_cast<ptrdiff_t>(sizeof(T))) {}

    ptrdiff_t bytes() const { return slots_ * step_; }
    void place(char* memory) { ring_ = memory; }

    Destination<T> from(ptrdiff_t y) const { return {reinterpret_cast<T*>(ring_ + y % slots_ * step_), step_, false}; }

    // Writes back what may be, once all rows above `finished` have their results.
    void writeBack(ptrdiff_t finished) {
        const ptrdiff_t end = finished == height_ ? height_ : finished - above_; // windows to come begin with this row
        for (; written_ < end; ++written_) copyRow<T>(from(written_).base, image_.row(written_), outputs_);
    }

private:
    Destination<T> image_;
    ptrdiff_t above_, outputs_, height_, slots_, step_;
    char* ring_ = nullptr;
    ptrdiff_t written_ = 0;
};

// The source of the worker is the image itself; its anchors are in their windows.
template <class Worker, class T>
inline PxlStatus runInPlace(Worker worker, const Windows<T>& windows, const Destination<T>& image) {
    WaitingRows<T> waiting(windows, image, Worker::groupRows);
    const ptrdiff_t ownBytes = wholeLines(worker.scratchBytes());
    const Scratch<char> scratch(ownBytes + waiting.bytes());
    if (!scratch) return PXL_E_MEM_ALLOC;
    waiting.place(scratch.get() + ownBytes);
    worker.start(scratch.get(), 0);
    runGroups(
        worker, 0, windows.region.height, [&](ptrdiff_t y) { return waiting.from(y); },
        [&](ptrdiff_t finished) { waiting.writeBack(finished); });
    return PXL_OK;
}

} // namespace pxl::PXL_TARGET::window
