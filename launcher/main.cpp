#include <QApplication>

#include "launcher/frmGraphingCalc.h"

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Plotto"));
    frmGraphingCalc launcher;
    launcher.show();
    return QApplication::exec();
}
