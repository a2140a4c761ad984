// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/wave_file.h"

#include <QtEndian>

#include <algorithm>

namespace orvalis {

namespace {

constexpr int MostChannels = 8;
constexpr quint32 HighestRate = 192000;
constexpr qsizetype ChunkHeader = 8;
constexpr qsizetype ShortestFormat = 16;

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
    if (chunk.size() < ShortestFormat)
        return std::nullopt;
    constexpr qsizetype SubFormat = 24;
    quint16 encoding = at<quint16>(chunk, 0);
    if (encoding == Extensible && chunk.size() >= SubFormat + 2)
        encoding = at<quint16>(chunk, SubFormat);
    const auto channels = at<quint16>(chunk, 2);
    const auto rate = at<quint32>(chunk, 4);
    const auto sample = sampleOf(encoding, at<quint16>(chunk, 14));
    if (!sample || channels < 1 || channels > MostChannels || rate < 1 || rate > HighestRate)
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
    constexpr qsizetype FirstChunk = 12;
    if (bytes.size() < FirstChunk || bytes.first(4) != "RIFF" || bytes.sliced(8, 4) != "WAVE")
        return std::nullopt;
    std::optional<WaveSound> sound;
    QByteArrayView rest = bytes.sliced(FirstChunk);
    while (rest.size() >= ChunkHeader) {
        const QByteArrayView name = rest.first(4);
        const auto told = static_cast<qsizetype>(at<quint32>(rest, 4));
        rest = rest.sliced(ChunkHeader);
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
