// SPDX-License-Identifier: GPL-3.0-or-later
// The convergence tables against values worked out by hand: the exact integral, the orders of the
// sums and of the step methods, and the sums screen's own digits.
#include <cmath>

#include <QApplication>
#include <QChartView>
#include <QClipboard>
#include <QFile>
#include <QLineSeries>
#include <QMenuBar>
#include <QMimeData>
#include <QRegularExpression>
#include <QScatterSeries>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include "funclib/StepMethods.h"
#include "screens/Convergence.h"
#include "screens/ConvergenceWindow.h"

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

// The rates dy = Ax + By + C, dx = Dx + Ey + F with these coefficients; {-1, 0, 0, 0, 1, 0} gives
// the circles dy/dx = -x/y.
void selectRates(FuncGlobals::CoefficientSet k)
{
    FuncGlobals::DyFuncId = FuncGlobals::DxFuncId = 1;
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
    EXPECT_EQ(std::tuple(t.rowHeadings[11], t.values[0][4].note), std::tuple("1024", "n odd"));
    enum { Left, Right, Mid, Trap, Simpson };
    // By hand for n = 2: left 0 + 1 = 1, right 1 + 4 = 5, midpoint (1/4 + 9/4) = 2.5, trapezoid 3.
    const double byHand[] = {1, 5, 2.5, 3, 8.0 / 3.0};
    for (int m = Left; m <= Simpson; ++m)
        EXPECT_NEAR(*t.values[1][m].value, byHand[m], 1e-6) << m;
    for (std::size_t r = 1; r < t.values.size(); ++r)  // Simpson is exact for a parabola
        EXPECT_LE(error(t, r, Simpson), 8.0 / 3.0 * 1e-6) << r;
    const double halvingRatio[] = {2, 2, 4, 4};  // left and right of order 1, midpoint and trapezoid of order 2
    for (std::size_t r = 3; r <= 6; ++r)  // before single precision's floor
        for (int m = Left; m <= Trap; ++m)
            EXPECT_NEAR(ratio(t, r, m), halvingRatio[m], 0.1) << m << " row " << r;
    EXPECT_EQ(t.tabSeparated().substr(0, 20), "n\tLeft\tLeft error\tLe");
}

TEST(ConvergenceOfSteps, TheCircleFromFourThree)
{
    selectRates({-1, 0, 0, 0, 1, 0});  // dy/dx = -x/y
    const Table t = Convergence::steps(4, 3, 4.5, 0.1, 6, {});
    ASSERT_TRUE(t.exact);
    EXPECT_NEAR(*t.exact, std::sqrt(25 - 4.5 * 4.5), 1e-9);  // on the circle of radius 5
    ASSERT_EQ(t.values.size(), 7u);
    EXPECT_EQ(std::tuple(t.rowHeadings[1], t.rowHeadings[7]), std::tuple("0.1 (5 steps)", "0.0015625 (320 steps)"));
    EXPECT_EQ(Convergence::steps(4, 3, 4.5, 0.5, 0, {}).rowHeadings[1], "0.5 (1 steps)");  // one step: the interval
    for (std::size_t r = 2; r <= 4; ++r) {
        EXPECT_NEAR(ratio(t, r, 0), 2, 0.25) << r;
        EXPECT_NEAR(ratio(t, r, 1), 4, 0.6) << r;
        EXPECT_NEAR(ratio(t, r, 2), 16, 2.5) << r;
    }
    // Every method, in its column under its caption, shows its row's order: halving h divides its
    // error by 2^order (within an eighth) on dy/dx = x + y from (0, 1) to x = 1, a field with none of
    // the circle's symmetry (on the circle Heun's rule shows a third order).
    selectRates({1, 1, 0, 0, 0, 1});
    const Table u = Convergence::steps(0, 1, 1, 0.1, 5, {});
    ASSERT_TRUE(u.exact);
    EXPECT_NEAR(*u.exact, 2 * std::exp(1.0) - 2, 1e-12);
    const auto methods = StepMethods::all();
    ASSERT_EQ(u.methods.size(), methods.size());
    for (std::size_t m = 0; m < methods.size(); ++m) {
        EXPECT_EQ(u.methods[m], methods[m].caption);
        const double expected = std::ldexp(1.0, methods[m].order);
        for (std::size_t r = 2; r <= 4; ++r)
            EXPECT_NEAR(ratio(u, r, m), expected, expected / 8) << methods[m].key << " row " << r;
    }
}

