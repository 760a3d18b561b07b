// SPDX-License-Identifier: GPL-3.0-or-later
// The Taylor screen through its buttons and boxes: the terms listed, P_n and the error at x against
// the series written out, words where f or a derivative does not exist at a, degree 20 and beyond,
// what is drawn, and no classic error whatever the boxes hold.
#include "screens/frmTaylor.h"

#include <cmath>

#include "ScreenFixture.h"

using Taylor = ScreenFixture<frmTaylor>;

namespace {
// Adds `n` terms about `centre` to a fresh screen on `f` (see setFunction).
frmTaylor& build(frmTaylor& s, const char* f, const char* centre, int n)
{
    setFunction(s, f);
    s.txtCentre->setText(QString::fromUtf8(centre));
    for (int i = 0; i < n; ++i)
        s.cmdAddTerm->click();
    return s;
}
QString column(frmTaylor& s, int c, int rows) { return cells(s.grdTerms, 1, rows, c, c); }
QString termsAndDegree(frmTaylor& s, int rows) { return column(s, 1, rows) + '|' + s.lblDegree->text(); }
QString termsAndStatus(frmTaylor& s, int rows) { return column(s, 1, rows) + '|' + s.lblStatus->text(); }
}  // namespace

TEST_F(Taylor, TermsAndWordsThroughTheButtons)
{
    run({
        {"sin (family 5) at 0, then terms removed, never below degree 0",
         [](auto& s) {
             const QString six = termsAndDegree(build(s, "#5", "0", 6), 7);
             s.cmdRemoveTerm->click();
             const QString five = termsAndDegree(s, 6);
             for (int i = 0; i < 5; ++i)
                 s.cmdRemoveTerm->click();
             return six + '/' + five + '/' + s.lblDegree->text();
         },
         "0|x|0|-x^3/6|0|x^5/120||Degree: 5/0|x|0|-x^3/6|0||Degree: 4/Degree: 0"},
        {"ln at 0, then stepped to 1",
         [](auto& s) {
             const QString at0 = termsAndStatus(build(s, "ln(x)", "0", 3), 3);
             press(s.lblCentre, Qt::LeftButton);
             return at0 + '/' + column(s, 1, 3) + '|' + s.txtCentre->text();
         },
         "f(a) does not exist|f(a) does not exist|f(a) does not exist|No Taylor polynomial of degree 2 about a = 0: "
         "f(a) does not exist./0|(x - 1)|-(x - 1)^2/2|1"},
        {"a coefficient's last digit is another series",
         [](auto& s) {
             build(s, "#2", "0", 0).txtC->setText(QStringLiteral("1"));
             s.cmdAddTerm->click();
             s.txtC->setText(QStringLiteral("1.0000001"));
             s.cmdPlotto->click();
             return column(s, 1, 1);
         },
         "10000001/10000000"},
        {"a refused family",
         [](auto& s) {
             type({build(s, "#10", "0", 1).txtB, s.txtC}, "0|0");
             s.cmdPlotto->click();
             return s.lblStatus->text();
         },
         "No Taylor polynomial: part of the expression is 0 where it divides or is a base."},
        {"degree 20, then no further than 30",
         [](auto& s) {
             const QString d = build(s, "e^x", "0", 21).lblDegree->text();
             for (int i = 0; i < 12; ++i)
                 s.cmdAddTerm->click();
             return d + '|' + s.lblDegree->text() + '|' + s.grdTerms->cell(21, 1);
         },
         "Degree: 20|Degree: 30|x^20/2432902008176640000"},
    });
}

