// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/notes_ground.h"

#include <QClipboard>
#include <QFrame>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

/// What the keyboard does on the Notes panel beside what its controls do.
class NotesKeysTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_ground.reset(); }
    void theKeyboardReachesAllButTheButtonsThatHaveKeys();
    void theFindFrameComesBehindThePageWhileItShows();
    void tabLeavesThePageAndControlAndTabWritesOne();
    void spaceAndEnterPressATool_data();
    void spaceAndEnterPressATool();
    void theArrowsLeadFromOneAlignmentToTheNext();
    void theCommandsOfTheDocumentHaveTheirKeys();
    void boldItalicAndUnderlineHaveTheirKeys_data();
    void boldItalicAndUnderlineHaveTheirKeys();
    void fontAndFindHaveTheirKeys();
    void f5OpensTheDateMenuAtTheCaret();
    void controlAndECarriesTheRightPageOver();
    void replaceAndReplaceAllHaveTheirKeysWhileTheyCanBePressed();
    void escapeClosesTheFindFrame();
    void escapeOutsideOfFindingLeavesThePage();

private:
    void key(int key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(m_ground->panel().focusWidget(), static_cast<Qt::Key>(key), held);
    }
    void focus(const QString& name) {
        m_ground->control<QWidget>(name).setFocus(Qt::TabFocusReason);
    }
    QString focused() { return m_ground->panel().focusWidget()->objectName(); }
    QStringList tabbedFrom(const QString& first) {
        focus(first);
        QStringList reached;
        do {
            key(Qt::Key_Tab);
            reached << focused();
        } while (reached.constLast() != first && reached.size() < 60);
        return reached;
    }

    std::unique_ptr<NotesGround> m_ground;
};

void NotesKeysTest::init() {
    QApplication::clipboard()->clear();
    m_ground = std::make_unique<NotesGround>();
    m_ground->shown();
}

void NotesKeysTest::theKeyboardReachesAllButTheButtonsThatHaveKeys() {
    // Nothing is selected, on the clipboard or to be undone: those tools are passed over.
    QCOMPARE(tabbedFrom(u"rt1"_s),
             (QStringList{u"Toolbar1(1)"_s,  u"Toolbar1(5)"_s, u"Toolbar1(6)"_s,  u"Toolbar1(7)"_s,
                          u"Toolbar2(1)"_s,  u"Toolbar2(2)"_s, u"Toolbar2(4)"_s,  u"Toolbar2(5)"_s,
                          u"Toolbar2(7)"_s,  u"Toolbar2(9)"_s, u"Toolbar2(10)"_s, u"Toolbar2(12)"_s,
                          u"Toolbar2(14)"_s, u"imgNew"_s,      u"imgSave"_s,      u"imgSlika"_s,
                          u"imgFind"_s,      u"imgMail"_s,     u"rt1a"_s,         u"imgOpen"_s,
                          u"imgPrint"_s,     u"lblNot"_s,      u"lblAdd"_s,       u"lblPass"_s,
                          u"imgSet"_s,       u"imgMini"_s,     u"imgHelp"_s,      u"imgExit"_s,
                          u"rt1"_s}));
}

void NotesKeysTest::theFindFrameComesBehindThePageWhileItShows() {
    m_ground->press(u"Toolbar2(7)"_s);
    QCOMPARE(tabbedFrom(u"rt1"_s).mid(0, 5),
             (QStringList{u"Text1"_s, u"Text2"_s, u"Check4"_s, u"Check3"_s, u"Toolbar1(1)"_s}));
}

