// Scratch memory of every function: where an allocation fails, whichever it is, the call returns PXL_E_MEM_ALLOC and nothing has
// been written; whatever the status, all that was allocated is released.
#include <functional>

#include "every_member.h"
#include "failing_malloc.h"
#include "generic/call.h"
#include "generic/memories.h"
#include "pxlcore.h"
#include "pxli.h"
#include "targets.h"

namespace {

using generic::Memories;

class NoMemory : public EveryMember {
protected:
    // One call whose nth allocation fails (0: none), over memory that holds what it held before the others.
    int32_t run(const generic::Call& call, int nth) {
        start().copyTo(actual(), call);
        const auto arguments = call.bind(actual().pointers());
        const FailingMalloc malloc(nth);
        const int32_t status = call.member->call(arguments.data());
        EXPECT_EQ(malloc.unreleased(), 0);
        allocations = malloc.calls();
        return status;
    }
    int allocations = 0; // of the last call

    static Memories& start() { return memories(0); }
    static Memories& actual() { return memories(1); }

private:
    static Memories& memories(int which) {
        static Memories both[2];
        return both[which];
    }
};

TEST_P(NoMemory, EveryAllocationMayFail) {
    const generic::Member& member = GetParam();
    generic::Random random(std::hash<std::string_view>()(member.name) + 4);
    int failed = 0, done = 0;
    for (int i = 0; i < 16 && !HasFailure(); ++i) {
        const generic::Call call = randomCall(member, random);
        for (int m = 0; m < call.memories; ++m) fillMemory(call, m, start().at(m), random);
        threads_omp_of_n_pxl = i % 2 ? 3 : 1;
        for (const pxl::KnownTarget& target : availableTargets(member)) {
            const TargetScope scope(target);
            SCOPED_TRACE(testing::Message() << target.name << ": " << call.describe());
            const int32_t status = run(call, 0);
            if (status < 0) continue;
            ++done;
            const int all = allocations;
            for (int nth = 1; nth <= all; ++nth, ++failed) {
                SCOPED_TRACE(testing::Message() << "allocation " << nth << " of " << all);
                EXPECT_EQ(run(call, nth), PXL_E_MEM_ALLOC);
                EXPECT_TRUE(start().equals(actual(), call));
            }
        }
    }
    EXPECT_GT(done, 3) << "too few of the random calls were valid";
    EXPECT_EQ(failed > 0, member.takesMemory) << "the header says otherwise";
}

INSTANTIATE_TEST_SUITE_P(, NoMemory, testing::ValuesIn(generic::members()), EveryMember::name);

} // namespace
