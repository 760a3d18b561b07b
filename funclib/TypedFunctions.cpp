// SPDX-License-Identifier: GPL-3.0-or-later
// The table of the functions a typed expression may call (see TypedFunctions.h), and the few lines
// that hand a row to GiNaC: its own function where it has one, else a function made from the row's
// derivative rule.
#include "funclib/TypedFunctions.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <string>

#include <ginac/ginac.h>

#include "funclib/Words.h"

namespace FuncGlobals {

namespace {

using GiNaC::ex;

// The values are written as the functions are defined, in doubles: 1/tan(a) for cot, as the byte
// code has always computed them.
constexpr TypedFunctionRow kTypedFunctions[] = {
    {.name = "sin",
     .value = [](double a) { return std::sin(a); },
     .symbolic = [](const ex& a) -> ex { return sin(a); }},
    {.name = "cos",
     .value = [](double a) { return std::cos(a); },
     .symbolic = [](const ex& a) -> ex { return cos(a); }},
    {.name = "tan",
     .value = [](double a) { return std::tan(a); },
     .symbolic = [](const ex& a) -> ex { return tan(a); },
     .definedAt = [](double a) { return std::cos(a) != 0; }},
    {.name = "cot",
     .value = [](double a) { return 1 / std::tan(a); },
     .symbolic = [](const ex& a) -> ex { return 1 / tan(a); },
     .definedAt = [](double a) { return std::sin(a) != 0; }},
    {.name = "sec",
     .value = [](double a) { return 1 / std::cos(a); },
     .symbolic = [](const ex& a) -> ex { return 1 / cos(a); },
     .definedAt = [](double a) { return std::cos(a) != 0; }},
    {.name = "csc",
     .value = [](double a) { return 1 / std::sin(a); },
     .symbolic = [](const ex& a) -> ex { return 1 / sin(a); },
     .definedAt = [](double a) { return std::sin(a) != 0; }},
    {.name = "asin",
     .aliases = {"arcsin"},
     .value = [](double a) { return std::asin(a); },
     .symbolic = [](const ex& a) -> ex { return asin(a); },
     .definedAt = [](double a) { return std::fabs(a) <= 1; }},
    {.name = "acos",
     .aliases = {"arccos"},
     .value = [](double a) { return std::acos(a); },
     .symbolic = [](const ex& a) -> ex { return acos(a); },
     .definedAt = [](double a) { return std::fabs(a) <= 1; }},
    {.name = "atan",
     .aliases = {"arctan"},
     .value = [](double a) { return std::atan(a); },
     .symbolic = [](const ex& a) -> ex { return atan(a); }},
    {.name = "sinh",
     .value = [](double a) { return std::sinh(a); },
     .symbolic = [](const ex& a) -> ex { return sinh(a); },
     .overflows = true},
    {.name = "cosh",
     .value = [](double a) { return std::cosh(a); },
     .symbolic = [](const ex& a) -> ex { return cosh(a); },
     .overflows = true},
    {.name = "tanh",
     .value = [](double a) { return std::tanh(a); },
     .symbolic = [](const ex& a) -> ex { return tanh(a); }},
    {.name = "exp",
     .value = [](double a) { return std::exp(a); },
     .symbolic = [](const ex& a) -> ex { return exp(a); },
     .overflows = true},
    {.name = "ln",
     .aliases = {"log"},
     .value = [](double a) { return std::log(a); },
     .symbolic = [](const ex& a) -> ex { return log(a); },
     .definedAt = [](double a) { return a > 0; },
     .said = words::naturalLogarithm},
    {.name = "sqrt",
     .value = [](double a) { return std::sqrt(a); },
     .symbolic = [](const ex& a) -> ex { return sqrt(a); },
     .definedAt = [](double a) { return a >= 0; }},
    // GiNaC's own abs differentiates through complex conjugates, whose work grows fourfold with each
    // power of a tower (abs(2^x^x^x^...) took minutes): for a real argument u the derivative is
    // u'*u/abs(u), undefined at the corner as it should be.
    {.name = "abs",
     .value = [](double a) { return a >= 0 ? a : -a; },  // as muparser's own abs: -0 stays -0
     .derivative = [](const ex& a, const ex& fa) -> ex { return a / fa; },
     .ofNumber = [](const ex& a) -> ex { return abs(a); }},
};

constexpr std::size_t kRows = std::size(kTypedFunctions);
static_assert(std::ranges::all_of(kTypedFunctions,
                                  [](const TypedFunctionRow& f) {
                                      return f.name && f.value && (f.symbolic == nullptr) != (f.derivative == nullptr);
                                  }),
              "every row has a name, a value, and either a GiNaC form or a derivative rule");

bool sameWord(std::string_view typed, const char* name)
{
    if (!name || typed.size() != std::char_traits<char>::length(name))
        return false;
    for (std::size_t i = 0; i < typed.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(typed[i])) != name[i])
            return false;
    return true;
}

// A row without a GiNaC function of its own becomes one, registered with GiNaC once: its derivative
// is the row's rule, and it is real for a real argument.
unsigned serialOf(std::size_t row);

template <std::size_t Row>
ex ruleDerivative(const ex& a, unsigned)
{
    return kTypedFunctions[Row].derivative(a, GiNaC::function(serialOf(Row), a));
}

template <std::size_t Row>
ex ruleEval(const ex& a)
{
    if (kTypedFunctions[Row].ofNumber && GiNaC::is_exactly_a<GiNaC::numeric>(a))
        return kTypedFunctions[Row].ofNumber(a);
    return GiNaC::function(serialOf(Row), a).hold();
}

template <std::size_t Row>
ex ruleConjugate(const ex& a)
{
    return GiNaC::function(serialOf(Row), a.conjugate());
}

template <std::size_t Row>
unsigned registerRule(const TypedFunctionRow& f)
{
    if (f.symbolic)
        return 0;  // GiNaC's own function stands for it
    // Named apart from GiNaC's own functions (it has an abs): the printers write the row's name.
    return GiNaC::function::register_new(
        GiNaC::function_options(std::string("typed_") + f.name, 1)
            .eval_func(ruleEval<Row>)
            .derivative_func(ruleDerivative<Row>)
            .conjugate_func(ruleConjugate<Row>));
}

template <std::size_t... Row>
std::array<unsigned, kRows> registerRules(std::index_sequence<Row...>)
{
    return {registerRule<Row>(kTypedFunctions[Row])...};
}

unsigned serialOf(std::size_t row)
{
    static const std::array<unsigned, kRows> serials = registerRules(std::make_index_sequence<kRows>());
    return serials[row];
}

}  // namespace

