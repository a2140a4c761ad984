// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "kept_file.h"
#include "sample_shapes.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

using namespace orvalis;
using namespace orvalis::rtf;
using orvalis::test::file;
using orvalis::test::pngBytes;
using orvalis::test::saved;
using orvalis::test::textOf;

namespace {

const QByteArray Authors = "{\\*\\revtbl{Unknown;}{Ann;}}";

} // namespace

/// What a file tells of changes that somebody is still to agree to.
class TrackedChangesTest : public QObject {
    Q_OBJECT
private slots:
    void textThatCameInKeepsWhoAndWhen_data();
    void textThatCameInKeepsWhoAndWhen();
    void theEndOfAParagraphThatIsNoItemAnyMoreIsPlain();
    void placesBetweenWhichTextWasMovedStay();
    void whoChangedIsLeftOutWhereNobodyIsNamed();
    void textThatWasTakenOutDoesNotShow_data();
    void textThatWasTakenOutDoesNotShow();
    void textThatWasTakenOutStays_data();
    void textThatWasTakenOutStays();
    void whatIsMoreThanTextIsNotKept_data();
    void whatIsMoreThanTextIsNotKept();
    void textThatWasTakenOutGoesWithWhatIsCopied();
    void whatComesFromAnotherDocumentHasNoAuthors();
};

void TrackedChangesTest::textThatCameInKeepsWhoAndWhen_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("kept");
    const auto row = [](const char* name, const QByteArray& body, const QByteArray& kept) {
        QTest::newRow(name) << body << kept;
    };
    row("text", "a {\\revised\\revauth1\\revdttm-99 word}b\\par",
        "a {\\revised\\revauth1\\revdttm-99 deed}b\\par");
    row("text of another look", "word{\\lang1031{\\crauth1\\crdate5 b}c}\\par",
        "deed{\\lang1031\\crauth1\\crdate5 b}\\lang1031 c\\par");
    row("text that was moved", "word{\\mvf\\mvauth1\\mvdate7 b}{\\mvt\\mvauth1 c}\\par",
        "deed{\\mvf\\mvauth1\\mvdate7 b}{\\mvt\\mvauth1 c}\\par");
    row("text that goes on behind a word", "word\\revised b\\revised0 c\\par",
        "deed{\\revised b}c\\par");
    row("text in a link",
        "{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt word{\\revised b}}}\\par",
        "{\\fldrslt\\f0\\fs24 deed{\\revised b}}}");
    row("text with a bookmark", "word{\\revised b{\\*\\bkmkend x}}c\\par",
        "deed{\\revised b{\\*\\bkmkend x}}c\\par");
    row("a picture", "word{\\revised{\\pict\\pngblip " + pngBytes().toHex() + "}}c\\par",
        "deed{\\revised{\\*\\shppict{\\pict\\pngblip");
    row("a formula", "word{\\revised{\\mmath{\\mr b}}}c\\par",
        "deed{\\revised{\\mmath{\\mr b}}}c\\par");
    row("text of a cell", "\\trowd\\cellx99\\intbl word{\\revised b\\cell}\\row",
        "deed{\\revised b}\\cell\\row");
    row("text with the end of its paragraph", "word{\\revised b\\par}c\\par",
        "deed{\\revised b}{\\plain\\revised\\f0\\fs24\\par}c\\par");
    row("the end of a paragraph", "word{\\revised\\revauth1\\par}c\\par",
        "deed{\\plain\\revised\\revauth1\\f0\\fs24\\par}c\\par");
    row("an empty paragraph", "word\\par{\\revised\\par}c\\par",
        "deed\\par{\\plain\\revised\\f0\\fs24\\par}c\\par");
    row("an empty paragraph in a font of another direction", "word\\par{\\af9\\revised\\par}c\\par",
        "deed\\par{\\plain\\revised\\f0\\fs24\\par}c\\par");
    row("an item of a list", "{\\pntext 1.\\tab}word{\\revised b}\\par", "deed{\\revised b}\\par");
    row("an item of a list in another look", "{\\pntext 1.\\tab}word\\b\\revised b\\revised0\\par",
        "deed{\\revised\\b b}\\b\\par");
    row("an item of a list whose mark has another look",
        "{\\pntext 1.\\tab}word{\\revised b}\\b\\par",
        "deed{\\revised b}{\\plain\\b\\f0\\fs24\\par}");
}

