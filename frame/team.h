// The team that a parallel call may open.
#pragma once

namespace pxl {

// threads_omp_of_n_pxl of the companion library, read afresh, within 1..PXLCORE_MAX_THREADS and no more than one thread per row.
// 1 inside a parallel region of the caller's: a region opened there would only compete with it.
int ownTeamSize(int rows);

} // namespace pxl
