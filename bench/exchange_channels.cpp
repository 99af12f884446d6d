// Planes, single channels and channel order.
#include "pair.h"

#include <opencv2/imgproc.hpp>

using namespace pxlbench;

namespace {

template <class T>
using Copy = PxlStatus (*)(const T*, int, T*, int, ImageSize);

template <class T>
Operands copied(int from, int to) {
    return {.src = {typeOf<T>(from)}, .dst = {typeOf<T>(to)}, .floor = Floor::Memcpy};
}

// ---- planes -----------------------------------------------------------------------------------------------------------

template <size_t N, class... T>
void addSplits(PxlStatus (*... functions)(const T*, int, T* const*, int, ImageSize)) {
    (addPairAndStrided(
         rowName<T>("split", "C" + std::to_string(N)),
         {.src = {typeOf<T>(N)}, .dst = std::vector<int>(N, typeOf<T>(1)), .floor = Floor::Memcpy},
         [=](Frame& f) {
             T* planes[N];
             for (size_t c = 0; c < N; ++c) planes[c] = f.out<T>(c);
             return functions(f.in<T>(), f.inStep(), planes, f.outStep(), f.size);
         },
         [](Frame& f) { cv::split(f.src[0], f.dst.data()); }),
     ...);
}

template <size_t N, class... T>
void addMerges(PxlStatus (*... functions)(const T* const*, int, T*, int, ImageSize)) {
    (addPairAndStrided(
         rowName<T>("merge", "C" + std::to_string(N)),
         {.src = std::vector<int>(N, typeOf<T>(1)), .dst = {typeOf<T>(N)}, .floor = Floor::Memcpy},
         [=](Frame& f) {
             const T* planes[N];
             for (size_t c = 0; c < N; ++c) planes[c] = f.in<T>(c);
             return functions(planes, f.inStep(), f.out<T>(), f.outStep(), f.size);
         },
         [](Frame& f) { cv::merge(f.src.data(), f.src.size(), f.dst[0]); }),
     ...);
}

// ---- a channel --------------------------------------------------------------------------------------------------------
// Channel 1 of several, so that the addressed elements never start a pixel.

template <class... T>
void addExtracts(int channels, Copy<T>... functions) {
    (addPairAndStrided(
         rowName<T>("extract", "C" + std::to_string(channels)), copied<T>(channels, 1),
         [=](Frame& f) { return functions(f.in<T>() + 1, f.inStep(), f.out<T>(), f.outStep(), f.size); },
         [](Frame& f) { cv::extractChannel(f.src[0], f.dst[0], 1); }),
     ...);
}

template <class... T>
void addInserts(int channels, Copy<T>... functions) {
    (addPairAndStrided(
         rowName<T>("insert", "C" + std::to_string(channels)), copied<T>(1, channels),
         [=](Frame& f) { return functions(f.in<T>(), f.inStep(), f.out<T>() + 1, f.outStep(), f.size); },
         [](Frame& f) { cv::insertChannel(f.src[0], f.dst[0], 1); }),
     ...);
}

template <class... T>
void addMoves(int channels, Copy<T>... functions) {
    auto peer = [](Frame& f) {
        const int pair[] = {1, 1};
        cv::mixChannels(f.src, f.dst, pair, 1);
    };
    (addPairAndStrided(
         rowName<T>("insert", "C" + std::to_string(channels) + "C"), copied<T>(channels, channels),
         [=](Frame& f) { return functions(f.in<T>() + 1, f.inStep(), f.out<T>() + 1, f.outStep(), f.size); }, peer),
     ...);
}

// ---- channel order ----------------------------------------------------------------------------------------------------

const int kReversed[] = {2, 1, 0};
const int kReversedWithAlpha[] = {2, 1, 0, 3};

// What OpenCV has a colour conversion for; it has them for these types, 16s and 32s go as 16u and 32f.
template <class T>
cv::Mat asColours(const cv::Mat& image) {
    const int depth = sizeof(T) == 1 ? CV_8U : sizeof(T) == 2 ? CV_16U : CV_32F;
    return {image.size(), CV_MAKETYPE(depth, image.channels()), image.data, image.step};
}
template <class T>
auto recoloured(int code) {
    return [=](Frame& f) {
        cv::Mat result = asColours<T>(f.dst[0]);
        cv::cvtColor(f.src.empty() ? result : asColours<T>(f.src[0]), result, code);
    };
}

template <class... T>
void addSwaps(const char* layout, int from, int code,
              PxlStatus (*... functions)(const T*, int, T*, int, ImageSize, const int*)) {
    (addPair(
         rowName<T>("swap", layout), copied<T>(from, 3), [=](Frame& f) { return unary(functions, f, kReversed); },
         recoloured<T>(code)),
     ...);
}

template <class... T>
void addColourSwaps(PxlStatus (*... functions)(const T*, int, T*, int, ImageSize, const int*)) {
    auto peer = [](Frame& f) {
        const int pairs[] = {2, 0, 1, 1, 0, 2};
        cv::mixChannels(f.src, f.dst, pairs, 3);
    };
    (addPair(
         rowName<T>("swap", "AC4"), copied<T>(4, 4), [=](Frame& f) { return unary(functions, f, kReversed); }, peer),
     ...);
}

// The alpha that a colour conversion of the same size writes: its highest integer, or the bits of 1.0f.
template <class T>
T opaque() {
    if constexpr (std::is_floating_point_v<T>) return 1;
    return static_cast<T>(sizeof(T) == 4 ? 0x3F800000 : -1);
}
template <class... T>
void addOpaqueSwaps(PxlStatus (*... functions)(const T*, int, T*, int, ImageSize, const int*, T)) {
    (addPair(
         rowName<T>("swap", "C3C4"), copied<T>(3, 4),
         [=](Frame& f) { return unary(functions, f, kReversedWithAlpha, opaque<T>()); },
         recoloured<T>(cv::COLOR_RGB2BGRA)),
     ...);
}

void addSwapsInPlace() {
    addPair(
        "swap_8u_C3_inplace", {.dst = {CV_8UC3}},
        [](Frame& f) { return inPlace(pxliSwapChannels_8u_C3IR, f, kReversed); },
        recoloured<uint8_t>(cv::COLOR_RGB2BGR));
    addPair(
        "swap_8u_C4_inplace", {.dst = {CV_8UC4}},
        [](Frame& f) { return inPlace(pxliSwapChannels_8u_C4IR, f, kReversedWithAlpha); },
        recoloured<uint8_t>(cv::COLOR_RGBA2BGRA));
}

const Rows rows([] {
    addSplits<3>(pxliCopy_8u_C3P3R, pxliCopy_16s_C3P3R, pxliCopy_16u_C3P3R, pxliCopy_32s_C3P3R, pxliCopy_32f_C3P3R);
    addSplits<4>(pxliCopy_8u_C4P4R, pxliCopy_16s_C4P4R, pxliCopy_16u_C4P4R, pxliCopy_32s_C4P4R, pxliCopy_32f_C4P4R);
    addMerges<3>(pxliCopy_8u_P3C3R, pxliCopy_16s_P3C3R, pxliCopy_16u_P3C3R, pxliCopy_32s_P3C3R, pxliCopy_32f_P3C3R);
    addMerges<4>(pxliCopy_8u_P4C4R, pxliCopy_16s_P4C4R, pxliCopy_16u_P4C4R, pxliCopy_32s_P4C4R, pxliCopy_32f_P4C4R);
    addExtracts(3, pxliCopy_8u_C3C1R, pxliCopy_16s_C3C1R, pxliCopy_16u_C3C1R, pxliCopy_32s_C3C1R, pxliCopy_32f_C3C1R);
    addExtracts(4, pxliCopy_8u_C4C1R, pxliCopy_16s_C4C1R, pxliCopy_16u_C4C1R, pxliCopy_32s_C4C1R, pxliCopy_32f_C4C1R);
    addInserts(3, pxliCopy_8u_C1C3R, pxliCopy_16s_C1C3R, pxliCopy_16u_C1C3R, pxliCopy_32s_C1C3R, pxliCopy_32f_C1C3R);
    addInserts(4, pxliCopy_8u_C1C4R, pxliCopy_16s_C1C4R, pxliCopy_16u_C1C4R, pxliCopy_32s_C1C4R, pxliCopy_32f_C1C4R);
    addMoves(3, pxliCopy_8u_C3CR, pxliCopy_16s_C3CR, pxliCopy_16u_C3CR, pxliCopy_32s_C3CR, pxliCopy_32f_C3CR);
    addMoves(4, pxliCopy_8u_C4CR, pxliCopy_16s_C4CR, pxliCopy_16u_C4CR, pxliCopy_32s_C4CR, pxliCopy_32f_C4CR);
    addSwaps("C3", 3, cv::COLOR_RGB2BGR, pxliSwapChannels_8u_C3R, pxliSwapChannels_16s_C3R, pxliSwapChannels_16u_C3R,
             pxliSwapChannels_32s_C3R, pxliSwapChannels_32f_C3R);
    addSwaps("C4C3", 4, cv::COLOR_RGBA2BGR, pxliSwapChannels_8u_C4C3R, pxliSwapChannels_16s_C4C3R,
             pxliSwapChannels_16u_C4C3R, pxliSwapChannels_32s_C4C3R, pxliSwapChannels_32f_C4C3R);
    addColourSwaps(pxliSwapChannels_8u_AC4R, pxliSwapChannels_16s_AC4R, pxliSwapChannels_16u_AC4R,
                   pxliSwapChannels_32s_AC4R, pxliSwapChannels_32f_AC4R);
    addOpaqueSwaps(pxliSwapChannels_8u_C3C4R, pxliSwapChannels_16s_C3C4R, pxliSwapChannels_16u_C3C4R,
                   pxliSwapChannels_32s_C3C4R, pxliSwapChannels_32f_C3C4R);
    addSwapsInPlace();
    addPair(
        "dup_8u_C1C3", copied<uint8_t>(1, 3), [](Frame& f) { return unary(pxliDup_8u_C1C3R, f); },
        recoloured<uint8_t>(cv::COLOR_GRAY2BGR));
});

} // namespace
