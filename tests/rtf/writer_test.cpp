// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/format_properties.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "support/heard_progress.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

using namespace orvalis;
using namespace orvalis::rtf;

class WriterTest : public QObject {
    Q_OBJECT
private slots:
    void whatIsWrittenIsReadAgain();
    void theTablesHoldOnlyWhatIsUsed();
    void charactersBeyondThePageAreSignedNumbers();
    void numbersKeepTheDotThatTheyShow();
    void listsAreToldByTheListTablesToo();
    void bulletsOfEachIndentAreAListOfTheTables();
    void listsThatAreToldByTheListTablesAloneStayApart();
    void whatALabelHasNoRoomForIsLeftOut();
    void aRaisedTextEndsWithItsParagraph();
    void unassignedCodesOfThePageAreWrittenByNumber();
    void fontNamesOfMixedCharactersStay();
    void aFontNamedLikeAScriptKeepsItsName();
    void whoWaitsHearsHowMuchIsWritten();
    void oddFontNamesAreWrittenTheSameAgain_data();
    void oddFontNamesAreWrittenTheSameAgain();
};

void WriterTest::whatIsWrittenIsReadAgain() {
    const QByteArray source =
        "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil Arial;}{\\f1\\froman\\fcharset238 Times;}}"
        "{\\colortbl;\\red255\\green0\\blue0;}\\pard\\qc\\cf1\\b\\fs28 Title\\b0\\cf0\\fs20\\par"
        "\\pard{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1{\\pntxtb\\'B7}}\\fi-360\\li720 "
        "item\\par"
        "\\pard\\f1 \\'e8\\f0  {\\field{\\*\\fldinst{HYPERLINK \"http://a.b/\"}}{\\fldrslt{link}}}"
        "\\line x\\par}";
    QTextDocument document;
    QVERIFY(readRtf(source, document).ok());
    QCOMPARE(document.toPlainText(), QStringLiteral("Title\nitem\n\u010d link\nx"));
    const QByteArray written = writeRtf(document);
    QTextDocument again;
    QVERIFY(readRtf(written, again).ok());
    QCOMPARE(again.toPlainText(), document.toPlainText());
    QCOMPARE(writeRtf(again), written);
}

void WriterTest::theTablesHoldOnlyWhatIsUsed() {
    const QByteArray tables = "{\\rtf1\\deff1{\\fonttbl{\\f0 Arial;}{\\f1 Times;}{\\f2 Courier;}}"
                              "{\\*\\generator Any;}"
                              "{\\colortbl;\\red1\\green2\\blue3;\\red4\\green5\\blue6;}";
    const auto written = [&tables](const QByteArray& body) {
        QTextDocument document;
        readRtf(tables + body, document);
        return writeRtf(document);
    };
    QCOMPARE(written("\\f1 x\\par}"), QByteArray("{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1033"
                                                 "{\\fonttbl{\\f0\\fnil\\fcharset0 Times;}}\r\n"
                                                 "{\\*\\generator Orvalis;}\\viewkind4\\uc1"
                                                 "\\pard\\f0\\fs24 x\\par\r\n}\r\n"));
    QCOMPARE(written("\\f2\\cf2 x\\f1\\cf0 y\\par}"),
             QByteArray("{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1033"
                        "{\\fonttbl{\\f0\\fnil\\fcharset0 Times;}"
                        "{\\f1\\fnil\\fcharset0 Courier;}}\r\n"
                        "{\\colortbl ;\\red4\\green5\\blue6;}\r\n"
                        "{\\*\\generator Orvalis;}\\viewkind4\\uc1"
                        "\\pard\\cf1\\f1\\fs24 x\\cf0\\f0 y\\par\r\n}\r\n"));
}

void WriterTest::charactersBeyondThePageAreSignedNumbers() {
    const QTextDocument document(QStringLiteral("\u0436\u20ac\uf0b7") +
                                 QString::fromUcs4(U"\U0001f4a9"));
    QVERIFY(writeRtf(document).contains("\\u1078?\\'80\\u-3913?\\u-10179?\\u-9047?\\par"));
}

void WriterTest::numbersKeepTheDotThatTheyShow() {
    for (const char* suffix : {static_cast<const char*>(nullptr), "", ")"}) {
        QTextDocument document;
        QTextCursor cursor(&document);
        QTextListFormat numbers;
        numbers.setStyle(QTextListFormat::ListDecimal);
        if (suffix)
            numbers.setNumberSuffix(QString::fromLatin1(suffix));
        const QTextList* list = cursor.createList(numbers);
        cursor.insertText(QStringLiteral("item"));
        const QString shown = list->itemText(cursor.block());
        QCOMPARE(shown, u'1' + QString::fromLatin1(suffix ? suffix : "."));
        const QByteArray written = writeRtf(document);
        QTextDocument again;
        QVERIFY(readRtf(written, again).ok());
        QCOMPARE(again.begin().textList()->itemText(again.begin()), shown);
        QVERIFY(written.contains("{\\pntext " + shown.toLatin1() + "\\tab}"));
    }
}

