// SPDX-License-Identifier: GPL-3.0-or-later
// The limits screen (see frmLimits.h). Nothing here raises a classic run-time error: the boxes are
// read by number(), the function through ExplicitSnapshot (NaN where it is undefined or fails), and
// the search of funclib/EpsilonDelta says in words what it cannot do.
#include "screens/frmLimits.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "graphwin/DrawingStyle.h"
#include "graphwin/Language.h"

using limits::DeltaSearch;

namespace {

GraphScreen::Config limitsConfig()
{
    GraphScreen::Config c;
    c.errorsInWords = true;
    c.caption = Plotto::tr("Limits by Epsilon and Delta");
    c.surfaceWidth = 17200;
    return c;
}

constexpr double kRight = 11220, kRightWidth = 5800;
constexpr double kHatch = 45;  // twips between the lines that shade a band (three pixels)
constexpr double kMarkRadius = 60;  // twips: the circles at a

QString shown(double v) { return i18n::decimals(QString::fromStdString(limits::shown(v))); }

}  // namespace

frmLimits::frmLimits() : GraphScreen(limitsConfig())
{
    using form::Kind;
    const auto on = form::bind(this);
    const double C = buttonColumn(), W = 1680, R = kRight;
    // clang-format off
    form::buildForm(surface, {
        // name                  kind           caption          place                          handlers / look
        {FORM_NAME(lblLimits),    Kind::Label, QT_TRANSLATE_NOOP("Plotto", "ε and δ"),       {C, 2940, W, 300},             {}, {.align = Qt::AlignCenter}},
        {FORM_NAME(lblPoint),     Kind::Stepper, "a =",           {C, 3300, 700, 300},           {.MouseDown = on(&frmLimits::lblPoint_MouseDown)}},
        {FORM_NAME(txtPoint),     Kind::Box,     "1",             {C + 720, 3300, W - 720, 300}},
        {FORM_NAME(lblLimit),     Kind::Label,   "L =",           {C, 3660, 700, 300}},
        {FORM_NAME(txtLimit),     Kind::Box,     "1",             {C + 720, 3660, W - 720, 300}},
        {FORM_NAME(cmdFindL),     Kind::Button, QT_TRANSLATE_NOOP("Plotto", "Find &L"),       {C, 4020, W, 420},             {.Click = on(&frmLimits::cmdFindL_Click)}},
        {FORM_NAME(lblEpsilon),   Kind::Stepper, "ε =",           {C, 4560, 700, 300},           {.MouseDown = on(&frmLimits::lblEpsilon_MouseDown)}},
        {FORM_NAME(txtEpsilon),   Kind::Box,     "0.5",           {C + 720, 4560, W - 720, 300}},
        {FORM_NAME(cmdFindDelta), Kind::Button, QT_TRANSLATE_NOOP("Plotto", "Fin&d δ"),       {C, 4920, W, 420},             {.Click = on(&frmLimits::cmdFindDelta_Click)}},
        {FORM_NAME(cmdHalve),     Kind::Button, QT_TRANSLATE_NOOP("Plotto", "&Halve ε"),      {C, 5460, W, 420},             {.Click = on(&frmLimits::cmdHalve_Click)}},
        {FORM_NAME(lblResult),    Kind::Label,   "",              {R, 240, kRightWidth, 600},    {}, {.wrap = true, .boxed = true, .name = QT_TRANSLATE_NOOP("Plotto", "Result")}},
        {FORM_NAME(grdHalvings),  Kind::Grid,    "",              {R, 960, kRightWidth, 3900},   {}, {.name = QT_TRANSLATE_NOOP("Plotto", "Epsilon and delta"), .rows = kRows, .columns = 4}},
        {FORM_NAME(lblStatus),    Kind::Label,   "",              {R, 4980, kRightWidth, 1800},  {}, {.wrap = true}},
    });
    // clang-format on
    Form_Load();
}

void frmLimits::Form_Load()
{
    GraphScreen::Form_Load();
    const char* headings[] = {"ε", "δ", "δ/ε", QT_TRANSLATE_NOOP("Plotto", "leaves at x =")};
    const double widths[] = {1300, 1500, 1100, 1600};
    for (int c = 0; c < 4; ++c) {
        grdHalvings->setCell(0, c, Plotto::tr(headings[c]));
        grdHalvings->setColumnWidthTwips(c, widths[c]);
    }
}

void frmLimits::Form_Activate()
{
    GraphScreen::Form_Activate();
    clearTable();
    lblStatus->setText(QString());
}

void frmLimits::functionReplaced()
{
    clearTable();
    lblStatus->setText(QString());
}

void frmLimits::clearTable()
{
    rows_.clear();
    tableKey_.clear();
    shown_ = false;
    lblResult->setText(QString());
    fillGrid();
}

