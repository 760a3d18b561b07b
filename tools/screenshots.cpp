// Renders the program's windows to PNG files in a state that shows what each teaches, for the README.
// Usage: plotto_shots OUTPUT_DIR
#include <QApplication>
#include <QDir>
#include <QPixmap>

#include "funclib/FuncGlobals.h"
#include "launcher/frmGraphingCalc.h"
#include "screens/frmClasses.h"
#include "screens/frmRiemann.h"

namespace {

void save(QWidget& window, const QDir& dir, const QString& name)
{
    window.show();
    QApplication::processEvents();
    window.grab().save(dir.filePath(name));
}

}  // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QDir dir(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("."));
    dir.mkpath(QStringLiteral("."));

    frmGraphingCalc launcher;
    save(launcher, dir, QStringLiteral("launcher.png"));

    // The grapher comparing three parabolas and a sine curve.
    frmClasses& grapher = launcher.classesScreen();
    grapher.Form_Activate();
    grapher.mnuFunc_Click(2);
    for (const char* a : {"1", "0.25", "-0.5"}) {
        grapher.txtA->setText(QString::fromLatin1(a));
        grapher.txtC->setText(QStringLiteral("-4"));
        grapher.cmdPlotto_Click();
    }
    grapher.mnuFunc_Click(5);
    grapher.txtA->setText(QStringLiteral("3"));
    grapher.txtC->setText(QStringLiteral("0"));
    grapher.cmdPlotto_Click();
    save(grapher, dir, QStringLiteral("grapher.png"));
    grapher.hide();

    // The sums screen: y = x^2 on [-2, 2] with eight partitions and every method checked.
    frmRiemann& sums = launcher.riemannScreen();
    sums.Form_Activate();
    sums.txtParts->setText(QStringLiteral("8"));
    for (CheckBox* c : {sums.chkLeft, sums.chkRight, sums.chkMid, sums.chkTrap, sums.chkRandom, sums.chkSimpson,
                        sums.chkRiemann})
        c->setChecked(true);
    sums.cmdGraphNow_Click();
    sums.cmdParts_Click();
    save(sums, dir, QStringLiteral("sums.png"));
    sums.txtParts->setText(QStringLiteral("32000"));
    sums.cmdCleanParts_Click();
    sums.cmdParts_Click();
    save(sums, dir, QStringLiteral("sums-32000.png"));
    return 0;
}
