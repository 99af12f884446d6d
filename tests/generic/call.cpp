#include "generic/call.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <sstream>

#include "generic/guarded.h"

namespace generic {

int elementBytes(std::string_view type) {
    static constexpr std::pair<std::string_view, int> sizes[] = {{"1u", 1},  {"8u", 1},   {"8s", 1},   {"16u", 2},
                                                                 {"16s", 2}, {"32u", 4},  {"32s", 4},  {"32f", 4},
                                                                 {"64f", 8}, {"16sc", 4}, {"32sc", 8}, {"32fc", 8}};
    for (const auto& [code, size] : sizes)
        if (code == type) return size;
    return 0;
}

namespace {

constexpr int64_t memorySize = static_cast<int64_t>(Guarded::size);

class Builder {
public:
    Builder(const Member& member, Random& random) : random_(random) {
        call_.member = &member;
        call_.args.resize(static_cast<size_t>(member.count));
        call_.arrays.resize(static_cast<size_t>(member.count));
        call_.nulls.resize(static_cast<size_t>(member.count), false);
        call_.reaches.resize(static_cast<size_t>(member.count));
        chooseSizes();
        for (int i = 0; i < member.count; ++i)
            chooseScalar(i);
        chooseSteps();
    }

    // Makes one argument wrong. Images are placed afterwards, for whatever region the numbers then describe.
    void breakOne();
    Call place();

private:
    const Param& param(int i) const { return call_.member->params[i]; }
    reference::Arg& arg(int i) { return call_.args[static_cast<size_t>(i)]; }
    bool has(std::string_view name) const { return call_.member->find(name) >= 0; }
    reference::Arg& named(std::string_view name) { return arg(call_.member->find(name)); }

    void chooseSizes();
    void chooseScalar(int i);
    void chooseArray(int i);
    void chooseSteps();
    int64_t chooseStep(int64_t rowBytes, bool written);
    std::pair<int64_t, int64_t> regionOf(const Param& p);
    int64_t rowBytes(const Param& p, int64_t width);
    Reach reachOf(int i);
    void placeImages();
    void placeOverlapping(int source, int destination);

