// SPDX-License-Identifier: GPL-3.0-or-later
// Typed functions evaluated a column at a time: bit for bit (NaN for NaN) what the point evaluator
// gives, over a grid that crosses the block boundaries, for every kind of operation, every function
// of the table, the gaps, and coefficients changed between calls.
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "funclib/FuncGlobals.h"
#include "funclib/TypedColumn.h"
#include "funclib/TypedExpression.h"
#include "funclib/TypedFunctions.h"

using namespace FuncGlobals;

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();

// The same value: equal bits, or both NaN (a NaN's payload is not part of the value).
bool same(double a, double b)
{
    return std::isnan(a) ? std::isnan(b) : std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

// n points: signed zeros, gaps' edges, huge and infinite values, then a sweep, so that a long column
// has every kind of point in each block.
std::vector<double> grid(std::size_t n, double shift)
{
    const double special[] = {0.0, -0.0, 1, -1, 2, -2, 0.5, -0.5, 1e-310, 1e300, -1e300, 710, kInf, -kInf};
    std::vector<double> xs(n);
    for (std::size_t i = 0; i < n; ++i)
        xs[i] = i % 5 == 0 ? special[(i / 5) % std::size(special)] : shift + 0.0137 * static_cast<double>(i) - 3.1;
    return xs;
}

struct ColumnCase {
    const char* name;
    std::string text;
    VariableNames variables;
};

// Every value of `e` over columns of `n` points against operator() at each point.
void expectSameAsPoints(const TypedExpression& e, std::size_t n, bool twoColumns, const std::string& what)
{
    const std::vector<double> u = grid(n, 0), v = grid(n, 0.71);
    std::vector<double> out(n + 1, 12345.0);  // the element after the n must not be written
    e.values(u.data(), twoColumns ? v.data() : nullptr, out.data(), n);
    for (std::size_t i = 0; i < n; ++i)
        if (!same(e(u[i], twoColumns ? v[i] : 0), out[i])) {
            ADD_FAILURE() << what << " at (" << u[i] << ", " << v[i] << "), point " << i << " of " << n << ": "
                          << e(u[i], twoColumns ? v[i] : 0) << " by points, " << out[i] << " by columns";
            return;
        }
    EXPECT_EQ(out[n], 12345.0) << what << ": written past the end";
}

}  // namespace

TEST(TypedColumns, SameAsPointByPoint)
{
    std::vector<ColumnCase> cases = {
        {"numbers, constants and a sign", "-(2.5 + pi - e)*x", {"x"}},
        {"sum, difference, product, quotient", "(x + 1)*(x - 3)/(x + 0.25) - x/7", {"x"}},
        {"small whole powers the byte code multiplies out", "x^2 - x^3 + x^4 - x^0 + x^1", {"x"}},
        {"other powers stay powers", "x^2.5 + x^5 + (x + 1)^2 + 2^x + x^-1 + (-8)^(1/3)", {"x"}},
        {"patterns the byte code rewrites", "2*(3*x + 1) + x*x + x + x - 4*x/2 + (x - x) + 0.1*(0.3*x + 0.7)", {"x"}},
        {"every coefficient, squared and scaled", "A*x + B^2 + C^3*x - D*(E - x) + F^4 + 3*A - B*2 + 1", {"x"}},
        {"coefficients inside functions", "A*sin(B*x + C) + D*x + E", {"x"}},
        {"a coefficient scaled and moved alone", "3*A + 1", {"x"}},
        {"gaps: roots, logarithms, poles, overflow", "sqrt(x - 1) + ln(x) + 1/x + exp(1000*x) + 1/(x - x)", {"x"}},
        {"a number only", "2^0.5 + sin(1)", {"x"}},
        {"a variable only", "t", {"t"}},
        {"two variables", "A*x + B*y + C - x*y/(y^2 - 1) + sqrt(x*y) + y", {"x", "y"}},
        {"deeply nested", "sin(cos(tan(sinh(x/(1 + x^2)))))", {"x"}},
    };
    // Every function of the table, each in two forms the byte code treats apart.
    for (const TypedFunctionRow& f : typedFunctions())
        cases.push_back({f.name, std::string(f.name) + "(x)*" + f.name + "(B*x - 0.3) + " + f.name + "(0.5)", {"x"}});
    const CoefficientSet coefficients[] = {{2, 3, 0.5, -1, 4, 0}, {-0.0, 1e200, -7, 0.1, 1e-8, -3}};
    for (const ColumnCase& c : cases) {
        std::string error;
        const auto e = TypedExpression::compile(c.text, c.variables, error);
        ASSERT_TRUE(e) << c.name << ": " << error;
        for (const CoefficientSet& set : coefficients) {
            Coefficients = set;  // changed between calls: read on each
            for (const std::size_t n : {std::size_t{0}, std::size_t{1}, 2 * typed::ColumnProgram::Block + 3}) {
                const std::string what = std::string(c.name) + " (" + c.text + "), A = " + std::to_string(set.A);
                expectSameAsPoints(*e, n, c.variables.size() == 2, what);
                if (e->derivative())
                    expectSameAsPoints(*e->derivative(), n, c.variables.size() == 2, what + ", derivative");
            }
        }
    }
}
