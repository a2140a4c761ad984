// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/rich_text_box.h"
#include "runtime/failure.h"
#include "support/test_main.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextLayout>

#include <functional>
#include <tuple>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

QString allCodes() {
    QString text;
    for (int code = 0; code < 256; ++code)
        text += QChar(code);
    return text;
}

/// What the window shows in the place of the text's characters.
QString shown(const RichTextBox& box) {
    return box.document()->toRawText();
}

} // namespace

class RichTextBoxTextTest : public QObject {
    Q_OBJECT
private slots:
    void anEmptyBoxHasNoText();
    void aLineBreakIsCarriageReturnAndLineFeed();
    void aBreakInsideAParagraphIsALineBreakToo();
    void aPictureIsOneBlank();
    void everyCodeSurvivesBeingSet();
    void everyCodeSurvivesBeingInserted();
    void loneLineEndsShowAsMarksOnOneLine();
    void aMarkThatSomebodyTypedStaysWhatItIs();
    void typingBehindAMarkTypesOrdinaryCharacters();
    void noBreakBlanksLookLikeBlanksUnlessTheyAreToBeMarked();
    void charactersThatDocumentsReserveBecomeReplacements();

    void settingTheTextPutsTheCaretAtTheStart();
    void settingTheTextTakesTheFormatAtTheSelectionsStart();
    void settingTheTextKeepsTheFormatOfAnEmptyFirstLine();
    void settingTheTextKeepsTheShapeOfItsParagraph();
    void settingTheTextDropsTheHistoryOfUndo();
    void settingTheTextDoesNotMakeALinkOfIt();
    void aFormatSetOnAnEmptyBoxHoldsForWhatIsTyped();
    void aFormatSetOnAnEmptyBoxHoldsAfterTheCaretMoved();
    void aFormatSetOnAnEmptyLineHoldsAfterTheCaretMoved();

    void selectionCountsInPositionsOfTheText();
    void aStartBeyondTheEndIsTheEnd();
    void aStartBetweenCrAndLfIsAheadOfBoth();
    void negativePositionsAreRefused();
    void settingTheStartSelectsNothing();
    void aLengthBeyondTheEndSelectsToTheEnd();
    void selectedTextIsReplacedInTheFormatOfItsStart();
    void insertedTextLeavesTheCaretBehindIt();

    void changeIsToldForWhatTheProgramSets();
    void changeIsToldForWhatIsTyped();
    void changeIsToldForAFormat();
    void everyWayToChangeTheContentTellsOnce();
    void changeIsNotToldWhereNothingChanges();
    void aReadOnlyBoxTakesWhatTheProgramSets();
    void selectionChangesAreToldOnce();
    void settingContentTellsOfTheSelection();
    void theTagIsKept();
    void aBatchIsOneChangeAndOneUndo();
    void positionsHoldInsideABatch();
    void aBatchThatChangesNothingLeavesPositionsRight();
    void aFailureInsideABatchEndsIt();
    void aBatchThatMakesAListLongerAheadOfAnotherChangeIsSeenWhole();
    void aBatchThatMakesAListLongerAheadOfAnotherChangeIsLaidOutWhole_data();
    void aBatchThatMakesAListLongerAheadOfAnotherChangeIsLaidOutWhole();
};

void RichTextBoxTextTest::anEmptyBoxHasNoText() {
    RichTextBox box;
    QCOMPARE(box.Text(), QString());
    QCOMPARE(box.SelStart(), 0);
    QCOMPARE(box.SelLength(), 0);
    QCOMPARE(box.SelText(), QString());
}

void RichTextBoxTextTest::aLineBreakIsCarriageReturnAndLineFeed() {
    RichTextBox box;
    box.SetText(u"one\r\ntwo\r\n"_s);
    QCOMPARE(box.document()->blockCount(), 3);
    QCOMPARE(box.Text(), u"one\r\ntwo\r\n"_s);
    box.SetSelStart(5);
    QCOMPARE(box.textCursor().blockNumber(), 1);
    QCOMPARE(box.textCursor().positionInBlock(), 0);
}

