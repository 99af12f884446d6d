// Every member against its reference: the same status and the same bytes everywhere in memory, for random valid and
// broken calls, on every target, with inaccessible pages right behind and before the operands.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>

#include "frame/target.h"
#include "generic/call.h"
#include "generic/guarded.h"
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
        for (const Guarded& g : sets_)
            all.push_back(g.begin());
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
    for (int i = 0; i < call.memories; ++i)
        fillMemory(call, i, start().at(i), random);
    std::vector<std::vector<void*>> planes;
    copy(start(), expected(), call);
    const auto referenceArgs = call.bind(expected().pointers(), planes);
    const int32_t status = reference::find(call.member->family)(*call.member, referenceArgs.data());
    for (const Target& target : availableTargets()) {
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

void Differential::expectSameBytes(const Call& call) {
    for (int i = 0; i < call.memories; ++i) {
        const generic::Reach window = call.window(i);
        const uint8_t* e = expected().at(i) + window.low;
        const uint8_t* a = actual().at(i) + window.low;
        if (std::memcmp(e, a, static_cast<size_t>(window.length())) == 0) continue;
        int64_t at = 0;
        while (e[at] == a[at])
            ++at;
        ADD_FAILURE() << "memory " << i << " at " << window.low + at << ": " << int{a[at]} << " instead of "
                      << int{e[at]};
    }
}

TEST_P(Differential, ValidCalls) {
    const Member& member = GetParam();
    ASSERT_NE(reference::find(member.family), nullptr);
    Random random(std::hash<std::string_view>()(member.name));
    int done = 0;
    for (int i = 0; i < 150 && !HasFailure(); ++i)
        done += compare(randomCall(member, random), random) == PXL_OK;
    EXPECT_GT(done, 75) << "too few of the random calls were valid";
}

TEST_P(Differential, BrokenCalls) {
    const Member& member = GetParam();
    Random random(std::hash<std::string_view>()(member.name) + 1);
    int refused = 0;
    for (int i = 0; i < 200 && !HasFailure(); ++i)
        refused += compare(brokenCall(member, random), random) < 0;
    EXPECT_GT(refused, 75) << "too few of the broken calls were refused";
}

std::string memberName(const testing::TestParamInfo<Member>& info) { return std::string(info.param.name); }

INSTANTIATE_TEST_SUITE_P(, Differential, testing::ValuesIn(generic::members().begin(), generic::members().end()),
                         memberName);

} // namespace

// Printed by the test runner as the value of the parameter.
namespace generic {
void PrintTo(const Member& member, std::ostream* out) { *out << member.name; }
} // namespace generic
