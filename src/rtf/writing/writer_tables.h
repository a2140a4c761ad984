// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/characters/symbol_font.h"
#include "rtf/formats/formats.h"
#include "rtf/kept/kept_parts.h"

#include <QSet>
#include <QStringList>

#include <array>
#include <map>

namespace orvalis::rtf {

class RtfOutput;

/// The fonts, colours and lists of a file that is written, numbered in the order of their
/// first use.
class WriterTables {
public:
    WriterTables();

    /// The families and links by which character formats are told.
    Names& names() { return m_names; }
    const Names& names() const { return m_names; }

    /// The number of a family of names().
    int font(int family);
    /// Lets the fonts be numbered from 1.
    void leaveOutFirstFont() { m_firstFont = 1; }
    /// A number that no font has.
    int unusedFont() const { return m_firstFont + int(m_fonts.size()); }
    /// The number of the font that bullets are drawn in.
    int symbolFont() { return font(m_symbolFamily); }
    /// Families that are fonts of signs, or are not, where their names tell otherwise.
    void expectOdd(const QStringList& families);
    SymbolFont symbolFontOf(int family) const;
    /// Whether other programs take the bytes of a font for codes of its own, whatever its charset.
    bool wantsNumbers(int family) const;
    /// The number of a colour; 0 is the automatic one.
    int color(QRgb color);
    /// The number of the list of an item; of several lists of bullets with one indent there is one,
    /// and of what the file's list tables tell once.
    int list(const ParagraphFormat& item);

    /// Appends the tables with all that was used so far.
    /// \param styles the style sheet, which has its place among them.
    /// \param parts what is kept of the document: of its faces and colours.
    void write(RtfOutput& out, QByteArrayView styles, const KeptParts& parts);

private:
    void writeFonts(RtfOutput& out, const FontFaces& faces) const;
    void writeColors(RtfOutput& out, const ColorThemes& themes) const;
    QByteArray listTables(const QString& pictures);
    static void writeMade(RtfOutput& out, const ParagraphFormat& item, int number);
    void writeKeptHead(RtfOutput& out, QStringView kept);

    Names m_names;
    int m_symbolFamily;
    std::array<int, 2> m_numberedFamilies;
    int m_firstFont = 0;
    QList<int> m_fonts; ///< families in the order of the font table
    QHash<int, int> m_fontNumbers;
    QList<QRgb> m_colors;
    QHash<QRgb, int> m_colorNumbers;
    QSet<int> m_odd;
    QList<ParagraphFormat> m_lists;                        ///< by their first items
    QHash<std::pair<QString, QString>, int> m_keptNumbers; ///< by list and override
    /// By identity, the indent of bullets, and the place of the labels; and the sign of bullets.
    std::map<std::pair<std::array<int, 5>, QString>, int> m_listNumbers;
};

} // namespace orvalis::rtf
