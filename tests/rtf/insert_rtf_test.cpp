// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/format_properties.h"
#include "rtf/formats/formats.h"
#include "rtf/pictures/device_bitmap.h"
#include "rtf/pictures/picture_format.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "sample_rtf.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

using namespace orvalis;
using namespace orvalis::rtf;

namespace {

QTextCursor cursorAt(QTextDocument& document, int from, int to) {
    QTextCursor cursor(&document);
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    return cursor;
}

QTextImageFormat secondRun(const QTextDocument& document) {
    auto run = document.firstBlock().begin();
    ++run;
    return run.fragment().charFormat().toImageFormat();
}

} // namespace

class InsertRtfTest : public QObject {
    Q_OBJECT
private slots:
    void exactlyOneClosingMarkIsDropped_data();
    void exactlyOneClosingMarkIsDropped();
    void theSelectionIsReplacedInOneStepOfUndo();
    void aBlockWithTextKeepsItsShapeAndAnEmptyOneTakesTheNew();
    void whatFollowsTheInsertionKeepsItsShape();
    void anEmptyParagraphBehindWholeOnesKeepsItsShape();
    void whatIsNotRtfChangesNothing();
    void readingReplacesTheContentAndItsHistory();
    void everyRunCarriesItsLook();
    void lengthsBecomePixels();
    void bulletsAndNumbersBecomeLists();
    void bulletsOfTheTablesHangByTheirOwnIndents();
    void aPictureKeepsItsBytesAndItsWantedSize_data();
    void aPictureKeepsItsBytesAndItsWantedSize();
    void aPictureComesOnceOfTheTwoForms();
    void anInsertedPictureIsWrittenWithItsOwnBytes();
    void pictureFilesAreNotEncodedAgain_data();
    void pictureFilesAreNotEncodedAgain();
    void aHugePictureKeepsItsShape();
};

void InsertRtfTest::exactlyOneClosingMarkIsDropped_data() {
    QTest::addColumn<QByteArray>("rtf");
    QTest::addColumn<QString>("text");
    QTest::newRow("none to drop") << QByteArray("{\\rtf1 x}") << QStringLiteral("abxcd");
    QTest::newRow("one") << QByteArray("{\\rtf1 x\\par}") << QStringLiteral("abxcd");
    QTest::newRow("two") << QByteArray("{\\rtf1 x\\par\\par}") << QStringLiteral("abx\ncd");
    QTest::newRow("paragraphs") << QByteArray("{\\rtf1 x\\par y\\par}")
                                << QStringLiteral("abx\nycd");
    QTest::newRow("nothing") << QByteArray("{\\rtf1}") << QStringLiteral("abcd");
    QTest::newRow("a mark alone") << QByteArray("{\\rtf1\\par}") << QStringLiteral("abcd");
}

void InsertRtfTest::exactlyOneClosingMarkIsDropped() {
    QFETCH(QByteArray, rtf);
    QFETCH(QString, text);
    QTextDocument document(QStringLiteral("abcd"));
    QTextCursor cursor = cursorAt(document, 2, 2);
    QVERIFY(insertRtf(rtf, cursor).ok());
    QCOMPARE(document.toPlainText(), text);
    QCOMPARE(cursor.position(), int(text.size()) - 2);
}

void InsertRtfTest::theSelectionIsReplacedInOneStepOfUndo() {
    QTextDocument document(QStringLiteral("one two three"));
    document.clearUndoRedoStacks();
    QTextCursor cursor = cursorAt(document, 4, 7);
    QVERIFY(insertRtf("{\\rtf1 \\b bold\\b0  and\\par more}", cursor).ok());
    QCOMPARE(document.toPlainText(), QStringLiteral("one bold and\nmore three"));
    document.undo();
    QCOMPARE(document.toPlainText(), QStringLiteral("one two three"));
    QVERIFY(!document.isUndoAvailable());
    document.redo();
    QCOMPARE(document.toPlainText(), QStringLiteral("one bold and\nmore three"));
}

