// SPDX-License-Identifier: GPL-3.0-or-later
// Renders the program's windows to PNG files in a state that shows what each teaches, for the README.
// Usage: plotto_shots OUTPUT_DIR
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPixmap>
#include <QTimer>
#include <cmath>
#include <functional>
#include <map>

#include "funclib/FuncGlobals.h"
#include "graphwin/Language.h"
#include "launcher/frmGraphingCalc.h"
#include "screens/ConvergenceWindow.h"
#include "screens/ScreenRegistry.h"

namespace {

void save(QWidget& window, const QDir& dir, const QString& name)
{
    window.show();
    QApplication::processEvents();
    window.grab().save(dir.filePath(name));
}

// The window as it looks maximized on a 1920x1080 screen (the client area below a title bar).
void saveMaximized(QWidget& window, const QDir& dir, const QString& name)
{
    const QSize normal = window.size();
    window.resize(1920, 1040);
    QApplication::processEvents();
    window.grab().save(dir.filePath(name));
    window.resize(normal);
    QApplication::processEvents();
}

}  // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    // PLOTTO_LANG=de takes the pictures in that language (English without it).
    i18n::install(i18n::choose(qEnvironmentVariable("PLOTTO_LANG"), {}, {}));
    const QDir dir(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("."));
    dir.mkpath(QStringLiteral("."));

    frmGraphingCalc launcher;
    save(launcher, dir, QStringLiteral("launcher.png"));

    // More pictures of a screen, taken right after its own picture, from the state it shows.
    const std::map<QString, std::function<void()>> more{
        {QStringLiteral("grapher"),
         [&] { saveMaximized(launcher.classesScreen(), dir, QStringLiteral("grapher-maximized.png")); }},
        {QStringLiteral("sums"),
         [&] {
             frmRiemann& sums = launcher.riemannScreen();
             // The eight partitions become 32000.
             sums.txtParts->setText(QStringLiteral("32000"));
             sums.cmdCleanParts_Click();
             sums.cmdParts_Click();
             save(sums, dir, QStringLiteral("sums-32000.png"));
             // The convergence table with the log-log plot, for y = x^2 on [0, 2], maximized on 1920x1080.
             sums.txtLBound->setText(QStringLiteral("0"));
             sums.txtRBound->setText(QStringLiteral("2"));
             sums.txtParts->setText(QStringLiteral("8"));
             sums.convergence->show();
             sums.convergence->recompute();
             save(*sums.convergence, dir, QStringLiteral("convergence-sums.png"));
             saveMaximized(*sums.convergence, dir, QStringLiteral("convergence-sums-maximized.png"));
             sums.convergence->hide();
         }},
        {QStringLiteral("tangent"),
         [&] {
             frmTangent& tangent = launcher.tangentScreen();
             // The secants zoomed ten wheel notches about (1, 1), with the readout under the pointer.
             tangent.zoomViewAt(1, 1, std::pow(1.25, 10));
             const double perPixel = twipsPerPixel(tangent.surface);
             const QPointF at(tangent.graph.plainColumn(1.05) / perPixel,
                              tangent.graph.plainRow(1.05 * 1.05) / perPixel);
             QMouseEvent move(QEvent::MouseMove, at, tangent.surface->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                              Qt::NoModifier);
             QApplication::sendEvent(tangent.surface, &move);
             save(tangent, dir, QStringLiteral("tangent-zoomed.png"));
             tangent.originalWindow();
         }},
        {QStringLiteral("slope-field"),
         [&] {
             frmFlowField& field = launcher.slopeFieldScreen();
             // The forty curves maximized, then approximations from (4, 3) and their convergence.
             saveMaximized(field, dir, QStringLiteral("slope-field-maximized.png"));
             field.CleanGraph();
             field.cmdShowFlow_Click();
             field.optApprox->setChecked(true);
             field.txtDelta->setText(QStringLiteral("1"));
             field.txtCurvePoints->setText(QStringLiteral("3"));
             for (OptionButton* method : {field.optEuler, field.optRunga2, field.optRunga4}) {
                 method->setChecked(true);
                 field.Form_MouseDown(1, 0, 5600 + 4 * 320, 3300 - 3 * 320);
             }
             field.optCurve->setChecked(true);
             field.Form_MouseDown(1, 0, 5600 + 4 * 320, 3300 - 3 * 320);
             save(field, dir, QStringLiteral("slope-field-approximations.png"));
             field.convergence->show();
             field.convergence->recompute();
             save(*field.convergence, dir, QStringLiteral("convergence-steps.png"));
             field.convergence->hide();
         }},
    };
    // Every screen in the state that shows what it teaches, as the registry sets it: <key>.png.
    for (const screens::Entry& entry : screens::all()) {
        GraphScreen& screen = launcher.screen(entry);
        entry.showcase(screen);
        save(screen, dir, QString::fromLatin1(entry.key) + QStringLiteral(".png"));
        if (const auto it = more.find(QString::fromLatin1(entry.key)); it != more.end())
            it->second();
        screen.hide();
    }

    frmClasses& grapher = launcher.classesScreen();
    frmRiemann& sums = launcher.riemannScreen();
    frmNewton& newton = launcher.newtonScreen();
    frmFlowField& field = launcher.slopeFieldScreen();
    frmParam& param = launcher.paramScreen();
    param.show();
    // A typed cycloid, traced at t = pi.
    param.CleanGraph();
    param.setTypedCurve(QStringLiteral("t - sin(t)"), QStringLiteral("1 - cos(t)"));
    param.txtTn->setText(QStringLiteral("12.6"));
    param.optCont->setChecked(true);
    param.cmdPlotto_Click();
    param.txtT->setText(QStringLiteral("3.1416"));
    save(param, dir, QStringLiteral("typed-parametric.png"));
    param.hide();

    // Typed functions: Newton's method on the textbook cubic x^3 - 2x - 5 from 2, with its exact
    // derivative, and the entry (Ctrl+E) as the teacher typed it.
    newton.show();
    newton.Form_Activate();
    for (auto [box, text] :
         {std::pair{newton.txtXmin, "-4"}, {newton.txtXmax, "4"}, {newton.txtYmin, "-10"}, {newton.txtYmax, "10"}})
        box->setText(QString::fromLatin1(text));
    newton.setTypedFunction(QStringLiteral("x^3 - 2*x - 5"));
    newton.cmdPlotto_Click();
    newton.cmdDeriv_Click();
    newton.txtGuess->setText(QStringLiteral("2"));
    for (int i = 0; i < 4; ++i)
        newton.cmdApply_Click();
    save(newton, dir, QStringLiteral("typed-newton.png"));
    QTimer::singleShot(200, [&dir] {
        QWidget* entry = QApplication::activeModalWidget();
        if (!entry)
            return;
        if (auto* line = entry->findChild<QLineEdit*>())
            line->setText(QStringLiteral("x^3 - 2*x - 5"));
        QApplication::processEvents();
        entry->grab().save(dir.filePath(QStringLiteral("typed-entry.png")));
        if (auto* line = entry->findChild<QLineEdit*>())
            line->setText(QStringLiteral("sin(x + (1 - x)"));
        QApplication::processEvents();
        entry->grab().save(dir.filePath(QStringLiteral("typed-entry-refused.png")));
        entry->close();
    });
    newton.mnuTypeFunction_Click();
    // The same steps after View, Zoom to the Steps: the last two tangents apart from the root.
    newton.mnuZoomSteps->trigger();
    save(newton, dir, QStringLiteral("typed-newton-steps-zoomed.png"));
    newton.hide();

    // The midpoint sums of the Gaussian on [0, 1], typed.
    sums.show();
    sums.Form_Activate();
    for (auto [box, text] :
         {std::pair{sums.txtXmin, "-2"}, {sums.txtXmax, "2"}, {sums.txtYmin, "-1"}, {sums.txtYmax, "1.5"}})
        box->setText(QString::fromLatin1(text));
    sums.setTypedFunction(QStringLiteral("exp(-x^2)"));
    sums.txtLBound->setText(QStringLiteral("0"));
    sums.txtRBound->setText(QStringLiteral("1"));
    sums.txtParts->setText(QStringLiteral("8"));
    for (CheckBox* c :
         {sums.chkLeft, sums.chkRight, sums.chkMid, sums.chkTrap, sums.chkRandom, sums.chkSimpson, sums.chkRiemann})
        c->setChecked(c == sums.chkMid || c == sums.chkSimpson);
    sums.cmdGraphNow_Click();
    sums.cmdParts_Click();
    save(sums, dir, QStringLiteral("typed-sums.png"));
    sums.hide();

    // The slope field of dy/dx = x - y^2, typed, with its curves.
    field.show();
    field.Form_Activate();
    field.optCurve->setChecked(true);
    field.txtDelta->setText(QStringLiteral("0.1"));
    field.txtCurvePoints->setText(QStringLiteral("500"));
    field.setTypedRates(QStringLiteral("x - y^2"), QStringLiteral("1"));
    field.CleanGraph();
    field.cmdShowFlow_Click();
    field.cmdPlotto_Click();
    save(field, dir, QStringLiteral("typed-slope-field.png"));
    field.hide();

    // The walk along y = x^2 - 4 with the keyboard: from near x = 3, N finds the root at 2.
    grapher.Form_Activate();
    grapher.cmdClean_Click();
    grapher.mnuFunc_Click(1);
    for (QLineEdit* box : {grapher.txtA, grapher.txtB, grapher.txtC, grapher.txtD})
        box->setText(QStringLiteral("1"));
    grapher.txtC->setText(QStringLiteral("0"));
    grapher.txtD->setText(QStringLiteral("-4"));
    grapher.cmdPlotto_Click();
    grapher.exploreKey(Qt::Key_Right, Qt::ControlModifier);
    for (int i = 0; i < 20; ++i)
        grapher.exploreKey(Qt::Key_Right, Qt::NoModifier);
    grapher.exploreKey(Qt::Key_N, Qt::NoModifier);
    save(grapher, dir, QStringLiteral("walk-root.png"));
    saveMaximized(grapher, dir, QStringLiteral("walk-root-1920x1080.png"));

    // Every screen as it was left above, maximized on the common projector sizes (the client area
    // below a title bar), in normal and in projector mode: docs/projector/.
    const QDir projector(dir.filePath(QStringLiteral("projector")));
    projector.mkpath(QStringLiteral("."));
    const QSize sizes[] = {{1920, 1040}, {1280, 680}, {1024, 728}};
    const QStringList only = qEnvironmentVariable("PLOTTO_SHOT_SIZES").split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (bool mode : {false, true}) {
        DrawingSurface::setProjectorMode(mode);
        for (const screens::Entry& entry : screens::all())
            for (const QSize size : sizes) {
                GraphScreen* window = &launcher.screen(entry);
                const QString tag = QStringLiteral("%1x%2").arg(size.width()).arg(size.height() + 40);
                if (!only.isEmpty() && !only.contains(tag))
                    continue;
                window->show();
                window->resize(size);
                QApplication::processEvents();
                window->grab().save(projector.filePath(
                    QStringLiteral("%1-%2%3.png")
                        .arg(QString::fromLatin1(entry.key), tag, mode ? QStringLiteral("-projector") : QString())));
                window->hide();
            }
    }
    DrawingSurface::setProjectorMode(false);
    return 0;
}
