// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// A curve y(x) dotted column by column in plain arithmetic, a block of columns at a time.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <exception>

#include "graphwin/DrawingSurface.h"
#include "graphwin/GraphWindow.h"

// Dots row(y(worldX(c))) for the columns first..last whose row is in [fromRow, toRow), in the plain
// arithmetic that gives the checked rows up to the first that is not finite (plainMappable): a block's
// x, then y at each, then the block's rows, so that the mappings are loops over arrays. `ys(xs, out,
// n, done)` gives y at the n points from `done` on, counting in `done` those worked out. Returns the
// column of the first row that is not finite (nothing dotted from it on; `first` when the window
// cannot be mapped), or last + 1; the caller's checked loop goes on from there and raises where its
// first check fails. A run-time error of y is raised once the rows before it are dotted, as the
// checked loop would raise it, unless a row before it is not finite: the checked loop stops there
// first, and y has no effect but its value.
template <class Ys>
std::int32_t dotPlainRows(const GraphWindow& g, LazyBatch& points, std::int32_t first, std::int32_t last, Ys ys,
                          double fromRow, double toRow)
{
    if (first > last || !g.plainMappable(first, last))
        return first;
    const auto count = static_cast<std::size_t>(last - first + 1);
    constexpr std::int32_t kBlock = 512;
    double values[kBlock];
    for (std::int32_t c0 = first; c0 <= last; c0 += kBlock) {
        const auto n = static_cast<std::size_t>(std::min(kBlock, last - c0 + 1));
        g.plainWorldXs(c0, n, values);
        std::size_t k = 0;
        std::exception_ptr fault;
        try {
            ys(values, values, n, k);  // in place: each x is read before its y is written
        } catch (...) {
            fault = std::current_exception();
        }
        g.plainRows(values, values, k);
        std::size_t finite = 0;
        while (finite < k && std::isfinite(values[finite]))
            ++finite;
        points.runColumns(c0, values, finite, fromRow, toRow, count);
        if (finite < k)
            return c0 + static_cast<std::int32_t>(finite);
        if (fault)
            std::rethrow_exception(fault);
        if (c0 > last - kBlock)
            break;  // the next block would start past last (and c0 + kBlock might not fit)
    }
    return last + 1;
}
