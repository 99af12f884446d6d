#include "failing_malloc.h"

#include <atomic>
#include <cstddef>

namespace {
// For all threads: a team member may be the one that allocates.
std::atomic<int> mallocCalls, failingCall, liveBlocks;
} // namespace

extern "C" {
void* __real_malloc(size_t size);
void __real_free(void* block);

void* __wrap_malloc(size_t size) {
    void* block = ++mallocCalls == failingCall ? nullptr : __real_malloc(size);
    if (block) ++liveBlocks;
    return block;
}

void __wrap_free(void* block) {
    if (block) --liveBlocks;
    __real_free(block);
}
}

FailingMalloc::FailingMalloc(int nth) {
    mallocCalls = liveBlocks = 0;
    failingCall = nth;
}
FailingMalloc::~FailingMalloc() { failingCall = 0; }

int FailingMalloc::calls() const { return mallocCalls; }
int FailingMalloc::unreleased() const { return liveBlocks; }
