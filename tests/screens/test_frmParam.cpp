// SPDX-License-Identifier: GPL-3.0-or-later
// The parametric screen through its widgets: the plot as points and as lines, the step limit and the
// slider's arithmetic, the trace, Zoom Out and the function labels.

#include "ScreenFixture.h"

using Param = ScreenFixture<frmParam>;

TEST_F(Param, SeparatePointsOrConnectedLinesThatTestOnlyTheNewPoint)
{
    screen->cmdPlotto->click();  // x = 4 sin 3t, y = 3 cos 2t in red: x family 4 mod 7
    EXPECT_TRUE(hasPoint(5600, 3300 - 3 * 320, colour(4)));  // t = 0: (0, 3)
    EXPECT_EQ(std::tuple(count(DrawOp::PSet), inColour(4), count(DrawOp::Line)), std::tuple(1001, 1001, 44));
    screen->cmdClean_Click();
    screen->optCont->setChecked(true);
    screen->txtXmin->setText(QStringLiteral("0"));  // the left half of the figure lies outside
    screen->cmdPlotto_Click();
    long fromOutside = 0, toOutside = 0;
    for (const DrawOp& op : ops())
        if (op.kind == DrawOp::Line && op.color == colour(4)) {
            fromOutside += op.x1 < 2400 ? 1 : 0;
            toOutside += op.x2 <= 2400 ? 1 : 0;
        }
    EXPECT_GT(fromOutside, 0);  // a segment coming in from outside is drawn whole
    EXPECT_EQ(toOutside, 0);  // the segment to a point outside is not
}

TEST_F(Param, StepLimitAndTheSlidersLargeChange)
{
    screen->txtTstep->setText(QStringLiteral("40000"));
    EXPECT_EQ(script.shown,
              (Shown{{QStringLiteral("Exceeded Maximum"), QStringLiteral("The maximum number of steps is 32000")}}));
    const struct { const char* steps; const char* kept; int max, page; } cases[] = {
        {"40000", "32000", 32000, 640},
        {"30", "30", 30, 30},
        {"1000", "1000", 1000, 20},
        {"-4", "-4", -4, 20}};  // below 0: LargeChange stays, Max runs below Min
    for (const auto& [steps, kept, max, page] : cases) {
        screen->txtTstep->setText(QString::fromLatin1(steps));
        EXPECT_EQ(screen->txtTstep->text(), QString::fromLatin1(kept)) << steps;
        EXPECT_EQ(std::pair(screen->HscT->Max(), screen->HscT->pageStep()), std::pair(max, page)) << steps;
    }
}

TEST_F(Param, TheSquaresRightEdgeIsOutside)
{
    screen->mnuXFunc_Click(1);  // x = At^2 + Bt + C = 0 in a window ending at 0: every point on the edge
    type({screen->txtA, screen->txtB, screen->txtC, screen->txtXmax}, "0|0|0|0");
    screen->cmdPlotto_Click();
    const auto onEdge = std::count_if(ops().begin(), ops().end(), [](const DrawOp& op) { return op.kind == DrawOp::PSet && op.x1 == 8800; });
    EXPECT_EQ(onEdge, 1) << "only the first point, which is drawn wherever it is";
}

TEST_F(Param, SliderWritesTheCutTIntoTheTraceBoxAndTheTraceMarksThePoint)
{
    screen->HscT->setValue(500);
    EXPECT_EQ(screen->txtT->text(), QStringLiteral("3.15"));
    screen->HscT->setValue(1000);
    EXPECT_EQ(screen->txtT->text(), QStringLiteral("6.3"));
    screen->txtTn->setText(QStringLiteral("-6.3"));  // a negative final t: the slider runs downwards
    EXPECT_EQ(screen->lblTmax->text(), QStringLiteral("-6.3"));
    screen->HscT->setValue(1);
    EXPECT_EQ(screen->txtT->text(), QStringLiteral("-0.0064"));  // cut downwards: -63.0000001 becomes -64
    screen->cmdClean_Click();
    screen->txtT->setText(QStringLiteral("1"));
    EXPECT_EQ(screen->lblXY->text(), QStringLiteral("( .5644,-1.2485)"));
    expectDescribed("Trace at t = ", {screen->lblXY});
    const DrawOp& mark = ops().back();
    EXPECT_EQ(std::tuple(mark.kind, mark.width, mark.color), std::tuple(DrawOp::PSet, 3, colour(6)));  // (4 + 2) mod 7
    EXPECT_EQ(screen->surface->drawWidth(), 1);
    screen->txtXmin->setText(QStringLiteral("5"));  // the traced point now lies outside: nothing is marked
    screen->txtT->setText(QStringLiteral("1.5"));
    EXPECT_EQ(count(DrawOp::PSet), 0);
}

TEST_F(Param, ZoomOutLabelsAndTheErrorsOfTheStepCount)
{
    screen->cmdZout->click();
    EXPECT_EQ(texts({screen->txtXmin, screen->txtXmax, screen->txtYmax}), QStringLiteral("-20| 20| 20"));
    EXPECT_GT(count(DrawOp::PSet), 0);  // re-plotted
    screen->cmdZoomIn_Click();
    EXPECT_EQ(screen->txtXmax->text(), QStringLiteral("10"));
    press(screen->lblXPar, Qt::LeftButton);
    EXPECT_EQ(FuncGlobals::XtFuncId, 5);
    press(screen->lblT0, Qt::RightButton);
    press(screen->lblTstep, Qt::LeftButton);
    EXPECT_EQ(texts({screen->txtT0, screen->lblTmin, screen->txtTstep}), QStringLiteral("-1|-1|1001"));
    for (const char* steps : {"0", "abc"}) {
        screen->txtTstep->setText(QString::fromLatin1(steps));
        screen->cmdPlotto->click();
    }
    EXPECT_EQ(script.errors, (std::vector<int>{rt::DivisionByZero, rt::DivisionByZero}));
}

TEST_F(Param, AFamilysOverflowComesAtItsPointWithThePointsBeforeItDrawn)
{
    // Families 1 (At^2 + Bt + C) and 9 (At Sin(Bt) + C: Bt overflows at t = 2 when B = 1e308, while
    // every point before lies near the origin), t from 0 in 4 steps. Points are computed a block
    // ahead of drawing them: an error still comes at its own point, after the points before it.
    const struct { int x, y; const char* coefficients; const char* ts; int error; long drawn; } cases[] = {
        {1, 1, "1|0|0|1|0|0", "0|1|4", 0, 5},
        {9, 1, "1|1e308|0|0|0|0", "0|2|4", rt::Overflow, 4},
        {1, 9, "0|0|0|1|1e308|0", "0|2|4", rt::Overflow, 4},
        {9, 1, "1|1e308|0|0|0|0", "0|4|4", rt::Overflow, 2},
    };
    for (const auto& [x, y, coefficients, ts, error, drawn] : cases) {
        SCOPED_TRACE(coefficients);
        script.errors.clear();
        screen->cmdClean_Click();
        screen->mnuXFunc_Click(x);
        screen->mnuYFunc_Click(y);
        type({screen->txtA, screen->txtB, screen->txtC, screen->txtD, screen->txtE, screen->txtF}, coefficients);
        type({screen->txtT0, screen->txtTn, screen->txtTstep}, ts);
        screen->cmdPlotto->click();
        EXPECT_EQ(script.errors, error ? std::vector<int>{error} : std::vector<int>{});
        EXPECT_EQ(count(DrawOp::PSet), drawn);
    }
}
