// SPDX-License-Identifier: GPL-3.0-or-later
#include "graphwin/Axes.h"

#include "graphwin/Controls.h"
#include "graphwin/DrawingStyle.h"
#include "graphwin/DrawingSurface.h"
#include "runtime/CountedLoop.h"
#include "runtime/Numbers.h"
#include "runtime/QBColor.h"

void drawAxes(DrawingSurface& surface, const GraphWindow& graph, const AxisLimits& limits)
{
    using rt::Chk;
    using rt::Div;
    using rt::Int;
    const QRgb black = DrawingStyle::colour(DrawingStyle::kAxes);
    // The tick loops count down from the start to the edge on a 16-bit counter. A step of 0 (a range
    // wider than the square) would draw the same tick for ever; one tick draws the same picture.
    auto ticks = [](std::int16_t start, std::int16_t step, std::int16_t edge, auto&& draw) {
        if (step == 0) {
            if (start >= edge)
                draw(start);
            return;
        }
        rt::For16(start, edge, step, draw);
    };

    if (limits.xmin->value() <= 0 && limits.xmax->value() >= 0) {
        if (graph.YRange > 1) {
            const std::int16_t step = rt::CInt(-Int(Div(GraphWindow::Side, graph.YRange)));
            const std::int16_t start =
                rt::CInt(graph.YOrigin - Int(Div(Chk(Int(limits.ymin->value()) * GraphWindow::Side), graph.YRange)));
            ticks(start, step, GraphWindow::Top, [&](int ty) {
                surface.LineStep(graph.XOrigin - GraphWindow::TickHalf, ty, 2 * GraphWindow::TickHalf, 0, black);
            });
        }
        surface.LineStep(graph.XOrigin, GraphWindow::Top + 1, 0, GraphWindow::Side - 1, black);
    }
    if (limits.ymin->value() <= 0 && limits.ymax->value() >= 0) {
        if (graph.XRange > 1) {
            const std::int16_t step = rt::CInt(-Int(Div(GraphWindow::Side, graph.XRange)));
            const std::int16_t start = rt::CInt(
                Chk(Int(Div(Chk(Int(limits.xmax->value()) * GraphWindow::Side), graph.XRange)) + graph.XOrigin));
            ticks(start, step, static_cast<std::int16_t>(graph.Left), [&](int tx) {
                surface.LineStep(tx, graph.YOrigin - GraphWindow::TickHalf, 0, 2 * GraphWindow::TickHalf, black);
            });
        }
        surface.LineStep(graph.firstColumn(), graph.YOrigin, GraphWindow::Side - 1, 0, black);
    }
}
