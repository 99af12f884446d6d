#include "generic/call.h"

#include <algorithm>
#include <cstring>
#include <sstream>

#include "generic/builder.h"

namespace generic {

int elementBytes(std::string_view type) {
    static constexpr std::pair<std::string_view, int> sizes[] = {
        {"1u", 1},  {"8u", 1},  {"8s", 1},  {"16u", 2},  {"16s", 2},  {"24u", 3},  {"32u", 4}, {"32s", 4},
        {"32f", 4}, {"64s", 8}, {"64f", 8}, {"16sc", 4}, {"16uc", 4}, {"32sc", 8}, {"32fc", 8}};
    for (const auto& [code, size] : sizes)
        if (code == type) return size;
    return 0;
}

std::vector<reference::Arg> Call::bind(const std::vector<uint8_t*>& memory) const {
    const auto endOf = [&](int i) { return memory[static_cast<size_t>(i)] + memorySize; };
    std::vector<reference::Arg> bound = args;
    for (size_t i = 0; i < args.size(); ++i)
        if (pointers[i] >= 0)
            bound[i].ptr = endOf(pointers[i]) - sizeof(void*) * static_cast<size_t>(member->params[i].planes);
    for (const Placed& operand : operands) {
        uint8_t* address = operand.null ? nullptr : memory[static_cast<size_t>(operand.memory)] + operand.position;
        const auto i = static_cast<size_t>(operand.param);
        if (pointers[i] < 0)
            bound[i].ptr = address;
        else
            std::memcpy(endOf(pointers[i]) -
                            sizeof address * static_cast<size_t>(member->params[i].planes - operand.plane),
                        &address, sizeof address);
    }
    for (size_t i = 0; i < args.size(); ++i)
        if (nulls[i]) bound[i].ptr = nullptr;
    return bound;
}

Reach Call::window(int memory) const {
    constexpr int64_t beside = 128;
    if (std::ranges::find(pointers, memory) != pointers.end()) return {};
    Reach all{memorySize, 0};
    for (const Placed& operand : operands) {
        if (operand.memory != memory) continue;
        all.low = std::min(all.low, operand.position + operand.reach.low);
        all.high = std::max(all.high, operand.position + operand.reach.high);
    }
    return {std::max<int64_t>(0, (all.low - beside) & ~7), std::min(memorySize, (all.high + beside + 7) & ~7)};
}

std::string Call::describe() const {
    std::ostringstream text;
    text << member->name << "(";
    for (size_t i = 0; i < args.size(); ++i) {
        const Param& p = member->params[i];
        text << (i ? ", " : "") << p.name << " ";
        if (nulls[i])
            text << "null";
        else if (p.role == Role::Size || p.role == Role::Point)
            text << args[i].width << "x" << args[i].height;
        else if (p.role == Role::Real)
            text << args[i].real;
        else if (!isImage(p.role) && !isArray(p))
            text << args[i].num;
        for (const Placed& operand : operands) {
            if (operand.param != static_cast<int>(i)) continue;
            text << "[" << operand.memory << (operand.null ? " null" : "") << "]+" << operand.position << " ";
            if (p.role == Role::Order)
                for (size_t at = 0; at < operand.bytes.size(); at += 4) text << int{operand.bytes[at]} << " ";
        }
    }
    text << ")";
    return text.str();
}

Call randomCall(const Member& member, Random& random) { return Builder(member, random).place(); }

Call brokenCall(const Member& member, Random& random) {
    Builder builder(member, random);
    builder.breakOne();
    if (chance(random, 60)) builder.breakOne();
    if (chance(random, 20)) builder.breakOne();
    return builder.place();
}

Call brokenCall(const Member& member, Random& random, int first, int second) {
    Builder builder(member, random);
    builder.breakArgument(first);
    if (second != first) builder.breakArgument(second);
    return builder.place();
}

} // namespace generic
