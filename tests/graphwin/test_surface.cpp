// SPDX-License-Identifier: GPL-3.0-or-later
// The drawing surface: pixels under twip points, recorded shapes, clipping and pens; and at every
// size the same twips under a press and the picture drawn again.
#include <array>

#include <QTest>
#include <gtest/gtest.h>

#include "graphwin/DrawingStyle.h"
#include "graphwin/DrawingSurface.h"
#include "graphwin/GraphWindow.h"
#include "runtime/RuntimeError.h"
#include "tests/TestSupport.h"

namespace {
constexpr QRgb kRed = 0xFFFF0000u, kBlue = 0xFF0000FFu, kWhite = 0xFFFFFFFFu;

QImage grab(DrawingSurface& s)
{
    QImage img(s.normalSize(), QImage::Format_RGB32);
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            img.setPixel(x, y, s.pixel(x * 15, y * 15));
    return img;
}
}  // namespace

TEST(DrawingSurface, ShapesColourThePixelsUnderTheirTwipsAndAreRecorded)
{
    DrawingSurface s(6000, 3000);
    s.setRecording(true);
    s.PSet(1500, 1500, kRed);
    s.LineStep(300, 600, 900, 0, kBlue);
    s.Line(150, 150, 1500, 1500, kRed);  // diagonal
    s.Line(-1e12, 2000, 1e12, 2000, kRed);  // crosses the whole surface: clipped, not dropped
    EXPECT_EQ(std::pair(s.CurrentX, s.CurrentY), std::pair(1e12, 2000.0));
    s.Line(1e300, -1e300, 2e300, -5e299, kBlue);  // entirely outside
    s.Line(1500, 1500, std::numeric_limits<double>::quiet_NaN(), 0, kBlue);
    const std::tuple<double, double, QRgb> pixels[] = {
        {1500, 1500, kRed},  {1514, 1514, kRed}, {1515, 1500, kWhite},  // 15 twips to a pixel
        {300, 600, kBlue},   {1200, 600, kBlue}, {1215, 600, kWhite},  {750, 750, kRed},
        {750, 1200, kWhite}, {0, 2000, kRed},    {5990, 2000, kRed},   {1500, 1400, kWhite}};
    for (const auto& [x, y, colour] : pixels)
        EXPECT_EQ(s.pixel(x, y), colour) << x << ", " << y;
    ASSERT_EQ(s.ops().size(), 6u);  // lines outside are recorded too
    const DrawOp& step = s.ops()[1];
    EXPECT_EQ(std::tuple(s.ops()[0].kind, step.kind, step.x1, step.y1, step.x2, step.y2, step.color),
              std::tuple(DrawOp::PSet, DrawOp::Line, 300, 600, 1200, 600, kBlue));

    s.setDrawWidth(3);
    s.PSet(3000, 1500, kRed);
    EXPECT_EQ(std::tuple(s.pixel(2985, 1485), s.pixel(3015, 1515), s.ops().back().width), std::tuple(kRed, kRed, 3));
    s.Cls();
    EXPECT_EQ(std::tuple(s.ops().size(), s.pixel(1500, 1500), s.CurrentX), std::tuple(0u, kWhite, 0));
}

TEST(Zoom, PressesGiveTheSameTwipsAndThePictureIsDrawnAgainAtEverySize)
{
    for (double zoom : {1.0, 2.0, 0.5, 1.5, 3.25}) {
        DrawingSurface s(3000, 3000);
        s.setZoom(zoom);
        double X = -1, Y = -1;
        s.MouseDown = [&](int, int, double x, double y) { X = x, Y = y; };
        QTest::mouseClick(&s, Qt::LeftButton, Qt::NoModifier, QPoint(int(100 * zoom), int(40 * zoom)));
        EXPECT_LT(std::hypot(X - 1500, Y - 600), 1e-9) << zoom;
        EXPECT_EQ(s.size(), QSize(int(std::lround(200 * zoom)), int(std::lround(200 * zoom))));
    }
    DrawingSurface s(3000, 3000);
    s.Line(300, 600, 1200, 600, kRed);
    s.Line(150, 1500, 1500, 2800, kRed);
    s.Circle(1500, 1500, 450, kRed);
    s.CurrentX = 200, s.CurrentY = 2200;
    s.Print(QStringLiteral("y = x^2"));
    s.clearArea(1000, 1000, 200, 200);
    const QImage before = grab(s);
    QImage blank = before.copy(13, 146, 37, 16);  // where the text is, left of the line
    blank.fill(Qt::white);
    EXPECT_NE(before.copy(13, 146, 37, 16), blank) << "the printed text is in the picture";
    s.setZoom(2);  // every twip point shows what it showed: a one-pixel line is two pixels wide
    for (double x = 300; x <= 1200; x += 7.5)
        ASSERT_EQ(s.pixel(x, 600), kRed) << x;
    EXPECT_EQ(std::tuple(s.pixel(700, 607), s.pixel(700, 616), s.pixel(1100, 1100)),
              std::tuple(kRed, kWhite, kWhite));  // the cleared rectangle stays cleared
    s.setZoom(0.37);
    s.setZoom(1);
    EXPECT_EQ(grab(s), before);
}

