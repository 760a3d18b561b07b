// SPDX-License-Identifier: GPL-3.0-or-later
// The animation screen through its widgets: the continuous and step animations, their frame values,
// the cut label, the restored coefficients and the status rule.

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

// The animation with its plot replaced by a count, so that 32768 frames take no time.
struct CountingAnimate : frmAnimate {
    long plots = 0;
    void cmdPlotto_Click() override { ++plots; }
};

}  // namespace

TEST_F(Animate, ContinuousRunsFortyTwoFramesAndRestoresTheCoefficients)
{
    screen->cmdAnimate->click();
    for (int i : {0, 1, 20, 40, 41})
        EXPECT_TRUE(frameWithA(-2 + i * (4.0 / 41))) << i;
    EXPECT_EQ(std::tuple(screen->lblSlide->text(), screen->vscStep->value(), FuncGlobals::Coefficients.A),
              std::tuple(QStringLiteral("2"), 41, 1.0));
    EXPECT_TRUE(script.errors.empty());
    screen->optContErase->setChecked(true);
    screen->cmdAnimate_Click();  // only the last frame remains
    EXPECT_EQ(std::pair(frameWithA(2), frameWithA(-2)), std::pair(true, false));
}

TEST_F(Animate, StepsPlotOneFramePerScrollPosition)
{
    screen->optSteps->setChecked(true);
    screen->vscStep->setValue(10);
    EXPECT_EQ(screen->lblSlide->text(), QStringLiteral("-1.025"));  // -1.0244 cut, not rounded
    EXPECT_EQ(QAccessible::queryAccessibleInterface(screen->vscStep)->text(QAccessible::Value), QStringLiteral("A = -1.025"));
    expectDescribed("Animating A of", {screen->lblSlide, screen->lblClickAnimate});
    EXPECT_TRUE(frameWithA(-2 + 10 * 4.0 / 41));
    EXPECT_EQ(FuncGlobals::Coefficients.A, 1);
    const long before = count(DrawOp::PSet);
    screen->vscStep_Scroll();  // while dragging: the label only
    EXPECT_EQ(count(DrawOp::PSet), before);
    screen->optCont->setChecked(true);
    screen->vscStep->setValue(20);  // in a continuous mode the bar only moves the label
    EXPECT_EQ(std::tuple(count(DrawOp::PSet), screen->lblSlide->text()), std::tuple(before, QStringLiteral("-.049")));
}

TEST_F(Animate, WithNothingTickedEveryFrameIsTheSameCurveAndTheStatusFollowsTheTicks)
{
    const struct { bool a, b, stepErase; const char* status; } rule[] = {{false, false, false, "Select Variable(s)"},
                                                              {true, true, false, "OK to Click Animate"},
                                                              {true, true, true, "Use Scroll Bar Above"},
                                                              {false, false, true, "Select Variable(s)"}};
    for (const auto& [a, b, stepErase, status] : rule) {
        (stepErase ? screen->optStepErase : screen->optCont)->setChecked(true);
        screen->chkA->setChecked(a);
        screen->chkB->setChecked(b);
        EXPECT_EQ(screen->lblClickAnimate->text(), QString::fromLatin1(status)) << status;
    }
    screen->optCont->setChecked(true);
    screen->txtSteps->setText(QStringLiteral("3"));
    screen->cmdPlotto_Click();
    const long oneCurve = count(DrawOp::PSet);
    screen->cmdClean_Click();
    screen->cmdAnimate_Click();
    EXPECT_EQ(count(DrawOp::PSet), 4 * oneCurve);
    EXPECT_EQ(std::pair(frameWithA(1), frameWithA(-2)), std::pair(true, false));
}

// The frame counter is 16-bit: after frame 32767 has been drawn, stepping it raises Overflow.
TEST(AnimateCounter, StepPastTheLastSixteenBitFrameOverflowsAfterDrawingIt)
{
    ScriptedDialogs script;
    CountingAnimate screen;  // destroyed before the script
    screen.Form_Activate();
    type({screen.txtSteps, screen.txtEnd, screen.txtStart}, "32767|32767|0");
    screen.cmdAnimate->click();
    EXPECT_EQ(script.errors, std::vector<int>{rt::Overflow});
    EXPECT_EQ(std::tuple(screen.plots, screen.vscStep->value(), screen.lblSlide->text()),
              std::tuple(32768L, 32767, QStringLiteral("32767")));
}
