// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The area between two curves f and g on [a, b], apart from any window: where f and g are undefined
// (the gaps), where they cross (sign changes of f - g bracketed on a scan of kScan strips and solved
// to the last bit by TOMS 748; values equal at a scanned point; touching points without a sign
// change found as minima of |f - g| by Brent's method), the signed area of f - g and the unsigned
// area of |f - g| by adaptive Gauss-Kronrod split at the crossings, and the five strip rules of
// screens/StripRules.h over n strips for both. Nothing here raises: a curve undefined somewhere, or
// f - g unbounded, leaves no area and says why.
#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace AreaBetween {

// A curve's values at many x at once, NaN where it is undefined.
using Values = std::function<std::vector<double>(const std::vector<double>&)>;

// The scan that finds gaps, crossings and touching points: kScan strips of [a, b].
constexpr int kScan = 2000;
// The most strips the sums take.
constexpr std::int32_t kMaxStrips = 32000;

struct Crossing {
    enum class Kind {
        Sampled,  // f = g exactly at a scanned point
        SignChange,  // f - g changes sign between two scanned points: solved by TOMS 748
        Touch,  // f - g comes to 0 without changing sign: a minimum of |f - g| by Brent's method
        Stretch,  // f = g at consecutive scanned points, from x to `to`
    };
    Kind kind = Kind::Sampled;
    double x = 0, to = 0;
    // "x = 0.7853981634 (sign change, TOMS 748)".
    std::string text() const;
};

// Where a curve (0: f, 1: g) is undefined: from x = from to x = to (equal for a single point), the
// ends refined by bisection between a scanned point where it is defined and one where it is not.
struct Gap {
    int curve = 0;
    double from = 0, to = 0;
};

struct RuleSums {
    std::optional<double> signedSum, unsignedSum;  // none for Simpson with n odd, or where there is no area
};

struct Result {
    std::vector<Crossing> crossings;
    std::vector<Gap> gaps;
    // f - g changes sign between two scanned points without crossing 0 (a pole or a jump) near here.
    std::optional<double> jumpNear;
    // The areas, when f and g are defined on all of [a, b] and f - g is integrable there.
    std::optional<double> signedArea, unsignedArea;
    double accuracy = 0;  // the Gauss-Kronrod error estimates, summed over the pieces
    // Why there is no area (empty when there is one): in words, for the screen to show.
    std::string why;
    std::array<RuleSums, 5> sums;  // in the order of StripRules::kRules
    std::int32_t strips = 0;
};

// Everything above for f and g on [a, b] (a < b, both finite) with n strips (1 to kMaxStrips).
Result compute(const Values& f, const Values& g, double a, double b, std::int32_t n);

// A number as the screen writes an x: ten significant digits, and 0 for what is 0 to within
// a millionth of a millionth of `scale` (the interval's width).
std::string shownX(double x, double scale = 0);

}  // namespace AreaBetween