// Column runs in chunks: the kept store counts their dotted points as the one-by-one drawing counts
// its points (and one more for each kept batch), and both agree at another size once full.
TEST(Zoom, ColumnRunsFillWhatIsKeptAsTheirPointsOneByOneDo)
{
    DrawingSurface one(3000, 3000), batched(3000, 3000);
    one.setBatching(false);
    std::vector<double> rows(3000);
    for (int batch = 0; batch < 800; ++batch) {
        for (std::size_t i = 0; i < rows.size(); ++i)  // a third of the rows lie outside the band
            rows[i] = i % 3 == 0 ? -5.0 * batch : std::fmod(7.3 * batch + 0.3 * static_cast<double>(i), 2990);
        for (DrawingSurface* s : {&one, &batched}) {
            DrawingSurface::Batch b(*s, batch % 2 ? kRed : kBlue);
            b.beginRun(rows.size());
            for (std::size_t from = 0; from < rows.size(); from += 512)
                b.runColumns(static_cast<int>(from), rows.data() + from, std::min<std::size_t>(512, rows.size() - from),
                             0, 2990);
        }
        ASSERT_EQ(std::pair(batched.CurrentX, batched.CurrentY), std::pair(one.CurrentX, one.CurrentY)) << batch;
        if (batched.keptOperations() + rows.size() < DrawingSurface::kMaxKept) {
            ASSERT_EQ(batched.keptOperations() - one.keptOperations(), batch + 1u) << batch;
        }
    }
    EXPECT_GE(one.keptOperations(), DrawingSurface::kMaxKept - 2000);  // the store filled up on the way
    batched.setZoom(2);
    one.setZoom(2);
    EXPECT_EQ(batched.picture(QRectF(0, 0, 3000, 3000)), one.picture(QRectF(0, 0, 3000, 3000)));
}

TEST(GraphWindow, MapsTheWindowOntoTheSquareAndBack)
{
    // clang-format off
    struct { const char* name; double left, xmin, xmax, ymin, ymax; std::int32_t xOrigin, yOrigin; } cases[] = {
        {"the default window", 2400, -10, 10, -10, 10, 5600, 3300},
        {"a window right of the origin", 2400, 1, 5, 0, 4, 800, 6500},
        {"another square's left edge", 1560, -2, 2, -1, 3, 4760, 4900},
        {"an origin rounded down", 2400, -3, 4, -2, 5, 5142, 4671},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        GraphWindow g;
        g.Left = c.left;
        g.set(c.xmin, c.xmax, c.ymin, c.ymax);
        EXPECT_EQ(std::pair(g.XOrigin, g.YOrigin), std::pair(c.xOrigin, c.yOrigin));
        const auto left = static_cast<std::int32_t>(c.left);
        EXPECT_EQ(std::pair(g.firstColumn(), g.lastColumn()), std::pair(left + 1, left + 6399));
        // The edges of the square in the world, within the rounding of the origins (a twip).
        const double twipX = (c.xmax - c.xmin) / 6400, twipY = (c.ymax - c.ymin) / 6400;
        EXPECT_NEAR(g.worldLeft(), c.xmin, twipX);
        EXPECT_NEAR(g.worldRight(), c.xmax, twipX);
        EXPECT_NEAR(g.worldTop(), c.ymax, twipY);
        EXPECT_NEAR(g.worldBottom(), c.ymin, twipY);
        for (double t : {0.0, 0.25, 0.5, 1.0}) {
            const double x = c.xmin + t * (c.xmax - c.xmin), y = c.ymin + t * (c.ymax - c.ymin);
            EXPECT_DOUBLE_EQ(g.plainColumn(x), g.column(x));
            EXPECT_DOUBLE_EQ(g.plainRow(y), g.row(y));
            EXPECT_NEAR(g.plainWorldX(g.column(x)), x, 1e-12 * (1 + std::fabs(x)));
            EXPECT_NEAR(g.plainWorldY(g.row(y)), y, 1e-12 * (1 + std::fabs(y)));
        }
    }
    // Where a point cannot be mapped, the checks raise as they always did: a value too large to scale or
    // to divide by the range, and a window never set (no width or height: x / 0 and 0 / 0).
    GraphWindow wide, flat;
    wide.set(-1e300, 1e300, -1e-300, 1e-300);
    const std::tuple<const GraphWindow*, double, int, int> unmapped[] = {
        {&wide, 1e306, 6, 6}, {&wide, 1e10, 0, 6}, {&flat, 1, 11, 11}, {&flat, 0, 6, 6}};
    for (const auto& [g, v, columnError, rowError] : unmapped) {
        EXPECT_EQ(errorOf([&] { g->column(v); }), columnError) << v;
        EXPECT_EQ(errorOf([&] { g->row(v); }), rowError) << v;
    }
}
