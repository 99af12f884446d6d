// Add, Sub and Mul. Results are exact and then scaled; floats take the plain single-precision operation.
//
// Where every result would round to 0 the members store zeros without computing. That gives the same elements as the
// rounding, and the statuses in the same order, so that nothing of it is left here.
#include "arith.h"

#include <algorithm>

#include "pointwise.h"
#include "scaling.h"

namespace reference {

namespace {

enum class Op { add, sub, mul };

Op opOf(std::string_view family) {
    if (family.starts_with("Add")) return Op::add;
    return family.starts_with("Sub") ? Op::sub : Op::mul;
}

template <typename Number>
Number combine(Op op, Number first, Number second) {
    switch (op) {
    case Op::add:
        return first + second;
    case Op::sub:
        return second - first;
    default:
        return first * second;
    }
}

Wide exactResult(const Element& type, Op op, int64_t first, int64_t second) {
    const Wide result = combine<Wide>(op, first, second);
    const bool clampsNegative = op == Op::sub && !type.isSigned;
    return clampsNegative ? std::max<Wide>(result, 0) : result;
}

Operation onIntegers(const Element& type, Op op, int32_t scaleFactor) {
    return [=](const uint8_t* first, const uint8_t* second, uint8_t* dst) {
        const Wide result = exactResult(type, op, readInt(type, first), readInt(type, second));
        writeInt(type, dst, scaled(type, result, scaleFactor));
    };
}

Operation onFloats(const Element& type, Op op) {
    return [=](const uint8_t* first, const uint8_t* second, uint8_t* dst) {
        const auto x = static_cast<float>(readReal(type, first));
        const auto y = static_cast<float>(readReal(type, second));
        writeReal(type, dst, static_cast<double>(combine(op, x, y)));
    };
}

// The imaginary sum of a 16sc product has 32 bits; its one overflow, 2^31, becomes the largest value.
Wide imaginarySum(const Element& type, Wide sum) {
    const Wide limit = 2147483647;
    return type.partBytes == 2 ? std::min(sum, limit) : sum;
}

Pair<Wide> exactPair(const Element& type, Op op, const Pair<int64_t>& x, const Pair<int64_t>& y) {
    if (op != Op::mul) return {combine<Wide>(op, x.re, y.re), combine<Wide>(op, x.im, y.im)};
    const Wide a = x.re;
    const Wide b = x.im;
    const Wide c = y.re;
    const Wide d = y.im;
    return {a * c - b * d, imaginarySum(type, a * d + b * c)};
}

Operation onIntPairs(const Element& type, Op op, int32_t scaleFactor) {
    return [=](const uint8_t* first, const uint8_t* second, uint8_t* dst) {
        const Pair<Wide> result = exactPair(type, op, readIntPair(type, first), readIntPair(type, second));
        writeIntPair(type, dst, {scaled(type, result.re, scaleFactor), scaled(type, result.im, scaleFactor)});
    };
}

Pair<float> combinePairs(Op op, const Pair<float>& x, const Pair<float>& y) {
    if (op != Op::mul) return {combine(op, x.re, y.re), combine(op, x.im, y.im)};
    const float ac = x.re * y.re;
    const float bd = x.im * y.im;
    const float ad = x.re * y.im;
    const float bc = x.im * y.re;
    return {ac - bd, ad + bc};
}

Operation onFloatPairs(const Element& type, Op op) {
    return [=](const uint8_t* first, const uint8_t* second, uint8_t* dst) {
        writeFloatPair(type, dst, combinePairs(op, readFloatPair(type, first), readFloatPair(type, second)));
    };
}

// Only the complex members look at steps: their C3 form too, because it calls C1.
int32_t check(const Member& member, const Call& call) {
    if (isEmptyWidened(member, call)) return sizeError;
    return checkRegionFirst(member, call, elementOf(member.src).parts == 2);
}

int32_t sumOrProductOfImages(const Member& member, const Arg* args) {
    const Call call = twoImages(member, args);
    if (const int32_t status = check(member, call); status != ok) return status;
    forEachElement(member, call, sumOrProduct(member, scaleFactorOf(member, call.rest)));
    return ok;
}

} // namespace

Pair<int64_t> readIntPair(const Element& type, const uint8_t* address) {
    return {readInt(type, address), readInt(type, address + type.partBytes)};
}

Pair<float> readFloatPair(const Element& type, const uint8_t* address) {
    return {static_cast<float>(readReal(type, address)), static_cast<float>(readReal(type, address + type.partBytes))};
}

void writeIntPair(const Element& type, uint8_t* address, const Pair<int64_t>& value) {
    writeInt(type, address, value.re);
    writeInt(type, address + type.partBytes, value.im);
}

void writeFloatPair(const Element& type, uint8_t* address, const Pair<float>& value) {
    writeReal(type, address, static_cast<double>(value.re));
    writeReal(type, address + type.partBytes, static_cast<double>(value.im));
}

int32_t scaleFactorOf(const Member& member, const Arg* rest) {
    return member.mode.ends_with("Sfs") ? static_cast<int32_t>(rest->num) : 0;
}

Operation sumOrProduct(const Member& member, int32_t scaleFactor) {
    const Element type = elementOf(member.src);
    const Op op = opOf(member.family);
    if (type.parts == 2) return type.isFloat ? onFloatPairs(type, op) : onIntPairs(type, op, scaleFactor);
    return type.isFloat ? onFloats(type, op) : onIntegers(type, op, scaleFactor);
}

namespace {

const Registered addFamily("Add", sumOrProductOfImages);
const Registered subFamily("Sub", sumOrProductOfImages);
const Registered mulFamily("Mul", sumOrProductOfImages);

} // namespace

} // namespace reference
