// SPDX-License-Identifier: GPL-3.0-or-later
// Hearing a drawn curve and walking along it from the keyboard: what each step says against the
// curve's values, the curves to choose from, the points each screen hands to the trace, silence in a
// typed function's gap, and what a clear forgets.
#include <cmath>

#include <QRegularExpression>

#include "ScreenFixture.h"

namespace {

template <class Screen>
struct Trace : ScreenFixture<Screen> {
    // Presses `key` in the graph and returns what the walk said.
    QString press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        EXPECT_TRUE(this->screen->exploreKey(key, modifiers)) << key;
        return this->screen->announcement();
    }
};
using TraceGrapher = Trace<frmClasses>;
using TraceSums = Trace<frmRiemann>;
using TraceField = Trace<frmFlowField>;

// The x and y a step says ("x = 1.25, y = 3.56"); NaN for y when it says "undefined".
std::pair<double, double> coordinates(const QString& said)
{
    static const QRegularExpression pattern(QStringLiteral("x = (-?[0-9.e+]+), y = (-?[0-9.e+]+|undefined)"));
    const QRegularExpressionMatch m = pattern.match(said);
    EXPECT_TRUE(m.hasMatch()) << said.toStdString();
    const QString y = m.captured(2);
    return {m.captured(1).toDouble(), y == QLatin1String("undefined") ? std::nan("") : y.toDouble()};
}

double energy(const std::vector<float>& s, std::size_t fromFrame, std::size_t toFrame)
{
    double e = 0;
    for (std::size_t i = 2 * fromFrame; i < 2 * toFrame; ++i)
        e += s[i] * s[i];
    return e;
}

}  // namespace

TEST_F(TraceGrapher, WalkingAlongXSquaredSaysEachStepToThePixel)
{
    screen->cmdPlotto->click();  // y = A(Bx - C)^2 + D with 1, 1, 0, 0: y = x^2
    const std::vector<audio::Point> points = screen->tracePoints();
    ASSERT_GE(points.size(), 400u);  // a point for each pixel column of the square
    const double column = 20.0 / static_cast<double>(points.size() - 1);
    double lastX = coordinates(press(Qt::Key_Left)).first;
    for (int step = 0; step < 8; ++step) {
        const QString said = press(Qt::Key_Right);
        const auto [x, y] = coordinates(said);
        EXPECT_NEAR(x - lastX, column, 0.011) << said.toStdString();  // one column, said to 2 decimals
        EXPECT_NEAR(y, x * x, 0.01 + 0.02 * std::fabs(x)) << said.toStdString();
        lastX = x;
        // The screen reader hears it first, and the class sees the marker where the point is.
        screen->refreshDescription();
        EXPECT_EQ(screen->surface->accessibleDescription().section(QLatin1Char('\n'), 1, 1), said);
        ASSERT_TRUE(screen->surface->marker());
        EXPECT_NEAR(screen->surface->marker()->x(), 2400 + (x + 10) / 20 * 6400, 6400 * 0.006 / 20 + 1e-9);
    }
    // Ctrl moves a tenth of the window; Home and End go to the edges.
    const double before = coordinates(screen->announcement()).first;
    EXPECT_NEAR(coordinates(press(Qt::Key_Right, Qt::ControlModifier)).first - before, 2, column);
    EXPECT_EQ(press(Qt::Key_Home), QStringLiteral("x = -10, y = 100, above the window"));
    EXPECT_NEAR(screen->surface->marker()->y(), 100, 1e-9) << "marked at the window's top";
    EXPECT_EQ(press(Qt::Key_End), QStringLiteral("x = 10, y = 100, above the window"));
    EXPECT_EQ(press(Qt::Key_Right), QStringLiteral("x = 10, y = 100, above the window")) << "it stops at the edge";
    // As many decimals as a pixel of the window tells apart.
    const double columns = static_cast<double>(points.size());
    const std::string edge = std::to_string(0.1 * (columns - 1.5));  // a pixel just under 0.1 wide and high
    type({screen->txtD, screen->txtXmin, screen->txtXmax, screen->txtYmin, screen->txtYmax},
         ("0.123|0|" + edge + "|0|" + edge).c_str());
    screen->cmdPlotto->click();  // so two decimals of x and of y
    EXPECT_EQ(press(Qt::Key_Home), QStringLiteral("x = 0, y = 0.12"));
    EXPECT_TRUE(press(Qt::Key_End).contains(QRegularExpression(QStringLiteral("^x = \\d+\\.\\d5, "))))
        << screen->announcement().toStdString();  // the window's right edge, n.n5
    EXPECT_TRUE(script.errors.empty());
}

