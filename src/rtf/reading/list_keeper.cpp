// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/list_keeper.h"

#include "rtf/formats/list_number.h"

#include <algorithm>

namespace orvalis::rtf {

namespace {

constexpr int MostItems = 256;
// To a document the numbers that go on are a list of their own, so the lists that people wrote are
// left whole.
constexpr int MostNumbers = 2048;
constexpr int MembersOfRealDocuments = 4 * MostNumbers;

// Items of the tables that tell their number beside them go on with the others.
ListSource sourceOf(const ListLabel& label) {
    return label.hasTables() ? ListSource::Tables : label.source;
}

bool sameLabel(const ListLabel& a, const ListLabel& b) {
    return a.kind == b.kind && a.identity == b.identity && a.level == b.level &&
           sourceOf(a) == sourceOf(b) && a.prefix == b.prefix && a.suffix == b.suffix &&
           a.tab == b.tab && a.follow == b.follow && a.side == b.side && a.keptList == b.keptList &&
           a.keptOverride == b.keptOverride;
}

size_t labelKey(const ListLabel& label) {
    return qHashMulti(0, int(label.kind), label.identity, label.level, int(sourceOf(label)),
                      label.prefix, label.suffix, label.tab, int(label.follow), int(label.side));
}

// Where items name no list, the indent keeps an inner list apart from an outer one.
size_t shapeKey(const ParagraphFormat& item) {
    return qHashMulti(0, labelKey(item.list), item.list.identity == 0 ? item.left : 0);
}

bool numberFollows(const ListLabel& label, const ListLabel& first, int items) {
    return label.kind != ListKind::Bullet && label.start == first.start + items;
}

} // namespace

ListKeeper::Entry* ListKeeper::entry(size_t key, const ListLabel& label) {
    for (const auto* index : {&m_byShape, &m_byLabel}) {
        const auto found = index->constFind(key);
        if (found != index->constEnd() && sameLabel(m_entries[*found].label, label))
            return &m_entries[*found];
    }
    return nullptr;
}

bool ListKeeper::goesOn(const Entry& entry, const ParagraphFormat& item, bool adjacent) const {
    const ListLabel& label = item.list;
    if (label.identity != 0) {
        // A deeper level begins anew below each item of the level above it.
        return m_levels.value(label.identity, label.level) >= label.level;
    }
    if (adjacent && label.numbering != 0 && label.numbering == m_last.numbering)
        return true;
    const bool sameShape = adjacent && !label.showsStart && sameLabel(label, m_last) &&
                           label.start == m_last.start && item.left == m_lastLeft;
    return sameShape || numberFollows(label, entry.label, entry.items);
}

bool ListKeeper::isFull(const Entry& entry) const {
    const bool whole = entry.label.kind != ListKind::Bullet && m_members < MembersOfRealDocuments;
    return entry.items >= (whole ? MostNumbers : MostItems);
}

void ListKeeper::takeNumbersAbove(QString& text) const {
    for (int level = 0; level < NumberCodes; ++level)
        if (const QChar code(level); text.contains(code))
            text.replace(code, m_numbers.value({m_new.identity, level}, QStringLiteral("1")));
}

QTextList* ListKeeper::goOn(const ParagraphFormat& item) {
    QTextList* const list = find(item);
    if (m_new.identity == 0 || m_new.kind == ListKind::Bullet)
        return list;
    takeNumbersAbove(m_new.prefix);
    takeNumbersAbove(m_new.suffix);
    m_numbers[{m_new.identity, m_new.level}] = listNumber(m_new.kind, m_number);
    return list;
}

QTextList* ListKeeper::find(const ParagraphFormat& item) {
    const ListLabel& label = item.list;
    Entry* found = entry(shapeKey(item), label);
    if (!found && label.identity == 0) {
        // The same list may change its indent on the way; then only its number tells.
        found = entry(labelKey(label), label);
        if (found && !numberFollows(label, found->label, found->items) &&
            label.numbering != m_last.numbering)
            found = nullptr;
    }
    const bool going = found && goesOn(*found, item, m_adjacent);
    m_adjacent = true;
    m_last = label;
    m_lastLeft = item.left;
    if (label.identity != 0)
        m_levels[label.identity] = label.level;
    ++m_members;
    m_new = label;
    m_new.start = std::min(label.start, LargestListStart);
    m_number = m_new.start;
    if (!going)
        return nullptr;
    m_number = found->label.start + found->items;
    if (isFull(*found)) {
        if (label.kind != ListKind::Bullet)
            m_new.start = m_number;
        return nullptr;
    }
    ++found->items;
    const int index = int(found - m_entries.constData());
    m_byShape[shapeKey(item)] = index;
    m_byLabel[labelKey(label)] = index;
    return found->list;
}

void ListKeeper::began(const ParagraphFormat& item, QTextList* list) {
    const int index = int(m_entries.size());
    ListLabel label = item.list;
    label.start = m_new.start;
    m_entries.append(Entry{label, list, 1});
    m_byShape[shapeKey(item)] = index;
    m_byLabel[labelKey(item.list)] = index;
}

} // namespace orvalis::rtf
