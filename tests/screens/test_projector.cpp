// SPDX-License-Identifier: GPL-3.0-or-later
// Seen from the back of the room: every control of a form fits its frame at every zoom, and
// projector mode changes how the shapes are drawn but never where.
#include <algorithm>
#include <cmath>

#include <QGroupBox>

#include "screens/ScreenRegistry.h"

#include "ScreenFixture.h"

namespace {

double luminance(QRgb c)
{
    auto linear = [](int v) {
        const double x = v / 255.0;
        return x <= 0.04045 ? x / 12.92 : std::pow((x + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(c)) + 0.7152 * linear(qGreen(c)) + 0.0722 * linear(qBlue(c));
}

// The pixels of a picture that are not white, and the luminance of the lightest of them.
std::pair<long, double> ink(const QImage& image)
{
    long inked = 0;
    double lightest = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != 0xFFFFFFFF) {
                ++inked;
                lightest = std::max(lightest, luminance(image.pixel(x, y)));
            }
    return {inked, lightest};
}

struct Projector : ScreenFixture<frmMVT> {
    void TearDown() override
    {
        DrawingSurface::setProjectorMode(false);
        ScreenFixture::TearDown();
    }
    // The MVT screen's parabola, secant with its two circles, and the tangent at c, in dark colours,
    // with a line in light yellow, which a projector washes out.
    void draw()
    {
        screen->mnuFunc_Click(2);
        type({screen->txtA, screen->txtB, screen->txtC}, "1|0|0");
        screen->cmdPlotto_Click();
        type({screen->txtX1, screen->txtX2}, "0|2");
        screen->cmdApplyMVT_Click();
        screen->HscMVT->setValue(5000);
        screen->surface->Line(2500, 6000, 8700, 6000, colour(14));
    }
};

}  // namespace

// Every form is built from tables: at every zoom, each control stands inside the frame that holds it
// (a new row in a table grows its frame or is caught here) and inside the drawing surface, and no two
// frames overlap.
TEST(FormGrowth, EveryControlFitsItsFrameAndTheFormAtEveryZoom)
{
    ScriptedDialogs script;
    for (const screens::Entry& row : screens::all()) {
        const std::unique_ptr<GraphScreen> screen = row.make();
        for (const double zoom : {0.5, 1.0, 1.5, 2.0, 3.0}) {
            screen->surface->setZoom(zoom);
            const std::string where = std::string(row.key) + " at zoom " + std::to_string(zoom);
            const QRect surface = screen->surface->rect();
            QList<QGroupBox*> frames = screen->surface->findChildren<QGroupBox*>();
            for (QWidget* w : screen->surface->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
                EXPECT_TRUE(w->isWindow() || w->objectName() == QStringLiteral("viewReadout") ||
                            surface.contains(w->geometry()))
                    << where << ": " << w->objectName().toStdString();
            for (QGroupBox* frame : frames) {
                for (QWidget* w : frame->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
                    EXPECT_TRUE(frame->rect().contains(w->geometry()))
                        << where << ": " << w->objectName().toStdString() << " leaves "
                        << frame->objectName().toStdString();
                for (QGroupBox* other : frames)
                    EXPECT_TRUE(other == frame || other->parent() != frame->parent() ||
                                !other->geometry().intersects(frame->geometry()))
                        << where << ": " << frame->objectName().toStdString() << " overlaps "
                        << other->objectName().toStdString();
            }
        }
    }
}

TEST_F(Projector, ChangesHowShapesAreDrawnNeverWhere)
{
    draw();
    const std::vector<DrawOp> plain = ops();
    const QImage before = screen->surface->picture(QRectF(2400, 100, 6400, 6400));
    DrawingSurface::setProjectorMode(true);
    const auto [inkBold, lightest] = ink(screen->surface->picture(QRectF(2400, 100, 6400, 6400)));
    EXPECT_GT(inkBold, 2 * ink(before).first);  // lines two to three times as wide
    EXPECT_LE(lightest, 0.31);  // every colour at least 3:1 against white

    // The same handlers with the mode on compute and record the very same shapes.
    ScreenFixture::TearDown();
    ScreenFixture::SetUp();
    draw();
    std::string where;
    EXPECT_TRUE(sameOps(ops(), plain, where, 0)) << where;

    // Off again, the picture is what it was, pixel for pixel.
    DrawingSurface::setProjectorMode(false);
    EXPECT_TRUE(screen->surface->picture(QRectF(2400, 100, 6400, 6400)) == before);
}
