// SPDX-License-Identifier: GPL-3.0-or-later
// The slope-field screen through its widgets: the field, presses and typed starts, the smooth curve
// and the approximations, the rate menus and labels, the formula display and the messages.
#include <cmath>

#include "screens/frmFlowField.h"

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
    long lines() const { return count(DrawOp::Line); }
    // The segments of curves: every line not drawn in the axes' black.
    std::vector<DrawOp> segments() const
    {
        std::vector<DrawOp> out;
        for (const DrawOp& op : ops())
            if (op.kind == DrawOp::Line && op.color != colour(0))
                out.push_back(op);
        return out;
    }
    bool segmentFrom(double x, double y) const
    {
        const auto all = segments();
        return std::any_of(all.begin(), all.end(), [&](const DrawOp& op) { return op.x1 == x && op.y1 == y; });
    }
};

}  // namespace

TEST_F(Field, StartingState)
{
    EXPECT_EQ(screen->windowTitle(), QStringLiteral("Slope Fields"));
    EXPECT_EQ(FuncGlobals::DyFuncId, 1);
    EXPECT_EQ(FuncGlobals::DxFuncId, 1);
    EXPECT_EQ(FuncGlobals::Coefficients.A, -1);  // the boxes, copied on activation
    EXPECT_EQ(FuncGlobals::Coefficients.E, 1);
    EXPECT_TRUE(screen->optCurve->isChecked());
    EXPECT_TRUE(screen->optEuler->isChecked());
    EXPECT_EQ(screen->txtDelta->text(), QStringLiteral("0.02"));
    EXPECT_EQ(screen->txtCurvePoints->text(), QStringLiteral("500"));
    EXPECT_EQ(screen->MethodColour, 5);
    EXPECT_EQ(screen->optApprox->text(), QStringLiteral("Find &Appoximation"));
    ASSERT_EQ(screen->mnuDx.size(), 16u);
    EXPECT_EQ(screen->mnuDx[9]->text(), QStringLiteral("dx = Dx + Ey + C*e^y"));
    EXPECT_EQ(screen->lblEndpt->text(), QStringLiteral("Endpt ( ____, ____ )"));
}

TEST_F(Field, FieldOfArrowsEachAHundredAndSixtyTwipsLong)
{
    screen->txtA->setText(QStringLiteral("1"));  // dy = x
    screen->txtE->setText(QStringLiteral("0"));
    screen->mnuDx_Click(2);  // D = E = F = 0: dx = 1
    screen->cmdShowFlow->click();
    std::vector<DrawOp> arrows;
    for (const DrawOp& op : ops())
        if (op.kind == DrawOp::Line && op.color == colour(1))
            arrows.push_back(op);
    ASSERT_EQ(arrows.size(), 361u);
    for (const DrawOp& a : arrows)
        EXPECT_NEAR(std::hypot(a.x2 - a.x1, a.y2 - a.y1), 160, 1e-9);
    // At x = 0 the slope is 0: horizontal arrows pointing right.
    const auto atZero =
        std::find_if(arrows.begin(), arrows.end(), [](const DrawOp& a) { return a.x1 == 5600 && a.y1 == 3300; });
    ASSERT_NE(atZero, arrows.end());
    EXPECT_EQ(atZero->x2, 5760);
    EXPECT_EQ(atZero->y2, 3300);
}

TEST_F(Field, NoArrowWhereBothRatesVanish)
{
    for (TextBox* box : {screen->txtA, screen->txtB, screen->txtC, screen->txtD, screen->txtE, screen->txtF})
        box->setText(QStringLiteral("0"));
    screen->cmdShowFlow_Click();
    EXPECT_TRUE(segments().empty());
}

TEST_F(Field, EulerApproximationOfTheCircleFromFourThree)
{
    approximate("1", "3");
    EXPECT_EQ(screen->lblDeltaX->text(), QStringLiteral("Delta x="));
    screen->optEuler->setChecked(false);
    screen->optEuler->setChecked(true);
    screen->Form_MouseDown(1, 0, X(4), Y(3));
    EXPECT_EQ(screen->lblEndpt->text(), QStringLiteral("EndPt ( 7, 3.167"));
    EXPECT_TRUE(hasLine(X(4), Y(3), X(5), Y(3 - 4.0 / 3)));  // the first segment starts at the press
    EXPECT_EQ(segments().size(), 3u);
    EXPECT_EQ(segments().front().color, colour(5));
}

TEST_F(Field, RightPressGoesBackwardsAndVerticalSlopesStop)
{
    approximate("1", "3");
    screen->Form_MouseDown(2, 0, X(4), Y(3));
    EXPECT_EQ(screen->StepH, -1);
    const DrawOp first = segments().front();
    EXPECT_EQ(first.x1, X(4));
    EXPECT_EQ(first.x2, X(3));  // x decreases by h
    const QString endpoint = screen->lblEndpt->text();
    const long before = lines();
    screen->Form_MouseDown(1, 0, X(4), Y(0));  // y = 0: dx = 0, a vertical slope
    EXPECT_EQ(screen->lblEndpt->text(), endpoint);
    EXPECT_EQ(lines(), before);
}

