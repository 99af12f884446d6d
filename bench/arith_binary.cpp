// Arithmetic between two images. Sub and Div take the operand on the right of the sign first, so the peers swap.
#include "pair.h"

#include <opencv2/imgproc.hpp>

using namespace pxlbench;

namespace {

Operands twoOf(int type) { return {.src = {type, type}, .dst = {type}, .floor = Floor::Memcpy}; }

// Divisors of zero give a warning and are not what a caller divides by.
Operands quotientOf(int type, double tolerance = 0) {
    Operands operands = twoOf(type);
    operands.nonzero = true;
    operands.tolerance = tolerance;
    return operands;
}

// A call with own arguments, such as the scale factor, bound to its end.
auto call(auto function, auto... own) {
    return [=](Frame& f) { return binary(function, f, own...); };
}

void addSums() {
    auto add = [](const char* row, int type, auto ours) {
        addPair(row, twoOf(type), ours, [](Frame& f) { cv::add(f.src[0], f.src[1], f.dst[0]); });
    };
    add("add_8u_C1", CV_8UC1, call(pxliAdd_8u_C1RSfs, 0));
    add("add_16u_C1", CV_16UC1, call(pxliAdd_16u_C1RSfs, 0));
    add("add_16s_C1", CV_16SC1, call(pxliAdd_16s_C1RSfs, 0));
    add("add_32f_C1", CV_32FC1, call(pxliAdd_32f_C1R));
}

// The mean of the two images.
void addMeans() {
    auto add = [](const char* row, int type, auto ours) {
        addPair(row, twoOf(type), ours, [](Frame& f) { cv::addWeighted(f.src[0], 0.5, f.src[1], 0.5, 0, f.dst[0]); });
    };
    add("add_8u_C1_sf1", CV_8UC1, call(pxliAdd_8u_C1RSfs, 1));
    add("add_16u_C1_sf1", CV_16UC1, call(pxliAdd_16u_C1RSfs, 1));
    add("add_16s_C1_sf1", CV_16SC1, call(pxliAdd_16s_C1RSfs, 1));
}

void addDifferences() {
    auto add = [](const char* row, int type, auto ours) {
        addPair(row, twoOf(type), ours, [](Frame& f) { cv::subtract(f.src[1], f.src[0], f.dst[0]); });
    };
    add("sub_8u_C1", CV_8UC1, call(pxliSub_8u_C1RSfs, 0));
    add("sub_16u_C1", CV_16UC1, call(pxliSub_16u_C1RSfs, 0));
    add("sub_16s_C1", CV_16SC1, call(pxliSub_16s_C1RSfs, 0));
    add("sub_32f_C1", CV_32FC1, call(pxliSub_32f_C1R));
}

// The peer multiplies in single precision, which is exact up to 24 bits; larger products saturate here.
void addProducts() {
    auto add = [](const char* row, int type, double scale, auto ours) {
        addPair(row, twoOf(type), ours, [=](Frame& f) { cv::multiply(f.src[0], f.src[1], f.dst[0], scale); });
    };
    add("mul_8u_C1", CV_8UC1, 1, call(pxliMul_8u_C1RSfs, 0));
    add("mul_16s_C1", CV_16SC1, 1, call(pxliMul_16s_C1RSfs, 0));
    add("mul_32f_C1", CV_32FC1, 1, call(pxliMul_32f_C1R));
    add("mul_8u_C1_sf8", CV_8UC1, 1. / 256, call(pxliMul_8u_C1RSfs, 8));
    add("mul_16s_C1_sf8", CV_16SC1, 1. / 256, call(pxliMul_16s_C1RSfs, 8));
    addAlone("mul_scale_8u_C1", twoOf(CV_8UC1), call(pxliMulScale_8u_C1R));
}

void addQuotients() {
    auto add = [](const char* row, int type, double tolerance, auto ours) {
        addPair(row, quotientOf(type, tolerance), ours, [](Frame& f) { cv::divide(f.src[1], f.src[0], f.dst[0]); });
    };
    add("div_8u_C1", CV_8UC1, 0, call(pxliDiv_8u_C1RSfs, 0));
    // 16-bit quotients that are all but a tie count as one.
    add("div_16s_C1", CV_16SC1, 1, call(pxliDiv_16s_C1RSfs, 0));
    add("div_16u_C1", CV_16UC1, 1, call(pxliDiv_16u_C1RSfs, 0));
    add("div_32f_C1", CV_32FC1, 0, call(pxliDiv_32f_C1R));
    addAlone("div_round_8u_C1", quotientOf(CV_8UC1), call(pxliDiv_Round_8u_C1RSfs, PXL_ROUND_NEAR_EVEN, 0));
    addAlone("div_round_16s_C1", quotientOf(CV_16SC1), call(pxliDiv_Round_16s_C1RSfs, PXL_ROUND_NEAR_EVEN, 0));
}

void addComplex() {
    addAlone("complex_add_16sc_C1", twoOf(CV_16SC2), call(pxliAdd_16sc_C1RSfs, 0));
    addAlone("complex_mul_16sc_C1_sf15", twoOf(CV_16SC2), call(pxliMul_16sc_C1RSfs, 15));
    addAlone("complex_div_16sc_C1", quotientOf(CV_16SC2), call(pxliDiv_16sc_C1RSfs, 0));
    addAlone("complex_add_32fc_C1", twoOf(CV_32FC2), call(pxliAdd_32fc_C1R));
    addAlone("complex_mul_32fc_C1", twoOf(CV_32FC2), call(pxliMul_32fc_C1R));
    addAlone("complex_div_32fc_C1", quotientOf(CV_32FC2), call(pxliDiv_32fc_C1R));
}

const Rows rows([] {
    addSums();
    addMeans();
    addDifferences();
    addProducts();
    addQuotients();
    addComplex();
});

} // namespace
