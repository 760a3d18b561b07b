// SPDX-License-Identifier: GPL-3.0-or-later
// The fifteen explicit families: captions, values, derivatives, domain tests and arithmetic faults.
#include <cmath>

#include <gtest/gtest.h>

#include "tests/TestSupport.h"

#include "funclib/FuncGlobals.h"
#include "runtime/RuntimeError.h"

using namespace FuncGlobals;

namespace {

void select(int id, double a, double b, double c, double d = 0, double e = 0)
{
    FunctionId = static_cast<std::int16_t>(id);
    Coefficients = {a, b, c, d, e, 0};
}

}  // namespace

TEST(ExplicitCatalogue, CaptionsAreWrittenExactly)
{
    EXPECT_STREQ(ExplicitCaption(1), "y = A * (Bx - C)^2 + D");
    EXPECT_STREQ(ExplicitCaption(10), "y = A /(Bx + C) + D");
    EXPECT_STREQ(ExplicitCaption(13), "y = Ax * Sin(Bx + C) + Dx + E");
    EXPECT_STREQ(ExplicitCaption(14), "y = A * x^B + C");
    EXPECT_STREQ(ExplicitCaption(15), "y = A * B^x + C");
    EXPECT_STREQ(ExplicitCaption(0), "");
    EXPECT_STREQ(ExplicitCaption(16), "");
}

TEST(ExplicitCatalogue, ValuesFollowTheTable)
{
    const double x = 1.5;
    struct Case {
        int id;
        double a, b, c, d, e, expected;
    };
    const Case cases[] = {
        {1, 1, 2, 3, 4, 0, 4.0},  // (3 - 3)^2 + 4
        {2, 2, -1, 3, 0, 0, 2 * 2.25 - 1.5 + 3},
        {3, 2, 2, 1, 1, 0, 2 * 8.0 + 1},  // (3 - 1)^3
        {4, 1, 2, 3, 4, 0, 3.375 + 2 * 2.25 + 4.5 + 4},
        {5, 2, 3, 1, 4, 5, 4 * 1.5 + 2 * std::sin(5.5) + 5},
        {6, 2, 3, 1, 4, 5, 4 * 1.5 + 2 * std::cos(5.5) + 5},
        {7, 2, 0.5, 0.1, 4, 5, 4 * 1.5 + 2 * std::tan(0.85) + 5},
        {8, 2, 2, 1, 3, 0, 2 * std::log(4.0) + 3},
        {9, 2, 1, -1, 3, 0, 2 * std::exp(0.5) + 3},
        {10, 6, 2, 1, 3, 0, 6.0 / 4 + 3},
        {11, 2, 2, 1, 3, 0, 2 * 16.0 + 3},
        {12, 1, 2, 3, 4, 5, 5.0625 + 2 * 3.375 + 3 * 2.25 + 6 + 5},
        {13, 2, 3, 1, 4, 5, 2 * 1.5 * std::sin(5.5) + 6 + 5},
        {14, 2, 0.5, 3, 0, 0, 2 * std::sqrt(1.5) + 3},
        {15, 2, 4, 3, 0, 0, 2 * 8.0 + 3},
    };
    for (const Case& c : cases) {
        select(c.id, c.a, c.b, c.c, c.d, c.e);
        FunctionCount = 0;
        EXPECT_NEAR(YFunc(x), c.expected, 1e-12) << "family " << c.id;
        EXPECT_EQ(FunctionCount, 15);
    }
}

TEST(ExplicitCatalogue, DerivativesMatchTheSlopeOfTheValues)
{
    // Central differences of YFunc check every derivative formula; family 7 deliberately leaves out D.
    const double coefficients[5] = {1.3, 0.7, 0.4, 2.1, -0.6};
    for (int id = 1; id <= 15; ++id) {
        select(id, coefficients[0], coefficients[1], coefficients[2], coefficients[3], coefficients[4]);
        for (double x : {0.35, 1.2, 2.7}) {
            const double h = 1e-6;
            const double numeric = (YFunc(x + h) - YFunc(x - h)) / (2 * h);
            const double expected = id == 7 ? numeric - coefficients[3] : numeric;
            EXPECT_NEAR(YPrimeFunc(x), expected, 1e-5 * std::max(1.0, std::fabs(expected)))
                << "family " << id << " at " << x;
        }
    }
}

TEST(ExplicitCatalogue, EdgeCasesOfTheFamilies)
{
    select(1, 1, 2, 3, 4);
    EXPECT_EQ(YFunc(1), 5);
    EXPECT_EQ(YPrimeFunc(1), -4);

    select(7, 1, 1, 0, 5);
    EXPECT_EQ(YPrimeFunc(0), 1);  // not 6: the slope of Dx is left out

    select(14, 1, 2, 7);
    EXPECT_EQ(YFunc(0), 7);
    select(14, 1, 0.5, 7);
    EXPECT_EQ(YFunc(-1), 0);
    select(14, 2, 3, 1);
    EXPECT_EQ(YFunc(-2), -16 + 1);
    select(14, 1, -1, 7);
    EXPECT_EQ(YFunc(0), 0);
    select(14, 1, 0, 7);
    EXPECT_EQ(YFunc(0), 0);
    // The derivative tests B - 1, not the sign of B: B = 0.5 at x = 0 is undefined, B = 3 at x = -1 is 3.
    select(14, 1, 0.5, 7);
    EXPECT_EQ(YPrimeFunc(0), 0);
    select(14, 1, 3, 7);
    EXPECT_EQ(YPrimeFunc(-1), 3);

    for (double b : {0.0, -2.0}) {
        select(15, 1, b, 7);
        EXPECT_EQ(YFunc(2), 0);
        EXPECT_EQ(YPrimeFunc(2), 0);
    }
}

TEST(ExplicitCatalogue, UndefinedPointsGiveZeroWithoutAnError)
{
    select(8, 1, 1, 0, 3);
    EXPECT_EQ(YFunc(0), 0);
    EXPECT_EQ(YFunc(-4), 0);
    EXPECT_EQ(YPrimeFunc(0), 0);
    select(10, 1, 2, -4, 3);
    EXPECT_EQ(YFunc(2), 0);
    EXPECT_EQ(YPrimeFunc(2), 0);
    for (int id : {0, 16, -3}) {
        select(id, 1, 1, 1, 1, 1);
        EXPECT_EQ(YFunc(2), 0);
        EXPECT_EQ(YPrimeFunc(2), 0);
    }
}

TEST(ExplicitCatalogue, ArithmeticFaultsRaiseTheRunTimeErrors)
{
    select(9, 1, 1, 0);
    EXPECT_EQ(errorOf([] { YFunc(1000); }), rt::Overflow);
    EXPECT_EQ(errorOf([] { YPrimeFunc(1000); }), rt::Overflow);
    select(9, 1, 1e300, 0);
    EXPECT_EQ(errorOf([] { YFunc(-1e10); }), rt::Overflow);  // the inner term overflows before exp
    select(14, 1, 0, 0);
    EXPECT_EQ(errorOf([] { YPrimeFunc(0); }), rt::DivisionByZero);  // 0 to the power -1
    select(12, 1, 1, 1);
    EXPECT_EQ(errorOf([] { YFunc(1e80); }), rt::Overflow);
    select(2, 1e300, 0, 0);
    EXPECT_EQ(errorOf([] { YFunc(1e10); }), rt::Overflow);
    select(10, 1e300, 1, 0);
    EXPECT_EQ(errorOf([] { YFunc(1e-300); }), rt::Overflow);
}
