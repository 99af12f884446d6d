// The numbers of a random call: sizes, scalars and steps, and ways to get them wrong.
#include <algorithm>
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
    // Of 64 bits, what lies beside the ends of the range is the other end.
    const auto beside = [&](uint64_t end) {
        return static_cast<int64_t>(end + static_cast<uint64_t>(between(random, -1, 1)));
    };
    if (kind <= 40) return beside(uint64_t{1} << between(random, 0, bits - 1));
    if (kind <= 50) return beside(-(uint64_t{1} << (bits - 1)));
    return static_cast<int64_t>(random());
}

Builder::Builder(const Member& called, Random& random) : random_(random) {
    call_.member = &called;
    const auto count = static_cast<size_t>(called.count);
    call_.args.resize(count);
    call_.nulls.resize(count, false);
    call_.pointers.resize(count, -1);
    contents_.resize(count);
    chooseSizes();
    for (int i = 0; i < called.count; ++i) {
        const Role role = param(i).role;
        if (role == Role::Integer || role == Role::Real) chooseNumber(i);
        if (role == Role::Element) chooseElement(i);
    }
    for (int i = 0; i < called.count; ++i)
        if (isArray(param(i))) chooseArray(i);
    chooseSteps();
}

// The first size is that of the region; further ones are small.
void Builder::chooseSizes() {
    for (int i = 0; i < member().count; ++i) {
        const Param& p = param(i);
        if (p.role != Role::Size || p.meaning == Meaning::WindowSize) continue;
        if (p.meaning == Meaning::Outer) {
            chooseOuter(arg(region_), arg(i));
        } else if (region_ >= 0) {
            arg(i).width = static_cast<int32_t>(between(random_, 1, 8));
            arg(i).height = static_cast<int32_t>(between(random_, 1, 8));
        } else {
            region_ = i;
            chooseRegion(arg(i));
        }
    }
    for (const Param& p : member().parameters())
        if (p.region.window.kind != Window::None) chooseWindow(p.region.window);
}

void Builder::chooseRegion(reference::Arg& size) {
    const bool wide = chance(random_, 10);
    const int* large = facts().large;
    int64_t width = wide ? between(random_, 100, 1000) : between(random_, 1, chance(random_, 50) ? 20 : 100);
    int64_t height = wide ? between(random_, 1, 3) : between(random_, 1, chance(random_, 80) ? 5 : 70);
    if (wide && large[0] > 0) width = between(random_, 60, large[0]), height = between(random_, 60, large[1]);
    if (member().find(Meaning::Outer) >= 0) height = std::min<int64_t>(height, 8);
    if (facts().square && !chance(random_, 5)) height = width;
    if (chance(random_, 2)) height = 0;
    size.width = static_cast<int32_t>(width);
    size.height = static_cast<int32_t>(height);
}

void Builder::chooseOuter(const reference::Arg& inner, reference::Arg& outer) {
    const int64_t margin = chance(random_, 50) ? 4 : 50;
    const auto side = [&] { return chance(random_, 20) ? 0 : between(random_, 0, margin); };
    arg(Meaning::BorderTop).num = std::min<int64_t>(side(), 12);
    arg(Meaning::BorderLeft).num = side();
    outer.width = static_cast<int32_t>(inner.width + arg(Meaning::BorderLeft).num + side());
    outer.height = static_cast<int32_t>(inner.height + arg(Meaning::BorderTop).num + std::min<int64_t>(side(), 12));
}

void Builder::chooseSide(int64_t& length, int64_t& anchor, bool mirrored, int64_t limit) {
    length = between(random_, 1, limit);
    anchor = mirrored && chance(random_, 10) ? between(random_, -3, length + 2) : between(random_, 0, length - 1);
}

void Builder::chooseWindow(const Window& window) {
    const int64_t limit = chance(random_, 70) ? 5 : 13;
    if (window.kind == Window::Row || window.kind == Window::Column)
        return chooseSide(arg(window.size).num, arg(window.anchor).num, window.mirrored,
                          chance(random_, 20) ? 40 : limit);
    if (window.kind != Window::Sized) return; // a number like others
    int64_t width, height, x, y;
    chooseSide(width, x, window.mirrored, limit);
    chooseSide(height, y, window.mirrored, limit);
    if (facts().windows[0][0] > 0 && chance(random_, 5)) {
        const int* size = facts().windows[between(random_, 0, std::ssize(facts().windows) - 1)];
        width = std::max(1, size[0]);
        height = std::max(1, size[1]);
        arg(region_).width = std::min(arg(region_).width, 12);
    }
    arg(window.size).width = static_cast<int32_t>(width);
    arg(window.size).height = static_cast<int32_t>(height);
    arg(window.anchor).width = static_cast<int32_t>(x);
    arg(window.anchor).height = static_cast<int32_t>(y);
}

int64_t Builder::validNumber(const Valid& valid) {
    const auto low = static_cast<int64_t>(valid.low), high = static_cast<int64_t>(valid.high);
    for (;;) {
        const int64_t number = between(random_, low, high);
        if (!valid.among || (valid.among >> number & 1)) return number;
    }
}

int64_t Builder::randomNumber(const Param& p) {
    switch (p.meaning) {
    case Meaning::Count:
        return between(random_, 2, 12);
    case Meaning::BitOffset:
        return between(random_, 0, chance(random_, 80) ? 7 : 30);
    case Meaning::Shift:
        return between(random_, 0, chance(random_, 90) ? 34 : 4000000000);
    case Meaning::ScaleFactor:
        if (chance(random_, 3)) return chance(random_, 50) ? INT32_MIN : INT32_MAX;
        if (chance(random_, 15)) return between(random_, -70, 70);
        return chance(random_, 20) ? 0 : between(random_, -10, 18);
    case Meaning::Divisor: {
        const int64_t divisor = chance(random_, 30)   ? 1
                                : chance(random_, 50) ? int64_t{1} << between(random_, 1, 12)
                                                      : between(random_, 2, 300);
        return chance(random_, 20) ? -divisor : divisor;
    }
    default:
        if (p.valid.limited) return validNumber(p.valid);
        return chance(random_, 80) ? between(random_, 0, 3) : between(random_, -3, 9);
    }
}

