// What the operands of a call lie in: one set of guarded memories per runner of the call.
#pragma once

#include <cstring>
#include <vector>

#include "generic/call.h"
#include "generic/guarded.h"

namespace generic {

class Memories {
public:
    uint8_t* at(int i) const { return sets_[i].begin(); }
    std::vector<uint8_t*> pointers() const {
        std::vector<uint8_t*> all;
        for (const Guarded& g : sets_) all.push_back(g.begin());
        return all;
    }
    // As much as a call may touch, and some bytes beside it.
    void copyTo(const Memories& other, const Call& call) const {
        for (int i = 0; i < call.memories; ++i) {
            const Reach window = call.window(i);
            std::memcpy(other.at(i) + window.low, at(i) + window.low, static_cast<size_t>(window.length()));
        }
    }
    bool equals(const Memories& other, const Call& call) const {
        for (int i = 0; i < call.memories; ++i) {
            const Reach window = call.window(i);
            if (std::memcmp(other.at(i) + window.low, at(i) + window.low, static_cast<size_t>(window.length())) != 0)
                return false;
        }
        return true;
    }

private:
    Guarded sets_[Call::maxMemories];
};

} // namespace generic
