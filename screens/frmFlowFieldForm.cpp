// SPDX-License-Identifier: GPL-3.0-or-later
// The slope-field form: its controls created, placed in twips and wired to their handlers, and its
// menu of step-method convergence tables. The handlers live in frmFlowField.cpp.
#include "screens/frmFlowField.h"

#include <QMenu>
#include <QMenuBar>

#include "graphwin/Language.h"
#include "runtime/Numbers.h"
#include "screens/ConvergenceWindow.h"

namespace {

GraphScreen::Config flowConfig()
{
    GraphScreen::Config c;
    c.caption = Plotto::tr("Slope Fields");
    c.surfaceWidth = 13920;
    c.coefficientCount = 6;
    c.coefficientDefaults = {"-1", "0", "0", "0", "1", "0"};
    c.functionMenu = false;
    return c;
}

constexpr double kOptions = 11220, kOptionsWidth = 2580;

}  // namespace

frmFlowField::frmFlowField() : GraphScreen(flowConfig())
{
    using form::Kind;
    const auto on = form::bind(this);
    const double O = kOptions, W = kOptionsWidth, I = kOptionsWidth - 240;
    // clang-format off
    form::buildForm(surface, {
        // Left panel: rate labels, the formula display, the start and end points.
        // name          kind           caption                            place                   handlers / look
        {FORM_NAME(lbldy),         Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "dy = Ax + By + C"),                {60, 3180, 1860, 300},  {.MouseDown = on(&frmFlowField::lbldy_MouseDown)}},
        {FORM_NAME(lbldx),         Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "dx = Dx + Ey + F"),                {60, 3540, 1860, 300},  {.MouseDown = on(&frmFlowField::lbldx_MouseDown)}},
        {FORM_NAME(shpDyDx),       Kind::Outline, "",                                {60, 3900, 2280, 900}},
        {FORM_NAME(lblIntegral),   Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Click in the graph to generate an integral curve."),
                                                                           {60, 4920, 2280, 600},  {}, {.wrap = true}},
        {FORM_NAME(lblPos),        Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Start (____, ____)"),              {60, 5640, 2280, 300},  {.Click = on(&frmFlowField::lblPos_Click)}, {.raised = true}},
        {FORM_NAME(lblEndpt),      Kind::Label, QT_TRANSLATE_NOOP("Plotto", "Endpt ( ____, ____ )"),            {60, 6060, 2280, 300}},
        {FORM_NAME(cmdShowFlow),   Kind::Button, QT_TRANSLATE_NOOP("Plotto", "&Show Slope Field"),               {buttonColumn(), 3000, 1680, 420}, {.Click = on(&frmFlowField::cmdShowFlow_Click)}},

        // Right panel: purpose, method and the plot button's settings.
        {FORM_NAME(fraPurpose),    Kind::Frame, QT_TRANSLATE_NOOP("Plotto", "Purpose"),                         {O, 120, W, 1080}, {}, {}, {
            {FORM_NAME(optApprox),   Kind::Option, QT_TRANSLATE_NOOP("Plotto", "Find &Appoximation"),            {120, 330, I, 300},     {.Click = on(&frmFlowField::optApprox_Click)}},
            {FORM_NAME(optCurve),    Kind::Option, QT_TRANSLATE_NOOP("Plotto", "See smooth &curve"),             {120, 660, I, 300},     {.Click = on(&frmFlowField::optCurve_Click)}, {.checked = true}},
        }},
        {FORM_NAME(fraMethod),     Kind::Frame, QT_TRANSLATE_NOOP("Plotto", "Method Options"),                  {O, 1320, W, 1380}, {}, {}, {
            {FORM_NAME(optRunga4),   Kind::Option, QT_TRANSLATE_NOOP("Plotto", "Runga-Kutta &4"),                {120, 330, I, 300},     {.Click = on(&frmFlowField::optRunga4_Click)}},
            {FORM_NAME(optRunga2),   Kind::Option, QT_TRANSLATE_NOOP("Plotto", "Runga-Kutta &2"),                {120, 660, I, 300},     {.Click = on(&frmFlowField::optRunga2_Click)}},
            {FORM_NAME(optEuler),    Kind::Option, QT_TRANSLATE_NOOP("Plotto", "Euler's Metho&d"),               {120, 990, I, 300},     {.Click = on(&frmFlowField::optEuler_Click)}, {.checked = true}},
        }},
        {FORM_NAME(fraPlotto),     Kind::Frame, QT_TRANSLATE_NOOP("Plotto", "Plotto Options"),                  {O, 2820, W, 4080}, {}, {}, {
            {FORM_NAME(lblHorShift), Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "Horizontal Shift"),              {120,  300, I, 300},    {.MouseDown = on(&frmFlowField::lblHorShift_MouseDown)}},
            {FORM_NAME(txtHorShift), Kind::Box,     "0",                             {120,  630, I, 300}},
            {FORM_NAME(lblVerShift), Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "Vertical Shift"),                {120, 1020, I, 300},    {.MouseDown = on(&frmFlowField::lblVerShift_MouseDown)}},
            {FORM_NAME(txtVerShift), Kind::Box,     "0",                             {120, 1350, I, 300}},
            {FORM_NAME(chkBiDirect), Kind::Check, QT_TRANSLATE_NOOP("Plotto", "Bi-directional"),                {120, 1740, I, 300}},
            {FORM_NAME(lblplots),    Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "Number of Curve Points"),        {120, 2160, I, 300},    {.MouseDown = on(&frmFlowField::lblplots_MouseDown)},
                                                                                                   {.tip = QT_TRANSLATE_NOOP("Plotto", "Maximum of 10000 points")}},
            {FORM_NAME(txtCurvePoints), Kind::Box,  "500",                           {120, 2490, I, 300},    {.Change = on(&frmFlowField::txtCurvePoints_Change)}},
            {FORM_NAME(lblDeltaX),   Kind::Stepper, QT_TRANSLATE_NOOP("Plotto", "Delta x = "),                    {120, 2880, I, 300},    {.MouseDown = on(&frmFlowField::lblDeltaX_MouseDown)},
                                                                           {.tip = QT_TRANSLATE_NOOP("Plotto", "This value is used in Euler's Method to find succeeding points.")}},
            {FORM_NAME(txtDelta),    Kind::Box,     "0.02",                          {120, 3210, I, 300}},
        }},
    });
    // clang-format on

    // The two rate menus after the File menu.
    dyMenu_ = addMenu(Plotto::tr("Select d&y - Function"));
    mnuSelectdy = dyMenu_->menuAction();
    dxMenu_ = addMenu(Plotto::tr("Select d&x - Function"));
    mnuseldx = dxMenu_->menuAction();
    startMenuArray(dyMenu_, mnuDy);
    startMenuArray(dxMenu_, mnuDx);

    surface->MouseDown = [this](int b, int s, double x, double y) { Form_MouseDown(b, s, x, y); };
    surface->MouseMove = [this](int b, int s, double x, double y) { Form_MouseMove(b, s, x, y); };
    Form_Load();
    // The step-method table starts from the last start point (the circle's (4, 3) before any).
    convergence = addConvergenceMenu(this, menuBar, Plotto::tr("Convergence of the step methods"), [this] {
        const QString unusable = notNumbers({{Plotto::tr("Start x"), startX_},
                                             {Plotto::tr("Start y"), startY_},
                                             {Plotto::tr("End x"), endX_},
                                             {Plotto::tr("Step h"), stepH_},
                                             {Plotto::tr("Xmin"), txtXmin},
                                             {Plotto::tr("Xmax"), txtXmax},
                                             {Plotto::tr("Ymin"), txtYmin},
                                             {Plotto::tr("Ymax"), txtYmax}});
        if (!unusable.isEmpty())
            return Convergence::stepsWithout(unusable.toStdString());
        auto number = [](const QLineEdit* box) { return *rt::TryVal(i18n::typedDecimals(box->text()).toStdString()); };
        return Convergence::steps(number(startX_), number(startY_), number(endX_), number(stepH_), 6,
                                  {number(txtXmin), number(txtXmax), number(txtYmin), number(txtYmax)});
    });
    startX_ = convergence->addInput(Plotto::tr("Start x"), QStringLiteral("4"));
    startY_ = convergence->addInput(Plotto::tr("Start y"), QStringLiteral("3"));
    endX_ = convergence->addInput(Plotto::tr("End x"), QStringLiteral("4.5"));
    stepH_ = convergence->addInput(Plotto::tr("Step h"), txtDelta->text());
}
