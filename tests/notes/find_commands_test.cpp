// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/find_commands.h"

#include "controls/rich_text_box.h"
#include "runtime/failure.h"
#include "support/failure_of.h"
#include "support/test_main.h"

#include <QApplication>
#include <QSignalSpy>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

class FindCommandsTest : public QObject {
    Q_OBJECT
private slots:
    void init() { m_box = std::make_unique<RichTextBox>(); }
    void cleanup() { m_box.reset(); }

    void theOptionsAreTwoForWholeWordsAndFourForCase();
    void aFindBeginsAtTheSecondCharacter();
    void aFindBeginsAnewEachTime();
    void nextGoesOnOneBehindTheLastHit();
    void aMissLeavesMinusOneAndTheSelection();
    void afterAMissTheNextSearchBeginsAtTheFirstCharacterAndAHitThereCountsAsNone();
    void replaceTakesTheSelectionWhateverItIsAndSelectsTheNextHit();
    void replaceAllBeginsWithTheSelectionEvenIfThatIsNoHit();
    void replaceAllReplacesEveryHitFromTheTop();
    void replaceAllIsOneStepOfUndoAndOneChange();
    void replaceAllGoesOnInsideAReplacementThatHoldsTheTextUntilItOverflows();
    void caseAndWholeWordCountAtOnce();
    void anEmptyTextIsFoundNowhere();
    void aHitAt32767IsTakenAndOneBeyondOverflows();
    void aSearchFrom32768OverflowsHitOrNoHit();

private:
    std::unique_ptr<RichTextBox> m_box;
    FindCommands m_find;
};

void FindCommandsTest::theOptionsAreTwoForWholeWordsAndFourForCase() {
    QCOMPARE(FindRequest().options(), 0);
    QCOMPARE((FindRequest{.wholeWord = true}.options()), 2);
    QCOMPARE((FindRequest{.matchCase = true}.options()), 4);
    QCOMPARE((FindRequest{.wholeWord = true, .matchCase = true}.options()), 6);
}

void FindCommandsTest::aFindBeginsAtTheSecondCharacter() {
    m_box->SetText(u"two one two"_s);
    QVERIFY(m_find.find(*m_box, {.text = u"two"_s}));
    QCOMPARE(m_box->SelStart(), 8);
    m_box->SetText(u"two"_s);
    QVERIFY(!m_find.find(*m_box, {.text = u"two"_s}));
}

void FindCommandsTest::aFindBeginsAnewEachTime() {
    m_box->SetText(u"a two two"_s);
    QVERIFY(m_find.find(*m_box, {.text = u"two"_s}));
    QVERIFY(m_find.findNext(*m_box, {.text = u"two"_s}));
    QVERIFY(m_find.find(*m_box, {.text = u"two"_s}));
    QCOMPARE(m_box->SelStart(), 2);
}

void FindCommandsTest::nextGoesOnOneBehindTheLastHit() {
    m_box->SetText(u"xaaa"_s);
    QVERIFY(m_find.find(*m_box, {.text = u"aa"_s}));
    QCOMPARE(m_find.foundPosition(), 1);
    QVERIFY(m_find.findNext(*m_box, {.text = u"aa"_s}));
    QCOMPARE(m_find.foundPosition(), 2);
}

void FindCommandsTest::aMissLeavesMinusOneAndTheSelection() {
    m_box->SetText(u"one two"_s);
    m_box->SetSelStart(4);
    m_box->SetSelLength(3);
    QVERIFY(!m_find.find(*m_box, {.text = u"three"_s}));
    QCOMPARE(m_find.foundPosition(), -1);
    QCOMPARE(m_box->SelText(), u"two"_s);
}

void FindCommandsTest::afterAMissTheNextSearchBeginsAtTheFirstCharacterAndAHitThereCountsAsNone() {
    m_box->SetText(u"two"_s);
    QVERIFY(!m_find.find(*m_box, {.text = u"two"_s}));
    QVERIFY(!m_find.findNext(*m_box, {.text = u"two"_s}));
    QCOMPARE(m_find.foundPosition(), 0);
    QCOMPARE(m_box->SelText(), u"two"_s);
}

void FindCommandsTest::replaceTakesTheSelectionWhateverItIsAndSelectsTheNextHit() {
    m_box->SetText(u"a red, a red"_s);
    const FindRequest request{.text = u"red"_s, .replacement = u"blue"_s};
    QVERIFY(m_find.find(*m_box, request));
    QVERIFY(m_find.replace(*m_box, request));
    QCOMPARE(m_box->Text(), u"a blue, a red"_s);
    QCOMPARE(m_box->SelText(), u"red"_s);
    m_box->SetSelStart(0);
    m_box->SetSelLength(1);
    QVERIFY(m_find.replace(*m_box, request));
    QCOMPARE(m_box->Text(), u"blue blue, a red"_s);
}