TEST_F(Taylor, ValuesAtXAgainstTheSeriesWrittenOut)
{
    build(*screen, "cos(x)", "0", 7);
    screen->txtAtX->setText(QStringLiteral("0.5"));
    screen->chkLagrange->setChecked(true);
    const double x = 0.5, p6 = 1 - x * x / 2 + std::pow(x, 4) / 24 - std::pow(x, 6) / 720;
    EXPECT_NEAR(screen->grdTerms->cell(7, 2).toDouble(), p6, 1e-9);
    EXPECT_NEAR(screen->grdTerms->cell(7, 3).toDouble(), std::cos(x) - p6, 1e-12);
    EXPECT_NEAR(screen->grdTerms->cell(7, 4).toDouble(), std::sin(x) * std::pow(x, 7) / 5040, 1e-13);
    EXPECT_NEAR(screen->grdTerms->cell(3, 2).toDouble(), 1 - x * x / 2, 1e-12);
    // e^x at 0.01: the term of degree 8 is 1e-16 / 40320, below what a double adds to P_7.
    build(*screen, "e^x", "0", 9);
    screen->txtAtX->setText(QStringLiteral("0.01"));
    EXPECT_EQ(column(*screen, 3, 9).section('|', 7), QStringLiteral("past double precision|past double precision"));
    EXPECT_TRUE(screen->lblStatus->text().endsWith(QStringLiteral("it changes no digit of P_8 a double can hold.")));
    expectDescribed("Degree 8. Terms: 0: 1; 1: x; 2: x^2/2", {screen->lblStatus});
}

TEST_F(Taylor, WhatIsDrawnAndNothingRaises)
{
    build(*screen, "#5", "0", 4);  // sin x: P_3 = x - x^3/6 within 0.1 of sin x on about |x| < 1.4
    EXPECT_GT(std::min({inColour(4), inColour(1), inColour(12)}), 100);  // P_3 in red, sin x in blue, P_2 faint
    EXPECT_GT(inColour(10), 0);  // the band
    EXPECT_TRUE(screen->everyDrawingKept());
    screen->CleanGraph();
    for (int i = 0; i < 2; ++i)
        screen->cmdRemoveTerm->click();  // P_1 = x in red, and P_0 = 0 before it, faint
    EXPECT_GT(std::min(inColour(4), inColour(12)), 100);
    build(*screen, "ln(x)", "0", 3);  // f drawn, no polynomial
    screen->CleanGraph();
    screen->cmdPlotto->click();
    EXPECT_EQ(inColour(4) + inColour(12) + inColour(10), 0);
    for (const char* text : {"1e400", "abc", "", "-1e308"}) {
        for (QLineEdit* box : {screen->txtCentre, screen->txtTolerance, screen->txtAtX})
            box->setText(QString::fromLatin1(text));
        screen->cmdAddTerm->click();
        press(screen->lblCentre, Qt::RightButton);
        screen->chkLagrange->click();
    }
    EXPECT_TRUE(script.errors.empty());
}

// The shared controls on an added screen: what would end the program on the classic eight (equal
// window limits, a coefficient beyond the range) is told in words, and the screen carries on; the
// same typing on a classic screen still gives the classic report.
TEST_F(Taylor, ClassicErrorsOfItsSharedControlsAreToldInWords)
{
    const struct {
        const char* what;
        std::function<void(GraphScreen&)> act;
        int number;
    } cases[] = {
        {"equal window limits", [](GraphScreen& s) { s.txtXmax->setText(s.txtXmin->text()); }, 11},
        {"a coefficient too large", [](GraphScreen& s) { s.txtA->setText(QStringLiteral("1e400")); }, 6},
    };
    for (const auto& c : cases) {
        const std::size_t shown = script.shown.size();
        c.act(*screen);
        EXPECT_TRUE(script.errors.empty()) << c.what;
        ASSERT_EQ(script.shown.size(), shown + 1) << c.what;
        EXPECT_TRUE(script.shown.back().second.startsWith(QStringLiteral("That could not be done: ")) &&
                    script.shown.back().second.contains(QStringLiteral("(error %1)").arg(c.number)))
            << c.what << ": " << script.shown.back().second.toStdString();
        screen->cmdSetDefault->click();
        frmClasses classic;
        classic.Form_Activate();
        c.act(classic);
        EXPECT_EQ(script.errors, std::vector<int>{c.number}) << c.what;
        script.errors.clear();
    }
    // A limit left holding what the classic screens refuse does not stop the screen from being shown
    // again by the launcher: the error is told in words there too.
    screen->txtXmin->setText(QStringLiteral("1e400"));
    const std::size_t shown = script.shown.size();
    screen->activate();
    EXPECT_EQ(std::pair(script.errors.empty(), script.shown.size()), std::pair(true, shown + 1));
}
