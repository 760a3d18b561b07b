// SPDX-License-Identifier: GPL-3.0-or-later
// Newton's method screen through its widgets: the sequence of guesses, the drawing of each step, the
// grid, the zero-slope message and when a new sequence starts.

#include "ScreenFixture.h"

namespace {
struct Newton : ScreenFixture<frmNewton> {
    void SetUp() override  // y = x^2 - 4
    {
        ScreenFixture::SetUp();
        screen->mnuFunc_Click(2);
        type({screen->txtA, screen->txtB, screen->txtC}, "1|0|-4");
    }
    QString rows(int from, int to) const { return cells(screen->grdGuess, from, to, 1, 1); }
    long labels() const { return count(DrawOp::Text); }
};
}  // namespace

TEST_F(Newton, ASequenceOnXSquaredMinusFourFromOne)
{
    EXPECT_EQ(screen->grdGuess->tabSeparated(), QStringLiteral("Guess #\tValue\n"));  // no guess yet: the heading
    screen->surface->setZoom(2);  // both columns grow with the form, from their widths in twips
    EXPECT_EQ(std::pair(screen->grdGuess->columnWidth(0), screen->grdGuess->columnWidth(1)),
              std::pair(670 * 2 / 15, 200));
    screen->surface->setZoom(1);
    screen->txtGuess->setText(QStringLiteral("1"));
    screen->cmdApply->click();
    EXPECT_EQ(screen->txtGuess->text(), QStringLiteral("2.5"));
    // The vertical from the axis to (1, -3), "x1" under it, and the tangent down to the axis at 2.5.
    EXPECT_TRUE(hasLine(5920, 3300, 5920, 4260) && hasLine(5920, 4260, 6400, 3300));
    ASSERT_EQ(labels(), 1);
    const DrawOp& x1 =
        *std::find_if(ops().begin(), ops().end(), [](const DrawOp& op) { return op.kind == DrawOp::Text; });
    EXPECT_EQ(std::pair(x1.text, x1.y1), std::pair(QStringLiteral("x1"), 3300.0));
    EXPECT_NEAR(x1.x1, 5920 - screen->surface->TextWidth(QStringLiteral("x1")) / 2, 1e-9);
    screen->cmdApply_Click();
    screen->cmdApply_Click();
    EXPECT_EQ(screen->txtGuess->text(), QStringLiteral("2.00060975609756"));
    EXPECT_EQ(std::pair(labels(), screen->GuessNumber), std::pair(1L, std::int16_t(4)));  // "x1" under the first only
    expectDescribed("Guesses: 1: 1; 2: 2.5; 3: 2.05");
    // What Ctrl+C in the grid copies: the heading and the rows that hold a guess, and no other.
    EXPECT_EQ(screen->grdGuess->tabSeparated(), QStringLiteral("Guess #\tValue\n1\t1\n2\t2.5\n3\t2.05\n"));
    for (int i = 0; i < 13; ++i)  // the grid holds fourteen guesses and the count goes on
        screen->cmdApply_Click();
    EXPECT_EQ(std::tuple(rows(14, 14).isEmpty(), screen->GuessNumber, screen->txtGuess->text()),
              std::tuple(false, 17, QStringLiteral("2")));
}

TEST_F(Newton, ZeroSlopeShowsTheMessageAndKeepsTheGuess)
{
    screen->txtGuess->setText(QStringLiteral("0"));
    screen->cmdApply_Click();
    EXPECT_EQ(script.shown, (Shown{{QStringLiteral("Division by zero"),
                                    QStringLiteral("This guess failed due to zero for the slope")}}));
    EXPECT_EQ(std::tuple(screen->txtGuess->text(), rows(1, 1), screen->GuessNumber, script.errors.size()),
              std::tuple(QStringLiteral("0"), QStringLiteral("0"), 2, std::size_t(0)));
}

