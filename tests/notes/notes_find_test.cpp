// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/notes_ground.h"

#include "controls/twips_geometry.h"
#include "runtime/failure.h"

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

class NotesFindTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_ground.reset(); }

    void theFrameIsHiddenUntilItIsAskedFor();
    void theFrameOpensWithTheSelectionAndDisabledSteps();
    void aSelectionOfSeveralParagraphsGivesItsFirstLine();
    void theFrameHasItsWords();
    void closeHidesTheFrame();
    void findSelectsTheHitAndEnablesTheSteps();
    void aHitAtTheFirstCharacterIsNeverFoundByFind();
    void aMissOfFindDisablesTheSteps();
    void nextGoesOnAndTakesTheFocus();
    void aMissOfNextDisablesTheSteps();
    void afterAMissF3SearchesFromTheTopAndTheHitThereIsReportedAsNone();
    void replaceReplacesAndLeavesTheFocus();
    void aMissOfReplaceDisablesTheSteps();
    void replaceAllTellsThatItIsDone();
    void replaceAllReplacesTheSelectionFirst();
    void aChangeOfTheTextDisablesTheStepsButF3OnThePageStillSearches();
    void caseAndWholeWordCountWithoutANewFind();
    void f3WorksOnThePageAndInBothFields();
    void enterInTheFirstFieldFindsOnce();
    void enterInTheSecondFieldDoesNothing();
    void findNextIsThatOfTheButton();
    void aHitBeyond32767LeavesTheHandler();
    void theFrameLiesOverADoublePage();

private:
    RichTextBox& rt1() { return m_ground->rt1(); }
    QLineEdit& wanted() { return m_ground->control<QLineEdit>(u"Text1"_s); }
    QLineEdit& replacement() { return m_ground->control<QLineEdit>(u"Text2"_s); }
    void search(const QString& text, const QString& what, const QString& with = {}) {
        rt1().SetText(text);
        wanted().setText(what);
        replacement().setText(with);
    }
    void expectMiss() { m_ground->boxes.expect(u"String not found."_s, 0, Answer::Ok); }
    /// Which of Replace, Replace All and Next are enabled.
    QStringList steps() {
        QStringList names;
        for (const QString& name : {u"ReplaceButton"_s, u"ReplaceAllButton"_s, u"FindNextButton"_s})
            if (m_ground->isEnabled(name))
                names << name;
        return names;
    }
    QStringList allSteps() const {
        return {u"ReplaceButton"_s, u"ReplaceAllButton"_s, u"FindNextButton"_s};
    }
    QWidget* focus() { return m_ground->panel().focusWidget(); }

    std::unique_ptr<NotesGround> m_ground;
};

void NotesFindTest::init() {
    m_ground = std::make_unique<NotesGround>();
    m_ground->shown();
}

void NotesFindTest::theFrameIsHiddenUntilItIsAskedFor() {
    QVERIFY(!m_ground->isUp(u"Frame1"_s));
    m_ground->press(u"Toolbar2(7)"_s);
    QVERIFY(m_ground->isUp(u"Frame1"_s));
}

void NotesFindTest::theFrameOpensWithTheSelectionAndDisabledSteps() {
    search(u"one two one"_s, u"one"_s, u"old"_s);
    m_ground->press(u"FindButton"_s);
    QCOMPARE(steps(), allSteps());
    m_ground->select(4, 3);
    m_ground->press(u"Toolbar2(7)"_s);
    QCOMPARE(wanted().text(), u"two"_s);
    QCOMPARE(replacement().text(), QString());
    QCOMPARE(steps(), QStringList());
    QCOMPARE(focus(), &wanted());
    // The same text is no change of it, and disables them too.
    m_ground->press(u"FindButton"_s);
    m_ground->press(u"Toolbar2(7)"_s);
    QCOMPARE(steps(), QStringList());
}

void NotesFindTest::aSelectionOfSeveralParagraphsGivesItsFirstLine() {
    m_ground->write(u"one\r\ntwo"_s);
    m_ground->select(0, 8);
    m_ground->press(u"Toolbar2(7)"_s);
    QCOMPARE(wanted().text(), u"one"_s);
}

