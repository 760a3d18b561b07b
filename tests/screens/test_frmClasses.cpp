// SPDX-License-Identifier: GPL-3.0-or-later
// The function grapher through its widgets: axes and ticks, the plot walk, erase, and the faults
// that end an action.

#include "ScreenFixture.h"

using Grapher = ScreenFixture<frmClasses>;

TEST_F(Grapher, AxesAndTicksForEveryKindOfWindow)
{
    EXPECT_EQ(screen->shpSquare->geometry(), QRect(160, 8, 427, 427));  // 6405 twips square at (2400, 120)
    EXPECT_TRUE(hasLine(2401, 3300, 8800, 3300) && hasLine(5600, 101, 5600, 6500));  // the axes
    for (int k = 0; k <= 20; ++k)  // 21 ticks on each axis, 320 twips apart, from Ymin and from Xmax
        EXPECT_TRUE(hasLine(5560, 6500 - 320 * k, 5640, 6500 - 320 * k) &&
                    hasLine(8800 - 320 * k, 3260, 8800 - 320 * k, 3340))
            << k;
    const std::pair<const char*, long> windows[] = {
        // Xmin|Xmax|Ymin|Ymax: lines drawn
        {"-10|10|-10|10", 44},
        {"1|5|-10|10", 6},  // no y axis: the x axis and its ticks at 5, 4, 3, 2, 1
        {"-0.5|0.5|-0.5|0.5", 2},  // axes, no ticks
        {"-10|10|-5000|5000", 24},  // ticks closer than a twip: a step of 0 draws its one tick once
        {"1|5|0|10", 6}};  // Ymin 0: the x axis on the bottom edge
    for (const auto& [limits, lines] : windows) {
        type({screen->txtXmin, screen->txtXmax, screen->txtYmin, screen->txtYmax}, limits);
        EXPECT_EQ(count(DrawOp::Line), lines) << limits;
    }
    EXPECT_TRUE(hasLine(2401, 6500, 8800, 6500));
    // Spacings that are not whole twips: the ticks start at Int(Ymin) and step by Int(6400 / range).
    type({screen->txtXmin, screen->txtXmax, screen->txtYmin, screen->txtYmax}, "-1|1|-2.5|4");
    const int start = screen->graph.YOrigin - static_cast<int>(std::floor(-3 * 6400 / 6.5)), x = screen->graph.XOrigin;
    EXPECT_TRUE(hasLine(x - 40, start - 984, x + 40, start - 984));
}

TEST_F(Grapher, PlotSetsOnePointPerColumnInsideTheSquareAndOverlaysUntilErased)
{
    screen->cmdPlotto_Click();
    EXPECT_TRUE(hasPoint(6240, 2020, colour(1)));  // x = 2, y = 4
    expectDescribed("y = A * (Bx - C)^2 + D with A = 1, B = 1");
    EXPECT_EQ(screen->surface->pixel(6240, 2020), colour(1));
    for (const DrawOp& op : ops())
        if (op.kind == DrawOp::PSet) {
            ASSERT_TRUE(op.y1 >= 100 && op.y1 <= 6500 && op.color == colour(1)) << op.x1 << ", " << op.y1;
        }
    const size_t drawn = ops().size();
    screen->mnuFunc[2]->trigger();  // choosing a family or a coefficient does not plot
    screen->txtA->setText(QStringLiteral("3"));
    EXPECT_EQ(ops().size(), drawn);
    EXPECT_EQ(std::pair(int(FuncGlobals::FunctionId), FuncGlobals::Coefficients.A), std::pair(2, 3.0));
    for (int family : {2, 7, 8}) {  // 7 and 14 plot in black; ln's undefined points lie on the x axis
        screen->mnuFunc_Click(family);
        type({screen->txtA, screen->txtB, screen->txtC}, "1|1|0");
        screen->cmdPlotto_Click();
        EXPECT_TRUE(hasPoint(family == 8 ? 2401 : 5600, 3300, colour(family % 7))) << family;
    }
    EXPECT_TRUE(hasPoint(5600, 3300, colour(1)));  // the first plot is still there
    screen->cmdClean_Click();
    EXPECT_EQ(std::pair(count(DrawOp::PSet), count(DrawOp::Line)), std::pair(0L, 44L));
    // The row test includes both edges: y = 10 and y = -10 are plotted in every column, not beyond.
    screen->mnuFunc_Click(2);
    for (const auto& [c, points] : {std::pair("10", 6399), {"-10", 6399}, {"10.0001", 0}, {"-10.0001", 0}}) {
        screen->cmdClean_Click();
        type({screen->txtA, screen->txtB}, "0|0");
        screen->txtC->setText(QString::fromLatin1(c));
        screen->cmdPlotto_Click();
        EXPECT_EQ(count(DrawOp::PSet), points) << c;
    }
}

TEST_F(Grapher, ArithmeticFaultsEndTheActionWithTheirNumbers)
{
    // e^(-2000x + C) whose row overflows at the square's first column only (e^701.2 * 6400 is past
    // the largest double; the next column's value is 500 times smaller): the error comes there.
    screen->mnuFunc_Click(9);  // A * e^(Bx + C) + D
    const double x0 = screen->graph.worldX(screen->graph.firstColumn());
    type({screen->txtA, screen->txtB, screen->txtD}, "1|-2000|0");
    screen->txtC->setText(QString::number(701.2 + 2000 * x0, 'g', 17));
    screen->cmdPlotto->click();
    screen->txtC->setText(QStringLiteral("0"));
    screen->txtB->setText(QStringLiteral("1000"));
    screen->cmdPlotto->click();
    screen->txtXmax->setText(QStringLiteral("10000000010"));
    screen->txtXmin->setText(QStringLiteral("1e10"));  // the origin lies too far away for a 32-bit twip
    screen->txtXmax->setText(QStringLiteral("1e10"));  // equal limits
    EXPECT_EQ(script.errors,
              (std::vector<int>{rt::Overflow, rt::Overflow, rt::Overflow, rt::DivisionByZero}));
    EXPECT_EQ(script.shown.back().second, QStringLiteral("Run-time error '11':\n\nDivision by zero"));
    EXPECT_EQ(errorOf([&] { screen->mnuFunc_Click(21); }), rt::SubscriptOutOfRange);
    screen->mnuFunc_Click(20);  // inside the caption table: an empty caption
    EXPECT_EQ(screen->lblFunc->text(), QString());
}

// A family that overflows partway across the window (e^(100x) beyond x = 7.0978, scaled down by A so
// that the rows before it stay in the square): the columns up to the overflow are drawn before the
// error is raised, the last of them too.
TEST_F(Grapher, AnOverflowPartwayComesAfterTheColumnsBeforeItAreDrawn)
{
    screen->mnuFunc_Click(9);  // A * e^(Bx + C) + D
    type({screen->txtYmin, screen->txtYmax}, "-1e9|1e9");
    type({screen->txtA, screen->txtB, screen->txtC, screen->txtD}, "1e-300|100|0|500000000");
    screen->cmdPlotto->click();
    EXPECT_EQ(script.errors, (std::vector<int>{rt::Overflow}));
    const GraphWindow& g = screen->graph;
    const QImage lastColumns = screen->surface->picture(
        QRectF(g.column(7.0), GraphWindow::Top, g.column(7.09) - g.column(7.0), GraphWindow::Side));
    bool drawn = false;
    for (int y = 0; y < lastColumns.height(); ++y)
        for (int x = 0; x < lastColumns.width(); ++x)
            drawn = drawn || lastColumns.pixel(x, y) == colour(rt::Mod(9, 7));
    EXPECT_TRUE(drawn);
}
