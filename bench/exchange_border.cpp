// Border extension by a margin of 16 pixels on every side, from another image and around the source in its own.
#include "pair.h"

using namespace pxlbench;

namespace {

constexpr int kMargin = 16;

template <class T, class... Value>
using Border = PxlStatus (*)(const T*, int, ImageSize, T*, int, ImageSize, int, int, Value...);
template <class T>
using BorderInPlace = PxlStatus (*)(T*, int, ImageSize, ImageSize, int, int);

template <class T>
Operands bordered(int channels) {
    return {.src = {typeOf<T>(channels)}, .dst = {typeOf<T>(channels)}, .margin = kMargin};
}
// A frame of the margin in an image of its own.
template <class T>
Operands borderedInPlace(int channels) {
    return {.dst = {typeOf<T>(channels)}, .margin = kMargin};
}

template <class T>
const T kColour[] = {10, 120, 25, 60};

auto extended(int kind) {
    return [=](Frame& f) {
        const cv::Mat inner =
            f.src.empty() ? f.dst[0](cv::Rect(kMargin, kMargin, f.size.width, f.size.height)) : f.src[0];
        cv::copyMakeBorder(inner, f.dst[0], kMargin, kMargin, kMargin, kMargin, kind | cv::BORDER_ISOLATED,
                           cv::Scalar(10, 120, 25, 60));
    };
}

template <class T, class... Value>
auto extend(Border<T, Value...> function, Value... value) {
    return [=](Frame& f) {
        return function(f.in<T>(), f.inStep(), f.size, f.out<T>(), f.outStep(), f.outSize(), kMargin, kMargin,
                        value...);
    };
}
template <class T>
auto extendInPlace(BorderInPlace<T> function) {
    return [=](Frame& f) {
        T* const inner = f.dst[0].ptr<T>(kMargin) + kMargin * f.dst[0].channels();
        return function(inner, f.outStep(), f.size, f.outSize(), kMargin, kMargin);
    };
}

template <class... T>
void addConsts(Border<T, T>... functions) {
    (addPair(rowName<T>("border_const", "C1"), bordered<T>(1), extend(functions, T{10}), extended(cv::BORDER_CONSTANT)),
     ...);
}
template <class... T>
void addConsts(int channels, Border<T, const T*>... functions) {
    (addPair(rowName<T>("border_const", "C" + std::to_string(channels)), bordered<T>(channels),
             extend<T, const T*>(functions, kColour<T>), extended(cv::BORDER_CONSTANT)),
     ...);
}
template <class... T>
void addColourConsts(Border<T, const T*>... functions) {
    (addAlone(rowName<T>("border_const", "AC4"), bordered<T>(4), extend<T, const T*>(functions, kColour<T>)), ...);
}

template <class... T>
void addKind(const char* kind, int code, int channels, Border<T>... functions) {
    (addPair(rowName<T>(std::string("border_") + kind, "C" + std::to_string(channels)), bordered<T>(channels),
             extend(functions), extended(code)),
     ...);
}
template <class... T>
void addKindInPlace(const char* kind, int code, int channels, BorderInPlace<T>... functions) {
    (addPair(rowName<T>(std::string("border_") + kind, "C" + std::to_string(channels) + "_inplace"),
             borderedInPlace<T>(channels), extendInPlace(functions), extended(code)),
     ...);
}
template <class... T>
void addColourReplicates(Border<T>... functions) {
    (addAlone(rowName<T>("border_replicate", "AC4"), bordered<T>(4), extend(functions)), ...);
}
template <class... T>
void addColourReplicatesInPlace(BorderInPlace<T>... functions) {
    (addAlone(rowName<T>("border_replicate", "AC4_inplace"), borderedInPlace<T>(4), extendInPlace(functions)), ...);
}

const Rows rows([] {
    addConsts(pxliCopyConstBorder_8u_C1R, pxliCopyConstBorder_16s_C1R, pxliCopyConstBorder_16u_C1R,
              pxliCopyConstBorder_32s_C1R);
    addConsts(3, pxliCopyConstBorder_8u_C3R, pxliCopyConstBorder_16s_C3R, pxliCopyConstBorder_16u_C3R,
              pxliCopyConstBorder_32s_C3R);
    addConsts(4, pxliCopyConstBorder_8u_C4R, pxliCopyConstBorder_16s_C4R, pxliCopyConstBorder_16u_C4R,
              pxliCopyConstBorder_32s_C4R);
    addColourConsts(pxliCopyConstBorder_8u_AC4R, pxliCopyConstBorder_16s_AC4R, pxliCopyConstBorder_16u_AC4R,
                    pxliCopyConstBorder_32s_AC4R);
    const int replicate = cv::BORDER_REPLICATE;
    addKind("replicate", replicate, 1, pxliCopyReplicateBorder_8u_C1R, pxliCopyReplicateBorder_16s_C1R,
            pxliCopyReplicateBorder_16u_C1R, pxliCopyReplicateBorder_32s_C1R);
    addKind("replicate", replicate, 3, pxliCopyReplicateBorder_8u_C3R, pxliCopyReplicateBorder_16s_C3R,
            pxliCopyReplicateBorder_16u_C3R, pxliCopyReplicateBorder_32s_C3R);
    addKind("replicate", replicate, 4, pxliCopyReplicateBorder_8u_C4R, pxliCopyReplicateBorder_16s_C4R,
            pxliCopyReplicateBorder_16u_C4R, pxliCopyReplicateBorder_32s_C4R);
    addColourReplicates(pxliCopyReplicateBorder_8u_AC4R, pxliCopyReplicateBorder_16s_AC4R,
                        pxliCopyReplicateBorder_16u_AC4R, pxliCopyReplicateBorder_32s_AC4R);
    addKindInPlace("replicate", replicate, 1, pxliCopyReplicateBorder_8u_C1IR, pxliCopyReplicateBorder_16s_C1IR,
                   pxliCopyReplicateBorder_16u_C1IR, pxliCopyReplicateBorder_32s_C1IR);
    addKindInPlace("replicate", replicate, 3, pxliCopyReplicateBorder_8u_C3IR, pxliCopyReplicateBorder_16s_C3IR,
                   pxliCopyReplicateBorder_16u_C3IR, pxliCopyReplicateBorder_32s_C3IR);
    addKindInPlace("replicate", replicate, 4, pxliCopyReplicateBorder_8u_C4IR, pxliCopyReplicateBorder_16s_C4IR,
                   pxliCopyReplicateBorder_16u_C4IR, pxliCopyReplicateBorder_32s_C4IR);
    addColourReplicatesInPlace(pxliCopyReplicateBorder_8u_AC4IR, pxliCopyReplicateBorder_16s_AC4IR,
                               pxliCopyReplicateBorder_16u_AC4IR, pxliCopyReplicateBorder_32s_AC4IR);
    addKind("wrap", cv::BORDER_WRAP, 1, pxliCopyWrapBorder_32s_C1R);
    addKindInPlace("wrap", cv::BORDER_WRAP, 1, pxliCopyWrapBorder_32s_C1IR);
});

} // namespace
