// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats/formats.h"
#include "rtf/words/kept_words.h"

#include <QHash>

#include <utility>
#include <vector>

namespace orvalis::rtf {

/// A word that is kept, with what it came with.
struct KeptCall {
    const ControlWord* word = nullptr;
    const ControlWord* side = nullptr; ///< the border that it belongs to, null for none
    bool hasNumber = false;
    int number = 0;       ///< of a colour: the QRgb
    bool removes = false; ///< what was told by the word no longer holds
};

/// Which words are kept for a run, a paragraph or whatever else they hold for.
///
/// A set is a number, so that groups and paragraphs remember theirs at no cost; 0 is the empty set.
/// Equal sets have equal numbers, and one text, in which the words stand in one order however they
/// came. Sets are made until they have cost so much that no document of people could; from then on
/// they stay as they are.
class KeptSets {
public:
    explicit KeptSets(Names& names)
        : m_names(names)
        , m_sets(1) {}

    /// The set that a word makes of another.
    int with(int set, const KeptCall& call);
    /// Its text among the names' kept ones.
    int name(int set) const { return m_sets[size_t(set)].name; }

private:
    struct Entry {
        int side = 0; ///< 0 for none, else the place of its word
        int word = 0; ///< 0 for the side itself
        const ControlWord* source = nullptr;
        bool hasNumber = false;
        int number = 0;
    };
    struct Set {
        std::vector<Entry> entries; ///< by side and word
        int name = 0;
    };
    using Step =
        std::pair<quint64, quint64>; ///< from a set, by a word, its number and whether it goes

    static void apply(std::vector<Entry>& entries, const Entry& entry);
    static void remove(std::vector<Entry>& entries, const Entry& entry);
    static void insert(std::vector<Entry>& entries, const Entry& entry);
    static bool isLeftToRight(const Entry& entry);
    QString text(const std::vector<Entry>& entries) const;
    QString word(const Entry& entry) const;
    static QString scriptWord(int side);

    Names& m_names;
    std::vector<Set> m_sets;
    QHash<Step, int> m_steps;
    QHash<int, int> m_byName;
    qint64 m_bytesLeft = qint64(4) << 20;
};

} // namespace orvalis::rtf
