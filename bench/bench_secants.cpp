// SPDX-License-Identifier: GPL-3.0-or-later
// The mean value screen's Find c scan against a bare loop of the same derivative evaluations, and one
// slider tangent, in the same run.
#include <benchmark/benchmark.h>

#include "runtime/VectorState.h"

#include "funclib/FuncGlobals.h"
#include "screens/frmMVT.h"

namespace {

void prepare(frmMVT& screen)
{
    screen.Form_Activate();
    screen.mnuFunc_Click(5);  // A*Sin(Bx + C) + Dx + E: no match is rare, some are found
    screen.txtX1->setText(QStringLiteral("-3"));
    screen.txtX2->setText(QStringLiteral("3"));
    screen.cmdApplyMVT_Click();
}

void BM_FindCScan(benchmark::State& state)
{
    frmMVT screen;
    prepare(screen);
    for (auto _ : state)
        screen.cmdAnimateIt_Click();
    state.counters["dirty"] = rt::vectorStateReported() ? (rt::dirtyAtLastHotLoop() ? 1 : 0) : -1;
}
BENCHMARK(BM_FindCScan)->Unit(benchmark::kMillisecond);

void BM_SliderTangent(benchmark::State& state)
{
    frmMVT screen;
    prepare(screen);
    int v = 0;
    for (auto _ : state) {
        v = v == 7000 ? 7001 : 7000;
        screen.HscMVT->setValue(v);
    }
    state.counters["dirty"] = rt::vectorStateReported() ? (rt::dirtyAtLastHotLoop() ? 1 : 0) : -1;
}
BENCHMARK(BM_SliderTangent)->Unit(benchmark::kMicrosecond);

}  // namespace
