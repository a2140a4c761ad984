// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/label.h"
#include "controls/rich_text_box.h"
#include "controls/tree_view.h"
#include "letters/letters_window.h"
#include "support/role_doubles.h"
#include "support/test_main.h"
#include "support/test_program.h"
#include "widgets/gg_command.h"

#include <QApplication>
#include <QGroupBox>
#include <QRadioButton>

namespace orvalis::test {

/// The Notes panel as far as the letters ask of it: its place, its label, its left page.
class NotesOfLetters final : public LoggedPanel<NotesPanel> {
public:
    NotesOfLetters(Program& program, QStringList& log)
        : LoggedPanel(program, ChromeKind::Notes, log) {}
    const Label& lblNot() const override { return *panelLabels.front(); }
};

/// The letters over a Notes panel, in a program over doubles. The window is made by the first
/// window().
class LettersGround : public TestProgram {
public:
    LettersGround() {
        program.windows.registerMaker<NotesPanel>(
            [this] { return std::make_unique<NotesOfLetters>(program, m_log); });
        program.windows.registerMaker<LettersWindow>(
            [this] { return std::make_unique<frmpisma>(program); });
    }

    frmpisma& window() { return static_cast<frmpisma&>(program.windows.get<LettersWindow>()); }
    bool isOpen() const { return program.windows.loaded<LettersWindow>() != nullptr; }
    NotesPanel& notes() { return program.windows.get<NotesPanel>(); }
    RichTextBox& rt1() { return notes().rt1(); }

    template <class Control>
    Control& control(const QString& name) {
        auto* found = window().findChild<Control*>(name);
        if (!found)
            qFatal("no control %s", qPrintable(name));
        return *found;
    }
    TreeView& tree() { return control<TreeView>(QStringLiteral("TV1")); }
    RichTextBox& rtp() { return control<RichTextBox>(QStringLiteral("rtp")); }
    QRadioButton& option(int index) {
        return control<QRadioButton>(QStringLiteral("optLet(%1)").arg(index));
    }

    /// The place of a caption in the tree; of two, the one of that number.
    QModelIndex node(const QString& caption, int number = 0) {
        const QAbstractItemModel& model = *tree().model();
        return model
            .match(model.index(0, 0), Qt::DisplayRole, caption, -1,
                   Qt::MatchExactly | Qt::MatchCaseSensitive | Qt::MatchRecursive)
            .value(number);
    }
    /// Unfolds the tree as far as it must be, and clicks on the caption.
    void choose(const QString& caption, int number = 0) {
        const QModelIndex place = node(caption, number);
        tree().scrollTo(place);
        QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, tree().visualRect(place).center());
    }
    void chooseKind(int index) { option(index).click(); }
    void insert() { control<GGCommand>(QStringLiteral("Command1")).setValue(true); }
    void cancel() { control<GGCommand>(QStringLiteral("Command2")).setValue(true); }
    /// Selects a part of the preview by its words.
    void select(const QString& words) {
        if (rtp().Find(words) < 0)
            qFatal("no such words: %s", qPrintable(words));
    }

private:
    QStringList m_log;
};

} // namespace orvalis::test
