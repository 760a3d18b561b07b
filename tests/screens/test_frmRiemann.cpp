// SPDX-License-Identifier: GPL-3.0-or-later
// The sums screen through its widgets: areas against hand-worked values in single-precision text,
// the random sums, the boundary boxes, and what is drawn at the bounds of the graph box.

#include "ScreenFixture.h"
#include "runtime/Random.h"

namespace {

struct Sums : ScreenFixture<frmRiemann> {
    // y = A x^2 + B x + C on [L, R] with n partitions, every method ticked: "A|B|C|L|R|n".
    void sum(const char* abcLRn, bool all = true)
    {
        screen->mnuFunc_Click(2);
        type({screen->txtA, screen->txtB, screen->txtC, screen->txtLBound, screen->txtRBound, screen->txtParts},
             abcLRn);
        for (CheckBox* c : {screen->chkLeft, screen->chkRight, screen->chkMid, screen->chkTrap, screen->chkRandom,
                            screen->chkSimpson, screen->chkRiemann})
            c->setChecked(all);
        screen->cmdParts->click();
    }
    QString areas() const  // left, right, midpoint, trapezoid, Simpson's
    {
        return texts({screen->lblLeftE, screen->lblRightE, screen->lblMid, screen->lblTrap, screen->lblSimpson});
    }
};

}  // namespace

TEST_F(Sums, AreasAgainstHandWorkedValues)
{
    for (const auto& [abcLRn, shown] : {
             std::pair("1|0|0|-2|2|1", "=  16|=  16|=  0|=  16|Parts not even #"),  // x^2 on [-2, 2]
             {"1|0|0|-2|2|2", "=  8|=  8|=  4|=  8|=  5.333333"},
             {"0|1|0|0|1|3", "=  .3333333|=  .6666667|=  .5|=  .5|Parts not even #"},  // singles written with Str
             {"0|-1|0|0|1|3", "= -.3333333|= -.6666667|= -.5|= -.5|Parts not even #"},
             {"0|1|0|0|0|4", "=  0|=  0|=  0|=  0|=  0"},  // L = R
             {"1|0|0|0|3|6", "=  6.875|=  11.375|=  8.9375|=  9.125|=  9"},
             // y = 12345678 x: the error value at x = 1 marks only the methods that test it (Simpson's never tests y1).
             {"0|12345678|0|0|2|2", "= error!|= error!|=  2.469136E+07|= error!|=  2.469136E+07"},
             {"0|-12345678|0|0|2|2", "= error!|= error!|= -2.469136E+07|= error!|= -2.469136E+07"},
         }) {
        sum(abcLRn);
        EXPECT_EQ(areas(), QString::fromLatin1(shown)) << abcLRn;
    }
    EXPECT_EQ(screen->lblAreas->text(), QStringLiteral("Area"));
    expectDescribed("Simpson's (ticked): = -2.469136E+07", {screen->lblLeftE, screen->lblSimpson, screen->lblMid});
    sum("1|0|0|-2|2|2");
    screen->mnuFunc_Click(2);  // the same family: nothing is reset
    EXPECT_EQ(screen->lblLeftE->text(), QStringLiteral("=  8"));
    screen->mnuFunc[3]->trigger();  // another family resets six results, not Simpson's
    EXPECT_EQ(areas(), QStringLiteral("Area=|Area=|Area=|Area=|=  5.333333"));
    EXPECT_EQ(texts({screen->lblRnd, screen->lblRiemann}), QStringLiteral("Area=|Area="));
}

TEST_F(Sums, RandomSumsFollowTheFixedSequence)
{
    rt::resetRnd();
    sum("0|1|0|0|1|1", false);  // y = x on [0, 1]: the area is the random point itself
    screen->chkRandom->setChecked(true);
    screen->cmdParts_Click();
    EXPECT_EQ(screen->lblRnd->text(), QStringLiteral("=  .7055475"));
    screen->cmdParts_Click();
    EXPECT_EQ(screen->lblRnd->text(), QStringLiteral("=  .533424"));
    screen->chkRandom->setChecked(false);
    // Random widths, n = 2: one division point (0.5795186), then one random point per sub-interval.
    screen->chkRiemann->setChecked(true);
    screen->txtParts->setText(QStringLiteral("2"));
    screen->cmdParts_Click();
    const double p = 0.5795186, u1 = 0.2895625, u2 = 0.301948;
    const float expected = static_cast<float>(static_cast<float>(p * (u1 * p)) + (1 - p) * (p + u2 * (1 - p)));
    EXPECT_EQ(screen->lblRiemann->text(), QStringLiteral("= ") + QString::fromStdString(rt::Str(expected)));
    EXPECT_DOUBLE_EQ(screen->RandomPoints[1], static_cast<double>(0.5795186f));
    screen->cmdErase_Click();  // 5000 partitions: at most 2000 random points, three lines each
    sum("1|0|0|-2|2|5000", false);
    screen->chkRiemann->setChecked(true);
    screen->cmdParts_Click();
    EXPECT_EQ(linesIn(colour(7)), 3 * 2000);
    rt::resetRnd();
}