TEST_F(Field, SmoothCircleSpiralsSlowlyOutwards)
{
    screen->txtCurvePoints->setText(QStringLiteral("1000"));
    double x = 4, y = 3;
    screen->PointCounter = 0;
    screen->FollowCurveForward(x, y);
    EXPECT_NEAR(x * x + y * y, 25.4, 1e-9);  // each step of length h adds h^2 to the squared radius
    EXPECT_EQ(screen->PointCounter, 1000);
    // Clockwise: the first step from (4, 3) goes right and down.
    const DrawOp first = segments().front();
    EXPECT_GT(first.x2, first.x1);
    EXPECT_GT(first.y2, first.y1);
}

TEST_F(Field, PressesInsideTheGraphAreaOnly)
{
    screen->Form_MouseDown(1, 0, 2400, Y(3));  // on the edge: outside, redraws from the current point (0, 0)
    EXPECT_FALSE(segmentFrom(2400, Y(3)));
    screen->Form_MouseDown(1, 0, 2401, Y(3));
    EXPECT_TRUE(segmentFrom(2401, Y(3)));
    screen->Form_MouseDown(4, 0, X(1), Y(1));  // the middle button does nothing
    EXPECT_EQ(screen->CurrentX, (2401 - 5600) * 20.0 / 6400);
}

TEST_F(Field, MouseMovesShowTheStartPointCutToHundredths)
{
    screen->Form_MouseMove(0, 0, 5600 + 403, 3300 + 801);
    EXPECT_EQ(screen->lblPos->text(), QStringLiteral("Start( 1.25 , -2.51 ) "));
    EXPECT_EQ(screen->CurrentX, 1.25);
    screen->Form_MouseMove(0, 0, 9000, 3300);
    EXPECT_EQ(screen->lblPos->text(), QStringLiteral("Start( _____, _____ )"));
    EXPECT_EQ(screen->CurrentX, 1.25);
}

TEST_F(Field, TypedStartFollowsForwardsFromThatPoint)
{
    approximate("1", "3");
    script.answers = {QStringLiteral("4"), QStringLiteral("3")};
    QTest::mouseClick(screen->lblPos, Qt::LeftButton);
    ASSERT_EQ(script.shown.size(), 2u);
    EXPECT_EQ(script.shown[0], std::make_pair(QStringLiteral("X ="), QStringLiteral("Enter x coordinate:")));
    EXPECT_EQ(screen->lblPos->text(), QStringLiteral("Start( 4 , 3 ) "));
    EXPECT_EQ(screen->lblEndpt->text(), QStringLiteral("EndPt ( 7, 3.167"));
    EXPECT_EQ(segments().size(), 3u);
    EXPECT_EQ(screen->CurrentX, 0);  // the typed point is not the current point
    screen->lblPos_Click();  // both boxes cancelled: from (0, 0), where dx = 0
    EXPECT_EQ(screen->lblPos->text(), QStringLiteral("Start( 0 , 0 ) "));
}

TEST_F(Field, PlotButtonPressesFortyOrEightyTimesWithItsShifts)
{
    screen->txtCurvePoints->setText(QStringLiteral("1"));  // each press draws its first segment only
    screen->chkBiDirect->setChecked(true);
    screen->cmdPlotto->click();
    EXPECT_EQ(screen->MethodColour, 2);
    EXPECT_EQ(segments().size(), 80u);
    for (int k = 0; k < 20; ++k) {
        EXPECT_TRUE(segmentFrom(2401 + 320 * k, 3300)) << k;
        EXPECT_TRUE(segmentFrom(5600, 101 + 320 * k)) << k;
    }
    screen->cmdClean_Click();
    screen->txtYmin->setText(QStringLiteral("-5"));
    screen->txtYmax->setText(QStringLiteral("5"));
    screen->txtVerShift->setText(QStringLiteral("1"));  // scaled by the width: 320 twips, not 640
    screen->optApprox->setChecked(true);
    screen->optRunga2->setChecked(true);
    screen->txtCurvePoints->setText(QStringLiteral("1"));
    screen->cmdPlotto_Click();
    EXPECT_EQ(screen->MethodColour, 3);
    EXPECT_TRUE(segmentFrom(2401, screen->graph.YOrigin - 320));
}

TEST_F(Field, RateLabelsCycleAndTheDxLabelKeepsItsWrapTest)
{
    press(screen->lbldy, Qt::RightButton);
    EXPECT_EQ(FuncGlobals::DyFuncId, 15);
    EXPECT_EQ(screen->lbldy->text(), QStringLiteral("dy = Ay^3 + By^2 + Cy"));
    press(screen->lbldy, Qt::LeftButton);
    EXPECT_EQ(FuncGlobals::DyFuncId, 1);
    press(screen->lbldx, Qt::RightButton);
    EXPECT_EQ(FuncGlobals::DxFuncId, 0);
    EXPECT_EQ(screen->lbldx->text(), QString());
    screen->cmdShowFlow_Click();  // dx = 0: vertical arrows where dy is not 0
    const auto arrows = segments();
    EXPECT_EQ(arrows.size(), 19u * 18u);  // none on the column x = 0, where dy = -x is 0 too
    EXPECT_TRUE(std::all_of(arrows.begin(), arrows.end(), [](const DrawOp& op) { return op.x1 == op.x2; }));
    press(screen->lbldx, Qt::RightButton);  // -1: the caption lookup fails
    EXPECT_EQ(script.errors, std::vector<int>{rt::SubscriptOutOfRange});
}

