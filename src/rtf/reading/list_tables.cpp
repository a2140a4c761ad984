// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/list_tables.h"

#include "rtf/characters/bullet_sign.h"
#include "rtf/formats/list_formats.h"
#include "rtf/kept/kept_text.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

namespace {

constexpr qsizetype MostLevels = NumberCodes;
constexpr qsizetype MostLists = 32768;
constexpr int LevelFormatBullet = 23;
constexpr int LevelFormatNone = 255;

ListKind kindOfFormat(int format) {
    switch (format) {
    case 1:
        return ListKind::UpperRoman;
    case 2:
        return ListKind::LowerRoman;
    case 3:
        return ListKind::UpperLetter;
    case 4:
        return ListKind::LowerLetter;
    case LevelFormatBullet:
        return ListKind::Bullet;
    case LevelFormatNone:
        return ListKind::None;
    default:
        return ListKind::Decimal;
    }
}

QString numbered(int number, const QString& kept) {
    return kept.isEmpty() ? QString() : QString::number(number) + NumberEnd + kept;
}

/// Whether a list looks as those do that this program tells of in both ways.
bool isMade(int identity, const QString& kept) {
    const QString head = u"\\list\\listtemplateid%1\\listsimple{"_s.arg(identity);
    return QStringView(kept)
        .sliced(std::max<qsizetype>(kept.indexOf(u'{'), 0) + 1)
        .startsWith(head);
}

// Old files number their overrides from 0, which as an identity would be none.
constexpr int IdentityOfFirst = std::numeric_limits<int>::min();

} // namespace

void ListTables::beginList(const QString& kept) {
    endEntry();
    m_entry.kept = kept;
}

void ListTables::beginOverride(const QString& kept) {
    beginList(kept);
    m_entry.isOverride = true;
}

void ListTables::endEntry() {
    const Entry entry = std::exchange(m_entry, {});
    if (entry.isOverride)
        addOverride(entry);
    else if (entry.identity && !entry.levels.isEmpty())
        addList(entry);
}

/// What has been told of a list stands: text may be in it by now.
void ListTables::addList(const Entry& entry) {
    if (m_lists.size() < MostLists && !m_lists.contains(*entry.identity))
        m_lists.insert(*entry.identity, List{entry.levels, numbered(*entry.identity, entry.kept)});
}

void ListTables::addOverride(const Entry& entry) {
    if (!entry.number || m_overrides.size() >= MostLists || m_overrides.contains(*entry.number))
        return;
    const int identity = entry.identity.value_or(0);
    const QString kept = numbered(*entry.number, entry.kept);
    m_overrides.insert(*entry.number, Override{identity, entry.starts, entry.levels, kept});
    // Items of the list are written with this override, so it must be one that is kept.
    const bool isPlain = entry.starts.isEmpty() && entry.levels.isEmpty() && !kept.isEmpty();
    if (isPlain && !m_plainOverrides.contains(identity))
        m_plainOverrides.insert(identity, *entry.number);
}

void ListTables::beginOverrideLevel() {
    m_entry.overrideLevel = std::min<int>(m_entry.overrideLevel + 1, MostLevels);
}

void ListTables::beginLevel() {
    const int level =
        m_entry.overrideLevel == NoLevel ? int(m_entry.levels.size()) : m_entry.overrideLevel;
    if (m_entry.levels.size() >= MostLevels)
        return;
    ListLabel label;
    label.kind = ListKind::Decimal;
    label.level = level;
    m_entry.levels.append(label);
    m_entry.bullet.clear();
    m_entry.bulletFont = SymbolFont::None;
}

ListLabel* ListTables::openLevel() {
    const bool open =
        !m_entry.levels.isEmpty() &&
        (m_entry.overrideLevel == NoLevel || m_entry.levels.last().level == m_entry.overrideLevel);
    return open ? &m_entry.levels.last() : nullptr;
}

