// SPDX-License-Identifier: GPL-3.0-or-later
// The three catalogues of families: explicit y(x) with derivatives and domain rules, the slope
// field's rates with the Runge-Kutta steps, and the parametric x(t), y(t); values, bounds and faults.
#include <cmath>

#include <gtest/gtest.h>

#include "funclib/FuncGlobals.h"
#include "funclib/StepMethods.h"
#include "runtime/RuntimeError.h"
#include "tests/TestSupport.h"

using namespace FuncGlobals;

namespace {
void select(int id, double a, double b, double c, double d = 0, double e = 0)
{
    FunctionId = static_cast<std::int16_t>(id);
    Coefficients = {a, b, c, d, e, 0};
}
void rates(int dy, int dx, CoefficientSet k)
{
    DyFuncId = static_cast<std::int16_t>(dy);
    DxFuncId = static_cast<std::int16_t>(dx);
    Coefficients = k;
}
}  // namespace

TEST(ExplicitCatalogue, ValuesDerivativesAndCaptionBounds)
{
    const double x = 1.5;
    // Family `id` with A to E at x = 1.5.
    // clang-format off
    const struct { const char* name; int id; double a, b, c, d, e, expected; } cases[] = {
        {"(3 - 3)^2 + 4", 1, 1, 2, 3, 4, 0, 4.0}, {"2x^2 - x + 3", 2, 2, -1, 3, 0, 0, 2 * 2.25 - 1.5 + 3},
        {"2(3 - 1)^3 + 1", 3, 2, 2, 1, 1, 0, 2 * 8.0 + 1}, {"cubic", 4, 1, 2, 3, 4, 0, 3.375 + 2 * 2.25 + 4.5 + 4},
        {"sine", 5, 2, 3, 1, 4, 5, 4 * 1.5 + 2 * std::sin(5.5) + 5},
        {"cosine", 6, 2, 3, 1, 4, 5, 4 * 1.5 + 2 * std::cos(5.5) + 5},
        {"tangent", 7, 2, 0.5, 0.1, 4, 5, 4 * 1.5 + 2 * std::tan(0.85) + 5},
        {"logarithm", 8, 2, 2, 1, 3, 0, 2 * std::log(4.0) + 3},
        {"exponential", 9, 2, 1, -1, 3, 0, 2 * std::exp(0.5) + 3}, {"reciprocal", 10, 6, 2, 1, 3, 0, 6.0 / 4 + 3},
        {"fourth power", 11, 2, 2, 1, 3, 0, 2 * 16.0 + 3},
        {"quartic", 12, 1, 2, 3, 4, 5, 5.0625 + 2 * 3.375 + 3 * 2.25 + 6 + 5},
        {"x sine", 13, 2, 3, 1, 4, 5, 2 * 1.5 * std::sin(5.5) + 6 + 5},
        {"power", 14, 2, 0.5, 3, 0, 0, 2 * std::sqrt(1.5) + 3},
        {"exponential of base B", 15, 2, 4, 3, 0, 0, 2 * 8.0 + 3},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        select(c.id, c.a, c.b, c.c, c.d, c.e);
        FunctionCount = DerivativeCount = 0;
        EXPECT_NEAR(YFunc(x), c.expected, 1e-12);
        YPrimeFunc(x);  // the derivative keeps a count of its own
        EXPECT_TRUE(FunctionCount == 15 && DerivativeCount == 15) << FunctionCount << " " << DerivativeCount;
        EXPECT_STRNE(ExplicitCaption(c.id), "");
        // Central differences of YFunc check every derivative formula, with every coefficient in play;
        // family 7 deliberately leaves out D.
        select(c.id, 1.3, 0.7, 0.4, 2.1, -0.6);
        for (double at : {0.35, 1.2, 2.7}) {
            const double numeric = (YFunc(at + 1e-6) - YFunc(at - 1e-6)) / 2e-6;
            const double expected = c.id == 7 ? numeric - 2.1 : numeric;
            EXPECT_NEAR(YPrimeFunc(at), expected, 1e-5 * std::max(1.0, std::fabs(expected))) << "slope at " << at;
        }
    }
    EXPECT_STREQ(ExplicitCaption(0), "");
    EXPECT_STREQ(ExplicitCaption(16), "");
}

