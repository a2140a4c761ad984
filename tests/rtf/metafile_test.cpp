// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/format_properties.h"
#include "rtf/pictures/device_bitmap.h"
#include "rtf/pictures/metafile_converter.h"
#include "rtf/pictures/picture.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "sample_metafile.h"
#include "sample_pictures.h"
#include "sample_rtf.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextDocument>

using namespace orvalis;
using namespace orvalis::rtf;
using namespace orvalis::test;

namespace {

/// Draws everything in one colour and remembers what it was asked.
class PlainConverter final : public MetafileConverter {
public:
    QByteArray asked;
    QSize size;

    QImage convert(QByteArrayView metafile, QSize pixels) override {
        asked = metafile.toByteArray();
        size = pixels;
        QImage image(pixels, QImage::Format_RGB32);
        image.fill(Qt::red);
        return image;
    }
};

constexpr quint32 Copy = 0x00cc0020; // the operation that takes pixels over as they are

} // namespace

class MetafileTest : public QObject {
    Q_OBJECT
private slots:
    void aBitmapInsideAMetafileIsShown_data();
    void aBitmapInsideAMetafileIsShown();
    void aDrawingWithoutSizeIsKept_data();
    void aDrawingWithoutSizeIsKept();
    void aDrawingIsDrawnAtItsSize_data();
    void aDrawingIsDrawnAtItsSize();
    void anEnhancedDrawingIsABoxWithItsBytes();
    void theWordsWinOverTheHead();
    void aBitmapThatClaimsTooMuchIsADrawing();
};

void MetafileTest::aBitmapInsideAMetafileIsShown_data() {
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray dib = dibOfImage(sampleImage());
    const auto dibSize = quint32(dib.size());
    constexpr quint32 HeadSize = 40;
    const auto row = [](const char* name, const char* words, const QByteArray& bytes) {
        QTest::newRow(name) << QByteArray(words) << bytes;
    };
    const auto drawn = [](const QByteArray& record) {
        return metafile(metafileRecord(0x0103, {8}) + record);
    };
    const int low = Copy & 0xffff;
    const int high = Copy >> 16;
    row("blit", "\\wmetafile8", drawn(metafileRecord(0x0940, {low, high, 0, 0, 3, 4, 0, 0}, dib)));
    row("stretched blit", "\\wmetafile8",
        drawn(metafileRecord(0x0b41, {low, high, 3, 4, 0, 0, 30, 40, 0, 0}, dib)));
    row("stretched bits", "\\wmetafile8",
        drawn(metafileRecord(0x0f43, {low, high, 0, 3, 4, 0, 0, 30, 40, 0, 0}, dib)));
    row("bits to the device", "\\wmetafile8",
        drawn(metafileRecord(0x0d33, {0, 3, 0, 0, 0, 3, 4, 0, 0}, dib)));
    row("behind a placeable header", "\\wmetafile8",
        placeable({0, 0, 4, 3}, 96,
                  drawn(metafileRecord(0x0940, {low, high, 0, 0, 3, 4, 0, 0}, dib))));
    row("named the other kind", "\\emfblip",
        drawn(metafileRecord(0x0940, {low, high, 0, 0, 3, 4, 0, 0}, dib)));
    const auto enhanced = [](const QByteArray& record) {
        return enhancedMetafile({0, 0, 106, 79}, enhancedRecord(17, {8}) + record);
    };
    row("enhanced, stretched bits", "\\emfblip",
        enhanced(enhancedRecord(81,
                                {0, 0, 3, 2, 0, 0, 0, 0, 4, 3, 80, HeadSize, 80 + HeadSize,
                                 dibSize - HeadSize, 0, Copy, 4, 3},
                                dib)));
    row("enhanced, bits to the device", "\\emfblip",
        enhanced(enhancedRecord(80,
                                {0, 0, 3, 2, 0, 0, 0, 0, 4, 3, 76, HeadSize, 76 + HeadSize,
                                 dibSize - HeadSize, 0, 0, 3},
                                dib)));
    for (const quint32 type : {76u, 77u}) {
        QList<quint32> words{0, 0, 3, 2, 0, 0, 4, 3, Copy, 0, 0};
        words += {0x3f800000, 0, 0, 0x3f800000, 0, 0, 0, 0}; // a matrix, a colour, a usage
        const quint32 start = 8 + 4 * quint32(words.size()) + (type == 77 ? 24 : 16);
        words += {start, HeadSize, start + HeadSize, dibSize - HeadSize};
        if (type == 77)
            words += {4, 3};
        row(type == 77 ? "enhanced, stretched blit" : "enhanced, blit", "\\emfblip",
            enhanced(enhancedRecord(type, words, dib)));
    }
}

