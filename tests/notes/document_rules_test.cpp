// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/document_rules.h"

#include "controls/rich_text_box.h"
#include "runtime/app.h"
#include "support/temporary_folder.h"
#include "support/test_main.h"

#include <QApplication>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

class DocumentRulesTest : public QObject {
    Q_OBJECT
private slots:
    void theLastLetterAloneTellsRichTextFromPlain_data();
    void theLastLetterAloneTellsRichTextFromPlain();
    void theDocumentsOfTheProgramAreNeededInTheseVeryLetters();
    void theQuestionNamesTheFileInItsFirstLine();
    void aTitleThatBeginsWithUntitledInAnyCapitalsIsNotMailed_data();
    void aTitleThatBeginsWithUntitledInAnyCapitalsIsNotMailed();
    void aSelectionOfSeveralParagraphsGivesItsFirstLine();
    void theKindSaysWhetherDateTimeOrBothAreWritten();
};

void DocumentRulesTest::theLastLetterAloneTellsRichTextFromPlain_data() {
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("flags");
    QTest::newRow("notes.rtf") << u"notes.rtf"_s << 0;
    QTest::newRow("capitals") << u"NOTES.RTF"_s << 0;
    QTest::newRow("notes.pdf") << u"notes.pdf"_s << 0;
    QTest::newRow("x.F") << u"x.F"_s << 0;
    QTest::newRow("no extension") << u"leaf"_s << 0;
    QTest::newRow("notes.txt") << u"notes.txt"_s << 1;
    QTest::newRow("rtf in the middle") << u"notes.rtf.bak"_s << 1;
    QTest::newRow("a dot at the end") << u"notes.rtf."_s << 1;
    QTest::newRow("a blank at the end") << u"notes.rtf "_s << 1;
    QTest::newRow("no title") << QString() << 1;
}

void DocumentRulesTest::theLastLetterAloneTellsRichTextFromPlain() {
    QFETCH(QString, title);
    QTEST(documentFlags(title), "flags");
}

void DocumentRulesTest::theDocumentsOfTheProgramAreNeededInTheseVeryLetters() {
    const TemporaryFolder folder;
    const App app(folder.file(u"orvalis"_s), folder.file(u"data"_s), {});
    QVERIFY(isNeededFile(app.file(u"Vazno.rtf"_s), app));
    QVERIFY(isNeededFile(app.file(u"weekly.rtf"_s), app));
    QVERIFY(!isNeededFile(app.file(u"vazno.rtf"_s), app));
    QVERIFY(!isNeededFile(app.file(u"Weekly.rtf"_s), app));
    QVERIFY(!isNeededFile(app.file(u"notes.rtf"_s), app));
    QVERIFY(!isNeededFile(u"Vazno.rtf"_s, app));
}

void DocumentRulesTest::theQuestionNamesTheFileInItsFirstLine() {
    QCOMPARE(replaceQuestion(u"/home/me/a.rtf"_s),
             u"The File /home/me/a.rtf already exists.\nDo you want to replace it?"_s);
}

void DocumentRulesTest::aTitleThatBeginsWithUntitledInAnyCapitalsIsNotMailed_data() {
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("mayBe");
    QTest::newRow("a file") << u"a.txt"_s << u"/a.txt"_s << true;
    QTest::newRow("without a path") << u"a.rtf"_s << QString() << false;
    QTest::newRow("Untitled") << u"Untitled"_s << u"/a.txt"_s << false;
    QTest::newRow("Untitled-2.rtf") << u"Untitled-2.rtf"_s << u"/Untitled-2.rtf"_s << false;
    QTest::newRow("uNTITLED.txt") << u"uNTITLED.txt"_s << u"/uNTITLED.txt"_s << false;
    QTest::newRow("seven letters of it") << u"Untitle.txt"_s << u"/Untitle.txt"_s << true;
    QTest::newRow("further on") << u"my untitled.txt"_s << u"/my untitled.txt"_s << true;
}

void DocumentRulesTest::aTitleThatBeginsWithUntitledInAnyCapitalsIsNotMailed() {
    QFETCH(QString, title);
    QFETCH(QString, path);
    QTEST(mayBeMailed(title, path), "mayBe");
}

void DocumentRulesTest::aSelectionOfSeveralParagraphsGivesItsFirstLine() {
    QCOMPARE(firstLine(u"one"_s), u"one"_s);
    QCOMPARE(firstLine(u"one\r\ntwo\r\nthree"_s), u"one"_s);
    QCOMPARE(firstLine(u"\r\ntwo"_s), QString());
    QCOMPARE(firstLine({}), QString());
}

void DocumentRulesTest::theKindSaysWhetherDateTimeOrBothAreWritten() {
    QCOMPARE(dateAndTime(1, u"today"_s, u"now"_s), u"today"_s);
    QCOMPARE(dateAndTime(2, u"today"_s, u"now"_s), u"now"_s);
    QCOMPARE(dateAndTime(3, u"today"_s, u"now"_s), u"today / now"_s);
    QCOMPARE(dateAndTime(0, u"today"_s, u"now"_s), QString());
    QCOMPARE(dateAndTime(4, u"today"_s, u"now"_s), QString());
}

ORVALIS_TEST_MAIN_WITH(QApplication, DocumentRulesTest)
#include "document_rules_test.moc"
