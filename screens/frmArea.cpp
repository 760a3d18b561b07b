// SPDX-License-Identifier: GPL-3.0-or-later
// The area screen (see frmArea.h). Nothing here raises a classic run-time error: the boxes are read
// by number(), f and g through ExplicitSnapshot (NaN where they fail), and the numbers come from
// AreaBetween, which says in words why there is no area.
#include "screens/frmArea.h"

#include <algorithm>
#include <cmath>

#include "funclib/FuncGlobals.h"
#include "funclib/Words.h"
#include "graphwin/DrawingStyle.h"
#include "graphwin/Language.h"
#include "screens/Convergence.h"
#include "screens/ConvergenceWindow.h"
#include "screens/StripRules.h"

using FuncGlobals::ExplicitSnapshot;

namespace {

GraphScreen::Config areaConfig()
{
    GraphScreen::Config c;
    c.errorsInWords = true;
    c.caption = Plotto::tr("Area Between Two Curves");
    c.surfaceWidth = 17200;
    return c;
}

constexpr double kRight = 11220, kRightWidth = 5800;
constexpr int kGridRows = static_cast<int>(StripRules::kRules.size()) + 2;  // headings, the rules, the limit
constexpr int kListed = 5;  // crossings listed on the label (a line each); the description lists them all

// A value as the grid shows it; a signed value within rounding of 0 beside its unsigned counterpart
// `scale` (the two halves of x - x^3 on [-1, 1] cancelling to 1e-17) is 0, as it is exactly.
QString shown(const std::optional<double>& v, double scale = 0)
{
    if (!v || !std::isfinite(*v))
        return QStringLiteral("--");
    return i18n::decimals(QString::number(std::fabs(*v) <= 1e-13 * scale ? 0.0 : *v, 'g', 10));
}

AreaBetween::Values valuesOf(const ExplicitSnapshot& s)
{
    return [s](const std::vector<double>& xs) { return s.at(xs); };
}

}  // namespace

frmArea::frmArea() : GraphScreen(areaConfig())
{
    using form::Kind;
    const auto on = form::bind(this);
    const double C = buttonColumn(), W = 1680, R = kRight;
    // clang-format off
    form::buildForm(surface, {
        // name                  kind           caption                    place                          handlers / look
        {FORM_NAME(lblArea),      Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Two Curves"),              {C, 3060, W, 300},             {}, {.align = Qt::AlignCenter}},
        {FORM_NAME(lblG),         Kind::Label,   "g(x) =",                  {C, 3420, 600, 300}},
        {FORM_NAME(txtG),         Kind::Box,     "x + 2",                   {C + 600, 3420, W - 600, 300}},
        {FORM_NAME(lblLeft),      Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "Left a"),                  {C, 3780, 1000, 300},          {.MouseDown = on(&frmArea::lblLeft_MouseDown)}},
        {FORM_NAME(txtLeft),      Kind::Box,     "-2",                      {C + 1000, 3780, W - 1000, 300}},
        {FORM_NAME(lblRight),     Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "Right b"),                 {C, 4140, 1000, 300},          {.MouseDown = on(&frmArea::lblRight_MouseDown)}},
        {FORM_NAME(txtRight),     Kind::Box,     "3",                       {C + 1000, 4140, W - 1000, 300}},
        {FORM_NAME(lblStrips),    Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "Strips n"),                {C, 4500, 1000, 300},          {.MouseDown = on(&frmArea::lblStrips_MouseDown)}},
        {FORM_NAME(txtStrips),    Kind::Box,     "8",                       {C + 1000, 4500, W - 1000, 300}},
        {FORM_NAME(cmdDouble),    Kind::Button, QT_TRANSLATE_NOOP("Plotto", "&Double Strips"),          {C, 4920, W, 420},             {.Click = on(&frmArea::cmdDouble_Click)}},
        {FORM_NAME(cmdCrossings), Kind::Button, QT_TRANSLATE_NOOP("Plotto", "Find &Crossings"),         {C, 5460, W, 420},             {.Click = on(&frmArea::cmdCrossings_Click)},
                                                                                                            {.tip = QT_TRANSLATE_NOOP("Plotto", "Find where f and g cross in [a, b], shade the region and sum the strips")}},
        {FORM_NAME(lblLegend),    Kind::Label,   "",                        {R, 240, kRightWidth, 300},    {}, {.wrap = true}},
        {FORM_NAME(grdAreas),     Kind::Grid,    "",                        {R, 600, kRightWidth, 1950},   {}, {.name = QT_TRANSLATE_NOOP("Plotto", "Areas by the strip rules"), .rows = kGridRows, .columns = 3}},
        {FORM_NAME(lblCrossings), Kind::Label,   "",                        {R, 3000, kRightWidth, 2000},  {}, {.wrap = true}},
        {FORM_NAME(lblStatus),    Kind::Label,   "",                        {R, 5100, kRightWidth, 1700},  {}, {.wrap = true}},
    });
    // clang-format on
    Form_Load();
    convergence = addConvergenceMenu(this, menuBar, Plotto::tr("Convergence of the signed area"), [this] {
        QString why;
        const std::optional<Inputs> in = readInputs(why);
        if (!in)
            return Convergence::sumsWithout(why.toStdString());
        const ExplicitSnapshot f(ExplicitSnapshot::What::Value, typed_), g(ExplicitSnapshot::What::Value, in->g);
        const AreaBetween::Result r = AreaBetween::compute(valuesOf(f), valuesOf(g), in->a, in->b, 1);
        if (!r.signedArea)
            return Convergence::sumsWithout(FuncGlobals::words::fill(FuncGlobals::words::noArea, {r.why}));
        return Convergence::strips(
            [f, g](double x) { return f.at(x) - g.at(x); }, in->a, in->b, in->n, r.signedArea, r.accuracy,
            FuncGlobals::words::fill(FuncGlobals::words::signedArea, {Convergence::format("%.12g", *r.signedArea)}));
    });
}

