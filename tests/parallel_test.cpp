// Parallel execution: the same result for every team, from inside the caller's own regions and from many threads at once.
#include <gtest/gtest.h>
#include <omp.h>
#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>
#endif

#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <random>
#include <thread>
#include <vector>

#include "frame/team.h"
#include "pxlcore.h"
#include "pxli.h"
#include "targets.h"

namespace {

class TeamScope {
public:
    explicit TeamScope(int size) : before_(threads_omp_of_n_pxl) { threads_omp_of_n_pxl = size; }
    ~TeamScope() { threads_omp_of_n_pxl = before_; }
    TeamScope(const TeamScope&) = delete;
    TeamScope& operator=(const TeamScope&) = delete;

private:
    int before_;
};

// A source with a margin on all sides, so that any window of up to `margin` pixels finds its pixels.
template <class T>
struct Picture {
    static constexpr int margin = 16;
    int elements, step;
    std::vector<T> data;

    Picture(ImageSize size, int perPixel, unsigned seed)
        : elements(perPixel), step((size.width + 2 * margin) * perPixel * static_cast<int>(sizeof(T))),
          data(static_cast<size_t>(step) / sizeof(T) * static_cast<size_t>(size.height + 2 * margin)) {
        std::mt19937 random(seed);
        for (T& v : data) {
            v = static_cast<T>(static_cast<int>(random() % 60000) - (std::is_unsigned_v<T> ? 0 : 30000));
            if constexpr (std::is_same_v<T, float>) v *= 0.1f; // no sums without rounding
        }
    }
    T* origin() { return data.data() + (margin * (step / static_cast<int>(sizeof(T)))) + margin * elements; }
};

const int32_t integerKernel[15] = {1, -2, 3, 4, 5, -6, 7, 8, 9, 1, 2, -3, 4, 5, 6};
const float floatKernel[15] = {0.1f, -0.2f, 0.3f, 0.05f, 0.5f, -0.6f, 0.07f, 0.2f,
                               0.9f, 0.1f,  0.2f, -0.3f, 0.4f, 0.05f, 0.6f};
constexpr ImageSize kernelSize{5, 3};
constexpr ImagePoint anchor{3, 1};

// Every parallel family in one of its members: runs over a picture, returns the destination's bytes.
using Runner = std::function<std::vector<uint8_t>(ImageSize, unsigned seed)>;

template <class T, class Call>
Runner run(int elements, Call call) {
    return [=](ImageSize size, unsigned seed) {
        Picture<T> src(size, elements, seed), dst(size, elements, 0);
        EXPECT_EQ(call(src.origin(), src.step, dst.origin(), dst.step, size), PXL_OK);
        const auto* bytes = reinterpret_cast<const uint8_t*>(dst.data.data());
        return std::vector<uint8_t>(bytes, bytes + dst.data.size() * sizeof(T));
    };
}

const std::pair<const char*, Runner> runs[] = {
    {"Filter",
     run<uint8_t>(3, [](auto... a) { return pxliFilter_8u_C3R(a..., integerKernel, kernelSize, anchor, 16); })},
    {"Filter32f",
     run<int16_t>(4, [](auto... a) { return pxliFilter32f_16s_AC4R(a..., floatKernel, kernelSize, anchor); })},
    {"Filter_32f", run<float>(1, [](auto... a) { return pxliFilter_32f_C1R(a..., floatKernel, kernelSize, anchor); })},
    {"Round16s", run<uint8_t>(1,
                              [](auto... a) {
                                  return pxliFilter_Round16s_8u_C1R(a..., integerKernel, kernelSize, anchor, 7,
                                                                    PXL_ROUND_HALF_AWAY, nullptr);
                              })},
    {"Round32s", run<uint16_t>(1,
                               [](auto... a) {
                                   return pxliFilter_Round32s_16u_C1R(a..., integerKernel, kernelSize, anchor, 7,
                                                                      PXL_ROUND_ZERO, nullptr);
                               })},
    {"Round32f", run<uint8_t>(4,
                              [](auto... a) {
                                  return pxliFilter_Round32f_8u_C4R(a..., floatKernel, kernelSize, anchor,
                                                                    PXL_ROUND_NEAR_EVEN, nullptr);
                              })},
    {"Row", run<uint8_t>(1, [](auto... a) { return pxliFilterRow_8u_C1R(a..., integerKernel, 9, 4, 33); })},
    {"Column32f", run<uint16_t>(3, [](auto... a) { return pxliFilterColumn32f_16u_C3R(a..., floatKernel, 9, 4); })},
    {"Box 8u", run<uint8_t>(1,
                            [](auto... a) {
                                return pxliFilterBox_8u_C1R(a..., ImageSize{7, 9}, ImagePoint{3, 4});
                            })},
    {"Box 8u C4", run<uint8_t>(4,
                               [](auto... a) {
                                   return pxliFilterBox_8u_C4R(a..., ImageSize{3, 3}, ImagePoint{1, 1});
                               })},
    {"Box 16s", run<int16_t>(3,
                             [](auto... a) {
                                 return pxliFilterBox_16s_C3R(a..., ImageSize{5, 4}, ImagePoint{0, 3});
                             })},
    {"Box 32f", run<float>(1,
                           [](auto... a) {
                               return pxliFilterBox_32f_C1R(a..., ImageSize{5, 9}, ImagePoint{2, 4});
                           })},
    {"Box 32f C4", run<float>(4,
                              [](auto... a) {
                                  return pxliFilterBox_32f_C4R(a..., ImageSize{3, 3}, ImagePoint{1, 1});
                              })},
};

constexpr ImageSize sizes[] = {{64, 64}, {65, 64}, {63, 100}, {200, 100}, {90, 67}, {2100, 3}, {70, 301}};

TEST(Parallel, EveryTeamGivesTheSameBytes) {
    for (const pxl::KnownTarget& target : availableTargets()) {
        const TargetScope scope(target);
        for (const auto& [name, call] : runs)
            for (const ImageSize size : sizes) {
                std::vector<uint8_t> expected;
                for (const int team : {1, 2, 3, 7, 8, 200, 0, -5}) {
                    SCOPED_TRACE(testing::Message() << target.name << " " << name << " " << size.width << "x"
                                                    << size.height << " team " << team);
                    const TeamScope of(team);
                    const auto actual = call(size, 42);
                    if (expected.empty()) expected = actual;
                    EXPECT_TRUE(expected == actual);
                }
            }
    }
}

// Written to the variable itself: the library makes of it what it can use.
TEST(Parallel, AbsurdTeams) {
    for (const int team : {50'000, 100'000, INT32_MAX}) {
        const TeamScope of(team);
        EXPECT_EQ(pxl::ownTeamSize(1), 1);
        EXPECT_EQ(pxl::ownTeamSize(70), 70);
        EXPECT_EQ(pxl::ownTeamSize(1'000'000), PXLCORE_MAX_THREADS);
    }
    for (const int team : {0, -1, INT32_MIN}) {
        const TeamScope of(team);
        EXPECT_EQ(pxl::ownTeamSize(1'000'000), 1);
    }
    for (const auto& [name, call] : runs) {
        SCOPED_TRACE(name);
        const auto expected = call({66, 64}, 7);
        for (const int team : {50'000, 100'000, INT32_MAX}) {
            const TeamScope of(team);
            EXPECT_TRUE(call({66, 64}, 7) == expected);
        }
    }
}

#ifndef _WIN32
// The runtime's threads are not in a child: a team of several would wait for them for ever.
TEST(Parallel, InAForkedChild) {
    const auto& call = runs[0].second;
    const TeamScope two(2);
    const auto expected = call({100, 80}, 5);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        alarm(30); // ends a child that hangs
        const bool same = call({100, 80}, 5) == expected;
        const bool one = pxlcoreGetNumThreads() == 1 && threads_omp_of_n_pxl == 1;
        const bool refused = pxlcoreSetNumThreads(2) == PXL_E_BAD_ARG && pxlcoreSetNumThreads(0) == PXL_E_BAD_ARG;
        const bool accepted = pxlcoreSetNumThreads(1) == PXL_OK && threads_omp_of_n_pxl == 1;
        _exit(same << 0 | one << 1 | refused << 2 | accepted << 3);
    }
    int ended = 0;
    ASSERT_EQ(waitpid(child, &ended, 0), child);
    EXPECT_TRUE(WIFEXITED(ended)) << "ended by signal " << WTERMSIG(ended);
    EXPECT_EQ(WEXITSTATUS(ended), 15);
    EXPECT_EQ(threads_omp_of_n_pxl, 2);
    EXPECT_TRUE(call({100, 80}, 5) == expected);
}
#endif

