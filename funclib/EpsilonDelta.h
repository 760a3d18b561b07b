// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The limit of f at a by epsilon and delta, numerically: an estimate of each one-sided limit from the
// values at a +- h for h halving, and for a proposed limit L and an epsilon the largest delta such that
// every x of the window with 0 < |x - a| < delta has |f(x) - L| < epsilon (or the finding that points
// as close to a as the search looks leave the band). Both are numerical searches over samples, said
// so in their words. Window-free: the limits screen draws and lists what these find.
#include <functional>
#include <string>
#include <vector>

namespace limits {

// f at many x at once: NaN where f is undefined (those x are not in its domain and are left out).
using Values = std::function<std::vector<double>(const std::vector<double>& xs)>;

// One side of a, as x = a +- h with h = max(1, |a|) / 2^k, k = 1 to kSteps.
struct Side {
    enum class Kind { Settles, PlusInfinity, MinusInfinity, Undefined, Unsettled };
    Kind kind = Kind::Undefined;
    double value = 0;  // Settles: the value it tends to, rounded to the digits the values agree on
    double spread = 0;  // Settles: the last difference kept (how far the estimate can be trusted)
};

struct LimitEstimate {
    Side left, right;
    bool exists = false;  // both sides settle on the same value (or one side is undefined)
    double limit = 0;  // the estimate, when it exists
    std::string words;  // one sentence saying what was found
};

inline constexpr int kSteps = 40;
// Two sides agree, and a side settles, when its last values differ by less than this, relative to
// max(1, |value|).
inline constexpr double kSettleTolerance = 1e-5;

LimitEstimate estimateLimit(const Values& f, double a);

struct DeltaSearch {
    enum class Outcome { Found, NoDelta, Refused };
    Outcome outcome = Outcome::Refused;
    double delta = 0;  // Found: the largest delta (to kRelative), or the distance to the window's edge
    bool reachesEdge = false;  // Found: no sampled point of the window leaves the band
    double leaveX = 0, leaveY = 0;  // Found, not at the edge: the point just beyond delta that leaves it
    double closeX = 0, closeY = 0;  // NoDelta: a point as close to a as the search looks, outside the band
    int undefinedSides = 0;  // how many sides of a hold no point where f is defined
    std::string words;
};

// delta is found to this relative precision (or to a few units in the last place of x).
inline constexpr double kRelative = 1e-12;
// The search looks as close to a as kFloor * max(1, |a|): a band left there is left arbitrarily close.
inline constexpr double kFloor = 1e-13;
// An epsilon below this, relative to max(1, |L|), is lost in the rounding of f's values.
inline constexpr double kSmallestEpsilon = 1e-9;

// The largest delta for the band L +- eps about a, over the window xmin < x < xmax.
DeltaSearch largestDelta(const Values& f, double a, double L, double eps, double xmin, double xmax);

// A number as the words and the table show it (up to ten significant digits).
std::string shown(double v);

}  // namespace limits
