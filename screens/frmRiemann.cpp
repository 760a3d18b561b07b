// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/frmRiemann.h"

#include <cmath>
#include <memory>
#include <utility>
#include <vector>

#include "screens/ConvergenceWindow.h"

#include "funclib/FuncGlobals.h"
#include "graphwin/Dialogs.h"
#include "graphwin/Language.h"
#include "runtime/Numbers.h"
#include "runtime/QBColor.h"
#include "runtime/VectorState.h"

namespace {

GraphScreen::Config riemannConfig()
{
    GraphScreen::Config c;
    c.caption = Plotto::tr("Riemann and Other Sums");
    c.surfaceWidth = 14400;
    c.squareLeft = 1800;
    c.zoom = GraphScreen::Zoom::TowardsOrigin;
    c.validatingLimits = true;
    c.coefficientDefaults = {"1", "0", "0", "0", "0", "0"};
    c.functionMenuCaption = QT_TRANSLATE_NOOP("Plotto", "&Select a Function");
    c.functionLabelCaption = QStringLiteral("y=x^2 +1");
    c.cleanCaption = QT_TRANSLATE_NOOP("Plotto", "&Clear Graph");
    c.defaultsCaption = QT_TRANSLATE_NOOP("Plotto", "&Set to Defaults");
    return c;
}

constexpr double kPanel = 8940, kPanelWidth = 1800, kSums = 10920, kSumsWidth = 3360;
// An area label before its sum is worked out (a table caption: buildForm translates it).
const char* const kAreaText = QT_TRANSLATE_NOOP("Plotto", "Area=");
// The sums' rows within their frame: the first's top, and the step from one to the next.
constexpr double kFirstSumRow = 360, kSumRow = 420;

// The panel's rows for the sums: for each, its check and the label of its area, 420 twips apart.
std::vector<form::Control> sumRows(frmRiemann& screen)
{
    std::vector<form::Control> rows;
    double top = kFirstSumRow;
    for (const frmRiemann::Method& m : frmRiemann::kMethods) {
        rows.push_back({form::Slot(&(screen.*m.check), QString::fromLatin1(m.checkName)),
                        form::Kind::Check,
                        QString::fromLatin1(m.caption),
                        {120, top, 1620, 360},
                        {},
                        {.tip = m.tip}});
        rows.push_back({form::Slot(&(screen.*m.result), QString::fromLatin1(m.resultName)),
                        form::Kind::Label,
                        kAreaText,
                        {1800, top, 1500, 360}});
        top += kSumRow;
    }
    return rows;
}

}  // namespace

// One click of Graph Partitions: the interval, the function, the square and the batch each sum
// draws into, and the heights it drew (kept as a curve to hear and walk along).
struct frmRiemann::Parts {
    frmRiemann& screen;
    double L, R, dx;
    std::int32_t n;
    double Y0;
    std::vector<audio::Point> heights;

    static double f(double x) { return FuncGlobals::ExplicitValue(x); }
    bool inside(double a, double b, double t) const
    {
        return screen.graph.strictlyInside(a, t) && screen.graph.strictlyInside(b, t);
    }
    // A rectangle of height y over [xa, xb]; a typed function's gap draws none.
    auto bars(DrawingSurface::Batch& batch)
    {
        return [this, &batch](double xa, double xb, double y) {
            heights.push_back({(xa + xb) / 2, y});
            if (std::isnan(y))
                return;
            const GraphWindow& g = screen.graph;
            const double a = g.column(xa), b = g.column(xb), t = g.row(y);
            if (!inside(a, b, t))
                return;
            batch.bar(a, t, b, t, Y0);
        };
    }
};