TEST(Parallel, InsideARegionOfTheCallers) {
    const auto& call = runs[0].second;
    const TeamScope two(2);
    const auto expected = call({100, 80}, 5);
    std::vector<std::vector<uint8_t>> actual(4);
#pragma omp parallel for num_threads(4)
    for (int i = 0; i < 4; ++i) actual[static_cast<size_t>(i)] = call({100, 80}, 5);
    for (const auto& bytes : actual) EXPECT_TRUE(bytes == expected);
}

TEST(Parallel, LeavesTheSettingsAlone) {
    const int threads = omp_get_max_threads(), dynamic = omp_get_dynamic(), levels = omp_get_max_active_levels();
    const TeamScope three(3);
    for (const auto& [name, call] : runs) call({80, 80}, 1);
    EXPECT_EQ(omp_get_max_threads(), threads);
    EXPECT_EQ(omp_get_dynamic(), dynamic);
    EXPECT_EQ(omp_get_max_active_levels(), levels);
    EXPECT_EQ(threads_omp_of_n_pxl, 3);
}

TEST(Parallel, ManyCallersAtOnce) {
    const TeamScope two(2);
    std::vector<std::vector<uint8_t>> expected;
    for (const auto& [name, call] : runs) expected.push_back(call({90, 70}, 3));
    std::vector<int> wrong(6, 0);
    std::vector<std::thread> callers;
    for (size_t t = 0; t < wrong.size(); ++t)
        callers.emplace_back([&, t] {
            for (size_t i = 0; i < 2 * std::size(runs); ++i) {
                const size_t which = (i + t) % std::size(runs);
                wrong[t] += runs[which].second({90, 70}, 3) != expected[which];
            }
        });
    for (std::thread& caller : callers) caller.join();
    EXPECT_EQ(wrong, std::vector<int>(wrong.size(), 0));
}

} // namespace
