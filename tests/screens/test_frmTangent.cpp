// SPDX-License-Identifier: GPL-3.0-or-later
// The tangent line screen through its widgets: secants and their cut labels, the slider's mapping,
// Half Delta x, the steppers and the unguarded horizontal secant.

#include "ScreenFixture.h"

using Tangent = ScreenFixture<frmTangent>;

namespace {
QString labels(frmTangent& s) { return texts({s.lblPoints, s.lblTLine}); }
QString apply(frmTangent& s, const char* family2Coefficients = nullptr)
{
    if (family2Coefficients) {  // y = a x^2 + b x + c
        s.mnuFunc_Click(2);
        type({s.txtA, s.txtB, s.txtC}, family2Coefficients);
    }
    s.cmdApply->click();
    return labels(s);
}
QString applyDx(frmTangent& s, const char* dx)
{
    s.txtDeltaX->setText(QString::fromLatin1(dx));
    return apply(s);
}
QString slider(frmTangent& s, int value)
{
    s.hscDx->setValue(value);
    return labels(s);
}
}  // namespace

TEST_F(Tangent, SecantsAndTheirLabels)
{
    run({
        {"x^2 at 1", [](auto& s) { return apply(s); }, "( 1, 1) to ( 2, 4)|y = 3x + -2"},
        {"slider middle", [](auto& s) { return slider(s, 1000); }, "( ___, ___ ) to ( ___ , ___ )|ERROR!  0/0"},
        {"slider left", [](auto& s) { return slider(s, 0); }, "( 1, 1) to ( 0, 0)|y = 1x + 0"},
        {"slider 1500", [](auto& s) { return slider(s, 1500); }, "( 1, 1) to ( 1.5, 2.25)|y = 2.5x + -1.5"},
        {"half dx",
         [](auto& s) {
             s.cmdHalfDx->click();
             return s.txtDeltaX->text() + '|' + apply(s);
         },
         " .5|( 1, 1) to ( 1.5, 2.25)|y = 2.5x + -1.5"},
        {"negative dx", [](auto& s) { return applyDx(s, "-1"); }, "( 1, 1) to ( 0, 0)|y = 1x + 0"},
        {"empty dx", [](auto& s) { return applyDx(s, ""); }, "( ___, ___ ) to ( ___ , ___ )|ERROR!  0/0"},
        {"cut, not rounded", [](auto& s) { return apply(s, "0|2.999999|0").section('+', 0, 0); },
         "( 1, 2.9999) to ( 2, 5.9999)|y = 2.99999x "},
        {"cut downwards", [](auto& s) { return apply(s, "0|-0.333333|0").section('+', 0, 0); },
         "( 1,-.3334) to ( 2,-.6667)|y = -.33334x "},
        {"horizontal inside", [](auto& s) { return apply(s, "0|0|5"); }, "( 1, 5) to ( 2, 5)|y = 0x + 5"},
        {"steppers",
         [](auto& s) {
             s.txtX->setText(QStringLiteral("2.5"));
             press(s.lblXat, Qt::LeftButton);
             press(s.lblDeltaX, Qt::RightButton);
             return texts({s.txtX, s.lblHsc, s.txtDeltaX});
         },
         " 3.5| 3.5| 0"},
    });
}

TEST_F(Tangent, WhatIsDrawn)
{
    screen->cmdApply->click();
    // The chord, and y = 3x - 2 leaving through the top at x = 4 and through the bottom at x = -8/3.
    EXPECT_TRUE(hasLine(5920, 2980, 6240, 2020) && hasLine(6880, 100, 5600 - 8.0 / 3 * 320, 6500));
    EXPECT_EQ(linesIn(colour(4)), 2);
    expectDescribed("Secant through ( 1, 1) to ( 2, 4): y = 3x + -2.", {screen->lblPoints, screen->lblTLine});
    screen->cmdHalfDx->click();  // draws nothing
    for (int v : {1000, 0, 1500})  // secants accumulate; the middle draws nothing
        screen->hscDx->setValue(v);
    EXPECT_EQ(count(DrawOp::Line), 44 + 2 + 4);
    screen->mnuFunc_Click(2);
    type({screen->txtA, screen->txtB, screen->txtC}, "0|0|20");
    screen->cmdApply->click();  // a horizontal secant outside the window divides by zero
    EXPECT_EQ(script.errors, std::vector<int>{rt::DivisionByZero});
    screen->txtC->setText(QStringLiteral("5"));
    screen->cmdApply->click();  // inside: drawn from border to border
    EXPECT_TRUE(hasLine(8800, 1700, 2400, 1700));
}
