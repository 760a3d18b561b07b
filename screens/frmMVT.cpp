// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/frmMVT.h"

#include <cmath>
#include <functional>
#include <memory>

#include "funclib/FuncGlobals.h"
#include "graphwin/Dialogs.h"
#include "graphwin/DrawingStyle.h"
#include "graphwin/Language.h"
#include "graphwin/PlainRows.h"
#include "runtime/Numbers.h"
#include "runtime/QBColor.h"
#include "runtime/VectorState.h"

namespace {

GraphScreen::Config mvtConfig()
{
    GraphScreen::Config c;
    c.caption = Plotto::tr("The Mean Value Theorem");
    c.surfaceWidth = 13920;
    c.surfaceHeight = 9000;
    c.coefficientCount = 6;
    return c;
}

constexpr double kLeft = 11220, kWidth = 2580, kInner = 2340;
constexpr int kScanSteps = 200000;
constexpr int kGridRows = 20;

using rt::RoundHalfUp;

}  // namespace

frmMVT::frmMVT() : GraphScreen(mvtConfig())
{
    using form::Kind;
    const auto on = form::bind(this);
    const double I = kInner;
    // clang-format off
    form::buildForm(surface, {
        // name           kind          caption                  place                 handlers / look
        {FORM_NAME(fraMVTSet),      Kind::Frame, QT_TRANSLATE_NOOP("Plotto", "MVT Set Up"),            {kLeft, 120, kWidth, 3120}, {}, {}, {
            {FORM_NAME(lblX1),      Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Left endpt"),            {120,   330, 1080, 300}},
            {FORM_NAME(txtX1),      Kind::Box,    "a",                     {1260,  330, 1200, 300}, {.Change = on(&frmMVT::txtX1_Change)}},
            {FORM_NAME(lblX2),      Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Right endpt"),           {120,   690, 1080, 300}},
            {FORM_NAME(txtX2),      Kind::Box,    "b",                     {1260,  690, 1200, 300}, {.Change = on(&frmMVT::txtX2_Change)}},
            {FORM_NAME(cmdApplyMVT), Kind::Button, QT_TRANSLATE_NOOP("Plotto", "Apply to Graph"),       {120,  1080, I, 420},    {.Click = on(&frmMVT::cmdApplyMVT_Click)}},
            {FORM_NAME(lblPt1),     Kind::Label,  "( _______ , _______)",  {120,  1590, I, 300}},
            {FORM_NAME(lblto),      Kind::Label, QT_TRANSLATE_NOOP("Plotto", "to"),                    {120,  1890, I, 300},    {}, {.align = Qt::AlignCenter}},
            {FORM_NAME(lblPt2),     Kind::Label,  "( _______ , _______)",  {120,  2190, I, 300}},
            {FORM_NAME(lblSlope1),  Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Slope"),                 {120,  2580, I, 300}},
        }},
        {FORM_NAME(fraFindPt),      Kind::Frame, QT_TRANSLATE_NOOP("Plotto", "Find c"),                {kLeft, 3360, kWidth, 5520}, {}, {}, {
            {FORM_NAME(lblSlideIt), Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Use the Slider"),        {120,   300, I, 300},    {}, {.align = Qt::AlignCenter}},
            {FORM_NAME(HscMVT),     Kind::HScroll, "",                     {120,   600, I, 255},
                {.Change = on(&frmMVT::HscMVT_Change), .Spoken = [this] { return lblFindc->text().trimmed(); }},
                {.bar = {.min = 0, .max = 20000, .small = 1, .large = 100}}},
            {FORM_NAME(lbl1),       Kind::Label,  "a",                     {120,   900, 1100, 300}},
            {FORM_NAME(lbl2),       Kind::Label,  "b",                     {1360,  900, 1100, 300}, {}, {.align = Qt::AlignRight | Qt::AlignTop}},
            {FORM_NAME(lblFindc),   Kind::Label,  "x =",                   {120,  1230, I, 300},    {.Click = on(&frmMVT::lblFindc_Click)}, {.raised = true}},
            {FORM_NAME(lblSlope2),  Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Slope = "),              {120,  1560, I, 300}},
            {FORM_NAME(cmdAnimateIt), Kind::Button, QT_TRANSLATE_NOOP("Plotto", "Find c"),              {120,  1920, I, 420},    {.Click = on(&frmMVT::cmdAnimateIt_Click)}},
            {FORM_NAME(gridC),      Kind::Grid,   "",                      {120,  2460, I, 2940},   {}, {.name = QT_TRANSLATE_NOOP("Plotto", "Values of c"), .rows = kGridRows, .columns = 3}},
        }},
    });
    // clang-format on
    Form_Load();
}

void frmMVT::Form_Load()
{
    GraphScreen::Form_Load();
    SetColWidth();
}

void frmMVT::SetColWidth()
{
    for (int c = 0; c < 3; ++c) {
        gridC->setColumnWidthTwips(c, 700);
        gridC->setColumnAlignment(c, Qt::AlignCenter);
    }
}

void frmMVT::cmdPlotto_Click()
{
    CleanGraph();
    plotFunction();
}

void frmMVT::cmdApplyMVT_Click()
{
    if (!typedDefinedAt({txtX1->value(), txtX2->value()}, lblSlope1))
        return;
    typedGuard([this] { applyMVT(); }, [this](const rt::RuntimeError&) { lblSlope1->setText(typedTooLarge()); });
}

void frmMVT::applyMVT()
{
    // The end points, their circles and the secant are one kept step: a new window draws them again.
    auto secant = std::make_shared<SecantAB>();
    keepDrawing(
        Plotto::tr("the secant over [a, b]"), [this, secant] { drawSecantAB(*secant); }, typed_,
        QStringLiteral("construction"));
    const SecantAB& r = *secant;
    if (r.b == r.a) {
        lblSlope1->setText(Plotto::tr("ERROR!  0/0"));
        return;
    }
    auto R4 = [](double v) { return shownStr(RoundHalfUp(v, 10000)); };
    lblPt1->setText(QStringLiteral("(") + R4(r.a) + QStringLiteral(",") + R4(r.fa) + QStringLiteral(")"));
    lblPt2->setText(QStringLiteral("(") + R4(r.b) + QStringLiteral(",") + R4(r.fb) + QStringLiteral(")"));
    lblSlope1->setText(Plotto::tr("slope = %1").arg(shownTrimStr(RoundHalfUp(SecantSlope, 100000))));
}

void frmMVT::drawSecantAB(SecantAB& s)
{
    using rt::Chk;
    // The first time the ends come from the boxes, in the classic order; drawn again, from the step.
    const bool again = s.known;
    const double a = again ? s.a : txtX1->value();
    const double fa = FuncGlobals::ExplicitValue(a);
    const double ca = graph.column(a), ra = graph.row(fa);
    const double b = again ? s.b : txtX2->value();
    s = {true, a, fa, b, 0};
    const double fb = FuncGlobals::ExplicitValue(b);
    s.fb = fb;
    const double cb = graph.column(b), rb = graph.row(fb);
    if (b == a)
        return;
    SecantSlope = rt::Div(Chk(fb - fa), Chk(b - a));
    const QRgb red = DrawingStyle::colour(DrawingStyle::kConstruction);
    surface->Circle(ca, ra, DrawingStyle::kEndpointRadius, red);
    surface->Circle(cb, rb, DrawingStyle::kEndpointRadius, red);

    // The secant across the whole width, dotted column by column in the curve's colour.
    const double k = Chk(fb - Chk(SecantSlope * b));
    FirstUseColour colour([] { return rt::Mod(FuncGlobals::FunctionId, 7); });
    const double m = SecantSlope;
    dotLine(graph.firstColumn(), graph.lastColumn(), colour, [m, k](auto x, auto chk) { return chk(chk(m * x) + k); });
}

void frmMVT::HscMVT_Change()
{
    typedGuard([this] { slideTangent(); }, [this](const rt::RuntimeError&) { lblSlope2->setText(typedTooLarge()); });
}

void frmMVT::slideTangent()
{
    using rt::Chk;
    const double a = txtX1->value(), b = txtX2->value();
    const double c = Chk(a + rt::Div(Chk(Chk(b - a) * HscMVT->value()), HscMVT->maximum()));
    lblFindc->setText(QStringLiteral("x = ") + shownStr(RoundHalfUp(c, 10000)));
    const double slope = FuncGlobals::ExplicitSlope(c);
    if (!typedDefinedAt({c}, lblSlope2) || !typedSlopeAt(slope, c, lblSlope2))
        return;
    lblSlope2->setText(Plotto::tr("Slope =%1").arg(shownStr(RoundHalfUp(slope, 10000))));
    const double fc = FuncGlobals::ExplicitValue(c);
    keepDrawing(
        Plotto::tr("the tangent at x = %1").arg(shownTrimStr(c)),
        [this, slope, c, fc] {
            // Not reduced: family 15 asks for colour 16, which does not exist.
            FirstUseColour colour([] { return FuncGlobals::FunctionId + 1; });
            dotLine(static_cast<int>(graph.Left), static_cast<int>(graph.right()), colour,
                    [slope, c, fc](auto x, auto chk) { return chk(chk(slope * chk(x - c)) + fc); });
        },
        typed_, QStringLiteral("construction"));
}

// A line dotted column by column where its row lies in the square. Where the surface batches, the
// rows are computed in plain arithmetic and dotted a block at a time (dotPlainRows); from a row that is not finite on
// (or for every column when the surface draws one by one) the checked loop computes and draws
// column by column, raising where a check fails. `y` takes x and the check to apply after each
// operation.
template <class Y>
void frmMVT::dotLine(int first, int last, FirstUseColour& colour, Y y)
{
    LazyBatch points(*surface, colour);
    rt::cleanVectorStateForHotLoop();
    constexpr double kTop = GraphWindow::Top, kBottom = GraphWindow::Bottom;
    int column = first;
    if (surface->batching())
        column = dotPlainRows(
            graph, points, first, last,
            [&y](const double* xs, double* ys, std::size_t n, std::size_t& done) {
                for (; done < n; ++done)
                    ys[done] = y(xs[done], std::identity());
            },
            kTop, kBottom);
    for (; column <= last; ++column) {
        const double row = graph.row(y(graph.worldX(column), [](double v) { return rt::Chk(v); }));
        if (DrawingSurface::Batch::dotted(row, kTop, kBottom))
            points.point(column, row);
    }
}

void frmMVT::lblFindc_Click()
{
    const QString answer = InputBox(Plotto::tr("Enter an x value to check"), Plotto::tr("Enter X"));
    if (answer.isEmpty())
        return;
    const float x = rt::CSng(rt::Val(answer.toStdString()));
    const float a = rt::CSng(txtX1->value()), b = rt::CSng(txtX2->value());
    if (!(a < x && x < b))
        return;
    const float position =
        rt::CSng(rt::CSng(rt::CSng(x - a) / rt::CSng(b - a)) * static_cast<float>(HscMVT->maximum()));
    HscMVT->setValueChecked(rt::CInt(position));
}

void frmMVT::cmdAnimateIt_Click()
{
    typedGuard([this] { findC(); }, [this](const rt::RuntimeError&) { lblFindc->setText(typedTooLarge()); });
}

void frmMVT::findC()
{
    using rt::Chk;
    double last = txtXmin->value();
    const double a = txtX1->value(), b = txtX2->value();
    if (!(a < b))
        return;
    for (int r = 1; r < kGridRows; ++r)
        for (int c = 0; c < 3; ++c)
            gridC->setCell(r, c, QString());
    gridC->setCell(0, 0, QStringLiteral("c"));
    gridC->setCell(0, 1, QStringLiteral("f(c)"));
    gridC->setCell(0, 2, QStringLiteral("m"));

    // The scan is a kept step: drawn again at a new window it marks the same points (the grid is
    // written the first time only).
    auto first = std::make_shared<bool>(true);
    keepDrawing(
        Plotto::tr("the points c"),
        [this, a, b, last, first, target = SecantSlope] { scanC(a, b, last, target, *first); }, typed_,
        QStringLiteral("construction"));
    *first = false;
}

void frmMVT::scanC(double a, double b, double last, double secantSlope, bool fillGrid)
{
    using rt::Chk;
    const double h = Chk(b - a) / kScanSteps;
    // Two slopes rounded to thousandths are equal exactly when their whole numbers of thousandths are.
    auto thousandths = [](double v) { return rt::Int(rt::Chk(rt::Chk(v * 1000) + 0.5)); };
    const double target = thousandths(secantSlope);
    std::int16_t count = 0;
    // One point of the scan, with the slope there; false where the scan ends (a step too small to
    // move x any further would never reach b).
    auto visit = [&](double& x, double slope) {
        if (!std::isnan(slope) && thousandths(slope) == target) {  // a typed function's gaps are skipped
            const double fx = FuncGlobals::ExplicitValue(x);
            DrawWidthScope marked(*surface, DrawingStyle::kMarkWidth);
            surface->PSet(graph.column(x), graph.row(fx), surface->ForeColor);
            if (std::fabs(Chk(last - x)) > 0.1) {
                count = rt::CInt(count + 1.0);
                if (count < kGridRows) {
                    last = x;
                    if (fillGrid) {
                        gridC->setCell(count, 0, shownTrimStr(RoundHalfUp(x, 1000)));
                        gridC->setCell(count, 1, shownTrimStr(RoundHalfUp(fx, 1000)));
                        gridC->setCell(count, 2, shownTrimStr(RoundHalfUp(slope, 1000)));
                    }
                }
            }
        }
        const double next = Chk(x + h);
        if (next == x)
            return false;
        x = next;
        return true;
    };
    rt::cleanVectorStateForHotLoop();
    if (!FuncGlobals::TypedExplicit) {
        for (double x = a; x <= b;)
            if (!visit(x, FuncGlobals::ExplicitSlope(x)))
                break;
        return;
    }
    // A typed function's slopes a block of points at a time: the points ahead are the same sums
    // x + h, and a sum that is not finite ends the block, so that visit's check raises there.
    constexpr std::size_t kBlock = 256;
    double xs[kBlock], slopes[kBlock];
    for (double x = a; x <= b;) {
        std::size_t n = 0;
        for (double p = x; n < kBlock && p <= b;) {
            xs[n++] = p;
            const double q = p + h;
            if (q == p || !std::isfinite(q))
                break;
            p = q;
        }
        FuncGlobals::ExplicitSlopes(xs, slopes, n);
        for (std::size_t i = 0; i < n; ++i)
            if (!visit(x, slopes[i]))
                return;
    }
}

void frmMVT::keepInWindow(TextBox* box, ClickLabel* echo)
{
    if (box->value() < txtXmin->value())
        box->assign(txtXmin->text());
    if (box->value() > txtXmax->value())
        box->assign(txtXmax->text());
    const double v = box->value();
    if (txtXmin->value() <= v && v <= txtXmax->value())
        echo->setText(box->text());
}

void frmMVT::txtX1_Change() { keepInWindow(txtX1, lbl1); }
void frmMVT::txtX2_Change() { keepInWindow(txtX2, lbl2); }

void frmMVT::mnuAbout_Click()
{
    showHelp({
        {QT_TRANSLATE_NOOP("Plotto", "What is this?"),
         QT_TRANSLATE_NOOP("Plotto", "This screen is to demonstrate the Mean Value Theorem.  Most of the function "
                                     "selections are continuous so it "
                                     "may be applied to most of them, at least you can define a continuous interval.")},
        {QT_TRANSLATE_NOOP("Plotto", "Get Started"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "To get started, select a function from the pull down menu or click on the function to get another one.  "
             "Select the values for A to E for the function and [Plotto].  The right side of the screen is to setup "
             "the "
             "interval or a and b end points.  Once you have entered the end points, Click [Apply to Graph].  This "
             "will "
             "plot the line and calculate the points and slope.")},
        {QT_TRANSLATE_NOOP("Plotto", "Find c --- Three Ways"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "There are many ways to find c, the value guaranteed by the MVT.  1)Use the Slider to approximate where c "
             "would be on the (a,b) interval.  Each time you move the slider or click on the arrow the tangent line "
             "will "
             "be graphed and its slope determined at the point.  You can keep moving the slider until the slope from "
             "the "
             "setup matches the slope at the point. 2) Click on the 'x =' label.  You will be asked to enter a value "
             "for "
             "x.  The slider will automatically move to the point and show the tangent line and its slope.  3) Click "
             "on "
             "[Find c].  This button will find all points(up to 20) on the graph having the same slope as the secant "
             "line.  They are listed in a chart.")},
        {QT_TRANSLATE_NOOP("Plotto", "Accuracy Problems"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "There are some accuracy considerations when using [Find c].  The slopes are compared to the nearest "
             "0.001.  "
             "The calculated slope from the end points may differ from the slope of the tangent line.  Some MVT points "
             "may be missed due the accuracy when scannning through the function for the points.  This usually does "
             "not "
             "happen unless your interval is wide and there are rapid fluctuations like sin(20x).")},
    });
}

void frmMVT::describeResults(QStringList& lines) const
{
    lines << Plotto::tr("Mean value theorem for %1 on [%2, %3].").arg(describeFamily(), txtX1->text(), txtX2->text());
    lines << Plotto::tr("Secant from %1 to %2, %3.").arg(lblPt1->text(), lblPt2->text(), lblSlope1->text());
    lines << Plotto::tr("Slider point %1, %2.").arg(lblFindc->text().trimmed(), lblSlope2->text());
    QStringList found;
    for (int r = 1; r < gridC->rowCount(); ++r)
        if (!gridC->cell(r, 0).isEmpty())
            found << QStringLiteral("c = %1, f(c) = %2, m = %3")
                         .arg(gridC->cell(r, 0), gridC->cell(r, 1), gridC->cell(r, 2));
    if (!found.isEmpty())
        lines << QStringLiteral("Found: ") + found.join(QStringLiteral("; ")) + QLatin1Char('.');
}

std::vector<GraphScreen::DragHandle> frmMVT::dragHandles()
{
    std::vector<DragHandle> handles;
    const FuncGlobals::ExplicitSnapshot f(FuncGlobals::ExplicitSnapshot::What::Value, typed_);
    const std::pair<TextBox*, const char*> ends[] = {{txtX1, "a"}, {txtX2, "b"}};
    for (const auto& [box, name] : ends) {
        const std::optional<double> x = box->number();
        const double y = x ? f.at(*x) : std::nan("");
        if (!std::isfinite(y))
            continue;
        // Dragging an end draws the secant again from there, as Apply does; the slider's tangent and
        // the points c belonged to the old interval.
        handles.push_back({QString::fromLatin1(name), *x, y, true, [this, box = box](double to, double) {
                               eraseKept(QStringLiteral("construction"));
                               runForDrag([&] {
                                   box->assign(draggedValue(to));
                                   cmdApplyMVT_Click();
                               });
                           }});
    }
    return handles;
}