void FindCommandsTest::replaceAllBeginsWithTheSelectionEvenIfThatIsNoHit() {
    m_box->SetText(u"keep this two two"_s);
    m_box->SetSelStart(5);
    m_box->SetSelLength(4);
    m_find.replaceAll(*m_box, {.text = u"two"_s, .replacement = u"2"_s});
    QCOMPARE(m_box->Text(), u"keep 2 2 2"_s);
}

void FindCommandsTest::replaceAllReplacesEveryHitFromTheTop() {
    m_box->SetText(u"two two two"_s);
    m_box->SetSelStart(11);
    m_find.replaceAll(*m_box, {.text = u"two"_s, .replacement = u"x"_s});
    // The caret takes one, and what stands at the very beginning is never reached.
    QCOMPARE(m_box->Text(), u"two x xx"_s);
}

void FindCommandsTest::replaceAllIsOneStepOfUndoAndOneChange() {
    m_box->SetText(u"a two two two"_s);
    m_box->SetSelStart(2);
    m_box->SetSelLength(3);
    QSignalSpy changes(m_box.get(), &RichTextBox::Change);
    m_find.replaceAll(*m_box, {.text = u"two"_s, .replacement = u"2"_s});
    QCOMPARE(m_box->Text(), u"a 2 2 2"_s);
    QCOMPARE(changes.count(), 1);
    m_box->Undo();
    QCOMPARE(m_box->Text(), u"a two two two"_s);
    QVERIFY(!m_box->CanUndo());
}

void FindCommandsTest::replaceAllGoesOnInsideAReplacementThatHoldsTheTextUntilItOverflows() {
    m_box->SetText(u"x a"_s);
    const FindRequest request{.text = u"a"_s, .replacement = u"aa"_s};
    QCOMPARE(failureOf([&] { m_find.replaceAll(*m_box, request); }), ErrorNumber::Overflow);
    QCOMPARE(m_find.foundPosition(), 32767);
    QVERIFY(m_box->Text().size() > 32767);
    m_box->Undo();
    QCOMPARE(m_box->Text(), u"x a"_s);
}

void FindCommandsTest::caseAndWholeWordCountAtOnce() {
    m_box->SetText(u"- TWO twofold two"_s);
    QVERIFY(m_find.find(*m_box, {.text = u"two"_s}));
    QCOMPARE(m_find.foundPosition(), 2);
    QVERIFY(m_find.findNext(*m_box, {.text = u"two"_s, .matchCase = true}));
    QCOMPARE(m_find.foundPosition(), 6);
    QVERIFY(m_find.findNext(*m_box, {.text = u"two"_s, .wholeWord = true}));
    QCOMPARE(m_find.foundPosition(), 14);
}

void FindCommandsTest::anEmptyTextIsFoundNowhere() {
    m_box->SetText(u"text"_s);
    QVERIFY(!m_find.find(*m_box, {}));
    QVERIFY(!m_find.findNext(*m_box, {}));
}

void FindCommandsTest::aHitAt32767IsTakenAndOneBeyondOverflows() {
    const FindRequest request{.text = u"two"_s};
    m_box->SetText(QString(32'767, u'.') + u"two"_s);
    QVERIFY(m_find.find(*m_box, request));
    QCOMPARE(m_find.foundPosition(), 32'767);
    m_box->SetText(QString(32'768, u'.') + u"two"_s);
    QCOMPARE(failureOf([&] { m_find.find(*m_box, request); }), ErrorNumber::Overflow);
}

void FindCommandsTest::aSearchFrom32768OverflowsHitOrNoHit() {
    const FindRequest request{.text = u"two"_s};
    m_box->SetText(QString(32'767, u'.') + u"two"_s);
    QVERIFY(m_find.find(*m_box, request));
    QCOMPARE(failureOf([&] { m_find.findNext(*m_box, request); }), ErrorNumber::Overflow);
    QVERIFY(m_find.find(*m_box, request));
    QCOMPARE(failureOf([&] { m_find.replace(*m_box, request); }), ErrorNumber::Overflow);
    QVERIFY(m_box->Text().endsWith(u'.'));
}

ORVALIS_TEST_MAIN_WITH(QApplication, FindCommandsTest)
#include "find_commands_test.moc"