TEST(ConvergenceOfSteps, TheReferenceOutlastsTheFourthOrderErrorsToTheLastRow)
{
    selectRates({-1, 0, 0, 0, 1, 0});  // the circle system, dy/dx = -x/y, from (4, 3) to x = 4.8
    const Table t = Convergence::steps(4, 3, 4.8, 0.1, 6, {});
    ASSERT_TRUE(t.exact);
    EXPECT_TRUE(Convergence::steps(4, 3, 4.8, 0.8, 0, {}).values[0][0].value) << "a single step has its value";
    EXPECT_NEAR(*t.exact, 1.4, 1e-15);  // sqrt(25 - 4.8^2), on the circle of radius 5
    EXPECT_LT(t.exactAccuracy, 2e-15);
    const auto cells = t.cells();
    ASSERT_EQ(cells.size(), 8u);
    for (std::size_t r = 4; r < cells.size(); ++r)  // h/8 to h/64: the fourth order's 16
        EXPECT_NEAR(std::stod(cells[r][9]), 16, 1) << cells[r][0];

    // An error within the reference's own accuracy is said as such, with no ratio.
    Table tiny = t;
    tiny.exactAccuracy = 1e-9;
    EXPECT_EQ(tiny.cells()[7][8], "below 1e-09");
    EXPECT_EQ(tiny.cells()[7][9], "(reference)");
    tiny.exactAccuracy = std::fabs(*t.values[6][2].value - *t.exact);  // exactly the last error: within it too
    EXPECT_EQ(tiny.cells()[7][9], "(reference)");
}

namespace {

// A table by hand, against an exact 0 so that each value is its error: a second-order method whose error quarters at
// each halving, and a fourth-order one whose error falls by 16 until round-off takes over (5e-12, then 3e-11).
Table handMade(Table::Kind kind)
{
    Table t;
    t.kind = kind;
    t.exact = 0;
    t.exactAccuracy = 1e-15;
    t.rowHeadings = {"steps", "10", "20", "40", "80", "160"};
    t.methods = {"Second", "Fourth"};
    t.orders = {2, 4};
    t.colours = {0xff0000, 0x0000ff};
    t.rowCounts = {10, 20, 40, 80, 160};
    const double second[] = {1e-2, 2.5e-3, 6.25e-4, 1.5625e-4, 3.90625e-5};
    const double fourth[] = {1e-8, 6.25e-10, 3.90625e-11, 5e-14, 3e-13};
    for (std::size_t r = 0; r < 5; ++r)
        t.values.push_back({{second[r], ""}, {-fourth[r], ""}});
    return t;
}

}  // namespace

TEST(ConvergenceOfSteps, RatiosSpoiledByRoundOffSaySoAndTheReferenceLinesLieApart)
{
    const struct {
        const char* name;
        Table::Kind kind;
        std::vector<std::string> fourthRatios;  // rows 2 to 5
        bool roundOff;
    } cases[] = {
        {"steps: below 1e-13 a ratio measures rounding",
         Table::Kind::Steps,
         {"16.00", "16.00", "round-off", "round-off"},
         true},
        {"sums keep their ratios", Table::Kind::Sums, {"16.00", "16.00", "781.25", "0.17"}, false},
    };
    for (const auto& c : cases) {
        const Table t = handMade(c.kind);
        const auto cells = t.cells();
        for (std::size_t r = 2; r <= 5; ++r) {
            EXPECT_EQ(cells[r][3], "4.00") << c.name << " row " << r;
            EXPECT_EQ(cells[r][6], c.fourthRatios[r - 2]) << c.name << " row " << r;
        }
        EXPECT_EQ(t.hasRoundOff(), c.roundOff) << c.name;
    }
    // The reference lines start four times above each order's first error and keep its slope, so that
    // the second-order data lie a factor 4 under theirs all along; the fourth's ends at 160 steps.
    const auto lines = handMade(Table::Kind::Steps).referenceLines();
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(std::tuple(lines[0].order, lines[0].label, lines[1].label), std::tuple(2, "slope 2", "slope 4"));
    EXPECT_EQ(std::tuple(lines[0].from.first, lines[0].to.first, lines[1].to.first), std::tuple(10.0, 160.0, 160.0));
    EXPECT_DOUBLE_EQ(lines[0].from.second, 4e-2);
    EXPECT_DOUBLE_EQ(lines[0].to.second, 1.5625e-4);
    EXPECT_DOUBLE_EQ(lines[1].from.second, 4e-8);
    EXPECT_DOUBLE_EQ(lines[1].to.second, 4e-8 / 65536);

    // Errors that rounding flattens at 1e-10 from the third row end the fourth's line where it comes
    // within 4 of them: at 10 * (1e-8 / 1e-10)^(1/4) = 31.6 steps, at 4e-10.
    Table flat = handMade(Table::Kind::Steps);
    for (std::size_t r = 2; r < 5; ++r)
        flat.values[r][1].value = -1e-10;
    const auto flatLines = flat.referenceLines();
    ASSERT_EQ(flatLines.size(), 2u);
    EXPECT_NEAR(flatLines[1].to.first, 10 * std::sqrt(10.0), 1e-9);
    EXPECT_NEAR(flatLines[1].to.second, 4e-10, 1e-22);

    // The window: the ratio cell and the sentence under the table, and a label at each line's end.
    ConvergenceWindow window(nullptr, QStringLiteral("Steps"), [] { return handMade(Table::Kind::Steps); });
    window.recompute();
    EXPECT_TRUE(window.grid()->item(3, 2)->text().endsWith(QStringLiteral("ratio round-off")));
    EXPECT_EQ(window.roundOffNote()->text().toStdString(), Table::roundOffNote());
    EXPECT_FALSE(window.roundOffNote()->isHidden());
    QStringList labels;
    for (QAbstractSeries* series : window.plot()->chart()->series())
        if (auto* end = qobject_cast<QScatterSeries*>(series); end && end->pointLabelsVisible())
            labels << end->pointLabelsFormat();
    EXPECT_EQ(labels, (QStringList{QStringLiteral("slope 2"), QStringLiteral("slope 4")}));
}

