// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/frmRiemann.h"

#include "screens/ConvergenceWindow.h"

#include "funclib/FuncGlobals.h"
#include "graphwin/Dialogs.h"
#include "runtime/Numbers.h"
#include "runtime/QBColor.h"
#include "runtime/VectorState.h"

namespace {

GraphScreen::Config riemannConfig()
{
    GraphScreen::Config c;
    c.caption = QStringLiteral("Riemann and Other Sums");
    c.surfaceWidth = 14400;
    c.squareLeft = 1800;
    c.zoom = GraphScreen::Zoom::TowardsOrigin;
    c.validatingLimits = true;
    c.coefficientDefaults = {"1", "0", "0", "0", "0", "0"};
    c.functionMenuCaption = QStringLiteral("&Select a Function");
    c.functionLabelCaption = QStringLiteral("y=x^2 +1");
    c.cleanCaption = QStringLiteral("&Clear Graph");
    c.defaultsCaption = QStringLiteral("&Set to Defaults");
    return c;
}

constexpr double kPanel = 8940, kPanelWidth = 1800, kSums = 10920, kSumsWidth = 3360;
const QString kAreaText = QStringLiteral("Area=");

}  // namespace

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
    cmdZoomIn->setToolTip(QStringLiteral("Cut the scale in half"));
    buildSumsPanel();
    Form_Load();
    convergence = addConvergenceMenu(this, menuBar, QStringLiteral("Convergence of the sums"), [this] {
        return Convergence::sums(txtLBound->value(), txtRBound->value(), PartitionCount);
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
        {&cmdCleanParts,  Kind::Button,  "&Erase Partitions",     {P, 1140, W, 420},  {.Click = on(&frmRiemann::cmdCleanParts_Click)}},
        {&lblPartitions,  Kind::Stepper, "Number of Partitions",  {P, 3420, W, 300},  {.MouseDown = on(&frmRiemann::lblPartitions_MouseDown)}},
        {&txtParts,       Kind::Box,     "1",                     {P, 3720, W, 300},  {.Change = on(&frmRiemann::txtParts_Change)}},
        {&cmdDouble,      Kind::Button,  "&Double Partitions",    {P, 4140, W, 420},  {.Click = on(&frmRiemann::cmdDouble_Click)},
                                                                                     {.tip = "Automatically double Number of Partitions"}},
        {&cmdParts,       Kind::Button,  "Graph &Partitions",     {P, 4680, W, 420},  {.Click = on(&frmRiemann::cmdParts_Click)},
                                                                                     {.tip = "See the partitions from the Riemann Sums"}},
        {&lblLBound,      Kind::Stepper, "Left Boundary",         {P, 5340, W, 300},  {.MouseDown = on(&frmRiemann::lblLBound_MouseDown)}},
        {&txtLBound,      Kind::Box,     "-2",                    {P, 5640, W, 300},  {.Change = on(&frmRiemann::txtLBound_Change)}},
        {&lblRBound,      Kind::Stepper, "Right Boundary",        {P, 6060, W, 300},  {.MouseDown = on(&frmRiemann::lblRBound_MouseDown)}},
        {&txtRBound,      Kind::Box,     "2",                     {P, 6360, W, 300},  {.Change = on(&frmRiemann::txtRBound_Change)}},
        {&lblAreas,       Kind::Label,   "AREA",                  {kSums, 240, kSumsWidth, 300}, {}, {.align = Qt::AlignCenter}},
        {&fraSums,        Kind::Frame,   "Area Sums",             {kSums, 600, kSumsWidth, 3300}, {},
                                                                  {.tip = "Check one to see partitions when clicking Graph Partitions"}, {
            // One row for each sum: the check that shows its partitions, and its area.
            {&chkLeft,    Kind::Check, "Left Endpoint",   {120,   360, 1620, 360}},
            {&lblLeftE,   Kind::Label, kAreaText,         {1800,  360, 1500, 360}},
            {&chkRight,   Kind::Check, "Right Endpoint",  {120,   780, 1620, 360}},
            {&lblRightE,  Kind::Label, kAreaText,         {1800,  780, 1500, 360}},
            {&chkMid,     Kind::Check, "Midpoint",        {120,  1200, 1620, 360}},
            {&lblMid,     Kind::Label, kAreaText,         {1800, 1200, 1500, 360}},
            {&chkTrap,    Kind::Check, "Trapezoidal",     {120,  1620, 1620, 360}},
            {&lblTrap,    Kind::Label, kAreaText,         {1800, 1620, 1500, 360}},
            {&chkRandom,  Kind::Check, "Random point",    {120,  2040, 1620, 360}, {}, {.tip = "A random point is picked on the equal width intervals "}},
            {&lblRnd,     Kind::Label, kAreaText,         {1800, 2040, 1500, 360}},
            {&chkSimpson, Kind::Check, "Simpson's",       {120,  2460, 1620, 360}},
            {&lblSimpson, Kind::Label, kAreaText,         {1800, 2460, 1500, 360}},
            {&chkRiemann, Kind::Check, "Riemann",         {120,  2880, 1620, 360}, {}, {.tip = "Random width Interval and point on it"}},
            {&lblRiemann, Kind::Label, kAreaText,         {1800, 2880, 1500, 360}},
        }},
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
        for (ClickLabel* label : {lblLeftE, lblRightE, lblMid, lblTrap, lblRnd, lblRiemann})
            label->setText(kAreaText);
    GraphScreen::mnuFunc_Click(Index);
}

void frmRiemann::showResult(ClickLabel* label, const RiemannSums::Result& result)
{
    if (result.gap) {
        label->setText(QStringLiteral("undefined at x = ") + qTrimStr(result.gapAt));
        return;
    }
    label->setText(result.error ? QStringLiteral("= error!") : QStringLiteral("= ") + qStr(result.area));
}

void frmRiemann::functionReplaced()
{
    for (ClickLabel* label : {lblLeftE, lblRightE, lblMid, lblTrap, lblRnd, lblRiemann})
        label->setText(kAreaText);
}

void frmRiemann::cmdParts_Click()
{
    using namespace RiemannSums;
    lblAreas->setText(QStringLiteral("Working"));
    lblAreas->repaint();
    rt::cleanVectorStateForHotLoop();

    const double L = txtLBound->value(), R = txtRBound->value();
    const std::int32_t n = PartitionCount;
    const double dx = rt::Div(rt::Chk(R - L), n);
    const double left = graph.Left, right = graph.right();
    const double Y0 = graph.YOrigin;
    auto f = [](double x) { return FuncGlobals::ExplicitValue(x); };
    auto inside = [&](double a, double b, double t) {
        return left < a && a < right && left < b && b < right && GraphWindow::Top < t && t < GraphWindow::Bottom;
    };
    // Each method draws into a batch of its colour: the loop writes plain numbers, and the batch
    // draws them when the method's sum is done (or ends with an error), before the result is shown.
    // The heights a method draws are kept as a curve to hear and walk along, one point a bar.
    std::vector<audio::Point> heights;
    const auto drawn = [this, &heights](int colourNumber, const CheckBox* method, auto sum) {
        heights.clear();
        const Result result = [&] {
            DrawingSurface::Batch batch(*surface, rgbColor(rt::QBColor(colourNumber)));
            return sum(batch);
        }();
        noteTraced(drawnCurve(method->text().remove(QLatin1Char('&')) + QStringLiteral(" bars of ") + describeFamily(),
                              std::move(heights)));
        return result;
    };
    // With a typed function a method whose numbers grow too large says so, and the others go on.
    const auto tooLarge = [](ClickLabel* label) {
        return [label](const rt::RuntimeError&) { label->setText(QStringLiteral("= too large")); };
    };
    const auto shown = [&](ClickLabel* label, auto compute) {
        typedGuard([&] { showResult(label, compute()); }, tooLarge(label));
    };
    auto bars = [this, &inside, &heights, Y0](DrawingSurface::Batch& batch) {
        return [this, &inside, &batch, &heights, Y0](double xa, double xb, double y) {
            heights.push_back({(xa + xb) / 2, y});
            if (std::isnan(y))  // a typed function's gap: no bar
                return;
            const double a = graph.column(xa), b = graph.column(xb), t = graph.row(y);
            if (!inside(a, b, t))
                return;
            batch.bar(a, t, b, t, Y0);
        };
    };

    if (chkLeft->isChecked())
        shown(lblLeftE, [&] { return drawn(2, chkLeft, [&](auto& b) { return leftEndpoint(f, L, dx, n, bars(b)); }); });
    if (chkRight->isChecked())
        shown(lblRightE,
              [&] { return drawn(1, chkRight, [&](auto& b) { return rightEndpoint(f, L, dx, n, bars(b)); }); });
    if (chkMid->isChecked())
        shown(lblMid, [&] { return drawn(4, chkMid, [&](auto& b) { return midpoint(f, L, dx, n, bars(b)); }); });
    if (chkTrap->isChecked())
        shown(lblTrap, [&] {
            return drawn(5, chkTrap, [&](DrawingSurface::Batch& batch) {
                return trapezoidal(f, L, dx, n, [&](double xa, double xb, double y1, double y2) {
                    heights.push_back({(xa + xb) / 2, (y1 + y2) / 2});
                    if (std::isnan(y1) || std::isnan(y2))
                        return;
                    const double a = graph.column(xa), b = graph.column(xb);
                    const double t1 = graph.row(y1), t2 = graph.row(y2);
                    if (!inside(a, b, t1))  // only the left height is tested
                        return;
                    batch.bar(a, t1, b, t2, Y0);
                });
            });
        });
    if (chkRandom->isChecked())
        shown(lblRnd, [&] { return drawn(6, chkRandom, [&](auto& b) { return randomPoint(f, L, dx, n, bars(b)); }); });
    if (chkSimpson->isChecked())
        typedGuard(
            [&] {
                const double s = rt::Chk(rt::Div(rt::Chk((dx / 3) * GraphWindow::Side), graph.XRange));
                const Result r = drawn(3, chkSimpson, [&](DrawingSurface::Batch& outline) {
                    return simpson(f, L, dx, n, [&](double xa, double xc, double y0, double y1, double y2) {
                        heights.push_back({xa, y0});
                        heights.push_back({(xa + xc) / 2, y1});
                        if (std::isnan(y0) || std::isnan(y1) || std::isnan(y2))
                            return;
                        const double a = graph.column(xa), c = graph.column(xc);
                        const double t0 = graph.row(y0), t1 = graph.row(y1), t2 = graph.row(y2);
                        if (!(inside(a, c, t0) && GraphWindow::Top < t2 && t2 < GraphWindow::Bottom))
                            return;
                        const double a1 = rt::Chk(a + s), a5 = rt::Chk(a + 5 * s);
                        const double steps[] = {a, Y0, a, t0, a1, t0, a1, t1, a5, t1, a5, t2, c, t2, c, Y0};
                        for (int i = 0; i + 3 < 16; i += 2)
                            outline.line(steps[i], steps[i + 1], steps[i + 2], steps[i + 3]);
                    });
                });
                if (r.odd)
                    lblSimpson->setText(QStringLiteral("Parts not even #"));
                else
                    showResult(lblSimpson, r);
            },
            tooLarge(lblSimpson));
    if (chkRiemann->isChecked())
        shown(lblRiemann, [&] {
            return drawn(7, chkRiemann, [&](auto& b) { return randomWidths(f, L, R, n, RandomPoints, bars(b)); });
        });

    lblAreas->setText(QStringLiteral("Area"));
}

void frmRiemann::txtParts_Change()
{
    const double v = txtParts->value();
    if (v <= 32000) {
        if (!(v >= 1)) {
            MsgBox(QStringLiteral("Partitions must be a positive number"), QStringLiteral("Positive only"));
            txtParts->assign(QStringLiteral("1"));
        }
        PartitionCount = rt::CLng(rt::Int(txtParts->value()));
    } else {
        MsgBox(QStringLiteral("The limit to the number of partitions is 32000"), QStringLiteral("Limit Reached"));
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
        {"What is this?",
         "This form was written to demonstrate various Riemann and other Sums used to find areas under functions."},
        {"Plotting a function and Sizing",
         "Select a Function from the functions menu.  Click [Plotto!] to see it in the window.  Set the window size "
         "by entering values for Xmin, Xmax, Ymin, and Ymax or in the boxes around the window."},
        {"Plotto! , Zoom In and Set to Defaults",
         "You must [Plotto!] after selecting a function to see it.  This also clears the window.  The [Zoom In] button "
         "reduces each edge in half and re-graphs the function. The [Set to Defaults] are -10 by 10."},
        {"Riemann choices and [Graph Partitions]",
         "Check the box for a Riemann Sum method at the right.  The rectangles and the computed areas will appear "
         "after clicking the [Graph Partitions] Button.  You may click one, many or all the check boxes to see the "
         "various area values."},
        {"Partitions for the Riemann Sums",
         "You may type in up to 32000 for the number of partitions.  You may also automatically double the number of "
         "partitions with the [Double Partitions] button.  The number of partitions determines the width of each "
         "interval except for the Riemann method.  The Riemann method breaks the total interval into random width "
         "sub-intervals and selects random points in each sub-interval.  The Riemann method only uses a maximum of "
         "2000 partitions."},
        {"Left and Right Boundaries",
         "The Left boundary and Right boundary determine the width of the interval for the area.  The Boundaries must "
         "be in the window.  If the y value is outside the window the partition will not show up on the graph but the "
         "area will be computed correctly."},
        {"Clicking light green labels",
         "As for most of the light green labels in this program, you may left click to increase the box by one or "
         "right click to decreased it by one."},
        {"Window limit changes < , >",
         "Notice the < and > green labels next to the window limits.  Clicking on the Arrows will increase or decrease "
         "the window limit by one.  Double clicking will increase or decrease it by 5."},
    });
}

void frmRiemann::describeResults(QStringList& lines) const
{
    lines << QStringLiteral("Area under %1 from %2 to %3 with %4 partitions: %5.")
                 .arg(describeFamily(), txtLBound->text(), txtRBound->text(), txtParts->text(), lblAreas->text());
    const std::pair<const CheckBox*, const ClickLabel*> methods[] = {
        {chkLeft, lblLeftE}, {chkRight, lblRightE},    {chkMid, lblMid},        {chkTrap, lblTrap},
        {chkRandom, lblRnd}, {chkSimpson, lblSimpson}, {chkRiemann, lblRiemann}};
    for (const auto& [check, result] : methods)
        lines << QStringLiteral("%1%2: %3")
                     .arg(check->text(), check->isChecked() ? QStringLiteral(" (ticked)") : QString(), result->text());
}
