// SPDX-License-Identifier: GPL-3.0-or-later
// The grapher's plot button against the bare evaluation it is built on, in the same run.
#include <benchmark/benchmark.h>

#include "funclib/FuncGlobals.h"
#include "screens/frmClasses.h"

namespace {

// One full cmdPlotto_Click on the default window with family 1 (the parabola).
void BM_GrapherPlot(benchmark::State& state)
{
    frmClasses screen;
    screen.Form_Activate();
    FuncGlobals::FunctionId = static_cast<std::int16_t>(state.range(0));
    for (auto _ : state)
        screen.cmdPlotto_Click();
}
BENCHMARK(BM_GrapherPlot)->Arg(1)->Arg(5)->Unit(benchmark::kMicrosecond);

// The floor: 6399 YFunc calls over the same columns, nothing else.
void BM_BareYFunc(benchmark::State& state)
{
    frmClasses screen;
    screen.Form_Activate();
    FuncGlobals::FunctionId = static_cast<std::int16_t>(state.range(0));
    for (auto _ : state) {
        double sum = 0;
        for (int c = 2401; c <= 8799; ++c) {
            const double x = (c - 5600) * 20.0 / 6400;
            sum += FuncGlobals::YFunc(x);
        }
        benchmark::DoNotOptimize(sum);
    }
}
BENCHMARK(BM_BareYFunc)->Arg(1)->Arg(5)->Unit(benchmark::kMicrosecond);

}  // namespace
