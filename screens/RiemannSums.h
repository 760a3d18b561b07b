// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The seven area sums of the sums screen, computed apart from any window: each method evaluates the
// function, accumulates its area in single precision and hands every partition shape, in world
// coordinates, to a sink that may draw it (the screen) or ignore it (tests, benchmarks).
#include <cmath>
#include <cstdint>

#include "runtime/BoundedArray.h"
#include "runtime/Numbers.h"
#include "runtime/Random.h"

namespace RiemannSums {

// A function value of exactly this size marks the method's result as an error.
constexpr double ErrorValue = 12345678;
// The random-width method uses at most this many sub-intervals (its exchange sort is quadratic).
constexpr int MaxRandomWidths = 2000;

using RandomPointArray = rt::BoundedArray<double, 0, MaxRandomWidths>;

struct Result {
    float area = 0;  // accumulated in single precision
    bool error = false;  // a value of the method was the error value
    bool odd = false;  // Simpson's rule refused an odd number of partitions
    // A typed function was undefined (NaN) at a point of the method: the sum left that term out and
    // does not exist; gapAt is the first such x.
    bool gap = false;
    double gapAt = 0;
};

namespace detail {

// A family's terms are always numbers; a typed function's NaN marks a gap, whose term is left out.
inline void add(Result& r, double term)
{
    if (std::isnan(term)) [[unlikely]]
        return;
    r.area = rt::CSng(static_cast<double>(r.area) + rt::Chk(term));
}

// Chk for a value that may be a typed function's NaN, which passes unchecked.
inline double chkNumber(double v) { return std::isnan(v) ? v : rt::Chk(v); }

inline double noteGap(Result& r, double x, double y)
{
    if (std::isnan(y) && !r.gap) [[unlikely]] {
        r.gap = true;
        r.gapAt = x;
    }
    return y;
}

template <class F>
double eval(F& f, double x, Result& r)
{
    const double y = noteGap(r, x, f(x));
    if (std::fabs(y) == ErrorValue)
        r.error = true;
    return y;
}

inline double at(double L, std::int32_t i, double dx) { return rt::Chk(L + rt::Chk(i * dx)); }

}  // namespace detail

// Bar sink: bar(xLeft, xRight, y). Trapezoid sink: trapezoid(xLeft, xRight, yLeft, yRight).
// Simpson sink: pair(xLeft, xRight, y0, y1, y2) for two partitions.

template <class F, class Bar>
Result leftEndpoint(F&& f, double L, double dx, std::int32_t n, Bar&& bar)
{
    Result r;
    for (std::int32_t i = 0; i <= n - 1; ++i) {
        const double x = detail::at(L, i, dx);
        const double y = detail::eval(f, x, r);
        detail::add(r, dx * y);
        bar(x, rt::Chk(x + dx), y);
    }
    return r;
}

template <class F, class Bar>
Result rightEndpoint(F&& f, double L, double dx, std::int32_t n, Bar&& bar)
{
    Result r;
    for (std::int32_t i = 1; i <= n; ++i) {
        const double x = detail::at(L, i, dx);
        const double y = detail::eval(f, x, r);
        detail::add(r, dx * y);
        bar(rt::Chk(x - dx), x, y);
    }
    return r;
}

template <class F, class Bar>
Result midpoint(F&& f, double L, double dx, std::int32_t n, Bar&& bar)
{
    Result r;
    for (std::int32_t i = 0; i <= n - 1; ++i) {
        const double x = detail::at(L, i, dx);
        const double y = detail::eval(f, rt::Chk(x + dx * 0.5), r);
        detail::add(r, dx * y);
        bar(x, rt::Chk(x + dx), y);
    }
    return r;
}

template <class F, class Trapezoid>
Result trapezoidal(F&& f, double L, double dx, std::int32_t n, Trapezoid&& trapezoid)
{
    Result r;
    for (std::int32_t i = 0; i <= n - 1; ++i) {
        const double x = detail::at(L, i, dx);
        const double xr = rt::Chk(x + dx);
        const double y1 = detail::eval(f, x, r);
        const double y2 = detail::eval(f, xr, r);
        detail::add(r, detail::chkNumber(y1 + y2) * (dx * 0.5));
        trapezoid(x, xr, y1, y2);
    }
    return r;
}

// Random point on equal widths: one draw of the generator per partition.
template <class F, class Bar>
Result randomPoint(F&& f, double L, double dx, std::int32_t n, Bar&& bar)
{
    Result r;
    for (std::int32_t i = 0; i <= n - 1; ++i) {
        const double x = detail::at(L, i, dx);
        const double u = rt::Rnd();
        const double y = detail::eval(f, rt::Chk(x + u * dx), r);
        detail::add(r, dx * y);
        bar(x, rt::Chk(x + dx), y);
    }
    return r;
}

// Simpson's rule over pairs of partitions; only the first value of each pair is tested for the
// error value (the same test repeated after each evaluation gives the same answer, so once).
template <class F, class Pair>
Result simpson(F&& f, double L, double dx, std::int32_t n, Pair&& pair)
{
    Result r;
    if (n % 2 != 0) {
        r.odd = true;
        return r;
    }
    for (std::int32_t i = 0; i <= n - 2; i += 2) {
        const double x = detail::at(L, i, dx);
        const double y0 = detail::eval(f, x, r);
        const double x1 = rt::Chk(x + dx);
        const double y1 = detail::noteGap(r, x1, f(x1));
        const double xc = rt::Chk(x + rt::Chk(2 * dx));
        const double y2 = detail::noteGap(r, xc, f(xc));
        detail::add(r, detail::chkNumber(detail::chkNumber(4 * y1) + y0 + y2) * (dx / 3));
        pair(x, xc, y0, y1, y2);
    }
    return r;
}

// Riemann sum over random-width sub-intervals (at most 2000) with a random point in each. The
// division points are kept in `points` between runs; they are sorted by exchange.
template <class F, class Bar>
Result randomWidths(F&& f, double L, double R, std::int32_t n, RandomPointArray& points, Bar&& bar)
{
    Result r;
    const std::int32_t m = n > MaxRandomWidths ? MaxRandomWidths : n;
    points[0] = L;
    points[m] = R;
    const double width = rt::Chk(R - L);
    for (std::int32_t k = 1; k <= m - 1; ++k)
        points[k] = rt::Chk(rt::Chk(rt::Rnd() * width) + L);
    for (std::int32_t i = 1; i <= m - 1; ++i)
        for (std::int32_t j = i + 1; j <= m; ++j)
            if (points[i] > points[j]) {
                const double t = points[i];
                points[i] = points[j];
                points[j] = t;
            }
    for (std::int32_t k = 1; k <= m; ++k) {
        const double w = rt::Chk(points[k] - points[k - 1]);
        const double x = points[k - 1];
        const double u = rt::Rnd();
        const double y = detail::eval(f, rt::Chk(x + u * w), r);
        detail::add(r, w * y);
        bar(x, rt::Chk(x + w), y);
    }
    return r;
}

}  // namespace RiemannSums
