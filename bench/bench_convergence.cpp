// SPDX-License-Identifier: GPL-3.0-or-later
// The convergence tables for the default loads, against their floors: the same evaluations of the
// function (or of the rates) in a plain loop, with no table, no quadrature and no integrator.
#include <benchmark/benchmark.h>

#include "funclib/FuncGlobals.h"
#include "funclib/StepMethods.h"
#include "screens/Convergence.h"

namespace {

void parabola()
{
    FuncGlobals::FunctionId = 2;
    FuncGlobals::Coefficients = {1, 0, 0, 0, 0, 0};
}

void circle()
{
    FuncGlobals::DyFuncId = 1;
    FuncGlobals::DxFuncId = 1;
    FuncGlobals::Coefficients = {-1, 0, 0, 0, 1, 0};
}

// Sums table with rows n = 1 .. 32768 (the screen at 32000 partitions adds a row of its own).
void BM_SumsTableTo32000(benchmark::State& state)
{
    parabola();
    for (auto _ : state)
        benchmark::DoNotOptimize(Convergence::sums(-2, 2, 32000));
}
BENCHMARK(BM_SumsTableTo32000)->Unit(benchmark::kMillisecond);

// The floor: the evaluations that the five sums of every row make.
void BM_SumsTableEvaluationsOnly(benchmark::State& state)
{
    parabola();
    for (auto _ : state) {
        double s = 0;
        for (std::int32_t n = 1; n <= 65536; n *= 2) {
            const std::int32_t rows = n == 65536 ? 32000 : n;
            for (int method = 0; method < 5; ++method)
                for (std::int32_t i = 0; i <= rows * (method == 3 ? 2 : 1); ++i)
                    s += FuncGlobals::YFunc(-2 + 4.0 * i / rows);
        }
        benchmark::DoNotOptimize(s);
    }
}
BENCHMARK(BM_SumsTableEvaluationsOnly)->Unit(benchmark::kMillisecond);

// Step table on the default circle from (4, 3) to 4.5 with h = 0.02 down to h/64.
void BM_StepTableToHOver64(benchmark::State& state)
{
    circle();
    for (auto _ : state)
        benchmark::DoNotOptimize(Convergence::steps(4, 3, 4.5, 0.02, 6, {}));
}
BENCHMARK(BM_StepTableToHOver64)->Unit(benchmark::kMillisecond);

// The floor: the steps of every method in the finest row, the largest part of the table's work.
void BM_StepTableFinestRowOnly(benchmark::State& state)
{
    circle();
    for (auto _ : state) {
        for (const StepMethods::Method& m : StepMethods::all()) {
            double y = 3;
            const double h = 0.5 / 1600;
            for (int i = 0; i < 1600; ++i)
                y += m.family(4 + h * i, y, h, {});
            benchmark::DoNotOptimize(y);
        }
    }
}
BENCHMARK(BM_StepTableFinestRowOnly)->Unit(benchmark::kMillisecond);

}  // namespace
