// Copy and set, plain and masked.
#include "pair.h"

using namespace pxlbench;

namespace {

void addCopies() {
    auto add = [](const char* row, int type, auto function) {
        addPairAndStrided(
            row, {.src = {type}, .dst = {type}, .floor = Floor::Memcpy}, [=](Frame& f) { return unary(function, f); },
            [](Frame& f) { f.src[0].copyTo(f.dst[0]); });
    };
    add("copy_8u_C1", CV_8UC1, pxliCopy_8u_C1R);
    add("copy_8u_C3", CV_8UC3, pxliCopy_8u_C3R);
    add("copy_32f_C1", CV_32FC1, pxliCopy_32f_C1R);
}

void addMaskedCopies() {
    auto add = [](const char* row, int type, auto function) {
        addPairAndStrided(
            row, {.src = {type}, .dst = {type}, .mask = true, .floor = Floor::Memcpy},
            [=](Frame& f) { return masked(function, f); }, [](Frame& f) { f.src[0].copyTo(f.dst[0], f.mask); });
    };
    add("copy_masked_8u_C1", CV_8UC1, pxliCopy_8u_C1MR);
    add("copy_masked_8u_C3", CV_8UC3, pxliCopy_8u_C3MR);
    add("copy_masked_32f_C1", CV_32FC1, pxliCopy_32f_C1MR);
}

const uint8_t kColour[] = {10, 128, 250};

void addSets() {
    const auto floor = Floor::Memset;
    addPair(
        "set_8u_C1", {.dst = {CV_8UC1}, .floor = floor},
        [](Frame& f) { return pxliSet_8u_C1R(77, f.out<uint8_t>(), f.outStep(), f.size); },
        [](Frame& f) { f.dst[0].setTo(77); });
    addPair(
        "set_8u_C3", {.dst = {CV_8UC3}, .floor = floor},
        [](Frame& f) { return pxliSet_8u_C3R(kColour, f.out<uint8_t>(), f.outStep(), f.size); },
        [](Frame& f) { f.dst[0].setTo(cv::Scalar(10, 128, 250)); });
    addPair(
        "set_32f_C1", {.dst = {CV_32FC1}, .floor = floor},
        [](Frame& f) { return pxliSet_32f_C1R(0.7F, f.out<float>(), f.outStep(), f.size); },
        [](Frame& f) { f.dst[0].setTo(0.7F); });
}

void addMaskedSets() {
    const auto floor = Floor::Memset;
    addPairAndStrided(
        "set_masked_8u_C1", {.dst = {CV_8UC1}, .mask = true, .floor = floor},
        [](Frame& f) { return pxliSet_8u_C1MR(77, f.out<uint8_t>(), f.outStep(), f.size, f.mask.data, f.maskStep()); },
        [](Frame& f) { f.dst[0].setTo(77, f.mask); });
    addPairAndStrided(
        "set_masked_8u_C3", {.dst = {CV_8UC3}, .mask = true, .floor = floor},
        [](Frame& f) {
            return pxliSet_8u_C3MR(kColour, f.out<uint8_t>(), f.outStep(), f.size, f.mask.data, f.maskStep());
        },
        [](Frame& f) { f.dst[0].setTo(cv::Scalar(10, 128, 250), f.mask); });
    addPairAndStrided(
        "set_masked_32f_C1", {.dst = {CV_32FC1}, .mask = true, .floor = floor},
        [](Frame& f) { return pxliSet_32f_C1MR(0.7F, f.out<float>(), f.outStep(), f.size, f.mask.data, f.maskStep()); },
        [](Frame& f) { f.dst[0].setTo(0.7F, f.mask); });
}

const Rows rows([] {
    addCopies();
    addMaskedCopies();
    addSets();
    addMaskedSets();
});

} // namespace
