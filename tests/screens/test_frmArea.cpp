// SPDX-License-Identifier: GPL-3.0-or-later
// The area between two curves against closed forms: crossings, signed and unsigned areas, the
// strip rules' orders through the shared table, gaps said in words, and the screen through its
// boxes and buttons (sums worked out by hand, refusals, no classic error whatever is typed).
#include "graphwin/DrawingStyle.h"
#include "screens/AreaBetween.h"
#include "screens/Convergence.h"
#include "screens/ConvergenceWindow.h"
#include "screens/Lesson.h"
#include "screens/frmArea.h"

#include <cmath>
#include <numbers>

#include "ScreenFixture.h"

namespace {

using FuncGlobals::ExplicitSnapshot;

AreaBetween::Values typed(const char* text)
{
    std::string error;
    const ExplicitSnapshot s(ExplicitSnapshot::What::Value, FuncGlobals::TypedFunction::make(text, error));
    EXPECT_EQ(error, "") << text;
    return [s](const std::vector<double>& xs) { return s.at(xs); };
}

constexpr double pi = std::numbers::pi;

}  // namespace

TEST(AreaBetween, CrossingsAndAreasAgainstClosedForms)
{
    using Kind = AreaBetween::Crossing::Kind;
    const struct {
        const char* name;
        const char *f, *g;
        double a, b;
        std::vector<double> crossings;
        Kind kind;  // of every crossing
        double within;  // how near each crossing must be
        double signedArea, unsignedArea;
    } rows[] = {
        // clang-format off
        {"sqrt x above x^2 on [0, 1]", "sqrt(x)", "x^2", 0, 1, {0, 1}, Kind::Sampled, 0, 1.0 / 3, 1.0 / 3},
        {"sin x and cos x on [0, pi]", "sin(x)", "cos(x)", 0, pi, {pi / 4}, Kind::SignChange, 1e-15, 2,
         2 * std::numbers::sqrt2},
        {"x and x^3 on [-1, 1]", "x", "x^3", -1, 1, {-1, 0, 1}, Kind::Sampled, 0, 0, 0.5},
        // 1 and e^(x - 1) cross at 1, between scanned points of [0.3, 2.1] (0.3 + 0.0009 i).
        {"1 and e^(x - 1) on [0.3, 2.1]", "1", "exp(x - 1)", 0.3, 2.1, {1}, Kind::SignChange, 1e-15,
         1.8 - (std::exp(1.1) - std::exp(-0.7)), (0.7 - (1 - std::exp(-0.7))) + (std::exp(1.1) - 1 - 1.1)},
        // (x - 0.3)^2 touches 0 between scanned points; Brent places it to about half the digits.
        {"(x - 0.3)^2 touching 0", "(x - 0.3)^2", "0", -1, 1.1, {0.3}, Kind::Touch, 1e-7, (0.512 + 2.197) / 3,
         (0.512 + 2.197) / 3},
        // The same touching next to a: the least |f - g| at the second scanned point, 0.3003.
        {"(x - 0.3)^2 touching 0 next to a", "(x - 0.3)^2", "0", 0.2993, 2.2993, {0.3}, Kind::Touch, 1e-7,
         (std::pow(1.9993, 3) + std::pow(0.0007, 3)) / 3, (std::pow(1.9993, 3) + std::pow(0.0007, 3)) / 3},
        // clang-format on
    };
    for (const auto& row : rows) {
        const AreaBetween::Result r = AreaBetween::compute(typed(row.f), typed(row.g), row.a, row.b, 16);
        ASSERT_EQ(r.crossings.size(), row.crossings.size()) << row.name;
        for (std::size_t k = 0; k < row.crossings.size(); ++k) {
            EXPECT_NEAR(r.crossings[k].x, row.crossings[k], row.within) << row.name << " crossing " << k;
            EXPECT_EQ(r.crossings[k].kind, row.kind) << row.name << " crossing " << k;
        }
        ASSERT_TRUE(r.signedArea && r.unsignedArea) << row.name << ": " << r.why;
        EXPECT_NEAR(*r.signedArea, row.signedArea, 1e-10) << row.name;
        EXPECT_NEAR(*r.unsignedArea, row.unsignedArea, 1e-10) << row.name;
    }
    // A crossing within a millionth of a millionth of the scale of 0 is written as 0, the edge too.
    EXPECT_EQ(AreaBetween::shownX(1e-12, 1) + ' ' + AreaBetween::shownX(2e-12, 1), "0 2e-12");
}

// Each rule's error falls by 2^order as n doubles, on e^x - sin x over [0, 1], whose integral is
// (e - 1) - (1 - cos 1); Simpson's rule refuses an odd n.
TEST(AreaBetween, TheSharedRulesConvergeAtTheirOrders)
{
    const double exact = (std::numbers::e - 1) - (1 - std::cos(1.0));
    const Convergence::Table t =
        Convergence::strips([](double x) { return std::exp(x) - std::sin(x); }, 0, 1, 3, exact, 0, "closed form");
    const double expected[] = {2, 2, 4, 4, 16};
    ASSERT_EQ(t.rowHeadings[5], "8");  // n = 1, 2, 3, 4, 8, ...
    EXPECT_EQ(t.values[2][4].note, "n odd");
    for (std::size_t m = 0; m < 5; ++m) {
        const double e16 = std::fabs(*t.values[5][m].value - exact), e32 = std::fabs(*t.values[6][m].value - exact);
        EXPECT_NEAR(e16 / e32, expected[m], expected[m] * 0.03) << t.methods[m];
    }
}

