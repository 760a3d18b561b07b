// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The window a graph shows as the hand moves it: zooming about a point, panning, zooming to a box,
// the limits written for reading, how far the arithmetic lets a window shrink or grow, and the
// history of windows shown (Back, Forward, the original). Plain values, no widgets: the screen
// applies a window it is handed.
#include <optional>
#include <string>
#include <vector>

namespace view {

struct Limits {
    double xmin = -10, xmax = 10, ymin = -10, ymax = 10;
    double width() const { return xmax - xmin; }
    double height() const { return ymax - ymin; }
    bool operator==(const Limits&) const = default;
};

// Why a window cannot be shown, in words, or nothing when it can: its limits must be finite and
// ordered, no wider than kWidest, and no narrower than the doubles can tell apart across the
// square's pixels (about a millionth of a millionth of the numbers it shows). The words are English,
// marked for translation; the screen shows them translated.
std::optional<std::string> refusal(const Limits& limits);
inline constexpr double kWidest = 1e12;

// The window zoomed by `factor` (2 shows half the width and height) about the world point (x, y),
// which stays where it is on the square.
Limits zoomAbout(const Limits& limits, double x, double y, double factor);
// The window moved by (dx, dy) in world units.
Limits panBy(const Limits& limits, double dx, double dy);
// The window spanning the box between two world corners (in any order).
Limits boxBetween(double x1, double y1, double x2, double y2);
// The zoom factor of one notch of a mouse wheel (120 eighths of a degree): 1.25 in, its inverse out.
double wheelFactor(int angleDelta);

// The limits rounded to the fewest decimals that keep every limit within a tenth of a pixel of
// where it was (a square `pixels` wide), so that the boxes read well and every handler that reads
// them back draws in the same place.
Limits readable(const Limits& limits, double pixels);
// A limit as its box shows it: the plain conversion of the number, as the program writes a box.
std::string boxText(double value);

// The windows shown: the original (before the first zoom), and the way back and forward.
class History {
public:
    // Starts afresh from `original` (a person typed new limits, or the screen reset them).
    void reset(const Limits& original);
    // Notes that `now` replaced `current()`; the way forward is forgotten.
    void moveTo(const Limits& now);
    const Limits& current() const { return current_; }
    const Limits& original() const { return original_; }
    bool canGoBack() const { return !back_.empty(); }
    bool canGoForward() const { return !forward_.empty(); }
    // The window before (after) the current one, which becomes current; nothing at the end.
    std::optional<Limits> back();
    std::optional<Limits> forward();
    static constexpr std::size_t kDepth = 100;

private:
    // Moves one window from the end of `from` to current, the current one onto `to`.
    std::optional<Limits> step(std::vector<Limits>& from, std::vector<Limits>& to);
    Limits original_, current_;
    std::vector<Limits> back_, forward_;
};

}  // namespace view
