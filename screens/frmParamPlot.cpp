// SPDX-License-Identifier: GPL-3.0-or-later
// The parametric screen's Plotto!: the curve over t, a block of points at a time, as points or joined.
#include <cmath>
#include <exception>
#include <vector>

#include "funclib/FuncGlobals.h"
#include "funclib/FunctionSource.h"
#include "graphwin/DrawingSurface.h"
#include "graphwin/Language.h"
#include "runtime/Numbers.h"
#include "runtime/VectorState.h"
#include "screens/frmParam.h"

template <class At, class From>
void frmParam::plotCurve(At at, From from)
{
    const float t0 = rt::CSng(txtT0->value()), tn = rt::CSng(txtTn->value());
    const std::int16_t n = rt::CInt(rt::Int(txtTstep->value()));
    const float dt = rt::CSng(rt::Div(static_cast<double>(rt::CSng(static_cast<double>(tn) - t0)), n));
    const bool points = optPoints->isChecked();
    const QString name = Plotto::tr("the curve %1, %2 for t from %3 to %4")
                             .arg(lblXPar->text(), lblYPar->text(), txtT0->text(), txtTn->text());
    // The figure is a kept step: a new window maps the same t values again.
    keepDrawing(
        Plotto::tr("the parametric curve"),
        [this, at, from, t0, n, dt, points, name] { drawCurve(at, from, t0, n, dt, points, name); },
        typedCurve_);
}

template <class At, class From>
void frmParam::drawCurve(At at, From from, float t0, std::int16_t n, float dt, bool points,
                         const QString& name)
{
    std::array<float, kCurveBlock> ts;
    std::array<double, kCurveBlock> cs, rs;
    std::size_t mapped = 0;
    at(&t0, 1, cs.data(), rs.data(), mapped);
    double c0 = cs[0], r0 = rs[0];
    FirstUseColour colour([] { return rt::Mod(FuncGlobals::XtFuncId, 7); });
    // Every k-th point is kept in the world (about 2000 in all) for the trace and the walk.
    std::vector<audio::Point> kept;
    const std::int32_t every = std::max<std::int32_t>(1, n / 2000);
    std::int32_t untilKept = 1;
    const auto keep = [&](double c, double r) {
        if (--untilKept > 0)
            return;
        untilKept = every;
        const bool drawable = std::isfinite(c) && std::isfinite(r);
        kept.push_back({drawable ? graph.plainWorldX(c) : c, drawable ? graph.plainWorldY(r) : r});
    };
    keep(c0, r0);
    {
        LazyBatch figure(*surface, colour);
        ChunkedLines segments(figure);
        ChunkedPoints dots(figure);
        rt::cleanVectorStateForHotLoop();
        for (std::int32_t i = 1; i <= n;) {
            // The next values of t, then their points; a run-time error of either is raised once the
            // points before it are drawn, as it would be point by point.
            std::exception_ptr fault;
            std::size_t m = 0;
            mapped = 0;
            try {
                for (; m < kCurveBlock && i + static_cast<std::int32_t>(m) <= n; ++m)
                    ts[m] = rt::CSng(
                        static_cast<double>(rt::CSng(static_cast<double>(i + static_cast<std::int32_t>(m)) * dt)) + t0);
            } catch (...) {
                fault = std::current_exception();
            }
            try {
                at(ts.data(), m, cs.data(), rs.data(), mapped);
            } catch (...) {
                fault = std::current_exception();  // it came at a point before the t that failed
            }
            for (std::size_t k = 0; k < mapped; ++k, ++i) {
                const double c1 = cs[k], r1 = rs[k];
                keep(c1, r1);
                if (points) {
                    if (i == 1 && from(c0, r0))
                        dots.point(c0, r0);
                    if (inside(c1, r1))
                        dots.point(c1, r1);
                } else if (inside(c1, r1) && from(c0, r0)) {
                    segments.line(c0, r0, c1, r1);
                }
                c0 = c1;
                r0 = r1;
            }
            if (fault)
                std::rethrow_exception(fault);
        }
    }
    noteTraced(drawnCurve(name, std::move(kept)));
}

void frmParam::cmdPlotto_Click()
{
    using namespace FuncGlobals;
    if (!typedCurve_) {
        // The families: every point mapped with the run time's checks, the first drawn wherever it is.
        // A block's values first, then their columns and rows (the window's block mapping, checked
        // where the plain one is not finite). The errors come in the order of the point-by-point loop
        // (x, its column, y, its row): an error of y(t) waits for the column of the same point.
        plotCurve(
            [this](const float* ts, std::size_t m, double* cs, double* rs, std::size_t& mapped) {
                double xs[kCurveBlock], ys[kCurveBlock];
                std::size_t k = 0;
                bool xDone = false;  // the fault came from y(t) at k, after x(t)
                std::exception_ptr fault;
                try {
                    for (; k < m; ++k, xDone = false) {
                        xs[k] = XtFunc(ts[k]);
                        xDone = true;
                        ys[k] = YtFunc(ts[k]);
                    }
                } catch (...) {
                    fault = std::current_exception();
                }
                graph.mapPoints(xs, ys, cs, rs, k, mapped);
                if (fault && xDone)
                    graph.column(xs[k]);
                if (fault)
                    std::rethrow_exception(fault);
            },
            [](double, double) { return true; });
        return;
    }
    // A typed curve: the same mapping in plain arithmetic; NaN (a gap, or beyond what the window can
    // map) is never drawn and breaks a connected curve. A fault of the window itself ends the plot.
    typedGuard(
        [this] {
            plotCurve(
                [this](const float* ts, std::size_t m, double* cs, double* rs, std::size_t& mapped) {
                    CurvePoints(ts, cs, rs, m);
                    graph.plainColumns(cs, cs, m);
                    graph.plainRows(rs, rs, m);
                    mapped = m;
                },
                [](double c, double r) { return std::isfinite(c) && std::isfinite(r); });
        },
        [](const rt::RuntimeError&) {});
}