TEST(AreaBetween, GapsAreFoundWithTheirEnds)
{
    const struct {
        const char *name, *f, *g;
        double a, b;
        std::vector<AreaBetween::Gap> gaps;
        std::optional<double> jump;
    } rows[] = {
        {"ln on [-2, 3]: from -2 to 0", "x^2", "ln(x)", -2, 3, {{1, -2, 0}}, {}},
        {"0/0 at a only", "x/x", "0", 0, 1, {{0, 0, 0}}, {}},
        {"0/0 at b only, as g", "1", "(x - 1)/(x - 1)", 0, 1, {{1, 1, 1}}, {}},
        {"a pole between scanned points", "1/(x - 0.3001)", "0", -1, 1, {}, 0.3001},
    };
    for (const auto& row : rows) {
        const AreaBetween::Result r = AreaBetween::compute(typed(row.f), typed(row.g), row.a, row.b, 8);
        EXPECT_FALSE(r.signedArea || r.unsignedArea) << row.name;
        ASSERT_EQ(r.gaps.size(), row.gaps.size()) << row.name;
        for (std::size_t k = 0; k < r.gaps.size(); ++k) {
            EXPECT_EQ(r.gaps[k].curve, row.gaps[k].curve) << row.name;
            EXPECT_NEAR(r.gaps[k].from, row.gaps[k].from, 1e-12) << row.name;
            EXPECT_NEAR(r.gaps[k].to, row.gaps[k].to, 1e-12) << row.name;
        }
        EXPECT_NEAR(r.jumpNear.value_or(-9), row.jump.value_or(-9), 1e-3) << row.name;  // -9: none, outside [a, b]
    }
}

using Area = ScreenFixture<frmArea>;

namespace {
QString column(frmArea& s, int c) { return cells(s.grdAreas, 1, 6, c, c); }
// Types f (unless it is empty) and g, a and b ('|'-separated, unless null), and finds the crossings.
frmArea& find(frmArea& s, const char* f, const char* gab)
{
    if (*f)
        setFunction(s, f);
    if (gab)
        type({s.txtG, s.txtLeft, s.txtRight}, gab);
    s.cmdCrossings->click();
    return s;
}
}  // namespace

// The default screen: y = x^2 against g = x + 2 on [-2, 3], whose difference (x - 2)(x + 1) gives
// with n = 2 (nodes -2, 0.5, 3: 4, -2.25, 4; midpoints -0.6875 twice) the sums below, and the areas
// -5/6 and 11/6 + 27/6 + 11/6 = 49/6.
TEST_F(Area, SumsAndAreasThroughTheBoxes)
{
    run({
        {"signed / unsigned, n = 2; n odd: Simpson refuses, a step and a doubling",
         [](auto& s) {
             s.txtStrips->setText(QStringLiteral("2"));
             s.cmdCrossings->click();
             const QString two = cells(s.grdAreas, 0, 0, 1, 2) + '/' + column(s, 1) + '/' + column(s, 2);
             s.txtStrips->setText(QStringLiteral("3"));
             s.cmdCrossings->click();
             const QString odd = s.grdAreas->cell(5, 1);
             press(s.lblStrips, Qt::RightButton);
             s.cmdDouble->click();
             press(s.lblLeft, Qt::LeftButton);
             return two + '/' + odd + '|' + texts({s.txtStrips, s.txtLeft}) + '|' + s.grdAreas->cell(0, 0);
         },
         "Signed: f - g|Unsigned: |f - g|/"
         "4.375|4.375|-3.4375|4.375|-0.8333333333|-0.8333333333/15.625|15.625|3.4375|15.625|14.16666667|8.166666667/"
         "n odd|4|-1|Rule (n = 4)"},
        {"crossings listed", [](auto& s) { return find(s, "", nullptr).lblCrossings->text(); },
         "Crossings in [a, b]:\nx = -1 (f = g at a scanned point)\nx = 2 (f = g at a scanned point)"},
        {"a gap of f",
         [](auto& s) {
             find(s, "1/x", "0|-1|1");
             return s.lblStatus->text() + '|' + s.grdAreas->cell(6, 1);
         },
         "No area: f(x) = 1/x is not defined at x = 0, so the area between the curves does not exist on [a, b].|--"},
        {"a gap of g", [](auto& s) { return find(s, "", "sqrt(x)|-1|1").lblStatus->text(); },
         "No area: g(x) = sqrt(x) is not defined from x = -1 to x = 0, so the area between the curves does not "
         "exist on [a, b]."},
        {"refusals",
         [](auto& s) {
             QStringList said;
             for (const char* boxes : {"x|3|3|8", "x|-1|1|2.5", "x +|-1|1|8", "|-1|1|8", "x|-1e308|1e308|8"}) {
                 type({s.txtG, s.txtLeft, s.txtRight, s.txtStrips}, boxes);
                 s.cmdCrossings->click();
                 said << s.lblStatus->text().section(QLatin1Char(':'), 0, 0);
             }
             return said.join(QLatin1Char('|'));
         },
         "Left a must be less than Right b.|The number of strips n must be a whole number from 1 to 32000.|g(x) = "
         "x + cannot be read|Type g(x) in its box (for example x + 2).|The interval from a to b is too wide for the "
         "computer's numbers."},
    });
}

