// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "recording_sink.h"
#include "rtf/pictures/picture_image.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "sample_rtf.h"
#include "support/counted_memory.h"
#include "support/rtf_floods.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextDocument>

using namespace orvalis;
using namespace orvalis::rtf;
using orvalis::test::RecordingSink;

namespace {

constexpr qsizetype LargestBox = 1 << 17; // bytes

} // namespace

class HostileRtfTest : public QObject {
    Q_OBJECT
private slots:
    void cutAnywhereTheTextBeforeTheCutIsKept();
    void aMillionOpeningBracesAreCountedNotStored();
    void aMillionClosingBracesEndAtTheFirst();
    void binaryDataThatClaimMoreThanThereIsEndTheFile();
    void fourHundredThousandEmptyBinariesAreReadOver();
    void hugeNumbersHarmNobody_data();
    void hugeNumbersHarmNobody();
    void picturesThatLieAreBoxes_data();
    void picturesThatLieAreBoxes();
    void aPictureOfNoBytesIsNone();
    void noPictureIsLongerThanADocumentCanHold();
    void aPictureOfMorePixelsThanAnyCameraMakesIsNotDecoded();
    void garbageIsReadToItsEnd();
    void aFloodOfParagraphsComesInAsLinesOnceTheyCostTooMuch();
    void theFirstFaultAndItsPlaceAreTold_data();
    void theFirstFaultAndItsPlaceAreTold();
};

void HostileRtfTest::cutAnywhereTheTextBeforeTheCutIsKept() {
    const QByteArray whole = test::richSample();
    RecordingSink complete;
    QVERIFY(readRtf(whole, complete).ok());
    QString longest;
    for (qsizetype length = 6; length < whole.size(); ++length) {
        RecordingSink sink;
        const ReadResult result = readRtf(QByteArrayView(whole).first(length), sink);
        QVERIFY(!result.ok() || length >= whole.lastIndexOf('}'));
        QVERIFY(result.position <= length);
        QCOMPARE(sink.finished, 1);
        // Only what the cut itself splits (a code, a fallback, a row's tabs) may differ.
        QVERIFY2(complete.whole.startsWith(
                     sink.whole.chopped(std::min<qsizetype>(3, sink.whole.size()))),
                 qPrintable(QString::number(length)));
        QVERIFY(sink.whole.size() + 6 >= longest.size());
        longest = sink.whole;
    }
    QVERIFY(longest.size() + 2 >= complete.whole.size());
}

void HostileRtfTest::aMillionOpeningBracesAreCountedNotStored() {
    RecordingSink sink;
    const QByteArray rtf =
        "{\\rtf1 a" + QByteArray(1000000, '{') + "\\b deep" + QByteArray(1000000, '}') + "b}";
    const ReadResult result = readRtf(rtf, sink);
    QCOMPARE(result.fault, Fault::TooDeep);
    QCOMPARE(sink.whole, QStringLiteral("adeepb"));
    QVERIFY(!sink.runs.last().format.bold);
}

void HostileRtfTest::aMillionClosingBracesEndAtTheFirst() {
    RecordingSink sink;
    const ReadResult result = readRtf("{\\rtf1 a" + QByteArray(1000000, '}'), sink);
    QCOMPARE(result.fault, Fault::UnmatchedBrace);
    QCOMPARE(result.position, qsizetype(9));
    QCOMPARE(sink.whole, QStringLiteral("a"));
}

void HostileRtfTest::binaryDataThatClaimMoreThanThereIsEndTheFile() {
    RecordingSink sink;
    const ReadResult result = readRtf("{\\rtf1 text\\par\\bin4000000000 rest}", sink);
    QCOMPARE(result.fault, Fault::BadBinary);
    QCOMPARE(sink.whole, QStringLiteral("text\n"));
    RecordingSink negative;
    QVERIFY(readRtf("{\\rtf1 a\\bin-5 b}", negative).ok());
    QCOMPARE(negative.whole, QStringLiteral("ab"));
}

