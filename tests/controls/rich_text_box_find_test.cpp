// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/rich_text_box.h"
#include "controls/text_search.h"
#include "support/test_main.h"

#include <QApplication>
#include <QRandomGenerator>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

constexpr int WholeWord = 2;
constexpr int MatchCase = 4;

} // namespace

class RichTextBoxFindTest : public QObject {
    Q_OBJECT
private slots:
    void aMatchIsSelectedAndItsPositionTold();
    void theSearchBeginsAtItsStart();
    void aMatchThatReachesBehindTheEndIsNone();
    void anEmptyTextIsFoundNowhere();
    void aStartBehindTheTextFindsNothing();
    void aMissLeavesTheSelection();
    void capitalsCountOnlyWhenAsked();
    void wholeWords_data();
    void wholeWords();
    void wholeWordsAndCapitalsCountTogether();
    void lettersOutsideTheBasicPlaneCountAsLetters();
    void positionsCountLineBreaksTwice();
    void aLineBreakCanBeLookedFor();
    void controlCharactersCanBeLookedFor();
    void readOnlyBoxesAreSearchedToo();
    void anOverlappingMatchFollowsTheFirst();
    void insideABatchTheSearchFindsTheSame();
    void insideABatchTheSearchFindsAMatchWhereverItLies();
};

void RichTextBoxFindTest::aMatchIsSelectedAndItsPositionTold() {
    RichTextBox box;
    box.SetText(u"milk, bread and milk"_s);
    QCOMPARE(box.Find(u"bread"_s), 6);
    QCOMPARE(box.SelStart(), 6);
    QCOMPARE(box.SelText(), u"bread"_s);
}

void RichTextBoxFindTest::theSearchBeginsAtItsStart() {
    RichTextBox box;
    box.SetText(u"milk, bread and milk"_s);
    QCOMPARE(box.Find(u"milk"_s, 0), 0);
    QCOMPARE(box.Find(u"milk"_s, 1), 16);
    QCOMPARE(box.Find(u"milk"_s, 16), 16);
    QCOMPARE(box.Find(u"milk"_s, 17), -1);
    QCOMPARE(box.Find(u"milk"_s, -5), 0);
}

void RichTextBoxFindTest::aMatchThatReachesBehindTheEndIsNone() {
    RichTextBox box;
    box.SetText(u"one two three"_s);
    QCOMPARE(box.Find(u"two"_s, 0, 6), -1);
    QCOMPARE(box.Find(u"two"_s, 0, 7), 4);
    QCOMPARE(box.Find(u"three"_s, 0, 4000), 8);
}

void RichTextBoxFindTest::anEmptyTextIsFoundNowhere() {
    RichTextBox box;
    box.SetText(u"text"_s);
    QCOMPARE(box.Find(QString()), -1);
    QCOMPARE(box.Find(QString(), 4), -1);
}

void RichTextBoxFindTest::aStartBehindTheTextFindsNothing() {
    RichTextBox box;
    box.SetText(u"aaa"_s);
    QCOMPARE(box.Find(u"a"_s, 3), -1);
    QCOMPARE(box.Find(u"a"_s, 4000), -1);
}

void RichTextBoxFindTest::aMissLeavesTheSelection() {
    RichTextBox box;
    box.SetText(u"some text"_s);
    box.SetSelStart(5);
    box.SetSelLength(4);
    QCOMPARE(box.Find(u"absent"_s), -1);
    QCOMPARE(box.SelStart(), 5);
    QCOMPARE(box.SelLength(), 4);
}

void RichTextBoxFindTest::capitalsCountOnlyWhenAsked() {
    RichTextBox box;
    box.SetText(u"Äpfel, äpfel"_s);
    QCOMPARE(box.Find(u"äPFEL"_s), 0);
    QCOMPARE(box.Find(u"äpfel"_s, 0, -1, MatchCase), 7);
    QCOMPARE(box.Find(u"ÄPFEL"_s, 0, -1, MatchCase), -1);
}

void RichTextBoxFindTest::wholeWords_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("found");
    QTest::newRow("alone") << u"cat"_s << 0;
    QTest::newRow("between blanks") << u"a cat b"_s << 2;
    QTest::newRow("letter ahead") << u"scat"_s << -1;
    QTest::newRow("letter behind") << u"cats"_s << -1;
    QTest::newRow("digit behind") << u"cat2"_s << -1;
    QTest::newRow("underscore ahead") << u"_cat"_s << -1;
    QTest::newRow("letter with an accent") << u"caté cat"_s << 5;
    QTest::newRow("hyphen") << u"tom-cat"_s << 4;
    QTest::newRow("the second one") << u"cats cat"_s << 5;
    QTest::newRow("at a line's start") << u"x\r\ncat"_s << 3;
}

void RichTextBoxFindTest::wholeWords() {
    QFETCH(QString, text);
    QFETCH(int, found);
    RichTextBox box;
    box.SetText(text);
    QCOMPARE(box.Find(u"cat"_s, 0, -1, WholeWord), found);
}

