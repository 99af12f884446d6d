// Linear filters: true convolutions, so the kernel is mirrored. With K[j][i] the coefficient in row j and column i,
// dst(x, y) is the sum of K[j][i] * src(x + anchorX - i, y + anchorY - j).
//
// The floating-point variables carry the precision that is meant: every product and every sum is rounded to it.
#include "filter.h"

#include <cstring>

#include "filter_rounding.h"

namespace reference {

namespace {

constexpr int32_t divisorError = -51;
constexpr int32_t roundModeError = -213;

bool sumsInDouble(const Member& member) { return member.family == "Filter_Round32f"; }

Element coefficientOf(const Member& member) {
    if (hasIntegerKernel(member)) return elementOf("32s");
    return elementOf(member.src == "64f" ? "64f" : "32f");
}

int32_t check(const Member& member, const FilterCall& call) {
    const Arg& src = call.images[0];
    const Arg& srcStep = call.images[1];
    const Arg& dst = call.images[2];
    const Arg& dstStep = call.images[3];
    const Arg& roi = call.images[4];
    const int64_t pixelBytes = layoutOf(member.layout).src.elements * elementOf(member.src).bytes();
    const int64_t srcColumns = roi.width + call.kernelWidth - 1;
    if (src.ptr == nullptr || dst.ptr == nullptr || call.kernel->ptr == nullptr) return nullPtrError;
    if (isEmpty(roi)) return sizeError;
    if (call.kernelWidth < 1 || call.kernelHeight < 1) return sizeError;
    if (call.divisor && call.divisor->num == 0) return divisorError;
    if (srcStep.num < srcColumns * pixelBytes || dstStep.num < roi.width * pixelBytes) return stepError;
    if (call.roundMode && (call.roundMode->num < towardZero || call.roundMode->num > halfAway)) return roundModeError;
    return ok;
}

// The neighbourhood from its top row to its bottom row, each from left to right: the kernel from its last coefficient
// to its first. visit(coefficient, sample) sees addresses.
template <typename Visit>
void forEachTap(const FilterCall& call, const Element& coefficient, const Image& src, int64_t x, int64_t y, int c,
                Visit visit) {
    const auto* kernel = static_cast<const uint8_t*>(call.kernel->ptr);
    for (int64_t j = call.kernelHeight - 1; j >= 0; --j) {
        for (int64_t i = call.kernelWidth - 1; i >= 0; --i) {
            visit(kernel + (j * call.kernelWidth + i) * coefficient.bytes(),
                  src.at(x + call.anchorX - i, y + call.anchorY - j, c));
        }
    }
}

// What becomes of one destination element: sums the neighbourhood of channel c of (x, y) and writes the result.
class Accumulator {
public:
    Accumulator(const Member& filterMember, const FilterCall& filterCall, const Image& image)
        : member(filterMember), call(filterCall), src(image), type(elementOf(filterMember.src)),
          coefficient(coefficientOf(filterMember)) {}

    void operator()(int64_t x, int64_t y, int c, uint8_t* dst) const {
        if (hasIntegerKernel(member)) {
            writeInt(type, dst, dividedSum(integerSum(x, y, c)));
        } else if (type.isFloat) {
            writeReal(type, dst, type.partBytes == 8 ? doubleSum(x, y, c) : static_cast<double>(floatSum(x, y, c)));
        } else {
            const float sum = sumsInDouble(member) ? wideSumOfFloats(x, y, c) : floatSum(x, y, c);
            writeInt(type, dst, roundValue(type, static_cast<double>(sum), mode()));
        }
    }

private:
    int64_t mode() const { return call.roundMode ? call.roundMode->num : nearEven; }

    int64_t dividedSum(int32_t sum) const {
        const auto divisor = static_cast<int32_t>(call.divisor->num);
        return call.roundMode ? divideSum(type, sum, divisor, mode()) : divideSum(type, sum, divisor);
    }

