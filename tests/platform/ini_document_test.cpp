// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/ini_document.h"

#include "platform/ini_value.h"
#include "support/test_main.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace orvalis;

namespace {

IniDocument parsed(const QByteArray& bytes) {
    return IniDocument::parse(bytes).value_or(IniDocument());
}

QString textOf(const QByteArray& bytes, QStringView section, QStringView name) {
    const auto value = parsed(bytes).value(section, name);
    return value ? value->text : u"(none)"_s;
}

} // namespace

class IniDocumentTest : public QObject {
    Q_OBJECT
private slots:
    void everyTextComesBack_data();
    void everyTextComesBack();
    void plainTextsAreWrittenPlainly_data();
    void plainTextsAreWrittenPlainly();
    void everyNameComesBack_data();
    void everyNameComesBack();
    void otherTypesComeBack();
    void aFileWrittenByHandIsRead_data();
    void aFileWrittenByHandIsRead();
    void aDamagedValueIsNoValue_data();
    void aDamagedValueIsNoValue();
    void bytesThatAreNoTextAreNoDocument();
    void namesAreComparedWithoutCase();
    void theFirstOfTwoEqualNamesCounts();
    void aChangeLeavesEveryOtherLineAsItWas();
    void aNewValueGoesToTheEndOfItsSection();
    void aNewSectionStandsApart();
    void removingTakesEveryLineOfTheName();
};

void IniDocumentTest::everyTextComesBack_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << u""_s;
    QTest::newRow("plain") << u"Arial"_s;
    QTest::newRow("blank inside") << u"Times New Roman"_s;
    QTest::newRow("comma") << u"Arial, bold, 8"_s;
    QTest::newRow("at") << u"@Arial Unicode"_s;
    QTest::newRow("at with call") << u"@Variant(\\0\\0)"_s;
    QTest::newRow("equals") << u"a=b"_s;
    QTest::newRow("quotes") << u"the \"Arial\" face"_s;
    QTest::newRow("quotes around") << u"\"Arial\""_s;
    QTest::newRow("one quote") << u"\""_s;
    QTest::newRow("semicolon") << u"; no comment"_s;
    QTest::newRow("hash") << u"#1"_s;
    QTest::newRow("brackets") << u"[Reg]"_s;
    QTest::newRow("backslashes") << u"C:\\Program Files\\dialer.exe"_s;
    QTest::newRow("backslash at the end") << u"C:\\"_s;
    QTest::newRow("percent") << u"%20 %n"_s;
    QTest::newRow("blanks around") << u"  x  "_s;
    QTest::newRow("only blanks") << u"   "_s;
    QTest::newRow("line breaks") << u"a\r\nb\nc\rd"_s;
    QTest::newRow("tab") << u"a\tb"_s;
    QTest::newRow("NUL") << QString(u"a\0b"_s);
    QTest::newRow("control characters") << u"\u0001\u007F\u0085\u009F"_s;
    QTest::newRow("Cyrillic") << u"Новости Ђ"_s;
    QTest::newRow("Japanese") << u"ＭＳ 明朝"_s;
    QTest::newRow("outside the base plane") << u"😀"_s;
    QTest::newRow("half a character") << QString(QChar(0xD83D));
    QTest::newRow("byte-order mark") << u"\uFEFFx"_s;
    QTest::newRow("line separator") << u"a\u2028b"_s;
    QTest::newRow("no-break blank around") << u"\u00A0x\u00A0"_s;
    QTest::newRow("like a number") << u"dword:00000001"_s;
    QTest::newRow("like bytes") << u"HEX(3):00"_s;
    QTest::newRow("like an expandable text") << u"expand:\"x\""_s;
    QTest::newRow("long") << QString(100000, u'x');
}

void IniDocumentTest::everyTextComesBack() {
    QFETCH(QString, text);
    IniDocument document;
    document.setValue(u"RT1"_s, u"FN"_s, StoredValue::string(text));
    const auto again = IniDocument::parse(document.bytes());
    QVERIFY(again.has_value());
    QCOMPARE(again->value(u"RT1", u"FN"), std::optional(StoredValue::string(text)));
    QCOMPARE(again->sections(), QStringList{u"RT1"_s});
}

void IniDocumentTest::plainTextsAreWrittenPlainly_data() {
    QTest::addColumn<QString>("text");
    for (const auto& text :
         {u"1"_s, u"True"_s, u"Arial, bold"_s, u"@x"_s, u"a=\"b\""_s, u"C:\\x"_s, u"Ђ"_s, u"; x"_s})
        QTest::newRow(qPrintable(text)) << text;
}

