// SPDX-License-Identifier: GPL-3.0-or-later
#include "graphwin/TracePlayer.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QBuffer>
#include <QCoreApplication>
#include <QMediaDevices>

namespace audio {

namespace {

// The one output of the run: a sink and the buffer it reads, made again when a trace starts.
struct Output {
    std::unique_ptr<QAudioSink> sink;
    std::unique_ptr<QBuffer> buffer;
    QByteArray bytes;
};

Output& output()
{
    static Output out;
    return out;
}

}  // namespace

// Resampled by the nearest sample: the trace is a few plain tones, nothing finer is heard.
QByteArray encode(const std::vector<float>& samples, int rate, const QAudioFormat& format)
{
    const long frames = static_cast<long>(samples.size() / 2);
    const long outFrames = std::lround(static_cast<double>(frames) * format.sampleRate() / rate);
    const int channels = format.channelCount(), frameBytes = format.bytesPerFrame(),
              sampleBytes = format.bytesPerSample();
    const QAudioFormat::SampleFormat type = format.sampleFormat();
    QByteArray bytes(static_cast<qsizetype>(outFrames) * frameBytes, 0);
    for (long i = 0; i < outFrames; ++i) {
        const long j = std::min(frames - 1, static_cast<long>(static_cast<double>(i) * rate / format.sampleRate()));
        for (int c = 0; c < channels; ++c) {
            const float v = std::clamp(samples[2 * static_cast<std::size_t>(j) + (c == 0 ? 0 : 1)], -1.0f, 1.0f);
            char* at = bytes.data() + i * frameBytes + c * sampleBytes;
            if (type == QAudioFormat::Float) {
                *reinterpret_cast<float*>(at) = v;
            } else if (type == QAudioFormat::Int32) {
                *reinterpret_cast<std::int32_t*>(at) = static_cast<std::int32_t>(v * 2147483000.0);
            } else if (type == QAudioFormat::UInt8) {
                *reinterpret_cast<std::uint8_t*>(at) = static_cast<std::uint8_t>(std::lround(127.5 + v * 127));
            } else {
                *reinterpret_cast<std::int16_t*>(at) = static_cast<std::int16_t>(std::lround(v * 32000));
            }
        }
    }
    return bytes;
}

bool play(const std::vector<float>& samples, int rate)
{
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull() || samples.size() < 2 || rate <= 0)
        return false;
    QAudioFormat format;
    format.setSampleRate(rate);
    format.setChannelCount(2);
    format.setSampleFormat(QAudioFormat::Int16);
    if (!device.isFormatSupported(format)) {
        format = device.preferredFormat();
        if (format.channelCount() < 1 || format.sampleRate() <= 0)
            return false;
    }
    // The sink goes before the application does, not with the program's statics.
    static const bool cleanedUp = (qAddPostRoutine(stop), true);
    (void)cleanedUp;
    stop();
    Output& out = output();
    out.bytes = encode(samples, rate, format);
    out.buffer = std::make_unique<QBuffer>(&out.bytes);
    out.buffer->open(QIODevice::ReadOnly);
    out.sink = std::make_unique<QAudioSink>(device, format);
    out.sink->start(out.buffer.get());
    return out.sink->error() == QAudio::NoError;
}

bool hasDevice() { return !QMediaDevices::defaultAudioOutput().isNull(); }

void stop()
{
    Output& out = output();
    if (out.sink)
        out.sink->stop();
    out.sink.reset();
    out.buffer.reset();
}

}  // namespace audio
