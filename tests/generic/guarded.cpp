#include "generic/guarded.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/mman.h>
#include <unistd.h>
#endif

#include <new>

namespace generic {

namespace {

#ifdef _WIN32
constexpr size_t page = 4096;

void* reserve(size_t bytes) { return VirtualAlloc(nullptr, bytes, MEM_RESERVE, PAGE_NOACCESS); }
bool open(void* address, size_t bytes) { return VirtualAlloc(address, bytes, MEM_COMMIT, PAGE_READWRITE); }
void release(void* address, size_t) { VirtualFree(address, 0, MEM_RELEASE); }
#else
const size_t page = static_cast<size_t>(sysconf(_SC_PAGESIZE));

void* reserve(size_t bytes) {
    void* all = mmap(nullptr, bytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return all == MAP_FAILED ? nullptr : all;
}
bool open(void* address, size_t bytes) { return mprotect(address, bytes, PROT_READ | PROT_WRITE) == 0; }
void release(void* address, size_t bytes) { munmap(address, bytes); }
#endif

} // namespace

Guarded::Guarded() {
    void* all = reserve(size + 2 * page);
    if (!all) throw std::bad_alloc();
    begin_ = static_cast<uint8_t*>(all) + page;
    if (!open(begin_, size)) throw std::bad_alloc();
}

Guarded::~Guarded() { release(begin_ - page, size + 2 * page); }

} // namespace generic
