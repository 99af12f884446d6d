// Box filter: the mean of the mask's window around every pixel, by running sums.
//
// Integer sums are exact whatever their order, but 32f sums show every rounding. So the chain of additions is one and
// the same for all: column sums that begin anew at certain rows and move down from there, and a window sum that moves
// along them.
#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include "image.h"

namespace reference {

namespace {

struct Call {
    const Arg& src;
    const Arg& srcStep;
    const Arg& dst;
    const Arg& dstStep;
    const Arg& roi;
    const Arg& mask;
    const Arg& anchor;
};

Call callOf(const Member& member, const Arg* args) {
    if (member.mode == "IR") return {args[0], args[1], args[0], args[1], args[2], args[3], args[4]};
    return {args[0], args[1], args[2], args[3], args[4], args[5], args[6]};
}

int32_t check(const Call& call) {
    const Arg& mask = call.mask;
    const Arg& anchor = call.anchor;
    if (call.src.ptr == nullptr || call.dst.ptr == nullptr) return nullPtrError;
    if (call.srcStep.num < 1 || call.dstStep.num < 1) return stepError;
    if (isEmpty(call.roi)) return sizeError;
    if (isEmpty(mask)) return maskSizeError;
    if (anchor.width < 0 || anchor.height < 0) return anchorError;
    if (anchor.width >= mask.width || anchor.height >= mask.height) return anchorError;
    return ok;
}

// The samples of one channel that the windows reach. Row 0 and column 0 are those of the first window.
template <typename Sum>
struct Samples {
    int64_t columns = 0;
    std::vector<Sum> values;

    Sum at(int64_t column, int64_t row) const { return values[static_cast<size_t>(row * columns + column)]; }
};

// The sums of one channel while the window moves over the region.
template <typename Sum>
class Running {
public:
    Running(Samples<Sum> channelSamples, const Arg& maskSize)
        : samples(std::move(channelSamples)), mask(maskSize), columnSums(static_cast<size_t>(samples.columns)) {}

    // The column sums of the windows of row y, from their samples.
    void begin(int64_t y) {
        for (int64_t k = 0; k < samples.columns; ++k) {
            column(k) = 0;
            for (int64_t j = 0; j < mask.height; ++j) {
                column(k) = column(k) + samples.at(k, y + j);
            }
        }
    }

    // visit(x, sum)
    template <typename Visit>
    void forEachWindow(int64_t width, Visit visit) {
        Sum sum = 0;
        for (int64_t k = 0; k < mask.width; ++k) {
            sum = sum + column(k);
        }
        visit(0, sum);
        for (int64_t x = 1; x < width; ++x) {
            sum = sum + column(x - 1 + mask.width);
            sum = sum - column(x - 1);
            visit(x, sum);
        }
    }

    // The same from those of the row above.
    void moveDownTo(int64_t y) {
        for (int64_t k = 0; k < samples.columns; ++k) {
            const Sum difference = samples.at(k, y - 1 + mask.height) - samples.at(k, y - 1);
            column(k) = column(k) + difference;
        }
    }

private:
    Sum& column(int64_t k) { return columnSums[static_cast<size_t>(k)]; }

