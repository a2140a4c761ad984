// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/integer16.h"

#include <QString>

namespace orvalis {

class RichTextBox;

/// What is looked for, how, and what takes its place: read from the controls at each command.
struct FindRequest {
    QString text = {};
    QString replacement = {};
    bool wholeWord = false;
    bool matchCase = false;

    /// The search options of the text control: 2 for a whole word and 4 for matching case, added
    /// up.
    int options() const { return (wholeWord ? 2 : 0) + (matchCase ? 4 : 0); }
};

/// The steps of find and replace in a rich text control. Positions are 16-bit: a hit beyond 32767,
/// and a search that would begin there, fail with 6 (Overflow).
///
/// The first search begins at the second character, so that a hit at the very first one is found
/// only by going on after a miss, and even then counts as none.
class FindCommands {
public:
    /// Searches from the top. \returns whether there is a hit, which is selected then.
    bool find(RichTextBox& box, const FindRequest& request);
    /// Searches on behind the last hit.
    bool findNext(RichTextBox& box, const FindRequest& request);
    /// Replaces the selection, whatever it is, and searches on.
    bool replace(RichTextBox& box, const FindRequest& request);
    /// Replaces the selection, whatever it is, and then each hit from the top, as one step of undo.
    void replaceAll(RichTextBox& box, const FindRequest& request);

    /// `m_FoundPos`: where the last hit begins, -1 after a miss.
    int foundPosition() const { return m_FoundPos; }

private:
    void step(RichTextBox& box, const FindRequest& request);

    Integer16 m_FoundPos;
};

} // namespace orvalis
