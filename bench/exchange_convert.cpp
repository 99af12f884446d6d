// Conversion and scaling between element types; the peer of both is Mat::convertTo.
#include "pair.h"

using namespace pxlbench;

namespace {

void addConvert(const char* row, int from, int to, auto ours) {
    addPairAndStrided(row, {.src = {from}, .dst = {to}, .floor = Floor::Memcpy}, ours,
                      [=](Frame& f) { f.src[0].convertTo(f.dst[0], to); });
}

void addConversions() {
    addConvert("convert_8u32f_C1", CV_8U, CV_32F, [](Frame& f) { return unary(pxliConvert_8u32f_C1R, f); });
    addConvert("convert_32f8u_C1", CV_32F, CV_8U,
               [](Frame& f) { return unary(pxliConvert_32f8u_C1R, f, PXL_ROUND_NEAR_EVEN); });
    addConvert("convert_32f16s_C1", CV_32F, CV_16S,
               [](Frame& f) { return unary(pxliConvert_32f16s_C1R, f, PXL_ROUND_NEAR_EVEN); });
    addConvert("convert_32f16u_C1", CV_32F, CV_16U,
               [](Frame& f) { return unary(pxliConvert_32f16u_C1R, f, PXL_ROUND_NEAR_EVEN); });
    addConvert("convert_8u16s_C1", CV_8U, CV_16S, [](Frame& f) { return unary(pxliConvert_8u16s_C1R, f); });
    addConvert("convert_16s8u_C1", CV_16S, CV_8U, [](Frame& f) { return unary(pxliConvert_16s8u_C1R, f); });
    addConvert("convert_16u32f_C1", CV_16U, CV_32F, [](Frame& f) { return unary(pxliConvert_16u32f_C1R, f); });
    addConvert("convert_32s8u_C1", CV_32S, CV_8U, [](Frame& f) { return unary(pxliConvert_32s8u_C1R, f); });
}

// The two sides order their float operations differently, so results may differ by one rounding.
void addScales() {
    addPair(
        "scale_16s8u_C1", {.src = {CV_16S}, .dst = {CV_8U}, .floor = Floor::Memcpy, .tolerance = 1},
        [](Frame& f) { return unary(pxliScale_16s8u_C1R, f, 2); },
        [](Frame& f) { f.src[0].convertTo(f.dst[0], CV_8U, 255. / 65535, 32768 * 255. / 65535); });
    addPair(
        "scale_8u32f_C1", {.src = {CV_8U}, .dst = {CV_32F}, .floor = Floor::Memcpy, .tolerance = 1e-6},
        [](Frame& f) { return unary(pxliScale_8u32f_C1R, f, -1.0F, 1.0F); },
        [](Frame& f) { f.src[0].convertTo(f.dst[0], CV_32F, 2. / 255, -1); });
    addPair(
        "scale_32f8u_C1", {.src = {CV_32F}, .dst = {CV_8U}, .floor = Floor::Memcpy, .tolerance = 1},
        [](Frame& f) { return unary(pxliScale_32f8u_C1R, f, -32.0F, 288.0F); },
        [](Frame& f) { f.src[0].convertTo(f.dst[0], CV_8U, 255. / 320, 32 * 255. / 320); });
}

const Rows rows([] {
    addConversions();
    addScales();
});

} // namespace