TEST(ExplicitCatalogue, EdgesUndefinedPointsAndFaults)
{
    // The value and the slope of family `id` with A to D at x, and the errors each raises (0: none).
    // clang-format off
    struct { const char* name; int id; double a, b, c, d, x, y, slope; int yError = 0, slopeError = 0; } cases[] = {
        {"parabola", 1, 1, 2, 3, 4, 1, 5, -4},
        {"tangent: the slope of Dx is left out (1, not 6)", 7, 1, 1, 0, 5, 0, 0, 1},
        {"power at x = 0 with B > 1", 14, 1, 2, 7, 0, 0, 7, 0},
        {"power of a negative x, B not whole", 14, 1, 0.5, 7, 0, -1, 0, 0},
        {"power of a negative x, B whole", 14, 2, 3, 1, 0, -2, -15, 24},
        {"power: 0 to the power -1", 14, 1, -1, 7, 0, 0, 0, 0, 0, rt::DivisionByZero},
        {"power slope tests B - 1, not the sign of B", 14, 1, 0.5, 7, 0, 0, 0, 0},
        {"power of -1 cubed", 14, 1, 3, 7, 0, -1, 6, 3},
        {"power: 0 to the power 0, slope 0^-1", 14, 1, 0, 0, 0, 0, 0, 0, 0, rt::DivisionByZero},
        {"exponential of base 0", 15, 1, 0, 7, 0, 2, 0, 0},
        {"exponential of a negative base", 15, 1, -2, 7, 0, 2, 0, 0},
        {"ln 0: undefined, 0 without an error", 8, 1, 1, 0, 3, 0, 0, 0}, {"ln of a negative", 8, 1, 1, 0, 3, -4, 0, 0},
        {"reciprocal at its pole", 10, 1, 2, -4, 3, 2, 0, 0}, {"no family 0", 0, 1, 1, 1, 1, 2, 0, 0},
        {"no family 16", 16, 1, 1, 1, 1, 2, 0, 0}, {"no family -3", -3, 1, 1, 1, 1, 2, 0, 0},
        {"e^1000 overflows", 9, 1, 1, 0, 0, 1000, 0, 0, rt::Overflow, rt::Overflow},
        {"the inner term overflows before exp", 9, 1, 1e300, 0, 0, -1e10, 0, 0, rt::Overflow, rt::Overflow},
        {"quartic value overflows, its slope does not", 12, 1, 1, 1, 0, 1e80, 0, 4e240 + 3e160 + 2e80 + 1,
         rt::Overflow},
        {"Ax^2 overflows", 2, 1e300, 0, 0, 0, 1e10, 0, 0, rt::Overflow, rt::Overflow},
        {"reciprocal: value overflows, slope divides by 0", 10, 1e300, 1, 0, 0, 1e-300, 0, 0, rt::Overflow,
         rt::DivisionByZero},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        select(c.id, c.a, c.b, c.c, c.d);
        double y = 0, slope = 0;
        EXPECT_EQ(errorOf([&] { y = YFunc(c.x); }), c.yError);
        EXPECT_EQ(errorOf([&] { slope = YPrimeFunc(c.x); }), c.slopeError);
        EXPECT_EQ(y, c.y);
        EXPECT_DOUBLE_EQ(slope, c.slope);
    }
}

