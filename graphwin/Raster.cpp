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
    // An end that is not cut keeps its exact value (ox + 1 * dx may differ from x2 in the last bit).
    const double ox = x1, oy = y1;
    if (t0 > 0.0) {
        x1 = ox + t0 * dx;
        y1 = oy + t0 * dy;
    }
    if (t1 < 1.0) {
        x2 = ox + t1 * dx;
        y2 = oy + t1 * dy;
    }
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

void pointOutside(const Target& t, double x, double y, int pen, std::uint32_t color)
{
    const double fx = std::floor(x), fy = std::floor(y);
    // Beyond this margin not even a wide pen reaches the target; inside it the casts are safe.
    const double margin = std::max(pen, 1);
    if (fx >= -margin && fx < t.width + margin && fy >= -margin && fy < t.height + margin)
        plot(t, static_cast<long>(fx), static_cast<long>(fy), pen, color);
}

namespace {

// The whole pixels of a segment's ends after the clipping every line gets: the clip keeps what a
// wide pen centred just outside could still paint, and nothing further, so the ends stay small.
// A segment wholly inside the target is left as it is (the clip would not move it). False: nothing
// of the segment can reach the target.
bool pixelEnds(const Target& t, int pen, double x1, double y1, double x2, double y2, long& ax, long& ay, long& bx,
               long& by)
{
    if (!(std::isfinite(x1) && std::isfinite(y1) && std::isfinite(x2) && std::isfinite(y2)))
        return false;
    const bool inside =
        x1 >= 0 && x2 >= 0 && y1 >= 0 && y2 >= 0 && x1 < t.width && x2 < t.width && y1 < t.height && y2 < t.height;
    if (!inside && !clipSegment(x1, y1, x2, y2, -1.0 - pen, t.width + pen, t.height + pen))
        return false;
    ax = static_cast<long>(std::floor(x1));
    ay = static_cast<long>(std::floor(y1));
    bx = static_cast<long>(std::floor(x2));
    by = static_cast<long>(std::floor(y2));
    return true;
}

// The pixels from one whole-pixel end to the other: a thin horizontal or vertical as one run cut to
// the target (it may lie wholly in the margin), anything else stepped pixel by pixel (Bresenham).
void pixels(const Target& t, long ax, long ay, long bx, long by, int pen, std::uint32_t color)
{
    if (pen == 1 && ay == by) {
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

}  // namespace

void line(const Target& t, double x1, double y1, double x2, double y2, int pen, std::uint32_t color)
{
    pen = std::max(pen, 1);
    long ax, ay, bx, by;
    if (pixelEnds(t, pen, x1, y1, x2, y2, ax, ay, bx, by))
        pixels(t, ax, ay, bx, by, pen, color);
}

SameColourWriter::SameColourWriter(const Target& t, int pen, std::uint32_t color)
    : t_(t), pen_(std::max(pen, 1)), color_(color)
{ }

void SameColourWriter::anyLine(double x1, double y1, double x2, double y2)
{
    long ax, ay, bx, by;
    if (!pixelEnds(t_, pen_, x1, y1, x2, y2, ax, ay, bx, by))
        return;
    if (pen_ == 1 && ax == bx && ay != by) {  // a thin vertical waits, to be merged with its column
        const long from = std::max(0L, std::min(ay, by)), to = std::min(t_.height - 1, std::max(ay, by));
        if (ax >= 0 && ax < t_.width && from <= to)
            addRun(ax, from, to);
        return;
    }
    pixels(t_, ax, ay, bx, by, pen_, color_);
}

void SameColourWriter::bar(double a, double top1, double b, double top2, double base)
{
    const double column = std::floor(a);
    const double low = std::min({top1, top2, base}), high = std::max({top1, top2, base});
    // Every comparison fails for NaN: such a bar goes the general way.
    if (pen_ == 1 && column >= 0 && column == std::floor(b) && b < t_.width && low >= 0 && high < t_.height) {
        addRun(static_cast<long>(column), static_cast<long>(low), static_cast<long>(high));
        endX_ = b;  // where the third segment ends, as line() leaves it
        endY_ = base;
        endPixel_ = pixelInside(t_, b, base, pen_);
        return;
    }
    line(a, base, a, top1);
    line(a, top1, b, top2);
    line(b, top2, b, base);
}

void SameColourWriter::addRun(long column, long from, long to)
{
    if (columns_.empty())
        columns_.resize(static_cast<std::size_t>(t_.width));
    std::vector<Run>& runs = columns_[static_cast<std::size_t>(column)];
    if (runs.empty())
        used_.push_back(column);
    for (Run& r : runs)
        if (from <= r.to + 1 && r.from <= to + 1) {  // overlapping or touching: one run
            r.from = std::min(r.from, from);
            r.to = std::max(r.to, to);
            return;
        }
    if (runs.size() < kRunsPerColumn) {
        runs.push_back({from, to});
        return;
    }
    for (long y = from; y <= to; ++y)
        t_.bits[y * t_.stride + column] = color_;
}

void SameColourWriter::flush()
{
    for (long column : used_) {
        std::vector<Run>& runs = columns_[static_cast<std::size_t>(column)];
        for (const Run& r : runs)
            for (long y = r.from; y <= r.to; ++y)
                t_.bits[y * t_.stride + column] = color_;
        runs.clear();
    }
    used_.clear();
}

}  // namespace raster
