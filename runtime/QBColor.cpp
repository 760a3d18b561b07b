// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/QBColor.h"

#include "runtime/RuntimeError.h"

namespace rt {

std::uint32_t QBColor(int n)
{
    static constexpr std::uint32_t table[16] = {
        0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
        0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF,
    };
    if (n < 0 || n > 15)
        raise(InvalidProcedureCall);
    return table[n];
}

}  // namespace rt
