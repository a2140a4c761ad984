// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/hyperlink.h"

#include "kept_file.h"
#include "sample_shapes.h"
#include "support/test_main.h"

#include <QGuiApplication>
#include <QTextCursor>
#include <QTextDocument>

using namespace orvalis;
using namespace orvalis::rtf;
using orvalis::test::file;
using orvalis::test::saved;

class HyperlinkTest : public QObject {
    Q_OBJECT
private slots:
    void anInstructionTellsALink_data();
    void anInstructionTellsALink();
    void whatALinkSaysBesideItsTargetStays_data();
    void whatALinkSaysBesideItsTargetStays();
    void linksOfOneTargetAndOtherTipsAreTwo();
};

void HyperlinkTest::anInstructionTellsALink_data() {
    QTest::addColumn<QString>("instruction");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("switches");
    const auto row = [](const char* name, const char* instruction, const char* target,
                        const char* switches) {
        QTest::newRow(name) << QString::fromLatin1(instruction) << QString::fromLatin1(target)
                            << QString::fromLatin1(switches);
    };
    row("another field", "PAGEREF x", "", "");
    row("a field whose name begins alike", "HYPERLINKS x", "", "");
    row("no target", "HYPERLINK \\o \"tip\"", "", " \\o \"tip\"");
    row("a target", " hyperlink \"a b\" ", "a b", "");
    row("a target without quotes", "HYPERLINK a b", "a", "");
    row("a server", "HYPERLINK \\\\server\\x", "\\\\server\\x", "");
    row("a target with quotes", "HYPERLINK \"a\\\"b\\\\c\"", "a\"b\\c", "");
    row("a place in it", "HYPERLINK \"a\" \\l \"b\"", "a#b", "");
    row("a place alone", "HYPERLINK \\l b", "#b", "");
    row("a tip", "HYPERLINK \"a\" \\o \"a \\\"tip\\\"\"", "a", " \\o \"a \\\"tip\\\"\"");
    row("a tip ahead of it", "HYPERLINK \\o tip \"a\"", "a", " \\o \"tip\"");
    row("a window", "HYPERLINK \"a\" \\t _blank", "a", " \\t \"_blank\"");
    row("switches alone", "HYPERLINK \"a\" \\n \\m", "a", " \\n \\m");
    row("a switch that nobody knows", "HYPERLINK \"a\" \\* MERGEFORMAT", "a", "");
}

void HyperlinkTest::anInstructionTellsALink() {
    QFETCH(QString, instruction);
    const Hyperlink link = hyperlinkOf(instruction);
    QTEST(link.target, "target");
    QTEST(link.switches, "switches");
    if (link.target.isEmpty())
        return;
    const Hyperlink again = hyperlinkOf(hyperlinkInstruction(link));
    QCOMPARE(again.target, link.target);
    QCOMPARE(again.switches, link.switches);
}

void HyperlinkTest::whatALinkSaysBesideItsTargetStays_data() {
    QTest::addColumn<QByteArray>("switches");
    QTest::addColumn<QByteArray>("kept");
    const auto row = [](const char* name, const QByteArray& switches, const QByteArray& kept) {
        QTest::newRow(name) << switches << kept;
    };
    row("nothing", "", "\"a\"}}");
    row("a blank that does not break", "\\~\\\\n", "\"a\" \\\\n}}");
    row("a tip", " \\\\o \"a tip\"", "\"a\" \\\\o \"a tip\"}}");
    row("a tip of other letters", " \\\\o \"\\u1072?\"", "\"a\" \\\\o \"\\u1072?\"}}");
    row("a window", " \\\\t \"_blank\"", "\"a\" \\\\t \"_blank\"}}");
    row("a new window", " \\\\n", "\"a\" \\\\n}}");
}

void HyperlinkTest::whatALinkSaysBesideItsTargetStays() {
    QFETCH(QByteArray, switches);
    QFETCH(QByteArray, kept);
    const QByteArray written =
        saved("{\\field{\\*\\fldinst{HYPERLINK \"a\"" + switches + "}}{\\fldrslt word}}b\\par");
    QVERIFY2(written.contains("{\\*\\fldinst{HYPERLINK " + kept), written.constData());
}

void HyperlinkTest::linksOfOneTargetAndOtherTipsAreTwo() {
    const auto link = [](const QByteArray& tip) {
        return "{\\field{\\*\\fldinst{HYPERLINK \"a\" \\\\o \"" + tip + "\"}}{\\fldrslt word}}";
    };
    QTextDocument document;
    QVERIFY(readRtf(file(link("one") + link("two") + "\\par"), document).ok());
    QCOMPARE(writeRtf(document).count("HYPERLINK"), 2);
    QTextCursor cursor(&document);
    cursor.setPosition(6);
    QCOMPARE(cursor.charFormat().anchorHref(), QStringLiteral("a"));
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, HyperlinkTest)
#include "hyperlink_test.moc"
