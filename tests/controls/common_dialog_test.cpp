// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/common_dialog.h"
#include "controls/font_dialog.h"
#include "support/scripted_dialogs.h"
#include "support/test_main.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include <array>
#include <functional>

using namespace orvalis;
using namespace Qt::StringLiterals;

namespace {

const FontChoice Present{.italic = true,
                         .bold = false,
                         .name = QStringLiteral("No Such Family"),
                         .size = 11.5,
                         .strikethrough = true,
                         .underline = false,
                         .colour = 0x0000FF};

std::optional<quint32> noColour(quint32) {
    return std::nullopt;
}

} // namespace

class CommonDialogTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void theChosenFileIsTheFileName();
    void theChosenFilesTitleIsItsNameWithoutThePath();
    void theFileDialogsGetWhatTheFormSet();
    void aTitleAndADefaultExtensionAreTheNextDialogsAlone();
    void theFileNameIsOfferedAgainUntilItIsEmptied();
    void cancelLeavesThePropertiesAndIsSilentByDefault();
    void cancelFailsWith32755WhereTheFormAsksForThat();
    void theFontDialogStartsFromTheProperties();
    void theFontChoiceGoesIntoTheProperties();
    void theColourChoiceGoesIntoTheColour();
    void thePrintDialogIsAskedFor();
    void aMixedSelectionHasNoValueAndFailsWith94();
    void theFontDialogOffersAllSevenThings();
    void anUnreadableSizeIsTheOneThatWasGiven();
    void thePreviewShowsTheChoice();
    void theColourOfTheFontDialogComesFromTheColourDialog();

private:
    test::ScriptedDialogs m_dialogs;
};

void CommonDialogTest::init() {
    m_dialogs.verifyAllAsked();
}

void CommonDialogTest::theChosenFileIsTheFileName() {
    CommonDialog dialog(m_dialogs);
    m_dialogs.answerOpen(u"/a/b.rtf"_s);
    dialog.ShowOpen();
    QCOMPARE(dialog.FileName, u"/a/b.rtf"_s);
    m_dialogs.answerSave(u"/a/c.txt"_s);
    dialog.ShowSave();
    QCOMPARE(dialog.FileName, u"/a/c.txt"_s);
}

void CommonDialogTest::theChosenFilesTitleIsItsNameWithoutThePath() {
    CommonDialog dialog(m_dialogs);
    m_dialogs.answerOpen(u"/a/b.c/Notes of May.RTF"_s);
    dialog.ShowOpen();
    QCOMPARE(dialog.FileTitle, u"Notes of May.RTF"_s);
    m_dialogs.answerSave(u"/d/x.F"_s);
    dialog.ShowSave();
    QCOMPARE(dialog.FileTitle, u"x.F"_s);
}

void CommonDialogTest::theFileDialogsGetWhatTheFormSet() {
    CommonDialog dialog(m_dialogs);
    dialog.Filter = u"Notes (*.rtf)|*.rtf"_s;
    dialog.InitDir = u"/tmp"_s;
    dialog.FileName = u"x.rtf"_s;
    dialog.DialogTitle = u"Backup data"_s;
    dialog.DefaultExt = u"*.bmp"_s;
    m_dialogs.answerSave(std::nullopt);
    dialog.ShowSave();
    const FileRequest asked = m_dialogs.saved.constLast();
    QCOMPARE(asked.filter, u"Notes (*.rtf)|*.rtf"_s);
    QCOMPARE(asked.directory, u"/tmp"_s);
    QCOMPARE(asked.fileName, u"x.rtf"_s);
    QCOMPARE(asked.title, u"Backup data"_s);
    QCOMPARE(asked.defaultExtension, u"*.bmp"_s);
}

