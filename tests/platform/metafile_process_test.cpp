// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/metafile_process.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QtEndian>

using namespace orvalis;

namespace {

void append16(QByteArray& bytes, int value) {
    char word[2];
    qToLittleEndian<quint16>(static_cast<quint16>(value), word);
    bytes.append(word, 2);
}

void append32(QByteArray& bytes, quint32 value) {
    char word[4];
    qToLittleEndian<quint32>(value, word);
    bytes.append(word, 4);
}

/// A record: its length in words, its function and its parameters.
QByteArray record(int function, const QList<int>& parameters) {
    QByteArray bytes;
    append32(bytes, static_cast<quint32>(3 + parameters.size()));
    append16(bytes, function);
    for (const int parameter : parameters)
        append16(bytes, parameter);
    return bytes;
}

/// A placeable metafile of 100 by 100 units that holds these records.
QByteArray metafileOf(const QByteArray& records) {
    constexpr quint32 LongestRecord = 14; // words
    QByteArray placeable;
    append32(placeable, 0x9AC6CDD7);
    append16(placeable, 0);
    for (const int edge : {0, 0, 100, 100})
        append16(placeable, edge);
    append16(placeable, 100);
    append32(placeable, 0);
    quint16 sum = 0;
    for (qsizetype i = 0; i < placeable.size(); i += 2)
        sum ^= qFromLittleEndian<quint16>(placeable.constData() + i);
    append16(placeable, sum);

    const QByteArray all =
        record(0x020B, {0, 0}) + record(0x020C, {100, 100}) + records + record(0x0000, {});
    QByteArray header;
    append16(header, 1);
    append16(header, 9);
    append16(header, 0x0300);
    append32(header, static_cast<quint32>(9 + all.size() / 2));
    append16(header, 1);
    append32(header, LongestRecord);
    append16(header, 0);
    return placeable + header + all;
}

/// One red square that fills it.
QByteArray redSquare() {
    return metafileOf(record(0x02FC, {0, 0x00FF, 0x0000, 0}) + record(0x012D, {0}) +
                      record(0x041B, {100, 100, 0, 0}));
}

/// The letters "HH", 60 units high, in the font that old programs write most.
QByteArray letters() {
    const QList<int> arial = {-60, 0, 0, 0, 400, 0, 0, 0, 0x7241, 0x6169, 0x006C};
    return metafileOf(record(0x02FB, arial) + record(0x012D, {0}) +
                      record(0x0521, {2, 0x4848, 10, 5}));
}

int darkPixels(const QImage& image) {
    int dark = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            dark += qAlpha(image.pixel(x, y)) > 128 && qGray(image.pixel(x, y)) < 64;
    return dark;
}

} // namespace

class MetafileProcessTest : public QObject {
    Q_OBJECT
private slots:
    void drawsAVectorMetafileAtTheSizeWanted();
    void drawsTheTextInsideAMetafile();
    void givesNoPictureForRubbish();
    void givesNoPictureOfNoSize();
};

void MetafileProcessTest::drawsAVectorMetafileAtTheSizeWanted() {
    MetafileProcess converter;
    const QImage image = converter.convert(redSquare(), QSize(60, 60));
    QVERIFY(!image.isNull());
    QCOMPARE(image.size(), QSize(60, 60));
    QCOMPARE(image.pixelColor(30, 30), QColor(Qt::red));
}

void MetafileProcessTest::drawsTheTextInsideAMetafile() {
    MetafileProcess converter;
    const QImage image = converter.convert(letters(), QSize(100, 100));
    QVERIFY(!image.isNull());
    const int dark = darkPixels(image);
    QVERIFY2(dark > 300 && dark < 5000, qPrintable(QString::number(dark)));
}

void MetafileProcessTest::givesNoPictureForRubbish() {
    MetafileProcess converter;
    QVERIFY(converter.convert("this is no metafile", QSize(60, 60)).isNull());
    QVERIFY(converter.convert(redSquare().left(30), QSize(60, 60)).isNull());
    QVERIFY(converter.convert({}, QSize(60, 60)).isNull());
}

void MetafileProcessTest::givesNoPictureOfNoSize() {
    MetafileProcess converter;
    QVERIFY(converter.convert(redSquare(), QSize()).isNull());
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, MetafileProcessTest)
#include "metafile_process_test.moc"