void RichTextBoxTextTest::aBreakInsideAParagraphIsALineBreakToo() {
    RichTextBox box;
    box.SetText(u"ab\u2028cd\r\nef"_s);
    QCOMPARE(box.document()->blockCount(), 2);
    QCOMPARE(box.Text(), u"ab\r\ncd\r\nef"_s);
    box.SetSelStart(4);
    QCOMPARE(box.textCursor().position(), 3);
    box.SetSelStart(8);
    QCOMPARE(box.textCursor().blockNumber(), 1);
    QCOMPARE(box.SelStart(), 8);
    box.SetSelStart(2);
    box.SetSelLength(2);
    QCOMPARE(box.SelText(), u"\r\n"_s);
    box.SetSelText(QString());
    QCOMPARE(box.Text(), u"abcd\r\nef"_s);
    box.SetSelStart(6);
    QCOMPARE(box.textCursor().positionInBlock(), 0);
}

void RichTextBoxTextTest::aPictureIsOneBlank() {
    RichTextBox box;
    box.SetText(u"ab"_s);
    box.SetSelStart(1);
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    box.textCursor().insertImage(picture);
    QCOMPARE(box.Text(), u"a b"_s);
    box.SetSelStart(3);
    QCOMPARE(box.textCursor().position(), 3);
}

void RichTextBoxTextTest::everyCodeSurvivesBeingSet() {
    RichTextBox box;
    box.SetText(allCodes());
    QCOMPARE(box.Text(), allCodes());
    QCOMPARE(box.Text().size(), 256);
    for (int code = 0; code < 256; ++code) {
        box.SetSelStart(code);
        box.SetSelLength(1);
        QCOMPARE(box.SelText(), QString(QChar(code)));
    }
}

void RichTextBoxTextTest::everyCodeSurvivesBeingInserted() {
    RichTextBox box;
    box.SetText(u"<>"_s);
    for (int code = 0; code < 256; ++code) {
        box.SetSelStart(1 + code);
        box.SetSelText(QString(QChar(code)));
    }
    QCOMPARE(box.Text(), u'<' + allCodes() + u'>');
}

void RichTextBoxTextTest::loneLineEndsShowAsMarksOnOneLine() {
    RichTextBox box;
    box.SetText(u"a\nb\rc\0d"_s);
    QCOMPARE(box.document()->blockCount(), 1);
    QCOMPARE(shown(box), u"a\u280Ab\u280Dc\u28FFd"_s);
    box.SetText(u"\n\r\n\r"_s);
    QCOMPARE(box.document()->blockCount(), 2);
    QCOMPARE(box.Text(), u"\n\r\n\r"_s);
}

void RichTextBoxTextTest::aMarkThatSomebodyTypedStaysWhatItIs() {
    RichTextBox box;
    const QString text = u"\u28FF\u2801 \u0001\u287F\u0081\u2881\u007F\u2800\u2809"_s;
    box.SetText(text);
    QCOMPARE(box.Text(), text);
}

void RichTextBoxTextTest::typingBehindAMarkTypesOrdinaryCharacters() {
    RichTextBox box;
    box.SetText(u"\u0001"_s);
    box.SetSelStart(1);
    QTest::keyClicks(&box, u"ab"_s);
    QCOMPARE(box.Text(), u"\u0001ab"_s);
}

void RichTextBoxTextTest::noBreakBlanksLookLikeBlanksUnlessTheyAreToBeMarked() {
    const auto picture = [](const QString& text, bool marked) {
        RichTextBox box;
        box.setFixedSize(200, 60);
        box.setMarksNoBreakBlanks(marked);
        box.SetText(text);
        return box.grab().toImage();
    };
    RichTextBox box;
    box.SetText(u"10\u00A0km"_s);
    QCOMPARE(box.Text(), u"10\u00A0km"_s);
    QVERIFY(!box.marksNoBreakBlanks());
    QCOMPARE(picture(u"10\u00A0km"_s, false), picture(u"10 km"_s, false));
    QVERIFY(picture(u"10\u00A0km"_s, true) != picture(u"10 km"_s, true));
}

