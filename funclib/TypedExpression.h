// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Functions a teacher types: an expression in one or two variables (x; x and y; t) and the
// coefficients A to F, read with the textbook's rules, compiled for fast evaluation and
// differentiated exactly.
//
// The text is read by our own small grammar, so that every refusal names its place ("unknown name
// 'sinn' at 1") and the precedence is the textbook's: ^ binds tighter than unary minus and groups
// to the right, ln and log are the natural logarithm, e and pi are constants, and a product must
// be written with * ("2x" is refused with a message that says to write 2*x), and the functions are
// the rows of the table in TypedFunctions.h (a name not in it is refused). The parsed tree is
// handed, fully parenthesised, to muparser, which compiles it to byte code (tens of nanoseconds a
// point), and to GiNaC, which differentiates it symbolically; the derivative goes back to muparser
// the same way. Evaluation never raises: a point where the expression is undefined or not finite
// yields NaN, and the callers draw a gap there.
#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace FuncGlobals {

// The names an expression may use besides A to F, e and pi: {"x"}, {"x", "y"} or {"t"}.
using VariableNames = std::vector<std::string>;

class TypedExpression {
public:
    // The longest text taken, in characters, and the deepest nesting of brackets and operators.
    static constexpr int MaxLength = 240;
    static constexpr int MaxDepth = 60;

    // Reads and compiles `text`. Returns the expression, or null with `error` set to the reason and
    // the place of the fault (1-based, in characters; the end of the text is its length + 1).
    static std::unique_ptr<TypedExpression> compile(const std::string& text, const VariableNames& variables,
                                                    std::string& error);

    ~TypedExpression();
    TypedExpression(const TypedExpression&) = delete;
    TypedExpression& operator=(const TypedExpression&) = delete;

    // The text as the teacher typed it, and as it is understood: every operator written out, with
    // brackets where the order of operations decides ("-x^2" is understood as "-(x^2)").
    const std::string& text() const { return text_; }
    const std::string& understood() const { return understood_; }

    // The value at (u, v) (v is ignored for one variable) with the coefficients that
    // FuncGlobals::Coefficients holds now; NaN where the expression is undefined or not finite.
    double operator()(double u, double v = 0) const;

    // out[i] = (*this)(u[i], v[i]) for i < n, bit for bit, computed a block of points at a time (the
    // scans call this rather than operator() once a point). `v` may be null: the second variable is
    // then 0.
    void values(const double* u, const double* v, double* out, std::size_t n) const;
    void values(const double* u, double* out, std::size_t n) const { values(u, nullptr, out, n); }

    // The exact derivative with respect to the first variable, as GiNaC simplifies it, or null
    // when it cannot be found (GiNaC refused the expression, or the result uses a function the
    // evaluator does not know). `derivativeText` says which, in words, when it is null.
    const TypedExpression* derivative() const { return derivative_.get(); }
    const std::string& derivativeText() const { return derivativeText_; }

    // The byte code and the variables it reads (inside the implementation).
    struct Compiled;

private:
    TypedExpression();
    std::string text_, understood_, derivativeText_;
    std::unique_ptr<Compiled> compiled_;
    std::unique_ptr<TypedExpression> derivative_;
};

}  // namespace FuncGlobals
