// The choice of a target when the library is loaded.
#include "targets.h"

#include <gtest/gtest.h>

namespace {

class OfferedTarget : public testing::TestWithParam<pxl::KnownTarget> {};

// Says, too, of which targets this processor lets nothing be tested.
TEST_P(OfferedTarget, IsNoBetterThanTheChosenOne) {
    if (!GetParam().isOffered())
        GTEST_SKIP() << "this processor does not offer " << GetParam().name << ": its code is not tested";
    EXPECT_GE(pxl::target, GetParam().target);
}

INSTANTIATE_TEST_SUITE_P(, OfferedTarget, testing::ValuesIn(pxl::knownTargets),
                         [](const auto& target) { return std::string(target.param.name); });

} // namespace