TEST_F(Newton, ANewSequenceStartsAfterACoefficientFamilyOrActivation)
{
    screen->txtGuess->setText(QStringLiteral("1"));
    screen->cmdApply_Click();
    screen->cmdApply_Click();
    screen->txtGuess->setText(QStringLiteral("3"));  // typing alone continues the sequence
    screen->cmdApply_Click();
    EXPECT_EQ(std::pair(rows(3, 3), labels()), std::pair(QStringLiteral("3"), 1L));
    const QString guess = screen->txtGuess->text();
    screen->txtA->setText(QStringLiteral("2"));  // y = 2x^2 - 4
    EXPECT_TRUE(screen->NewSequence);
    screen->cmdApply_Click();
    EXPECT_EQ(std::tuple(rows(1, 2), screen->GuessNumber, labels()), std::tuple(guess + '|', 2, 2L));  // "x1" again
    screen->mnuFunc_Click(2);  // the same family: the sequence goes on
    EXPECT_FALSE(screen->NewSequence);
    screen->mnuFunc_Click(3);
    EXPECT_EQ(std::pair(screen->NewSequence, screen->GuessNumber), std::pair(true, std::int16_t(1)));
    screen->cmdApply_Click();
    screen->Form_Activate();
    EXPECT_EQ(std::pair(screen->NewSequence, screen->GuessNumber), std::pair(true, std::int16_t(1)));
}

TEST_F(Newton, AGuessOutsideTheBoxTheDerivativeAndSelectingTheGuess)
{
    screen->txtGuess->setText(QStringLiteral("20"));
    screen->cmdApply_Click();
    EXPECT_EQ(std::tuple(labels(), count(DrawOp::Line), screen->txtGuess->text(), rows(1, 1)),  // only the tangent
              std::tuple(0L, 44L + 1, QStringLiteral("10.1"), QStringLiteral("20")));
    screen->cmdDeriv->click();
    EXPECT_TRUE(hasPoint(5600, 3300, colour(2)));  // f'(0) = 0, in the curve's colour
    EXPECT_TRUE(hasPoint(5920, 3300 - 2 * 320, colour(2)));  // f'(1) = 2
    screen->show();
    screen->txtGuess->setText(QStringLiteral("FirstGuess"));
    QTest::mouseClick(screen->txtGuess, Qt::LeftButton);
    EXPECT_EQ(screen->txtGuess->selectedText(), QStringLiteral("FirstGuess"));
}

// From 1 on x^2 - 4 (guesses 1, 2.5, 2.05, then 2.000610 in the box) the last two lie 0.0494 apart, and
// Zoom to the Steps frames the last three with the curve's values there and the axis, a tenth to spare.
TEST_F(Newton, ZoomToTheStepsFramesTheLastGuessesAndTheGapIsDescribed)
{
    screen->mnuZoomSteps->trigger();  // before any step: nothing to frame, said so
    EXPECT_EQ(windowLimits(*screen), QStringLiteral("-10|10|-10|10"));
    EXPECT_TRUE(screen->announcement().startsWith(QStringLiteral("No steps to zoom to yet")));
    screen->txtGuess->setText(QStringLiteral("1"));
    screen->cmdApply->click();  // two guesses, 1 and 2.5: the fewest that can be framed (x from 0.85)
    screen->mnuZoomSteps->trigger();
    EXPECT_NEAR(screen->txtXmin->value(), 0.85, 0.005);
    for (int i = 0; i < 2; ++i)
        screen->cmdApply->click();
    EXPECT_TRUE(screen->describe().contains(QStringLiteral("The last two guesses are 0.0494 apart")))
        << screen->describe().toStdString();
    screen->mnuZoomSteps->trigger();
    const double expected[] = {2.00061 - 0.049939, 2.5 + 0.049939, -0.225, 2.475};
    const TextBox* limits[] = {screen->txtXmin, screen->txtXmax, screen->txtYmin, screen->txtYmax};
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NEAR(limits[i]->value(), expected[i], 0.005) << i;
    EXPECT_TRUE(script.errors.empty());
}
