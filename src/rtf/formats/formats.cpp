// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats/formats.h"

namespace orvalis::rtf {

size_t qHash(const CharFormat& format, size_t seed) noexcept {
    const auto small =
        static_cast<unsigned>(format.underline) | static_cast<unsigned>(format.script) << 8 |
        static_cast<unsigned>(format.capitals) << 16 | static_cast<unsigned>(format.bold) << 24 |
        static_cast<unsigned>(format.italic) << 25 | static_cast<unsigned>(format.strike) << 26 |
        static_cast<unsigned>(format.hidden) << 27 |
        static_cast<unsigned>(format.controlMarks) << 28 |
        static_cast<unsigned>(format.doubleStrike) << 29 |
        static_cast<unsigned>(format.shading) << 30 | static_cast<unsigned>(format.byNumber) << 31;
    // A run of text asks for it, so it takes two numbers at a time.
    quint64 hash = seed;
    const auto add = [&](auto one, auto other) {
        constexpr quint64 Odd = 0x9e3779b97f4a7c15; // whose bits are spread evenly
        hash = (hash ^ (quint64(quint32(one)) << 32 | quint32(other))) * Odd;
        hash ^= hash >> 32;
    };
    add(format.family, format.link);
    add(format.halfPoints, format.raise);
    add(format.spacing, format.kept);
    add(format.anchors, format.cell);
    add(format.color, format.highlight);
    add(format.field, format.stated);
    add(small, 0);
    return size_t(hash);
}

int Names::link(const Hyperlink& link) {
    const std::pair key(link.target, link.switches);
    const auto found = m_linkIndex.constFind(key);
    if (found != m_linkIndex.constEnd())
        return *found;
    const int added = int(m_links.size());
    m_links.append(link);
    m_linkIndex.insert(key, added);
    return added;
}

int Names::intern(QStringList& list, QHash<QString, int>& index, const QString& name) {
    const auto found = index.constFind(name);
    if (found != index.constEnd())
        return *found;
    const int added = int(list.size());
    list.append(name);
    index.insert(name, added);
    return added;
}

} // namespace orvalis::rtf
