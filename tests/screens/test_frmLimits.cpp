// SPDX-License-Identifier: GPL-3.0-or-later
// The limits screen through its boxes, buttons and labels: L found or refused in words, the table of
// halvings, no delta where the graph leaves the band next to a, the hole and the dot at a, the bands
// drawn, and nothing raised whatever the boxes hold.
#include "screens/frmLimits.h"

#include <cmath>

#include "ScreenFixture.h"

using Limits = ScreenFixture<frmLimits>;

namespace {
// Sets f (see setFunction), a and L.
frmLimits& setUp(frmLimits& s, const char* f, const char* a, const char* L)
{
    setFunction(s, f);
    type({s.txtPoint, s.txtLimit}, (std::string(a) + '|' + L).c_str());
    return s;
}
// Columns `from` to `to` of table row r, and a whole column.
QString row(frmLimits& s, int r, int from = 0, int to = 2) { return cells(s.grdHalvings, r, r, from, to); }
QString column(frmLimits& s, int c) { return cells(s.grdHalvings, 1, s.rows(), c, c); }
}  // namespace

TEST_F(Limits, LimitsDeltasAndWordsThroughTheControls)
{
    run({
        {"2x + 3 at 1: Find L, then delta for eps = 0.5, then halving: delta/eps stays 1/2",
         [](auto& s) {
             setUp(s, "2*x + 3", "1", "0").cmdFindL->click();
             s.cmdFindDelta->click();
             for (int i = 0; i < 3; ++i)
                 s.cmdHalve->click();
             return s.txtLimit->text() + '|' + column(s, 0) + '/' + column(s, 1) + '/' + column(s, 2);
         },
         "5|0.5|0.25|0.125|0.0625/0.25|0.125|0.0625|0.03125/0.5|0.5|0.5|0.5"},
        // x^2 at 1, L = 1: (1 + t)^2 = 1.5 at t = sqrt(1.5) - 1 = 0.22474487139..., before
        // (1 - t)^2 = 0.5 at 0.29289...
        {"the default family, x^2",
         [](auto& s) {
             setUp(s, "#1", "1", "1").cmdFindDelta->click();
             return row(s, 1, 0, 1) + '|' + s.lblResult->text();
         },
         "0.5|0.2247448714|ε = 0.5   δ = 0.2247448714   leaves at x = 1.224744871"},
        {"a jump: Find L says the sides differ and leaves L; no delta for L = 0",
         [](auto& s) {
             setUp(s, "x/abs(x)", "0", "7").cmdFindL->click();
             const QString found = s.txtLimit->text() + '|' + s.lblStatus->text();
             s.txtLimit->setText(QStringLiteral("0"));
             s.cmdFindDelta->click();
             return found + '/' + row(s, 1, 0, 3) + '|' + s.lblResult->text() + '|' +
                    s.lblStatus->text().section(':', 0, 0);
         },
         "7|The left side tends to -1 and the right side to 1: no limit at a = 0./"
         "0.5|none|--|near a|ε = 0.5   no δ|For ε = 0.5 no δ works"},
        {"the eps label: right doubles, left halves, each a row",
         [](auto& s) {
             press(setUp(s, "2*x + 3", "1", "5").lblEpsilon, Qt::RightButton);
             press(s.lblEpsilon, Qt::LeftButton);
             press(s.lblEpsilon, Qt::LeftButton);
             return column(s, 0) + '/' + column(s, 1);
         },
         "1|0.5|0.25/0.5|0.25|0.125"},
        {"a new a starts a new table, a new function clears it and its result",
         [](auto& s) {
             setUp(s, "2*x + 3", "1", "5").cmdFindDelta->click();
             s.cmdHalve->click();
             press(s.lblPoint, Qt::LeftButton);  // a = 2, L still 5: the graph is at 7
             const QString newA = s.txtPoint->text() + '|' + QString::number(s.rows()) + '|' + row(s, 1, 0, 1);
             setFunction(s, "x^2");
             return newA + '/' + QString::number(s.rows()) + '|' + row(s, 1) + '|' + s.lblResult->text();
         },
         "2|1|0.25|none/0||||"},
        {"a outside the window is said, and no row is added",
         [](auto& s) {
             setUp(s, "2*x + 3", "30", "63").cmdFindDelta->click();
             return QString::number(s.rows()) + '|' + s.lblStatus->text().section(':', 0, 0);
         },
         "0|a = 30 is not inside the window from -10 to 10"},
    });
}

