// SPDX-License-Identifier: GPL-3.0-or-later
// The animation screen through its widgets: the continuous and step animations, their frame values,
// the cut label, the restored coefficients, the status rule and the errors of its boxes.
#include "screens/frmAnimate.h"

#include "ScreenFixture.h"

namespace {

struct Animate : ScreenFixture<frmAnimate> {
    void SetUp() override
    {
        ScreenFixture::SetUp();
        screen->mnuFunc_Click(2);  // y = A x^2 + B x + C, B = 1: the point at x = 1 lies at height A + 1
    }
    bool frameWithA(double a) const { return hasPoint(5920, 3300 - (a + 1) * 320, colour(2)); }
};

}  // namespace

TEST_F(Animate, StartsWithItsDesignTexts)
{
    EXPECT_EQ(screen->windowTitle(), QStringLiteral("Animate Classes of Functions"));
    EXPECT_EQ(screen->lblSlide->text(), QStringLiteral("-2"));
    EXPECT_EQ(screen->lblClickAnimate->text(), QStringLiteral("Select Variable(s)"));
    EXPECT_TRUE(screen->optCont->isChecked());
    EXPECT_TRUE(screen->chkA->isChecked());
    EXPECT_FALSE(screen->chkB->isChecked());
    EXPECT_EQ(screen->vscStep->Max(), 41);
    EXPECT_EQ(screen->txtSteps->text(), QStringLiteral("41"));
}

TEST_F(Animate, ContinuousRunsFortyTwoFramesAndRestoresTheCoefficients)
{
    screen->cmdAnimate->click();
    for (int i : {0, 1, 20, 40, 41})
        EXPECT_TRUE(frameWithA(-2 + i * (4.0 / 41))) << i;
    EXPECT_EQ(screen->lblSlide->text(), QStringLiteral("2"));
    EXPECT_EQ(screen->vscStep->value(), 41);
    EXPECT_EQ(FuncGlobals::Coefficients.A, 1);
    EXPECT_TRUE(script.errors.empty());
    screen->optContErase->setChecked(true);
    screen->cmdAnimate_Click();  // only the last frame remains
    EXPECT_TRUE(frameWithA(2));
    EXPECT_FALSE(frameWithA(-2));
}

TEST_F(Animate, StepsPlotOneFramePerScrollPosition)
{
    screen->optSteps->setChecked(true);
    screen->vscStep->setValue(10);
    EXPECT_EQ(screen->lblSlide->text(), QStringLiteral("-1.025"));  // -1.0244 cut, not rounded
    EXPECT_TRUE(frameWithA(-2 + 10 * 4.0 / 41));
    EXPECT_EQ(FuncGlobals::Coefficients.A, 1);
    const long before = count(DrawOp::PSet);
    screen->vscStep_Scroll();  // while dragging: the label only
    EXPECT_EQ(count(DrawOp::PSet), before);
    screen->optCont->setChecked(true);
    screen->vscStep->setValue(20);  // in a continuous mode the bar only moves the label
    EXPECT_EQ(count(DrawOp::PSet), before);
    EXPECT_EQ(screen->lblSlide->text(), QStringLiteral("-.049"));
}

TEST_F(Animate, WithNothingTickedEveryFrameIsTheSameCurve)
{
    screen->chkA->setChecked(false);
    EXPECT_EQ(screen->lblClickAnimate->text(), QStringLiteral("Select Variable(s)"));
    screen->txtSteps->setText(QStringLiteral("3"));
    screen->cmdPlotto_Click();
    const long oneCurve = count(DrawOp::PSet);
    screen->cmdClean_Click();
    screen->cmdAnimate_Click();
    EXPECT_EQ(count(DrawOp::PSet), 4 * oneCurve);
    EXPECT_TRUE(frameWithA(1));
    EXPECT_FALSE(frameWithA(-2));
}

TEST_F(Animate, StatusRule)
{
    screen->chkB->setChecked(true);
    EXPECT_EQ(screen->lblClickAnimate->text(), QStringLiteral("OK to Click Animate"));
    screen->optStepErase->setChecked(true);
    EXPECT_EQ(screen->lblClickAnimate->text(), QStringLiteral("Use Scroll Bar Above"));
    screen->chkA->setChecked(false);
    screen->chkB->setChecked(false);
    EXPECT_EQ(screen->lblClickAnimate->text(), QStringLiteral("Select Variable(s)"));
}

TEST_F(Animate, EndIsReadStrictlyOnlyByTheContinuousAnimation)
{
    screen->txtEnd->setText(QStringLiteral("2x"));
    screen->cmdAnimate->click();
    EXPECT_EQ(script.errors, std::vector<int>{rt::TypeMismatch});
    script.errors.clear();
    screen->optSteps->setChecked(true);
    screen->vscStep->setValue(41);  // leniently 2
    EXPECT_TRUE(script.errors.empty());
    EXPECT_EQ(screen->lblSlide->text(), QStringLiteral("2"));
}

TEST_F(Animate, StepCountsOutsideWhatTheBarCanHold)
{
    screen->txtSteps->setText(QStringLiteral("40000"));  // beyond 16 bits
    EXPECT_EQ(script.errors, std::vector<int>{rt::Overflow});
    script.errors.clear();
    screen->txtSteps->setText(QStringLiteral("0"));  // 0 counts as one step, but the bar's Max is 0
    screen->cmdAnimate->click();
    EXPECT_EQ(script.errors, std::vector<int>{rt::InvalidPropertyValue});
    EXPECT_TRUE(frameWithA(-2));
    script.errors.clear();
    screen->txtSteps->setText(QStringLiteral("-3"));  // a negative count: no frames at all
    screen->cmdClearIt->click();
    screen->cmdAnimate_Click();
    EXPECT_EQ(count(DrawOp::PSet), 0);
    EXPECT_TRUE(script.errors.empty());
}

TEST_F(Animate, ZoomHalvesEachLimitAndHelpHasSevenBoxes)
{
    screen->cmdZoomIn->click();
    EXPECT_EQ(screen->txtXmin->text(), QStringLiteral("-5"));
    EXPECT_EQ(screen->txtYmax->text(), QStringLiteral("5"));
    screen->mnuAbout_Click();
    ASSERT_EQ(script.shown.size(), 7u);
    EXPECT_EQ(script.shown[1].second, QStringLiteral("Animate the function selected by checking one or more variables "
                                                     "at the right, selecting the range of the variable, and clicking "
                                                     "[Animate It!]"));
}

namespace {

// The animation with its plot replaced by a count, so that 32768 frames take no time.
struct CountingAnimate : frmAnimate {
    long plots = 0;
    void cmdPlotto_Click() override { ++plots; }
};

}  // namespace

// The frame counter is 16-bit: after frame 32767 has been drawn, stepping it raises Overflow.
TEST(AnimateCounter, StepPastTheLastSixteenBitFrameOverflowsAfterDrawingIt)
{
    DialogScript script;
    setDialogScript(&script);
    {
        CountingAnimate screen;
        screen.Form_Activate();
        screen.txtSteps->setText(QStringLiteral("32767"));
        screen.txtEnd->setText(QStringLiteral("32767"));
        screen.txtStart->setText(QStringLiteral("0"));
        screen.cmdAnimate->click();
        EXPECT_EQ(script.errors, std::vector<int>{rt::Overflow});
        EXPECT_EQ(screen.plots, 32768);
        EXPECT_EQ(screen.vscStep->value(), 32767);
        EXPECT_EQ(screen.lblSlide->text(), QStringLiteral("32767"));
    }
    setDialogScript(nullptr);
}
