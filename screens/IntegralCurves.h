// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Following the slope field from a point, apart from any window: one step of the smooth curve or of
// an approximation method, and the continuation loop that hands each segment it keeps to a sink.
#include <cstdint>

#include "funclib/FuncGlobals.h"
#include "funclib/FunctionSource.h"
#include "funclib/StepMethods.h"
#include "runtime/Numbers.h"

namespace IntegralCurves {

// What the screen's boxes and options say; read once per curve, since nothing can change them while
// a curve is followed.
struct Settings {
    bool smooth = true;  // follow the field's direction with steps of length h (else step h in x)
    const StepMethods::Method* method = &StepMethods::byKey("euler");  // the approximation's method
    double xmin = -10, xmax = 10, ymin = -10, ymax = 10;
    double points = 500;  // the most segments of a curve
};

struct Step {
    double dx = 0, dy = 0;
    bool vertical = false;  // an approximation met dx = 0 and must stop
};

// One step from (x, y) with step h.
inline Step step(const Settings& s, double x, double y, double h)
{
    using rt::Chk;
    Step st;
    if (s.smooth) {
        const double p = FuncGlobals::RateDx(x, y), q = FuncGlobals::RateDy(x, y);
        const double m = rt::Pow(Chk(rt::Pow(p, 2) + rt::Pow(q, 2)), 0.5);
        if (m != 0) {
            st.dx = Chk(rt::Div(p, m) * h);
            st.dy = Chk(rt::Div(q, m) * h);
        }
        return st;
    }
    const double p = FuncGlobals::RateDx(x, y);
    if (p == 0) {
        st.vertical = true;
        return st;
    }
    st.dx = h;
    // With typed rates a stage without a finite increment gives NaN, which the caller's checked
    // sum turns into the Overflow that the checked arithmetic of the families raises.
    st.dy = StepMethods::step(*s.method, x, y, h, p);
    return st;
}

// Continues a curve from (x, y), advancing them in place, while the point stays inside the window
// (the backward curve's test on y includes the edges) and fewer than `points` segments are drawn.
// A segment is handed to `segment(x, y, x2, y2)` only when its end lies between ymin and ymax.
// Returns false when an approximation stopped at a vertical slope.
template <class Segment>
bool follow(const Settings& s, double h, bool backward, double& x, double& y, std::int16_t& counter, Segment&& segment)
{
    for (;;) {
        const bool insideY = backward ? (s.ymin <= y && y <= s.ymax) : (s.ymin < y && y < s.ymax);
        if (!(s.xmin < x && x < s.xmax && insideY && counter < s.points))
            return true;
        counter = rt::CInt(counter + 1.0);
        const Step st = step(s, x, y, h);
        if (!s.smooth && st.vertical)
            return false;
        const double nx = rt::Chk(x + st.dx), ny = rt::Chk(y + st.dy);
        if (s.ymin <= ny && ny <= s.ymax)
            segment(x, y, nx, ny);
        x = nx;
        y = ny;
    }
}

}  // namespace IntegralCurves
