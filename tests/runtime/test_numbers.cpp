// SPDX-License-Identifier: GPL-3.0-or-later
// Reading and writing numbers, whole-number and single conversions, and the checked arithmetic.
#include <cfloat>
#include <cmath>
#include <limits>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "tests/TestSupport.h"

#include "runtime/Numbers.h"

using namespace rt;

TEST(Val, ReadsTheLongestLeadingNumber)
{
    EXPECT_EQ(Val("1e3"), 1000);
    EXPECT_EQ(Val(" .5"), 0.5);
    EXPECT_EQ(Val("1.2.3"), 1.2);
    EXPECT_EQ(Val("1e"), 1);
    EXPECT_EQ(Val("1e+"), 1);
    EXPECT_EQ(Val("-"), 0);
    EXPECT_EQ(Val("."), 0);
    EXPECT_EQ(Val("abc"), 0);
    EXPECT_EQ(Val(""), 0);
    EXPECT_EQ(Val("FirstGuess"), 0);
    EXPECT_EQ(Val("\t\n  7 apples"), 7);
    EXPECT_EQ(Val("+5"), 5);
    EXPECT_EQ(Val("-.25e1"), -2.5);
    EXPECT_EQ(Val("2E-2x"), 0.02);
    EXPECT_EQ(Val("&H7FFF"), 0);
    EXPECT_EQ(Val("--5"), 0);
    EXPECT_EQ(Val("99999999999999999999"), 1e20);
    EXPECT_EQ(Val("0e999"), 0);
    EXPECT_EQ(Val("1e-999"), 0);
    EXPECT_GT(Val("1e-320"), 0);  // a denormal is still a number
    EXPECT_EQ(Val("\xc3\xa9"
                  "5"),
              0);
}

TEST(Val, TooLargeForADoubleIsOverflow)
{
    EXPECT_EQ(errorOf([] { Val("1e999"); }), Overflow);
    EXPECT_EQ(errorOf([] { Val("-1e309"); }), Overflow);
    EXPECT_EQ(errorOf([] { Val(std::string(400, '9')); }), Overflow);
    EXPECT_EQ(Val("1e308"), 1e308);
}

TEST(CDbl, AcceptsOnlyAWholeNumber)
{
    EXPECT_EQ(CDbl(" 12.5 "), 12.5);
    EXPECT_EQ(CDbl("-1e2"), -100);
    for (const char* bad : {"", " ", "1e", "abc", "1.2.3", "5x", "-", "."})
        EXPECT_EQ(errorOf([&] { CDbl(bad); }), TypeMismatch) << bad;
    EXPECT_EQ(errorOf([] { CDbl("1e999"); }), Overflow);
}

TEST(Str, DoublesKeepFifteenDigitsWithALeadingBlank)
{
    EXPECT_EQ(Str(0.5), " .5");
    EXPECT_EQ(Str(-3.0), "-3");
    EXPECT_EQ(Str(-0.25), "-.25");
    EXPECT_EQ(Str(1e15), " 1E+15");
    EXPECT_EQ(Str(1.2e15), " 1.2E+15");
    EXPECT_EQ(Str(5e-15), " .000000000000005");
    EXPECT_EQ(Str(5e-16), " 5E-16");
    EXPECT_EQ(Str(1.0 / 30), " 3.33333333333333E-02");
    EXPECT_EQ(Str(1e100), " 1E+100");
    EXPECT_EQ(Str(-1e-100), "-1E-100");
    EXPECT_EQ(Str(0.0), " 0");
    EXPECT_EQ(Str(-0.0), " 0");
    EXPECT_EQ(Str(123456789012345.0), " 123456789012345");
    EXPECT_EQ(Str(0.1 + 0.2), " .3");
    EXPECT_EQ(Str(2.0 / 3), " .666666666666667");
    EXPECT_EQ(Str(2.05), " 2.05");
    EXPECT_EQ(Str(1000000.0), " 1000000");
    EXPECT_EQ(Str(999999999999999.9), " 1E+15");  // rounding to 15 digits carries into the exponent
}

TEST(Str, SinglesKeepSevenDigits)
{
    EXPECT_EQ(Str(1e8f), " 1E+08");
    EXPECT_EQ(Str(16.0f / 3), " 5.333333");
    EXPECT_EQ(Str(2.6666667f), " 2.666667");
    EXPECT_EQ(Str(0.1f), " .1");
    EXPECT_EQ(Str(-0.25f), "-.25");
    EXPECT_EQ(Str(1234567.0f), " 1234567");
    EXPECT_EQ(Str(12345678.0f), " 1.234568E+07");
    EXPECT_EQ(Str(0.01234567f), " 1.234567E-02");
    EXPECT_EQ(Str(16.0f), " 16");
}

