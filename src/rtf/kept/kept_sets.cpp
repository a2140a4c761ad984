// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/kept_sets.h"

#include "rtf/kept/kept_text.h"
#include "rtf/words/kept_word_table.h"

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

namespace {

constexpr qint64 BytesOfStep = 64;

} // namespace

int KeptSets::with(int set, const KeptCall& call) {
    const KeptWord kind = keptWord(*call.word);
    Entry entry{.source = call.word, .hasNumber = call.hasNumber, .number = call.number};
    if (call.side)
        entry.side = keptOrder(*call.side) + 1;
    if (kind.kind != KeptKind::Side)
        entry.word = keptOrder(*call.word) + 1;
    const Step step{quint64(set) << 32 | quint64(entry.side) << 16 | quint64(entry.word),
                    quint64(call.removes) << 33 | quint64(entry.hasNumber) << 32 |
                        quint32(entry.number)};
    if (const auto known = m_steps.constFind(step); known != m_steps.constEnd())
        return *known;
    if (m_bytesLeft <= 0)
        return set;
    Set made{m_sets[size_t(set)].entries};
    if (call.removes)
        remove(made.entries, entry);
    else
        apply(made.entries, entry);
    const QString words = text(made.entries);
    made.name = m_names.kept(words);
    m_bytesLeft -= BytesOfStep;
    int number = made.entries.empty() ? 0 : m_byName.value(made.name);
    if (number == 0 && !made.entries.empty()) {
        m_bytesLeft -= qint64(made.entries.size() * sizeof(Entry)) + 2 * words.size();
        number = int(m_sets.size());
        m_byName.insert(made.name, number);
        m_sets.push_back(std::move(made));
    }
    m_steps.insert(step, number);
    return number;
}

namespace {

bool isAssociate(KeptKind kind) {
    return kind == KeptKind::Associate || kind == KeptKind::Font;
}

} // namespace

void KeptSets::remove(std::vector<Entry>& entries, const Entry& entry) {
    const auto isIt = [&](const Entry& other) {
        return other.side == entry.side && other.word == entry.word;
    };
    entries.erase(std::remove_if(entries.begin(), entries.end(), isIt), entries.end());
}

void KeptSets::apply(std::vector<Entry>& entries, const Entry& entry) {
    const KeptWord kind = keptWord(*entry.source);
    // A border that was named for something else, a cell ahead say, is not this one's.
    const auto namesSide = [&](const Entry& other) {
        return other.side == entry.side && other.word == 0;
    };
    if (entry.side != 0 && entry.word != 0 && kind.kind != KeptKind::Font &&
        std::none_of(entries.begin(), entries.end(), namesSide))
        return;
    const auto givesWay = [&](const Entry& other) {
        if (other.side != entry.side)
            return false;
        // A border that is named once more begins anew.
        if (kind.kind == KeptKind::Side || other.word == entry.word)
            return true;
        return kind.rivals != 0 && keptWord(*other.source).rivals == kind.rivals;
    };
    entries.erase(std::remove_if(entries.begin(), entries.end(), givesWay), entries.end());
    const bool taken = entry.hasNumber && entry.number == 0 &&
                       (kind.kind == KeptKind::Switch || kind.kind == KeptKind::Color ||
                        kind.kind == KeptKind::Script);
    // Text from left to right is that anyway, where nothing is said of the other.
    const bool usual = kind.kind == KeptKind::Direction && isLeftToRight(entry) &&
                       std::none_of(entries.begin(), entries.end(), [](const Entry& other) {
                           return other.side == 0 && isAssociate(keptWord(*other.source).kind);
                       });
    if (!taken && !usual)
        insert(entries, entry);
}

bool KeptSets::isLeftToRight(const Entry& entry) {
    return entry.source->name == "ltrch";
}

void KeptSets::insert(std::vector<Entry>& entries, const Entry& entry) {
    const auto order = [](const Entry& a, const Entry& b) {
        return std::tie(a.side, a.word) < std::tie(b.side, b.word);
    };
    entries.insert(std::upper_bound(entries.begin(), entries.end(), entry, order), entry);
}

QString KeptSets::text(const std::vector<Entry>& entries) const {
    const Entry* direction = nullptr;
    const Entry* script = nullptr;
    QString associates;
    QString fonts; ///< of scripts
    QString others;
    for (const Entry& entry : entries) {
        const KeptKind kind = keptWord(*entry.source).kind;
        if (kind == KeptKind::Direction)
            direction = &entry;
        else if (kind == KeptKind::Script)
            script = &entry;
        else if (kind == KeptKind::Font && entry.side != 0)
            fonts += scriptWord(entry.side) + word(entry);
        else
            (entry.side == 0 && isAssociate(kind) ? associates : others) += word(entry);
    }
    // What holds for the other direction stands behind the word for that.
    if (direction && !associates.isEmpty())
        associates.prepend(isLeftToRight(*direction) ? u"\\rtlch"_s : u"\\ltrch"_s);
    if (direction)
        associates += word(*direction);
    // Behind the fonts of all scripts stands the word for that of the text.
    if (script)
        fonts += word(*script);
    else if (!fonts.isEmpty())
        fonts += u"\\loch"_s;
    return associates + fonts + others;
}

QString KeptSets::scriptWord(int side) {
    return u'\\' + QLatin1StringView(KeptWordTable[size_t(side - 1)].name);
}

QString KeptSets::word(const Entry& entry) const {
    const QString name = u'\\' + QLatin1StringView(entry.source->name);
    if (!entry.hasNumber)
        return name;
    switch (keptWord(*entry.source).kind) {
    case KeptKind::Color:
        return name + keptColor(QRgb(entry.number));
    case KeptKind::Font:
        return name + keptFont(m_names.familyAt(entry.number));
    case KeptKind::Number:
    case KeptKind::Style:
    case KeptKind::Author:
    case KeptKind::Associate:
        return name + QString::number(entry.number);
    default:
        return name;
    }
}

} // namespace orvalis::rtf
