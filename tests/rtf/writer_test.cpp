// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reader.h"
#include "rtf/writer.h"
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
    void fontNamesOfMixedCharactersStay();
    void aFontNamedLikeAScriptKeepsItsName();
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
    const QByteArray tables = "{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1 Times;}{\\f2 Courier;}}"
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
                        "{\\fonttbl{\\f0\\fnil\\fcharset0 Courier;}"
                        "{\\f1\\fnil\\fcharset0 Times;}}\r\n"
                        "{\\colortbl ;\\red4\\green5\\blue6;}\r\n"
                        "{\\*\\generator Orvalis;}\\viewkind4\\uc1"
                        "\\pard\\cf1\\f0\\fs24 x\\cf0\\f1 y\\par\r\n}\r\n"));
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