namespace {

/// Takes the lists of a file for ones that the window has made.
void makeListsOwn(QTextDocument& document) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        if (QTextList* list = block.textList()) {
            QTextListFormat format = list->format();
            format.clearProperty(ListToldBy);
            list->setFormat(format);
        }
}

} // namespace

void WriterTest::listsAreToldByTheListTablesToo() {
    QTextDocument document;
    QVERIFY(readRtf("{\\rtf1{\\fonttbl{\\f0 Arial;}}\\f0"
                    "\\pard{\\*\\pn\\pnlvlblt}\\fi-360\\li720 a\\par"
                    "\\pard{\\*\\pn\\pnlvlbody\\pnstart3\\pnlcrm{\\pntxtb(}{\\pntxta)}}b\\par"
                    "\\pard{\\*\\pn\\pnlvlblt}\\fi-360\\li720 c\\par}",
                    document)
                .ok());
    makeListsOwn(document);
    const QByteArray written = writeRtf(document);
    const QByteArray tables =
        "{\\*\\listtable"
        "{\\list\\listtemplateid1\\listsimple"
        "{\\listlevel\\levelnfc23\\leveljc0\\levelfollow0\\levelstartat1"
        "{\\leveltext\\'01\\u8226?;}{\\levelnumbers;}\\fi-360\\li720}\\listid1}"
        "{\\list\\listtemplateid2\\listsimple"
        "{\\listlevel\\levelnfc2\\leveljc0\\levelfollow0\\levelstartat3"
        "{\\leveltext\\'03(\\'00);}{\\levelnumbers\\'02;}\\fi0\\li0}\\listid2}}\r\n"
        "{\\*\\listoverridetable"
        "{\\listoverride\\listid1\\listoverridecount0\\ls1}"
        "{\\listoverride\\listid2\\listoverridecount0\\ls2}}\r\n";
    QVERIFY2(written.contains(tables), written.constData());
    const QByteArray bullet = "{\\*\\pn\\pnlvlblt\\pnf1\\pnindent0{\\pntxtb\\'B7}}\\ls1\\ilvl0";
    QCOMPARE(written.count(bullet), 2);
    QVERIFY(written.contains("{\\*\\pn\\pnlvlbody\\pnindent0\\pnstart3\\pnlcrm"
                             "{\\pntxtb(}{\\pntxta)}}\\ls2\\ilvl0"));
}

void WriterTest::bulletsOfEachIndentAreAListOfTheTables() {
    QTextDocument document;
    QVERIFY(readRtf("{\\rtf1\\pard{\\*\\pn\\pnlvlblt}\\fi-360\\li720 a\\par"
                    "\\pard{\\*\\pn\\pnlvlblt}\\fi-360\\li1440 b\\par"
                    "\\pard{\\*\\pn\\pnlvlblt}\\fi-360\\li720 c\\par}",
                    document)
                .ok());
    makeListsOwn(document);
    const QByteArray written = writeRtf(document);
    QCOMPARE(written.count("{\\list\\"), 2);
    QVERIFY(written.contains("\\fi-360\\li720}\\listid1}"));
    QVERIFY(written.contains("\\fi-360\\li1440}\\listid2}"));
    QCOMPARE(written.count("}\\ls1\\ilvl0\\fi-360\\li720"), 2);
    QCOMPARE(written.count("}\\ls2\\ilvl0\\fi-360\\li1440"), 1);
}

void WriterTest::listsThatAreToldByTheListTablesAloneStayApart() {
    QTextDocument document;
    QVERIFY(readRtf("{\\rtf1{\\pard{\\*\\pn\\pnlvlbody\\pnucltr{\\pntxta.}}a\\par b\\par}"
                    "{\\pard between\\par}"
                    "{\\pard{\\*\\pn\\pnlvlbody\\pnucltr{\\pntxta.}}c\\par d\\par}"
                    "{\\pard{\\*\\pn\\pnlvlblt}e\\par}}",
                    document)
                .ok());
    makeListsOwn(document);
    QByteArray written = writeRtf(document);
    for (const QByteArray& head : {QByteArray("{\\pntext"), QByteArray("{\\*\\pn")}) {
        for (qsizetype at = written.indexOf(head); at >= 0; at = written.indexOf(head, at)) {
            qsizetype end = at;
            int depth = 0;
            do {
                const char c = written[end++];
                depth += c == '{' ? 1 : c == '}' ? -1 : 0;
            } while (depth > 0);
            written.remove(at, end - at);
        }
    }
    QVERIFY(!written.contains("\\pn"));
    QTextDocument again;
    QVERIFY(readRtf(written, again).ok());
    QStringList labels;
    for (QTextBlock block = again.begin(); block != again.lastBlock(); block = block.next())
        labels << (block.textList() ? block.textList()->itemText(block) : QString());
    QCOMPARE(labels, (QStringList{QStringLiteral("A."), QStringLiteral("B."), QString(),
                                  QStringLiteral("A."), QStringLiteral("B.")}));
    QCOMPARE(again.lastBlock().textList()->format().style(), QTextListFormat::ListDisc);
}

