// The box filter: dst(x, y) = mean of the samples (x - anchor.x + i, y - anchor.y + j) of the mask.
//
// Sums of integers are exact modulo 2^32, so they may be formed in any order; how a sum becomes a mean differs on purpose: 8u
// and 16s truncate, 16u rounds halves up. A 1x1 mask copies. In place, results wait in a ring of rows until no later window
// needs the source rows that they replace.
#include "filter/box_means.h"
#include "filter/box_squares.h"
#include "frame/checks.h"
#include "frame/parallel.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {
namespace {

template <class... Step>
PxlStatus ownCheckBox(bool null, ImageSize roi, ImageSize mask, ImagePoint anchor, Step... steps) {
    if (null) return PXL_E_NULL_PTR;
    if (anyStepBelow1(steps...)) return PXL_E_STEP;
    if (isEmpty(roi)) return PXL_E_SIZE;
    if (isEmpty(mask)) return PXL_E_MASK_SIZE;
    const bool inside = anchor.x >= 0 && anchor.y >= 0 && anchor.x < mask.width && anchor.y < mask.height;
    return inside ? PXL_OK : PXL_E_ANCHOR;
}

// Steps count whole elements.
template <class T>
ptrdiff_t elementStep(int step) {
    return step / static_cast<int>(sizeof(T));
}

template <class T, int Elements, int Channels>
BoxWindow<T> ownWindow(const T* src, int srcStep, ImageSize roi, ImageSize mask, ImagePoint anchor) {
    const ptrdiff_t step = elementStep<T>(srcStep);
    return {.top = src - anchor.y * step - ptrdiff_t{anchor.x} * Elements,
            .step = step,
            .outputs = ptrdiff_t{roi.width} * Elements,
            .columns = (ptrdiff_t{roi.width} + mask.width - 1) * Elements - (Elements - Channels),
            .width = mask.width,
            .height = mask.height,
            .keepAlpha = Channels < Elements};
}

// ---- the worker of a call ------------------------------------------------------------------------------------------------------

template <int Elements>
BoxFactor ownFactor(ImageSize mask, int32_t area) {
    if (Elements == 3 && mask.width == 3 && mask.height == 3) return {29128, 18};
    return BoxFactor(area);
}

// Calls run(worker) with the worker for the type, the layout and the mask.
template <class T, int Elements, int Channels, class Run>
PxlStatus ownWithWorker(const BoxWindow<T>& window, ImageSize mask, const Run& run) {
    const int32_t area = static_cast<int32_t>(static_cast<uint32_t>(mask.width) * static_cast<uint32_t>(mask.height));
    const float reciprocal = 1.0f / static_cast<float>(area);
    const auto squares = [&](const auto& mean) {
        return run(BoxSquares<T, Elements, std::decay_t<decltype(mean)>>(window, mean));
    };
    if constexpr (std::is_same_v<T, float>) return squares(BoxMean32f(reciprocal));
    if constexpr (std::is_same_v<T, int16_t> && Channels != 4) return squares(BoxMeanFloat<T>(reciprocal));
    if constexpr (std::is_same_v<T, uint16_t> || (std::is_same_v<T, int16_t> && Channels == 4)) {
        if (area > 0 && area <= boxPositiveArea) return squares(BoxMeanExact<T>(reciprocal));
        return squares(BoxMeanDouble<T>(reciprocal));
    }
    if constexpr (std::is_same_v<T, uint8_t>) {
        if (area > boxIntegerArea) return squares(BoxMeanFloat<T>(reciprocal));
        const BoxFactor factor = ownFactor<Elements>(mask, area);
        if (area <= boxNarrowArea) return squares(BoxMeanNarrow(factor));
        return squares(BoxMeanInteger(factor));
    }
}

// Calls finished(y) after each group of rows, whose results are at rowOf(y).
template <class Worker, class RowOf, class Finished>
void ownRunRows(Worker& worker, int first, int end, ptrdiff_t dstStep, const RowOf& rowOf, const Finished& finished) {
    for (int y = first; y < end; y += Worker::groupRows) {
        const int rows = end - y < Worker::groupRows ? end - y : Worker::groupRows;
        worker.group(y, rows, y + rows == end, rowOf(y), dstStep);
        finished(y + rows);
    }
}

// ---- out of place --------------------------------------------------------------------------------------------------------------

// 16u never runs in parallel, four channels always try to.
template <class T, int Channels>
bool ownWorthForking(ImageSize roi) {
    if (std::is_same_v<T, uint16_t>) return false;
    return Channels == 4 || int64_t{roi.width} * roi.height > 4096;
}

template <class T, int Elements, int Channels>
PxlStatus FilterBox(const T* src, int srcStep, T* dst, int dstStep, ImageSize roi, ImageSize mask, ImagePoint anchor) {
    const PxlStatus status = ownCheckBox(anyNull(src, dst), roi, mask, anchor, srcStep, dstStep);
    if (status != PXL_OK) return status;
    const BoxWindow<T> window = ownWindow<T, Elements, Channels>(src, srcStep, roi, mask, anchor);
    const ptrdiff_t step = elementStep<T>(dstStep);
    if (mask.width == 1 && mask.height == 1) {
        for (int y = 0; y < roi.height; ++y)
            copyKeeping(window.row(y), dst + y * step, Channels < Elements ? window.columns : window.outputs,
                        window.keepAlpha);
        return PXL_OK;
    }
    return ownWithWorker<T, Elements, Channels>(window, mask, [&](const auto& worker) {
        const ptrdiff_t slice = (worker.scratchBytes() + 63) & ~ptrdiff_t{63};
        return forEachBlock(roi, ownWorthForking<T, Channels>(roi), slice, [&](int first, int end, char* scratch) {
            auto own = worker;
            own.start(scratch, first);
            ownRunRows(
                own, first, end, step, [&](int y) { return dst + y * step; }, [](int) {});
        });
    });
}

// ---- in place ------------------------------------------------------------------------------------------------------------------

// Results of rows that later windows still need, each group of rows in one piece.
template <class T, class Worker>
PxlStatus ownInPlace(Worker worker, T* image, ptrdiff_t step, ptrdiff_t outputs, bool keepAlpha, int height,
                     int anchorY) {
    constexpr int group = Worker::groupRows;
    const int waiting = anchorY < height ? anchorY : height;
    const ptrdiff_t slots = (ptrdiff_t{waiting} + 2 * group - 1) / group * group;
    const ptrdiff_t slotStep = (outputs + 31) & ~ptrdiff_t{31};
    const ptrdiff_t scratchBytes = (worker.scratchBytes() + 63) & ~ptrdiff_t{63};
    const Scratch<char> scratch(scratchBytes + slots * slotStep * static_cast<ptrdiff_t>(sizeof(T)));
    if (!scratch) return PXL_E_MEM_ALLOC;
    T* const ring = reinterpret_cast<T*>(scratch.get() + scratchBytes);
    int written = 0;
    const auto slot = [&](int y) { return ring + y % slots * slotStep; };
    const auto writeBack = [&](int finished) {
        const int free = finished == height ? height : finished - anchorY; // no window needs source rows above this one
        for (; written < free; ++written) copyKeeping(slot(written), image + written * step, outputs, keepAlpha);
    };
    worker.start(scratch.get(), 0);
    ownRunRows(worker, 0, height, slotStep, slot, writeBack);
    return PXL_OK;
}

template <class T, int Elements, int Channels>
PxlStatus FilterBoxInPlace(T* srcDst, int srcDstStep, ImageSize roi, ImageSize mask, ImagePoint anchor) {
    const PxlStatus status = ownCheckBox(anyNull(srcDst), roi, mask, anchor, srcDstStep);
    if (status != PXL_OK) return status;
    if (mask.width == 1 && mask.height == 1) return PXL_OK;
    BoxWindow<T> window = ownWindow<T, Elements, Channels>(srcDst, srcDstStep, roi, mask, anchor);
    window.keepAlpha = false; // the alpha stays where it is, so the ring has none
    return ownWithWorker<T, Elements, Channels>(window, mask, [&](const auto& worker) {
        return ownInPlace(worker, srcDst, window.step, window.outputs, Channels < Elements, roi.height, anchor.y);
    });
}

} // namespace
} // namespace pxl::PXL_TARGET

#include "members/filter/box.inc"
