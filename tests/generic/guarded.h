// Memory between inaccessible pages: a byte read or written outside it ends the test.
#pragma once

#include <cstddef>
#include <cstdint>

namespace generic {

class Guarded {
public:
    static constexpr size_t size = 1 << 20;

    Guarded();
    ~Guarded();
    Guarded(const Guarded&) = delete;
    Guarded& operator=(const Guarded&) = delete;

    uint8_t* begin() const { return begin_; }
    uint8_t* end() const { return begin_ + size; }

private:
    uint8_t* begin_;
};

} // namespace generic
