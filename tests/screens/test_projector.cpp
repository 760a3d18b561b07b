// SPDX-License-Identifier: GPL-3.0-or-later
// Seen from the back of the room: every part of a form grows with it (menu bar, indicators, scroll
// bars), scroll bars and indicators keep their contrast, and projector mode changes how the shapes
// are drawn but never where.
#include <algorithm>
#include <cmath>
#include <map>

#include <QMenuBar>
#include <QStyle>

#include "graphwin/FormStyle.h"
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

double contrast(QRgb a, QRgb b)
{
    const double la = luminance(a), lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
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
    // The MVT screen's parabola, secant with its two circles, and the tangent at c.
    void draw()
    {
        screen->mnuFunc_Click(2);
        type({screen->txtA, screen->txtB, screen->txtC}, "1|0|0");
        screen->cmdPlotto_Click();
        type({screen->txtX1, screen->txtX2}, "0|2");
        screen->cmdApplyMVT_Click();
        screen->HscMVT->setValue(5000);
    }
};

}  // namespace

TEST(FormGrowth, MenuBarIndicatorsAndScrollBarsGrowWithTheForm)
{
    ScriptedDialogs script;
    frmRiemann sums;
    frmMVT mvt;
    QStyle* style = sums.style();
    auto measure = [&] {
        return std::array<double, 4>{
            static_cast<double>(sums.menuBar->sizeHint().height()),
            static_cast<double>(style->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, sums.chkLeft)),
            static_cast<double>(mvt.HscMVT->height()),
            static_cast<double>(style->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, mvt.HscMVT))};
    };
    const auto normal = measure();
    sums.surface->setZoom(2);
    mvt.surface->setZoom(2);
    const auto twice = measure();
    const char* names[] = {"menu bar height", "check-box indicator", "scroll-bar thickness", "scroll-bar extent"};
    for (int i = 0; i < 4; ++i)
        EXPECT_NEAR(twice[i] / normal[i], 2, 0.3) << names[i] << ": " << normal[i] << " -> " << twice[i];
}

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

TEST(FormGrowth, ScrollBarThumbsAndIndicatorsStandOutThreeToOne)
{
    ScriptedDialogs script;
    frmMVT mvt;
    mvt.show();
    mvt.HscMVT->setValue(5000);
    // Along the bar's middle row, between its arrows: the track is the commonest colour, the thumb
    // the commonest of the others.
    const QImage bar = mvt.HscMVT->grab().toImage();
    std::map<QRgb, int> track, rest;
    for (int x = bar.height() + 2; x < bar.width() - bar.height() - 2; ++x)
        ++track[bar.pixel(x, bar.height() / 2)];
    const auto commonest = [](const std::map<QRgb, int>& counts) {
        return std::max_element(counts.begin(), counts.end(), [](auto a, auto b) { return a.second < b.second; })
            ->first;
    };
    const QRgb trackColour = commonest(track);
    for (const auto& [colour, n] : track)
        if (colour != trackColour)
            rest[colour] = n;
    ASSERT_FALSE(rest.empty());
    EXPECT_GE(contrast(commonest(rest), trackColour), 3.0);
    frmRiemann sums;
    sums.show();
    const QImage box = sums.chkLeft->grab().toImage();
    // The indicator's outline: the darkest pixel of its left part, against the white inside.
    QRgb darkest = 0xFFFFFFFF;
    for (int x = 0; x < box.height(); ++x)
        for (int y = 0; y < box.height(); ++y)
            if (luminance(box.pixel(x, y)) < luminance(darkest))
                darkest = box.pixel(x, y);
    EXPECT_GE(contrast(darkest, 0xFFFFFFFF), 3.0);
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

TEST_F(Projector, IsACommandOfTheToolsMenuKeptForTheRun)
{
    EXPECT_EQ(screen->mnuProjector->shortcut(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P));
    screen->mnuProjector->trigger();
    EXPECT_TRUE(DrawingSurface::projectorMode());
    frmClasses other;  // another screen sees the mode when its menu opens
    Q_EMIT other.mnuTools->menu()->aboutToShow();
    EXPECT_TRUE(other.mnuProjector->isChecked());
    other.mnuProjector->trigger();
    EXPECT_FALSE(DrawingSurface::projectorMode());
}