void InsertRtfTest::aBlockWithTextKeepsItsShapeAndAnEmptyOneTakesTheNew() {
    QTextDocument document(QStringLiteral("text\n"));
    QTextCursor cursor = cursorAt(document, 4, 4);
    insertRtf("{\\rtf1\\pard\\qc x\\par}", cursor);
    QVERIFY(!(document.firstBlock().blockFormat().alignment() & Qt::AlignHCenter));
    cursor.movePosition(QTextCursor::End);
    insertRtf("{\\rtf1\\pard\\qc y\\par}", cursor);
    QCOMPARE(document.toPlainText(), QStringLiteral("textx\ny"));
    QVERIFY(document.lastBlock().blockFormat().alignment() & Qt::AlignHCenter);
}

void InsertRtfTest::whatFollowsTheInsertionKeepsItsShape() {
    QTextDocument document;
    readRtf("{\\rtf1\\pard\\qr abcd\\par}", document);
    QTextCursor cursor = cursorAt(document, 2, 2);
    insertRtf("{\\rtf1\\pard\\qc x\\par y\\par}", cursor);
    QCOMPARE(document.toPlainText(), QStringLiteral("abx\nycd"));
    QVERIFY(document.firstBlock().blockFormat().alignment() & Qt::AlignRight);
    QVERIFY(document.lastBlock().blockFormat().alignment() & Qt::AlignRight);
}

void InsertRtfTest::anEmptyParagraphBehindWholeOnesKeepsItsShape() {
    // As it is copied with its end: the empty start of the paragraph behind comes along.
    const QByteArray item = "{\\rtf1\\pard{\\*\\pn\\pnlvlblt}item\\par\\par}";
    QTextDocument document(QStringLiteral("above\n\nbelow"));
    QTextCursor cursor = cursorAt(document, 6, 6);
    insertRtf(item, cursor);
    QCOMPARE(document.toPlainText(), QStringLiteral("above\nitem\n\nbelow"));
    QVERIFY(document.findBlockByNumber(1).textList());
    QVERIFY(!document.findBlockByNumber(2).textList());
    // An empty document has no shape to keep.
    QTextDocument empty;
    cursor = QTextCursor(&empty);
    insertRtf(item, cursor);
    QCOMPARE(empty.blockCount(), 2);
    QVERIFY(empty.lastBlock().textList());
}

void InsertRtfTest::whatIsNotRtfChangesNothing() {
    QTextDocument document(QStringLiteral("abcd"));
    QTextCursor cursor = cursorAt(document, 1, 3);
    QCOMPARE(insertRtf("plain", cursor).fault, Fault::NotRtf);
    QCOMPARE(readRtf("plain", document).fault, Fault::NotRtf);
    QCOMPARE(document.toPlainText(), QStringLiteral("abcd"));
    QVERIFY(cursor.hasSelection());
}

void InsertRtfTest::readingReplacesTheContentAndItsHistory() {
    QTextDocument document(QStringLiteral("old"));
    QTextCursor(&document).insertText(QStringLiteral("x"));
    QVERIFY(readRtf("{\\rtf1\\deftab360 new\\par}", document).ok());
    QCOMPARE(document.toPlainText(), QStringLiteral("new"));
    QCOMPARE(document.blockCount(), 1);
    QVERIFY(!document.isUndoAvailable());
    QVERIFY(document.isUndoRedoEnabled());
    QCOMPARE(document.defaultTextOption().tabStopDistance(), 24.0);
}

void InsertRtfTest::everyRunCarriesItsLook() {
    QTextDocument document;
    readRtf("{\\rtf1\\deff0{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red1\\green2\\blue3;}"
            "\\b\\i\\strike\\uldb\\fs30\\cf1\\highlight1\\super x}",
            document);
    const QTextCharFormat format = document.firstBlock().begin().fragment().charFormat();
    QCOMPARE(format.fontFamilies().toStringList(), QStringList{QStringLiteral("Arial")});
    QCOMPARE(format.fontPointSize(), 15.0);
    QCOMPARE(format.fontWeight(), int(QFont::Bold));
    QVERIFY(format.fontItalic() && format.fontStrikeOut());
    QCOMPARE(format.underlineStyle(), QTextCharFormat::SingleUnderline);
    QCOMPARE(format.intProperty(UnderlineKind), int(Underline::Double));
    QCOMPARE(format.foreground().color(), QColor(1, 2, 3));
    QCOMPARE(format.background().color(), QColor(1, 2, 3));
    QCOMPARE(format.verticalAlignment(), QTextCharFormat::AlignSuperScript);
}