TEST(RateCatalogue, ValuesOfBothColumns)
{
    const double x = 1.5, y = -0.5;
    // The family, dy and dx with A, B, C = 2, 3, 0.5 and D, E, F = -1, 4, 1.5.
    const std::tuple<int, double, double> cases[] = {
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
    for (const auto& [id, dy, dx] : cases) {
        rates(id, id, {2, 3, 0.5, -1, 4, 1.5});
        EXPECT_NEAR(DyFunc(x, y), dy, 1e-12) << "dy family " << id;
        EXPECT_NEAR(DxFunc(x, y), dx, 1e-12) << "dx family " << id;
        EXPECT_TRUE(*DyCaption(id) && *DxCaption(id)) << id;
    }
    EXPECT_STREQ(DyCaption(0), "");
    EXPECT_STREQ(DxCaption(16), "");
}

TEST(RateCatalogue, ZeroCoefficientsHandWorkedStepsAndFaults)
{
    for (int id = -1; id <= 16; ++id) {  // all-zero coefficients: 1, except the linear family and ids outside
        rates(id, id, {});
        const double one = id >= 2 && id <= 15 ? 1 : 0;
        EXPECT_EQ(std::pair(DyFunc(3, 4), DxFunc(3, 4)), std::pair(one, one)) << id;
    }
    rates(10, 9, {1, 0, 0, 0, 0, 2});  // ln of x <= 0 is 0 and takes its term with it; F * e^0 is F
    EXPECT_EQ(std::tuple(DyFunc(0, 1), DyFunc(-1, 1), DxFunc(5, 0)), std::tuple(0.0, 0.0, 2.0));
    rates(1, 2, {1, 0, 0, 0, 0, 0});  // dy = x, dx = 1
    EXPECT_EQ(std::pair(Runga2Step(0, 0, 1), Runga4Step(0, 0, 1)), std::pair(0.5, 0.5));
    // dy/dx = -x/y from (4, 3), h = 1: k1 = -4/3, k2 = -4.5/2.3333, k3, k4 by the classical rule.
    rates(1, 1, {-1, 0, 0, 0, 1, 0});
    const double k1 = -4.0 / 3, k2 = -4.5 / (3 + k1 / 2), k3 = -4.5 / (3 + k2 / 2), k4 = -5.0 / (3 + k3);
    EXPECT_DOUBLE_EQ(Runga2Step(4, 3, 1), k2);
    EXPECT_DOUBLE_EQ(Runga4Step(4, 3, 1), k2 / 3 + k1 / 6 + k3 / 3 + k4 / 6);
    rates(1, 1, {1, 0, 0, 0, 0, 0});  // dx = 0 everywhere
    for (const StepMethods::Method& m : StepMethods::all()) {  // every method over the families: 1 / 0 and 0 / 0
        EXPECT_EQ(errorOf([&] { m.family(1, 1, 1, {}); }), rt::DivisionByZero) << m.key;
        EXPECT_EQ(errorOf([&] { m.family(0, 0, 1, {}); }), rt::Overflow) << m.key;
    }
    rates(9, 1, {0, 0, 1, 1, 0, 0});
    EXPECT_EQ(errorOf([] { DyFunc(1000, 0); }), rt::Overflow);
    rates(13, 1, {1, 0, 0, 1, 0, 0});
    EXPECT_EQ(errorOf([] { DyFunc(0, 1e200); }), rt::Overflow);
}

TEST(ParametricCatalogue, ValuesOfBothCatalogues)
{
    const double T = 0.5;
    // The family, x and y with A, B, C = 2, 3, 0.25 and D, E, F = -1, 0.5, 4.
    const std::tuple<int, double, double> cases[] = {
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
    for (const auto& [id, x, y] : cases) {
        XtFuncId = YtFuncId = static_cast<std::int16_t>(id);
        Coefficients = {2, 3, 0.25, -1, 0.5, 4};
        EXPECT_NEAR(XtFunc(0.5f), x, 1e-12) << id;
        EXPECT_NEAR(YtFunc(0.5f), y, 1e-12) << id;
        EXPECT_TRUE(*XtCaption(id) && *YtCaption(id)) << id;
    }
    EXPECT_STREQ(XtCaption(13), "");
    EXPECT_STREQ(YtCaption(0), "");
}
