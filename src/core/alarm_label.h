// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/label.h"

namespace orvalis {

/// Shows the time of an armed alarm on the glass, with a quieter word ahead of it where it has one.
/// The word is no part of the caption. Nothing shows while the caption is empty.
class AlarmLabel : public Label {
    Q_OBJECT
public:
    AlarmLabel(const QString& name, QWidget* parent);

    /// The word ahead of the time; none at first.
    void setLead(const QString& word);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_lead;
};

} // namespace orvalis