void WriterTest::whatALabelHasNoRoomForIsLeftOut() {
    QTextDocument document;
    QTextCursor cursor(&document);
    QTextListFormat numbers;
    numbers.setStyle(QTextListFormat::ListDecimal);
    numbers.setNumberPrefix(QStringLiteral("\u201ca\x01\tb\u2028c{"));
    // The sixtieth character would be the first half of one of two.
    numbers.setNumberSuffix(QString(59, u'd') + QString::fromUcs4(U"\U0001f4a9"));
    cursor.createList(numbers);
    // The first font holds where the labels are told, and its bytes mean other characters.
    QTextCharFormat symbols;
    symbols.setFontFamilies({QStringLiteral("Symbol")});
    cursor.insertText(QStringLiteral("item"), symbols);
    const QByteArray written = writeRtf(document);
    QTextDocument again;
    QVERIFY(readRtf(written, again).ok());
    const QTextListFormat kept = again.begin().textList()->format();
    QCOMPARE(kept.numberPrefix(), QStringLiteral("\u201cabc{"));
    QCOMPARE(kept.numberSuffix(), QString(59, u'd'));
    QCOMPARE(writeRtf(again), written);
}

void WriterTest::aRaisedTextEndsWithItsParagraph() {
    QTextDocument document;
    QVERIFY(readRtf("{\\rtf1{\\fonttbl{\\f0 Arial;}}\\f0 a\\super b\\par c\\par}", document).ok());
    QVERIFY(
        writeRtf(document).contains("a\\super b\\nosupersub\\par\r\n\\super c\\nosupersub\\par"));
}

void WriterTest::unassignedCodesOfThePageAreWrittenByNumber() {
    const QTextDocument document(QStringLiteral("\u0081\u009d\u00a0\u2122"));
    QVERIFY(writeRtf(document).contains("\\u129?\\u157?\\~\\'99\\par"));
}

void WriterTest::fontNamesOfMixedCharactersStay() {
    const QByteArray source = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 A"
                              "\\u1045?\\'82\\'84\\u1028?;}}\\f0 x\\par}";
    QTextDocument document;
    QVERIFY(readRtf(source, document).ok());
    QCOMPARE(document.begin().begin().fragment().charFormat().fontFamilies().toStringList(),
             QStringList{QStringLiteral("A\u0415\u201A\u201E\u0404")});
    const QByteArray written = writeRtf(document);
    QTextDocument again;
    QVERIFY(readRtf(written, again).ok());
    QCOMPARE(writeRtf(again), written);
}

void WriterTest::aFontNamedLikeAScriptKeepsItsName() {
    const QString name = QStringLiteral("GFS Greek");
    QTextDocument document;
    QTextCharFormat format;
    format.setFontFamilies({name});
    QTextCursor(&document).insertText(QStringLiteral("x"), format);
    QTextDocument again;
    QVERIFY(readRtf(writeRtf(document), again).ok());
    QCOMPARE(again.begin().begin().fragment().charFormat().fontFamilies().toStringList(),
             QStringList{name});
}

void WriterTest::whoWaitsHearsHowMuchIsWritten() {
    QTextDocument document;
    document.setPlainText(QStringLiteral("A line of a long text.\n").repeated(10000));
    test::HeardProgress heard;
    QCOMPARE(writeRtf(document, heard.hears()), writeRtf(document));
    QVERIFY(heard.roseInSteps(0.1));
    QVERIFY2(heard.times < 200, qPrintable(QString::number(heard.times)));
}

void WriterTest::oddFontNamesAreWrittenTheSameAgain_data() {
    QTest::addColumn<QByteArray>("fonts");
    QByteArray numbers;
    for (int i = 0; i < 200; ++i)
        numbers += "\\u233?";
    QTest::newRow("longer than a name is kept")
        << QByteArray("{\\f0 " + numbers + QByteArray(200, 'a') + "}");
    QTest::newRow("two scripts") << QByteArray("{\\f0 Face CE CE;}");
    QTest::newRow("a blank before the script") << QByteArray("{\\f0 Face  CE;}");
    QTest::newRow("what ends an entry, by its number") << QByteArray("{\\f0 A\\u59?;}{\\f1 A;}");
    QTest::newRow("what stands for a picture") << QByteArray("{\\f0 A\\u65532?;}{\\f1 A;}");
}

void WriterTest::oddFontNamesAreWrittenTheSameAgain() {
    QFETCH(QByteArray, fonts);
    QTextDocument document;
    QVERIFY(readRtf("{\\rtf1{\\fonttbl" + fonts + "}\\f0 x\\f1 y\\par}", document).ok());
    const QByteArray written = writeRtf(document);
    QTextDocument again;
    QVERIFY(readRtf(written, again).ok());
    QCOMPARE(writeRtf(again), written);
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, WriterTest)
#include "writer_test.moc"
