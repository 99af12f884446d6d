/* What a first program does: allocate, fill, copy, look, free. */
#include <stdio.h>
#include <string.h>

#include "pxlcore.h"
#include "pxli.h"

int main(void) {
    const ImageSize size = {37, 11};
    int srcStep, dstStep;
    uint8_t* src = pxliMalloc_8u_C3(size.width, size.height, &srcStep);
    uint8_t* dst = pxliMalloc_8u_C3(size.width, size.height, &dstStep);
    const uint8_t colour[3] = {1, 2, 3};
    if (!src || !dst) return 1;
    if (pxliSet_8u_C3R(colour, src, srcStep, size) != PXL_OK) return 2;
    if (pxliCopy_8u_C3R(src, srcStep, dst, dstStep, size) != PXL_OK) return 3;
    if (memcmp(dst + 10 * dstStep + 36 * 3, colour, 3) != 0) return 4;
    const PxlStatus refused = pxliCopy_8u_C3R(src, srcStep, NULL, dstStep, size);
    if (refused != PXL_E_NULL_PTR) return 5;
    if (pxlcoreSetNumThreads(2) != PXL_OK || pxlcoreGetNumThreads() != 2 || threads_omp_of_n_pxl != 2) return 6;
    if (pxliGetLibVersion()->major != PXL_VERSION_MAJOR || pxliGetLibVersion()->minor != PXL_VERSION_MINOR) return 7;
    printf("%s: %s\n", pxliGetLibVersion()->libraryName, pxlcoreGetStatusText(refused));
    pxliFree(src);
    pxliFree(dst);
    return 0;
}
