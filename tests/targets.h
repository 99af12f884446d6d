// Forces an instruction set for the length of a scope. Tests are linked with the library's objects, not with the shared
// library, so that they can reach its choice.
#pragma once

#include <span>

#include "frame/target.h"

struct Target {
    const char* name;
    bool avx2;
};

inline std::span<const Target> availableTargets() {
    static constexpr Target all[] = {{"sse2", false}, {"avx2", true}};
#ifdef PXL_WITH_AVX2
    return {all, __builtin_cpu_supports("avx2") ? size_t{2} : size_t{1}};
#else
    return {all, 1};
#endif
}

class TargetScope {
public:
    explicit TargetScope(const Target& target) : before_(pxl::useAvx2) { pxl::useAvx2 = target.avx2; }
    ~TargetScope() { pxl::useAvx2 = before_; }
    TargetScope(const TargetScope&) = delete;
    TargetScope& operator=(const TargetScope&) = delete;

private:
    bool before_;
};
