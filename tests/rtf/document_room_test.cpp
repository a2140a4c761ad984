// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/room/document_room.h"

#include "room_documents.h"
#include "rtf/reader.h"
#include "rtf/room/document_height.h"
#include "rtf/room/intake.h"
#include "support/test_main.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

using namespace orvalis;
using namespace orvalis::rtf;
using namespace orvalis::test;

class DocumentRoomTest : public QObject {
    Q_OBJECT
private slots:
    void whatIsReadCountsOnce();
    void whatIsTooHighEndsWhereItIsFull_data();
    void whatIsTooHighEndsWhereItIsFull();
    void aDocumentThatFitsIsReadWithoutFault();
    void insertionsCountTogether();
    void whatWentAwayMakesRoom();
    void insertionsWithinOneEditCountTogether();
    void undoBringsBackWhatItTook();
    void aFullDocumentTakesNothingMore();
    void aParagraphHasALargestLength();
    void eachParagraphMayHaveTheLargestLength();
    void paragraphsHaveALargestNumber();
    void charactersHaveALargestNumber();
    void fontsHaveALargestNumber();
    void aPictureCountsWithItsHeight();
    void noPairOfSurrogatesIsParted();
};

void DocumentRoomTest::whatIsReadCountsOnce() {
    QTextDocument document;
    document.documentLayout();
    QVERIFY(readRtf(repeated("Some words of a letter.\\par ", 2000), document).ok());
    const double taken = MostHeight - DocumentRoom::of(document).heightLeft(1);
    const double told = documentHeight(document);
    QVERIFY2(taken >= told && taken <= 1.1 * told,
             qPrintable(QStringLiteral("%1 of %2").arg(taken).arg(told)));
}