void InsertRtfTest::lengthsBecomePixels() {
    QTextDocument document;
    readRtf("{\\rtf1\\pard\\fi150\\li300\\ri450\\sb600\\sa750\\sl480\\slmult1\\tqr\\tx1500 x\\par}",
            document);
    const QTextBlockFormat format = document.firstBlock().blockFormat();
    QCOMPARE(format.textIndent(), 10.0);
    QCOMPARE(format.leftMargin(), 20.0);
    QCOMPARE(format.rightMargin(), 30.0);
    QCOMPARE(format.topMargin(), 40.0);
    QCOMPARE(format.bottomMargin(), 50.0);
    QCOMPARE(format.lineHeightType(), int(QTextBlockFormat::ProportionalHeight));
    QCOMPARE(format.lineHeight(), 200.0);
    // From where the first line begins.
    QCOMPARE(format.tabPositions().first().position, 70.0);
    QCOMPARE(format.tabPositions().first().type, QTextOption::RightTab);
}

void InsertRtfTest::bulletsAndNumbersBecomeLists() {
    QTextDocument document;
    readRtf(
        "{\\rtf1\\pard{\\*\\pn\\pnlvlblt{\\pntxtb\\'B7}}\\fi-360\\li720 a\\par b\\par\\pard "
        "plain\\par\\pard{\\*\\pn\\pnlvlbody\\pnstart1\\pndec{\\pntxta.}}\\li720 c\\par d\\par}",
        document);
    const QTextBlock a = document.firstBlock();
    QVERIFY(a.textList());
    QCOMPARE(a.textList()->format().style(), QTextListFormat::ListDisc);
    QCOMPARE(a.next().textList(), a.textList());
    QCOMPARE(a.blockFormat().leftMargin(), 48.0);
    QCOMPARE(a.blockFormat().intProperty(ParagraphFirstIndent), -360);
    QVERIFY(!a.next().next().textList());
    const QTextBlock d = document.lastBlock();
    QVERIFY(d.textList());
    QCOMPARE(d.textList()->itemText(d), QStringLiteral("2."));
}

void InsertRtfTest::bulletsOfTheTablesHangByTheirOwnIndents() {
    QTextDocument document;
    readRtf("{\\rtf1{\\*\\listtable{\\list{\\listlevel\\levelnfc23}\\listid7}}"
            "{\\*\\listoverridetable{\\listoverride\\listid7\\ls1}}"
            "\\pard\\ls1 a\\par\\pard\\ls1\\li720 b\\par}",
            document);
    // The text of each stands at the next step behind its bullet.
    const QTextList* outer = document.firstBlock().textList();
    const QTextList* inner = document.lastBlock().textList();
    QVERIFY(outer && inner);
    QCOMPARE(document.firstBlock().blockFormat().leftMargin(), 0.0);
    QCOMPARE(document.firstBlock().blockFormat().textIndent(), 48.0);
    QCOMPARE(document.lastBlock().blockFormat().leftMargin(), 48.0);
    QCOMPARE(document.lastBlock().blockFormat().textIndent(), 48.0);
}

void InsertRtfTest::aPictureKeepsItsBytesAndItsWantedSize_data() {
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("exact");
    const QImage image = test::sampleImage();
    const QByteArray dib = dibOfImage(image);
    QTest::newRow("png") << QByteArray("\\pngblip") << test::encoded(image, "PNG") << true;
    QTest::newRow("jpeg") << QByteArray("\\jpegblip") << test::encoded(image, "JPG") << false;
    QTest::newRow("dib") << QByteArray("\\dibitmap0") << dib << true;
    QTest::newRow("metafile around a dib")
        << QByteArray("\\wmetafile8") << metafileOfDib(dib, image.size()) << true;
}

