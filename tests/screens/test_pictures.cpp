// SPDX-License-Identifier: GPL-3.0-or-later
// What a person sees, compared pixel for pixel with the pictures kept in tests/pictures: every screen
// as it shows what it teaches, on the window and on an exported page in black and white, and a few
// states that only a hand or a key reaches (the readout under the pointer, the keyboard's walk, the
// projector's sizes, the typed entry's preview). A drawing fault that leaves every number right (a
// pen, a frame, a label's relief, a shape left out of the page) shows only here.
//
// Text is drawn with the machine's fonts, so the pictures are compared only where a sample of the
// program's type comes out exactly as when they were kept; elsewhere each case is skipped and says
// why. PLOTTO_KEEP_PICTURES=1 keeps this run's pictures instead (look at each before committing it).
// A picture that differs is written to pictures-differ/ in the test's folder, with the pixels that
// differ in red beside it.
#include <QApplication>
#include <QDir>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>

#include "graphwin/GraphExport.h"
#include "launcher/frmGraphingCalc.h"
#include "screens/ScreenRegistry.h"
#include "tests/screens/ScreenFixture.h"

namespace {

const QString kKept = QStringLiteral(PLOTTO_SOURCE_DIR "/tests/pictures/");

bool keeping() { return qEnvironmentVariableIntValue("PLOTTO_KEEP_PICTURES") == 1; }

// The program's type (the forms', the launcher's, the pages') with the signs it writes, on white.
QImage typeSample()
{
    QImage image(520, 150, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter p(&image);
    p.setPen(Qt::black);
    const QString sample = QStringLiteral("Step 1 of 4: y' = 3*x^2 - 2, f(1.25) = -0.0469 (\u03b5, \u03b4) \u00e4\u00e9\u00df");
    QFont bold(QStringLiteral("Times New Roman"), 10);
    bold.setBold(true);
    const QFont fonts[] = {QFont(QStringLiteral("Times New Roman"), 10), QFont(QStringLiteral("Times New Roman"), 11),
                           bold, QApplication::font(), graphexport::pageFont(160)};
    int y = 20;
    for (const QFont& font : fonts) {
        p.setFont(font);
        p.drawText(4, y, sample);
        y += 26;
    }
    return image;
}

// Whether the pictures can be compared here, or why not.
QString whyNotComparable()
{
    if (keeping())
        return {};
    const QImage kept(kKept + QStringLiteral("type-sample.png"));
    if (kept.isNull())
        return QStringLiteral("no kept type sample: run once with PLOTTO_KEEP_PICTURES=1");
    if (kept.text(QStringLiteral("Qt")) != QLatin1String(qVersion()))
        return QStringLiteral("the pictures were kept with Qt %1, this is Qt %2")
            .arg(kept.text(QStringLiteral("Qt")), QLatin1String(qVersion()));
    if (kept.convertToFormat(QImage::Format_RGB32) != typeSample())
        return QStringLiteral("this machine's fonts draw the program's type differently from the machine the "
                              "pictures were kept on");
    return {};
}

// Keeps a picture under its name, with the version of Qt that drew it.
void keep(QImage image, const QString& name)
{
    image.setText(QStringLiteral("Qt"), QLatin1String(qVersion()));
    ASSERT_TRUE(image.save(kKept + name + QStringLiteral(".png"))) << name.toStdString();
}

// Compares the widget's or image's picture with the kept one of that name (or keeps it).
void expectPicture(const QImage& taken, const QString& name)
{
    const QImage image = taken.convertToFormat(QImage::Format_RGB32);
    if (keeping())
        return keep(image, name);
    const QImage kept = QImage(kKept + name + QStringLiteral(".png")).convertToFormat(QImage::Format_RGB32);
    ASSERT_FALSE(kept.isNull()) << "no kept picture " << name.toStdString();
    ASSERT_EQ(kept.size(), image.size()) << name.toStdString();
    QImage marked = image;
    int differ = 0;
    QRect where;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != kept.pixel(x, y)) {
                ++differ;
                where |= QRect(x, y, 1, 1);
                marked.setPixel(x, y, qRgb(255, 0, 0));
            }
    if (differ == 0)
        return;
    QDir().mkpath(QStringLiteral("pictures-differ"));
    image.save(QStringLiteral("pictures-differ/") + name + QStringLiteral(".png"));
    marked.save(QStringLiteral("pictures-differ/") + name + QStringLiteral("-marked.png"));
    ADD_FAILURE() << name.toStdString() << ": " << differ << " pixels differ from the kept picture, within (" << where.x()
                  << ", " << where.y() << ") to (" << where.right() << ", " << where.bottom() << "); see "
                  << QDir::current().filePath(QStringLiteral("pictures-differ")).toStdString();
}

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

TEST_F(Pictures, EveryScreenShowingWhatItTeachesOnTheWindowAndOnAPageInBlackAndWhite)
{
    expectPicture(grabbed(launcher), QStringLiteral("launcher"));
    for (const screens::Entry& entry : screens::all()) {
        SCOPED_TRACE(entry.key);
        GraphScreen& screen = launcher.screen(entry);
        entry.showcase(screen);
        expectPicture(grabbed(screen), QString::fromLatin1(entry.key));
        expectPicture(exportedPage(screen), QString::fromLatin1(entry.key) + QStringLiteral("-page"));
        screen.hide();
    }
}

TEST_F(Pictures, WhatTheHandAndTheKeysReach)
{
    // The secants zoomed about (1, 1), with the readout under the pointer near (1.05, 1.1025).
    frmTangent& tangent = launcher.tangentScreen();
    screens::Entry const* entry = nullptr;
    for (const screens::Entry& e : screens::all())
        if (QLatin1String(e.key) == QLatin1String("tangent"))
            entry = &e;
    ASSERT_NE(entry, nullptr);
    entry->showcase(tangent);
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
