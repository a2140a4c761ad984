// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/characters/code_page.h"
#include "rtf/formats/font_face.h"
#include "rtf/formats/formats.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <optional>

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
    /// \param kind the word for it, of the table of words.
    void setKind(QByteArrayView kind) { m_face.kind = kind; }
    void setAnyDirection() { m_face.anyDirection = true; }
    void setPitch(int pitch);
    void setPanose(const QString& kept) { m_face.panose = kept; }
    void setAlternative(const QString& kept) { m_face.alternative = kept; }
    /// Bytes of the name, in the font's own page.
    void addName(QByteArrayView bytes);
    void addName(char16_t character);
    /// The page of the name, and of that of another face.
    const CodePage& pageOfName(const CodePage& documentPage) const;
    /// The name without the suffix that old writers add for a script; it wins over the other.
    void setPlainName(const QString& name) { m_plainName = name; }
    /// Ends the entry, if one is open, and keeps it.
    void commit(Names& names, const CodePage& documentPage);

    /// Null for a number that the table does not have.
    const Font* find(int number) const;

    /// The font of text that names none, by its number.
    void setUsual(int number);
    /// The text begins: what is told of that font from here on comes too late.
    void settleUsual();
    /// Null where the table has none of that number, which is 0 where the file does not say.
    const Font* usual() const;
    DefaultFont saidOfUsual() const;
    /// Families that the file takes for fonts of signs, or not, where their names tell otherwise.
    QStringList oddFamilies(const Names& names) const;
    /// What is told of the faces, of each where it was told first.
    FontFaces faces(const Names& names) const;
    /// Grows with everything that changes what the numbers stand for.
    int version() const { return m_version; }
    /// The page of the file, which fonts without one have, is another one now.
    void pageHasChanged() { ++m_version; }

private:
    QHash<int, Font> m_fonts;
    std::optional<Font> m_usual; ///< that is settled
    int m_usualNumber = 0;
    bool m_usualSaid = false;
    bool m_usualSettled = false;
    QSet<int> m_signs;            ///< families that are told as such
    QSet<int> m_letters;          ///< families that are told otherwise
    QHash<int, FontFace> m_faces; ///< by their families
    Font m_entry;
    FontFace m_face; ///< of the entry
    QByteArray m_bytes;
    QString m_name;
    QString m_plainName;
    int m_number = 0;
    int m_version = 0;
    bool m_open = false;
};

} // namespace orvalis::rtf
