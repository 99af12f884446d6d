// Every member against its reference: the same status and the same bytes everywhere in memory, for random valid and
// broken calls, on every target, with inaccessible pages right behind and before the operands.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <string>

#include "every_member.h"
#include "frame/target.h"
#include "generic/call.h"
#include "generic/memories.h"
#include "pxlcore.h"
#include "pxli.h"
#include "targets.h"

namespace {

using generic::Call;
using generic::Member;
using generic::Memories;
using generic::Random;

class Differential : public EveryMember {
protected:
    static Memories& start() { return sharedMemories(0); }    // what the memories hold before the call
    static Memories& expected() { return sharedMemories(1); } // after the reference
    static Memories& actual() { return sharedMemories(2); }   // after the library

    // Runs one call both ways on every target; returns the status.
    int32_t compare(const Call& call, Random& random);

private:
    static Memories& sharedMemories(int which) {
        static Memories all[3];
        return all[which];
    }
    void expectSameBytes(const Call& call);
};

int32_t Differential::compare(const Call& call, Random& random) {
    EXPECT_LE(call.memories, Call::maxMemories);
    for (int i = 0; i < call.memories; ++i) fillMemory(call, i, start().at(i), random);
    start().copyTo(expected(), call);
    static constexpr int teams[] = {1, 2, 3, 8};
    threads_omp_of_n_pxl = teams[generic::between(random, 0, 3)];
    const int32_t status = reference::find(call.member->family)(*call.member, call.bind(expected().pointers()).data());
    for (const pxl::KnownTarget& target : availableTargets(*call.member)) {
        const TargetScope scope(target);
        SCOPED_TRACE(testing::Message() << target.name << ", team " << threads_omp_of_n_pxl << ": " << call.describe());
        start().copyTo(actual(), call);
        EXPECT_EQ(call.member->call(call.bind(actual().pointers()).data()), status);
        expectSameBytes(call);
        if (HasFailure()) break;
    }
    return status;
}

// Whether two floats agree: the same bits, or two NaNs, whose payload is free.
template <class Float>
bool sameFloat(const uint8_t* expected, const uint8_t* actual) {
    Float e, a;
    std::memcpy(&e, expected, sizeof e);
    std::memcpy(&a, actual, sizeof a);
    return std::memcmp(&e, &a, sizeof e) == 0 || (std::isnan(e) && std::isnan(a));
}

// The start of the float of a written operand that a byte belongs to, or -1. Odd steps misalign rows.
int64_t floatAt(const Call& call, const generic::Placed& operand, int64_t size, int64_t at) {
    const generic::Param& p = call.member->params[operand.param];
    const int64_t inArray = at - operand.position;
    if (!generic::isImage(p.role)) return inArray >= 0 && inArray < operand.reach.high ? at - inArray % size : -1;
    const reference::Arg& given = call.args[static_cast<size_t>(call.member->stepOf(operand.param))];
    const int64_t step = call.member->facts.wholeElementSteps ? given.num & -size : given.num;
    const int64_t pixel = int64_t{p.elements} * generic::elementBytes(p.type);
    for (int64_t y = operand.area.y0; y < operand.area.y1; ++y) {
        const int64_t inside = inArray - y * step - operand.area.x0 * pixel;
        if (inside >= 0 && inside < operand.area.width() * pixel) return at - inside % size;
    }
    return -1;
}

// Whether a byte belongs to a float that agrees.
bool agrees(const Call& call, int memory, int64_t at, const uint8_t* expected, const uint8_t* actual) {
    for (const generic::Placed& operand : call.operands) {
        const generic::Param& p = call.member->params[operand.param];
        if (operand.memory != memory || !isWritten(p.role)) continue;
        const bool wide = p.type == "64f";
        if (!wide && !p.type.starts_with("32f")) continue;
        const int64_t first = floatAt(call, operand, wide ? 8 : 4, at);
        if (first < 0) continue;
        return (wide ? sameFloat<double> : sameFloat<float>)(expected + first, actual + first);
    }
    return false;
}

void Differential::expectSameBytes(const Call& call) {
    for (int i = 0; i < call.memories; ++i) {
        const generic::Reach window = call.window(i);
        const uint8_t* e = expected().at(i);
        const uint8_t* a = actual().at(i);
        if (std::memcmp(e + window.low, a + window.low, static_cast<size_t>(window.length())) == 0) continue;
        for (int64_t at = window.low; at < window.high; ++at) {
            if (e[at] == a[at] || agrees(call, i, at, e, a)) continue;
            ADD_FAILURE() << "memory " << i << " at " << at << ": " << int{a[at]} << " instead of " << int{e[at]};
            break;
        }
    }
}

TEST_P(Differential, ValidCalls) {
    const Member& member = GetParam();
    ASSERT_NE(reference::find(member.family), nullptr);
    Random random(std::hash<std::string_view>()(member.name));
    int done = 0;
    for (int i = 0; i < 150 && !HasFailure(); ++i)
        done += compare(randomCall(member, random), random) >= PXL_OK; // warnings too
    EXPECT_GT(done, 60) << "too few of the random calls were valid";
}

TEST_P(Differential, BrokenCalls) {
    const Member& member = GetParam();
    Random random(std::hash<std::string_view>()(member.name) + 1);
    int refused = 0;
    for (int i = 0; i < 200 && !HasFailure(); ++i) refused += compare(brokenCall(member, random), random) < 0;
    EXPECT_GT(refused, 75) << "too few of the broken calls were refused";
}

// The order of the checks: every two arguments broken together, and each alone.
TEST_P(Differential, EveryPairOfBrokenArguments) {
    const Member& member = GetParam();
    Random random(std::hash<std::string_view>()(member.name) + 2);
    for (int first = 0; first < member.count; ++first)
        for (int second = first; second < member.count && !HasFailure(); ++second)
            for (int variant = 0; variant < 3; ++variant) compare(brokenCall(member, random, first, second), random);
}

INSTANTIATE_TEST_SUITE_P(, Differential, testing::ValuesIn(generic::members()), EveryMember::name);

} // namespace
