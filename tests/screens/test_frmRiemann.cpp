// SPDX-License-Identifier: GPL-3.0-or-later
// The sums screen through its widgets: areas against hand-worked values, their single-precision
// text, the partition and boundary boxes, and what is drawn at the bounds of the graph box.
#include "screens/frmRiemann.h"

#include "ScreenFixture.h"
#include "runtime/Random.h"

namespace {

struct Sums : ScreenFixture<frmRiemann> {
    // y = A x^2 + B x + C on [L, R] with n partitions.
    void setUpSum(const char* a, const char* b, const char* c, const char* L, const char* R, const char* n)
    {
        screen->mnuFunc_Click(2);
        screen->txtA->setText(QString::fromLatin1(a));
        screen->txtB->setText(QString::fromLatin1(b));
        screen->txtC->setText(QString::fromLatin1(c));
        screen->txtLBound->setText(QString::fromLatin1(L));
        screen->txtRBound->setText(QString::fromLatin1(R));
        screen->txtParts->setText(QString::fromLatin1(n));
    }
    void checkAll()
    {
        for (CheckBox* c : methods())
            c->setChecked(true);
    }
    std::vector<CheckBox*> methods() const
    {
        return {screen->chkLeft,   screen->chkRight,   screen->chkMid,    screen->chkTrap,
                screen->chkRandom, screen->chkSimpson, screen->chkRiemann};
    }
    long linesIn(QRgb colour) const
    {
        return std::count_if(ops().begin(), ops().end(),
                             [colour](const DrawOp& op) { return op.kind == DrawOp::Line && op.color == colour; });
    }
};

}  // namespace

TEST_F(Sums, StartsWithTheDesignTextsAndFamilyTwo)
{
    EXPECT_EQ(screen->windowTitle(), QStringLiteral("Riemann and Other Sums"));
    EXPECT_EQ(FuncGlobals::FunctionId, 2);
    EXPECT_EQ(screen->lblFunction->text(), QStringLiteral("y = Ax^2 + Bx + C"));
    EXPECT_EQ(screen->PartitionCount, 1);
    EXPECT_EQ(screen->txtParts->text(), QStringLiteral("1"));
    EXPECT_EQ(screen->lblAreas->text(), QStringLiteral("AREA"));
    EXPECT_EQ(screen->lblSimpson->text(), QStringLiteral("Area="));
    EXPECT_EQ(screen->cmdGraphNow, screen->cmdPlotto);
    EXPECT_EQ(screen->cmdReset->text(), QStringLiteral("&Set to Defaults"));
    EXPECT_EQ(screen->cmdErase->text(), QStringLiteral("&Clear Graph"));
    EXPECT_EQ(screen->cmdZoomIn->toolTip(), QStringLiteral("Cut the scale in half"));
    EXPECT_EQ(screen->chkRandom->toolTip(), QStringLiteral("A random point is picked on the equal width intervals "));
    EXPECT_EQ(screen->mnuFunction->text(), QStringLiteral("&Select a Function"));
    EXPECT_EQ(screen->graph.XOrigin, 5000);
}

TEST_F(Sums, OnePartitionOfXSquaredOnMinusTwoToTwo)
{
    setUpSum("1", "0", "0", "-2", "2", "1");
    checkAll();
    screen->cmdParts->click();
    EXPECT_EQ(screen->lblLeftE->text(), QStringLiteral("=  16"));
    EXPECT_EQ(screen->lblRightE->text(), QStringLiteral("=  16"));
    EXPECT_EQ(screen->lblMid->text(), QStringLiteral("=  0"));
    EXPECT_EQ(screen->lblTrap->text(), QStringLiteral("=  16"));
    EXPECT_EQ(screen->lblSimpson->text(), QStringLiteral("Parts not even #"));
    EXPECT_EQ(screen->lblAreas->text(), QStringLiteral("Area"));
    screen->txtParts->setText(QStringLiteral("2"));
    screen->cmdParts_Click();
    EXPECT_EQ(screen->lblSimpson->text(), QStringLiteral("=  5.333333"));
    EXPECT_EQ(screen->lblMid->text(), QStringLiteral("=  4"));
    EXPECT_EQ(screen->lblLeftE->text(), QStringLiteral("=  8"));
}

