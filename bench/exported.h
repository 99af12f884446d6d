// Calls of exported functions by their names, for rows that are alike but for the type and the layout. Where images, steps and
// numbers stand among the arguments, the registry tells.
#pragma once

#include "generic/member.h"
#include "pair.h"

#include <array>

namespace pxlbench {

// What a call takes beside images: the constant (shift) of channel c, or part c of complex ones, is constants[c].
struct Numbers {
    int scaleFactor = 0;
    int roundMode = PXL_ROUND_NEAR_EVEN;
    std::array<int, 8> constants{};
};

class ExportedCall {
public:
    // The name without its prefix.
    ExportedCall(const std::string& name, const Numbers& numbers);
    ExportedCall(const ExportedCall&) = delete;

    int operator()(Frame& f);

    // OpenCV types of the images that the function reads only, and of the one that it writes.
    const std::vector<int>& sources() const { return sources_; }
    int destination() const { return destination_; }

private:
    struct Place {
        int image, step;
    };

    void store(int position, const Numbers& numbers);

    const generic::Member* member_;
    std::vector<reference::Arg> args_;
    std::vector<Place> sourcePlaces_;
    Place destinationPlace_{};
    int sizePlace_ = 0;
    std::vector<int> sources_;
    int destination_ = 0;
    alignas(16) std::array<uint8_t, 64> constants_{}; // in the type of the elements
};

} // namespace pxlbench
