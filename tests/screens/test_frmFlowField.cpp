// SPDX-License-Identifier: GPL-3.0-or-later
// The slope-field screen through its widgets: the field, presses and typed starts, the smooth curve
// and the approximations, and the formula display.
#include <cmath>

#include "graphwin/DrawingStyle.h"

#include "ScreenFixture.h"

namespace {

struct Field : ScreenFixture<frmFlowField> {
    // Twips of a window point in the default window.
    static double X(double x) { return 5600 + x * 320; }
    static double Y(double y) { return 3300 - y * 320; }
    void approximate(const char* h, const char* n)
    {
        screen->optApprox->setChecked(true);
        screen->txtDelta->setText(QString::fromLatin1(h));
        screen->txtCurvePoints->setText(QString::fromLatin1(n));
    }
    // The segments of curves and the arrows: every line not drawn in the axes' black.
    std::vector<DrawOp> segments() const
    {
        std::vector<DrawOp> out;
        std::copy_if(ops().begin(), ops().end(), std::back_inserter(out), [](const DrawOp& op) {
            return op.kind == DrawOp::Line && op.color != DrawingStyle::colour(DrawingStyle::kAxes);
        });
        return out;
    }
    bool segmentFrom(double x, double y) const
    {
        const auto all = segments();
        return std::any_of(all.begin(), all.end(), [&](const DrawOp& op) { return op.x1 == x && op.y1 == y; });
    }
};

}  // namespace

TEST_F(Field, ArrowsAreAHundredAndSixtyTwipsLongAndNoneWhereBothRatesVanish)
{
    type({screen->txtA, screen->txtE}, "1|0");  // dy = x
    screen->mnuDx_Click(2);  // D = E = F = 0: dx = 1
    screen->cmdShowFlow->click();
    const auto arrows = segments();
    ASSERT_EQ(arrows.size(), 361u);
    for (const DrawOp& a : arrows) {
        EXPECT_NEAR(std::hypot(a.x2 - a.x1, a.y2 - a.y1), 160, 1e-9);
        EXPECT_EQ(a.y2<a.y1, a.x1> 5600) << a.x1;  // up right of the y axis, level or down left of it
    }
    EXPECT_TRUE(hasLine(5600, 3300, 5760, 3300));  // at x = 0 the slope is 0: pointing right
    screen->cmdClean_Click();
    screen->mnuDx_Click(1);
    type({screen->txtA, screen->txtB, screen->txtC, screen->txtD, screen->txtE, screen->txtF}, "0|0|0|0|0|0");
    screen->cmdShowFlow_Click();
    EXPECT_TRUE(segments().empty());
}

TEST_F(Field, PressesStartEulerApproximationsForwardsOrBackwards)
{
    approximate("1", "3");
    screen->optEuler->setChecked(false);
    screen->optEuler->setChecked(true);
    screen->Form_MouseDown(1, 0, X(4), Y(3));  // the circle dy/dx = -x/y from (4, 3)
    EXPECT_EQ(screen->lblEndpt->text(), QStringLiteral("EndPt ( 7, 3.167"));
    EXPECT_TRUE(hasLine(X(4), Y(3), X(5), Y(3 - 4.0 / 3)));  // the first segment starts at the press
    EXPECT_EQ(std::tuple(segments().size(), segments().front().color), std::tuple(3u, colour(5)));
    screen->cmdClean_Click();
    screen->Form_MouseDown(2, 0, X(4), Y(3));  // a right press goes backwards: x decreases by h
    EXPECT_EQ(std::pair(segments().front().x1, segments().front().x2), std::pair(X(4), X(3)));
    const QString endpoint = screen->lblEndpt->text();
    const size_t drawn = ops().size();
    screen->Form_MouseDown(1, 0, X(4), Y(0));  // y = 0: dx = 0, a vertical slope stops at once
    EXPECT_EQ(std::tuple(screen->lblEndpt->text(), ops().size()), std::tuple(endpoint, drawn));
    screen->optCurve->setChecked(true);  // the smooth curve: each step of length h adds h^2 to r^2
    type({screen->txtDelta, screen->txtCurvePoints}, "0.02|1000");
    double x = 4, y = 3;
    screen->PointCounter = 0;
    screen->FollowCurveForward(x, y);
    EXPECT_NEAR(x * x + y * y, 25.4, 1e-9);
    EXPECT_EQ(screen->PointCounter, 1000);
    // Only presses strictly inside the graph area start a curve; outside, from the current point.
    screen->Form_MouseDown(1, 0, 2400, Y(3));
    screen->Form_MouseDown(1, 0, 2401, Y(3));
    EXPECT_TRUE(!segmentFrom(2400, Y(3)) && segmentFrom(2401, Y(3)));
    screen->Form_MouseDown(4, 0, X(1), Y(1));  // the middle button does nothing
    EXPECT_EQ(screen->CurrentX, (2401 - 5600) * 20.0 / 6400);
}

