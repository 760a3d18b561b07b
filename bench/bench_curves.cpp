// SPDX-License-Identifier: GPL-3.0-or-later
// The slope-field plot button with Bi-directional checked, 10000 curve points and a small Delta x:
// eighty curves of up to 10000 segments, against the same curves followed with nothing drawn.
#include <benchmark/benchmark.h>

#include "runtime/VectorState.h"

#include "screens/frmFlowField.h"

namespace {

void prepare(frmFlowField& screen)
{
    screen.Form_Activate();
    screen.chkBiDirect->setChecked(true);
    screen.txtDelta->setText(QStringLiteral("0.0005"));
    screen.txtCurvePoints->setText(QStringLiteral("9999"));
}

void BM_FortyBidirectionalCurves(benchmark::State& state)
{
    frmFlowField screen;
    prepare(screen);
    for (auto _ : state)
        screen.cmdPlotto_Click();
    state.counters["dirty"] = rt::vectorStateReported() ? (rt::dirtyAtLastHotLoop() ? 1 : 0) : -1;
}
BENCHMARK(BM_FortyBidirectionalCurves)->Unit(benchmark::kMillisecond);

// The window holding those eighty curves resized: the picture drawn again at the new size (the
// zoom alternates so that every iteration redraws).
void BM_ResizeWithEightyCurves(benchmark::State& state)
{
    frmFlowField screen;
    prepare(screen);
    screen.cmdPlotto_Click();
    bool large = false;
    for (auto _ : state) {
        large = !large;
        screen.surface->setZoom(large ? 1.6 : 1.0);
    }
    state.counters["kept_operations"] = static_cast<double>(screen.surface->keptOperations());
    state.counters["kept_MiB"] = static_cast<double>(screen.surface->keptBytes()) / (1 << 20);
}
BENCHMARK(BM_ResizeWithEightyCurves)->Unit(benchmark::kMillisecond);

}  // namespace
