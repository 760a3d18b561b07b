// SPDX-License-Identifier: GPL-3.0-or-later
// Typed functions on the screens, as a teacher types them: results against values worked out
// independently (by hand or from closed forms), gaps that are left out and said in words, refusals
// that change nothing, and the way back to the families.
#include "screens/Convergence.h"

#include "ScreenFixture.h"

namespace {

// The fixture puts the families back after each test, whatever it typed.
using TypedNewton = ScreenFixture<frmNewton>;
using TypedSums = ScreenFixture<frmRiemann>;
using TypedGrapher = ScreenFixture<frmClasses>;
using TypedField = ScreenFixture<frmFlowField>;
using TypedCurve = ScreenFixture<frmParam>;
using TypedMVT = ScreenFixture<frmMVT>;
using TypedTangent = ScreenFixture<frmTangent>;

}  // namespace

TEST_F(TypedNewton, TextbookCubicFromTwoInFourStepsAndItsExactDerivative)
{
    ASSERT_EQ(screen->setTypedFunction(QStringLiteral("x^3 - 2*x - 5")), QString());
    EXPECT_EQ(screen->lblFunc->text(), QStringLiteral("y = x^3 - 2*x - 5"));
    screen->txtGuess->setText(QStringLiteral("2"));
    for (int step = 0; step < 4; ++step)
        screen->cmdApply->click();
    // The real root of x^3 - 2x - 5, as Newton himself computed it: 2.09455148154233.
    EXPECT_NEAR(screen->txtGuess->value(), 2.0945514815423265, 1e-12);
    EXPECT_EQ(screen->grdGuess->item(2, 1)->text(), QStringLiteral("2.1"));  // 2 - (-1)/10
    expectDescribed("the typed function y = x^3 - 2*x - 5");
    screen->cmdDeriv->click();
    // y' = 3x^2 - 2 at the column of x = 0 (5600): row 3300 - (-2) * 320 = 3940.
    EXPECT_TRUE(hasPoint(5600, 3940, colour(1)));
    // Described, and traced (heard and walked) as the derivative.
    expectDescribed("Drawn: the derivative of the typed function y = x^3 - 2*x - 5");
    const std::vector<audio::Point> points = screen->tracePoints();
    ASSERT_GT(points.size(), 100u);
    for (const audio::Point& p : points)
        ASSERT_NEAR(p.y, 3 * p.x * p.x - 2, 1e-9 * (1 + p.x * p.x)) << p.x;

    // Where the derivative is undefined (abs at its corner) the guess's row says so; nothing ends.
    ASSERT_EQ(screen->setTypedFunction(QStringLiteral("abs(x) - 1")), QString());
    screen->txtGuess->setText(QStringLiteral("0"));
    screen->cmdApply->click();
    EXPECT_EQ(screen->grdGuess->item(1, 1)->text(), QStringLiteral("0 (no f'(x) here)"));
    screen->txtGuess->setText(QStringLiteral("-3"));
    ASSERT_EQ(screen->setTypedFunction(QStringLiteral("ln(x)")), QString());
    screen->cmdApply->click();
    EXPECT_EQ(screen->grdGuess->item(1, 1)->text(), QStringLiteral("-3 (no f(x) here)"));
    EXPECT_TRUE(script.errors.empty());
}

