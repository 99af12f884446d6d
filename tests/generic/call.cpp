#include "generic/call.h"

#include <algorithm>
#include <sstream>

#include "generic/builder.h"

namespace generic {

int elementBytes(std::string_view type) {
    static constexpr std::pair<std::string_view, int> sizes[] = {{"1u", 1},  {"8u", 1},   {"8s", 1},   {"16u", 2},
                                                                 {"16s", 2}, {"32u", 4},  {"32s", 4},  {"32f", 4},
                                                                 {"64f", 8}, {"16sc", 4}, {"32sc", 8}, {"32fc", 8}};
    for (const auto& [code, size] : sizes)
        if (code == type) return size;
    return 0;
}

std::vector<reference::Arg> Call::bind(const std::vector<uint8_t*>& memory,
                                       std::vector<std::vector<void*>>& planes) const {
    std::vector<reference::Arg> bound = args;
    planes.assign(args.size(), {});
    for (size_t i = 0; i < args.size(); ++i)
        planes[i].resize(static_cast<size_t>(std::max(1, member->params[i].planes)));
    for (const Placed& image : images) {
        uint8_t* address = image.null ? nullptr : memory[static_cast<size_t>(image.memory)] + image.position;
        const auto i = static_cast<size_t>(image.param);
        planes[i][static_cast<size_t>(image.plane)] = address;
        bound[i].ptr = member->params[i].planes ? static_cast<const void*>(planes[i].data()) : address;
    }
    for (size_t i = 0; i < args.size(); ++i) {
        if (!arrays[i].empty()) bound[i].ptr = arrays[i].data();
        if (nulls[i]) bound[i].ptr = nullptr;
    }
    return bound;
}

Reach Call::window(int memory) const {
    constexpr int64_t beside = 128;
    Reach all{memorySize, 0};
    for (const Placed& image : images) {
        if (image.memory != memory) continue;
        const Reach r = reaches[static_cast<size_t>(image.param)];
        all.low = std::min(all.low, image.position + r.low);
        all.high = std::max(all.high, image.position + r.high);
    }
    return {std::max<int64_t>(0, (all.low - beside) & ~7), std::min(memorySize, (all.high + beside + 7) & ~7)};
}

std::string Call::describe() const {
    std::ostringstream text;
    text << member->name << "(";
    for (size_t i = 0; i < args.size(); ++i) {
        const Param& p = member->params[i];
        text << (i ? ", " : "") << p.name << " ";
        if (p.role == Role::Size)
            text << args[i].width << "x" << args[i].height;
        else if (p.role == Role::Real)
            text << args[i].real;
        else if (nulls[i])
            text << "null";
        else if (p.role == Role::Order)
            for (int k = 0; k < p.count; ++k) text << reinterpret_cast<const int32_t*>(arrays[i].data())[k] << " ";
        else if (isImage(p.role)) {
            for (const Placed& image : images)
                if (image.param == static_cast<int>(i))
                    text << "[" << image.memory << (image.null ? " null" : "") << "]+" << image.position;
        } else
            text << args[i].num;
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
