// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The mapping between a screen's window limits and the twips of its 6400-twip square.
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "runtime/Numbers.h"

struct GraphWindow {
    // The square, in twips: 6400 on a side, its top at 100 on every screen; its left edge is the
    // screen's own (Left). Points are drawn on the columns Left + 1 to Left + 6399 and the rows
    // Top to Bottom.
    static constexpr double Side = 6400;
    static constexpr int Top = 100;
    static constexpr int Bottom = Top + 6400;
    static constexpr int TickHalf = 40;
    static constexpr double Frame = Side + 5;  // the side of the outline around the square

    double Left = 2400;
    double XRange = 0;
    double YRange = 0;
    std::int32_t XOrigin = 0;
    std::int32_t YOrigin = 0;

    double right() const { return Left + Side; }
    std::int32_t firstColumn() const { return static_cast<std::int32_t>(Left) + 1; }
    std::int32_t lastColumn() const { return static_cast<std::int32_t>(Left + Side) - 1; }
    // A row inside the square, edges included (where a plotted point may go).
    static bool rowInside(double row) { return row >= Top && row <= Bottom; }
    // A point strictly within the square's edges (where a press starts a curve, where a bar stands).
    static bool rowStrictlyInside(double row) { return Top < row && row < Bottom; }
    bool strictlyInside(double column, double row) const
    {
        return Left < column && column < right() && rowStrictlyInside(row);
    }

    // Maps the window xmin..xmax by ymin..ymax onto the square. The ranges, then the origins rounded
    // to whole twips, in this order and with these operations: the digits of every result drawn
    // depend on them.
    void set(double xmin, double xmax, double ymin, double ymax)
    {
        using rt::Chk;
        using rt::Div;
        using rt::Int;
        XRange = Chk(xmax - xmin);
        XOrigin = rt::CLng(Int(Chk(Left - Div(Chk(xmin * Side), XRange))));
        YRange = Chk(ymax - ymin);
        YOrigin = rt::CLng(Int(Chk(Div(Chk(ymax * Side), YRange) + Top)));
    }
    // The world at the square's edges, from the rounded origins (what was really drawn).
    double worldLeft() const { return (Left - XOrigin) * XRange / Side; }
    double worldRight() const { return (Left + Side - XOrigin) * XRange / Side; }
    double worldTop() const { return (YOrigin - Top) * YRange / Side; }
    double worldBottom() const { return (YOrigin - Bottom) * YRange / Side; }
    // The plain mapping (no run-time checks), for typed functions: NaN and infinities pass through.
    double plainColumn(double x) const { return XOrigin + x * Side / XRange; }
    double plainRow(double y) const { return YOrigin - y * Side / YRange; }
    // World x and y of a twip column and row, in plain arithmetic.
    double plainWorldX(double column) const { return (column - XOrigin) * XRange / Side; }
    double plainWorldY(double row) const { return (YOrigin - row) * YRange / Side; }

    // Twip column of world x: XOrigin + x * 6400 / XRange, and twip row of world y: YOrigin - y * 6400
    // / YRange, with the run time's checks. They are worked out in plain arithmetic first: each check
    // fails only on a value that is not finite (or a range that is zero or not finite), and such a
    // value stays not finite to the result, so a finite result with a finite range is the checked
    // result; otherwise the checked operations run and raise where the first of them fails.
    double column(double x) const
    {
        const double c = plainColumn(x);
        if (std::isfinite(c) && std::isfinite(XRange)) [[likely]]
            return c;
        return rt::Chk(XOrigin + rt::Div(rt::Chk(x * Side), XRange));
    }
    double row(double y) const
    {
        const double r = plainRow(y);
        if (std::isfinite(r) && std::isfinite(YRange)) [[likely]]
            return r;
        return rt::Chk(YOrigin - rt::Div(rt::Chk(y * Side), YRange));
    }
    // World x of twip column c: (c - XOrigin) * XRange / 6400, the difference formed as a 32-bit integer.
    double worldX(std::int32_t c) const
    {
        const std::int64_t difference = static_cast<std::int64_t>(c) - XOrigin;
        if (!fitsInt32(difference)) [[unlikely]]
            rt::raise(rt::Overflow);
        return rt::Chk(static_cast<double>(difference) * XRange) / Side;
    }

    // Whether the plain mapping stands for the checked one over the columns first..last: the ranges
    // are finite and not zero, and every column's distance from the origin fits in 32 bits (as
    // worldX forms it). Then every check of worldX and row fails only on a value that is not finite,
    // and such a value stays not finite to the row: a finite row is the checked row.
    bool plainMappable(std::int32_t first, std::int32_t last) const
    {
        return YRange != 0 && std::isfinite(XRange) && std::isfinite(YRange) &&
               fitsInt32(static_cast<std::int64_t>(first) - XOrigin) &&
               fitsInt32(static_cast<std::int64_t>(last) - XOrigin);
    }
    // Blocks of the plain mapping, each a loop the compiler vectorises: the world x of the n columns
    // from `first` (plainMappable over them), and plainColumn and plainRow of n values (`to` may be
    // `from`).
    void plainWorldXs(std::int32_t first, std::size_t n, double* xs) const;
    void plainColumns(const double* from, double* to, std::size_t n) const;
    void plainRows(const double* from, double* to, std::size_t n) const;
    // Columns and rows of n points as column and row give them one by one, worked out in blocks of
    // plain arithmetic: a point whose plain column or row is not finite (or any point, with a range
    // that is not finite) is mapped again with the checks, which raise there. `mapped` counts the
    // points done; an error leaves it at the failing point, its column checked before its row.
    void mapPoints(const double* xs, const double* ys, double* cs, double* rs, std::size_t n,
                   std::size_t& mapped) const;

private:
    static bool fitsInt32(std::int64_t v) { return v >= INT32_MIN && v <= INT32_MAX; }
};