void MetafileTest::aBitmapInsideAMetafileIsShown() {
    QFETCH(QByteArray, words);
    QFETCH(QByteArray, bytes);
    QTextDocument document;
    QVERIFY(readRtf(rtfOf(words + "\\picwgoal600\\pichgoal300", bytes), document).ok());
    QCOMPARE(document.toRawText(), QStringLiteral("a\ufffcb"));
    QCOMPARE(shown(document).convertToFormat(QImage::Format_RGB32), sampleImage());
    QCOMPARE(pictureOf(document).width(), 40.0);
    QCOMPARE(pictureOf(document).height(), 20.0);
    QVERIFY(withoutLineEnds(writeRtf(document)).contains(bytes.toHex()));
}

void MetafileTest::aDrawingWithoutSizeIsKept_data() {
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QSizeF>("pixels");
    const auto row = [](const char* name, const char* words, const QByteArray& bytes,
                        const QSizeF& pixels) {
        QTest::newRow(name) << QByteArray(words) << bytes << pixels;
    };
    row("enhanced, sized by its frame", "\\emfblip", vectorEnhancedMetafile({100, 100, 5080, 2540}),
        {192, 96});
    row("enhanced, of no frame", "\\emfblip", vectorEnhancedMetafile({0, 0, 0, 0}), {96, 96});
    row("sized by its box", "\\wmetafile8", placeable({-50, 0, 300, 150}, 150, vectorMetafile()),
        {192, 96});
    row("of a box on its head", "\\wmetafile8",
        placeable({0, 150, 300, -150}, 150, vectorMetafile()), {192, 96});
    row("of a box in no unit", "\\wmetafile8", placeable({0, 0, 300, 150}, 0, vectorMetafile()),
        {96, 96});
    row("bare", "\\wmetafile8", vectorMetafile(), {96, 96});
    const auto window = [](int mode, int width, int height) {
        return metafile(metafileRecord(0x0103, {mode}) + metafileRecord(0x020c, {height, width}) +
                        metafileRecord(0x041b, {90, 90, 10, 10}));
    };
    row("sized by its window, in pixels", "\\wmetafile8", window(8, 200, 50), {200, 50});
    row("of a window on its head", "\\wmetafile8", window(8, 200, -50), {200, 50});
    row("of a window larger than a page", "\\wmetafile8", window(8, 28800, 14400), {576, 288});
    row("in tenths of a millimetre", "\\wmetafile8", window(2, 254, 127), {96, 48});
    row("in hundredths of a millimetre", "\\wmetafile8", window(3, 2540, 1270), {96, 48});
    row("in hundredths of an inch", "\\wmetafile8", window(4, 100, 50), {96, 48});
    row("in thousandths of an inch", "\\wmetafile8", window(5, 1000, 500), {96, 48});
    row("in twips", "\\wmetafile8", window(6, 1440, 720), {96, 48});
    row("of a window without height", "\\wmetafile8", window(8, 200, 0), {96, 96});
    row("half as wide as its box", "\\wmetafile8\\picscalex50",
        placeable({0, 0, 300, 150}, 150, vectorMetafile()), {96, 96});
}

void MetafileTest::aDrawingWithoutSizeIsKept() {
    QFETCH(QByteArray, words);
    QFETCH(QByteArray, bytes);
    QFETCH(QSizeF, pixels);
    QTextDocument document;
    QVERIFY(readRtf(rtfOf(words, bytes), document).ok());
    QCOMPARE(document.toRawText(), QStringLiteral("a\ufffcb"));
    const QTextImageFormat format = pictureOf(document);
    QVERIFY(std::abs(format.width() - pixels.width()) < 0.01);
    QVERIFY(std::abs(format.height() - pixels.height()) < 0.01);
    const QByteArray written = writeRtf(document);
    QTextDocument again;
    QVERIFY(readRtf(written, again).ok());
    QCOMPARE(pictureOf(again).property(PictureSource).toByteArray(), bytes);
    QCOMPARE(writeRtf(again), written);
}

