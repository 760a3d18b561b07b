// SPDX-License-Identifier: GPL-3.0-or-later
// What a person sees, compared pixel for pixel with the pictures kept in tests/pictures: every screen
// as it shows what it teaches, on the window, in its menus and on an exported page in black and
// white, and a few states that only a hand or a key reaches (the readout under the pointer, the
// keyboard's walk, the projector's sizes, the typed entry's preview). A drawing fault that leaves
// every number right (a pen, a frame, a label's relief, a shape left out of the page) shows only here.
//
// How they are kept and compared: tests/Pictures.h.
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>

#include "graphwin/GraphExport.h"
#include "launcher/frmGraphingCalc.h"
#include "screens/ScreenRegistry.h"
#include "tests/Pictures.h"
#include "tests/screens/ScreenFixture.h"

namespace {

using namespace pictures;

QImage grabbed(QWidget& window)
{
    window.show();
    QApplication::processEvents();
    return window.grab().toImage();
}

// The exported page of the screen's graph, in black and white (line styles for colours), 480 wide.
QImage exportedPage(const GraphScreen& screen)
{
    graphexport::Options options;
    options.colour = false;
    const graphexport::Graph graph = screen.exportedGraph();
    const QSizeF page = graphexport::pageTwips(graph, options);
    QImage image(480, static_cast<int>(480 * page.height() / page.width()), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter p(&image);
    graphexport::paintFitted(p, graph, options, QRectF(0, 0, image.width(), image.height()));
    return image;
}

// The screen's menus opened one after another, side by side as the menu bar orders them.
QImage menusOf(GraphScreen& screen)
{
    std::vector<QImage> opened;
    for (QAction* entry : screen.menuBar->actions())
        if (QMenu* menu = entry->menu()) {
            menu->popup(QPoint(0, 0));
            QApplication::processEvents();
            opened.push_back(menu->grab().toImage());
            menu->hide();
        }
    int width = 0, height = 0;
    for (const QImage& m : opened) {
        width += m.width();
        height = std::max(height, m.height());
    }
    QImage image(std::max(width, 1), std::max(height, 1), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter p(&image);
    int x = 0;
    for (const QImage& m : opened) {
        p.drawImage(x, 0, m);
        x += m.width();
    }
    return image;
}

class Pictures : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (const QString why = whyNotComparable(); !why.isEmpty())
            GTEST_SKIP() << why.toStdString();
        if (keeping())
            keep(typeSample(), QStringLiteral("type-sample"));
    }
    void TearDown() override { DrawingSurface::setProjectorMode(false); }
    frmGraphingCalc launcher;
};

TEST_F(Pictures, EveryScreenShowingWhatItTeachesOnTheWindowInItsMenusAndOnAPageInBlackAndWhite)
{
    expectPicture(grabbed(launcher), QStringLiteral("launcher"));
    for (const screens::Entry& entry : screens::all()) {
        SCOPED_TRACE(entry.key);
        GraphScreen& screen = launcher.screen(entry);
        entry.showcase(screen);
        expectPicture(grabbed(screen), QString::fromLatin1(entry.key));
        expectPicture(exportedPage(screen), QString::fromLatin1(entry.key) + QStringLiteral("-page"));
        expectPicture(menusOf(screen), QString::fromLatin1(entry.key) + QStringLiteral("-menus"));
        screen.hide();
    }
}

TEST_F(Pictures, WhatTheHandAndTheKeysReach)
{
    // The secants zoomed about (1, 1), with the readout under the pointer near (1.05, 1.1025).
    frmTangent& tangent = launcher.tangentScreen();
    screens::find(QStringLiteral("tangent"))->showcase(tangent);
    tangent.show();
    tangent.zoomViewAt(1, 1, std::pow(1.25, 10));
    const double perPixel = twipsPerPixel(tangent.surface);
    const QPointF at(tangent.graph.plainColumn(1.05) / perPixel, tangent.graph.plainRow(1.05 * 1.05) / perPixel);
    QMouseEvent move(QEvent::MouseMove, at, tangent.surface->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(tangent.surface, &move);
    expectPicture(grabbed(tangent), QStringLiteral("tangent-readout"));
    tangent.hide();

    // The keyboard's walk along y = x^2 - 4 from near x = 3 to the root at 2 (N), with its focus.
    frmClasses& grapher = launcher.classesScreen();
    grapher.show();
    grapher.Form_Activate();
    grapher.mnuFunc_Click(1);
    type({grapher.txtA, grapher.txtB, grapher.txtC, grapher.txtD}, "1|1|0|-4");
    grapher.cmdPlotto_Click();
    grapher.exploreKey(Qt::Key_Right, Qt::ControlModifier);
    for (int i = 0; i < 20; ++i)
        grapher.exploreKey(Qt::Key_Right, Qt::NoModifier);
    grapher.exploreKey(Qt::Key_N, Qt::NoModifier);
    expectPicture(grabbed(grapher), QStringLiteral("grapher-walk"));

    // The same in projector mode, as large as a 1280x720 projector's client area.
    DrawingSurface::setProjectorMode(true);
    grapher.resize(1280, 680);
    expectPicture(grabbed(grapher), QStringLiteral("grapher-walk-projector"));
    DrawingSurface::setProjectorMode(false);
    grapher.hide();

    // The parametric screen's typed entry with a cycloid typed: what it understood, x and y.
    frmParam& param = launcher.paramScreen();
    param.show();
    QImage entryPicture;
    QTimer::singleShot(0, [&entryPicture] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog)
            return;
        const QList<QLineEdit*> lines = dialog->findChildren<QLineEdit*>();
        if (lines.size() == 2) {
            lines[0]->setText(QStringLiteral("t - sin(t)"));
            lines[1]->setText(QStringLiteral("1 - cos(t)"));
        }
        QApplication::processEvents();
        entryPicture = dialog->grab().toImage();
        dialog->close();
    });
    param.mnuTypeFunction_Click();
    ASSERT_FALSE(entryPicture.isNull()) << "the typed entry did not open";
    expectPicture(entryPicture, QStringLiteral("parametric-entry"));
}

}  // namespace
