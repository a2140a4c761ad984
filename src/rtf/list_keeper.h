// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats.h"

#include <QHash>
#include <QTextList>

namespace orvalis::rtf {

/// Decides which list of a document a paragraph goes on with.
///
/// Items that name a list by its identity go on with it across other paragraphs, until an item of
/// an outer level comes; the others hold together by following each other in one shape, or by a
/// number that goes on where an earlier list ended.
class ListKeeper {
public:
    /// The list to go on with, null when the item begins a new one. The item counts as its member.
    QTextList* goOn(const ParagraphFormat& item);
    /// Remembers the list that an item began.
    void began(const ParagraphFormat& item, QTextList* list);
    /// A paragraph outside all lists came.
    void interrupt() { m_adjacent = false; }

private:
    struct Entry {
        ListLabel label;
        QTextList* list = nullptr;
        int items = 0;
    };

    Entry* entry(size_t key, const ListLabel& label);
    bool goesOn(const Entry& entry, const ParagraphFormat& item, bool adjacent) const;

    QHash<size_t, int> m_byShape; ///< the last list of each label and indent
    QHash<size_t, int> m_byLabel; ///< the last list of each label
    QList<Entry> m_entries;
    QHash<int, int> m_levels; ///< of the last item of each identity
    ListLabel m_last;
    int m_lastLeft = 0;
    bool m_adjacent = false;
};

} // namespace orvalis::rtf
