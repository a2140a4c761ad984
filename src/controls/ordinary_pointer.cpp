// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/ordinary_pointer.h"

#include <QGuiApplication>

namespace orvalis {

OrdinaryPointer::OrdinaryPointer() {
    if (const QCursor* pointer = QGuiApplication::overrideCursor()) {
        m_before = *pointer;
        QGuiApplication::restoreOverrideCursor();
    }
}

OrdinaryPointer::~OrdinaryPointer() {
    if (m_before.has_value())
        QGuiApplication::setOverrideCursor(*m_before);
}

} // namespace orvalis
