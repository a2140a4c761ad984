// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/wave_file.h"

#include <QtEndian>

#include <algorithm>

namespace orvalis {

namespace {

constexpr int mostChannels = 8;
constexpr quint32 highestRate = 192000;
constexpr qsizetype chunkHeader = 8;
constexpr qsizetype shortestFormat = 16;

enum Encoding : quint16 { PlainNumbers = 1, PlainFloating = 3, Extensible = 0xFFFE };

template <class Number>
Number at(QByteArrayView bytes, qsizetype offset) {
    return qFromLittleEndian<Number>(bytes.data() + offset);
}

std::optional<WaveSound::Sample> sampleOf(quint16 encoding, quint16 bits) {
    if (encoding == PlainFloating && bits == 32)
        return WaveSound::Sample::Floating;
    if (encoding != PlainNumbers)
        return std::nullopt;
    switch (bits) {
    case 8:
        return WaveSound::Sample::UnsignedByte;
    case 16:
        return WaveSound::Sample::Short;
    case 32:
        return WaveSound::Sample::Long;
    default:
        return std::nullopt;
    }
}

/// The format that a "fmt " chunk tells, still without samples.
std::optional<WaveSound> formatOf(QByteArrayView chunk) {
    if (chunk.size() < shortestFormat)
        return std::nullopt;
    constexpr qsizetype subFormat = 24;
    quint16 encoding = at<quint16>(chunk, 0);
    if (encoding == Extensible && chunk.size() >= subFormat + 2)
        encoding = at<quint16>(chunk, subFormat);
    const auto channels = at<quint16>(chunk, 2);
    const auto rate = at<quint32>(chunk, 4);
    const auto sample = sampleOf(encoding, at<quint16>(chunk, 14));
    if (!sample || channels < 1 || channels > mostChannels || rate < 1 || rate > highestRate)
        return std::nullopt;
    return WaveSound{static_cast<int>(rate), channels, *sample, {}};
}

} // namespace

int WaveSound::bytesPerFrame() const {
    switch (sample) {
    case Sample::UnsignedByte:
        return channels;
    case Sample::Short:
        return channels * 2;
    case Sample::Long:
    case Sample::Floating:
        break;
    }
    return channels * 4;
}

qint64 WaveSound::milliseconds() const {
    return samples.size() / bytesPerFrame() * 1000 / sampleRate;
}

std::optional<WaveSound> readWave(QByteArrayView bytes) {
    constexpr qsizetype firstChunk = 12;
    if (bytes.size() < firstChunk || bytes.first(4) != "RIFF" || bytes.sliced(8, 4) != "WAVE")
        return std::nullopt;
    std::optional<WaveSound> sound;
    QByteArrayView rest = bytes.sliced(firstChunk);
    while (rest.size() >= chunkHeader) {
        const QByteArrayView name = rest.first(4);
        const auto told = static_cast<qsizetype>(at<quint32>(rest, 4));
        rest = rest.sliced(chunkHeader);
        const QByteArrayView chunk = rest.first(std::min(told, rest.size()));
        if (name == "fmt ")
            sound = formatOf(chunk);
        if (name == "data" && sound) {
            const qsizetype frame = sound->bytesPerFrame();
            sound->samples = chunk.first(chunk.size() / frame * frame).toByteArray();
            return sound;
        }
        // Chunks begin at even places.
        rest = rest.sliced(std::min(chunk.size() + chunk.size() % 2, rest.size()));
    }
    return std::nullopt;
}

} // namespace orvalis