void CommonDialogTest::aTitleAndADefaultExtensionAreTheNextDialogsAlone() {
    CommonDialog dialog(m_dialogs);
    dialog.Filter = u"Images|*.bmp"_s;
    dialog.InitDir = u"/tmp"_s;
    for (const std::optional<QString>& answer : {std::optional<QString>(), {u"/a/b.bmp"_s}}) {
        dialog.DialogTitle = u"Insert Image"_s;
        dialog.DefaultExt = u"*.bmp"_s;
        m_dialogs.answerOpen(answer);
        dialog.ShowOpen();
        QCOMPARE(m_dialogs.opened.constLast().title, u"Insert Image"_s);
        m_dialogs.answerSave(std::nullopt);
        dialog.ShowSave();
        QCOMPARE(m_dialogs.saved.constLast().title, QString());
        QCOMPARE(m_dialogs.saved.constLast().defaultExtension, QString());
        QCOMPARE(m_dialogs.saved.constLast().filter, u"Images|*.bmp"_s);
        QCOMPARE(m_dialogs.saved.constLast().directory, u"/tmp"_s);
    }
}

void CommonDialogTest::theFileNameIsOfferedAgainUntilItIsEmptied() {
    CommonDialog dialog(m_dialogs);
    m_dialogs.answerOpen(u"/a/b.bmp"_s);
    dialog.ShowOpen();
    m_dialogs.answerOpen(std::nullopt);
    dialog.ShowOpen();
    QCOMPARE(m_dialogs.opened.constLast().fileName, u"/a/b.bmp"_s);
    dialog.FileName.clear();
    m_dialogs.answerOpen(std::nullopt);
    dialog.ShowOpen();
    QCOMPARE(m_dialogs.opened.constLast().fileName, QString());
}

void CommonDialogTest::cancelLeavesThePropertiesAndIsSilentByDefault() {
    CommonDialog dialog(m_dialogs);
    dialog.FileName = u"before"_s;
    dialog.FileTitle = u"title"_s;
    dialog.FontName = u"Arial"_s;
    dialog.Color = 7;
    m_dialogs.answerOpen(std::nullopt);
    m_dialogs.answerSave(std::nullopt);
    m_dialogs.answerFont(std::nullopt);
    m_dialogs.answerColour(std::nullopt);
    m_dialogs.answerPrinter(false);
    dialog.ShowOpen();
    dialog.ShowSave();
    dialog.ShowFont();
    dialog.ShowColor();
    dialog.ShowPrinter();
    QCOMPARE(dialog.FileName, u"before"_s);
    QCOMPARE(dialog.FileTitle, u"title"_s);
    QCOMPARE(dialog.FontName, u"Arial"_s);
    QCOMPARE(dialog.Color, 7U);
}

void CommonDialogTest::cancelFailsWith32755WhereTheFormAsksForThat() {
    CommonDialog dialog(m_dialogs);
    dialog.CancelError = true;
    m_dialogs.answerOpen(std::nullopt);
    m_dialogs.answerSave(std::nullopt);
    m_dialogs.answerFont(std::nullopt);
    m_dialogs.answerColour(std::nullopt);
    m_dialogs.answerPrinter(false);
    const std::array<std::function<void()>, 5> shows{
        [&] { dialog.ShowOpen(); }, [&] { dialog.ShowSave(); }, [&] { dialog.ShowFont(); },
        [&] { dialog.ShowColor(); }, [&] { dialog.ShowPrinter(); }};
    for (const auto& show : shows) {
        const auto failure = firstFailure(show);
        QVERIFY(failure.has_value());
        QCOMPARE(failure->number(), ErrorNumber::CancelWasSelected);
    }
}

void CommonDialogTest::theFontDialogStartsFromTheProperties() {
    CommonDialog dialog(m_dialogs);
    dialog.FontItalic = Present.italic;
    dialog.FontBold = Present.bold;
    dialog.FontName = Present.name;
    dialog.FontSize = Present.size;
    dialog.FontStrikethru = Present.strikethrough;
    dialog.FontUnderline = Present.underline;
    dialog.Color = Present.colour;
    m_dialogs.answerFont(std::nullopt);
    dialog.ShowFont();
    QCOMPARE(m_dialogs.fonts.constLast(), Present);
}

void CommonDialogTest::theFontChoiceGoesIntoTheProperties() {
    CommonDialog dialog(m_dialogs);
    m_dialogs.answerFont(Present);
    dialog.ShowFont();
    QCOMPARE(dialog.FontItalic, true);
    QCOMPARE(dialog.FontBold, false);
    QCOMPARE(dialog.FontName, u"No Such Family"_s);
    QCOMPARE(dialog.FontSize, 11.5);
    QCOMPARE(dialog.FontStrikethru, true);
    QCOMPARE(dialog.FontUnderline, false);
    QCOMPARE(dialog.Color, 0x0000FFU);
}

