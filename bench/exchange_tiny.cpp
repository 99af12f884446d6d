// Calls on 8 x 8 pixels: argument checks, dispatch and row handling.
#include "pair.h"

using namespace pxlbench;

namespace {

const int kReversed[] = {2, 1, 0};

const Rows rows([] {
    const Operands gray = {.src = {CV_8UC1}, .dst = {CV_8UC1}};
    addTiny("copy_8u_C1", gray, [](Frame& f) { return unary(pxliCopy_8u_C1R, f); });
    addTiny("set_8u_C1", {.dst = {CV_8UC1}},
            [](Frame& f) { return pxliSet_8u_C1R(77, f.out<uint8_t>(), f.outStep(), f.size); });
    addTiny("convert_8u32f_C1", {.src = {CV_8UC1}, .dst = {CV_32FC1}},
            [](Frame& f) { return unary(pxliConvert_8u32f_C1R, f); });
    addTiny("swap_8u_C3", {.src = {CV_8UC3}, .dst = {CV_8UC3}},
            [](Frame& f) { return unary(pxliSwapChannels_8u_C3R, f, kReversed); });
    addTiny("mirror_rows_8u_C1", gray, [](Frame& f) { return unary(pxliMirror_8u_C1R, f, PXL_AXIS_HORIZONTAL); });
    addTiny("mirror_columns_8u_C1", gray, [](Frame& f) { return unary(pxliMirror_8u_C1R, f, PXL_AXIS_VERTICAL); });
    addTiny("transpose_8u_C1", gray, [](Frame& f) { return unary(pxliTranspose_8u_C1R, f); });
});

} // namespace
