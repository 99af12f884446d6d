// The engine of reductions, by made-up ones: against plain loops, in every layout, on every target to the bit.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string_view>
#include <type_traits>
#include <vector>

#include "generic/guarded.h"
#include "internal/reduce_probe.h"
#include "targets.h"

const ReduceProbe* reduceProbes = nullptr;

namespace {

// The probes of the targets that run here.
std::vector<const ReduceProbe*> availableProbes() {
    std::vector<const ReduceProbe*> available;
    for (const pxl::KnownTarget& known : availableTargets())
        for (const ReduceProbe* probe = reduceProbes; probe; probe = probe->next)
            if (std::string_view(probe->target) == known.name) available.push_back(probe);
    return available;
}

struct Layout {
    int elements, channels;
};
constexpr Layout layouts[] = {{1, 1}, {3, 3}, {4, 4}, {4, 3}, {3, 1}, {4, 1}};

constexpr int blockBytes = 96, largestVector = 32;
constexpr int height = 3;

// Pixels that end a vector and one element behind two blocks, and a few more.
template <class T>
int largestWidth(const Layout& layout) {
    return (2 * blockBytes + largestVector) / static_cast<int>(sizeof(T)) / layout.elements + 3;
}

enum class Rows { contiguous, odd, upward, standing };
constexpr Rows allRows[] = {Rows::contiguous, Rows::odd, Rows::upward, Rows::standing};

// A region whose last (upward: first) row ends (begins) beside an inaccessible page; unread elements lie behind the page.
template <class T>
class Region {
public:
    Region(const Layout& layout, ImageSize size, Rows rows) : layout_(layout), size_(size) {
        const int elementBytes = static_cast<int>(sizeof(T)), pixel = layout.elements * elementBytes;
        const int rowBytes = size.width * pixel, unread = (layout.elements - layout.channels) * elementBytes;
        step_ = rows == Rows::contiguous ? rowBytes
                : rows == Rows::odd      ? rowBytes + 37
                : rows == Rows::upward   ? -rowBytes - 13
                                         : 0;
        base_ = rows == Rows::upward ? memory_.begin() - (size.height - 1) * step_
                                     : memory_.end() - (size.height - 1) * step_ - rowBytes + unread;
    }

    void set(int x, int y, int c, T value) { std::memcpy(address(x, y, c), &value, sizeof value); }
    T get(int x, int y, int c) const {
        T value;
        std::memcpy(&value, address(x, y, c), sizeof value);
        return value;
    }
    // Whether the element may be accessed.
    bool exists(int x, int, int c) const { return x < size_.width - 1 || c < layout_.channels; }

    template <class Value>
    void fill(Value&& value) {
        for (int y = 0; y < size_.height; ++y)
            for (int x = 0; x < size_.width; ++x)
                for (int c = 0; c < layout_.elements; ++c)
                    if (exists(x, y, c)) set(x, y, c, value(c));
    }

    ReduceOperands operands() const { return {size_, layout_.elements, layout_.channels, base_, step_}; }
    const uint8_t* base() const { return base_; }
    int step() const { return step_; }

private:
    uint8_t* address(int x, int y, int c) const {
        return base_ + y * step_ + (x * layout_.elements + c) * static_cast<int>(sizeof(T));
    }

    generic::Guarded memory_;
    Layout layout_;
    ImageSize size_;
    int step_;
    uint8_t* base_;
};

std::string describe(const ReduceProbe& probe, const Layout& layout, ImageSize size, Rows rows) {
    return (testing::Message() << probe.target << " " << layout.channels << " of " << layout.elements << ", "
                               << size.width << "x" << size.height << ", rows " << static_cast<int>(rows))
        .GetString();
}

// Calls body(layout, size, rows) for all shapes.
template <class T, class Body>
void forEachShape(Body body) {
    for (const Layout& layout : layouts)
        for (const Rows rows : allRows)
            for (int width = 1; width <= largestWidth<T>(layout); ++width) body(layout, ImageSize{width, height}, rows);
}

// ---- sums of integers -------------------------------------------------------------------------------------------------------

template <class T>
std::vector<uint64_t> plainSums(const Layout& layout, ImageSize size, const Region<T>& a, const Region<T>* b) {
    std::vector<uint64_t> sum(static_cast<size_t>(layout.channels));
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x)
            for (int c = 0; c < layout.channels; ++c) {
                const int difference = a.get(x, y, c) - (b ? b->get(x, y, c) : 0);
                sum[static_cast<size_t>(c)] += static_cast<uint64_t>(std::abs(difference));
            }
    return sum;
}

