// Bitwise operations and shifts. OpenCV has no shift that keeps the element type and drops bits.
#include "pair.h"

using namespace pxlbench;

namespace {

void addBitwise() {
    auto add = [](const char* row, auto function, auto peer) {
        addPair(
            row, {.src = {CV_8UC1, CV_8UC1}, .dst = {CV_8UC1}, .floor = Floor::Memcpy},
            [=](Frame& f) { return binary(function, f); },
            [=](Frame& f) { peer(f.src[0], f.src[1], f.dst[0], cv::noArray()); });
    };
    add("logical_and_8u_C1", pxliAnd_8u_C1R, cv::bitwise_and);
    add("logical_or_8u_C1", pxliOr_8u_C1R, cv::bitwise_or);
    add("logical_xor_8u_C1", pxliXor_8u_C1R, cv::bitwise_xor);
    addPair(
        "logical_not_8u_C1", {.src = {CV_8UC1}, .dst = {CV_8UC1}, .floor = Floor::Memcpy},
        [](Frame& f) { return unary(pxliNot_8u_C1R, f); }, [](Frame& f) { cv::bitwise_not(f.src[0], f.dst[0]); });
}

void addShifts() {
    auto add = [](const char* row, int type, auto function) {
        addAlone(row, {.src = {type}, .dst = {type}, .floor = Floor::Memcpy},
                 [=](Frame& f) { return withConstant(function, f, 3); });
    };
    add("shift_left_8u_C1", CV_8UC1, pxliLShiftC_8u_C1R);
    add("shift_left_16u_C1", CV_16UC1, pxliLShiftC_16u_C1R);
    add("shift_right_8u_C1", CV_8UC1, pxliRShiftC_8u_C1R);
    add("shift_right_16u_C1", CV_16UC1, pxliRShiftC_16u_C1R);
}

const Rows rows([] {
    addBitwise();
    addShifts();
});

} // namespace
