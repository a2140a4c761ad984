// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/title_line.h"

#include "support/test_main.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

void focus(QLineEdit& line, QEvent::Type type, Qt::FocusReason reason) {
    QFocusEvent event(type, reason);
    QApplication::sendEvent(&line, &event);
}

} // namespace

class TitleLineTest : public QObject {
    Q_OBJECT
private slots:
    void breaksThatArePastedBecomeBlanks_data();
    void breaksThatArePastedBecomeBlanks();
    void theCaretStaysBehindWhatWasPasted();
    void editsAloneAreKeptToOneLineWhereThatIsAsked();
    void aLineThatIsLeftShowsItsBeginning_data();
    void aLineThatIsLeftShowsItsBeginning();
    void fromElsewhereTheUserFindsTheLineAsItWas_data();
    void fromElsewhereTheUserFindsTheLineAsItWas();
    void aMenuOfTheLineLeavesTheCaret();
};

void TitleLineTest::breaksThatArePastedBecomeBlanks_data() {
    QTest::addColumn<QString>("pasted");
    QTest::newRow("LF") << u"one\ntwo"_s;
    QTest::newRow("CR LF") << u"one\r\ntwo"_s;
    QTest::newRow("CR") << u"one\rtwo"_s;
    QTest::newRow("line separator") << u"one\u2028two"_s;
    QTest::newRow("paragraph separator") << u"one\u2029two"_s;
}

void TitleLineTest::breaksThatArePastedBecomeBlanks() {
    QFETCH(QString, pasted);
    QApplication::clipboard()->setText(pasted);
    QLineEdit line;
    makeTitleLine(line);
    line.paste();
    QCOMPARE(line.text(), u"one two"_s);
    line.setText(pasted);
    QCOMPARE(line.text(), u"one two"_s);
}

void TitleLineTest::theCaretStaysBehindWhatWasPasted() {
    QApplication::clipboard()->setText(u"a\r\nb\r\n"_s);
    QLineEdit line(u"one two"_s);
    makeTitleLine(line);
    line.setCursorPosition(4);
    line.paste();
    QCOMPARE(line.text(), u"one a b two"_s);
    QCOMPARE(line.cursorPosition(), 8);
}

void TitleLineTest::editsAloneAreKeptToOneLineWhereThatIsAsked() {
    QLineEdit line;
    keepEditsToOneLine(line);
    line.setText(u"one\r\ntwo"_s);
    QCOMPARE(line.text(), u"one\r\ntwo"_s);
    QApplication::clipboard()->setText(u"a\r\nb\n"_s);
    line.selectAll();
    line.paste();
    QCOMPARE(line.text(), u"a b "_s);
    QCOMPARE(line.cursorPosition(), 4);
    focus(line, QEvent::FocusOut, Qt::TabFocusReason);
    QCOMPARE(line.cursorPosition(), 4);
}

void TitleLineTest::aLineThatIsLeftShowsItsBeginning_data() {
    QTest::addColumn<Qt::FocusReason>("reason");
    QTest::newRow("for another control") << Qt::MouseFocusReason;
    QTest::newRow("by a key") << Qt::TabFocusReason;
    QTest::newRow("for another window") << Qt::ActiveWindowFocusReason;
}

void TitleLineTest::aLineThatIsLeftShowsItsBeginning() {
    QFETCH(Qt::FocusReason, reason);
    QLineEdit line(u"a title"_s);
    makeTitleLine(line);
    line.setSelection(2, 5);
    focus(line, QEvent::FocusOut, reason);
    QCOMPARE(line.cursorPosition(), 0);
    QVERIFY(!line.hasSelectedText());
}

void TitleLineTest::fromElsewhereTheUserFindsTheLineAsItWas_data() {
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    QTest::newRow("a caret") << 3 << 0;
    QTest::newRow("a selection") << 2 << 4;
    QTest::newRow("a selection to the left") << 6 << -4;
}

void TitleLineTest::fromElsewhereTheUserFindsTheLineAsItWas() {
    QFETCH(int, start);
    QFETCH(int, length);
    QLineEdit line(u"a title"_s);
    makeTitleLine(line);
    line.setSelection(start, length);
    const int caret = line.cursorPosition();
    const QString selected = line.selectedText();
    focus(line, QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    focus(line, QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QCOMPARE(line.cursorPosition(), caret);
    QCOMPARE(line.selectedText(), selected);
}

void TitleLineTest::aMenuOfTheLineLeavesTheCaret() {
    QLineEdit line(u"one"_s);
    makeTitleLine(line);
    line.setCursorPosition(3);
    focus(line, QEvent::FocusOut, Qt::PopupFocusReason);
    QCOMPARE(line.cursorPosition(), 3);
}

ORVALIS_TEST_MAIN_WITH(QApplication, TitleLineTest)
#include "title_line_test.moc"
