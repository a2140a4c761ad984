// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/undo_kind.h"

namespace orvalis {

QString undoKindName(int kind) {
    switch (static_cast<UndoKind>(kind)) {
    case UndoKind::LastAction:
        return QStringLiteral("Last Action");
    case UndoKind::Typing:
        return QStringLiteral("Typing");
    case UndoKind::Delete:
        return QStringLiteral("Delete");
    case UndoKind::DragDrop:
        return QStringLiteral("Drag Drop");
    case UndoKind::Cut:
        return QStringLiteral("Cut");
    case UndoKind::Paste:
        return QStringLiteral("Paste");
    }
    return QString();
}

void UndoKinds::stepsChanged(int steps, bool byHistory) {
    // An edit after an undo cuts off what could have been redone, and its kinds with it; an undo
    // alone keeps them for the redo.
    if (!byHistory) {
        m_kinds.resize(size_t(qMin(m_steps, steps)));
        m_kinds.resize(size_t(steps), m_current);
    }
    m_steps = steps;
}

UndoKind UndoKinds::kindOfNext() const {
    if (m_steps <= 0 || size_t(m_steps) > m_kinds.size())
        return UndoKind::LastAction;
    return m_kinds[size_t(m_steps - 1)];
}

} // namespace orvalis
