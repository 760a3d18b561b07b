// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The run time's random generator: a 24-bit linear congruential sequence that always starts from the
// same state, so every run of the program draws the same numbers.
#include <cstdint>

namespace rt {

// The next value in [0, 1), as a single.
float Rnd();

// Puts the generator back at its start-up state (the program never does this; tests do).
void resetRnd();

// The generator's state, and putting it back: a drawing made again at another window draws the
// same numbers it drew the first time, and the sequence then goes on where it was.
std::uint32_t rndState();
void setRndState(std::uint32_t state);

}  // namespace rt