void TrackedChangesTest::textThatCameInKeepsWhoAndWhen() {
    QFETCH(QByteArray, body);
    QFETCH(QByteArray, kept);
    const QByteArray written = saved(Authors + body);
    QVERIFY2(written.contains(Authors), written.constData());
    QVERIFY2(written.contains(kept), written.constData());
}

void TrackedChangesTest::theEndOfAParagraphThatIsNoItemAnyMoreIsPlain() {
    QTextDocument document;
    QVERIFY(readRtf(file("{\\pntext 1.\\tab}a\\b\\par"), document).ok());
    QVERIFY(writeRtf(document).contains("{\\plain\\b"));
    document.firstBlock().textList()->remove(document.firstBlock());
    QVERIFY(!writeRtf(document).contains("{\\plain\\b"));
}

void TrackedChangesTest::placesBetweenWhichTextWasMovedStay() {
    const QByteArray written = saved("\\pard{\\*\\mvfmf x}{\\mvf word}{\\*\\mvfml x}\\par");
    QVERIFY2(written.contains("\\pard{\\*\\mvfmf x}{\\mvf\\f0\\fs24 deed{\\*\\mvfml x}}\\par"),
             written.constData());
}

void TrackedChangesTest::whoChangedIsLeftOutWhereNobodyIsNamed() {
    const QByteArray written = saved("{\\revised\\revauth1 word}\\par");
    QVERIFY2(written.contains("{\\revised\\f0\\fs24 deed}"), written.constData());
}

void TrackedChangesTest::textThatWasTakenOutDoesNotShow_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const QByteArray& body, const char* text) {
        QTest::newRow(name) << body << QString::fromLatin1(text);
    };
    row("in a group", "a{\\deleted b}c\\par", "ac");
    row("up to the end of the group", "a{\\b\\deleted b{\\i c}}d\\par", "ad");
    row("up to a word", "a\\deleted b\\deleted0 c\\par", "ac");
    row("that is none after all", "a{\\deleted0 b}c\\par", "abc");
    row("with a note", "a{\\deleted b{\\footnote c}}d\\par", "ad");
}

void TrackedChangesTest::textThatWasTakenOutDoesNotShow() {
    QFETCH(QByteArray, body);
    QFETCH(QString, text);
    QCOMPARE(textOf(body), text);
}

void TrackedChangesTest::textThatWasTakenOutStays_data() {
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QByteArray>("kept");
    const auto row = [](const char* name, const QByteArray& body, const QByteArray& kept) {
        QTest::newRow(name) << body << kept;
    };
    row("behind a word", "word{\\deleted\\revauthdel1\\revdttmdel7 b}c\\par",
        "deed{\\plain\\f0\\fs24{\\deleted\\revauthdel1\\revdttmdel7 b}}c\\par");
    row("in its look", "word{\\b\\deleted b\\i c}\\par",
        "deed{\\plain\\b\\f0\\fs24{\\deleted b\\i c}}\\par");
    row("in letters of another page", "word{\\f1\\deleted\\'e0}\\par",
        "deed{\\plain\\f1\\fs24{\\deleted\\u1072?}}\\par");
    row("with a paragraph's end", "word{\\deleted b\\par}c\\par",
        "deed{\\plain\\f0\\fs24{\\deleted b\\par}}c\\par");
    row("with a line end behind a backslash", "word{\\deleted b\\\n}c\\par",
        "deed{\\plain\\f0\\fs24{\\deleted b\\par}}c\\par");
    row("that is nothing but a paragraph's end", "word{\\deleted\\par}\\pard c\\par",
        "deed{\\plain\\f0\\fs24{\\deleted\\par}}c\\par");
    row("with what its paragraph is like", "word{\\deleted\\qc\\s1 b\\par}c\\par",
        "deed{\\plain\\f0\\fs24{\\deleted\\qc\\s1 b\\par}}c\\par");
    row("with a note", "word{\\deleted b\\chftn{\\footnote\\pard\\plain\\chftn c}}d\\par",
        "deed{\\plain\\f0\\fs24{\\deleted b\\chftn{\\footnote\\pard\\plain\\chftn c}}}d\\par");
    row("with a picture", "word{\\deleted{\\*\\shppict{\\pict\\pngblip 89}}}c\\par",
        "deed{\\plain\\f0\\fs24{\\deleted{\\*\\shppict{\\pict\\pngblip 89}}}}c\\par");
    row("with a field", "word{\\deleted{\\field{\\*\\fldinst PAGE}{\\fldrslt 1}}}c\\par",
        "deed{\\plain\\f0\\fs24{\\deleted{\\field{\\*\\fldinst PAGE}{\\fldrslt 1}}}}c\\par");
    row("with a bookmark", "word{\\deleted{\\*\\bkmkstart a}b}c\\par",
        "deed{\\plain\\f0\\fs24{\\deleted{\\*\\bkmkstart a}b}}c\\par");
    row("ahead of a paragraph's text", "{\\deleted a}word\\par",
        "\\pard{\\plain\\f0\\fs24{\\deleted a}}\\f0\\fs24 deed\\par");
    row("in a paragraph of its own", "word\\par{\\deleted a}\\par",
        "deed\\par\\pard{\\plain\\f0\\fs24{\\deleted a}}\\par");
    row("in a cell", "\\trowd\\cellx99\\intbl word{\\deleted a}\\cell\\row",
        "deed{\\plain\\f0\\fs24{\\deleted a}}\\cell\\row");
}