void IniDocumentTest::plainTextsAreWrittenPlainly() {
    QFETCH(QString, text);
    IniDocument document;
    document.setValue(u"Reg"_s, u"1st"_s, StoredValue::string(text));
    QCOMPARE(QString::fromUtf8(document.bytes()), u"[Reg]\n1st="_s + text + u'\n');
}

void IniDocumentTest::everyNameComesBack_data() {
    QTest::addColumn<QString>("name");
    for (const auto& name :
         {u"1st"_s, u"a b"_s, u"a=b"_s, u"[x]"_s, u"x]"_s, u";x"_s, u"#x"_s, u"\"x\""_s, u""_s,
          u" x "_s, u"a\nb"_s, u"Ђ"_s, u"a\\b"_s, u"a\"=\"b"_s, u"\uFEFFx"_s})
        QTest::newRow(qPrintable(name)) << name;
}

void IniDocumentTest::everyNameComesBack() {
    QFETCH(QString, name);
    IniDocument document;
    document.setValue(u"Reg"_s, name, StoredValue::string(u"value"_s));
    document.setValue(QString(), name, StoredValue::string(u"first"_s));
    document.setValue(u"x\\"_s + name, u"1st"_s, StoredValue::string(u"in it"_s));
    const IniDocument again = parsed(document.bytes());
    QCOMPARE(again.value(u"Reg", name), std::optional(StoredValue::string(u"value"_s)));
    QCOMPARE(again.value(u"x\\"_s + name, u"1st"), std::optional(StoredValue::string(u"in it"_s)));
}

void IniDocumentTest::otherTypesComeBack() {
    IniDocument document;
    const StoredValue expandable{REG_EXPAND_SZ, u"%HOME%, \"x\""_s, 0, {}};
    const StoredValue bytes{REG_BINARY, {}, 0, QByteArray("\x00\xFF\x10", 3)};
    const StoredValue unknown{11, {}, 0, {}};
    document.setValue(u"Reg"_s, u"number"_s, StoredValue::doubleWord(0xFFFFFFFF));
    document.setValue(u"Reg"_s, u"expandable"_s, expandable);
    document.setValue(u"Reg"_s, u"bytes"_s, bytes);
    document.setValue(u"Reg"_s, u"unknown"_s, unknown);
    const IniDocument again = parsed(document.bytes());
    QCOMPARE(again.value(u"Reg", u"number"), std::optional(StoredValue::doubleWord(0xFFFFFFFF)));
    QCOMPARE(again.value(u"Reg", u"expandable"), std::optional(expandable));
    QCOMPARE(again.value(u"Reg", u"bytes"), std::optional(bytes));
    QCOMPARE(again.value(u"Reg", u"unknown"), std::optional(unknown));
}

void IniDocumentTest::aFileWrittenByHandIsRead_data() {
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char* name, const QByteArray& bytes) {
        QTest::newRow(name) << bytes;
    };
    row("plain", "[Reg]\nStart=1\n");
    row("no last line end", "[Reg]\nStart=1");
    row("CR LF", "[Reg]\r\nStart=1\r\n");
    row("blanks", "  [ Reg ]  \n\t Start =  1 \n");
    row("mark", "\xEF\xBB\xBF[Reg]\nStart=1\n");
    row("comments", "; one\n# two\n\n[Reg]\n;Start=2\nStart=1\n");
    row("quoted", "[Reg]\n\"Start\"=\"1\"\n");
    row("other lines", "nonsense\n[Reg]\nStart\n=\nStart=1\n");
    row("section twice", "[Reg]\n1st=True\n[RT1]\nFN=x\n[Reg]\nStart=1\n");
    row("a broken header", "[Reg\n[Reg]\nStart=1\n");
}

void IniDocumentTest::aFileWrittenByHandIsRead() {
    QFETCH(QByteArray, bytes);
    QCOMPARE(textOf(bytes, u"Reg", u"Start"), u"1"_s);
}

