// Copy and set, plain and masked, of whole pixels and of those with alpha, which OpenCV has mixChannels for.
#include "pair.h"

using namespace pxlbench;

namespace {

template <class T>
using Copy = PxlStatus (*)(const T*, int, T*, int, ImageSize);
template <class T>
using MaskedCopy = PxlStatus (*)(const T*, int, T*, int, ImageSize, const uint8_t*, int);
template <class Value, class T>
using Fill = PxlStatus (*)(Value, T*, int, ImageSize);
template <class Value, class T>
using MaskedFill = PxlStatus (*)(Value, T*, int, ImageSize, const uint8_t*, int);

// ---- copies -----------------------------------------------------------------------------------------------------------

template <class T>
Operands copied(int from, int to) {
    return {.src = {typeOf<T>(from)}, .dst = {typeOf<T>(to)}, .floor = Floor::Memcpy};
}

template <class... T>
void addCopies(const char* layout, int channels, Copy<T>... functions) {
    (addPairAndStrided(
         rowName<T>("copy", layout), copied<T>(channels, channels), [=](Frame& f) { return unary(functions, f); },
         [](Frame& f) { f.src[0].copyTo(f.dst[0]); }),
     ...);
}

// The first three channels.
template <class... T>
void addColourCopies(const char* layout, int from, int to, Copy<T>... functions) {
    auto peer = [](Frame& f) {
        const int pairs[] = {0, 0, 1, 1, 2, 2};
        cv::mixChannels(f.src, f.dst, pairs, 3);
    };
    (addPair(
         rowName<T>("copy", layout), copied<T>(from, to), [=](Frame& f) { return unary(functions, f); }, peer),
     ...);
}

template <class T>
Operands copiedMasked(int channels) {
    Operands operands = copied<T>(channels, channels);
    operands.mask = true;
    return operands;
}

template <class... T>
void addMaskedCopies(const char* layout, int channels, MaskedCopy<T>... functions) {
    (addPairAndStrided(
         rowName<T>("copy_masked", layout), copiedMasked<T>(channels), [=](Frame& f) { return masked(functions, f); },
         [](Frame& f) { f.src[0].copyTo(f.dst[0], f.mask); }),
     ...);
}

template <class... T>
void addMaskedColourCopies(MaskedCopy<T>... functions) {
    (addAlone(rowName<T>("copy_masked", "AC4"), copiedMasked<T>(4), [=](Frame& f) { return masked(functions, f); }),
     ...);
}

// ---- fills ------------------------------------------------------------------------------------------------------------

template <class T>
const T kColour[] = {10, 120, 25, 60};
const cv::Scalar kPeerColour(10, 120, 25, 60);

// The value of one channel, or the values of several.
template <class Value>
Value colour() {
    if constexpr (std::is_pointer_v<Value>)
        return kColour<std::remove_cv_t<std::remove_pointer_t<Value>>>;
    else
        return 10;
}

template <class T>
Operands filled(int channels, bool mask) {
    return {.dst = {typeOf<T>(channels)}, .mask = mask, .floor = Floor::Memset};
}

template <class Value, class T>
auto fill(Fill<Value, T> function) {
    return [=](Frame& f) { return function(colour<Value>(), f.out<T>(), f.outStep(), f.size); };
}
template <class Value, class T>
auto fillMasked(MaskedFill<Value, T> function) {
    return
        [=](Frame& f) { return function(colour<Value>(), f.out<T>(), f.outStep(), f.size, f.mask.data, f.maskStep()); };
}

template <class... Value, class... T>
void addSets(const char* layout, int channels, Fill<Value, T>... functions) {
    (addPair(rowName<T>("set", layout), filled<T>(channels, false), fill(functions),
             [](Frame& f) { f.dst[0].setTo(kPeerColour); }),
     ...);
}
template <class... Value, class... T>
void addMaskedSets(const char* layout, int channels, MaskedFill<Value, T>... functions) {
    (addPairAndStrided(rowName<T>("set_masked", layout), filled<T>(channels, true), fillMasked(functions),
                       [](Frame& f) { f.dst[0].setTo(kPeerColour, f.mask); }),
     ...);
}

// Fills of some channels only.
template <class... Value, class... T>
void addSetsAlone(const char* layout, int channels, Fill<Value, T>... functions) {
    (addAlone(rowName<T>("set", layout), filled<T>(channels, false), fill(functions)), ...);
}
template <class... Value, class... T>
void addMaskedSetsAlone(const char* layout, int channels, MaskedFill<Value, T>... functions) {
    (addAlone(rowName<T>("set_masked", layout), filled<T>(channels, true), fillMasked(functions)), ...);
}

const Rows rows([] {
    addCopies("C1", 1, pxliCopy_8u_C1R, pxliCopy_16s_C1R, pxliCopy_16u_C1R, pxliCopy_32s_C1R, pxliCopy_32f_C1R);
    addCopies("C3", 3, pxliCopy_8u_C3R, pxliCopy_16s_C3R, pxliCopy_16u_C3R, pxliCopy_32s_C3R, pxliCopy_32f_C3R);
    addCopies("C4", 4, pxliCopy_8u_C4R, pxliCopy_16s_C4R, pxliCopy_16u_C4R, pxliCopy_32s_C4R, pxliCopy_32f_C4R);
    addColourCopies("AC4", 4, 4, pxliCopy_8u_AC4R, pxliCopy_16s_AC4R, pxliCopy_16u_AC4R, pxliCopy_32s_AC4R,
                    pxliCopy_32f_AC4R);
    addColourCopies("C3AC4", 3, 4, pxliCopy_8u_C3AC4R, pxliCopy_16s_C3AC4R, pxliCopy_16u_C3AC4R, pxliCopy_32s_C3AC4R,
                    pxliCopy_32f_C3AC4R);
    addColourCopies("AC4C3", 4, 3, pxliCopy_8u_AC4C3R, pxliCopy_16s_AC4C3R, pxliCopy_16u_AC4C3R, pxliCopy_32s_AC4C3R,
                    pxliCopy_32f_AC4C3R);
    addMaskedCopies("C1", 1, pxliCopy_8u_C1MR, pxliCopy_16s_C1MR, pxliCopy_16u_C1MR, pxliCopy_32s_C1MR,
                    pxliCopy_32f_C1MR);
    addMaskedCopies("C3", 3, pxliCopy_8u_C3MR, pxliCopy_16s_C3MR, pxliCopy_16u_C3MR, pxliCopy_32s_C3MR,
                    pxliCopy_32f_C3MR);
    addMaskedCopies("C4", 4, pxliCopy_8u_C4MR, pxliCopy_16s_C4MR, pxliCopy_16u_C4MR, pxliCopy_32s_C4MR,
                    pxliCopy_32f_C4MR);
    addMaskedColourCopies(pxliCopy_8u_AC4MR, pxliCopy_16s_AC4MR, pxliCopy_16u_AC4MR, pxliCopy_32s_AC4MR,
                          pxliCopy_32f_AC4MR);

    addSets("C1", 1, pxliSet_8u_C1R, pxliSet_16s_C1R, pxliSet_16u_C1R, pxliSet_32s_C1R, pxliSet_32f_C1R);
    addSets("C3", 3, pxliSet_8u_C3R, pxliSet_16s_C3R, pxliSet_16u_C3R, pxliSet_32s_C3R, pxliSet_32f_C3R);
    addSets("C4", 4, pxliSet_8u_C4R, pxliSet_16s_C4R, pxliSet_16u_C4R, pxliSet_32s_C4R, pxliSet_32f_C4R);
    addSetsAlone("AC4", 4, pxliSet_8u_AC4R, pxliSet_16s_AC4R, pxliSet_16u_AC4R, pxliSet_32s_AC4R, pxliSet_32f_AC4R);
    addSetsAlone("C3C", 3, pxliSet_8u_C3CR, pxliSet_16s_C3CR, pxliSet_16u_C3CR, pxliSet_32s_C3CR, pxliSet_32f_C3CR);
    addSetsAlone("C4C", 4, pxliSet_8u_C4CR, pxliSet_16s_C4CR, pxliSet_16u_C4CR, pxliSet_32s_C4CR, pxliSet_32f_C4CR);
    addMaskedSets("C1", 1, pxliSet_8u_C1MR, pxliSet_16s_C1MR, pxliSet_16u_C1MR, pxliSet_32s_C1MR, pxliSet_32f_C1MR);
    addMaskedSets("C3", 3, pxliSet_8u_C3MR, pxliSet_16s_C3MR, pxliSet_16u_C3MR, pxliSet_32s_C3MR, pxliSet_32f_C3MR);
    addMaskedSets("C4", 4, pxliSet_8u_C4MR, pxliSet_16s_C4MR, pxliSet_16u_C4MR, pxliSet_32s_C4MR, pxliSet_32f_C4MR);
    addMaskedSetsAlone("AC4", 4, pxliSet_8u_AC4MR, pxliSet_16s_AC4MR, pxliSet_16u_AC4MR, pxliSet_32s_AC4MR,
                       pxliSet_32f_AC4MR);
});

} // namespace
