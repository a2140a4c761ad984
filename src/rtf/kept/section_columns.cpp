// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/section_columns.h"

namespace orvalis::rtf {

namespace {

constexpr int MostColumns = 45; // that word processors know

} // namespace

void SectionColumns::take(ColumnWord word, int number) {
    if (word == ColumnWord::Number)
        m_current = number >= 1 && number <= MostColumns ? number : 0;
    if (m_current == 0)
        return;
    Column& column = m_columns[m_current];
    if (word == ColumnWord::Width)
        column.width = number;
    else if (word == ColumnWord::Space)
        column.space = number;
}

void SectionColumns::clear() {
    m_columns.clear();
    m_current = 0;
}

QString SectionColumns::text() const {
    QString text;
    for (const auto& [number, column] : m_columns) {
        text += QStringLiteral("\\colno") + QString::number(number);
        if (column.width != 0)
            text += QStringLiteral("\\colw") + QString::number(column.width);
        if (column.space != 0)
            text += QStringLiteral("\\colsr") + QString::number(column.space);
    }
    return text;
}

} // namespace orvalis::rtf
