// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The function library: the catalogue of explicit families with their values and derivatives, and
// the module state shared by every screen (the selected families and the one set of coefficients).
// The rate families of the slope field and the parametric families keep their selectors here too.
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>

#include "funclib/Families.h"
#include "runtime/BoundedArray.h"

namespace FuncGlobals {

// Number of the selected explicit family, 1 to 15; 0 before any family is chosen.
extern std::int16_t FunctionId;
// The program's one set of coefficients. Explicit families read A to E; rate and parametric
// families read A to F.
extern CoefficientSet Coefficients;
// The number of explicit families; YFunc stores 15 here on every call.
extern std::int16_t FunctionCount;
// The counter YPrimeFunc keeps for itself (nothing reads it).
extern std::int16_t DerivativeCount;
// Selected rate families of the slope field and parametric families.
extern std::int16_t DxFuncId;
extern std::int16_t DyFuncId;
extern std::int16_t XtFuncId;
extern std::int16_t YtFuncId;
// Captions of the explicit families shown by function menus and labels; 1 to 15 are used.
extern rt::BoundedArray<std::string, 0, 20> FuncCaption;

constexpr int ExplicitFamilyCount = static_cast<int>(std::size(FamilyTables::kExplicit));

// The catalogue caption of explicit family id (1..15); "" for any other number.
const char* ExplicitCaption(int id);

// Value of the selected explicit family at x; 0 where the point is undefined or no family is
// selected. Raises Overflow or Division by zero where the arithmetic fails.
double YFunc(const double& x);
// ys[k] = YFunc(xs[k]) for k from `done` to n, in order, with the family looked up once; `done` counts
// the points worked out, so that after a run-time error it is the point where the error came.
void YFuncs(const double* xs, double* ys, std::size_t n, std::size_t& done);
// True where the selected family is defined at x (YFunc gives its value there, not the 0 that marks
// an undefined point). Raises what YFunc raises.
bool YDefined(const double& x);

// The exact derivative of the selected explicit family at x; 0 where it is undefined.
double YPrimeFunc(const double& x);

// The rate families of the slope field: captions of family id (1..15), "" for any other number.
constexpr int RateFamilyCount = static_cast<int>(std::size(FamilyTables::kRates));
const char* DyCaption(int id);
const char* DxCaption(int id);

// dy of family DyFuncId with A, B, C and dx of family DxFuncId with D, E, F at (x, y). Families 2 to
// 15 give 1 when their three coefficients are all 0; the logarithm families give 0 where their
// argument is not positive; a number outside 1..15 gives 0.
double DyFunc(const double& x, const double& y);
double DxFunc(const double& x, const double& y);

// The increment of y over one step h in x along the field, by the midpoint rule and by the classical
// fourth-order rule. A zero dx divides by zero: Division by zero, or Overflow for 0 / 0. They are
// rows of the step-method table and are defined with it (funclib/StepMethods.cpp).
double Runga2Step(const double& x, const double& y, const double& h);
double Runga4Step(const double& x, const double& y, const double& h);

// The parametric families: x(t) with A, B, C and y(t) with D, E, F; captions of family id (1..12), ""
// for any other number.
constexpr int ParametricFamilyCount = static_cast<int>(std::size(FamilyTables::kParametric));
const char* XtCaption(int id);
const char* YtCaption(int id);

// x(t) of family XtFuncId and y(t) of family YtFuncId, computed in double precision from the single t;
// 0 for a number outside 1..12 and where family 12's denominator is 0.
double XtFunc(const float& t);
double YtFunc(const float& t);

}  // namespace FuncGlobals