namespace {

using RiemannSums::Result;
using Parts = frmRiemann::Parts;

// The function a sum of evenly placed points evaluates: a typed function's values at the points
// `run(f, sink)` asks for are worked out in one column, the points found by a first run that draws
// nothing (the random sums are not run twice: their draws would change).
template <class Run>
FuncGlobals::ExplicitAhead ahead(Run run)
{
    std::vector<double> xs;
    if (FuncGlobals::TypedExplicit) {
        try {
            run([&xs](double x) { return xs.push_back(x), 0.0; }, [](auto&&...) {});
        } catch (const rt::RuntimeError&) {  // the sum itself raises there; the points before it serve
        }
    }
    return FuncGlobals::ExplicitAhead(std::move(xs));
}

Result leftSum(Parts& p, DrawingSurface::Batch& b)
{
    const auto run = [&p](auto&& f, auto&& bar) { return RiemannSums::leftEndpoint(f, p.L, p.dx, p.n, bar); };
    return run(ahead(run), p.bars(b));
}
Result rightSum(Parts& p, DrawingSurface::Batch& b)
{
    const auto run = [&p](auto&& f, auto&& bar) { return RiemannSums::rightEndpoint(f, p.L, p.dx, p.n, bar); };
    return run(ahead(run), p.bars(b));
}
Result midSum(Parts& p, DrawingSurface::Batch& b)
{
    const auto run = [&p](auto&& f, auto&& bar) { return RiemannSums::midpoint(f, p.L, p.dx, p.n, bar); };
    return run(ahead(run), p.bars(b));
}
Result randomSum(Parts& p, DrawingSurface::Batch& b)
{
    return RiemannSums::randomPoint(Parts::f, p.L, p.dx, p.n, p.bars(b));
}
Result riemannSum(Parts& p, DrawingSurface::Batch& b)
{
    return RiemannSums::randomWidths(Parts::f, p.L, p.R, p.n, p.screen.RandomPoints, p.bars(b));
}

Result trapezoidSum(Parts& p, DrawingSurface::Batch& batch)
{
    const GraphWindow& g = p.screen.graph;
    const auto run = [&p](auto&& f, auto&& t) { return RiemannSums::trapezoidal(f, p.L, p.dx, p.n, t); };
    return run(ahead(run), [&](double xa, double xb, double y1, double y2) {
        p.heights.push_back({(xa + xb) / 2, (y1 + y2) / 2});
        if (std::isnan(y1) || std::isnan(y2))
            return;
        const double a = g.column(xa), b = g.column(xb);
        const double t1 = g.row(y1), t2 = g.row(y2);
        if (!p.inside(a, b, t1))  // only the left height is tested
            return;
        batch.bar(a, t1, b, t2, p.Y0);
    });
}

Result simpsonSum(Parts& p, DrawingSurface::Batch& outline)
{
    const GraphWindow& g = p.screen.graph;
    // A third of a partition in twips: the steps of the outline stand at a third and five thirds.
    const double s = rt::Chk(rt::Div(rt::Chk((p.dx / 3) * GraphWindow::Side), g.XRange));
    const auto run = [&p](auto&& f, auto&& pair) { return RiemannSums::simpson(f, p.L, p.dx, p.n, pair); };
    return run(ahead(run), [&](double xa, double xc, double y0, double y1, double y2) {
        p.heights.push_back({xa, y0});
        p.heights.push_back({(xa + xc) / 2, y1});
        if (std::isnan(y0) || std::isnan(y1) || std::isnan(y2))
            return;
        const double a = g.column(xa), c = g.column(xc);
        const double t0 = g.row(y0), t1 = g.row(y1), t2 = g.row(y2);
        if (!(p.inside(a, c, t0) && GraphWindow::rowStrictlyInside(t2)))
            return;
        const double a1 = rt::Chk(a + s), a5 = rt::Chk(a + 5 * s);
        const double steps[] = {a, p.Y0, a, t0, a1, t0, a1, t1, a5, t1, a5, t2, c, t2, c, p.Y0};
        for (int i = 0; i + 3 < 16; i += 2)
            outline.line(steps[i], steps[i + 1], steps[i + 2], steps[i + 3]);
    });
}

}  // namespace

