// SPDX-License-Identifier: GPL-3.0-or-later
// Newton's method screen through its widgets: the sequence of guesses, the drawing of each step, the
// grid, the zero-slope message and when a new sequence starts.
#include "screens/frmNewton.h"

#include "ScreenFixture.h"

namespace {

struct Newton : ScreenFixture<frmNewton> {
    void parabolaMinusFour()  // y = x^2 - 4
    {
        screen->mnuFunc_Click(2);
        screen->txtA->setText(QStringLiteral("1"));
        screen->txtB->setText(QStringLiteral("0"));
        screen->txtC->setText(QStringLiteral("-4"));
    }
    QString row(int r) const { return screen->grdGuess->item(r, 1)->text(); }
    long texts() const { return count(DrawOp::Text); }
};

}  // namespace

TEST_F(Newton, GridLayoutAndStartingTexts)
{
    EXPECT_EQ(screen->windowTitle(), QStringLiteral("Newton's Method and Derivatives"));
    EXPECT_EQ(screen->txtGuess->text(), QStringLiteral("FirstGuess"));
    EXPECT_EQ(screen->grdGuess->rowCount(), 15);
    EXPECT_EQ(screen->grdGuess->item(0, 0)->text(), QStringLiteral("Guess #"));
    EXPECT_EQ(screen->grdGuess->item(0, 1)->text(), QStringLiteral("Value"));
    EXPECT_EQ(screen->grdGuess->item(14, 0)->text(), QStringLiteral("14"));
    EXPECT_EQ(screen->grdGuess->columnWidth(0), 670 / 15);
    EXPECT_EQ(screen->grdGuess->columnWidth(1), 100);
    EXPECT_EQ(screen->cmdApply->text(), QStringLiteral("Apply Newton's"));
    EXPECT_EQ(FuncGlobals::FunctionId, 1);
    EXPECT_TRUE(screen->NewSequence);
    EXPECT_EQ(screen->GuessNumber, 1);
}

TEST_F(Newton, ASequenceOnXSquaredMinusFourFromOne)
{
    parabolaMinusFour();
    screen->txtGuess->setText(QStringLiteral("1"));
    screen->cmdApply->click();
    EXPECT_EQ(screen->txtGuess->text(), QStringLiteral("2.5"));
    // The vertical from the axis to (1, -3), "x1" under it, and the tangent down to the axis at 2.5.
    EXPECT_TRUE(hasLine(5920, 3300, 5920, 4260));
    EXPECT_TRUE(hasLine(5920, 4260, 6400, 3300));
    ASSERT_EQ(texts(), 1);
    const DrawOp& x1 =
        *std::find_if(ops().begin(), ops().end(), [](const DrawOp& op) { return op.kind == DrawOp::Text; });
    EXPECT_EQ(x1.text, QStringLiteral("x1"));
    EXPECT_NEAR(x1.x1, 5920 - screen->surface->TextWidth(QStringLiteral("x1")) / 2, 1e-9);
    EXPECT_EQ(x1.y1, 3300);
    screen->cmdApply_Click();
    EXPECT_EQ(screen->txtGuess->text(), QStringLiteral("2.05"));
    screen->cmdApply_Click();
    EXPECT_EQ(screen->txtGuess->text(), QStringLiteral("2.00060975609756"));
    EXPECT_EQ(texts(), 1);  // "x1" only under the first guess
    EXPECT_EQ(row(1), QStringLiteral("1"));
    EXPECT_EQ(row(2), QStringLiteral("2.5"));
    EXPECT_EQ(row(3), QStringLiteral("2.05"));
    EXPECT_EQ(row(4), QString());
    EXPECT_EQ(screen->GuessNumber, 4);
}

