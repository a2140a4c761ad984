// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/format_properties.h"
#include "rtf/pictures/device_bitmap.h"
#include "rtf/pictures/picture_box.h"
#include "rtf/pictures/picture_format.h"
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

constexpr int PaperOrInk = 2; // colours of a box

} // namespace

/// Pictures that nothing can draw: they keep their place and their bytes.
class PictureBoxTest : public QObject {
    Q_OBJECT
private slots:
    void whatCannotBeDrawnKeepsItsBytes_data();
    void whatCannotBeDrawnKeepsItsBytes();
    void aBoxOfASizeSomebodyGaveKeepsIt();
    void theSizeThatACutPictureClaimsIsWrittenToo();
    void theSameBytesAreTriedOnce();
    void aBoxIsFramedAndCrossed_data();
    void aBoxIsFramedAndCrossed();
    void anotherFormOfThePictureIsShownInItsPlace_data();
    void anotherFormOfThePictureIsShownInItsPlace();
    void whatNoReaderKnowsIsWrittenWhereTheyDoNotLook_data();
    void whatNoReaderKnowsIsWrittenWhereTheyDoNotLook();
    void aDrawingThatCannotBeDrawnEitherIsKept_data();
    void aDrawingThatCannotBeDrawnEitherIsKept();
    void aWholeBitmapFileBehindTheWordForABareOneIsShown();
    void whatIsNoPictureIsNotInserted();
    void aBitmapOfMoreColoursThanItsPixelsNameIsWritten();
    void wordsBetweenTheDataLeaveThePictureWhole_data();
    void wordsBetweenTheDataLeaveThePictureWhole();
    void picturesThatClaimTooMuchTogetherAreBoxes();
    void theSameBytesInTwoFormatsAreTwoPictures();
    void whatAPictureClaimsWithoutTheBytesIsNoClaim();
};

