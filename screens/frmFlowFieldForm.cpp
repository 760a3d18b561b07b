// SPDX-License-Identifier: GPL-3.0-or-later
// The slope-field form: its controls created, placed in twips and wired to their handlers, and its
// menu of step-method convergence tables. The handlers live in frmFlowField.cpp.
#include "screens/frmFlowField.h"

#include <QMenu>
#include <QMenuBar>

#include "runtime/Numbers.h"
#include "screens/ConvergenceWindow.h"

namespace {

GraphScreen::Config flowConfig()
{
    GraphScreen::Config c;
    c.caption = QStringLiteral("Slope Fields");
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
    // Left panel: rate labels, the formula display, the start and end points.
    lbldy = new ClickLabel(surface, QStringLiteral("dy = Ax + By + C"), true);
    placeTwips(lbldy, 60, 3180, 1860, 300);
    lbldx = new ClickLabel(surface, QStringLiteral("dx = Dx + Ey + F"), true);
    placeTwips(lbldx, 60, 3540, 1860, 300);
    auto* shape = new QFrame(surface);
    shape->setFrameStyle(QFrame::Box | QFrame::Plain);
    shape->setAttribute(Qt::WA_TransparentForMouseEvents);
    placeTwips(shape, 60, 3900, 2280, 900);
    shpDyDx = shape;
    lblIntegral = makeLabel(QStringLiteral("Click in the graph to generate an integral curve."), 60, 4920, 2280, 600);
    lblIntegral->setWordWrap(true);
    lblPos = makeLabel(QStringLiteral("Start (____, ____)"), 60, 5640, 2280, 300);
    lblPos->setFrameStyle(QFrame::Panel | QFrame::Raised);
    lblEndpt = makeLabel(QStringLiteral("Endpt ( ____, ____ )"), 60, 6060, 2280, 300);

    cmdShowFlow = addButton(QStringLiteral("&Show Slope Field"), 3000, [this] { cmdShowFlow_Click(); });

    // Right panel: purpose, method and the plot button's settings.
    fraPurpose = new QGroupBox(QStringLiteral("Purpose"), surface);
    placeTwips(fraPurpose, kOptions, 120, kOptionsWidth, 1080);
    optApprox = new OptionButton(fraPurpose, QStringLiteral("Find &Appoximation"));
    placeTwips(optApprox, 120, 330, kOptionsWidth - 240, 300);
    optCurve = new OptionButton(fraPurpose, QStringLiteral("See smooth &curve"));
    placeTwips(optCurve, 120, 660, kOptionsWidth - 240, 300);
    optCurve->setChecked(true);

    fraMethod = new QGroupBox(QStringLiteral("Method Options"), surface);
    placeTwips(fraMethod, kOptions, 1320, kOptionsWidth, 1380);
    optRunga4 = new OptionButton(fraMethod, QStringLiteral("Runga-Kutta &4"));
    placeTwips(optRunga4, 120, 330, kOptionsWidth - 240, 300);
    optRunga2 = new OptionButton(fraMethod, QStringLiteral("Runga-Kutta &2"));
    placeTwips(optRunga2, 120, 660, kOptionsWidth - 240, 300);
    optEuler = new OptionButton(fraMethod, QStringLiteral("Euler's Metho&d"));
    placeTwips(optEuler, 120, 990, kOptionsWidth - 240, 300);
    optEuler->setChecked(true);

    fraPlotto = new QGroupBox(QStringLiteral("Plotto Options"), surface);
    placeTwips(fraPlotto, kOptions, 2820, kOptionsWidth, 4080);
    auto row = [this](const char* caption, const char* text, double top, ClickLabel*& label) {
        label = new ClickLabel(fraPlotto, QString::fromLatin1(caption), true);
        placeTwips(label, 120, top, kOptionsWidth - 240, 300);
        auto* box = new TextBox(fraPlotto, QString::fromLatin1(text));
        placeTwips(box, 120, top + 330, kOptionsWidth - 240, 300);
        return box;
    };
    txtHorShift = row("Horizontal Shift", "0", 300, lblHorShift);
    txtVerShift = row("Vertical Shift", "0", 1020, lblVerShift);
    chkBiDirect = new CheckBox(fraPlotto, QStringLiteral("Bi-directional"));
    placeTwips(chkBiDirect, 120, 1740, kOptionsWidth - 240, 300);
    txtCurvePoints = row("Number of Curve Points", "500", 2160, lblplots);
    lblplots->setToolTip(QStringLiteral("Maximum of 10000 points"));
    txtDelta = row("Delta x = ", "0.02", 2880, lblDeltaX);
    lblDeltaX->setToolTip(QStringLiteral("This value is used in Euler's Method to find succeeding points."));

    // The two rate menus after the File menu.
    dyMenu_ = addMenu(QStringLiteral("Select d&y - Function"));
    mnuSelectdy = dyMenu_->menuAction();
    dxMenu_ = addMenu(QStringLiteral("Select d&x - Function"));
    mnuseldx = dxMenu_->menuAction();
    startMenuArray(dyMenu_, mnuDy);
    startMenuArray(dxMenu_, mnuDx);

    optApprox->Click = [this] { optApprox_Click(); };
    optCurve->Click = [this] { optCurve_Click(); };
    optEuler->Click = [this] { optEuler_Click(); };
    optRunga2->Click = [this] { optRunga2_Click(); };
    optRunga4->Click = [this] { optRunga4_Click(); };
    txtCurvePoints->Change = [this] { txtCurvePoints_Change(); };
    lbldy->MouseDown = [this](int b, int s, double x, double y) { lbldy_MouseDown(b, s, x, y); };
    lbldx->MouseDown = [this](int b, int s, double x, double y) { lbldx_MouseDown(b, s, x, y); };
    lblplots->MouseDown = [this](int b, int s, double x, double y) { lblplots_MouseDown(b, s, x, y); };
    lblHorShift->MouseDown = [this](int b, int s, double x, double y) { lblHorShift_MouseDown(b, s, x, y); };
    lblVerShift->MouseDown = [this](int b, int s, double x, double y) { lblVerShift_MouseDown(b, s, x, y); };
    lblDeltaX->MouseDown = [this](int b, int s, double x, double y) { lblDeltaX_MouseDown(b, s, x, y); };
    lblPos->Click = [this] { lblPos_Click(); };
    surface->MouseDown = [this](int b, int s, double x, double y) { Form_MouseDown(b, s, x, y); };
    surface->MouseMove = [this](int b, int s, double x, double y) { Form_MouseMove(b, s, x, y); };
    Form_Load();
    // The step-method table starts from the last start point (the circle's (4, 3) before any).
    convergence = addConvergenceMenu(this, menuBar, QStringLiteral("Convergence of the step methods"), [this] {
        const double x0 = rt::Val(startX_->text().toStdString()), y0 = rt::Val(startY_->text().toStdString());
        const double xEnd = rt::Val(endX_->text().toStdString()), h = rt::Val(stepH_->text().toStdString());
        return Convergence::steps(x0, y0, xEnd, h, 6,
                                  {txtXmin->value(), txtXmax->value(), txtYmin->value(), txtYmax->value()});
    });
    startX_ = convergence->addInput(QStringLiteral("Start x"), QStringLiteral("4"));
    startY_ = convergence->addInput(QStringLiteral("Start y"), QStringLiteral("3"));
    endX_ = convergence->addInput(QStringLiteral("End x"), QStringLiteral("4.5"));
    stepH_ = convergence->addInput(QStringLiteral("Step h"), txtDelta->text());
}
