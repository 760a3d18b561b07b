// SPDX-License-Identifier: GPL-3.0-or-later
// A batch of shapes of one colour on the drawing surface: opened before a per-point loop, written
// straight into the picture shape by shape or a chunk at a time, kept for a redraw at another size,
// closed with one repaint request. The short per-shape members are inline in DrawingSurface.h.
#include <bit>
#include <cstdint>
#include <type_traits>

#include "graphwin/DrawingSurface.h"

DrawingSurface::Batch::Batch(DrawingSurface& surface, QRgb color)
    : s_(surface), color_(color),
      writer_(surface.target(), surface.penPx_, DrawingSurface::ink(color)), first_{{surface.batchPoints_.size(), 0},
                                                                                    {surface.batchLines_.size(), 0},
                                                                                    {surface.batchPathEnds_.size(), 0},
                                                                                    {surface.batchBars_.size(), 0}},
      lastX_(surface.CurrentX), lastY_(surface.CurrentY), keep_(surface.keptComplete_ && surface.batching_),
      direct_(!surface.batching_)
{
    if (keep_ && s_.batchLines_.capacity() == 0) {  // once: later batches append without moving the earlier
        s_.batchPoints_.reserve(kMaxKept * 2);
        s_.batchLines_.reserve(kMaxKept * 4);
        s_.batchPathEnds_.reserve(kMaxKept);
        s_.batchBars_.reserve(kMaxKept / 3 * 5 + 5);
    }
}

// No more shape fits in what the surface keeps (fits): the batch keeps nothing and the surface no
// longer keeps a complete picture.
bool DrawingSurface::Batch::full()
{
    keep_ = false;
    forget();
    s_.keptComplete_ = false;
    return false;
}

DrawingSurface::Batch::~Batch()
{
    if (direct_)
        return;
    writer_.flush();
    s_.CurrentX = lastX_;
    s_.CurrentY = lastY_;
    s_.touched();
    BatchRanges r = first_;
    r.points[1] = s_.batchPoints_.size();
    r.lines[1] = s_.batchLines_.size();
    r.paths[1] = s_.batchPathEnds_.size();
    r.bars[1] = s_.batchBars_.size();
    if (!keep_ || (r.points[0] == r.points[1] && r.lines[0] == r.lines[1] && r.bars[0] == r.bars[1]))
        return;
    // Kept while the shapes fit in what the surface keeps; beyond that the picture is scaled on a resize.
    if (s_.retain(Kept::Batch, static_cast<double>(s_.batchRanges_.size()), 0, 0, 0, color_, s_.drawWidth_))
        s_.batchRanges_.push_back(r);
    else
        forget();
}

void DrawingSurface::Batch::runColumns(int first, const double* rows, std::size_t n, double fromRow, double toRow)
{
    if (run_ == RunMode::OneByOne) {
        for (std::size_t i = 0; i < n; ++i)
            if (dotted(rows[i], fromRow, toRow))
                point(first + static_cast<int>(i), rows[i]);
        return;
    }
    // One loop per mode, with nothing in it but the point's own work. Where the run's columns and its
    // rows [fromRow, toRow) lie inside the picture (as the square does at every zoom), so does every
    // point dotted: no bounds are checked per point.
    const double pxPerTwip = s_.pxPerTwip_;  // in a register: a point outside calls out of the loop
    const bool inside = n > 0 && writer_.coversThin(toPx(first, pxPerTwip), toPx(first + static_cast<double>(n - 1), pxPerTwip),
                                                    toPx(fromRow, pxPerTwip), toPx(toRow, pxPerTwip));
    auto dot = [&](auto keep, auto within) {
        const std::size_t lastDotted = writer_.pointsAfter<decltype(within)::value>(n, [&](std::size_t i, double& px, double& py) {
            const double row = rows[i];
            if (!dotted(row, fromRow, toRow))
                return false;
            const double x = first + static_cast<int>(i);
            if constexpr (keep) {
                s_.batchPoints_.push_back(x);
                s_.batchPoints_.push_back(row);
            }
            px = toPx(x, pxPerTwip);
            py = toPx(row, pxPerTwip);
            return true;
        });
        if (lastDotted < n) {
            lastX_ = first + static_cast<int>(lastDotted);
            lastY_ = rows[lastDotted];
        }
    };
    const auto within = [&](auto keep) {
        if (inside)
            dot(keep, std::true_type());
        else
            dot(keep, std::false_type());
    };
    if (run_ == RunMode::Keep)
        within(std::true_type());
    else
        within(std::false_type());
}

// A segment that begins exactly (to the bit: the sign of a zero included) where the batch's last kept
// segment ended adds its end to that path; any other begins a new path of two corners.
void DrawingSurface::Batch::keepSegment(double x1, double y1, double x2, double y2)
{
    std::vector<double>& corners = s_.batchLines_;  // within the reserved capacity: no move
    std::vector<std::size_t>& ends = s_.batchPathEnds_;
    const auto same = [](double a, double b) {
        return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
    };
    if (ends.size() > first_.paths[0] && same(corners.end()[-2], x1) && same(corners.back(), y1)) {
        corners.push_back(x2);
        corners.push_back(y2);
        ends.back() = corners.size();
        return;
    }
    for (const double v : {x1, y1, x2, y2})
        corners.push_back(v);
    ends.push_back(corners.size());
}

void DrawingSurface::Batch::points(const double* xy, std::size_t n)
{
    if (n == 0)
        return;
    const RunMode mode = modeFor(n);
    if (mode == RunMode::OneByOne) {
        for (const double* p = xy; p != xy + 2 * n; p += 2)
            point(p[0], p[1]);
        return;
    }
    if (mode == RunMode::Keep)
        s_.batchPoints_.insert(s_.batchPoints_.end(), xy, xy + 2 * n);  // within the reserved capacity
    const double pxPerTwip = s_.pxPerTwip_;
    writer_.pointsAfter(n, [&](std::size_t i, double& px, double& py) {
        px = toPx(xy[2 * i], pxPerTwip);
        py = toPx(xy[2 * i + 1], pxPerTwip);
        return true;
    });
    lastX_ = xy[2 * n - 2];
    lastY_ = xy[2 * n - 1];
}

void DrawingSurface::Batch::lines(const double* ends, std::size_t n)
{
    if (n == 0)
        return;
    const RunMode mode = modeFor(n);
    if (mode == RunMode::OneByOne) {
        for (const double* e = ends; e != ends + 4 * n; e += 4)
            line(e[0], e[1], e[2], e[3]);
        return;
    }
    auto draw = [&](auto keep) {
        for (const double* e = ends; e != ends + 4 * n; e += 4) {
            if constexpr (keep)
                keepSegment(e[0], e[1], e[2], e[3]);
            writer_.line(s_.toPx(e[0]), s_.toPx(e[1]), s_.toPx(e[2]), s_.toPx(e[3]));
        }
    };
    if (mode == RunMode::Keep)
        draw(std::true_type());
    else
        draw(std::false_type());
    lastX_ = ends[4 * n - 2];
    lastY_ = ends[4 * n - 1];
}

// Drops the batch's shapes from the surface's stores.
void DrawingSurface::Batch::forget()
{
    s_.batchPoints_.resize(first_.points[0]);
    s_.batchLines_.resize(first_.lines[0]);
    s_.batchPathEnds_.resize(first_.paths[0]);
    s_.batchBars_.resize(first_.bars[0]);
}
