// The places of a call's images: every one between inaccessible pages, mostly touching one of them, some of them
// overlapping.
#include <algorithm>

#include "generic/builder.h"

namespace generic {

namespace {

constexpr int64_t longest = 2000; // sides that no valid call has; what they describe is never touched

} // namespace

Builder::Area Builder::areaOf(const Param& p) {
    if (p.role == Role::Inside) {
        const auto& dst = named("dstSize");
        const int64_t top = named("borderTop").num, left = named("borderLeft").num;
        return {-left, -top, dst.width - left, dst.height - top};
    }
    if (p.bound == "transposed") return {0, 0, named("roiSize").height, named("roiSize").width};
    if (p.bound.ends_with("Size")) return {0, 0, named(p.bound).width, named(p.bound).height};
    // Regions read beyond their edges: before and behind them, in x and y.
    const auto& roi = named("roiSize");
    int64_t before[2] = {0, 0}, behind[2] = {0, 0};
    const auto reach = [&](int axis, int64_t length, int64_t anchor, bool mirrored) {
        before[axis] = mirrored ? length - 1 - anchor : anchor;
        behind[axis] = mirrored ? anchor : length - 1 - anchor;
    };
    if (p.bound == "kernel" || p.bound == "mask") {
        const auto& size = named(p.bound == "kernel" ? "kernelSize" : "maskSize");
        reach(0, size.width, named("anchor").width, p.bound == "kernel");
        reach(1, size.height, named("anchor").height, p.bound == "kernel");
    }
    if (p.bound == "row") reach(0, named("kernelSize").num, named("xAnchor").num, true);
    if (p.bound == "column") reach(1, named("kernelSize").num, named("yAnchor").num, true);
    if (p.bound == "windowRow") reach(0, named("maskSize").num, named("anchor").num, false);
    if (p.bound == "windowColumn") reach(1, named("maskSize").num, named("anchor").num, false);
    return {-before[0], -before[1], roi.width + behind[0], roi.height + behind[1]};
}

// The bytes of a row up to the last element that may be touched.
int64_t Builder::rowBytes(const Param& p, int64_t width) {
    if (width < 1) return 0;
    if (p.type == "1u") return (named(p.role == Role::Source ? "srcBitOffset" : "dstBitOffset").num + width + 7) / 8;
    // A one-channel operand ends at its element, and the fourth element of an AC4 source is nobody's.
    const int64_t last = p.channels == 1 ? 1 : isWritten(p.role) ? p.elements : p.channels;
    return ((width - 1) * p.elements + last) * elementBytes(p.type);
}

Reach Builder::reachOf(int i) {
    const Param& p = param(i);
    const Area area = areaOf(p);
    if (area.width() < 1 || area.height() < 1 || area.width() > longest || area.height() > longest) return {0, 64};
    if (area.x0 < -longest || area.y0 < -longest) return {0, 64};
    const int64_t pixel = int64_t{p.elements} * elementBytes(p.type);
    int64_t step = arg(i + 1).num;
    const std::string_view family = call_.member->family;
    if (family == "FilterBox" || family.starts_with("SumWindow")) step &= -elementBytes(p.type);
    if (p.role == Role::Inside && step < 0) return {0, 64};
    const int64_t first = area.y0 * step, last = (area.y1 - 1) * step;
    return {std::min(first, last) + area.x0 * pixel,
            std::max(first, last) + area.x0 * pixel + rowBytes(p, area.width())};
}

// Floats that overlap by parts would make numbers of the payloads of NaN, which no definition fixes.
bool Builder::mayOverlap(int source, int destination) {
    const std::string_view family = call_.member->family;
    if (family == "Transpose" || family.ends_with("Border") || isFilter()) return false;
    const bool whole = arg(source + 1).num % 4 == 0 && arg(destination + 1).num % 4 == 0;
    return whole || !param(destination).type.starts_with("32f");
}

void Builder::placeOverlapping(int source, int destination) {
    const Reach s = call_.reaches[static_cast<size_t>(source)];
    const bool exact = chance(random_, 40);
    if (exact) arg(destination + 1).num = arg(source + 1).num;
    int64_t delta = exact                 ? 0
                    : chance(random_, 30) ? arg(source + 1).num * between(random_, -1, 1)
                                          : between(random_, -70, 70);
    if (param(destination).type.starts_with("32f")) delta &= ~3;
    const Reach d = reachOf(destination);
    call_.reaches[static_cast<size_t>(destination)] = d;
    const int64_t low = std::min(s.low, delta + d.low), high = std::max(s.high, delta + d.high);
    const int64_t base = chance(random_, 50) ? -low : memorySize - high;
    call_.images.push_back({source, 0, call_.memories, base});
    call_.images.push_back({destination, 0, call_.memories, base + delta});
    ++call_.memories;
}

void Builder::placeImages() {
    const Member& m = *call_.member;
    std::vector<int> images, sources;
    int destination = -1;
    for (int i = 0; i < m.count; ++i) {
        if (!isImage(param(i).role)) continue;
        images.push_back(i);
        call_.reaches[static_cast<size_t>(i)] = reachOf(i);
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
    for (const int i : images)
        for (int plane = 0; plane < std::max(1, param(i).planes); ++plane) {
            const Reach r = call_.reaches[static_cast<size_t>(i)];
            const int64_t slack = chance(random_, 80) ? 0 : between(random_, 0, 40);
            const int64_t position = chance(random_, 40) ? slack - r.low : memorySize - slack - r.high;
            call_.images.push_back({i, plane, call_.memories++, position});
        }
}

Call Builder::place() {
    placeImages();
    for (size_t i = 0; i < call_.nulls.size(); ++i)
        if (call_.nulls[i] && param(static_cast<int>(i)).planes > 0 && chance(random_, 60)) {
            call_.nulls[i] = false; // one plane instead of the array
            const int plane = static_cast<int>(between(random_, 0, param(static_cast<int>(i)).planes - 1));
            for (Placed& image : call_.images)
                if (image.param == static_cast<int>(i) && image.plane == plane) image.null = true;
        }
    return std::move(call_);
}

} // namespace generic
