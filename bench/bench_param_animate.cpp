// SPDX-License-Identifier: GPL-3.0-or-later
// The parametric plot at 32000 steps and the default continuous animation, each against the bare
// evaluations it is built on, in the same run.
#include <benchmark/benchmark.h>

#include "runtime/VectorState.h"

#include "funclib/FuncGlobals.h"
#include "runtime/Numbers.h"
#include "screens/frmAnimate.h"
#include "screens/frmParam.h"

namespace {

void BM_ParametricPlot32000(benchmark::State& state)
{
    frmParam screen;
    screen.Form_Activate();
    screen.txtTstep->setText(QStringLiteral("32000"));
    screen.optCont->setChecked(state.range(0) != 0);
    for (auto _ : state)
        screen.cmdPlotto_Click();
    state.counters["dirty"] = rt::vectorStateReported() ? (rt::dirtyAtLastHotLoop() ? 1 : 0) : -1;
}
BENCHMARK(BM_ParametricPlot32000)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_ContinuousAnimation42Frames(benchmark::State& state)
{
    frmAnimate screen;
    screen.Form_Activate();
    screen.mnuFunc_Click(2);
    for (auto _ : state)
        screen.cmdAnimate_Click();
    state.counters["dirty"] = rt::vectorStateReported() ? (rt::dirtyAtLastHotLoop() ? 1 : 0) : -1;
}
BENCHMARK(BM_ContinuousAnimation42Frames)->Unit(benchmark::kMillisecond);

}  // namespace
