// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The functions a typed expression may call, one row each: the name and the other names it may be
// typed by, its value in doubles, how GiNaC writes it (which gives its exact derivative), its domain,
// and how the entry's help says it. The reader, the evaluators, the derivative, the printers and the
// entry's help all read this table, and nothing else names a function: a name that is not in it is
// refused by the reader ("unknown name 'sinn' at 1"), so nothing after the reader meets one.
// A new function is a new row of kTypedFunctions in TypedFunctions.cpp.
#include <array>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace GiNaC {
class ex;
}

namespace FuncGlobals {

struct TypedFunctionRow {
    const char* name;  // lower case; the understood text, the byte code and the help write it so
    std::array<const char*, 2> aliases{};  // other names it may be typed by (lower case), or null
    double (*value)(double a) = nullptr;  // muparser's byte code and the folding of numbers compute this
    // The function written with GiNaC's own functions, whose derivatives GiNaC knows ("1/tan(a)")...
    GiNaC::ex (*symbolic)(const GiNaC::ex& a) = nullptr;
    // ...or, for a function GiNaC does not have (or whose derivative GiNaC writes at too great a cost),
    // its derivative f'(a), given a and the row's own f(a): GiNaC is then given a function of its own
    // for the row, with this rule (and the chain rule does the rest), and, where `ofNumber` is given,
    // the exact value of a number (abs(-3) is 3, so 0*abs(0)^(-1) is still a division by 0).
    GiNaC::ex (*derivative)(const GiNaC::ex& a, const GiNaC::ex& fa) = nullptr;
    GiNaC::ex (*ofNumber)(const GiNaC::ex& number) = nullptr;
    // The domain: where it is defined (null: every real number), and whether a finite argument can
    // give a result too large for a double (exp(1000)). Where either may fail the derivative is
    // undefined wherever the function is, and a function undefined at 0 keeps a part that is 0
    // wherever it is evaluated (ln(x - x)) from GiNaC, which would throw.
    bool (*definedAt)(double a) = nullptr;
    bool overflows = false;
    // Said apart, after the names before it, in the entry's help: a template of Words.h, with the
    // names before it, the row's name and its alias ("%1, and %2 or %3, both the natural logarithm").
    const char* said = nullptr;

    bool finiteEverywhere() const { return !definedAt && !overflows; }
    bool undefinedAtZero() const { return definedAt && !definedAt(0); }
};

// Every row, in the order the help lists them.
std::span<const TypedFunctionRow> typedFunctions();

// The row typed as `word` (its name or an alias, in any case), or null.
const TypedFunctionRow* findTypedFunction(std::string_view word);

// The names for the entry's help: "sin cos ... abs, and ln or log, both the natural logarithm".
std::string typedFunctionsHelp();

// The row called with `a`, as a GiNaC expression.
GiNaC::ex symbolicCall(const TypedFunctionRow& f, const GiNaC::ex& a);

// GiNaC's names of the functions that rows stand for ("log" for ln), with their rows: how a
// derivative GiNaC found is written back as a typed expression.
const std::vector<std::pair<std::string, const TypedFunctionRow*>>& symbolicNames();

}  // namespace FuncGlobals