void PictureBoxTest::whatCannotBeDrawnKeepsItsBytes_data() {
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QSizeF>("pixels");
    QTest::addColumn<QByteArray>("written");
    const auto row = [](const char* name, const QByteArray& words, const QByteArray& bytes,
                        const QSizeF& pixels, const QByteArray& written = {}) {
        QTest::newRow(name) << words << bytes << pixels
                            << "{\\pict" + (written.isEmpty() ? words : written) + bytes.toHex();
    };
    const QSizeF unknown(96, 96);
    const QByteArray png = encoded(sampleImage(120, 60), "PNG");
    const QByteArray jpeg = encoded(sampleImage(120, 60), "JPG");
    row("PNG cut in its head", "\\pngblip", png.first(6), unknown);
    row("PNG cut in its pixels", "\\pngblip", png.chopped(png.size() / 2), {120, 60});
    const QByteArray large = encoded(sampleImage(1200, 600), "PNG");
    row("large PNG cut in its pixels", "\\pngblip", large.chopped(large.size() / 2), {192, 96});
    row("PNG with a goal", "\\pngblip\\picwgoal600\\pichgoal300", png.first(6), {40, 20});
    row("PNG with the size of its pixels", "\\pngblip\\picw4\\pich3", png.first(6), {4, 3},
        "\\pngblip\\picw4\\pich3\\picwgoal60\\pichgoal45");
    row("PNG that claims too much", "\\pngblip",
        QByteArray::fromHex("89504e470d0a1a0a0000000d49484452000186a0000186a00802000000"), unknown);
    row("JPEG cut in its head", "\\jpegblip", jpeg.first(8), unknown);
    const qsizetype frame = jpeg.indexOf("\xff\xc0");
    row("JPEG cut behind the head of its frame", "\\jpegblip", jpeg.first(frame + 9), {120, 60});
    row("JPEG cut in the head of its frame", "\\jpegblip", jpeg.first(frame + 8), unknown);
    row("JPEG whose frame has parts that it does not tell", "\\jpegblip",
        QByteArray::fromHex("ffd8ffffc0001108000200030201110003110000ffd9"), {3, 2});
    row("JPEG cut in the width of its frame", "\\jpegblip",
        QByteArray::fromHex("ffd8ffc000110800020a"), unknown);
    row("JPEG of tables alone", "\\jpegblip",
        QByteArray::fromHex("ffd8ffc400110800020003020111000311000000ffd9"), unknown);
    row("JPEG that claims to be wide and nothing else", "\\jpegblip",
        QByteArray::fromHex("ffd8ffc0001108ffffffff0201110003110000ffd9"), {192, 192});
    row("nothing that a JPEG begins with", "\\jpegblip", "no JPEG", unknown);
    row("bitmap that claims too much", "\\dibitmap0",
        QByteArray::fromHex("28000000a0860100a0860100010020000000000000"), unknown);
    row("bitmap with a goal", "\\dibitmap0\\picwgoal600\\pichgoal300",
        QByteArray::fromHex("28000000a0860100a0860100010020000000000000"), {40, 20});
    row("bitmap of words", "\\dibitmap0\\picw30\\pich60", "no bitmap", {30, 60},
        "\\dibitmap0\\picw30\\pich60\\picwgoal450\\pichgoal900");
    row("rows that are not there",
        "\\wbitmap0\\wbmbitspixel24\\wbmplanes1\\wbmwidthbytes90000\\picw30000\\pich15000",
        QByteArray(1, '\0'), {6666.67, 3333.33},
        "\\wbitmap0\\wbmbitspixel24\\wbmplanes1\\wbmwidthbytes90000\\picw30000\\pich15000"
        "\\picwgoal100000\\pichgoal50000");
    row("rows of many planes", "\\wbitmap0\\wbmbitspixel4\\wbmplanes4\\wbmwidthbytes2",
        QByteArray(8, '\0'), unknown);
    row("picture of a Macintosh", "\\macpict\\picw40\\pich30", "QuickDraw", {40, 30},
        "\\macpict\\picw40\\pich30\\picwgoal600\\pichgoal450");
    row("picture of OS/2", "\\pmmetafile8\\picw40\\pich30", "GPI", {40, 30},
        "\\pmmetafile8\\picw40\\pich30\\picwgoal600\\pichgoal450");
    row("picture of no kind", "\\picw40\\pich30", "?", {40, 30},
        "\\picw40\\pich30\\picwgoal600\\pichgoal450");
    row("picture of no kind and size", {}, "?", unknown);
    row("GIF that is none, named as something else", "\\pngblip", "GIF89a", unknown);
}

void PictureBoxTest::whatCannotBeDrawnKeepsItsBytes() {
    QFETCH(QByteArray, words);
    QFETCH(QByteArray, bytes);
    QFETCH(QSizeF, pixels);
    QFETCH(QByteArray, written);
    QTextDocument document;
    QVERIFY(readRtf(rtfOf(words, bytes), document).ok());
    QCOMPARE(document.toRawText(), QStringLiteral("a\ufffcb"));
    const QTextImageFormat format = pictureOf(document);
    QVERIFY2(std::abs(format.width() - pixels.width()) < 0.01,
             qPrintable(QString::number(format.width())));
    QVERIFY2(std::abs(format.height() - pixels.height()) < 0.01,
             qPrintable(QString::number(format.height())));
    QCOMPARE(shown(document).colorCount(), PaperOrInk);
    const QByteArray once = writeRtf(document);
    QVERIFY2(withoutLineEnds(once).contains(written), once);
    QTextDocument again;
    QVERIFY(readRtf(once, again).ok());
    QCOMPARE(pictureOf(again).property(PictureSource).toByteArray(), bytes);
    QCOMPARE(pictureOf(again).width(), format.width());
    QCOMPARE(writeRtf(again), once);
}

void PictureBoxTest::aBoxOfASizeSomebodyGaveKeepsIt() {
    QTextDocument document;
    readRtf(rtfOf("\\pngblip", "no PNG"), document);
    QTextImageFormat format = pictureOf(document);
    format.setWidth(50);
    QTextCursor cursor(&document);
    cursor.setPosition(1);
    cursor.setPosition(2, QTextCursor::KeepAnchor);
    cursor.setCharFormat(format);
    QVERIFY(writeRtf(document).contains("\\pngblip\\picwgoal750\\pichgoal1440"));
}