void frmArea::Form_Load()
{
    GraphScreen::Form_Load();
    const char* headings[] = {QT_TRANSLATE_NOOP("Plotto", "Rule"), QT_TRANSLATE_NOOP("Plotto", "Signed: f - g"),
                              QT_TRANSLATE_NOOP("Plotto", "Unsigned: |f - g|")};
    const double widths[] = {1700, 2000, 2000};
    for (int c = 0; c < 3; ++c) {
        grdAreas->setCell(0, c, Plotto::tr(headings[c]));
        grdAreas->setColumnWidthTwips(c, widths[c]);
    }
    for (std::size_t m = 0; m < StripRules::kRules.size(); ++m)
        grdAreas->setCell(static_cast<int>(m) + 1, 0, Plotto::tr(StripRules::kRules[m].name));
    grdAreas->setCell(kGridRows - 1, 0, Plotto::tr("Limit (integral)"));
    lblLegend->setText(Plotto::tr("Shaded light cyan where f is above g, yellow where g is above f."));
}

void frmArea::Form_Activate()
{
    GraphScreen::Form_Activate();
    clearResults({});
}

void frmArea::functionReplaced() { clearResults({}); }

void frmArea::cmdCrossings_Click() { findAll(); }

void frmArea::cmdPlotto_Click()
{
    GraphScreen::cmdPlotto_Click();
    QString why;
    if (const std::optional<Inputs> in = readInputs(why))
        draw(*in);
}

void frmArea::cmdDouble_Click()
{
    const std::optional<double> n = txtStrips->number();
    if (!n || !(*n >= 1)) {
        txtStrips->assign(QStringLiteral("1"));
        return;
    }
    const double twice = std::min<double>(std::floor(*n) * 2, AreaBetween::kMaxStrips);
    txtStrips->assign(QString::number(twice, 'f', 0));
    if (twice == AreaBetween::kMaxStrips)
        lblStatus->setText(Plotto::tr("%1 strips is the most this screen sums.").arg(AreaBetween::kMaxStrips));
    if (result_)
        findAll();
}

void frmArea::stepBoundary(TextBox* box, int Button)
{
    const std::optional<double> v = box->number();
    if (!v || (Button != 1 && Button != 2))
        return;
    box->assign(qTrimStr(*v + (Button == 1 ? 1 : -1)));
    if (result_)
        findAll();
}

void frmArea::lblLeft_MouseDown(int Button, int, double, double) { stepBoundary(txtLeft, Button); }
void frmArea::lblRight_MouseDown(int Button, int, double, double) { stepBoundary(txtRight, Button); }

