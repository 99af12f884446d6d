// Random calls of any member: valid ones, and ones with arguments broken on purpose.
#pragma once

#include <random>
#include <string>
#include <vector>

#include "generic/member.h"

namespace generic {

using Random = std::mt19937_64;

inline int64_t between(Random& random, int64_t low, int64_t high) {
    return std::uniform_int_distribution<int64_t>(low, high)(random);
}
inline bool chance(Random& random, int percent) { return between(random, 1, 100) <= percent; }

// The bytes, relative to an image's pointer, that a call may touch.
struct Reach {
    int64_t low = 0;
    int64_t high = 0;
    int64_t length() const { return high - low; }
};

// Where one image (or plane) lies: which memory, and where its pointer stands in it.
struct Placed {
    int param;
    int plane;
    int memory;
    int64_t position;
    bool null = false;
};

// A call in terms of positions, so that it can be laid over several sets of memory that hold the same bytes.
struct Call {
    const Member* member;
    std::vector<reference::Arg> args; // numbers, sizes and steps; pointers are filled in by bind()
    std::vector<Placed> images;
    std::vector<std::vector<uint8_t>> arrays; // value and order arrays, by parameter
    std::vector<bool> nulls;                  // parameters passed as null
    std::vector<Reach> reaches;               // by parameter
    int memories = 0;                         // sets of memory in use

    // The arguments with every pointer into the given memories. The result refers to `planes`.
    std::vector<reference::Arg> bind(const std::vector<uint8_t*>& memory,
                                     std::vector<std::vector<void*>>& planes) const;
    // The part of a memory that the call may touch, and some bytes on both sides of it.
    Reach window(int memory) const;
    std::string describe() const;
};

// A call that the member's rules allow, but for steps: now and then they are 0 or negative, which some families refuse.
Call randomCall(const Member& member, Random& random);

// The same with one or two arguments out of order.
Call brokenCall(const Member& member, Random& random);

// The same with these two, which may be one.
Call brokenCall(const Member& member, Random& random, int first, int second);

// Fills the window of a memory with bytes that make sense for the images placed in it.
void fillMemory(const Call& call, int memory, uint8_t* bytes, Random& random);

} // namespace generic
