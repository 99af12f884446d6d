// Made-up reductions over the engine of reduce/, one set per target: internal/reduce_probe.cpp is compiled once for each.
#pragma once

#include <cstdint>

#include "pxli.h"

// The operands of a reduction; pixels of `elements` elements, of which the first `channels` are reduced.
struct ReduceOperands {
    ImageSize roi;
    int elements, channels;
    const void* src;
    int srcStep;
    const void* other = nullptr; // a second source, or null
    int otherStep = 0;
};

struct ReduceProbe {
    const char* target;
    const ReduceProbe* next; // those of all targets are linked to one another
    // Per channel: sums of elements, or of absolute differences to the second source.
    void (*sums8u)(const ReduceOperands&, uint64_t*);
    void (*sums16u)(const ReduceOperands&, uint64_t*);
    // r = 0.75 r + the sum of a row, from the first row to the last; of one source.
    void (*sumsOfRows16u)(const ReduceOperands&, double*);
    // Sums in 24 parts, of elements or of differences to the second source.
    void (*sums32f)(const ReduceOperands&, double*);
    // The largest element and its first place; of one source.
    void (*largest8u)(const ReduceOperands&, uint8_t*, ImagePoint*);
    void (*largest32f)(const ReduceOperands&, float*, ImagePoint*);
};

// The last of them; each puts itself before the others.
extern const ReduceProbe* reduceProbes;
