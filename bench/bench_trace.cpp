// SPDX-License-Identifier: GPL-3.0-or-later
// The audio trace and the walk along a curve, as a student presses their keys on the grapher with
// y = x^2 - 4 drawn: the samples of a whole trace (what Ctrl+Shift+H hands to the sound device), one
// step of the walk (Right, said and marked) and the nearest feature (N).
#include <benchmark/benchmark.h>

#include "screens/frmClasses.h"

namespace {

void drawParabola(frmClasses& screen)
{
    screen.Form_Activate();
    screen.txtD->setText(QStringLiteral("-4"));
    screen.cmdPlotto_Click();
}

void BM_TraceSamples(benchmark::State& state)
{
    frmClasses screen;
    drawParabola(screen);
    for (auto _ : state)
        benchmark::DoNotOptimize(screen.traceSamples());
}
BENCHMARK(BM_TraceSamples)->Unit(benchmark::kMillisecond);

void BM_WalkStep(benchmark::State& state)
{
    frmClasses screen;
    drawParabola(screen);
    bool right = true;
    for (auto _ : state) {
        screen.exploreKey(right ? Qt::Key_Right : Qt::Key_Left, Qt::NoModifier);
        right = !right;
    }
}
BENCHMARK(BM_WalkStep)->Unit(benchmark::kMicrosecond);

void BM_WalkNearestFeature(benchmark::State& state)
{
    frmClasses screen;
    drawParabola(screen);
    for (auto _ : state) {
        screen.exploreKey(Qt::Key_End, Qt::NoModifier);  // the nearest from the edge: the root at 2
        screen.exploreKey(Qt::Key_N, Qt::NoModifier);
    }
}
BENCHMARK(BM_WalkNearestFeature)->Unit(benchmark::kMicrosecond);

}  // namespace
