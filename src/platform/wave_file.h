// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>

namespace orvalis {

/// The samples of a wave file, not compressed, channel by channel within each frame.
struct WaveSound {
    enum class Sample { UnsignedByte, Short, Long, Floating };

    int sampleRate = 0; // frames to the second
    int channels = 0;
    Sample sample = Sample::Short;
    QByteArray samples; // whole frames, the low byte of a sample first

    int bytesPerFrame() const;
    /// How long it plays, rounded down.
    qint64 milliseconds() const;
};

/// Reads a wave file. What is cut off at its end is taken as far as it goes.
/// \returns empty for anything that is no wave file of plain samples of 8, 16 or 32 bits.
std::optional<WaveSound> readWave(QByteArrayView bytes);

} // namespace orvalis