TEST(ConvergenceWindowFit, TheSumsTableFitsAMaximizedWindowBesideItsPlot)
{
    ScriptedDialogs script;
    selectFamily(2, {1, 0, 0, 0, 0, 0});  // y = x^2 on [0, 2]
    ConvergenceWindow window(nullptr, QStringLiteral("Convergence of the sums"),
                             [] { return Convergence::sums(0, 2, 1); });
    window.show();
    window.recompute();
    for (const QSize size : {QSize(ConvergenceWindow::kNormalWidth, ConvergenceWindow::kNormalHeight),
                             QSize(1920, 1040), QSize(1280, 680), QSize(1024, 728)}) {
        window.resize(size);
        QApplication::processEvents();
        EXPECT_EQ(window.grid()->horizontalScrollBar()->maximum(), 0) << size.width() << "x" << size.height();
        EXPECT_GT(window.plot()->width(), size.width() / 4) << size.width();
    }
    // The columns hold each method's value, error and ratio; the plot says its slopes in words.
    EXPECT_EQ(window.grid()->columnCount(), 6);
    EXPECT_EQ(window.grid()->horizontalHeaderItem(0)->text().toStdString(), Convergence::sums(0, 2, 1).cells()[0][0]);
    // Every series on both axes; the reference slopes -1, -2 and -4 told apart by their dashes.
    std::vector<Qt::PenStyle> references;
    for (QAbstractSeries* s : window.plot()->chart()->series()) {
        EXPECT_EQ(s->attachedAxes().size(), 2) << s->name().toStdString();
        if (s->name().startsWith(QStringLiteral("slope -")))
            references.push_back(static_cast<QLineSeries*>(s)->pen().style());
    }
    EXPECT_EQ(references, (std::vector<Qt::PenStyle>{Qt::DashLine, Qt::DashDotLine, Qt::DotLine}));
    // The plot counts what the table's rows count: partitions here, steps for the step methods,
    // whose lines take their rows' colours.
    EXPECT_EQ(window.plot()->accessibleName(), QStringLiteral("Error against the number of partitions, log-log"));
    selectRates({-1, 0, 0, 0, 1, 0});  // the circle, dy/dx = -x/y
    ConvergenceWindow steps(nullptr, QStringLiteral("Steps"), [] { return Convergence::steps(4, 3, 4.5, 0.1, 3, {}); });
    steps.recompute();
    EXPECT_EQ(steps.plot()->accessibleName(), QStringLiteral("Error against the number of steps, log-log"));
    for (const StepMethods::Method& m : StepMethods::all()) {
        const auto series = steps.plot()->chart()->series();
        const auto line = std::find_if(series.begin(), series.end(), [&](auto* s) { return s->name() == m.caption; });
        ASSERT_NE(line, series.end()) << m.key;
        EXPECT_EQ(static_cast<QLineSeries*>(*line)->pen().color().rgb() & 0xFFFFFF, m.colour) << m.key;
    }
    selectFamily(2, {1, 0, 0, 0, 0, 0});
    frmRiemann sums;  // on its screen the table is one key away, and its entry shows it
    const auto entries = sums.menuBar->findChildren<QAction*>();
    const auto open =
        std::find_if(entries.begin(), entries.end(), [](QAction* a) { return a->text() == "Convergence &Table..."; });
    ASSERT_NE(open, entries.end());
    EXPECT_EQ((*open)->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_T));
    (*open)->trigger();
    EXPECT_TRUE(sums.findChild<ConvergenceWindow*>()->isVisible());
    EXPECT_TRUE(window.grid()->item(3, 3)->text().contains(QStringLiteral("ratio 4.00")))
        << window.grid()->item(3, 3)->text().toStdString();
    const QString said = window.plotDescription();
    const std::pair<const char*, double> slopes[] = {{"Left", -1}, {"Right", -1}, {"Midpoint", -2}, {"Trapezoid", -2}};
    for (const auto& [method, expected] : slopes) {
        const QString line =
            said.section(QString::fromLatin1(method) + QStringLiteral(": slope "), 1).section(' ', 0, 0);
        EXPECT_NEAR(line.toDouble(), expected, 0.05) << method << ": " << said.toStdString();
    }
    window.plot()->setFocus();
    QTest::keyClick(window.plot(), Qt::Key_C, Qt::ControlModifier);
    const QMimeData* data = QApplication::clipboard()->mimeData();
    ASSERT_TRUE(data);
    EXPECT_TRUE(data->hasImage());
    EXPECT_EQ(data->text(), said);
}

