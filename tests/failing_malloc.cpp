#include "failing_malloc.h"

namespace {
thread_local int callsUntilFailure = -1; // -1: never
}

extern "C" {
void* __real_malloc(size_t size);
void* __wrap_malloc(size_t size) {
    if (callsUntilFailure == 0) return nullptr;
    if (callsUntilFailure > 0 && --callsUntilFailure == 0) return nullptr;
    return __real_malloc(size);
}
}

FailingMalloc::FailingMalloc(int nth) { callsUntilFailure = nth; }
FailingMalloc::~FailingMalloc() { callsUntilFailure = -1; }
