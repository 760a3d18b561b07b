// SPDX-License-Identifier: GPL-3.0-or-later
// The Taylor coefficients (see TaylorSeries.h): the function read by the typed functions' reader,
// handed to GiNaC with its coefficients as exact numbers, differentiated once a term, each
// derivative's value at the centre kept exact and as a double.
#include "funclib/TaylorSeries.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <optional>
#include <sstream>

#include <ginac/ginac.h>

#include "funclib/FuncGlobals.h"
#include "funclib/TypedExpression.h"
#include "funclib/TypedReader.h"
#include "funclib/TypedSymbolic.h"
#include "funclib/Words.h"

namespace FuncGlobals {

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
// A derivative with more parts than this is not worked out: it would take longer than a click.
constexpr std::size_t kMaxParts = 20000;
constexpr int kBoundSamples = 32;
// An exponent larger than this, as a number, is not worked out exactly: a power of the centre's exact
// value (3^123456789, say) would take gigabytes before the first term.
constexpr double kMaxExactExponent = 10000;

// A double as its shortest decimal text that reads back the same ("0.1", "-2"), so that GiNaC keeps
// it as the exact decimal fraction a person typed.
std::string shortest(double v)
{
    char text[40];
    for (int digits = 1; digits <= 17; ++digits) {
        std::snprintf(text, sizeof text, "%.*g", digits, v);
        if (std::strtod(text, nullptr) == v)
            break;
    }
    return text;
}

GiNaC::ex exactOf(double v) { return typed::exactNumber(v, shortest(v)); }

// Counts the parts of an expression, stopping once past the limit.
std::size_t parts(const GiNaC::ex& e, std::size_t limit)
{
    std::size_t n = 1;
    for (std::size_t i = 0; i < e.nops() && n <= limit; ++i)
        n += parts(e.op(i), limit - n);
    return n;
}

// The value in doubles of an expression of numbers (no symbol left); NaN where it is not real or
// holds a function the table does not know.
double numericValue(const GiNaC::ex& e)
{
    using namespace GiNaC;
    if (is_a<numeric>(e)) {
        const numeric& v = ex_to<numeric>(e);
        return v.is_real() ? v.to_double() : kNaN;
    }
    if (is_a<constant>(e))
        return numericValue(e.evalf());
    if (is_a<add>(e) || is_a<mul>(e)) {
        double r = is_a<add>(e) ? 0 : 1;
        for (std::size_t i = 0; i < e.nops(); ++i)
            r = is_a<add>(e) ? r + numericValue(e.op(i)) : r * numericValue(e.op(i));
        return r;
    }
    if (is_a<power>(e))
        return std::pow(numericValue(e.op(0)), numericValue(e.op(1)));
    if (is_a<function>(e) && e.nops() == 1) {
        const std::string& name = ex_to<function>(e).get_name();
        for (const auto& [symbolic, row] : symbolicNames())
            if (symbolic == name)
                return row->value(numericValue(e.op(0)));
    }
    return kNaN;
}

// Writes the coefficients' values into the tree as the numbers they are, as if typed there: the
// function GiNaC is given is the one drawn, and a part that these values make 0 where it divides is
// found before GiNaC meets it.
void withValues(typed::Node& n, const CoefficientSet& k)
{
    if (n.op == typed::Op::Variable && n.name.size() == 1 && n.name[0] >= 'A' && n.name[0] <= 'F') {
        const double values[] = {k.A, k.B, k.C, k.D, k.E, k.F};
        n.op = typed::Op::Number;
        n.value = values[n.name[0] - 'A'];
        n.shown = shortest(n.value);
    }
    for (typed::NodePtr& a : n.args)
        withValues(*a, k);
}

// The value of a part in doubles with x at `x`; none for another name.
std::optional<double> valueAt(const typed::Node& n, double x)
{
    using typed::Op;
    switch (n.op) {
    case Op::Number:
    case Op::Constant: return n.value;
    case Op::Variable: return n.name == "x" ? std::optional<double>(x) : std::nullopt;
    case Op::Negate: {
        const auto a = valueAt(*n.args[0], x);
        return a ? std::optional<double>(-*a) : std::nullopt;
    }
    case Op::Call: {
        const auto a = valueAt(*n.args[0], x);
        return a && n.args.size() == 1 ? std::optional<double>(n.function->value(*a)) : std::nullopt;
    }
    default: break;
    }
    const auto a = valueAt(*n.args[0], x), b = valueAt(*n.args[1], x);
    if (!a || !b)
        return std::nullopt;
    switch (n.op) {
    case Op::Add: return *a + *b;
    case Op::Subtract: return *a - *b;
    case Op::Multiply: return *a * *b;
    case Op::Divide: return *a / *b;
    default: return std::pow(*a, *b);
    }
}

// The first exponent of the tree that is beyond kMaxExactExponent at the centre, if any (the
// derivatives' powers keep their exponents, or lower them by the degree).
// Why the derivative of order `degree` has no value at the centre.
std::string missing(int degree)
{
    return degree == 0 ? words::noValue : words::fill(words::noDerivativeAt, {std::to_string(degree)});
}

std::optional<double> hugeExponent(const typed::Node& n, double centre)
{
    if (n.op == typed::Op::Power)
        if (const auto e = valueAt(*n.args[1], centre); e && !std::isnan(*e) && std::fabs(*e) > kMaxExactExponent)
            return e;
    for (const typed::NodePtr& a : n.args)
        if (const auto e = hugeExponent(*a, centre))
            return e;
    return std::nullopt;
}

}  // namespace

