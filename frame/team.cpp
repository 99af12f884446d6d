#include "frame/team.h"

#include <omp.h>

#include <algorithm>

#include "pxlcore.h"

namespace pxl {

int ownTeamSize(int rows) {
    const int most = std::clamp(rows, 1, int{PXLCORE_MAX_THREADS});
    const int size = std::clamp(int{threads_omp_of_n_pxl}, 1, most);
    return size < 2 || omp_in_parallel() ? 1 : size;
}

} // namespace pxl
