// SPDX-License-Identifier: GPL-3.0-or-later
// The limit and the largest delta, without a window: delta against the closed form of where f meets
// L +- eps, the bands left arbitrarily close to a, and the one-sided limits in words.
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "funclib/EpsilonDelta.h"
#include "funclib/FunctionSource.h"

using limits::DeltaSearch;

namespace {
// A typed function as the search reads it: NaN where it is undefined.
limits::Values typed(const char* text)
{
    std::string error;
    auto f = FuncGlobals::TypedFunction::make(text, error);
    EXPECT_TRUE(f) << text << ": " << error;
    return [f](const std::vector<double>& xs) {
        std::vector<double> ys;
        for (double x : xs)
            ys.push_back(std::isfinite(f->value(x)) ? f->value(x) : NAN);
        return ys;
    };
}
DeltaSearch delta(const char* f, double a, double L, double eps)
{
    return limits::largestDelta(typed(f), a, L, eps, -10, 10);
}
}  // namespace

// The largest delta against where the graph meets L +- eps, worked out by hand; no delta where points
// arbitrarily close to a leave the band; the reason when nothing is searched.
TEST(EpsilonDelta, LargestDeltaOrWhyThereIsNone)
{
    using Outcome = DeltaSearch::Outcome;
    // The words' start; for a delta found, whether nothing leaves the band before the window's edge and
    // how many sides of a have f undefined.
    // clang-format off
    const struct { const char* name; const char* f; double a, L, eps; Outcome outcome; const char* says;
                   double delta = 0; bool edge = false; int undefinedSides = 0; } rows[] = {
        // (2 + t)^2 = 4.5 on the right comes before (2 - t)^2 = 3.5 on the left.
        {"x^2 at 2", "x^2", 2, 4, 0.5, Outcome::Found, "", std::sqrt(4.5) - 2},
        // sin t / t = 1/2 at the nonzero root of sin t = t/2; f(0) itself is undefined.
        {"sin(x)/x at 0 (a hole)", "sin(x)/x", 0, 1, 0.5, Outcome::Found, "", 1.8954942670339809},
        {"x^3 at 0", "x^3", 0, 0, 0.001, Outcome::Found, "", 0.1},
        // sqrt t = 1/2 at t = 1/4; the left side is outside the domain.
        {"sqrt(x) at 0", "sqrt(x)", 0, 0, 0.5, Outcome::Found, "", 0.25, false, 1},
        // Nothing leaves the band 5 +- 100: the nearer edge, x = 10, is 9 away.
        {"a wide band", "2*x + 3", 1, 5, 100, Outcome::Found, "", 9, true},
        // The jump is inside the band 0 +- 2.
        {"x/abs(x) with a wide band", "x/abs(x)", 0, 0, 2, Outcome::Found, "", 10, true},
        {"a jump, L on the left side's value", "x/abs(x)", 0, -1, 0.5, Outcome::NoDelta,
         "For ε = 0.5 no δ works: points arbitrarily close to a leave the band"},
        {"a pole", "1/x", 0, 0, 0.5, Outcome::NoDelta, ""},
        {"an oscillation", "sin(1/x)", 0, 0, 0.5, Outcome::NoDelta, ""},
        {"a wrong L", "2*x + 3", 1, 6, 0.5, Outcome::NoDelta, ""},
        {"an L just outside the band", "x^2", 2, 4.5, 0.5, Outcome::NoDelta, ""},
        {"eps 0", "2*x + 3", 1, 5, 0, Outcome::Refused, "ε must be a positive number."},
        {"eps negative", "2*x + 3", 1, 5, -0.5, Outcome::Refused, "ε must be a positive number."},
        {"eps not a number", "2*x + 3", 1, 5, NAN, Outcome::Refused, "ε must be a positive number."},
        {"a on its edge", "2*x + 3", 10, 5, 0.5, Outcome::Refused, "a = 10 is not inside the window from -10 to 10"},
        {"eps lost in rounding", "2*x + 3", 1, 5, 1e-12, Outcome::Refused, "ε = 1e-12 is below what rounding in f"},
        {"nowhere defined", "sqrt(-1 - x^2)", 0, 0, 0.5, Outcome::Refused, ""},
    };
    // clang-format on
    for (const auto& r : rows) {
        const DeltaSearch d = delta(r.f, r.a, r.L, r.eps);
        EXPECT_EQ(d.outcome, r.outcome) << r.name << ": " << d.words;
        EXPECT_EQ(d.words.rfind(r.says, 0), 0u) << r.name << ": " << d.words;
        if (r.outcome == Outcome::Found) {
            EXPECT_NEAR(d.delta, r.delta, 1e-11 * r.delta) << r.name;
            EXPECT_LE(d.delta, r.delta * (1 + 1e-15)) << r.name << ": a delta that works is never past the true one";
            EXPECT_EQ(std::pair(d.reachesEdge, d.undefinedSides), std::pair(r.edge, r.undefinedSides)) << r.name;
        } else if (r.outcome == Outcome::NoDelta) {
            EXPECT_LT(std::fabs(d.closeX - r.a), 1e-12) << r.name;
            EXPECT_GE(std::fabs(d.closeY - r.L), r.eps) << r.name;
        }
    }
    const DeltaSearch x2 = delta("x^2", 2, 4, 0.5);
    EXPECT_NEAR(x2.leaveX, std::sqrt(4.5), 1e-11);
    EXPECT_NEAR(x2.leaveY, 4.5, 1e-10);
    EXPECT_NE(x2.words.find("the largest δ is 0.1213203436"), std::string::npos) << x2.words;
    // ln x at 1 (L = 0): the band 0 +- 1 is left at x = 1/e on the left, before x = e on the right; the
    // window's x <= 0 are outside the domain, and said so.
    const DeltaSearch ln = delta("ln(x)", 1, 0, 1);
    EXPECT_NEAR(ln.delta, 1 - std::exp(-1.0), 1e-12);
    EXPECT_NE(ln.words.find("f is undefined at some x of the window"), std::string::npos) << ln.words;
}

TEST(EpsilonDelta, TheLimitFromBothSides)
{
    // The limit where it exists, the sentence where there is none.
    // clang-format off
    const struct { const char* name; const char* f; double a; bool exists; double limit; const char* words; } rows[] = {
        {"sin(x)/x at 0", "sin(x)/x", 0, true, 1, nullptr},
        {"(x^2 - 1)/(x - 1) at 1", "(x^2 - 1)/(x - 1)", 1, true, 2, nullptr},
        {"(1 - cos x)/x^2 at 0", "(1 - cos(x))/x^2", 0, true, 0.5, nullptr},
        {"sqrt(x) at 0, from the right only", "sqrt(x)", 0, true, 0, nullptr},
        {"a pole", "1/x", 0, false, 0,
         "The left side tends to -infinity and the right side to infinity: no limit at a = 0."},
        {"an oscillation", "sin(1/x)", 0, false, 0,
         "The left side does not settle and the right side does not settle: no limit at a = 0."},
        {"a is not a number", "x", NAN, false, 0, "a must be a number."},
        {"nowhere defined", "sqrt(-1 - x^2)", 3, false, 0,
         "f is not defined near a = 3 on either side: no limit there."},
    };
    // clang-format on
    for (const auto& r : rows) {
        const limits::LimitEstimate e = limits::estimateLimit(typed(r.f), r.a);
        EXPECT_EQ(e.exists, r.exists) << r.name << ": " << e.words;
        if (r.exists)
            EXPECT_EQ(e.limit, r.limit) << r.name << ": " << e.words;
        else
            EXPECT_EQ(e.words, r.words) << r.name;
    }
}