TEST_F(TypedSums, GaussianMidpointSumsAndOneOverXsPoleInWordsWithTheirTables)
{
    ASSERT_EQ(screen->setTypedFunction(QStringLiteral("exp(-x^2)")), QString());
    type({screen->txtLBound, screen->txtRBound, screen->txtParts}, "0|1|1000");
    screen->chkMid->setChecked(true);
    screen->cmdParts->click();
    // sqrt(pi)/2 erf(1) = 0.746824132812427; single precision keeps about seven digits of it.
    EXPECT_NEAR(screen->lblMid->text().mid(2).toDouble(), 0.7468241328, 2e-6);
    EXPECT_NEAR(Convergence::sums(0, 1, 1000).exact.value_or(0), 0.746824132812427, 1e-12);
    ASSERT_EQ(screen->setTypedFunction(QStringLiteral("1/x")), QString());
    type({screen->txtLBound, screen->txtRBound, screen->txtParts}, "-1|1|8");
    for (CheckBox* c : {screen->chkLeft, screen->chkRight, screen->chkTrap, screen->chkSimpson})
        c->setChecked(true);
    screen->cmdParts->click();
    // The left sum's points are -1, -0.75, ..., 0.75 and the right sum's -0.75, ..., 1: both meet 0.
    EXPECT_EQ(texts({screen->lblLeftE, screen->lblRightE, screen->lblTrap, screen->lblSimpson}),
              QStringLiteral("undefined at x = 0|undefined at x = 0|undefined at x = 0|undefined at x = 0"));
    EXPECT_TRUE(script.errors.empty());
    const Convergence::Table t = Convergence::sums(-1, 1, 8);
    EXPECT_FALSE(t.exact);
    EXPECT_NE(t.exactSource.find("(for example at x = 0): the integral does not exist"), std::string::npos)
        << t.exactSource;
    EXPECT_EQ(t.values[3][0].note, "undefined at x = 0");  // n = 8, left
}

TEST_F(TypedSums, ARefusedTextChangesNothingAndAFamilyComesBack)
{
    // The reader's messages are checked with the reader; the screen says one and keeps its function.
    const QString before = screen->lblFunc->text();
    EXPECT_EQ(screen->setTypedFunction(QStringLiteral("2x + 1")), QStringLiteral("missing '*': write 2*x for a product at 2"));
    EXPECT_EQ(screen->lblFunc->text(), before);
    EXPECT_EQ(FuncGlobals::TypedExplicit, nullptr);
    ASSERT_EQ(screen->setTypedFunction(QStringLiteral("x")), QString());
    type({screen->txtLBound, screen->txtRBound, screen->txtParts}, "0|2|4");
    screen->chkLeft->setChecked(true);
    screen->cmdParts->click();
    EXPECT_EQ(screen->lblLeftE->text(), QStringLiteral("=  1.5"));  // 0.5 * (0 + 0.5 + 1 + 1.5)
    screen->mnuFunc_Click(2);  // back to the families, the typed function's results cleared
    EXPECT_EQ(FuncGlobals::TypedExplicit, nullptr);
    EXPECT_EQ(texts({screen->lblFunc, screen->lblLeftE}), QStringLiteral("y = Ax^2 + Bx + C|Area="));
}

TEST_F(TypedGrapher, LogarithmLeavesTheLeftHalfPlaneEmpty)
{
    ASSERT_EQ(screen->setTypedFunction(QStringLiteral("ln(x)")), QString());
    screen->cmdPlotto->click();
    long left = 0, right = 0;
    for (const DrawOp& op : ops())
        if (op.kind == DrawOp::PSet)
            (op.x1 <= 5600 ? left : right)++;
    EXPECT_EQ(left, 0);  // x <= 0: ln is undefined, nothing drawn (a family would draw y = 0 there)
    EXPECT_GT(right, 3000);
    // A typed function whose values overflow the window's mapping is cut there, not ended.
    ASSERT_EQ(screen->setTypedFunction(QStringLiteral("exp(x^3)")), QString());
    screen->cmdPlotto->click();
    EXPECT_TRUE(script.errors.empty());
}

