// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/formats.h"

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
    return qHashMulti(seed, format.family, format.link, format.halfPoints, format.raise,
                      format.spacing, format.kept, format.anchors, format.cell, format.color,
                      format.highlight, format.field, format.stated, small);
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
