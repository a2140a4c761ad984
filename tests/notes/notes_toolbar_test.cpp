// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "notes/notes_ground.h"

#include "controls/twips_geometry.h"

#include <QClipboard>
#include <QMimeData>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

class NotesToolbarTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_ground.reset(); }

    void theButtonsHaveTheirToolTipsByIndex();
    void leftAndWordWrapAreDownAtTheStart();
    void boldItalicAndUnderlineFollowTheirButtons_data();
    void boldItalicAndUnderlineFollowTheirButtons();
    void theSecondButtonCentresAndTheThirdGoesRight();
    void anAlignmentReleasesTheOthers();
    void bulletsFollowTheirButton();
    void theIndentMovesByEightMillimetresAndTheFocusGoesToThePage();
    void paragraphsOfDifferentIndentsMoveEachByItself();
    void wordWrapFollowsItsButton();
    void doublePageCoversTheRightPageWhichStays();
    void singlePageIsAsWideAsTheToolbar();

    void theButtonsFollowTheSelection();
    void aSelectionThatIsPartBoldLeavesTheButtonsAsTheyWere();
    void aClickInThePageBringsTheButtonsInLine();
    void aHiddenPageLeavesTheButtons();
    void theButtonsAreSetWithoutBeingPressed();
    void newPressesLeftAndReleasesTheOthers();
    void newTakesTheFormatBack();

    void theFontDialogTakesTheSelectionAndGivesItsChoiceBack();
    void theFontOfTheDialogIsKept();
    void aCancelledFontDialogKeepsTheFontOfTheSelection();
    void aMixedSelectionKeepsWhatWasNotChosen();
    void theColourDialogColoursTheSelection();
    void aCancelledColourDialogChangesNothing();

    void cutAndCopyNeedASelection();
    void pasteFollowsTheClipboard();
    void undoFollowsTheHistory();
    void theCommandsCutCopyPasteAndUndo();

private:
    frmnotes2& panel() { return m_ground->panel(); }
    RichTextBox& rt1() { return m_ground->rt1(); }

    std::unique_ptr<NotesGround> m_ground;
};

void NotesToolbarTest::init() {
    QApplication::clipboard()->clear();
    m_ground = std::make_unique<NotesGround>();
    m_ground->shown();
}

void NotesToolbarTest::theButtonsHaveTheirToolTipsByIndex() {
    const QMap<QString, QStringList> tips{{u"Toolbar1"_s,
                                           {u"Left"_s,
                                            u"Center"_s,
                                            u"Right"_s,
                                            {},
                                            u"Bold"_s,
                                            u"Italic"_s,
                                            u"Underline"_s,
                                            {},
                                            u"Cut"_s,
                                            u"Copy"_s,
                                            u"Paste"_s,
                                            {},
                                            u"Undo"_s}},
                                          {u"Toolbar2"_s,
                                           {u"Font"_s,
                                            u"Font Color"_s,
                                            {},
                                            u"Increase Indent"_s,
                                            u"Decrease Indent"_s,
                                            {},
                                            u"Find"_s,
                                            {},
                                            u"Double Page"_s,
                                            u"Single Page "_s,
                                            {},
                                            u"Toggle Word Wrap"_s,
                                            {},
                                            u"Insert Bullets"_s}}};
    for (auto toolbar = tips.begin(); toolbar != tips.end(); ++toolbar) {
        QStringList found;
        for (int index = 1; index <= 20; ++index) {
            auto* button =
                panel().findChild<QToolButton*>(u"%1(%2)"_s.arg(toolbar.key()).arg(index));
            found << (button ? button->toolTip() : QString());
            if (button) {
                QVERIFY(!button->icon().isNull());
                QCOMPARE(button->accessibleName(), button->toolTip().trimmed());
            }
        }
        while (!found.isEmpty() && found.last().isEmpty())
            found.removeLast();
        QCOMPARE(found, toolbar.value());
    }
}

