// SPDX-License-Identifier: GPL-3.0-or-later
// A form shown larger or smaller: handlers see the same twips at every size, the picture is drawn
// again (not lost, not stretched), controls and fonts grow together, and a window opens where it fits.
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include "graphwin/Dialogs.h"
#include "graphwin/DrawingSurface.h"
#include "graphwin/FormArea.h"
#include "screens/frmClasses.h"

namespace {

constexpr QRgb kRed = 0xFFFF0000u, kBlue = 0xFF0000FFu, kWhite = 0xFFFFFFFFu;

void drawSample(DrawingSurface& s)
{
    s.Line(300, 600, 1200, 600, kRed);
    s.Line(150, 1500, 1500, 2800, kBlue);
    s.PSet(2000, 2000, kRed);
    s.Circle(1500, 1500, 450, kBlue);
    s.CurrentX = 200;
    s.CurrentY = 2200;
    s.Print(QStringLiteral("y = x^2"));
    s.clearArea(1000, 1000, 200, 200);
}

QImage grab(DrawingSurface& s)
{
    QImage img(s.normalSize(), QImage::Format_RGB32);
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            img.setPixel(x, y, s.pixel(x * 15, y * 15));
    return img;
}

}  // namespace

TEST(Zoom, MousePressesGiveTheSameTwipsAtEverySize)
{
    for (double zoom : {1.0, 2.0, 0.5, 1.5, 3.25}) {
        DrawingSurface s(3000, 3000);
        s.setZoom(zoom);
        double X = -1, Y = -1;
        s.MouseDown = [&](int, int, double x, double y) { X = x, Y = y; };
        // The picture's point at twips (1500, 600) lies at these pixels at this size.
        QTest::mouseClick(&s, Qt::LeftButton, Qt::NoModifier, QPoint(int(100 * zoom), int(40 * zoom)));
        EXPECT_NEAR(X, 1500, 1e-9) << zoom;
        EXPECT_NEAR(Y, 600, 1e-9) << zoom;
        EXPECT_EQ(s.size(), QSize(int(std::lround(200 * zoom)), int(std::lround(200 * zoom))));
    }
}

TEST(Zoom, ThePictureIsDrawnAgainAtTheNewSizeAndComesBackExactly)
{
    DrawingSurface s(3000, 3000);
    drawSample(s);
    const QImage before = grab(s);
    s.setZoom(2);
    // Every twip point shows what it showed: nothing lost, and a one-pixel line is two pixels wide.
    for (double x = 300; x <= 1200; x += 7.5)
        ASSERT_EQ(s.pixel(x, 600), kRed) << x;
    EXPECT_EQ(s.pixel(700, 607), kRed);
    EXPECT_EQ(s.pixel(700, 616), kWhite);
    EXPECT_EQ(s.pixel(1100, 1100), kWhite);  // the cleared rectangle stays cleared
    s.setZoom(0.37);
    s.setZoom(1);
    EXPECT_EQ(grab(s), before);
    s.Cls();
    s.setZoom(2);
    EXPECT_EQ(s.pixel(700, 600), kWhite);  // a cleared picture stays cleared
}

TEST(Zoom, ControlsAndTheirFontsGrowWithTheForm)
{
    DialogScript script;
    setDialogScript(&script);
    {
        frmClasses screen;
        const QRect plot = screen.cmdPlotto->geometry();  // 9400, 600, 1680 x 420 twips
        const double points = screen.cmdPlotto->font().pointSizeF();
        screen.surface->setZoom(2);
        EXPECT_EQ(screen.cmdPlotto->geometry(), QRect(1253, 80, 224, 56));
        EXPECT_DOUBLE_EQ(screen.cmdPlotto->font().pointSizeF(), points * 2);
        EXPECT_EQ(screen.shpSquare->geometry(), QRect(320, 16, 854, 854));
        // A press on the stepper label still steps its box, and twips stay twips.
        QTest::mouseClick(screen.lblA, Qt::LeftButton);
        EXPECT_EQ(screen.txtA->text(), QStringLiteral("2"));
        screen.surface->setZoom(1);
        EXPECT_EQ(screen.cmdPlotto->geometry(), plot);
    }
    setDialogScript(nullptr);
}

TEST(Zoom, QuickPressesOnASteppedLabelAreNeverLost)
{
    DialogScript script;
    setDialogScript(&script);
    {
        frmClasses screen;
        // Four presses within a second: Qt turns the second and fourth into double clicks.
        QTest::mouseClick(screen.lblA, Qt::LeftButton);
        QTest::mouseDClick(screen.lblA, Qt::LeftButton);
        QTest::mouseClick(screen.lblA, Qt::LeftButton);
        QTest::mouseDClick(screen.lblA, Qt::LeftButton);
        EXPECT_EQ(screen.txtA->text(), QStringLiteral("5"));
        // The limit arrows keep their click plus double click: 5 in all.
        QTest::mouseClick(screen.lblXmaxR, Qt::LeftButton);
        QTest::mouseDClick(screen.lblXmaxR, Qt::LeftButton);
        EXPECT_EQ(screen.txtXmax->text(), QStringLiteral("15"));
    }
    setDialogScript(nullptr);
}

TEST(Zoom, AWindowOpensAtItsNormalSizeOrSmallerToFit)
{
    struct Case {
        QSize normal, frame, available, opened;
    } cases[] = {
        {{749, 476}, {8, 64}, {1920, 1040}, {757, 540}},  // fits: the normal size
        {{928, 620}, {8, 64}, {960, 520}, {691, 520}},  // a 200% screen of 1920x1080: scaled down whole
        {{749, 476}, {8, 64}, {400, 300}, {379, 300}},
        {{749, 476}, {8, 64}, {4, 4}, {20, 71}},  // no room at all: the smallest zoom
    };
    for (const Case& c : cases)
        EXPECT_EQ(openingSize(c.normal, c.frame, c.available), c.opened)
            << c.available.width() << "x" << c.available.height();
}
