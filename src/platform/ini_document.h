// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/settings_store.h"

#include <QList>

namespace orvalis {

/// The text of an INI file: sections of named, typed values. Comments, order and every line that is
/// not understood stay as they were when a value changes. Names are compared without case; of a
/// name that stands twice the first counts.
///
/// A text is written as it stands ("FN=Arial"), or in double quotes with escapes where that could
/// be misread; a number as "dword:" and eight hexadecimal digits, an expandable text as "expand:"
/// and a quoted text, bytes of another type as "hex(type):" and pairs of digits.
class IniDocument {
public:
    IniDocument() = default;
    /// Empty when the bytes are no UTF-8 text.
    static std::optional<IniDocument> parse(QByteArrayView bytes);

    QByteArray bytes() const;

    bool isEmpty() const { return m_lines.isEmpty(); }
    bool hasSection(QStringView section) const;
    QStringList sections() const;
    /// The value, empty where the line that should hold it is damaged.
    std::optional<StoredValue> value(QStringView section, QStringView name) const;

    void addSection(const QString& section);
    void setValue(const QString& section, const QString& name, const StoredValue& value);
    void removeValue(QStringView section, QStringView name);

private:
    struct Line {
        enum class Kind { Other, Section, Value } kind = Kind::Other;
        QString text;
        QString name;  // of the section or the value
        QString value; // as it is written
    };

    static Line read(QStringView text);
    /// The line of a value, or -1.
    qsizetype find(QStringView section, QStringView name) const;
    /// The line of a section's header, or -1; values ahead of any header have the section "".
    qsizetype findSection(QStringView section) const;
    /// Where a new value of the section belongs: behind its last line that is not blank.
    qsizetype endOfSection(QStringView section) const;

    QList<Line> m_lines;
};

} // namespace orvalis
