// One call of a linear filter. A row is a kernel of height 1, a column one of width 1.
#pragma once

#include "image.h"

namespace reference {

struct FilterCall {
    const Arg* images = nullptr; // source, destination, each with its step, and the region
    const Arg* kernel = nullptr;
    int64_t kernelWidth = 1;
    int64_t kernelHeight = 1;
    int64_t anchorX = 0;
    int64_t anchorY = 0;
    const Arg* divisor = nullptr;   // null where the kernel is not an integer one
    const Arg* roundMode = nullptr; // null where the family rounds in its own way
};

bool hasIntegerKernel(const Member& member);

// The checks and the whole filter.
int32_t runFilter(const Member& member, const FilterCall& call);

} // namespace reference
