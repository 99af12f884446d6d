// The places of a call's images and arrays: every one between inaccessible pages, mostly touching one of them, some of the
// images overlapping.
#include <algorithm>
#include <cstring>

#include "generic/builder.h"

namespace generic {

namespace {

constexpr int64_t longest = 2000; // sides that no valid call has; what they describe is never touched

} // namespace

Area Builder::plainArea(int i) {
    const Region& region = param(i).region;
    if (param(i).role == Role::Inside) {
        const auto& outer = arg(Meaning::Outer);
        const int64_t top = arg(Meaning::BorderTop).num, left = arg(Meaning::BorderLeft).num;
        return {-left, -top, outer.width - left, outer.height - top};
    }
    if (region.shape == Shape::Block) return {0, 0, 8, 8};
    const auto& a = arg(region.a);
    if (!contents(region.a).empty()) { // a rectangle
        int32_t rect[4];
        std::memcpy(rect, contents(region.a)[0].data(), sizeof rect);
        return {rect[0], rect[1], int64_t{rect[0]} + rect[2], int64_t{rect[1]} + rect[3]};
    }
    if (region.shape == Shape::Plain) return {0, 0, a.width, a.height};
    if (region.shape == Shape::Transposed) return {0, 0, a.height, a.width};
    const auto& b = arg(region.b);
    if (region.shape == Shape::OwnWidth) return {0, 0, a.num, b.height};
    if (region.shape == Shape::Joined) return {0, 0, int64_t{a.width} + b.width - 1, int64_t{a.height} + b.height - 1};
    return {0, 0, std::abs(int64_t{a.width} - b.width) + 1, std::abs(int64_t{a.height} - b.height) + 1};
}

// With what a window reads around the area, before and behind it.
Area Builder::around(Area area, const Window& window) {
    const auto widen = [&](bool x, int64_t before, int64_t behind) {
        (x ? area.x0 : area.y0) -= before;
        (x ? area.x1 : area.y1) += behind;
    };
    const auto reach = [&](bool x, int64_t length, int64_t anchor) {
        const int64_t before = window.mirrored ? length - 1 - anchor : anchor;
        widen(x, before, length - 1 - before);
    };
    switch (window.kind) {
    case Window::None:
        break;
    case Window::Sized:
        reach(true, arg(window.size).width, arg(window.anchor).width);
        reach(false, arg(window.size).height, arg(window.anchor).height);
        break;
    case Window::Row:
    case Window::Column:
        reach(window.kind == Window::Row, arg(window.size).num, arg(window.anchor).num);
        break;
    case Window::Code:
        reach(true, arg(window.size).num / 10, arg(window.size).num / 20);
        reach(false, arg(window.size).num % 10, arg(window.size).num % 10 / 2);
        break;
    case Window::Radius:
        widen(true, arg(window.size).num, arg(window.size).num);
        widen(false, arg(window.size).num, arg(window.size).num);
        break;
    case Window::Fixed:
        widen(true, window.sides[0], window.sides[2]);
        widen(false, window.sides[1], window.sides[3]);
        break;
    }
    return area;
}

Area Builder::areaOf(int i) { return around(plainArea(i), param(i).region.window); }

// The bytes of a row up to the last element that may be touched.
int64_t Builder::rowBytes(const Param& p, int64_t width) {
    if (width < 1) return 0;
    if (p.type == "1u") return (arg(Meaning::BitOffset).num + width + 7) / 8;
    // A one-channel operand ends at its element, and the fourth element of an AC4 source is nobody's.
    const int64_t last = p.channels == 1 ? 1 : isWritten(p.role) ? p.elements : p.channels;
    return ((width - 1) * p.elements + last) * elementBytes(p.type);
}

Reach Builder::reachOf(int i) {
    const Param& p = param(i);
    const Area area = areaOf(i);
    if (area.width() < 1 || area.height() < 1 || area.width() > longest || area.height() > longest) return {0, 64};
    if (area.x0 < -longest || area.y0 < -longest) return {0, 64};
    const int64_t pixel = int64_t{p.elements} * elementBytes(p.type);
    int64_t step = arg(member().stepOf(i)).num;
    if (facts().wholeElementSteps) step &= -elementBytes(p.type);
    if (p.role == Role::Inside && step < 0) return {0, 64};
    const int64_t first = area.y0 * step, last = (area.y1 - 1) * step;
    return {std::min(first, last) + area.x0 * pixel,
            std::max(first, last) + area.x0 * pixel + rowBytes(p, area.width())};
}

// Floats that overlap by parts would make numbers of the payloads of NaN, which no definition fixes.
bool Builder::mayOverlap(int source, int destination) {
    if (!facts().mayOverlap) return false;
    const auto isWhole = [&](int image) { return arg(member().stepOf(image)).num % 4 == 0; };
    return (isWhole(source) && isWhole(destination)) || !param(destination).type.starts_with("32f");
}

void Builder::placeOverlapping(int source, int destination) {
    auto& sourceStep = arg(member().stepOf(source)).num;
    const Reach s = reachOf(source);
    const bool exact = chance(random_, 40);
    if (exact) arg(member().stepOf(destination)).num = sourceStep;
    int64_t delta = exact ? 0 : chance(random_, 30) ? sourceStep * between(random_, -1, 1) : between(random_, -70, 70);
    if (param(destination).type.starts_with("32f")) delta &= ~3;
    const Reach d = reachOf(destination);
    const int64_t low = std::min(s.low, delta + d.low), high = std::max(s.high, delta + d.high);
    const int64_t base = chance(random_, 50) ? -low : memorySize - high;
    call_.operands.push_back({source, 0, call_.memories, base, s, plainArea(source)});
    call_.operands.push_back({destination, 0, call_.memories, base + delta, d, plainArea(destination)});
    ++call_.memories;
}

void Builder::placeImage(int i) {
    const Reach r = reachOf(i);
    for (int plane = 0; plane < std::max(1, param(i).planes); ++plane) {
        const int64_t slack = chance(random_, 80) ? 0 : between(random_, 0, 40);
        const int64_t position = chance(random_, 40) ? slack - r.low : memorySize - slack - r.high;
        call_.operands.push_back({i, plane, call_.memories++, position, r, plainArea(i)});
    }
    placePointers(i);
}

// Arrays end where their memory does, or begin where it begins.
void Builder::placeArray(int i) {
    if (param(i).role == Role::Buffer && (param(i).count.fixed < 0 || chance(random_, 50))) {
        call_.nulls[static_cast<size_t>(i)] = true;
        return;
    }
    int plane = 0;
    for (Bytes& bytes : contents(i)) {
        const auto size = static_cast<int64_t>(bytes.size());
        const int64_t position = chance(random_, 80) ? memorySize - size : 0;
        call_.operands.push_back({i, plane++, call_.memories++, position, {0, size}, {}, std::move(bytes)});
    }
    placePointers(i);
}

void Builder::placePointers(int i) {
    if (param(i).planes > 0) call_.pointers[static_cast<size_t>(i)] = call_.memories++;
}

void Builder::placeImages() {
    std::vector<int> images, sources;
    int destination = -1;
    for (int i = 0; i < member().count; ++i) {
        if (!isImage(param(i).role)) continue;
        images.push_back(i);
        if (param(i).planes == 0 && param(i).role == Role::Source) sources.push_back(i);
        if (param(i).planes == 0 && isWritten(param(i).role)) destination = i;
    }
    if (!sources.empty() && destination >= 0 && chance(random_, 15)) {
        const int source = sources[static_cast<size_t>(between(random_, 0, static_cast<int64_t>(sources.size()) - 1))];
        if (mayOverlap(source, destination)) {
            placeOverlapping(source, destination);
            std::erase(images, source);
            std::erase(images, destination);
        }
    }
    for (const int i : images) placeImage(i);
}

Call Builder::place() {
    placeImages();
    for (int i = 0; i < member().count; ++i)
        if (isArray(param(i))) placeArray(i);
    for (int i = 0; i < member().count; ++i) {
        const auto at = static_cast<size_t>(i);
        if (!call_.nulls[at] || call_.pointers[at] < 0 || !chance(random_, 60)) continue;
        call_.nulls[at] = false; // one plane instead of the array
        const int plane = static_cast<int>(between(random_, 0, param(i).planes - 1));
        for (Placed& operand : call_.operands)
            if (operand.param == i && operand.plane == plane) operand.null = true;
    }
    return std::move(call_);
}

} // namespace generic