void RichTextBoxTextTest::charactersThatDocumentsReserveBecomeReplacements() {
    RichTextBox box;
    box.SetText(u"a\uFDD0b\uFDD1c\uFFFC"_s);
    QCOMPARE(box.Text(), u"a\uFFFDb\uFFFDc\uFFFD"_s);
    QCOMPARE(box.document()->blockCount(), 1);
}

void RichTextBoxTextTest::settingTheTextPutsTheCaretAtTheStart() {
    RichTextBox box;
    box.SetText(u"some text"_s);
    box.SetSelStart(4);
    box.SetText(u"other text"_s);
    QCOMPARE(box.SelStart(), 0);
    QCOMPARE(box.SelLength(), 0);
}

void RichTextBoxTextTest::settingTheTextTakesTheFormatAtTheSelectionsStart() {
    RichTextBox box;
    box.SetText(u"plain bold"_s);
    box.SetSelStart(6);
    box.SetSelLength(4);
    box.SetSelBold(true);
    box.SetSelColor(0x0000FF);
    box.SetText(u"all of this\r\nis red"_s);
    box.selectAll();
    QCOMPARE(box.SelBold(), std::optional<bool>(true));
    QCOMPARE(box.SelColor(), std::optional<quint32>(0x0000FF));

    box.SetSelStart(3);
    box.SetSelLength(2);
    box.SetSelBold(false);
    box.SetText(u"plain again"_s);
    box.selectAll();
    QCOMPARE(box.SelBold(), std::optional<bool>(false));
}

void RichTextBoxTextTest::settingTheTextKeepsTheFormatOfAnEmptyFirstLine() {
    RichTextBox box;
    box.SetSelBold(true);
    box.SetSelColor(0xFF0000);
    box.SetText(box.Text() + u"\r\n"_s);
    QCOMPARE(box.SelBold(), std::optional<bool>(true));
    box.SetText(u"\r\nREMINDER:\r\nmilk"_s);
    box.selectAll();
    QCOMPARE(box.SelBold(), std::optional<bool>(true));
    QCOMPARE(box.SelColor(), std::optional<quint32>(0xFF0000));
    box.SetSelStart(0);
    QCOMPARE(box.SelBold(), std::optional<bool>(true));
}

void RichTextBoxTextTest::settingTheTextKeepsTheShapeOfItsParagraph() {
    RichTextBox box;
    box.SetText(u"left\r\nright"_s);
    box.SetSelStart(8);
    box.SetSelAlignment(RichTextBox::rtfRight);
    box.SetSelIndent(300);
    box.SetText(u"one\r\ntwo"_s);
    box.selectAll();
    QCOMPARE(box.SelAlignment(), std::optional(1));
    QCOMPARE(box.SelIndent(), std::optional(300));
}

void RichTextBoxTextTest::settingTheTextDropsTheHistoryOfUndo() {
    RichTextBox box;
    QTest::keyClicks(&box, u"abc"_s);
    QVERIFY(box.CanUndo());
    box.SetText(u"new"_s);
    QVERIFY(!box.CanUndo());
    box.Undo();
    QCOMPARE(box.Text(), u"new"_s);
}

void RichTextBoxTextTest::settingTheTextDoesNotMakeALinkOfIt() {
    RichTextBox box;
    QTextCharFormat link;
    link.setAnchor(true);
    link.setAnchorHref(u"https://example.org"_s);
    box.textCursor().insertText(u"link"_s, link);
    box.SetSelStart(0);
    box.SetText(u"text"_s);
    QVERIFY(!box.document()->begin().begin().fragment().charFormat().isAnchor());
}

