// SPDX-License-Identifier: GPL-3.0-or-later
#include "funclib/FuncGlobals.h"

#include <cmath>

#include "runtime/Numbers.h"

namespace FuncGlobals {

std::int16_t FunctionId = 0;
CoefficientSet Coefficients;
std::int16_t FunctionCount = 0;
std::int16_t DerivativeCount = 0;
std::int16_t DxFuncId = 0;
std::int16_t DyFuncId = 0;
std::int16_t XtFuncId = 0;
std::int16_t YtFuncId = 0;
rt::BoundedArray<std::string, 0, 20> FuncCaption;

const char* ExplicitCaption(int id)
{
    return id >= 1 && id <= ExplicitFamilyCount ? FamilyTables::kExplicit[id - 1].caption : "";
}

namespace {

// The selected family at x; kUndefined where the point is undefined or no family is selected.
double explicitValue(const double& x)
{
    if (FunctionId < 1 || FunctionId > ExplicitFamilyCount)
        return FamilyTables::kUndefined;
    return FamilyTables::kExplicit[FunctionId - 1].value(x, Coefficients);
}

}  // namespace

double YFunc(const double& x)
{
    FunctionCount = ExplicitFamilyCount;
    const double y = explicitValue(x);
    return y == y ? y : 0.0;
}

void YFuncs(const double* xs, double* ys, std::size_t n, std::size_t& done)
{
    FunctionCount = ExplicitFamilyCount;
    if (FunctionId < 1 || FunctionId > ExplicitFamilyCount) {
        for (; done < n; ++done)
            ys[done] = 0.0;  // no family: undefined everywhere, which YFunc gives as 0
        return;
    }
    const auto value = FamilyTables::kExplicit[FunctionId - 1].value;
    const CoefficientSet& k = Coefficients;
    for (; done < n; ++done) {
        const double y = value(xs[done], k);
        ys[done] = y == y ? y : 0.0;
    }
}

bool YDefined(const double& x) { return !std::isnan(explicitValue(x)); }

double YPrimeFunc(const double& x)
{
    DerivativeCount = ExplicitFamilyCount;
    if (FunctionId < 1 || FunctionId > ExplicitFamilyCount)
        return 0.0;
    const double slope = FamilyTables::kExplicit[FunctionId - 1].slope(x, Coefficients);
    return slope == slope ? slope : 0.0;
}

const char* DyCaption(int id) { return id >= 1 && id <= RateFamilyCount ? FamilyTables::kRates[id - 1].dy : ""; }

const char* DxCaption(int id) { return id >= 1 && id <= RateFamilyCount ? FamilyTables::kRates[id - 1].dx : ""; }

namespace {

// One rate family with coefficients (p, q, r) at (x, y). Family 1 is the formula itself; the others
// give 1 when their three coefficients are all 0; a number outside the catalogue gives 0.
double rate(int id, double x, double y, double p, double q, double r, bool dxColumn = false)
{
    if (id == 1)
        return FamilyTables::kRates[0].value(x, y, p, q, r, dxColumn);
    if (id < 2 || id > RateFamilyCount)
        return 0.0;
    if (p == 0.0 && q == 0.0 && r == 0.0)
        return 1.0;
    return FamilyTables::kRates[id - 1].value(x, y, p, q, r, dxColumn);
}

}  // namespace

double DyFunc(const double& x, const double& y)
{
    const auto& k = Coefficients;
    return rate(DyFuncId, x, y, k.A, k.B, k.C);
}

double DxFunc(const double& x, const double& y)
{
    const auto& k = Coefficients;
    return rate(DxFuncId, x, y, k.D, k.E, k.F, true);
}

const char* XtCaption(int id)
{
    return id >= 1 && id <= ParametricFamilyCount ? FamilyTables::kParametric[id - 1].x : "";
}

const char* YtCaption(int id)
{
    return id >= 1 && id <= ParametricFamilyCount ? FamilyTables::kParametric[id - 1].y : "";
}

namespace {

// One parametric family with coefficients (p, q, r); 0 for a number outside the catalogue.
double parametric(int id, double t, double p, double q, double r)
{
    return id >= 1 && id <= ParametricFamilyCount ? FamilyTables::kParametric[id - 1].value(t, p, q, r) : 0.0;
}

}  // namespace

double XtFunc(const float& t)
{
    const auto& k = Coefficients;
    return parametric(XtFuncId, static_cast<double>(t), k.A, k.B, k.C);
}

double YtFunc(const float& t)
{
    const auto& k = Coefficients;
    return parametric(YtFuncId, static_cast<double>(t), k.D, k.E, k.F);
}

}  // namespace FuncGlobals
