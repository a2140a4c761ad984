// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QToolButton>

namespace orvalis {

/// A tool of a toolbar: a `QToolButton` that Enter presses, as it presses the pictures.
class ToolButton final : public QToolButton {
    Q_OBJECT
public:
    using QToolButton::QToolButton;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace orvalis
