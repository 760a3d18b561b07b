// SPDX-License-Identifier: GPL-3.0-or-later
#include "funclib/FunctionSource.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

#include "funclib/FuncGlobals.h"
#include "funclib/Words.h"
#include "runtime/RuntimeError.h"

namespace FuncGlobals {

const TypedFunction* TypedExplicit = nullptr;
const TypedRates* TypedRate = nullptr;
const TypedCurve* TypedParametric = nullptr;

namespace {

// The place of a fault in the second of two texts is counted in that text; the message says which.
std::string inText(const char* which, const std::string& error) { return words::fill(words::inText, {which, error}); }

}  // namespace

std::shared_ptr<const TypedFunction> TypedFunction::make(const std::string& text, std::string& error)
{
    auto f = TypedExpression::compile(text, {"x"}, error);
    if (!f)
        return nullptr;
    auto made = std::make_shared<TypedFunction>();
    made->f = std::move(f);
    return made;
}

std::shared_ptr<const TypedRates> TypedRates::make(const std::string& dyText, const std::string& dxText,
                                                   std::string& error)
{
    auto made = std::make_shared<TypedRates>();
    made->dy = TypedExpression::compile(dyText, {"x", "y"}, error);
    if (!made->dy) {
        error = inText("dy", error);
        return nullptr;
    }
    made->dx = TypedExpression::compile(dxText, {"x", "y"}, error);
    if (!made->dx) {
        error = inText("dx", error);
        return nullptr;
    }
    return made;
}

std::shared_ptr<const TypedCurve> TypedCurve::make(const std::string& xText, const std::string& yText,
                                                   std::string& error)
{
    auto made = std::make_shared<TypedCurve>();
    made->x = TypedExpression::compile(xText, {"t"}, error);
    if (!made->x) {
        error = inText("x(t)", error);
        return nullptr;
    }
    made->y = TypedExpression::compile(yText, {"t"}, error);
    if (!made->y) {
        error = inText("y(t)", error);
        return nullptr;
    }
    return made;
}

bool ExplicitDefined(const double& x) { return TypedExplicit ? !std::isnan(TypedExplicit->value(x)) : YDefined(x); }

double RateDy(const double& x, const double& y) { return TypedRate ? (*TypedRate->dy)(x, y) : DyFunc(x, y); }
double RateDx(const double& x, const double& y) { return TypedRate ? (*TypedRate->dx)(x, y) : DxFunc(x, y); }

void ExplicitValuesFrom(const double* xs, double* ys, std::size_t n, std::size_t& done)
{
    if (!TypedExplicit) {
        YFuncs(xs, ys, n, done);
        return;
    }
    if (done < n)
        TypedExplicit->f->values(xs + done, ys + done, n - done);
    done = n;
}

void ExplicitValues(const double* xs, double* ys, std::size_t n)
{
    std::size_t done = 0;
    ExplicitValuesFrom(xs, ys, n, done);
}

void ExplicitSlopes(const double* xs, double* ys, std::size_t n)
{
    if (!TypedExplicit)
        for (std::size_t i = 0; i < n; ++i)
            ys[i] = YPrimeFunc(xs[i]);
    else if (const TypedExpression* d = TypedExplicit->f->derivative())
        d->values(xs, ys, n);
    else
        std::fill(ys, ys + n, std::numeric_limits<double>::quiet_NaN());
}

ExplicitAhead::ExplicitAhead(std::vector<double> xs)
{
    if (!TypedExplicit)
        return;
    xs_ = std::move(xs);
    ys_.resize(xs_.size());
    ExplicitValues(xs_.data(), ys_.data(), xs_.size());
}

double ExplicitAhead::operator()(double x)
{
    // The same bits: 0 and -0 are different points to a function.
    if (next_ < xs_.size() && std::bit_cast<std::uint64_t>(xs_[next_]) == std::bit_cast<std::uint64_t>(x))
        return ys_[next_++];
    return ExplicitValue(x);
}

double CurveX(const float& t) { return TypedParametric ? (*TypedParametric->x)(t) : XtFunc(t); }
double CurveY(const float& t) { return TypedParametric ? (*TypedParametric->y)(t) : YtFunc(t); }

void CurvePoints(const float* ts, double* xs, double* ys, std::size_t n)
{
    if (!TypedParametric) {
        for (std::size_t i = 0; i < n; ++i) {
            xs[i] = XtFunc(ts[i]);
            ys[i] = YtFunc(ts[i]);
        }
        return;
    }
    // The t column in doubles, a block at a time (each float is exactly a double).
    double column[256];
    for (std::size_t start = 0; start < n; start += std::size(column)) {
        const std::size_t m = std::min(std::size(column), n - start);
        std::copy(ts + start, ts + start + m, column);
        TypedParametric->x->values(column, xs + start, m);
        TypedParametric->y->values(column, ys + start, m);
    }
}

ExplicitSnapshot::ExplicitSnapshot(What what, std::shared_ptr<const TypedFunction> typed)
    : what_(what), id_(FunctionId), coefficients_(Coefficients), typed_(std::move(typed))
{ }

std::vector<double> ExplicitSnapshot::at(const std::vector<double>& xs) const
{
    // What the evaluation touches goes back as it was, whatever happens inside.
    struct Restore {
        std::int16_t id = FunctionId, count = FunctionCount, derivatives = DerivativeCount;
        CoefficientSet coefficients = Coefficients;
        const TypedFunction* typed = TypedExplicit;
        ~Restore()
        {
            FunctionId = id;
            FunctionCount = count;
            DerivativeCount = derivatives;
            Coefficients = coefficients;
            TypedExplicit = typed;
        }
    } restore;
    FunctionId = id_;
    Coefficients = coefficients_;
    TypedExplicit = typed_.get();
    std::vector<double> ys;
    ys.reserve(xs.size());
    constexpr double gap = std::numeric_limits<double>::quiet_NaN();
    const bool slope = what_ == What::Slope;
    for (const double x : xs) {
        try {
            const double y = slope ? ExplicitSlope(x) : ExplicitValue(x);
            ys.push_back(std::isfinite(y) && ExplicitDefined(x) ? y : gap);
        } catch (const rt::RuntimeError&) {
            ys.push_back(gap);
        }
    }
    return ys;
}

}  // namespace FuncGlobals