void frmArea::lblStrips_MouseDown(int Button, int, double, double)
{
    const std::optional<double> n = txtStrips->number();
    if (!n || (Button != 1 && Button != 2))
        return;
    const double next = std::clamp(std::floor(*n) + (Button == 1 ? 1 : -1), 1.0, double(AreaBetween::kMaxStrips));
    txtStrips->assign(QString::number(next, 'f', 0));
    if (result_)
        findAll();
}

std::optional<frmArea::Inputs> frmArea::readInputs(QString& why) const
{
    Inputs in;
    const std::optional<double> a = txtLeft->number(), b = txtRight->number(), n = txtStrips->number();
    if (!a || !b || !std::isfinite(*a) || !std::isfinite(*b)) {
        why = Plotto::tr("Type a number in each of the boxes Left a and Right b.");
        return std::nullopt;
    }
    if (!(*a < *b) || !std::isfinite(*b - *a)) {
        why = *a < *b ? Plotto::tr("The interval from a to b is too wide for the computer's numbers.")
                      : Plotto::tr("Left a must be less than Right b.");
        return std::nullopt;
    }
    if (!n || *n != std::floor(*n) || *n < 1 || *n > AreaBetween::kMaxStrips) {
        why = Plotto::tr("The number of strips n must be a whole number from 1 to %1.").arg(AreaBetween::kMaxStrips);
        return std::nullopt;
    }
    const QString text = txtG->text().trimmed();
    std::string error;
    in.g = text.isEmpty() ? nullptr : FuncGlobals::TypedFunction::make(text.toStdString(), error);
    if (!in.g) {
        why = text.isEmpty() ? Plotto::tr("Type g(x) in its box (for example x + 2).")
                             : Plotto::tr("g(x) = %1 cannot be read: %2.").arg(text, i18n::words(error));
        return std::nullopt;
    }
    in.a = *a;
    in.b = *b;
    in.n = static_cast<std::int32_t>(*n);
    return in;
}

void frmArea::findAll()
{
    QString why;
    inputs_ = readInputs(why);
    if (!inputs_)
        return clearResults(why);
    const ExplicitSnapshot f(ExplicitSnapshot::What::Value, typed_), g(ExplicitSnapshot::What::Value, inputs_->g);
    result_ = AreaBetween::compute(valuesOf(f), valuesOf(g), inputs_->a, inputs_->b, inputs_->n);
    draw(*inputs_);
    fillResults();
}

void frmArea::draw(const Inputs& in)
{
    struct Picture {
        ExplicitSnapshot f, g;
        double a, b;
        bool region;  // the shading (after Find Crossings), or the two curves alone (Plotto!)
        std::vector<double> crossings;
    };
    auto p = std::make_shared<Picture>(Picture{ExplicitSnapshot(ExplicitSnapshot::What::Value, typed_),
                                               ExplicitSnapshot(ExplicitSnapshot::What::Value, in.g),
                                               in.a,
                                               in.b,
                                               result_.has_value(),
                                               {}});
    if (result_)
        for (const AreaBetween::Crossing& c : result_->crossings)
            p->crossings.push_back(c.x);
    const QString gName = QStringLiteral("g(x) = ") + QString::fromStdString(in.g->f->text());
    eraseKept(QStringLiteral("area"));
    const QString what = p->region ? Plotto::tr("the region between %1 and %2 from x = %3 to %4")
                                         .arg(describeFamily(), gName, shownTrimStr(in.a), shownTrimStr(in.b))
                                   : gName;
    keepDrawing(
        what,
        [this, p, gName, keep = in.g, fTyped = typed_] {
            const std::int32_t first = graph.firstColumn(), last = graph.lastColumn();
            std::vector<double> xs;
            xs.reserve(static_cast<std::size_t>(last - first + 1));
            for (std::int32_t c = first; c <= last; ++c)
                xs.push_back(graph.plainWorldX(c));
            const std::vector<double> fs = p->f.at(xs), gs = p->g.at(xs);
            const auto row = [&](double y) {
                return std::clamp(graph.plainRow(y), double(GraphWindow::Top), double(GraphWindow::Bottom));
            };
            // The strips, one column each, in the colour of the curve on top.
            for (const bool fAbove : {true, false}) {
                if (!p->region)
                    break;
                DrawingSurface::Batch strips(
                    *surface, DrawingStyle::colour(fAbove ? DrawingStyle::kAreaFAbove : DrawingStyle::kAreaGAbove));
                for (std::size_t i = 0; i < xs.size(); ++i)
                    if (p->a <= xs[i] && xs[i] <= p->b && std::isfinite(fs[i]) && std::isfinite(gs[i]) &&
                        (fs[i] > gs[i]) == fAbove && fs[i] != gs[i] && row(fs[i]) != row(gs[i]))
                        strips.line(first + static_cast<double>(i), row(fs[i]), first + static_cast<double>(i),
                                    row(gs[i]));
            }
            for (const bool isF : {true, false}) {
                const std::vector<double>& ys = isF ? fs : gs;
                DrawingSurface::Batch points(*surface,
                                             DrawingStyle::colour(isF ? DrawingStyle::kAreaF : DrawingStyle::kAreaG));
                for (std::size_t i = 0; i < xs.size(); ++i) {
                    const double r = graph.plainRow(ys[i]);
                    if (std::isfinite(r) && GraphWindow::rowInside(r))
                        points.point(first + static_cast<double>(i), r);
                }
            }
            if (!p->crossings.empty()) {
                DrawWidthScope wide(*surface, DrawingStyle::kMarkWidth);
                DrawingSurface::Batch marks(*surface, DrawingStyle::colour(DrawingStyle::kAreaCrossing));
                const std::vector<double> at = p->f.at(p->crossings);
                for (std::size_t k = 0; k < at.size(); ++k) {
                    const double column = graph.XOrigin + p->crossings[k] * GraphWindow::Side / graph.XRange;
                    const double r = graph.plainRow(at[k]);
                    if (std::isfinite(r) && GraphWindow::rowInside(r) && column >= first && column <= last)
                        marks.point(column, r);
                }
            }
            noteTraced(explicitCurve(QStringLiteral("f"), ExplicitSnapshot::What::Value, fTyped));
            noteTraced(explicitCurve(gName, ExplicitSnapshot::What::Value, keep));
        },
        in.g, QStringLiteral("area"));
}

