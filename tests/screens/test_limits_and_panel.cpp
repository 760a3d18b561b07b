// SPDX-License-Identifier: GPL-3.0-or-later
// The window limit controls and the coefficient panel, as every screen has them (the grapher's copy).
#include "screens/frmClasses.h"

#include "ScreenFixture.h"

using Limits = ScreenFixture<frmClasses>;

TEST_F(Limits, EveryKeystrokeRedrawsTheEmptyAxes)
{
    screen->cmdPlotto_Click();
    QTest::keyClicks(screen->txtXmin, QStringLiteral("5"));  // "-105"
    EXPECT_EQ(screen->txtXmin->text(), QStringLiteral("-105"));
    EXPECT_EQ(count(DrawOp::PSet), 0);
    EXPECT_EQ(screen->graph.XRange, 115);
    screen->txtXmin->setText(QStringLiteral("-"));  // a lone minus reads as 0
    EXPECT_EQ(screen->graph.XOrigin, 2400);
    EXPECT_TRUE(script.errors.empty());
}

TEST_F(Limits, ArrowsStepByOneAndByFiveOnADoubleClick)
{
    press(screen->lblXmaxR, Qt::LeftButton);
    EXPECT_EQ(screen->txtXmax->text(), QStringLiteral("11"));
    QTest::mouseDClick(screen->lblXmaxR, Qt::LeftButton);  // the double click's own step of 4
    EXPECT_EQ(screen->txtXmax->text(), QStringLiteral("15"));
    screen->lblXminL_Click();
    screen->lblXminL_DblClick();
    EXPECT_EQ(screen->txtXmin->text(), QStringLiteral("-15"));
    screen->lblYminR_Click();
    screen->lblYmaxL_DblClick();
    EXPECT_EQ(screen->txtYmin->text(), QStringLiteral("-9"));
    EXPECT_EQ(screen->txtYmax->text(), QStringLiteral("6"));
    screen->txtYmax->setText(QStringLiteral("1e3"));
    screen->lblYmaxR_Click();
    EXPECT_EQ(screen->txtYmax->text(), QStringLiteral("1001"));
    EXPECT_EQ(screen->graph.YRange, 1010);
}

TEST_F(Limits, ArrowsNeverGuardOnTheGrapher)
{
    screen->txtXmin->setText(QStringLiteral("9.5"));
    screen->lblXminR_Click();  // passes Xmax: a mirrored window, no message
    EXPECT_EQ(screen->txtXmin->text(), QStringLiteral("10.5"));
    EXPECT_EQ(screen->graph.XRange, -0.5);
    EXPECT_TRUE(script.shown.empty());
}

TEST_F(Limits, ZoomHalvesEachRangeAboutItsCentreAndReplots)
{
    screen->cmdZoomIn->click();
    EXPECT_EQ(screen->txtXmin->text(), QStringLiteral("-5"));
    EXPECT_EQ(screen->txtXmax->text(), QStringLiteral("5"));
    EXPECT_GT(count(DrawOp::PSet), 0);
    screen->cmdZoomIn_Click();
    EXPECT_EQ(screen->txtYmin->text(), QStringLiteral("-2.5"));
    EXPECT_EQ(screen->txtYmax->text(), QStringLiteral("2.5"));
    screen->txtXmin->setText(QStringLiteral("0"));
    screen->txtXmax->setText(QStringLiteral("3"));
    screen->cmdZoomIn_Click();
    EXPECT_EQ(screen->txtXmin->text(), QStringLiteral("0.75"));
    EXPECT_EQ(screen->txtXmax->text(), QStringLiteral("2.25"));
}

TEST_F(Limits, ResetWritesTheFixedTextsAndReplots)
{
    screen->txtXmin->setText(QStringLiteral("-3.25"));
    screen->txtYmax->setText(QStringLiteral("abc"));
    screen->cmdSetDefault->click();
    EXPECT_EQ(screen->txtXmin->text(), QStringLiteral("-10"));
    EXPECT_EQ(screen->txtXmax->text(), QStringLiteral("10"));
    EXPECT_EQ(screen->txtYmin->text(), QStringLiteral("-10"));
    EXPECT_EQ(screen->txtYmax->text(), QStringLiteral("10"));
    EXPECT_TRUE(hasPoint(5600, 3300, colour(1)));
}

TEST_F(Limits, CoefficientLabelsStepTheirBoxes)
{
    screen->txtA->setText(QStringLiteral("2.5"));
    press(screen->lblA, Qt::LeftButton);
    EXPECT_EQ(screen->txtA->text(), QStringLiteral("3.5"));
    EXPECT_EQ(FuncGlobals::Coefficients.A, 3.5);
    screen->lblA_MouseDown(2, 0, 0, 0);
    screen->lblA_MouseDown(2, 0, 0, 0);
    EXPECT_EQ(screen->txtA->text(), QStringLiteral("1.5"));
    press(screen->lblB, Qt::RightButton);
    EXPECT_EQ(screen->txtB->text(), QStringLiteral("0"));
    EXPECT_EQ(FuncGlobals::Coefficients.B, 0);
    screen->lblE_MouseDown(4, 0, 0, 0);  // the middle button does nothing
    EXPECT_EQ(screen->txtE->text(), QStringLiteral("0"));
    screen->txtA->setText(QStringLiteral("abc"));
    EXPECT_EQ(FuncGlobals::Coefficients.A, 0);
}

TEST_F(Limits, FunctionLabelCyclesBothWays)
{
    press(screen->lblFunc, Qt::RightButton);
    EXPECT_EQ(FuncGlobals::FunctionId, 15);
    EXPECT_EQ(screen->lblFunc->text(), QStringLiteral("y = A * B^x + C"));
    press(screen->lblFunc, Qt::LeftButton);
    EXPECT_EQ(FuncGlobals::FunctionId, 1);
    EXPECT_EQ(screen->lblFunc->text(), QStringLiteral("y = A * (Bx - C)^2 + D"));
    for (int i = 0; i < 14; ++i)
        screen->lblFunc_MouseDown(1, 0, 0, 0);
    EXPECT_EQ(FuncGlobals::FunctionId, 15);
    EXPECT_EQ(count(DrawOp::PSet), 0);
}

TEST_F(Limits, AFamilyOutsideTheCaptionTableIsASubscriptError)
{
    try {
        screen->mnuFunc_Click(21);
        FAIL();
    } catch (const rt::RuntimeError& e) {
        EXPECT_EQ(e.number(), rt::SubscriptOutOfRange);
    }
    screen->mnuFunc_Click(20);  // inside the table: an empty caption
    EXPECT_EQ(screen->lblFunc->text(), QString());
}

TEST_F(Limits, HostileTextInEveryBoxNeverEndsTheProgramUnlessTheLimitsMeet)
{
    const char* corpus[] = {"",
                            "-",
                            ".",
                            "1e",
                            "1e308",
                            "-1e308",
                            "1e-320",
                            "nan",
                            "inf",
                            "1.2.3",
                            " 5",
                            "&H7FFF",
                            "99999999999999999999",
                            "\xe2\x88\x9e",
                            " "};
    TextBox* boxes[] = {screen->txtA, screen->txtB, screen->txtC, screen->txtD, screen->txtE};
    for (const char* text : corpus)
        for (TextBox* box : boxes) {
            box->setText(QString::fromUtf8(text));
            screen->cmdPlotto->click();
        }
    for (int e : script.errors)
        EXPECT_TRUE(e == rt::Overflow || e == rt::DivisionByZero) << e;
}