void RichTextBoxTextTest::aFormatSetOnAnEmptyBoxHoldsForWhatIsTyped() {
    RichTextBox box;
    box.SetSelFontName(u"Liberation Serif"_s);
    box.SetSelFontSize(17);
    box.SetSelItalic(true);
    QTest::keyClicks(&box, u"typed"_s);
    box.selectAll();
    QCOMPARE(box.SelFontName(), std::optional<QString>(u"Liberation Serif"_s));
    QCOMPARE(box.SelFontSize(), std::optional<qreal>(17));
    QCOMPARE(box.SelItalic(), std::optional<bool>(true));
}

void RichTextBoxTextTest::aFormatSetOnAnEmptyBoxHoldsAfterTheCaretMoved() {
    RichTextBox box;
    box.resize(200, 100);
    box.SetSelFontSize(17);
    box.SetSelBold(true);
    QTest::mouseClick(box.viewport(), Qt::LeftButton, {}, QPoint(20, 20));
    QTest::keyClicks(&box, u"typed"_s);
    box.selectAll();
    QCOMPARE(box.SelFontSize(), std::optional<qreal>(17));
    QCOMPARE(box.SelBold(), std::optional<bool>(true));
}

void RichTextBoxTextTest::aFormatSetOnAnEmptyLineHoldsAfterTheCaretMoved() {
    RichTextBox box;
    box.SetText(u"one\r\n\r\nthree"_s);
    box.SetSelStart(5);
    box.SetSelBold(true);
    box.SetSelStart(9);
    QCOMPARE(box.SelBold(), std::optional(false));
    box.SetSelStart(5);
    QCOMPARE(box.SelBold(), std::optional(true));
    QTest::keyClicks(&box, u"two"_s);
    box.SetSelStart(5);
    box.SetSelLength(3);
    QCOMPARE(box.SelBold(), std::optional(true));
}

void RichTextBoxTextTest::selectionCountsInPositionsOfTheText() {
    RichTextBox box;
    box.SetText(u"one\r\ntwo\r\nthree"_s);
    box.SetSelStart(5);
    box.SetSelLength(5);
    QCOMPARE(box.SelText(), u"two\r\n"_s);
    QCOMPARE(box.SelStart(), 5);
    QCOMPARE(box.SelLength(), 5);
}

void RichTextBoxTextTest::aStartBeyondTheEndIsTheEnd() {
    RichTextBox box;
    box.SetText(u"one\r\ntwo"_s);
    box.SetSelStart(4000);
    QCOMPARE(box.SelStart(), 8);
}

void RichTextBoxTextTest::aStartBetweenCrAndLfIsAheadOfBoth() {
    RichTextBox box;
    box.SetText(u"one\r\ntwo"_s);
    box.SetSelStart(4);
    QCOMPARE(box.SelStart(), 3);
}

void RichTextBoxTextTest::negativePositionsAreRefused() {
    RichTextBox box;
    const auto start = firstFailure([&] { box.SetSelStart(-1); });
    QVERIFY(start);
    QCOMPARE(start->number(), ErrorNumber::InvalidPropertyValue);
    QVERIFY(firstFailure([&] { box.SetSelLength(-1); }));
    QVERIFY(firstFailure([&] { box.SetSelFontSize(0); }));
    QVERIFY(firstFailure([&] { box.SetFontSize(-3); }));
    QVERIFY(firstFailure([&] { box.SetSelAlignment(4); }));
}

void RichTextBoxTextTest::settingTheStartSelectsNothing() {
    RichTextBox box;
    box.SetText(u"abcdef"_s);
    box.SetSelLength(4);
    box.SetSelStart(2);
    QCOMPARE(box.SelLength(), 0);
}