void DocumentRoomTest::whatIsTooHighEndsWhereItIsFull_data() {
    QTest::addColumn<QByteArray>("rtf");
    QTest::newRow("large letters in many lines a line")
        << QByteArray("{\\rtf1 0\\fs3276\\sl483648\\slmult1 se t C s y d a\\par}");
    QTest::newRow("margins") << repeated("\\sb100000 a\\par ", 4000);
    QTest::newRow("large paragraphs") << repeated("\\fs3276\\par ", 6000);
    QTest::newRow("empty paragraphs") << repeated("\\par ", 500'000);
    QTest::newRow("lines") << repeated("\\line ", 500'000);
    QTest::newRow("a long line") << repeated("word ", 400'000);
    QTest::newRow("a long word") << repeated("wordword", 250'000);
    QTest::newRow("tabs") << repeated("\\tab ", 500'000);
    QTest::newRow("no room") << repeated("\\li100000 words ", 100'000);
    QTest::newRow("long margins and high lines")
        << repeated("\\sb9000\\sa9000\\sl9000\\slmult1\\fs500 a\\par ", 2000);
}

void DocumentRoomTest::whatIsTooHighEndsWhereItIsFull() {
    QFETCH(QByteArray, rtf);
    QTextDocument document;
    QCOMPARE(readRtf(rtf, document).fault, Fault::TooLarge);
    QVERIFY(documentHeight(document) <= MostHeight);
    QVERIFY(document.characterCount() > 1);
    const double height = laidOutHeight(document);
    QVERIFY2(height <= EndlessHeight, qPrintable(QString::number(height)));
}

void DocumentRoomTest::aDocumentThatFitsIsReadWithoutFault() {
    QTextDocument document;
    const QByteArray line =
        "A line of the sort that people note down on each day of a year.\\par\r\n";
    constexpr int Lines = 15'000; // a million characters
    QVERIFY(readRtf("{\\rtf1\\fs20 " + line.repeated(Lines) + "}", document).ok());
    QCOMPARE(document.blockCount(), Lines);
}

void DocumentRoomTest::insertionsCountTogether() {
    QTextDocument document;
    document.documentLayout();
    const QByteArray piece = repeated("\\sb100000 a\\par ", 540); // half of what fits
    int whole = 0;
    for (int time = 0; time < 5; ++time) {
        QTextCursor cursor(&document);
        cursor.movePosition(QTextCursor::End);
        whole += insertRtf(piece, cursor).ok();
    }
    QCOMPARE(whole, 2);
    QVERIFY(documentHeight(document) <= MostHeight);
    QVERIFY(laidOutHeight(document) <= EndlessHeight);
}

void DocumentRoomTest::whatWentAwayMakesRoom() {
    QTextDocument document;
    document.documentLayout();
    const QByteArray piece = repeated("\\sb100000 a\\par ", 1000);
    for (int time = 0; time < 5; ++time) {
        QTextCursor cursor(&document);
        cursor.select(QTextCursor::Document);
        QVERIFY(insertRtf(piece, cursor).ok());
    }
}

void DocumentRoomTest::insertionsWithinOneEditCountTogether() {
    QTextDocument document;
    document.documentLayout();
    const QByteArray piece = repeated("\\sb100000 a\\par ", 540);
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    for (int time = 0; time < 5; ++time)
        insertRtf(piece, cursor);
    QVERIFY(documentHeight(document) <= MostHeight);
    cursor.endEditBlock();
    QVERIFY(laidOutHeight(document) <= EndlessHeight);
}

void DocumentRoomTest::undoBringsBackWhatItTook() {
    QTextDocument document;
    document.documentLayout();
    const QByteArray piece = repeated("\\sb100000 a\\par ", 540);
    for (int time = 0; time < 2; ++time) {
        QTextCursor cursor(&document);
        cursor.movePosition(QTextCursor::End);
        QVERIFY(insertRtf(piece, cursor).ok());
    }
    document.undo();
    document.redo();
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    QCOMPARE(insertRtf(piece, cursor).fault, Fault::TooLarge);
    QVERIFY(documentHeight(document) <= MostHeight);
}

void DocumentRoomTest::aFullDocumentTakesNothingMore() {
    QTextDocument document;
    readRtf(repeated("\\sb100000 a\\par ", 4000), document);
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    QVERIFY(!hasRoomFor(cursor, u"\r"));
    const int characters = document.characterCount();
    insertRtf(repeated("\\sb100000 a\\par ", 4), cursor);
    QVERIFY(document.characterCount() <= characters + 2);
    cursor.select(QTextCursor::BlockUnderCursor);
    QVERIFY(hasRoomFor(cursor, u"x"));
}

void DocumentRoomTest::aParagraphHasALargestLength() {
    QTextDocument document;
    const QByteArray rtf = "{\\rtf1\\fs2 " + QByteArray(LongestParagraph + 10, 'a') + "\\par b}";
    QCOMPARE(readRtf(rtf, document).fault, Fault::TooLarge);
    QCOMPARE(document.blockCount(), 1);
    QCOMPARE(document.firstBlock().length() - 1, LongestParagraph);
    QTextCursor cursor(&document);
    QCOMPARE(insertRtf("{\\rtf1 c}", cursor).fault, Fault::TooLarge);
    QCOMPARE(document.firstBlock().length() - 1, LongestParagraph);
}

void DocumentRoomTest::eachParagraphMayHaveTheLargestLength() {
    QTextDocument document;
    const QByteArray paragraph = QByteArray(LongestParagraph, ' ') + "\\par ";
    QVERIFY(readRtf("{\\rtf1\\fs2 " + paragraph.repeated(2) + "}", document).ok());
    QCOMPARE(document.characterCount(), 2 * (LongestParagraph + 1));
}

void DocumentRoomTest::paragraphsHaveALargestNumber() {
    QTextDocument document;
    QTextCursor cursor(&document);
    Intake intake(cursor);
    const ParagraphShape shape = paragraphShape({});
    int taken = 0;
    while (intake.takesParagraph({1, 1}, shape))
        ++taken;
    QCOMPARE(taken, MostParagraphs - 1);
}

void DocumentRoomTest::charactersHaveALargestNumber() {
    QTextDocument document;
    Intake intake{QTextCursor(&document)};
    const QString line(LongestParagraph, u'a');
    const ParagraphShape shape = paragraphShape({});
    qsizetype taken = 0;
    while (!intake.isFull()) {
        taken += intake.taken(line, {0.01, 0.01}, shape);
        taken += intake.takesParagraph({0.01, 0.01}, shape);
    }
    QVERIFY(taken <= MostCharacters);
    QVERIFY(taken > MostCharacters - LongestParagraph);
}

void DocumentRoomTest::fontsHaveALargestNumber() {
    constexpr int Fonts = 100'000;
    QByteArray rtf = "{\\rtf1{\\fonttbl";
    for (int i = 0; i < Fonts; ++i)
        rtf += "{\\f" + QByteArray::number(i) + " Family " + QByteArray::number(i) + ";}";
    rtf += '}';
    for (int i = 0; i < Fonts; ++i)
        rtf += "\\f" + QByteArray::number(i) + " a";
    QTextDocument document;
    QCOMPARE(readRtf(rtf + "}", document).fault, Fault::TooLarge);
    QCOMPARE(document.toPlainText(), QString(Fonts, u'a'));
    QSet<QString> families;
    for (const QTextFormat& format : document.allFormats())
        families.insert(format.toCharFormat().fontFamilies().toStringList().value(0));
    QVERIFY(families.size() <= MostFonts + 2);
    // Another one brings no more of them.
    QTextCursor cursor(&document);
    insertRtf("{\\rtf1{\\fonttbl{\\f0 Further;}}\\f0 b}", cursor);
    QVERIFY(document.toPlainText().startsWith(u'b'));
    QVERIFY(document.begin().begin().fragment().charFormat().fontFamilies().toStringList().value(
                0) != QStringLiteral("Further"));
}

void DocumentRoomTest::aPictureCountsWithItsHeight() {
    const QByteArray picture = "{\\pict\\picwgoal10\\pichgoal100000\\wmetafile8 010009000003} ";
    QTextDocument document;
    QCOMPARE(readRtf(repeated(picture, 2000), document).fault, Fault::TooLarge);
    const int taken = document.characterCount() - 1;
    // Each counts with the letters beside it, which may stand in one line more.
    QVERIFY2(taken > 1000 && taken < 1400, qPrintable(QString::number(taken)));
    QVERIFY(laidOutHeight(document) <= EndlessHeight);
}

void DocumentRoomTest::noPairOfSurrogatesIsParted() {
    const QString text = QStringLiteral("a\U0001F600b\U0001F600");
    QCOMPARE(wholeCharacters(text, 1), qsizetype(1));
    QCOMPARE(wholeCharacters(text, 2), qsizetype(1));
    QCOMPARE(wholeCharacters(text, 3), qsizetype(3));
    QCOMPARE(wholeCharacters(text, 5), qsizetype(4));
    QCOMPARE(wholeCharacters(text, 60), qsizetype(6));
    QCOMPARE(wholeCharacters(text, -1), qsizetype(0));
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, DocumentRoomTest)
#include "document_room_test.moc"
