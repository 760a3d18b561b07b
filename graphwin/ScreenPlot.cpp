// SPDX-License-Identifier: GPL-3.0-or-later
// The explicit function's column walk, the drawing of Plotto!: a typed function evaluated a block of
// columns at a time, a family's rows in plain arithmetic dotted a chunk at a time, with the checked
// loop where a check could fail.
#include <algorithm>
#include <cmath>
#include <cstdint>

#include "funclib/FunctionSource.h"
#include "graphwin/GraphScreen.h"
#include "graphwin/PlainRows.h"
#include "runtime/CountedLoop.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "runtime/VectorState.h"

void GraphScreen::drawExplicit(FuncGlobals::ExplicitSnapshot::What what, bool typed)
{
    const auto evaluate =
        what == FuncGlobals::ExplicitSnapshot::What::Value ? FuncGlobals::ExplicitValue : FuncGlobals::ExplicitSlope;
    const auto first = static_cast<std::int16_t>(graph.firstColumn());
    const auto last = static_cast<std::int16_t>(graph.lastColumn());
    // rowInside as a run's rows [Top, below): its bottom row included, the run ends at the next row.
    const double below = std::nextafter(static_cast<double>(GraphWindow::Bottom), HUGE_VAL);
    FirstUseColour colour([] { return rt::Mod(FuncGlobals::FunctionId, 7); });
    LazyBatch points(*surface, colour);
    rt::cleanVectorStateForHotLoop();
    if (typed) {
        // A typed function leaves a gap where it is undefined (NaN) or beyond what the window can map.
        // It is evaluated a block of columns at a time; a column the window cannot map ends the plot
        // there, with the columns before it drawn.
        const auto columns = what == FuncGlobals::ExplicitSnapshot::What::Value ? FuncGlobals::ExplicitValues
                                                                                : FuncGlobals::ExplicitSlopes;
        constexpr int kBlock = 256;
        double xs[kBlock], ys[kBlock];
        const auto count = static_cast<std::size_t>(std::max(last - first + 1, 0));
        bool mapped = true;
        for (std::int32_t c0 = first; c0 <= last && mapped; c0 += kBlock) {
            int m = 0;
            try {
                for (; m < kBlock && c0 + m <= last; ++m)
                    xs[m] = graph.worldX(c0 + m);
            } catch (const rt::RuntimeError&) {
                mapped = false;
            }
            columns(xs, ys, static_cast<std::size_t>(m));
            graph.plainRows(ys, ys, static_cast<std::size_t>(m));  // NaN, a gap, is never dotted
            points.runColumns(c0, ys, static_cast<std::size_t>(m), GraphWindow::Top, below, count);
        }
        return;
    }
    // A family's values: the rows in plain arithmetic up to the first that is not finite, a block at
    // a time (see dotPlainRows); from there on, the checked loop, which raises where its first check fails. A slope is not
    // worked out twice at a column (YPrimeFunc counts its calls): it goes through the checked loop only.
    std::int32_t from = first;
    if (what == FuncGlobals::ExplicitSnapshot::What::Value) {
        from = dotPlainRows(graph, points, first, last, FuncGlobals::ExplicitValuesFrom, GraphWindow::Top, below);
        if (from > last) {
            if (last == INT16_MAX)  // where the counted loop's next step would overflow
                rt::raise(rt::Overflow);
            return;
        }
    }
    rt::For16(static_cast<std::int16_t>(from), last, 1, [&](std::int16_t c) {
        const double x = graph.worldX(c);
        const double y = evaluate(x);
        const double ty = graph.row(y);
        if (GraphWindow::rowInside(ty))
            points.point(c, ty);
    });
}