void RichTextBoxTextTest::aLengthBeyondTheEndSelectsToTheEnd() {
    RichTextBox box;
    box.SetText(u"ab\r\ncd"_s);
    box.SetSelStart(1);
    box.SetSelLength(std::numeric_limits<int>::max());
    QCOMPARE(box.SelText(), u"b\r\ncd"_s);
}

void RichTextBoxTextTest::selectedTextIsReplacedInTheFormatOfItsStart() {
    RichTextBox box;
    box.SetText(u"aaabbbccc"_s);
    box.SetSelStart(3);
    box.SetSelLength(3);
    box.SetSelBold(true);
    box.SetSelStart(3);
    box.SetSelLength(6);
    box.SetSelText(u"xyz"_s);
    QCOMPARE(box.Text(), u"aaaxyz"_s);
    box.SetSelStart(3);
    box.SetSelLength(3);
    QCOMPARE(box.SelBold(), std::optional<bool>(true));
    box.SetSelStart(0);
    box.SetSelLength(3);
    QCOMPARE(box.SelBold(), std::optional<bool>(false));
}

void RichTextBoxTextTest::insertedTextLeavesTheCaretBehindIt() {
    RichTextBox box;
    box.SetText(u"ad"_s);
    box.SetSelStart(1);
    box.SetSelText(u"b\r\nc"_s);
    QCOMPARE(box.Text(), u"ab\r\ncd"_s);
    QCOMPARE(box.SelStart(), 5);
    QCOMPARE(box.SelLength(), 0);
}

void RichTextBoxTextTest::changeIsToldForWhatTheProgramSets() {
    RichTextBox box;
    QStringList seen;
    connect(&box, &RichTextBox::Change, &box, [&] { seen << box.Text(); });
    box.SetText(u"one"_s);
    QCOMPARE(seen, QStringList{u"one"_s});
    box.SetSelStart(3);
    box.SetSelText(u" two"_s);
    QCOMPARE(seen, (QStringList{u"one"_s, u"one two"_s}));
    box.SetText(QString());
    QCOMPARE(seen, (QStringList{u"one"_s, u"one two"_s, QString()}));
}

void RichTextBoxTextTest::changeIsToldForWhatIsTyped() {
    RichTextBox box;
    QSignalSpy spy(&box, &RichTextBox::Change);
    QTest::keyClicks(&box, u"ab"_s);
    QCOMPARE(spy.count(), 2);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QCOMPARE(spy.count(), 3);
}

void RichTextBoxTextTest::changeIsToldForAFormat() {
    RichTextBox box;
    box.SetText(u"word"_s);
    box.selectAll();
    QSignalSpy spy(&box, &RichTextBox::Change);
    box.SetSelBold(true);
    QCOMPARE(spy.count(), 1);
    box.Undo();
    QCOMPARE(spy.count(), 2);
}

void RichTextBoxTextTest::changeIsNotToldWhereNothingChanges() {
    RichTextBox box;
    box.SetText(u"word"_s);
    QSignalSpy spy(&box, &RichTextBox::Change);
    box.SetSelStart(2);
    box.SetSelLength(1);
    box.SetSelStart(1);
    box.SetSelText(QString());
    QCOMPARE(box.Find(u"or"_s), 1);
    QCOMPARE(spy.count(), 0);
    box.SetSelStart(4);
    box.SetSelText(u"s"_s);
    QCOMPARE(spy.count(), 1);
    {
        const RichTextBox::Batch batch(box);
        box.SetSelStart(2);
        box.SetSelRTF(QByteArrayLiteral("{\\rtf1}"));
    }
    QCOMPARE(spy.count(), 1);
}

void RichTextBoxTextTest::selectionChangesAreToldOnce() {
    RichTextBox box;
    box.SetText(u"some words"_s);
    QSignalSpy spy(&box, &RichTextBox::SelChange);
    box.SetSelStart(5);
    QCOMPARE(spy.count(), 1);
    box.SetSelLength(5);
    QCOMPARE(spy.count(), 2);
    box.SetSelLength(5);
    QCOMPARE(spy.count(), 2);
    QTest::keyClick(&box, Qt::Key_Home);
    QCOMPARE(spy.count(), 3);
}

