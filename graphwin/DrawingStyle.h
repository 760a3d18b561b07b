// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// How the screens draw what is not a curve, named once: the axes and their ticks, and the
// constructions drawn over a curve (Newton's steps, secants and tangents, the endpoints of the mean
// value theorem, the marked points). Colours are classic colour numbers (QBColor); widths are drawing
// widths. A curve's own colour comes from its family, as each screen says.
#include <QRgb>

#include "graphwin/Controls.h"
#include "graphwin/DrawingSurface.h"
#include "runtime/QBColor.h"

namespace DrawingStyle {

inline constexpr int kAxes = 0;  // black, with their unit ticks
inline constexpr int kNewtonSteps = 0;  // black: the vertical to the curve and the tangent down to the axis
inline constexpr int kConstruction = 4;  // red: secant and tangent lines, the endpoints of a secant
inline constexpr int kFieldArrows = 1;  // blue: the slope field's arrows
inline constexpr int kTaylorFunction = 1;  // blue: f on the Taylor screen
inline constexpr int kTaylorPolynomial = 4;  // red: the Taylor polynomial of the degree shown
inline constexpr int kTaylorPrevious = 12;  // light red: the one a degree below, faint
inline constexpr int kTaylorBand = 10;  // light green: where |f - P_n| is below the tolerance, on the x axis
inline constexpr int kLimitsFunction = 1;  // blue: f on the limits screen, its dot and hole at a
inline constexpr int kLimitsEpsilonBand = 10;  // light green: the band L +- epsilon, shaded
inline constexpr int kLimitsEpsilonEdge = 2;  // green: its edges
inline constexpr int kLimitsDeltaBand = 11;  // light cyan: the band a +- delta, shaded
inline constexpr int kLimitsDeltaEdge = 3;  // cyan: its edges
inline constexpr int kLimitsLeave = 4;  // red: where the graph first leaves the band
inline constexpr int kAreaF = 1;  // blue: f on the area screen
inline constexpr int kAreaG = 4;  // red: g on the area screen
inline constexpr int kAreaFAbove = 11;  // light cyan: the strips where f is above g
inline constexpr int kAreaGAbove = 14;  // yellow: the strips where g is above f
inline constexpr int kAreaCrossing = 0;  // black: a crossing of f and g, marked
inline constexpr int kMarkWidth = 3;  // a point that marks a result (the MVT's c, the parametric trace)
inline constexpr double kEndpointRadius = 50;  // twips

inline QRgb colour(int number) { return rgbColor(rt::QBColor(number)); }

}  // namespace DrawingStyle

// Draws at `width` while it lives, then puts back the width there was, however the scope ends (a
// run-time error included).
class DrawWidthScope {
public:
    DrawWidthScope(DrawingSurface& surface, int width) : surface_(surface), before_(surface.drawWidth())
    {
        surface_.setDrawWidth(width);
    }
    ~DrawWidthScope() { surface_.setDrawWidth(before_); }
    DrawWidthScope(const DrawWidthScope&) = delete;
    DrawWidthScope& operator=(const DrawWidthScope&) = delete;

private:
    DrawingSurface& surface_;
    int before_;
};
