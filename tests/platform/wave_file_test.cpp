// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/wave_file.h"

#include "support/temporary_folder.h"
#include "support/test_main.h"

#include <QCoreApplication>
#include <QtEndian>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using namespace orvalis;
using namespace orvalis::test;

namespace {

template <class Number>
QByteArray bytesOf(Number number) {
    QByteArray bytes(sizeof(Number), Qt::Uninitialized);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

QByteArray chunk(const QByteArray& name, const QByteArray& content) {
    return name + bytesOf(quint32(content.size())) + content;
}

QByteArray format(quint16 encoding, quint16 channels, quint32 rate, quint16 bits) {
    return bytesOf(encoding) + bytesOf(channels) + bytesOf(rate) +
           bytesOf(quint32(rate * channels * bits / 8)) + bytesOf(quint16(channels * bits / 8)) +
           bytesOf(bits);
}

QByteArray wave(const QByteArray& chunks) {
    return "RIFF" + bytesOf(quint32(chunks.size() + 4)) + "WAVE" + chunks;
}

} // namespace

class WaveFileTest : public QObject {
    Q_OBJECT
private slots:
    void everyKindOfSampleIsRead_data();
    void everyKindOfSampleIsRead();
    void otherChunksArePassedOver();
    void aCutFileIsReadAsFarAsItGoes();
    void noWaveFileGivesNothing_data();
    void noWaveFileGivesNothing();
    void everyTruncationEndsWell();
    void theAlarmIsAShortChime();
};

void WaveFileTest::everyKindOfSampleIsRead_data() {
    QTest::addColumn<quint16>("encoding");
    QTest::addColumn<quint16>("bits");
    QTest::addColumn<int>("sample");
    QTest::newRow("8 bits") << quint16(1) << quint16(8) << int(WaveSound::Sample::UnsignedByte);
    QTest::newRow("16 bits") << quint16(1) << quint16(16) << int(WaveSound::Sample::Short);
    QTest::newRow("32 bits") << quint16(1) << quint16(32) << int(WaveSound::Sample::Long);
    QTest::newRow("floating") << quint16(3) << quint16(32) << int(WaveSound::Sample::Floating);
}

void WaveFileTest::everyKindOfSampleIsRead() {
    QFETCH(quint16, encoding);
    QFETCH(quint16, bits);
    QFETCH(int, sample);
    const qsizetype frame = 2 * bits / 8;
    const QByteArray samples(frame * 4000, 'x');
    const auto sound =
        readWave(wave(chunk("fmt ", format(encoding, 2, 8000, bits)) + chunk("data", samples)));
    QVERIFY(sound.has_value());
    QCOMPARE(sound->channels, 2);
    QCOMPARE(sound->sampleRate, 8000);
    QCOMPARE(int(sound->sample), sample);
    QCOMPARE(sound->bytesPerFrame(), int(frame));
    QCOMPARE(sound->milliseconds(), 500);
    QCOMPARE(sound->samples, samples);
}

void WaveFileTest::otherChunksArePassedOver() {
    const auto sound =
        readWave(wave(chunk("LIST", "odd") + '\0' + chunk("fmt ", format(1, 1, 8000, 16)) +
                      chunk("fact", "1234") + chunk("data", "abcd") + chunk("tail", "x")));
    QVERIFY(sound.has_value());
    QCOMPARE(sound->samples, QByteArray("abcd"));
}

void WaveFileTest::aCutFileIsReadAsFarAsItGoes() {
    const auto sound = readWave(wave(chunk("fmt ", format(1, 1, 8000, 16))) + "data" +
                                bytesOf(quint32(0xFFFFFFFF)) + "abcde");
    QVERIFY(sound.has_value());
    QCOMPARE(sound->samples, QByteArray("abcd")); // whole frames
}

void WaveFileTest::noWaveFileGivesNothing_data() {
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray data = chunk("data", "abcd");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("This is no sound at all.");
    QTest::newRow("another kind of RIFF")
        << QByteArray(wave(chunk("fmt ", format(1, 1, 8000, 16)) + data)).replace("WAVE", "AVI ");
    QTest::newRow("no format") << wave(data);
    QTest::newRow("short format") << wave(chunk("fmt ", "short") + data);
    QTest::newRow("no samples") << wave(chunk("fmt ", format(1, 1, 8000, 16)));
    QTest::newRow("compressed") << wave(chunk("fmt ", format(2, 1, 8000, 4)) + data);
    QTest::newRow("24 bits") << wave(chunk("fmt ", format(1, 1, 8000, 24)) + data);
    QTest::newRow("no channel") << wave(chunk("fmt ", format(1, 0, 8000, 16)) + data);
    QTest::newRow("too many channels") << wave(chunk("fmt ", format(1, 60000, 8000, 16)) + data);
    QTest::newRow("no rate") << wave(chunk("fmt ", format(1, 1, 0, 16)) + data);
    QTest::newRow("too high a rate") << wave(chunk("fmt ", format(1, 1, 0xFFFFFFFF, 16)) + data);
}

void WaveFileTest::noWaveFileGivesNothing() {
    QFETCH(QByteArray, bytes);
    QVERIFY(!readWave(bytes).has_value());
}

void WaveFileTest::everyTruncationEndsWell() {
    const QByteArray whole = wave(chunk("LIST", "odd") + '\0' +
                                  chunk("fmt ", format(1, 1, 8000, 16)) + chunk("data", "abcd"));
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const auto sound = readWave(QByteArrayView(whole).first(length));
        if (sound)
            QVERIFY(QByteArray("abcd").startsWith(sound->samples));
    }
}

void WaveFileTest::theAlarmIsAShortChime() {
    QFile file(QStringLiteral(ORVALIS_BIN_FOLDER "/Alarm.wav"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const auto sound = readWave(file.readAll());
    QVERIFY(sound.has_value());
    QCOMPARE(sound->sampleRate, 44100);
    QCOMPARE(sound->channels, 1);
    QCOMPARE(int(sound->sample), int(WaveSound::Sample::Short));
    QVERIFY(sound->milliseconds() > 500);
    QVERIFY(sound->milliseconds() <= 1500);

    const qsizetype count = sound->samples.size() / 2;
    QList<int> samples;
    for (qsizetype i = 0; i < count; ++i)
        samples << std::abs(int(qFromLittleEndian<qint16>(sound->samples.constData() + 2 * i)));
    const int loudest = *std::max_element(samples.begin(), samples.end());
    QVERIFY(loudest > 32767 / 2);   // to be heard
    QVERIFY(loudest < 32767);       // and not clipped
    QVERIFY(samples.first() < 100); // no click at either end
    QVERIFY(samples.last() < 100);
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, WaveFileTest)
#include "wave_file_test.moc"
