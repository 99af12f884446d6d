// Builds one random call: numbers first (arguments.cpp), then what arrays hold (arrays.cpp), then, for whatever region the
// numbers describe, the places of images and arrays in memory (placement.cpp).
#pragma once

#include <utility>

#include "generic/call.h"
#include "generic/guarded.h"

namespace generic {

inline constexpr int64_t memorySize = static_cast<int64_t>(Guarded::size);

float randomReal(Random& random);
// Without infinities, NaN and values that swallow others.
float tameReal(Random& random);
// An integer of that many bits that likes small values and the ends of the range.
int64_t randomInteger(Random& random, int bits);

class Builder {
public:
    Builder(const Member& member, Random& random);

    // Makes an argument wrong: the given one, or any.
    void breakArgument(int i);
    void breakOne();
    Call place();

private:
    using Bytes = std::vector<uint8_t>;

    const Member& member() const { return *call_.member; }
    const Facts& facts() const { return call_.member->facts; }
    const Param& param(int i) const { return call_.member->params[i]; }
    reference::Arg& arg(int i) { return call_.args[static_cast<size_t>(i)]; }
    reference::Arg& arg(Meaning meaning) { return arg(member().find(meaning)); }
    std::vector<Bytes>& contents(int i) { return contents_[static_cast<size_t>(i)]; }

    // Numbers.
    void chooseSizes();
    void chooseRegion(reference::Arg& size);
    void chooseOuter(const reference::Arg& inner, reference::Arg& outer);
    void chooseWindow(const Window& window);
    void chooseSide(int64_t& length, int64_t& anchor, bool mirrored, int64_t limit);
    void chooseNumber(int i);
    int64_t randomNumber(const Param& p);
    int64_t validNumber(const Valid& valid);
    void chooseElement(int i);
    void chooseSteps();
    int64_t chooseStep(int64_t rowBytes, bool written);
    void breakSize(int i);
    void breakPoint(int i);
    void breakNumber(int i);

    // Arrays.
    void chooseArray(int i);
    Bytes randomArray(const Param& p, int64_t count);
    Bytes randomTaps(const Param& p, int64_t count);
    Bytes randomEnds(const Param& p, int64_t count);
    int64_t entries(const Param& p, int channel);
    void breakArray(int i);

    // Places.
    Area plainArea(int i);
    Area areaOf(int i); // with what a window reads around it
    Area around(Area area, const Window& window);
    int64_t rowBytes(const Param& p, int64_t width);
    Reach reachOf(int i);
    void placeImages();
    void placeImage(int i);
    void placeArray(int i);
    void placePointers(int i);
    bool mayOverlap(int source, int destination);
    void placeOverlapping(int source, int destination);

    Random& random_;
    Call call_;
    int region_ = -1;                          // the size that comes first
    std::vector<std::vector<Bytes>> contents_; // of arrays, by parameter and channel
};

} // namespace generic
