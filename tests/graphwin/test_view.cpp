// SPDX-License-Identifier: GPL-3.0-or-later
// The window as the hand moves it: zooms keep their point, panning moves by world units, boxes
// order their corners, windows the arithmetic cannot show are refused in words, and the history
// goes back and forward.
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "graphwin/GraphView.h"

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
}

TEST(GraphView, WindowsTheArithmeticCannotShowAreRefusedInWords)
{
    // The start of the refusal, "" for a window that can be shown.
    // clang-format off
    const struct { const char* name; Limits limits; const char* says; } cases[] = {
        {"the default", {-10, 10, -10, 10}, ""}, {"a close window near 1", {0.99999, 1.00001, 0.99999, 1.00001}, ""},
        {"too close near 0", {-1e-11, 1e-11, -1, 1}, "Zoomed in as far"},
        {"exactly as narrow as shown", {0, 1e-10, 0, 1e-10}, ""},
        {"exactly as wide as shown", {-5e11, 5e11, -5e11, 5e11}, ""},
        {"reversed", {1, -1, -1, 1}, "The window's limits are not numbers in order"},
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
    EXPECT_EQ(std::pair(h.canGoBack(), h.current()), std::pair(false, c));
    for (int i = 0; i < 150; ++i)
        h.moveTo({0, 1.0 + i, 0, 1});
    int steps = 0;
    while (h.back())
        ++steps;
    EXPECT_EQ(steps, static_cast<int>(view::History::kDepth));
}