void TrackedChangesTest::textThatWasTakenOutStays() {
    QFETCH(QByteArray, body);
    QFETCH(QByteArray, kept);
    const QByteArray written = saved(body);
    QVERIFY2(written.contains(kept), written.constData());
}

void TrackedChangesTest::whatIsMoreThanTextIsNotKept_data() {
    QTest::addColumn<QByteArray>("deleted");
    QTest::newRow("a cell") << QByteArray("{\\deleted b\\cell}");
    QTest::newRow("a section") << QByteArray("{\\deleted b\\sect}");
    QTest::newRow("text that is not taken out") << QByteArray("{\\deleted b\\plain c}");
    QTest::newRow("text behind a word") << QByteArray("{\\deleted b\\deleted0 c}");
    QTest::newRow("a paragraph's end that is not taken out")
        << QByteArray("{\\deleted b{\\plain\\par}}");
    QTest::newRow("a label") << QByteArray("{\\deleted{\\pntext 1.}b}");
    QTest::newRow("fonts") << QByteArray("{\\deleted b{\\fonttbl{\\f9 Other;}}}");
    QTest::newRow("words of a section") << QByteArray("{\\deleted b\\cols2}");
    QTest::newRow("binary data") << QByteArray("{\\deleted b\\bin1 x}");
    QTest::newRow("no text") << QByteArray("{\\deleted\\b}");
}

void TrackedChangesTest::whatIsMoreThanTextIsNotKept() {
    QFETCH(QByteArray, deleted);
    const QByteArray written = saved("word" + deleted + "d\\par");
    QVERIFY2(written.contains("deed"), written.constData());
    QVERIFY2(!written.contains("\\deleted"), written.constData());
}

void TrackedChangesTest::textThatWasTakenOutGoesWithWhatIsCopied() {
    QTextDocument document;
    QVERIFY(readRtf(file(Authors + "a{\\revised\\revauth1 b{\\deleted x}}c\\par"), document).ok());
    const QByteArray part = writeRtf(document, 1, 3);
    QVERIFY2(part.contains("\\revised\\revauth1") && part.contains("{\\deleted x}"),
             part.constData());
    QVERIFY2(part.contains(Authors), part.constData());
}

void TrackedChangesTest::whatComesFromAnotherDocumentHasNoAuthors() {
    QTextDocument document;
    QVERIFY(readRtf(file("{\\*\\revtbl{Unknown;}{Bob;}}a\\par"), document).ok());
    QTextCursor cursor(&document);
    QVERIFY(insertRtf(file(Authors + "{\\revised\\revauth1 b}"), cursor).ok());
    const QByteArray written = writeRtf(document);
    QVERIFY2(written.contains("Bob") && !written.contains("Ann"), written.constData());
    QVERIFY2(written.contains("\\revised") && !written.contains("\\revauth"), written.constData());
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, TrackedChangesTest)
#include "tracked_changes_test.moc"
