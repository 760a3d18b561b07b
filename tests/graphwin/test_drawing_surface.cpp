// SPDX-License-Identifier: GPL-3.0-or-later
// The drawing surface: pixels under twip points, lines with their recorded ends, clipping of
// far-away lines, wide pens, text placement, clearing and the mouse in twips.
#include <QTest>
#include <gtest/gtest.h>

#include "graphwin/DrawingSurface.h"

namespace {

constexpr QRgb kRed = 0xFFFF0000u, kBlue = 0xFF0000FFu, kWhite = 0xFFFFFFFFu;

}  // namespace

TEST(DrawingSurface, PSetColoursThePixelUnderTheTwipPoint)
{
    DrawingSurface s(3000, 3000);
    s.setRecording(true);
    s.PSet(1500, 1500, kRed);
    EXPECT_EQ(s.pixel(1500, 1500), kRed);
    EXPECT_EQ(s.pixel(1514, 1514), kRed);  // the same pixel: 15 twips to a pixel
    EXPECT_EQ(s.pixel(1515, 1500), kWhite);
    EXPECT_EQ(s.CurrentX, 1500);
    ASSERT_EQ(s.ops().size(), 1u);
    EXPECT_EQ(s.ops()[0].kind, DrawOp::PSet);
    EXPECT_EQ(s.ops()[0].color, kRed);
}

TEST(DrawingSurface, LinesIncludeBothEndsAndRecordAbsoluteEnds)
{
    DrawingSurface s(3000, 3000);
    s.setRecording(true);
    s.LineStep(300, 600, 900, 0, kBlue);
    for (double x = 300; x <= 1200; x += 15)
        EXPECT_EQ(s.pixel(x, 600), kBlue) << x;
    EXPECT_EQ(s.pixel(1215, 600), kWhite);
    s.Line(150, 150, 1500, 1500, kRed);  // diagonal
    EXPECT_EQ(s.pixel(750, 750), kRed);
    EXPECT_EQ(s.pixel(750, 1200), kWhite);
    ASSERT_EQ(s.ops().size(), 2u);
    const DrawOp& step = s.ops()[0];
    EXPECT_EQ(step.kind, DrawOp::Line);
    EXPECT_EQ(step.x1, 300);
    EXPECT_EQ(step.y1, 600);
    EXPECT_EQ(step.x2, 1200);
    EXPECT_EQ(step.y2, 600);
    EXPECT_EQ(s.CurrentX, 1500);
    EXPECT_EQ(s.CurrentY, 1500);
}

TEST(DrawingSurface, FarAwayLinesAreClippedNotDropped)
{
    DrawingSurface s(3000, 3000);
    s.Line(-1e12, 1500, 1e12, 1500, kRed);  // crosses the whole surface
    EXPECT_EQ(s.pixel(0, 1500), kRed);
    EXPECT_EQ(s.pixel(2990, 1500), kRed);
    s.Line(1e300, -1e300, 2e300, -5e299, kBlue);  // entirely outside
    s.PSet(1e300, -1e300, kBlue);
    s.Line(1500, 1500, std::numeric_limits<double>::quiet_NaN(), 0, kBlue);
    EXPECT_EQ(s.pixel(1500, 1400), kWhite);
}

TEST(DrawingSurface, WidePenAndClear)
{
    DrawingSurface s(3000, 3000);
    s.setRecording(true);
    s.setDrawWidth(3);
    s.PSet(1500, 1500, kRed);
    EXPECT_EQ(s.pixel(1485, 1485), kRed);
    EXPECT_EQ(s.pixel(1515, 1515), kRed);
    EXPECT_EQ(s.ops().back().width, 3);
    s.setDrawWidth(1);
    s.Cls();
    EXPECT_TRUE(s.ops().empty());
    EXPECT_EQ(s.pixel(1500, 1500), kWhite);
    EXPECT_EQ(s.CurrentX, 0);
}

TEST(DrawingSurface, TextMovesTheCurrentPoint)
{
    DrawingSurface s(6000, 3000);
    s.setRecording(true);
    s.setFontSize(8);
    const double w = s.TextWidth(QStringLiteral("dy  ")), h = s.TextHeight(QStringLiteral("d"));
    EXPECT_GT(w, 0);
    EXPECT_GT(h, 0);
    s.CurrentX = 300;
    s.CurrentY = 200;
    s.Print(QStringLiteral("dy  "), false);
    EXPECT_DOUBLE_EQ(s.CurrentX, 300 + w);
    EXPECT_EQ(s.CurrentY, 200);
    s.Print(QStringLiteral("x"));
    EXPECT_EQ(s.CurrentX, 0);
    EXPECT_DOUBLE_EQ(s.CurrentY, 200 + h);
    ASSERT_EQ(s.ops().size(), 2u);
    EXPECT_EQ(s.ops()[0].kind, DrawOp::Text);
    EXPECT_EQ(s.ops()[0].text, QStringLiteral("dy  "));
    EXPECT_EQ(s.ops()[0].x1, 300);
    s.Circle(1500, 1500, 300, kRed);
    EXPECT_EQ(s.ops().back().kind, DrawOp::Circle);
    EXPECT_EQ(s.ops().back().x2, 300);
    EXPECT_EQ(s.pixel(1800, 1500), kRed);
}

TEST(DrawingSurface, MousePressesArriveInTwips)
{
    DrawingSurface s(3000, 3000);
    int button = 0;
    double x = 0, y = 0;
    s.MouseDown = [&](int b, int, double px, double py) {
        button = b;
        x = px;
        y = py;
    };
    QTest::mousePress(&s, Qt::RightButton, Qt::NoModifier, QPoint(40, 20));
    EXPECT_EQ(button, 2);
    EXPECT_EQ(x, 600);
    EXPECT_EQ(y, 300);
}
