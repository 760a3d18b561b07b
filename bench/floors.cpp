// SPDX-License-Identifier: GPL-3.0-or-later
// The floors of the heavy handlers: the same evaluations with nothing drawn, run in a process that
// never starts the toolkit, so that they are timed on a clean vector state (see runtime/VectorState.h).
// Each sets the shared function state as the handler's screen has it after opening.
#include <benchmark/benchmark.h>

#include "funclib/EpsilonDelta.h"
#include "funclib/FuncGlobals.h"
#include "funclib/FunctionSource.h"
#include "funclib/TaylorSeries.h"
#include "runtime/VectorState.h"
#include "screens/IntegralCurves.h"
#include "screens/RiemannSums.h"

namespace {

void noteState(benchmark::State& state)
{
    state.counters["dirty"] = rt::vectorStateReported() ? (rt::upperVectorStateDirty() ? 1 : 0) : -1;
}

// Grapher and animation: 6399 YFunc calls over the square's columns.
void BM_BareYFunc(benchmark::State& state)
{
    FuncGlobals::Coefficients = {1, 1, 0, 0, 0, 0};
    FuncGlobals::FunctionId = static_cast<std::int16_t>(state.range(0));
    noteState(state);
    for (auto _ : state) {
        double sum = 0;
        for (int c = 2401; c <= 8799; ++c)
            sum += FuncGlobals::YFunc((c - 5600) * 20.0 / 6400);
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(BM_BareYFunc)->Arg(1)->Arg(5)->Unit(benchmark::kMicrosecond);

void BM_SevenSumsWithoutDrawing(benchmark::State& state)
{
    using namespace RiemannSums;
    FuncGlobals::Coefficients = {1, 0, 0, 0, 0, 0};
    FuncGlobals::FunctionId = 2;
    RandomPointArray points;
    auto f = [](double x) { return FuncGlobals::YFunc(x); };
    auto none = [](auto...) {};
    const double L = -2, R = 2, dx = (R - L) / 32000;
    float total = 0;
    noteState(state);
    for (auto _ : state) {
        total += leftEndpoint(f, L, dx, 32000, none).area;
        total += rightEndpoint(f, L, dx, 32000, none).area;
        total += midpoint(f, L, dx, 32000, none).area;
        total += trapezoidal(f, L, dx, 32000, none).area;
        total += randomPoint(f, L, dx, 32000, none).area;
        total += simpson(f, L, dx, 32000, none).area;
        total += randomWidths(f, L, R, 32000, points, none).area;
    }
    benchmark::DoNotOptimize(total);
}
BENCHMARK(BM_SevenSumsWithoutDrawing)->Unit(benchmark::kMillisecond);

// Find c: about 200,001 derivative evaluations of family 5 on [-3, 3].
void BM_BareDerivativeLoop(benchmark::State& state)
{
    FuncGlobals::Coefficients = {1, 1, 0, 0, 0, 0};
    FuncGlobals::FunctionId = 5;
    const double a = -3, b = 3, h = (b - a) / 200000;
    noteState(state);
    for (auto _ : state) {
        double sum = 0;
        for (double x = a; x <= b; x += h)
            sum += FuncGlobals::YPrimeFunc(x);
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(BM_BareDerivativeLoop)->Unit(benchmark::kMillisecond);

// One slider tangent: 6401 columns of the tangent line and one derivative.
void BM_BareTangentColumns(benchmark::State& state)
{
    FuncGlobals::Coefficients = {1, 1, 0, 0, 0, 0};
    FuncGlobals::FunctionId = 5;
    noteState(state);
    for (auto _ : state) {
        const double c = 0.3, fc = FuncGlobals::YFunc(c), m = FuncGlobals::YPrimeFunc(c);
        double sum = 0;
        for (int column = 2400; column <= 8800; ++column) {
            const double x = (column - 5600) * 20.0 / 6400;
            sum += 3300 - (m * (x - c) + fc) * 6400 / 20;
        }
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(BM_BareTangentColumns)->Unit(benchmark::kMicrosecond);

// The slope field's eighty curves of up to 10000 steps, followed with nothing drawn.
void BM_SameCurvesWithoutDrawing(benchmark::State& state)
{
    FuncGlobals::Coefficients = {-1, 0, 0, 0, 1, 0};
    FuncGlobals::DyFuncId = 1;
    FuncGlobals::DxFuncId = 1;
    IntegralCurves::Settings s;
    s.points = 9999;
    const double h = 0.0005;
    long segments = 0;
    noteState(state);
    for (auto _ : state) {
        for (int k = 0; k < 40; ++k) {
            const double X0 = k < 20 ? 2401 + 320 * k : 5600, Y0 = k < 20 ? 3300 : 101 + 320 * (k - 20);
            for (bool backward : {false, true}) {
                double x = (X0 - 5600) * 20 / 6400, y = (3300 - Y0) * 20 / 6400;
                const double step = backward ? -h : h;
                const IntegralCurves::Step first = IntegralCurves::step(s, x, y, step);
                x += first.dx;
                y += first.dy;
                std::int16_t counter = 1;
                IntegralCurves::follow(s, step, backward, x, y, counter,
                                       [&](double, double, double, double) { ++segments; });
            }
        }
    }
    benchmark::DoNotOptimize(segments);
}
BENCHMARK(BM_SameCurvesWithoutDrawing)->Unit(benchmark::kMillisecond);

void BM_Bare64000ParametricEvaluations(benchmark::State& state)
{
    FuncGlobals::Coefficients = {4, 3, 0, 3, 2, 0};
    FuncGlobals::XtFuncId = 4;
    FuncGlobals::YtFuncId = 5;
    const float dt = 6.3f / 32000;
    noteState(state);
    for (auto _ : state) {
        double sum = 0;
        for (int i = 0; i <= 32000; ++i) {
            const float t = static_cast<float>(i) * dt;
            sum += FuncGlobals::XtFunc(t) + FuncGlobals::YtFunc(t);
        }
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(BM_Bare64000ParametricEvaluations)->Unit(benchmark::kMillisecond);

void BM_Bare42PlotsOfEvaluations(benchmark::State& state)
{
    FuncGlobals::Coefficients = {1, 1, 0, 0, 0, 0};
    FuncGlobals::FunctionId = 2;
    noteState(state);
    for (auto _ : state) {
        double sum = 0;
        for (int frame = 0; frame <= 41; ++frame) {
            FuncGlobals::Coefficients.A = -2 + frame * 4.0 / 41;
            for (int c = 2401; c <= 8799; ++c)
                sum += FuncGlobals::YFunc((c - 5600) * 20.0 / 6400);
        }
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(BM_Bare42PlotsOfEvaluations)->Unit(benchmark::kMillisecond);

// The limits screen's Halve epsilon without the screen: the delta search alone, x^2 at 1 with L = 1
// and epsilon 0.25 over the window from -10 to 10.
void BM_LimitsDeltaSearch(benchmark::State& state)
{
    FuncGlobals::Coefficients = {1, 1, 0, 0, 0, 0};
    FuncGlobals::FunctionId = 1;
    const FuncGlobals::ExplicitSnapshot f(FuncGlobals::ExplicitSnapshot::What::Value, nullptr);
    const limits::Values values = [&f](const std::vector<double>& xs) { return f.at(xs); };
    noteState(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(limits::largestDelta(values, 1, 1, 0.25, -10, 10).delta);
}
BENCHMARK(BM_LimitsDeltaSearch)->Unit(benchmark::kMillisecond);

// The Taylor screen's two steps without the screen: the series of sin x about 0 (its terms kept, as
// the screen keeps them), and f, P_7 and P_6 on the 6399 columns of the window from -10 to 10, twice.
void BM_TaylorEvaluationsOnly(benchmark::State& state)
{
    FuncGlobals::Coefficients = {1, 1, 0, 0, 0, 0};
    FuncGlobals::FunctionId = 5;
    FuncGlobals::TaylorSeries series = FuncGlobals::TaylorSeries::ofFamily(5, 0, FuncGlobals::Coefficients);
    for (int k = 0; k <= 7; ++k)
        (void)series.term(k);
    const FuncGlobals::ExplicitSnapshot f(FuncGlobals::ExplicitSnapshot::What::Value, nullptr);
    std::vector<double> xs;
    for (int c = 2401; c <= 8799; ++c)
        xs.push_back((c - 5600) * 20.0 / 6400);
    noteState(state);
    for (auto _ : state)
        for (int click = 0; click < 2; ++click) {
            double sum = 0;
            for (double v : f.at(xs))
                sum += v;
            for (double x : xs)
                sum += series.polynomial(7, x) + series.polynomial(6, x);
            benchmark::DoNotOptimize(sum);
        }
}
BENCHMARK(BM_TaylorEvaluationsOnly)->Unit(benchmark::kMillisecond);

}  // namespace

// No application object: this process never starts the toolkit.
BENCHMARK_MAIN();
