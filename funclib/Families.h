// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// The three catalogues of families, a row each: what a menu and a label show, and what is computed,
// in the order of operations each family is defined with. A catalogue's count is its number of rows;
// the procedures of FuncGlobals look a family up here by its number (row number + 1).
#include <array>
#include <limits>

#include "runtime/Numbers.h"

namespace FuncGlobals {

struct CoefficientSet {
    double A = 0, B = 0, C = 0, D = 0, E = 0, F = 0;
};

}  // namespace FuncGlobals

// Outside FuncGlobals, so that code using that namespace whole meets no new names.
namespace FamilyTables {

using rt::Chk;
using rt::Div;
using rt::Pow;
using K = const FuncGlobals::CoefficientSet&;
// What a row gives where the family is undefined. No family's value is ever NaN otherwise: every
// operation that could make one raises the run-time error first.
inline constexpr double kUndefined = std::numeric_limits<double>::quiet_NaN();

// An explicit family y = f(x) with A to E. `value` and `slope` give kUndefined where the family's
// domain test finds the point undefined; the test is made before the operation it protects, and every
// overflow or division by zero on the way raises the run-time error.
struct Explicit {
    const char* caption;
    const char* typed;  // the same formula as a typed function in x and A to E (for its exact derivatives)
    double (*value)(double x, K k);
    double (*slope)(double x, K k);
};

inline constexpr Explicit kExplicit[] = {
    {"y = A * (Bx - C)^2 + D", "A*(B*x - C)^2 + D",
     [](double x, K k) -> double {
         const double u = Chk(k.B * x - k.C);
         return Chk(u * k.A * u + k.D);
     },
     [](double x, K k) -> double { return Chk((k.A + k.A) * k.B * Chk(k.B * x - k.C)); }},
    {"y = Ax^2 + Bx + C", "A*x^2 + B*x + C", [](double x, K k) -> double { return Chk(k.A * x * x + k.B * x + k.C); },
     [](double x, K k) -> double { return Chk((k.A + k.A) * x + k.B); }},
    {"y = A(Bx - C)^3 + D", "A*(B*x - C)^3 + D",
     [](double x, K k) -> double {
         const double u = Chk(k.B * x - k.C);
         return Chk(Pow(u, 3.0) * k.A + k.D);
     },
     [](double x, K k) -> double { return Chk(Pow(Chk(k.B * x - k.C), 2.0) * (k.A * 3 * k.B)); }},
    {"y = Ax^3 + Bx^2 + Cx + D", "A*x^3 + B*x^2 + C*x + D",
     [](double x, K k) -> double { return Chk(Pow(x, 3.0) * k.A + k.B * x * x + k.C * x + k.D); },
     [](double x, K k) -> double { return Chk(Pow(x, 2.0) * (k.A * 3) + (k.B + k.B) * x + k.C); }},
    {"y = A*Sin(Bx + C) + Dx + E", "A*sin(B*x + C) + D*x + E",
     [](double x, K k) -> double {
         const double u = Chk(k.B * x + k.C);
         return Chk(k.D * x + k.A * std::sin(u) + k.E);
     },
     [](double x, K k) -> double {
         const double u = Chk(k.B * x + k.C);
         return Chk(k.B * k.A * std::cos(u) + k.D);
     }},
    {"y = A*Cos(Bx + C) + Dx + E", "A*cos(B*x + C) + D*x + E",
     [](double x, K k) -> double {
         const double u = Chk(k.B * x + k.C);
         return Chk(k.D * x + k.A * std::cos(u) + k.E);
     },
     [](double x, K k) -> double {
         const double u = Chk(k.B * x + k.C);
         return Chk(k.B * k.A * (-1.0) * std::sin(u) + k.D);
     }},
    {"y = A*Tan(Bx + C) + Dx + E", "A*tan(B*x + C) + D*x + E",
     [](double x, K k) -> double {
         const double u = Chk(k.B * x + k.C);
         return Chk(k.D * x + k.A * std::tan(u) + k.E);
     },
     [](double x, K k) -> double {  // no D term
         const double u = Chk(k.B * x + k.C);
         return Div(Chk(k.B * k.A), Pow(std::cos(u), 2.0));
     }},
    {"y = A*Ln(Bx + C) + D", "A*ln(B*x + C) + D",
     [](double x, K k) -> double {
         const double u = Chk(k.B * x + k.C);
         if (u <= 0.0)
             return kUndefined;
         return Chk(k.A * std::log(u) + k.D);
     },
     [](double x, K k) -> double {
         const double u = Chk(k.B * x + k.C);
         if (!(u > 0.0))
             return kUndefined;
         return Div(Chk(k.B * k.A), u);
     }},
    {"y = A*e^(Bx + C) + D", "A*e^(B*x + C) + D",
     [](double x, K k) -> double {
         const double u = Chk(k.B * x + k.C);
         return Chk(k.A * Chk(std::exp(u)) + k.D);
     },
     [](double x, K k) -> double {
         const double u = Chk(k.B * x + k.C);
         return Chk(k.B * k.A * Chk(std::exp(u)));
     }},
    {"y = A /(Bx + C) + D", "A/(B*x + C) + D",
     [](double x, K k) -> double {
         const double u = Chk(k.B * x + k.C);
         if (u == 0.0)
             return kUndefined;
         return Chk(Div(k.A, u) + k.D);
     },
     [](double x, K k) -> double {
         const double u = Chk(k.B * x + k.C);
         if (u == 0.0)
             return kUndefined;
         return Div(Chk(k.A * (-1.0) * k.B), Pow(u, 2.0));
     }},
    {"y = A(Bx - C)^4 + D", "A*(B*x - C)^4 + D",
     [](double x, K k) -> double {
         const double u = Chk(k.B * x - k.C);
         return Chk(Pow(u, 4.0) * k.A + k.D);
     },
     [](double x, K k) -> double { return Chk(Pow(Chk(k.B * x - k.C), 3.0) * (k.B * k.A * 4)); }},
    {"y = Ax^4 + Bx^3 + Cx^2 + Dx + E", "A*x^4 + B*x^3 + C*x^2 + D*x + E",
     [](double x, K k) -> double {
         const double x3B = Chk(k.B * Pow(x, 3.0));
         return Chk(Pow(x, 4.0) * k.A + x3B + k.C * x * x + k.D * x + k.E);
     },
     [](double x, K k) -> double {
         return Chk(Pow(x, 3.0) * (k.A * 4) + Pow(x, 2.0) * (k.B * 3) + (k.C + k.C) * x + k.D);
     }},
    {"y = Ax * Sin(Bx + C) + Dx + E", "A*x*sin(B*x + C) + D*x + E",
     [](double x, K k) -> double {
         const double u = Chk(k.B * x + k.C);
         return Chk(k.A * x * std::sin(u) + k.D * x + k.E);
     },
     [](double x, K k) -> double {
         const double u = Chk(k.B * x + k.C);
         return Chk(k.B * k.A * x * std::cos(u) + k.A * std::sin(u) + k.D);
     }},
    {"y = A * x^B + C", "A*x^B + C",
     [](double x, K k) -> double {
         if (x <= 0.0 && (rt::Int(k.B) != k.B || k.B <= 0.0))
             return kUndefined;
         return Chk(Pow(x, k.B) * k.A + k.C);
     },
     [](double x, K k) -> double {
         const double e = Chk(k.B - 1.0);
         if (rt::Int(e) != e && x <= 0.0)
             return kUndefined;
         return Chk(Pow(x, e) * (k.B * k.A));
     }},
    {"y = A * B^x + C", "A*B^x + C",
     [](double x, K k) -> double {
         if (k.B <= 0.0)
             return kUndefined;
         return Chk(Pow(k.B, x) * k.A + k.C);
     },
     [](double x, K k) -> double {
         if (!(k.B > 0.0))
             return kUndefined;
         return Chk(Pow(k.B, x) * k.A * std::log(k.B));
     }},
};

// A rate family: the dy caption (A, B, C), the dx caption (D, E, F), and the formula with the
// family's coefficients (p, q, r) at (x, y). The dx column reads y where dy reads x in families 9
// and 10 (`dxColumn`). Powers go through the general power, as the catalogue defines them.
struct Rate {
    const char* dy;
    const char* dx;
    double (*value)(double x, double y, double p, double q, double r, bool dxColumn);
};

inline constexpr Rate kRates[] = {
    {"dy = Ax + By + C", "dx = Dx + Ey + F",
     [](double x, double y, double p, double q, double r, bool) { return Chk(Chk(p * x) + Chk(q * y) + r); }},
    {"dy = Ax + Bsin(Cx)", "dx = Dx + Esin(Fx)",
     [](double x, double, double p, double q, double r, bool) {
         return Chk(Chk(p * x) + Chk(q * std::sin(Chk(r * x))));
     }},
    {"dy = Ax + Bcos(Cx)", "dx = Dx + Ecos(Fx)",
     [](double x, double, double p, double q, double r, bool) {
         return Chk(Chk(p * x) + Chk(q * std::cos(Chk(r * x))));
     }},
    {"dy = Ax + Bsin(Cy)", "dx = Dx + Esin(Fy)",
     [](double x, double y, double p, double q, double r, bool) {
         return Chk(Chk(p * x) + Chk(q * std::sin(Chk(r * y))));
     }},
    {"dy = Ay + Bsin(Cx)", "dx = Dy + Esin(Fx)",
     [](double x, double y, double p, double q, double r, bool) {
         return Chk(Chk(p * y) + Chk(q * std::sin(Chk(r * x))));
     }},
    {"dy = Ay + Bsin(Cy)", "dx = Dy + Esin(Fy)",
     [](double, double y, double p, double q, double r, bool) {
         return Chk(Chk(p * y) + Chk(q * std::sin(Chk(r * y))));
     }},
    {"dy = Ax + BxSin(Cx)", "dx = Dx + ExSin(Fx)",
     [](double x, double, double p, double q, double r, bool) {
         return Chk(Chk(p * x) + Chk(Chk(q * x) * std::sin(Chk(r * x))));
     }},
    {"dy = Ay + BxSin(Cy)", "dx = Dy + Exsin(Fy)",
     [](double x, double y, double p, double q, double r, bool) {
         return Chk(Chk(p * y) + Chk(Chk(q * x) * std::sin(Chk(r * y))));
     }},
    {"dy = Ax + By + C*e^x", "dx = Dx + Ey + C*e^y",
     [](double x, double y, double p, double q, double r, bool dxColumn) {
         return Chk(Chk(p * x) + Chk(q * y) + Chk(r * Chk(std::exp(dxColumn ? y : x))));
     }},
    {"dy = Ax + B*ln(x) + C", "dx = Dx + E*ln(y) + F",
     [](double x, double y, double p, double q, double r, bool dxColumn) {
         const double argument = dxColumn ? y : x;
         if (!(argument > 0.0))
             return 0.0;
         return Chk(Chk(p * x) + Chk(q * std::log(argument)) + r);
     }},
    {"dy = Axy + Bx^2*y + Cxy^2", "dx = Dxy + Ex^2*y + Fxy^2",
     [](double x, double y, double p, double q, double r, bool) {
         return Chk(Chk(Chk(p * x) * y) + Chk(Chk(q * Pow(x, 2)) * y) + Chk(Chk(r * x) * Pow(y, 2)));
     }},
    {"dy = Ax^2 + Bx + C", "dx = Dx^2 + Ex + F",
     [](double x, double, double p, double q, double r, bool) { return Chk(Chk(p * Pow(x, 2)) + Chk(q * x) + r); }},
    {"dy = Ay^2 + By + C", "dx = Dy^2 + Ey + F",
     [](double, double y, double p, double q, double r, bool) { return Chk(Chk(p * Pow(y, 2)) + Chk(q * y) + r); }},
    {"dy = Ax^3 + Bx^2 + Cx", "dx = Dx^3 + Ex^2 + Fx",
     [](double x, double, double p, double q, double r, bool) {
         return Chk(Chk(p * Pow(x, 3)) + Chk(q * Pow(x, 2)) + Chk(r * x));
     }},
    {"dy = Ay^3 + By^2 + Cy", "dx = Dy^3 + Ey^2 + Fy",
     [](double, double y, double p, double q, double r, bool) {
         return Chk(Chk(p * Pow(y, 3)) + Chk(q * Pow(y, 2)) + Chk(r * y));
     }},
};

// A parametric family: the x(t) caption (A, B, C), the y(t) caption (D, E, F), and the formula with
// the family's coefficients (p, q, r) at t.
struct Parametric {
    const char* x;
    const char* y;
    double (*value)(double t, double p, double q, double r);
};

inline constexpr Parametric kParametric[] = {
    {"x = At^2 + Bt + C", "y = Dt^2 + Et + F",
     [](double t, double p, double q, double r) { return Chk(Chk(p * Pow(t, 2)) + Chk(q * t) + r); }},
    {"x = At^3 + Bt + C", "y = Dt^3 + Et + F",
     [](double t, double p, double q, double r) { return Chk(Chk(p * Pow(t, 3)) + Chk(q * t) + r); }},
    {"x = At^3 + Bt^2 + Ct", "y = Dt^3 + Et^2 + Ft",
     [](double t, double p, double q, double r) { return Chk(Chk(p * Pow(t, 3)) + Chk(q * Pow(t, 2)) + Chk(r * t)); }},
    {"x = A*Sin(Bt) + C", "y = D*Sin(Et) + F",
     [](double t, double p, double q, double r) { return Chk(Chk(p * std::sin(Chk(q * t))) + r); }},
    {"x = A*Cos(Bt) + C", "y = D*Cos(Et) + F",
     [](double t, double p, double q, double r) { return Chk(Chk(p * std::cos(Chk(q * t))) + r); }},
    {"x = A*Tan(Bt) + C", "y = D*Tan(Et) + F",
     [](double t, double p, double q, double r) { return Chk(Chk(p * std::tan(Chk(q * t))) + r); }},
    {"x = A*Sin(Bt) + Ct", "y = D*Sin(Et) + Ft",
     [](double t, double p, double q, double r) { return Chk(Chk(r * t) + Chk(p * std::sin(Chk(q * t)))); }},
    {"x = A*Cos(Bt) + Ct", "y = D*Cos(Et) + Ft",
     [](double t, double p, double q, double r) { return Chk(Chk(r * t) + Chk(p * std::cos(Chk(q * t)))); }},
    {"x = A*t*Sin(Bt) + C", "y = D*t*Sin(Et) + F",
     [](double t, double p, double q, double r) { return Chk(Chk(Chk(t * p) * std::sin(Chk(q * t))) + r); }},
    {"x = A*t*Cos(Bt) + C", "y = D*t*Cos(Et) + F",
     [](double t, double p, double q, double r) { return Chk(Chk(Chk(t * p) * std::cos(Chk(q * t))) + r); }},
    {"x = A*e^(Bt) + C", "y = D*e^(Et) + F",
     [](double t, double p, double q, double r) { return Chk(Chk(p * Chk(std::exp(Chk(q * t)))) + r); }},
    {"x = A /(Bt + C)", "y = D /(Et + F)",
     [](double t, double p, double q, double r) {
         const double denominator = Chk(Chk(q * t) + r);
         return denominator == 0.0 ? 0.0 : Div(p, denominator);
     }},
};

}  // namespace FamilyTables