TEST_F(TypedField, RatesOfXMinusYSquaredAndACurveThatMeetsAnUndefinedRate)
{
    ASSERT_EQ(screen->setTypedRates(QStringLiteral("x - y^2"), QString()), QString());
    EXPECT_EQ(texts({screen->lbldy, screen->lbldx}), QStringLiteral("dy = x - y^2|dx = 1"));
    screen->cmdShowFlow_Click();
    screen->cmdPlotto_Click();
    EXPECT_GT(count(DrawOp::Line), 1000);
    EXPECT_TRUE(Convergence::steps(0, 0, 1, 0.1, 6, {}).exact) << "a reference for the typed rates";
    ASSERT_EQ(screen->setTypedRates(QStringLiteral("1/x"), QStringLiteral("1")), QString());
    screen->optApprox->setChecked(true);
    screen->Form_MouseDown(1, 0, 2400 + 3200 - 320, 3300);  // from x = -1, towards the pole at 0
    EXPECT_EQ(screen->lblEndpt->text(), QStringLiteral("EndPt: the curve stops where dy/dx is undefined"));
    // A refused rate names which one, and the field keeps the typed rates it had.
    EXPECT_EQ(screen->setTypedRates(QStringLiteral("x"), QStringLiteral("y +")),
              QStringLiteral("dx: missing a term after '+' at 4"));
    EXPECT_EQ(screen->lbldx->text(), QStringLiteral("dx = 1"));
    screen->mnuDy_Click(1);
    EXPECT_EQ(FuncGlobals::TypedRate, nullptr);
    EXPECT_TRUE(script.errors.empty());
}

TEST_F(TypedCurve, TheCycloid)
{
    ASSERT_EQ(screen->setTypedCurve(QStringLiteral("t - sin(t)"), QStringLiteral("1 - cos(t)")), QString());
    EXPECT_EQ(texts({screen->lblXPar, screen->lblYPar}), QStringLiteral("x = t - sin(t)|y = 1 - cos(t)"));
    screen->optCont->setChecked(true);
    screen->cmdPlotto_Click();
    EXPECT_GT(count(DrawOp::Line), 10);
    // The arch's top at t = pi: (pi, 2).
    screen->txtT->setText(QStringLiteral("3.1415927"));
    EXPECT_EQ(screen->lblXY->text(), QStringLiteral("( 3.1415, 2)"));
    ASSERT_EQ(screen->setTypedCurve(QStringLiteral("ln(t)"), QStringLiteral("t")), QString());
    screen->txtT->setText(QStringLiteral("-1"));
    EXPECT_EQ(screen->lblXY->text(), QStringLiteral("(undefined at t = -1)"));
    EXPECT_TRUE(script.errors.empty());
    screen.reset();
    EXPECT_EQ(FuncGlobals::TypedParametric, nullptr) << "a closed screen leaves no curve of its own in use";
}

TEST_F(TypedMVT, ParabolaOnZeroToTwoHasCAtOne)
{
    ASSERT_EQ(screen->setTypedFunction(QStringLiteral("x^2")), QString());
    type({screen->txtX1, screen->txtX2}, "0|2");
    screen->cmdApplyMVT_Click();
    EXPECT_EQ(screen->lblSlope1->text(), QStringLiteral("slope = 2"));
    screen->cmdAnimateIt_Click();
    EXPECT_EQ(screen->gridC->item(1, 0)->text(), QStringLiteral("1"));
    ASSERT_EQ(screen->setTypedFunction(QStringLiteral("sqrt(x - 1)")), QString());
    screen->cmdApplyMVT_Click();
    EXPECT_EQ(screen->lblSlope1->text(), QStringLiteral("undefined: no f(x) at x = 0"));
    EXPECT_TRUE(script.errors.empty());
}

TEST_F(TypedTangent, SecantsAndTheExactTangent)
{
    ASSERT_EQ(screen->setTypedFunction(QStringLiteral("x^2")), QString());
    type({screen->txtX, screen->txtDeltaX}, "1|1");
    screen->cmdApply_Click();
    EXPECT_EQ(screen->lblTLine->text(), QStringLiteral("y = 3x + -2"));  // through (1, 1) and (2, 4)
    expectDescribed("The exact tangent at x = 1: y = 2x + -1.");
    ASSERT_EQ(screen->setTypedFunction(QStringLiteral("1/(x - 2)")), QString());
    screen->cmdApply_Click();
    EXPECT_EQ(screen->lblTLine->text(), QStringLiteral("undefined: no f(x) at x = 2"));
    setQuietly(screen->txtX, QStringLiteral("1e400"));  // a box that holds no number is said in words
    EXPECT_TRUE(screen->describe().contains(QStringLiteral("No exact tangent: x = 1e400 is not a number.")))
        << screen->describe().toStdString();
    EXPECT_TRUE(script.errors.empty());
}
