// Border extension by a margin of 16 pixels on every side.
#include "pair.h"

using namespace pxlbench;

namespace {

constexpr int kMargin = 16;

void extend(Frame& f, int kind, const cv::Scalar& value = {}) {
    cv::copyMakeBorder(f.src[0], f.dst[0], kMargin, kMargin, kMargin, kMargin, kind | cv::BORDER_ISOLATED, value);
}

template <class T, class... Value>
void addConst(const char* row, int type, const cv::Scalar& colour,
              PxlStatus (*function)(const T*, int, ImageSize, T*, int, ImageSize, int, int, Value...), auto value) {
    addPair(
        row, {.src = {type}, .dst = {type}, .margin = kMargin},
        [=](Frame& f) {
            return function(f.in<T>(), f.inStep(), f.size, f.out<T>(), f.outStep(), f.outSize(), kMargin, kMargin,
                            value);
        },
        [=](Frame& f) { extend(f, cv::BORDER_CONSTANT, colour); });
}

template <class T>
void addReplicate(const char* row, int type,
                  PxlStatus (*function)(const T*, int, ImageSize, T*, int, ImageSize, int, int)) {
    addPair(
        row, {.src = {type}, .dst = {type}, .margin = kMargin},
        [=](Frame& f) {
            return function(f.in<T>(), f.inStep(), f.size, f.out<T>(), f.outStep(), f.outSize(), kMargin, kMargin);
        },
        [](Frame& f) { extend(f, cv::BORDER_REPLICATE); });
}

const uint8_t kColour[] = {10, 128, 250};

const Rows rows([] {
    addConst("border_const_8u_C1", CV_8UC1, 77, pxliCopyConstBorder_8u_C1R, 77);
    addConst("border_const_8u_C3", CV_8UC3, {10, 128, 250}, pxliCopyConstBorder_8u_C3R, kColour);
    addConst("border_const_32s_C1", CV_32SC1, -70000, pxliCopyConstBorder_32s_C1R, -70000);
    addReplicate("border_replicate_8u_C1", CV_8UC1, pxliCopyReplicateBorder_8u_C1R);
    addReplicate("border_replicate_8u_C3", CV_8UC3, pxliCopyReplicateBorder_8u_C3R);
    addReplicate("border_replicate_32s_C1", CV_32SC1, pxliCopyReplicateBorder_32s_C1R);
});

} // namespace
