// SPDX-License-Identifier: GPL-3.0-or-later
// The tangent line screen through its widgets: secants, their cut labels, the slider's mapping,
// Half Delta x and the unguarded horizontal secant.
#include "screens/frmTangent.h"

#include "ScreenFixture.h"

namespace {

struct Tangent : ScreenFixture<frmTangent> {
    void line(const char* a, const char* b, const char* c)  // y = a x^2 + b x + c
    {
        screen->mnuFunc_Click(2);
        screen->txtA->setText(QString::fromLatin1(a));
        screen->txtB->setText(QString::fromLatin1(b));
        screen->txtC->setText(QString::fromLatin1(c));
    }
};

}  // namespace

TEST_F(Tangent, StartingTextsAndSlider)
{
    EXPECT_EQ(screen->windowTitle(), QStringLiteral("The Tangent Line Problem"));
    EXPECT_EQ(screen->hscDx->value(), 2000);
    EXPECT_EQ(screen->hscDx->maximum(), 2000);
    EXPECT_EQ(screen->hscDx->pageStep(), 100);
    EXPECT_EQ(screen->lblHsc->text(), QStringLiteral("x=1"));
    EXPECT_EQ(screen->lblPoints->text(), QStringLiteral("( ___, ___ ) to ( ___ , ___ )"));
    EXPECT_EQ(screen->lblFunc->text(), QStringLiteral("y = A(Bx - C)^2 + D"));
}

TEST_F(Tangent, SecantOfXSquaredAtOne)
{
    screen->cmdApply->click();
    EXPECT_EQ(screen->lblPoints->text(), QStringLiteral("( 1, 1) to ( 2, 4)"));
    EXPECT_EQ(screen->lblTLine->text(), QStringLiteral("y = 3x + -2"));
    const QRgb red = colour(4);
    EXPECT_TRUE(hasLine(5920, 2980, 6240, 2020));  // the chord
    // y = 3x - 2 leaves through the top at x = 4 and through the bottom at x = -8/3.
    EXPECT_TRUE(hasLine(6880, 100, 5600 - 8.0 / 3 * 320, 6500));
    EXPECT_EQ(std::count_if(ops().begin(), ops().end(), [red](const DrawOp& op) { return op.color == red; }), 2);
}

TEST_F(Tangent, SliderSweepsDxFromMinusToPlusDeltaX)
{
    screen->hscDx->setValue(1000);
    EXPECT_EQ(screen->lblTLine->text(), QStringLiteral("ERROR!  0/0"));
    EXPECT_EQ(screen->lblPoints->text(), QStringLiteral("( ___, ___ ) to ( ___ , ___ )"));
    EXPECT_EQ(count(DrawOp::Line), 44);
    screen->hscDx->setValue(0);
    EXPECT_EQ(screen->lblPoints->text(), QStringLiteral("( 1, 1) to ( 0, 0)"));
    EXPECT_EQ(screen->lblTLine->text(), QStringLiteral("y = 1x + 0"));
    screen->hscDx->setValue(1500);
    EXPECT_EQ(screen->lblPoints->text(), QStringLiteral("( 1, 1) to ( 1.5, 2.25)"));
    EXPECT_EQ(screen->lblTLine->text(), QStringLiteral("y = 2.5x + -1.5"));
    EXPECT_EQ(count(DrawOp::Line), 44 + 4);  // secants accumulate
}

TEST_F(Tangent, HalfDeltaXWritesStrAndDrawsNothing)
{
    screen->cmdHalfDx->click();
    EXPECT_EQ(screen->txtDeltaX->text(), QStringLiteral(" .5"));
    EXPECT_EQ(count(DrawOp::Line), 44);
    screen->cmdApply_Click();
    EXPECT_EQ(screen->lblPoints->text(), QStringLiteral("( 1, 1) to ( 1.5, 2.25)"));
    screen->txtDeltaX->setText(QStringLiteral("-1"));  // a negative Delta x: the second point on the left
    screen->cmdApply_Click();
    EXPECT_EQ(screen->lblPoints->text(), QStringLiteral("( 1, 1) to ( 0, 0)"));
    screen->txtDeltaX->setText(QString());
    screen->cmdApply_Click();
    EXPECT_EQ(screen->lblTLine->text(), QStringLiteral("ERROR!  0/0"));
}

TEST_F(Tangent, ValuesAreCutNotRounded)
{
    line("0", "2.999999", "0");
    screen->cmdApply_Click();
    EXPECT_TRUE(screen->lblTLine->text().startsWith(QStringLiteral("y = 2.99999x + ")));
    line("0", "-0.333333", "0");
    screen->cmdApply_Click();
    EXPECT_TRUE(screen->lblTLine->text().startsWith(QStringLiteral("y = -.33334x + ")));
    EXPECT_EQ(screen->lblPoints->text(), QStringLiteral("( 1,-.3334) to ( 2,-.6667)"));
}

TEST_F(Tangent, AHorizontalSecantOutsideTheWindowDividesByZero)
{
    line("0", "0", "20");
    screen->cmdApply->click();
    EXPECT_EQ(script.errors, std::vector<int>{rt::DivisionByZero});
    script.errors.clear();
    line("0", "0", "5");  // inside the window: drawn from border to border
    screen->cmdApply->click();
    EXPECT_TRUE(script.errors.empty());
    EXPECT_TRUE(hasLine(8800, 1700, 2400, 1700));
    EXPECT_EQ(screen->lblTLine->text(), QStringLiteral("y = 0x + 5"));
}

TEST_F(Tangent, StepperLabelsAndTheEchoOfX)
{
    screen->txtX->setText(QStringLiteral("2.5"));
    EXPECT_EQ(screen->lblHsc->text(), QStringLiteral("2.5"));
    press(screen->lblXat, Qt::LeftButton);
    EXPECT_EQ(screen->txtX->text(), QStringLiteral(" 3.5"));
    EXPECT_EQ(screen->lblHsc->text(), QStringLiteral(" 3.5"));
    press(screen->lblDeltaX, Qt::RightButton);
    EXPECT_EQ(screen->txtDeltaX->text(), QStringLiteral(" 0"));
    screen->mnuAbout_Click();
    ASSERT_EQ(script.shown.size(), 4u);
    EXPECT_EQ(script.shown[3].first, QStringLiteral("Slider"));
}
