// SPDX-License-Identifier: GPL-3.0-or-later
#include "graphwin/Raster.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace raster {

bool clipSegment(double& x1, double& y1, double& x2, double& y2, double lo, double hiX, double hiY)
{
    double t0 = 0.0, t1 = 1.0;
    const double dx = x2 - x1, dy = y2 - y1;
    const double p[4] = {-dx, dx, -dy, dy};
    const double q[4] = {x1 - lo, hiX - x1, y1 - lo, hiY - y1};
    for (int i = 0; i < 4; ++i) {
        if (p[i] == 0.0) {
            if (q[i] < 0.0)
                return false;
            continue;
        }
        const double r = q[i] / p[i];
        if (p[i] < 0.0) {
            if (r > t1)
                return false;
            t0 = std::max(t0, r);
        } else {
            if (r < t0)
                return false;
            t1 = std::min(t1, r);
        }
    }
    const double ox = x1, oy = y1;
    x1 = ox + t0 * dx;
    y1 = oy + t0 * dy;
    x2 = ox + t1 * dx;
    y2 = oy + t1 * dy;
    return true;
}

void plot(const Target& t, long px, long py, int pen, std::uint32_t color)
{
    if (pen <= 1) {
        if (px >= 0 && px < t.width && py >= 0 && py < t.height)
            t.bits[py * t.stride + px] = color;
        return;
    }
    const long half = pen / 2;
    const long x0 = std::max(0L, px - half), x1 = std::min(t.width - 1, px - half + pen - 1);
    const long y0 = std::max(0L, py - half), y1 = std::min(t.height - 1, py - half + pen - 1);
    for (long y = y0; y <= y1; ++y)
        for (long x = x0; x <= x1; ++x)
            t.bits[y * t.stride + x] = color;
}

void point(const Target& t, double x, double y, int pen, std::uint32_t color)
{
    const double fx = std::floor(x), fy = std::floor(y);
    // Beyond this margin not even a wide pen reaches the target; inside it the casts are safe.
    const double margin = std::max(pen, 1);
    if (fx >= -margin && fx < t.width + margin && fy >= -margin && fy < t.height + margin)
        plot(t, static_cast<long>(fx), static_cast<long>(fy), pen, color);
}

void line(const Target& t, double x1, double y1, double x2, double y2, int pen, std::uint32_t color)
{
    if (!(std::isfinite(x1) && std::isfinite(y1) && std::isfinite(x2) && std::isfinite(y2)))
        return;
    pen = std::max(pen, 1);
    // Keep what a wide pen centred just outside could still paint, and nothing further: the integer
    // end points below then stay small.
    const double lo = -1.0 - pen;
    if (!clipSegment(x1, y1, x2, y2, lo, t.width + pen, t.height + pen))
        return;
    long ax = static_cast<long>(std::floor(x1)), ay = static_cast<long>(std::floor(y1));
    const long bx = static_cast<long>(std::floor(x2)), by = static_cast<long>(std::floor(y2));
    if (pen == 1 && ay == by) {
        // Horizontal: one run of the row, cut to the target (it may lie wholly in the margin).
        const long from = std::max(0L, std::min(ax, bx)), to = std::min(t.width - 1, std::max(ax, bx));
        if (ay >= 0 && ay < t.height && from <= to)
            std::fill(t.bits + ay * t.stride + from, t.bits + ay * t.stride + to + 1, color);
        return;
    }
    if (pen == 1 && ax == bx) {
        const long from = std::max(0L, std::min(ay, by)), to = std::min(t.height - 1, std::max(ay, by));
        if (ax >= 0 && ax < t.width)
            for (long y = from; y <= to; ++y)
                t.bits[y * t.stride + ax] = color;
        return;
    }
    const long dx = std::labs(bx - ax), dy = -std::labs(by - ay);
    const long sx = ax < bx ? 1 : -1, sy = ay < by ? 1 : -1;
    long err = dx + dy;
    for (;;) {
        plot(t, ax, ay, pen, color);
        if (ax == bx && ay == by)
            break;
        const long e2 = 2 * err;
        if (e2 >= dy) {
            err += dy;
            ax += sx;
        }
        if (e2 <= dx) {
            err += dx;
            ay += sy;
        }
    }
}

}  // namespace raster
