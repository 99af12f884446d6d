// The internal aligned allocator. Blocks are aligned to 32 bytes; the 8 bytes below a block hold the address that malloc gave.
#pragma once

#include <cstdint>

namespace pxl {

// A block of n bytes, or null for n < 1 or when there is no memory. The companions count elements of 2, 4 and 8 bytes.
void* ownMalloc(int32_t n);
void* ownMalloc2(int32_t count);
void* ownMalloc4(int32_t count);
void* ownMalloc8(int32_t count);

void ownFree(void* block);

void* ownMallocImageBytes(int width, int height, int pixelBytes, int* stepBytes);

// What a generated allocator calls: the pointer converts to the element type of the member.
struct ImageBlock {
    void* address;
    template <class T>
    operator T*() const {
        return static_cast<T*>(address);
    }
};

template <int PixelBytes>
ImageBlock ownMallocImage(int width, int height, int* stepBytes) {
    return {ownMallocImageBytes(width, height, PixelBytes, stepBytes)};
}

// Scratch memory of one call: released when it goes out of scope, whatever the path.
template <class T>
class Scratch {
public:
    explicit Scratch(int64_t count) : block_(allocate(count)) {}
    ~Scratch() { ownFree(block_); }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    T* get() const { return static_cast<T*>(block_); }
    explicit operator bool() const { return block_ != nullptr; }

private:
    static void* allocate(int64_t count);
    void* block_;
};

void* ownMallocLarge(int64_t bytes); // as ownMalloc, for sizes beyond 31 bits

template <class T>
void* Scratch<T>::allocate(int64_t count) {
    return ownMallocLarge(count * static_cast<int64_t>(sizeof(T)));
}

} // namespace pxl
