// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/characters/bullet_sign.h"
#include "rtf/formats/list_formats.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

using namespace orvalis::rtf;

namespace {

QByteArray fileOf(const QByteArray& text) {
    return "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset2 Symbol;}"
           "{\\f2\\fcharset2 Wingdings;}{\\f3 Courier New;}}" +
           text + '}';
}

/// An item of a list of the tables.
/// \param level what tells of its label, and of the font of that.
QByteArray listed(const QByteArray& level) {
    return fileOf("{\\*\\listtable{\\list{\\listlevel\\levelnfc23" + level +
                  "\\fi-360\\li720}\\listid7}}{\\*\\listoverridetable{\\listoverride\\listid7"
                  "\\listoverridecount0\\ls1}}\\pard\\ls1\\fi-360\\li720 item\\par");
}

QString labelOfFirst(const QByteArray& rtf) {
    QTextDocument document;
    readRtf(rtf, document);
    return shownLabel(document.firstBlock());
}

const QString Dot = QStringLiteral("\u2022");

} // namespace

class BulletSignTest : public QObject {
    Q_OBJECT
private slots:
    void everySignIsShownAsItIsMeant_data();
    void everySignIsShownAsItIsMeant();
    void anItemShowsTheSignOfItsFile_data();
    void anItemShowsTheSignOfItsFile();
    void theSignIsWrittenAgain_data();
    void theSignIsWrittenAgain();
    void bulletsOfTheWindowThatHaveASignAreAListOfTheirOwn();
};

void BulletSignTest::everySignIsShownAsItIsMeant_data() {
    QTest::addColumn<QString>("label");
    QTest::addColumn<int>("font");
    QTest::addColumn<QString>("sign");
    const auto row = [](const char* name, const QString& label, SymbolFont font,
                        const QString& sign) { QTest::newRow(name) << label << int(font) << sign; };
    row("letter", QStringLiteral("o"), SymbolFont::None, QStringLiteral("o"));
    row("dash", QStringLiteral("\u2013"), SymbolFont::None, QStringLiteral("\u2013"));
    row("the usual dot", Dot, SymbolFont::None, {});
    row("middle dot", QStringLiteral("\u00b7"), SymbolFont::None, {});
    row("dot of Symbol", QStringLiteral("\u00b7"), SymbolFont::Symbol, {});
    row("dot of Symbol by its byte", QStringLiteral("\uf0b7"), SymbolFont::Symbol, {});
    row("sign of Symbol", QStringLiteral("\u00a8"), SymbolFont::Symbol, QStringLiteral("\u2666"));
    row("square", QStringLiteral("\u00a7"), SymbolFont::Wingdings, QStringLiteral("\u25aa"));
    row("square by its byte", QStringLiteral("\uf0a7"), SymbolFont::Wingdings,
        QStringLiteral("\u25aa"));
    row("arrow head", QStringLiteral("\u00d8"), SymbolFont::Wingdings, QStringLiteral("\u27a2"));
    row("sign that few fonts have", QStringLiteral("\u00e0"), SymbolFont::Wingdings, {});
    row("sign of a late block", QStringLiteral("s"), SymbolFont::Wingdings, {});
    row("box", QStringLiteral("o"), SymbolFont::Wingdings, QStringLiteral("\u25a1"));
    row("bold box", QStringLiteral("p"), SymbolFont::Wingdings, QStringLiteral("\u25a1"));
    row("light box", QStringLiteral("\u00a8"), SymbolFont::Wingdings, QStringLiteral("\u25a1"));
    row("diamond", QStringLiteral("w"), SymbolFont::Wingdings, QStringLiteral("\u25c6"));
    row("circle", QStringLiteral("\u00a1"), SymbolFont::Wingdings, QStringLiteral("\u25cb"));
    row("bold circle", QStringLiteral("\u00a2"), SymbolFont::Wingdings, QStringLiteral("\u25cb"));
    row("crossed box", QStringLiteral("\u00fd"), SymbolFont::Wingdings, QStringLiteral("\u2612"));
    row("ticked box", QStringLiteral("\u00fe"), SymbolFont::Wingdings, QStringLiteral("\u2611"));
    row("byte of an unknown font", QStringLiteral("\uf0b7"), SymbolFont::None, {});
    row("two signs", QStringLiteral("--"), SymbolFont::None, {});
    row("one among blanks", QStringLiteral(" - "), SymbolFont::None, QStringLiteral("-"));
    row("half of a character", QString(QChar(char16_t(0xd83d))), SymbolFont::None, {});
    row("no sign", QStringLiteral("\u0001"), SymbolFont::None, {});
    row("nothing", {}, SymbolFont::None, {});
}

