// SPDX-License-Identifier: GPL-3.0-or-later
// The exact derivative of a typed function (see TypedDerivative.h): the tree handed to GiNaC, which
// differentiates it, and GiNaC's result written back as muparser text and as the text shown.
#include "funclib/TypedDerivative.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include <ginac/ginac.h>

#include "funclib/TypedSymbolic.h"
#include "funclib/TypedText.h"
#include "funclib/Words.h"

namespace FuncGlobals::typed {

namespace {

// True when the tree is 0 wherever it is evaluated (x - x, 0*y): GiNaC reduces such a part to 0 and
// then throws from a division, a power or a logarithm of it, and the C++ exception escapes from the
// middle of its own code, which does not free what it had built. Such an expression is kept from
// GiNaC instead: its derivative is reported as not found.
bool identicallyZero(const Node& n, const std::vector<std::string>& names)
{
    if (n.op == Op::Number || n.op == Op::Constant || n.op == Op::Variable)
        return n.value == 0 && n.op != Op::Variable;
    const double samples[] = {0.7390851332, -1.3247179572, 2.2360679775, 0.5772156649, -3.1415926536};
    for (double s : samples) {
        std::map<std::string, double> at;
        double v = s;
        for (const std::string& name : names) {
            at[name] = v;
            v = v * 1.6180339887 - 0.4142135624;
        }
        const double r = valueAt(n, at);
        if (!(std::fabs(r) < 1e-9))
            return false;
    }
    return true;
}

}  // namespace

// True when some divisor, power base or logarithm's argument in the tree is identically 0.
bool dividesByZero(const Node& n, const std::vector<std::string>& names)
{
    if (withoutVariables(n))  // becomes one number before GiNaC sees it
        return false;
    const bool singular = (n.op == Op::Divide && identicallyZero(*n.args[1], names)) ||
                          ((n.op == Op::Power || (n.op == Op::Call && n.function->undefinedAtZero())) &&
                           identicallyZero(*n.args[0], names));
    if (singular)
        return true;
    for (const NodePtr& a : n.args)
        if (dividesByZero(*a, names))
            return true;
    return false;
}

// A number as GiNaC keeps it: an exact integer or decimal fraction when the text has at most 15
// digits (so that 0.1 is 1/10 and the derivative reads 3*x^2, not 3.0*x^2.0), a float otherwise.
GiNaC::ex exactNumber(double v, const std::string& shown)
{
    if (!shown.empty() && shown.find_first_of("eE") == std::string::npos) {
        std::string digits;
        long scale = 0;
        bool afterPoint = false;
        for (char c : shown) {
            if (c == '.')
                afterPoint = true;
            else {
                digits += c;
                scale += afterPoint ? 1 : 0;
            }
        }
        while (digits.size() > 1 && digits[0] == '0')
            digits.erase(0, 1);
        if (digits.size() <= 15 && scale <= 15) {
            long long numerator = std::stoll(digits);
            long long denominator = 1;
            for (long k = 0; k < scale; ++k)
                denominator *= 10;
            return GiNaC::numeric(static_cast<long>(numerator)) / GiNaC::numeric(static_cast<long>(denominator));
        }
    }
    if (!std::isfinite(v))
        throw Refusal{"not finite"};
    if (v == std::floor(v) && std::fabs(v) < 1e15)
        return GiNaC::numeric(static_cast<long>(v));
    return GiNaC::numeric(v);
}

// a^b, where GiNaC would work out a power of two numbers exactly (and 4^(2^(4e44)) never ends): a
// small whole power of a small fraction stays exact, any other power of numbers is a double.
static GiNaC::ex raise(const GiNaC::ex& a, const GiNaC::ex& b)
{
    using namespace GiNaC;
    if (!is_a<numeric>(a) || !is_a<numeric>(b))
        return pow(a, b);
    const numeric& base = ex_to<numeric>(a);
    const numeric& exponent = ex_to<numeric>(b);
    if (exponent.is_integer() && abs(exponent) <= 32 && base.is_rational() && abs(base.numer()) < 1000000 &&
        base.denom() < 1000000 && !(base.is_zero() && exponent.is_negative()))
        return pow(a, b);
    return exactNumber(std::pow(base.to_double(), exponent.to_double()), "");
}

GiNaC::ex toGinac(const Node& n, const std::map<std::string, GiNaC::realsymbol>& symbols)
{
    using namespace GiNaC;
    // A part without variables becomes one number first, computed in doubles: GiNaC would otherwise
    // work out 9^(9^9) exactly, which never ends.
    if (n.op != Op::Number && n.op != Op::Constant && withoutVariables(n))
        return exactNumber(fold(n), "");
    switch (n.op) {
    case Op::Number: return exactNumber(n.value, n.shown);
    case Op::Constant: return n.name == "pi" ? ex(Pi) : exp(ex(1));
    case Op::Variable: return symbols.at(n.name);
    case Op::Negate: return -toGinac(*n.args[0], symbols);
    case Op::Add: return toGinac(*n.args[0], symbols) + toGinac(*n.args[1], symbols);
    case Op::Subtract: return toGinac(*n.args[0], symbols) - toGinac(*n.args[1], symbols);
    case Op::Multiply: return toGinac(*n.args[0], symbols) * toGinac(*n.args[1], symbols);
    case Op::Divide: return toGinac(*n.args[0], symbols) / toGinac(*n.args[1], symbols);
    case Op::Power: return raise(toGinac(*n.args[0], symbols), toGinac(*n.args[1], symbols));
    case Op::Call: break;
    }
    const ex a = toGinac(*n.args[0], symbols);
    // GiNaC would evaluate the function of a number in arbitrary precision; a double serves.
    if (is_a<numeric>(a))
        return exactNumber(n.function->value(ex_to<numeric>(a).to_double()), "");
    return symbolicCall(*n.function, a);
}

namespace {

// True when some operation of the tree is undefined or overflows for some finite arguments.
bool mayBeUndefined(const Node& n)
{
    if (n.op == Op::Divide || n.op == Op::Power)
        return true;
    if (n.op == Op::Call && !n.function->finiteEverywhere())
        return true;
    for (const NodePtr& a : n.args)
        if (mayBeUndefined(*a))
            return true;
    return false;
}

constexpr std::size_t kMaxDerivativeText = 100000;

// GiNaC's result as fully bracketed muparser text; false for anything the evaluator cannot take.
bool fromGinac(const GiNaC::ex& e, std::string& out)
{
    using namespace GiNaC;
    if (out.size() > kMaxDerivativeText)
        return false;
    if (is_a<numeric>(e)) {
        const numeric& v = ex_to<numeric>(e);
        if (!v.is_real())
            return false;
        const double d = v.to_double();
        if (!std::isfinite(d))
            return false;
        out += '(' + number(d) + ')';
        return true;
    }
    if (is_a<symbol>(e)) {
        out += ex_to<symbol>(e).get_name();
        return true;
    }
    if (is_a<constant>(e)) {
        const ex v = e.evalf();
        return is_a<numeric>(v) && fromGinac(v, out);
    }
    if (is_a<add>(e) || is_a<mul>(e)) {
        out += '(';
        for (std::size_t i = 0; i < e.nops(); ++i) {
            if (i > 0)
                out += is_a<add>(e) ? '+' : '*';
            if (!fromGinac(e.op(i), out))
                return false;
        }
        out += ')';
        return true;
    }
    if (is_a<power>(e)) {
        out += '(';
        if (!fromGinac(e.op(0), out))
            return false;
        out += '^';
        if (!fromGinac(e.op(1), out))
            return false;
        out += ')';
        return true;
    }
    if (is_a<function>(e) && e.nops() == 1) {
        const std::string& name = ex_to<function>(e).get_name();
        const auto& names = symbolicNames();
        const auto found = std::find_if(names.begin(), names.end(), [&](const auto& n) { return n.first == name; });
        if (found == names.end())
            return false;
        out += found->second->name;
        out += '(';
        if (!fromGinac(e.op(0), out))
            return false;
        out += ')';
        return true;
    }
    return false;
}

// A term that a textbook writes after a minus sign: a negative number, or a product whose number is.
bool negativeTerm(const GiNaC::ex& t)
{
    using namespace GiNaC;
    if (is_a<numeric>(t))
        return ex_to<numeric>(t).is_real() && ex_to<numeric>(t) < 0;
    if (is_a<mul>(t))
        for (std::size_t i = 0; i < t.nops(); ++i)
            if (is_a<numeric>(t.op(i)) && ex_to<numeric>(t.op(i)).is_real() && ex_to<numeric>(t.op(i)) < 0)
                return true;
    return false;
}

// The power of `x` a term carries (x^2 and 3*x^2: 2; x^(-1): -1); 0 for a term of no whole power
// (sin(x), sqrt(x)).
int powerOf(const GiNaC::ex& t, const GiNaC::ex& x)
{
    try {
        return t.degree(x);
    } catch (const std::exception&) {  // GiNaC has no degree for a non-whole power of x
        return 0;
    }
}

// The derivative as a textbook writes it: a sum's terms by falling power of `x`, the terms without
// `x` last, joined by " + " and " - " (GiNaC keeps its terms in an order of its own, which would show
// 3*x^2 - 2 as -2+3*x^2); products, powers and functions as GiNaC writes them, with the table's
// names (the natural logarithm GiNaC calls log is ln).
std::string textbook(const GiNaC::ex& e, const GiNaC::ex& x)
{
    using namespace GiNaC;
    if (is_a<add>(e)) {
        std::vector<ex> terms(e.begin(), e.end());
        // Terms with x first, by falling power (compared as they are: a power may be the least int,
        // which has no negative).
        std::stable_sort(terms.begin(), terms.end(), [&](const ex& a, const ex& b) {
            const bool aConstant = !a.has(x), bConstant = !b.has(x);
            return aConstant != bConstant ? bConstant : powerOf(a, x) > powerOf(b, x);
        });
        std::string out;
        for (const ex& t : terms) {
            const bool minus = negativeTerm(t);
            out += out.empty() ? (minus ? "-" : "") : (minus ? " - " : " + ");
            out += textbook(minus ? ex(-t) : t, x);
        }
        return out;
    }
    if (is_a<mul>(e)) {
        if (negativeTerm(e))
            return "-" + textbook(-e, x);
        std::string number, factors;
        for (const ex& f : e) {
            if (is_a<numeric>(f)) {
                number = textbook(f, x);
                continue;
            }
            factors += factors.empty() ? "" : "*";
            factors += is_a<add>(f) ? "(" + textbook(f, x) + ")" : textbook(f, x);
        }
        return number.empty() || number == "1" ? factors : number + "*" + factors;
    }
    if (is_a<power>(e)) {
        const ex& base = e.op(0);
        const ex& exponent = e.op(1);
        if (exponent.is_equal(numeric(1, 2)))
            return "sqrt(" + textbook(base, x) + ")";
        const bool plainBase = is_a<symbol>(base) || is_a<function>(base) || is_a<constant>(base) ||
                               (is_a<numeric>(base) && ex_to<numeric>(base).is_nonneg_integer());
        const bool plainExponent = is_a<numeric>(exponent) && ex_to<numeric>(exponent).is_nonneg_integer();
        return (plainBase ? textbook(base, x) : "(" + textbook(base, x) + ")") + "^" +
               (plainExponent ? textbook(exponent, x) : "(" + textbook(exponent, x) + ")");
    }
    if (is_a<function>(e)) {
        std::string name = ex_to<function>(e).get_name();
        for (const auto& [symbolic, row] : symbolicNames())
            if (symbolic == name)
                name = row->name;
        std::string out = name + "(";
        for (std::size_t i = 0; i < e.nops(); ++i)
            out += (i ? ", " : "") + textbook(e.op(i), x);
        return out + ")";
    }
    std::ostringstream s;
    s << e;
    return s.str();
}

}  // namespace

ExactDerivative exactDerivative(const Node& tree, const std::vector<std::string>& variables,
                                const std::string& bracketed)
{
    ExactDerivative made;
    std::vector<std::string> names(variables.begin(), variables.end());
    for (char c = 'A'; c <= 'F'; ++c)
        names.emplace_back(1, c);
    if (dividesByZero(tree, names)) {
        made.failure = words::noDerivativeZero;
        return made;
    }
    std::map<std::string, GiNaC::realsymbol> symbols;
    for (const std::string& v : variables)
        symbols.emplace(v, GiNaC::realsymbol(v));
    for (char c = 'A'; c <= 'F'; ++c)
        symbols.emplace(std::string(1, c), GiNaC::realsymbol(std::string(1, c)));
    const GiNaC::ex f = toGinac(tree, symbols);
    const GiNaC::ex d = f.diff(symbols.at(variables[0]));
    if (!fromGinac(d, made.bracketed)) {
        made.failure = words::noDerivativeFunction;
        return made;
    }
    // The derivative exists only where the function does. Where the function has an operation that
    // can be undefined (a division, a power, a logarithm, a root, ...), the derivative's byte code
    // also computes the function, times 0: NaN there stays NaN, and one evaluation does both. A
    // function without such an operation is defined wherever it is finite.
    if (mayBeUndefined(tree))
        made.bracketed = "(" + made.bracketed + ")+0*(" + bracketed + ")";
    made.shown = textbook(d, symbols.at(variables[0]));
    return made;
}

}  // namespace FuncGlobals::typed
