// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/formats.h"
#include "rtf/kept/kept_row.h"

#include <QString>

#include <array>

namespace orvalis::rtf {

/// What a text tells of its rows. That of a box knows none of those around it.
struct RowState {
    int keptOfRow = 0;
    int keptOfCell = 0;
    QString cells; ///< of the row, as they are kept
    int cellCount = 0;
    int row = NothingKept;
    int cellsOfRow = 0;                               ///< that have ended
    std::array<int, MostNesting + 1> cellsOfNested{}; ///< the same, by their nesting
    bool any = false;                                 ///< has been shaped
    bool isNew = false;                               ///< row does not tell it yet
    bool isOpened = false;     ///< by a paragraph without text, of which the row may never end
    bool isEntered = false;    ///< a paragraph of the row has ended
    bool endsWithItem = false; ///< of a list, so far

    /// What comes is none of the row that was entered.
    void leave() {
        isEntered = isOpened = false;
        cellsOfRow = 0;
        cellsOfNested.fill(0);
    }
};

/// A label that is told by its text.
struct TextLabel {
    QString text;
    ListLabel list;                        ///< what was told where it stands, which a brace may end
    SymbolFont symbols = SymbolFont::None; ///< that the font is which it names
};

/// What a text in a shape has for itself, of the text around it.
struct TextAround {
    RowState rows;
    TextLabel label;
};

} // namespace orvalis::rtf
