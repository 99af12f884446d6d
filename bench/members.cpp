// Times calls of any exported function, over arguments made from what the registry says of it. Reads a line for each timing,
//
//     NAME WIDTH HEIGHT STEPS NUMBER SAMPLES
//
// and answers with the shortest time of a call in nanoseconds, or with "-" where the call was not accepted. STEPS is `wide` for
// rows that begin at multiples of 64 bytes, `tight` for rows that follow each other at any address. NUMBER is the scale factor,
// where there is one. members.py runs two of these, each with a library of its own, and lets them take turns.
#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <iostream>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

#include "generic/member.h"
#include "pxlcore.h"

namespace {

using generic::Meaning;
using generic::Member;
using generic::Param;
using generic::Role;
using generic::Shape;
using generic::Window;
using reference::Arg;

constexpr int64_t margin = 32; // pixels around every image, for windows

struct Setting {
    int width, height;
    bool wide;
    int scaleFactor;
};

// A call, and the memory that it works on.
class Case {
public:
    Case(const Member& member, const Setting& setting) : member_(member), setting_(setting) {
        args_.resize(static_cast<size_t>(member.count));
        for (int i = 0; i < member.count; ++i) chooseNumber(i);
        for (int i = 0; i < member.count; ++i)
            if (generic::isArray(param(i))) placeArray(i);
        for (int i = 0; i < member.count; ++i)
            if (generic::isImage(param(i).role)) placeImage(i);
    }
    int call() const { return member_.call(args_.data()); }

private:
    const Param& param(int i) const { return member_.params[i]; }
    Arg& arg(int i) { return args_[static_cast<size_t>(i)]; }

    void chooseNumber(int i) {
        const Param& p = param(i);
        Arg& a = arg(i);
        switch (p.role) {
        case Role::Size:
            a.width = setting_.width, a.height = setting_.height;
            if (p.meaning == Meaning::Outer) a.width += 8, a.height += 8;
            if (p.meaning == Meaning::WindowSize) a.width = a.height = 5;
            break;
        case Role::Point:
            a.width = a.height = 2;
            break;
        case Role::Real:
            a.real = p.valid.limited ? (p.valid.low + p.valid.high) / 2 : p.meaning == Meaning::RangeHigh ? 255 : 0;
            break;
        default:
            a.num = number(p);
            a.real = static_cast<double>(a.num);
        }
    }

    int64_t number(const Param& p) const {
        switch (p.meaning) {
        case Meaning::BorderTop:
        case Meaning::BorderLeft:
            return 4;
        case Meaning::WindowSize:
            return 5;
        case Meaning::WindowAnchor:
            return 2;
        case Meaning::ScaleFactor:
            return setting_.scaleFactor;
        case Meaning::Divisor:
            return 7;
        case Meaning::Shift:
            return 3;
        case Meaning::BitOffset:
            return 3;
        case Meaning::Count:
            return 8;
        default:
            if (p.valid.among) return std::countr_zero(p.valid.among);
            return p.valid.limited ? static_cast<int64_t>((p.valid.low + p.valid.high) / 2) : 3;
        }
    }

    int64_t entries(const Param& p, int plane) {
        const auto& count = p.count;
        if (count.a < 0) return std::max(count.fixed, 1);
        const auto value = [&](int i) -> int64_t {
            if (param(i).role == Role::Size) return int64_t{arg(i).width} * arg(i).height;
            if (param(i).role != Role::Values) return arg(i).num;
            return static_cast<const int32_t*>(arg(i).ptr)[plane];
        };
        int64_t n = value(count.a) * (count.b < 0 ? 1 : value(count.b));
        if (count.power) n = int64_t{1} << n;
        return n - count.less;
    }

    template <class T>
    static void store(uint8_t* at, int64_t index, T value) {
        std::memcpy(at + index * static_cast<int64_t>(sizeof(T)), &value, sizeof value);
    }

    void placeArray(int i) {
        const Param& p = param(i);
        if (arg(i).ptr) return;
        if (p.count.a >= 0 && param(p.count.a).role == Role::Values) placeArray(p.count.a);
        std::vector<uint8_t*> planes;
        for (int plane = 0; plane < std::max(1, p.planes); ++plane) {
            const bool complex = p.type.ends_with("c");
            const int64_t count = entries(p, plane) * (complex ? 2 : 1);
            uint8_t* at = memory(std::max<int64_t>(count, 4) * 8);
            const int size = generic::elementBytes(p.type) / (complex ? 2 : 1);
            for (int64_t n = 0; n < count; ++n) {
                const int64_t value = p.role == Role::Order         ? n % 3
                                      : p.meaning == Meaning::None  ? 3 + 2 * n
                                      : p.meaning == Meaning::Shift ? 1 + n
                                      : p.meaning == Meaning::Taps  ? 1 + n % 3
                                                                    : number(p) + n;
                if (p.type.starts_with("32f"))
                    store(at, n, static_cast<float>(value));
                else if (p.type == "64f")
                    store(at, n, static_cast<double>(value));
                else if (size == 1)
                    store(at, n, static_cast<uint8_t>(value));
                else if (size == 2)
                    store(at, n, static_cast<int16_t>(value));
                else if (size == 8)
                    store(at, n, value);
                else
                    store(at, n, static_cast<int32_t>(value));
            }
            planes.push_back(at);
        }
        pass(i, planes);
    }