TEST_F(Field, MouseMovesShowTheStartAndATypedStartIsNotTheCurrentPoint)
{
    screen->Form_MouseMove(0, 0, 5600 + 403, 3300 + 801);
    screen->Form_MouseMove(0, 0, 9000, 3300);  // outside: blanks, and the current point stays
    EXPECT_EQ(std::pair(screen->lblPos->text(), screen->CurrentX),
              std::pair(QStringLiteral("Start( _____, _____ )"), 1.25));
    screen->Form_MouseMove(0, 0, 5600 + 403, 3300 + 801);
    EXPECT_EQ(screen->lblPos->text(), QStringLiteral("Start( 1.25 , -2.51 ) "));  // cut to hundredths
    approximate("1", "3");
    script.answers = {QStringLiteral("4"), QStringLiteral("3")};
    QTest::mouseClick(screen->lblPos, Qt::LeftButton);
    EXPECT_EQ(script.shown, (Shown{{QStringLiteral("X ="), QStringLiteral("Enter x coordinate:")},
                                   {QStringLiteral("Y ="), QStringLiteral("Enter y coordinate:")}}));
    EXPECT_EQ(texts({screen->lblPos, screen->lblEndpt}), QStringLiteral("Start( 4 , 3 ) |EndPt ( 7, 3.167"));
    EXPECT_EQ(std::pair(segments().size(), screen->CurrentX), std::pair(std::size_t(3), 1.25));
}

TEST_F(Field, TheKeyboardPressesAtTheCrossHairAndTheDescriptionSaysTheRates)
{
    std::vector<std::pair<double, double>> presses;
    const auto handler = screen->surface->MouseDown;
    screen->surface->MouseDown = [&](int b, int s, double x, double y) {
        presses.emplace_back(x, y);
        handler(b, s, x, y);
    };
    screen->show();
    screen->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(screen.get()));
    screen->surface->setFocus();  // the graph takes keys while it has the focus
    QTest::keyClick(screen->surface, Qt::Key_Right);
    QTest::keyClick(screen->surface, Qt::Key_Return);  // one step right of the middle of the square
    ASSERT_EQ(presses.size(), 1u);
    EXPECT_NEAR(presses[0].first, 5600 + DrawingSurface::kPointerStep, twipsPerPixel(screen->surface));
    EXPECT_NEAR(presses[0].second, 3300, twipsPerPixel(screen->surface));
    expectDescribed("that is dy = -1x; dx = Dx + Ey + F, that is dx = y.", {screen->lblPos, screen->lblEndpt});
}

TEST_F(Field, PlotButtonPressesFortyOrEightyTimesWithItsShifts)
{
    screen->txtCurvePoints->setText(QStringLiteral("1"));  // each press draws its first segment only
    screen->chkBiDirect->setChecked(true);
    screen->cmdPlotto->click();
    EXPECT_EQ(std::tuple(screen->MethodColour, segments().size()), std::tuple(2, 80u));
    EXPECT_TRUE(segmentFrom(2401 + 320 * 19, 3300) && segmentFrom(5600, 101 + 320 * 19));
    screen->cmdClean_Click();
    type({screen->txtYmin, screen->txtYmax, screen->txtVerShift}, "-5|5|1");  // scaled by the width: 320 twips
    screen->optApprox->setChecked(true);
    screen->optRunga2->setChecked(true);
    screen->txtCurvePoints->setText(QStringLiteral("1"));
    screen->cmdPlotto_Click();
    EXPECT_TRUE(segmentFrom(2401, screen->graph.YOrigin - 320) && segments().front().color == colour(3));
    screen->cmdSetDefault->click();  // the first window and step, cleared and plotted again
    EXPECT_EQ(windowLimits(*screen) + '|' + screen->txtDelta->text(), QStringLiteral("-10|10|-10|10|0.1"));
    EXPECT_GT(segments().size(), 40u) << "the Plot button's presses, both ways";
}

