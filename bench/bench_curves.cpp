// SPDX-License-Identifier: GPL-3.0-or-later
// The slope-field plot button with Bi-directional checked, 10000 curve points and a small Delta x:
// eighty curves of up to 10000 segments, against the same curves followed with nothing drawn.
#include <benchmark/benchmark.h>

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
}
BENCHMARK(BM_FortyBidirectionalCurves)->Unit(benchmark::kMillisecond);

void BM_SameCurvesWithoutDrawing(benchmark::State& state)
{
    frmFlowField screen;
    prepare(screen);
    IntegralCurves::Settings s;
    s.points = 9999;
    const double h = 0.0005;
    long segments = 0;
    for (auto _ : state) {
        // The same eighty start points as the plot button's presses in the default window.
        for (int k = 0; k < 40; ++k) {
            const double X0 = k < 20 ? 2401 + 320 * k : 5600, Y0 = k < 20 ? 3300 : 101 + 320 * (k - 20);
            for (bool backward : {false, true}) {
                double x = (X0 - 5600) * 20 / 6400, y = (3300 - Y0) * 20 / 6400;
                const double step = backward ? -h : h;
                const IntegralCurves::Step first = IntegralCurves::step(s, x, y, step);
                x += first.dx;
                y += first.dy;
                std::int16_t counter = 1;
                IntegralCurves::follow(s, step, backward, x, y, counter, [&](double, double, double, double) { ++segments; });
            }
        }
    }
    benchmark::DoNotOptimize(segments);
}
BENCHMARK(BM_SameCurvesWithoutDrawing)->Unit(benchmark::kMillisecond);

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