// clang-format off
// The check and area members of a row, with their names.
#define SUM_MEMBERS(check, area) &frmRiemann::check, &frmRiemann::area, #check, #area
const std::vector<frmRiemann::Method> frmRiemann::kMethods = {
    // caption          tip                                                        check and area                    colour sum      cleared by a new function
    {QT_TRANSLATE_NOOP("Plotto", "Left Endpoint"),  nullptr,                                                  SUM_MEMBERS(chkLeft, lblLeftE),       2, leftSum,      true},
    {QT_TRANSLATE_NOOP("Plotto", "Right Endpoint"), nullptr,                                                  SUM_MEMBERS(chkRight, lblRightE),     1, rightSum,     true},
    {QT_TRANSLATE_NOOP("Plotto", "Midpoint"),       nullptr,                                                  SUM_MEMBERS(chkMid, lblMid),          4, midSum,       true},
    {QT_TRANSLATE_NOOP("Plotto", "Trapezoidal"),    nullptr,                                                  SUM_MEMBERS(chkTrap, lblTrap),        5, trapezoidSum, true},
    {QT_TRANSLATE_NOOP("Plotto", "Random point"),   QT_TRANSLATE_NOOP("Plotto", "A random point is picked on the equal width intervals "), SUM_MEMBERS(chkRandom, lblRnd),       6, randomSum,    true},
    {QT_TRANSLATE_NOOP("Plotto", "Simpson's"),      nullptr,                                                  SUM_MEMBERS(chkSimpson, lblSimpson),  3, simpsonSum,   false},
    {QT_TRANSLATE_NOOP("Plotto", "Riemann"),        QT_TRANSLATE_NOOP("Plotto", "Random width Interval and point on it"),                  SUM_MEMBERS(chkRiemann, lblRiemann),  7, riemannSum,   true},
};
#undef SUM_MEMBERS
// clang-format on

frmRiemann::frmRiemann() : GraphScreen(riemannConfig())
{
    // The square starts at 1800 here, so the coefficient panel is narrower than the grapher's.
    placeTwips(lblVariables, 60, 600, 1620, 300);
    TextBox* boxes[] = {txtA, txtB, txtC, txtD, txtE};
    ClickLabel* labels[] = {lblA, lblB, lblC, lblD, lblE};
    for (int i = 0; i < 5; ++i) {
        placeTwips(labels[i], 60, 960 + 360 * i, 420, 300);
        placeTwips(boxes[i], 540, 960 + 360 * i, 1080, 300);
    }
    // Two lines, for the longer captions, between the coefficients and the Xmin box.
    placeTwips(lblFunction, 60, 2760, 1620, 470);
    placeTwips(cmdExit, 60, 6300, 1560, 420);

    QPushButton* const column[] = {cmdGraphNow, cmdErase, cmdZoomIn, cmdReset};
    const double tops[] = {600, 1680, 2220, 2760};
    for (int i = 0; i < 4; ++i)
        placeTwips(column[i], kPanel, tops[i], kPanelWidth, 420);
    cmdZoomIn->setToolTip(Plotto::tr("Cut the scale in half"));
    buildSumsPanel();
    Form_Load();
    convergence = addConvergenceMenu(this, menuBar, Plotto::tr("Convergence of the sums"), [this] {
        const QString unusable = notNumbers({{lblLBound->text(), txtLBound}, {lblRBound->text(), txtRBound}});
        if (!unusable.isEmpty())
            return Convergence::sumsWithout(unusable.toStdString());
        return Convergence::sums(*txtLBound->number(), *txtRBound->number(), PartitionCount);
    });
}

