// SPDX-License-Identifier: GPL-3.0-or-later
#include "funclib/FuncGlobals.h"

#include <cmath>
#include <optional>

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

using rt::Chk;
using rt::Div;
using rt::Pow;

const char* ExplicitCaption(int id)
{
    static constexpr const char* captions[ExplicitFamilyCount + 1] = {
        "",
        "y = A * (Bx - C)^2 + D",
        "y = Ax^2 + Bx + C",
        "y = A(Bx - C)^3 + D",
        "y = Ax^3 + Bx^2 + Cx + D",
        "y = A*Sin(Bx + C) + Dx + E",
        "y = A*Cos(Bx + C) + Dx + E",
        "y = A*Tan(Bx + C) + Dx + E",
        "y = A*Ln(Bx + C) + D",
        "y = A*e^(Bx + C) + D",
        "y = A /(Bx + C) + D",
        "y = A(Bx - C)^4 + D",
        "y = Ax^4 + Bx^3 + Cx^2 + Dx + E",
        "y = Ax * Sin(Bx + C) + Dx + E",
        "y = A * x^B + C",
        "y = A * B^x + C",
    };
    return id >= 1 && id <= ExplicitFamilyCount ? captions[id] : "";
}

namespace {

// The selected family at x; no value where the point is undefined or no family is selected.
std::optional<double> explicitValue(const double& x)
{
    const double A = Coefficients.A, B = Coefficients.B, C = Coefficients.C;
    const double D = Coefficients.D, E = Coefficients.E;
    switch (FunctionId) {
    case 1: {
        const double u = Chk(B * x - C);
        return Chk(u * A * u + D);
    }
    case 2: return Chk(A * x * x + B * x + C);
    case 3: {
        const double u = Chk(B * x - C);
        return Chk(Pow(u, 3.0) * A + D);
    }
    case 4: return Chk(Pow(x, 3.0) * A + B * x * x + C * x + D);
    case 5: {
        const double u = Chk(B * x + C);
        return Chk(D * x + A * std::sin(u) + E);
    }
    case 6: {
        const double u = Chk(B * x + C);
        return Chk(D * x + A * std::cos(u) + E);
    }
    case 7: {
        const double u = Chk(B * x + C);
        return Chk(D * x + A * std::tan(u) + E);
    }
    case 8: {
        const double u = Chk(B * x + C);
        if (u <= 0.0)
            return std::nullopt;
        return Chk(A * std::log(u) + D);
    }
    case 9: {
        const double u = Chk(B * x + C);
        return Chk(A * Chk(std::exp(u)) + D);
    }
    case 10: {
        const double u = Chk(B * x + C);
        if (u == 0.0)
            return std::nullopt;
        return Chk(Div(A, u) + D);
    }
    case 11: {
        const double u = Chk(B * x - C);
        return Chk(Pow(u, 4.0) * A + D);
    }
    case 12: {
        const double x3B = Chk(B * Pow(x, 3.0));
        return Chk(Pow(x, 4.0) * A + x3B + C * x * x + D * x + E);
    }
    case 13: {
        const double u = Chk(B * x + C);
        return Chk(A * x * std::sin(u) + D * x + E);
    }
    case 14:
        if (x <= 0.0 && (rt::Int(B) != B || B <= 0.0))
            return std::nullopt;
        return Chk(Pow(x, B) * A + C);
    case 15:
        if (B <= 0.0)
            return std::nullopt;
        return Chk(Pow(B, x) * A + C);
    default: return std::nullopt;
    }
}

}  // namespace

double YFunc(const double& x)
{
    FunctionCount = 15;
    return explicitValue(x).value_or(0.0);
}

bool YDefined(const double& x) { return explicitValue(x).has_value(); }