template <class T>
void expectSums(void (*ReduceProbe::*function)(const ReduceOperands&, uint64_t*), bool two) {
    std::mt19937 random(7);
    forEachShape<T>([&](const Layout& layout, ImageSize size, Rows rows) {
        Region<T> a(layout, size, rows), b(layout, size, rows);
        const auto any = [&](int) { return static_cast<T>(random()); };
        a.fill(any);
        b.fill(any);
        ReduceOperands operands = a.operands();
        if (two) operands.other = b.base(), operands.otherStep = b.step();
        const auto expected = plainSums(layout, size, a, two ? &b : nullptr);
        for (const ReduceProbe* probe : availableProbes()) {
            std::vector<uint64_t> sum(expected.size());
            (probe->*function)(operands, sum.data());
            ASSERT_EQ(sum, expected) << describe(*probe, layout, size, rows);
        }
    });
}

TEST(Reduce, IntegerSums) {
    expectSums<uint8_t>(&ReduceProbe::sums8u, false);
    expectSums<uint16_t>(&ReduceProbe::sums16u, false);
}
TEST(Reduce, IntegerSumsOfTwoSources) {
    expectSums<uint8_t>(&ReduceProbe::sums8u, true);
    expectSums<uint16_t>(&ReduceProbe::sums16u, true);
}

// Rows that fill every narrow accumulator many times over; the rows all lie at the same place.
template <class T>
void expectExact(void (*ReduceProbe::*function)(const ReduceOperands&, uint64_t*)) {
    constexpr int elements = (1 << 20) + 7, rows = 5;
    const std::vector<T> row(elements, std::numeric_limits<T>::max());
    for (const ReduceProbe* probe : availableProbes())
        for (const Layout& layout : layouts) {
            const ImageSize size = {elements / layout.elements, rows};
            uint64_t sum[4] = {};
            (probe->*function)({size, layout.elements, layout.channels, row.data(), 0}, sum);
            for (int c = 0; c < layout.channels; ++c)
                EXPECT_EQ(sum[c], uint64_t{std::numeric_limits<T>::max()} * static_cast<uint64_t>(size.width) * rows)
                    << describe(*probe, layout, size, Rows::standing);
        }
}

TEST(Reduce, IntegerSumsAreExact) {
    expectExact<uint8_t>(&ReduceProbe::sums8u);
    expectExact<uint16_t>(&ReduceProbe::sums16u);
}

TEST(Reduce, RowsWithResultsAreTakenInOrder) {
    std::mt19937 random(3);
    forEachShape<uint16_t>([&](const Layout& layout, ImageSize size, Rows rows) {
        Region<uint16_t> a(layout, size, rows);
        a.fill([&](int) { return static_cast<uint16_t>(random()); });
        std::vector<double> expected(static_cast<size_t>(layout.channels));
        for (int y = 0; y < size.height; ++y)
            for (int c = 0; c < layout.channels; ++c) {
                double sum = 0;
                for (int x = 0; x < size.width; ++x) sum += a.get(x, y, c);
                expected[static_cast<size_t>(c)] = 0.75 * expected[static_cast<size_t>(c)] + sum;
            }
        for (const ReduceProbe* probe : availableProbes()) {
            std::vector<double> actual(expected.size());
            probe->sumsOfRows16u(a.operands(), actual.data());
            ASSERT_EQ(actual, expected) << describe(*probe, layout, size, rows);
        }
    });
}

// ---- sums of floats ---------------------------------------------------------------------------------------------------------

// Element i of a row goes to part i % 24 (a contiguous region is one row); the parts are joined by halves, then by thirds.
std::vector<double> plainFloatSums(const Layout& layout, ImageSize size, const Region<float>& a,
                                   const Region<float>* b) {
    double part[24] = {};
    for (int y = 0; y < size.height; ++y)
        for (int x = 0; x < size.width; ++x)
            for (int c = 0; c < layout.elements; ++c) {
                const bool joined = a.step() == size.width * layout.elements * static_cast<int>(sizeof(float));
                const int pixel = joined ? y * size.width + x : x;
                if (!a.exists(x, y, c)) continue;
                double& sum = part[(pixel * layout.elements + c) % 24];
                sum += double{a.get(x, y, c)} - (b ? double{b->get(x, y, c)} : 0);
            }
    for (int k = 0; k < 12; ++k) part[k] += part[k + 12];
    if (layout.elements != 4) {
        for (int k = 0; k < 6; ++k) part[k] += part[k + 6];
        for (int k = 0; k < 3; ++k) part[k] += part[k + 3];
        if (layout.elements == 1) part[0] = part[0] + part[1] + part[2];
    } else {
        for (int k = 0; k < 4; ++k) part[k] = part[k] + part[k + 4] + part[k + 8];
    }
    return {part, part + layout.channels};
}

