// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/notes_ground.h"

#include <QClipboard>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

class NotesEditTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_ground.reset(); }

    void theActiveTextIsAlwaysTheLeftPage();
    void canCopyFromOneSelectedCharacterOn();
    void canPasteAsksForAnyFormat();
    void undoReachesBackOverSeveralActions();
    void cutCopyAndPasteGoByTheClipboard();
    void theUndoKindHasTheNumberOfTheLastAction();
    void theHandleIsThatOfThePagesWindow();
    void anUndoOfAFormatLeavesTheChangesAsTheyWere();
    void newAndEditDropTheHistory();

private:
    frmnotes2& panel() { return m_ground->panel(); }
    RichTextBox& rt1() { return m_ground->rt1(); }

    std::unique_ptr<NotesGround> m_ground;
};

void NotesEditTest::init() {
    QApplication::clipboard()->clear();
    m_ground = std::make_unique<NotesGround>();
    m_ground->shown();
}

void NotesEditTest::theActiveTextIsAlwaysTheLeftPage() {
    m_ground->rt1a().setFocus();
    QCOMPARE(panel().m_ActiveText(), &rt1());
}

void NotesEditTest::canCopyFromOneSelectedCharacterOn() {
    m_ground->write(u"text"_s);
    QVERIFY(!panel().CanCopy());
    m_ground->select(0, 1);
    QVERIFY(panel().CanCopy());
}

void NotesEditTest::canPasteAsksForAnyFormat() {
    QVERIFY(!panel().CanPaste());
    QApplication::clipboard()->setText(u"text"_s);
    QVERIFY(panel().CanPaste());
}

void NotesEditTest::undoReachesBackOverSeveralActions() {
    QVERIFY(!panel().CanUndo());
    m_ground->write(u"one"_s);
    m_ground->select(0, 3);
    rt1().SetSelBold(true);
    m_ground->write(u"two"_s);
    QVERIFY(panel().CanUndo());
    panel().Undo();
    QCOMPARE(rt1().Text(), u"one"_s);
    m_ground->select(0, 3);
    QCOMPARE(rt1().SelBold(), std::optional(true));
    panel().Undo();
    QCOMPARE(rt1().SelBold(), std::optional(false));
    panel().Undo();
    QCOMPARE(rt1().Text(), QString());
    QVERIFY(!panel().CanUndo());
}

void NotesEditTest::cutCopyAndPasteGoByTheClipboard() {
    m_ground->write(u"one two"_s);
    m_ground->select(0, 3);
    panel().Copy();
    QCOMPARE(QApplication::clipboard()->text(), u"one"_s);
    m_ground->select(3, 4);
    panel().Cut();
    QCOMPARE(QApplication::clipboard()->text(), u" two"_s);
    QCOMPARE(rt1().Text(), u"one"_s);
    m_ground->select(0, 0);
    panel().Paste();
    QCOMPARE(rt1().Text(), u" twoone"_s);
}

void NotesEditTest::theUndoKindHasTheNumberOfTheLastAction() {
    QCOMPARE(panel().UndoType(), 0);
    QTest::keyClick(&rt1(), Qt::Key_A);
    QCOMPARE(panel().UndoType(), 1);
    QCOMPARE(undoKindName(panel().UndoType()), u"Typing"_s);
    QTest::keyClick(&rt1(), Qt::Key_Backspace);
    QCOMPARE(panel().UndoType(), 2);
    QApplication::clipboard()->setText(u"text"_s);
    panel().Paste();
    QCOMPARE(panel().UndoType(), 5);
    m_ground->select(0, 1);
    panel().Cut();
    QCOMPARE(panel().UndoType(), 4);
}

void NotesEditTest::theHandleIsThatOfThePagesWindow() {
    QVERIFY(panel().m_hWnd() != 0);
    QCOMPARE(panel().m_hWnd(), panel().effectiveWinId());
}

void NotesEditTest::anUndoOfAFormatLeavesTheChangesAsTheyWere() {
    m_ground->write(u"text"_s);
    m_ground->dialogs.answerSave(m_ground->folder.file(u"a.rtf"_s));
    m_ground->press(u"imgSave"_s);
    m_ground->select(0, 4);
    m_ground->press(u"Toolbar1(5)"_s);
    QVERIFY(!m_ground->asksToLeave());
    panel().Undo();
    QVERIFY(!m_ground->asksToLeave());
    m_ground->write(u"!"_s);
    m_ground->select(0, 4);
    m_ground->press(u"Toolbar1(5)"_s);
    panel().Undo();
    QVERIFY(m_ground->asksToLeave());
}

void NotesEditTest::newAndEditDropTheHistory() {
    m_ground->write(u"text"_s);
    m_ground->boxes.answer(Answer::Yes);
    m_ground->press(u"Button1"_s);
    QVERIFY(!panel().CanUndo());
    m_ground->write(u"text"_s);
    m_ground->boxes.answer(Answer::Yes);
    m_ground->press(u"imgNew"_s);
    rt1().Undo();
    QCOMPARE(rt1().Text(), QString());
}

ORVALIS_TEST_MAIN_WITH(QApplication, NotesEditTest)
#include "notes_edit_test.moc"
