// SPDX-License-Identifier: GPL-3.0-or-later
// The parametric screen through its widgets: the plot as points and as lines, the step limit and the
// slider's arithmetic, the trace, Zoom Out and the function labels.
#include "screens/frmParam.h"

#include "ScreenFixture.h"

using Param = ScreenFixture<frmParam>;

TEST_F(Param, StartsWithTheDefaultFigure)
{
    EXPECT_EQ(screen->windowTitle(), QStringLiteral("Parametric Equation graphing"));
    EXPECT_EQ(FuncGlobals::XtFuncId, 4);
    EXPECT_EQ(FuncGlobals::YtFuncId, 5);
    EXPECT_EQ(screen->txtA->text(), QStringLiteral("4"));
    EXPECT_EQ(screen->txtE->text(), QStringLiteral("2"));
    EXPECT_TRUE(screen->optPoints->isChecked());
    EXPECT_EQ(screen->HscT->Max(), 1000);
    EXPECT_EQ(screen->HscT->pageStep(), 20);
    EXPECT_EQ(screen->lblInstruct->text(), QStringLiteral("Select x && y functions and enter their constants."));
    ASSERT_EQ(screen->mnuYFunc.size(), 13u);
    EXPECT_EQ(screen->mnuYFunc[12]->text(), QStringLiteral("y = D /(Et + F)"));
}

TEST_F(Param, SeparatePointsOfXFourSinThreeTYThreeCosTwoT)
{
    screen->cmdPlotto->click();
    const QRgb red = colour(4);  // x family 4: 4 mod 7
    EXPECT_TRUE(hasPoint(5600, 3300 - 3 * 320, red));  // t = 0: (0, 3)
    EXPECT_EQ(count(DrawOp::PSet), 1001);
    EXPECT_EQ(count(DrawOp::Line), 44);
    for (const DrawOp& op : ops()) {
        if (op.kind == DrawOp::PSet) {
            ASSERT_EQ(op.color, red);
        }
    }
}

TEST_F(Param, ConnectedPointsTestOnlyTheNewPoint)
{
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
    ASSERT_EQ(script.shown.size(), 1u);
    EXPECT_EQ(script.shown[0], std::make_pair(QStringLiteral("Exceeded Maximum"),
                                              QStringLiteral("The maximum number of steps is 32000")));
    EXPECT_EQ(screen->txtTstep->text(), QStringLiteral("32000"));
    EXPECT_EQ(screen->HscT->Max(), 32000);
    EXPECT_EQ(screen->HscT->pageStep(), 640);
    screen->txtTstep->setText(QStringLiteral("30"));
    EXPECT_EQ(screen->HscT->pageStep(), 30);
    screen->txtTstep->setText(QStringLiteral("1000"));
    EXPECT_EQ(screen->HscT->pageStep(), 20);
    screen->txtTstep->setText(QStringLiteral("-4"));  // below 0: LargeChange stays, Max runs below Min
    EXPECT_EQ(screen->HscT->pageStep(), 20);
    EXPECT_EQ(screen->HscT->Max(), -4);
}

TEST_F(Param, SliderWritesTheCutTIntoTheTraceBox)
{
    screen->HscT->setValue(500);
    EXPECT_EQ(screen->txtT->text(), QStringLiteral("3.15"));
    screen->HscT->setValue(1000);
    EXPECT_EQ(screen->txtT->text(), QStringLiteral("6.3"));
    screen->txtTn->setText(QStringLiteral("-6.3"));  // a negative final t: the slider runs downwards
    EXPECT_EQ(screen->lblTmax->text(), QStringLiteral("-6.3"));
    screen->HscT->setValue(1);
    EXPECT_EQ(screen->txtT->text(), QStringLiteral("-0.0064"));  // cut downwards: -63.0000001 becomes -64
}

TEST_F(Param, TraceShowsTheCutPointAndMarksItThick)
{
    screen->txtT->setText(QStringLiteral("1"));
    EXPECT_EQ(screen->lblXY->text(), QStringLiteral("( .5644,-1.2485)"));
    const DrawOp& mark = ops().back();
    EXPECT_EQ(mark.kind, DrawOp::PSet);
    EXPECT_EQ(mark.width, 3);
    EXPECT_EQ(mark.color, colour(6));  // (4 + 2) mod 7
    EXPECT_EQ(screen->surface->drawWidth(), 1);
    screen->txtXmin->setText(QStringLiteral("5"));  // the traced point now lies outside: nothing is marked
    screen->txtT->setText(QStringLiteral("1.5"));
    EXPECT_EQ(count(DrawOp::PSet), 0);
}

TEST_F(Param, ZoomOutDoublesTheWindowAboutItsCentreWithStr)
{
    screen->cmdZout->click();
    EXPECT_EQ(screen->txtXmin->text(), QStringLiteral("-20"));
    EXPECT_EQ(screen->txtXmax->text(), QStringLiteral(" 20"));
    EXPECT_EQ(screen->txtYmax->text(), QStringLiteral(" 20"));
    EXPECT_GT(count(DrawOp::PSet), 0);  // re-plotted
    screen->cmdZoomIn_Click();
    EXPECT_EQ(screen->txtXmax->text(), QStringLiteral("10"));
}

TEST_F(Param, FunctionLabelsStepThroughTheFamilies)
{
    press(screen->lblXPar, Qt::LeftButton);
    EXPECT_EQ(FuncGlobals::XtFuncId, 5);
    EXPECT_EQ(screen->lblXPar->text(), QStringLiteral("x = A*Cos(Bt) + C"));
    screen->mnuYFunc_Click(12);
    press(screen->lblYPar, Qt::RightButton);
    EXPECT_EQ(FuncGlobals::YtFuncId, 1);
    press(screen->lblT0, Qt::RightButton);
    press(screen->lblTstep, Qt::LeftButton);
    EXPECT_EQ(screen->txtT0->text(), QStringLiteral("-1"));
    EXPECT_EQ(screen->lblTmin->text(), QStringLiteral("-1"));
    EXPECT_EQ(screen->txtTstep->text(), QStringLiteral("1001"));
}

TEST_F(Param, ZeroOrTooManyStepsRaiseTheirErrors)
{
    screen->txtTstep->setText(QStringLiteral("0"));
    screen->cmdPlotto->click();
    screen->txtTstep->setText(QStringLiteral("abc"));
    screen->cmdPlotto->click();
    EXPECT_EQ(script.errors, (std::vector<int>{rt::DivisionByZero, rt::DivisionByZero}));
    screen->mnuAbout_Click();
    EXPECT_EQ(script.shown.back().first, QStringLiteral("Change the size of the window?"));
}