void HostileRtfTest::fourHundredThousandEmptyBinariesAreReadOver() {
    QByteArray rtf = "{\\rtf1 a";
    for (int i = 0; i < 400000; ++i)
        rtf += "\\bin0";
    RecordingSink sink;
    QVERIFY(readRtf(rtf + " b}", sink).ok());
    QCOMPARE(sink.whole, QStringLiteral("ab"));
}

void HostileRtfTest::hugeNumbersHarmNobody_data() {
    QTest::addColumn<QByteArray>("words");
    for (const char* words : {"\\f2147483647",
                              "\\f-1",
                              "\\f2000000000",
                              "\\f99999999999999999999",
                              "\\cf2147483647",
                              "\\cf-2147483648",
                              "\\highlight999999",
                              "\\fs2147483647",
                              "\\li-2147483648",
                              "\\fi2147483647",
                              "\\sl-2147483648",
                              "\\slmult2147483647",
                              "\\tx2147483647",
                              "\\uc2147483647",
                              "\\uc-1",
                              "\\ls2147483647",
                              "\\ilvl-2147483648",
                              "\\ansicpg0",
                              "\\ansicpg2147483647",
                              "\\deff-2147483648",
                              "\\deftab2147483647",
                              "\\up2147483647",
                              "\\u2147483647",
                              "\\u-2147483648"})
        QTest::newRow(words) << QByteArray(words);
}

void HostileRtfTest::hugeNumbersHarmNobody() {
    QFETCH(QByteArray, words);
    QTextDocument document;
    QVERIFY(readRtf("{\\rtf1 a" + words + "? b\\par}", document).ok());
    QVERIFY(document.toPlainText().startsWith(u'a'));
    QTextDocument again;
    QVERIFY(readRtf(writeRtf(document), again).ok());
    QCOMPARE(again.toRawText(), document.toRawText());
}

void HostileRtfTest::picturesThatLieAreBoxes_data() {
    QTest::addColumn<QByteArray>("picture");
    const auto bitmap = [](const QByteArray& side) {
        return "\\dibitmap0 28000000" + side + side + "01002000" + QByteArray(48, '0');
    };
    QTest::newRow("bitmap of 100000 by 100000") << bitmap("a0860100");
    QTest::newRow("bitmap of 30000 by 30000") << bitmap("30750000");
    QTest::newRow("bitmap without its pixels") << bitmap("0a000000");
    QTest::newRow("half a bitmap's header") << bitmap("a0860100").chopped(30);
    QTest::newRow("rows of 30000 by 30000")
        << QByteArray("\\wbitmap0\\wbmbitspixel24\\picw30000\\pich30000 00");
    QTest::newRow("half a header") << QByteArray("\\pngblip 89504e470d0a");
    QTest::newRow("png of 100000 by 100000")
        << QByteArray("\\pngblip 89504e470d0a1a0a0000000d49484452000186a0000186a0080200000027309c9f"
                      "0000200049444154");
    QTest::newRow("metafile of nothing") << QByteArray("\\wmetafile8 0100");
}

void HostileRtfTest::picturesThatLieAreBoxes() {
    QFETCH(QByteArray, picture);
    constexpr qint64 MuchLessThanClaimed = 4 << 20;
    const QByteArray rtf = "{\\rtf1 a{\\pict" + picture + "}b\\par}";
    QTextDocument document;
    QVERIFY(readRtf(rtf, document).ok()); // Plugins that decode are loaded once.
    const test::TakenMemory taken = test::memoryTakenBy([&] { readRtf(rtf, document); });
    QVERIFY2(taken.asked < MuchLessThanClaimed, qPrintable(QString::number(taken.asked)));
    QCOMPARE(document.toRawText(), QStringLiteral("a\ufffcb"));
    const QTextCharFormat format = (++document.firstBlock().begin()).fragment().charFormat();
    const QUrl name(format.toImageFormat().name());
    const auto box = document.resource(QTextDocument::ImageResource, name).value<QImage>();
    QVERIFY(!box.isNull() && box.sizeInBytes() <= LargestBox);
}