void IniDocumentTest::aDamagedValueIsNoValue_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("quote never closed") << QByteArray("Start=\"1");
    QTest::newRow("one quote") << QByteArray("Start=\"");
    QTest::newRow("text behind the quote") << QByteArray("Start=\"1\"2");
    QTest::newRow("escape at the end") << QByteArray("Start=\"1\\\"");
    QTest::newRow("unknown escape") << QByteArray("Start=\"\\q\"");
    QTest::newRow("short code") << QByteArray("Start=\"\\u12\"");
    QTest::newRow("no number") << QByteArray("Start=dword:");
    QTest::newRow("letters for a number") << QByteArray("Start=dword:zz");
    QTest::newRow("number too long") << QByteArray("Start=dword:000000001");
    QTest::newRow("no type") << QByteArray("Start=hex():00");
    QTest::newRow("type never closed") << QByteArray("Start=hex(3");
    QTest::newRow("too large a byte") << QByteArray("Start=hex(3):100");
    QTest::newRow("empty byte") << QByteArray("Start=hex(3):00,,00");
    QTest::newRow("expandable without quotes") << QByteArray("Start=expand:x");
    QTest::newRow("NUL") << QByteArray("Start=\0\0\0", 9);
    QTest::newRow("no equals sign") << QByteArray("Start 1");
    QTest::newRow("broken name") << QByteArray("\"Start=1");
}

void IniDocumentTest::aDamagedValueIsNoValue() {
    QFETCH(QByteArray, line);
    const IniDocument document = parsed("[Reg]\n" + line + "\n1st=True\n");
    QVERIFY(!document.value(u"Reg", u"Start").has_value());
    QCOMPARE(document.value(u"Reg", u"1st"), std::optional(StoredValue::string(u"True"_s)));
}

void IniDocumentTest::bytesThatAreNoTextAreNoDocument() {
    QVERIFY(!IniDocument::parse("[Reg]\nStart=\xFF\n").has_value());
    QVERIFY(!IniDocument::parse("[Reg]\nStart=\xC3").has_value());
    QVERIFY(IniDocument::parse("").has_value());
}

void IniDocumentTest::namesAreComparedWithoutCase() {
    QCOMPARE(textOf("[REG]\nstart=1\n", u"Reg", u"Start"), u"1"_s);
    IniDocument document = parsed("[REG]\nstart=1\n");
    document.setValue(u"Reg"_s, u"Start"_s, StoredValue::string(u"0"_s));
    QCOMPARE(document.bytes(), QByteArray("[REG]\nStart=0\n"));
}

void IniDocumentTest::theFirstOfTwoEqualNamesCounts() {
    QCOMPARE(textOf("[Reg]\nStart=1\nStart=2\n[Reg]\nStart=3\n", u"Reg", u"Start"), u"1"_s);
}

void IniDocumentTest::aChangeLeavesEveryOtherLineAsItWas() {
    IniDocument document =
        parsed("; mine\n\n[Other]\n  odd line\nx = 1\n[Reg]\n# why\nStart = 1\n1st=True\n\n");
    document.setValue(u"Reg"_s, u"Start"_s, StoredValue::string(u"0"_s));
    QCOMPARE(document.bytes(), QByteArray("; mine\n\n[Other]\n  odd line\nx = 1\n[Reg]\n# why\n"
                                          "Start=0\n1st=True\n\n"));
}

void IniDocumentTest::aNewValueGoesToTheEndOfItsSection() {
    IniDocument document = parsed("[Reg]\nStart=1\n\n[RT1]\nFN=Arial\n");
    document.setValue(u"Reg"_s, u"1st"_s, StoredValue::string(u"True"_s));
    QCOMPARE(document.bytes(), QByteArray("[Reg]\nStart=1\n1st=True\n\n[RT1]\nFN=Arial\n"));
    document.setValue(QString(), u"top"_s, StoredValue::string(u"x"_s));
    QVERIFY(document.bytes().startsWith("top=x\n[Reg]\n"));
    QCOMPARE(parsed(document.bytes()).value(u"", u"top")->text, u"x"_s);
}

void IniDocumentTest::aNewSectionStandsApart() {
    IniDocument document;
    document.setValue(u"Reg"_s, u"Start"_s, StoredValue::string(u"1"_s));
    document.setValue(u"RT1"_s, u"FN"_s, StoredValue::string(u"Arial"_s));
    QCOMPARE(document.bytes(), QByteArray("[Reg]\nStart=1\n\n[RT1]\nFN=Arial\n"));
}

void IniDocumentTest::removingTakesEveryLineOfTheName() {
    IniDocument document = parsed("[Reg]\nStart=1\n1st=True\nstart=2\n");
    document.removeValue(u"Reg", u"Start");
    document.removeValue(u"Reg", u"missing");
    QCOMPARE(document.bytes(), QByteArray("[Reg]\n1st=True\n"));
}

ORVALIS_TEST_MAIN_WITH(QCoreApplication, IniDocumentTest)
#include "ini_document_test.moc"