TEST_F(Sums, BoundariesArePulledBackIntoTheWindowAndIntoOrder)
{
    // clang-format off
    const struct { TextBox* box; const char* typed; const char* kept; } cases[] = {{screen->txtLBound, "-20", "-10"},
        {screen->txtLBound, "5", "2"}, {screen->txtRBound, "15", "10"}, {screen->txtRBound, "1", "2"}};
    // clang-format on
    for (const auto& [box, typed, kept] : cases) {  // into the window, and not past the other boundary 2
        box->setText(QString::fromLatin1(typed));
        EXPECT_EQ(box->text(), QString::fromLatin1(kept)) << typed;
    }
    screen->txtLBound->setText(QStringLiteral("0"));
    press(screen->lblLBound, Qt::LeftButton);
    press(screen->lblRBound, Qt::RightButton);
    press(screen->lblRBound, Qt::RightButton);  // " 0" is below 1: pulled back to " 1"
    EXPECT_EQ(texts({screen->txtLBound, screen->txtRBound}), QStringLiteral(" 1| 1"));
    EXPECT_TRUE(script.shown.empty());
}

TEST_F(Sums, BarsAreDrawnOnlyStrictlyInsideTheGraphBox)
{
    const struct {
        const char* abcLRn;
        int method;
        long lines;
        QLineF drawn;  // one line that must be among them, when not null
    } cases[] = {
        {"0|0|10|-2|2|4", 2, 0, {}},  // left sums of y = 10: the tops lie on row 100
        {"0|0|9.99|-2|2|4", 2, 12, {4360, 3300, 4360, 3300 - 9.99 * 320}},  // the first bar's left side, from the axis
        {"0|0|9.99|-10|2|4", 2, 9, {}},  // the first bar starts on the edge at 1800
        {"0|10|0|0|2|2", 5, 3, {}},  // trapezoids test only their left height: [1, 2] starts at 10
        {"0|9|0|0|2|2", 5, 6, {}},  // heights 0, 9, 18: the second is drawn although 18 is outside
        // Simpson's stepped outline: seven segments per pair, one a third of dx in at mid height
        {"1|0|0|0|3|6", 3, 3 * 7, {5000 + 320.0 / 6, 3300, 5000 + 320.0 / 6, 3300 - 0.25 * 320}},
        {"1|0|0|0|3|3", 3, 0, {}},  // an odd count: refused, nothing drawn
    };
    for (const auto& [abcLRn, method, lines, drawn] : cases) {
        screen->cmdErase_Click();
        sum(abcLRn, false);
        (method == 2 ? screen->chkLeft : method == 5 ? screen->chkTrap : screen->chkSimpson)->setChecked(true);
        screen->cmdParts_Click();
        EXPECT_EQ(linesIn(colour(method)), lines) << abcLRn;
        EXPECT_TRUE(drawn.isNull() || hasLine(drawn.x1(), drawn.y1(), drawn.x2(), drawn.y2())) << abcLRn;
    }
}

// This screen's window: the square at 1800, limit boxes that refuse a compromised window and reset it,
// narrowing arrows that are guarded (widening ones are not), zoom towards the origin.
TEST_F(Sums, TheGuardedWindowOfThisScreen)
{
    EXPECT_TRUE(hasLine(1801, 3300, 8200, 3300));
    const std::pair<QString, QString> compromised{
        QStringLiteral("Error"),
        QStringLiteral("You graphing window is compromised.  It will be reset to the defaults.")};
    screen->cmdErase_Click();
    type({screen->txtXmin, screen->txtYmax}, "10|-10");
    EXPECT_EQ(script.shown, Shown(2, compromised));
    EXPECT_EQ(texts({screen->txtXmin, screen->txtYmax}), QStringLiteral("-10|10"));
    EXPECT_GT(count(DrawOp::PSet), 0);  // each reset re-plots
    const struct {
        void (frmRiemann::*arrow)();
        const char* limits;  // Xmin|Xmax|Ymin|Ymax after the arrow
    } arrows[] = {{&frmRiemann::lblXmaxL_Click, "-10|-9|-10|10"},    {&frmRiemann::lblXminR_Click, "-10|-9|-10|10"},
                  {&frmRiemann::lblXmaxR_DblClick, "-10|-5|-10|10"}, {&frmRiemann::lblXmaxL_Click, "-10|-6|-10|10"},
                  {&frmRiemann::lblXmaxL_DblClick, "-10|-6|-10|10"},  // -10 + 4 < -6 fails: not narrowed
                  {&frmRiemann::lblXminL_DblClick, "-14|-6|-10|10"}, {&frmRiemann::lblYminR_DblClick, "-14|-6|-6|10"},
                  {&frmRiemann::lblYmaxL_DblClick, "-14|-6|-6|6"},   {&frmRiemann::lblYminR_Click, "-14|-6|-5|6"},
                  {&frmRiemann::lblYminL_Click, "-14|-6|-6|6"}};
    screen->txtXmax->setText(QStringLiteral("-9"));
    for (const auto& a : arrows) {
        (screen.get()->*a.arrow)();
        EXPECT_EQ(windowLimits(*screen), a.limits);
    }
    EXPECT_EQ(script.shown.size(), 2u);
    type({screen->txtXmax, screen->txtXmin, screen->txtYmin, screen->txtYmax}, "12|-4|-10|10");
    screen->cmdZoomIn_Click();  // each limit halved towards the origin
    EXPECT_EQ(texts({screen->txtXmin, screen->txtXmax, screen->txtYmin}), QStringLiteral("-2|6|-5"));
    type({screen->txtXmax, screen->txtXmin, screen->txtXmax}, "5|-3|-2");  // a window left of the origin
    screen->cmdZoomIn_Click();  // the new Xmin -1.5 passes Xmax -2: refused and reset, then halving goes on
    EXPECT_EQ(script.shown.size(), 3u);
    EXPECT_EQ(texts({screen->txtXmin, screen->txtXmax}), QStringLiteral("-10|5"));
}
