// Random and broken calls of every member of the table, to functions that do nothing: that the generic tests have something to
// pass for every role.
#include <cstdio>
#include <memory>

#include "generic/call.h"
#include "generic/guarded.h"

namespace {

using namespace generic;

// A valid call passes every image and array; objects are nobody's here.
bool isComplete(const Call& call, const std::vector<reference::Arg>& args) {
    for (int i = 0; i < call.member->count; ++i) {
        const Param& p = call.member->params[i];
        if (p.role != Role::Buffer && (isImage(p.role) || isArray(p)) && !args[static_cast<size_t>(i)].ptr)
            return false;
    }
    for (const Placed& operand : call.operands)
        if (!isImage(call.member->params[operand.param].role) && operand.bytes.empty()) return false;
    return call.memories <= Call::maxMemories;
}

} // namespace

int main() {
    const std::vector<Guarded> memory(Call::maxMemories);
    std::vector<uint8_t*> pointers;
    for (const Guarded& g : memory) pointers.push_back(g.begin());
    Random random;
    for (const Member& member : members())
        for (int i = 0; i < 200; ++i) {
            const Call call = i < 100 ? randomCall(member, random) : brokenCall(member, random);
            const auto args = call.bind(pointers);
            for (int m = 0; m < call.memories; ++m) fillMemory(call, m, pointers[static_cast<size_t>(m)], random);
            if (member.call(args.data()) == 0 && (i >= 100 || isComplete(call, args))) continue;
            std::printf("%s\n", call.describe().c_str());
            return 1;
        }
    return 0;
}