// The function and its derivatives so far, in GiNaC's terms.
struct TaylorSeries::Symbolic {
    GiNaC::realsymbol x{"x"};
    GiNaC::ex centre;
    std::vector<GiNaC::ex> derivatives;  // f, f', f'', ... as far as the terms asked for
};

TaylorSeries::TaylorSeries() = default;
TaylorSeries::TaylorSeries(TaylorSeries&&) noexcept = default;
TaylorSeries& TaylorSeries::operator=(TaylorSeries&&) noexcept = default;
TaylorSeries::~TaylorSeries() = default;

TaylorSeries TaylorSeries::ofFamily(int family, double centre, const CoefficientSet& k)
{
    if (family < 1 || family > ExplicitFamilyCount) {
        TaylorSeries s;
        s.centre_ = centre;
        s.refusal_ = words::noFunction;
        return s;
    }
    return ofText(FamilyTables::kExplicit[family - 1].typed, centre, k);
}

TaylorSeries TaylorSeries::ofText(const std::string& text, double centre, const CoefficientSet& k)
{
    TaylorSeries s;
    s.centre_ = centre;
    try {
        const typed::NodePtr tree = typed::read(text, {"x"}, TypedExpression::MaxDepth);
        withValues(*tree, k);
        if (const auto e = hugeExponent(*tree, centre)) {
            std::ostringstream exponent;
            exponent << *e;
            s.refusal_ = words::fill(words::hugeExponent, {exponent.str()});
            return s;
        }
        if (typed::dividesByZero(*tree, {"x"})) {
            s.refusal_ = words::zeroDivides;
            return s;
        }
        auto symbolic = std::make_unique<Symbolic>();
        symbolic->centre = exactOf(centre);
        symbolic->derivatives.push_back(typed::toGinac(*tree, {{"x", symbolic->x}}));
        s.symbolic_ = std::move(symbolic);
    } catch (const typed::Refusal& r) {
        s.refusal_ = r.message;
    } catch (const std::exception&) {
        s.refusal_ = words::notExact;
    }
    return s;
}