void NotesToolbarTest::leftAndWordWrapAreDownAtTheStart() {
    QStringList down;
    const auto buttons = panel().findChildren<QToolButton*>();
    for (const QToolButton* button : buttons)
        if (button->isChecked())
            down << button->objectName();
    QCOMPARE(down, (QStringList{u"Toolbar1(1)"_s, u"Toolbar2(12)"_s}));
    QVERIFY(rt1().WordWrap());
}

void NotesToolbarTest::boldItalicAndUnderlineFollowTheirButtons_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("word");
    QTest::newRow("bold") << u"Toolbar1(5)"_s << u"\\b"_s;
    QTest::newRow("italic") << u"Toolbar1(6)"_s << u"\\i"_s;
    QTest::newRow("underline") << u"Toolbar1(7)"_s << u"\\ul"_s;
}

void NotesToolbarTest::boldItalicAndUnderlineFollowTheirButtons() {
    QFETCH(QString, button);
    m_ground->write(u"one two"_s);
    m_ground->select(0, 3);
    const auto value = [&] {
        if (button == u"Toolbar1(5)"_s)
            return rt1().SelBold();
        return button == u"Toolbar1(6)"_s ? rt1().SelItalic() : rt1().SelUnderline();
    };
    m_ground->control<QLineEdit>(u"Text1"_s).setFocus();
    m_ground->press(button);
    QCOMPARE(value(), std::optional(true));
    QVERIFY(m_ground->isDown(button));
    QCOMPARE(panel().focusWidget(), &rt1());
    m_ground->press(button);
    QCOMPARE(value(), std::optional(false));
    m_ground->select(4, 3);
    QCOMPARE(value(), std::optional(false));
}

void NotesToolbarTest::theSecondButtonCentresAndTheThirdGoesRight() {
    m_ground->press(u"Toolbar1(2)"_s);
    QCOMPARE(rt1().SelAlignment(), std::optional(2));
    m_ground->press(u"Toolbar1(3)"_s);
    QCOMPARE(rt1().SelAlignment(), std::optional(1));
    m_ground->rt1a().setFocus();
    m_ground->press(u"Toolbar1(1)"_s);
    QCOMPARE(rt1().SelAlignment(), std::optional(0));
    QCOMPARE(panel().focusWidget(), &rt1());
}

void NotesToolbarTest::anAlignmentReleasesTheOthers() {
    m_ground->press(u"Toolbar1(3)"_s);
    QVERIFY(!m_ground->isDown(u"Toolbar1(1)"_s));
    QVERIFY(m_ground->isDown(u"Toolbar1(3)"_s));
    m_ground->press(u"Toolbar1(3)"_s);
    QVERIFY(m_ground->isDown(u"Toolbar1(3)"_s));
    QCOMPARE(rt1().SelAlignment(), std::optional(1));
}

void NotesToolbarTest::bulletsFollowTheirButton() {
    m_ground->write(u"item"_s);
    m_ground->rt1a().setFocus();
    m_ground->press(u"Toolbar2(14)"_s);
    QCOMPARE(rt1().SelBullet(), std::optional(true));
    QCOMPARE(panel().focusWidget(), &rt1());
    m_ground->press(u"Toolbar2(14)"_s);
    QCOMPARE(rt1().SelBullet(), std::optional(false));
}

void NotesToolbarTest::theIndentMovesByEightMillimetresAndTheFocusGoesToThePage() {
    m_ground->write(u"text"_s);
    m_ground->rt1a().setFocus();
    m_ground->press(u"Toolbar2(4)"_s);
    QCOMPARE(rt1().SelIndent(), std::optional(454));
    QCOMPARE(panel().focusWidget(), &rt1());
    m_ground->press(u"Toolbar2(4)"_s);
    QCOMPARE(rt1().SelIndent(), std::optional(908));
    m_ground->rt1a().setFocus();
    for (int i = 0; i < 3; ++i)
        m_ground->press(u"Toolbar2(5)"_s);
    QCOMPARE(rt1().SelIndent(), std::optional(-454));
    QCOMPARE(panel().focusWidget(), &rt1());
}

