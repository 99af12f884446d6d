// Box filters beside blur, both of which read the pixels around the region. Integer means are truncated on this side
// and rounded on the other; float means are running sums on this side.
#include "pair.h"

#include <opencv2/imgproc.hpp>

using namespace pxlbench;

namespace {

void add(const std::string& layout, int type, auto function) {
    const bool floats = CV_MAT_DEPTH(type) == CV_32F;
    for (int side : {3, 15, 51}) {
        const std::string mask = std::to_string(side) + "x" + std::to_string(side);
        addPairAndTwoThreads(
            "box_" + mask + "_" + layout,
            {.src = {type}, .dst = {type}, .reach = side / 2, .tolerance = floats ? 1e-4 : 1},
            [=](Frame& f) {
                return unary(function, f, ImageSize{side, side}, ImagePoint{side / 2, side / 2});
            },
            [=](Frame& f) {
                cv::blur(f.src[0], f.dst[0], {side, side});
            });
    }
}

const Rows rows([] {
    add("8u_C1", CV_8UC1, pxliFilterBox_8u_C1R);
    add("8u_C3", CV_8UC3, pxliFilterBox_8u_C3R);
    add("8u_C4", CV_8UC4, pxliFilterBox_8u_C4R);
    add("16s_C1", CV_16SC1, pxliFilterBox_16s_C1R);
    add("32f_C1", CV_32FC1, pxliFilterBox_32f_C1R);
});

} // namespace
