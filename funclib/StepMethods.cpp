// SPDX-License-Identifier: GPL-3.0-or-later
// The step methods' table and their bodies. A body is a template over the rates: `Rates::rise(x,
// y, h, dx)` is the change of y over a change h of x along the field at (x, y) (with the rate dx
// there when it is known already), and `Rates::add(a, b)` is a sum with the caller's own rules.
// The families check every sum and division as the classic procedures did (so that their values
// and the errors they raise, and where, are unchanged); the typed rates add plainly and give NaN
// where a stage has no finite increment.
#include "funclib/StepMethods.h"

#include <cmath>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>

#include "funclib/Words.h"
#include "runtime/Numbers.h"

namespace StepMethods {

namespace {

struct Families {
    static double rise(double u, double v, double h, std::optional<double> dx = {})
    {
        const double dy = FuncGlobals::DyFunc(u, v);
        return rt::Div(rt::Chk(dy * h), dx ? *dx : FuncGlobals::DxFunc(u, v));
    }
    static double add(double a, double b) { return rt::Chk(a + b); }
};

struct Typed {
    static double rise(double u, double v, double h, std::optional<double> dxHere = {})
    {
        const FuncGlobals::TypedRates& r = *FuncGlobals::TypedRate;
        const double dy = (*r.dy)(u, v), dx = dxHere ? *dxHere : (*r.dx)(u, v);
        const double k = dy * h / dx;
        return std::isfinite(k) ? k : std::numeric_limits<double>::quiet_NaN();
    }
    static double add(double a, double b) { return a + b; }
};

struct Euler {
    template <class Rates>
    static double step(double x, double y, double h, std::optional<double> dx)
    {
        return Rates::rise(x, y, h, dx);
    }
};

struct Midpoint {
    template <class Rates>
    static double step(double x, double y, double h, std::optional<double> dx)
    {
        const double k1 = Rates::rise(x, y, h, dx);
        return Rates::rise(Rates::add(x, h / 2), Rates::add(y, k1 / 2), h);
    }
};

struct FourthOrder {
    template <class Rates>
    static double step(double x, double y, double h, std::optional<double> dx)
    {
        const double k1 = Rates::rise(x, y, h, dx);
        const double k2 = Rates::rise(Rates::add(x, h / 2), Rates::add(y, k1 / 2), h);
        const double k3 = Rates::rise(Rates::add(x, h / 2), Rates::add(y, k2 / 2), h);
        const double k4 = Rates::rise(Rates::add(x, h), Rates::add(y, k3), h);
        // The classic order of the sum, which fixes the last digit.
        return Rates::add(Rates::add(Rates::add(k2 / 3, k1 / 6), k3 / 3), k4 / 6);
    }
};

// A row: the body made over the families and over the typed rates.
template <class Body>
constexpr Method row(const char* key, const char* caption, std::uint32_t colour, int order)
{
    return {key, caption, colour, order, &Body::template step<Families>, &Body::template step<Typed>};
}

// key, caption, colour (dark enough for a projector), order
constexpr Method kMethods[] = {
    row<Euler>("euler", QT_TRANSLATE_NOOP("Plotto", "Euler"), 0x1F4EB4, 1),
    row<Midpoint>("rk2", QT_TRANSLATE_NOOP("Plotto", "Runge-Kutta 2"), 0xB42A1F, 2),
    row<FourthOrder>("rk4", QT_TRANSLATE_NOOP("Plotto", "Runge-Kutta 4"), 0x1E7B32, 4),
};

}  // namespace

std::span<const Method> all() { return kMethods; }

const Method& byKey(std::string_view key)
{
    for (const Method& m : kMethods)
        if (key == m.key)
            return m;
    throw std::out_of_range("no step method " + std::string(key));
}

}  // namespace StepMethods

namespace FuncGlobals {

// The classic procedures: the midpoint and fourth-order bodies over the families.
double Runga2Step(const double& x, const double& y, const double& h)
{
    return StepMethods::Midpoint::step<StepMethods::Families>(x, y, h, {});
}

double Runga4Step(const double& x, const double& y, const double& h)
{
    return StepMethods::FourthOrder::step<StepMethods::Families>(x, y, h, {});
}

}  // namespace FuncGlobals