QString frmArea::gapWords(const AreaBetween::Gap& gap) const
{
    const QString name = gap.curve == 1 ? QStringLiteral("g(x) = ") + txtG->text().trimmed()
                         : typed_       ? QStringLiteral("f(x) = ") + QString::fromStdString(typed_->f->text())
                                        : QStringLiteral("f");
    const double width = inputs_ ? inputs_->b - inputs_->a : 0;
    const QString from = i18n::decimals(QString::fromStdString(AreaBetween::shownX(gap.from, width)));
    const QString to = i18n::decimals(QString::fromStdString(AreaBetween::shownX(gap.to, width)));
    return from == to ? Plotto::tr("%1 is not defined at x = %2").arg(name, from)
                      : Plotto::tr("%1 is not defined from x = %2 to x = %3").arg(name, from, to);
}

void frmArea::clearResults(const QString& status)
{
    result_.reset();
    for (int r = 1; r < kGridRows; ++r)
        for (int c = 1; c < 3; ++c)
            grdAreas->setCell(r, c, QString());
    lblCrossings->setText(QString());
    lblStatus->setText(status);
}

void frmArea::fillResults()
{
    const AreaBetween::Result& r = *result_;
    QStringList list;
    for (const AreaBetween::Crossing& c : r.crossings)
        if (list.size() < kListed)
            list << i18n::words(c.text());
    if (r.crossings.size() > kListed)
        list << Plotto::tr("and %1 more (Ctrl+C copies them all)").arg(r.crossings.size() - kListed);
    lblCrossings->setText(r.crossings.empty()
                              ? Plotto::tr("f and g do not cross in [a, b].")
                              : Plotto::tr("Crossings in [a, b]:\n%1").arg(list.join(QLatin1Char('\n'))));
    for (std::size_t m = 0; m < r.sums.size(); ++m) {
        const bool odd = StripRules::kRules[m].evenOnly && r.strips % 2;
        grdAreas->setCell(static_cast<int>(m) + 1, 1,
                          odd ? Plotto::tr("n odd") : shown(r.sums[m].signedSum, r.sums[m].unsignedSum.value_or(0)));
        grdAreas->setCell(static_cast<int>(m) + 1, 2, odd ? Plotto::tr("n odd") : shown(r.sums[m].unsignedSum));
    }
    grdAreas->setCell(kGridRows - 1, 1, shown(r.signedArea, r.unsignedArea.value_or(0)));
    grdAreas->setCell(kGridRows - 1, 2, shown(r.unsignedArea));
    grdAreas->setCell(0, 0, Plotto::tr("Rule (n = %1)").arg(r.strips));
    if (r.signedArea) {
        lblStatus->setText(
            Plotto::tr("Signed area %1, unsigned area %2 from x = %3 to %4 (adaptive Gauss-Kronrod, split at "
                       "the crossings; error below %5).")
                .arg(shown(r.signedArea, r.unsignedArea.value_or(0)), shown(r.unsignedArea),
                     i18n::decimals(QString::fromStdString(AreaBetween::shownX(inputs_->a))),
                     i18n::decimals(QString::fromStdString(AreaBetween::shownX(inputs_->b))),
                     i18n::decimals(QString::number(std::max(r.accuracy, 1e-15), 'g', 1))));
        return;
    }
    QStringList gaps;
    for (const AreaBetween::Gap& gap : r.gaps)
        if (gaps.size() < 3)
            gaps << gapWords(gap);
    const QString where = gaps.isEmpty() ? i18n::words(r.why) : gaps.join(QStringLiteral("; "));
    lblStatus->setText(Plotto::tr("No area: %1, so the area between the curves does not exist on [a, b].")
                           .arg(where)
                           .replace(QStringLiteral("  "), QStringLiteral(" ")));
}