void NotesToolbarTest::paragraphsOfDifferentIndentsMoveEachByItself() {
    m_ground->write(u"one\r\ntwo"_s);
    m_ground->select(0, 0);
    m_ground->press(u"Toolbar2(4)"_s);
    m_ground->select(0, 8);
    m_ground->press(u"Toolbar2(4)"_s);
    m_ground->select(0, 0);
    QCOMPARE(rt1().SelIndent(), std::optional(908));
    m_ground->select(5, 0);
    QCOMPARE(rt1().SelIndent(), std::optional(454));
    rt1().Undo();
    QCOMPARE(rt1().SelIndent(), std::optional(0));
}

void NotesToolbarTest::wordWrapFollowsItsButton() {
    m_ground->press(u"Toolbar2(12)"_s);
    QVERIFY(!rt1().WordWrap());
    QVERIFY(!m_ground->isDown(u"Toolbar2(12)"_s));
    m_ground->press(u"Toolbar2(12)"_s);
    QVERIFY(rt1().WordWrap());
}

void NotesToolbarTest::doublePageCoversTheRightPageWhichStays() {
    const QRect left = rt1().geometry();
    const QRect right = m_ground->rt1a().geometry();
    m_ground->press(u"Toolbar2(9)"_s);
    QCOMPARE(rt1().geometry(), QRect(left.topLeft(), QPoint(right.right(), left.bottom())));
    QCOMPARE(m_ground->rt1a().geometry(), right);
    QVERIFY(m_ground->isUp(u"rt1a"_s));
    // What lies there is the editor, and nothing of the right page shows through.
    QVERIFY(rt1().isAncestorOf(panel().childAt(right.center())) ||
            panel().childAt(right.center()) == &rt1());
    m_ground->rt1a().SetText(QString(2000, u'M'));
    const QImage covered = rt1().grab().toImage();
    m_ground->rt1a().SetText({});
    const QImage same = panel().grab(rt1().geometry()).toImage();
    m_ground->rt1a().SetText(QString(2000, u'M'));
    QCOMPARE(panel().grab(rt1().geometry()).toImage(), same);
    QVERIFY(!covered.isNull());
}

void NotesToolbarTest::singlePageIsAsWideAsTheToolbar() {
    const QRect left = rt1().geometry();
    m_ground->press(u"Toolbar2(9)"_s);
    m_ground->press(u"Toolbar2(10)"_s);
    QCOMPARE(rt1().width(), m_ground->control<QWidget>(u"Toolbar2"_s).width());
    QCOMPARE(rt1().geometry(), left);
}

void NotesToolbarTest::theButtonsFollowTheSelection() {
    rt1().SetTextRTF(QByteArray("{\\rtf1 {\\fonttbl{\\f0 Arial;}}\\b one\\b0  \\i two\\i0  "
                                "\\ul three\\ulnone\\par\\qc four\\par\\qr five}"));
    const auto down = [this](int start) {
        m_ground->select(start, 1);
        QStringList names;
        for (const int index : {1, 2, 3, 5, 6, 7})
            if (m_ground->isDown(u"Toolbar1(%1)"_s.arg(index)))
                names << QString::number(index);
        return names;
    };
    QCOMPARE(down(0), (QStringList{u"1"_s, u"5"_s}));
    QCOMPARE(down(4), (QStringList{u"1"_s, u"6"_s}));
    QCOMPARE(down(8), (QStringList{u"1"_s, u"7"_s}));
    QCOMPARE(down(15), QStringList{u"2"_s});
    QCOMPARE(down(21), QStringList{u"3"_s});
    m_ground->select(0, 0);
    m_ground->press(u"Toolbar2(14)"_s);
    m_ground->select(21, 0);
    QVERIFY(!m_ground->isDown(u"Toolbar2(14)"_s));
    m_ground->select(1, 0);
    QVERIFY(m_ground->isDown(u"Toolbar2(14)"_s));
}

