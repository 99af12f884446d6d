// What the arrays of a random call hold, and ways to get them wrong.
#include <algorithm>
#include <cstring>

#include "generic/builder.h"

namespace generic {

namespace {

// A number as an element, or part of a complex one, of that type.
void append(std::vector<uint8_t>& bytes, std::string_view type, int64_t whole, double real) {
    const auto put = [&](auto value) {
        const auto* first = reinterpret_cast<const uint8_t*>(&value);
        bytes.insert(bytes.end(), first, first + sizeof value);
    };
    if (type.starts_with("32f")) return put(static_cast<float>(real));
    if (type == "64f") return put(real);
    const int size = elementBytes(type) / (type.ends_with("c") ? 2 : 1);
    if (size == 1) put(static_cast<uint8_t>(whole));
    if (size == 2) put(static_cast<int16_t>(whole));
    if (size == 3) put(static_cast<uint8_t>(whole)), put(static_cast<int16_t>(whole >> 8));
    if (size == 4) put(static_cast<int32_t>(whole));
    if (size == 8) put(whole);
}

} // namespace

// Entries of an array, or of that one of the arrays behind an array of pointers.
int64_t Builder::entries(const Param& p, int channel) {
    const Count& count = p.count;
    if (count.a < 0) return count.fixed;
    const auto number = [&](int i) -> int64_t {
        if (param(i).role == Role::Size) return int64_t{arg(i).width} * arg(i).height;
        if (param(i).role != Role::Values) return arg(i).num;
        int32_t n;
        std::memcpy(&n, contents(i)[0].data() + 4 * channel, sizeof n);
        return n;
    };
    int64_t n = number(count.a) * (count.b < 0 ? 1 : number(count.b));
    if (count.power) n = int64_t{1} << std::clamp<int64_t>(n, 0, 16);
    return n - count.less;
}

// Counts come before the arrays that they count, whatever the order of the arguments.
void Builder::chooseArray(int i) {
    const Param& p = param(i);
    if (p.count.a >= 0 && param(p.count.a).role == Role::Values && contents(p.count.a).empty()) chooseArray(p.count.a);
    if (!contents(i).empty()) return;
    for (int channel = 0; channel < std::max(1, p.planes); ++channel)
        contents(i).push_back(randomArray(p, entries(p, channel)));
}

Builder::Bytes Builder::randomArray(const Param& p, int64_t count) {
    if (p.role == Role::Rect || p.role == Role::RectPointer) {
        Bytes rect;
        for (const int64_t low : {0, 0, 1, 1}) append(rect, "32s", between(random_, low, 20), 0);
        return rect;
    }
    if (p.meaning == Meaning::Taps) return randomTaps(p, count);
    if (p.meaning == Meaning::RangeLow || p.meaning == Meaning::RangeHigh) return randomEnds(p, count);
    struct Number {
        int64_t whole;
        double real;
    };
    const bool same = p.meaning == Meaning::Shift && chance(random_, 20);
    std::vector<Number> numbers;
    for (int64_t n = count * (p.type.ends_with("c") ? 2 : 1); n > 0; --n) {
        const bool chosen = p.valid.limited || p.meaning != Meaning::None;
        const int64_t whole = same && !numbers.empty() ? numbers[0].whole
                              : chosen                 ? randomNumber(p)
                                                       : randomInteger(random_, 8 * elementBytes(p.type));
        numbers.push_back({whole, chosen ? static_cast<double>(whole) : static_cast<double>(randomReal(random_))});
    }
    if (p.meaning == Meaning::Levels && chance(random_, 80)) std::ranges::sort(numbers, {}, &Number::real);
    Bytes bytes;
    for (const Number& n : numbers) append(bytes, p.type, n.whole, n.real);
    return bytes;
}

// Ends of ranges, one per channel: mostly the lower ones in the lower half of what the type holds.
Builder::Bytes Builder::randomEnds(const Param& p, int64_t count) {
    const bool ordered = chance(random_, 95), high = p.meaning == Meaning::RangeHigh;
    const int64_t half = int64_t{1} << (8 * elementBytes(p.type) - 1), middle = p.type.ends_with('s') ? 0 : half;
    Bytes bytes;
    for (; count > 0; --count) {
        const int64_t distance = between(random_, 0, half - 1);
        const int64_t whole = !ordered ? static_cast<int64_t>(random_()) : high ? middle + distance : middle - distance;
        const double real = !ordered ? static_cast<double>(randomReal(random_))
                                     : std::uniform_real_distribution<double>(0, 300)(random_) * (high ? 1 : -1);
        append(bytes, p.type, whole, real);
    }
    return bytes;
}

// Coefficients whose sum of products fits 32 bits whatever the pixels are.
Builder::Bytes Builder::randomTaps(const Param& p, int64_t count) {
    const int pixelBits = elementBytes(member().src) * 8;
    const int64_t most = pixelBits > 16 ? 1000 : (int64_t{1} << (30 - pixelBits)) / count;
    const int64_t limit = std::min<int64_t>(most, chance(random_, 70) ? 20 : 40000);
    Bytes bytes;
    for (; count > 0; --count) {
        const int64_t whole = between(random_, -limit, limit);
        const double real = std::uniform_real_distribution<double>(-1, 1)(random_);
        append(bytes, p.type, whole, chance(random_, 30) ? static_cast<double>(whole) * 0.25 : real);
    }
    return bytes;
}

void Builder::breakArray(int i) {
    const Param& p = param(i);
    if (contents(i).empty()) return;
    Bytes& bytes = contents(i)[0];
    if (p.role == Role::Order) {
        const auto entry = static_cast<int32_t>(chance(random_, 50) ? p.valid.low - 1 : p.valid.high + 1);
        std::memcpy(bytes.data() + 4 * between(random_, 0, p.count.fixed - 1), &entry, sizeof entry);
        if (chance(random_, 30)) call_.nulls[static_cast<size_t>(i)] = true;
    } else if (p.role == Role::Values && chance(random_, 50)) {
        call_.nulls[static_cast<size_t>(i)].flip();
    } else {
        std::ranges::fill(bytes, uint8_t{0});
    }
}

} // namespace generic
