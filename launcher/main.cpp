#include <QApplication>
#include <QFont>

#include "launcher/frmGraphingCalc.h"

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Plotto"));
    // One typeface for everything the program shows, menus and message boxes included (Debian's
    // metric-compatible Liberation Serif stands in where Times New Roman is not installed).
    QApplication::setFont(QFont(QStringLiteral("Times New Roman"), 10));
    frmGraphingCalc launcher;
    launcher.show();
    return QApplication::exec();
}