void frmRiemann::buildSumsPanel()
{
    using form::Kind;
    const auto on = form::bind(this);
    const double P = kPanel, W = kPanelWidth;
    // clang-format off
    form::buildForm(surface, {
        // name           kind           caption                  place               handlers / look
        {FORM_NAME(cmdCleanParts),  Kind::Button, QT_TRANSLATE_NOOP("Plotto", "&Erase Partitions"),     {P, 1140, W, 420},  {.Click = on(&frmRiemann::cmdCleanParts_Click)}},
        {FORM_NAME(lblPartitions),  Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "Number of Partitions"),  {P, 3420, W, 300},  {.MouseDown = on(&frmRiemann::lblPartitions_MouseDown)}},
        {FORM_NAME(txtParts),       Kind::Box,     "1",                     {P, 3720, W, 300},  {.Change = on(&frmRiemann::txtParts_Change)}},
        {FORM_NAME(cmdDouble),      Kind::Button, QT_TRANSLATE_NOOP("Plotto", "&Double Partitions"),    {P, 4140, W, 420},  {.Click = on(&frmRiemann::cmdDouble_Click)},
                                                                                     {.tip = QT_TRANSLATE_NOOP("Plotto", "Automatically double Number of Partitions")}},
        {FORM_NAME(cmdParts),       Kind::Button, QT_TRANSLATE_NOOP("Plotto", "Graph &Partitions"),     {P, 4680, W, 420},  {.Click = on(&frmRiemann::cmdParts_Click)},
                                                                                     {.tip = QT_TRANSLATE_NOOP("Plotto", "See the partitions from the Riemann Sums")}},
        {FORM_NAME(lblLBound),      Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "Left Boundary"),         {P, 5340, W, 300},  {.MouseDown = on(&frmRiemann::lblLBound_MouseDown)}},
        {FORM_NAME(txtLBound),      Kind::Box,     "-2",                    {P, 5640, W, 300},  {.Change = on(&frmRiemann::txtLBound_Change)}},
        {FORM_NAME(lblRBound),      Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "Right Boundary"),        {P, 6060, W, 300},  {.MouseDown = on(&frmRiemann::lblRBound_MouseDown)}},
        {FORM_NAME(txtRBound),      Kind::Box,     "2",                     {P, 6360, W, 300},  {.Change = on(&frmRiemann::txtRBound_Change)}},
        {FORM_NAME(lblAreas),       Kind::Label, QT_TRANSLATE_NOOP("Plotto", "AREA"),                  {kSums, 240, kSumsWidth, 300}, {}, {.align = Qt::AlignCenter}},
        {FORM_NAME(fraSums),        Kind::Frame, QT_TRANSLATE_NOOP("Plotto", "Area Sums"),             {kSums, 600, kSumsWidth, kFirstSumRow + kSumRow * double(kMethods.size())}, {},
                                                                  {.tip = QT_TRANSLATE_NOOP("Plotto", "Check one to see partitions when clicking Graph Partitions")}, sumRows(*this)},
    });
    // clang-format on
}

void frmRiemann::Form_Load()
{
    PartitionCount = 1;
    txtParts->assign(QStringLiteral("1"));
    loadFunctionMenu();
    mnuFunc_Click(2);
}

void frmRiemann::cmdGraphNow_Click()
{
    CleanGraph();
    plotFunction();
}

void frmRiemann::cmdCleanParts_Click()
{
    CleanGraph();
    cmdGraphNow_Click();
}

void frmRiemann::cmdErase_Click() { CleanGraph(); }

void frmRiemann::cmdReset_Click()
{
    writeDefaultLimits();
    cmdGraphNow_Click();
}

void frmRiemann::cmdZoomIn_Click()
{
    zoomLimits();
    cmdGraphNow_Click();
}

void frmRiemann::mnuFunc_Click(int Index)
{
    if (Index != FuncGlobals::FunctionId)
        resetAreas();
    GraphScreen::mnuFunc_Click(Index);
}

void frmRiemann::showResult(ClickLabel* label, const RiemannSums::Result& result)
{
    if (result.odd) {
        label->setText(Plotto::tr("Parts not even #"));
        return;
    }
    if (result.gap) {
        label->setText(Plotto::tr("undefined at x = %1").arg(shownTrimStr(result.gapAt)));
        return;
    }
    label->setText(result.error ? Plotto::tr("= error!") : QStringLiteral("= ") + shownStr(result.area));
}

