// SPDX-License-Identifier: GPL-3.0-or-later
// A typed function made and evaluated (see TypedExpression.h): the text read into a tree
// (TypedReader), written out for the entry and for muparser (TypedText), compiled to muparser's byte
// code, which knows exactly the functions of the table (TypedFunctions), and its exact derivative
// (TypedDerivative) compiled the same way.
#include "funclib/TypedExpression.h"

#include <cmath>
#include <limits>

#include <muParser.h>

#include "funclib/FuncGlobals.h"
#include "funclib/TypedColumn.h"
#include "funclib/TypedDerivative.h"
#include "funclib/TypedFunctions.h"
#include "funclib/TypedReader.h"
#include "funclib/TypedText.h"
#include "funclib/Words.h"

namespace FuncGlobals {

// The compiled byte code and the variables it reads, and the same code read as a column program.
struct TypedExpression::Compiled {
    mu::Parser parser;
    mutable double u = 0, v = 0;
    typed::ColumnProgram columns;
};

TypedExpression::TypedExpression() = default;
TypedExpression::~TypedExpression() = default;

namespace {

// Compiles fully bracketed text over `variables` (bound to u and v) and the coefficients. The byte
// code calls each function of the table through the row's own value, and knows no other function.
bool compileMuparser(TypedExpression::Compiled& c, const std::string& text, const VariableNames& variables)
{
    try {
        c.parser.ClearFun();
        // The sign is our own function, which the column program knows for a negation.
        c.parser.ClearInfixOprt();
        c.parser.DefineInfixOprt("-", &typed::negate);
        for (const TypedFunctionRow& f : typedFunctions())
            c.parser.DefineFun(f.name, f.value);
        double* bound[2] = {&c.u, &c.v};
        for (std::size_t i = 0; i < variables.size() && i < 2; ++i)
            c.parser.DefineVar(variables[i], bound[i]);
        double* coefficients[6] = {&Coefficients.A, &Coefficients.B, &Coefficients.C,
                                   &Coefficients.D, &Coefficients.E, &Coefficients.F};
        for (int i = 0; i < 6; ++i)
            c.parser.DefineVar(std::string(1, static_cast<char>('A' + i)), coefficients[i]);
        c.parser.SetExpr(text);
        c.parser.Eval();  // parses now, so that a later evaluation never throws
        // Read after the evaluation, which leaves the finished byte code; if the program cannot
        // take it, values() goes point by point.
        c.columns.read(c.parser.GetByteCode(), &c.u, &c.v);
        return true;
    } catch (const mu::Parser::exception_type&) {
        return false;
    }
}

}  // namespace

std::unique_ptr<TypedExpression> TypedExpression::compile(const std::string& text, const VariableNames& variables,
                                                          std::string& error)
{
    error.clear();
    int characters = 0;
    for (unsigned char c : text)
        characters += (c & 0xC0) != 0x80;
    if (characters > MaxLength) {
        error = words::fill(words::tooLong, {std::to_string(MaxLength)});
        return nullptr;
    }
    typed::NodePtr tree;
    try {
        tree = typed::read(text, variables, MaxDepth);
    } catch (const typed::Refusal& r) {
        error = r.message;
        return nullptr;
    }

    std::unique_ptr<TypedExpression> e(new TypedExpression);
    e->text_ = text;
    typed::writeUnderstood(*tree, e->understood_);
    e->compiled_ = std::make_unique<Compiled>();
    std::string bracketed;
    typed::toMuparser(*tree, bracketed);
    // Coefficients, constants and the byte code are all bound inside; the compile cannot fail for a
    // tree the reader built, but if it does the expression is refused rather than half made.
    if (!compileMuparser(*e->compiled_, bracketed, variables)) {
        error = words::notEvaluated;
        return nullptr;
    }
    if (variables.empty())
        return e;

    // The exact derivative with respect to the first variable.
    try {
        const typed::ExactDerivative d = typed::exactDerivative(*tree, variables, bracketed);
        if (!d.failure.empty()) {
            e->derivativeText_ = d.failure;
            return e;
        }
        std::unique_ptr<TypedExpression> derivative(new TypedExpression);
        derivative->compiled_ = std::make_unique<Compiled>();
        if (!compileMuparser(*derivative->compiled_, d.bracketed, variables)) {
            e->derivativeText_ = words::noDerivativeEvaluated;
            return e;
        }
        e->derivativeText_ = d.shown;
        derivative->text_ = derivative->understood_ = e->derivativeText_;
        e->derivative_ = std::move(derivative);
    } catch (...) {
        // GiNaC refuses some expressions outright (a division by an expression that simplifies to
        // 0, a logarithm of 0); the function itself still evaluates, with its derivative undefined.
        e->derivativeText_ = words::noDerivativeGinac;
    }
    return e;
}

double TypedExpression::operator()(double u, double v) const
{
    compiled_->u = u;
    compiled_->v = v;
    const double r = compiled_->parser.Eval();
    return std::isfinite(r) ? r : std::numeric_limits<double>::quiet_NaN();
}

void TypedExpression::values(const double* u, const double* v, double* out, std::size_t n) const
{
    if (!compiled_->columns.empty()) {
        compiled_->columns.run(u, v, out, n);
        return;
    }
    for (std::size_t i = 0; i < n; ++i)
        out[i] = (*this)(u[i], v ? v[i] : 0);
}

}  // namespace FuncGlobals