// The table leaves the window as a spreadsheet reads it and as a page: the CSV quotes a field that
// needs it, the PDF's text holds the headings and the exact
// value's digits, and a name that says no format is refused with no file left.
TEST(ConvergenceExport, CsvReadsBackAsTheCellsAndThePdfHoldsTheTable)
{
    ScriptedDialogs script;
    selectFamily(2, {1, 0, 0, 0, 0, 0});  // y = x^2 on [0, 2]
    ConvergenceWindow window(nullptr, QStringLiteral("Convergence of the sums"),
                             [] { return Convergence::sums(0, 2, 4); });
    window.recompute();
    // Cells that need quoting (a comma, a quote, a line break) are quoted, their quotes doubled.
    Table awkward;
    awkward.methods = {"Plain", "Comma, here", "Quote \"q\""};
    awkward.rowHeadings = {"n", "1"};
    awkward.values = {{{std::nullopt, "a"}, {std::nullopt, "b,c"}, {std::nullopt, "line\nbreak"}}};
    EXPECT_EQ(awkward.csv(), "n,Plain,Plain error,Plain ratio,\"Comma, here\",\"Comma, here error\",\"Comma, here ratio\","
                             "\"Quote \"\"q\"\"\",\"Quote \"\"q\"\" error\",\"Quote \"\"q\"\" ratio\"\r\n"
                             "1,a,,,\"b,c\",,,\"line\nbreak\",,\r\n");

    QTemporaryDir dir;
    ASSERT_EQ(window.exportTable(dir.filePath(QStringLiteral("t.csv"))), QString());
    EXPECT_EQ(fileBytes(dir.filePath(QStringLiteral("t.csv"))).toStdString(), window.table().csv());

    ASSERT_EQ(window.exportTable(dir.filePath(QStringLiteral("t.pdf"))), QString());
    const QString pdftotext = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
    if (!pdftotext.isEmpty()) {
        const QString text = toolOutput(pdftotext, {dir.filePath(QStringLiteral("t.pdf")), QStringLiteral("-")});
        EXPECT_TRUE(text.contains(QStringLiteral("Convergence of the sums")));
        EXPECT_TRUE(text.contains(QString::fromStdString(window.table().cells()[0][1]))) << text.toStdString();
        // A reader lists the document by the window's title; the table's page lies on its side.
        const QString info = toolOutput(QStandardPaths::findExecutable(QStringLiteral("pdfinfo")),
                                        {dir.filePath(QStringLiteral("t.pdf"))});
        EXPECT_TRUE(info.contains(QRegularExpression(QStringLiteral("Title: +") +
                                                     QRegularExpression::escape(window.windowTitle()) + '\n')))
            << info.toStdString();
        const QRegularExpressionMatch size =
            QRegularExpression(QStringLiteral("Page size: +([\\d.]+) x ([\\d.]+)")).match(info);
        EXPECT_TRUE(size.hasMatch() && size.captured(1).toDouble() > size.captured(2).toDouble()) << info.toStdString();
    }
    EXPECT_TRUE(window.exportTable(dir.filePath(QStringLiteral("t.txt"))).contains(QStringLiteral(".csv or .pdf")));
    EXPECT_FALSE(QFile::exists(dir.filePath(QStringLiteral("t.txt"))));
}