void NotesToolbarTest::aSelectionThatIsPartBoldLeavesTheButtonsAsTheyWere() {
    rt1().SetTextRTF(QByteArray("{\\rtf1 \\qr\\b\\i one\\par\\pard\\ql\\b0\\i0 two}"));
    m_ground->select(0, 3);
    for (const int index : {3, 5, 6})
        QVERIFY(m_ground->isDown(u"Toolbar1(%1)"_s.arg(index)));
    m_ground->select(2, 5);
    for (const int index : {3, 5, 6})
        QVERIFY(m_ground->isDown(u"Toolbar1(%1)"_s.arg(index)));
    m_ground->select(6, 1);
    QVERIFY(m_ground->isDown(u"Toolbar1(1)"_s));
    QVERIFY(!m_ground->isDown(u"Toolbar1(5)"_s));
}

void NotesToolbarTest::aClickInThePageBringsTheButtonsInLine() {
    m_ground->write(u"plain"_s);
    m_ground->control<QToolButton>(u"Toolbar1(5)"_s).setChecked(true);
    QTest::mouseClick(rt1().viewport(), Qt::LeftButton, {}, QPoint(3, 5));
    QVERIFY(!m_ground->isDown(u"Toolbar1(5)"_s));
}

void NotesToolbarTest::aHiddenPageLeavesTheButtons() {
    m_ground->control<QToolButton>(u"Toolbar1(5)"_s).setChecked(true);
    rt1().hide();
    panel().AdjustButtons2();
    QVERIFY(m_ground->isDown(u"Toolbar1(5)"_s));
    rt1().show();
    panel().AdjustButtons2();
    QVERIFY(!m_ground->isDown(u"Toolbar1(5)"_s));
}

void NotesToolbarTest::theButtonsAreSetWithoutBeingPressed() {
    rt1().SetTextRTF(QByteArray("{\\rtf1 \\qc\\b one}"));
    m_ground->select(0, 1);
    QVERIFY(m_ground->isDown(u"Toolbar1(5)"_s));
    QVERIFY(!rt1().CanUndo());
}

void NotesToolbarTest::newPressesLeftAndReleasesTheOthers() {
    for (const int index : {3, 5, 6, 7})
        m_ground->press(u"Toolbar1(%1)"_s.arg(index));
    m_ground->press(u"Toolbar2(14)"_s);
    m_ground->press(u"imgNew"_s);
    QVERIFY(m_ground->isDown(u"Toolbar1(1)"_s));
    for (const QString& name : {u"Toolbar1(2)"_s, u"Toolbar1(3)"_s, u"Toolbar1(5)"_s,
                                u"Toolbar1(6)"_s, u"Toolbar1(7)"_s, u"Toolbar2(14)"_s})
        QVERIFY2(!m_ground->isDown(name), qPrintable(name));
}

void NotesToolbarTest::newTakesTheFormatBack() {
    for (const int index : {3, 5, 6, 7})
        m_ground->press(u"Toolbar1(%1)"_s.arg(index));
    m_ground->press(u"Toolbar2(14)"_s);
    m_ground->press(u"Toolbar2(4)"_s);
    rt1().SetSelColor(255);
    m_ground->press(u"imgNew"_s);
    QCOMPARE(rt1().SelAlignment(), std::optional(0));
    QCOMPARE(rt1().SelIndent(), std::optional(0));
    QCOMPARE(rt1().SelBullet(), std::optional(false));
    QCOMPARE(rt1().SelColor(), std::optional(0u));
    QCOMPARE(rt1().SelBold(), std::optional(false));
    QCOMPARE(rt1().SelItalic(), std::optional(false));
    QCOMPARE(rt1().SelUnderline(), std::optional(false));
}

