// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/clickable_label.h"

namespace orvalis {

/// A plain text on a form, which can be a button and tells when it changes.
class Label : public ClickableLabel {
    Q_OBJECT
public:
    explicit Label(QWidget* parent = nullptr);
    Label(const QString& name, const QString& caption, QWidget* parent = nullptr);

    QString Caption() const { return text(); }
    void setCaption(const QString& caption);
    /// The same as setCaption(): no text gets in without its change being told.
    void setText(const QString& caption) { setCaption(caption); }

    QString spokenName() const override;

signals:
    /// The caption is another one than before.
    void Change();
};

} // namespace orvalis
