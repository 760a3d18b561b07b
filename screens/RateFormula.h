// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The slope-field screen's printed rates: a catalogue caption with the coefficients' values in it.
#include <array>
#include <string>
#include <string_view>

// A rate caption with the coefficient values walked into it, letter by letter: a coefficient of 1
// drops only its letter, a term holding a coefficient of 0 is cut with its joining characters, any
// other value replaces its letter. `formula` is the caption without its "dy = " or "dx = ";
// `letters` names the three coefficients and `values` holds them.
std::string FormulaWithCoefficients(std::string_view formula, std::string_view letters,
                                    const std::array<double, 3>& values);