void PictureBoxTest::theSizeThatACutPictureClaimsIsWrittenToo() {
    // An inch is also what a box gets that nobody gave a size: the claim tells the two apart.
    QTextDocument document;
    QVERIFY(readRtf(rtfOf("\\jpegblip\\picw700\\pich600\\picwgoal1440\\pichgoal1440",
                          "\xff\xd8\xff\xe0"),
                    document)
                .ok());
    const QByteArray once = writeRtf(document);
    QVERIFY(once.contains("\\jpegblip\\picw700\\pich600\\picwgoal1440\\pichgoal1440"));
    QTextDocument again;
    QVERIFY(readRtf(once, again).ok());
    QCOMPARE(writeRtf(again), once);
}

void PictureBoxTest::theSameBytesAreTriedOnce() {
    QTextDocument document;
    const QByteArray group = "{\\pict\\pngblip 00112233}";
    QVERIFY(readRtf("{\\rtf1" + group + "and" + group + "\\par}", document).ok());
    const QTextBlock block = document.firstBlock();
    const QTextImageFormat first = block.begin().fragment().charFormat().toImageFormat();
    const QTextImageFormat second = (++ ++block.begin()).fragment().charFormat().toImageFormat();
    QCOMPARE(first.name(), second.name());
    QVERIFY(second.boolProperty(PictureIsBox));
}

void PictureBoxTest::aBoxIsFramedAndCrossed_data() {
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("square") << QSizeF(96, 96);
    QTest::newRow("of a length that is not whole") << QSizeF(191.999999, 96.000001);
    QTest::newRow("wide") << QSizeF(400, 100);
    QTest::newRow("larger than its raster") << QSizeF(6000, 3000);
}

void PictureBoxTest::aBoxIsFramedAndCrossed() {
    QFETCH(QSizeF, size);
    const QImage box = emptyBox(size, 1 << 20);
    QVERIFY(box.width() <= 512 && box.height() <= 512);
    QVERIFY(std::abs(double(box.width()) / box.height() - size.width() / size.height()) < 0.01);
    const QColor ink = box.pixelColor(0, 0);
    QVERIFY(ink != QColor(Qt::white));
    const int right = box.width() - 1;
    const int bottom = box.height() - 1;
    for (const QPoint& inked :
         {QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom), QPoint(right / 2, 0),
          QPoint(0, bottom / 2), QPoint(right, bottom / 3), QPoint(right / 3, bottom),
          QPoint(right / 2, bottom / 2), QPoint(right / 4, bottom / 4),
          QPoint(right / 4, bottom - bottom / 4)})
        QCOMPARE(box.pixelColor(inked), ink);
    // More than a pixel that is shown, wherever that begins.
    const double ratio = box.width() / size.width();
    const int line = ratio > 1 ? int(ratio) + 1 : 1;
    for (int beside = 0; beside < line; ++beside) {
        QCOMPARE(box.pixelColor(beside, bottom / 3), ink);
        QCOMPARE(box.pixelColor(right - beside, bottom / 3), ink);
        QCOMPARE(box.pixelColor(right / 3, beside), ink);
        QCOMPARE(box.pixelColor(right / 3, bottom - beside), ink);
    }
    QCOMPARE(box.pixelColor(right / 2, bottom / 4), QColor(Qt::white));
    QCOMPARE(box.pixelColor(right / 4, bottom / 2), QColor(Qt::white));
    // One that may have no room at all is still an image.
    QCOMPARE(emptyBox(size, 0).isNull(), false);
    QVERIFY(emptyBox(size, 0).sizeInBytes() < 64);
    QVERIFY(!emptyBox(QSizeF(0.01, 300), 1 << 20).isNull());
}