const TaylorTerm& TaylorSeries::term(int k)
{
    k = std::clamp(k, 0, kMaxDegree);
    while (static_cast<int>(terms_.size()) <= k) {
        TaylorTerm t;
        t.degree = static_cast<int>(terms_.size());
        if (!symbolic_) {
            t.state = TaylorTerm::State::Undefined;
            t.why = refusal_;
        } else if (!terms_.empty() && terms_.back().state != TaylorTerm::State::Found) {
            t.state = terms_.back().state;
            t.why = terms_.back().why;
        } else {
            std::vector<GiNaC::ex>& d = symbolic_->derivatives;
            try {
                if (static_cast<int>(d.size()) <= t.degree)
                    d.push_back(d.back().diff(symbolic_->x));
                if (parts(d[t.degree], kMaxParts) > kMaxParts)
                    throw std::length_error("too long");
                const GiNaC::ex at = d[t.degree].subs(symbolic_->x == symbolic_->centre);
                const GiNaC::ex c = at / GiNaC::factorial(t.degree);
                if (GiNaC::is_a<GiNaC::numeric>(c) && GiNaC::ex_to<GiNaC::numeric>(c).is_rational()) {
                    std::ostringstream out;
                    out << c;
                    t.exact = out.str();
                }
                t.value = numericValue(c);
                if (std::isinf(t.value) || (std::isnan(t.value) && !t.exact.empty())) {
                    t.state = TaylorTerm::State::TooLarge;
                    t.why = words::coefficientTooLarge;
                } else if (std::isnan(t.value)) {
                    t.state = TaylorTerm::State::Undefined;
                    t.why = missing(t.degree);
                }
            } catch (const std::length_error&) {
                t.state = TaylorTerm::State::TooLarge;
                t.why = words::derivativeTooLong;
            } catch (const std::exception&) {
                // GiNaC refuses a pole outright (ln 0, 0^-1): the derivative does not exist there.
                t.state = TaylorTerm::State::Undefined;
                t.why = missing(t.degree);
            }
        }
        terms_.push_back(std::move(t));
    }
    return terms_[static_cast<std::size_t>(k)];
}

double TaylorSeries::polynomial(int n, double x) const
{
    if (n < 0 || n >= static_cast<int>(terms_.size()))
        return kNaN;
    const double h = x - centre_;
    double p = 0;
    for (int k = n; k >= 0; --k) {
        const TaylorTerm& t = terms_[static_cast<std::size_t>(k)];
        if (t.state != TaylorTerm::State::Found)
            return kNaN;
        p = p * h + t.value;
    }
    return p;
}

double TaylorSeries::lagrangeBound(int n, double x)
{
    if (n + 1 > kMaxDegree || term(n + 1).state != TaylorTerm::State::Found)
        return kNaN;
    const auto at = static_cast<std::size_t>(n);
    if (at < bounds_.size() && bounds_[at].first == x)
        return bounds_[at].second;
    if (bounds_.size() <= at)
        bounds_.resize(at + 1, {kNaN, kNaN});
    const GiNaC::ex& d = symbolic_->derivatives[static_cast<std::size_t>(n + 1)];
    double largest = 0;
    try {
        for (int i = 0; i <= kBoundSamples; ++i) {
            const double t = centre_ + (x - centre_) * i / kBoundSamples;
            const double v = std::fabs(numericValue(d.subs(symbolic_->x == GiNaC::numeric(t)).evalf()));
            if (!std::isfinite(v))
                return kNaN;
            largest = std::max(largest, v);
        }
    } catch (const std::exception&) {
        return kNaN;
    }
    bounds_[at] = {x, largest * std::pow(std::fabs(x - centre_), n + 1) / std::tgamma(n + 2.0)};
    return bounds_[at].second;
}

std::string TaylorSeries::termText(const TaylorTerm& term, double centre)
{
    if (term.state != TaylorTerm::State::Found)
        return term.why;
    std::string base = "x";
    if (centre != 0)
        base = centre > 0 ? "(x - " + shortest(centre) + ")" : "(x + " + shortest(-centre) + ")";
    const int k = term.degree;
    const std::string power = k == 0 ? "" : k == 1 ? base : base + "^" + std::to_string(k);
    if (term.value == 0)
        return "0";
    if (term.exact.empty()) {
        char text[40];
        std::snprintf(text, sizeof text, "%.6g", term.value);
        return text + power;
    }
    // p/q as GiNaC writes it: the sign, then the numerator (left out when it is 1 and x stands there).
    std::string numerator = term.exact, denominator;
    if (const auto slash = numerator.find('/'); slash != std::string::npos) {
        denominator = numerator.substr(slash);
        numerator.resize(slash);
    }
    std::string sign;
    if (numerator[0] == '-') {
        sign = "-";
        numerator.erase(0, 1);
    }
    if (k > 0 && numerator == "1")
        numerator.clear();
    return sign + numerator + power + denominator;
}

}  // namespace FuncGlobals
