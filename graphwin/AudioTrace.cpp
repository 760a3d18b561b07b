// SPDX-License-Identifier: GPL-3.0-or-later
#include "graphwin/AudioTrace.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>

#include <boost/math/tools/minima.hpp>
#include <boost/math/tools/roots.hpp>

namespace audio {

std::vector<Tone> tones(const std::vector<Point>& points, const Range& range)
{
    std::vector<Tone> out;
    out.reserve(points.size());
    const double xspan = range.xmax - range.xmin, yspan = range.ymax - range.ymin;
    bool havePrevious = false;
    double previous = 0;
    for (const Point& p : points) {
        Tone t;
        t.pan = xspan > 0 ? std::clamp((p.x - range.xmin) / xspan, 0.0, 1.0) : 0.5;
        if (std::isfinite(p.y)) {
            const double level = yspan > 0 ? std::clamp((p.y - range.ymin) / yspan, 0.0, 1.0) : 0.5;
            t.frequency = kLowHz * std::pow(kHighHz / kLowHz, level);
            t.below = p.y < 0;
            t.click = havePrevious && ((previous < 0) != (p.y < 0));
            previous = p.y;
            havePrevious = true;
        } else {
            havePrevious = false;  // a gap: no crossing is heard across it
        }
        out.push_back(t);
    }
    return out;
}

std::vector<float> samples(const std::vector<Tone>& tones, double seconds, int rate)
{
    const long total = std::max(0L, std::lround(seconds * rate));
    std::vector<float> out(static_cast<std::size_t>(total) * 2, 0.0f);
    if (tones.empty() || total == 0)
        return out;
    const double twoPi = 2 * std::acos(-1.0);
    const long clickLength = std::max(1L, std::lround(0.006 * rate));
    double phase = 0;
    for (long i = 0; i < total; ++i) {
        const std::size_t k =
            std::min(tones.size() - 1, static_cast<std::size_t>(i * static_cast<long>(tones.size()) / total));
        const Tone& t = tones[k];
        const long start = static_cast<long>(k) * total / static_cast<long>(tones.size());
        double v = 0;
        if (t.frequency > 0) {
            phase = std::fmod(phase + twoPi * t.frequency / rate, twoPi);
            v = t.below ? 0.5 * (std::sin(phase) + std::sin(3 * phase) / 3 + std::sin(5 * phase) / 5)
                        : 0.5 * std::sin(phase);
        }
        if (t.click && i - start < clickLength)
            v += ((i - start) % 2 == 0 ? 0.8 : -0.8) * (1.0 - static_cast<double>(i - start) / clickLength);
        // Equal-power pan: the left ear at 0, the right at 1.
        const double angle = t.pan * twoPi / 4;
        out[2 * static_cast<std::size_t>(i)] = static_cast<float>(v * std::cos(angle));
        out[2 * static_cast<std::size_t>(i) + 1] = static_cast<float>(v * std::sin(angle));
    }
    return out;
}

namespace {

// Thrown by a function when it meets a gap inside an interval, which ends a search there.
struct Gap { };

// The root between two finite points of opposite signs, or where one of them is 0: by bisection to
// the precision of doubles when the curve's function is known, else where the chord crosses.
std::optional<double> rootBetween(const Point& a, const Point& b, const std::function<double(double)>& f)
{
    if (a.y == 0)
        return a.x;
    if (!f)
        return a.x + (b.x - a.x) * a.y / (a.y - b.y);
    const auto defined = [&f](double x) {
        const double y = f(x);
        if (!std::isfinite(y))
            throw Gap{};
        return y;
    };
    double x = 0;
    try {
        std::uintmax_t steps = 200;
        const auto [lo, hi] = boost::math::tools::bisect(defined, std::min(a.x, b.x), std::max(a.x, b.x),
                                                         boost::math::tools::eps_tolerance<double>(), steps);
        x = std::fabs(f(lo)) <= std::fabs(f(hi)) ? lo : hi;
    } catch (const Gap&) {
        return std::nullopt;  // a gap inside: not a crossing
    } catch (const std::exception&) {
        return std::nullopt;  // the ends do not bracket a root after all
    }
    // Across a pole the values grow towards the change of sign instead of shrinking.
    if (std::fabs(f(x)) > std::max(std::fabs(a.y), std::fabs(b.y)))
        return std::nullopt;
    return x;
}

// True where f stays within its neighbours' heights between a and b (below the higher for a
// minimum, above the lower for a maximum), as it does about a turn; across a pole it does not.
bool valley(const Point& a, const Point& b, bool maximum, const std::function<double(double)>& f)
{
    const double bound = maximum ? std::min(a.y, b.y) : std::max(a.y, b.y);
    for (int k = 1; k < 16; ++k) {
        const double y = f(a.x + (b.x - a.x) * k / 16);
        if (!std::isfinite(y) || (maximum ? y < bound : y > bound))
            return false;
    }
    return true;
}

// The turn of f between lo and hi by Brent's method; the drawn point if f has a gap there or the
// search ends no better than it.
Point refineTurn(double lo, double hi, bool maximum, const std::function<double(double)>& f, Point drawn)
{
    const double sign = maximum ? -1 : 1;  // search for the least of sign * f
    const auto height = [&](double x) {
        const double y = sign * f(x);
        return std::isfinite(y) ? y : std::numeric_limits<double>::infinity();
    };
    const auto [x, least] =
        boost::math::tools::brent_find_minima(height, lo, hi, std::numeric_limits<double>::digits / 2);
    if (!std::isfinite(least) || least > sign * drawn.y)
        return drawn;
    return {x, sign * least};
}

}  // namespace

std::optional<Feature> nearestFeature(const std::vector<Point>& points, std::size_t at,
                                      const std::function<double(double)>& f)
{
    std::optional<Feature> best;
    std::size_t bestDistance = std::numeric_limits<std::size_t>::max();
    const auto offer = [&](Feature::Kind kind, double x, double y, std::size_t index) {
        const std::size_t distance = index > at ? index - at : at - index;
        // Ties go to the kind listed first (a root before a turn before the y-axis).
        if (distance < bestDistance || (distance == bestDistance && best && kind < best->kind)) {
            best = Feature{kind, x, y, index};
            bestDistance = distance;
        }
    };
    const auto finite = [&](std::size_t i) { return std::isfinite(points[i].x) && std::isfinite(points[i].y); };
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (!finite(i))
            continue;
        const Point& a = points[i];
        if (a.y == 0)
            offer(Feature::Root, a.x, 0, i);
        if (a.x == 0)
            offer(Feature::YIntercept, 0, a.y, i);
        if (i + 1 == points.size() || !finite(i + 1))
            continue;
        const Point& b = points[i + 1];
        // A crossing between two points belongs to the nearer of them.
        const auto nearer = [&](double x) { return std::fabs(b.x - x) < std::fabs(a.x - x) ? i + 1 : i; };
        if (a.y != 0 && b.y != 0 && (a.y < 0) != (b.y < 0))
            if (const auto x = rootBetween(a, b, f))
                offer(Feature::Root, *x, 0, nearer(*x));
        if (a.x != 0 && b.x != 0 && (a.x < 0) != (b.x < 0)) {
            const double y = f ? f(0) : a.y + (b.y - a.y) * a.x / (a.x - b.x);
            if (std::isfinite(y))
                offer(Feature::YIntercept, 0, y, nearer(0));
        }
    }
    // Turns: where y stops rising and starts falling or the reverse, across any run of equal heights
    // (a turn that falls between two pixel columns draws two equal points).
    int direction = 0;  // of the last change of height: 1 up, -1 down, 0 none yet
    std::size_t level = 0;  // the first point at the present height
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (!finite(i) || !finite(i - 1)) {
            direction = 0;
            level = i;
            continue;
        }
        const double change = points[i].y - points[i - 1].y;
        if (change == 0)
            continue;
        const int now = change > 0 ? 1 : -1;
        if (direction != 0 && now != direction) {
            const bool maximum = direction > 0;
            const Point &before = points[level - 1], &after = points[i];
            const Point drawn = points[(level + i - 1) / 2];
            if (!f || valley(before, after, maximum, f)) {
                const Point turn = f ? refineTurn(before.x, after.x, maximum, f, drawn) : drawn;
                offer(maximum ? Feature::Maximum : Feature::Minimum, turn.x, turn.y, (level + i - 1) / 2);
            }
        }
        direction = now;
        level = i;
    }
    return best;
}

std::string spoken(double value, double resolution)
{
    if (!std::isfinite(value))
        return "undefined";
    const double magnitude = std::fabs(value);
    char text[64];
    if (magnitude >= 1e9 || (magnitude != 0 && magnitude < 1e-9)) {
        std::snprintf(text, sizeof text, "%.4g", value);
        return text;
    }
    int decimals = 2;
    if (std::isfinite(resolution) && resolution > 0)
        decimals = std::clamp(static_cast<int>(std::ceil(-std::log10(resolution))), 0, 9);
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    std::string s = text;
    if (s.find('.') != std::string::npos) {
        while (s.back() == '0')
            s.pop_back();
        if (s.back() == '.')
            s.pop_back();
    }
    if (s == "-0")
        s = "0";
    return s;
}

}  // namespace audio
