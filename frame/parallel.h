// Work split over a team of OpenMP threads.
//
// All arguments are checked before and all results are written by exactly one thread, so nothing is locked.
#pragma once

#include <omp.h>

#include <cstddef>
#include <cstdint>

#include "frame/memory.h"
#include "frame/team.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {

// Equal strips of rows, the remainder to the last: strip(firstRow, rows). Small regions stay whole.
template <class Strip>
inline void forEachStrip(ImageSize roi, const Strip& strip) {
    const int team = roi.width < 64 || roi.height < 64 ? 1 : ownTeamSize(roi.height);
    if (team == 1) return strip(0, roi.height);
#pragma omp parallel num_threads(team)
    {
        const int threads = omp_get_num_threads();
        const int own = omp_get_thread_num();
        const int rows = roi.height / threads;
        const int first = own * rows;
        const int count = own == threads - 1 ? roi.height - first : rows;
        if (count > 0) strip(first, count);
    }
}

// One contiguous block of rows per thread, each with a slice of scratch: block(firstRow, endRow, slice). The slices come from
// one allocation for the whole team; where it fails, nothing is run and PXL_E_MEM_ALLOC is returned.
template <class Block>
inline PxlStatus forEachBlock(ImageSize roi, bool worthForking, ptrdiff_t sliceBytes, const Block& block) {
    const int team = worthForking ? ownTeamSize(roi.height) : 1;
    const ptrdiff_t slice = (sliceBytes + 15) & ~ptrdiff_t{15};
    char* scratch = nullptr;
    if (team == 1) {
        scratch = static_cast<char*>(ownMallocLarge(slice));
        if (scratch) block(0, roi.height, scratch);
    } else {
#pragma omp parallel num_threads(team)
        {
            const int64_t threads = omp_get_num_threads();
#pragma omp single
            scratch = static_cast<char*>(ownMallocLarge(slice * threads));
            const int64_t own = omp_get_thread_num();
            const int first = static_cast<int>(roi.height * own / threads);
            const int end = static_cast<int>(roi.height * (own + 1) / threads);
            if (scratch && first < end) block(first, end, scratch + own * slice);
        }
    }
    const PxlStatus status = scratch ? PXL_OK : PXL_E_MEM_ALLOC;
    ownFree(scratch);
    return status;
}

} // namespace pxl::PXL_TARGET
