// SPDX-License-Identifier: GPL-3.0-or-later
// The mean value theorem screen through its widgets: the secant and its labels, slider tangents and
// their colour and the Find c scan.

#include "ScreenFixture.h"

namespace {
struct MVT : ScreenFixture<frmMVT> {
    void interval(const char* ab) { type({screen->txtX1, screen->txtX2}, ab); }
    QString row(int r) const { return cells(screen->gridC, r, r, 0, 2); }
};
}  // namespace

TEST_F(MVT, SecantOfXSquaredAndTheErrorTextOfEqualEnds)
{
    interval("0|2");
    screen->cmdApplyMVT->click();
    EXPECT_EQ(texts({screen->lblPt1, screen->lblPt2, screen->lblSlope1, screen->lbl1, screen->lbl2}),
              QStringLiteral("( 0, 0)|( 2, 4)|slope = 2|0|2"));
    EXPECT_EQ(std::pair(screen->SecantSlope, count(DrawOp::Circle)), std::pair(2.0, 2L));
    EXPECT_TRUE(hasPoint(5600, 3300, colour(1)) && hasPoint(5920, 3300 - 640, colour(1)));  // y = 2x: (0, 0), (1, 2)
    screen->cmdPlotto->click();  // clears first
    EXPECT_EQ(std::pair(count(DrawOp::Circle), count(DrawOp::PSet) > 0), std::pair(0L, true));
    interval("1|1");
    screen->cmdApplyMVT_Click();
    EXPECT_EQ(screen->lblSlope1->text(), QStringLiteral("ERROR!  0/0"));
    EXPECT_EQ(std::pair(screen->SecantSlope, count(DrawOp::Circle)), std::pair(2.0, 0L));  // slope unchanged
    interval(".5|1.25");  // the points to four decimals, as many as they have
    screen->cmdApplyMVT_Click();
    EXPECT_EQ(texts({screen->lblPt1, screen->lblPt2}), QStringLiteral("( .5, .25)|( 1.25, 1.5625)"));
    screen->mnuFunc_Click(9);  // the secant is dotted in the family's colour, 9 mod 7
    interval("0|2");
    screen->cmdApplyMVT_Click();
    EXPECT_EQ(ops().back().color, colour(2));
}

TEST_F(MVT, FindCListsTheMatchesAndMarksThemThick)
{
    interval("0|2");
    screen->cmdApplyMVT_Click();
    screen->cmdAnimateIt->click();
    EXPECT_EQ(row(0) + '/' + row(1) + '/' + row(2), QStringLiteral("c|f(c)|m/1|1|2/||"));
    const long marks = std::count_if(ops().begin(), ops().end(),
                                     [](const DrawOp& op) { return op.kind == DrawOp::PSet && op.width == 3; });
    EXPECT_GT(marks, 10);  // a short stroke around x = 1
    expectDescribed("Found: c = ", {screen->lblPt1, screen->lblPt2, screen->lblSlope1});
    EXPECT_EQ(screen->surface->drawWidth(), 1);
    for (const char* ab : {"2|2", "3|2"}) {  // nothing happens unless a < b: not even a clear
        interval(ab);
        screen->cmdAnimateIt_Click();
        EXPECT_EQ(row(1), QStringLiteral("1|1|2")) << ab;
    }
}

TEST_F(MVT, FindCBeforeAnySecantLooksForHorizontalTangentsAndStopsAtNineteen)
{
    screen->mnuFunc_Click(5);  // sin x + 0: slope 0 at the odd multiples of pi/2
    type({screen->txtXmin, screen->txtXmax}, "-100|100");
    interval("-100|100");
    screen->cmdAnimateIt_Click();
    EXPECT_TRUE(row(1).startsWith(QStringLiteral("-98.96|")));
    EXPECT_TRUE(!row(19).startsWith(QLatin1Char('|')) && row(19).endsWith(QStringLiteral("|0")));
    type({screen->txtXmin, screen->txtXmax}, "-1e11|1e11");
    interval("1e10|10000000000.0001");
    screen->cmdAnimateIt_Click();  // returns instead of adding a step smaller than the spacing of doubles
}

TEST_F(MVT, SliderTangentLabelsAndColour)
{
    interval("0|2");
    for (const auto& [value, labels] :
         {std::pair(15000, "x =  1.5|Slope = 3"), {0, "x =  0|Slope = 0"}, {20000, "x =  2|Slope = 4"}}) {
        screen->HscMVT->setValue(value);
        EXPECT_EQ(texts({screen->lblFindc, screen->lblSlope2}), QString::fromLatin1(labels)) << value;
    }
    EXPECT_TRUE(hasPoint(5600 + 1.5 * 320, 3300 - 2.25 * 320, colour(2)));  // the tangent touches at c
    for (const char* answer : {"1.5", "3"}) {  // an x to check, asked by its label: outside (0, 2) it is ignored
        script.answers = {QString::fromLatin1(answer)};
        screen->lblFindc_Click();
        EXPECT_EQ(screen->HscMVT->value(), 15000) << answer;
    }
    interval("-2|0");
    screen->HscMVT->setValue(5000);
    EXPECT_EQ(screen->lblSlope2->text(), QStringLiteral("Slope =-3"));
    screen->mnuFunc_Click(15);  // y = 1 * 1^x + 0: family fifteen's tangent colour does not exist
    interval("0|2");
    screen->HscMVT->setValue(10000);
    EXPECT_EQ(std::pair(script.errors, screen->lblFindc->text()),
              std::pair(std::vector<int>{rt::InvalidProcedureCall}, QStringLiteral("x =  1")));
}

// The secant and the slider tangent compute their rows before drawing where the surface batches; one
// by one, each row is checked as it is computed. Both give the same points and the same error at the
// same column, also where a row leaves the numbers (A = 6e302: the tangent's y * 6400 overflows
// towards the right end; A = 1e306: the secant's already does).
TEST_F(MVT, PlainRowsDrawAndRaiseAsTheCheckedLoop)
{
    for (const auto& [a, slider] : {std::pair("1", 7000), {"-3", 20000}, {"6e302", 2500}, {"1e306", 15000}}) {
        std::vector<std::pair<std::vector<int>, std::vector<DrawOp>>> runs;
        for (bool batching : {true, false}) {
            TearDown();
            SetUp();
            screen->surface->setBatching(batching);
            script.errors.clear();
            type({screen->txtA, screen->txtX1, screen->txtX2}, (std::string(a) + "|-3|3").c_str());
            screen->cmdApplyMVT->click();
            screen->HscMVT->setValue(slider);
            runs.emplace_back(script.errors, ops());
        }
        EXPECT_EQ(runs[0].first, runs[1].first) << a << " at " << slider;
        std::string where;  // every point and segment, exactly
        EXPECT_TRUE(sameOps(runs[0].second, runs[1].second, where, 0)) << a << " at " << slider << ": " << where;
        EXPECT_EQ(runs[0].first.empty(), std::string(a).size() == 2 || std::string(a) == "1") << a;
        EXPECT_TRUE(!runs[0].first.empty() || runs[0].second.size() > 100) << a;
    }
}
