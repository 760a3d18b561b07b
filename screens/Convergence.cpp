// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/Convergence.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>

#include <boost/math/quadrature/gauss_kronrod.hpp>
#include <boost/numeric/odeint.hpp>

#include "funclib/FuncGlobals.h"
#include "funclib/FunctionSource.h"
#include "funclib/StepMethods.h"
#include "funclib/Words.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "screens/IntegralCurves.h"
#include "screens/RiemannSums.h"
#include "screens/StripRules.h"

// Odeint knows the norm of a float and of a double state; the reference of the step table is a
// long double.
template <>
struct boost::numeric::odeint::vector_space_norm_inf<long double> {
    using result_type = long double;
    long double operator()(long double x) const { return std::fabs(x); }
};

namespace Convergence {

namespace words = FuncGlobals::words;

std::string format(const char* pattern, double v)
{
    char text[64];
    std::snprintf(text, sizeof text, pattern, v);
    return text;
}

namespace {

// What an arithmetic fault means in a cell.
std::string faultNote(const rt::RuntimeError& error) { return words::fill(words::noValueBecause, {error.what()}); }

}  // namespace

std::vector<std::vector<std::string>> Table::cells() const
{
    std::vector<std::vector<std::string>> out;
    std::vector<std::string> heading{rowHeadings.empty() ? "" : rowHeadings.front()};
    for (const std::string& m : methods) {
        heading.push_back(m);
        heading.push_back(m + " error");
        heading.push_back(m + " ratio");
    }
    out.push_back(heading);
    for (std::size_t r = 0; r < values.size(); ++r) {
        std::vector<std::string> line{rowHeadings[r + 1]};
        for (std::size_t m = 0; m < methods.size(); ++m) {
            const Cell& cell = values[r][m];
            if (!cell.value) {
                line.insert(line.end(), {cell.note, "", ""});
                continue;
            }
            // Sums carry their single-precision text, step endpoints six decimals.
            line.push_back(cell.note.empty() ? format("%.10g", *cell.value) : cell.note);
            if (!exact) {
                line.insert(line.end(), {"", ""});
                continue;
            }
            const double error = std::fabs(*cell.value - *exact);
            if (error <= exactAccuracy) {
                line.insert(line.end(), {words::fill(words::below, {format("%.0e", exactAccuracy)}), words::reference});
                continue;
            }
            line.push_back(format("%.3e", error));
            const Cell* before = r > 0 ? &values[r - 1][m] : nullptr;
            const double previous = before && before->value ? std::fabs(*before->value - *exact) : 0;
            if (before && before->value && error > 0 && kind == Kind::Steps && std::min(error, previous) < kRoundOff)
                line.push_back(words::roundOff);
            else if (before && before->value && error > 0)
                line.push_back(format("%.2f", previous / error));
            else
                line.push_back("");
        }
        out.push_back(line);
    }
    return out;
}

bool Table::hasRoundOff() const
{
    for (const auto& line : cells())
        if (std::find(line.begin(), line.end(), words::roundOff) != line.end())
            return true;
    return false;
}

std::string Table::roundOffNote() { return words::fill(words::roundOffNote, {format("%.0e", kRoundOff)}); }

std::vector<Table::ReferenceLine> Table::referenceLines() const
{
    std::vector<int> sorted = orders;
    std::sort(sorted.begin(), sorted.end());
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
    std::vector<ReferenceLine> out;
    for (const int order : sorted) {
        std::vector<std::pair<double, double>> points;
        for (std::size_t m = 0; m < orders.size() && m < methods.size() && points.empty(); ++m)
            if (orders[m] == order)
                points = measuredErrors(m);
        if (points.empty())
            continue;
        const auto [n0, e0] = points.front();
        double lowest = e0;
        for (const auto& point : points)
            lowest = std::min(lowest, point.second);
        const double top = e0 * kReferenceApart;
        // To the method's last count, or sooner where the line would come nearer than kReferenceApart
        // to the smallest error (where rounding has flattened the data).
        const double n1 =
            std::min(points.back().first > n0 ? points.back().first : n0 * 2, n0 * std::pow(e0 / lowest, 1.0 / order));
        out.push_back({order,
                       {n0, top},
                       {n1, top * std::pow(n1 / n0, -order)},
                       words::fill(words::slope, {std::to_string(order)})});
    }
    return out;
}

std::vector<std::pair<double, double>> Table::measuredErrors(std::size_t m) const
{
    std::vector<std::pair<double, double>> out;
    for (std::size_t r = 0; exact && r < values.size() && r < rowCounts.size(); ++r) {
        const Cell& cell = values[r][m];
        const double error = cell.value ? std::fabs(*cell.value - *exact) : 0;
        if (cell.value && error > exactAccuracy && std::isfinite(error))
            out.emplace_back(rowCounts[r], error);
    }
    return out;
}

std::string Table::tabSeparated() const
{
    std::string text;
    for (const auto& line : cells()) {
        for (std::size_t i = 0; i < line.size(); ++i)
            text += (i ? "\t" : "") + line[i];
        text += '\n';
    }
    return text;
}

std::string Table::csv() const
{
    // Comma-separated, a field quoted when it holds a comma, a quote or a line break (its quotes doubled).
    std::string text;
    for (const auto& line : cells()) {
        for (std::size_t i = 0; i < line.size(); ++i) {
            const std::string& f = line[i];
            text += i ? "," : "";
            if (f.find_first_of(",\"\n\r") == std::string::npos) {
                text += f;
                continue;
            }
            text += '"';
            for (char c : f)
                text += c == '"' ? std::string("\"\"") : std::string(1, c);
            text += '"';
        }
        text += "\r\n";
    }
    return text;
}

Integral gaussKronrod(const std::function<double(double)>& f, double L, double R, unsigned levels)
{
    Integral i;
    i.value = boost::math::quadrature::gauss_kronrod<double, 61>::integrate(f, L, R, levels, 1e-12, &i.error);
    i.converged = std::isfinite(i.value) && i.error <= 1e-8 * std::max(1.0, std::fabs(i.value));
    return i;
}

Table sumsWithout(std::string why)
{
    Table t;
    for (const StripRules::Rule& rule : StripRules::kRules) {
        t.methods.push_back(rule.name);
        t.orders.push_back(rule.order);
        t.colours.push_back(rule.colour);
    }
    t.rowHeadings.push_back("n");
    t.exactSource = std::move(why);
    return t;
}

namespace {

// n = 1, 2, 4, ... up to at least 1024 and at least currentN, with currentN itself.
std::vector<std::int32_t> stripCounts(std::int32_t currentN)
{
    std::vector<std::int32_t> ns;
    for (std::int32_t n = 1; n <= std::max<std::int32_t>(1024, currentN); n *= 2)
        ns.push_back(n);
    if (currentN > 0 && std::find(ns.begin(), ns.end(), currentN) == ns.end()) {
        ns.push_back(currentN);
        std::sort(ns.begin(), ns.end());
    }
    return ns;
}

}  // namespace

Table strips(const std::function<double(double)>& f, double L, double R, std::int32_t currentN,
             std::optional<double> exact, double accuracy, std::string source)
{
    Table t = sumsWithout(std::move(source));
    t.exact = exact;
    t.exactAccuracy = accuracy;
    for (std::int32_t n : stripCounts(currentN)) {
        t.rowHeadings.push_back(std::to_string(n));
        t.rowCounts.push_back(n);
        std::vector<Cell> row;
        for (const StripRules::Rule& rule : StripRules::kRules) {
            Cell cell;
            const double v = rule.evenOnly && n % 2 ? std::nan("") : rule.apply(f, L, R, n);
            if (rule.evenOnly && n % 2)
                cell.note = words::nOdd;
            else if (!std::isfinite(v))
                cell.note = words::noValueCell;
            else
                cell.value = v;
            row.push_back(cell);
        }
        t.values.push_back(row);
    }
    return t;
}

Table sums(double L, double R, std::int32_t currentN)
{
    Table t = sumsWithout({});
    const StripRules::Function f = [](double x) { return FuncGlobals::ExplicitValue(x); };

    // The exact value: first the domain, then an adaptive Gauss-Kronrod rule.
    try {
        std::optional<double> gap;
        for (int i = 0; i <= 4096 && !gap; ++i) {
            const double x = L + (R - L) * i / 4096;
            if (!FuncGlobals::ExplicitDefined(x))
                gap = x;
        }
        if (gap) {
            t.exactSource = words::fill(words::integralGaps, {rt::Trim(rt::Str(*gap))});
        } else {
            const Integral i = gaussKronrod(f, L, R);
            if (!i.converged)
                t.exactSource = words::integralUnbounded;
            else {
                t.exact = i.value;
                t.exactAccuracy = i.error;
                t.exactSource = words::fill(words::exactValue, {format("%.12g", i.value)});
            }
        }
    } catch (const rt::RuntimeError& error) {
        t.exactSource = words::fill(words::integralFault, {error.what()});
    }

    for (std::int32_t n : stripCounts(currentN)) {
        t.rowHeadings.push_back(std::to_string(n));
        t.rowCounts.push_back(n);
        std::vector<Cell> row;
        for (const StripRules::Rule& rule : StripRules::kRules) {
            Cell cell;
            try {
                const double dx = rt::Div(rt::Chk(R - L), n);
                const RiemannSums::Result r = rule.classic(f, L, dx, n);
                if (r.odd)
                    cell.note = words::nOdd;
                else if (r.gap)
                    cell.note = words::fill(words::undefinedAt, {rt::Trim(rt::Str(r.gapAt))});
                else if (r.error)
                    cell.note = words::errorValue;
                else {
                    cell.value = r.area;
                    cell.note = rt::Trim(rt::Str(r.area));  // the screen's own text of the area
                }
            } catch (const rt::RuntimeError& error) {
                cell.note = faultNote(error);
            }
            row.push_back(cell);
        }
        t.values.push_back(row);
    }
    return t;
}

Table stepsWithout(std::string why)
{
    Table t;
    t.kind = Table::Kind::Steps;
    for (const StepMethods::Method& m : StepMethods::all()) {
        t.methods.push_back(m.caption);
        t.orders.push_back(m.order);
        t.colours.push_back(m.colour);
    }
    t.rowHeadings.push_back("h");
    t.exactSource = std::move(why);
    return t;
}

Table steps(double x0, double y0, double xEnd, double h, int halvings, const Window& window)
{
    Table t = stepsWithout({});

    // The reference: a controlled Runge-Kutta-Fehlberg 7(8) in extended precision, run at two
    // tolerances; the difference of the two bounds its error, which must stay far below the errors
    // it is compared with (a Dormand-Prince reference at 1e-12 was itself 1e-11 off on the circle
    // to x = 4.8, and the last fourth-order ratios read 12 and 3.5 instead of 16).
    try {
        using State = long double;
        auto rhs = [](const State& y, State& dydx, State x) {
            const double dx = FuncGlobals::RateDx(static_cast<double>(x), static_cast<double>(y));
            dydx = dx == 0 ? std::nanl("") : FuncGlobals::RateDy(static_cast<double>(x), static_cast<double>(y)) / dx;
        };
        namespace ode = boost::numeric::odeint;
        // The controlled stepper's own loop, with a budget: near a vertical slope the step shrinks
        // without end, and the table must answer at once.
        auto integrate = [&](State tolerance) {
            auto stepper =
                ode::make_controlled<ode::runge_kutta_fehlberg78<State, State, State, State>>(tolerance, tolerance);
            State y = y0, x = x0, dx = (static_cast<State>(xEnd) - x0) / 1000;
            for (int tries = 0; tries < 200000 && std::isfinite(y) && (xEnd - x) * (xEnd - x0) > 0; ++tries) {
                if ((x + dx - xEnd) * (xEnd - x0) > 0)
                    dx = xEnd - x;  // the last step ends on xEnd
                if (std::fabs(dx) < 1e-15L * std::max<State>(1, std::fabs(x))) {
                    y = std::nanl("");
                    break;
                }
                stepper.try_step(rhs, y, x, dx);  // advances x and y on success, adapts dx either way
            }
            if ((xEnd - x) * (xEnd - x0) > 0)
                y = std::nanl("");
            return y;
        };
        const State fine = integrate(1e-18L), coarse = integrate(1e-17L);
        const double y = static_cast<double>(fine);
        if (std::isfinite(y)) {
            t.exact = y;
            // The fine run's error is far below the coarse one's; their difference (or the double's
            // own resolution of y, whichever is larger) bounds it with room to spare.
            t.exactAccuracy = std::max(static_cast<double>(std::fabs(fine - coarse)),
                                       4 * std::numeric_limits<double>::epsilon() * std::max(1.0, std::fabs(y)));
            t.exactSource =
                words::fill(words::referenceEndpoint, {format("%.15g", y), format("%.0e", t.exactAccuracy)});
        } else {
            t.exactSource = words::verticalBeforeEnd;
        }
    } catch (const rt::RuntimeError& error) {
        t.exactSource = words::fill(words::referenceFault, {error.what()});
    } catch (const std::exception&) {
        t.exactSource = words::endUnreached;
    }

    const double span = xEnd - x0;
    for (int k = 0; k <= halvings; ++k) {
        const double wanted = std::fabs(h) / std::pow(2.0, k);
        const long count = wanted > 0 ? std::max(1L, std::lround(std::fabs(span) / wanted)) : 1;
        const double step = count > 0 ? span / static_cast<double>(count) : 0;
        t.rowHeadings.push_back(words::fill(words::stepRow, {format("%.6g", step), std::to_string(count)}));
        t.rowCounts.push_back(static_cast<double>(count));
        std::vector<Cell> row;
        for (const StepMethods::Method& method : StepMethods::all()) {
            Cell cell;
            IntegralCurves::Settings s;
            s.smooth = false;
            s.method = &method;
            double x = x0, y = y0;
            try {
                for (long i = 0; i < count && cell.note.empty(); ++i) {
                    const IntegralCurves::Step st = IntegralCurves::step(s, x, y, step);
                    if (st.vertical)
                        cell.note = words::meetsVertical;
                    x = x0 + step * static_cast<double>(i + 1);
                    y = rt::Chk(y + st.dy);
                    if (cell.note.empty() &&
                        !(window.ymin <= y && y <= window.ymax && window.xmin <= x && x <= window.xmax))
                        cell.note = words::leavesWindow;
                }
                if (cell.note.empty() && count > 0)
                    cell.value = y;
            } catch (const rt::RuntimeError& error) {
                cell.note = faultNote(error);
            }
            row.push_back(cell);
        }
        t.values.push_back(row);
    }
    return t;
}

}  // namespace Convergence