void PictureBoxTest::anotherFormOfThePictureIsShownInItsPlace_data() {
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QSizeF>("pixels");
    QTest::newRow("drawing with a goal")
        << QByteArray("\\emfblip\\picwgoal600\\pichgoal300")
        << vectorEnhancedMetafile({0, 0, 2540, 2540}) << QSizeF(40, 20);
    QTest::newRow("drawing with a frame")
        << QByteArray("\\emfblip") << vectorEnhancedMetafile({0, 0, 2540, 1270}) << QSizeF(96, 48);
    QTest::newRow("drawing without a frame")
        << QByteArray("\\emfblip") << vectorEnhancedMetafile({0, 0, 0, 0}) << QSizeF(4, 3);
    QTest::newRow("broken PNG without a size")
        << QByteArray("\\pngblip") << QByteArray("no PNG") << QSizeF(4, 3);
    QTest::newRow("picture of a Macintosh")
        << QByteArray("\\macpict\\picw40\\pich30") << QByteArray("QuickDraw") << QSizeF(40, 30);
}

void PictureBoxTest::anotherFormOfThePictureIsShownInItsPlace() {
    QFETCH(QByteArray, words);
    QFETCH(QByteArray, bytes);
    QFETCH(QSizeF, pixels);
    const QByteArray metafile = metafileOfDib(dibOfImage(sampleImage()), {4, 3});
    QTextDocument document;
    QVERIFY(readRtf("{\\rtf1 a{\\*\\shppict{\\pict" + words + "\r\n" + bytes.toHex() +
                        "}}\r\n{\\nonshppict{\\pict\\wmetafile8 " + metafile.toHex() + "}}b\\par}",
                    document)
                .ok());
    QCOMPARE(document.toRawText(), QStringLiteral("a\ufffcb"));
    QCOMPARE(shown(document).convertToFormat(QImage::Format_RGB32), sampleImage());
    const QTextImageFormat format = pictureOf(document);
    QVERIFY(std::abs(format.width() - pixels.width()) < 0.01);
    QVERIFY(std::abs(format.height() - pixels.height()) < 0.01);
    QVERIFY(!format.boolProperty(PictureIsBox));
    const QByteArray once = writeRtf(document);
    const QByteArray flat = withoutLineEnds(once);
    const QByteArray group = words.startsWith("\\emfblip") ? "{\\*\\shppict" : "{\\*\\orvpict";
    QVERIFY(flat.contains(group + "{\\pict" + words.left(words.indexOf("\\pic"))));
    QVERIFY(flat.contains(bytes.toHex() + "}}{\\nonshppict{\\pict\\wmetafile8"));
    QVERIFY(flat.contains(metafile.toHex() + "}}"));
    QTextDocument again;
    QVERIFY(readRtf(once, again).ok());
    QCOMPARE(shown(again).convertToFormat(QImage::Format_RGB32), sampleImage());
    QCOMPARE(writeRtf(again), once);
}

void PictureBoxTest::whatNoReaderKnowsIsWrittenWhereTheyDoNotLook_data() {
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("group");
    const auto row = [](const char* name, const QByteArray& words, const QByteArray& bytes,
                        const QByteArray& group) {
        QTest::newRow(name) << words << bytes << group;
    };
    const QByteArray own = "{\\*\\orvpict{\\pict";
    row("no PNG", "\\pngblip", "no PNG", own);
    row("no JPEG", "\\jpegblip", "no JPEG", own);
    row("no drawing", "\\emfblip", "no drawing", own);
    row("rows that are no picture", "\\wbitmap0", "rows", own);
    row("no kind", "", "anything", own);
    row("no GIF", "", "GIF89a", own);
    row("picture of a Macintosh", "\\macpict", "QuickDraw", own);
    row("cut PNG", "\\pngblip", "\x89PNG\r\n\x1a\n", "{\\*\\shppict{\\pict");
    row("cut JPEG", "\\jpegblip", "\xff\xd8\xff\xe0", "{\\*\\shppict{\\pict");
    row("bitmap that is none", "\\dibitmap0", "no bitmap", "a{\\pict");
    row("vectors", "\\emfblip", vectorEnhancedMetafile({0, 0, 2540, 2540}), "a{\\pict");
}

