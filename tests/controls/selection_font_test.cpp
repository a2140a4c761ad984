// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/common_dialog.h"
#include "controls/qt_dialogs.h"
#include "controls/rich_text_box.h"
#include "controls/selecting.h"
#include "controls/selection_font.h"
#include "support/scripted_dialogs.h"
#include "support/test_main.h"

#include <QApplication>
#include <QSignalSpy>

using namespace orvalis;
using namespace orvalis::test;
using namespace Qt::StringLiterals;

class SelectionFontTest : public QObject {
    Q_OBJECT
private slots:
    void theDialogTakesTheSelectionsFont();
    void aMixedSelectionStopsAtTheFirstThatIsMixed();
    void theSelectionTakesTheDialogsFontInOneStep();
    void theCommandStartsFromTheSelectionAndGivesItWhatIsChosen();
    void aCancelledCommandLeavesTheSelectionAndSaysSo();
    void overAMixedSelectionTheDialogComesUpAndItsChoiceIsNotApplied();
    void aCancelThatIsPassedOverWritesBackWhatWasLoaded();
    void whatCouldNotBeReadAndWasNotChosenStays();

private:
    QtDialogs m_dialogs; // never shown
};

void SelectionFontTest::theDialogTakesTheSelectionsFont() {
    RichTextBox box;
    box.SetText(u"some words"_s);
    select(box, 5, 5);
    box.SetSelItalic(true);
    box.SetSelBold(true);
    box.SetSelFontName(u"Liberation Mono"_s);
    box.SetSelFontSize(14);
    box.SetSelStrikeThru(true);
    box.SetSelUnderline(true);
    box.SetSelColor(0x0000FF);
    CommonDialog dialog(m_dialogs);
    loadFontFromSelection(dialog, box);
    QVERIFY(dialog.FontItalic && dialog.FontBold && dialog.FontStrikethru && dialog.FontUnderline);
    QCOMPARE(dialog.FontName, u"Liberation Mono"_s);
    QCOMPARE(dialog.FontSize, 14.0);
    QCOMPARE(dialog.Color, 0x0000FFU);

    select(box, 0, 5);
    loadFontFromSelection(dialog, box);
    QVERIFY(!dialog.FontItalic && !dialog.FontBold && !dialog.FontStrikethru &&
            !dialog.FontUnderline);
    QVERIFY(dialog.FontName != u"Liberation Mono"_s);
    QCOMPARE(dialog.Color, 0U);
}

void SelectionFontTest::aMixedSelectionStopsAtTheFirstThatIsMixed() {
    RichTextBox box;
    box.SetText(u"some words"_s);
    box.selectAll();
    box.SetSelItalic(true);
    box.SetSelBold(true);
    box.SetSelUnderline(true);
    select(box, 5, 5);
    box.SetSelFontName(u"Liberation Mono"_s);
    box.selectAll();
    CommonDialog dialog(m_dialogs);
    dialog.FontName = u"as it was"_s;
    dialog.FontSize = 77;
    const auto failure = firstFailure([&] { loadFontFromSelection(dialog, box); });
    QVERIFY(failure.has_value());
    QCOMPARE(failure->number(), ErrorNumber::InvalidUseOfNull);
    QVERIFY(dialog.FontItalic && dialog.FontBold); // ahead of the name
    QCOMPARE(dialog.FontName, u"as it was"_s);
    QCOMPARE(dialog.FontSize, 77.0);
    QVERIFY(!dialog.FontUnderline);
}

void SelectionFontTest::theSelectionTakesTheDialogsFontInOneStep() {
    RichTextBox box;
    box.SetText(u"some words"_s);
    select(box, 5, 5);
    CommonDialog dialog(m_dialogs);
    dialog.FontItalic = dialog.FontBold = dialog.FontStrikethru = dialog.FontUnderline = true;
    dialog.FontName = u"Liberation Mono"_s;
    dialog.FontSize = 14;
    dialog.Color = 0xFF0000;
    QSignalSpy changes(&box, &RichTextBox::Change);
    applyFontToSelection(dialog, box);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(box.SelText(), u"words"_s);
    for (const auto& read :
         {box.SelItalic(), box.SelBold(), box.SelStrikeThru(), box.SelUnderline()})
        QCOMPARE(read, std::optional(true));
    QCOMPARE(box.SelFontName(), std::optional(u"Liberation Mono"_s));
    QCOMPARE(box.SelFontSize(), std::optional(14.0));
    QCOMPARE(box.SelColor(), std::optional(0xFF0000U));
    box.Undo();
    select(box, 5, 5);
    QCOMPARE(box.SelBold(), std::optional(false));
    QCOMPARE(box.SelColor(), std::optional(0U));
    QVERIFY(!box.CanUndo());
}