void RichTextBoxFindTest::lettersOutsideTheBasicPlaneCountAsLetters() {
    RichTextBox box;
    box.SetText(u"\U00010400cat cat\U00010400 \U0001F600cat\U0001F600"_s);
    QCOMPARE(box.Find(u"cat"_s, 0, -1, WholeWord), 14);
}

void RichTextBoxFindTest::positionsCountLineBreaksTwice() {
    RichTextBox box;
    box.SetText(u"a\r\nb\r\n\r\nneedle"_s);
    QCOMPARE(box.Find(u"needle"_s), 8);
    QCOMPARE(box.SelText(), u"needle"_s);
}

void RichTextBoxFindTest::aLineBreakCanBeLookedFor() {
    RichTextBox box;
    box.SetText(u"one\r\ntwo\u2028three"_s);
    QCOMPARE(box.Find(u"e\r\nt"_s), 2);
    QCOMPARE(box.SelText(), u"e\r\nt"_s);
    QCOMPARE(box.Find(u"\r\n"_s, 4), 8);
}

void RichTextBoxFindTest::controlCharactersCanBeLookedFor() {
    RichTextBox box;
    box.SetText(u"ab\u0001c\nd"_s);
    QCOMPARE(box.Find(u"\u0001"_s), 2);
    QCOMPARE(box.Find(u"\n"_s), 4);
}

void RichTextBoxFindTest::readOnlyBoxesAreSearchedToo() {
    RichTextBox box;
    box.SetText(u"some text"_s);
    box.setReadOnly(true);
    QCOMPARE(box.Find(u"text"_s), 5);
    QCOMPARE(box.SelText(), u"text"_s);
}

void RichTextBoxFindTest::anOverlappingMatchFollowsTheFirst() {
    RichTextBox box;
    box.SetText(u"aaaa"_s);
    QCOMPARE(box.Find(u"aa"_s, 0), 0);
    QCOMPARE(box.Find(u"aa"_s, 1), 1);
    QCOMPARE(box.Find(u"aa"_s, 2), 2);
    QCOMPARE(box.Find(u"aa"_s, 3), -1);
}

void RichTextBoxFindTest::insideABatchTheSearchFindsTheSame() {
    QRandomGenerator random(7);
    QString text;
    for (int i = 0; i < 20000; ++i) {
        static const QString pieces[] = {u"cat"_s, u" "_s, u"\r\n"_s, u"x"_s, u"some words "_s};
        text += pieces[random.bounded(int(std::size(pieces)))];
    }
    RichTextBox box;
    box.SetText(text);
    const RichTextBox::Batch batch(box);
    box.SetSelText(u"!"_s); // from here on the text is not at hand as a whole
    text.prepend(u'!');
    for (int options : {0, WholeWord, MatchCase}) {
        for (const QString& needle : {u"cat"_s, u"words cat"_s, u"x\r\ncat"_s, u"nowhere"_s}) {
            const TextSearch search{needle, options == WholeWord, options == MatchCase};
            qsizetype expected = findInText(text, search, 0, text.size());
            int hits = 0;
            for (int at = box.Find(needle, 0, -1, options); at >= 0 && hits < 300;
                 at = box.Find(needle, at + 1, -1, options)) {
                QCOMPARE(at, int(expected));
                expected = findInText(text, search, expected + 1, text.size());
                ++hits;
            }
            QVERIFY(hits == 300 || expected < 0);
        }
    }
}

/// Wherever a piece of the text ends, in which it looks, none is overlooked.
void RichTextBoxFindTest::insideABatchTheSearchFindsAMatchWhereverItLies() {
    RichTextBox box;
    box.SetText(u"x"_s.repeated(20000));
    const RichTextBox::Batch batch(box);
    for (const int near : {4096, 8192, 12288}) {
        for (int at = near - 20; at < near + 40; ++at) {
            box.SetSelStart(at);
            box.SetSelText(u"needle"_s);
            QCOMPARE(box.Find(u"needle"_s), at);
            box.SetSelText(QString());
            QCOMPARE(box.Find(u"needle"_s), -1);
        }
    }
}

void RichTextBoxFindTest::wholeWordsAndCapitalsCountTogether() {
    RichTextBox box;
    box.SetText(u"cats Cats cat Cat"_s);
    QCOMPARE(box.Find(u"Cat"_s, 0, -1, WholeWord), 10);
    QCOMPARE(box.Find(u"Cat"_s, 0, -1, MatchCase), 5);
    QCOMPARE(box.Find(u"Cat"_s, 0, -1, WholeWord + MatchCase), 14);
    QCOMPARE(box.Find(u"CAT"_s, 0, -1, WholeWord + MatchCase), -1);
}

ORVALIS_TEST_MAIN_WITH(QApplication, RichTextBoxFindTest)
#include "rich_text_box_find_test.moc"