TEST_F(Field, SettingsHandlersAndTheirMessages)
{
    screen->optRunga4->setChecked(true);  // refused in the curve purpose, but the colour is taken
    EXPECT_EQ(script.shown.back(),
              std::make_pair(QStringLiteral("Sorry"),
                             QStringLiteral("In the curve option, Euler is the only method for calculating points.")));
    EXPECT_TRUE(screen->optEuler->isChecked());
    EXPECT_EQ(screen->MethodColour, 4);
    screen->optApprox->setChecked(true);
    EXPECT_EQ(screen->txtCurvePoints->text(), QStringLiteral("4"));
    EXPECT_EQ(screen->txtDelta->text(), QStringLiteral(".5"));
    screen->optCurve->setChecked(true);
    EXPECT_EQ(screen->lblDeltaX->text(), QStringLiteral("Delta Vmag="));
    EXPECT_EQ(screen->txtCurvePoints->text(), QStringLiteral("1000"));
    EXPECT_EQ(screen->MethodColour, 4);  // Euler was already selected: selecting it again clicks nothing
    screen->optApprox->setChecked(true);
    screen->optRunga2->setChecked(true);
    screen->optCurve->setChecked(true);  // Euler selected from Runga-Kutta 2: its Click runs
    EXPECT_EQ(screen->MethodColour, 5);
    script.shown.clear();
    screen->txtCurvePoints->setText(QStringLiteral("10000"));
    EXPECT_EQ(script.shown, (std::vector<std::pair<QString, QString>>{
                                {QStringLiteral("Max Points Met-Plus"),
                                 QStringLiteral("The maximum for the points graphed is 10000")}}));
    EXPECT_EQ(screen->txtCurvePoints->text(), QStringLiteral("10000"));
}

TEST_F(Field, SteppersZoomAndReset)
{
    screen->txtDelta->setText(QStringLiteral("0.1"));
    screen->txtCurvePoints->setText(QStringLiteral("3"));
    screen->cmdZoomIn->click();
    EXPECT_EQ(screen->txtDelta->text(), QStringLiteral("0.05"));
    EXPECT_EQ(screen->txtXmax->text(), QStringLiteral("5"));
    press(screen->lblDeltaX, Qt::LeftButton);
    EXPECT_EQ(screen->txtDelta->text(), QStringLiteral("0.025"));
    press(screen->lblDeltaX, Qt::RightButton);
    press(screen->lblplots, Qt::LeftButton);
    press(screen->lblHorShift, Qt::RightButton);
    EXPECT_EQ(screen->txtDelta->text(), QStringLiteral("0.05"));
    EXPECT_EQ(screen->txtCurvePoints->text(), QStringLiteral("4"));
    EXPECT_EQ(screen->txtHorShift->text(), QStringLiteral("-1"));
    screen->cmdSetDefault->click();
    EXPECT_EQ(screen->txtDelta->text(), QStringLiteral("0.1"));
    EXPECT_EQ(screen->txtXmax->text(), QStringLiteral("10"));
    EXPECT_FALSE(segments().empty());  // the forty curves again
}

TEST(FormulaDisplay, TheWalkDropsOnesCutsZeroTermsAndWritesOtherValues)
{
    struct Case {
        const char* formula;
        const char* letters;
        std::array<double, 3> values;
        const char* shown;
    } cases[] = {
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
    for (const Case& c : cases)
        EXPECT_EQ(FormulaWithCoefficients(c.formula, c.letters, c.values), c.shown) << c.formula;
}

// The display on the screen itself prints the walked formulas under the fraction bar.
TEST_F(Field, FormulaDisplayPrintsTheWalkedCaptions)
{
    screen->surface->setRecording(true);
    screen->txtA->setText(QStringLiteral("2"));
    screen->txtB->setText(QStringLiteral("3"));
    screen->txtC->setText(QStringLiteral("1"));
    QStringList texts;
    for (const DrawOp& op : screen->surface->ops())
        if (op.kind == DrawOp::Text)
            texts << op.text;
    EXPECT_TRUE(texts.contains(QStringLiteral("2x + 3y + "))) << texts.join(QLatin1Char('|')).toStdString();
}

TEST_F(Field, AFieldWhoseStepCannotMoveItsCounterEnds)
{
    screen->txtXmax->setText(QStringLiteral("100000000000000040"));
    screen->txtXmin->setText(QStringLiteral("1e17"));  // a 32-bit origin is out of reach: Overflow
    EXPECT_EQ(script.errors, std::vector<int>{rt::Overflow});
    screen->cmdShowFlow_Click();  // x + W/20 == x at 1e17: the loop ends instead of spinning
    EXPECT_EQ(script.errors.size(), 1u);
}
