// Every member against its reference: the same status and the same bytes everywhere in memory, for random valid and
// broken calls, on every target, with inaccessible pages right behind and before the operands.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <string>

#include "frame/target.h"
#include "generic/call.h"
#include "generic/guarded.h"
#include "pxlcore.h"
#include "pxli.h"
#include "targets.h"

namespace {

using generic::Call;
using generic::Guarded;
using generic::Member;
using generic::Random;

constexpr int maxMemories = 12;

// One set of memories per runner of a call.
class Memories {
public:
    uint8_t* at(int i) const { return sets_[i].begin(); }
    std::vector<uint8_t*> pointers() const {
        std::vector<uint8_t*> all;
        for (const Guarded& g : sets_) all.push_back(g.begin());
        return all;
    }

private:
    Guarded sets_[maxMemories];
};

class Differential : public testing::TestWithParam<Member> {
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
    static void copy(const Memories& from, const Memories& to, const Call& call) {
        for (int i = 0; i < call.memories; ++i) {
            const generic::Reach window = call.window(i);
            std::memcpy(to.at(i) + window.low, from.at(i) + window.low, static_cast<size_t>(window.length()));
        }
    }
    void expectSameBytes(const Call& call);
};

int32_t Differential::compare(const Call& call, Random& random) {
    EXPECT_LE(call.memories, maxMemories);
    for (int i = 0; i < call.memories; ++i) fillMemory(call, i, start().at(i), random);
    std::vector<std::vector<void*>> planes;
    copy(start(), expected(), call);
    const auto referenceArgs = call.bind(expected().pointers(), planes);
    const int32_t status = reference::find(call.member->family)(*call.member, referenceArgs.data());
    static constexpr int teams[] = {1, 2, 3, 8};
    threads_omp_of_n_pxl = teams[generic::between(random, 0, 3)];
    for (const pxl::KnownTarget& target : availableTargets(*call.member)) {
        const TargetScope scope(target);
        SCOPED_TRACE(testing::Message() << target.name << ": " << call.describe());
        copy(start(), actual(), call);
        const auto args = call.bind(actual().pointers(), planes);
        EXPECT_EQ(call.member->call(args.data()), status);
        expectSameBytes(call);
        if (HasFailure()) break;
    }
    return status;
}

// Whether two floats agree: the same bits, two NaNs (their payload is free), or, for running sums of floats, close
// enough.
bool sameFloat(const Call& call, const uint8_t* expected, const uint8_t* actual) {
    float e, a;
    std::memcpy(&e, expected, sizeof e);
    std::memcpy(&a, actual, sizeof a);
    if (std::isnan(e) || std::isnan(a)) return std::isnan(e) && std::isnan(a);
    return call.member->family == "FilterBox" ? std::abs(e - a) <= 0.5f : e == a;
}

// The written image of floats in a memory, or null.
const generic::Placed* writtenFloats(const Call& call, int memory) {
    for (const generic::Placed& image : call.images) {
        const generic::Param& p = call.member->params[image.param];
        if (image.memory == memory && isWritten(p.role) && p.type.starts_with("32f")) return &image;
    }
    return nullptr;
}

// The start of the float of the image that a byte belongs to, or -1. Odd steps misalign rows.
int64_t floatAt(const Call& call, const generic::Placed& image, int64_t at) {
    const auto i = static_cast<size_t>(image.param);
    const generic::Param& p = call.member->params[i];
    const reference::Arg& roi = call.args[static_cast<size_t>(call.member->find("roiSize"))];
    const int64_t rowBytes = int64_t{roi.width} * p.elements * generic::elementBytes(p.type);
    int64_t step = call.args[i + 1].num;
    if (call.member->family == "FilterBox" || call.member->family.starts_with("SumWindow")) step &= -4;
    for (int y = 0; y < roi.height; ++y) {
        const int64_t inside = at - image.position - y * step;
        if (inside >= 0 && inside < rowBytes) return at - inside % 4;
    }
    return -1;
}

void Differential::expectSameBytes(const Call& call) {
    for (int i = 0; i < call.memories; ++i) {
        const generic::Reach window = call.window(i);
        const uint8_t* e = expected().at(i);
        const uint8_t* a = actual().at(i);
        const generic::Placed* floats = writtenFloats(call, i);
        for (int64_t at = window.low; at < window.high; ++at) {
            if (e[at] == a[at]) continue;
            const int64_t word = floats ? floatAt(call, *floats, at) : -1;
            if (word >= 0 && sameFloat(call, e + word, a + word)) continue;
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

std::string memberName(const testing::TestParamInfo<Member>& info) { return std::string(info.param.name); }

// Members that touch no image return their results another way and have tests of their own.
std::vector<Member> imageMembers() {
    std::vector<Member> members;
    for (const Member& m : generic::members())
        if (worksOnImages(m)) members.push_back(m);
    return members;
}

INSTANTIATE_TEST_SUITE_P(, Differential, testing::ValuesIn(imageMembers()), memberName);

} // namespace

// Printed by the test runner as the value of the parameter.
namespace generic {
void PrintTo(const Member& member, std::ostream* out) { *out << member.name; }
} // namespace generic