void RichTextBoxTextTest::settingContentTellsOfTheSelection() {
    RichTextBox box;
    QSignalSpy spy(&box, &RichTextBox::SelChange);
    box.SetText(u"some words"_s);
    QCOMPARE(spy.count(), 1);
    box.SetTextRTF(QByteArrayLiteral("{\\rtf1 other}"));
    QCOMPARE(spy.count(), 2);
}

void RichTextBoxTextTest::theTagIsKept() {
    RichTextBox box;
    QCOMPARE(box.Tag(), QString());
    box.SetTag(u"promena"_s);
    QCOMPARE(box.Tag(), u"promena"_s);
}

void RichTextBoxTextTest::aBatchIsOneChangeAndOneUndo() {
    RichTextBox box;
    box.SetText(u"a-a-a-a"_s);
    QSignalSpy changes(&box, &RichTextBox::Change);
    QSignalSpy selections(&box, &RichTextBox::SelChange);
    {
        const RichTextBox::Batch batch(box);
        for (int at = box.Find(u"a"_s); at >= 0; at = box.Find(u"a"_s, at + 1))
            box.SetSelText(u"bb"_s);
        QCOMPARE(box.Text(), u"bb-bb-bb-bb"_s);
        QCOMPARE(changes.count(), 0);
    }
    QCOMPARE(changes.count(), 1);
    QCOMPARE(selections.count(), 1);
    QCOMPARE(box.SelStart(), 11);
    box.Undo();
    QCOMPARE(box.Text(), u"a-a-a-a"_s);
}

void RichTextBoxTextTest::positionsHoldInsideABatch() {
    RichTextBox box;
    box.SetText(u"x\u2028y"_s);
    const RichTextBox::Batch batch(box);
    box.SetSelStart(0);
    box.SetSelText(u"1\u20282\r\n"_s);
    QCOMPARE(box.SelStart(), 6);
    QCOMPARE(box.Text(), u"1\r\n2\r\nx\r\ny"_s);
    QCOMPARE(box.Find(u"y"_s), 9);
    QCOMPARE(box.SelText(), u"y"_s);
    box.SetSelStart(0);
    box.SetSelLength(6);
    box.SetSelText(QString());
    QCOMPARE(box.Find(u"y"_s), 3);
    box.SetText(u"p\u2028q"_s);
    QCOMPARE(box.Find(u"q"_s), 3);
}

void RichTextBoxTextTest::aFailureInsideABatchEndsIt() {
    RichTextBox box;
    box.SetText(u"abc"_s);
    QVERIFY(!endSilently([&] {
        const RichTextBox::Batch batch(box);
        box.SetSelText(u"1"_s);
        throw RuntimeError(ErrorNumber::Overflow);
    }));
    QSignalSpy changes(&box, &RichTextBox::Change);
    box.SetSelText(u"2"_s);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(box.Text(), u"12abc"_s);
}

void RichTextBoxTextTest::aBatchThatChangesNothingLeavesPositionsRight() {
    RichTextBox box;
    box.SetText(u"x\u2028y"_s);
    {
        const RichTextBox::Batch batch(box);
        box.SetSelStart(0);
        box.SetSelRTF(QByteArrayLiteral("{\\rtf1}"));
    }
    QTest::keyClicks(&box, u"ab"_s);
    for (const int at : {3, 5, 6}) {
        box.SetSelStart(at);
        QCOMPARE(box.SelStart(), at);
    }
    QCOMPARE(box.Find(u"y"_s), 5);
}

