// SPDX-License-Identifier: GPL-3.0-or-later
// The sound of a curve, inspected without a sound device: pitch rising with y, the sound moving from
// left to right, the lower timbre below the axis, a click at each crossing; the nearest feature of the
// walk, and the samples in the device's format.
#include <cmath>

#include <gtest/gtest.h>

#include "graphwin/AudioTrace.h"
#include "graphwin/TracePlayer.h"

#include <QAudioFormat>

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
    EXPECT_TRUE(tones.front().pan == 0 && tones.back().pan == 1) << "from one ear to the other";
    const auto narrow = audio::tones({{0.4, 0.1}}, {0, 0.5, 0, 0.5}).front();  // a window narrower than 1
    EXPECT_DOUBLE_EQ(narrow.pan, 0.8);
    EXPECT_DOUBLE_EQ(narrow.frequency, audio::kLowHz * std::pow(audio::kHighHz / audio::kLowHz, 0.2));
    const auto s = audio::samples(tones, 2.0, 8000);
    ASSERT_EQ(s.size(), 2u * 16000);
    const std::size_t n = s.size() / 2, tenth = n / 10;
    EXPECT_GT(energy(s, false, 0, tenth), 10 * energy(s, true, 0, tenth));  // the left ear first
    EXPECT_GT(energy(s, true, n - tenth, n), 10 * energy(s, false, n - tenth, n));  // the right at the end
    EXPECT_LT(energy(s, false, n - n / tones.size(), n), 1e-12) << "the last tone, at the right edge, right only";
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

TEST(AudioTrace, NearestFeatureFromWhereTheWalkStands)
{
    using audio::Feature;
    double (*parabola)(double) = [](double x) { return x * x - 4; };
    double (*exp)(double) = [](double x) { return std::exp(x); };
    // Where the walk stands (from), whether the curve's function is known (an explicit curve), and how
    // many points are drawn (426: none at x = 0, the y-axis lies between two).
    // clang-format off
    const struct { const char* name; double (*f)(double); double from; bool refined; Feature::Kind kind;
                   double x, y, tolerance; int n = 427; } cases[] = {
        {"x^2 - 4 near 3: the root at 2", parabola, 3, true, Feature::Root, 2, 0, 1e-12},
        {"x^2 - 4 near 0.3: the minimum", parabola, 0.3, true, Feature::Minimum, 0, -4, 1e-6},
        {"drawn points only: root found between them", parabola, 3, false, Feature::Root, 2, 0, 3e-3},
        {"drawn points only: a falling crossing", parabola, -2.6, false, Feature::Root, -2, 0, 3e-3},
        {"a maximum of -(x-1)^2 + 5", [](double x) { return -(x - 1) * (x - 1) + 5; }, 1.4, true, Feature::Maximum, 1,
         5, 1e-6},
        {"e^x crosses no axis but the y-axis", exp, 3, true, Feature::YIntercept, 0, 1, 1e-12},
        {"the y-axis between two points, from the curve", exp, 4.1, true, Feature::YIntercept, 0, 1, 0, 426},
        {"the y-axis between two points, from the points", exp, 4.1, false, Feature::YIntercept, 0, 1, 3e-3, 426},
        {"1/x changes sign at its pole: no root there", [](double x) { return 1 / (x - 0.01); }, 0.3, true,
         Feature::YIntercept, 0, -100, 1e-9},
    };
    // clang-format on
    for (const auto& c : cases) {
        const std::vector<audio::Point> points = sampled(c.f, c.n);
        std::size_t at = 0;
        while (at + 1 < points.size() && points[at].x < c.from)
            ++at;
        const auto found = audio::nearestFeature(points, at, c.refined ? std::function<double(double)>(c.f) : nullptr);
        ASSERT_TRUE(found) << c.name;
        EXPECT_EQ(found->kind, c.kind) << c.name;
        EXPECT_NEAR(found->x, c.x, c.kind == Feature::YIntercept ? 0 : c.tolerance) << c.name;
        EXPECT_NEAR(found->y, c.y, c.tolerance) << c.name;
        EXPECT_LE(std::fabs(points[found->index].x - c.x), 20.0 / 426 + 1e-9) << c.name << ": walk goes to it";
    }
    // Drawn points only, with a turn between two columns (two equal heights): the turn is found at
    // the level run, with the run's height.
    const auto low = audio::nearestFeature({{1, 3}, {2, 2}, {3, 1}, {4, 1}, {5, 2}, {6, 3}}, 5);
    ASSERT_TRUE(low);
    EXPECT_TRUE(low->kind == Feature::Minimum && low->y == 1 && (low->index == 2 || low->index == 3)) << low->index;
    // A curve with no sign change, turn or y-axis: nothing, and nothing on an empty or gappy curve.
    EXPECT_FALSE(audio::nearestFeature({{1, 1}, {2, 2}, {3, 3}}, 1));
    EXPECT_FALSE(audio::nearestFeature({}, 0));
    const double gap = std::nan("");
    EXPECT_FALSE(audio::nearestFeature({{1, -1}, {2, gap}, {3, 1}}, 0)) << "no root across a gap";
    EXPECT_FALSE(audio::nearestFeature({{1, 1}, {2, 2}, {3, gap}, {4, 3}, {5, 4}, {6, 5}}, 4))
        << "no turn across a gap";
}

TEST(TracePlayer, EncodesTheSamplesInTheDevicesFormat)
{
    const std::vector<float> stereo = {0.5f, -0.5f, 2.0f, -2.0f};  // two frames, the second beyond full scale
    // clang-format off
    const struct { const char* name; QAudioFormat::SampleFormat type; int channels, rate; std::vector<double> expected;
    } cases[] = {
        {"16-bit stereo", QAudioFormat::Int16, 2, 8000, {16000, -16000, 32000, -32000}},
        {"float mono: the left ear", QAudioFormat::Float, 1, 8000, {0.5, 1}},
        {"8-bit at twice the rate", QAudioFormat::UInt8, 2, 16000, {191, 64, 191, 64, 255, 1, 255, 1}},
        {"32-bit, three channels, half the rate", QAudioFormat::Int32, 3, 4000, {1073741500, -1073741500, -1073741500}},
    };
    // clang-format on
    for (const auto& c : cases) {
        QAudioFormat format;
        format.setSampleFormat(c.type);
        format.setChannelCount(c.channels);
        format.setSampleRate(c.rate);
        const QByteArray bytes = audio::encode(stereo, 8000, format);
        std::vector<double> got;
        for (qsizetype at = 0; at + format.bytesPerSample() <= bytes.size(); at += format.bytesPerSample()) {
            const char* p = bytes.constData() + at;
            got.push_back(c.type == QAudioFormat::Int16   ? *reinterpret_cast<const std::int16_t*>(p)
                          : c.type == QAudioFormat::Int32 ? *reinterpret_cast<const std::int32_t*>(p)
                          : c.type == QAudioFormat::UInt8 ? *reinterpret_cast<const std::uint8_t*>(p)
                                                          : *reinterpret_cast<const float*>(p));
        }
        ASSERT_EQ(got.size(), c.expected.size()) << c.name;
        for (std::size_t i = 0; i < got.size(); ++i)  // 32-bit samples to a float's precision
            EXPECT_NEAR(got[i], c.expected[i], 1e-7 * std::fabs(c.expected[i])) << c.name << ", sample " << i;
    }
}
