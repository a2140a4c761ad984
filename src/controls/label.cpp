// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/label.h"

namespace orvalis {

Label::Label(QWidget* parent)
    : ClickableLabel(parent) {
    setTextFormat(Qt::PlainText);
}

Label::Label(const QString& name, const QString& caption, QWidget* parent)
    : Label(parent) {
    setObjectName(name);
    QLabel::setText(caption);
}

void Label::setCaption(const QString& caption) {
    if (caption == text())
        return;
    QLabel::setText(caption);
    emit Change();
}

QString Label::spokenName() const {
    return accessibleName().isEmpty() ? text() : accessibleName();
}

} // namespace orvalis