void frmRiemann::functionReplaced() { resetAreas(); }

void frmRiemann::resetAreas()
{
    for (const Method& m : kMethods)
        if (m.clearedByNewFunction)
            (this->*m.result)->setText(Plotto::tr(kAreaText));
}

void frmRiemann::cmdParts_Click()
{
    lblAreas->setText(Plotto::tr("Working"));
    lblAreas->repaint();
    rt::cleanVectorStateForHotLoop();

    const double L = txtLBound->value(), R = txtRBound->value();
    const std::int32_t n = PartitionCount;
    Parts parts{*this, L, R, rt::Div(rt::Chk(R - L), n), n, static_cast<double>(graph.YOrigin), {}};
    for (const Method& m : kMethods) {
        if (!(this->*m.check)->isChecked())
            continue;
        ClickLabel* label = this->*m.result;
        // With a typed function a sum whose numbers grow too large says so, and the others go on.
        typedGuard(
            [&] {
                // Each sum draws into a batch of its colour: the loop writes plain numbers, and the
                // batch draws them when the sum is done (or ends with an error), before its area shows.
                // The sum and its bars are a kept step: a new window draws the same bars again (the
                // random sums with the same draws), standing on that window's axis.
                auto done = std::make_shared<std::pair<RiemannSums::Result, std::vector<audio::Point>>>();
                keepDrawing(
                    //: a sum's bars as drawn ("Left Endpoint bars")
                    Plotto::tr("%1 bars").arg(Plotto::tr(m.caption)),
                    [this, &m, L = parts.L, R = parts.R, dx = parts.dx, n, done] {
                        Parts drawn{*this, L, R, dx, n, static_cast<double>(graph.YOrigin), {}};
                        drawn.heights.reserve(static_cast<std::size_t>(std::max(n, 0)) + 1);
                        DrawingSurface::Batch batch(*surface, rgbColor(rt::QBColor(m.colour)));
                        done->first = m.sum(drawn, batch);
                        done->second = std::move(drawn.heights);
                    },
                    typed_);
                noteTraced(drawnCurve(Plotto::tr("%1 bars of %2").arg(Plotto::tr(m.caption), describeFamily()),
                                      std::move(done->second)));
                showResult(label, done->first);
            },
            [label](const rt::RuntimeError&) { label->setText(Plotto::tr("= too large")); });
    }
    lblAreas->setText(Plotto::tr("Area"));
}

void frmRiemann::txtParts_Change()
{
    const double v = txtParts->value();
    if (v <= 32000) {
        if (!(v >= 1)) {
            MsgBox(Plotto::tr("Partitions must be a positive number"), Plotto::tr("Positive only"));
            txtParts->assign(QStringLiteral("1"));
        }
        PartitionCount = rt::CLng(rt::Int(txtParts->value()));
    } else {
        MsgBox(Plotto::tr("The limit to the number of partitions is 32000"), Plotto::tr("Limit Reached"));
        PartitionCount = 32000;
        txtParts->assign(QStringLiteral("32000"));
    }
}

void frmRiemann::cmdDouble_Click()
{
    PartitionCount = rt::CLng(PartitionCount * 2.0);
    txtParts->assign(rt::CStr(PartitionCount));
}

void frmRiemann::lblPartitions_MouseDown(int Button, int, double, double)
{
    stepBox(txtParts, Button, StepText::WithStr);
    if (txtParts->value() < 1)
        txtParts->assign(QStringLiteral("1"));
}

void frmRiemann::lblLBound_MouseDown(int Button, int, double, double) { stepBox(txtLBound, Button, StepText::WithStr); }
void frmRiemann::lblRBound_MouseDown(int Button, int, double, double) { stepBox(txtRBound, Button, StepText::WithStr); }

