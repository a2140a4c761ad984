// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/title_line.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QRegularExpression>

#include <optional>
#include <utility>

namespace orvalis {
namespace {

using namespace Qt::StringLiterals;

class FocusWatch final : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        // A line that goes with the focus in it is one no more when it tells of that.
        auto* line = qobject_cast<QLineEdit*>(watched);
        if (line == nullptr)
            return false;
        if (event->type() == QEvent::FocusOut)
            leave(*line, static_cast<QFocusEvent&>(*event).reason());
        else if (event->type() == QEvent::FocusIn)
            comeBack(*line, static_cast<QFocusEvent&>(*event).reason());
        return false;
    }

private:
    /// The beginning shows wherever the user goes, save to a menu of the line itself. Back from a
    /// box or another program he finds the line as it was.
    void leave(QLineEdit& line, Qt::FocusReason reason) {
        if (reason == Qt::PopupFocusReason)
            return;
        m_caret.reset();
        if (reason == Qt::ActiveWindowFocusReason)
            m_caret = Caret{line.cursorPosition(), line.selectionStart(), line.selectionLength()};
        line.setCursorPosition(0);
    }

    void comeBack(QLineEdit& line, Qt::FocusReason reason) {
        if (reason != Qt::ActiveWindowFocusReason || !m_caret)
            return;
        const Caret was = *std::exchange(m_caret, std::nullopt);
        if (was.selectionStart < 0)
            line.setCursorPosition(was.position);
        else if (was.position == was.selectionStart)
            line.setSelection(was.selectionStart + was.selectionLength, -was.selectionLength);
        else
            line.setSelection(was.selectionStart, was.selectionLength);
    }

    struct Caret {
        int position;
        int selectionStart; ///< -1 without a selection
        int selectionLength;
    };

    std::optional<Caret> m_caret;
};

void keepToOneLine(QLineEdit& line) {
    static const QRegularExpression breaks(QStringLiteral("\\R"));
    if (!line.text().contains(breaks))
        return;
    const QString behind = line.text().mid(line.cursorPosition()).replace(breaks, u" "_s);
    line.setText(line.text().replace(breaks, u" "_s));
    line.setCursorPosition(static_cast<int>(line.text().size() - behind.size()));
}

} // namespace

void makeTitleLine(QLineEdit& line) {
    QObject::connect(&line, &QLineEdit::textChanged, &line, [&line] { keepToOneLine(line); });
    line.installEventFilter(new FocusWatch(&line));
}

void keepEditsToOneLine(QLineEdit& line) {
    QObject::connect(
        &line, &QLineEdit::textEdited, &line, [&line] { keepToOneLine(line); });
}

} // namespace orvalis