void Builder::chooseNumber(int i) {
    const Param& p = param(i);
    auto& a = arg(i);
    if (p.meaning == Meaning::BorderTop || p.meaning == Meaning::BorderLeft || p.meaning == Meaning::WindowSize ||
        p.meaning == Meaning::WindowAnchor)
        return; // belong to the sizes
    if (p.role == Role::Integer) {
        a.num = randomNumber(p);
    } else if (p.meaning == Meaning::RangeHigh) { // mostly a range, now and then an empty one
        a.real =
            static_cast<float>(arg(Meaning::RangeLow).real + std::uniform_real_distribution<float>(-1, 600)(random_));
    } else if (p.valid.limited) {
        a.real = std::uniform_real_distribution<double>(p.valid.low, p.valid.high)(random_);
    } else {
        a.real = chance(random_, 20) ? static_cast<float>(between(random_, -2, 2))
                                     : std::uniform_real_distribution<float>(-300, 100)(random_);
    }
}

void Builder::chooseElement(int i) {
    const Param& p = param(i);
    auto& a = arg(i);
    a.num = p.meaning == Meaning::Shift ? randomNumber(p) : randomInteger(random_, elementBytes(p.type) * 8);
    a.real = randomReal(random_);
    if (p.type == "8u") a.num &= 0xFF;
    if (p.type == "16u") a.num &= 0xFFFF;
    if (p.type == "16s") a.num = static_cast<int16_t>(a.num);
    if (p.type == "32s") a.num = static_cast<int32_t>(a.num);
    if (p.meaning == Meaning::RangeHigh && chance(random_, 90)) { // else maybe an empty range
        a.num = std::max(a.num, arg(Meaning::RangeLow).num);
        a.real = std::max(a.real, arg(Meaning::RangeLow).real);
    }
}

int64_t Builder::chooseStep(int64_t rowBytes, bool written) {
    const int64_t kind = between(random_, 1, 100);
    if (kind <= 35) return rowBytes;
    if (kind <= 65) return rowBytes + between(random_, 0, 40);
    if (kind <= 85 || facts().rows == Rows::Apart) return (rowBytes + 31) & ~31;
    if (kind <= 92) return -(rowBytes + between(random_, 0, 17));
    if (written && facts().rows == Rows::WrittenApart) return rowBytes;
    if (kind <= 95) return 0;
    return between(random_, 1, rowBytes);
}

void Builder::chooseSteps() {
    for (int i = 0; i < member().count; ++i) {
        const Param& p = param(i);
        if (!isImage(p.role)) continue;
        const int64_t width = areaOf(i).width();
        const int64_t bytes = p.type == "1u" ? rowBytes(p, width) : width * p.elements * elementBytes(p.type);
        int64_t step = chooseStep(bytes, isWritten(p.role));
        if (p.type.starts_with("32f") && std::abs(step) < bytes) step &= ~3; // rows that overlap do so by whole floats
        arg(member().stepOf(i)).num = p.role == Role::Inside ? std::max(step, bytes) : step;
    }
}

void Builder::breakOne() { breakArgument(static_cast<int>(between(random_, 0, member().count - 1))); }

void Builder::breakArgument(int i) {
    switch (param(i).role) {
    case Role::Size:
        return breakSize(i);
    case Role::Integer:
    case Role::Real:
        return breakNumber(i);
    case Role::Step:
        arg(i).num = 4 * between(random_, -1, 0);
        return;
    case Role::Point:
        (chance(random_, 50) ? arg(i).width : arg(i).height) = chance(random_, 50) ? -1 : 100;
        return;
    case Role::Element:
        arg(i).num = 0;
        arg(i).real = 0;
        return breakArray(i);
    case Role::Values:
    case Role::Order:
    case Role::Rect:
        return breakArray(i);
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
    if (param(i).meaning == Meaning::Outer && chance(random_, 50)) {
        a = arg(region_);
        a.width = static_cast<int32_t>(a.width + arg(Meaning::BorderLeft).num - 1); // may wrap
    }
}

void Builder::breakNumber(int i) {
    const Param& p = param(i);
    auto& value = arg(i).num;
    switch (p.meaning) {
    case Meaning::BorderTop:
    case Meaning::BorderLeft:
        value = chance(random_, 50) ? -1 : INT32_MAX - between(random_, 0, 5);
        return;
    case Meaning::BitOffset:
        value = -between(random_, 1, 9);
        return;
    case Meaning::Divisor:
        value = 0;
        return;
    case Meaning::WindowSize:
    case Meaning::Count:
        value = between(random_, -1, 0);
        return;
    case Meaning::WindowAnchor:
        value = chance(random_, 50) ? -1 : 1000;
        return;
    case Meaning::RangeLow:
    case Meaning::RangeHigh:
        arg(Meaning::RangeHigh).real = arg(Meaning::RangeLow).real - (chance(random_, 50) ? 1 : 0);
        return;
    default:
        if (!p.valid.limited) return;
        value = static_cast<int64_t>(chance(random_, 50) ? p.valid.high + 1 : p.valid.low - 1);
        arg(i).real = static_cast<double>(value);
    }
}

} // namespace generic
