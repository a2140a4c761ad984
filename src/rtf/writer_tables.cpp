// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/writer_tables.h"

#include "rtf/font_table.h"
#include "rtf/rtf_output.h"
#include "rtf/symbol_font.h"

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

WriterTables::WriterTables()
    : m_symbolFamily(m_names.family(u"Symbol"_s)) {}

int WriterTables::font(int family) {
    const auto found = m_fontNumbers.constFind(family);
    if (found != m_fontNumbers.constEnd())
        return *found;
    const int number = int(m_fonts.size());
    m_fonts.append(family);
    m_fontNumbers.insert(family, number);
    return number;
}

bool WriterTables::isSymbolFont(int family) const {
    return rtf::isSymbolFont(m_names.familyAt(family));
}

int WriterTables::color(QRgb color) {
    if (color == automaticColor)
        return 0;
    int& number = m_colorNumbers[color];
    if (number == 0) {
        m_colors.append(color);
        number = int(m_colors.size());
    }
    return number;
}

void WriterTables::write(RtfOutput& out) const {
    out.structure("{\\fonttbl");
    for (qsizetype number = 0; number < m_fonts.size(); ++number) {
        QString name = m_names.familyAt(m_fonts[number]);
        out.word("{\\f", int(number));
        out.word(isSymbolFamily(name) ? "\\fnil\\fcharset2" : "\\fnil\\fcharset0");
        name.remove(u';');
        // A reader would take the end of such a name for the script of its letters.
        if (withoutScript(name) != name) {
            out.structure("{\\*\\fname ");
            out.text(name);
            out.structure(";}");
        }
        out.text(name);
        out.structure(";}");
    }
    out.structure("}\r\n");
    if (m_colors.isEmpty())
        return;
    out.structure("{\\colortbl ;");
    for (const QRgb color : m_colors) {
        out.word("\\red", qRed(color));
        out.word("\\green", qGreen(color));
        out.word("\\blue", qBlue(color));
        out.structure(";");
    }
    out.structure("}\r\n");
}

} // namespace orvalis::rtf