void BulletSignTest::everySignIsShownAsItIsMeant() {
    QFETCH(QString, label);
    QFETCH(int, font);
    QTEST(bulletSign(label, static_cast<SymbolFont>(font)), "sign");
}

void BulletSignTest::anItemShowsTheSignOfItsFile_data() {
    QTest::addColumn<QByteArray>("rtf");
    QTest::addColumn<QString>("label");
    const auto row = [](const char* name, const QByteArray& rtf, const QString& label) {
        QTest::newRow(name) << rtf << label;
    };
    row("level, font behind it", listed("{\\leveltext\\'01\\u-3929 ?;}{\\levelnumbers;}\\f2"),
        QStringLiteral("\u25aa"));
    row("level, font ahead of it", listed("\\f2{\\leveltext\\'01\\'a7;}{\\levelnumbers;}"),
        QStringLiteral("\u25aa"));
    row("level, box", listed("{\\leveltext\\'01o;}{\\levelnumbers;}\\f2"),
        QStringLiteral("\u25a1"));
    row("level, letter", listed("{\\leveltext\\'01o;}{\\levelnumbers;}\\f3"), QStringLiteral("o"));
    row("level, the usual dot", listed("{\\leveltext\\'01\\u-3913 ?;}{\\levelnumbers;}\\f1"), Dot);
    row("a font of signs ends with its level",
        listed("{\\leveltext\\'01\\'a7;}\\f2}{\\listlevel\\levelnfc23{\\leveltext\\'01\\'a7;}")
            .replace("\\ls1\\fi", "\\ls1\\ilvl1\\fi"),
        QStringLiteral("\u00a7"));
    row("\\pn", fileOf("\\pard{\\*\\pn\\pnlvlblt\\pnf2{\\pntxtb\\'a7}}item\\par"),
        QStringLiteral("\u25aa"));
    row("\\pn, dash", fileOf("\\pard{\\*\\pn\\pnlvlblt{\\pntxtb -}}item\\par"),
        QStringLiteral("-"));
    row("\\pn, the usual dot", fileOf("\\pard{\\*\\pn\\pnlvlblt\\pnf1{\\pntxtb\\'b7}}item\\par"),
        Dot);
    row("\\pn without a sign", fileOf("\\pard{\\*\\pn\\pnlvlblt}item\\par"), Dot);
    row("label in text", fileOf("\\pard{\\pntext\\f2\\'a7\\tab}item\\par"),
        QStringLiteral("\u25aa"));
    row("label in text, letter", fileOf("\\pard{\\pntext\\f3 o\\tab}item\\par"),
        QStringLiteral("o"));
}

void BulletSignTest::anItemShowsTheSignOfItsFile() {
    QFETCH(QByteArray, rtf);
    QTEST(labelOfFirst(rtf), "label");
}

void BulletSignTest::theSignIsWrittenAgain_data() {
    anItemShowsTheSignOfItsFile_data();
}

void BulletSignTest::theSignIsWrittenAgain() {
    QFETCH(QByteArray, rtf);
    QTextDocument document;
    readRtf(rtf, document);
    const QByteArray written = writeRtf(document);
    QTEST(labelOfFirst(written), "label");
    QTextDocument again;
    readRtf(written, again);
    QCOMPARE(writeRtf(again), written);
}

void BulletSignTest::bulletsOfTheWindowThatHaveASignAreAListOfTheirOwn() {
    QTextDocument document;
    QTextCursor cursor(&document);
    QTextListFormat format;
    format.setStyle(QTextListFormat::ListDisc);
    format.setIndent(0);
    cursor.insertText(QStringLiteral("a"));
    cursor.createList(format);
    cursor.insertBlock(QTextBlockFormat());
    cursor.insertText(QStringLiteral("b"));
    format.setNumberPrefix(QStringLiteral("-"));
    cursor.createList(format);
    const QByteArray written = writeRtf(document);
    QVERIFY2(written.contains("{\\leveltext\\'01\\u8226?;}{\\levelnumbers;}"), written);
    QVERIFY2(written.contains("{\\leveltext\\'01-;}{\\levelnumbers;}"), written);
    QVERIFY2(written.contains("{\\pntext -\\tab}"), written);
    QCOMPARE(labelOfFirst(written), Dot);
    QTextDocument again;
    readRtf(written, again);
    QCOMPARE(shownLabel(again.lastBlock()), QStringLiteral("-"));
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, BulletSignTest)
#include "bullet_sign_test.moc"
