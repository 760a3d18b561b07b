// SPDX-License-Identifier: GPL-3.0-or-later
// The mean value theorem screen through its widgets: the secant and its labels, slider tangents and
// their colour, the typed x, the Find c scan and the end-point boxes.
#include "screens/frmMVT.h"

#include "ScreenFixture.h"

namespace {

struct MVT : ScreenFixture<frmMVT> {
    void interval(const char* a, const char* b)
    {
        screen->txtX1->setText(QString::fromLatin1(a));
        screen->txtX2->setText(QString::fromLatin1(b));
    }
    QString cell(int r, int c) const { return screen->gridC->item(r, c)->text(); }
};

}  // namespace

TEST_F(MVT, StartingTextsAndSixCoefficients)
{
    EXPECT_EQ(screen->windowTitle(), QStringLiteral("The Mean Value Theorem"));
    EXPECT_EQ(screen->txtX1->text(), QStringLiteral("a"));
    EXPECT_EQ(screen->txtF->text(), QStringLiteral("0"));
    EXPECT_EQ(screen->lblF->text(), QStringLiteral("F="));
    EXPECT_EQ(screen->HscMVT->maximum(), 20000);
    EXPECT_EQ(screen->gridC->rowCount(), 20);
    EXPECT_EQ(screen->gridC->columnWidth(2), 700 / 15);
    EXPECT_EQ(screen->gridC->item(5, 1)->textAlignment(), static_cast<int>(Qt::AlignCenter));
    EXPECT_EQ(screen->SecantSlope, 0);
}

TEST_F(MVT, SecantOfXSquaredOnZeroToTwo)
{
    interval("0", "2");
    screen->cmdApplyMVT->click();
    EXPECT_EQ(screen->lblPt1->text(), QStringLiteral("( 0, 0)"));
    EXPECT_EQ(screen->lblPt2->text(), QStringLiteral("( 2, 4)"));
    EXPECT_EQ(screen->lblSlope1->text(), QStringLiteral("slope = 2"));
    EXPECT_EQ(screen->SecantSlope, 2);
    EXPECT_EQ(count(DrawOp::Circle), 2);
    EXPECT_TRUE(hasPoint(5600, 3300, colour(1)));  // the secant y = 2x through the origin
    EXPECT_TRUE(hasPoint(5920, 3300 - 640, colour(1)));  // and through (1, 2)
    EXPECT_EQ(screen->lbl1->text(), QStringLiteral("0"));
    EXPECT_EQ(screen->lbl2->text(), QStringLiteral("2"));
}

TEST_F(MVT, EqualEndPointsShowTheErrorText)
{
    interval("1", "1");
    screen->cmdApplyMVT_Click();
    EXPECT_EQ(screen->lblSlope1->text(), QStringLiteral("ERROR!  0/0"));
    EXPECT_EQ(count(DrawOp::Circle), 0);
    EXPECT_EQ(screen->SecantSlope, 0);
}

TEST_F(MVT, FindCListsOnePointForXSquared)
{
    interval("0", "2");
    screen->cmdApplyMVT_Click();
    screen->cmdAnimateIt->click();
    EXPECT_EQ(cell(0, 0), QStringLiteral("c"));
    EXPECT_EQ(cell(0, 1), QStringLiteral("f(c)"));
    EXPECT_EQ(cell(0, 2), QStringLiteral("m"));
    EXPECT_EQ(cell(1, 0), QStringLiteral("1"));
    EXPECT_EQ(cell(1, 1), QStringLiteral("1"));
    EXPECT_EQ(cell(1, 2), QStringLiteral("2"));
    EXPECT_EQ(cell(2, 0), QString());
    // Every match is marked thick: a short stroke around x = 1.
    const long marks = std::count_if(ops().begin(), ops().end(),
                                     [](const DrawOp& op) { return op.kind == DrawOp::PSet && op.width == 3; });
    EXPECT_GT(marks, 10);
    EXPECT_EQ(screen->surface->drawWidth(), 1);
}

TEST_F(MVT, FindCBeforeAnySecantLooksForHorizontalTangentsAndStopsAtNineteen)
{
    screen->mnuFunc_Click(5);  // sin x + 0: slope 0 at the odd multiples of pi/2
    screen->txtXmin->setText(QStringLiteral("-100"));
    screen->txtXmax->setText(QStringLiteral("100"));
    interval("-100", "100");
    screen->cmdAnimateIt_Click();
    EXPECT_EQ(cell(1, 0), QStringLiteral("-98.96"));
    EXPECT_FALSE(cell(19, 0).isEmpty());
    EXPECT_EQ(cell(19, 2), QStringLiteral("0"));
}

