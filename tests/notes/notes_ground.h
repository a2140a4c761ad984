// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/rich_text_box.h"
#include "notes/notes_panel.h"
#include "notes/page_toolbar.h"
#include "support/plain_windows.h"
#include "support/test_main.h"
#include "support/window_ground.h"

#include <QFile>
#include <QLineEdit>

namespace orvalis::test {

/// A Notes panel in a program over doubles. The panel is made by the first panel().
class NotesGround : public WindowGround<NotesPanel, frmnotes2> {
public:
    explicit NotesGround(QSize screenSize = QSize(800, 600)) {
        screen.screenSize = screenSize;
        program.windows.registerMaker<NotesPanel>(
            [this] { return std::make_unique<frmnotes2>(program); });
    }

    RichTextBox& rt1() { return control<RichTextBox>(QStringLiteral("rt1")); }
    RichTextBox& rt1a() { return control<RichTextBox>(QStringLiteral("rt1a")); }
    RichTextBox& rt5() { return control<RichTextBox>(QStringLiteral("rt5")); }
    bool isEnabled(const QString& name) { return control<QWidget>(name).isEnabled(); }
    /// Whether a toolbar's button is down.
    bool isDown(const QString& name) { return control<QToolButton>(name).isChecked(); }

    /// Selects part of the left page.
    void select(int start, int length) {
        rt1().SetSelStart(start);
        rt1().SetSelLength(length);
    }
    /// Types at the end of the left page, as a change that nobody saved.
    void write(const QString& text) {
        select(static_cast<int>(rt1().Text().size()), 0);
        rt1().SetSelText(text);
    }
    /// Whether the panel takes the left page for changed, as its close button asks.
    bool asksToLeave() {
        setSetting(QStringLiteral("Reg"), QStringLiteral("Start"), QStringLiteral("1"));
        const auto before = boxes.asked.size();
        boxes.answer(Answer::Cancel);
        panel().exitClick();
        const bool asked = boxes.asked.size() > before;
        if (!asked)
            boxes.forget();
        return asked;
    }

    QString put(const QString& name, const QByteArray& bytes) { return folder.write(name, bytes); }
    QByteArray bytesOf(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

} // namespace orvalis::test
