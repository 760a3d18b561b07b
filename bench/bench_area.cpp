// SPDX-License-Identifier: GPL-3.0-or-later
// The area screen's Find Crossings at its default settings (y = x^2 against g(x) = x + 2 on [-2, 3],
// eight strips, and 32000): the scan, the crossings, the areas, the sums, the shading and the grid.
#include <benchmark/benchmark.h>

#include "screens/frmArea.h"

namespace {

void BM_AreaFindCrossings(benchmark::State& state)
{
    frmArea screen;
    screen.Form_Activate();
    screen.txtStrips->setText(QString::number(state.range(0)));
    for (auto _ : state)
        screen.cmdCrossings_Click();
}
// The default eight strips, and the most the screen takes.
BENCHMARK(BM_AreaFindCrossings)->Arg(8)->Arg(32000)->Unit(benchmark::kMillisecond);

}  // namespace