// --- font and colour

void NotesToolbarTest::theFontDialogTakesTheSelectionAndGivesItsChoiceBack() {
    m_ground->write(u"text"_s);
    m_ground->select(0, 4);
    rt1().SetSelBold(true);
    const FontChoice chosen{.italic = true,
                            .bold = false,
                            .name = u"DejaVu Serif"_s,
                            .size = 14,
                            .strikethrough = true,
                            .underline = true,
                            .colour = 0xFF};
    m_ground->dialogs.answerFont(chosen);
    m_ground->rt1a().setFocus();
    m_ground->press(u"Toolbar2(1)"_s);
    QVERIFY(m_ground->dialogs.fonts.constFirst().bold);
    QCOMPARE(m_ground->dialogs.fonts.constFirst().name, u"Arial"_s);
    QCOMPARE(rt1().SelItalic(), std::optional(true));
    QCOMPARE(rt1().SelBold(), std::optional(false));
    QCOMPARE(rt1().SelFontName(), std::optional(u"DejaVu Serif"_s));
    QCOMPARE(rt1().SelFontSize(), std::optional(14.0));
    QCOMPARE(rt1().SelStrikeThru(), std::optional(true));
    QCOMPARE(rt1().SelUnderline(), std::optional(true));
    QCOMPARE(rt1().SelColor(), std::optional(0xFFu));
    QCOMPARE(panel().focusWidget(), &rt1());
}

void NotesToolbarTest::theFontOfTheDialogIsKept() {
    m_ground->dialogs.answerFont(FontChoice{.name = u"DejaVu Serif"_s, .size = 14});
    m_ground->press(u"Toolbar2(1)"_s);
    QCOMPARE(m_ground->settings.setting(u"RT2"_s, u"FN"_s, {}).toString(), u"DejaVu Serif"_s);
    QCOMPARE(m_ground->settings.setting(u"RT2"_s, u"FS"_s, {}).toString(), u"14"_s);
    m_ground->leave();
    QCOMPARE(rt1().FontName(), u"DejaVu Serif"_s);
    QCOMPARE(rt1().FontSize(), 14.0);
}

void NotesToolbarTest::aCancelledFontDialogKeepsTheFontOfTheSelection() {
    m_ground->write(u"text"_s);
    m_ground->select(0, 4);
    rt1().SetSelFontName(u"DejaVu Sans"_s);
    rt1().SetSelFontSize(21);
    m_ground->dialogs.answerFont(std::nullopt);
    m_ground->press(u"Toolbar2(1)"_s);
    QCOMPARE(m_ground->settings.setting(u"RT2"_s, u"FN"_s, {}).toString(), u"DejaVu Sans"_s);
    QCOMPARE(m_ground->settings.setting(u"RT2"_s, u"FS"_s, {}).toString(), u"21"_s);
    QCOMPARE(rt1().SelFontSize(), std::optional(21.0));
}

void NotesToolbarTest::aMixedSelectionKeepsWhatWasNotChosen() {
    m_ground->write(u"one two"_s);
    m_ground->select(0, 3);
    rt1().SetSelFontSize(20);
    m_ground->select(0, 7);
    QVERIFY(!rt1().SelFontSize());
    FontChoice chosen{.name = u"DejaVu Serif"_s};
    chosen.size = 8; // as the dialog came up
    m_ground->dialogs.answerFont(chosen);
    m_ground->press(u"Toolbar2(1)"_s);
    QCOMPARE(rt1().SelFontName(), std::optional(u"DejaVu Serif"_s));
    m_ground->select(0, 3);
    QCOMPARE(rt1().SelFontSize(), std::optional(20.0));
    QCOMPARE(m_ground->settings.setting(u"RT2"_s, u"FN"_s, {}).toString(), u"DejaVu Serif"_s);
    QVERIFY(!m_ground->settings.setting(u"RT2"_s, u"FS"_s, {}).isValid());
}

