// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace orvalis {

/// What a step of undo takes back, with the numbers that the edit control reports.
enum class UndoKind : int {
    LastAction = 0,
    Typing = 1,
    Delete = 2,
    DragDrop = 3,
    Cut = 4,
    Paste = 5,
};

/// The name of a kind's number, empty for any other number.
QString undoKindName(int kind);

/// Keeps the kind of each step in a document's history of undo, beside the history itself.
class UndoKinds {
public:
    UndoKind current() const { return m_current; }
    void setCurrent(UndoKind kind) { m_current = kind; }

    /// The history was asked after something happened: it now has that many steps that can be
    /// undone. \a byHistory: it moved through undo or redo, no step was added.
    void stepsChanged(int steps, bool byHistory);
    /// The kind of the last of them, LastAction when there is none.
    UndoKind kindOfNext() const;

private:
    std::vector<UndoKind> m_kinds;
    int m_steps = 0;
    UndoKind m_current = UndoKind::LastAction;
};

/// Says of what kind the edits are that happen while it lives.
class UndoKindScope {
public:
    UndoKindScope(UndoKinds& kinds, UndoKind kind)
        : m_kinds(kinds)
        , m_outer(kinds.current()) {
        m_kinds.setCurrent(kind);
    }
    ~UndoKindScope() { m_kinds.setCurrent(m_outer); }
    Q_DISABLE_COPY_MOVE(UndoKindScope)

private:
    UndoKinds& m_kinds;
    UndoKind m_outer;
};

} // namespace orvalis