    void placeImage(int i) {
        const Param& p = param(i);
        const auto [width, height] = extent(p);
        const int64_t pixel = int64_t{p.elements} * generic::elementBytes(p.type);
        int64_t step = p.type == "1u" ? (width + 7) / 8 + 2 : (width + 2 * margin) * pixel;
        step = setting_.wide ? (step + 63) & ~int64_t{63} : step + generic::elementBytes(p.type);
        arg(member_.stepOf(i)).num = step;
        std::vector<uint8_t*> planes;
        for (int plane = 0; plane < std::max(1, p.planes); ++plane) {
            uint8_t* all = memory((height + 2 * margin + 1) * step);
            fill(p, all, (height + 2 * margin + 1) * step);
            planes.push_back(all + margin * step + (setting_.wide ? 64 : (p.type == "1u" ? 0 : margin * pixel)));
        }
        pass(i, planes);
    }

    std::pair<int64_t, int64_t> extent(const Param& p) {
        const auto& region = p.region;
        if (p.role == Role::Inside) return {setting_.width + 8, setting_.height + 8};
        if (region.shape == Shape::Block) return {8, 8};
        const Arg& a = arg(region.a);
        if (region.shape == Shape::Transposed) return {a.height, a.width};
        if (region.shape == Shape::OwnWidth) return {a.num, arg(region.b).height};
        if (region.shape == Shape::Joined)
            return {int64_t{a.width} + arg(region.b).width, int64_t{a.height} + arg(region.b).height};
        return {a.width, a.height};
    }

    // Random bytes, the same again after some thousands.
    void fill(const Param& p, uint8_t* bytes, int64_t size) {
        std::minstd_rand random(1);
        const int64_t period = std::min<int64_t>(size, 12'288);
        if (p.role == Role::Mask) {
            for (int64_t n = 0; n < period; ++n) bytes[n] = random() % 2 ? 255 : 0;
        } else if (p.type.starts_with("32f")) {
            for (int64_t n = 0; n < period / 4; ++n) store(bytes, n, static_cast<float>(random() % 4096) / 16.0f);
        } else {
            for (int64_t n = 0; n < period; ++n) bytes[n] = static_cast<uint8_t>(random() >> 8);
        }
        for (int64_t n = period; n < size; n += period) std::memcpy(bytes + n, bytes, std::min(period, size - n));
    }

    void pass(int i, const std::vector<uint8_t*>& planes) {
        arg(i).ptr = planes[0];
        if (param(i).planes == 0) return;
        uint8_t* array = memory(static_cast<int64_t>(planes.size() * sizeof(uint8_t*)));
        std::memcpy(array, planes.data(), planes.size() * sizeof(uint8_t*));
        arg(i).ptr = array;
    }

    uint8_t* memory(int64_t size) {
        memory_.emplace_back(static_cast<size_t>(size) + 64);
        const auto address = reinterpret_cast<uintptr_t>(memory_.back().data());
        return memory_.back().data() + (64 - address % 64);
    }

    const Member& member_;
    const Setting setting_;
    std::vector<Arg> args_;
    std::vector<std::vector<uint8_t>> memory_;
};

double now() {
    timespec time;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
}

double timeOf(const Case& call, int64_t calls) {
    const double start = now();
    for (int64_t n = 0; n < calls; ++n) call.call();
    return (now() - start) / static_cast<double>(calls);
}

// The shortest of several samples of about 100 microseconds.
double shortest(const Case& call, int samples) {
    double best = timeOf(call, 1);
    best = timeOf(call, 2);
    const auto calls = std::max<int64_t>(1, static_cast<int64_t>(1e5 / best));
    for (int n = 0; n < samples; ++n) best = std::min(best, timeOf(call, calls));
    return best;
}

} // namespace

int main() {
    pxlcoreSetNumThreads(1);
    std::unordered_map<std::string, const Member*> members;
    for (const Member& member : generic::members()) members[std::string(member.name)] = &member;
    std::string name, steps;
    Setting setting;
    int samples;
    while (std::cin >> name >> setting.width >> setting.height >> steps >> setting.scaleFactor >> samples) {
        setting.wide = steps == "wide";
        const auto found = members.find(name);
        if (found == members.end()) {
            std::cout << "-" << std::endl;
            continue;
        }
        const Case call(*found->second, setting);
        if (call.call() < 0)
            std::cout << "-" << std::endl;
        else
            std::cout << shortest(call, samples) << std::endl;
    }
    return 0;
}
