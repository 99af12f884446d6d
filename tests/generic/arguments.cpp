// The numbers of a random call: sizes, scalars, arrays and steps, and ways to get them wrong.
#include <algorithm>
#include <cstring>
#include <limits>

#include "generic/builder.h"

namespace generic {

float randomReal(Random& random) {
    using Limits = std::numeric_limits<float>;
    static constexpr float specials[] = {0.0f,
                                         -0.0f,
                                         0.5f,
                                         -0.5f,
                                         0.49999997f,
                                         0.50000006f,
                                         -0.50000006f,
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
                                         Limits::infinity(),
                                         -Limits::infinity(),
                                         Limits::quiet_NaN()};
    if (chance(random, 10)) return specials[between(random, 0, std::size(specials) - 1)];
    return tameReal(random);
}

float tameReal(Random& random) {
    const int64_t range = chance(random, 50) ? 300 : 70000;
    if (chance(random, 40)) return static_cast<float>(between(random, -2 * range, 2 * range)) * 0.5f;
    return static_cast<float>(std::uniform_real_distribution<double>(-1.1, 1.1)(random) * static_cast<double>(range));
}

int64_t randomInteger(Random& random, int bits) {
    const int64_t kind = between(random, 1, 100);
    if (kind <= 30) return between(random, -5, 5);
    if (kind <= 40) return (int64_t{1} << between(random, 0, bits - 1)) + between(random, -1, 1);
    if (kind <= 50) return -(int64_t{1} << (bits - 1)) + between(random, -1, 1);
    return static_cast<int64_t>(random());
}

Builder::Builder(const Member& member, Random& random) : random_(random) {
    call_.member = &member;
    const auto count = static_cast<size_t>(member.count);
    call_.args.resize(count);
    call_.arrays.resize(count);
    call_.nulls.resize(count, false);
    call_.reaches.resize(count);
    chooseSizes();
    for (int i = 0; i < member.count; ++i) chooseScalar(i);
    chooseSteps();
}

bool Builder::isFilter() const {
    const std::string_view family = call_.member->family;
    return family.starts_with("Filter") || family.starts_with("SumWindow");
}

void Builder::chooseSizes() {
    const bool wide = chance(random_, 10);
    const int64_t width = wide ? between(random_, 100, 1000) : between(random_, 1, chance(random_, 50) ? 20 : 100);
    const int64_t height = wide ? between(random_, 1, 3) : between(random_, 1, chance(random_, 80) ? 5 : 70);
    if (has("dstSize")) return chooseBorderSizes(width, height);
    auto& roi = named("roiSize");
    roi.width = static_cast<int32_t>(width);
    roi.height = static_cast<int32_t>(height);
    if (call_.member->family == "Transpose") {
        if (wide) roi.height = static_cast<int32_t>(between(random_, 60, 140));
        roi.width = std::min(roi.width, 150);
        if (call_.member->mode[0] == 'I' && !chance(random_, 5)) roi.height = roi.width;
    }
    if (isFilter()) {
        if (wide)
            roi.width = static_cast<int32_t>(between(random_, 60, 90)),
            roi.height = static_cast<int32_t>(between(random_, 60, 70));
        chooseWindow();
    }
    if (chance(random_, 2)) roi.height = 0;
}

void Builder::chooseBorderSizes(int64_t width, int64_t height) {
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
}

// Kernel or mask and anchor. Linear filters take anchors outside the kernel, masks do not.
void Builder::chooseWindow() {
    const int64_t limit = chance(random_, 70) ? 5 : 13;
    const auto side = [&] { return static_cast<int32_t>(between(random_, 1, limit)); };
    const auto inside = [&](int64_t length, bool outsideToo) {
        return outsideToo && chance(random_, 10) ? between(random_, -3, length + 2) : between(random_, 0, length - 1);
    };
    for (const std::string_view name : {"kernelSize", "maskSize"}) {
        if (!has(name)) continue;
        const bool kernel = name == "kernelSize";
        auto& size = named(name);
        if (!has("anchor") || param(call_.member->find("anchor")).role != Role::Point) {
            size.num = chance(random_, 20) ? between(random_, 1, 40) : side();
            named(kernel ? (has("xAnchor") ? "xAnchor" : "yAnchor") : "anchor").num = inside(size.num, kernel);
            continue;
        }
        size.width = side();
        size.height = side();
        if (!kernel && chance(random_, 5)) { // beside the area where 8u means change their formula
            size.width = 90;
            size.height = static_cast<int32_t>(between(random_, 89, 92));
            named("roiSize").width = std::min(named("roiSize").width, 12);
        }
        named("anchor").width = static_cast<int32_t>(inside(size.width, kernel));
        named("anchor").height = static_cast<int32_t>(inside(size.height, kernel));
    }
}

void Builder::chooseScalar(int i) {
    const Param& p = param(i);
    switch (p.role) {
    case Role::Element:
        return chooseElement(i);
    case Role::Integer:
        return chooseInteger(i);
    case Role::Values:
    case Role::Order:
        return chooseArray(i);
    case Role::Table:
        return chooseKernel(i);
    case Role::Real: // vMin and vMax: mostly a range, now and then an empty one
        arg(i).real = std::uniform_real_distribution<float>(-300, 100)(random_);
        if (chance(random_, 20)) arg(i).real = static_cast<float>(between(random_, -2, 2));
        if (p.name == "vMax")
            arg(i).real =
                static_cast<float>(named("vMin").real + std::uniform_real_distribution<float>(-1, 600)(random_));
        return;
    default:
        return;
    }
}

void Builder::chooseInteger(int i) {
    const std::string_view name = param(i).name;
    auto& value = arg(i).num;
    if (name == "flip") value = between(random_, 0, 2);
    if (name == "roundMode")
        value =
            chance(random_, 80) || call_.member->family != "Convert" ? between(random_, 0, 2) : between(random_, -3, 9);
    if (name == "hint") value = between(random_, -1, 4);
    if (name == "threshold") value = between(random_, 0, 255);
    if (name.ends_with("BitOffset")) value = between(random_, 0, chance(random_, 80) ? 7 : 30);
    if (name == "scaleFactor") {
        value = chance(random_, 20) ? 0 : between(random_, -10, 18);
        if (chance(random_, 15)) value = between(random_, -70, 70);
        if (chance(random_, 3)) value = chance(random_, 50) ? INT32_MIN : INT32_MAX;
    }
    if (name == "divisor") {
        value = chance(random_, 30)   ? 1
                : chance(random_, 50) ? int64_t{1} << between(random_, 1, 12)
                                      : between(random_, 2, 300);
        if (chance(random_, 20)) value = -value;
    }
}

void Builder::chooseElement(int i) {
    const Param& p = param(i);
    if (p.type.ends_with("c")) return chooseArray(i); // a complex scalar lies behind a pointer
    auto& a = arg(i);
    a.num = p.type == "32u" ? between(random_, 0, chance(random_, 90) ? 34 : 4000000000)
                            : randomInteger(random_, elementBytes(p.type) * 8);
    if (p.type == "8u") a.num &= 0xFF;
    if (p.type == "16u") a.num &= 0xFFFF;
    if (p.type == "16s") a.num = static_cast<int16_t>(a.num);
    if (p.type == "32s") a.num = static_cast<int32_t>(a.num);
    a.real = randomReal(random_);
}

void Builder::chooseArray(int i) {
    const Param& p = param(i);
    const int size = elementBytes(p.type);
    auto& bytes = call_.arrays[static_cast<size_t>(i)];
    bytes.resize(static_cast<size_t>(p.count) * static_cast<size_t>(size));
    const auto fill = [&](auto&& value) {
        for (size_t at = 0; at < bytes.size();) {
            const auto next = value();
            std::memcpy(bytes.data() + at, &next, sizeof next);
            at += sizeof next;
        }
    };
    if (p.role == Role::Order) {
        const std::string_view layout = call_.member->layout;
        const int64_t limit = layout == "C3C4" ? 6 : layout.starts_with("C4") ? 3 : 2;
        return fill([&] { return static_cast<int32_t>(between(random_, 0, limit)); });
    }
    if (p.type.starts_with("32f")) return fill([&] { return randomReal(random_); });
    if (p.type == "32u") {
        const bool same = chance(random_, 20);
        const auto first = static_cast<uint32_t>(between(random_, 0, 34));
        return fill([&] {
            return same ? first : static_cast<uint32_t>(between(random_, 0, chance(random_, 95) ? 34 : 4000000000));
        });
    }
    if (size == 1) return fill([&] { return static_cast<uint8_t>(randomInteger(random_, 8)); });
    if (size == 2 || p.type == "16sc") return fill([&] { return static_cast<int16_t>(randomInteger(random_, 16)); });
    fill([&] { return static_cast<int32_t>(randomInteger(random_, 32)); });
}

// Coefficients whose sum of products fits 32 bits whatever the pixels are.
void Builder::chooseKernel(int i) {
    const auto& size = named("kernelSize");
    const int64_t count = size.num ? size.num : int64_t{size.width} * size.height;
    const int pixelBits = elementBytes(call_.member->src) * 8;
    const int64_t most = pixelBits > 16 ? 1000 : (int64_t{1} << (30 - pixelBits)) / count;
    const int64_t limit = std::min<int64_t>(most, chance(random_, 70) ? 20 : 40000);
    auto& bytes = call_.arrays[static_cast<size_t>(i)];
    const auto element = static_cast<size_t>(elementBytes(param(i).type));
    bytes.resize(static_cast<size_t>(count) * element);
    for (size_t at = 0; at < bytes.size(); at += element) {
        const auto whole = static_cast<int32_t>(between(random_, -limit, limit));
        const double real = std::uniform_real_distribution<double>(-1, 1)(random_);
        const auto single = chance(random_, 30) ? static_cast<float>(whole) * 0.25f : static_cast<float>(real);
        if (param(i).type == "32s") std::memcpy(bytes.data() + at, &whole, 4);
        if (param(i).type == "32f") std::memcpy(bytes.data() + at, &single, 4);
        if (param(i).type == "64f") std::memcpy(bytes.data() + at, &real, 8);
    }
}

int64_t Builder::chooseStep(int64_t rowBytes, bool written) {
    const int64_t kind = between(random_, 1, 100);
    if (kind <= 35) return rowBytes;
    if (kind <= 65) return rowBytes + between(random_, 0, 40);
    const bool refused = isFilter() && !call_.member->family.starts_with("SumWindow");
    if (kind <= 85 || refused) return (rowBytes + 31) & ~31;
    if (kind <= 92) return -(rowBytes + between(random_, 0, 17));
    if (written && call_.member->family == "Transpose") return rowBytes; // the order of overlapping rows is free there
    if (kind <= 95) return 0;
    return between(random_, 1, rowBytes);
}

void Builder::chooseSteps() {
    for (int i = 0; i < call_.member->count; ++i) {
        const Param& p = param(i);
        if (!isImage(p.role)) continue;
        const int64_t bytes =
            p.type == "1u" ? rowBytes(p, areaOf(p).width()) : areaOf(p).width() * p.elements * elementBytes(p.type);
        int64_t step = chooseStep(bytes, isWritten(p.role));
        if (p.type.starts_with("32f") && std::abs(step) < bytes) step &= ~3; // rows that overlap do so by whole floats
        arg(i + 1).num = p.role == Role::Inside ? std::max(step, bytes) : step;
    }
}

void Builder::breakOne() { breakArgument(static_cast<int>(between(random_, 0, call_.member->count - 1))); }

void Builder::breakArgument(int i) {
    switch (param(i).role) {
    case Role::Size:
        return breakSize(i);
    case Role::Integer:
        return breakInteger(i);
    case Role::Step:
        arg(i).num = 4 * between(random_, -1, 0);
        return;
    case Role::Point:
        (chance(random_, 50) ? arg(i).width : arg(i).height) = chance(random_, 50) ? -1 : 100;
        return;
    case Role::Real:
        named("vMax").real = named("vMin").real - (chance(random_, 50) ? 1 : 0);
        return;
    case Role::Element:
        if (param(i).type.ends_with("c")) std::ranges::fill(call_.arrays[static_cast<size_t>(i)], uint8_t{0});
        arg(i).num = 0;
        arg(i).real = 0;
        return;
    case Role::Values:
        if (chance(random_, 50)) return call_.nulls[static_cast<size_t>(i)].flip();
        std::ranges::fill(call_.arrays[static_cast<size_t>(i)], uint8_t{0});
        return;
    case Role::Order: {
        const int32_t entry = chance(random_, 50) ? -1 : chance(random_, 50) ? 3 : 4;
        std::memcpy(call_.arrays[static_cast<size_t>(i)].data() + 4 * between(random_, 0, param(i).count - 1), &entry,
                    4);
        if (chance(random_, 30)) call_.nulls[static_cast<size_t>(i)] = true;
        return;
    }
    case Role::Buffer:
        return;
    default:
        call_.nulls[static_cast<size_t>(i)] = true;
        return;
    }
}

void Builder::breakSize(int i) {
    static constexpr int32_t bad[] = {0, -1, INT32_MIN};
    auto& a = arg(i);
    const auto badSize = [&] { return bad[between(random_, 0, 2)]; };
    const int64_t which = between(random_, 1, 100);
    if (which <= 60) a.width = badSize();
    if (which > 40) a.height = badSize();
    if (param(i).name == "dstSize" && chance(random_, 50)) {
        a = named("srcSize");
        a.width = static_cast<int32_t>(a.width + named("borderLeft").num - 1); // may wrap
    }
}

void Builder::breakInteger(int i) {
    const std::string_view name = param(i).name;
    auto& value = arg(i).num;
    if (name == "flip" || name == "roundMode")
        value = chance(random_, 50) ? 3 : -1;
    else if (name.starts_with("border"))
        value = chance(random_, 50) ? -1 : INT32_MAX - between(random_, 0, 5);
    else if (name.ends_with("BitOffset"))
        value = -between(random_, 1, 9);
    else if (name == "divisor")
        value = 0;
    else if (name == "kernelSize" || name == "maskSize")
        value = between(random_, -1, 0);
    else if (name == "anchor")
        value = chance(random_, 50) ? -1 : 1000;
}

} // namespace generic
