// Mirror and transpose, to another image and in place.
#include "pair.h"

using namespace pxlbench;

namespace {

// OpenCV's flip codes are 0 for rows, 1 for columns, -1 for both.
struct Axis {
    const char* name;
    PxlAxis axis;
    int code;
};
constexpr Axis kAxes[] = {
    {"_rows", PXL_AXIS_HORIZONTAL, 0}, {"_columns", PXL_AXIS_VERTICAL, 1}, {"_both", PXL_AXIS_BOTH, -1}};

template <class T>
Operands moved(int channels) {
    return {.src = {typeOf<T>(channels)}, .dst = {typeOf<T>(channels)}, .floor = Floor::Memcpy};
}
// In place as many bytes are read and written; the floor copies them to another image.
template <class T>
Operands movedInPlace(int channels) {
    return {.dst = {typeOf<T>(channels)}, .copied = true, .floor = Floor::Memcpy};
}

template <class T>
void addFlip(int channels, PxlStatus (*function)(const T*, int, T*, int, ImageSize, PxlAxis)) {
    for (const Axis& a : kAxes)
        addPair(
            rowName<T>("flip", "C" + std::to_string(channels) + a.name), moved<T>(channels),
            [=, axis = a.axis](Frame& f) { return unary(function, f, axis); },
            [code = a.code](Frame& f) { cv::flip(f.src[0], f.dst[0], code); });
}
template <class T>
void addFlip(int channels, PxlStatus (*function)(T*, int, ImageSize, PxlAxis)) {
    for (const Axis& a : kAxes)
        addPair(
            rowName<T>("flip", "C" + std::to_string(channels) + a.name + "_inplace"), movedInPlace<T>(channels),
            [=, axis = a.axis](Frame& f) { return inPlace(function, f, axis); },
            [code = a.code](Frame& f) { cv::flip(f.dst[0], f.dst[0], code); });
}
template <class T>
void addColourFlip(PxlStatus (*function)(const T*, int, T*, int, ImageSize, PxlAxis)) {
    for (const Axis& a : kAxes)
        addAlone(rowName<T>("flip", std::string("AC4") + a.name), moved<T>(4),
                 [=, axis = a.axis](Frame& f) { return unary(function, f, axis); });
}
template <class T>
void addColourFlip(PxlStatus (*function)(T*, int, ImageSize, PxlAxis)) {
    for (const Axis& a : kAxes)
        addAlone(rowName<T>("flip", std::string("AC4") + a.name + "_inplace"), movedInPlace<T>(4),
                 [=, axis = a.axis](Frame& f) { return inPlace(function, f, axis); });
}

template <class T>
void addTranspose(int channels, PxlStatus (*function)(const T*, int, T*, int, ImageSize)) {
    addPair(
        rowName<T>("transpose", "C" + std::to_string(channels)),
        {.src = {typeOf<T>(channels)}, .dst = {typeOf<T>(channels)}, .transposed = true},
        [=](Frame& f) { return unary(function, f); }, [](Frame& f) { cv::transpose(f.src[0], f.dst[0]); });
}
template <class T>
void addTranspose(int channels, PxlStatus (*function)(T*, int, ImageSize)) {
    addPair(
        rowName<T>("transpose", "C" + std::to_string(channels) + "_inplace"),
        {.dst = {typeOf<T>(channels)}, .square = true, .copied = true}, [=](Frame& f) { return inPlace(function, f); },
        [](Frame& f) { cv::transpose(f.dst[0], f.dst[0]); });
}

void addFlips(int channels, auto... functions) { (addFlip(channels, functions), ...); }
void addColourFlips(auto... functions) { (addColourFlip(functions), ...); }
void addTransposes(int channels, auto... functions) { (addTranspose(channels, functions), ...); }

const Rows rows([] {
    addFlips(1, pxliMirror_8u_C1R, pxliMirror_16u_C1R, pxliMirror_16s_C1R, pxliMirror_32s_C1R, pxliMirror_32f_C1R);
    addFlips(3, pxliMirror_8u_C3R, pxliMirror_16u_C3R, pxliMirror_16s_C3R, pxliMirror_32s_C3R, pxliMirror_32f_C3R);
    addFlips(4, pxliMirror_8u_C4R, pxliMirror_16u_C4R, pxliMirror_16s_C4R, pxliMirror_32s_C4R, pxliMirror_32f_C4R);
    addColourFlips(pxliMirror_8u_AC4R, pxliMirror_16u_AC4R, pxliMirror_16s_AC4R, pxliMirror_32s_AC4R,
                   pxliMirror_32f_AC4R);
    addFlips(1, pxliMirror_8u_C1IR, pxliMirror_16u_C1IR, pxliMirror_16s_C1IR, pxliMirror_32s_C1IR, pxliMirror_32f_C1IR);
    addFlips(3, pxliMirror_8u_C3IR, pxliMirror_16u_C3IR, pxliMirror_16s_C3IR, pxliMirror_32s_C3IR, pxliMirror_32f_C3IR);
    addFlips(4, pxliMirror_8u_C4IR, pxliMirror_16u_C4IR, pxliMirror_16s_C4IR, pxliMirror_32s_C4IR, pxliMirror_32f_C4IR);
    addColourFlips(pxliMirror_8u_AC4IR, pxliMirror_16u_AC4IR, pxliMirror_16s_AC4IR, pxliMirror_32s_AC4IR,
                   pxliMirror_32f_AC4IR);
    addTransposes(1, pxliTranspose_8u_C1R, pxliTranspose_16u_C1R, pxliTranspose_16s_C1R, pxliTranspose_32s_C1R);
    addTransposes(3, pxliTranspose_8u_C3R, pxliTranspose_16u_C3R, pxliTranspose_16s_C3R, pxliTranspose_32s_C3R);
    addTransposes(4, pxliTranspose_8u_C4R, pxliTranspose_16u_C4R, pxliTranspose_16s_C4R, pxliTranspose_32s_C4R);
    addTransposes(1, pxliTranspose_8u_C1IR, pxliTranspose_16u_C1IR, pxliTranspose_16s_C1IR, pxliTranspose_32s_C1IR);
    addTransposes(3, pxliTranspose_8u_C3IR, pxliTranspose_16u_C3IR, pxliTranspose_16s_C3IR, pxliTranspose_32s_C3IR);
    addTransposes(4, pxliTranspose_8u_C4IR, pxliTranspose_16u_C4IR, pxliTranspose_16s_C4IR, pxliTranspose_32s_C4IR);
});

} // namespace