TEST_F(Sums, AreasAreSinglePrecisionValuesWrittenWithStr)
{
    setUpSum("0", "1", "0", "0", "1", "3");  // y = x on [0, 1], thirds
    screen->chkLeft->setChecked(true);
    screen->chkRight->setChecked(true);
    screen->cmdParts_Click();
    EXPECT_EQ(screen->lblLeftE->text(), QStringLiteral("=  .3333333"));
    EXPECT_EQ(screen->lblRightE->text(), QStringLiteral("=  .6666667"));
    screen->txtB->setText(QStringLiteral("-1"));
    screen->cmdParts_Click();
    EXPECT_EQ(screen->lblRightE->text(), QStringLiteral("= -.6666667"));
    screen->txtRBound->setText(QStringLiteral("0"));  // L = R
    checkAll();
    screen->txtParts->setText(QStringLiteral("4"));
    screen->cmdParts_Click();
    for (ClickLabel* l : {screen->lblLeftE, screen->lblRightE, screen->lblMid, screen->lblTrap, screen->lblRnd,
                          screen->lblSimpson, screen->lblRiemann})
        EXPECT_EQ(l->text(), QStringLiteral("=  0"));
}

TEST_F(Sums, TheErrorValueMarksAMethodButOnlyWhereItIsTested)
{
    setUpSum("0", "12345678", "0", "0", "2", "2");  // y = 12345678 x: the error value at x = 1 only
    checkAll();
    screen->cmdParts_Click();
    EXPECT_EQ(screen->lblLeftE->text(), QStringLiteral("= error!"));  // x = 0, 1
    EXPECT_EQ(screen->lblRightE->text(), QStringLiteral("= error!"));  // x = 1, 2
    EXPECT_EQ(screen->lblTrap->text(), QStringLiteral("= error!"));
    EXPECT_EQ(screen->lblMid->text(), QStringLiteral("=  2.469136E+07"));  // x = 0.5, 1.5
    EXPECT_EQ(screen->lblSimpson->text(), QStringLiteral("=  2.469136E+07"));  // y1 is never tested
    screen->txtB->setText(QStringLiteral("-12345678"));
    screen->cmdParts_Click();
    EXPECT_EQ(screen->lblLeftE->text(), QStringLiteral("= error!"));
}

TEST_F(Sums, RandomSumsFollowTheFixedSequence)
{
    rt::resetRnd();
    setUpSum("0", "1", "0", "0", "1", "1");  // y = x on [0, 1]: the area is the random point itself
    screen->chkRandom->setChecked(true);
    screen->cmdParts_Click();
    EXPECT_EQ(screen->lblRnd->text(), QStringLiteral("=  .7055475"));
    screen->cmdParts_Click();
    EXPECT_EQ(screen->lblRnd->text(), QStringLiteral("=  .533424"));
    screen->chkRandom->setChecked(false);
    // Random widths, n = 2: one division point (0.5795186), then one random point per sub-interval.
    screen->chkRiemann->setChecked(true);
    screen->txtParts->setText(QStringLiteral("2"));
    screen->cmdParts_Click();
    const double p = 0.5795186, u1 = 0.2895625, u2 = 0.301948;
    const float expected = static_cast<float>(static_cast<float>(p * (u1 * p)) + (1 - p) * (p + u2 * (1 - p)));
    EXPECT_EQ(screen->lblRiemann->text(), QStringLiteral("= ") + QString::fromStdString(rt::Str(expected)));
    EXPECT_DOUBLE_EQ(screen->RandomPoints[1], static_cast<double>(0.5795186f));
    rt::resetRnd();
}

TEST_F(Sums, RandomWidthsUseAtMostTwoThousandSortedPoints)
{
    setUpSum("1", "0", "0", "-2", "2", "5000");
    screen->chkRiemann->setChecked(true);
    screen->cmdParts_Click();
    EXPECT_EQ(screen->PartitionCount, 5000);
    EXPECT_EQ(screen->RandomPoints[0], -2);
    EXPECT_EQ(screen->RandomPoints[2000], 2);
    for (int k = 1; k <= 2000; ++k)
        ASSERT_LE(screen->RandomPoints[k - 1], screen->RandomPoints[k]) << k;
    EXPECT_EQ(linesIn(colour(7)), 3 * 2000);
    EXPECT_TRUE(screen->lblRiemann->text().startsWith(QStringLiteral("=  5.3")));
}

