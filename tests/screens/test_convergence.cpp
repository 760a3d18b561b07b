// SPDX-License-Identifier: GPL-3.0-or-later
// The convergence tables against values worked out by hand: the exact integral, the orders of the
// sums and of the step methods, the words where no value exists, and the sums screen's own digits.
#include <cmath>

#include "screens/Convergence.h"
#include "screens/ConvergenceWindow.h"
#include "screens/frmRiemann.h"

#include "ScreenFixture.h"

namespace {

using Convergence::Table;

// The error of method m in row r, and the ratio of row r-1's error to row r's.
double error(const Table& t, std::size_t r, std::size_t m) { return std::fabs(*t.values[r][m].value - *t.exact); }
double ratio(const Table& t, std::size_t r, std::size_t m) { return error(t, r - 1, m) / error(t, r, m); }

void selectFamily(int id, FuncGlobals::CoefficientSet k)
{
    FuncGlobals::FunctionId = static_cast<std::int16_t>(id);
    FuncGlobals::Coefficients = k;
}

}  // namespace

TEST(ConvergenceOfSums, XSquaredOnZeroToTwo)
{
    selectFamily(2, {1, 0, 0, 0, 0, 0});  // y = x^2
    const Table t = Convergence::sums(0, 2, 1);
    ASSERT_TRUE(t.exact);
    EXPECT_NEAR(*t.exact, 8.0 / 3.0, 1e-13);
    ASSERT_EQ(t.values.size(), 11u);  // n = 1 .. 1024
    EXPECT_EQ(t.rowHeadings[1], "1");
    EXPECT_EQ(t.rowHeadings[11], "1024");
    EXPECT_EQ(t.values[0][4].note, "n odd");
    enum { Left, Right, Mid, Trap, Simpson };
    // By hand for n = 2: left 0 + 1 = 1, right 1 + 4 = 5, midpoint (1/4 + 9/4) = 2.5, trapezoid 3.
    const double byHand[] = {1, 5, 2.5, 3, 8.0 / 3.0};
    for (int m = Left; m <= Simpson; ++m)
        EXPECT_NEAR(*t.values[1][m].value, byHand[m], 1e-6) << m;
    for (std::size_t r = 1; r < t.values.size(); ++r)  // Simpson is exact for a parabola
        EXPECT_LE(error(t, r, Simpson), 8.0 / 3.0 * 1e-6) << r;
    for (std::size_t r = 3; r <= 6; ++r) {  // before single precision's floor
        EXPECT_NEAR(ratio(t, r, Left), 2, 0.1) << r;
        EXPECT_NEAR(ratio(t, r, Right), 2, 0.1) << r;
        EXPECT_NEAR(ratio(t, r, Mid), 4, 0.1) << r;
        EXPECT_NEAR(ratio(t, r, Trap), 4, 0.1) << r;
    }
    const auto cells = t.cells();
    EXPECT_EQ(cells[0][1], "Left");
    EXPECT_EQ(cells[0][3], "Left ratio");
    EXPECT_EQ(t.tabSeparated().substr(0, 20), "n\tLeft\tLeft error\tLe");
}

TEST(ConvergenceOfSums, WordsWhereTheIntegralDoesNotExist)
{
    const struct {
        int family;
        FuncGlobals::CoefficientSet k;
        double L, R;
        const char* says;
    } cases[] = {
        {10, {1, 1, 0, 0, 0, 0}, -1, 1, "not defined everywhere"},  // 1/x, undefined at 0
        {10, {1, 1, 0.001, 0, 0, 0}, -1, 1, "unbounded"},  // 1/(x + 0.001): a pole, no undefined node
        {8, {1, 1, 0, 0, 0, 0}, -1, 1, "not defined everywhere"},  // ln x
        {7, {1, 1, 0, 0, 0, 0}, 1, 2, "unbounded"},  // tan x across pi/2
    };
    for (const auto& c : cases) {
        selectFamily(c.family, c.k);
        const Table t = Convergence::sums(c.L, c.R, 4);
        EXPECT_FALSE(t.exact) << c.family;
        EXPECT_NE(t.exactSource.find(c.says), std::string::npos) << t.exactSource;
        EXPECT_EQ(t.cells()[1][2], "") << "no error without an exact value";
    }
}

