// SPDX-License-Identifier: GPL-3.0-or-later
// The window as the hand moves it: zooms keep their point, panning moves by world units, boxes
// order their corners, limits are written for reading without moving a pixel, windows the
// arithmetic cannot show are refused in words, and the history goes back and forward.
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "graphwin/GraphView.h"
#include "runtime/Numbers.h"

using view::Limits;

TEST(GraphView, AZoomKeepsItsPointWhereItIsAndScalesTheWindow)
{
    // clang-format off
    const struct { const char* name; Limits from; double x, y, factor; } cases[] = {
        {"in about the centre", {-10, 10, -10, 10}, 0, 0, 2},
        {"in about a corner point", {-10, 10, -10, 10}, 7.5, -3, 1.25},
        {"out about a point off the centre", {1.9, 2.1, -0.1, 0.1}, 2.05, 0.01, 0.5},
        {"in about a point outside the window", {0, 1, 0, 1}, 5, 5, 4},
    };
    // clang-format on
    for (const auto& c : cases) {
        const Limits z = view::zoomAbout(c.from, c.x, c.y, c.factor);
        EXPECT_NEAR(z.width(), c.from.width() / c.factor, 1e-12) << c.name;
        EXPECT_NEAR(z.height(), c.from.height() / c.factor, 1e-12) << c.name;
        // The point's place across the window, as a fraction, is the same before and after.
        EXPECT_NEAR((c.x - z.xmin) / z.width(), (c.x - c.from.xmin) / c.from.width(), 1e-12) << c.name;
        EXPECT_NEAR((c.y - z.ymin) / z.height(), (c.y - c.from.ymin) / c.from.height(), 1e-12) << c.name;
    }
    EXPECT_EQ(view::panBy({-10, 10, -5, 5}, 2.5, -1), (Limits{-7.5, 12.5, -6, 4}));
    EXPECT_EQ(view::boxBetween(3, -1, -2, 4), (Limits{-2, 3, -1, 4}));
    for (const auto& [notches, factor] : {std::pair(120, 1.25), std::pair(-120, 0.8), std::pair(240, 1.5625)})
        EXPECT_DOUBLE_EQ(view::wheelFactor(notches), factor) << notches;
}

TEST(GraphView, LimitsAreWrittenForReadingWithinATenthOfAPixelAndReadBackExactly)
{
    // clang-format off
    const struct { const char* name; Limits from; double pixels; } cases[] = {
        {"a wheel notch from the default", view::zoomAbout({-10, 10, -10, 10}, 1.2345678, -3.3333333, 1.25), 427},
        {"a small window far from the origin", {1234.56789012, 1234.56789345, -0.00012345678, 0.00012345679}, 427},
        {"a wide window", {-123456789.123, 987654321.987, -5e9, 5e9}, 1000},
        {"limits at zero", {0, 1e-3, -1e-7, 0}, 427},
    };
    // clang-format on
    for (const auto& c : cases) {
        const Limits r = view::readable(c.from, c.pixels);
        const double px = c.from.width() / c.pixels, py = c.from.height() / c.pixels;
        EXPECT_LE(std::fabs(r.xmin - c.from.xmin), px / 10) << c.name;
        EXPECT_LE(std::fabs(r.xmax - c.from.xmax), px / 10) << c.name;
        EXPECT_LE(std::fabs(r.ymin - c.from.ymin), py / 10) << c.name;
        EXPECT_LE(std::fabs(r.ymax - c.from.ymax), py / 10) << c.name;
        // What the box shows is read back by the classic reading as the very same number.
        for (double v : {r.xmin, r.xmax, r.ymin, r.ymax}) {
            EXPECT_EQ(rt::Val(view::boxText(v)), v) << c.name << ": " << view::boxText(v);
            EXPECT_LE(view::boxText(v).size(), 16u) << c.name << ": " << view::boxText(v);
        }
    }
    // Few decimals where few are needed.
    EXPECT_EQ(view::boxText(view::readable({-10, 10, -10, 10}, 427).xmin), "-10");
    EXPECT_EQ(view::boxText(view::readable({1.90001234, 2.1, -1, 1}, 400).xmin), "1.90001");
}

TEST(GraphView, WindowsTheArithmeticCannotShowAreRefusedInWords)
{
    // The start of the refusal, "" for a window that can be shown.
    // clang-format off
    const struct { const char* name; Limits limits; const char* says; } cases[] = {
        {"the default", {-10, 10, -10, 10}, ""}, {"a close window near 1", {0.99999, 1.00001, 0.99999, 1.00001}, ""},
        {"too close to tell apart near 1", {1 - 1e-9, 1 + 1e-9, -1, 1}, "Zoomed in as far"},
        {"too close near 0", {-1e-11, 1e-11, -1, 1}, "Zoomed in as far"},
        {"exactly as narrow as shown", {0, 1e-10, 0, 1e-10}, ""},
        {"exactly as wide as shown", {-5e11, 5e11, -5e11, 5e11}, ""},
        {"too wide", {-1e13, 1e13, -1, 1}, "Zoomed out as far"},
        {"reversed", {1, -1, -1, 1}, "The window's limits are not numbers in order"},
        {"not a number", {std::nan(""), 1, -1, 1}, "The window's limits are not numbers in order"},
        {"infinite", {-INFINITY, 1, -1, 1}, "The window's limits are not numbers in order"},
    };
    // clang-format on
    for (const auto& c : cases) {
        const auto why = view::refusal(c.limits);
        EXPECT_EQ(why.value_or("").rfind(c.says, 0), 0u) << c.name << ": " << why.value_or("(shown)");
        EXPECT_EQ(why.has_value(), std::string(c.says) != "") << c.name;
    }
}

TEST(GraphView, TheHistoryGoesBackAndForwardAndForgetsTheWayForwardOnANewWindow)
{
    view::History h;
    const Limits a{-10, 10, -10, 10}, b{-5, 5, -5, 5}, c{0, 1, 0, 1}, d{2, 3, 2, 3};
    h.reset(a);
    EXPECT_FALSE(h.back());
    h.moveTo(b);
    h.moveTo(b);  // the same window is not a new step
    h.moveTo(c);
    EXPECT_EQ(h.back(), b);
    EXPECT_EQ(h.back(), a);
    EXPECT_FALSE(h.back());
    EXPECT_EQ(h.forward(), b);
    h.moveTo(d);
    EXPECT_FALSE(h.canGoForward());
    EXPECT_EQ(h.back(), b);
    EXPECT_EQ(h.original(), a);
    h.reset(c);
    EXPECT_FALSE(h.canGoBack());
    EXPECT_EQ(h.current(), c);
    for (int i = 0; i < 150; ++i)
        h.moveTo({0, 1.0 + i, 0, 1});
    int steps = 0;
    while (h.back())
        ++steps;
    EXPECT_EQ(steps, static_cast<int>(view::History::kDepth));
}
