// The automatic threshold of images whose best split is known.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "pxli.h"

namespace {

// Of `count` pixels, that many are `bright`, the others `dark`.
int otsuOf(int count, int brightCount, uint8_t dark, uint8_t bright) {
    std::vector<uint8_t> image(static_cast<size_t>(count), dark);
    std::fill_n(image.begin(), brightCount, bright);
    uint8_t threshold = 99;
    EXPECT_EQ(pxliComputeThreshold_Otsu_8u_C1R(image.data(), count, {count, 1}, &threshold), PXL_OK);
    return threshold;
}

TEST(Otsu, OfOneOrTwoLevels) {
    EXPECT_EQ(otsuOf(100, 0, 200, 0), 0);
    EXPECT_EQ(otsuOf(100, 100, 0, 255), 0);
    EXPECT_EQ(otsuOf(100, 50, 10, 200), 10); // all splits between the two are as good
    EXPECT_EQ(otsuOf(100, 1, 10, 11), 10);
    EXPECT_EQ(otsuOf(100, 99, 0, 255), 0);
    EXPECT_EQ(otsuOf(16'777'216, 1, 3, 77), 0); // a class of less than 2^-23 of the pixels does not count
    EXPECT_EQ(otsuOf(16'777'216, 2, 3, 77), 3);
}

} // namespace
