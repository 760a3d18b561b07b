// SPDX-License-Identifier: GPL-3.0-or-later
#include "graphwin/AudioTrace.h"

#include <algorithm>
#include <cmath>

namespace audio {

std::vector<Tone> tones(const std::vector<Point>& points, const Range& range)
{
    std::vector<Tone> out;
    out.reserve(points.size());
    const double xspan = range.xmax - range.xmin, yspan = range.ymax - range.ymin;
    bool havePrevious = false;
    double previous = 0;
    for (const Point& p : points) {
        Tone t;
        t.pan = xspan > 0 ? std::clamp((p.x - range.xmin) / xspan, 0.0, 1.0) : 0.5;
        if (std::isfinite(p.y)) {
            const double level = yspan > 0 ? std::clamp((p.y - range.ymin) / yspan, 0.0, 1.0) : 0.5;
            t.frequency = kLowHz * std::pow(kHighHz / kLowHz, level);
            t.below = p.y < 0;
            t.click = havePrevious && ((previous < 0) != (p.y < 0));
            previous = p.y;
            havePrevious = true;
        } else {
            havePrevious = false;  // a gap: no crossing is heard across it
        }
        out.push_back(t);
    }
    return out;
}

std::vector<float> samples(const std::vector<Tone>& tones, double seconds, int rate)
{
    const long total = std::max(0L, std::lround(seconds * rate));
    std::vector<float> out(static_cast<std::size_t>(total) * 2, 0.0f);
    if (tones.empty() || total == 0)
        return out;
    const double twoPi = 2 * std::acos(-1.0);
    const long clickLength = std::max(1L, std::lround(0.006 * rate));
    double phase = 0;
    for (long i = 0; i < total; ++i) {
        const std::size_t k =
            std::min(tones.size() - 1, static_cast<std::size_t>(i * static_cast<long>(tones.size()) / total));
        const Tone& t = tones[k];
        const long start = static_cast<long>(k) * total / static_cast<long>(tones.size());
        double v = 0;
        if (t.frequency > 0) {
            phase = std::fmod(phase + twoPi * t.frequency / rate, twoPi);
            v = t.below ? 0.5 * (std::sin(phase) + std::sin(3 * phase) / 3 + std::sin(5 * phase) / 5)
                        : 0.5 * std::sin(phase);
        }
        if (t.click && i - start < clickLength)
            v += ((i - start) % 2 == 0 ? 0.8 : -0.8) * (1.0 - static_cast<double>(i - start) / clickLength);
        // Equal-power pan: the left ear at 0, the right at 1.
        const double angle = t.pan * twoPi / 4;
        out[2 * static_cast<std::size_t>(i)] = static_cast<float>(v * std::cos(angle));
        out[2 * static_cast<std::size_t>(i) + 1] = static_cast<float>(v * std::sin(angle));
    }
    return out;
}

}  // namespace audio
