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

// The bytes, relative to an operand's pointer, that a call may touch.
struct Reach {
    int64_t low = 0;
    int64_t high = 0;
    int64_t length() const { return high - low; }
};

// What an image covers, in pixels relative to its pointer.
struct Area {
    int64_t x0 = 0, y0 = 0, x1 = 0, y1 = 0;
    int64_t width() const { return x1 - x0; }
    int64_t height() const { return y1 - y0; }
};

// Where an image, a plane or an array lies: which memory, and where its pointer stands in it.
struct Placed {
    int param;
    int plane;
    int memory;
    int64_t position;
    Reach reach = {};
    Area area = {};                  // of an image, without what a window reads around it
    std::vector<uint8_t> bytes = {}; // what an array holds; images are filled at random
    bool null = false;
};

// A call in terms of positions, so that it can be laid over several sets of memory that hold the same bytes.
struct Call {
    static constexpr int maxMemories = 20;

    const Member* member;
    std::vector<reference::Arg> args; // numbers, sizes and steps; pointers are filled in by bind()
    std::vector<Placed> operands;
    std::vector<int> pointers; // by parameter: the memory whose last bytes are its array of pointers, or -1
    std::vector<bool> nulls;   // parameters passed as null
    int memories = 0;          // in use

    // The arguments with every pointer into the given memories, which get the arrays of pointers.
    std::vector<reference::Arg> bind(const std::vector<uint8_t*>& memory) const;
    // The part of a memory that the call may touch, and some bytes on both sides of it; empty for arrays of pointers.
    Reach window(int memory) const;
    std::string describe() const;
};

// A call that the member's rules allow, but for steps: now and then they are 0 or negative, which some families refuse.
Call randomCall(const Member& member, Random& random);

// The same with one or two arguments out of order.
Call brokenCall(const Member& member, Random& random);

// The same with these two, which may be one.
Call brokenCall(const Member& member, Random& random, int first, int second);

// Fills the window of a memory with bytes that make sense for the operands placed in it.
void fillMemory(const Call& call, int memory, uint8_t* bytes, Random& random);

} // namespace generic
