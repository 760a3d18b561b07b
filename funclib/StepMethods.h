// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The step methods that follow the slope field by fixed steps in x: one row each (Euler's, the
// midpoint Runge-Kutta, the classical fourth-order Runge-Kutta), with its key, caption, colour,
// order of accuracy and its step. Each step is written once, in StepMethods.cpp, over the rates it
// is given, and made twice from that one text: over the rate families with the classic run-time
// rules, and over the typed rates, which never raise. The slope field, the convergence table, the
// benchmarks and the tests go through the rows; a new method is a row there.
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "funclib/FunctionSource.h"

namespace StepMethods {

// The increment of y over one step h in x from (x, y). `dxHere` is the rate dx at (x, y) when the
// caller has it already (an approximation checks it for a vertical slope first), so that the first
// stage need not find it again; without it the first stage finds it after dy, as the classic
// procedures do.
using Stepper = double (*)(double x, double y, double h, std::optional<double> dxHere);

struct Method {
    const char* key;  // stable name, for code and saved settings; never shown
    const char* caption;  // the convergence table's column heading, English (translated where shown)
    std::uint32_t colour;  // 0xRRGGBB, of its line on the convergence plot
    int order;  // the error shrinks as h^order
    // The step over the rate families (DyFunc / DxFunc): raises Division by zero where dx is 0,
    // Overflow where the arithmetic overflows, at the same points as the classic procedures.
    Stepper family;
    // The step over the typed rates in use: NaN where a stage is undefined or its dx is 0.
    Stepper typed;
};

// Every method, in the convergence table's order.
std::span<const Method> all();
// The method with this key; throws std::out_of_range for an unknown key.
const Method& byKey(std::string_view key);

// The increment of one step by `m` with the rates in use: the typed rates when the screen has
// them, else the families. The approximations call it once a step.
inline double step(const Method& m, double x, double y, double h, std::optional<double> dxHere = {})
{
    return FuncGlobals::TypedRate ? m.typed(x, y, h, dxHere) : m.family(x, y, h, dxHere);
}

}  // namespace StepMethods
