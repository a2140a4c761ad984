// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/clipboard_content.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

#include <utility>

namespace orvalis {

namespace {

std::function<bool()>& question() {
    static std::function<bool()> asks;
    return asks;
}

bool ownerAnswers() {
    return !question() || QApplication::clipboard()->ownsClipboard() || question()();
}

/// Whether a field would ask for what the clipboard holds to meet an event.
bool asksClipboard(const QEvent& event) {
    switch (event.type()) {
    case QEvent::KeyPress:
        return static_cast<const QKeyEvent&>(event).matches(QKeySequence::Paste);
    case QEvent::ContextMenu:
        return true;
    case QEvent::MouseButtonRelease:
        return static_cast<const QMouseEvent&>(event).button() == Qt::MiddleButton;
    default:
        return false;
    }
}

class LineFieldGuard final : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        return asksClipboard(*event) && qobject_cast<QLineEdit*>(watched) != nullptr &&
               !ownerAnswers();
    }
};

} // namespace

void setClipboardQuestion(std::function<bool()> asks) {
    question() = std::move(asks);
}

const QMimeData* clipboardContent() {
    return ownerAnswers() ? QApplication::clipboard()->mimeData() : nullptr;
}

void guardLineFields() {
    qApp->installEventFilter(new LineFieldGuard(qApp));
}

} // namespace orvalis
