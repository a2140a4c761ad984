// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/rich_text_box.h"
#include "rtf/room/document_room.h"
#include "shown_box.h"
#include "support/temporary_folder.h"
#include "support/test_main.h"

#include <QApplication>
#include <QTextBlock>

using namespace orvalis;
using namespace Qt::StringLiterals;
using namespace orvalis::test;

class HostileDocumentTest : public QObject {
    Q_OBJECT
private slots:
    void rtfOfAnyHeightIsShown_data();
    void rtfOfAnyHeightIsShown();
    void textOfAnyLengthIsShown_data();
    void textOfAnyLengthIsShown();
    void aTextFileOfFiftyMegabytesShowsItsBeginningAndIsKept();
    void anRtfFileThatIsTooLargeIsKept();
    void typingBehindRepeatedInsertionsIsShown();
    void insertedRtfEndsWhereTheDocumentIsFull();
    void insertionsInOneBatchEndWhereTheDocumentIsFull();
    void aFullDocumentTakesNoKeyUntilSomethingGoes();
    void undoOfAFullDocumentIsShown();
    void noSizeMakesTheDocumentTooHigh();
    void noFontOfTheBoxMakesTheDocumentTooHigh();
    void noIndentMakesTheDocumentTooHigh();
    void aLongWordIsShownWithWordWrapTurnedOffAndOn();
};

