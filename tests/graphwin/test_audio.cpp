// SPDX-License-Identifier: GPL-3.0-or-later
// The sound of a curve, inspected without a sound device: pitch rising with y, the sound moving
// from left to right, the lower timbre below the axis, a click at each crossing, silence in a gap.
#include <cmath>

#include <gtest/gtest.h>

#include "graphwin/AudioTrace.h"

namespace {

std::vector<audio::Point> sampled(double (*f)(double), int n = 401)
{
    std::vector<audio::Point> points;
    for (int i = 0; i < n; ++i) {
        const double x = -10 + 20.0 * i / (n - 1);
        points.push_back({x, f(x)});
    }
    return points;
}

// The energy of one ear over a stretch of the samples.
double energy(const std::vector<float>& s, bool right, std::size_t from, std::size_t to)
{
    double e = 0;
    for (std::size_t i = from; i < to; ++i)
        e += std::pow(s[2 * i + (right ? 1 : 0)], 2);
    return e;
}

}  // namespace

TEST(AudioTrace, StraightLineRisesAndMovesLeftToRight)
{
    const auto tones = audio::tones(sampled([](double x) { return x; }), {});
    for (std::size_t i = 1; i < tones.size(); ++i) {
        EXPECT_GT(tones[i].frequency, tones[i - 1].frequency) << i;
        EXPECT_GT(tones[i].pan, tones[i - 1].pan) << i;
    }
    EXPECT_NEAR(tones.front().frequency, audio::kLowHz, 1e-9);
    EXPECT_NEAR(tones.back().frequency, audio::kHighHz, 1e-9);
    const auto s = audio::samples(tones, 2.0, 8000);
    ASSERT_EQ(s.size(), 2u * 16000);
    const std::size_t n = s.size() / 2, tenth = n / 10;
    EXPECT_GT(energy(s, false, 0, tenth), 10 * energy(s, true, 0, tenth));  // the left ear first
    EXPECT_GT(energy(s, true, n - tenth, n), 10 * energy(s, false, n - tenth, n));  // the right at the end
}

TEST(AudioTrace, ParabolaClicksAtItsRootsAndSoundsLowBetween)
{
    const auto points = sampled([](double x) { return x * x - 4; });
    const auto tones = audio::tones(points, {});
    std::vector<double> clicks;
    for (std::size_t i = 0; i < tones.size(); ++i) {
        if (tones[i].click)
            clicks.push_back(points[i].x);
        EXPECT_EQ(tones[i].below, std::fabs(points[i].x) < 2 - 1e-9) << points[i].x;
    }
    ASSERT_EQ(clicks.size(), 2u);
    EXPECT_NEAR(clicks[0], -2, 0.05 + 1e-9);  // within one point (0.05) past the crossing
    EXPECT_NEAR(clicks[1], 2, 0.05 + 1e-9);
}

TEST(AudioTrace, LogarithmIsSilentOverTheLeftHalf)
{
    const auto points = sampled([](double x) { return x > 0 ? std::log(x) : std::nan(""); });
    const auto tones = audio::tones(points, {});
    const auto s = audio::samples(tones, 2.0, 8000);
    const std::size_t half = s.size() / 4;  // the stereo frames of the left half
    EXPECT_EQ(energy(s, false, 0, half - 40) + energy(s, true, 0, half - 40), 0.0);
    EXPECT_GT(energy(s, false, half + 40, s.size() / 2) + energy(s, true, half + 40, s.size() / 2), 0.0);
    for (std::size_t i = 0; i < tones.size(); ++i)
        EXPECT_FALSE(tones[i].click && points[i].x <= 0.05) << "no crossing heard across the gap at " << points[i].x;
}
