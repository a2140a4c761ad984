// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <map>

namespace orvalis::rtf {

/// What a word tells of the columns of a section.
enum class ColumnWord : quint8 {
    Number, ///< of the column that the others are of
    Width,
    Space, ///< to its right
};

/// The columns of a section that are not all alike.
class SectionColumns {
public:
    void take(ColumnWord word, int number);
    void clear();
    /// The words for them, as they are kept.
    QString text() const;

private:
    struct Column {
        int width = 0; ///< twips, 0 for none
        int space = 0;
    };

    std::map<int, Column> m_columns; ///< by their numbers
    int m_current = 0;               ///< 0 for none
};

} // namespace orvalis::rtf
