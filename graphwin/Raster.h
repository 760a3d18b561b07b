// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Aliased drawing straight into a 32-bit pixel buffer: the one place where the program writes
// pixels without a painter. Coordinates are device pixels as doubles; anything (far outside, huge,
// NaN, infinite) may come in, and nothing is ever written outside the target's width x height.
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

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

// The pixel holding the point (x, y), as wide as the pen; pointOutside is its general case (a wide
// pen, or a point on the edge, far away, NaN), point() writes a thin pen's pixel inside at once.
void pointOutside(const Target& t, double x, double y, int pen, std::uint32_t color);
// The index in the bits of a thin pen's pixel inside the target, -1 for any other point.
inline long pixelInside(const Target& t, double x, double y, int pen)
{
    if (pen <= 1 && x >= 0 && y >= 0 && x < t.width && y < t.height)
        return static_cast<long>(y) * t.stride + static_cast<long>(x);
    return -1;
}
inline void point(const Target& t, double x, double y, int pen, std::uint32_t color)
{
    if (const long at = pixelInside(t, x, y, pen); at >= 0)  // inside: its pixel, at once
        t.bits[at] = color;
    else
        pointOutside(t, x, y, pen, color);
}

// A line between two points, both ends included, as wide as the pen. Horizontal and vertical
// one-pixel lines are written as runs; others are stepped pixel by pixel (Bresenham).
void line(const Target& t, double x1, double y1, double x2, double y2, int pen, std::uint32_t color);

// Many segments and points of one colour and pen written as one: single pixels and horizontal runs
// at once, vertical runs gathered per column and merged before they are written, other segments at
// once. All pixels have the same colour, so the order of the writes cannot change the picture; the
// overlapping bars of a sum of thousands of partitions then write each pixel once instead of a
// thousand times. The picture is exactly the one that line() and point() call by call give.
class SameColourWriter {
public:
    SameColourWriter(const Target& t, int pen, std::uint32_t color);
    SameColourWriter(const SameColourWriter&) = delete;
    SameColourWriter& operator=(const SameColourWriter&) = delete;
    ~SameColourWriter() { flush(); }
    void line(double x1, double y1, double x2, double y2)
    {
        // Most steps of a finely stepped curve begin and end in one pixel inside the target: that
        // pixel at once, as the general path would write it. A step of a connected curve begins where
        // the step before it ended, whose pixel that step has written (or gathered) already.
        const bool continues = x1 == endX_ && y1 == endY_;
        const long from = continues ? endPixel_ : pixelInside(t_, x1, y1, pen_);
        const long to = pixelInside(t_, x2, y2, pen_);
        endX_ = x2;
        endY_ = y2;
        endPixel_ = to;
        if (from >= 0 && from == to) {
            if (!continues)
                t_.bits[from] = color_;
            return;
        }
        anyLine(x1, y1, x2, y2);
    }
    void point(double x, double y) { raster::point(t_, x, y, pen_, color_); }
    // A bar's outline in pixels: line() of (a, base)-(a, top1), (a, top1)-(b, top2) and (b, top2)-(b,
    // base). A thin bar inside the target whose sides fall in one column of pixels (thousands of
    // partitions across a few hundred columns) is one vertical run from its lowest end to its highest,
    // which are exactly the pixels of the three segments.
    void bar(double a, double top1, double b, double top2, double base);
    // The points of a run given in order, such as a line dotted column by column: each point that
    // at(i, x, y) gives, i < n (at returns false for none), as point() writes it, except that a point
    // in the pixel the run's last point wrote leaves it alone: it already has the colour (nothing of
    // another colour is drawn while the writer lives). The writer's state is held in locals for the
    // loop. Returns the last i given, or n when none was. With Inside, the caller vouches that every
    // point given lies inside the target (see coversThin): no bounds are checked.
    template <bool Inside = false, class At>
    std::size_t pointsAfter(std::size_t n, At at)
    {
        std::size_t given = n;
        double x, y;
        const Target t = t_;
        const int pen = pen_;
        const std::uint32_t color = color_;
        long last = lastDotted_;
        for (std::size_t i = 0; i < n; ++i) {
            if (!at(i, x, y))
                continue;
            given = i;
            const long p = Inside ? static_cast<long>(y) * t.stride + static_cast<long>(x) : pixelInside(t, x, y, pen);
            if (!Inside && p < 0)
                pointOutside(t_, x, y, pen, color);  // the member: the local's address stays unknown
            else if (p != last)
                t.bits[p] = color;
            last = p;
        }
        lastDotted_ = last;
        return given;
    }
    // Whether a thin pen writes every point of [x0, x1] x [y0, y1] (pixels) inside the target.
    bool coversThin(double x0, double x1, double y0, double y1) const
    {
        return pen_ <= 1 && x0 >= 0 && y0 >= 0 && x1 < static_cast<double>(t_.width) && y1 < static_cast<double>(t_.height);
    }
    // Writes the gathered vertical runs.
    void flush();

private:
    struct Run {
        long from, to;
    };
    static constexpr std::size_t kRunsPerColumn = 8;  // beyond this a column's runs are written at once
    void anyLine(double x1, double y1, double x2, double y2);
    void addRun(long column, long from, long to);
    Target t_;
    int pen_;
    // Where the last segment ended, in pixels, and its pixel (-1 outside or with a wide pen).
    double endX_ = std::numeric_limits<double>::quiet_NaN(), endY_ = endX_;
    long endPixel_ = -1;
    long lastDotted_ = -1;  // the pixel pointsAfter last wrote (-1: none, or outside)
    std::uint32_t color_;
    std::vector<std::vector<Run>> columns_;  // the gathered runs of each pixel column
    std::vector<long> used_;  // the columns that hold runs
};

}  // namespace raster
