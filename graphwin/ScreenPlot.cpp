// SPDX-License-Identifier: GPL-3.0-or-later
// The explicit function's column walk, the drawing of Plotto!: a typed function evaluated a block of
// columns at a time, a family's rows in plain arithmetic dotted a chunk at a time, with the checked
// loop where a check could fail.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "funclib/FunctionSource.h"
#include "graphwin/GraphScreen.h"
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
            for (int k = 0; k < m; ++k) {
                const double ty = graph.plainRow(ys[k]);
                if (GraphWindow::rowInside(ty))
                    points.point(c0 + k, ty);
            }
        }
        return;
    }
    // A family's values: the rows in plain arithmetic up to the first that is not finite (see
    // plainRows), gathered in chunks and each chunk dotted in one call (a pixel the column before wrote
    // is not written again; rowInside's bottom row is included: the run ends at the next row after
    // it); a run-time error of the family dots the rows before it first, so that it comes at the same
    // column with the same columns drawn. From the first row that is not finite on, the checked loop,
    // which raises where its first check fails. A slope is not worked out twice at a column
    // (YPrimeFunc counts its calls): it goes through the checked loop only.
    std::int32_t from = first;
    if (what == FuncGlobals::ExplicitSnapshot::What::Value) {
        const double below = std::nextafter(static_cast<double>(GraphWindow::Bottom), HUGE_VAL);
        const auto count = static_cast<std::size_t>(std::max(last - first + 1, 0));
        std::array<double, 512> rows;
        std::size_t n = 0;
        std::int32_t chunk = first;
        const auto dot = [&] {
            points.runColumns(chunk, rows.data(), n, GraphWindow::Top, below, count);
            chunk += static_cast<std::int32_t>(n);
            n = 0;
        };
        try {
            from = graph.plainRows(
                first, last, [evaluate](double x) { return evaluate(x); },
                [&](std::int32_t, double row) {
                    rows[n++] = row;
                    if (n == rows.size())
                        dot();
                });
        } catch (const rt::RuntimeError&) {
            dot();
            throw;
        }
        dot();
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
