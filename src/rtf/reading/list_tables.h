// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/characters/symbol_font.h"
#include "rtf/formats/formats.h"

#include <QHash>
#include <QList>

#include <optional>

namespace orvalis::rtf {

inline constexpr int NoLevel = -1;

/// The list table and the override table, by which a paragraph's \ls and \ilvl name its label.
class ListTables {
public:
    /// \param kept the list as it is kept, which says nothing of its identity; may be empty.
    void beginList(const QString& kept);
    void beginLevel();
    /// \param kept the same of the override.
    void beginOverride(const QString& kept);
    /// An override may let its levels begin at numbers of their own, and give them a label.
    void beginOverrideLevel();
    /// Ends the list or override that was begun last, which counts from then on.
    void endEntry();
    /// \param identity of the list that was begun, or the one that the override stands for.
    void setIdentity(int identity) { m_entry.identity = identity; }
    /// \param number of the override, by which paragraphs name it.
    void setNumber(int number) { m_entry.number = number; }
    /// \param format as \levelnfc numbers it.
    void setLevelKind(int format);
    void setLevelStart(int start);
    /// \param follow,side as \levelfollow and \leveljc number them.
    void setLevelFollow(int follow);
    void setLevelSide(int side);
    /// \param position of the stop behind the labels, in twips from the margin.
    void setLevelTab(int position);
    /// \param text as \leveltext has it: its length, then characters, with the codes 0 to 8 where
    /// the numbers of the levels go.
    void setLevelText(const QString& text);
    /// \param font with signs that the label is in; none for letters.
    void setLevelFont(SymbolFont font);

    /// Whether there are overrides.
    bool any() const { return !m_overrides.isEmpty(); }
    /// The label for a paragraph; none where the tables do not know the override.
    /// \param numbered whether a \pn tells of it too, as in what this program makes.
    std::optional<ListLabel> label(int overrideNumber, int level, bool numbered) const;

private:
    using Levels = QList<ListLabel>;
    struct List {
        Levels levels;
        QString kept;
    };
    struct Override {
        int identity = 0;       ///< of the list
        QHash<int, int> starts; ///< by level
        Levels labels;
        QString kept;
    };
    /// A list or an override that is read.
    struct Entry {
        bool isOverride = false;
        std::optional<int> identity;
        std::optional<int> number;
        int overrideLevel = NoLevel;
        QHash<int, int> starts;
        Levels levels;
        QString kept;
        QString bullet; ///< of the last level, as the file has it
        SymbolFont bulletFont = SymbolFont::None;
    };
    void addList(const Entry& entry);
    void addOverride(const Entry& entry);
    ListLabel* openLevel();

    QHash<int, List> m_lists;
    QHash<int, Override> m_overrides;
    QHash<int, int> m_plainOverrides; ///< by the list: the first one that changes nothing of it
    Entry m_entry;
};

} // namespace orvalis::rtf
