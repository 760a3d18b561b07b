// SPDX-License-Identifier: GPL-3.0-or-later
// What the slope-field screen draws on its graph: the field's arrows, and the integral curves and
// approximations started by a press, each a kept step that a new window draws again.
#include <algorithm>
#include <cmath>

#include "funclib/FuncGlobals.h"
#include "funclib/FunctionSource.h"
#include "funclib/StepMethods.h"
#include "graphwin/DrawingStyle.h"
#include "graphwin/Language.h"
#include "runtime/Numbers.h"
#include "runtime/QBColor.h"
#include "runtime/VectorState.h"
#include "screens/frmFlowField.h"

namespace {

// What the end point label says when typed rates stop a curve.
QString curveStopped() { return Plotto::tr("EndPt: the curve stops where dy/dx is undefined"); }

}  // namespace

void frmFlowField::cmdShowFlow_Click()
{
    // Kept: a new window draws its own grid of arrows, read from its limit boxes.
    typedGuard(
        [this] {
            keepDrawing(
                Plotto::tr("the slope field"), [this] { fieldArrows(); }, typedRates_);
        },
        [](const rt::RuntimeError&) {});
}

void frmFlowField::fieldArrows()
{
    using rt::Chk;
    const double xmin = txtXmin->value(), xmax = txtXmax->value();
    const double ymin = txtYmin->value(), ymax = txtYmax->value();
    const double W = Chk(xmax - xmin), H = Chk(ymax - ymin);
    const double sx = W / 20, sy = H / 20;
    // A counted loop on a double, end included. A step of 0 (equal limits) or one too small to move
    // the counter would never reach the end: nothing more is drawn then.
    auto counted = [](double from, double to, double step, auto&& body) {
        if (step == 0)
            return;
        for (double v = from; step > 0 ? v <= to : v >= to;) {
            body(v);
            const double next = Chk(v + step);
            if (next == v)
                return;
            v = next;
        }
    };
    DrawingSurface::Batch arrows(*surface, DrawingStyle::colour(DrawingStyle::kFieldArrows));
    rt::cleanVectorStateForHotLoop();
    counted(Chk(xmin + sx), Chk(xmax - sx), sx, [&](double x) {
        counted(Chk(ymin + sy), Chk(ymax - sy), sy, [&](double y) {
            const double p = FuncGlobals::RateDx(x, y), q = FuncGlobals::RateDy(x, y);
            if (std::isnan(p) || std::isnan(q))  // typed rates undefined here: no arrow
                return;
            const double m = rt::Pow(Chk(rt::Pow(p, 2) + rt::Pow(q, 2)), 0.5);
            if (m == 0)
                return;
            const double u = Chk(rt::Div(p, m) * W) / 40, v = Chk(rt::Div(q, m) * H) / 40;
            arrows.line(graph.column(x), graph.row(y), graph.column(Chk(x + u)), graph.row(Chk(y + v)));
        });
    });
}

const std::array<frmFlowField::MethodOption, 3> frmFlowField::kMethodOptions{{
    {&frmFlowField::optEuler, "euler", 2},
    {&frmFlowField::optRunga2, "rk2", 3},
    {&frmFlowField::optRunga4, "rk4", 4},
}};

const frmFlowField::MethodOption& frmFlowField::checkedMethod() const
{
    for (const MethodOption& o : kMethodOptions)
        if ((this->*o.option)->isChecked())
            return o;
    return kMethodOptions.back();
}

IntegralCurves::Settings frmFlowField::settings() const
{
    IntegralCurves::Settings s;
    s.smooth = optCurve->isChecked();
    s.method = &StepMethods::byKey(checkedMethod().method);
    s.xmin = txtXmin->value();
    s.xmax = txtXmax->value();
    s.ymin = txtYmin->value();
    s.ymax = txtYmax->value();
    s.points = txtCurvePoints->value();
    return s;
}

bool frmFlowField::insideGraph(double X, double Y) const { return graph.strictlyInside(X, Y); }

void frmFlowField::Form_MouseDown(int Button, int, double X, double Y)
{
    curvePoints_.clear();
    typedGuard([&] { startCurve(Button, X, Y); },
               [this](const rt::RuntimeError&) { lblEndpt->setText(curveStopped()); });
    curvePoints_.clear();
}

void frmFlowField::noteCurve(int Button)
{
    if (curvePoints_.size() < 2)
        return;
    // Heard and walked from its left end, whichever way it was followed.
    const audio::Point from = curvePoints_.front();
    if (Button == RightButton)
        std::reverse(curvePoints_.begin(), curvePoints_.end());
    const auto at = [](double v) { return shownStr(rt::Int(v * 1000 + 0.5) / 1000); };
    noteTraced(drawnCurve(Plotto::tr("the curve from (%1,%2)").arg(at(from.x), at(from.y)), std::move(curvePoints_)));
    curvePoints_.clear();
}

