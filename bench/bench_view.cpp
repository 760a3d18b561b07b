// SPDX-License-Identifier: GPL-3.0-or-later
// A wheel step and a pan step on kept pictures of every size, against the same picture drawn
// directly by the screen's handlers at that window (what a redraw cannot do with less).
#include <functional>
#include <memory>

#include <benchmark/benchmark.h>

#include "screens/frmClasses.h"
#include "screens/frmFlowField.h"
#include "screens/frmNewton.h"
#include "screens/frmRiemann.h"

namespace {

struct Scene {
    std::function<std::unique_ptr<GraphScreen>()> make;
    std::function<void(GraphScreen&)> draw;  // the actions that draw the picture, after a clear
    double x, y;  // the point the wheel turns about
};

void allSums(GraphScreen& s, const char* partitions)
{
    auto& r = static_cast<frmRiemann&>(s);
    for (CheckBox* c : {r.chkLeft, r.chkRight, r.chkMid, r.chkTrap, r.chkSimpson, r.chkRandom, r.chkRiemann})
        c->setChecked(true);
    r.txtParts->setText(QString::fromLatin1(partitions));
    r.cmdParts_Click();
}

const Scene& scene(int which)
{
    static const Scene scenes[] = {
        // 0: ten curves on the grapher
        {[] { return std::make_unique<frmClasses>(); },
         [](GraphScreen& s) {
             for (int f = 1; f <= 10; ++f) {
                 s.mnuFunc_Click(f);
                 s.cmdPlotto_Click();
             }
         },
         1, 1},
        // 1: the seven sums of 100 partitions
        {[] { return std::make_unique<frmRiemann>(); }, [](GraphScreen& s) { allSums(s, "100"); }, 0, 1},
        // 2: Newton's method: the curve, its derivative and six steps
        {[] { return std::make_unique<frmNewton>(); },
         [](GraphScreen& s) {
             auto& n = static_cast<frmNewton&>(s);
             n.cmdPlotto_Click();
             n.cmdDeriv_Click();
             n.NewSequence = true;
             n.txtGuess->setText(QStringLiteral("3"));
             for (int i = 0; i < 6; ++i)
                 n.cmdApply_Click();
         },
         2, 0},
        // 3: the slope field's forty curves
        {[] { return std::make_unique<frmFlowField>(); }, [](GraphScreen& s) { s.cmdPlotto_Click(); }, 1, 1},
        // 4: the seven sums of 32000 partitions
        {[] { return std::make_unique<frmRiemann>(); }, [](GraphScreen& s) { allSums(s, "32000"); }, 0, 1},
        // 5: the forty curves and the three approximations from (4, 3)
        {[] { return std::make_unique<frmFlowField>(); },
         [](GraphScreen& s) {
             auto& f = static_cast<frmFlowField&>(s);
             f.optCurve->setChecked(true);
             f.cmdPlotto_Click();
             f.optApprox->setChecked(true);
             for (const frmFlowField::MethodOption& method : frmFlowField::kMethodOptions) {
                 (f.*method.option)->setChecked(true);
                 f.Form_MouseDown(LeftButton, 0, s.graph.column(4), s.graph.row(3));
             }
         },
         4, 3},
    };
    return scenes[which];
}

std::unique_ptr<GraphScreen> drawn(const Scene& sc)
{
    auto s = sc.make();
    s->Form_Activate();
    s->CleanGraph();
    sc.draw(*s);
    return s;
}

// One wheel notch, in and out by turns about the scene's point.
void BM_ViewWheelStep(benchmark::State& state)
{
    const Scene& sc = scene(static_cast<int>(state.range(0)));
    const auto s = drawn(sc);
    bool in = true;
    for (auto _ : state) {
        s->zoomViewAt(sc.x, sc.y, in ? 1.25 : 0.8);
        in = !in;
    }
    state.counters["kept"] = s->everyDrawingKept() ? 1 : 0;
}
BENCHMARK(BM_ViewWheelStep)->DenseRange(0, 5)->Unit(benchmark::kMillisecond);

// One step of a drag, a twentieth of the window to the right and back by turns.
void BM_ViewPanStep(benchmark::State& state)
{
    const Scene& sc = scene(static_cast<int>(state.range(0)));
    const auto s = drawn(sc);
    const double step = s->shownWindow()->width() / 20;
    bool right = true;
    for (auto _ : state) {
        s->panView(right ? step : -step, 0);
        right = !right;
    }
}
BENCHMARK(BM_ViewPanStep)->DenseRange(0, 5)->Unit(benchmark::kMillisecond);

// The floor: the same picture drawn by the handlers themselves after a clear.
void BM_ViewDirectDrawing(benchmark::State& state)
{
    const Scene& sc = scene(static_cast<int>(state.range(0)));
    const auto s = drawn(sc);
    for (auto _ : state) {
        s->CleanGraph();
        sc.draw(*s);
    }
}
BENCHMARK(BM_ViewDirectDrawing)->DenseRange(0, 5)->Unit(benchmark::kMillisecond);

}  // namespace