double YPrimeFunc(const double& x)
{
    DerivativeCount = 15;
    const double A = Coefficients.A, B = Coefficients.B, C = Coefficients.C;
    const double D = Coefficients.D;
    switch (FunctionId) {
    case 1: return Chk((A + A) * B * Chk(B * x - C));
    case 2: return Chk((A + A) * x + B);
    case 3: return Chk(Pow(Chk(B * x - C), 2.0) * (A * 3 * B));
    case 4: return Chk(Pow(x, 2.0) * (A * 3) + (B + B) * x + C);
    case 5: {
        const double u = Chk(B * x + C);
        return Chk(B * A * std::cos(u) + D);
    }
    case 6: {
        const double u = Chk(B * x + C);
        return Chk(B * A * (-1.0) * std::sin(u) + D);
    }
    case 7: {
        const double u = Chk(B * x + C);
        return Div(Chk(B * A), Pow(std::cos(u), 2.0));
    }
    case 8: {
        const double u = Chk(B * x + C);
        if (!(u > 0.0))
            return 0.0;
        return Div(Chk(B * A), u);
    }
    case 9: {
        const double u = Chk(B * x + C);
        return Chk(B * A * Chk(std::exp(u)));
    }
    case 10: {
        const double u = Chk(B * x + C);
        if (u == 0.0)
            return 0.0;
        return Div(Chk(A * (-1.0) * B), Pow(u, 2.0));
    }
    case 11: return Chk(Pow(Chk(B * x - C), 3.0) * (B * A * 4));
    case 12: return Chk(Pow(x, 3.0) * (A * 4) + Pow(x, 2.0) * (B * 3) + (C + C) * x + D);
    case 13: {
        const double u = Chk(B * x + C);
        return Chk(B * A * x * std::cos(u) + A * std::sin(u) + D);
    }
    case 14: {
        const double e = Chk(B - 1.0);
        if (rt::Int(e) != e && x <= 0.0)
            return 0.0;
        return Chk(Pow(x, e) * (B * A));
    }
    case 15:
        if (!(B > 0.0))
            return 0.0;
        return Chk(Pow(B, x) * A * std::log(B));
    default: return 0.0;
    }
}

const char* DyCaption(int id)
{
    static constexpr const char* captions[RateFamilyCount + 1] = {
        "",
        "dy = Ax + By + C",
        "dy = Ax + Bsin(Cx)",
        "dy = Ax + Bcos(Cx)",
        "dy = Ax + Bsin(Cy)",
        "dy = Ay + Bsin(Cx)",
        "dy = Ay + Bsin(Cy)",
        "dy = Ax + BxSin(Cx)",
        "dy = Ay + BxSin(Cy)",
        "dy = Ax + By + C*e^x",
        "dy = Ax + B*ln(x) + C",
        "dy = Axy + Bx^2*y + Cxy^2",
        "dy = Ax^2 + Bx + C",
        "dy = Ay^2 + By + C",
        "dy = Ax^3 + Bx^2 + Cx",
        "dy = Ay^3 + By^2 + Cy",
    };
    return id >= 1 && id <= RateFamilyCount ? captions[id] : "";
}

const char* DxCaption(int id)
{
    static constexpr const char* captions[RateFamilyCount + 1] = {
        "",
        "dx = Dx + Ey + F",
        "dx = Dx + Esin(Fx)",
        "dx = Dx + Ecos(Fx)",
        "dx = Dx + Esin(Fy)",
        "dx = Dy + Esin(Fx)",
        "dx = Dy + Esin(Fy)",
        "dx = Dx + ExSin(Fx)",
        "dx = Dy + Exsin(Fy)",
        "dx = Dx + Ey + C*e^y",
        "dx = Dx + E*ln(y) + F",
        "dx = Dxy + Ex^2*y + Fxy^2",
        "dx = Dx^2 + Ex + F",
        "dx = Dy^2 + Ey + F",
        "dx = Dx^3 + Ex^2 + Fx",
        "dx = Dy^3 + Ey^2 + Fy",
    };
    return id >= 1 && id <= RateFamilyCount ? captions[id] : "";
}

