// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/title_line.h"

#include "support/test_main.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

using namespace orvalis;
using namespace Qt::StringLiterals;

class TitleLineTest : public QObject {
    Q_OBJECT
private slots:
    void breaksThatArePastedBecomeBlanks_data();
    void breaksThatArePastedBecomeBlanks();
    void theCaretStaysBehindWhatWasPasted();
    void whatGoesOnElsewhereLeavesTheCaret();
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

void TitleLineTest::whatGoesOnElsewhereLeavesTheCaret() {
    QLineEdit line(u"one"_s);
    makeTitleLine(line);
    line.setCursorPosition(3);
    for (const auto& [reason, position] :
         {std::pair(Qt::ActiveWindowFocusReason, 3), std::pair(Qt::PopupFocusReason, 3),
          std::pair(Qt::MouseFocusReason, 0)}) {
        QFocusEvent left(QEvent::FocusOut, reason);
        QApplication::sendEvent(&line, &left);
        QCOMPARE(line.cursorPosition(), position);
    }
}

ORVALIS_TEST_MAIN_WITH(QApplication, TitleLineTest)
#include "title_line_test.moc"
