// SPDX-License-Identifier: GPL-3.0-or-later
// The numerical limit and the largest delta (see EpsilonDelta.h). Both only sample f: a side settles
// when its last values agree, and a band is left where a sample (or a refinement between samples)
// lands outside it. Points where f is undefined are not in its domain and are skipped.
#include "funclib/EpsilonDelta.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstdio>

#include "funclib/Words.h"

namespace limits {

namespace words = FuncGlobals::words;

namespace {

constexpr int kTail = 8;  // the last values of a side, looked at for growth without bound
constexpr int kSettled = 6;  // how many successive values must agree for the side to settle
constexpr double kInfinite = 1e6;  // a side growing past this, steadily, tends to infinity
constexpr int kCluster = 32;  // samples in [floor, 2 floor]: any of them outside means no delta
constexpr int kPerOctave = 64;  // samples between t and 2t
constexpr int kUniform = 4096;  // samples evenly over the side of the window
constexpr int kSplit = 16;  // a bracket is cut into this many pieces at each refinement

std::string fixed(const char* format, double v)
{
    char text[64];
    std::snprintf(text, sizeof text, format, v);
    return text;
}

// `v` rounded to the power of ten at or above `step` (exact for the decimals a person types).
double roundTo(double v, double step)
{
    const double e = std::ceil(std::log10(step));
    const double r = e < 0 ? std::round(v * std::pow(10.0, -e)) / std::pow(10.0, -e)
                           : std::round(v / std::pow(10.0, e)) * std::pow(10.0, e);
    return r == 0 ? 0.0 : r;  // no -0
}

Side sideOf(const Values& f, double a, int direction)
{
    const double scale = std::max(1.0, std::fabs(a));
    std::vector<double> xs;
    for (int k = 1; k <= kSteps; ++k)
        xs.push_back(a + direction * std::ldexp(scale, -k));
    const std::vector<double> ys = f(xs);
    Side s;
    if (std::all_of(ys.begin(), ys.end(), [](double y) { return std::isnan(y); }))
        return s;  // Undefined
    s.kind = Side::Kind::Unsettled;
    const auto tail = ys.end() - kTail;
    bool growing = std::none_of(tail, ys.end(), [](double y) { return std::isnan(y); });
    for (auto y = tail; growing && y + 1 != ys.end(); ++y)
        growing = std::fabs(y[1]) > std::fabs(y[0]) && (y[1] > 0) == (y[0] > 0);
    if (growing && std::fabs(ys.back()) >= kInfinite) {
        s.kind = ys.back() > 0 ? Side::Kind::PlusInfinity : Side::Kind::MinusInfinity;
        return s;
    }
    // The first run of kSettled values that agree: further in, rounding in f can outweigh the change
    // from one h to the next (1 - cos h is 0 in doubles once h is below 1e-8), so the first agreement
    // is the one trusted.
    for (auto run = ys.begin(); run + kSettled <= ys.end(); ++run) {
        const double last = run[kSettled - 1];
        const double tolerance = kSettleTolerance * std::max(1.0, std::fabs(last));
        if (!std::all_of(run, run + kSettled, [&](double y) { return std::fabs(y - last) <= tolerance; }))
            continue;
        // The run goes on while neighbours agree better and better (until rounding in f takes over);
        // its best pair is extrapolated as if the error shrank with h (it halves with h for a function
        // with a slope at a) and rounded to the digits the pair agrees on.
        auto end = run + kSettled;
        while (end != ys.end() && std::fabs(end[0] - end[-1]) < std::fabs(end[-1] - end[-2]))
            ++end;
        double best = INFINITY, value = last;
        for (auto y = run + 1; y != end; ++y)
            if (const double d = std::fabs(y[0] - y[-1]); d < best) {
                best = d;
                value = 2 * y[0] - y[-1];
            }
        s.kind = Side::Kind::Settles;
        s.spread = best;
        s.value = roundTo(value, std::max(10 * best, 1e-12 * std::max(1.0, std::fabs(value))));
        return s;
    }
    return s;
}

// What one side does, as a clause; `toOnly` drops "tends" where the sentence has said it already.
std::string phrase(const Side& s, bool toOnly = false)
{
    if (toOnly)
        switch (s.kind) {
        case Side::Kind::Settles: return words::fill(words::to, {shown(s.value)});
        case Side::Kind::PlusInfinity: return words::toInfinity;
        case Side::Kind::MinusInfinity: return words::toMinusInfinity;
        default: break;
        }
    switch (s.kind) {
    case Side::Kind::Settles: return words::fill(words::tendsTo, {shown(s.value)});
    case Side::Kind::PlusInfinity: return words::tendsToInfinity;
    case Side::Kind::MinusInfinity: return words::tendsToMinusInfinity;
    case Side::Kind::Unsettled: return words::unsettled;
    case Side::Kind::Undefined: break;
    }
    return words::undefinedSide;
}

// What one side of a holds for the band.
struct SideSearch {
    bool defined = false;  // f is defined somewhere on it
    bool gaps = false;  // and undefined somewhere else
    bool noDelta = false;
    bool edge = false;
    double delta = 0, leaveT = 0, leaveY = 0;  // (closest point outside, for noDelta)
};

std::vector<double> offsets(double floor, double width)
{
    std::vector<double> t;
    for (int i = 0; i < kCluster; ++i)
        t.push_back(floor * (1 + static_cast<double>(i) / kCluster));
    for (double from = 2 * floor; from < width; from *= 2)
        for (int i = 0; i < kPerOctave; ++i)
            t.push_back(from * (1 + static_cast<double>(i) / kPerOctave));
    for (int i = 1; i <= kUniform; ++i)
        t.push_back(width * i / kUniform);
    std::sort(t.begin(), t.end());
    t.erase(std::unique(t.begin(), t.end()), t.end());
    t.erase(std::upper_bound(t.begin(), t.end(), width), t.end());
    return t;
}

SideSearch searchSide(const Values& f, double a, double L, double eps, int direction, double width)
{
    const double floor = kFloor * std::max(1.0, std::fabs(a));
    const std::vector<double> t = offsets(floor, width);
    std::vector<double> xs(t.size());
    for (std::size_t i = 0; i < t.size(); ++i)
        xs[i] = a + direction * t[i];
    const std::vector<double> ys = f(xs);
    const auto outside = [&](double y) { return std::isfinite(y) && std::fabs(y - L) >= eps; };
    SideSearch s;
    s.defined = std::any_of(ys.begin(), ys.end(), [](double y) { return !std::isnan(y); });
    s.gaps = s.defined && std::any_of(ys.begin(), ys.end(), [](double y) { return std::isnan(y); });
    const auto first = std::find_if(ys.begin(), ys.end(), outside);
    if (first == ys.end()) {
        s.edge = true;
        s.delta = width;
        return s;
    }
    std::size_t j = static_cast<std::size_t>(first - ys.begin());
    if (t[j] < 2 * floor) {
        s.noDelta = true;
        s.leaveT = t[j];
        s.leaveY = ys[j];
        return s;
    }
    // Between the last sample inside and the first outside: cut the bracket into pieces, keep the
    // first piece whose end is outside, until it is as narrow as the precision asked for.
    double lo = t[j - 1], hi = t[j], hiY = ys[j];
    for (int round = 0; round < 64; ++round) {
        if (hi - lo <= std::max(kRelative * hi, 8 * DBL_EPSILON * (std::fabs(a) + hi)))
            break;
        std::vector<double> pieces(kSplit - 1), at(kSplit - 1);
        for (int k = 1; k < kSplit; ++k) {
            pieces[k - 1] = lo + (hi - lo) * k / kSplit;
            at[k - 1] = a + direction * pieces[k - 1];
        }
        const std::vector<double> py = f(at);
        const auto out = std::find_if(py.begin(), py.end(), outside);
        if (out == py.end()) {
            lo = pieces.back();
            continue;
        }
        const std::size_t k = static_cast<std::size_t>(out - py.begin());
        hi = pieces[k];
        hiY = py[k];
        if (k > 0)
            lo = pieces[k - 1];
    }
    s.delta = lo;
    s.leaveT = hi;
    s.leaveY = hiY;
    return s;
}

}  // namespace

std::string shown(double v) { return std::isfinite(v) ? fixed("%.10g", v == 0 ? 0.0 : v) : std::string("--"); }

LimitEstimate estimateLimit(const Values& f, double a)
{
    LimitEstimate e;
    if (!std::isfinite(a)) {
        e.words = words::aNumber;
        return e;
    }
    e.left = sideOf(f, a, -1);
    e.right = sideOf(f, a, 1);
    using K = Side::Kind;
    const bool leftOk = e.left.kind == K::Settles, rightOk = e.right.kind == K::Settles;
    if (leftOk && rightOk) {
        const double l = e.left.value, r = e.right.value;
        if (std::fabs(l - r) <= kSettleTolerance * std::max({1.0, std::fabs(l), std::fabs(r)})) {
            e.exists = true;
            e.limit = e.left.spread >= e.right.spread ? l : r;
            e.words = words::fill(words::bothSides, {shown(e.limit), shown(a), fixed("%.2g", std::ldexp(1.0, -kSteps)),
                                                     fixed("%.0e", kSettleTolerance)});
            return e;
        }
    }
    if ((leftOk && e.right.kind == K::Undefined) || (rightOk && e.left.kind == K::Undefined)) {
        const bool right = rightOk;
        e.exists = true;
        e.limit = right ? e.right.value : e.left.value;
        e.words = words::fill(right ? words::onlyRight : words::onlyLeft, {shown(e.limit), shown(a)});
        return e;
    }
    if (e.left.kind == K::Undefined && e.right.kind == K::Undefined) {
        e.words = words::fill(words::noLimitUndefined, {shown(a)});
        return e;
    }
    const bool leftTends = leftOk || e.left.kind == K::PlusInfinity || e.left.kind == K::MinusInfinity;
    e.words = words::fill(words::sidesDiffer, {phrase(e.left), phrase(e.right, leftTends), shown(a)});
    return e;
}

DeltaSearch largestDelta(const Values& f, double a, double L, double eps, double xmin, double xmax)
{
    DeltaSearch d;
    const double floor = kFloor * std::max(1.0, std::fabs(a));
    if (!std::isfinite(eps) || eps <= 0) {
        d.words = words::epsilonPositive;
        return d;
    }
    if (!std::isfinite(a) || !std::isfinite(L)) {
        d.words = words::aAndL;
        return d;
    }
    if (!(xmin + 1000 * floor < a && a < xmax - 1000 * floor)) {
        d.words = words::fill(words::outsideWindow, {shown(a), shown(xmin), shown(xmax)});
        return d;
    }
    if (eps < kSmallestEpsilon * std::max(1.0, std::fabs(L))) {
        d.words = words::fill(words::belowRounding,
                              {shown(eps), shown(L), fixed("%.0e", kSmallestEpsilon * std::max(1.0, std::fabs(L)))});
        return d;
    }
    const SideSearch left = searchSide(f, a, L, eps, -1, a - xmin), right = searchSide(f, a, L, eps, 1, xmax - a);
    d.undefinedSides = !left.defined + !right.defined;
    if (d.undefinedSides == 2) {
        d.words = words::fill(words::noDeltaUndefined, {shown(a)});
        return d;
    }
    if (left.noDelta || right.noDelta) {
        const SideSearch& s = right.noDelta ? right : left;
        d.outcome = DeltaSearch::Outcome::NoDelta;
        d.closeX = a + (right.noDelta ? 1 : -1) * s.leaveT;
        d.closeY = s.leaveY;
        d.words = words::fill(words::noDelta, {shown(eps), fixed("%.15g", d.closeX), shown(std::fabs(s.leaveY - L))});
        return d;
    }
    // A side where f is nowhere defined puts no bound on delta.
    const double leftDelta = left.defined ? left.delta : INFINITY, rightDelta = right.defined ? right.delta : INFINITY;
    const bool onRight = rightDelta <= leftDelta;
    const SideSearch& s = onRight ? right : left;
    d.outcome = DeltaSearch::Outcome::Found;
    d.delta = s.delta;
    d.reachesEdge = s.edge;
    if (s.edge) {
        d.words = words::fill(words::edgeDelta, {shown(eps), shown(d.delta)});
    } else {
        d.leaveX = a + (onRight ? 1 : -1) * s.leaveT;
        d.leaveY = s.leaveY;
        d.words = words::fill(words::largestDelta, {shown(eps), shown(d.delta), shown(d.leaveX), shown(d.leaveY)});
    }
    if (d.undefinedSides == 1)
        d.words = words::fill(left.defined ? words::onlyLeftCounts : words::onlyRightCounts, {d.words});
    else if (left.gaps || right.gaps)
        d.words = words::fill(words::gapsDoNotCount, {d.words});
    return d;
}

}  // namespace limits
