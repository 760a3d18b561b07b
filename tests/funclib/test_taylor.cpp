// SPDX-License-Identifier: GPL-3.0-or-later
// The Taylor coefficients: exact terms of the textbook series, P_n against the series written out by
// hand, words where a derivative does not exist at the centre, and degree 20.
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "funclib/TaylorSeries.h"

using FuncGlobals::CoefficientSet;
using FuncGlobals::TaylorSeries;
using FuncGlobals::TaylorTerm;

namespace {
std::vector<std::string> termsOf(TaylorSeries s, int n)
{
    std::vector<std::string> out;
    for (int k = 0; k <= n; ++k)
        out.push_back(TaylorSeries::termText(s.term(k), s.centre()));
    return out;
}
}  // namespace

TEST(Taylor, TermsOfTheTextbookSeries)
{
    // clang-format off
    struct { const char* name; TaylorSeries series; std::vector<std::string> terms; } rows[] = {
        {"exp at 0", TaylorSeries::ofText("e^x", 0, {}), {"1", "x", "x^2/2", "x^3/6", "x^4/24"}},
        {"1/(1-x) at -1", TaylorSeries::ofText("1/(1 - x)", -1, {}), {"1/2", "(x + 1)/4", "(x + 1)^2/8"}},
        {"coefficients", TaylorSeries::ofText("A*x^2 + B", 0, {0.5, 3, 0, 0, 0, 0}), {"3", "0", "x^2/2", "0"}},
        {"family 5", TaylorSeries::ofFamily(5, 0, {1, 2, 0, 0, 0, 0}), {"0", "2x", "0", "-4x^3/3", "0", "4x^5/15"}},
        {"family 9 (A e^(Bx + C) + D)", TaylorSeries::ofFamily(9, 0, {1, 1, 0, 0, 0, 0}), {"1", "x", "x^2/2"}},
        {"cos at 1, not rational", TaylorSeries::ofText("cos(x)", 1, {}), {"0.540302", "-0.841471(x - 1)"}},
    };
    // clang-format on
    for (auto& r : rows)
        EXPECT_EQ(termsOf(std::move(r.series), static_cast<int>(r.terms.size()) - 1), r.terms) << r.name;
}

TEST(Taylor, PolynomialsAgainstTheSeriesWrittenOut)
{
    const double h = 0.5;
    // clang-format off
    const struct { const char* name; const char* f; double centre; int degree; double x, expected; } rows[] = {
        {"cos, degree 6", "cos(x)", 0, 6, h, 1 - h * h / 2 + std::pow(h, 4) / 24 - std::pow(h, 6) / 720},
        {"exp, degree 3", "e^x", 0, 3, h, 1 + h + h * h / 2 + h * h * h / 6},
        {"ln at 1, degree 3", "ln(x)", 1, 3, 1 + h, h - h * h / 2 + h * h * h / 3},
        {"sqrt at 4, degree 2", "sqrt(x)", 4, 2, 4 + h, 2 + h / 4 - h * h / 64},
    };
    // clang-format on
    for (const auto& r : rows) {
        TaylorSeries s = TaylorSeries::ofText(r.f, r.centre, {});
        s.term(r.degree);
        EXPECT_NEAR(s.polynomial(r.degree, r.x), r.expected, 1e-15) << r.name;
        EXPECT_TRUE(std::isnan(s.polynomial(r.degree + 1, r.x))) << r.name << ": a term not yet asked for";
    }
    // |cos 0.5 - P_6(0.5)| <= max|cos^(7)| 0.5^7 / 7!, the largest |sin t| on [0, 0.5] being sin 0.5.
    TaylorSeries c = TaylorSeries::ofText("cos(x)", 0, {});
    EXPECT_NEAR(c.lagrangeBound(6, h), std::sin(h) * std::pow(h, 7) / 5040, 1e-18);
    // Sampled between the centre and x, not on the other side: |e^1 - P_1(1)| <= e * 1^2 / 2!.
    EXPECT_NEAR(TaylorSeries::ofText("e^x", 0, {}).lagrangeBound(1, 1), std::exp(1.0) / 2, 1e-15);
    // Away from 0, over [a, x]: |e^2 - P_1(2)| about 1 <= e^2 * 1^2 / 2!.
    EXPECT_NEAR(TaylorSeries::ofText("e^x", 1, {}).lagrangeBound(1, 2), std::exp(2.0) / 2, 1e-14);
}

