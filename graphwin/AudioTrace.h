// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The sound of a curve, for students who cannot see it: the curve is played from the left edge of
// the window to the right over a few seconds, the pitch rising with y over the window's y range, the
// sound moving from the left ear to the right with x, a different timbre below y = 0, a short click
// where the curve crosses the x-axis, and silence where the function is undefined. The samples are
// made here from the curve's points, apart from any sound device, so that tests can inspect them.
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace audio {

// One point of the curve as drawn: NaN y where it is undefined.
struct Point {
    double x = 0, y = 0;
};

// What one point sounds like.
struct Tone {
    double frequency = 0;  // Hz; 0 where the curve is silent
    double pan = 0;  // 0 the left ear, 1 the right
    bool below = false;  // y below 0: the lower timbre
    bool click = false;  // the curve crossed the x-axis since the point before
};

struct Range {
    double xmin = -10, xmax = 10, ymin = -10, ymax = 10;
};

// The lowest and highest pitches: two octaves from A3 to A5.
inline constexpr double kLowHz = 220, kHighHz = 880;

// The tones of the points, in order: pitch by y on a logarithmic scale over the y range (clamped
// to it), pan by x over the x range.
std::vector<Tone> tones(const std::vector<Point>& points, const Range& range);

// Interleaved stereo samples (left, right) at `rate` per second, `seconds` long in all, each tone
// given an equal share: a sine above the axis, a sine with odd harmonics (a reedier sound) below
// it, a 6 ms click at a crossing, phase kept from tone to tone so that a rising curve glides.
std::vector<float> samples(const std::vector<Tone>& tones, double seconds, int rate);

// What the exploration key finds near a point of a curve: where it crosses the x-axis, where y turns
// (a local minimum or maximum) or where it crosses the y-axis.
struct Feature {
    enum Kind { Root, Minimum, Maximum, YIntercept } kind = Root;
    double x = 0, y = 0;
    std::size_t index = 0;  // the drawn point at or just before it
};

// The feature of `points` nearest to point `at` (counted in points along the curve), found on the
// drawn points: a root where y changes sign between neighbours (or is 0), a turn where y stops rising
// or falling, the y-axis where x changes sign. With `f` (the curve's y at x, NaN where undefined) a
// root is refined to the precision of doubles by bisection, and a change of sign across a pole (where
// |f| grows instead of shrinking) is no root. Nothing where the curve has no feature.
std::optional<Feature> nearestFeature(const std::vector<Point>& points, std::size_t at,
                                      const std::function<double(double)>& f = {});

// A coordinate as the exploration says it: as many decimals as one step of `resolution` (the world
// size of a pixel) can tell apart, trailing zeros dropped, never "-0".
std::string spoken(double value, double resolution);

}  // namespace audio