void frmRiemann::txtLBound_Change()
{
    if (txtXmin->value() > txtLBound->value())
        txtLBound->assign(txtXmin->text());
    if (txtRBound->value() < txtLBound->value())
        txtLBound->assign(txtRBound->text());
}

void frmRiemann::txtRBound_Change()
{
    if (txtRBound->value() > txtXmax->value())
        txtRBound->assign(txtXmax->text());
    if (txtLBound->value() > txtRBound->value())
        txtRBound->assign(txtLBound->text());
}

void frmRiemann::mnuAbout_Click()
{
    showHelp({
        {QT_TRANSLATE_NOOP("Plotto", "What is this?"),
         QT_TRANSLATE_NOOP("Plotto", "This form was written to demonstrate various Riemann and other Sums used to find "
                                     "areas under functions.")},
        {QT_TRANSLATE_NOOP("Plotto", "Plotting a function and Sizing"),
         QT_TRANSLATE_NOOP("Plotto",
                           "Select a Function from the functions menu.  Click [Plotto!] to see it in the window.  Set "
                           "the window size "
                           "by entering values for Xmin, Xmax, Ymin, and Ymax or in the boxes around the window.")},
        {QT_TRANSLATE_NOOP("Plotto", "Plotto! , Zoom In and Set to Defaults"),
         QT_TRANSLATE_NOOP(
             "Plotto", "You must [Plotto!] after selecting a function to see it.  This also clears the window.  The "
                       "[Zoom In] button "
                       "reduces each edge in half and re-graphs the function. The [Set to Defaults] are -10 by 10.")},
        {QT_TRANSLATE_NOOP("Plotto", "Riemann choices and [Graph Partitions]"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "Check the box for a Riemann Sum method at the right.  The rectangles and the computed areas will appear "
             "after clicking the [Graph Partitions] Button.  You may click one, many or all the check boxes to see the "
             "various area values.")},
        {QT_TRANSLATE_NOOP("Plotto", "Partitions for the Riemann Sums"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "You may type in up to 32000 for the number of partitions.  You may also automatically double the number "
             "of "
             "partitions with the [Double Partitions] button.  The number of partitions determines the width of each "
             "interval except for the Riemann method.  The Riemann method breaks the total interval into random width "
             "sub-intervals and selects random points in each sub-interval.  The Riemann method only uses a maximum of "
             "2000 partitions.")},
        {QT_TRANSLATE_NOOP("Plotto", "Left and Right Boundaries"),
         QT_TRANSLATE_NOOP("Plotto", "The Left boundary and Right boundary determine the width of the interval for the "
                                     "area.  The Boundaries must "
                                     "be in the window.  If the y value is outside the window the partition will not "
                                     "show up on the graph but the "
                                     "area will be computed correctly.")},
        {QT_TRANSLATE_NOOP("Plotto", "Clicking light green labels"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "As for most of the light green labels in this program, you may left click to increase the box by one or "
             "right click to decreased it by one.")},
        {QT_TRANSLATE_NOOP("Plotto", "Window limit changes < , >"),
         QT_TRANSLATE_NOOP("Plotto", "Notice the < and > green labels next to the window limits.  Clicking on the "
                                     "Arrows will increase or decrease "
                                     "the window limit by one.  Double clicking will increase or decrease it by 5.")},
    });
}

void frmRiemann::describeResults(QStringList& lines) const
{
    lines << Plotto::tr("Area under %1 from %2 to %3 with %4 partitions: %5.")
                 .arg(describeFamily(), txtLBound->text(), txtRBound->text(), txtParts->text(), lblAreas->text());
    for (const Method& m : kMethods) {
        const CheckBox* check = this->*m.check;
        lines << QStringLiteral("%1%2: %3")
                     .arg(check->text(), check->isChecked() ? QStringLiteral(" (ticked)") : QString(),
                          (this->*m.result)->text());
    }
}
