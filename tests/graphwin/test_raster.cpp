// SPDX-License-Identifier: GPL-3.0-or-later
// The direct pixel writer against a plain reference: for random segments and points in and around
// a small image (inside, on the edges, in the margins, far away, huge, NaN, infinite) and every pen
// width, the fast paths write exactly the reference's pixels and never a pixel outside the image.
#include <array>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "graphwin/DrawingSurface.h"
#include "graphwin/Raster.h"

namespace {

constexpr long W = 37, H = 23, Guard = 12;
constexpr std::uint32_t kInk = 0xFF123456u;

// An image of W x H pixels inside a border that nothing may touch.
struct GuardedImage {
    std::vector<std::uint32_t> buffer = std::vector<std::uint32_t>((W + 2 * Guard) * (H + 2 * Guard), 0u);
    raster::Target target() { return {buffer.data() + Guard * (W + 2 * Guard) + Guard, W + 2 * Guard, W, H}; }
    bool inside(long i) const
    {
        const long x = i % (W + 2 * Guard) - Guard, y = i / (W + 2 * Guard) - Guard;
        return x >= 0 && x < W && y >= 0 && y < H;
    }
};

// The reference: each pixel of the pen square set one by one, each checked against the image.
void referencePixel(GuardedImage& img, long px, long py, int pen)
{
    const long first = pen <= 1 ? 0 : -(pen / 2);
    const int n = std::max(pen, 1);
    for (long y = py + first; y < py + first + n; ++y)
        for (long x = px + first; x < px + first + n; ++x)
            if (x >= 0 && x < W && y >= 0 && y < H)
                img.target().bits[y * img.target().stride + x] = kInk;
}

// Every step of the line from one clipped end to the other, plotted one pixel at a time (a point is
// a line from itself to itself).
void referenceLine(GuardedImage& img, double x1, double y1, double x2, double y2, int pen)
{
    if (!(std::isfinite(x1) && std::isfinite(y1) && std::isfinite(x2) && std::isfinite(y2)))
        return;
    if (!raster::clipSegment(x1, y1, x2, y2, -1.0 - pen, W + pen, H + pen))
        return;
    long ax = std::lround(std::floor(x1)), ay = std::lround(std::floor(y1));
    const long bx = std::lround(std::floor(x2)), by = std::lround(std::floor(y2));
    const long dx = std::labs(bx - ax), dy = -std::labs(by - ay);
    long err = dx + dy;
    for (;;) {
        referencePixel(img, ax, ay, pen);
        if (ax == bx && ay == by)
            return;
        const long e2 = 2 * err;
        if (e2 >= dy) {
            err += dy;
            ax += ax < bx ? 1 : -1;
        }
        if (e2 <= dx) {
            err += dx;
            ay += ay < by ? 1 : -1;
        }
    }
}

// Coordinates that reach every region a caller can hand over.
double coordinate(std::mt19937& rng, long extent)
{
    const double big = 1e300, inf = std::numeric_limits<double>::infinity();
    // clang-format off
    const double specials[] = {0.0, -0.0, -0.5, -1.0, -1.5, -2.0, -3.5, -6.9, extent - 1.0, extent - 0.01,
        double(extent), extent + 0.5, extent + 2.0, extent + 5.9, 1e6, -1e6, big, -big, inf, -inf,
        std::numeric_limits<double>::quiet_NaN()};
    // clang-format on
    switch (rng() % 4) {
    case 0: return specials[rng() % std::size(specials)];
    case 1:  // the margins on either side
        return std::uniform_real_distribution<double>(-8.0, 0.0)(rng) + (rng() % 2 ? extent + 8.0 : 0.0);
    default: return std::uniform_real_distribution<double>(-10.0, extent + 10.0)(rng);
    }
}

::testing::AssertionResult sameAndGuarded(const GuardedImage& fast, const GuardedImage& ref)
{
    for (long i = 0; i < static_cast<long>(fast.buffer.size()); ++i) {
        if (!fast.inside(i) && fast.buffer[i] != 0)
            return ::testing::AssertionFailure() << "wrote outside the image at buffer index " << i;
        if (fast.buffer[i] != ref.buffer[i])
            return ::testing::AssertionFailure() << "differs from the reference at buffer index " << i;
    }
    return ::testing::AssertionSuccess();
}

}  // namespace