limits::Values frmLimits::values() const
{
    const FuncGlobals::ExplicitSnapshot f(FuncGlobals::ExplicitSnapshot::What::Value, typed_);
    return [f](const std::vector<double>& xs) { return f.at(xs); };
}

void frmLimits::cmdPlotto_Click() { draw(nullptr); }

void frmLimits::cmdFindL_Click()
{
    const std::optional<double> a = txtPoint->number();
    if (!a || !std::isfinite(*a)) {
        lblStatus->setText(Plotto::tr("Type a number for a."));
        return;
    }
    const limits::LimitEstimate e = limits::estimateLimit(values(), *a);
    if (e.exists)
        txtLimit->assign(shown(e.limit));
    lblStatus->setText(i18n::words(e.words));
    draw(nullptr);
}

void frmLimits::cmdFindDelta_Click() { showDelta(); }

void frmLimits::cmdHalve_Click()
{
    const std::optional<double> eps = txtEpsilon->number();
    if (eps && std::isfinite(*eps) && *eps > 0)
        txtEpsilon->assign(shown(*eps / 2));
    showDelta();
}

void frmLimits::lblEpsilon_MouseDown(int Button, int, double, double)
{
    const std::optional<double> eps = txtEpsilon->number();
    if (Button != 1 && Button != 2)
        return;
    if (eps && std::isfinite(*eps) && *eps > 0 && std::isfinite(*eps * 2))
        txtEpsilon->assign(shown(Button == 1 ? *eps / 2 : *eps * 2));
    showDelta();
}

void frmLimits::lblPoint_MouseDown(int Button, int, double, double)
{
    const std::optional<double> a = txtPoint->number();
    if (!a || !std::isfinite(*a) || (Button != 1 && Button != 2))
        return;
    txtPoint->assign(qTrimStr(*a + (Button == 1 ? 1 : -1)));
    if (shown_)
        showDelta();
    else
        draw(nullptr);
}

void frmLimits::showDelta()
{
    const std::optional<double> a = txtPoint->number(), L = txtLimit->number(), eps = txtEpsilon->number();
    // The window as its boxes show it (a zoom of the view writes them too).
    const std::optional<double> xmin = txtXmin->number(), xmax = txtXmax->number();
    DeltaSearch found;
    QString status;
    if (!a || !L || !eps) {
        status = Plotto::tr("Type numbers for a, L and ε.");
    } else if (!xmin || !xmax || !(*xmin < *xmax)) {
        status = Plotto::tr("The window's x limits must be numbers, the minimum below the maximum.");
    } else {
        found = limits::largestDelta(values(), *a, *L, *eps, *xmin, *xmax);
        status = i18n::words(found.words);
    }
    const QString key = describeFamily() + QLatin1Char('|') + txtPoint->text() + QLatin1Char('|') + txtLimit->text();
    if (key != tableKey_) {
        rows_.clear();
        tableKey_ = key;
    }
    if (found.outcome != DeltaSearch::Outcome::Refused)
        rows_.push_back({*eps, found});
    shown_ = true;
    if (found.outcome == DeltaSearch::Outcome::Found)
        lblResult->setText(QStringLiteral("ε = %1   δ = %2%3")
                               .arg(shown(*eps), shown(found.delta),
                                    found.reachesEdge ? Plotto::tr("   (the window's edge)")
                                                      : Plotto::tr("   leaves at x = %1").arg(shown(found.leaveX))));
    else if (found.outcome == DeltaSearch::Outcome::NoDelta)
        lblResult->setText(Plotto::tr("ε = %1   no δ").arg(shown(*eps)));
    else
        lblResult->setText(QString());
    lblStatus->setText(status);
    fillGrid();
    draw(&found);
}

void frmLimits::fillGrid()
{
    const int shownRows = std::min<int>(static_cast<int>(rows_.size()), kRows - 1);
    const std::size_t from = rows_.size() - static_cast<std::size_t>(shownRows);
    for (int r = 1; r < kRows; ++r) {
        QString cells[4];
        if (r <= shownRows) {
            const Row& row = rows_[from + static_cast<std::size_t>(r - 1)];
            const bool found = row.search.outcome == DeltaSearch::Outcome::Found;
            cells[0] = shown(row.eps);
            cells[1] = found ? shown(row.search.delta) : QStringLiteral("none");
            cells[2] = found ? QString::number(row.search.delta / row.eps, 'g', 6) : QStringLiteral("--");
            cells[3] = !found                   ? Plotto::tr("near a")
                       : row.search.reachesEdge ? Plotto::tr("(none in the window)")
                                                : shown(row.search.leaveX);
        }
        for (int c = 0; c < 4; ++c)
            grdHalvings->setCell(r, c, cells[c]);
    }
}

