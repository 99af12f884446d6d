// Mirror and transpose.
#include "pair.h"

using namespace pxlbench;

namespace {

// All three axes of one layout; OpenCV's flip codes are 0 for rows, 1 for columns, -1 for both.
void addFlips(const std::string& layout, int type, auto function) {
    auto add = [&](const char* name, auto axis, int code) {
        addPair(
            "flip_" + layout + name, {.src = {type}, .dst = {type}, .floor = Floor::Memcpy},
            [=](Frame& f) { return unary(function, f, axis); }, [=](Frame& f) { cv::flip(f.src[0], f.dst[0], code); });
    };
    add("_rows", PXL_AXIS_HORIZONTAL, 0);
    add("_columns", PXL_AXIS_VERTICAL, 1);
    add("_both", PXL_AXIS_BOTH, -1);
}

void addTranspose(const char* row, int type, auto function) {
    addPair(
        row, {.src = {type}, .dst = {type}, .transposed = true}, [=](Frame& f) { return unary(function, f); },
        [](Frame& f) { cv::transpose(f.src[0], f.dst[0]); });
}

const Rows rows([] {
    addFlips("8u_C1", CV_8UC1, pxliMirror_8u_C1R);
    addFlips("8u_C3", CV_8UC3, pxliMirror_8u_C3R);
    addFlips("8u_C4", CV_8UC4, pxliMirror_8u_C4R);
    addFlips("32f_C1", CV_32FC1, pxliMirror_32f_C1R);
    addTranspose("transpose_8u_C1", CV_8UC1, pxliTranspose_8u_C1R);
    addTranspose("transpose_8u_C3", CV_8UC3, pxliTranspose_8u_C3R);
    addTranspose("transpose_8u_C4", CV_8UC4, pxliTranspose_8u_C4R);
    addTranspose("transpose_16u_C1", CV_16UC1, pxliTranspose_16u_C1R);
    // 32s is the transpose of every 4-byte element.
    addTranspose("transpose_32s_C1", CV_32SC1, pxliTranspose_32s_C1R);
});

} // namespace