TEST_F(Sums, PartitionBoxRefusesCountsOutsideOneToThirtyTwoThousand)
{
    for (const char* bad : {"0", "-3", "abc"}) {
        script.shown.clear();
        screen->txtParts->setText(QString::fromLatin1(bad));
        ASSERT_EQ(script.shown.size(), 1u) << bad;
        EXPECT_EQ(script.shown[0], std::make_pair(QStringLiteral("Positive only"),
                                                  QStringLiteral("Partitions must be a positive number")));
        EXPECT_EQ(screen->txtParts->text(), QStringLiteral("1"));
        EXPECT_EQ(screen->PartitionCount, 1);
    }
    script.shown.clear();
    screen->txtParts->setText(QStringLiteral("40000"));
    EXPECT_EQ(script.shown, (std::vector<std::pair<QString, QString>>{
                                {QStringLiteral("Limit Reached"),
                                 QStringLiteral("The limit to the number of partitions is 32000")}}));
    EXPECT_EQ(screen->txtParts->text(), QStringLiteral("32000"));
    EXPECT_EQ(screen->PartitionCount, 32000);
    screen->txtParts->setText(QStringLiteral("7.9"));
    EXPECT_EQ(screen->PartitionCount, 7);
}

TEST_F(Sums, PartitionStepperAndDoubling)
{
    script.shown.clear();
    press(screen->lblPartitions, Qt::RightButton);  // at 1: the message, and 1 stays
    EXPECT_EQ(script.shown.size(), 1u);
    EXPECT_EQ(screen->txtParts->text(), QStringLiteral("1"));
    press(screen->lblPartitions, Qt::LeftButton);
    EXPECT_EQ(screen->txtParts->text(), QStringLiteral(" 2"));
    EXPECT_EQ(screen->PartitionCount, 2);
    screen->cmdDouble->click();
    screen->cmdDouble->click();
    EXPECT_EQ(screen->txtParts->text(), QStringLiteral("8"));
    screen->txtParts->setText(QStringLiteral("20000"));
    screen->cmdDouble_Click();
    EXPECT_EQ(screen->txtParts->text(), QStringLiteral("32000"));
    EXPECT_EQ(screen->PartitionCount, 32000);
    EXPECT_EQ(script.shown.back().first, QStringLiteral("Limit Reached"));
}

TEST_F(Sums, BoundariesArePulledBackIntoTheWindowAndIntoOrder)
{
    screen->txtLBound->setText(QStringLiteral("-20"));
    EXPECT_EQ(screen->txtLBound->text(), QStringLiteral("-10"));
    screen->txtLBound->setText(QStringLiteral("5"));  // past the right boundary 2
    EXPECT_EQ(screen->txtLBound->text(), QStringLiteral("2"));
    screen->txtRBound->setText(QStringLiteral("15"));
    EXPECT_EQ(screen->txtRBound->text(), QStringLiteral("10"));
    screen->txtRBound->setText(QStringLiteral("1"));  // below the left boundary 2
    EXPECT_EQ(screen->txtRBound->text(), QStringLiteral("2"));
    screen->txtLBound->setText(QStringLiteral("0"));
    press(screen->lblLBound, Qt::LeftButton);
    EXPECT_EQ(screen->txtLBound->text(), QStringLiteral(" 1"));
    press(screen->lblRBound, Qt::RightButton);
    press(screen->lblRBound, Qt::RightButton);  // " 0" is below 1: pulled back to " 1"
    EXPECT_EQ(screen->txtRBound->text(), QStringLiteral(" 1"));
    EXPECT_TRUE(script.shown.empty());
}

TEST_F(Sums, BarsAreDrawnOnlyStrictlyInsideTheGraphBox)
{
    screen->chkLeft->setChecked(true);
    setUpSum("0", "0", "10", "-2", "2", "4");  // y = 10: the top lies on row 100
    screen->cmdParts_Click();
    EXPECT_EQ(linesIn(colour(2)), 0);
    EXPECT_EQ(screen->lblLeftE->text(), QStringLiteral("=  40"));
    screen->txtC->setText(QStringLiteral("9.99"));
    screen->cmdParts_Click();
    EXPECT_EQ(linesIn(colour(2)), 12);
    EXPECT_TRUE(hasLine(4360, 3300, 4360, 3300 - 9.99 * 320));  // the left side of the first bar, from the axis
    screen->cmdErase_Click();
    screen->txtLBound->setText(QStringLiteral("-10"));  // the first bar starts on the edge at 1800
    screen->cmdParts_Click();
    EXPECT_EQ(linesIn(colour(2)), 9);
}

