// SPDX-License-Identifier: GPL-3.0-or-later
// The sums without a window: what a gap or the error value does to a sum. (The areas worked out by
// hand and the bars each sum draws are checked through the sums screen, its trace and its picture.)
#include <cmath>

#include <gtest/gtest.h>

#include "screens/RiemannSums.h"

using RiemannSums::Result;

namespace {
const auto noBars = [](double, double, double) {};  // a sum's sink that draws nothing
}  // namespace

TEST(RiemannSums, GapsAndTheErrorValue)
{
    // Undefined left of 1: the first gap is at 0 and only the defined terms count.
    const Result gap = RiemannSums::leftEndpoint([](double x) { return x < 1 ? std::nan("") : x; }, 0, 0.5, 4, noBars);
    EXPECT_TRUE(gap.gap && gap.gapAt == 0 && !gap.error);
    EXPECT_FLOAT_EQ(gap.area, 0.5f * (1 + 1.5f));
    // The error value marks the sum and still counts.
    const Result marked =
        RiemannSums::leftEndpoint([](double x) { return x == 1 ? RiemannSums::ErrorValue : 1.0; }, 0, 0.5, 4, noBars);
    EXPECT_TRUE(marked.error && !marked.gap);
    EXPECT_FLOAT_EQ(marked.area, static_cast<float>(0.5 * (3 + RiemannSums::ErrorValue)));
}