/// Documents tell too little of such a change, by a character for each new item.
void RichTextBoxTextTest::aBatchThatMakesAListLongerAheadOfAnotherChangeIsSeenWhole() {
    RichTextBox box;
    const QString before = u"item\r\nbetween\r\nab"_s;
    const QString after = u"i\r\nt\r\nem\r\nbetween\r\naY"_s;
    box.SetText(before);
    box.SetSelBullet(true);
    QCOMPARE(box.Text(), before);
    {
        const RichTextBox::Batch batch(box);
        for (const auto& [start, length, text] :
             {std::tuple(16, 1, u"Y"_s), std::tuple(2, 0, u"\r\n"_s),
              std::tuple(1, 0, u"\r\n"_s)}) {
            box.SetSelStart(start);
            box.SetSelLength(length);
            box.SetSelText(text);
        }
    }
    QCOMPARE(box.Text(), after);
    for (int time = 0; time < 2; ++time) {
        box.Undo();
        QCOMPARE(box.Text(), before);
        QTest::keySequence(&box, QKeySequence::Redo);
        QCOMPARE(box.Text(), after);
    }
}

void RichTextBoxTextTest::aBatchThatMakesAListLongerAheadOfAnotherChangeIsLaidOutWhole_data() {
    QTest::addColumn<bool>("text");
    QTest::addColumn<bool>("removed");
    QTest::newRow("text") << true << false;
    QTest::newRow("text, and the items go again") << true << true;
    QTest::newRow("format") << false << false;
}

void RichTextBoxTextTest::aBatchThatMakesAListLongerAheadOfAnotherChangeIsLaidOutWhole() {
    QFETCH(bool, text);
    QFETCH(bool, removed);
    RichTextBox box;
    box.resize(200, 200);
    box.show(); // or nothing is laid out
    box.SetText(u"item\r\nbetween\r\nab"_s);
    box.SetSelBullet(true);
    const auto laidOut = [&] {
        const QTextBlock last = box.document()->lastBlock();
        box.document()->documentLayout()->blockBoundingRect(last); // lays out up to here
        QCOMPARE(last.layout()->lineCount(), 1);
        QCOMPARE(last.layout()->lineAt(0).textLength(), last.length() - 1);
        const bool large =
            box.document()->lastBlock().begin().fragment().charFormat().fontPointSize() > 30;
        QCOMPARE(last.layout()->lineAt(0).height() > 30, large);
    };
    laidOut();
    {
        const RichTextBox::Batch batch(box);
        box.SetSelStart(15);
        box.SetSelLength(2);
        if (text)
            box.SetSelText(u"abc"_s);
        else
            box.SetSelFontSize(40);
        box.SetSelStart(1);
        box.SetSelText(u"\r\n"_s.repeated(8));
        if (removed) {
            box.SetSelStart(1);
            box.SetSelLength(16);
            box.SetSelText(QString());
        }
    }
    laidOut();
    box.Undo();
    laidOut();
    QTest::keySequence(&box, QKeySequence::Redo);
    laidOut();
}

