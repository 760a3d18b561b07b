// SPDX-License-Identifier: GPL-3.0-or-later
// The function grapher through its widgets: start-up, axes and ticks, the plot walk, erase, help.
#include "screens/frmClasses.h"

#include "ScreenFixture.h"

using Grapher = ScreenFixture<frmClasses>;

TEST_F(Grapher, StartsWithTheDesignTextsAndFamilyOne)
{
    EXPECT_EQ(screen->windowTitle(), QStringLiteral("Graphing Classes of Functions"));
    EXPECT_EQ(screen->lblFunc->text(), QStringLiteral("y = A(Bx - C)^2 + D"));
    EXPECT_EQ(FuncGlobals::FunctionId, 1);
    const char* texts[] = {"1", "1", "0", "0", "0"};
    TextBox* boxes[] = {screen->txtA, screen->txtB, screen->txtC, screen->txtD, screen->txtE};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(boxes[i]->text(), QString::fromLatin1(texts[i]));
    EXPECT_EQ(screen->txtF, nullptr);
    EXPECT_EQ(screen->txtXmin->text(), QStringLiteral("-10"));
    EXPECT_EQ(screen->txtYmax->text(), QStringLiteral("10"));
    ASSERT_EQ(screen->mnuFunc.size(), 16u);
    EXPECT_EQ(screen->mnuFunc[2]->text(), QStringLiteral("y = Ax^2 + Bx + C"));
    EXPECT_EQ(screen->mnuFunc[15]->text(), QStringLiteral("y = A * B^x + C"));
    EXPECT_EQ(screen->cmdPlotto->text(), QStringLiteral("&Plotto!"));
    EXPECT_EQ(screen->cmdExit->text(), QStringLiteral("E&xit"));
    EXPECT_EQ(FuncGlobals::Coefficients.A, 1);
    EXPECT_EQ(FuncGlobals::Coefficients.B, 1);
    // The outline at left 2400, top 120, 6405 twips square, in pixels of 15 twips.
    EXPECT_EQ(screen->shpSquare->geometry(), QRect(160, 8, 427, 427));
}

TEST_F(Grapher, DefaultWindowAxesAndTicks)
{
    EXPECT_EQ(screen->graph.XOrigin, 5600);
    EXPECT_EQ(screen->graph.YOrigin, 3300);
    EXPECT_TRUE(hasLine(2401, 3300, 8800, 3300));
    EXPECT_TRUE(hasLine(5600, 101, 5600, 6500));
    // 21 ticks on each axis, 320 twips apart, from the whole number at Ymin and at Xmax.
    for (int k = 0; k <= 20; ++k) {
        EXPECT_TRUE(hasLine(5560, 6500 - 320 * k, 5640, 6500 - 320 * k)) << k;
        EXPECT_TRUE(hasLine(8800 - 320 * k, 3260, 8800 - 320 * k, 3340)) << k;
    }
    EXPECT_EQ(count(DrawOp::Line), 44);
    EXPECT_EQ(screen->surface->pixel(5600, 1000), colour(0));
}

TEST_F(Grapher, WindowsWithoutAnAxisOrWithoutTicks)
{
    screen->txtXmin->setText(QStringLiteral("1"));
    screen->txtXmax->setText(QStringLiteral("5"));
    EXPECT_EQ(count(DrawOp::Line), 1 + 5);  // the x-axis and its ticks at 5, 4, 3, 2, 1 only
    screen->txtYmin->setText(QStringLiteral("0"));
    EXPECT_EQ(screen->graph.YOrigin, 6500);
    EXPECT_TRUE(hasLine(2401, 6500, 8800, 6500));
    screen->txtXmin->setText(QStringLiteral("-0.5"));
    screen->txtXmax->setText(QStringLiteral("0.5"));
    screen->txtYmin->setText(QStringLiteral("-0.5"));
    screen->txtYmax->setText(QStringLiteral("0.5"));
    EXPECT_EQ(count(DrawOp::Line), 2);  // axes, no ticks
    // Spacings that are not whole twips: the ticks start at Int(Ymin) and step by Int(6400 / range).
    screen->txtYmin->setText(QStringLiteral("-2.5"));
    screen->txtYmax->setText(QStringLiteral("4"));
    const int step = 984;  // Int(6400 / 6.5)
    const int start = screen->graph.YOrigin - static_cast<int>(std::floor(-3 * 6400 / 6.5));
    EXPECT_TRUE(hasLine(screen->graph.XOrigin - 40, start, screen->graph.XOrigin + 40, start));
    EXPECT_TRUE(hasLine(screen->graph.XOrigin - 40, start - step, screen->graph.XOrigin + 40, start - step));
}

TEST_F(Grapher, PlotSetsOnePointPerColumnInsideTheSquare)
{
    screen->cmdPlotto_Click();
    const QRgb blue = colour(1);
    EXPECT_TRUE(hasPoint(5600, 3300, blue));  // x = 0
    EXPECT_TRUE(hasPoint(6240, 2020, blue));  // x = 2, y = 4
    EXPECT_EQ(screen->surface->pixel(6240, 2020), blue);
    EXPECT_FALSE(hasPoint(2401, 3300 - 99.9300048828125 * 320, blue));
    for (const DrawOp& op : ops())
        if (op.kind == DrawOp::PSet) {
            EXPECT_GE(op.y1, 100);
            EXPECT_LE(op.y1, 6500);
            EXPECT_EQ(op.color, blue);
        }
    EXPECT_EQ(screen->lblFunc->text(), QStringLiteral("y = A(Bx - C)^2 + D"));
}

