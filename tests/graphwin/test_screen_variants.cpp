// SPDX-License-Identifier: GPL-3.0-or-later
// The shared screen machinery in the variant the sums screen uses: square at 1800, limit boxes that
// refuse a compromised window, guarded narrowing arrows, zoom towards the origin, six coefficients.
#include <gtest/gtest.h>

#include "funclib/FuncGlobals.h"
#include "graphwin/Dialogs.h"
#include "graphwin/GraphScreen.h"

namespace {

class GuardedScreen : public GraphScreen {
public:
    GuardedScreen() : GraphScreen(config()) { Form_Load(); }
    void mnuAbout_Click() override { }
    int plots = 0;
    void cmdPlotto_Click() override
    {
        ++plots;
        plotFunction();
    }

private:
    static Config config()
    {
        Config c;
        c.caption = QStringLiteral("variant");
        c.squareLeft = 1800;
        c.zoom = Zoom::TowardsOrigin;
        c.validatingLimits = true;
        c.coefficientCount = 6;
        c.coefficientDefaults = {"2", "0", "0", "0", "0", "7"};
        return c;
    }
};

struct ScreenVariant : ::testing::Test {
    DialogScript script;
    GuardedScreen screen;
    void SetUp() override
    {
        setDialogScript(&script);
        screen.surface->setRecording(true);
        screen.Form_Activate();
    }
    void TearDown() override { setDialogScript(nullptr); }
};

const QString kCompromised = QStringLiteral("You graphing window is compromised.  It will be reset to the defaults.");

}  // namespace

TEST_F(ScreenVariant, SquareAtItsOwnLeftEdgeAndSixCoefficients)
{
    EXPECT_EQ(screen.graph.XOrigin, 5000);
    const auto& ops = screen.surface->ops();
    EXPECT_TRUE(std::any_of(ops.begin(), ops.end(), [](const DrawOp& op) {
        return op.kind == DrawOp::Line && op.x1 == 1801 && op.x2 == 8200 && op.y1 == 3300;
    }));
    screen.cmdPlotto_Click();
    EXPECT_EQ(ops.back().x1, 8199);  // the last column of the square
    ASSERT_NE(screen.txtF, nullptr);
    EXPECT_EQ(FuncGlobals::Coefficients.F, 7);
    screen.lblF_MouseDown(1, 0, 0, 0);
    EXPECT_EQ(screen.txtF->text(), QStringLiteral("8"));
    EXPECT_EQ(FuncGlobals::Coefficients.F, 8);
}

TEST_F(ScreenVariant, ACompromisedWindowIsRefusedAndReset)
{
    screen.txtXmin->setText(QStringLiteral("10"));
    ASSERT_EQ(script.shown.size(), 1u);
    EXPECT_EQ(script.shown[0], std::make_pair(QStringLiteral("Error"), kCompromised));
    EXPECT_EQ(screen.txtXmin->text(), QStringLiteral("-10"));
    EXPECT_EQ(screen.plots, 1);  // the reset re-plots
    screen.txtYmax->setText(QStringLiteral("-10"));
    EXPECT_EQ(script.shown.size(), 2u);
    EXPECT_EQ(screen.txtYmax->text(), QStringLiteral("10"));
    EXPECT_TRUE(script.errors.empty());  // equal limits never reach a division here
}

TEST_F(ScreenVariant, NarrowingArrowsAreGuardedWideningOnesAreNot)
{
    screen.txtXmin->setText(QStringLiteral("-10"));
    screen.txtXmax->setText(QStringLiteral("-9"));
    screen.lblXmaxL_Click();
    screen.lblXminR_Click();
    EXPECT_EQ(screen.txtXmax->text(), QStringLiteral("-9"));
    EXPECT_EQ(screen.txtXmin->text(), QStringLiteral("-10"));
    screen.txtXmax->setText(QStringLiteral("-7.5"));
    screen.lblXmaxL_Click();  // -10 + 1 < -7.5
    EXPECT_EQ(screen.txtXmax->text(), QStringLiteral("-8.5"));
    screen.lblXmaxL_DblClick();  // -10 + 4 < -8.5 fails
    EXPECT_EQ(screen.txtXmax->text(), QStringLiteral("-8.5"));
    screen.lblXminL_DblClick();
    screen.lblXmaxR_DblClick();
    EXPECT_EQ(screen.txtXmin->text(), QStringLiteral("-14"));
    EXPECT_EQ(screen.txtXmax->text(), QStringLiteral("-4.5"));
    screen.lblYminR_DblClick();  // -10 + 4 < 10
    screen.lblYmaxL_DblClick();
    EXPECT_EQ(screen.txtYmin->text(), QStringLiteral("-6"));
    EXPECT_EQ(screen.txtYmax->text(), QStringLiteral("6"));
    EXPECT_TRUE(script.shown.empty());
}

TEST_F(ScreenVariant, ZoomHalvesEachLimitTowardsTheOrigin)
{
    screen.txtXmin->setText(QStringLiteral("-4"));
    screen.txtXmax->setText(QStringLiteral("12"));
    screen.cmdZoomIn_Click();
    EXPECT_EQ(screen.txtXmin->text(), QStringLiteral("-2"));
    EXPECT_EQ(screen.txtXmax->text(), QStringLiteral("6"));
    EXPECT_EQ(screen.txtYmin->text(), QStringLiteral("-5"));
    EXPECT_EQ(screen.plots, 1);
    screen.txtXmin->setText(QStringLiteral("3"));
    screen.txtXmax->setText(QStringLiteral("5"));
    screen.txtXmin->setText(QStringLiteral("-3"));
    screen.txtXmax->setText(QStringLiteral("-2"));  // a window left of the origin
    screen.cmdZoomIn_Click();  // the new Xmin -1.5 passes Xmax -2: refused and reset, then halving goes on
    EXPECT_EQ(script.shown.size(), 1u);
    EXPECT_EQ(screen.txtXmin->text(), QStringLiteral("-10"));
    EXPECT_EQ(screen.txtXmax->text(), QStringLiteral("5"));
}
