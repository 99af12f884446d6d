// LShiftC and RShiftC: every element shifted by its channel's count, bits only.
//
// Left and unsigned right shifts by the width or more give 0; signed right shifts fill with the sign, however far.
// Steps are refused also where a count of 0 makes the call a copy.
#include "image.h"
#include "pointwise.h"

namespace reference {

namespace {

int64_t shiftLeft(const Element& type, int64_t value, uint32_t count) {
    if (count >= static_cast<uint32_t>(8 * type.partBytes)) return 0;
    return static_cast<int64_t>(static_cast<uint64_t>(value) << count);
}

// The value comes extended with its sign (or with zeros) to 64 bits: no element has more than 32 to lose.
int64_t shiftRight(int64_t value, uint32_t count) { return value >> (count < 32 ? count : 32); }

template <typename Shift>
int32_t shiftBy(const Member& member, const Arg* args, Shift shift) {
    Call call = imageAndConstant(member, args);
    call.valueType = "32u";
    if (const int32_t status = checkStepsFirst(member, call); status != ok) return status;
    const Element type = elementOf(member.src);
    const Element countType = elementOf(call.valueType);
    forEachElement(member, call, [&](const uint8_t* count, const uint8_t* src, uint8_t* dst) {
        writeInt(type, dst, shift(type, readInt(type, src), static_cast<uint32_t>(readInt(countType, count))));
    });
    return ok;
}

int32_t lShiftC(const Member& member, const Arg* args) { return shiftBy(member, args, shiftLeft); }

int32_t rShiftC(const Member& member, const Arg* args) {
    return shiftBy(member, args,
                   [](const Element&, int64_t value, uint32_t count) { return shiftRight(value, count); });
}

const Registered lShiftCFamily("LShiftC", lShiftC);
const Registered rShiftCFamily("RShiftC", rShiftC);

} // namespace

} // namespace reference
