// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "rtf/formats.h"
#include "rtf/picture.h"

#include <QByteArray>
#include <QStringView>

namespace orvalis::rtf {

/// Writes paragraphs as RTF and makes the file of them.
///
/// Only what changes is written, without groups; font and colour tables grow as they are used and
/// are put in front at the end.
class BodyWriter {
public:
    BodyWriter();

    /// The families and links by which character formats are told.
    Names& names() { return m_names; }

    /// \param number of a numbered list item.
    void beginParagraph(const ParagraphFormat& paragraph, int number);
    void text(QStringView text, const CharFormat& format);
    void picture(const Picture& picture, const CharFormat& format);
    /// \param mark format of the paragraph's mark, null for that of its last run.
    void endParagraph(const CharFormat* mark);

    /// The whole file.
    /// \param defaultTab twips between default tab stops.
    QByteArray file(int defaultTab) const;

private:
    void word(const char* name) { m_body.append(name), m_needsDelimiter = true; }
    void word(const char* name, int number);
    void paragraphWords(const ParagraphFormat& paragraph);
    void label(const ListLabel& label, int number);
    void numbering(const ListLabel& label);
    void change(const CharFormat& format);
    void openLink(int link);
    void escaped(QStringView text);
    void escapedSymbols(QStringView text);
    int fontNumber(int family);
    int colorNumber(QRgb color);
    int listNumberOf(int identity);

    Names m_names;
    QList<int> m_fonts; ///< families in the order of the font table
    QHash<int, int> m_fontNumbers;
    QList<QRgb> m_colors;
    QHash<QRgb, int> m_colorNumbers;
    QHash<int, int> m_listNumbers;

    QByteArray m_body;
    ParagraphFormat m_paragraph;
    int m_paragraphNumber = 0;
    CharFormat m_format;
    CharFormat m_formatBeforeLink;
    int m_symbolFamily;
    bool m_fontIsSymbol = false;
    bool m_needsDelimiter = false;
    bool m_anyParagraph = false;
};

} // namespace orvalis::rtf
