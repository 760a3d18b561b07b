// SPDX-License-Identifier: GPL-3.0-or-later
// The Taylor screen's steps on sin x about 0: Remove a Term from degree 7 and Add a Term back, each
// drawing f, P_n, P_(n-1) and the band, and filling the grid (two clicks an iteration).
#include <benchmark/benchmark.h>

#include "screens/frmTaylor.h"

namespace {

void BM_TaylorRemoveAndAddTerm(benchmark::State& state)
{
    frmTaylor screen;
    screen.Form_Activate();
    screen.mnuFunc_Click(5);  // A sin(Bx + C) + Dx + E with A = B = 1
    for (int k = 0; k <= 7; ++k)
        screen.cmdAddTerm_Click();
    for (auto _ : state) {
        screen.cmdRemoveTerm_Click();
        screen.cmdAddTerm_Click();
    }
}
BENCHMARK(BM_TaylorRemoveAndAddTerm)->Unit(benchmark::kMillisecond);

}  // namespace
