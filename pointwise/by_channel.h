// Operations with several numbers for each channel. As constants they get the numbers of the channels, 0, 1, 2 and 3; what
// belongs to a channel they put into its lanes when they are prepared.
#pragma once

#include "pointwise/operands.h"

namespace pxl::PXL_TARGET::pointwise {

template <class T>
inline constexpr T channelNumbers[4] = {0, 1, 2, 3};

// The constants of such an operation.
template <class T, int Channels>
inline constexpr Values<T, Channels> numbersOfChannels{channelNumbers<T>};

// A number for each channel.
template <class T>
class ByChannel {
public:
    template <class Number, int Channels>
    explicit ByChannel(Values<Number, Channels> numbers) : count_(Channels) {
        for (int c = 0; c < Channels; ++c) of_[c] = numbers[c];
    }

    PXL_INLINE Vec<T> inLanes(Vec<T> channels) const {
        Vec<T> lanes = Set<T>(of_[0]);
        for (int c = 1; c < count_; ++c)
            lanes = IfThenElse(channels == Set<T>(static_cast<T>(c)), Set<T>(of_[c]), lanes);
        return lanes;
    }
    T operator[](int channel) const { return of_[channel]; }

private:
    int count_;
    T of_[4];
};

} // namespace pxl::PXL_TARGET::pointwise