TEST_F(Area, DrawsBothColoursKeepsThePictureAndNeverRaises)
{
    screen->cmdCrossings->click();
    EXPECT_GT(inColour(DrawingStyle::kAreaFAbove), 100);  // x^2 above x + 2 on [-2, -1] and [2, 3]
    EXPECT_GT(inColour(DrawingStyle::kAreaGAbove), 100);
    EXPECT_TRUE(screen->everyDrawingKept());
    expectDescribed("Crossings: x = -1 (f = g at a scanned point); x = 2", {screen->lblStatus});
    screen->convergence->recompute();
    const Convergence::Table& t = screen->convergence->table();
    ASSERT_TRUE(t.exact);
    EXPECT_NEAR(*t.exact, -5.0 / 6, 1e-12);
    // The trapezoid's error on a quadratic is (h^2 / 12)(d'(b) - d'(a)) exactly: a quarter as n doubles.
    EXPECT_NEAR(std::fabs(*t.values[9][3].value - *t.exact) / std::fabs(*t.values[10][3].value - *t.exact), 4, 1e-6);
    for (const char* text : {"1e400", "abc", "", "-1e308", "99999999999"}) {
        for (QLineEdit* box : {screen->txtG, screen->txtLeft, screen->txtRight, screen->txtStrips})
            box->setText(QString::fromLatin1(text));
        screen->cmdCrossings->click();
        screen->cmdDouble->click();
        press(screen->lblRight, Qt::RightButton);
        screen->convergence->recompute();
    }
    EXPECT_TRUE(script.errors.empty());
}

// A lesson step saved from the screen (f typed, g, a, b and n in their boxes, Find Crossings
// pressed) gives a fresh screen the same crossings and the same grid.
TEST_F(Area, ALessonStepBringsBackTheBoxesAndTheResults)
{
    EXPECT_EQ(screen->setTypedFunction(QStringLiteral("sin(x)")), QString());
    type({screen->txtG, screen->txtLeft, screen->txtRight, screen->txtStrips}, "cos(x)|0|3|6");
    lesson::Lesson saved;
    saved.steps.push_back(lesson::capture(*screen));
    saved.steps.back().actions = {{QStringLiteral("cmdCrossings"), 1, {}}};
    const lesson::Read read = lesson::fromJson(lesson::toJson(saved));  // as a lesson file holds it
    ASSERT_TRUE(read.lesson) << read.error.toStdString();
    frmArea fresh;
    fresh.Form_Activate();
    ASSERT_EQ(lesson::check(read.lesson->steps.front(), fresh), QString());
    EXPECT_EQ(lesson::apply(read.lesson->steps.front(), fresh), 0);
    screen->cmdCrossings->click();
    EXPECT_EQ(texts({fresh.txtG, fresh.txtLeft, fresh.txtRight, fresh.txtStrips, fresh.lblCrossings}),
              "cos(x)|0|3|6|Crossings in [a, b]:\nx = 0.7853981634 (sign change, TOMS 748)");
    EXPECT_EQ(cells(fresh.grdAreas, 1, 6, 1, 2), cells(screen->grdAreas, 1, 6, 1, 2));
    // sin - cos on [0, 3]: [-cos x - sin x] from 0 to 3 = 1 - cos 3 - sin 3, worked out apart from the screen.
    EXPECT_NEAR(fresh.grdAreas->cell(6, 1).toDouble(), 1 - std::cos(3.0) - std::sin(3.0), 1e-9);
}

// Where the adaptive rule cannot settle near a point (sin(1/x) at 0), no area is claimed and the
// words say between which crossings; a smooth fast oscillation still has its area.
TEST(AreaBetween, AnIntegralThatDoesNotSettleIsSaidNotGuessed)
{
    const AreaBetween::Result wild = AreaBetween::compute(typed("sin(1/x)"), typed("0"), -1, 1.3, 8);
    EXPECT_FALSE(wild.signedArea || wild.unsignedArea);
    EXPECT_NE(wild.why.find("does not settle between x = -0.00"), std::string::npos) << wild.why;
    // The integral of sin(50x) over [-1, 1.3] is (cos 50 - cos 65) / 50.
    const AreaBetween::Result fast = AreaBetween::compute(typed("sin(50*x)"), typed("0"), -1, 1.3, 8);
    ASSERT_TRUE(fast.signedArea) << fast.why;
    EXPECT_NEAR(*fast.signedArea, (std::cos(50.0) - std::cos(65.0)) / 50, 1e-12);
}
