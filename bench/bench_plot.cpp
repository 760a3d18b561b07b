// SPDX-License-Identifier: GPL-3.0-or-later
// The grapher's plot button against the bare evaluation it is built on, in the same run.
#include <benchmark/benchmark.h>

#include "runtime/VectorState.h"

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
    state.counters["dirty"] = rt::vectorStateReported() ? (rt::dirtyAtLastHotLoop() ? 1 : 0) : -1;
}
BENCHMARK(BM_GrapherPlot)->Arg(1)->Arg(5)->Unit(benchmark::kMicrosecond);

}  // namespace
