// SPDX-License-Identifier: GPL-3.0-or-later
// The heavy handlers with a typed function, each set up exactly as its family benchmark and typed as
// the same formula, so that the performance page compares the two in the same run.
#include <benchmark/benchmark.h>

#include "runtime/VectorState.h"

#include "screens/frmClasses.h"
#include "screens/frmFlowField.h"
#include "screens/frmMVT.h"
#include "screens/frmParam.h"
#include "screens/frmRiemann.h"

namespace {

void reportDirty(benchmark::State& state)
{
    state.counters["dirty"] = rt::vectorStateReported() ? (rt::dirtyAtLastHotLoop() ? 1 : 0) : -1;
}

void typedOrFail(benchmark::State& state, const QString& refusal)
{
    if (!refusal.isEmpty())
        state.SkipWithError(refusal.toStdString().c_str());
}

// Family 5, A*Sin(Bx + C) + Dx + E, typed.
void BM_TypedGrapherPlot(benchmark::State& state)
{
    frmClasses screen;
    screen.Form_Activate();
    typedOrFail(state, screen.setTypedFunction(QStringLiteral("A*sin(B*x + C) + D*x + E")));
    for (auto _ : state)
        screen.cmdPlotto_Click();
    reportDirty(state);
}
BENCHMARK(BM_TypedGrapherPlot)->Unit(benchmark::kMicrosecond);

// Family 2 with A = 1, B = C = 0 on [-2, 2], all seven methods at 32000 partitions.
void BM_TypedGraphPartitionsAllMethods(benchmark::State& state)
{
    frmRiemann screen;
    screen.Form_Activate();
    screen.txtA->setText(QStringLiteral("1"));
    screen.txtB->setText(QStringLiteral("0"));
    screen.txtC->setText(QStringLiteral("0"));
    screen.txtLBound->setText(QStringLiteral("-2"));
    screen.txtRBound->setText(QStringLiteral("2"));
    screen.txtParts->setText(QStringLiteral("32000"));
    typedOrFail(state, screen.setTypedFunction(QStringLiteral("A*x^2 + B*x + C")));
    for (CheckBox* c : {screen.chkLeft, screen.chkRight, screen.chkMid, screen.chkTrap, screen.chkRandom,
                        screen.chkSimpson, screen.chkRiemann})
        c->setChecked(true);
    screen.cmdGraphNow_Click();
    for (auto _ : state)
        screen.cmdParts_Click();
    reportDirty(state);
}
BENCHMARK(BM_TypedGraphPartitionsAllMethods)->Unit(benchmark::kMillisecond);

// Family 5 on [-3, 3], its exact derivative from the symbolic one.
void BM_TypedFindCScan(benchmark::State& state)
{
    frmMVT screen;
    screen.Form_Activate();
    typedOrFail(state, screen.setTypedFunction(QStringLiteral("A*sin(B*x + C) + D*x + E")));
    screen.txtX1->setText(QStringLiteral("-3"));
    screen.txtX2->setText(QStringLiteral("3"));
    screen.cmdApplyMVT_Click();
    for (auto _ : state)
        screen.cmdAnimateIt_Click();
    reportDirty(state);
}
BENCHMARK(BM_TypedFindCScan)->Unit(benchmark::kMillisecond);

// Rate family 1 for dy and dx, typed.
void BM_TypedFortyBidirectionalCurves(benchmark::State& state)
{
    frmFlowField screen;
    screen.Form_Activate();
    screen.chkBiDirect->setChecked(true);
    screen.txtDelta->setText(QStringLiteral("0.0005"));
    screen.txtCurvePoints->setText(QStringLiteral("9999"));
    typedOrFail(state, screen.setTypedRates(QStringLiteral("A*x + B*y + C"), QStringLiteral("D*x + E*y + F")));
    for (auto _ : state)
        screen.cmdPlotto_Click();
    reportDirty(state);
}
BENCHMARK(BM_TypedFortyBidirectionalCurves)->Unit(benchmark::kMillisecond);

// Parametric families 4 and 5, typed.
void BM_TypedParametricPlot32000(benchmark::State& state)
{
    frmParam screen;
    screen.Form_Activate();
    screen.txtTstep->setText(QStringLiteral("32000"));
    screen.optCont->setChecked(state.range(0) != 0);
    typedOrFail(state, screen.setTypedCurve(QStringLiteral("A*sin(B*t) + C"), QStringLiteral("D*cos(E*t) + F")));
    for (auto _ : state)
        screen.cmdPlotto_Click();
    reportDirty(state);
}
BENCHMARK(BM_TypedParametricPlot32000)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
