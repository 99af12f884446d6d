#include "failing_malloc.h"

#include <atomic>

namespace {
std::atomic<int> callsUntilFailure = -1; // -1: never. For all threads: a team member may be the one that allocates.
}

extern "C" {
void* __real_malloc(size_t size);
void* __wrap_malloc(size_t size) {
    int left = callsUntilFailure.load();
    while (left > 0 && !callsUntilFailure.compare_exchange_weak(left, left - 1)) {
    }
    return left == 0 || left == 1 ? nullptr : __real_malloc(size);
}
}

FailingMalloc::FailingMalloc(int nth) { callsUntilFailure = nth; }
FailingMalloc::~FailingMalloc() { callsUntilFailure = -1; }