    Random& random_;
    Call call_;
};

void Builder::chooseSizes() {
    const bool wide = chance(random_, 10);
    const int64_t width = wide ? between(random_, 100, 1000) : between(random_, 1, chance(random_, 50) ? 20 : 100);
    const int64_t height = wide ? between(random_, 1, 3) : between(random_, 1, chance(random_, 80) ? 5 : 70);
    if (has("dstSize")) {
        auto& src = named("srcSize");
        src.width = static_cast<int32_t>(width);
        src.height = static_cast<int32_t>(std::min<int64_t>(height, 8));
        const int64_t margin = chance(random_, 50) ? 4 : 50;
        const auto side = [&] { return chance(random_, 20) ? 0 : between(random_, 0, margin); };
        named("borderTop").num = std::min<int64_t>(side(), 12);
        named("borderLeft").num = side();
        auto& dst = named("dstSize");
        dst.width = static_cast<int32_t>(src.width + named("borderLeft").num + side());
        dst.height = static_cast<int32_t>(src.height + named("borderTop").num + std::min<int64_t>(side(), 12));
        return;
    }
    auto& roi = named("roiSize");
    roi.width = static_cast<int32_t>(width);
    roi.height = static_cast<int32_t>(height);
    if (call_.member->family == "Transpose") {
        if (wide)
            roi.width = static_cast<int32_t>(between(random_, 60, 140)),
            roi.height = static_cast<int32_t>(between(random_, 60, 140));
        if (call_.member->mode[0] == 'I' && !chance(random_, 5)) roi.height = roi.width = std::min(roi.width, 150);
        roi.width = std::min(roi.width, 150);
        roi.height = std::min(roi.height, 150);
    }
    if (chance(random_, 2)) roi.height = 0;
}

float randomReal(Random& random) {
    static constexpr float specials[] = {0.0f,
                                         -0.0f,
                                         0.5f,
                                         -0.5f,
                                         0.49999997f,
                                         1.5f,
                                         2.5f,
                                         -2.5f,
                                         254.5f,
                                         255.0f,
                                         255.5f,
                                         65535.0f,
                                         32767.0f,
                                         -32768.0f,
                                         -128.0f,
                                         127.0f,
                                         1e10f,
                                         -1e10f,
                                         1e-40f,
                                         -1e-40f,
                                         std::numeric_limits<float>::infinity(),
                                         -std::numeric_limits<float>::infinity(),
                                         std::numeric_limits<float>::quiet_NaN()};
    if (chance(random, 10)) return specials[between(random, 0, std::size(specials) - 1)];
    const int64_t range = chance(random, 50) ? 300 : 70000;
    if (chance(random, 40)) return static_cast<float>(between(random, -2 * range, 2 * range)) * 0.5f;
    return static_cast<float>(std::uniform_real_distribution<double>(-1.1, 1.1)(random) * static_cast<double>(range));
}

void Builder::chooseScalar(int i) {
    const Param& p = param(i);
    auto& a = arg(i);
    switch (p.role) {
    case Role::Element:
        a.num = p.type == "32s"   ? between(random_, INT32_MIN, INT32_MAX)
                : p.type == "16s" ? between(random_, INT16_MIN, INT16_MAX)
                                  : between(random_, 0, p.type == "8u" ? 255 : 65535);
        a.real = randomReal(random_);
        break;
    case Role::Real:
        // vMin and vMax: mostly a range, now and then an empty one
        a.real = std::uniform_real_distribution<float>(-300, 100)(random_);
        if (chance(random_, 20)) a.real = static_cast<float>(between(random_, -2, 2));
        if (p.name == "vMax")
            a.real = static_cast<float>(named("vMin").real + std::uniform_real_distribution<float>(-1, 600)(random_));
        break;
    case Role::Integer:
        if (p.name == "flip") a.num = between(random_, 0, 2);
        if (p.name == "roundMode") a.num = chance(random_, 80) ? between(random_, 0, 2) : between(random_, -3, 9);
        if (p.name == "hint") a.num = between(random_, -1, 4);
        if (p.name == "threshold") a.num = between(random_, 0, 255);
        if (p.name.ends_with("BitOffset")) a.num = between(random_, 0, chance(random_, 80) ? 7 : 30);
        break;
    case Role::Values:
    case Role::Order:
        chooseArray(i);
        break;
    default:
        break;
    }
}

void Builder::chooseArray(int i) {
    const Param& p = param(i);
    auto& bytes = call_.arrays[static_cast<size_t>(i)];
    bytes.resize(static_cast<size_t>(p.count * elementBytes(p.type)));
    if (p.role == Role::Values) {
        for (uint8_t& b : bytes)
            b = static_cast<uint8_t>(random_());
        return;
    }
    const std::string_view layout = call_.member->layout;
    const int64_t limit = layout == "C3C4" ? 6 : layout.starts_with("C4") ? 3 : 2;
    for (int k = 0; k < p.count; ++k) {
        const auto entry = static_cast<int32_t>(between(random_, 0, limit));
        std::memcpy(bytes.data() + 4 * k, &entry, 4);
    }
}

// Width and height of the region that an image parameter covers.
std::pair<int64_t, int64_t> Builder::regionOf(const Param& p) {
    const bool transposed = p.bound == "transposed";
    const auto& size = transposed ? named("roiSize") : named(p.bound);
    if (transposed) return {size.height, size.width};
    return {size.width, size.height};
}

// The bytes of a row up to the last element that may be touched.
int64_t Builder::rowBytes(const Param& p, int64_t width) {
    if (width < 1) return 0;
    if (p.type == "1u") return (named(p.role == Role::Source ? "srcBitOffset" : "dstBitOffset").num + width + 7) / 8;
    // A one-channel operand ends at its element, and the fourth element of an AC4 source is nobody's.
    const int64_t last = p.channels == 1 ? 1 : isWritten(p.role) ? p.elements : p.channels;
    return ((width - 1) * p.elements + last) * elementBytes(p.type);
}

int64_t Builder::chooseStep(int64_t rowBytes, bool written) {
    const int64_t kind = between(random_, 1, 100);
    if (kind <= 35) return rowBytes;
    if (kind <= 65) return rowBytes + between(random_, 0, 40);
    if (kind <= 85) return (rowBytes + 31) & ~31;
    if (kind <= 92) return -(rowBytes + between(random_, 0, 17));
    if (written && call_.member->family == "Transpose") return rowBytes; // the order of overlapping rows is free there
    if (kind <= 95) return 0;
    return between(random_, 1, rowBytes);
}

void Builder::chooseSteps() {
    for (int i = 0; i < call_.member->count; ++i) {
        const Param& p = param(i);
        if (!isImage(p.role)) continue;
        int64_t bytes;
        if (p.role == Role::Inside)
            bytes = named("dstSize").width * p.elements * elementBytes(p.type);
        else if (p.type == "1u")
            bytes = rowBytes(p, regionOf(p).first);
        else
            bytes = regionOf(p).first * p.elements * elementBytes(p.type);
        arg(i + 1).num = p.role == Role::Inside ? std::max<int64_t>(chooseStep(bytes, true), bytes)
                                                : chooseStep(bytes, isWritten(p.role));
    }
}

Reach Builder::reachOf(int i) {
    const Param& p = param(i);
    const int64_t step = arg(i + 1).num;
    if (p.role == Role::Inside) {
        const auto& dst = named("dstSize");
        const int64_t pixel = p.elements * elementBytes(p.type);
        const int64_t top = named("borderTop").num, left = named("borderLeft").num;
        if (dst.width < 1 || dst.height < 1 || top < 0 || left < 0 || top > 1000 || left > 1000 || step < 0)
            return {0, 64};
        return {-top * step - left * pixel, (dst.height - 1 - top) * step + (dst.width - left) * pixel};
    }
    const auto [width, height] = regionOf(p);
    if (width < 1 || height < 1 || width > 2000 || height > 2000) return {0, 64};
    const int64_t span = (height - 1) * step;
    return {std::min<int64_t>(0, span), std::max<int64_t>(0, span) + rowBytes(p, width)};
}

void Builder::breakOne() {
    const Member& m = *call_.member;
    const int i = static_cast<int>(between(random_, 0, m.count - 1));
    auto& a = arg(i);
    static constexpr int32_t badSizes[] = {0, -1, INT32_MIN};
    const auto badSize = [&] { return badSizes[between(random_, 0, 2)]; };
    switch (param(i).role) {
    case Role::Size:
        if (chance(random_, 50))
            a.width = badSize();
        else
            a.height = badSize();
        if (chance(random_, 20)) a.width = badSize(), a.height = badSize();
        if (param(i).name == "dstSize" && chance(random_, 50)) {
            a = named("srcSize");
            a.width += static_cast<int32_t>(named("borderLeft").num) - 1;
        }
        break;
    case Role::Step:
        a.num = between(random_, -1, 0);
        break;
    case Role::Integer:
        if (param(i).name == "flip")
            a.num = chance(random_, 50) ? 3 : -1;
        else if (param(i).name.starts_with("border"))
            a.num = chance(random_, 50) ? -1 : INT32_MAX - between(random_, 0, 5);
        else if (param(i).name.ends_with("BitOffset"))
            a.num = -between(random_, 1, 9);
        break;
    case Role::Real:
        named("vMax").real = named("vMin").real - (chance(random_, 50) ? 1 : 0);
        break;
    case Role::Order: {
        const int32_t entry = chance(random_, 50) ? -1 : chance(random_, 50) ? 3 : 4;
        std::memcpy(call_.arrays[static_cast<size_t>(i)].data() + 4 * between(random_, 0, param(i).count - 1), &entry,
                    4);
        if (chance(random_, 30)) call_.nulls[static_cast<size_t>(i)] = true;
        break;
    }
    case Role::Element:
        break;
    default:
        call_.nulls[static_cast<size_t>(i)] = true;
        break;
    }
}

void Builder::placeOverlapping(int source, int destination) {
    const Reach s = call_.reaches[static_cast<size_t>(source)];
    const Reach d = call_.reaches[static_cast<size_t>(destination)];
    const bool exact = chance(random_, 40);
    if (exact) arg(destination + 1).num = arg(source + 1).num;
    const int64_t delta = exact                 ? 0
                          : chance(random_, 30) ? arg(source + 1).num * between(random_, -1, 1)
                                                : between(random_, -70, 70);
    const Reach d2 = exact ? reachOf(destination) : d;
    call_.reaches[static_cast<size_t>(destination)] = d2;
    const int64_t low = std::min(s.low, delta + d2.low), high = std::max(s.high, delta + d2.high);
    const int64_t base = chance(random_, 50) ? -low : memorySize - high;
    call_.images.push_back({source, 0, call_.memories, base});
    call_.images.push_back({destination, 0, call_.memories, base + delta});
    ++call_.memories;
}

void Builder::placeImages() {
    const Member& m = *call_.member;
    std::vector<int> images;
    for (int i = 0; i < m.count; ++i)
        if (isImage(param(i).role)) {
            images.push_back(i);
            call_.reaches[static_cast<size_t>(i)] = reachOf(i);
        }
    const bool free = m.family != "Transpose" && !m.family.ends_with("Border");
    if (free && images.size() >= 2 && param(images[0]).role == Role::Source && param(images[0]).planes == 0 &&
        param(images[1]).planes == 0 && isWritten(param(images[1]).role) && chance(random_, 15)) {
        placeOverlapping(images[0], images[1]);
        images.erase(images.begin(), images.begin() + 2);
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

} // namespace

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
            for (int k = 0; k < p.count; ++k)
                text << reinterpret_cast<const int32_t*>(arrays[i].data())[k] << " ";
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

namespace {

void fillReal(uint8_t* bytes, size_t size, Random& random) {
    for (size_t at = 0; at + 4 <= size; at += 4) {
        const float value = randomReal(random);
        std::memcpy(bytes + at, &value, 4);
    }
}

void fillMask(uint8_t* bytes, size_t size, Random& random) {
    const int percent = static_cast<int>(between(random, 0, 4)) * 25;
    for (size_t at = 0; at < size; ++at)
        bytes[at] = chance(random, percent) ? static_cast<uint8_t>(random() | 1) : 0;
}

} // namespace

void fillMemory(const Call& call, int memory, uint8_t* bytes, Random& random) {
    const Reach window = call.window(memory);
    for (int64_t at = window.low; at < window.high; at += 8) {
        const uint64_t word = random();
        std::memcpy(bytes + at, &word, 8);
    }
    for (const Placed& image : call.images) {
        if (image.memory != memory) continue;
        const Param& p = call.member->params[image.param];
        const Reach r = call.reaches[static_cast<size_t>(image.param)];
        uint8_t* low = bytes + image.position + r.low;
        const auto length = static_cast<size_t>(r.length());
        if (p.role == Role::Mask) fillMask(low, length, random);
        if (p.type == "32f" && p.role == Role::Source && chance(random, 95)) fillReal(low, length, random);
        if (p.type == "8u" && chance(random, 20))
            for (size_t at = 0; at < length; ++at)
                low[at] = chance(random, 50) ? 0 : 255;
    }
}

} // namespace generic