void HostileRtfTest::aPictureOfNoBytesIsNone() {
    RecordingSink sink;
    QVERIFY(readRtf("{\\rtf1 a{\\pict\\pngblip xyz!}b}", sink).ok());
    QCOMPARE(sink.whole, QStringLiteral("ab"));
    QVERIFY(sink.pictures.isEmpty());
}

void HostileRtfTest::noPictureIsLongerThanADocumentCanHold() {
    Picture picture;
    picture.height = 10;
    for (picture.width = 1; picture.width < 20000; ++picture.width) {
        const QSizeF wanted = wantedTwips(picture);
        QVERIFY2(wanted.width() <= 100000, qPrintable(QString::number(picture.width)));
        QVERIFY(wanted.height() > 0);
    }
}

void HostileRtfTest::aPictureOfMorePixelsThanAnyCameraMakesIsNotDecoded() {
    // One that a decoder could make smaller, but only by going through 134 million pixels.
    QImage blank(11600, 11600, QImage::Format_Grayscale8);
    blank.fill(Qt::gray);
    Picture picture;
    picture.kind = PictureKind::Jpeg;
    picture.bytes = test::encoded(blank, "JPG");
    QVERIFY(imageOfPicture(picture, 1 << 20, nullptr).isNull());
    picture.bytes = test::encoded(blank.copy(0, 0, 1200, 1200), "JPG");
    QVERIFY(!imageOfPicture(picture, 1 << 20, nullptr).isNull());
}

void HostileRtfTest::garbageIsReadToItsEnd() {
    const QByteArray rtf = test::rtfNoise(1 << 20);
    RecordingSink sink;
    const ReadResult result = readRtf(rtf, sink);
    QCOMPARE(result.fault, Fault::UnexpectedEnd);
    QCOMPARE(result.position, rtf.size());
    QVERIFY(sink.whole.startsWith(QStringLiteral("text")));
    QVERIFY(sink.whole.size() > rtf.size() / 2);
}

void HostileRtfTest::aFloodOfParagraphsComesInAsLinesOnceTheyCostTooMuch() {
    constexpr int Paragraphs = 200000;
    QByteArray rtf = "{\\rtf1\\fs4 ";
    for (int i = 0; i < Paragraphs; ++i)
        rtf += "\\\n";
    QTextDocument document;
    QVERIFY(readRtf(rtf + "end}", document).ok());
    QVERIFY(document.blockCount() < Paragraphs);
    QVERIFY(document.toRawText().endsWith(QStringLiteral("end")));
    QCOMPARE(document.characterCount(), Paragraphs + 4);
}

void HostileRtfTest::theFirstFaultAndItsPlaceAreTold_data() {
    QTest::addColumn<QByteArray>("rtf");
    QTest::addColumn<int>("fault");
    QTest::newRow("none") << QByteArray("{\\rtf1 a}") << int(Fault::None);
    QTest::newRow("a line end and a zero behind the end")
        << QByteArray("{\\rtf1 a}\r\n\0", 12) << int(Fault::None);
    QTest::newRow("open group") << QByteArray("{\\rtf1 a{b}") << int(Fault::UnexpectedEnd);
    QTest::newRow("open skipped group")
        << QByteArray("{\\rtf1 a{\\info b") << int(Fault::UnexpectedEnd);
    QTest::newRow("brace too many") << QByteArray("{\\rtf1 a}}") << int(Fault::UnmatchedBrace);
    QTest::newRow("bad binary") << QByteArray("{\\rtf1 a\\bin9 }") << int(Fault::BadBinary);
    QTest::newRow("not RTF") << QByteArray("a") << int(Fault::NotRtf);
}

void HostileRtfTest::theFirstFaultAndItsPlaceAreTold() {
    QFETCH(QByteArray, rtf);
    QFETCH(int, fault);
    NullSink sink;
    const ReadResult result = readRtf(rtf, sink);
    QCOMPARE(int(result.fault), fault);
    QVERIFY(result.position >= 0 && result.position <= rtf.size());
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, HostileRtfTest)
#include "hostile_rtf_test.moc"
