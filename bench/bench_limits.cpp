// SPDX-License-Identifier: GPL-3.0-or-later
// The limits screen's step at its default settings (x^2 at a = 1, L = 1): Halve epsilon from 0.5,
// which looks for delta on both sides, adds the table's row and draws f with both bands.
#include <benchmark/benchmark.h>

#include "screens/frmLimits.h"

namespace {

void BM_LimitsHalveEpsilon(benchmark::State& state)
{
    frmLimits screen;
    screen.Form_Activate();
    for (auto _ : state) {
        screen.txtEpsilon->setText(QStringLiteral("0.5"));
        screen.cmdHalve_Click();
    }
}
BENCHMARK(BM_LimitsHalveEpsilon)->Unit(benchmark::kMillisecond);

}  // namespace
