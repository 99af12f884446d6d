#include "generic/guarded.h"

#include <sys/mman.h>
#include <unistd.h>

#include <new>

namespace generic {

namespace {
const size_t page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
}

Guarded::Guarded() {
    void* all = mmap(nullptr, size + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (all == MAP_FAILED) throw std::bad_alloc();
    begin_ = static_cast<uint8_t*>(all) + page;
    if (mprotect(begin_, size, PROT_READ | PROT_WRITE) != 0) throw std::bad_alloc();
}

Guarded::~Guarded() { munmap(begin_ - page, size + 2 * page); }

} // namespace generic
