// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/formats.h"

#include <QHash>
#include <QTextList>

namespace orvalis::rtf {

/// Decides which list of a document a paragraph goes on with.
///
/// Items that name a list by its identity go on with it across other paragraphs, until an item of
/// an outer level comes; the others hold together by following each other in one shape, or by a
/// number that goes on where an earlier list ended.
///
/// A document spends time on all items of a list whenever one joins it, so lists are kept short
/// enough for that not to be felt: what is longer goes on in a further list.
class ListKeeper {
public:
    /// The list to go on with, null when the item begins a new one. The item counts as its member.
    QTextList* goOn(const ParagraphFormat& item);
    /// The label of the list that the item last asked for, with the numbers of the levels above it;
    /// of a new list, the one that it begins with.
    const ListLabel& newLabel() const { return m_new; }
    /// The number of the item that last asked.
    int number() const { return m_number; }
    /// Remembers the list that an item began with newLabel().
    void began(const ParagraphFormat& item, QTextList* list);
    /// A paragraph outside all lists came.
    void interrupt() { m_adjacent = false; }

private:
    struct Entry {
        ListLabel label;
        QTextList* list = nullptr;
        int items = 0;
    };

    QTextList* find(const ParagraphFormat& item);
    void takeNumbersAbove(QString& text) const;
    Entry* entry(size_t key, const ListLabel& label);
    bool isFull(const Entry& entry) const;
    bool goesOn(const Entry& entry, const ParagraphFormat& item, bool adjacent) const;

    QHash<size_t, int> m_byShape; ///< the last list of each label and indent
    QHash<size_t, int> m_byLabel; ///< the last list of each label
    QList<Entry> m_entries;
    QHash<int, int> m_levels;                      ///< of the last item of each identity
    QHash<std::pair<int, int>, QString> m_numbers; ///< the last ones by identity and level
    ListLabel m_last;
    ListLabel m_new;
    int m_members = 0; ///< of all lists
    int m_lastLeft = 0;
    int m_number = 0;
    bool m_adjacent = false;
};

} // namespace orvalis::rtf
