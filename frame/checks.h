// The argument checks that every family is made of. A family writes them down in one line, in its own order:
//     if (const PxlStatus status = check(null(src, dst), size(roi), steps(src, dst))) return status;
#pragma once

#include "frame/image.h"
#include "pxli.h"

namespace pxl::PXL_TARGET {

// One check: whether it failed, and the status that it then stands for.
struct Check {
    bool failed;
    PxlStatus status;
};

// A check that may be made only where those before it have passed: test() says whether it fails.
template <class Test>
struct LateCheck {
    Test test;
    PxlStatus status;
};

inline bool fails(const Check& c) { return c.failed; }
template <class Test>
inline bool fails(const LateCheck<Test>& c) {
    return c.test();
}

// The status of the first check that fails, or PXL_OK.
template <class... Checks>
inline PxlStatus check(const Checks&... checks) {
    PxlStatus status = PXL_OK;
    (void)(... || (fails(checks) && (status = checks.status, true)));
    return status;
}

// ---- pointers -------------------------------------------------------------------------------------------------------

template <class T>
inline bool isNull(T* pointer) {
    return pointer == nullptr;
}
template <class T, int Elements, int Channels>
inline bool isNull(const Image<T, Elements, Channels>& image) {
    return image.base == nullptr;
}
template <class T, int Count>
inline bool isNull(const Values<T, Count>& values) {
    return values.base == nullptr;
}
// The array and then each of its planes.
template <class T, int Count>
inline bool isNull(const Planes<T, Count>& planes) {
    if (!planes.bases) return true;
    for (int p = 0; p < Count; ++p)
        if (!planes.bases[p]) return true;
    return false;
}

template <class... Operand>
inline Check null(const Operand&... operands) {
    return {(... || isNull(operands)), PXL_E_NULL_PTR};
}

// ---- sizes and steps ------------------------------------------------------------------------------------------------

inline bool isEmpty(ImageSize size) { return size.width < 1 || size.height < 1; }

inline Check size(ImageSize roi) { return {isEmpty(roi), PXL_E_SIZE}; }

// Members that treat three or four channels alike widen the region and pass it on to the one-channel form, so they look at the
// width before anything else.
template <class T, int Elements, int Channels>
inline Check widenedSize(const Image<T, Elements, Channels>&, ImageSize roi) {
    return {Elements > 1 && Channels == Elements && roi.width < 1, PXL_E_SIZE};
}

template <class... Operand>
inline Check steps(const Operand&... operands) {
    return {(... || (operands.step < 1)), PXL_E_STEP};
}

// ---- anything else --------------------------------------------------------------------------------------------------

inline Check refuse(bool failed, PxlStatus status) { return {failed, status}; }

// For tests that read what a pointer leads to.
template <class Test>
inline LateCheck<Test> refuseIf(Test test, PxlStatus status) {
    return {test, status};
}

// A check that only some members of a family make.
inline Check onlyIf(bool made, Check c) { return {made && c.failed, c.status}; }

inline Check roundMode(PxlRoundMode mode) {
    return {mode < PXL_ROUND_ZERO || mode > PXL_ROUND_HALF_AWAY, PXL_E_ROUND_MODE};
}

} // namespace pxl::PXL_TARGET