TEST_F(Newton, ZeroSlopeShowsTheMessageAndKeepsTheGuess)
{
    parabolaMinusFour();
    screen->txtGuess->setText(QStringLiteral("0"));
    screen->cmdApply_Click();
    ASSERT_EQ(script.shown.size(), 1u);
    EXPECT_EQ(script.shown[0], std::make_pair(QStringLiteral("Division by zero"),
                                              QStringLiteral("This guess failed due to zero for the slope")));
    EXPECT_EQ(screen->txtGuess->text(), QStringLiteral("0"));
    EXPECT_EQ(row(1), QStringLiteral("0"));
    EXPECT_EQ(screen->GuessNumber, 2);
    EXPECT_TRUE(script.errors.empty());
}

TEST_F(Newton, TheGridHoldsFourteenGuessesAndTheCountGoesOn)
{
    parabolaMinusFour();
    screen->txtGuess->setText(QStringLiteral("9"));
    for (int i = 0; i < 16; ++i)
        screen->cmdApply_Click();
    EXPECT_EQ(row(1), QStringLiteral("9"));
    EXPECT_FALSE(row(14).isEmpty());
    EXPECT_EQ(screen->GuessNumber, 17);
    EXPECT_EQ(screen->txtGuess->text(), QStringLiteral("2"));
}

TEST_F(Newton, ANewSequenceStartsAfterACoefficientOrFamilyChange)
{
    parabolaMinusFour();
    screen->txtGuess->setText(QStringLiteral("1"));
    screen->cmdApply_Click();
    screen->cmdApply_Click();
    screen->txtGuess->setText(QStringLiteral("3"));  // typing alone continues the sequence
    screen->cmdApply_Click();
    EXPECT_EQ(row(3), QStringLiteral("3"));
    EXPECT_EQ(texts(), 1);
    screen->txtA->setText(QStringLiteral("2"));  // y = 2x^2 - 4
    EXPECT_TRUE(screen->NewSequence);
    screen->cmdApply_Click();
    EXPECT_EQ(row(1), screen->grdGuess->item(1, 1)->text());
    EXPECT_EQ(row(2), QString());
    EXPECT_EQ(screen->GuessNumber, 2);
    EXPECT_EQ(texts(), 2);  // "x1" again
    screen->mnuFunc_Click(2);  // the same family: the sequence goes on
    EXPECT_FALSE(screen->NewSequence);
    screen->mnuFunc_Click(3);
    EXPECT_TRUE(screen->NewSequence);
    EXPECT_EQ(screen->GuessNumber, 1);
}

TEST_F(Newton, AGuessOutsideTheBoxStillGivesTheTangentAndTheNextGuess)
{
    parabolaMinusFour();
    screen->txtGuess->setText(QStringLiteral("20"));
    screen->cmdApply_Click();
    EXPECT_EQ(texts(), 0);
    EXPECT_EQ(count(DrawOp::Line), 44 + 1);  // axes and ticks, then the tangent only
    EXPECT_EQ(screen->txtGuess->text(), QStringLiteral("10.1"));
    EXPECT_EQ(row(1), QStringLiteral("20"));
}

TEST_F(Newton, DerivativeGraphInTheCurvesColourAndSelectingTheGuess)
{
    parabolaMinusFour();
    screen->cmdDeriv->click();
    EXPECT_TRUE(hasPoint(5600, 3300, colour(2)));  // f'(0) = 0
    EXPECT_TRUE(hasPoint(5920, 3300 - 2 * 320, colour(2)));  // f'(1) = 2
    screen->show();
    QTest::mouseClick(screen->txtGuess, Qt::LeftButton);
    EXPECT_EQ(screen->txtGuess->selectedText(), QStringLiteral("FirstGuess"));
}

TEST_F(Newton, ActivationStartsANewSequence)
{
    parabolaMinusFour();
    screen->txtGuess->setText(QStringLiteral("1"));
    screen->cmdApply_Click();
    screen->Form_Activate();
    EXPECT_TRUE(screen->NewSequence);
    EXPECT_EQ(screen->GuessNumber, 1);
    screen->mnuAbout_Click();
    ASSERT_EQ(script.shown.size(), 5u);
    EXPECT_EQ(script.shown[4], std::make_pair(QStringLiteral("Change and Continue"),
                                              QStringLiteral("Zoom in or change the window and Apply again.")));
}
