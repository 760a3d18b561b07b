// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/frmNewton.h"

#include <memory>
#include <utility>

#include <cmath>

#include <QMenu>

#include "funclib/FuncGlobals.h"
#include "funclib/FunctionSource.h"
#include "graphwin/Dialogs.h"
#include "graphwin/DrawingStyle.h"
#include "graphwin/Language.h"
#include "runtime/Numbers.h"
#include "screens/NewtonSteps.h"

namespace {

GraphScreen::Config newtonConfig()
{
    GraphScreen::Config c;
    c.caption = Plotto::tr("Newton's Method and Derivatives");
    c.surfaceWidth = 13800;
    return c;
}

constexpr int kGridRows = 15;

}  // namespace

frmNewton::frmNewton() : GraphScreen(newtonConfig())
{
    using form::Kind;
    const auto on = form::bind(this);
    const double C = buttonColumn(), W = 1680;
    // clang-format off
    form::buildForm(surface, {
        // name            kind          caption              place                   handlers / look
        {FORM_NAME(lblNewtonMethod), Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Newton's Method"),   {C, 3060, W, 300},      {}, {.align = Qt::AlignCenter}},
        {FORM_NAME(lblGuess),        Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Guess:"),            {C, 3420, W, 300}},
        {FORM_NAME(txtGuess),        Kind::Box,    "FirstGuess",        {C, 3720, W, 300},      {.Click = on(&frmNewton::txtGuess_Click)}},
        {FORM_NAME(cmdApply),        Kind::Button, QT_TRANSLATE_NOOP("Plotto", "Apply Newton's"),    {C, 4140, W, 420},      {.Click = on(&frmNewton::cmdApply_Click)}},
        {FORM_NAME(cmdDeriv),        Kind::Button, QT_TRANSLATE_NOOP("Plotto", "Graph &Derivative"), {C, 4680, W, 420},      {.Click = on(&frmNewton::cmdDeriv_Click)}},
        {FORM_NAME(grdGuess),        Kind::Grid,   "",                  {11220, 600, 2460, 4500}, {}, {.name = QT_TRANSLATE_NOOP("Plotto", "Guesses"), .rows = kGridRows, .columns = 2}},
    });
    // clang-format on
    mnuZoomSteps = mnuView->menu()->addAction(Plotto::tr("Zoom to the &Steps"));
    NAME_AS_MEMBER(mnuZoomSteps);
    connect(mnuZoomSteps, &QAction::triggered, this,
            [this] { guarded(mnuZoomSteps, [this] { mnuZoomSteps_Click(); }); });
    Form_Load();
}

void frmNewton::Form_Load()
{
    GraphScreen::Form_Load();
    grdGuess->setCell(0, 0, Plotto::tr("Guess #"));
    grdGuess->setCell(0, 1, Plotto::tr("Value"));
    grdGuess->setColumnWidthTwips(0, 670);
    grdGuess->setColumnWidthTwips(1, 1500);
    for (int k = 1; k < kGridRows; ++k)
        grdGuess->setCell(k, 0, QString::number(k));
}

void frmNewton::Form_Activate()
{
    GraphScreen::Form_Activate();
    NewSequence = true;
    GuessNumber = 1;
}

void frmNewton::mnuFunc_Click(int Index)
{
    if (Index != FuncGlobals::FunctionId) {
        NewSequence = true;
        GuessNumber = 1;
    }
    GraphScreen::mnuFunc_Click(Index);
}

void frmNewton::coefficientChanged(int) { NewSequence = true; }

void frmNewton::functionReplaced()
{
    NewSequence = true;
    GuessNumber = 1;
}

void frmNewton::txtGuess_Click() { txtGuess->setSelection(0, static_cast<int>(txtGuess->text().size())); }

void frmNewton::cmdApply_Click()
{
    if (NewSequence) {
        for (int k = 1; k < kGridRows; ++k)
            grdGuess->setCell(k, 1, QString());
        grdGuess->setCell(1, 1, txtGuess->text());
        GuessNumber = 1;
    }
    const double x = txtGuess->value();
    if (typedInUse()) {
        // A typed function cannot go on from a guess where it or its derivative is undefined, or where
        // the numbers outgrow the window: the guess's row says so in words.
        const bool noValue = std::isnan(FuncGlobals::ExplicitValue(x));
        QString stopped;
        if (noValue || std::isnan(FuncGlobals::ExplicitSlope(x)))
            stopped = noValue ? Plotto::tr(" (no f(x) here)") : Plotto::tr(" (no f'(x) here)");
        else
            typedGuard([&] { applyNewton(x); }, [&](const rt::RuntimeError&) { stopped = Plotto::tr(" (too large)"); });
        if (!stopped.isEmpty()) {
            NewSequence = false;
            if (GuessNumber < kGridRows)
                grdGuess->setCell(GuessNumber, 1, shownTrimStr(x) + stopped);
            GuessNumber = rt::CInt(GuessNumber + 1.0);
        }
        return;
    }
    applyNewton(x);
}

void frmNewton::applyNewton(double x)
{
    using rt::Chk;
    // Two kept steps, so that a new window draws them again: the guess's vertical line up to the
    // curve (with "x1" at the start of a sequence), then the tangent down to the axis.
    const bool first = NewSequence;
    keepDrawing(
        Plotto::tr("the guess x = %1").arg(shownTrimStr(x)), [this, x, first] { drawGuess(x, first); }, typed_,
        QStringLiteral("steps"));
    NewSequence = false;
    auto step = std::make_shared<std::pair<double, double>>();  // the slope and the next guess
    keepDrawing(
        Plotto::tr("the tangent at x = %1").arg(shownTrimStr(x)), [this, x, step] { *step = drawTangent(x); }, typed_,
        QStringLiteral("steps"));
    if (step->first != 0) {
        txtGuess->assign(qTrimStr(step->second));
    } else {
        MsgBox(Plotto::tr("This guess failed due to zero for the slope"), Plotto::tr("Division by zero"));
    }
    if (GuessNumber < kGridRows)
        grdGuess->setCell(GuessNumber, 1, shownTrimStr(x));
    GuessNumber = rt::CInt(GuessNumber + 1.0);
}

void frmNewton::drawGuess(double x, bool first)
{
    using rt::Chk;
    const QRgb black = DrawingStyle::colour(DrawingStyle::kNewtonSteps);
    const double c = graph.column(x);
    const double y = FuncGlobals::ExplicitValue(x);
    const double r = graph.row(y);
    const double Y0 = graph.YOrigin;
    if (GraphWindow::Top < r && r < GraphWindow::Bottom) {
        surface->Line(c, Y0, c, r, black);
        const QString label = QStringLiteral("x1");
        surface->CurrentX = Chk(c - surface->TextWidth(label) / 2);
        surface->CurrentY = Y0;
        if (first)
            surface->Print(label);
    }
}

std::pair<double, double> frmNewton::drawTangent(double x)
{
    const double s = FuncGlobals::ExplicitSlope(x);
    if (s == 0)
        return {0, x};
    const double y = FuncGlobals::ExplicitValue(x);
    const double next = rt::Chk(x - rt::Div(y, s));
    surface->Line(graph.column(x), graph.row(y), graph.column(next), graph.YOrigin,
                  DrawingStyle::colour(DrawingStyle::kNewtonSteps));
    return {s, next};
}

void frmNewton::cmdDeriv_Click()
{
    plotExplicit(FuncGlobals::ExplicitSnapshot::What::Slope, Plotto::tr("the derivative of ") + describeFamily());
}

void frmNewton::mnuAbout_Click()
{
    showHelp({
        {QT_TRANSLATE_NOOP("Plotto", "What is this?"),
         QT_TRANSLATE_NOOP("Plotto", "This screen is used to demonstrate Newton's method for finding "
                                     "roots(x-intercepts) of functions.  Along the "
                                     "way you can graph the derivatives of functions too.")},
        {QT_TRANSLATE_NOOP("Plotto", "Newton's Method"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "Newton's method simple takes a guess, uses the slope of the function at the (x={guess},y) point to plot "
             "where this tangent line will intercept the x-axis.  This becomes the second guess and is used in the "
             "same "
             "procedure to find the third and so on...  As your guesses get closer to the root, the function appears "
             "more "
             "linear like so you get very close.")},
        {QT_TRANSLATE_NOOP("Plotto", "Failures"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "There may be some cases where Newton's Method fails.   This may be due to the nature of the function or "
             "the guess.")},
        {QT_TRANSLATE_NOOP("Plotto", "[Apply Newton's]"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "To try Newton's method: select a function and the variables A to E.  Select a first guess at the right.  "
             "Click [Apply Newton's].  You should see the line drawn from your (x-guess, y) to the x-axis.  The second "
             "guess will appear in the guess box so you can [Apply Newton's] again.")},
        {QT_TRANSLATE_NOOP("Plotto", "Change and Continue"),
         QT_TRANSLATE_NOOP("Plotto", "Zoom in or change the window and Apply again.")},
    });
}

void frmNewton::describeResults(QStringList& lines) const
{
    QStringList guesses;
    for (int r = 1; r < grdGuess->rowCount(); ++r)
        if (!grdGuess->cell(r, 1).isEmpty())
            guesses << QStringLiteral("%1: %2").arg(grdGuess->cell(r, 0), grdGuess->cell(r, 1));
    lines << Plotto::tr("Newton's method on %1.").arg(describeFamily());
    lines << (guesses.isEmpty() ? Plotto::tr("No guesses yet; first guess box: %1.").arg(txtGuess->text())
                                : Plotto::tr("Guesses: %1.").arg(guesses.join(QStringLiteral("; "))));
    if (const auto gap = newton::lastGap(this->guesses()))
        lines << Plotto::tr("The last two guesses are %1 apart; View, Zoom to the Steps shows the last steps.")
                     .arg(i18n::decimals(QString::number(*gap, 'g', 3)));
}

std::vector<double> frmNewton::guesses() const
{
    std::vector<double> out;
    for (int r = 1; r < grdGuess->rowCount() && !grdGuess->cell(r, 1).isEmpty(); ++r)
        if (const auto x = rt::TryVal(i18n::typedDecimals(grdGuess->cell(r, 1)).toStdString()))
            out.push_back(*x);
    if (!NewSequence && !out.empty())
        if (const auto next = txtGuess->number())
            out.push_back(*next);
    return out;
}

void frmNewton::mnuZoomSteps_Click()
{
    // The curve's values through the path that never raises: a value that cannot be had is left out.
    const FuncGlobals::ExplicitSnapshot f(FuncGlobals::ExplicitSnapshot::What::Value, typed_);
    const auto window = newton::stepsWindow(guesses(), [&f](double x) { return f.at(x); });
    if (!window) {
        announce(Plotto::tr("No steps to zoom to yet: press Apply Newton's at least once."));
        return;
    }
    showWindow(*window);
}

std::vector<GraphScreen::DragHandle> frmNewton::dragHandles()
{
    const std::optional<double> first =
        NewSequence ? txtGuess->number() : rt::TryVal(i18n::typedDecimals(grdGuess->cell(1, 1)).toStdString());
    if (!first)
        return {};
    return {{Plotto::tr("the first guess"), *first, 0, true, [this](double x, double) { dragGuess(x); }}};
}

void frmNewton::dragGuess(double x)
{
    const int steps = NewSequence ? 1 : std::max(1, GuessNumber - 1);
    eraseKept(QStringLiteral("steps"));
    runForDrag([&] {
        NewSequence = true;
        GuessNumber = 1;
        txtGuess->assign(draggedValue(x));
        for (int i = 0; i < steps; ++i)
            cmdApply_Click();
    });
}
