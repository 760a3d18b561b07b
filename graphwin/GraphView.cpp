// SPDX-License-Identifier: GPL-3.0-or-later
#include "graphwin/GraphView.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include <QtGlobal>

#include "graphwin/GraphWindow.h"
#include "runtime/Numbers.h"

namespace view {

namespace {

// The square's mapping keeps its origins as 32-bit twips: the origin of a window lies
// max|limit| / range * 6400 twips away, which must stay well inside that type.
constexpr double kFarthestOrigin = 1.5e9;
constexpr double kNarrowest = 1e-10;

bool mappable(double lo, double hi)
{
    const double range = hi - lo;
    return std::max(std::fabs(lo), std::fabs(hi)) / range * GraphWindow::Side < kFarthestOrigin;
}

double roundTo(double v, double step)
{
    if (std::fabs(v) < step / 2)
        return 0;
    const int decimals = static_cast<int>(std::ceil(-std::log10(step)));
    const int significant = std::clamp(static_cast<int>(std::floor(std::log10(std::fabs(v)))) + decimals + 1, 1, 17);
    char text[64];
    std::snprintf(text, sizeof text, "%.*e", significant - 1, v);
    return std::strtod(text, nullptr);
}

}  // namespace

std::optional<std::string> refusal(const Limits& l)
{
    if (!std::isfinite(l.xmin) || !std::isfinite(l.xmax) || !std::isfinite(l.ymin) || !std::isfinite(l.ymax) ||
        !(l.xmin < l.xmax) || !(l.ymin < l.ymax))
        return QT_TRANSLATE_NOOP("Plotto", "The window's limits are not numbers in order.");
    if (l.width() > kWidest || l.height() > kWidest)
        return QT_TRANSLATE_NOOP("Plotto",
                                 "Zoomed out as far as the graph goes: the window is at most 1E+12 wide and high.");
    if (l.width() < kNarrowest || l.height() < kNarrowest || !mappable(l.xmin, l.xmax) || !mappable(l.ymin, l.ymax))
        return QT_TRANSLATE_NOOP(
            "Plotto", "Zoomed in as far as the arithmetic can show: a closer window would draw rounding noise.");
    return std::nullopt;
}

Limits zoomAbout(const Limits& l, double x, double y, double factor)
{
    return {x - (x - l.xmin) / factor, x + (l.xmax - x) / factor, y - (y - l.ymin) / factor, y + (l.ymax - y) / factor};
}

Limits panBy(const Limits& l, double dx, double dy) { return {l.xmin + dx, l.xmax + dx, l.ymin + dy, l.ymax + dy}; }

Limits boxBetween(double x1, double y1, double x2, double y2)
{
    return {std::min(x1, x2), std::max(x1, x2), std::min(y1, y2), std::max(y1, y2)};
}

double wheelFactor(int angleDelta) { return std::pow(1.25, angleDelta / 120.0); }

Limits readable(const Limits& l, double pixels)
{
    const double xStep = l.width() / pixels / 10, yStep = l.height() / pixels / 10;
    return {roundTo(l.xmin, xStep), roundTo(l.xmax, xStep), roundTo(l.ymin, yStep), roundTo(l.ymax, yStep)};
}

std::string boxText(double value) { return rt::CStr(value); }

void History::reset(const Limits& original)
{
    original_ = current_ = original;
    back_.clear();
    forward_.clear();
}

void History::moveTo(const Limits& now)
{
    if (now == current_)
        return;
    back_.push_back(current_);
    if (back_.size() > kDepth)
        back_.erase(back_.begin());
    forward_.clear();
    current_ = now;
}

std::optional<Limits> History::step(std::vector<Limits>& from, std::vector<Limits>& to)
{
    if (from.empty())
        return std::nullopt;
    to.push_back(current_);
    current_ = from.back();
    from.pop_back();
    return current_;
}

std::optional<Limits> History::back() { return step(back_, forward_); }
std::optional<Limits> History::forward() { return step(forward_, back_); }

}  // namespace view
