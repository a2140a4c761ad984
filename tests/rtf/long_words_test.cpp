// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/room/long_words.h"

#include "room_documents.h"
#include "rtf/reader.h"
#include "rtf/room/document_room.h"
#include "support/test_main.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QTextCursor>
#include <QTextDocument>

using namespace orvalis;
using namespace orvalis::rtf;
using namespace orvalis::test;

class LongWordsTest : public QObject {
    Q_OBJECT
private slots:
    void linesBreakAnywhereWhileThereIsALongWord();
    void linesBreakAnywhereWhereOneLetterMakesAllOfItsWordTooHigh();
    void longWordsAreTold_data();
    void longWordsAreTold();
};

void LongWordsTest::linesBreakAnywhereWhileThereIsALongWord() {
    QTextDocument document;
    document.documentLayout();
    const auto mode = [&] { return document.defaultTextOption().wrapMode(); };
    const auto ordinary = QTextOption::WrapAtWordBoundaryOrAnywhere;
    QTextOption option;
    option.setWrapMode(ordinary);
    document.setDefaultTextOption(option);
    DocumentRoom::of(document);
    QCOMPARE(mode(), ordinary);
    QTextCursor cursor(&document);
    cursor.insertText(QString(LongestWord, u'a') + QStringLiteral(" and words"));
    QCOMPARE(mode(), ordinary);
    cursor.insertText(QString(LongestWord + 1, u'a'));
    QCOMPARE(mode(), QTextOption::WrapAnywhere);
    document.undo();
    QCOMPARE(mode(), ordinary);
    document.redo();
    QCOMPARE(mode(), QTextOption::WrapAnywhere);
    readRtf("{\\rtf1 short}", document);
    QCOMPARE(mode(), ordinary);
}

/// Qt makes each line of a word as high as the highest letter of all the word.
void LongWordsTest::linesBreakAnywhereWhereOneLetterMakesAllOfItsWordTooHigh() {
    QTextDocument document;
    document.setTextWidth(220);
    document.documentLayout();
    QVERIFY(readRtf("{\\rtf1\\sl483648\\slmult1 " + QByteArray(80, 'm') + "\\fs3276 u}", document)
                .ok());
    QCOMPARE(document.defaultTextOption().wrapMode(), QTextOption::WrapAnywhere);
    const double height = document.documentLayout()->documentSize().height();
    QVERIFY2(height <= EndlessHeight, qPrintable(QString::number(height)));
    QVERIFY(readRtf("{\\rtf1\\fs144 O\\fs20 nce upon a time}", document).ok());
    QCOMPARE(document.defaultTextOption().wrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
}

void LongWordsTest::longWordsAreTold_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("holds");
    const auto row = [](const char* name, const QString& piece, bool holds) {
        QTest::newRow(name) << piece.repeated(5000) << holds;
    };
    row("words", QStringLiteral("word and word, "), false);
    row("lines", QStringLiteral("word\u2028"), false);
    row("tabs between words", QStringLiteral("word\tand\t"), false);
    row("ideographs", QStringLiteral("漢字"), false);
    row("letters alone", QStringLiteral("letters"), true);
    row("blanks that do not break", QStringLiteral("word\u00a0"), true);
    row("blanks ahead of signs", QStringLiteral("! "), true);
    row("blanks behind brackets", QStringLiteral("( "), true);
    row("signs", QStringLiteral("-+/"), true);
}

void LongWordsTest::longWordsAreTold() {
    QFETCH(QString, text);
    QFETCH(bool, holds);
    QCOMPARE(holdsLongWord(text), holds);
    QVERIFY(!holdsLongWord(QStringView(text).first(LongestWord)));
}

ORVALIS_TEST_MAIN_WITH(QGuiApplication, LongWordsTest)
#include "long_words_test.moc"