void InsertRtfTest::aPictureKeepsItsBytesAndItsWantedSize() {
    QFETCH(QByteArray, words);
    QFETCH(QByteArray, bytes);
    QFETCH(bool, exact);
    QTextDocument document;
    const QByteArray rtf =
        "{\\rtf1 a{\\pict" + words + "\\picwgoal600\\pichgoal300\r\n" + bytes.toHex() + "}b}";
    QVERIFY(readRtf(rtf, document).ok());
    QCOMPARE(document.toRawText(), QStringLiteral("a\ufffcb"));
    const QTextImageFormat format = secondRun(document);
    QCOMPARE(format.width(), 40.0);
    QCOMPARE(format.height(), 20.0);
    QCOMPARE(format.property(PictureSource).toByteArray(), bytes);
    const QImage shown =
        document.resource(QTextDocument::ImageResource, QUrl(format.name())).value<QImage>();
    QCOMPARE(shown.size(), QSize(4, 3));
    if (exact)
        QCOMPARE(shown.convertToFormat(QImage::Format_RGB32), test::sampleImage());
    QTextDocument again;
    QVERIFY(readRtf(writeRtf(document), again).ok());
    QCOMPARE(again.toRawText(), document.toRawText());
    const QTextImageFormat kept = secondRun(again);
    QCOMPARE(kept.width(), 40.0);
    QCOMPARE(kept.height(), 20.0);
    const QImage shownAgain =
        again.resource(QTextDocument::ImageResource, QUrl(kept.name())).value<QImage>();
    QCOMPARE(shownAgain.convertToFormat(QImage::Format_RGB32),
             shown.convertToFormat(QImage::Format_RGB32));
}

void InsertRtfTest::aPictureComesOnceOfTheTwoForms() {
    const QByteArray png = test::encoded(test::sampleImage(), "PNG").toHex();
    const QByteArray wmf = metafileOfDib(dibOfImage(test::sampleImage()), QSize(4, 3)).toHex();
    QTextDocument document;
    readRtf("{\\rtf1{\\*\\shppict{\\pict\\pngblip " + png + "}}{\\nonshppict{\\pict\\wmetafile8 " +
                wmf + "}}{\\nonshppict{\\pict\\wmetafile8 " + wmf + "}}}",
            document);
    QCOMPARE(document.toRawText(), QStringLiteral("\ufffc\ufffc"));
}

void InsertRtfTest::anInsertedPictureIsWrittenWithItsOwnBytes() {
    const QByteArray png = test::encoded(test::sampleImage(), "PNG");
    QTextDocument document;
    QTextCursor cursor(&document);
    PictureBounds bounds;
    QVERIFY(insertPicture(cursor, png, nullptr, bounds));
    QVERIFY(!insertPicture(cursor, "no picture", nullptr, bounds));
    QByteArray written = writeRtf(document);
    written.replace("\r\n", "");
    QVERIFY(written.contains("\\pngblip"));
    QVERIFY(written.contains(png.toHex()));
    QVERIFY(written.contains("\\picwgoal60\\pichgoal45"));
}

void InsertRtfTest::pictureFilesAreNotEncodedAgain_data() {
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<QByteArray>("bytes");
    // What stands in such a file besides its pixels is lost when it is encoded again.
    QImage told = test::sampleImage();
    told.setText(QStringLiteral("Description"), QStringLiteral("a sample"));
    QTest::newRow("png") << QByteArray("\\pngblip") << test::encoded(told, "PNG");
    QTest::newRow("jpeg") << QByteArray("\\jpegblip") << test::encoded(told, "JPG");
}

void InsertRtfTest::pictureFilesAreNotEncodedAgain() {
    QFETCH(QByteArray, words);
    QFETCH(QByteArray, bytes);
    QTextDocument document;
    QVERIFY(readRtf("{\\rtf1{\\pict" + words + " " + bytes.toHex() + "}\\par}", document).ok());
    // The text of the image is no part of what the document shows.
    const QTextImageFormat format =
        document.firstBlock().begin().fragment().charFormat().toImageFormat();
    document.addResource(QTextDocument::ImageResource, QUrl(format.name()), test::sampleImage());
    QByteArray written = writeRtf(document);
    written.replace("\r\n", "");
    QVERIFY(written.contains(words));
    QVERIFY(written.contains(bytes.toHex()));
}

void InsertRtfTest::aHugePictureKeepsItsShape() {
    // A document's lengths end at 100000 twips.
    QTextDocument document;
    QTextCursor cursor(&document);
    PictureBounds bounds;
    QVERIFY(insertPicture(cursor, test::encoded(QImage(10000, 100, QImage::Format_Mono), "PNG"),
                          nullptr, bounds));
    QByteArray written = writeRtf(document);
    QVERIFY(written.contains("\\picwgoal100000\\pichgoal1000"));
    QTextDocument again;
    QVERIFY(readRtf(written, again).ok());
    QCOMPARE(writeRtf(again), written);
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, InsertRtfTest)
#include "insert_rtf_test.moc"