std::span<const TypedFunctionRow> typedFunctions() { return kTypedFunctions; }

const TypedFunctionRow* findTypedFunction(std::string_view word)
{
    for (const TypedFunctionRow& f : kTypedFunctions)
        if (sameWord(word, f.name) || std::ranges::any_of(f.aliases, [&](const char* a) { return sameWord(word, a); }))
            return &f;
    return nullptr;
}

std::string typedFunctionsHelp()
{
    std::string listed;
    for (const TypedFunctionRow& f : kTypedFunctions)
        if (!f.said)
            listed += (listed.empty() ? "" : " ") + std::string(f.name);
    for (const TypedFunctionRow& f : kTypedFunctions)
        if (f.said)
            listed = words::fill(f.said, {listed, f.name, f.aliases[0] ? f.aliases[0] : f.name});
    return listed;
}

GiNaC::ex symbolicCall(const TypedFunctionRow& f, const GiNaC::ex& a)
{
    if (f.symbolic)
        return f.symbolic(a);
    // (ex) keeps the argument whole: a function argument would otherwise lend its own arguments.
    return GiNaC::function(serialOf(static_cast<std::size_t>(&f - kTypedFunctions)), ex(a));
}

const std::vector<std::pair<std::string, const TypedFunctionRow*>>& symbolicNames()
{
    static const auto names = [] {
        std::vector<std::pair<std::string, const TypedFunctionRow*>> found;
        const GiNaC::realsymbol probe("a");
        for (const TypedFunctionRow& f : kTypedFunctions)
            if (const ex call = symbolicCall(f, probe); GiNaC::is_a<GiNaC::function>(call))
                found.emplace_back(GiNaC::ex_to<GiNaC::function>(call).get_name(), &f);
        return found;
    }();
    return names;
}

}  // namespace FuncGlobals
