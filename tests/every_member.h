// For tests that run over every exported function: its name is the test's.
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "generic/member.h"

namespace generic {

// Printed by the test runner as the value of the parameter.
inline void PrintTo(const Member& member, std::ostream* out) { *out << member.name; }

} // namespace generic

class EveryMember : public testing::TestWithParam<generic::Member> {
public:
    static std::string name(const testing::TestParamInfo<generic::Member>& info) {
        return std::string(info.param.name);
    }
};
