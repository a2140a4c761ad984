// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/title_line.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QRegularExpression>

namespace orvalis {
namespace {

using namespace Qt::StringLiterals;

class FocusWatch final : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::FocusOut && leaves(static_cast<QFocusEvent&>(*event))) {
            // A line that goes with the focus in it is one no more when it tells of that.
            if (auto* line = qobject_cast<QLineEdit*>(watched))
                line->setCursorPosition(0);
        }
        return false;
    }

private:
    /// Behind a box, a menu or another program the user finds the line as it was.
    static bool leaves(const QFocusEvent& event) {
        return event.reason() != Qt::ActiveWindowFocusReason &&
               event.reason() != Qt::PopupFocusReason;
    }
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

} // namespace orvalis
