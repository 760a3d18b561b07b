// SPDX-License-Identifier: GPL-3.0-or-later
// The area between two curves (see AreaBetween.h). The exact areas come from the convergence
// tables' own adaptive Gauss-Kronrod rule (Convergence::gaussKronrod), the sums from the shared
// strip rules; the root and minimum finders are Boost's.
#include "screens/AreaBetween.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <limits>

#include <boost/math/tools/minima.hpp>
#include <boost/math/tools/roots.hpp>
#include <boost/math/tools/toms748_solve.hpp>

#include "funclib/Words.h"
#include "screens/Convergence.h"
#include "screens/StripRules.h"

namespace AreaBetween {

namespace words = FuncGlobals::words;

namespace {

// Thrown inside a solver when f - g turns out undefined between two scanned points.
struct Undefined : std::exception { };

double one(const Values& v, double x) { return v(std::vector<double>{x}).front(); }

// A point between `defined` and `undefined` that is still undefined, as near the defined one as
// bisection gets.
double gapEdge(const Values& v, double defined, double undefined)
{
    for (int i = 0; i < 80; ++i) {
        const double mid = defined + (undefined - defined) / 2;
        if (mid == defined || mid == undefined)
            break;
        (std::isnan(one(v, mid)) ? undefined : defined) = mid;
    }
    return undefined;
}

void findGaps(Result& r, int curve, const Values& v, const std::vector<double>& xs, const std::vector<double>& ys)
{
    const std::size_t last = xs.size() - 1;
    for (std::size_t i = 0; i <= last; ++i) {
        if (!std::isnan(ys[i]))
            continue;
        std::size_t j = i;
        while (j < last && std::isnan(ys[j + 1]))
            ++j;
        r.gaps.push_back({curve, i == 0 ? xs[0] : gapEdge(v, xs[i - 1], xs[i]),
                          j == last ? xs[last] : gapEdge(v, xs[j + 1], xs[j])});
        i = j;
    }
}

}  // namespace

std::string shownX(double x, double scale)
{
    if (std::fabs(x) <= 1e-12 * scale || x == 0)
        x = 0;
    char text[40];
    std::snprintf(text, sizeof text, "%.10g", x);
    return text;
}

std::string Crossing::text() const
{
    switch (kind) {
    case Kind::Sampled: return words::fill(words::scanned, {shownX(x)});
    case Kind::SignChange: return words::fill(words::signChange, {shownX(x)});
    case Kind::Touch: return words::fill(words::touch, {shownX(x)});
    case Kind::Stretch: return words::fill(words::stretch, {shownX(x), shownX(to)});
    }
    return {};
}

Result compute(const Values& f, const Values& g, double a, double b, std::int32_t n)
{
    Result r;
    r.strips = n;
    const double width = b - a;
    std::vector<double> xs(kScan + 1);
    for (int i = 0; i <= kScan; ++i)
        xs[static_cast<std::size_t>(i)] = i == kScan ? b : a + width * i / kScan;
    const std::vector<double> fs = f(xs), gs = g(xs);
    findGaps(r, 0, f, xs, fs);
    findGaps(r, 1, g, xs, gs);

    const auto d = [&](double x) { return one(f, x) - one(g, x); };
    const auto solvable = [&](double x) {
        const double v = d(x);
        if (std::isnan(v))
            throw Undefined();
        return v;
    };
    std::vector<double> ds(xs.size());
    for (std::size_t i = 0; i < xs.size(); ++i)
        ds[i] = fs[i] - gs[i];
    const std::size_t last = xs.size() - 1;
    const auto usable = [&](std::size_t i) { return std::isfinite(ds[i]) && ds[i] != 0; };
    for (std::size_t i = 0; i <= last; ++i) {
        if (ds[i] == 0) {
            std::size_t j = i;
            while (j < last && ds[j + 1] == 0)
                ++j;
            r.crossings.push_back({j > i ? Crossing::Kind::Stretch : Crossing::Kind::Sampled, xs[i], xs[j]});
            i = j;
            continue;
        }
        if (i > 0 && i < last && usable(i - 1) && usable(i) && usable(i + 1) &&
            std::signbit(ds[i - 1]) == std::signbit(ds[i]) && std::signbit(ds[i]) == std::signbit(ds[i + 1]) &&
            std::fabs(ds[i]) <= std::fabs(ds[i - 1]) && std::fabs(ds[i]) < std::fabs(ds[i + 1])) {
            // A least |f - g| among the scanned points: a touching point when the true minimum is 0.
            try {
                const auto [xm, least] =
                    boost::math::tools::brent_find_minima([&](double x) { return std::fabs(solvable(x)); }, xs[i - 1],
                                                          xs[i + 1], std::numeric_limits<double>::digits);
                const double scale = std::max({1.0, std::fabs(one(f, xm)), std::fabs(one(g, xm))});
                if (least <= 1e-12 * scale)
                    r.crossings.push_back({Crossing::Kind::Touch, xm, xm});
            } catch (const std::exception&) { }
        }
        if (i == last || !usable(i) || !usable(i + 1) || std::signbit(ds[i]) == std::signbit(ds[i + 1]))
            continue;
        try {
            std::uintmax_t iterations = 200;
            const auto [lo, hi] = boost::math::tools::toms748_solve(
                solvable, xs[i], xs[i + 1], ds[i], ds[i + 1],
                boost::math::tools::eps_tolerance<double>(std::numeric_limits<double>::digits), iterations);
            const double root = lo + (hi - lo) / 2;
            // At a pole or a jump the solver closes in on a point where |f - g| is as large as at the
            // scanned points, or larger: not a crossing.
            const double at = d(root);
            if (std::isfinite(at) && std::fabs(at) <= 1e-3 * std::max(std::fabs(ds[i]), std::fabs(ds[i + 1])))
                r.crossings.push_back({Crossing::Kind::SignChange, root, root});
            else if (!r.jumpNear)
                r.jumpNear = root;
        } catch (const std::exception&) {
            if (!r.jumpNear)
                r.jumpNear = xs[i];
        }
    }

    if (!r.gaps.empty()) {
        r.why = words::curveGaps;
        return r;
    }
    if (r.jumpNear) {
        r.why = words::fill(words::jumps, {shownX(*r.jumpNear, width)});
        return r;
    }
    // The pieces between crossings, where f - g keeps its sign.
    std::vector<double> ends{a, b};
    for (const Crossing& c : r.crossings)
        for (double x : {c.x, c.to})
            if (a < x && x < b)
                ends.push_back(x);
    std::sort(ends.begin(), ends.end());
    ends.erase(std::unique(ends.begin(), ends.end()), ends.end());
    double signedArea = 0, unsignedArea = 0;
    const std::function<double(double)> integrand = d;
    constexpr unsigned kLevels = 10;
    for (std::size_t k = 0; k + 1 < ends.size(); ++k) {
        Convergence::Integral piece;
        try {
            // x = p + (q - p) s(t) with s(t) = t^2 (3 - 2t): s' vanishes at both ends, which smooths a
            // square root's end (sqrt x at 0) into what the rule integrates to full precision, and
            // leaves a smooth f - g smooth.
            const double p = ends[k], w = ends[k + 1] - ends[k];
            // At most 10 halvings a piece (62,000 values): a smooth piece needs a few; one that needs
            // more is not integrable to full precision here (sin(1/x) at 0), and a click stays short.
            piece = Convergence::gaussKronrod(
                [&](double t) { return d(p + w * (t * t * (3 - 2 * t))) * w * 6 * t * (1 - t); }, 0, 1, kLevels);
        } catch (const std::exception&) {
            piece.converged = false;
        }
        if (!piece.converged) {
            r.why = words::fill(words::unsettledIntegral, {shownX(ends[k], width), shownX(ends[k + 1], width)});
            return r;
        }
        signedArea += piece.value;
        unsignedArea += std::fabs(piece.value);
        r.accuracy += piece.error;
    }
    r.signedArea = signedArea;
    r.unsignedArea = unsignedArea;

    const StripRules::Function absolute = [&](double x) { return std::fabs(d(x)); };
    for (std::size_t m = 0; m < StripRules::kRules.size(); ++m) {
        const StripRules::Rule& rule = StripRules::kRules[m];
        if (rule.evenOnly && n % 2)
            continue;
        const double s = rule.apply(integrand, a, b, n), u = rule.apply(absolute, a, b, n);
        if (std::isfinite(s) && std::isfinite(u))
            r.sums[m] = {s, u};
    }
    return r;
}

}  // namespace AreaBetween