TEST(ConvergenceOfSums, TheRowOfTheScreensNShowsTheLabelsDigits)
{
    DialogScript script;
    setDialogScript(&script);
    FuncGlobals::Coefficients = {};
    frmRiemann screen;
    screen.Form_Activate();
    screen.txtA->setText(QStringLiteral("1.3"));
    screen.txtB->setText(QStringLiteral("-0.7"));
    screen.txtLBound->setText(QStringLiteral("-1.5"));
    screen.txtRBound->setText(QStringLiteral("2.25"));
    screen.txtParts->setText(QStringLiteral("7"));
    for (CheckBox* c : {screen.chkLeft, screen.chkRight, screen.chkMid, screen.chkTrap})
        c->setChecked(true);
    screen.cmdParts_Click();
    const Table t = Convergence::sums(-1.5, 2.25, screen.PartitionCount);
    const auto row = std::find(t.rowHeadings.begin(), t.rowHeadings.end(), "7") - t.rowHeadings.begin() - 1;
    ASSERT_GE(row, 0);
    const ClickLabel* labels[] = {screen.lblLeftE, screen.lblRightE, screen.lblMid, screen.lblTrap};
    for (int m = 0; m < 4; ++m)
        EXPECT_EQ(QStringLiteral("=  ") + QString::fromStdString(t.values[static_cast<std::size_t>(row)][m].note),
                  labels[m]->text());
    setDialogScript(nullptr);
}

TEST(ConvergenceOfSteps, TheCircleFromFourThree)
{
    FuncGlobals::DyFuncId = 1;  // dy = Ax + By + C, dx = Dx + Ey + F: dy/dx = -x/y
    FuncGlobals::DxFuncId = 1;
    FuncGlobals::Coefficients = {-1, 0, 0, 0, 1, 0};
    const Table t = Convergence::steps(4, 3, 4.5, 0.1, 6, {});
    ASSERT_TRUE(t.exact);
    EXPECT_NEAR(*t.exact, std::sqrt(25 - 4.5 * 4.5), 1e-9);  // on the circle of radius 5
    ASSERT_EQ(t.values.size(), 7u);
    EXPECT_EQ(t.rowHeadings[1], "0.1 (5 steps)");
    EXPECT_EQ(t.rowHeadings[7], "0.0015625 (320 steps)");
    for (std::size_t r = 2; r <= 4; ++r) {
        EXPECT_NEAR(ratio(t, r, 0), 2, 0.25) << r;
        EXPECT_NEAR(ratio(t, r, 1), 4, 0.6) << r;
        EXPECT_NEAR(ratio(t, r, 2), 16, 2.5) << r;
    }
}

TEST(ConvergenceOfSteps, WordsInsteadOfRunTimeErrors)
{
    FuncGlobals::DyFuncId = 1;
    FuncGlobals::DxFuncId = 1;
    FuncGlobals::Coefficients = {-1, 0, 0, 0, 1, 0};
    // Past the circle's vertical tangent at x = 5: no reference, and every method stops in words.
    const Table past = Convergence::steps(4, 3, 6, 0.1, 2, {});
    EXPECT_FALSE(past.exact);
    // From a point on the x axis the first step meets dx = 0.
    const Table axis = Convergence::steps(4, 0, 4.5, 0.1, 1, {});
    for (const auto& row : axis.values)
        for (const auto& cell : row)
            EXPECT_FALSE(cell.value);
    EXPECT_EQ(axis.values[0][0].note, "meets a vertical slope");
    // A window that the curve leaves.
    const Table small = Convergence::steps(4, 3, 4.5, 0.1, 0, {-10, 10, 2.5, 10});
    EXPECT_EQ(small.values[0][2].note, "leaves the window");
}