TEST(Taylor, WhereTheFunctionOrADerivativeDoesNotExist)
{
    // clang-format off
    const struct { const char* name; const char* f; double centre; int firstMissing; const char* why; } rows[] = {
        {"ln at 0", "ln(x)", 0, 0, "f(a) does not exist"}, {"1/x at 0", "1/x", 0, 0, "f(a) does not exist"},
        {"sqrt at 0", "sqrt(x)", 0, 1, "f^(1)(a) does not exist"},
        {"sqrt at -1", "sqrt(x)", -1, 0, "f(a) does not exist"},
        {"x^(5/2) at 0", "x^(5/2)", 0, 3, "f^(3)(a) does not exist"},
    };
    // clang-format on
    for (const auto& r : rows) {
        TaylorSeries s = TaylorSeries::ofText(r.f, r.centre, {});
        for (int k = 0; k <= r.firstMissing + 1; ++k)
            EXPECT_EQ(s.term(k).state == TaylorTerm::State::Undefined, k >= r.firstMissing) << r.name << " at " << k;
        EXPECT_EQ(s.term(r.firstMissing + 1).why, r.why) << r.name;
    }
    TaylorSeries refused = TaylorSeries::ofText("sinn(x)", 0, {});
    EXPECT_EQ(refused.refusal(), "unknown name 'sinn' at 1");
    EXPECT_EQ(std::pair(refused.term(2).state, refused.term(2).why),
              std::pair(TaylorTerm::State::Undefined, refused.refusal()));
    EXPECT_EQ(TaylorSeries::ofFamily(0, 0, {}).refusal(), "no function chosen");
    // An exponent far past what exact arithmetic can carry is refused before GiNaC works out 3^123456789
    // (gigabytes); one at the limit is worked out (x^10000 at 1: the first term 1, the second 10000).
    FuncGlobals::CoefficientSet k{};
    k.B = 123456789;
    EXPECT_EQ(TaylorSeries::ofText("x^B", 3, k).refusal(),
              "an exponent of 1.23457e+08 is too large to work out exactly");
    EXPECT_EQ(TaylorSeries::ofText("2^(B*x)", 3, k).refusal(),
              "an exponent of 3.7037e+08 is too large to work out exactly");
    // At 0 the same exponent is 0: the slope B ln 2 is worked out.
    EXPECT_NEAR(TaylorSeries::ofText("2^(B*x)", 0, k).term(1).value, 123456789 * std::log(2.0), 1e-6);
    TaylorSeries atLimit = TaylorSeries::ofText("x^(100*100)", 1, {});
    EXPECT_EQ(std::pair(atLimit.refusal(), atLimit.term(1).exact), std::pair(std::string(), std::string("10000")));
}

TEST(Taylor, DegreeTwentyAndPastDoublePrecision)
{
    TaylorSeries e = TaylorSeries::ofText("e^x", 0, {});
    EXPECT_EQ(e.term(20).exact, "1/2432902008176640000");  // 20!
    EXPECT_NEAR(e.polynomial(20, 1), std::exp(1.0), 1e-15);
    // (ln 1000)^k / k! stays within a double to the last degree; e^(1e200 x) has 1e400 / 2 at degree 2.
    TaylorSeries big = TaylorSeries::ofText("1000^x", 0, {});
    EXPECT_EQ(big.term(TaylorSeries::kMaxDegree).state, TaylorTerm::State::Found);
    TaylorSeries huge = TaylorSeries::ofText("e^(1e200*x)", 0, {});
    EXPECT_EQ(huge.term(2).state, TaylorTerm::State::TooLarge);
    EXPECT_EQ(huge.term(2).why, "the coefficient is too large for double precision");
    EXPECT_EQ(huge.term(3).state, TaylorTerm::State::TooLarge);
}
