// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "kept_file.h"
#include "sample_shapes.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextCursor>
#include <QTextDocument>

using namespace orvalis;
using namespace orvalis::rtf;
using orvalis::test::file;
using orvalis::test::pngBytes;
using orvalis::test::saved;
using orvalis::test::textOf;

/// Entries of an index and of a table of contents, which are text of the document unless hidden.
class IndexEntryTest : public QObject {
    Q_OBJECT
private slots:
    void anEntryStays_data();
    void anEntryStays();
    void anEntryThatIsMoreThanTextInALineIsText_data();
    void anEntryThatIsMoreThanTextInALineIsText();
    void whatIsTypedIntoAnEntryIsOfIt();
    void aHiddenEntryShowsNothing();
    void aHiddenEntryGoesWithWhatIsCopied();
};

void IndexEntryTest::anEntryStays_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("kept");
    const auto row = [](const char* name, const QByteArray& body, const QByteArray& kept) {
        QTest::newRow(name) << body << kept;
    };
    row("hidden in its group", "word{\\xe{\\v b}}c\\par",
        "deed{\\plain\\f0\\fs24{\\xe{\\v b}}}c\\par");
    row("hidden around it", "word{\\v{\\xe b\\:c}}d\\par",
        "deed{\\plain\\v\\f0\\fs24{\\xe b\\:c}}d\\par");
    row("hidden with other text", "word{\\v b{\\tc c}}d\\par",
        "\\v b{\\plain\\v\\f0\\fs24{\\tc c}}\\v0 d\\par");
    row("hidden, with its words", "word{\\tcn\\tcf67\\tcl2{\\v b}}c\\par",
        "deed{\\plain\\f0\\fs24{\\tcn\\tcf67\\tcl2{\\v b}}}c\\par");
    row("hidden, with what stands for its page", "word{\\xe{\\v b}{\\*\\txe{\\i see c}}}d\\par",
        "deed{\\plain\\f0\\fs24{\\xe{\\v b}{\\*\\txe{\\i see c}}}}d\\par");
    row("hidden in letters of another page", "word{\\f1\\xe{\\v\\'e0}}c\\par",
        "deed{\\plain\\f1\\fs24{\\xe{\\v\\u1072?}}}c\\par");
    row("hidden at the start of a paragraph", "{\\xe{\\v b}}word\\par",
        "\\pard{\\plain\\f0\\fs24{\\xe{\\v b}}}\\f0\\fs24 deed\\par");
    row("hidden in a link",
        "{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt word{\\xe{\\v b}}}}c\\par",
        "deed{\\plain\\f0\\fs24{\\xe{\\v b}}}}}\\f0\\fs24 c\\par");
    row("in the text", "word{\\xe b}c\\par", "deed{\\xe b}c\\par");
    row("in the text, with its words", "word{\\tc\\tcl3\\tcf9 b}c\\par",
        "deed{\\tc\\tcf9\\tcl3 b}c\\par");
    row("in the text, whose number is bold", "word{\\xe\\xef66\\bxe\\ixe b}c\\par",
        "deed{\\xe\\xef66\\bxe\\ixe b}c\\par");
    row("in the text, with what stands for its page", "word{\\xe b{\\*\\rxe mark}}d\\par",
        "deed{\\xe b{\\rxe mark}}d\\par");
    row("in the text, in its look", "word{\\xe\\b b}c\\par", "deed\\b{\\xe b}\\b0 c\\par");
    row("hidden behind an entry", "word{\\tc b}{\\xe{\\v c}}d\\par",
        "deed{\\tc b{\\plain\\f0\\fs24{\\xe{\\v c}}}}d\\par");
    row("behind an entry", "word{\\xe b}{\\xe c}d\\par", "deed{\\xe b}{\\xe c}d\\par");
    row("in the text of a cell", "\\trowd\\cellx99\\intbl word{\\xe b}\\cell\\row",
        "deed{\\xe b}\\cell\\row");
}

void IndexEntryTest::anEntryStays() {
    QFETCH(QByteArray, body);
    QFETCH(QByteArray, kept);
    const QByteArray written = saved(body);
    QVERIFY2(written.contains(kept), written.constData());
}

void IndexEntryTest::anEntryThatIsMoreThanTextInALineIsText_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const QByteArray& body, const QString& text) {
        QTest::newRow(name) << body << text;
    };
    row("with a paragraph's end", "word{\\tc b\\par c}", QStringLiteral("wordb\nc"));
    row("in a field", "{\\field{\\*\\fldinst QUOTE}{\\fldrslt word{\\tc b}}}c",
        QStringLiteral("wordbc"));
    row("in a link", "{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt word{\\tc b}}}c",
        QStringLiteral("wordbc"));
    row("with nothing but a picture", "word{\\tc{\\pict\\pngblip " + pngBytes().toHex() + "}}b",
        QStringLiteral("word\uFFFCb"));
}

void IndexEntryTest::anEntryThatIsMoreThanTextInALineIsText() {
    QFETCH(QByteArray, body);
    QFETCH(QString, text);
    QCOMPARE(textOf(body), text);
    const QByteArray written = saved(body);
    QVERIFY2(written.contains("deed") && !written.contains("{\\tc"), written.constData());
}

void IndexEntryTest::whatIsTypedIntoAnEntryIsOfIt() {
    QTextDocument document;
    QVERIFY(readRtf(file("a{\\xe bc}d\\par"), document).ok());
    QTextCursor cursor(&document);
    cursor.setPosition(2);
    cursor.insertText(QStringLiteral("x"));
    const QByteArray written = writeRtf(document);
    QVERIFY2(written.contains("a{\\xe bxc}d\\par"), written.constData());
}

void IndexEntryTest::aHiddenEntryShowsNothing() {
    QCOMPARE(textOf("a{\\xe{\\v b}}{\\v{\\tc c\\par}}d\\par"), QStringLiteral("ad"));
}

void IndexEntryTest::aHiddenEntryGoesWithWhatIsCopied() {
    QTextDocument document;
    QVERIFY(readRtf(file("ab{\\xe{\\v x}}c\\par"), document).ok());
    const QByteArray part = writeRtf(document, 1, 2);
    QVERIFY2(part.contains("{\\xe{\\v x}}"), part.constData());
    const QByteArray other = writeRtf(document, 0, 1);
    QVERIFY2(!other.contains("\\xe"), other.constData());
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, IndexEntryTest)
#include "index_entry_test.moc"