namespace {

/// "some words", "words" in another font and bold; all of it selected.
void mixUp(RichTextBox& box) {
    box.SetText(u"some words"_s);
    select(box, 5, 5);
    box.SetSelFontName(u"Liberation Mono"_s);
    box.SetSelBold(true);
    box.selectAll();
}

/// What is chosen in the dialog.
const FontChoice Chosen{.italic = true,
                        .bold = true,
                        .name = u"Liberation Serif"_s,
                        .size = 20,
                        .strikethrough = true,
                        .underline = true,
                        .colour = 0x0000FF};

} // namespace

void SelectionFontTest::theCommandStartsFromTheSelectionAndGivesItWhatIsChosen() {
    RichTextBox box;
    box.SetText(u"some words"_s);
    select(box, 5, 5);
    box.SetSelFontName(u"Liberation Mono"_s);
    ScriptedDialogs dialogs;
    CommonDialog dialog(dialogs);
    dialogs.answerFont(Chosen);
    QVERIFY(chooseFontOfSelection(dialog, box));
    QCOMPARE(dialogs.fonts.size(), 1);
    QCOMPARE(dialogs.fonts[0].name, u"Liberation Mono"_s);
    QCOMPARE(dialog.Flags, FontDialogFlags);
    QCOMPARE(box.SelFontName(), std::optional(Chosen.name));
    QCOMPARE(box.SelFontSize(), std::optional(Chosen.size));
    QCOMPARE(box.SelColor(), std::optional(Chosen.colour));
    QVERIFY(box.SelItalic().value() && box.SelBold().value() && box.SelUnderline().value());
    select(box, 0, 4);
    QVERIFY(!box.SelItalic().value());
}

void SelectionFontTest::aCancelledCommandLeavesTheSelectionAndSaysSo() {
    RichTextBox box;
    box.SetText(u"some words"_s);
    box.selectAll();
    const QByteArray before = box.TextRTF();
    ScriptedDialogs dialogs;
    CommonDialog dialog(dialogs);
    dialogs.answerFont(std::nullopt);
    QVERIFY(!chooseFontOfSelection(dialog, box));
    QCOMPARE(box.TextRTF(), before);
    QVERIFY(!box.CanUndo());
}

void SelectionFontTest::overAMixedSelectionTheDialogComesUpAndItsChoiceIsNotApplied() {
    RichTextBox box;
    mixUp(box);
    const QByteArray before = box.TextRTF();
    ScriptedDialogs dialogs;
    CommonDialog dialog(dialogs);
    dialogs.answerFont(Chosen);
    QVERIFY(!chooseFontOfSelection(dialog, box));
    QCOMPARE(dialogs.fonts.size(), 1);
    QCOMPARE(dialog.Flags, FontDialogFlags);
    QCOMPARE(box.TextRTF(), before);
}

void SelectionFontTest::aCancelThatIsPassedOverWritesBackWhatWasLoaded() {
    RichTextBox box;
    box.SetText(u"some words"_s);
    box.selectAll();
    box.SetSelItalic(true);
    box.SetSelFontName(u"Liberation Mono"_s);
    ScriptedDialogs dialogs;
    CommonDialog dialog(dialogs);
    dialogs.answerFont(std::nullopt);
    QSignalSpy changes(&box, &RichTextBox::Change);
    chooseFontPassingOver(dialog, box);
    QCOMPARE(dialogs.fonts.size(), 1);
    QCOMPARE(box.SelFontName(), std::optional(u"Liberation Mono"_s));
    QCOMPARE(box.SelItalic(), std::optional(true));
    QVERIFY(changes.count() <= 1);
}

void SelectionFontTest::whatCouldNotBeReadAndWasNotChosenStays() {
    RichTextBox box;
    mixUp(box);
    ScriptedDialogs dialogs;
    CommonDialog dialog(dialogs);
    dialog.FontName = u"left by another command"_s;
    dialog.FontBold = false;
    FontChoice choice;
    choice.name = dialog.FontName;
    choice.bold = true;
    choice.size = 20;
    dialogs.answerFont(choice);
    chooseFontPassingOver(dialog, box);
    QCOMPARE(box.SelBold(), std::optional(true)); // chosen
    QCOMPARE(box.SelFontSize(), std::optional(20.0));
    QCOMPARE(box.SelFontName(), std::optional<QString>()); // still mixed
    select(box, 5, 5);
    QCOMPARE(box.SelFontName(), std::optional(u"Liberation Mono"_s));
}

ORVALIS_TEST_MAIN_WITH(QApplication, SelectionFontTest)
#include "selection_font_test.moc"