void MetafileTest::aDrawingIsDrawnAtItsSize_data() {
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<QSize>("pixels");
    QTest::newRow("by its goal") << QByteArray("\\picwgoal600\\pichgoal300") << QSize(40, 20);
    QTest::newRow("by its source, in hundredths of a millimetre")
        << QByteArray("\\picw2540\\pich1270") << QSize(96, 48);
    QTest::newRow("by nothing") << QByteArray() << QSize(96, 96);
}

void MetafileTest::aDrawingIsDrawnAtItsSize() {
    QFETCH(QByteArray, words);
    QFETCH(QSize, pixels);
    PlainConverter converter;
    ReadOptions options;
    options.metafiles = &converter;
    const QByteArray bytes = vectorMetafile();
    QTextDocument document;
    QVERIFY(readRtf(rtfOf("\\wmetafile8" + words, bytes), document, options).ok());
    QCOMPARE(converter.asked, bytes);
    QCOMPARE(converter.size, pixels);
    QCOMPARE(shown(document).size(), pixels);
    QCOMPARE(pictureOf(document).width(), double(pixels.width()));
    QCOMPARE(shown(document).pixelColor(0, 0), QColor(Qt::red));
    QVERIFY(withoutLineEnds(writeRtf(document)).contains("\\wmetafile8"));
    QVERIFY(withoutLineEnds(writeRtf(document)).contains(bytes.toHex()));
}

void MetafileTest::anEnhancedDrawingIsABoxWithItsBytes() {
    PlainConverter converter;
    ReadOptions options;
    options.metafiles = &converter;
    const QByteArray bytes = vectorEnhancedMetafile({0, 0, 2540, 2540});
    QTextDocument document;
    QVERIFY(readRtf(rtfOf("\\emfblip\\picwgoal600\\pichgoal300", bytes), document, options).ok());
    QVERIFY(converter.asked.isEmpty());
    QCOMPARE(pictureOf(document).width(), 40.0);
    QVERIFY(pictureOf(document).boolProperty(PictureIsBox));
    const QByteArray written = withoutLineEnds(writeRtf(document));
    QVERIFY(written.contains("\\emfblip"));
    QVERIFY(written.contains("\\picwgoal600\\pichgoal300" + bytes.toHex()));
}

void MetafileTest::theWordsWinOverTheHead() {
    QTextDocument document;
    const QByteArray bytes = vectorEnhancedMetafile({0, 0, 2540, 2540});
    QVERIFY(readRtf(rtfOf("\\emfblip\\picw508\\pich254", bytes), document).ok());
    QVERIFY(std::abs(pictureOf(document).width() - 19.2) < 0.01);
    QVERIFY(std::abs(pictureOf(document).height() - 9.6) < 0.01);
}

void MetafileTest::aBitmapThatClaimsTooMuchIsADrawing() {
    QByteArray dib = dibOfImage(sampleImage());
    dib[6] = 100; // more than six million pixels wide
    const QByteArray bytes = metafile(metafileRecord(0x0940, {0x20, 0xcc, 0, 0, 3, 4, 0, 0}, dib));
    QTextDocument document;
    const QByteArray group = "{\\pict\\wmetafile8 " + bytes.toHex() + "}";
    QVERIFY(readRtf("{\\rtf1" + group + "and" + group + "\\par}", document).ok());
    for (auto run = document.firstBlock().begin(); !run.atEnd(); ++run) {
        const QTextCharFormat format = run.fragment().charFormat();
        if (format.isImageFormat())
            QCOMPARE(format.toImageFormat().width(), 96.0);
    }
    QCOMPARE(document.toRawText(), QStringLiteral("\ufffcand\ufffc"));
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, MetafileTest)
#include "metafile_test.moc"
