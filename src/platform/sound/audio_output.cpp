// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/sound/audio_output.h"

#include "platform/wave_file.h"

#include <QAudioDevice>
#include <QAudioSink>
#include <QElapsedTimer>
#include <QMediaDevices>
#include <QThread>
#include <QTimer>

#include <algorithm>

namespace orvalis {

namespace {

/// How often the device is looked after, in milliseconds.
constexpr unsigned long Rest = 5;

/// In bytes; a minute of the common kinds of sound.
constexpr qsizetype LargestBuffer = qsizetype{16} * 1024 * 1024;

/// How long a device may be late, in milliseconds.
constexpr int RingingOut = 600;

QAudioFormat formatOf(const WaveSound& sound) {
    QAudioFormat format;
    format.setSampleRate(sound.sampleRate);
    format.setChannelCount(sound.channels);
    switch (sound.sample) {
    case WaveSound::Sample::UnsignedByte:
        format.setSampleFormat(QAudioFormat::UInt8);
        break;
    case WaveSound::Sample::Short:
        format.setSampleFormat(QAudioFormat::Int16);
        break;
    case WaveSound::Sample::Long:
        format.setSampleFormat(QAudioFormat::Int32);
        break;
    case WaveSound::Sample::Floating:
        format.setSampleFormat(QAudioFormat::Float);
        break;
    }
    return format;
}

bool works(const QAudioSink& sink) {
    return sink.error() == QAudio::NoError || sink.error() == QAudio::UnderrunError;
}

} // namespace

} // namespace orvalis

/// Feeds the device by hand: the caller's thread is to be held, so no event loop may run.
extern "C" Q_DECL_EXPORT void orvalisPlayAndWait(const orvalis::WaveSound& sound) {
    using namespace orvalis;
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    const QAudioFormat format = formatOf(sound);
    if (device.isNull() || !device.isFormatSupported(format))
        return;
    // The device takes the whole sound at once where it can, so that nothing has to come in time.
    auto* const sink = new QAudioSink(device, format);
    sink->setBufferSize(std::min(sound.samples.size(), LargestBuffer));
    const qint64 length = sound.milliseconds();
    QElapsedTimer played;
    played.start();
    QIODevice* output = sink->start();
    qsizetype written = 0;
    while (output && works(*sink) && played.elapsed() < length) {
        const qsizetype piece =
            std::min<qsizetype>(sink->bytesFree(), sound.samples.size() - written);
        if (piece > 0)
            written +=
                std::max<qint64>(output->write(sound.samples.constData() + written, piece), 0);
        QThread::msleep(Rest);
    }
    // A device is late by what it holds: the last of the sound rings out while the program goes on.
    QTimer::singleShot(RingingOut, sink, &QObject::deleteLater);
}
