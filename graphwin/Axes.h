// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The axes and unit ticks of the graph square, drawn from the window map and the limit boxes, the
// way a plotting library hands its scale map to an item's draw call.
#include "graphwin/GraphWindow.h"

class DrawingSurface;
class TextBox;

// The four limit boxes, read as the axes are drawn (their texts decide where the axes lie).
struct AxisLimits {
    const TextBox *xmin, *xmax, *ymin, *ymax;
};

// Draws the y axis with its ticks where x = 0 is in the window, and the x axis with its ticks where
// y = 0 is, in the axes' colour of DrawingStyle.
void drawAxes(DrawingSurface& surface, const GraphWindow& graph, const AxisLimits& limits);