TEST(CStr, PlainConversionHasNoBlankAndAZeroBeforeThePoint)
{
    EXPECT_EQ(CStr(0.5), "0.5");
    EXPECT_EQ(CStr(-2.5), "-2.5");
    EXPECT_EQ(CStr(3.15), "3.15");
    EXPECT_EQ(CStr(-0.25), "-0.25");
    EXPECT_EQ(CStr(11.0), "11");
    EXPECT_EQ(CStr(0.0), "0");
    EXPECT_EQ(CStr(1e15), "1E+15");
    EXPECT_EQ(CStr(1e-20), "1E-20");
    EXPECT_EQ(CStr(3.15f), "3.15");
    EXPECT_EQ(CStr(1001.0), "1001");
}

TEST(CStr, ReadingBackGivesTheValueToFifteenDigits)
{
    std::mt19937_64 gen(20261122);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-300, 300);
    for (int i = 0; i < 20000; ++i) {
        const double v = mantissa(gen) * std::pow(10.0, exponent(gen));
        const double back = Val(CStr(v));
        const double again = Val(Str(v));
        EXPECT_NEAR(back, v, std::fabs(v) * 1e-14) << CStr(v);
        EXPECT_EQ(back, again) << Str(v);
        const float f = static_cast<float>(mantissa(gen));
        EXPECT_NEAR(Val(Str(f)), f, std::fabs(f) * 1e-6) << Str(f);
    }
}

TEST(Trim, RemovesBlanksAtBothEnds)
{
    EXPECT_EQ(Trim(" .5"), ".5");
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("   "), "");
}

TEST(WholeNumbers, IntIsTheFloor)
{
    EXPECT_EQ(Int(-8.4), -9);
    EXPECT_EQ(Int(8.9), 8);
    EXPECT_EQ(Int(-3.0), -3);
}

TEST(WholeNumbers, SixteenBitConversionRoundsHalfToEven)
{
    EXPECT_EQ(CInt(0.5), 0);
    EXPECT_EQ(CInt(1.5), 2);
    EXPECT_EQ(CInt(2.5), 2);
    EXPECT_EQ(CInt(-2.5), -2);
    EXPECT_EQ(CInt(2.6), 3);
    EXPECT_EQ(CInt(32767.4), 32767);
    EXPECT_EQ(CInt(-32768.5), -32768);
    EXPECT_EQ(errorOf([] { CInt(32767.5); }), Overflow);
    EXPECT_EQ(errorOf([] { CInt(-32769); }), Overflow);
    EXPECT_EQ(errorOf([] { CInt(std::numeric_limits<double>::quiet_NaN()); }), Overflow);
    EXPECT_EQ(errorOf([] { CInt(std::numeric_limits<double>::infinity()); }), Overflow);
}

TEST(WholeNumbers, ThirtyTwoBitConversion)
{
    EXPECT_EQ(CLng(2147483647.4), 2147483647);
    EXPECT_EQ(CLng(-2147483648.0), -2147483647 - 1);
    EXPECT_EQ(CLng(3.5), 4);
    EXPECT_EQ(errorOf([] { CLng(2147483648.0); }), Overflow);
    EXPECT_EQ(errorOf([] { CLng(-1e300); }), Overflow);
}

TEST(Single, RoundsToFloatAndOverflowsBeyondItsRange)
{
    EXPECT_EQ(CSng(0.1), 0.1f);
    EXPECT_EQ(static_cast<double>(CSng(0.1)), static_cast<double>(0.1f));
    EXPECT_EQ(errorOf([] { CSng(1e39); }), Overflow);
    EXPECT_EQ(errorOf([] { CSng(-1e300); }), Overflow);
}

TEST(Arithmetic, DivisionTellsZeroOverZeroFromDivisionByZero)
{
    EXPECT_EQ(Div(1, 4), 0.25);
    EXPECT_EQ(errorOf([] { Div(1, 0); }), DivisionByZero);
    EXPECT_EQ(errorOf([] { Div(-5, 0); }), DivisionByZero);
    EXPECT_EQ(errorOf([] { Div(0, 0); }), Overflow);
    EXPECT_EQ(errorOf([] { Div(1e308, 1e-308); }), Overflow);
}

TEST(Arithmetic, PowerAndOverflow)
{
    EXPECT_EQ(Pow(-2, 3), -8);
    EXPECT_EQ(Pow(0, 0), 1);
    EXPECT_EQ(Pow(4, 0.5), 2);
    EXPECT_EQ(errorOf([] { Pow(0, -1); }), DivisionByZero);
    EXPECT_EQ(errorOf([] { Pow(-8, 1.0 / 3); }), InvalidProcedureCall);
    EXPECT_EQ(errorOf([] { Pow(10, 400); }), Overflow);
    EXPECT_EQ(errorOf([] { Chk(std::exp(1000.0)); }), Overflow);
}

TEST(Arithmetic, ModKeepsTheSignOfTheDividend)
{
    EXPECT_EQ(Mod(16, 15), 1);
    EXPECT_EQ(Mod(-1, 15), -1);
    EXPECT_EQ(Mod(0, 15), 0);
    EXPECT_EQ(errorOf([] { Mod(3, 0); }), DivisionByZero);
}
