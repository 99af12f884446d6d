// Arithmetic between an image and a constant.
#include "pair.h"

using namespace pxlbench;

namespace {

Operands oneOf(int type) { return {.src = {type}, .dst = {type}, .floor = Floor::Memcpy}; }

auto call(auto function, auto value, auto... own) {
    return [=](Frame& f) { return withConstant(function, f, value, own...); };
}

const uint8_t kBytes[] = {10, 128, 250};
const int16_t kShorts[] = {-12000, 77, 30000};
const float kFloats[] = {0.7F, -1.5F, 3.25F};

void addSums() {
    auto add = [](const char* row, int type, const cv::Scalar& value, auto ours) {
        addPair(row, oneOf(type), ours, [=](Frame& f) { cv::add(f.src[0], value, f.dst[0]); });
    };
    auto scalar = [](const auto* values) { return cv::Scalar(values[0], values[1], values[2]); };
    add("addc_8u_C1", CV_8UC1, 77, call(pxliAddC_8u_C1RSfs, 77, 0));
    add("addc_16s_C1", CV_16SC1, 1234, call(pxliAddC_16s_C1RSfs, 1234, 0));
    add("addc_32f_C1", CV_32FC1, 0.7F, call(pxliAddC_32f_C1R, 0.7F));
    add("addc_8u_C3", CV_8UC3, scalar(kBytes), call(pxliAddC_8u_C3RSfs, kBytes, 0));
    add("addc_16s_C3", CV_16SC3, scalar(kShorts), call(pxliAddC_16s_C3RSfs, kShorts, 0));
    add("addc_32f_C3", CV_32FC3, scalar(kFloats), call(pxliAddC_32f_C3R, kFloats));
}

void addProducts() {
    auto add = [](const char* row, int type, double value, auto ours) {
        addPair(row, oneOf(type), ours, [=](Frame& f) { cv::multiply(f.src[0], value, f.dst[0]); });
    };
    add("mulc_8u_C1", CV_8UC1, 3, call(pxliMulC_8u_C1RSfs, 3, 0));
    add("mulc_16s_C1", CV_16SC1, -3, call(pxliMulC_16s_C1RSfs, -3, 0));
    add("mulc_32f_C1", CV_32FC1, 0.7F, call(pxliMulC_32f_C1R, 0.7F));
}

const Rows rows([] {
    addSums();
    addProducts();
});

} // namespace
