// Builds one random call: numbers first (arguments.cpp), then, for whatever region they describe, the places of the
// images in memory (placement.cpp).
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
    const Param& param(int i) const { return call_.member->params[i]; }
    reference::Arg& arg(int i) { return call_.args[static_cast<size_t>(i)]; }
    bool has(std::string_view name) const { return call_.member->find(name) >= 0; }
    reference::Arg& named(std::string_view name) { return arg(call_.member->find(name)); }
    bool isFilter() const;

    void chooseSizes();
    void chooseBorderSizes(int64_t width, int64_t height);
    void chooseWindow();
    void chooseScalar(int i);
    void chooseInteger(int i);
    void chooseElement(int i);
    void chooseArray(int i);
    void chooseKernel(int i);
    void chooseSteps();
    int64_t chooseStep(int64_t rowBytes, bool written);
    void breakSize(int i);
    void breakInteger(int i);

    // What an image parameter covers, in pixels relative to its pointer.
    struct Area {
        int64_t x0, y0, x1, y1;
        int64_t width() const { return x1 - x0; }
        int64_t height() const { return y1 - y0; }
    };
    Area areaOf(const Param& p);
    int64_t rowBytes(const Param& p, int64_t width);
    Reach reachOf(int i);
    void placeImages();
    bool mayOverlap(int source, int destination);
    void placeOverlapping(int source, int destination);

    Random& random_;
    Call call_;
};

} // namespace generic
