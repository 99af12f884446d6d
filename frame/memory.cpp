#include "frame/memory.h"

#include <cstdlib>
#include <cstring>

namespace pxl {

namespace {

constexpr int64_t alignment = 32;
constexpr int64_t overhead = alignment + 8; // the farthest aligned address behind the 8 bytes of the raw one

} // namespace

void* ownMallocLarge(int64_t bytes) {
    if (bytes < 1) return nullptr;
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
    // The product is a 32-bit one by definition: it wraps, and a wrapped size below 1 is refused.
    const uint32_t size = static_cast<uint32_t>(*stepBytes) * static_cast<uint32_t>(height);
    return ownMalloc(static_cast<int32_t>(size));
}

} // namespace pxl
