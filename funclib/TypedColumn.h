// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Inside the typed functions (see TypedExpression.h): a typed function evaluated a column of points
// at a time. muparser's finished byte code (after its own folding and rewriting, so that every
// value is computed by the same operations in the same order as muparser's evaluation) is read
// into a short list of steps on a stack whose entries are blocks of points; each step runs over a
// whole block, so the loop the compiler vectorises is the loop over the points.
#include <cstddef>
#include <vector>

namespace mu {
class ParserByteCode;
}

namespace FuncGlobals::typed {

// The sign the byte code is given for a unary minus, so that the reader knows it for a negation.
double negate(double a);

class ColumnProgram {
public:
    // Points are taken this many at a time.
    static constexpr std::size_t Block = 256;

    // Reads the byte code whose variables are bound to `u` and `v` (either may be null) and to the
    // coefficients A to F of FuncGlobals::Coefficients. False, leaving the program empty, when the
    // code holds something this reader does not know (the caller then evaluates point by point).
    bool read(const mu::ParserByteCode& code, const double* u, const double* v);
    bool empty() const { return steps_.empty(); }

    // out[i] = the value at (u[i], v[i]) for i < n with the coefficients held now (`v` is read only
    // when the code reads its variable); NaN where the value is not finite.
    void run(const double* u, const double* v, double* out, std::size_t n) const;

private:
    enum class Code {
        Load,
        LoadSquare,
        LoadCube,
        LoadFourth,
        LoadScaled,
        Add,
        Subtract,
        Multiply,
        Divide,
        Power,
        Negate,
        Call
    };
    // Where a load reads: the column u or v, or a coefficient (a number for the whole call).
    enum Source { U, V, A, B, C, D, E, F, Number };
    struct Step {
        Code code;
        Source source = Number;
        double scale = 1, offset = 0;  // Load: source*scale + offset (a Number's value is the offset)
        double (*function)(double) = nullptr;  // Call
    };
    std::vector<Step> steps_;
    std::size_t depth_ = 0;
    mutable std::vector<double> stack_;  // depth_ blocks
};

}  // namespace FuncGlobals::typed