void NotesFindTest::theFrameHasItsWords() {
    QCOMPARE(m_ground->caption(u"Label5"_s), u"Find what:"_s);
    QCOMPARE(m_ground->caption(u"Label4"_s), u"Replace with:"_s);
    QCOMPARE(m_ground->control<QCheckBox>(u"Check4"_s).text(), u"&Case sensitive"_s);
    QCOMPARE(m_ground->control<QCheckBox>(u"Check3"_s).text(), u"&Whole word only"_s);
    const QMap<QString, QString> captions{{u"FindButton"_s, u"Find"_s},
                                          {u"FindNextButton"_s, u"Next"_s},
                                          {u"ReplaceButton"_s, u"Replace"_s},
                                          {u"ReplaceAllButton"_s, u"Replace All"_s},
                                          {u"Command5"_s, u"Close"_s}};
    for (auto it = captions.begin(); it != captions.end(); ++it)
        QCOMPARE(m_ground->control<GGCommand>(it.key()).Caption(), it.value());
}

void NotesFindTest::closeHidesTheFrame() {
    m_ground->press(u"Toolbar2(7)"_s);
    m_ground->press(u"Command5"_s);
    QVERIFY(!m_ground->isUp(u"Frame1"_s));
}

void NotesFindTest::findSelectsTheHitAndEnablesTheSteps() {
    m_ground->press(u"Toolbar2(7)"_s);
    search(u"one two three two"_s, u"two"_s);
    m_ground->press(u"FindButton"_s);
    QCOMPARE(rt1().SelStart(), 4);
    QCOMPARE(rt1().SelText(), u"two"_s);
    QCOMPARE(steps(), allSteps());
    QCOMPARE(focus(), &rt1());
}

void NotesFindTest::aHitAtTheFirstCharacterIsNeverFoundByFind() {
    search(u"two"_s, u"two"_s);
    for (int i = 0; i < 2; ++i) {
        expectMiss();
        m_ground->press(u"FindButton"_s);
    }
}

void NotesFindTest::aMissOfFindDisablesTheSteps() {
    m_ground->press(u"Toolbar2(7)"_s);
    search(u"a two"_s, u"two"_s);
    m_ground->press(u"FindButton"_s);
    rt1().SetText(u"nothing"_s);
    wanted().setFocus();
    expectMiss();
    m_ground->press(u"FindButton"_s);
    QCOMPARE(steps(), QStringList());
    QCOMPARE(focus(), &wanted());
}

void NotesFindTest::nextGoesOnAndTakesTheFocus() {
    m_ground->press(u"Toolbar2(7)"_s);
    search(u"a two two"_s, u"two"_s);
    m_ground->press(u"FindButton"_s);
    wanted().setFocus();
    m_ground->press(u"FindNextButton"_s);
    QCOMPARE(rt1().SelStart(), 6);
    QCOMPARE(focus(), &rt1());
    QCOMPARE(steps(), allSteps());
}

void NotesFindTest::aMissOfNextDisablesTheSteps() {
    search(u"a two"_s, u"two"_s);
    m_ground->press(u"FindButton"_s);
    expectMiss();
    m_ground->press(u"FindNextButton"_s);
    QCOMPARE(steps(), QStringList());
}

void NotesFindTest::afterAMissF3SearchesFromTheTopAndTheHitThereIsReportedAsNone() {
    search(u"two"_s, u"two"_s);
    expectMiss();
    m_ground->press(u"FindButton"_s);
    rt1().setFocus();
    expectMiss();
    QTest::keyClick(&rt1(), Qt::Key_F3);
    QCOMPARE(rt1().SelText(), u"two"_s);
}

void NotesFindTest::replaceReplacesAndLeavesTheFocus() {
    m_ground->press(u"Toolbar2(7)"_s);
    search(u"a two two"_s, u"two"_s, u"2"_s);
    m_ground->press(u"FindButton"_s);
    replacement().setFocus();
    m_ground->press(u"ReplaceButton"_s);
    QCOMPARE(rt1().Text(), u"a 2 two"_s);
    QCOMPARE(rt1().SelText(), u"two"_s);
    QCOMPARE(focus(), &replacement());
    QCOMPARE(steps(), allSteps());
}

void NotesFindTest::aMissOfReplaceDisablesTheSteps() {
    search(u"a two"_s, u"two"_s, u"2"_s);
    m_ground->press(u"FindButton"_s);
    expectMiss();
    m_ground->press(u"ReplaceButton"_s);
    QCOMPARE(rt1().Text(), u"a 2"_s);
    QCOMPARE(steps(), QStringList());
}

