// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The mapping between a screen's window limits and the twips of its 6400-twip square.
#include <cstdint>

#include "runtime/Numbers.h"

struct GraphWindow {
    static constexpr double Side = 6400;
    static constexpr int Top = 100;
    static constexpr int TickHalf = 40;

    double XRange = 0;
    double YRange = 0;
    std::int32_t XOrigin = 0;
    std::int32_t YOrigin = 0;

    // Twip column of world x: XOrigin + x * 6400 / XRange.
    double column(double x) const { return rt::Chk(XOrigin + rt::Div(rt::Chk(x * Side), XRange)); }
    // Twip row of world y: YOrigin - y * 6400 / YRange.
    double row(double y) const { return rt::Chk(YOrigin - rt::Div(rt::Chk(y * Side), YRange)); }
    // World x of twip column c: (c - XOrigin) * XRange / 6400, the difference formed as a 32-bit integer.
    double worldX(std::int32_t c) const
    {
        const std::int64_t difference = static_cast<std::int64_t>(c) - XOrigin;
        if (difference < INT32_MIN || difference > INT32_MAX) [[unlikely]]
            rt::raise(rt::Overflow);
        return rt::Chk(static_cast<double>(difference) * XRange) / Side;
    }
};
