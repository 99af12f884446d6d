// What the processor can do at best for a linear filter: a multiplication and an addition per tap, from registers, with no
// fused operation. Items are taps of one element; those of bound_clock are cycles.
#include <iterator>

#include "pair.h"
#include "target_list.h"

using namespace pxlbench;

namespace {

// One tap of eight sums side by side, which is enough to hide the latency of an addition.
#define TAP(mul, add, sum) mul " %%ymm8, %%ymm8, %%ymm9\n\t" add " %%ymm9, %%ymm" sum ", %%ymm" sum "\n\t"
#define TAPS(mul, add)                                                                                                 \
    TAP(mul, add, "0")                                                                                                 \
    TAP(mul, add, "1")                                                                                                 \
    TAP(mul, add, "2")                                                                                                 \
    TAP(mul, add, "3")                                                                                                 \
    TAP(mul, add, "4")                                                                                                 \
    TAP(mul, add, "5") TAP(mul, add, "6") TAP(mul, add, "7")
#define REGISTERS "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7", "xmm8", "xmm9"

constexpr int rounds = 1000;

template <class Round>
void addBound(const char* name, int items, Round round) {
    benchmark::RegisterBenchmark(name, [=](benchmark::State& state) mutable {
        for (auto _ : state)
            for (int i = 0; i < rounds; ++i) round();
        state.SetItemsProcessed(state.iterations() * rounds * items);
    });
}

void addVectorBounds() {
    addBound("bound_32f/pxl/registers", 8 * 8, [] { asm volatile(TAPS("vmulps", "vaddps")::: REGISTERS); });
    addBound("bound_8u/pxl/registers", 8 * 32, [] { asm volatile(TAPS("vpmaddubsw", "vpaddw")::: REGISTERS); });
    addBound("bound_16s/pxl/registers", 8 * 16, [] { asm volatile(TAPS("vpmaddwd", "vpaddd")::: REGISTERS); });
}

const Rows rows([] {
    addBound("bound_clock/pxl/registers", 1, [sum = uint64_t{0}]() mutable { asm volatile("add $1, %0" : "+r"(sum)); });
    if (std::size(pxl::knownTargets) > 1 && pxl::knownTargets[1].isOffered()) addVectorBounds(); // vectors of 32 bytes
});

} // namespace