void RichTextBoxTextTest::everyWayToChangeTheContentTellsOnce() {
    QTemporaryDir folder;
    RichTextBox file;
    file.SetText(u"from a file"_s);
    file.files().SaveFile(folder.filePath(u"a.rtf"_s), 0);
    file.files().SaveFile(folder.filePath(u"a.txt"_s), 1);
    const std::pair<const char*, std::function<void(RichTextBox&)>> ways[] = {
        {"Text", [](RichTextBox& box) { box.SetText(u"x"_s); }},
        {"Text, empty", [](RichTextBox& box) { box.SetText(QString()); }},
        {"TextRTF", [](RichTextBox& box) { box.SetTextRTF(QByteArrayLiteral("{\\rtf1 x}")); }},
        {"TextRTF, plain", [](RichTextBox& box) { box.SetTextRTF(u"x"_s); }},
        {"SelText", [](RichTextBox& box) { box.SetSelText(u"x\r\ny"_s); }},
        {"SelRTF", [](RichTextBox& box) { box.SetSelRTF(QByteArrayLiteral("{\\rtf1 x}")); }},
        {"SelBold", [](RichTextBox& box) { box.SetSelBold(true); }},
        {"SelItalic", [](RichTextBox& box) { box.SetSelItalic(true); }},
        {"SelUnderline", [](RichTextBox& box) { box.SetSelUnderline(true); }},
        {"SelStrikeThru", [](RichTextBox& box) { box.SetSelStrikeThru(true); }},
        {"SelFontName", [](RichTextBox& box) { box.SetSelFontName(u"Liberation Mono"_s); }},
        {"SelFontSize", [](RichTextBox& box) { box.SetSelFontSize(30); }},
        {"SelColor", [](RichTextBox& box) { box.SetSelColor(255); }},
        {"SelAlignment", [](RichTextBox& box) { box.SetSelAlignment(2); }},
        {"SelIndent", [](RichTextBox& box) { box.SetSelIndent(454); }},
        {"SelBullet", [](RichTextBox& box) { box.SetSelBullet(true); }},
        {"Font.Name", [](RichTextBox& box) { box.SetFontName(u"Liberation Mono"_s); }},
        {"Font.Size", [](RichTextBox& box) { box.SetFontSize(30); }},
        {"LoadFile 0",
         [&](RichTextBox& box) { box.files().LoadFile(folder.filePath(u"a.rtf"_s), 0); }},
        {"LoadFile 1",
         [&](RichTextBox& box) { box.files().LoadFile(folder.filePath(u"a.txt"_s), 1); }},
        {"Undo", [](RichTextBox& box) { box.Undo(); }},
        {"Cut", [](RichTextBox& box) { box.Cut(); }},
        {"typing", [](RichTextBox& box) { QTest::keyClicks(&box, u"x"_s); }},
        {"deleting", [](RichTextBox& box) { QTest::keyClick(&box, Qt::Key_Delete); }},
        {"Return", [](RichTextBox& box) { QTest::keyClick(&box, Qt::Key_Return); }},
    };
    for (const auto& [name, way] : ways) {
        RichTextBox box;
        box.SetText(u"some words"_s);
        box.SetSelText(u"and "_s);
        box.SetSelStart(4);
        box.SetSelLength(4);
        QSignalSpy changes(&box, &RichTextBox::Change);
        way(box);
        QVERIFY2(changes.count() == 1,
                 qPrintable(u"%1: %2"_s.arg(QLatin1StringView(name)).arg(changes.count())));
    }
}

/// The user may not change it, the program may.
void RichTextBoxTextTest::aReadOnlyBoxTakesWhatTheProgramSets() {
    QTemporaryDir folder;
    RichTextBox file;
    file.SetText(u"from a file"_s);
    file.files().SaveFile(folder.filePath(u"a.rtf"_s), 0);
    RichTextBox box;
    box.setReadOnly(true);
    QSignalSpy changes(&box, &RichTextBox::Change);
    box.SetSelFontSize(10);
    QCOMPARE(box.SelFontSize(), std::optional<qreal>(10));
    box.SetText(u"text"_s);
    QCOMPARE(box.Text(), u"text"_s);
    box.selectAll();
    QCOMPARE(box.SelFontSize(), std::optional<qreal>(10));
    box.SetSelText(u"other"_s);
    QCOMPARE(box.Text(), u"other"_s);
    box.SetSelRTF(QByteArrayLiteral("{\\rtf1  words}"));
    QCOMPARE(box.Text(), u"other words"_s);
    box.files().LoadFile(folder.filePath(u"a.rtf"_s), 0);
    QCOMPARE(box.Text(), u"from a file"_s);
    box.SetTextRTF(QByteArrayLiteral("{\\rtf1 rich}"));
    QCOMPARE(box.Text(), u"rich"_s);
    QCOMPARE(changes.count(), 6);
}

ORVALIS_TEST_MAIN_WITH(QApplication, RichTextBoxTextTest)
#include "rich_text_box_text_test.moc"
