// Linear filters beside filter2D. Both sides read the pixels around the region, so the work is the same; this library
// convolves and divides by an integer, the peer correlates with the mirrored kernel of quotients.
#include "pair.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <numeric>

using namespace pxlbench;

namespace {

struct Kernel {
    ImageSize size;
    int divisor;
    std::vector<int32_t> integers;
    std::vector<float> quotients;
    cv::Mat mirrored; // of the quotients

    int length() const { return std::max(size.width, size.height); } // of a row or column
    ImagePoint anchor() const { return {size.width / 2, size.height / 2}; }
};

// No symmetry that would hide a mirrored kernel, no zero that a side could skip, no divisor that is a power of two
// unless one is given: otherwise the kernel keeps the mean.
Kernel kernel(ImageSize size, int divisor = 0) {
    Kernel k{.size = size, .divisor = divisor, .integers = {}, .quotients = {}, .mirrored = {}};
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x) {
            const int value = 1 + (3 * x + 5 * y) % 7;
            k.integers.push_back(value < 7 ? value : -1);
        }
    if (!divisor) k.divisor = std::accumulate(k.integers.begin(), k.integers.end(), 0);
    for (int value : k.integers) k.quotients.push_back(static_cast<float>(value) / static_cast<float>(k.divisor));
    cv::flip(cv::Mat(size.height, size.width, CV_32FC1, k.quotients.data()), k.mirrored, -1);
    return k;
}

auto integerCall(auto function) {
    return
        [=](Frame& f, const Kernel& k) { return unary(function, f, k.integers.data(), k.size, k.anchor(), k.divisor); };
}

auto integerLineCall(auto function) {
    return [=](Frame& f, const Kernel& k) {
        return unary(function, f, k.integers.data(), k.length(), k.length() / 2, k.divisor);
    };
}

auto floatCall(auto function) {
    return [=](Frame& f, const Kernel& k) { return unary(function, f, k.quotients.data(), k.size, k.anchor()); };
}

auto floatLineCall(auto function) {
    return
        [=](Frame& f, const Kernel& k) { return unary(function, f, k.quotients.data(), k.length(), k.length() / 2); };
}

// The peer adds floats, with fused products where the processor has them.
void add(const char* row, int type, const Kernel& k, auto ours) {
    const bool floats = CV_MAT_DEPTH(type) == CV_32F;
    addPairAndTwoThreads(
        row, {.src = {type}, .dst = {type}, .reach = k.length() / 2, .tolerance = floats ? 1e-5 : 1},
        [=](Frame& f) { return ours(f, k); }, [=](Frame& f) { cv::filter2D(f.src[0], f.dst[0], -1, k.mirrored); });
}

void addIntegerKernels() {
    add("filter_3x3_8u_C1", CV_8UC1, kernel({3, 3}), integerCall(pxliFilter_8u_C1R));
    add("filter_3x3_8u_C1_div16", CV_8UC1, kernel({3, 3}, 16), integerCall(pxliFilter_8u_C1R));
    add("filter_3x3_8u_C3", CV_8UC3, kernel({3, 3}), integerCall(pxliFilter_8u_C3R));
    add("filter_5x5_8u_C1", CV_8UC1, kernel({5, 5}), integerCall(pxliFilter_8u_C1R));
    add("filter_11x11_8u_C1", CV_8UC1, kernel({11, 11}), integerCall(pxliFilter_8u_C1R));
    add("filter_3x3_16s_C1", CV_16SC1, kernel({3, 3}), integerCall(pxliFilter_16s_C1R));
    add("filter_3x3_16s_C1_div16", CV_16SC1, kernel({3, 3}, 16), integerCall(pxliFilter_16s_C1R));
    add("filter_row5_8u_C1", CV_8UC1, kernel({5, 1}), integerLineCall(pxliFilterRow_8u_C1R));
    add("filter_column5_8u_C1", CV_8UC1, kernel({1, 5}), integerLineCall(pxliFilterColumn_8u_C1R));
}

void addFloatKernels() {
    add("filter_3x3_32f_C1", CV_32FC1, kernel({3, 3}), floatCall(pxliFilter_32f_C1R));
    add("filter_5x5_32f_C1", CV_32FC1, kernel({5, 5}), floatCall(pxliFilter_32f_C1R));
    add("filter_11x11_32f_C1", CV_32FC1, kernel({11, 11}), floatCall(pxliFilter_32f_C1R));
    add("filter_row11_32f_C1", CV_32FC1, kernel({11, 1}), floatLineCall(pxliFilterRow_32f_C1R));
    add("filter_column11_32f_C1", CV_32FC1, kernel({1, 11}), floatLineCall(pxliFilterColumn_32f_C1R));
}

const Rows rows([] {
    addIntegerKernels();
    addFloatKernels();
});

} // namespace
