// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/Random.h"

namespace rt {

namespace {
constexpr std::uint32_t kStart = 327680;
std::uint32_t state = kStart;
}  // namespace

float Rnd()
{
    state = static_cast<std::uint32_t>((static_cast<std::uint64_t>(state) * 1140671485u + 12820163u) & 0xFFFFFFu);
    return static_cast<float>(state) / 16777216.0f;
}

void resetRnd() { state = kStart; }

std::uint32_t rndState() { return state; }
void setRndState(std::uint32_t s) { state = s & 0xFFFFFFu; }

}  // namespace rt
