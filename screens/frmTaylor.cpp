// SPDX-License-Identifier: GPL-3.0-or-later
// The Taylor screen (see frmTaylor.h). Nothing here raises a classic run-time error: the boxes are
// read by number(), the function through ExplicitSnapshot (NaN where it fails) and the terms through
// TaylorSeries, which says in words where a derivative does not exist or a number outgrows a double.
#include "screens/frmTaylor.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "funclib/FuncGlobals.h"
#include "graphwin/DrawingStyle.h"
#include "graphwin/Language.h"
#include "runtime/Numbers.h"

using FuncGlobals::TaylorSeries;
using FuncGlobals::TaylorTerm;

namespace {

GraphScreen::Config taylorConfig()
{
    GraphScreen::Config c;
    c.errorsInWords = true;
    c.caption = Plotto::tr("Taylor Polynomials");
    c.surfaceWidth = 17200;
    return c;
}

constexpr int kGridRows = TaylorSeries::kMaxDegree + 2;  // the headings, then degrees 0 to the last
constexpr double kRight = 11220, kRightWidth = 5800;
// A term smaller than this, relative to P_n, changes nothing a double can show.
constexpr double kPrecision = 1e-16;

// sum c_k h^k by Horner's rule.
double horner(const std::vector<double>& c, double h)
{
    double p = 0;
    for (auto k = c.rbegin(); k != c.rend(); ++k)
        p = p * h + *k;
    return p;
}

QString shown(double v) { return std::isfinite(v) ? i18n::decimals(QString::number(v, 'g', 9)) : QStringLiteral("--"); }

}  // namespace

