// The floating-point environment is the caller's: every function leaves it as it finds it.
#include <xmmintrin.h>

#include <cstdint>
#include <functional>

#include "every_member.h"
#include "generic/call.h"
#include "generic/memories.h"
#include "targets.h"

namespace {

// The settings of both units, and which registers of the older one are in use: none, unless a function forgot to empty them.
struct Environment {
    static constexpr uint32_t flags = 0x3F; // exceptions that have been raised

    uint32_t vector = _mm_getcsr() & ~flags;
    uint16_t control, tags;

    Environment() {
        uint16_t saved[14] = {}; // 32-bit fields, of which the upper halves mean nothing
        asm volatile("fnstenv %0\n\tfldenv %0" : "+m"(saved));
        control = saved[0];
        tags = saved[4];
    }
    bool operator==(const Environment&) const = default;
};

// A rounding direction and the flushing of subnormal numbers, for the length of a scope.
class Settings {
public:
    explicit Settings(uint32_t bits) : before_(_mm_getcsr()) { _mm_setcsr(before_ | bits); }
    ~Settings() { _mm_setcsr(before_); }
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

private:
    uint32_t before_;
};

constexpr uint32_t upward = 0x4000, flushToZero = 0x8000, subnormalsAreZero = 0x40;

class FloatingPoint : public EveryMember {};

TEST_P(FloatingPoint, IsLeftAsItWas) {
    const generic::Member& member = GetParam();
    generic::Random random(std::hash<std::string_view>()(member.name) + 3);
    static const generic::Memories memories;
    for (int i = 0; i < 8; ++i) {
        const generic::Call call = randomCall(member, random);
        for (const pxl::KnownTarget& target : availableTargets(member)) {
            const TargetScope scope(target);
            for (const uint32_t settings : {0u, upward | flushToZero | subnormalsAreZero}) {
                for (int m = 0; m < call.memories; ++m) fillMemory(call, m, memories.at(m), random);
                const auto arguments = call.bind(memories.pointers());
                const Settings set(settings);
                const Environment before;
                member.call(arguments.data());
                EXPECT_TRUE(Environment() == before) << target.name << ": " << call.describe();
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, FloatingPoint, testing::ValuesIn(generic::members()), EveryMember::name);

} // namespace