void frmLimits::draw(const DeltaSearch* found)
{
    auto p = std::make_shared<Picture>();
    const std::optional<double> a = txtPoint->number(), L = txtLimit->number(), eps = txtEpsilon->number();
    const FuncGlobals::ExplicitSnapshot f(FuncGlobals::ExplicitSnapshot::What::Value, typed_);
    p->haveA = a && std::isfinite(*a);
    p->haveL = L && std::isfinite(*L);
    p->a = p->haveA ? *a : 0;
    p->L = p->haveL ? *L : 0;
    p->fa = p->haveA ? f.at(p->a) : std::nan("");
    if (found && found->outcome != DeltaSearch::Outcome::Refused && eps) {
        p->searched = true;
        p->search = *found;
        p->eps = *eps;
    }
    eraseKept(QStringLiteral("limits"));
    const QString what = p->searched ? Plotto::tr("the band L = %1 ± ε = %2 about a = %3 for %4")
                                           .arg(shown(p->L), shown(p->eps), shown(p->a), describeFamily())
                                     : QStringLiteral("%1 with a = %2 marked").arg(describeFamily(), txtPoint->text());
    // f is the curve that the readout names, the trace plays and the keyboard walks along.
    keepDrawing(
        what,
        [this, p, f, name = describeFamily(), function = typed_] {
            noteTraced(explicitCurve(name, FuncGlobals::ExplicitSnapshot::What::Value, function));
            drawPicture(*p, f);
        },
        typed_, QStringLiteral("limits"));
}

void frmLimits::drawPicture(const Picture& p, const FuncGlobals::ExplicitSnapshot& f)
{
    const std::int32_t first = graph.firstColumn(), last = graph.lastColumn();
    const double top = GraphWindow::Top, bottom = GraphWindow::Bottom;
    const auto rowOf = [&](double y) { return std::clamp(graph.plainRow(y), top - 1, bottom + 1); };
    const auto columnOf = [&](double x) {
        return std::clamp(graph.plainColumn(x), static_cast<double>(first) - 1, static_cast<double>(last) + 1);
    };
    if (p.searched) {
        // The band L +- eps across the square, shaded with rows, its edges solid.
        const double from = rowOf(p.L + p.eps), to = rowOf(p.L - p.eps);
        {
            DrawingSurface::Batch shade(*surface, DrawingStyle::colour(DrawingStyle::kLimitsEpsilonBand));
            for (double row = std::max(from, top); row <= std::min(to, bottom); row += kHatch)
                shade.line(first, row, last, row);
        }
        DrawingSurface::Batch edges(*surface, DrawingStyle::colour(DrawingStyle::kLimitsEpsilonEdge));
        for (double row : {from, to})
            if (GraphWindow::rowInside(row))
                edges.line(first, row, last, row);
    }
    if (p.searched && p.search.outcome == DeltaSearch::Outcome::Found) {
        // The band a +- delta, shaded with columns, its edges solid.
        const double from = columnOf(p.a - p.search.delta), to = columnOf(p.a + p.search.delta);
        {
            DrawingSurface::Batch shade(*surface, DrawingStyle::colour(DrawingStyle::kLimitsDeltaBand));
            for (double column = std::max<double>(from, first); column <= std::min<double>(to, last); column += kHatch)
                shade.line(column, top, column, bottom);
        }
        DrawingSurface::Batch edges(*surface, DrawingStyle::colour(DrawingStyle::kLimitsDeltaEdge));
        for (double column : {from, to})
            if (column >= first && column <= last)
                edges.line(column, top, column, bottom);
    }
    // f over the square's columns.
    std::vector<double> xs;
    xs.reserve(static_cast<std::size_t>(last - first + 1));
    for (std::int32_t c = first; c <= last; ++c)
        xs.push_back(graph.plainWorldX(c));
    const std::vector<double> fs = f.at(xs);
    {
        DrawingSurface::Batch curve(*surface, DrawingStyle::colour(DrawingStyle::kLimitsFunction));
        for (std::size_t i = 0; i < xs.size(); ++i) {
            const double row = graph.plainRow(fs[i]);
            if (std::isfinite(row) && GraphWindow::rowInside(row))
                curve.point(first + static_cast<double>(i), row);
        }
    }
    // Marks: a dot where f(a) is, an open circle at the limit where f(a) is not it.
    const auto mark = [&](double x, double y, int colour, bool filled) {
        const double column = graph.plainColumn(x), row = graph.plainRow(y);
        if (!std::isfinite(column) || !std::isfinite(row) || !graph.strictlyInside(column, row))
            return;
        for (double r = filled ? 15 : kMarkRadius; r <= kMarkRadius; r += 15)
            surface->Circle(column, row, r, DrawingStyle::colour(colour));
    };
    if (p.haveA && std::isfinite(p.fa))
        mark(p.a, p.fa, DrawingStyle::kLimitsFunction, true);
    if (p.haveA && p.haveL && !(std::fabs(p.fa - p.L) <= 1e-12 * std::max(1.0, std::fabs(p.L))))
        mark(p.a, p.L, DrawingStyle::kLimitsFunction, false);
    if (p.searched && p.search.outcome == DeltaSearch::Outcome::Found && !p.search.reachesEdge)
        mark(p.search.leaveX, p.search.leaveY, DrawingStyle::kLimitsLeave, true);
    else if (p.searched && p.search.outcome == DeltaSearch::Outcome::NoDelta)
        mark(p.search.closeX, p.search.closeY, DrawingStyle::kLimitsLeave, true);
}