void CommonDialogTest::theColourChoiceGoesIntoTheColour() {
    CommonDialog dialog(m_dialogs);
    dialog.Color = 3;
    m_dialogs.answerColour(0x123456);
    dialog.ShowColor();
    QCOMPARE(m_dialogs.colours.constLast(), 3U);
    QCOMPARE(dialog.Color, 0x123456U);
}

void CommonDialogTest::thePrintDialogIsAskedFor() {
    CommonDialog dialog(m_dialogs);
    dialog.CancelError = true;
    dialog.Flags = 6;
    const int before = m_dialogs.printersChosen;
    m_dialogs.answerPrinter(true);
    dialog.ShowPrinter();
    QCOMPARE(m_dialogs.printersChosen, before + 1);
}

void CommonDialogTest::aMixedSelectionHasNoValueAndFailsWith94() {
    QCOMPARE(notNull(std::optional<int>(4)), 4);
    const auto failure = firstFailure([] { notNull(std::optional<bool>()); });
    QVERIFY(failure.has_value());
    QCOMPARE(failure->number(), ErrorNumber::InvalidUseOfNull);
}

void CommonDialogTest::theFontDialogOffersAllSevenThings() {
    FontDialog dialog(Present, noColour);
    QCOMPARE(dialog.choice(), Present);
    dialog.findChild<QCheckBox*>(u"italic"_s)->setChecked(false);
    dialog.findChild<QCheckBox*>(u"bold"_s)->setChecked(true);
    dialog.findChild<QCheckBox*>(u"strikethrough"_s)->setChecked(false);
    dialog.findChild<QCheckBox*>(u"underline"_s)->setChecked(true);
    dialog.findChild<QComboBox*>(u"size"_s)->setCurrentText(u"20"_s);
    auto* families = dialog.findChild<QListWidget*>(u"families"_s);
    QVERIFY(families->count() > 0);
    families->setCurrentRow(0);
    const FontChoice choice = dialog.choice();
    QCOMPARE(choice.italic, false);
    QCOMPARE(choice.bold, true);
    QCOMPARE(choice.strikethrough, false);
    QCOMPARE(choice.underline, true);
    QCOMPARE(choice.size, 20.0);
    QCOMPARE(choice.name, families->item(0)->text());
    QCOMPARE(choice.colour, Present.colour);
}

void CommonDialogTest::anUnreadableSizeIsTheOneThatWasGiven() {
    FontDialog dialog(Present, noColour);
    auto* size = dialog.findChild<QComboBox*>(u"size"_s);
    for (const QString& text : {u""_s, u"x"_s, u"0"_s, u"-3"_s, u"99999"_s}) {
        size->setCurrentText(text);
        QCOMPARE(dialog.choice().size, 11.5);
    }
}

void CommonDialogTest::thePreviewShowsTheChoice() {
    FontDialog dialog(Present, noColour);
    auto* preview = dialog.findChild<QLabel*>(u"preview"_s);
    QVERIFY(preview->font().italic());
    QVERIFY(preview->font().strikeOut());
    QVERIFY(!preview->font().underline());
    QCOMPARE(preview->font().pointSizeF(), 11.5);
    QCOMPARE(preview->palette().color(QPalette::WindowText), QColor(255, 0, 0));
    dialog.findChild<QCheckBox*>(u"underline"_s)->setChecked(true);
    QVERIFY(preview->font().underline());
}

void CommonDialogTest::theColourOfTheFontDialogComesFromTheColourDialog() {
    quint32 asked = 0;
    FontDialog dialog(Present, [&](quint32 present) -> std::optional<quint32> {
        asked = present;
        return 0x00FF00;
    });
    dialog.findChild<QPushButton*>(u"colour"_s)->click();
    QCOMPARE(asked, Present.colour);
    QCOMPARE(dialog.choice().colour, 0x00FF00U);
}

ORVALIS_TEST_MAIN_WITH(QApplication, CommonDialogTest)
#include "common_dialog_test.moc"
