// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// What must hold for any text typed as a function, checked by the libFuzzer target and replayed by
// the tests: reading never fails other than by a refusal with a place; a taken expression evaluates
// to a finite number or NaN (never an infinity), and so does its derivative; and the understood text
// reads back to an expression that gives the same values, so that the preview never shows a
// different function from the one evaluated; and the values a column at a time are the point
// evaluator's, bit for bit, for the expression and its derivative.
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "funclib/FuncGlobals.h"
#include "funclib/TypedExpression.h"

namespace fuzzing {

inline bool sameValue(double a, double b) { return (std::isnan(a) && std::isnan(b)) || a == b; }

// "" when every property holds for `text`, else what failed.
inline std::string checkTypedText(std::string_view input)
{
    using FuncGlobals::TypedExpression;
    // The first byte chooses the screen's letters; the rest is the text.
    const FuncGlobals::VariableNames choices[] = {{"x"}, {"x", "y"}, {"t"}};
    const auto& variables = choices[input.empty() ? 0 : static_cast<unsigned char>(input[0]) % 3];
    const std::string text(input.empty() ? input : input.substr(1));
    FuncGlobals::Coefficients = {1.5, -2, 0.25, 3, -0.5, 7};
    std::string error;
    const auto e = TypedExpression::compile(text, variables, error);
    if (!e)
        return error.find(" at ") != std::string::npos || error.rfind("too long", 0) == 0
                   ? ""
                   : "refusal without place: " + error;
    // The understood text writes more blanks and brackets than were typed: past the length limit it
    // is shown but not read again.
    if (e->understood().size() > TypedExpression::MaxLength)
        return "";
    std::string again;
    const auto reread = TypedExpression::compile(e->understood(), variables, again);
    if (!reread)
        return "understood text refused: " + e->understood() + ": " + again;
    const double points[] = {0, 1, -1, 0.5, -2.75, 3.25, 1e-8, 100};
    for (double u : points)
        for (double v : {0.0, 2.0, -1.5}) {
            const double a = (*e)(u, v);
            if (std::isinf(a))
                return "infinite value";
            if (!sameValue(a, (*reread)(u, v)))
                return "understood text gives another value: " + e->understood();
            if (const TypedExpression* d = e->derivative(); d && std::isinf((*d)(u, v)))
                return "infinite derivative";
        }
    // The same points as one column (each u with each v), for the expression and its derivative.
    const double others[] = {0.0, 2.0, -1.5};
    double us[24], vs[24], column[24];
    for (std::size_t i = 0; i < 24; ++i) {
        us[i] = points[i / 3];
        vs[i] = others[i % 3];
    }
    for (const TypedExpression* f : {static_cast<const TypedExpression*>(e.get()), e->derivative()}) {
        if (!f)
            continue;
        f->values(us, vs, column, 24);
        for (std::size_t i = 0; i < 24; ++i) {
            const double point = (*f)(us[i], vs[i]);
            if (std::isnan(point) ? !std::isnan(column[i])
                                  : std::bit_cast<std::uint64_t>(point) != std::bit_cast<std::uint64_t>(column[i]))
                return "a column gives another value than the point";
        }
    }
    return "";
}

}  // namespace fuzzing
