// SPDX-License-Identifier: GPL-3.0-or-later
// The rate families of the slope field and the Runge-Kutta steps.
#include <cmath>

#include <gtest/gtest.h>

#include "tests/TestSupport.h"

#include "funclib/FuncGlobals.h"
#include "runtime/RuntimeError.h"

using namespace FuncGlobals;

namespace {

void rates(int dy, int dx, CoefficientSet k)
{
    DyFuncId = static_cast<std::int16_t>(dy);
    DxFuncId = static_cast<std::int16_t>(dx);
    Coefficients = k;
}

}  // namespace

TEST(RateCatalogue, CaptionsKeepTheirIrregularities)
{
    EXPECT_STREQ(DyCaption(1), "dy = Ax + By + C");
    EXPECT_STREQ(DxCaption(9), "dx = Dx + Ey + C*e^y");
    EXPECT_STREQ(DyCaption(7), "dy = Ax + BxSin(Cx)");
    EXPECT_STREQ(DxCaption(8), "dx = Dy + Exsin(Fy)");
    EXPECT_STREQ(DxCaption(15), "dx = Dy^3 + Ey^2 + Fy");
    EXPECT_STREQ(DyCaption(0), "");
    EXPECT_STREQ(DxCaption(16), "");
}

TEST(RateCatalogue, ValuesOfBothColumns)
{
    const double x = 1.5, y = -0.5;
    struct Case {
        int id;
        double dy, dx;  // with A, B, C = 2, 3, 0.5 and D, E, F = -1, 4, 1.5
    };
    const Case cases[] = {
        {1, 2 * x + 3 * y + 0.5, -x + 4 * y + 1.5},
        {2, 2 * x + 3 * std::sin(0.5 * x), -x + 4 * std::sin(1.5 * x)},
        {3, 2 * x + 3 * std::cos(0.5 * x), -x + 4 * std::cos(1.5 * x)},
        {4, 2 * x + 3 * std::sin(0.5 * y), -x + 4 * std::sin(1.5 * y)},
        {5, 2 * y + 3 * std::sin(0.5 * x), -y + 4 * std::sin(1.5 * x)},
        {6, 2 * y + 3 * std::sin(0.5 * y), -y + 4 * std::sin(1.5 * y)},
        {7, 2 * x + 3 * x * std::sin(0.5 * x), -x + 4 * x * std::sin(1.5 * x)},
        {8, 2 * y + 3 * x * std::sin(0.5 * y), -y + 4 * x * std::sin(1.5 * y)},
        {9, 2 * x + 3 * y + 0.5 * std::exp(x), -x + 4 * y + 1.5 * std::exp(y)},
        {10, 2 * x + 3 * std::log(x) + 0.5, 0},  // ln(y) of a negative y: 0
        {11, 2 * x * y + 3 * x * x * y + 0.5 * x * y * y, -x * y + 4 * x * x * y + 1.5 * x * y * y},
        {12, 2 * x * x + 3 * x + 0.5, -x * x + 4 * x + 1.5},
        {13, 2 * y * y + 3 * y + 0.5, -y * y + 4 * y + 1.5},
        {14, 2 * x * x * x + 3 * x * x + 0.5 * x, -x * x * x + 4 * x * x + 1.5 * x},
        {15, 2 * y * y * y + 3 * y * y + 0.5 * y, -y * y * y + 4 * y * y + 1.5 * y},
    };
    for (const Case& c : cases) {
        rates(c.id, c.id, {2, 3, 0.5, -1, 4, 1.5});
        EXPECT_NEAR(DyFunc(x, y), c.dy, 1e-12) << "dy family " << c.id;
        EXPECT_NEAR(DxFunc(x, y), c.dx, 1e-12) << "dx family " << c.id;
    }
}

TEST(RateCatalogue, AllZeroCoefficientsGiveOneExceptForTheLinearFamily)
{
    rates(1, 1, {});
    EXPECT_EQ(DyFunc(3, 4), 0);
    EXPECT_EQ(DxFunc(3, 4), 0);
    for (int id = 2; id <= 15; ++id) {
        rates(id, id, {});
        EXPECT_EQ(DyFunc(3, 4), 1) << id;
        EXPECT_EQ(DxFunc(3, 4), 1) << id;
    }
    rates(10, 10, {1, 0, 0, 0, 0, 0});
    EXPECT_EQ(DyFunc(0, 1), 0);
    EXPECT_EQ(DyFunc(-1, 1), 0);
    rates(10, 10, {});
    EXPECT_EQ(DyFunc(0, 1), 1);
    EXPECT_EQ(DyFunc(-1, 1), 1);
    rates(1, 9, {7, 7, 7, 0, 0, 2});
    EXPECT_EQ(DxFunc(5, 0), 2);  // F * e^0, whatever C holds
    for (int id : {0, 16, -1}) {
        rates(id, id, {1, 1, 1, 1, 1, 1});
        EXPECT_EQ(DyFunc(1, 1), 0);
        EXPECT_EQ(DxFunc(1, 1), 0);
    }
}

TEST(RateCatalogue, StepsAgainstHandWorkedValues)
{
    rates(1, 2, {1, 0, 0, 0, 0, 0});  // dy = x, dx = 1
    const double h = 1;
    EXPECT_EQ(DyFunc(0, 0) * h / DxFunc(0, 0), 0);  // Euler
    EXPECT_DOUBLE_EQ(Runga2Step(0, 0, h), 0.5);
    EXPECT_DOUBLE_EQ(Runga4Step(0, 0, h), 0.5);
    // dy/dx = -x/y from (4, 3), h = 1: k1 = -4/3, k2 = -4.5/2.3333, k3, k4 by the classical rule.
    rates(1, 1, {-1, 0, 0, 0, 1, 0});
    const double k1 = -4.0 / 3, k2 = -4.5 / (3 + k1 / 2), k3 = -4.5 / (3 + k2 / 2), k4 = -5.0 / (3 + k3);
    EXPECT_DOUBLE_EQ(Runga2Step(4, 3, 1), k2);
    EXPECT_DOUBLE_EQ(Runga4Step(4, 3, 1), k2 / 3 + k1 / 6 + k3 / 3 + k4 / 6);
}

TEST(RateCatalogue, AZeroDxInAStepIsARunTimeError)
{
    rates(1, 1, {1, 0, 0, 0, 0, 0});  // dx = 0 everywhere
    EXPECT_EQ(errorOf([] { Runga2Step(1, 1, 1); }), rt::DivisionByZero);
    EXPECT_EQ(errorOf([] { Runga4Step(0, 0, 1); }), rt::Overflow);  // 0 / 0
    rates(9, 1, {0, 0, 1, 1, 0, 0});
    EXPECT_EQ(errorOf([] { DyFunc(1000, 0); }), rt::Overflow);
    rates(13, 1, {1, 0, 0, 1, 0, 0});
    EXPECT_EQ(errorOf([] { DyFunc(0, 1e200); }), rt::Overflow);
}
