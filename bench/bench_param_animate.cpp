// SPDX-License-Identifier: GPL-3.0-or-later
// The parametric plot at 32000 steps and the default continuous animation, each against the bare
// evaluations it is built on, in the same run.
#include <benchmark/benchmark.h>

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
}
BENCHMARK(BM_ParametricPlot32000)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_Bare64000ParametricEvaluations(benchmark::State& state)
{
    frmParam screen;
    screen.Form_Activate();
    const float dt = 6.3f / 32000;
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

void BM_ContinuousAnimation42Frames(benchmark::State& state)
{
    frmAnimate screen;
    screen.Form_Activate();
    screen.mnuFunc_Click(2);
    for (auto _ : state)
        screen.cmdAnimate_Click();
}
BENCHMARK(BM_ContinuousAnimation42Frames)->Unit(benchmark::kMillisecond);

void BM_Bare42PlotsOfEvaluations(benchmark::State& state)
{
    frmAnimate screen;
    screen.Form_Activate();
    screen.mnuFunc_Click(2);
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

}  // namespace