namespace {

// One rate family with coefficients (p, q, r) at (x, y), as the dy column writes it. The dx column
// has the same formulas with D, E, F, except families 9 and 10, which read y where dy reads x
// (`dxColumn`).
double rate(int id, double x, double y, double p, double q, double r, bool dxColumn = false)
{
    if (id == 1)
        return Chk(Chk(p * x) + Chk(q * y) + r);
    if (id < 2 || id > RateFamilyCount)
        return 0.0;
    if (p == 0.0 && q == 0.0 && r == 0.0)
        return 1.0;
    switch (id) {
    case 2: return Chk(Chk(p * x) + Chk(q * std::sin(Chk(r * x))));
    case 3: return Chk(Chk(p * x) + Chk(q * std::cos(Chk(r * x))));
    case 4: return Chk(Chk(p * x) + Chk(q * std::sin(Chk(r * y))));
    case 5: return Chk(Chk(p * y) + Chk(q * std::sin(Chk(r * x))));
    case 6: return Chk(Chk(p * y) + Chk(q * std::sin(Chk(r * y))));
    case 7: return Chk(Chk(p * x) + Chk(Chk(q * x) * std::sin(Chk(r * x))));
    case 8: return Chk(Chk(p * y) + Chk(Chk(q * x) * std::sin(Chk(r * y))));
    case 9: return Chk(Chk(p * x) + Chk(q * y) + Chk(r * Chk(std::exp(dxColumn ? y : x))));
    case 10: {
        const double argument = dxColumn ? y : x;
        if (!(argument > 0.0))
            return 0.0;
        return Chk(Chk(p * x) + Chk(q * std::log(argument)) + r);
    }
    case 11: return Chk(Chk(Chk(p * x) * y) + Chk(Chk(q * Pow(x, 2)) * y) + Chk(Chk(r * x) * Pow(y, 2)));
    case 12: return Chk(Chk(p * Pow(x, 2)) + Chk(q * x) + r);
    case 13: return Chk(Chk(p * Pow(y, 2)) + Chk(q * y) + r);
    case 14: return Chk(Chk(p * Pow(x, 3)) + Chk(q * Pow(x, 2)) + Chk(r * x));
    default: return Chk(Chk(p * Pow(y, 3)) + Chk(q * Pow(y, 2)) + Chk(r * y));
    }
}

// The slope increment of one stage: the change of y over a change h of x along the field.
double increment(double u, double v, double h)
{
    const double dy = DyFunc(u, v);
    return rt::Div(Chk(dy * h), DxFunc(u, v));
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

double Runga2Step(const double& x, const double& y, const double& h)
{
    const double k1 = increment(x, y, h);
    return increment(Chk(x + h / 2), Chk(y + k1 / 2), h);
}

double Runga4Step(const double& x, const double& y, const double& h)
{
    const double k1 = increment(x, y, h);
    const double k2 = increment(Chk(x + h / 2), Chk(y + k1 / 2), h);
    const double k3 = increment(Chk(x + h / 2), Chk(y + k2 / 2), h);
    const double k4 = increment(Chk(x + h), Chk(y + k3), h);
    return Chk(Chk(Chk(k2 / 3 + k1 / 6) + k3 / 3) + k4 / 6);
}

const char* XtCaption(int id)
{
    static constexpr const char* captions[ParametricFamilyCount + 1] = {
        "",
        "x = At^2 + Bt + C",
        "x = At^3 + Bt + C",
        "x = At^3 + Bt^2 + Ct",
        "x = A*Sin(Bt) + C",
        "x = A*Cos(Bt) + C",
        "x = A*Tan(Bt) + C",
        "x = A*Sin(Bt) + Ct",
        "x = A*Cos(Bt) + Ct",
        "x = A*t*Sin(Bt) + C",
        "x = A*t*Cos(Bt) + C",
        "x = A*e^(Bt) + C",
        "x = A /(Bt + C)",
    };
    return id >= 1 && id <= ParametricFamilyCount ? captions[id] : "";
}

const char* YtCaption(int id)
{
    static constexpr const char* captions[ParametricFamilyCount + 1] = {
        "",
        "y = Dt^2 + Et + F",
        "y = Dt^3 + Et + F",
        "y = Dt^3 + Et^2 + Ft",
        "y = D*Sin(Et) + F",
        "y = D*Cos(Et) + F",
        "y = D*Tan(Et) + F",
        "y = D*Sin(Et) + Ft",
        "y = D*Cos(Et) + Ft",
        "y = D*t*Sin(Et) + F",
        "y = D*t*Cos(Et) + F",
        "y = D*e^(Et) + F",
        "y = D /(Et + F)",
    };
    return id >= 1 && id <= ParametricFamilyCount ? captions[id] : "";
}

namespace {

// One parametric family with coefficients (p, q, r); both catalogues have the same formulas.
double parametric(int id, double t, double p, double q, double r)
{
    switch (id) {
    case 1: return Chk(Chk(p * Pow(t, 2)) + Chk(q * t) + r);
    case 2: return Chk(Chk(p * Pow(t, 3)) + Chk(q * t) + r);
    case 3: return Chk(Chk(p * Pow(t, 3)) + Chk(q * Pow(t, 2)) + Chk(r * t));
    case 4: return Chk(Chk(p * std::sin(Chk(q * t))) + r);
    case 5: return Chk(Chk(p * std::cos(Chk(q * t))) + r);
    case 6: return Chk(Chk(p * std::tan(Chk(q * t))) + r);
    case 7: return Chk(Chk(r * t) + Chk(p * std::sin(Chk(q * t))));
    case 8: return Chk(Chk(r * t) + Chk(p * std::cos(Chk(q * t))));
    case 9: return Chk(Chk(Chk(t * p) * std::sin(Chk(q * t))) + r);
    case 10: return Chk(Chk(Chk(t * p) * std::cos(Chk(q * t))) + r);
    case 11: return Chk(Chk(p * Chk(std::exp(Chk(q * t)))) + r);
    case 12: {
        const double denominator = Chk(Chk(q * t) + r);
        return denominator == 0.0 ? 0.0 : Div(p, denominator);
    }
    default: return 0.0;
    }
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
