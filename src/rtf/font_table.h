// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/code_page.h"
#include "rtf/formats.h"

#include <QHash>
#include <QSet>
#include <QStringList>

namespace orvalis::rtf {

/// The name of a face without the script that old writers, which list a face once a script, tell
/// behind it.
QString withoutScript(const QString& name);

/// The fonts of a file by their numbers, filled while the font table is read.
class FontTable {
public:
    struct Font {
        int family = NoName;
        const CodePage* page = nullptr;        ///< null: the document's own
        SymbolFont symbols = SymbolFont::None; ///< by its name, whatever its page
    };

    /// Begins an entry; what is told until commit() belongs to it.
    void begin(int number);
    void setCharset(int charset);
    void setPage(int number);
    /// Bytes of the name, in the font's own page.
    void addName(QByteArrayView bytes);
    void addName(char16_t character);
    /// The name without the suffix that old writers add for a script; it wins over the other.
    void setPlainName(const QString& name) { m_plainName = name; }
    /// Ends the entry, if one is open, and keeps it.
    void commit(Names& names, const CodePage& documentPage);

    /// Null for a number that the table does not have.
    const Font* find(int number) const;
    /// Families that the file takes for fonts of signs, or not, where their names tell otherwise.
    QStringList oddFamilies(const Names& names) const;
    /// Grows with every entry that is kept.
    int version() const { return m_version; }

private:
    QHash<int, Font> m_fonts;
    QSet<int> m_signs;   ///< families that are told as such
    QSet<int> m_letters; ///< families that are told otherwise
    Font m_entry;
    QByteArray m_bytes;
    QString m_name;
    QString m_plainName;
    int m_number = 0;
    int m_version = 0;
    bool m_open = false;
};

} // namespace orvalis::rtf
