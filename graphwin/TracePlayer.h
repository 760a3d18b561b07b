// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
// Plays an audio trace through the system's default sound output (Qt Multimedia). The samples are
// made elsewhere (AudioTrace); this only hands them to the device.
#include <vector>

#include <QByteArray>

class QAudioFormat;

namespace audio {

// Plays interleaved stereo samples (-1 to 1) made at `rate` per second, stopping a trace still
// playing. False, and nothing else happens, where there is no sound device (a remote session, CI).
bool play(const std::vector<float>& samples, int rate);
// True where the system has a sound output.
bool hasDevice();
// Stops a trace that is playing.
void stop();
// The samples in a device's format: whole frames at its rate (nearest sample), its channels (the
// first takes the left ear, every other the right) and its sample type.
QByteArray encode(const std::vector<float>& samples, int rate, const QAudioFormat& format);

}  // namespace audio