TEST_F(Sums, TrapezoidTestsOnlyItsLeftHeight)
{
    screen->chkTrap->setChecked(true);
    setUpSum("0", "10", "0", "0", "2", "2");  // y = 10x: heights 0, 10, 20
    screen->cmdParts_Click();
    EXPECT_EQ(linesIn(colour(5)),
              3);  // [0, 1] drawn with its right height 10 on the edge; [1, 2] starts at 10: not drawn
    EXPECT_EQ(screen->lblTrap->text(), QStringLiteral("=  20"));
    screen->cmdErase_Click();
    screen->txtB->setText(QStringLiteral("9"));  // heights 0, 9, 18: the second is drawn although 18 is outside
    screen->cmdParts_Click();
    EXPECT_EQ(linesIn(colour(5)), 6);
}

TEST_F(Sums, SimpsonsSteppedOutlineHasSevenSegmentsPerPair)
{
    screen->chkSimpson->setChecked(true);
    setUpSum("1", "0", "0", "0", "3", "6");
    screen->cmdParts_Click();
    EXPECT_EQ(linesIn(colour(3)), 3 * 7);
    EXPECT_EQ(screen->lblSimpson->text(), QStringLiteral("=  9"));
    // The first pair: from x = 0 (column 5000) a third of dx (dx = 0.5, s = 53.33 twips) to the middle height.
    EXPECT_TRUE(hasLine(5000 + 320.0 / 6, 3300, 5000 + 320.0 / 6, 3300 - 0.25 * 320));
}

TEST_F(Sums, ChangingTheFamilyResetsSixResultsButNotSimpsons)
{
    setUpSum("1", "0", "0", "-2", "2", "2");
    checkAll();
    screen->cmdParts_Click();
    screen->mnuFunc_Click(2);  // the same family: nothing is reset
    EXPECT_EQ(screen->lblLeftE->text(), QStringLiteral("=  8"));
    screen->mnuFunc[3]->trigger();
    for (ClickLabel* l :
         {screen->lblLeftE, screen->lblRightE, screen->lblMid, screen->lblTrap, screen->lblRnd, screen->lblRiemann})
        EXPECT_EQ(l->text(), QStringLiteral("Area="));
    EXPECT_EQ(screen->lblSimpson->text(), QStringLiteral("=  5.333333"));
}

TEST_F(Sums, WindowControlsOfThisScreen)
{
    screen->txtXmin->setText(QStringLiteral("10"));
    ASSERT_EQ(script.shown.size(), 1u);
    EXPECT_EQ(script.shown[0].first, QStringLiteral("Error"));
    EXPECT_EQ(screen->txtXmin->text(), QStringLiteral("-10"));
    screen->txtXmax->setText(QStringLiteral("-9"));
    screen->lblXmaxL_Click();
    EXPECT_EQ(screen->txtXmax->text(), QStringLiteral("-9"));
    screen->cmdReset->click();
    screen->cmdZoomIn->click();
    EXPECT_EQ(screen->txtXmin->text(), QStringLiteral("-5"));
    EXPECT_EQ(screen->txtYmax->text(), QStringLiteral("5"));
    EXPECT_GT(count(DrawOp::PSet), 0);  // zoom re-plots
    screen->chkLeft->setChecked(true);
    screen->cmdParts_Click();
    EXPECT_GT(linesIn(colour(2)), 0);
    screen->cmdCleanParts->click();  // the partitions go, the function stays
    EXPECT_EQ(linesIn(colour(2)), 0);
    EXPECT_GT(count(DrawOp::PSet), 0);
    screen->cmdErase->click();
    EXPECT_EQ(count(DrawOp::PSet), 0);
}

TEST_F(Sums, HelpShowsEightBoxes)
{
    screen->mnuAbout_Click();
    ASSERT_EQ(script.shown.size(), 8u);
    EXPECT_EQ(script.shown[0].first, QStringLiteral("What is this?"));
    EXPECT_EQ(script.shown[2].first, QStringLiteral("Plotto! , Zoom In and Set to Defaults"));
    EXPECT_EQ(script.shown[6].second,
              QStringLiteral("As for most of the light green labels in this program, you may left click to increase "
                             "the box by one or right click to decreased it by one."));
}
