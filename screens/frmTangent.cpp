// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/frmTangent.h"

#include <memory>

#include <cmath>

#include "funclib/FuncGlobals.h"
#include "graphwin/DrawingStyle.h"
#include "graphwin/Language.h"
#include "runtime/Numbers.h"
#include "runtime/QBColor.h"

namespace {

GraphScreen::Config tangentConfig()
{
    GraphScreen::Config c;
    c.caption = Plotto::tr("The Tangent Line Problem");
    c.surfaceWidth = 13800;
    return c;
}

constexpr double kLeft = 11220, kWidth = 2460;

// Cut (towards minus infinity) to `places` decimals: Int(v * 10^places) / 10^places.
double cut(double v, double scale) { return rt::Int(rt::Chk(v * scale)) / scale; }

}  // namespace

frmTangent::frmTangent() : GraphScreen(tangentConfig())
{
    using form::Kind;
    const auto on = form::bind(this);
    const double L = kLeft, W = kWidth, box = kLeft + 1440;
    // clang-format off
    form::buildForm(surface, {
        // name       kind           caption                          place                       handlers / look
        {FORM_NAME(lblTan),     Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Tangent Problem Set up"),        {L, 240, W, 300},            {}, {.align = Qt::AlignCenter}},
        {FORM_NAME(lblXat),     Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "Tangent at x ="),                {L, 600, 1380, 300},         {.MouseDown = on(&frmTangent::lblXat_MouseDown)}},
        {FORM_NAME(txtX),       Kind::Box,     "1",                             {box, 600, W - 1440, 300},   {.Change = on(&frmTangent::txtX_Change)}},
        {FORM_NAME(lblDeltaX),  Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "Delta x"),                       {L, 960, 1380, 300},         {.MouseDown = on(&frmTangent::lblDeltaX_MouseDown)}},
        {FORM_NAME(txtDeltaX),  Kind::Box,     "1",                             {box, 960, W - 1440, 300}},
        {FORM_NAME(cmdApply),   Kind::Button, QT_TRANSLATE_NOOP("Plotto", "&Apply to graph"),               {L, 1380, W, 420},           {.Click = on(&frmTangent::cmdApply_Click)}},
        {FORM_NAME(cmdHalfDx),  Kind::Button, QT_TRANSLATE_NOOP("Plotto", "Half Delta x"),                  {L, 1860, W, 420},           {.Click = on(&frmTangent::cmdHalfDx_Click)}},
        {FORM_NAME(lblSlide),   Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Delta X slider"),                {L, 2460, W, 300},           {}, {.align = Qt::AlignCenter}},
        {FORM_NAME(hscDx),      Kind::HScroll, "",                              {L, 2760, W, 255},           {.Change = on(&frmTangent::hscDx_Change), .Spoken = [this] { return spokenDeltaX(); }},
                                                                                                   {.bar = {.min = 0, .max = 2000, .small = 1, .large = 100, .value = 2000}}},
        {FORM_NAME(lblxminuDx), Kind::Label, QT_TRANSLATE_NOOP("Plotto", "x-dx"),                          {L, 3060, 600, 300}},
        {FORM_NAME(lblHsc),     Kind::Label,   "x=1",                           {L + 630, 3060, 1200, 300},  {}, {.align = Qt::AlignHCenter | Qt::AlignTop}},
        {FORM_NAME(lblXaddDx),  Kind::Label, QT_TRANSLATE_NOOP("Plotto", "x+dx"),                          {L + W - 600, 3060, 600, 300}, {}, {.align = Qt::AlignRight | Qt::AlignTop}},
        // Stands out to the left of the column, clear of the window's right edge.
        {FORM_NAME(fraApply),   Kind::Frame, QT_TRANSLATE_NOOP("Plotto", "Secant Line Results"),           {L - 120, 3540, W + 120, 1500}, {}, {}, {
            {FORM_NAME(lblPoints), Kind::Label, QT_TRANSLATE_NOOP("Plotto", "( ___, ___ ) to ( ___ , ___ )"), {120, 360, W, 420},        {}, {.wrap = true}},
            {FORM_NAME(lblTLine),  Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Line Equation"),                 {120, 900, W, 420},        {}, {.wrap = true}},
        }},
    });
    // clang-format on
    Form_Load();
}

QString frmTangent::spokenDeltaX() const
{
    const std::optional<double> dx = txtDeltaX->number();
    return dx ? Plotto::tr("Delta x = %1").arg(shownTrimStr((hscDx->value() - 1000) * *dx / 1000))
              : Plotto::tr("Delta x = %1, not a number").arg(txtDeltaX->text());
}

void frmTangent::DrawSecant(double dx)
{
    const double x1 = txtX->value();
    if (!typedDefinedAt({x1, x1 + dx}, lblTLine))
        return;
    typedGuard([this, dx] { drawSecant(dx); }, [this](const rt::RuntimeError&) { lblTLine->setText(typedTooLarge()); });
}

void frmTangent::drawSecant(double dx)
{
    const double x1 = txtX->value();
    // The secant's numbers and its two lines are one kept step: a new window draws the lines again
    // through the same computation, clipped to that window.
    auto result = std::make_shared<Secant>();
    keepDrawing(
        Plotto::tr("the secant from x = %1").arg(shownTrimStr(x1)),
        [this, x1, dx, result] { *result = secantLines(x1, dx); }, typed_, QStringLiteral("secants"));
    const Secant& r = *result;
    if (r.x2 == r.x1) {
        lblTLine->setText(Plotto::tr("ERROR!  0/0"));
        return;
    }
    auto P = [](double v) { return shownStr(cut(v, 10000)); };
    lblPoints->setText(QStringLiteral("(") + P(r.x1) + QStringLiteral(",") + P(r.y1) + QStringLiteral(") to (") +
                       P(r.x2) + QStringLiteral(",") + P(r.y2) + QStringLiteral(")"));
    lblTLine->setText(QStringLiteral("y = ") + shownTrimStr(cut(r.m, 100000)) + QStringLiteral("x + ") +
                      shownTrimStr(cut(r.b, 1000)));
}

frmTangent::Secant frmTangent::secantLines(double x1, double dx)
{
    using rt::Chk;
    using rt::Div;
    Secant s;
    s.x1 = x1;
    s.y1 = FuncGlobals::ExplicitValue(x1);
    const double c1 = graph.column(x1), r1 = graph.row(s.y1);
    s.x2 = Chk(x1 + dx);
    s.y2 = FuncGlobals::ExplicitValue(s.x2);
    const double c2 = graph.column(s.x2), r2 = graph.row(s.y2);
    if (s.x2 == s.x1)
        return s;
    s.m = Div(Chk(s.y2 - s.y1), Chk(s.x2 - s.x1));
    s.b = Chk(s.y2 - Chk(s.m * s.x2));
    const double m = s.m, b = s.b;

    // Where the line leaves the window on the right, then on the left.
    double ymax = txtYmax->value(), ymin = txtYmin->value();
    const double xmax = txtXmax->value();
    double rightX = xmax, rightY = Chk(Chk(m * xmax) + b);
    if (!(ymin <= rightY && rightY <= ymax)) {
        rightY = m < 0 ? ymin : ymax;
        rightX = Div(Chk(rightY - b), m);
    }
    ymax = txtYmax->value();
    ymin = txtYmin->value();
    const double xmin = txtXmin->value();
    double leftX = xmin, leftY = Chk(Chk(m * xmin) + b);
    if (!(ymin <= leftY && leftY <= ymax)) {
        leftY = m <= 0 ? ymax : ymin;
        leftX = Div(Chk(leftY - b), m);
    }
    const double cr = graph.column(rightX), rr = graph.row(rightY);
    const double cl = graph.column(leftX), rl = graph.row(leftY);

    const QRgb red = DrawingStyle::colour(DrawingStyle::kConstruction);
    surface->Line(c1, r1, c2, r2, red);
    surface->Line(cr, rr, cl, rl, red);
    return s;
}

void frmTangent::cmdApply_Click() { DrawSecant(txtDeltaX->value()); }

void frmTangent::cmdHalfDx_Click() { txtDeltaX->assign(rt::Str(txtDeltaX->value() / 2)); }

void frmTangent::hscDx_Change()
{
    const std::int16_t offset = rt::CInt(hscDx->value() - 1000.0);
    DrawSecant(rt::Chk(offset * txtDeltaX->value()) / 1000);
}

void frmTangent::txtX_Change() { lblHsc->setText(txtX->text()); }

void frmTangent::lblXat_MouseDown(int Button, int, double, double) { stepBox(txtX, Button, StepText::WithStr); }

void frmTangent::lblDeltaX_MouseDown(int Button, int, double, double) { stepBox(txtDeltaX, Button, StepText::WithStr); }

void frmTangent::mnuAbout_Click()
{
    showHelp({
        {QT_TRANSLATE_NOOP("Plotto", "What is this?"),
         QT_TRANSLATE_NOOP("Plotto",
                           "This screen is to demonstrate the classic slope of the tangent line problem.  You may "
                           "select any function "
                           "from the menu.  Choose values for the A,B,...,E variables for your function and Plotto.")},
        {QT_TRANSLATE_NOOP("Plotto", "Tangent Set up Selections"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "The secant lines will be graphed using the buttons, text boxes and glider at the right.  Select the "
             "initial "
             "point for the secant line by placing a value in the 'Tangent at x =' box.  Choose the Delta x.  This the "
             "distance from your choice of x and is the longest distance for the slider.  The delta x may be negative. "
             " "
             "The slider may be scrolled to either side of your initial x.")},
        {QT_TRANSLATE_NOOP("Plotto", "Show the secants and the results"),
         QT_TRANSLATE_NOOP("Plotto", "Clicking on [Apply It] will draw the secant line and show the points on the "
                                     "graph and the equation of the "
                                     "line.  If you click on [Half Delta x], your delta x will be cut in half.  You "
                                     "may click [Apply It] to see "
                                     "the new line.")},
        {QT_TRANSLATE_NOOP("Plotto", "Slider"),
         QT_TRANSLATE_NOOP(
             "Plotto",
             "Clicking or scrolling the slider will change delta x and graph the secant line when releasing the mouse "
             "button.  You may see the points and the equation for each new change of the slider.  Notice the x-dx, x= "
             " , "
             "and x+dx at the bottom of the slider.  This should help to know which way your secant line is going.")},
    });
}

void frmTangent::describeResults(QStringList& lines) const
{
    lines << Plotto::tr("Tangent problem for %1 at x = %2, Delta x = %3.")
                 .arg(describeFamily(), txtX->text(), txtDeltaX->text());
    lines << Plotto::tr("Secant through %1: %2.").arg(lblPoints->text(), lblTLine->text());
    if (typedInUse()) {
        // The exact tangent the secants turn into, from the symbolic derivative.
        const std::optional<double> at = txtX->number();
        if (!at) {
            lines << Plotto::tr("No exact tangent: x = %1 is not a number.").arg(txtX->text());
            return;
        }
        const double x = *at, y = FuncGlobals::ExplicitValue(x), m = FuncGlobals::ExplicitSlope(x);
        const double b = y - m * x;
        lines << (std::isnan(m) || !std::isfinite(b)
                      ? Plotto::tr("The tangent at x = %1 has no slope there.").arg(shownTrimStr(x))
                      : Plotto::tr("The exact tangent at x = %1: y = %2x + %3.")
                            .arg(shownTrimStr(x), shownTrimStr(m), shownTrimStr(b)));
    }
}

std::vector<GraphScreen::DragHandle> frmTangent::dragHandles()
{
    const std::optional<double> x = txtX->number();
    if (!x)
        return {};
    const double y = FuncGlobals::ExplicitSnapshot(FuncGlobals::ExplicitSnapshot::What::Value, typed_).at(*x);
    if (!std::isfinite(y))
        return {};
    std::vector<DragHandle> handles{{Plotto::tr("the point of tangency"), *x, y, true, [this](double to, double) {
                                         eraseKept(QStringLiteral("secants"));
                                         runForDrag([&] {
                                             txtX->assign(draggedValue(to));
                                             cmdApply_Click();
                                         });
                                     }}};
    // The secant's other point, at x + Delta x: dragging it sets Delta x.
    const std::optional<double> dx = txtDeltaX->number();
    const double y2 =
        dx ? FuncGlobals::ExplicitSnapshot(FuncGlobals::ExplicitSnapshot::What::Value, typed_).at(*x + *dx)
           : std::nan("");
    if (std::isfinite(y2) && *dx != 0)
        handles.push_back(
            {Plotto::tr("the point at x + Delta x"), *x + *dx, y2, true, [this, at = *x](double to, double) {
                 eraseKept(QStringLiteral("secants"));
                 runForDrag([&] {
                     txtDeltaX->assign(draggedValue(to - at));
                     cmdApply_Click();
                 });
             }});
    return handles;
}