std::vector<GraphScreen::DragHandle> frmLimits::dragHandles()
{
    const std::optional<double> a = txtPoint->number(), L = txtLimit->number();
    if (!a || !L || !std::isfinite(*a) || !std::isfinite(*L) || !shown_)
        return {};
    return {{Plotto::tr("the point a"), *a, *L, true, [this](double x, double) {
                 runForDrag([&] {
                     txtPoint->assign(draggedValue(x));
                     showDelta();
                 });
             }}};
}

void frmLimits::describeResults(QStringList& lines) const
{
    lines << Plotto::tr("Limits by ε and δ of %1, a = %2, L = %3, ε = %4.")
                 .arg(describeFamily(), txtPoint->text(), txtLimit->text(), txtEpsilon->text());
    if (!lblResult->text().isEmpty())
        lines << lblResult->text();
    if (!lblStatus->text().isEmpty())
        lines << lblStatus->text();
    QStringList table;
    for (const Row& row : rows_)
        table << (row.search.outcome == DeltaSearch::Outcome::Found
                      ? QStringLiteral("ε %1: δ %2").arg(shown(row.eps), shown(row.search.delta))
                      : QStringLiteral("ε %1: no δ").arg(shown(row.eps)));
    if (!table.isEmpty())
        lines << QStringLiteral("Table: ") + table.join(QStringLiteral("; ")) + QLatin1Char('.');
}

void frmLimits::mnuAbout_Click()
{
    showHelp({
        {QT_TRANSLATE_NOOP("Plotto", "What is this?"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "This screen shows what the limit of f(x) as x approaches a means: for every ε > 0 there is a δ > 0 such "
             "that every x with 0 < |x - a| < δ has |f(x) - L| < ε.  You choose ε; the screen finds the largest δ.")},
        {QT_TRANSLATE_NOOP("Plotto", "Setting up"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "Select a function from the menu and choose A to E, or type one with Tools, Type a Function (for instance "
             "sin(x)/x, (x^2 - 1)/(x - 1), x/abs(x) or sin(1/x)).  Type the point a (or click the green label a =: "
             "left "
             "button up by one, right button down) and the limit L, or press [Find L]: it looks at f(a - h) and "
             "f(a + h) as h halves forty times, down to about 1e-12 times max(1, |a|), and says whether both sides "
             "settle on one value (six values in a row agreeing to 1e-5), settle on different values, grow without "
             "bound or do not settle.")},
        {QT_TRANSLATE_NOOP("Plotto", "[Find δ] and [Halve ε]"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "[Find δ] shades the band L ± ε in green and the band a ± δ in cyan, with the largest δ for which "
             "the graph stays in the green band, and marks in red where the graph first leaves it.  [Halve ε] halves ε "
             "and looks again; clicking the green label ε = halves it with the left button and doubles it with the "
             "right.  Each ε adds a row to the table: ε, δ, δ/ε and where the graph leaves the band, so that you can "
             "watch δ shrink with ε.  Where points as close to a as the search looks leave the band, the screen says "
             "that no δ works for that ε: f has no limit at a, or L is not it.")},
        {QT_TRANSLATE_NOOP("Plotto", "How δ is found"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "This is a numerical search, not a proof.  On each side of a, f is checked at about 7000 points: a dense "
             "cluster from 1e-13 times max(1, |a|), 64 points between each distance and its double, and 4096 evenly "
             "spread to the window's edge.  Between the last point inside the band and the first outside, the search "
             "checks sixteen pieces again and again until δ is known to 1e-12 of itself.  Points where f is undefined "
             "are not in its domain and are left out.  A narrow spike between samples can be missed.")},
        {QT_TRANSLATE_NOOP("Plotto", "Holes and dots"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "A filled dot marks (a, f(a)) where f is defined at a; an open circle marks (a, L) where f(a) is "
             "undefined or differs from L.")},
    });
}
