// Thresholds, with the same threshold in all channels, as the peer has it.
#include "pair.h"

#include <opencv2/imgproc.hpp>

using namespace pxlbench;

namespace {

template <class T>
constexpr T middle = static_cast<T>(sizeof(T) == 1   ? 100
                                    : sizeof(T) == 2 ? 1000
                                                     : 0.25);

template <class T>
Operands images(int channels) {
    const int type = CV_MAKETYPE(cv::traits::Depth<T>::value, channels);
    return {.src = {type}, .dst = {type}, .floor = Floor::Memcpy};
}

// Arguments of a channel as the signature has them: a number or an array.
template <class Argument, class T>
Argument argument(const T (&values)[4]) {
    if constexpr (std::is_pointer_v<Argument>)
        return values;
    else
        return values[0];
}

template <class T, class A>
void addTruncate(const char* row, int channels, PxlStatus (*function)(const T*, int, T*, int, ImageSize, A)) {
    addPair(
        row, images<T>(channels),
        [=](Frame& f) {
            const T thresholds[] = {middle<T>, middle<T>, middle<T>, middle<T>};
            return unary(function, f, argument<A>(thresholds));
        },
        [](Frame& f) { cv::threshold(f.src[0], f.dst[0], middle<T>, 0, cv::THRESH_TRUNC); });
}

// Integers up to the threshold become 0; floats below it, which differs where they are equal.
template <class T, class A>
void addToZero(const char* row, int channels, PxlStatus (*function)(const T*, int, T*, int, ImageSize, A, A)) {
    addPair(
        row, images<T>(channels),
        [=](Frame& f) {
            const T t = std::is_same_v<T, float> ? middle<T> : T(middle<T> + 1);
            const T thresholds[] = {t, t, t, t}, values[] = {0, 0, 0, 0};
            return unary(function, f, argument<A>(thresholds), argument<A>(values));
        },
        [](Frame& f) { cv::threshold(f.src[0], f.dst[0], middle<T>, 0, cv::THRESH_TOZERO); });
}

// Two thresholds, which the peer does not have.
template <class T, class A>
void addBand(const char* row, int channels, PxlStatus (*function)(const T*, int, T*, int, ImageSize, A, A, A, A)) {
    addAlone(row, images<T>(channels), [=](Frame& f) {
        const T low[] = {10, 20, 30, 40}, high[] = {100, 110, 120, 100}, below[] = {1, 2, 3, 4}, above[] = {5, 6, 7, 8};
        return unary(function, f, argument<A>(low), argument<A>(below), argument<A>(high), argument<A>(above));
    });
}

void addOtsu() {
    addPair(
        "threshold_otsu_8u_C1", images<uint8_t>(1),
        [](Frame& f) {
            uint8_t threshold = 0;
            pxliComputeThreshold_Otsu_8u_C1R(f.in<uint8_t>(), f.inStep(), f.size, &threshold);
            return unary(pxliThreshold_GT_8u_C1R, f, threshold);
        },
        [](Frame& f) { cv::threshold(f.src[0], f.dst[0], 0, 0, cv::THRESH_TRUNC | cv::THRESH_OTSU); });
}

const Rows rows([] {
    addTruncate("threshold_trunc_8u_C1", 1, pxliThreshold_GT_8u_C1R);
    addTruncate("threshold_trunc_8u_C3", 3, pxliThreshold_GT_8u_C3R);
    addTruncate("threshold_trunc_16u_C1", 1, pxliThreshold_GT_16u_C1R);
    addTruncate("threshold_trunc_16u_C3", 3, pxliThreshold_GT_16u_C3R);
    addTruncate("threshold_trunc_16s_C1", 1, pxliThreshold_GT_16s_C1R);
    addTruncate("threshold_trunc_16s_C3", 3, pxliThreshold_GT_16s_C3R);
    addTruncate("threshold_trunc_32f_C1", 1, pxliThreshold_GT_32f_C1R);
    addTruncate("threshold_trunc_32f_C3", 3, pxliThreshold_GT_32f_C3R);
    addToZero("threshold_tozero_8u_C1", 1, pxliThreshold_LTVal_8u_C1R);
    addToZero("threshold_tozero_8u_C3", 3, pxliThreshold_LTVal_8u_C3R);
    addToZero("threshold_tozero_8u_C4", 4, pxliThreshold_LTVal_8u_C4R);
    addToZero("threshold_tozero_16u_C1", 1, pxliThreshold_LTVal_16u_C1R);
    addToZero("threshold_tozero_16u_C3", 3, pxliThreshold_LTVal_16u_C3R);
    addToZero("threshold_tozero_16u_C4", 4, pxliThreshold_LTVal_16u_C4R);
    addToZero("threshold_tozero_16s_C1", 1, pxliThreshold_LTVal_16s_C1R);
    addToZero("threshold_tozero_16s_C3", 3, pxliThreshold_LTVal_16s_C3R);
    addToZero("threshold_tozero_16s_C4", 4, pxliThreshold_LTVal_16s_C4R);
    addToZero("threshold_tozero_32f_C1", 1, pxliThreshold_LTVal_32f_C1R);
    addToZero("threshold_tozero_32f_C3", 3, pxliThreshold_LTVal_32f_C3R);
    addToZero("threshold_tozero_32f_C4", 4, pxliThreshold_LTVal_32f_C4R);
    addBand("threshold_band_8u_C1", 1, pxliThreshold_LTValGTVal_8u_C1R);
    addBand("threshold_band_8u_C3", 3, pxliThreshold_LTValGTVal_8u_C3R);
    addBand("threshold_band_8u_AC4", 4, pxliThreshold_LTValGTVal_8u_AC4R);
    addBand("threshold_band_16u_C1", 1, pxliThreshold_LTValGTVal_16u_C1R);
    addBand("threshold_band_16s_C1", 1, pxliThreshold_LTValGTVal_16s_C1R);
    addBand("threshold_band_32f_C1", 1, pxliThreshold_LTValGTVal_32f_C1R);
    addOtsu();
});

} // namespace
