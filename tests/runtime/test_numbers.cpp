// SPDX-License-Identifier: GPL-3.0-or-later
// Reading and writing numbers, conversions and the checked arithmetic with the errors it raises.
#include <cmath>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "runtime/BoundedArray.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "tests/TestSupport.h"

using namespace rt;

namespace {
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN(), kInf = std::numeric_limits<double>::infinity();
}  // namespace

TEST(Numbers, ReadingTexts)
{
    // clang-format off
    const std::pair<const char*, double> lenient[] = {
        {"1e3", 1000}, {" .5", 0.5}, {"1.2.3", 1.2}, {"1e", 1}, {"1e+", 1}, {"-", 0}, {".", 0}, {"abc", 0},
        {"", 0}, {"\t\n  7 apples", 7}, {"+5", 5}, {"-.25e1", -2.5}, {"2E-2x", 0.02}, {"&H7FFF", 0}, {"--5", 0},
        {"99999999999999999999", 1e20}, {"0e999", 0}, {"1e-999", 0}, {"1e308", 1e308}, {"\xc3\xa9" "5", 0}};
    // clang-format on
    for (const auto& [text, value] : lenient) {
        EXPECT_EQ(Val(text), value) << text;
        EXPECT_EQ(TryVal(text), std::optional<double>(value)) << text;  // the same number, without the error
    }
    EXPECT_GT(Val("1e-320"), 0);  // a denormal is still a number
    for (const std::string& huge :
         std::vector<std::string>{"1e999", "-1e309", " 1e400 apples", std::string(400, '9')}) {
        EXPECT_EQ(errorOf([&] { Val(huge); }), Overflow) << huge;
        EXPECT_EQ(TryVal(huge), std::nullopt) << huge;
    }
    // The strict reading takes a whole number or nothing.
    for (const char* bad : {"", " ", "1e", "abc", "1.2.3", "5x", "-", "."})
        EXPECT_EQ(errorOf([&] { CDbl(bad); }), TypeMismatch) << bad;
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("   "), "");
}

TEST(Numbers, WritingNumbers)
{
    // clang-format off
    const std::pair<double, const char*> doubles[] = {
        {0.5, " .5"}, {-3.0, "-3"}, {-0.25, "-.25"}, {1e15, " 1E+15"}, {1.2e15, " 1.2E+15"},
        {5e-15, " .000000000000005"}, {5e-16, " 5E-16"}, {1.0 / 30, " 3.33333333333333E-02"}, {1e100, " 1E+100"},
        {-1e-100, "-1E-100"}, {0.0, " 0"}, {-0.0, " 0"}, {123456789012345.0, " 123456789012345"}, {0.1 + 0.2, " .3"},
        {2.0 / 3, " .666666666666667"}, {2.05, " 2.05"}, {1000000.0, " 1000000"},
        {999999999999999.9, " 1E+15"}};  // rounding to 15 digits carries into the exponent
    for (const auto& [v, text] : doubles)
        EXPECT_EQ(Str(v), text) << text;
    const std::pair<float, const char*> singles[] = {
        {1e8f, " 1E+08"}, {16.0f / 3, " 5.333333"}, {2.6666667f, " 2.666667"}, {0.1f, " .1"}, {-0.25f, "-.25"},
        {1234567.0f, " 1234567"}, {12345678.0f, " 1.234568E+07"}, {0.01234567f, " 1.234567E-02"}, {16.0f, " 16"}};
    // clang-format on
    for (const auto& [v, text] : singles)
        EXPECT_EQ(Str(v), text) << text;
    // clang-format off
    const std::pair<double, const char*> plain[] = {{0.5, "0.5"}, {-2.5, "-2.5"}, {3.15, "3.15"}, {-0.25, "-0.25"},
        {11.0, "11"}, {0.0, "0"}, {1e15, "1E+15"}, {1e-20, "1E-20"}, {1001.0, "1001"}};
    // clang-format on
    for (const auto& [v, text] : plain)
        EXPECT_EQ(CStr(v), text) << text;
    EXPECT_EQ(CStr(3.15f), "3.15");
}