frmTaylor::frmTaylor() : GraphScreen(taylorConfig())
{
    using form::Kind;
    const auto on = form::bind(this);
    const double C = buttonColumn(), W = 1680, R = kRight;
    // clang-format off
    form::buildForm(surface, {
        // name                   kind           caption             place                          handlers / look
        {FORM_NAME(lblTaylor),     Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Taylor Polynomials"), {C, 3060, W, 300},             {}, {.align = Qt::AlignCenter}},
        {FORM_NAME(lblCentre),     Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "Centre a ="),         {C, 3420, 1000, 300},          {.MouseDown = on(&frmTaylor::lblCentre_MouseDown)}},
        {FORM_NAME(txtCentre),     Kind::Box,     "0",                  {C + 1000, 3420, W - 1000, 300}},
        {FORM_NAME(cmdAddTerm),    Kind::Button, QT_TRANSLATE_NOOP("Plotto", "&Add a Term"),        {C, 3840, W, 420},             {.Click = on(&frmTaylor::cmdAddTerm_Click)}},
        {FORM_NAME(cmdRemoveTerm), Kind::Button, QT_TRANSLATE_NOOP("Plotto", "Remo&ve a Term"),     {C, 4320, W, 420},             {.Click = on(&frmTaylor::cmdRemoveTerm_Click)}},
        {FORM_NAME(lblTolerance),  Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Tolerance"),          {C, 4860, 1000, 300}},
        {FORM_NAME(txtTolerance),  Kind::Box,     "0.1",                {C + 1000, 4860, W - 1000, 300}},
        {FORM_NAME(lblDegree),     Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Degree: none"),       {C, 5280, W, 300},             {}, {.align = Qt::AlignCenter}},
        {FORM_NAME(lblAtX),        Kind::Label, QT_TRANSLATE_NOOP("Plotto", "at x ="),             {R, 240, 700, 300}},
        {FORM_NAME(txtAtX),        Kind::Box,     "1",                  {R + 720, 240, 1000, 300},     {.Change = on(&frmTaylor::txtAtX_Change)}},
        {FORM_NAME(chkLagrange),   Kind::Check, QT_TRANSLATE_NOOP("Plotto", "&Lagrange bound"),    {R + 1980, 240, 2200, 300},    {.Click = on(&frmTaylor::chkLagrange_Click)}},
        {FORM_NAME(grdTerms),      Kind::Grid,    "",                   {R, 600, kRightWidth, 4800},   {}, {.name = QT_TRANSLATE_NOOP("Plotto", "Taylor terms"), .rows = kGridRows, .columns = 5}},
        {FORM_NAME(lblStatus),     Kind::Label,   "",                   {R, 5520, kRightWidth, 1300},  {}, {.wrap = true}},
    });
    // clang-format on
    Form_Load();
}

void frmTaylor::Form_Load()
{
    GraphScreen::Form_Load();
    const char* headings[] = {"n", QT_TRANSLATE_NOOP("Plotto", "New term"), "P_n(x)", "f(x) - P_n(x)",
                              QT_TRANSLATE_NOOP("Plotto", "Lagrange bound")};
    const double widths[] = {360, 1400, 1150, 1300, 0};
    for (int c = 0; c < 5; ++c) {
        grdTerms->setCell(0, c, Plotto::tr(headings[c]));
        grdTerms->setColumnWidthTwips(c, widths[c]);
    }
    for (int k = 0; k + 1 < kGridRows; ++k)
        grdTerms->setCell(k + 1, 0, QString::number(k));
}

void frmTaylor::Form_Activate()
{
    GraphScreen::Form_Activate();
    degree_ = -1;
    status_.clear();
    fillGrid();
}

void frmTaylor::functionReplaced()
{
    degree_ = -1;
    status_.clear();
    fillGrid();
}

void frmTaylor::cmdAddTerm_Click() { showDegree(degree_ + 1); }

void frmTaylor::cmdRemoveTerm_Click() { showDegree(std::max(degree_ - 1, 0)); }

void frmTaylor::cmdPlotto_Click() { showDegree(std::max(degree_, 0)); }

void frmTaylor::lblCentre_MouseDown(int Button, int, double, double)
{
    const std::optional<double> a = txtCentre->number();
    if (!a || (Button != 1 && Button != 2))
        return;
    txtCentre->assign(qTrimStr(*a + (Button == 1 ? 1 : -1)));
    if (degree_ >= 0)
        showDegree(degree_);
}

void frmTaylor::txtAtX_Change() { fillGrid(); }

void frmTaylor::chkLagrange_Click()
{
    grdTerms->setColumnWidthTwips(4, chkLagrange->isChecked() ? 1300 : 0);
    fillGrid();
}

TaylorSeries* frmTaylor::series()
{
    const double a = txtCentre->number().value_or(0);
    const auto& k = FuncGlobals::Coefficients;
    // Every digit of the centre and the coefficients: a change in the last one is another series.
    QString key = typed_ ? QStringLiteral("typed ") + QString::fromStdString(typed_->f->text())
                         : Plotto::tr("family %1").arg(FuncGlobals::FunctionId);
    for (double v : {a, k.A, k.B, k.C, k.D, k.E})
        key += QLatin1Char(' ') + QString::number(v, 'g', 17);
    if (!series_ || key != seriesKey_) {
        series_ = typed_ ? TaylorSeries::ofText(typed_->f->text(), a, k)
                         : TaylorSeries::ofFamily(FuncGlobals::FunctionId, a, k);
        seriesKey_ = key;
    }
    return &*series_;
}

void frmTaylor::showDegree(int n)
{
    degree_ = std::clamp(n, 0, TaylorSeries::kMaxDegree);
    TaylorSeries& s = *series();
    const TaylorTerm& last = s.term(degree_);
    if (!s.refusal().empty())
        status_ = Plotto::tr("No Taylor polynomial: %1.").arg(i18n::words(s.refusal()));
    else if (last.state != TaylorTerm::State::Found)
        status_ = Plotto::tr("No Taylor polynomial of degree %1 about a = %2: %3.")
                      .arg(degree_)
                      .arg(shownTrimStr(s.centre()), i18n::words(last.why));
    else
        status_ =
            Plotto::tr("P_%1 about a = %2 in red%3; the green band on the x axis is where |f - P_%1| < %4.")
                .arg(degree_)
                .arg(shownTrimStr(s.centre()), degree_ > 0 ? Plotto::tr(", P_%1 faint").arg(degree_ - 1) : QString(),
                     txtTolerance->text().trimmed());
    if (degree_ == TaylorSeries::kMaxDegree && n > degree_)
        status_ += Plotto::tr(" Degree %1 is the last this screen works out.").arg(degree_);
    draw();
    fillGrid();
}

void frmTaylor::draw()
{
    TaylorSeries& s = *series();
    auto picture = std::make_shared<Picture>();
    picture->centre = s.centre();
    picture->tolerance = txtTolerance->number().value_or(0);
    for (int k = 0; k <= degree_ && s.term(k).state == TaylorTerm::State::Found; ++k)
        picture->now.push_back(s.term(k).value);
    if (static_cast<int>(picture->now.size()) != degree_ + 1)
        picture->now.clear();  // a term is missing: nothing but f is drawn
    else if (degree_ > 0)
        picture->before.assign(picture->now.begin(), picture->now.end() - 1);
    const FuncGlobals::ExplicitSnapshot f(FuncGlobals::ExplicitSnapshot::What::Value, typed_);
    eraseKept(QStringLiteral("taylor"));
    keepDrawing(
        Plotto::tr("the Taylor polynomial of degree %1 about %2 of %3")
            .arg(degree_)
            .arg(shownTrimStr(picture->centre), describeFamily()),
        [this, picture, f] { drawPicture(*picture, f); }, typed_, QStringLiteral("taylor"));
}

void frmTaylor::drawPicture(const Picture& p, const FuncGlobals::ExplicitSnapshot& f)
{
    const std::int32_t first = graph.firstColumn(), last = graph.lastColumn();
    std::vector<double> xs;
    xs.reserve(static_cast<std::size_t>(last - first + 1));
    for (std::int32_t c = first; c <= last; ++c)
        xs.push_back(graph.plainWorldX(c));
    const std::vector<double> fs = f.at(xs);
    const auto curve = [&](const std::vector<double>& values, int colour) {
        DrawingSurface::Batch points(*surface, DrawingStyle::colour(colour));
        for (std::size_t i = 0; i < xs.size(); ++i) {
            const double row = graph.plainRow(values[i]);
            if (std::isfinite(row) && GraphWindow::rowInside(row))
                points.point(first + static_cast<double>(i), row);
        }
    };
    const auto polynomial = [&](const std::vector<double>& c) {
        std::vector<double> values(xs.size());
        for (std::size_t i = 0; i < xs.size(); ++i)
            values[i] = horner(c, xs[i] - p.centre);
        return values;
    };
    if (!p.before.empty())
        curve(polynomial(p.before), DrawingStyle::kTaylorPrevious);
    curve(fs, DrawingStyle::kTaylorFunction);
    if (p.now.empty())
        return;
    const std::vector<double> now = polynomial(p.now);
    curve(now, DrawingStyle::kTaylorPolynomial);
    // The band: the runs of columns where |f - P_n| < tolerance, a few rows thick about the x axis
    // (at the square's edge when the axis is outside it).
    const double axis =
        std::clamp(static_cast<double>(graph.YOrigin), GraphWindow::Top + 45.0, GraphWindow::Bottom - 45.0);
    DrawingSurface::Batch band(*surface, DrawingStyle::colour(DrawingStyle::kTaylorBand));
    std::size_t i = 0;
    while (i < xs.size()) {
        const auto inside = [&](std::size_t j) { return std::fabs(fs[j] - now[j]) < p.tolerance; };
        if (!inside(i)) {
            ++i;
            continue;
        }
        std::size_t j = i;
        while (j + 1 < xs.size() && inside(j + 1))
            ++j;
        for (double row = axis - 45; row <= axis + 45; row += 15)
            band.line(first + static_cast<double>(i), row, first + static_cast<double>(j), row);
        i = j + 1;
    }
}

void frmTaylor::fillGrid()
{
    for (int r = 1; r < kGridRows; ++r)
        for (int c = 1; c < 5; ++c)
            grdTerms->setCell(r, c, QString());
    lblDegree->setText(degree_ < 0 ? Plotto::tr("Degree: none") : Plotto::tr("Degree: %1").arg(degree_));
    lblStatus->setText(status_);
    if (degree_ < 0 || !series_)
        return;
    TaylorSeries& s = *series_;
    const std::optional<double> x = txtAtX->number();
    const double fx =
        x ? FuncGlobals::ExplicitSnapshot(FuncGlobals::ExplicitSnapshot::What::Value, typed_).at(*x) : std::nan("");
    for (int k = 0; k <= degree_; ++k) {
        const TaylorTerm& t = s.term(k);
        grdTerms->setCell(k + 1, 1, QString::fromStdString(TaylorSeries::termText(t, s.centre())));
        if (t.state != TaylorTerm::State::Found || !x)
            continue;
        const double p = s.polynomial(k, *x);
        const double term = t.value * std::pow(*x - s.centre(), k);
        grdTerms->setCell(k + 1, 2, shown(p));
        const bool past = term != 0 && std::fabs(term) < kPrecision * std::fabs(p);
        if (past && k == degree_)
            lblStatus->setText(status_ + Plotto::tr(" At x = %1 the new term is past double precision: it "
                                                    "changes no digit of P_%2 a double can hold.")
                                             .arg(shownTrimStr(*x))
                                             .arg(k));
        grdTerms->setCell(k + 1, 3,
                          past             ? Plotto::tr("past double precision")
                          : std::isnan(fx) ? QStringLiteral("no f(x)")
                                           : shown(fx - p));
        if (chkLagrange->isChecked())
            grdTerms->setCell(k + 1, 4, shown(s.lagrangeBound(k, *x)));
    }
}

std::vector<GraphScreen::DragHandle> frmTaylor::dragHandles()
{
    const std::optional<double> a = txtCentre->number();
    if (!a || degree_ < 0)
        return {};
    return {{Plotto::tr("the centre a"), *a, 0, true, [this](double x, double) {
                 runForDrag([&] {
                     txtCentre->assign(draggedValue(x));
                     showDegree(degree_);
                 });
             }}};
}

void frmTaylor::describeResults(QStringList& lines) const
{
    lines << Plotto::tr("Taylor polynomials of %1.").arg(describeFamily());
    if (degree_ < 0) {
        lines << Plotto::tr("No terms yet; centre box: %1.").arg(txtCentre->text());
        return;
    }
    QStringList terms;
    for (int k = 0; k <= degree_; ++k)
        terms << QStringLiteral("%1: %2").arg(grdTerms->cell(k + 1, 0), grdTerms->cell(k + 1, 1));
    lines << Plotto::tr("Degree %1. Terms: ").arg(degree_) + terms.join(QStringLiteral("; ")) + QLatin1Char('.');
    if (!lblStatus->text().isEmpty())
        lines << lblStatus->text();
}

void frmTaylor::mnuAbout_Click()
{
    showHelp({
        {QT_TRANSLATE_NOOP("Plotto", "What is this?"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "This screen builds the Taylor polynomial of a function about a centre a one term at a time, so that you "
             "can see the polynomial hug the curve over a wider and wider stretch as the degree grows.")},
        {QT_TRANSLATE_NOOP("Plotto", "Setting up"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "Select a function from the menu and choose A to E, or type one with Tools, Type a Function.  Type the "
             "centre a in its box, or click the green label to move it by one (left button up, right button down).")},
        {QT_TRANSLATE_NOOP("Plotto", "[Add a Term] and [Remove a Term]"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "Each click of [Add a Term] adds the next term, f^(n)(a)(x - a)^n / n!.  The function is drawn in blue, "
             "the polynomial of the degree shown in red and the one before it in light red.  [Remove a Term] goes back "
             "a degree.")},
        {QT_TRANSLATE_NOOP("Plotto", "Tolerance"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "The light green band along the x axis marks where the polynomial is within the tolerance of the "
             "function.  Watch it widen as terms are added.")},
        {QT_TRANSLATE_NOOP("Plotto", "The grid"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "Each row is a degree: its new term with exact coefficients where they are fractions, the polynomial's "
             "value at the x you choose above the grid, and the error f(x) - P(x).  Tick Lagrange bound to see how "
             "large the error can be at most.  Where a derivative does not exist at a, or the numbers outgrow the "
             "computer's precision, the grid says so in words.")},
    });
}
