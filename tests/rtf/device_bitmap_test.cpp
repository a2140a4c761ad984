// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/pictures/device_bitmap.h"
#include "rtf/pictures/little_endian.h"
#include "support/test_main.h"

#include <QCoreApplication>

#include <cstring>
#include <memory>

using namespace orvalis::rtf;

namespace {

constexpr int HeaderSize = 40;
constexpr QSize Size(16, 8);

/// \param height less than nothing for rows from the top to the bottom.
/// \param colors that the header tells, and the table has.
QByteArray dib(int bits, quint32 compression, const QByteArray& rows, int height = Size.height(),
               int colors = 0) {
    QByteArray bytes;
    appendU32(bytes, HeaderSize);
    appendU32(bytes, quint32(Size.width()));
    appendU32(bytes, quint32(height));
    appendU16(bytes, 1);
    appendU16(bytes, quint16(bits));
    appendU32(bytes, compression);
    for (int i = 0; i < 3; ++i)
        appendU32(bytes, 0);
    appendU32(bytes, quint32(colors));
    appendU32(bytes, 0);
    const int told = bits <= 8 ? 1 << bits : 0;
    for (int i = 0; i < (colors > 0 ? colors : told); ++i)
        appendU32(bytes, quint32(0x102030 + i * 0x010101));
    return bytes + rows;
}

QByteArray file(const QByteArray& dib, int tableSize) {
    QByteArray bytes("BM");
    appendU32(bytes, quint32(14 + dib.size()));
    appendU32(bytes, 0);
    appendU32(bytes, quint32(14 + HeaderSize + tableSize));
    return bytes + dib;
}

/// Leaves memory of the size of a picture that is anything but empty.
void leaveTraces() {
    for (const size_t size : {128U, 256U, 512U, 1024U}) {
        const auto memory = std::make_unique<char[]>(size);
        std::memset(memory.get(), 0x5a, size);
    }
}

bool isOf(const QImage& image, QRect part, QRgb color) {
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            if (image.pixel(x, y) != color)
                return false;
    return true;
}

constexpr QRgb FirstColor = qRgb(0x10, 0x20, 0x30);
constexpr QRgb SecondColor = qRgb(0x11, 0x21, 0x31);

} // namespace

/// Bitmaps as they lie in files of other programs.
class DeviceBitmapTest : public QObject {
    Q_OBJECT
private slots:
    void pixelsThatRunLengthsDoNotTellAreOfTheFirstColour_data();
    void pixelsThatRunLengthsDoNotTellAreOfTheFirstColour();
    void whatAFileThatIsCutShortDoesNotTellIsOfTheFirstColour();
    void aFileWhoseRowsBeginAtTheTopIsShown();
    void aTableOfMoreColoursThanPixelsNameLeavesTheRowsWhereTheyAre();
    void aFileThatClaimsManyTimesWhatItHasIsNone_data();
    void aFileThatClaimsManyTimesWhatItHasIsNone();
};

void DeviceBitmapTest::pixelsThatRunLengthsDoNotTellAreOfTheFirstColour_data() {
    QTest::addColumn<int>("bits");
    QTest::addColumn<quint32>("compression");
    QTest::addColumn<QByteArray>("pair");
    QTest::newRow("of bytes") << 8 << 1U << QByteArray::fromHex("1001");
    QTest::newRow("of halves") << 4 << 2U << QByteArray::fromHex("1011");
}

void DeviceBitmapTest::pixelsThatRunLengthsDoNotTellAreOfTheFirstColour() {
    QFETCH(int, bits);
    QFETCH(quint32, compression);
    QFETCH(QByteArray, pair);
    leaveTraces();
    const QImage image = imageOfDib(dib(bits, compression, pair + QByteArray::fromHex("00000001")));
    QCOMPARE(image.size(), Size);
    QVERIFY(isOf(image, {0, Size.height() - 1, Size.width(), 1}, SecondColor));
    QVERIFY(isOf(image, {0, 0, Size.width(), Size.height() - 1}, FirstColor));
}

void DeviceBitmapTest::whatAFileThatIsCutShortDoesNotTellIsOfTheFirstColour() {
    leaveTraces();
    const QByteArray rows(Size.width() * 3, 1);
    const QImage image = imageOfBitmapFile(file(dib(8, 0, rows), 256 * 4));
    QCOMPARE(image.size(), Size);
    QVERIFY(isOf(image, {0, Size.height() - 3, Size.width(), 3}, SecondColor));
    QVERIFY(isOf(image, {0, 0, Size.width(), Size.height() - 3}, FirstColor));
    // Of a bare one nobody knows how much is missing.
    QVERIFY(imageOfDib(dib(8, 0, rows)).isNull());
}

void DeviceBitmapTest::aFileWhoseRowsBeginAtTheTopIsShown() {
    QByteArray rows(Size.width() * Size.height(), 0);
    rows.replace(0, Size.width(), QByteArray(Size.width(), 1));
    const QImage image = imageOfBitmapFile(file(dib(8, 0, rows, -Size.height()), 256 * 4));
    QCOMPARE(image.size(), Size);
    QVERIFY(isOf(image, {0, 0, Size.width(), 1}, SecondColor));
    QVERIFY(isOf(image, {0, 1, Size.width(), Size.height() - 1}, FirstColor));
}

void DeviceBitmapTest::aTableOfMoreColoursThanPixelsNameLeavesTheRowsWhereTheyAre() {
    constexpr int Told = 3;
    QByteArray bytes = dib(1, 0, {}, Size.height(), Told);
    bytes.chop(4); // whatever its header tells, there are two
    bytes += QByteArray(4 * (Size.height() - 1), 0) + QByteArray(4, char(0xff));
    const QImage image = imageOfDib(bytes);
    QCOMPARE(image.size(), Size);
    QVERIFY(isOf(image, {0, 0, Size.width(), 1}, SecondColor));
    QVERIFY(isOf(image, {0, 1, Size.width(), Size.height() - 1}, FirstColor));
}

void DeviceBitmapTest::aFileThatClaimsManyTimesWhatItHasIsNone_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("of rows") << file(dib(24, 0, QByteArray(4 * Size.width(), 0), 32767), 0);
    QTest::newRow("of run lengths") << file(dib(8, 1, QByteArray(4, 0), 32767), 256 * 4);
    QTest::newRow("of a header alone") << QByteArray("BM");
    QTest::newRow("of nothing") << QByteArray();
}

void DeviceBitmapTest::aFileThatClaimsManyTimesWhatItHasIsNone() {
    QFETCH(QByteArray, bytes);
    QVERIFY(imageOfBitmapFile(bytes).isNull());
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, DeviceBitmapTest)
#include "device_bitmap_test.moc"