void NotesToolbarTest::theColourDialogColoursTheSelection() {
    m_ground->write(u"text"_s);
    m_ground->select(0, 4);
    m_ground->dialogs.answerColour(0x00AA00);
    m_ground->rt1a().setFocus();
    m_ground->press(u"Toolbar2(2)"_s);
    QCOMPARE(rt1().SelColor(), std::optional(0x00AA00u));
    QCOMPARE(panel().focusWidget(), &rt1());
}

void NotesToolbarTest::aCancelledColourDialogChangesNothing() {
    m_ground->write(u"text"_s);
    m_ground->select(0, 4);
    rt1().SetSelColor(255);
    m_ground->dialogs.answerColour(std::nullopt);
    m_ground->press(u"Toolbar2(2)"_s);
    QCOMPARE(rt1().SelColor(), std::optional(255u));
}

// --- editing commands

void NotesToolbarTest::cutAndCopyNeedASelection() {
    m_ground->write(u"text"_s);
    m_ground->select(1, 0);
    QVERIFY(!m_ground->isEnabled(u"Toolbar1(9)"_s));
    QVERIFY(!m_ground->isEnabled(u"Toolbar1(10)"_s));
    m_ground->select(1, 1);
    QVERIFY(m_ground->isEnabled(u"Toolbar1(9)"_s));
    QVERIFY(m_ground->isEnabled(u"Toolbar1(10)"_s));
    rt1().SetSelText(u"x"_s);
    QVERIFY(!m_ground->isEnabled(u"Toolbar1(9)"_s));
}

void NotesToolbarTest::pasteFollowsTheClipboard() {
    QVERIFY(!m_ground->isEnabled(u"Toolbar1(11)"_s));
    QApplication::clipboard()->setText(u"text"_s);
    QTRY_VERIFY(m_ground->isEnabled(u"Toolbar1(11)"_s));
    QApplication::clipboard()->clear();
    QTRY_VERIFY(!m_ground->isEnabled(u"Toolbar1(11)"_s));
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QApplication::clipboard()->setImage(picture);
    QTRY_VERIFY(m_ground->isEnabled(u"Toolbar1(11)"_s));
}

void NotesToolbarTest::undoFollowsTheHistory() {
    QVERIFY(!m_ground->isEnabled(u"Toolbar1(13)"_s));
    m_ground->write(u"text"_s);
    QVERIFY(m_ground->isEnabled(u"Toolbar1(13)"_s));
    QCOMPARE(m_ground->control<QToolButton>(u"Toolbar1(13)"_s).toolTip(), u"Undo"_s);
    m_ground->press(u"Toolbar1(13)"_s);
    QVERIFY(!m_ground->isEnabled(u"Toolbar1(13)"_s));
}

void NotesToolbarTest::theCommandsCutCopyPasteAndUndo() {
    m_ground->write(u"one two"_s);
    m_ground->select(0, 3);
    m_ground->control<QLineEdit>(u"Text1"_s).setFocus();
    m_ground->press(u"Toolbar1(10)"_s);
    m_ground->select(7, 0);
    m_ground->press(u"Toolbar1(11)"_s);
    QCOMPARE(rt1().Text(), u"one twoone"_s);
    m_ground->select(0, 4);
    m_ground->press(u"Toolbar1(9)"_s);
    QCOMPARE(rt1().Text(), u"twoone"_s);
    m_ground->press(u"Toolbar1(13)"_s);
    QCOMPARE(rt1().Text(), u"one twoone"_s);
    // None of them takes the focus to the page.
    QVERIFY(!rt1().hasFocus());
}

ORVALIS_TEST_MAIN_WITH(QApplication, NotesToolbarTest)
#include "notes_toolbar_test.moc"