void NotesKeysTest::tabLeavesThePageAndControlAndTabWritesOne() {
    focus(u"rt1"_s);
    key(Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(m_ground->rt1().Text(), u"\t"_s);
    QCOMPARE(focused(), u"rt1"_s);
    key(Qt::Key_Tab);
    QCOMPARE(m_ground->rt1().Text(), u"\t"_s);
    QVERIFY(focused() != u"rt1"_s);
    key(Qt::Key_Backtab);
    QCOMPARE(focused(), u"rt1"_s);
}

void NotesKeysTest::spaceAndEnterPressATool_data() {
    QTest::addColumn<int>("pressed");
    QTest::newRow("Space") << int(Qt::Key_Space);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void NotesKeysTest::spaceAndEnterPressATool() {
    QFETCH(int, pressed);
    m_ground->write(u"word"_s);
    m_ground->select(0, 4);
    focus(u"Toolbar1(5)"_s);
    key(pressed);
    QCOMPARE(m_ground->rt1().SelBold(), std::optional(true));
    QCOMPARE(m_ground->rt1().Text(), u"word"_s);
    QCOMPARE(focused(), u"rt1"_s);
}

void NotesKeysTest::theArrowsLeadFromOneAlignmentToTheNext() {
    focus(u"Toolbar1(1)"_s);
    key(Qt::Key_Right);
    QVERIFY(m_ground->isDown(u"Toolbar1(2)"_s));
    QCOMPARE(m_ground->rt1().SelAlignment(), std::optional<int>(RichTextBox::rtfCenter));
}

void NotesKeysTest::theCommandsOfTheDocumentHaveTheirKeys() {
    m_ground->dialogs.answerOpen(std::nullopt);
    key(Qt::Key_O, Qt::ControlModifier);
    QCOMPARE(m_ground->dialogs.opened.size(), 1);
    m_ground->dialogs.answerSave(std::nullopt);
    key(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(m_ground->dialogs.saved.size(), 1);
    m_ground->dialogs.answerPrinter(false);
    key(Qt::Key_P, Qt::ControlModifier);
    QCOMPARE(m_ground->dialogs.printersChosen, 1);
    m_ground->write(u"word"_s);
    m_ground->boxes.answer(Answer::Yes);
    key(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(m_ground->rt1().Text(), QString());
}

void NotesKeysTest::boldItalicAndUnderlineHaveTheirKeys_data() {
    QTest::addColumn<int>("letter");
    QTest::addColumn<QString>("button");
    QTest::newRow("bold") << int(Qt::Key_B) << u"Toolbar1(5)"_s;
    QTest::newRow("italic") << int(Qt::Key_I) << u"Toolbar1(6)"_s;
    QTest::newRow("underline") << int(Qt::Key_U) << u"Toolbar1(7)"_s;
}

void NotesKeysTest::boldItalicAndUnderlineHaveTheirKeys() {
    QFETCH(int, letter);
    QFETCH(QString, button);
    m_ground->write(u"word"_s);
    m_ground->select(0, 4);
    const auto isOn = [&] {
        const RichTextBox& page = m_ground->rt1();
        const std::array all{page.SelBold(), page.SelItalic(), page.SelUnderline()};
        const int index = letter == Qt::Key_B ? 0 : letter == Qt::Key_I ? 1 : 2;
        return all.at(static_cast<std::size_t>(index)) == std::optional(true) &&
               std::count(all.begin(), all.end(), std::optional(true)) == 1;
    };
    key(letter, Qt::ControlModifier);
    QVERIFY(isOn());
    QVERIFY(m_ground->isDown(button));
    key(letter, Qt::ControlModifier);
    QVERIFY(!isOn());
    QVERIFY(!m_ground->isDown(button));
}

void NotesKeysTest::fontAndFindHaveTheirKeys() {
    m_ground->dialogs.answerFont(std::nullopt);
    key(Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(m_ground->dialogs.fonts.size(), 1);
    m_ground->write(u"word"_s);
    m_ground->select(0, 4);
    key(Qt::Key_F, Qt::ControlModifier);
    QVERIFY(m_ground->isUp(u"Frame1"_s));
    QCOMPARE(m_ground->control<QLineEdit>(u"Text1"_s).text(), u"word"_s);
    QCOMPARE(focused(), u"Text1"_s);
}

void NotesKeysTest::f5OpensTheDateMenuAtTheCaret() {
    QStringList asked;
    std::optional<QPoint> place;
    m_ground->program.windows.registerMaker<PopupMenus>(
        [&] { return std::make_unique<MenuLog>(asked, &place); });
    m_ground->write(u"word"_s);
    key(Qt::Key_F5);
    QCOMPARE(asked, QStringList{u"mnudate"_s});
    RichTextBox& page = m_ground->rt1();
    QCOMPARE(place, page.viewport()->mapToGlobal(page.cursorRect().bottomLeft()));
    m_ground->program.windows.unload<PopupMenus>();
}

void NotesKeysTest::controlAndECarriesTheRightPageOver() {
    m_ground->rt1a().SetText(u"right page"_s);
    key(Qt::Key_E, Qt::ControlModifier);
    QCOMPARE(m_ground->rt1().Text(), u"right page"_s);
}

void NotesKeysTest::replaceAndReplaceAllHaveTheirKeysWhileTheyCanBePressed() {
    m_ground->write(u" one one one"_s);
    key(Qt::Key_F, Qt::ControlModifier);
    m_ground->control<QLineEdit>(u"Text2"_s).setText(u"two"_s);
    m_ground->control<QLineEdit>(u"Text1"_s).setText(u"one"_s);
    key(Qt::Key_H, Qt::ControlModifier);
    key(Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(m_ground->rt1().Text(), u" one one one"_s);
    focus(u"Text1"_s);
    key(Qt::Key_Return);
    key(Qt::Key_H, Qt::ControlModifier);
    QCOMPARE(m_ground->rt1().Text(), u" two one one"_s);
    m_ground->boxes.expect(u"Replacing done."_s, 0, Answer::Ok);
    key(Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(m_ground->rt1().Text(), u" two two two"_s);
}

void NotesKeysTest::escapeClosesTheFindFrame() {
    for (const QString& from : {u"Text1"_s, u"Text2"_s, u"Check3"_s, u"rt1"_s}) {
        m_ground->press(u"Toolbar2(7)"_s);
        focus(from);
        key(Qt::Key_Escape);
        QVERIFY2(!m_ground->isUp(u"Frame1"_s), qPrintable(from));
        QCOMPARE(focused(), u"rt1"_s);
    }
}

void NotesKeysTest::escapeOutsideOfFindingLeavesThePage() {
    m_ground->write(u"word"_s);
    key(Qt::Key_Escape);
    QCOMPARE(m_ground->rt1().Text(), u"word"_s);
    QVERIFY(m_ground->panel().isVisible());
}

ORVALIS_TEST_MAIN_WITH(QApplication, NotesKeysTest)
#include "notes_keys_test.moc"