void PictureBoxTest::whatNoReaderKnowsIsWrittenWhereTheyDoNotLook() {
    QFETCH(QByteArray, words);
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, group);
    QTextDocument document;
    QVERIFY(readRtf(rtfOf(words, bytes), document).ok());
    const QByteArray once = writeRtf(document);
    QVERIFY2(once.contains(group + words), once.constData());
    QTextDocument again;
    QVERIFY(readRtf(once, again).ok());
    QCOMPARE(pictureOf(again).property(PictureSource).toByteArray(), bytes);
    QCOMPARE(writeRtf(again), once);
}

void PictureBoxTest::aDrawingThatCannotBeDrawnEitherIsKept_data() {
    QTest::addColumn<QByteArray>("other");
    QTest::addColumn<bool>("kept");
    const QByteArray drawing = "{\\pict\\wmetafile8 " + vectorMetafile().toHex() + "}";
    QTest::newRow("drawing") << drawing << true;
    QTest::newRow("drawing, twice") << drawing + drawing << true;
    QTest::newRow("another kind") << QByteArray("{\\pict\\macpict 00}") << false;
    QTest::newRow("nothing") << QByteArray("{\\pict\\wmetafile8}") << false;
}

void PictureBoxTest::aDrawingThatCannotBeDrawnEitherIsKept() {
    QFETCH(QByteArray, other);
    QFETCH(bool, kept);
    QTextDocument document;
    QVERIFY(readRtf("{\\rtf1{\\*\\shppict{\\pict\\emfblip\\picwgoal600\\pichgoal300 00}}"
                    "{\\nonshppict" +
                        other + "}{\\nonshppict{\\pict\\wmetafile8 0100}}\\par}",
                    document)
                .ok());
    QVERIFY(document.toRawText().startsWith(QStringLiteral("\ufffc")));
    QVERIFY(pictureOf(document).boolProperty(PictureIsBox));
    QCOMPARE(pictureOf(document).width(), 40.0);
    const QByteArray once = writeRtf(document);
    QCOMPARE(withoutLineEnds(once).contains(
                 "{\\nonshppict{\\pict\\wmetafile8\\picw1058\\pich529\\picwgoal600\\pichgoal300" +
                 vectorMetafile().toHex() + "}}"),
             kept);
    QTextDocument again;
    QVERIFY(readRtf(once, again).ok());
    QCOMPARE(writeRtf(again), once);
}

void PictureBoxTest::aWholeBitmapFileBehindTheWordForABareOneIsShown() {
    QTextDocument document;
    QVERIFY(readRtf(rtfOf("\\dibitmap0", encoded(sampleImage(), "BMP")), document).ok());
    QCOMPARE(shown(document).convertToFormat(QImage::Format_RGB32), sampleImage());
    QCOMPARE(pictureOf(document).width(), 4.0);
}

void PictureBoxTest::aBitmapOfMoreColoursThanItsPixelsNameIsWritten() {
    // Two rows of two pixels of one bit, and a table of three colours.
    const QByteArray bitmap = "28000000020000000200000001000100000000000800000000000000000000000300"
                              "00000000000000000000ffffff00ff0000008000000040000000";
    QTextDocument document;
    QVERIFY(readRtf(rtfOf("\\dibitmap0", QByteArray::fromHex(bitmap)), document).ok());
    const QImage image = shown(document).convertToFormat(QImage::Format_RGB32);
    QCOMPARE(image.size(), QSize(2, 2));
    QCOMPARE(image.pixel(0, 1), qRgb(255, 255, 255));
    QTextDocument again;
    QVERIFY(readRtf(writeRtf(document), again).ok());
    QCOMPARE(shown(again).convertToFormat(QImage::Format_RGB32), image);
}

