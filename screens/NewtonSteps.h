// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Newton's steps apart from any window: how far apart the last guesses are, and the window that
// frames the last steps (at the default window every later step lies on top of the root).
#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>
#include <vector>

#include "graphwin/GraphView.h"

namespace newton {

// How many of the last guesses the zoom frames: the last two steps.
inline constexpr std::size_t kFramedGuesses = 3;

// The distance between the last two guesses, or nothing with fewer than two.
inline std::optional<double> lastGap(const std::vector<double>& guesses)
{
    if (guesses.size() < 2)
        return std::nullopt;
    return std::fabs(guesses.back() - guesses[guesses.size() - 2]);
}

// The window around the last steps: the last kFramedGuesses guesses, the curve's values there and the
// x-axis, with a tenth of each side's span to spare. Values that do not exist (NaN) are left out.
inline std::optional<view::Limits> stepsWindow(const std::vector<double>& guesses,
                                               const std::function<double(double)>& value)
{
    if (guesses.size() < 2)
        return std::nullopt;
    view::Limits box{guesses.back(), guesses.back(), 0, 0};
    for (std::size_t i = guesses.size() - std::min(guesses.size(), kFramedGuesses); i < guesses.size(); ++i) {
        box.xmin = std::min(box.xmin, guesses[i]);
        box.xmax = std::max(box.xmax, guesses[i]);
        if (const double y = value(guesses[i]); std::isfinite(y)) {
            box.ymin = std::min(box.ymin, y);
            box.ymax = std::max(box.ymax, y);
        }
    }
    const double dx = box.width() / 10, dy = box.height() / 10;
    return view::Limits{box.xmin - dx, box.xmax + dx, box.ymin - dy, box.ymax + dy};
}

}  // namespace newton
