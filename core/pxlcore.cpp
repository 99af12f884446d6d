// The companion library: owns the team size of parallel functions, and the texts of the status codes.
#pragma GCC visibility push(default)
#include "pxlcore.h"
#pragma GCC visibility pop

#include <omp.h>
#ifndef _WIN32
#include <pthread.h>
#endif

#include <algorithm>

#include "pxli.h"

int32_t threads_omp_of_n_pxl = std::clamp(omp_get_max_threads(), 1, PXLCORE_MAX_THREADS);

namespace {

int32_t largestTeam = PXLCORE_MAX_THREADS;

#ifndef _WIN32
// The runtime keeps the threads of a team for the next one; in a child made by fork it would wait for threads that only the
// parent has.
void stayOnOneThread() { threads_omp_of_n_pxl = largestTeam = 1; }

[[maybe_unused]] const int registered = pthread_atfork(nullptr, nullptr, stayOnOneThread);
#endif

} // namespace

int32_t pxlcoreSetNumThreads(int32_t n) {
    if (n < 1 || n > largestTeam) return PXL_E_BAD_ARG;
    threads_omp_of_n_pxl = n;
    return PXL_OK;
}

int32_t pxlcoreGetNumThreads(void) { return threads_omp_of_n_pxl; }

namespace {

struct StatusText {
    int32_t status;
    const char* text;
};

constexpr StatusText texts[] = {
    {PXL_OK, "success"},
    {PXL_W_NO_OPERATION, "warning: nothing to do, the mapped region is empty"},
    {PXL_W_SQRT_NEGATIVE, "warning: square root of a negative element"},
    {PXL_W_DIV_BY_ZERO, "warning: at least one element was divided by zero"},
    {PXL_W_NOT_PARALLELOGRAM, "warning: the quadrangle is not a parallelogram"},
    {PXL_W_NO_INTERSECTION, "warning: the source region begins outside the source image"},
    {PXL_W_NO_OVERLAP, "warning: the transformed source does not meet the destination region"},
    {PXL_E_BAD_ARG, "a numeric argument is outside its domain"},
    {PXL_E_SIZE, "a width, height or length is below 1"},
    {PXL_E_RANGE, "a lower bound is above its upper bound"},
    {PXL_E_NULL_PTR, "a required pointer is null"},
    {PXL_E_MEM_ALLOC, "memory could not be allocated"},
    {PXL_E_DIV_BY_ZERO, "a constant divisor is zero"},
    {PXL_E_OUT_OF_RANGE, "an argument is outside its allowed range"},
    {PXL_E_SCALE_RANGE, "vMax - vMin is not above 0"},
    {PXL_E_STEP, "a row step is too small"},
    {PXL_E_FFT_ORDER, "a transform order is outside 0..30"},
    {PXL_E_FFT_FLAG, "unknown normalisation flag"},
    {PXL_E_CONTEXT, "the prepared object is of another kind"},
    {PXL_E_THRESHOLD, "the lower threshold is above the upper one"},
    {PXL_E_MOMENT_ZERO, "the zeroth moment is zero"},
    {PXL_E_MIRROR_AXIS, "the axis is not 0, 1 or 2"},
    {PXL_E_INTERPOLATION, "the interpolation is not accepted"},
    {PXL_E_RESIZE_FACTOR, "a resize factor is outside its range"},
    {PXL_E_RESAMPLE_LENGTH, "a row-resampling length is below 1"},
    {PXL_E_RESAMPLE_INDEX, "a row-resampling start is outside its row"},
    {PXL_E_RESAMPLE_SIZE, "a row-resampling size is below 1"},
    {PXL_E_MASK_SIZE, "the mask or kernel size is not accepted"},
    {PXL_E_ANCHOR, "the anchor lies outside the mask"},
    {PXL_E_EPS, "the tolerance is negative"},
    {PXL_E_STEP_BORDER, "a step is too small for the region and its border"},
    {PXL_E_CHANNEL, "the channel index is out of range"},
    {PXL_E_ALPHA_TYPE, "unknown alpha-compositing operation"},
    {PXL_E_DIVISOR, "the integer divisor is 0"},
    {PXL_E_CHANNEL_COUNT, "the channel count is not 1, 3 or 4"},
    {PXL_E_DEGENERATE_TRANSFORM, "the transform is singular or degenerate"},
    {PXL_E_WARP_SIZE, "the source region of the warp is too small"},
    {PXL_E_QUAD, "the quadrangle is degenerate"},
    {PXL_E_ZERO_MASK, "the structuring element is empty"},
    {PXL_E_CHANNEL_ORDER, "an entry of the channel order is out of range"},
    {PXL_E_LUT_LEVELS, "a lookup table has fewer than 2 levels"},
    {PXL_E_HIST_LEVELS, "a histogram has fewer than 2 levels"},
    {PXL_E_STEP_ALIGN, "a step is not a multiple of 4 bytes"},
    {PXL_E_NOISE, "the noise level is outside [0, 1)"},
    {PXL_E_RESIZE_TOO_SMALL, "the destination would be smaller than half a pixel"},
    {PXL_E_WEIGHT, "the centre weight is below 1"},
    {PXL_E_DECIMATE_FRACTION, "unknown decimation fraction"},
    {PXL_E_ROUND_MODE, "the rounding mode is not 0, 1 or 2"},
    {PXL_E_NOT_SUPPORTED_MODE, "the mode is not supported by this function"},
};

} // namespace

const char* pxlcoreGetStatusText(int32_t status) {
    for (const StatusText& entry : texts)
        if (entry.status == status) return entry.text;
    return status > 0 ? "unknown warning" : "unknown status";
}
