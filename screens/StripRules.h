// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The five deterministic strip rules (left, right, midpoint, trapezoid, Simpson) in one table: each
// row's name, the order of its error, its colour on the convergence plot, the rule in double
// precision over n strips of [a, b], and the sums screen's classic single-precision sum of the same
// rule (screens/RiemannSums.h), so that the sums screen's convergence table keeps its digits. The
// convergence tables and the area screen all read this table.
#include <array>
#include <cstdint>
#include <functional>

#include <QtGlobal>

#include "screens/RiemannSums.h"

namespace StripRules {

using Function = std::function<double(double)>;

struct Rule {
    const char* name;  // English, marked for translation where it is shown
    int order;  // the error falls as n^-order
    std::uint32_t colour;  // 0xRRGGBB on the convergence plot
    bool evenOnly;  // Simpson's rule takes strips in pairs
    // The rule over n strips of [a, b] in double precision; NaN when f is NaN at one of its points.
    // Call only with n >= 1 (and n even for an evenOnly rule).
    double (*apply)(const Function& f, double a, double b, std::int32_t n);
    // The sums screen's sum of the same rule, from L with strips dx wide (it may raise the classic
    // run-time errors of a family's arithmetic).
    RiemannSums::Result (*classic)(const Function& f, double L, double dx, std::int32_t n);
};

namespace detail {

inline double at(double a, double b, std::int32_t i, std::int32_t n) { return i == n ? b : a + (b - a) * i / n; }

// h * sum of f at a + (i + shift) h for i = 0 .. n - 1.
inline double riemann(const Function& f, double a, double b, std::int32_t n, double shift)
{
    const double h = (b - a) / n;
    double sum = 0;
    for (std::int32_t i = 0; i < n; ++i)
        sum += shift == 1 ? f(at(a, b, i + 1, n)) : f(a + (i + shift) * h);
    return sum * h;
}

inline double trapezoid(const Function& f, double a, double b, std::int32_t n)
{
    double sum = (f(a) + f(b)) / 2;
    for (std::int32_t i = 1; i < n; ++i)
        sum += f(at(a, b, i, n));
    return sum * (b - a) / n;
}

inline double simpson(const Function& f, double a, double b, std::int32_t n)
{
    double sum = f(a) + f(b);
    for (std::int32_t i = 1; i < n; ++i)
        sum += (i % 2 ? 4 : 2) * f(at(a, b, i, n));
    return sum * (b - a) / n / 3;
}

constexpr auto ignore = [](auto&&...) {};

}  // namespace detail

inline const std::array<Rule, 5> kRules{{
    //: a sum's rule (left endpoints) in the convergence table and the area grid
    {QT_TRANSLATE_NOOP("Plotto", "Left"), 1, 0x1F4EB4, false,
     [](const Function& f, double a, double b, std::int32_t n) { return detail::riemann(f, a, b, n, 0); },
     [](const Function& f, double L, double dx, std::int32_t n) {
         return RiemannSums::leftEndpoint(f, L, dx, n, detail::ignore);
     }},
    //: a sum's rule (right endpoints) in the convergence table and the area grid
    {QT_TRANSLATE_NOOP("Plotto", "Right"), 1, 0xB42A1F, false,
     [](const Function& f, double a, double b, std::int32_t n) { return detail::riemann(f, a, b, n, 1); },
     [](const Function& f, double L, double dx, std::int32_t n) {
         return RiemannSums::rightEndpoint(f, L, dx, n, detail::ignore);
     }},
    {QT_TRANSLATE_NOOP("Plotto", "Midpoint"), 2, 0x1E7B32, false,
     [](const Function& f, double a, double b, std::int32_t n) { return detail::riemann(f, a, b, n, 0.5); },
     [](const Function& f, double L, double dx, std::int32_t n) {
         return RiemannSums::midpoint(f, L, dx, n, detail::ignore);
     }},
    {QT_TRANSLATE_NOOP("Plotto", "Trapezoid"), 2, 0x7A3EA8, false, detail::trapezoid,
     [](const Function& f, double L, double dx, std::int32_t n) {
         return RiemannSums::trapezoidal(f, L, dx, n, detail::ignore);
     }},
    {QT_TRANSLATE_NOOP("Plotto", "Simpson"), 4, 0x8A5A00, true, detail::simpson,
     [](const Function& f, double L, double dx, std::int32_t n) {
         return RiemannSums::simpson(f, L, dx, n, detail::ignore);
     }},
}};

}  // namespace StripRules