    // Wraps in 32 bits.
    int32_t integerSum(int64_t x, int64_t y, int c) const {
        uint32_t sum = 0;
        forEachTap(call, coefficient, src, x, y, c, [&](const uint8_t* tap, const uint8_t* sample) {
            sum += static_cast<uint32_t>(readInt(coefficient, tap)) * static_cast<uint32_t>(readInt(type, sample));
        });
        return static_cast<int32_t>(sum);
    }

    float product(const uint8_t* tap, const uint8_t* sample) const {
        const float value =
            type.isFloat ? static_cast<float>(readReal(type, sample)) : static_cast<float>(readInt(type, sample));
        return static_cast<float>(readReal(coefficient, tap)) * value;
    }

    float floatSum(int64_t x, int64_t y, int c) const {
        float sum = 0;
        forEachTap(call, coefficient, src, x, y, c, [&](const uint8_t* tap, const uint8_t* sample) {
            const float term = product(tap, sample);
            sum = sum + term;
        });
        return sum;
    }

    // Single-precision products, summed in double precision.
    float wideSumOfFloats(int64_t x, int64_t y, int c) const {
        double sum = 0;
        forEachTap(call, coefficient, src, x, y, c, [&](const uint8_t* tap, const uint8_t* sample) {
            const float term = product(tap, sample);
            sum = sum + static_cast<double>(term);
        });
        return static_cast<float>(sum);
    }

    double doubleSum(int64_t x, int64_t y, int c) const {
        double sum = 0;
        forEachTap(call, coefficient, src, x, y, c, [&](const uint8_t* tap, const uint8_t* sample) {
            const double term = readReal(coefficient, tap) * readReal(type, sample);
            sum = sum + term;
        });
        return sum;
    }

    const Member& member;
    const FilterCall& call;
    const Image& src;
    Element type, coefficient;
};

} // namespace

bool hasIntegerKernel(const Member& member) {
    return !member.family.ends_with("32f") && !elementOf(member.src).isFloat;
}

int32_t runFilter(const Member& member, const FilterCall& call) {
    if (const int32_t status = check(member, call); status != ok) return status;

    const Element type = elementOf(member.src);
    const Side side = layoutOf(member.layout).src;
    const Image src = imageOf(call.images[0], call.images[1], side, type);
    const Image dst = imageOf(call.images[2], call.images[3], side, type);
    const Accumulator accumulate(member, call, src);
    forEachPixel(call.images[4], [&](int64_t x, int64_t y) {
        for (int c = 0; c < side.active; ++c) {
            accumulate(x, y, c, dst.at(x, y, c));
        }
    });
    return ok;
}

namespace {

int32_t filter(const Member& member, const Arg* args) {
    const Arg& kernelSize = args[6];
    const Arg& anchor = args[7];
    const Arg* divisor = hasIntegerKernel(member) ? args + 8 : nullptr;
    const Arg* roundMode = divisor ? args + 9 : args + 8;
    const bool rounds = member.family.starts_with("Filter_Round");
    return runFilter(member, {.images = args,
                              .kernel = args + 5,
                              .kernelWidth = kernelSize.width,
                              .kernelHeight = kernelSize.height,
                              .anchorX = anchor.width,
                              .anchorY = anchor.height,
                              .divisor = divisor,
                              .roundMode = rounds ? roundMode : nullptr});
}

// The double-precision filter needs no buffer.
int32_t filterGetBufSize(const Member&, const Arg* args) {
    const Arg& kernelSize = args[0];
    const Arg& roiWidth = args[1];
    const Arg& size = args[2];
    if (size.ptr == nullptr) return nullPtrError;
    if (isEmpty(kernelSize) || roiWidth.num < 1) return sizeError;
    const int32_t none = 0;
    std::memcpy(const_cast<void*>(size.ptr), &none, sizeof none);
    return ok;
}

const Registered filterFamily("Filter", filter);
const Registered filter32fFamily("Filter32f", filter);
const Registered filterRound16sFamily("Filter_Round16s", filter);
const Registered filterRound32sFamily("Filter_Round32s", filter);
const Registered filterRound32fFamily("Filter_Round32f", filter);
const Registered filterGetBufSizeFamily("FilterGetBufSize", filterGetBufSize);

} // namespace

} // namespace reference
