// Planes, single channels and channel order.
#include "pair.h"

#include <opencv2/imgproc.hpp>

using namespace pxlbench;

namespace {

template <class T, size_t N>
void addSplit(const char* row, PxlStatus (*function)(const T*, int, T* const*, int, ImageSize)) {
    const int depth = cv::traits::Depth<T>::value;
    addPair(
        row, {.src = {CV_MAKETYPE(depth, N)}, .dst = std::vector<int>(N, depth), .floor = Floor::Memcpy},
        [=](Frame& f) {
            T* planes[N];
            for (size_t c = 0; c < N; ++c) planes[c] = f.out<T>(c);
            return function(f.in<T>(), f.inStep(), planes, f.outStep(), f.size);
        },
        [](Frame& f) { cv::split(f.src[0], f.dst.data()); });
}

template <class T, size_t N>
void addMerge(const char* row, PxlStatus (*function)(const T* const*, int, T*, int, ImageSize)) {
    const int depth = cv::traits::Depth<T>::value;
    addPair(
        row, {.src = std::vector<int>(N, depth), .dst = {CV_MAKETYPE(depth, N)}, .floor = Floor::Memcpy},
        [=](Frame& f) {
            const T* planes[N];
            for (size_t c = 0; c < N; ++c) planes[c] = f.in<T>(c);
            return function(planes, f.inStep(), f.out<T>(), f.outStep(), f.size);
        },
        [](Frame& f) { cv::merge(f.src.data(), f.src.size(), f.dst[0]); });
}

// Channel 1 of several, so that the addressed elements never start a pixel.
void addExtract(const char* row, int type, decltype(&pxliCopy_8u_C3C1R) function) {
    addPair(
        row, {.src = {type}, .dst = {CV_8UC1}, .floor = Floor::Memcpy},
        [=](Frame& f) { return function(f.in<uint8_t>() + 1, f.inStep(), f.out<uint8_t>(), f.outStep(), f.size); },
        [](Frame& f) { cv::extractChannel(f.src[0], f.dst[0], 1); });
}

void addInsert(const char* row, int type, decltype(&pxliCopy_8u_C1C3R) function) {
    addPair(
        row, {.src = {CV_8UC1}, .dst = {type}, .floor = Floor::Memcpy},
        [=](Frame& f) { return function(f.in<uint8_t>(), f.inStep(), f.out<uint8_t>() + 1, f.outStep(), f.size); },
        [](Frame& f) { cv::insertChannel(f.src[0], f.dst[0], 1); });
}

const int kReversed[] = {2, 1, 0};
const int kWithAlpha[] = {0, 1, 2, 3};

void addSwaps() {
    addPair(
        "swap_8u_C3", {.src = {CV_8UC3}, .dst = {CV_8UC3}, .floor = Floor::Memcpy},
        [](Frame& f) { return unary(pxliSwapChannels_8u_C3R, f, kReversed); },
        [](Frame& f) { cv::cvtColor(f.src[0], f.dst[0], cv::COLOR_RGB2BGR); });
    addPair(
        "swap_8u_C3C4", {.src = {CV_8UC3}, .dst = {CV_8UC4}, .floor = Floor::Memcpy},
        [](Frame& f) { return unary(pxliSwapChannels_8u_C3C4R, f, kWithAlpha, uint8_t{255}); },
        [](Frame& f) { cv::cvtColor(f.src[0], f.dst[0], cv::COLOR_RGB2RGBA); });
}

const Rows rows([] {
    addSplit<uint8_t, 3>("split_8u_C3", pxliCopy_8u_C3P3R);
    addSplit<uint8_t, 4>("split_8u_C4", pxliCopy_8u_C4P4R);
    addSplit<float, 3>("split_32f_C3", pxliCopy_32f_C3P3R);
    addSplit<float, 4>("split_32f_C4", pxliCopy_32f_C4P4R);
    addMerge<uint8_t, 3>("merge_8u_C3", pxliCopy_8u_P3C3R);
    addMerge<uint8_t, 4>("merge_8u_C4", pxliCopy_8u_P4C4R);
    addMerge<float, 3>("merge_32f_C3", pxliCopy_32f_P3C3R);
    addMerge<float, 4>("merge_32f_C4", pxliCopy_32f_P4C4R);
    addExtract("extract_8u_C3", CV_8UC3, pxliCopy_8u_C3C1R);
    addExtract("extract_8u_C4", CV_8UC4, pxliCopy_8u_C4C1R);
    addInsert("insert_8u_C3", CV_8UC3, pxliCopy_8u_C1C3R);
    addInsert("insert_8u_C4", CV_8UC4, pxliCopy_8u_C1C4R);
    addSwaps();
});

} // namespace