std::vector<GraphScreen::DragHandle> frmArea::dragHandles()
{
    if (!result_ || !inputs_)
        return {};
    std::vector<DragHandle> handles;
    for (TextBox* box : {txtLeft, txtRight}) {
        const double x = box == txtLeft ? inputs_->a : inputs_->b;
        handles.push_back({box == txtLeft ? Plotto::tr("the left end a") : Plotto::tr("the right end b"), x, 0, true,
                           [this, box](double to, double) {
                               runForDrag([&] {
                                   box->assign(draggedValue(to));
                                   findAll();
                               });
                           }});
    }
    return handles;
}

void frmArea::describeResults(QStringList& lines) const
{
    lines << Plotto::tr("Area between f, %1, and g(x) = %2 from a = %3 to b = %4 with n = %5 strips.")
                 .arg(describeFamily(), txtG->text(), txtLeft->text(), txtRight->text(), txtStrips->text());
    if (!result_) {
        if (!lblStatus->text().isEmpty())
            lines << lblStatus->text();
        return;
    }
    QStringList crossings;
    for (const AreaBetween::Crossing& c : result_->crossings)
        crossings << QString::fromStdString(c.text());
    lines << (crossings.isEmpty()
                  ? Plotto::tr("No crossings.")
                  : QStringLiteral("Crossings: ") + crossings.join(QStringLiteral("; ")) + QLatin1Char('.'));
    for (int r = 1; r < kGridRows; ++r)
        lines << Plotto::tr("%1: signed %2, unsigned %3.")
                     .arg(grdAreas->cell(r, 0), grdAreas->cell(r, 1), grdAreas->cell(r, 2));
    lines << lblStatus->text();
}

void frmArea::mnuAbout_Click()
{
    showHelp({
        {QT_TRANSLATE_NOOP("Plotto", "What is this?"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "This screen finds the area between two curves f and g from x = a to x = b: where they cross, the region "
             "between them, and how sums of thin strips close in on the area.")},
        {QT_TRANSLATE_NOOP("Plotto", "Setting up"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "f is the screen's function: select it from the menu and choose A to E, or type one with Tools, Type a "
             "Function.  Type g(x) in its box (it may use A to E too).  Type a and b, or click their green labels to "
             "move them by one (left button up, right button down).")},
        {QT_TRANSLATE_NOOP("Plotto", "[Find Crossings]"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "Lists each x in [a, b] where f = g, found to the computer's full precision, and shades the region: light "
             "cyan where f is above g, yellow where g is above f.  Where a curve is not defined somewhere in [a, b] "
             "the screen says where, and gives no area.")},
        {QT_TRANSLATE_NOOP("Plotto", "The strips"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "The grid sums n strips by five rules: the signed area of f - g (parts where g is above count as "
             "negative) and the unsigned area of |f - g|, with the limit from adaptive integration in the last row.  "
             "[Double Strips] doubles n; Convergence, Convergence Table shows each rule's error as n doubles.")},
    });
}
