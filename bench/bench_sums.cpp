// SPDX-License-Identifier: GPL-3.0-or-later
// The sums screen's Graph Partitions with all seven methods at 32000 partitions, against the same
// seven sums computed with nothing drawn, in the same run.
#include <benchmark/benchmark.h>

#include "runtime/VectorState.h"

#include "funclib/FuncGlobals.h"
#include "runtime/Random.h"
#include "screens/frmRiemann.h"

namespace {

void prepare(frmRiemann& screen)
{
    screen.Form_Activate();
    screen.txtA->setText(QStringLiteral("1"));
    screen.txtB->setText(QStringLiteral("0"));
    screen.txtC->setText(QStringLiteral("0"));
    screen.txtLBound->setText(QStringLiteral("-2"));
    screen.txtRBound->setText(QStringLiteral("2"));
    screen.txtParts->setText(QStringLiteral("32000"));
    FuncGlobals::FunctionId = 2;
}

void BM_GraphPartitionsAllMethods(benchmark::State& state)
{
    frmRiemann screen;
    prepare(screen);
    for (CheckBox* c : {screen.chkLeft, screen.chkRight, screen.chkMid, screen.chkTrap, screen.chkRandom,
                        screen.chkSimpson, screen.chkRiemann})
        c->setChecked(true);
    screen.cmdGraphNow_Click();
    for (auto _ : state)
        screen.cmdParts_Click();
    state.counters["dirty"] = rt::vectorStateReported() ? (rt::dirtyAtLastHotLoop() ? 1 : 0) : -1;
}
BENCHMARK(BM_GraphPartitionsAllMethods)->Unit(benchmark::kMillisecond);

}  // namespace
