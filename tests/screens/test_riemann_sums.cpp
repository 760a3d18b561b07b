// SPDX-License-Identifier: GPL-3.0-or-later
// The sums without a window: the areas of y = x^2 on [0, 2] with 4 partitions worked out by hand,
// the heights each sum hands to its sink, Simpson's refusal of an odd count, and what a gap or the
// error value does to a sum.
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "screens/RiemannSums.h"

using RiemannSums::Result;
namespace R = RiemannSums;

namespace {
double square(double x) { return x * x; }
// The sums with their sinks recording one height per shape (a trapezoid's left, a pair's middle).
using Heights = std::vector<double>;
auto bars(Heights& h)
{
    return [&h](double, double, double y) { h.push_back(y); };
}
}  // namespace

TEST(RiemannSums, AreasOfXSquaredOnZeroToTwoWithFourPartitions)
{
    struct Case {
        const char* name;
        float area;  // worked out by hand: the heights times 1/2 (Simpson: exact, 8/3)
        Heights heights;
        Result (*sum)(Heights&);
    } cases[] = {
        // clang-format off
        {"left", 1.75f, {0, 0.25, 1, 2.25}, [](Heights& h) { return R::leftEndpoint(square, 0, 0.5, 4, bars(h)); }},
        {"right", 3.75f, {0.25, 1, 2.25, 4}, [](Heights& h) { return R::rightEndpoint(square, 0, 0.5, 4, bars(h)); }},
        {"midpoint", 2.625f, {0.0625, 0.5625, 1.5625, 3.0625},
         [](Heights& h) { return R::midpoint(square, 0, 0.5, 4, bars(h)); }},
        {"trapezoid", 2.75f, {0, 0.25, 1, 2.25}, [](Heights& h) {
             return R::trapezoidal(square, 0, 0.5, 4, [&](double, double, double y, double) { h.push_back(y); }); }},
        {"Simpson", 8.0f / 3, {0.25, 2.25}, [](Heights& h) {  // a pair's middle height
             return R::simpson(square, 0, 0.5, 4, [&](double, double, double, double y, double) { h.push_back(y); });
         }},
        // clang-format on
    };
    for (const Case& c : cases) {
        Heights h;
        const Result r = c.sum(h);
        EXPECT_FLOAT_EQ(r.area, c.area) << c.name;
        EXPECT_FALSE(r.error || r.odd || r.gap) << c.name;
        EXPECT_EQ(h, c.heights) << c.name;
    }
    int pairs = 0;  // an odd count: refused, nothing drawn
    const Result odd =
        RiemannSums::simpson(square, 0, 0.5, 3, [&](double, double, double, double, double) { ++pairs; });
    EXPECT_TRUE(odd.odd && odd.area == 0 && pairs == 0);
}

TEST(RiemannSums, GapsAndTheErrorValue)
{
    // Undefined left of 1: the first gap is at 0 and only the defined terms count.
    Heights h;
    const Result gap = RiemannSums::leftEndpoint([](double x) { return x < 1 ? std::nan("") : x; }, 0, 0.5, 4, bars(h));
    EXPECT_TRUE(gap.gap && gap.gapAt == 0 && !gap.error);
    EXPECT_FLOAT_EQ(gap.area, 0.5f * (1 + 1.5f));
    // The error value marks the sum and still counts.
    const Result marked =
        RiemannSums::leftEndpoint([](double x) { return x == 1 ? RiemannSums::ErrorValue : 1.0; }, 0, 0.5, 4, bars(h));
    EXPECT_TRUE(marked.error && !marked.gap);
    EXPECT_FLOAT_EQ(marked.area, static_cast<float>(0.5 * (3 + RiemannSums::ErrorValue)));
}
