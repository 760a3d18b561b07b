// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Where the screens' functions come from: a family of the catalogues, selected by FunctionId and
// the other family numbers, or a function the teacher typed. A screen evaluates through the
// procedures below and does not need to know which it has. A family keeps its rules (an undefined
// point is 0, overflows raise the run-time errors); a typed function never raises and yields NaN
// wherever it is undefined or not finite, which the screens draw as a gap and report in words.
#include <cstddef>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "funclib/FuncGlobals.h"

#include "funclib/TypedExpression.h"

namespace FuncGlobals {

// A typed y = f(x) in x and A to E, with its exact derivative.
struct TypedFunction {
    std::unique_ptr<TypedExpression> f;
    // Reads `text`; null with `error` set when it cannot be taken.
    static std::shared_ptr<const TypedFunction> make(const std::string& text, std::string& error);
    double value(double x) const { return (*f)(x); }
    // f'(x), NaN where f or its derivative is undefined or the derivative could not be found (the
    // derivative's byte code is NaN wherever the function is undefined: see TypedExpression).
    double slope(double x) const
    {
        const TypedExpression* d = f->derivative();
        return d ? (*d)(x) : std::numeric_limits<double>::quiet_NaN();
    }
};

// Typed rates dy and dx of the slope field, in x, y and A to F.
struct TypedRates {
    std::unique_ptr<TypedExpression> dy, dx;
    static std::shared_ptr<const TypedRates> make(const std::string& dyText, const std::string& dxText,
                                                  std::string& error);
};

// A typed parametric curve x(t), y(t) in t and A to F.
struct TypedCurve {
    std::unique_ptr<TypedExpression> x, y;
    static std::shared_ptr<const TypedCurve> make(const std::string& xText, const std::string& yText,
                                                  std::string& error);
};

// The typed functions in use instead of the families, or null while the families are in use. Each
// screen installs its own when it is activated and when the teacher types one, as it copies its
// coefficients.
extern const TypedFunction* TypedExplicit;
extern const TypedRates* TypedRate;
extern const TypedCurve* TypedParametric;

// y = f(x) and f'(x): the typed function in use, else YFunc and YPrimeFunc. Inline: the scans call
// them once a point.
inline double ExplicitValue(const double& x) { return TypedExplicit ? TypedExplicit->value(x) : YFunc(x); }
inline double ExplicitSlope(const double& x) { return TypedExplicit ? TypedExplicit->slope(x) : YPrimeFunc(x); }
// True where the function in use is defined at x (YDefined for a family).
bool ExplicitDefined(const double& x);

// ys[i] = ExplicitValue(xs[i]) (ExplicitSlope) for i < n. A typed function is evaluated a column at
// a time; a family point by point in order, so that a run-time error is raised at the same point.
void ExplicitValues(const double* xs, double* ys, std::size_t n);
// The same from the point `done` on, counting in `done` the points worked out (after a family's
// run-time error, the point where it came).
void ExplicitValuesFrom(const double* xs, double* ys, std::size_t n, std::size_t& done);
void ExplicitSlopes(const double* xs, double* ys, std::size_t n);

// dy and dx at (x, y): the typed rates in use, else DyFunc and DxFunc. The steps along them are the
// rows of funclib/StepMethods.h.
double RateDy(const double& x, const double& y);
double RateDx(const double& x, const double& y);

// The explicit function in use at points known beforehand (the points a sum asks for, in its order).
// A typed function's values there are computed in one column when it is made; asked at the next of
// those points it answers from the column, and asked anywhere else it evaluates there, so that
// either way the answer is ExplicitValue(x) bit for bit. With a family in use it evaluates each
// point as it is asked (raising where YFunc raises).
class ExplicitAhead {
public:
    explicit ExplicitAhead(std::vector<double> xs);
    double operator()(double x);

private:
    std::vector<double> xs_, ys_;
    std::size_t next_ = 0;
};

// x(t) and y(t): the typed curve in use, else XtFunc and YtFunc.
double CurveX(const float& t);
double CurveY(const float& t);
// xs[i] = CurveX(ts[i]) and ys[i] = CurveY(ts[i]) for i < n; a typed curve a column at a time, the
// families point by point in order (x then y at each t).
void CurvePoints(const float* ts, double* xs, double* ys, std::size_t n);

// The explicit function in use when it is made (the family with its coefficients, or the typed
// function), kept to be evaluated later whatever is in use by then: a drawn curve heard or walked
// along after the screen has moved on. Evaluating installs the kept state for the call only and puts
// back what was there. Never raises: a point where the function is undefined or where a family's
// arithmetic fails is NaN.
class ExplicitSnapshot {
public:
    enum class What { Value, Slope };
    ExplicitSnapshot(What what, std::shared_ptr<const TypedFunction> typed);
    std::vector<double> at(const std::vector<double>& xs) const;
    double at(double x) const { return at(std::vector<double>{x}).front(); }

private:
    What what_;
    std::int16_t id_;
    CoefficientSet coefficients_;
    std::shared_ptr<const TypedFunction> typed_;
};

}  // namespace FuncGlobals