void ListTables::setLevelKind(int format) {
    if (ListLabel* level = openLevel())
        level->kind = kindOfFormat(format);
}

void ListTables::setLevelStart(int start) {
    start = std::clamp(start, 0, LargestListStart);
    if (ListLabel* level = openLevel())
        level->start = start;
    else if (m_entry.overrideLevel != NoLevel)
        m_entry.starts.insert(m_entry.overrideLevel, start);
}

void ListTables::setLevelFollow(int follow) {
    if (ListLabel* level = openLevel())
        level->follow = follow == 1   ? LabelFollow::Blank
                        : follow == 2 ? LabelFollow::Nothing
                                      : LabelFollow::Tab;
}

void ListTables::setLevelSide(int side) {
    if (ListLabel* level = openLevel())
        level->side = side == 1   ? LabelSide::Center
                      : side == 2 ? LabelSide::Right
                                  : LabelSide::Left;
}

void ListTables::setLevelTab(int position) {
    if (ListLabel* level = openLevel())
        level->tab = std::max(position, 0);
}

void ListTables::setLevelText(const QString& text) {
    ListLabel* level = openLevel();
    if (!level || text.isEmpty())
        return;
    const char16_t own = char16_t(level->level);
    // The first character counts the others; what follows them is the closing semicolon.
    const QString label = text.mid(1, text.front().unicode());
    if (level->kind == ListKind::Bullet) {
        m_entry.bullet = label;
        level->prefix = bulletSign(m_entry.bullet, m_entry.bulletFont);
        return;
    }
    const qsizetype number = label.indexOf(QChar(own));
    if (number < 0)
        return;
    // The levels above have their numbers by then.
    const auto isLater = [own](QChar c) { return c.unicode() < MostLevels && c.unicode() >= own; };
    const QString before = label.first(number);
    if (std::none_of(before.begin(), before.end(), isLater))
        level->prefix = before;
    const QString after = label.mid(number + 1);
    if (std::none_of(after.begin(), after.end(), isLater))
        level->suffix = after;
}

void ListTables::setLevelFont(SymbolFont font) {
    m_entry.bulletFont = font;
    ListLabel* level = openLevel();
    if (level && level->kind == ListKind::Bullet)
        level->prefix = bulletSign(m_entry.bullet, font);
}

std::optional<ListLabel> ListTables::label(int overrideNumber, int level, bool numbered) const {
    const auto own = m_overrides.constFind(overrideNumber);
    if (own == m_overrides.constEnd())
        return std::nullopt;
    const auto list = m_lists.constFind(own->identity);
    if (list == m_lists.constEnd() || list->levels.isEmpty())
        return std::nullopt;
    const Levels& levels = list->levels;
    ListLabel label = levels.at(std::clamp<qsizetype>(level, 0, levels.size() - 1));
    for (const ListLabel& changed : own->labels)
        if (changed.level == label.level)
            label = changed;
    label.start = own->starts.value(label.level, label.start);
    const bool made = numbered && isMade(own->identity, list->kept);
    if (!made && !list->kept.isEmpty() && !own->kept.isEmpty()) {
        label.source = numbered ? ListSource::Both : ListSource::Tables;
        label.keptList = list->kept;
        label.keptOverride = own->kept;
    }
    // Bullets look alike whichever list they are of, and follow each other by their shape.
    if (label.kind == ListKind::Bullet && label.source == ListSource::Made)
        return label;
    // Overrides that change nothing stand for the list itself, whose numbers go on.
    const bool plain = own->starts.isEmpty() && own->labels.isEmpty();
    const int shared =
        plain ? m_plainOverrides.value(own->identity, overrideNumber) : overrideNumber;
    label.identity = shared != 0 ? shared : IdentityOfFirst;
    if (label.hasTables() && shared != overrideNumber)
        label.keptOverride = m_overrides.value(shared).kept;
    return label;
}

} // namespace orvalis::rtf