void expectFloatSums(bool two) {
    std::mt19937 random(11);
    const auto any = [&] { // of all magnitudes, so that the order of additions shows
        return std::ldexp(static_cast<float>(random() % 20001) - 10000.0f, static_cast<int>(random() % 90) - 45);
    };
    forEachShape<float>([&](const Layout& layout, ImageSize size, Rows rows) {
        Region<float> a(layout, size, rows), b(layout, size, rows);
        const auto element = [&](int c) {
            return c < layout.channels ? any() : std::numeric_limits<float>::quiet_NaN();
        };
        a.fill(element);
        b.fill(element);
        ReduceOperands operands = a.operands();
        if (two) operands.other = b.base(), operands.otherStep = b.step();
        const auto expected = plainFloatSums(layout, size, a, two ? &b : nullptr);
        for (const ReduceProbe* probe : availableProbes()) {
            std::vector<double> sum(expected.size());
            probe->sums32f(operands, sum.data());
            ASSERT_EQ(std::memcmp(sum.data(), expected.data(), sum.size() * sizeof(double)), 0)
                << describe(*probe, layout, size, rows);
        }
    });
}

TEST(Reduce, FloatSumsHaveOneGrouping) { expectFloatSums(false); }
TEST(Reduce, FloatSumsOfTwoSources) { expectFloatSums(true); }

// ---- extrema with places ----------------------------------------------------------------------------------------------------

template <class T>
void expectLargest(void (*ReduceProbe::*function)(const ReduceOperands&, T*, ImagePoint*), const Layout& layout,
                   const Region<T>& a, ImageSize size, Rows rows) {
    for (const ReduceProbe* probe : availableProbes()) {
        T value[4];
        ImagePoint at[4];
        (probe->*function)(a.operands(), value, at);
        for (int c = 0; c < layout.channels; ++c) {
            ImagePoint place = {0, 0};
            for (int y = 0; y < size.height; ++y)
                for (int x = 0; x < size.width; ++x)
                    if (a.get(x, y, c) > a.get(place.x, place.y, c)) place = {x, y};
            const T expected = a.get(place.x, place.y, c);
            ASSERT_EQ(std::memcmp(&value[c], &expected, sizeof expected), 0)
                << describe(*probe, layout, size, rows) << " channel " << c << ": " << +value[c] << ", not "
                << +expected;
            ASSERT_EQ(at[c].x, place.x) << describe(*probe, layout, size, rows) << " channel " << c;
            ASSERT_EQ(at[c].y, place.y) << describe(*probe, layout, size, rows) << " channel " << c;
        }
    }
}

TEST(Reduce, LargestWithPlace) {
    std::mt19937 random(5);
    const auto byte = [&](int c) { return static_cast<uint8_t>(c == 3 ? 255 : random() % 6 * (random() % 40)); };
    const auto real = [&](int) {
        constexpr float values[] = {-3.5f, -0.0f, 0.0f, -1.0f, std::numeric_limits<float>::quiet_NaN()};
        return values[random() % (random() % 2 ? 5 : 1)];
    };
    forEachShape<uint8_t>([&](const Layout& layout, ImageSize size, Rows rows) {
        Region<uint8_t> a(layout, size, rows);
        a.fill(byte);
        expectLargest(&ReduceProbe::largest8u, layout, a, size, rows);
    });
    forEachShape<float>([&](const Layout& layout, ImageSize size, Rows rows) {
        Region<float> a(layout, size, rows);
        a.fill(real);
        expectLargest(&ReduceProbe::largest32f, layout, a, size, rows);
    });
}

// Rows longer than a tile, and several tiles of rows; the largest element stands at the edges of tiles, or twice anywhere.
TEST(Reduce, LargestWithPlaceAcrossTiles) {
    std::mt19937 random(9);
    constexpr int tileBytes = 16320; // of a row
    constexpr ImageSize sizes[] = {{16320, 3}, {40001, 3}, {5461, 9}, {311, 200}, {1, 20000}};
    for (const Layout& layout : layouts)
        for (const Rows rows : {Rows::contiguous, Rows::odd})
            for (ImageSize size : sizes) {
                if (size.width > 1) size.width /= layout.elements;
                Region<uint8_t> a(layout, size, rows);
                a.fill([&](int) { return static_cast<uint8_t>(random() % 200); });
                const int edge = tileBytes / layout.elements;
                for (const int x : {0, edge - 1, edge, 2 * edge - 1, 2 * edge, size.width - 1}) {
                    if (x >= size.width) continue;
                    const int y = static_cast<int>(random() % static_cast<unsigned>(size.height));
                    for (int c = 0; c < layout.channels; ++c) a.set(x, y, c, 250);
                    expectLargest(&ReduceProbe::largest8u, layout, a, size, rows);
                    for (int c = 0; c < layout.channels; ++c) a.set(x, y, c, 0);
                }
                for (int i = 0; i < 2 * layout.channels; ++i)
                    a.set(static_cast<int>(random() % static_cast<unsigned>(size.width)),
                          static_cast<int>(random() % static_cast<unsigned>(size.height)), i / 2, 250);
                expectLargest(&ReduceProbe::largest8u, layout, a, size, rows);
            }
}

} // namespace