    Samples<Sum> samples;
    const Arg& mask;
    std::vector<Sum> columnSums;
};

// All samples are taken before the first mean is written, so that a call in place sees the image as it was.
template <typename Sum, typename Read>
Samples<Sum> takeSamples(const Call& call, const Image& src, int c, Read read) {
    const int64_t rows = int64_t{call.roi.height} + call.mask.height - 1;
    Samples<Sum> samples{.columns = int64_t{call.roi.width} + call.mask.width - 1, .values = {}};
    for (int64_t y = 0; y < rows; ++y) {
        for (int64_t x = 0; x < samples.columns; ++x) {
            samples.values.push_back(read(src.at(x - call.anchor.width, y - call.anchor.height, c)));
        }
    }
    return samples;
}

// Column sums begin anew at rows that are multiples of this, whatever the threads: the height in as many parts, a power of
// two, as leaves them at least 128 rows and four masks high, rounded up to a multiple of 8.
int64_t restartDistance(int64_t height, int64_t maskHeight) {
    const int64_t most = height / std::max<int64_t>(128, 4 * maskHeight);
    int64_t blocks = 1;
    while (2 * blocks <= most) {
        blocks = 2 * blocks;
    }
    return (height + 8 * blocks - 1) / (8 * blocks) * 8;
}

template <typename Sum, typename Read, typename Write>
void filterChannels(const Call& call, const Image& src, const Image& dst, Read read, Write write) {
    const int64_t distance = restartDistance(call.roi.height, call.mask.height);
    std::vector<Running<Sum>> channels;
    for (int c = 0; c < src.active; ++c) {
        channels.emplace_back(takeSamples<Sum>(call, src, c, read), call.mask);
    }
    for (int64_t y = 0; y < call.roi.height; ++y) {
        for (int c = 0; c < src.active; ++c) {
            Running<Sum>& channel = channels[static_cast<size_t>(c)];
            if (y % distance == 0) {
                channel.begin(y);
            } else {
                channel.moveDownTo(y);
            }
            channel.forEachWindow(call.roi.width, [&](int64_t x, Sum sum) { write(dst.at(x, y, c), sum); });
        }
    }
}

using Mean = std::function<int64_t(int64_t sum)>;

// Keeps 12 leading bits of the reciprocal. One more in the last of them makes up for those cut off.
Mean byteMean(float reciprocal) {
    auto v = static_cast<uint32_t>(static_cast<double>(reciprocal) * 4294967295.0);
    uint32_t k = 0;
    for (; k < 24 && v >> 31 == 0; ++k) {
        v = v * 2;
    }
    const uint32_t multiplier = (v >> 20) + 1;
    const uint32_t shift = k + 12;
    return [=](int64_t sum) { return int64_t{(multiplier * static_cast<uint32_t>(sum)) >> shift}; };
}

Mean threeByThreeMean() {
    return [](int64_t sum) { return (sum * 29128) >> 18; };
}

Mean truncatedMean(float reciprocal, int64_t bias) {
    return [=](int64_t sum) {
        const float product = static_cast<float>(sum) * reciprocal;
        const float mean = product + 9.0e-6F;
        return static_cast<int64_t>(mean) - bias;
    };
}

// Only the addition is in double precision, not the product.
Mean truncatedWideMean(float reciprocal, int64_t bias) {
    return [=](int64_t sum) {
        const float product = static_cast<float>(sum) * reciprocal;
        const double mean = static_cast<double>(product) + 9.0e-6;
        return static_cast<int64_t>(mean) - bias;
    };
}

Mean roundedMean(float reciprocal) {
    return [=](int64_t sum) {
        const float product = static_cast<float>(sum) * reciprocal;
        return static_cast<int64_t>(static_cast<double>(product) + 0.5000001);
    };
}

int32_t areaOf(const Arg& mask) {
    return static_cast<int32_t>(static_cast<uint32_t>(mask.width) * static_cast<uint32_t>(mask.height));
}

// 16s samples are summed with the lowest value taken off, which makes them non-negative.
int64_t biasOf(const Member& member) { return -lowest(elementOf(member.src)); }

Mean meanOf(const Member& member, const Arg& mask, float reciprocal) {
    if (member.src == "16u") return roundedMean(reciprocal);
    if (member.src == "16s") {
        return member.layout == "C4" ? truncatedWideMean(reciprocal, biasOf(member))
                                     : truncatedMean(reciprocal, biasOf(member));
    }
    if (areaOf(mask) > 8100) return truncatedMean(reciprocal, 0);
    const bool isThreeByThree = mask.width == 3 && mask.height == 3;
    return member.layout == "C3" && isThreeByThree ? threeByThreeMean() : byteMean(reciprocal);
}

void filterIntegers(const Member& member, const Call& call, const Image& src, const Image& dst, float reciprocal) {
    const Element type = elementOf(member.src);
    const int64_t bias = biasOf(member);
    const Mean mean = meanOf(member, call.mask, reciprocal);
    filterChannels<int64_t>(
        call, src, dst, [=](const uint8_t* sample) { return readInt(type, sample) + bias; },
        [&](uint8_t* element, int64_t sum) { writeInt(type, element, mean(sum)); });
}

void filterFloats(const Member& member, const Call& call, const Image& src, const Image& dst, float reciprocal) {
    const Element type = elementOf(member.src);
    filterChannels<float>(
        call, src, dst, [=](const uint8_t* sample) { return static_cast<float>(readReal(type, sample)); },
        [=](uint8_t* element, float sum) {
            const float mean = sum * reciprocal;
            writeReal(type, element, static_cast<double>(mean));
        });
}

// Running sums in single precision would not give every sample back.
void copyPixels(const Call& call, const Image& src, const Image& dst) {
    forEachPixel(call.roi, [&](int64_t x, int64_t y) { dst.store(x, y, src.load(x, y)); });
}

int32_t filterBox(const Member& member, const Arg* args) {
    const Call call = callOf(member, args);
    if (const int32_t status = check(call); status != ok) return status;

    const Element type = elementOf(member.src);
    const Side side = layoutOf(member.layout).src;
    const Image src = imageOfWholeElements(call.src, call.srcStep, side, type);
    const Image dst = imageOfWholeElements(call.dst, call.dstStep, side, type);
    const float reciprocal = 1.0F / static_cast<float>(areaOf(call.mask));
    if (call.mask.width == 1 && call.mask.height == 1) {
        copyPixels(call, src, dst);
    } else if (type.isFloat) {
        filterFloats(member, call, src, dst, reciprocal);
    } else {
        filterIntegers(member, call, src, dst, reciprocal);
    }
    return ok;
}

const Registered filterBoxFamily("FilterBox", filterBox);

} // namespace

} // namespace reference