TEST_F(Grapher, RowTestIncludesBothEdges)
{
    screen->mnuFunc_Click(2);
    screen->txtA->setText(QStringLiteral("0"));
    screen->txtB->setText(QStringLiteral("0"));
    for (const char* c : {"10", "-10"}) {
        screen->cmdClean_Click();
        screen->txtC->setText(QString::fromLatin1(c));
        screen->cmdPlotto_Click();
        EXPECT_EQ(count(DrawOp::PSet), 6399) << c;
    }
    for (const char* c : {"10.0001", "-10.0001"}) {
        screen->cmdClean_Click();
        screen->txtC->setText(QString::fromLatin1(c));
        screen->cmdPlotto_Click();
        EXPECT_EQ(count(DrawOp::PSet), 0) << c;
    }
}

TEST_F(Grapher, UndefinedPointsLieOnTheXAxis)
{
    screen->mnuFunc_Click(8);  // A * Ln(Bx + C) + D with A = B = 1
    screen->cmdPlotto_Click();
    EXPECT_TRUE(hasPoint(2401, 3300, colour(1)));
    EXPECT_TRUE(hasPoint(5600, 3300, colour(1)));  // ln(0) is undefined: plotted at 0
}

TEST_F(Grapher, PlotsOverlayInTheFamilysColourUntilErased)
{
    screen->cmdPlotto_Click();
    const long before = count(DrawOp::PSet);
    screen->mnuFunc_Click(2);
    screen->cmdPlotto_Click();
    EXPECT_GT(count(DrawOp::PSet), before);
    EXPECT_TRUE(hasPoint(5600, 3300, colour(1)));
    EXPECT_TRUE(hasPoint(5600, 3300, colour(2)));
    screen->mnuFunc_Click(7);
    screen->cmdPlotto_Click();
    EXPECT_TRUE(hasPoint(5600, 3300, colour(0)));  // families 7 and 14 plot in black
    screen->cmdClean_Click();
    EXPECT_EQ(count(DrawOp::PSet), 0);
    EXPECT_EQ(count(DrawOp::Line), 44);
}

TEST_F(Grapher, ChoosingAFamilyOrCoefficientDoesNotPlot)
{
    screen->cmdPlotto_Click();
    const size_t before = ops().size();
    screen->mnuFunc[5]->trigger();
    screen->txtA->setText(QStringLiteral("3"));
    EXPECT_EQ(ops().size(), before);
    EXPECT_EQ(screen->lblFunc->text(), QStringLiteral("y = A*Sin(Bx + C) + Dx + E"));
    EXPECT_EQ(FuncGlobals::FunctionId, 5);
    EXPECT_EQ(FuncGlobals::Coefficients.A, 3);
}

TEST_F(Grapher, HelpShowsFiveBoxesInOrder)
{
    screen->mnuAbout->trigger();
    ASSERT_EQ(script.shown.size(), 5u);
    const char* titles[] = {"How To Use This", "Making Changes", "Quick change hints", "Change the Graphing Window?",
                            "Window limit changes < , >"};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(script.shown[i].first, QString::fromLatin1(titles[i]));
    EXPECT_EQ(script.shown[0].second,
              QStringLiteral("This screen allows you to graph various functions.  Select the function you like from "
                             "the menu.  Enter the values for A, B, C, D, E, then click on [Plotto]."));
    EXPECT_EQ(script.shown[4].second,
              QStringLiteral("Notice the < and > green labels next to the window limits.  Clicking on the Arrows will "
                             "increase or decrease the window limit by one.  Double clicking will increase or "
                             "decrease it by 5."));
}

TEST_F(Grapher, ExitHidesAndActivationRedrawsEmptyAxes)
{
    screen->show();
    screen->cmdPlotto_Click();
    QTest::mouseClick(screen->cmdExit, Qt::LeftButton);
    EXPECT_FALSE(screen->isVisible());
    FuncGlobals::Coefficients.A = 42;
    screen->Form_Activate();
    EXPECT_EQ(count(DrawOp::PSet), 0);
    EXPECT_EQ(FuncGlobals::Coefficients.A, 1);
}

TEST_F(Grapher, ArithmeticFaultsEndTheActionWithTheirNumbers)
{
    screen->mnuFunc_Click(9);  // A * e^(Bx + C) + D
    screen->txtB->setText(QStringLiteral("1000"));
    screen->cmdPlotto->click();
    EXPECT_EQ(script.errors, std::vector<int>{6});
    script.errors.clear();
    screen->txtXmax->setText(QStringLiteral("10000000010"));
    screen->txtXmin->setText(QStringLiteral("1e10"));  // the origin lies too far away for a 32-bit twip
    screen->txtXmax->setText(QStringLiteral("1e10"));  // equal limits
    EXPECT_EQ(script.errors, (std::vector<int>{6, 11}));
    EXPECT_EQ(script.shown.back().second, QStringLiteral("Run-time error '11':\n\nDivision by zero"));
}

TEST_F(Grapher, ARangeWiderThanTheSquareDrawsItsOneTickOnce)
{
    screen->txtYmin->setText(QStringLiteral("-5000"));
    screen->txtYmax->setText(QStringLiteral("5000"));  // ticks closer than a twip: a step of 0
    EXPECT_EQ(count(DrawOp::Line), 2 + 21 + 1);
    EXPECT_TRUE(script.errors.empty());
}