void PictureBoxTest::wordsBetweenTheDataLeaveThePictureWhole_data() {
    QTest::addColumn<QByteArray>("words");
    for (const char* words :
         {"\\bliptag-1234567",
          "\\bliptag12\\blipupi96{\\*\\blipuid 00112233445566778899aabbccddeeff}",
          "{\\*\\blipuid{00}{\\b 11}}", "{\\blipuid 0011}\\bliptag1",
          "{\\*\\picprop\\shplid1{\\sp{\\sn a}{\\sv 00}}}\\picscaled\\piccropl10\\piccropt0",
          "\\picbmp\\picbpp24\\defshp\\brdrs\\brdrw10\\shading100",
          "\\info\\header\\xe\\field\\pict"})
        QTest::newRow(words) << QByteArray(words);
}

void PictureBoxTest::wordsBetweenTheDataLeaveThePictureWhole() {
    QFETCH(QByteArray, words);
    const QByteArray png = encoded(sampleImage(), "PNG");
    const QByteArray size = "\\pngblip\\picwgoal60\\pichgoal45";
    for (const QByteArray& order : {size + words, words + size}) {
        QTextDocument document;
        QVERIFY(readRtf(rtfOf(order, png), document).ok());
        QCOMPARE(document.toRawText(), QStringLiteral("a\ufffcb"));
        QCOMPARE(shown(document).convertToFormat(QImage::Format_RGB32), sampleImage());
        QVERIFY(withoutLineEnds(writeRtf(document)).contains(png.toHex()));
    }
}

void PictureBoxTest::whatIsNoPictureIsNotInserted() {
    QTextDocument document;
    QTextCursor cursor(&document);
    PictureBounds bounds;
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("text"), encoded(sampleImage(), "PNG").first(10)})
        QVERIFY(!insertPicture(cursor, bytes, nullptr, bounds));
    QVERIFY(document.isEmpty());
}

void PictureBoxTest::picturesThatClaimTooMuchTogetherAreBoxes() {
    QTextDocument document;
    QTextCursor cursor(&document);
    PictureBounds bounds;
    bounds.claimedLeft = 20;
    QImage other = sampleImage();
    other.fill(Qt::magenta);
    QVERIFY(insertPicture(cursor, encoded(sampleImage(), "PNG"), nullptr, bounds)); // 12 pixels
    QVERIFY(insertPicture(cursor, encoded(other, "PNG"), nullptr, bounds));
    QList<bool> boxes;
    for (auto run = document.firstBlock().begin(); !run.atEnd(); ++run)
        boxes << run.fragment().charFormat().boolProperty(PictureIsBox);
    QCOMPARE(boxes, (QList<bool>{false, true}));
}

void PictureBoxTest::theSameBytesInTwoFormatsAreTwoPictures() {
    QTextDocument document;
    readRtf("{\\rtf1{\\pict\\picw1\\pich1\\wbmbitspixel1\\wbmplanes1 616263}"
            "{\\pict\\wbitmap\\picw1\\pich1\\wbmbitspixel1\\wbmplanes1 616263}}",
            document);
    QList<bool> boxes;
    const QTextBlock block = document.firstBlock();
    for (auto it = block.begin(); !it.atEnd(); ++it)
        boxes << it.fragment().charFormat().boolProperty(PictureIsBox);
    QCOMPARE(boxes, (QList<bool>{true, false}));
}

void PictureBoxTest::whatAPictureClaimsWithoutTheBytesIsNoClaim() {
    const QByteArray claims = "{\\pict\\wbitmap0\\picw90000\\pich90000\\wbmbitspixel1 00}";
    const QByteArray png = "{\\pict\\pngblip " + encoded(sampleImage(4, 3), "PNG").toHex() + '}';
    QTextDocument document;
    readRtf("{\\rtf1 " + claims + "\\par" + png + "\\par}", document);
    const QTextCharFormat second = document.findBlockByNumber(1).begin().fragment().charFormat();
    QVERIFY(second.isImageFormat());
    QVERIFY(!second.hasProperty(PictureIsBox));
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, PictureBoxTest)
#include "picture_box_test.moc"
