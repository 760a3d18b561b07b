// SPDX-License-Identifier: GPL-3.0-or-later
// The block mappings of GraphWindow, built with vectorisation on and without contracted multiply-adds
// (every value the same as plainWorldX and plainRow give one at a time, bit for bit).
#include "graphwin/GraphWindow.h"

void GraphWindow::plainWorldXs(std::int32_t first, std::size_t n, double* xs) const
{
    const std::int32_t from = first - XOrigin;  // fits: plainMappable
    const double range = XRange;
    for (std::size_t k = 0; k < n; ++k)
        xs[k] = static_cast<double>(from + static_cast<std::int32_t>(k)) * range / Side;
}

void GraphWindow::plainColumns(const double* from, double* to, std::size_t n) const
{
    const double origin = XOrigin, range = XRange;
    for (std::size_t k = 0; k < n; ++k)
        to[k] = origin + from[k] * Side / range;
}

void GraphWindow::plainRows(const double* from, double* to, std::size_t n) const
{
    const double origin = YOrigin, range = YRange;
    for (std::size_t k = 0; k < n; ++k)
        to[k] = origin - from[k] * Side / range;
}

void GraphWindow::mapPoints(const double* xs, const double* ys, double* cs, double* rs, std::size_t n,
                            std::size_t& mapped) const
{
    plainColumns(xs, cs, n);
    plainRows(ys, rs, n);
    const bool plain = std::isfinite(XRange) && std::isfinite(YRange);
    for (mapped = 0; mapped < n; ++mapped)
        if (!plain || !std::isfinite(cs[mapped]) || !std::isfinite(rs[mapped])) [[unlikely]] {
            cs[mapped] = column(xs[mapped]);
            rs[mapped] = row(ys[mapped]);
        }
}
