// SPDX-License-Identifier: GPL-3.0-or-later
// The parametric families: captions, values from a single-precision t, and family 12's zero rule.
#include <cmath>

#include <gtest/gtest.h>

#include "funclib/FuncGlobals.h"

using namespace FuncGlobals;

namespace {

void families(int x, int y, CoefficientSet k)
{
    XtFuncId = static_cast<std::int16_t>(x);
    YtFuncId = static_cast<std::int16_t>(y);
    Coefficients = k;
}

}  // namespace

TEST(ParametricCatalogue, Captions)
{
    EXPECT_STREQ(XtCaption(4), "x = A*Sin(Bt) + C");
    EXPECT_STREQ(YtCaption(5), "y = D*Cos(Et) + F");
    EXPECT_STREQ(XtCaption(12), "x = A /(Bt + C)");
    EXPECT_STREQ(YtCaption(9), "y = D*t*Sin(Et) + F");
    EXPECT_STREQ(XtCaption(13), "");
}

TEST(ParametricCatalogue, ValuesOfBothCatalogues)
{
    const float t = 0.5f;
    const double T = 0.5;
    struct Case {
        int id;
        double x, y;  // A, B, C = 2, 3, 0.25 and D, E, F = -1, 0.5, 4
    };
    const Case cases[] = {
        {1, 2 * T * T + 3 * T + 0.25, -T * T + 0.5 * T + 4},
        {2, 2 * T * T * T + 3 * T + 0.25, -T * T * T + 0.5 * T + 4},
        {3, 2 * T * T * T + 3 * T * T + 0.25 * T, -T * T * T + 0.5 * T * T + 4 * T},
        {4, 2 * std::sin(3 * T) + 0.25, -std::sin(0.5 * T) + 4},
        {5, 2 * std::cos(3 * T) + 0.25, -std::cos(0.5 * T) + 4},
        {6, 2 * std::tan(3 * T) + 0.25, -std::tan(0.5 * T) + 4},
        {7, 0.25 * T + 2 * std::sin(3 * T), 4 * T - std::sin(0.5 * T)},
        {8, 0.25 * T + 2 * std::cos(3 * T), 4 * T - std::cos(0.5 * T)},
        {9, T * 2 * std::sin(3 * T) + 0.25, -T * std::sin(0.5 * T) + 4},
        {10, T * 2 * std::cos(3 * T) + 0.25, -T * std::cos(0.5 * T) + 4},
        {11, 2 * std::exp(3 * T) + 0.25, -std::exp(0.5 * T) + 4},
        {12, 2 / (3 * T + 0.25), -1 / (0.5 * T + 4)},
    };
    for (const Case& c : cases) {
        families(c.id, c.id, {2, 3, 0.25, -1, 0.5, 4});
        EXPECT_NEAR(XtFunc(t), c.x, 1e-12) << c.id;
        EXPECT_NEAR(YtFunc(t), c.y, 1e-12) << c.id;
    }
}

TEST(ParametricCatalogue, SingleTIsWidenedNotRounded)
{
    families(1, 1, {0, 1, 0, 0, 1, 0});
    const float t = 0.1f;
    EXPECT_EQ(XtFunc(t), static_cast<double>(0.1f));
    EXPECT_NE(XtFunc(t), 0.1);
    EXPECT_NEAR(XtFunc(t), 0.100000001490116, 1e-15);
}

TEST(ParametricCatalogue, SelectorsOutsideTheCatalogueAndTheZeroDenominator)
{
    for (int id : {0, 13}) {
        families(id, id, {1, 1, 1, 1, 1, 1});
        EXPECT_EQ(XtFunc(1.5f), 0);
        EXPECT_EQ(YtFunc(1.5f), 0);
    }
    families(12, 12, {3, 1, -2, 3, 1, -2});
    EXPECT_EQ(XtFunc(2.0f), 0);
    EXPECT_EQ(YtFunc(2.0f), 0);
    EXPECT_EQ(XtFunc(3.0f), 3);
    EXPECT_EQ(XtFunc(1.0f), -3);
}
