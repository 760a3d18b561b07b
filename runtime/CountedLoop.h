// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The classic counted loop on a 16-bit signed counter: the body runs for from, from + step, ...
// while the counter has not passed `to` (upwards for a positive step, downwards for a negative
// one); after each pass the counter is stepped as a 16-bit value, so stepping past 32767 or below
// -32768 raises Overflow (6) after the last body has run. A step of 0 counts as upwards and would
// repeat the first pass for ever; the body then runs once and the loop ends (same picture, no hang).
#include <cstdint>

#include "runtime/RuntimeError.h"

namespace rt {

template <class Body>
void For16(std::int16_t from, std::int16_t to, std::int16_t step, Body&& body)
{
    for (std::int32_t i = from; step >= 0 ? i <= to : i >= to;) {
        body(static_cast<std::int16_t>(i));
        if (step == 0)
            return;
        i += step;
        if (i > INT16_MAX || i < INT16_MIN)
            raise(Overflow);
    }
}

}  // namespace rt
