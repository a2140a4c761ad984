// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept_row.h"

#include "rtf/kept_text.h"

namespace orvalis::rtf {

QString unevenRow(int cells, const QString& words) {
    return QString::number(cells) + NumberEnd + words;
}

qsizetype cellsOfRow(const QString& kept) {
    const qsizetype end = kept.indexOf(NumberEnd);
    return end < 0 ? kept.count(QStringLiteral("\\cellx")) : kept.first(end).toInt();
}

QStringView wordsOfRow(const QString& kept) {
    return QStringView(kept).sliced(kept.indexOf(NumberEnd) + 1);
}

} // namespace orvalis::rtf