TEST_F(MVT, FindCDoesNothingUnlessAIsBelowB)
{
    interval("0", "2");
    screen->cmdApplyMVT_Click();
    screen->cmdAnimateIt_Click();
    interval("2", "2");
    screen->cmdAnimateIt_Click();
    interval("3", "2");
    screen->cmdAnimateIt_Click();
    EXPECT_EQ(cell(1, 0), QStringLiteral("1"));  // not even cleared
}

TEST_F(MVT, AScanWhoseStepCannotMoveXEnds)
{
    screen->txtXmin->setText(QStringLiteral("-1e11"));
    screen->txtXmax->setText(QStringLiteral("1e11"));
    interval("1e10", "10000000000.0001");
    screen->cmdAnimateIt_Click();  // returns instead of adding a step smaller than the spacing of doubles
    EXPECT_EQ(cell(0, 0), QStringLiteral("c"));
}

TEST_F(MVT, SliderTangentLabelsAndColour)
{
    interval("0", "2");
    screen->HscMVT->setValue(15000);
    EXPECT_EQ(screen->lblFindc->text(), QStringLiteral("x =  1.5"));
    EXPECT_EQ(screen->lblSlope2->text(), QStringLiteral("Slope = 3"));
    EXPECT_TRUE(hasPoint(5600 + 1.5 * 320, 3300 - 2.25 * 320, colour(2)));  // the tangent touches at c
    screen->HscMVT->setValue(0);
    EXPECT_EQ(screen->lblFindc->text(), QStringLiteral("x =  0"));
    screen->HscMVT->setValue(20000);
    EXPECT_EQ(screen->lblFindc->text(), QStringLiteral("x =  2"));
    interval("-2", "0");
    screen->HscMVT->setValue(5000);
    EXPECT_EQ(screen->lblSlope2->text(), QStringLiteral("Slope =-3"));
}

TEST_F(MVT, FamilyFifteensTangentColourDoesNotExist)
{
    screen->mnuFunc_Click(15);  // y = 1 * 1^x + 0: a horizontal tangent at height 1
    interval("0", "2");
    screen->HscMVT->setValue(10000);
    EXPECT_EQ(script.errors, std::vector<int>{rt::InvalidProcedureCall});
    EXPECT_EQ(screen->lblFindc->text(), QStringLiteral("x =  1"));
}

TEST_F(MVT, TypedXMovesTheSlider)
{
    interval("0", "2");
    script.answers = {QStringLiteral("1.5"), QString(), QStringLiteral("5"), QStringLiteral("0")};
    QTest::mouseClick(screen->lblFindc, Qt::LeftButton);
    EXPECT_EQ(screen->HscMVT->value(), 15000);
    EXPECT_EQ(script.shown.back(),
              std::make_pair(QStringLiteral("Enter X"), QStringLiteral("Enter an x value to check")));
    const size_t drawn = ops().size();
    for (int i = 0; i < 3; ++i)  // Cancel, outside, and the end point itself do nothing
        screen->lblFindc_Click();
    EXPECT_EQ(screen->HscMVT->value(), 15000);
    EXPECT_EQ(ops().size(), drawn);
}

TEST_F(MVT, EndPointsAreKeptInsideTheWindow)
{
    screen->txtX1->setText(QStringLiteral("50"));
    EXPECT_EQ(screen->txtX1->text(), QStringLiteral("10"));
    EXPECT_EQ(screen->lbl1->text(), QStringLiteral("10"));
    screen->txtX2->setText(QStringLiteral("-50"));
    EXPECT_EQ(screen->txtX2->text(), QStringLiteral("-10"));
    EXPECT_EQ(screen->lbl2->text(), QStringLiteral("-10"));
    screen->txtX1->setText(QStringLiteral("1.50"));
    EXPECT_EQ(screen->lbl1->text(), QStringLiteral("1.50"));
}

TEST_F(MVT, PlotButtonClearsFirstAndHelpHasFourBoxes)
{
    interval("0", "2");
    screen->cmdApplyMVT_Click();
    screen->cmdPlotto->click();
    EXPECT_EQ(count(DrawOp::Circle), 0);
    EXPECT_GT(count(DrawOp::PSet), 0);
    screen->mnuAbout_Click();
    ASSERT_EQ(script.shown.size(), 4u);
    EXPECT_EQ(script.shown[2].first, QStringLiteral("Find c --- Three Ways"));
}
