#include "frame/memory.h"

#include <cstdlib>
#include <cstring>

namespace pxl {

namespace {

constexpr int64_t alignment = 32;
constexpr int64_t overhead = alignment + 8; // the farthest aligned address behind the 8 bytes of the raw one

} // namespace

void* ownMallocLarge(int64_t bytes) {
    if (bytes < 1 || bytes > INT64_MAX - overhead) return nullptr;
    void* raw = std::malloc(static_cast<size_t>(bytes + overhead));
    if (!raw) return nullptr;
    const uintptr_t address = (reinterpret_cast<uintptr_t>(raw) + overhead - 1) & ~uintptr_t{alignment - 1};
    char* block = reinterpret_cast<char*>(address);
    std::memcpy(block - sizeof raw, &raw, sizeof raw);
    return block;
}

void* ownMalloc(int32_t n) { return ownMallocLarge(n); }
void* ownMalloc2(int32_t count) { return ownMallocLarge(int64_t{count} * 2); }
void* ownMalloc4(int32_t count) { return ownMallocLarge(int64_t{count} * 4); }
void* ownMalloc8(int32_t count) { return ownMallocLarge(int64_t{count} * 8); }

void ownFree(void* block) {
    if (!block) return;
    void* raw;
    std::memcpy(&raw, static_cast<char*>(block) - sizeof raw, sizeof raw);
    std::free(raw);
}

void* ownMallocImageBytes(int width, int height, int pixelBytes, int* stepBytes) {
    if (!stepBytes) return nullptr;
    *stepBytes = 0;
    if (width < 1 || height < 1) return nullptr;
    const int64_t step = (int64_t{width} * pixelBytes + alignment - 1) & ~(alignment - 1);
    *stepBytes = static_cast<int>(step);
    // What decides is the stored step and a 32-bit product, both of which wrap. But a block that is given holds what was asked
    // for: all rows at their true length, and none before its start.
    const int32_t product = static_cast<int32_t>(static_cast<uint32_t>(step) * static_cast<uint32_t>(height));
    int64_t bytes;
    if (product < 1 || *stepBytes < 0 || __builtin_mul_overflow(step, int64_t{height}, &bytes)) return nullptr;
    return ownMallocLarge(bytes);
}

} // namespace pxl