TEST(Raster, SegmentsAndPointsMatchThePlainReferenceAndStayInside)
{
    std::mt19937 rng(20261123);
    for (int pen = 1; pen <= 5; ++pen) {
        for (int i = 0; i < 6000; ++i) {
            double x1 = coordinate(rng, W), y1 = coordinate(rng, H);
            double x2 = coordinate(rng, W), y2 = coordinate(rng, H);
            if (i % 3 == 0)
                y2 = y1;  // horizontal and vertical runs are the fast paths
            else if (i % 3 == 1)
                x2 = x1;
            GuardedImage fast, ref;
            raster::line(fast.target(), x1, y1, x2, y2, pen, kInk);
            referenceLine(ref, x1, y1, x2, y2, pen);
            ASSERT_TRUE(sameAndGuarded(fast, ref))
                << "line (" << x1 << ", " << y1 << ")-(" << x2 << ", " << y2 << ") pen " << pen;
            GuardedImage fastPoint, refPoint;
            raster::point(fastPoint.target(), x1, y1, pen, kInk);
            referenceLine(refPoint, x1, y1, x1, y1, pen);
            ASSERT_TRUE(sameAndGuarded(fastPoint, refPoint)) << "point (" << x1 << ", " << y1 << ") pen " << pen;
        }
    }
}

// Many shapes of one colour through the same-colour writer, which merges the vertical runs of a column
// and skips the clipping of shapes wholly inside, and bars (a thin one is one run): the reference's
// pixels, shape by shape.
TEST(Raster, ABatchOfOneColourIsItsShapesDrawnOneByOne)
{
    {  // Bars one pixel high, apart, in one column: more runs than the writer gathers for a column.
        GuardedImage fast, ref;
        {
            raster::SameColourWriter writer(fast.target(), 1, kInk);
            for (double y = 0.5; y < H; y += 2) {
                writer.bar(1.5, y, 1.7, y, y + 0.3);
                referenceLine(ref, 1.5, y, 1.7, y + 0.3, 1);
            }
        }
        ASSERT_TRUE(sameAndGuarded(fast, ref)) << "runs in one column";
    }
    std::mt19937 rng(7);
    for (int batch = 0; batch < 3000; ++batch) {
        const int pen = batch % 7 == 0 ? 3 : 1;
        GuardedImage fast, ref;
        {
            raster::SameColourWriter writer(fast.target(), pen, kInk);
            // Every third batch is a connected curve of short steps, each from where the last ended.
            const bool chain = batch % 3 == 1;
            double endX = coordinate(rng, W), endY = coordinate(rng, H);
            auto near = [&rng](double v) { return v + static_cast<double>(rng() % 31) / 10 - 1.5; };
            for (int i = 0, n = 1 + static_cast<int>(rng() % 40); i < n; ++i) {
                // Mostly short vertical runs in a few columns, so that they touch, overlap or leave gaps.
                const double x = chain ? endX : i % 4 ? static_cast<double>(rng() % 5) + 0.5 : coordinate(rng, W);
                const double y1 = chain ? endY : coordinate(rng, H);
                const double y2 = chain   ? near(y1)
                                  : i % 5 ? y1 + static_cast<double>(rng() % 7) - 3
                                          : coordinate(rng, H);
                const double x2 = chain ? near(x) : i % 6 ? x : coordinate(rng, W);
                endX = x2, endY = y2;
                writer.line(x, y1, x2, y2);
                referenceLine(ref, x, y1, x2, y2, pen);
                if (i % 9 == 0) {
                    writer.point(x2, y2);
                    referenceLine(ref, x2, y2, x2, y2, pen);
                }
                if (i % 4 == 2) {  // a bar from where the last shape ended, mostly within one column
                    const double b = x2 + static_cast<double>(rng() % 4) * 0.3, top = near(y2), base = near(top);
                    writer.bar(x2, y2, b, top, base);
                    for (const auto& [xa, ya, xb, yb] :
                         {std::array{x2, base, x2, y2}, std::array{x2, y2, b, top}, std::array{b, top, b, base}})
                        referenceLine(ref, xa, ya, xb, yb, pen);
                    endX = b;
                    endY = base;
                }
            }
        }
        ASSERT_TRUE(sameAndGuarded(fast, ref)) << "batch " << batch;
    }
}