TEST_F(Limits, TheHoleTheDotAndTheBandsAreDrawn)
{
    const auto circles = [this](double x, double y, QRgb colour) {
        const double column = screen->graph.plainColumn(x), row = screen->graph.plainRow(y);
        std::vector<double> radii;
        for (const DrawOp& op : ops())
            if (op.kind == DrawOp::Circle && op.color == colour && std::fabs(op.x1 - column) < 1e-6 &&
                std::fabs(op.y1 - row) < 1e-6)
                radii.push_back(op.x2);
        return radii;
    };
    const QRgb blue = colour(1);
    // sin(x)/x is undefined at 0: an open circle at (0, 1), no dot.
    setUp(*screen, "sin(x)/x", "0", "0").cmdFindL->click();
    EXPECT_EQ(screen->txtLimit->text(), QStringLiteral("1"));
    screen->cmdFindDelta->click();
    EXPECT_EQ(circles(0, 1, blue), std::vector<double>{60});
    const auto leave = std::count_if(ops().begin(), ops().end(), [this](const DrawOp& op) {
        return op.kind == DrawOp::Circle && op.color == colour(4);
    });
    EXPECT_EQ(leave, 4) << "where f leaves the band: a dot, filled";
    // The bands' shading, a line every 45 twips across 2 eps and 2 delta at 320 twips a unit; delta
    // is where sin t / t = 1/2, t = 1.8955.
    EXPECT_NEAR(linesIn(colour(10)), 1 + 2 * 0.5 * 320 / 45, 1);
    EXPECT_NEAR(linesIn(colour(11)), 1 + 2 * 1.8955 * 320 / 45, 1);
    EXPECT_TRUE(screen->everyDrawingKept());
    long dots = 0, off = 0;  // f itself, dotted on its values at every column but x = 0, where it is undefined
    for (const DrawOp& op : ops())
        if (op.kind == DrawOp::PSet && op.color == blue) {
            const double x = screen->graph.plainWorldX(op.x1);
            ++dots;
            off += std::fabs(op.y1 - screen->graph.plainRow(std::sin(x) / x)) > 1e-6;
        }
    EXPECT_EQ(std::pair(dots, off), std::pair(6398L, 0L));
    // f is the curve the readout names: at x = 2 it gives sin 2 / 2 = 0.4546.
    const QString readout = screen->readoutAt(screen->graph.plainColumn(2), screen->graph.plainRow(0.4546));
    EXPECT_TRUE(readout.contains(QStringLiteral("sin(x)/x")) && readout.contains(QStringLiteral("0.45")))
        << readout.toStdString();
    // x^2 at 1 with L = 2: the dot at (1, 1), filled, and the circle at (1, 2).
    screen->CleanGraph();
    setUp(*screen, "#1", "1", "2").cmdPlotto->click();
    EXPECT_EQ(std::pair(circles(1, 1, blue), circles(1, 2, blue)),
              std::pair(std::vector<double>{15, 30, 45, 60}, std::vector<double>{60}));
    expectDescribed("Limits by ε and δ of y = A * (Bx - C)^2 + D", {screen->lblStatus});
}

TEST_F(Limits, NothingRaisesWhateverTheBoxesHoldOrTheDragDoes)
{
    setUp(*screen, "1/x", "0", "0");
    for (const char* text : {"1e400", "abc", "", "-1e308", "0", "1e-300", "nan"}) {
        for (QLineEdit* box : {screen->txtPoint, screen->txtLimit, screen->txtEpsilon})
            box->setText(QString::fromLatin1(text));
        screen->cmdFindL->click();
        screen->cmdFindDelta->click();
        screen->cmdHalve->click();
        press(screen->lblEpsilon, Qt::RightButton);
        press(screen->lblPoint, Qt::LeftButton);
    }
    setUp(*screen, "2*x + 3", "1", "5");
    screen->txtEpsilon->setText(QStringLiteral("0.5"));
    screen->cmdFindDelta->click();
    const auto handles = screen->dragHandles();
    ASSERT_EQ(handles.size(), 1u);
    handles.front().moveTo(3, 0);
    EXPECT_EQ(screen->txtPoint->text(), QStringLiteral("3"));
    EXPECT_EQ(row(*screen, 1, 0, 1), QStringLiteral("0.5|none"));  // 2*3 + 3 = 9, not L = 5
    EXPECT_TRUE(script.errors.empty());
}