TEST_F(TraceGrapher, UpAndDownChooseAmongTheCurvesDrawnAndAClearForgetsThem)
{
    screen->cmdPlotto->click();
    screen->txtA->setText(QStringLiteral("2"));
    screen->cmdPlotto->click();
    EXPECT_EQ(press(Qt::Key_Home), QStringLiteral("x = -10, y = 200, above the window")) << "the last drawn";
    const QString first = press(Qt::Key_Up);
    EXPECT_TRUE(first.startsWith(QStringLiteral("Curve 1 of 2: y = A * (Bx - C)^2 + D with A = 1")))
        << first.toStdString();
    EXPECT_TRUE(first.endsWith(QStringLiteral("x = -10, y = 100, above the window"))) << "at the same x";
    EXPECT_TRUE(press(Qt::Key_Down).startsWith(QStringLiteral("Curve 2 of 2: y = A * (Bx - C)^2 + D with A = 2")));
    EXPECT_TRUE(press(Qt::Key_Down).startsWith(QStringLiteral("Curve 1 of 2"))) << "round again";

    screen->cmdClean->click();
    EXPECT_TRUE(screen->announcement().isEmpty() && screen->tracePoints().empty() && screen->traceSamples().empty());
    EXPECT_EQ(press(Qt::Key_Right), QStringLiteral("Nothing is drawn to walk along yet."));
    screen->cmdPlotto->click();  // drawn again after the clear: the walk goes on step by step
    const double x1 = coordinates(press(Qt::Key_Right)).first, x2 = coordinates(press(Qt::Key_Right)).first;
    EXPECT_GT(x2, x1);
    EXPECT_TRUE(press(Qt::Key_Up).startsWith(QStringLiteral("Curve 1 of 1"))) << "the curves before the clear are gone";
    EXPECT_FALSE(screen->exploreKey(Qt::Key_A, Qt::NoModifier)) << "other keys are not the walk's";
}

TEST_F(TraceGrapher, ATypedLogarithmIsSilentWhereItIsUndefined)
{
    ASSERT_EQ(screen->setTypedFunction(QStringLiteral("ln(x)")), QString());
    screen->cmdPlotto->click();
    const std::vector<audio::Point> points = screen->tracePoints();
    for (const audio::Point& p : points)
        EXPECT_EQ(std::isnan(p.y), p.x <= 0) << p.x;
    const std::vector<float> s = screen->traceSamples();
    const std::size_t frames = s.size() / 2;
    EXPECT_TRUE(energy(s, 0, frames / 2 - 200) == 0 && energy(s, frames / 2 + 200, frames) > 0);  // x <= 0 silent
    EXPECT_EQ(press(Qt::Key_Home), QStringLiteral("x = -10, y = undefined"));
    EXPECT_TRUE(screen->surface->marker()) << "a gap is still marked, on the x-axis";
    EXPECT_EQ(press(Qt::Key_N), QStringLiteral("Root at x = 1, y = 0"));
}

TEST_F(TraceSums, TheTraceOfTheSumsIsTheHeightsOfTheLastMethodsBars)
{
    // y = x^2 (A = 1, B and C 0) on [0, 2] with 4 partitions: left endpoints at 0, 0.5, 1, 1.5.
    type({screen->txtLBound, screen->txtRBound, screen->txtParts}, "0|2|4");
    screen->chkLeft->setChecked(true);
    screen->chkMid->setChecked(true);
    screen->cmdParts->click();
    const auto f = [](double x) { return x * x; };
    const std::vector<audio::Point> mid = screen->tracePoints();
    ASSERT_EQ(mid.size(), 4u);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_DOUBLE_EQ(mid[i].x, 0.25 + 0.5 * static_cast<double>(i));
        EXPECT_NEAR(mid[i].y, f(mid[i].x), 1e-6) << "the midpoint's bar";
    }
    const QString left = press(Qt::Key_Up);  // back to the curve before: the left endpoints' bars
    EXPECT_TRUE(left.contains(QStringLiteral("Left Endpoint bars of y = Ax^2 + Bx + C"))) << left.toStdString();
    const std::vector<audio::Point> bars = screen->tracePoints();
    ASSERT_EQ(bars.size(), 4u);
    EXPECT_NEAR(bars[3].y, f(1.5), 1e-6);
    EXPECT_EQ(press(Qt::Key_End), QStringLiteral("x = 1.75, y = 2.25"));
}

TEST_F(TraceField, TheCurveLastStartedAndShiftWithTheArrows)
{
    screen->Form_MouseDown(1, 0, 2400 + 3200 + 640, 3300 - 640);  // from (2, 2)
    const std::vector<audio::Point> points = screen->tracePoints();
    ASSERT_GE(points.size(), 10u);
    EXPECT_LT(std::hypot(points.front().x - 2, points.front().y - 2), 1e-9);
    // The plain arrows stay the cross-hair's; with Shift they walk along the curve.
    EXPECT_FALSE(screen->exploreKey(Qt::Key_Right, Qt::NoModifier));
    EXPECT_EQ(press(Qt::Key_Home), QStringLiteral("x = 2, y = 2"));
    EXPECT_TRUE(press(Qt::Key_Right, Qt::ShiftModifier).startsWith(QStringLiteral("x = "))) << "one step on";
    // A curve followed backwards is walked from its other end, so that it plays as it lies.
    screen->Form_MouseDown(2, 0, 2400 + 3200 + 640, 3300 - 640);  // from (2, 2)
    const std::vector<audio::Point> back = screen->tracePoints();
    ASSERT_GE(back.size(), 2u);
    EXPECT_LT(std::hypot(back.back().x - 2, back.back().y - 2), 1e-9);
    EXPECT_TRUE(back.front().x != 2 || back.front().y != 2);
}
