// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Aliased drawing straight into a 32-bit pixel buffer: the one place where the program writes
// pixels without a painter. Coordinates are device pixels as doubles; anything (far outside, huge,
// NaN, infinite) may come in, and nothing is ever written outside the target's width x height.
#include <cstdint>

namespace raster {

struct Target {
    std::uint32_t* bits = nullptr;
    long stride = 0;  // pixels from one row to the next
    long width = 0;
    long height = 0;
};

// Clips the segment to [lo, hiX] x [lo, hiY] (Liang-Barsky). False when nothing of it is inside.
bool clipSegment(double& x1, double& y1, double& x2, double& y2, double lo, double hiX, double hiY);

// A square of `pen` pixels centred on the pixel (px, py) (the pixel alone for a pen of 1), cut to
// the target.
void plot(const Target& t, long px, long py, int pen, std::uint32_t color);

// The pixel holding the point (x, y), as wide as the pen.
void point(const Target& t, double x, double y, int pen, std::uint32_t color);

// A line between two points, both ends included, as wide as the pen. Horizontal and vertical
// one-pixel lines are written as runs; others are stepped pixel by pixel (Bresenham).
void line(const Target& t, double x1, double y1, double x2, double y2, int pen, std::uint32_t color);

}  // namespace raster