TEST(Numbers, ConversionsAndCheckedArithmetic)
{
    // Each case: the value it gives, or 0 and the run-time error it raises.
    // clang-format off
#define CASE(expression, value, error) {#expression, [] { return static_cast<double>(expression); }, value, error}
    const struct { const char* what; std::function<double()> f; double value; int error; } cases[] = {
        CASE(CDbl(" 12.5 "), 12.5, 0), CASE(CDbl("-1e2"), -100, 0), CASE(CDbl("1e999"), 0, Overflow),
        CASE(Int(-8.4), -9, 0), CASE(Int(8.9), 8, 0), CASE(Int(-3.0), -3, 0), CASE(CInt(0.5), 0, 0),
        CASE(CInt(1.5), 2, 0), CASE(CInt(2.5), 2, 0), CASE(CInt(-2.5), -2, 0), CASE(CInt(2.6), 3, 0),
        CASE(CInt(32767.4), 32767, 0), CASE(CInt(-32768.5), -32768, 0), CASE(CInt(32767.5), 0, Overflow),
        CASE(CInt(-32769), 0, Overflow), CASE(CInt(kNaN), 0, Overflow), CASE(CInt(kInf), 0, Overflow),
        CASE(CLng(2147483647.4), 2147483647, 0), CASE(CLng(-2147483648.0), -2147483648.0, 0), CASE(CLng(3.5), 4, 0),
        CASE(CLng(2147483648.0), 0, Overflow), CASE(CLng(-1e300), 0, Overflow),
        CASE(CSng(0.1), static_cast<double>(0.1f), 0), CASE(CSng(1e39), 0, Overflow), CASE(CSng(-1e300), 0, Overflow),
        CASE(Div(1, 4), 0.25, 0), CASE(Div(1, 0), 0, DivisionByZero), CASE(Div(-5, 0), 0, DivisionByZero),
        CASE(Div(0, 0), 0, Overflow), CASE(Div(1e308, 1e-308), 0, Overflow), CASE(Pow(-2, 3), -8, 0),
        CASE(Pow(0, 0), 1, 0), CASE(Pow(4, 0.5), 2, 0), CASE(Pow(0, -1), 0, DivisionByZero),
        CASE(Pow(INFINITY, 0), 0, Overflow), CASE(Pow(0.5, INFINITY), 0, Overflow),  // where pow gives 1 and 0
        CASE(Pow(-8, 1.0 / 3), 0, InvalidProcedureCall), CASE(Pow(10, 400), 0, Overflow),
        CASE(Chk(std::exp(1000.0)), 0, Overflow), CASE(Mod(16, 15), 1, 0), CASE(Mod(-1, 15), -1, 0),
        CASE(Mod(3, 0), 0, DivisionByZero), CASE(RoundHalfUp(2.5, 1), 3, 0),
        CASE(RoundHalfUp(-2.5, 1), -2, 0), CASE(RoundHalfUp(0.125, 100), 0.13, 0),
        CASE(RoundHalfUp(1e306, 1000), 0, Overflow),
    };
    // clang-format on
#undef CASE
    for (const auto& c : cases) {
        double got = 0;
        EXPECT_EQ(errorOf([&] { got = c.f(); }), c.error) << c.what;
        EXPECT_EQ(got, c.value) << c.what;
    }
}

TEST(RuntimeErrors, TheClassicNumbersMessagesAndBounds)
{
    // clang-format off
    const std::pair<int, const char*> classic[] = {{5, "Invalid procedure call or argument"}, {6, "Overflow"},
        {9, "Subscript out of range"}, {11, "Division by zero"}, {13, "Type mismatch"}, {380, "Invalid property value"},
        {7, "Application-defined or object-defined error"}};
    // clang-format on
    for (const auto& [number, message] : classic)
        EXPECT_STREQ(errorMessage(number), message) << number;
    // A bounded array takes its two bounds and refuses one past either with error 9.
    BoundedArray<int, 0, 20> a;
    a[0] = 1;
    a[20] = 2;
    EXPECT_EQ(a[0] + a[20], 3);
    EXPECT_EQ(errorOf([&] { a[-1] = 0; }), 9);
    EXPECT_EQ(errorOf([&] { a[21] = 0; }), 9);
}