void NotesFindTest::replaceAllTellsThatItIsDone() {
    search(u"a two two two"_s, u"two"_s, u"2"_s);
    m_ground->press(u"FindButton"_s);
    m_ground->boxes.expect(u"Replacing done."_s, 0, Answer::Ok);
    m_ground->boxes.meanwhile([this] {
        QCOMPARE(steps(), QStringList());
        QCOMPARE(rt1().Text(), u"a 2 2 2"_s);
    });
    m_ground->press(u"ReplaceAllButton"_s);
    QVERIFY(m_ground->asksToLeave());
    rt1().Undo();
    QCOMPARE(rt1().Text(), u"a two two two"_s);
}

void NotesFindTest::replaceAllReplacesTheSelectionFirst() {
    search(u"keep this two"_s, u"two"_s, u"2"_s);
    m_ground->press(u"FindButton"_s);
    m_ground->select(5, 4);
    m_ground->boxes.answer(Answer::Ok);
    m_ground->press(u"ReplaceAllButton"_s);
    QCOMPARE(rt1().Text(), u"keep 2 2"_s);
}

void NotesFindTest::aChangeOfTheTextDisablesTheStepsButF3OnThePageStillSearches() {
    search(u"a two three"_s, u"two"_s);
    m_ground->press(u"FindButton"_s);
    wanted().setText(u"three"_s);
    QCOMPARE(steps(), QStringList());
    QTest::keyClick(&rt1(), Qt::Key_F3);
    QCOMPARE(rt1().SelText(), u"three"_s);
    QCOMPARE(steps(), QStringList());
}

void NotesFindTest::caseAndWholeWordCountWithoutANewFind() {
    search(u"- TWO twofold two TWO"_s, u"two"_s);
    m_ground->press(u"FindButton"_s);
    QCOMPARE(rt1().SelStart(), 2);
    m_ground->tick(u"Check4"_s);
    m_ground->press(u"FindNextButton"_s);
    QCOMPARE(rt1().SelStart(), 6);
    m_ground->tick(u"Check4"_s, false);
    m_ground->tick(u"Check3"_s);
    m_ground->press(u"FindNextButton"_s);
    QCOMPARE(rt1().SelStart(), 14);
}

void NotesFindTest::f3WorksOnThePageAndInBothFields() {
    m_ground->press(u"Toolbar2(7)"_s);
    search(u"a two two two"_s, u"two"_s);
    int at = 2;
    for (QWidget* control : std::initializer_list<QWidget*>{&wanted(), &replacement(), &rt1()}) {
        control->setFocus();
        QTest::keyClick(control, Qt::Key_F3);
        QCOMPARE(rt1().SelStart(), at);
        at += 4;
    }
}

void NotesFindTest::enterInTheFirstFieldFindsOnce() {
    m_ground->press(u"Toolbar2(7)"_s);
    search(u"a two two"_s, u"two"_s);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        wanted().setFocus();
        QTest::keyClick(&wanted(), key);
        QCOMPARE(rt1().SelStart(), 2);
        QCOMPARE(steps(), allSteps());
    }
    QCOMPARE(rt1().Text(), u"a two two"_s);
}

void NotesFindTest::enterInTheSecondFieldDoesNothing() {
    m_ground->press(u"Toolbar2(7)"_s);
    search(u"a two two"_s, u"two"_s);
    replacement().setFocus();
    QTest::keyClick(&replacement(), Qt::Key_Return);
    QCOMPARE(rt1().SelLength(), 0);
    QCOMPARE(focus(), &replacement());
}

void NotesFindTest::findNextIsThatOfTheButton() {
    search(u"a two"_s, u"two"_s);
    m_ground->panel().FindNext();
    QCOMPARE(rt1().SelText(), u"two"_s);
    expectMiss();
    m_ground->panel().FindNext();
}

void NotesFindTest::aHitBeyond32767LeavesTheHandler() {
    search(QString(32'768, u'.') + u"two"_s, u"two"_s);
    const auto failure = firstFailure([this] { m_ground->press(u"FindButton"_s); });
    QVERIFY(failure);
    QCOMPARE(failure->number(), ErrorNumber::Overflow);
}

void NotesFindTest::theFrameLiesOverADoublePage() {
    m_ground->press(u"Toolbar2(9)"_s);
    m_ground->press(u"Toolbar2(7)"_s);
    auto& frame = m_ground->control<QWidget>(u"Frame1"_s);
    QCOMPARE(m_ground->panel().childAt(frame.geometry().center())->window(), &m_ground->panel());
    QWidget* top = m_ground->panel().childAt(frame.geometry().topLeft() + QPoint(4, 4));
    QVERIFY(top == &frame || frame.isAncestorOf(top));
}

ORVALIS_TEST_MAIN_WITH(QApplication, NotesFindTest)
#include "notes_find_test.moc"