TEST(FormulaDisplay, TheWalkDropsOnesCutsZeroTermsAndWritesOtherValues)
{
    const struct { const char* formula; const char* letters; std::array<double, 3> values; const char* shown; } cases[] = {
        {"Ax + By + C", "ABC", {2, 3, 1}, "2x + 3y + "},  // a 1 loses its letter, nothing more
        {"Ax + By + C*e^x", "ABC", {1, 1, 1}, "x + y + *e^x"},
        {"Ax + Bsin(Cx)", "ABC", {1, 3, 0}, "x"},  // C = 0 cuts the term it stands in
        {"Ax + By + C", "ABC", {0, 0, 0}, ""},
        {"Ax + Bsin(Cx)", "ABC", {0, 0, 0}, ""},
        {"Ax + By + C", "ABC", {0, 3, 1}, " 3y + "},  // the leading cut leaves a blank
        {"Ax + By + C", "ABC", {0, -2, 0}, " -2y"},
        {"Ax + By + C", "ABC", {-1, 1, 0}, "-1x + y"},
        {"Ax + By + C", "ABC", {0.5, -2, 3}, ".5x - 2y + 3"},
        {"Ax + By + C", "ABC", {4, 0, 5}, "4x + 5"},
        {"Axy + Bx^2*y + Cxy^2", "ABC", {2, 0, 1}, "2xy + xy^2"},
        {"Ay^3 + By^2 + Cy", "ABC", {0, 0, -3}, " -3y"},
        {"Dx + Ey + C*e^y", "DEF", {1, 0, 0}, "x + C*e^y"},  // C is not a dx letter
        {"Dx + ExSin(Fx)", "DEF", {2, 7, 1}, "2x + 7xSin(x)"},
        {"", "DEF", {1, 1, 1}, ""},
    };
    for (const auto& [formula, letters, values, shown] : cases)
        EXPECT_EQ(FormulaWithCoefficients(formula, letters, values), shown) << formula;
}

TEST_F(Field, TheScreenPrintsTheWalkedFormulaAndAnUnmovableCounterEnds)
{
    type({screen->txtA, screen->txtB, screen->txtC}, "2|3|1");
    EXPECT_TRUE(std::any_of(ops().begin(), ops().end(), [](const DrawOp& op) {
        return op.kind == DrawOp::Text && op.text == QStringLiteral("2x + 3y + ");
    }));
    // On a form zoomed to twice its size (maximized) the formula is printed in the same place of
    // the form as at the normal size.
    auto printedAt = [&] {
        const auto last = std::find_if(ops().rbegin(), ops().rend(), [](const DrawOp& op) {
            return op.kind == DrawOp::Text && op.text.startsWith(QStringLiteral("2x + 3y + "));
        });
        return QPointF(last->x1, last->y1);
    };
    const QPointF normal = printedAt();
    screen->surface->setZoom(2);
    screen->txtC->setText(QStringLiteral("2"));
    EXPECT_EQ(printedAt(), normal);
    screen->txtXmax->setText(QStringLiteral("100000000000000040"));
    screen->txtXmin->setText(QStringLiteral("1e17"));  // a 32-bit origin is out of reach: Overflow
    EXPECT_EQ(script.errors, std::vector<int>{rt::Overflow});
    screen->cmdShowFlow_Click();  // x + W/20 == x at 1e17: the loop ends instead of spinning
    EXPECT_EQ(script.errors.size(), 1u);
}
