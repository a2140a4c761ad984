// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/top_most.h"

#include <QWidget>
#include <QWindow>

namespace orvalis {

namespace {

void setStaysOnTop(QWidget& form, bool on) {
    Qt::WindowFlags flags = form.windowFlags();
    flags.setFlag(Qt::WindowStaysOnTopHint, on);
    // QWidget's own way would make the window anew, which lets it flicker.
    form.overrideWindowFlags(flags);
    if (QWindow* window = form.windowHandle())
        window->setFlag(Qt::WindowStaysOnTopHint, on);
}

} // namespace

void SetTopMost(QWidget& form) {
    setStaysOnTop(form, true);
}

void ClearTopMost(QWidget& form) {
    setStaysOnTop(form, false);
}

} // namespace orvalis