void HostileDocumentTest::rtfOfAnyHeightIsShown_data() {
    QTest::addColumn<QByteArray>("rtf");
    const auto row = [](const char* name, const QByteArray& head, const QByteArray& piece,
                        int times) {
        QTest::newRow(name) << "{\\rtf1 " + head + piece.repeated(times) + "}";
    };
    row("large letters with many lines a line", "0\\fs3276\\sl483648\\slmult1 ",
        "se t C s y d a\\par", 1);
    row("4,000 margins", "", "\\sb100000 a\\par ", 4000);
    row("6,000 empty paragraphs of large letters", "\\fs3276 ", "\\par ", 6000);
    row("500,000 empty paragraphs", "", "\\par ", 500'000);
    row("a line of two megabytes", "", "word ", 400'000);
    row("a word of two megabytes", "", "wordword", 250'000);
}

void HostileDocumentTest::rtfOfAnyHeightIsShown() {
    QFETCH(QByteArray, rtf);
    RichTextBox box;
    box.SetTextRTF(rtf);
    QVERIFY(!box.document()->isEmpty());
    showAndType(box);
    QVERIFY2(heightOf(box) < rtf::EndlessHeight, qPrintable(QString::number(heightOf(box))));
}

void HostileDocumentTest::textOfAnyLengthIsShown_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("empty paragraphs") << u"\r\n"_s.repeated(500'000);
    QTest::newRow("one word") << QString(2'000'000, u'a');
    QTest::newRow("words") << u"word "_s.repeated(400'000);
    QTest::newRow("blanks") << QString(2'000'000, u' ');
    QTest::newRow("blanks that do not break") << QString(2'000'000, QChar(QChar::Nbsp));
    QTest::newRow("tabs") << QString(2'000'000, u'\t');
    QTest::newRow("line breaks") << QString(2'000'000, QChar(QChar::LineSeparator));
    QTest::newRow("control characters") << QString(2'000'000, QChar(1));
    QTest::newRow("control characters and marks")
        << (QString(QChar(1)) + QChar(0x2401)).repeated(100'000);
    QTest::newRow("surrogates") << u"\U0001F600"_s.repeated(500'000);
    QTest::newRow("ligatures") << QString(500'000, QChar(0xFDFD));
}

void HostileDocumentTest::textOfAnyLengthIsShown() {
    QFETCH(QString, text);
    RichTextBox box;
    box.SetText(text);
    const QString shown = box.Text();
    QVERIFY(!shown.isEmpty());
    QVERIFY(text.replace(QChar(QChar::LineSeparator), u"\r\n"_s).startsWith(shown));
    showAndType(box);
    QVERIFY(heightOf(box) < rtf::EndlessHeight);
}

void HostileDocumentTest::aTextFileOfFiftyMegabytesShowsItsBeginningAndIsKept() {
    const TemporaryFolder folder;
    const QByteArray bytes = QByteArray("A line of a message.\r\n").repeated(2'300'000);
    const QString path = folder.write(u"Msg.txt"_s, bytes);
    RichTextBox box;
    box.files().LoadFile(path, RichTextBox::rtfText);
    QVERIFY(box.Text().startsWith(u"A line of a message.\r\nA line"));
    showAndType(box);
    box.files().SaveFile(path, RichTextBox::rtfText);
    QCOMPARE(QFileInfo(path + u".unreadable"_s).size(), bytes.size());
}

void HostileDocumentTest::anRtfFileThatIsTooLargeIsKept() {
    const TemporaryFolder folder;
    const QByteArray bytes = "{\\rtf1 " + QByteArray("\\sb100000 a\\par ").repeated(4000) + "}";
    const QString path = folder.write(u"Vazno.rtf"_s, bytes);
    RichTextBox box;
    box.files().LoadFile(path);
    QVERIFY(box.Text().startsWith(u"a\r\na"));
    box.files().SaveFile(path);
    QCOMPARE(folder.read(u"Vazno.rtf.unreadable"_s), bytes);
}

void HostileDocumentTest::typingBehindRepeatedInsertionsIsShown() {
    RichTextBox box;
    const QString text(400'000, u'a');
    for (int time = 0; time < 4; ++time) {
        box.SetSelText(text);
        QTest::keyClick(&box, Qt::Key_B);
    }
    QVERIFY(box.document()->firstBlock().length() - 1 <= rtf::LongestParagraph);
    showAndType(box);
}

void HostileDocumentTest::insertedRtfEndsWhereTheDocumentIsFull() {
    RichTextBox box;
    const QByteArray rtf = "{\\rtf1 " + QByteArray("\\sb100000 a\\par ").repeated(200) + "}";
    for (int time = 0; time < 10; ++time)
        box.SetSelRTF(rtf);
    showAndType(box);
    QVERIFY(heightOf(box) < rtf::EndlessHeight);
}

void HostileDocumentTest::insertionsInOneBatchEndWhereTheDocumentIsFull() {
    RichTextBox box;
    const QByteArray rtf = "{\\rtf1 " + QByteArray("\\sb100000 a\\par ").repeated(200) + "}";
    {
        const RichTextBox::Batch batch(box);
        for (int time = 0; time < 10; ++time)
            box.SetSelRTF(rtf);
    }
    showAndType(box);
    QVERIFY(heightOf(box) < rtf::EndlessHeight);
}

void HostileDocumentTest::aFullDocumentTakesNoKeyUntilSomethingGoes() {
    RichTextBox box;
    box.SetTextRTF("{\\rtf1 " + QByteArray("\\sb100000 a\\par ").repeated(4000) + "}");
    const QString full = box.Text();
    box.moveCursor(QTextCursor::End);
    for (int time = 0; time < 5; ++time)
        QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.Text(), full);
    for (int time = 0; time < 4; ++time)
        QTest::keyClick(&box, Qt::Key_Backspace);
    QTest::keyClick(&box, Qt::Key_B);
    QCOMPARE(box.Text().back(), QChar(u'b'));
}

void HostileDocumentTest::undoOfAFullDocumentIsShown() {
    RichTextBox box;
    const QByteArray rtf = "{\\rtf1 " + QByteArray("\\sb100000 a\\par ").repeated(400) + "}";
    box.SetSelRTF(rtf);
    box.selectAll();
    box.SetSelRTF(QByteArray("{\\rtf1 b}"));
    box.SetSelRTF(rtf);
    box.Undo();
    box.Undo();
    for (int time = 0; time < 3; ++time) {
        box.moveCursor(QTextCursor::End);
        box.SetSelRTF(rtf);
    }
    showAndType(box);
    QVERIFY(heightOf(box) < rtf::EndlessHeight);
}

void HostileDocumentTest::noSizeMakesTheDocumentTooHigh() {
    RichTextBox box;
    box.SetText(u"word "_s.repeated(20'000));
    box.selectAll();
    box.SetSelFontSize(1000);
    QVERIFY(*box.SelFontSize() > 8);
    showAndType(box);
    QVERIFY(heightOf(box) < rtf::EndlessHeight);
    RichTextBox small;
    small.SetText(u"word"_s);
    small.selectAll();
    small.SetSelFontSize(72);
    QCOMPARE(*small.SelFontSize(), 72.0);
    small.SetSelFontSize(1e8);
    QCOMPARE(*small.SelFontSize(), rtf::LargestPoints);
}

void HostileDocumentTest::noFontOfTheBoxMakesTheDocumentTooHigh() {
    RichTextBox box;
    box.SetText(u"word "_s.repeated(20'000));
    box.SetFontSize(1000);
    QVERIFY(box.FontSize() > 8 && box.FontSize() < 1000);
    showAndType(box);
    QVERIFY(heightOf(box) < rtf::EndlessHeight);
}

void HostileDocumentTest::noIndentMakesTheDocumentTooHigh() {
    RichTextBox box;
    box.SetText(u"word "_s.repeated(80'000));
    box.selectAll();
    box.SetSelIndent(300);
    QCOMPARE(*box.SelIndent(), 300);
    box.SetSelIndent(100'000);
    QCOMPARE(*box.SelIndent(), 300);
}

void HostileDocumentTest::aLongWordIsShownWithWordWrapTurnedOffAndOn() {
    RichTextBox box;
    box.SetText(QString(200'000, u'a'));
    box.SetWordWrap(false);
    box.grab();
    box.SetWordWrap(true);
    QCOMPARE(box.document()->defaultTextOption().wrapMode(), QTextOption::WrapAnywhere);
    showAndType(box);
    box.SetText(u"short"_s);
    QCOMPARE(box.document()->defaultTextOption().wrapMode(),
             QTextOption::WrapAtWordBoundaryOrAnywhere);
}

ORVALIS_TEST_MAIN_WITH(QApplication, HostileDocumentTest)
#include "hostile_document_test.moc"
