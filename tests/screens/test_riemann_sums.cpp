// SPDX-License-Identifier: GPL-3.0-or-later
// The sums without a window: the areas of y = x^2 on [0, 2] with 4 partitions worked out by hand,
// the shapes each sum hands to its sink, Simpson's refusal of an odd count, the random sums within
// their bounds, and what a gap or the error value does to a sum.
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "screens/RiemannSums.h"

namespace {

using RiemannSums::Result;

double square(double x) { return x * x; }

struct Bar {
    double xa, xb, y;
};

}  // namespace

TEST(RiemannSums, AreasOfXSquaredOnZeroToTwoWithFourPartitions)
{
    // Left: (0 + 1/4 + 1 + 9/4) / 2; right: (1/4 + 1 + 9/4 + 4) / 2; midpoint: the squares of
    // 1/4, 3/4, 5/4, 7/4 halved; trapezoid: the mean of left and right; Simpson: exact, 8/3.
    struct Case {
        const char* name;
        Result (*sum)(std::vector<Bar>&);
        double area;
        std::vector<Bar> shapes;
    } cases[] = {
        {"left endpoints",
         [](std::vector<Bar>& out) {
             return RiemannSums::leftEndpoint(square, 0, 0.5, 4, [&](double a, double b, double y) {
                 out.push_back({a, b, y});
             });
         },
         1.75,
         {{0, 0.5, 0}, {0.5, 1, 0.25}, {1, 1.5, 1}, {1.5, 2, 2.25}}},
        {"right endpoints",
         [](std::vector<Bar>& out) {
             return RiemannSums::rightEndpoint(square, 0, 0.5, 4, [&](double a, double b, double y) {
                 out.push_back({a, b, y});
             });
         },
         3.75,
         {{0, 0.5, 0.25}, {0.5, 1, 1}, {1, 1.5, 2.25}, {1.5, 2, 4}}},
        {"midpoints",
         [](std::vector<Bar>& out) {
             return RiemannSums::midpoint(square, 0, 0.5, 4, [&](double a, double b, double y) {
                 out.push_back({a, b, y});
             });
         },
         2.625,
         {{0, 0.5, 0.0625}, {0.5, 1, 0.5625}, {1, 1.5, 1.5625}, {1.5, 2, 3.0625}}},
        {"trapezoids (the left height recorded)",
         [](std::vector<Bar>& out) {
             return RiemannSums::trapezoidal(square, 0, 0.5, 4, [&](double a, double b, double y1, double) {
                 out.push_back({a, b, y1});
             });
         },
         2.75,
         {{0, 0.5, 0}, {0.5, 1, 0.25}, {1, 1.5, 1}, {1.5, 2, 2.25}}},
        {"Simpson's pairs (the middle height recorded)",
         [](std::vector<Bar>& out) {
             return RiemannSums::simpson(square, 0, 0.5, 4, [&](double a, double c, double, double y1, double) {
                 out.push_back({a, c, y1});
             });
         },
         8.0 / 3,
         {{0, 1, 0.25}, {1, 2, 2.25}}},
    };
    for (Case& c : cases) {
        SCOPED_TRACE(c.name);
        std::vector<Bar> shapes;
        const Result r = c.sum(shapes);
        EXPECT_FLOAT_EQ(r.area, static_cast<float>(c.area));
        EXPECT_FALSE(r.error || r.odd || r.gap);
        ASSERT_EQ(shapes.size(), c.shapes.size());
        for (std::size_t i = 0; i < shapes.size(); ++i) {
            EXPECT_DOUBLE_EQ(shapes[i].xa, c.shapes[i].xa) << i;
            EXPECT_DOUBLE_EQ(shapes[i].xb, c.shapes[i].xb) << i;
            EXPECT_DOUBLE_EQ(shapes[i].y, c.shapes[i].y) << i;
        }
    }
}

TEST(RiemannSums, SimpsonRefusesAnOddCountAndDrawsNothing)
{
    int pairs = 0;
    const Result r = RiemannSums::simpson(square, 0, 0.5, 3, [&](double, double, double, double, double) { ++pairs; });
    EXPECT_TRUE(r.odd);
    EXPECT_EQ(r.area, 0);
    EXPECT_EQ(pairs, 0);
}

TEST(RiemannSums, RandomSumsStayWithinTheirBoundsAndCoverTheInterval)
{
    // x^2 rises on [0, 2]: a random point's height lies between its interval's ends.
    double covered = 0;
    const Result r = RiemannSums::randomPoint(square, 0, 0.5, 4, [&](double a, double b, double y) {
        EXPECT_GE(y, square(a));
        EXPECT_LE(y, square(b));
        covered += b - a;
    });
    EXPECT_GE(r.area, 1.75f);
    EXPECT_LE(r.area, 3.75f);
    EXPECT_DOUBLE_EQ(covered, 2);

    RiemannSums::RandomPointArray points;
    double from = 0;
    int bars = 0;
    const Result w = RiemannSums::randomWidths(square, 0, 2, 50, points, [&](double a, double b, double y) {
        EXPECT_DOUBLE_EQ(a, from) << "the intervals follow one another";
        EXPECT_LE(a, b);
        EXPECT_GE(y, square(a));
        EXPECT_LE(y, square(b));
        from = b;
        ++bars;
    });
    EXPECT_EQ(bars, 50);
    EXPECT_DOUBLE_EQ(from, 2);
    EXPECT_NEAR(w.area, 8.0 / 3, 0.5);
    for (int k = 1; k <= 50; ++k)
        EXPECT_LE(points[k - 1], points[k]) << "the division points are sorted";
}

TEST(RiemannSums, GapsAndTheErrorValue)
{
    struct Case {
        const char* name;
        double (*f)(double);
        bool gap;
        double gapAt;
        bool error;
        float area;
    } cases[] = {
        {"undefined left of 1: the first gap is at 0", [](double x) { return x < 1 ? std::nan("") : x; }, true, 0,
         false, 0.5f * (1 + 1.5f)},
        {"the error value marks the sum", [](double x) { return x == 1 ? RiemannSums::ErrorValue : 1.0; }, false, 0,
         true, static_cast<float>(0.5 * (3 + RiemannSums::ErrorValue))},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        int drawn = 0;
        const Result r = RiemannSums::leftEndpoint(c.f, 0, 0.5, 4,
                                                   [&](double, double, double y) { drawn += std::isnan(y) ? 0 : 1; });
        EXPECT_EQ(r.gap, c.gap);
        EXPECT_EQ(r.gapAt, c.gapAt);
        EXPECT_EQ(r.error, c.error);
        EXPECT_FLOAT_EQ(r.area, c.area);
        EXPECT_EQ(drawn, c.gap ? 2 : 4);
    }
}
