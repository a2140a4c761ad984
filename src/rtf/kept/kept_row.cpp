// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/kept_row.h"

#include "rtf/kept/kept_text.h"

#include <algorithm>

namespace orvalis::rtf {

QString unevenRow(int cells, const QString& words) {
    return QString::number(cells) + NumberEnd + words;
}

qsizetype cellsOfRow(const QString& kept) {
    const qsizetype end = kept.indexOf(NumberEnd);
    return end < 0 ? kept.count(QStringLiteral("\\cellx")) : kept.first(end).toInt();
}

bool isOpenRow(const QString& kept) {
    return kept.startsWith(u'0');
}

QStringView wordsOfRow(const QString& kept) {
    return QStringView(kept).sliced(kept.indexOf(NumberEnd) + 1);
}

QString nestedRow(int number, int cells, const QString& group) {
    return QString::number(number) + NumberEnd + QString::number(cells) + NumberEnd + group;
}

int cellsOfNestedRow(const QString& kept) {
    return kept.section(NumberEnd, 1, 1).toInt();
}

QStringView groupOfNestedRow(const QString& kept) {
    return QStringView(kept).sliced(kept.lastIndexOf(NumberEnd) + 1);
}

int nestingOfCell(const QString& shape) {
    static const QString Start = QStringLiteral("\\pard\\intbl\\itap");
    if (!shape.startsWith(Start))
        return 0;
    qsizetype end = Start.size();
    while (end < shape.size() && shape[end].isDigit())
        ++end;
    return std::clamp(shape.sliced(Start.size(), end - Start.size()).toInt(), 0, MostNesting);
}

} // namespace orvalis::rtf
