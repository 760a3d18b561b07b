// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The sixteen classic colours by number.
#include <cstdint>

namespace rt {

// 0xRRGGBB of colour n; Invalid procedure call (5) for n outside 0..15.
std::uint32_t QBColor(int n);

}  // namespace rt