void frmFlowField::startCurve(int Button, double X, double Y)
{
    using rt::Chk;
    StepH = txtDelta->value();
    if (Button != LeftButton && Button != RightButton)
        return;
    const double delta = StepH;
    if (Button == RightButton)
        StepH = -StepH;
    const bool inside = insideGraph(X, Y);
    if (inside) {
        const double W = Chk(txtXmax->value() - txtXmin->value()), H = Chk(txtYmax->value() - txtYmin->value());
        // The world point from the limit boxes' ranges (not the mapping's): the digits of the end
        // point depend on this order of operations.
        CurrentX = Chk(Chk(X - graph.XOrigin) * W) / GraphWindow::Side;
        CurrentY = Chk(Chk(graph.YOrigin - Y) * H) / GraphWindow::Side;
    }
    // The curve is a kept step from its world start point: a new window follows it again with the
    // same step, method and colour, within that window's limits.
    auto run = std::make_shared<CurveRun>(CurveRun{Button, inside, CurrentX, CurrentY, StepH, delta, MethodColour});
    auto press = std::make_shared<std::optional<QPointF>>(QPointF(X, Y));
    keepDrawing(
        Plotto::tr("an integral curve"),
        [this, run, press] {
            curvePoints_.clear();
            try {
                drawCurve(*run, *press);
            } catch (...) {
                noteCurve(run->button);
                throw;
            }
            noteCurve(run->button);
        },
        typedRates_);
    press->reset();  // drawn again, the first segment starts from the mapped start point
}

void frmFlowField::drawCurve(CurveRun& run, std::optional<QPointF> press)
{
    using rt::Chk;
    // The settings are read where the classic press reads them; drawn again at a new window, the
    // curve keeps its method, purpose and length and takes that window's limits.
    if (press) {
        if (run.inside) {
            run.settings = settings();
            run.known = true;
        }
    } else {
        const IntegralCurves::Settings now = settings();
        if (!run.known)
            run.settings = now;
        run.settings.xmin = now.xmin;
        run.settings.xmax = now.xmax;
        run.settings.ymin = now.ymin;
        run.settings.ymax = now.ymax;
    }
    IntegralCurves::Step st;
    if (run.inside) {
        st = IntegralCurves::step(run.settings, run.x0, run.y0, run.h);
        if (!run.settings.smooth && st.vertical)
            return;
        const double ny = Chk(run.y0 + st.dy);
        curvePoints_.push_back({run.x0, run.y0});
        if (txtYmin->value() <= ny && ny <= txtYmax->value())
            surface->Line(press ? press->x() : graph.column(run.x0), press ? press->y() : graph.row(run.y0),
                          graph.column(Chk(run.x0 + st.dx)), graph.row(ny), rgbColor(rt::QBColor(run.colour)));
    }
    PointCounter = 1;
    double x = Chk(run.x0 + st.dx), y = Chk(run.y0 + st.dy);
    if (press) {  // the first time, through the classic continuations
        if (run.button == LeftButton)
            FollowCurveForward(x, y);
        else
            FollowCurveBackward(x, y);
        return;
    }
    const bool backward = run.button != LeftButton;
    followCurve(x, y, backward, {backward ? -run.delta : run.delta, run.colour, run.settings});
}

void frmFlowField::followCurve(double& x, double& y, bool backward, const FollowRun& run)
{
    bool reachedEnd = false;
    {
        DrawingSurface::Batch curve(*surface, rgbColor(rt::QBColor(run.colour)));
        rt::cleanVectorStateForHotLoop();
        reachedEnd = IntegralCurves::follow(
            run.settings, run.h, backward, x, y, PointCounter, [&](double x1, double y1, double x2, double y2) {
                curvePoints_.push_back({x2, y2});
                curve.line(graph.column(x1), graph.row(y1), graph.column(x2), graph.row(y2));
            });
    }
    if (!reachedEnd)
        return;
    auto end = [](double v) { return shownStr(rt::RoundHalfUp(v, 1000)); };
    lblEndpt->setText(Plotto::tr("EndPt (%1,%2").arg(end(x), end(y)));
}

void frmFlowField::followGuarded(double& x, double& y, bool backward)
{
    typedGuard(
        [&] {
            const double h = backward ? -txtDelta->value() : txtDelta->value();
            followCurve(x, y, backward, {h, MethodColour, settings()});
        },
        [this](const rt::RuntimeError&) { lblEndpt->setText(curveStopped()); });
}

void frmFlowField::FollowCurveForward(double& x, double& y) { followGuarded(x, y, false); }
void frmFlowField::FollowCurveBackward(double& x, double& y) { followGuarded(x, y, true); }
