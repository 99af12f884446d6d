// The bytes that images hold before a call.
#include <algorithm>
#include <cstring>

#include "generic/builder.h"

namespace generic {

namespace {

template <class Value>
void fillWords(uint8_t* bytes, size_t size, Value&& value) {
    using Word = decltype(value());
    for (size_t at = 0; at + sizeof(Word) <= size; at += sizeof(Word)) {
        const Word word = value();
        std::memcpy(bytes + at, &word, sizeof word);
    }
}

void fillMask(uint8_t* bytes, size_t size, Random& random) {
    const int percent = static_cast<int>(between(random, 0, 4)) * 25;
    fillWords(bytes, size, [&] { return chance(random, percent) ? static_cast<uint8_t>(random() | 1) : uint8_t{0}; });
}

// Small values and the ends of the range, where products, quotients and saturation have their corners.
void fillCorners(uint8_t* bytes, size_t size, int elementSize, Random& random) {
    if (elementSize == 1) fillWords(bytes, size, [&] { return static_cast<uint8_t>(randomInteger(random, 8)); });
    if (elementSize == 2) fillWords(bytes, size, [&] { return static_cast<int16_t>(randomInteger(random, 16)); });
    if (elementSize == 4) fillWords(bytes, size, [&] { return static_cast<int32_t>(randomInteger(random, 32)); });
}

void fillImage(const Param& p, bool tame, uint8_t* bytes, size_t size, Random& random) {
    if (p.role == Role::Mask) return fillMask(bytes, size, random);
    const bool read = p.role == Role::Source || p.role == Role::InPlace;
    if (p.type.starts_with("32f") && read && (tame || chance(random, 95)))
        return fillWords(bytes, size, [&] { return tame ? tameReal(random) : randomReal(random); });
    const bool complex = p.type.ends_with("c");
    if (read && chance(random, 50)) fillCorners(bytes, size, elementBytes(p.type) / (complex ? 2 : 1), random);
    if (p.type == "8u" && chance(random, 20))
        fillWords(bytes, size, [&] { return chance(random, 50) ? uint8_t{0} : uint8_t{255}; });
}

} // namespace

void fillMemory(const Call& call, int memory, uint8_t* bytes, Random& random) {
    const Reach window = call.window(memory);
    fillWords(bytes + window.low, static_cast<size_t>(window.length()), [&] { return random(); });
    for (const Placed& operand : call.operands) {
        if (operand.memory != memory) continue;
        const Param& p = call.member->params[operand.param];
        uint8_t* first = bytes + operand.position + operand.reach.low;
        if (isImage(p.role))
            fillImage(p, call.member->facts.runningSums, first, static_cast<size_t>(operand.reach.length()), random);
        else if (p.role != Role::Result)
            std::ranges::copy(operand.bytes, first);
    }
}

} // namespace generic
