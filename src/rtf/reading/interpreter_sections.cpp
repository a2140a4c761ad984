// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/kept/kept_text.h"
#include "rtf/reading/interpreter.h"

#include <array>
#include <utility>

namespace orvalis::rtf {

/// What was gathered so far belongs to the section that ends; its words go on to hold.
void Interpreter::sectionEnd() {
    dissolveLineBox();
    textComes();
    const bool paragraphEndedItself = !m_inParagraph && !std::exchange(m_box.hasEnded, false);
    if (m_inParagraph)
        paragraphEnd();
    m_rows.leave();
    m_paragraphBeforeSection = paragraphEndedItself;
    tellFirstSection();
    m_sectionGroups.clear();
    m_sectionBegins = true;
}

QString Interpreter::sectionBreak() {
    const QString text = sectionText();
    m_keptLeft -= text.size();
    if (m_keptLeft <= 0)
        m_columns.clear();
    return (m_paragraphBeforeSection ? ParagraphEndsFirst.toString() : QString()) +
           QStringLiteral("\\sect") + text;
}

void Interpreter::tellFirstSection() {
    if (!std::exchange(m_firstSectionTold, true) &&
        (m_keptOfSection != 0 || !m_columns.text().isEmpty() || !m_sectionGroups.isEmpty()))
        m_parts.section = sectionText();
}

QString Interpreter::sectionText() const {
    return QStringLiteral("\\sectd") + m_names.keptAt(m_kept.name(m_keptOfSection)) +
           m_columns.text() + m_sectionGroups;
}

/// The fonts of text in other scripts, and of styles, that names none.
QString Interpreter::furtherDefaults() const {
    constexpr std::array DefaultFonts = {"adeff", "stshfdbch", "stshfloch", "stshfhich", "stshfbi"};
    QString text;
    for (size_t i = 0; i < DefaultFonts.size(); ++i) {
        const FontTable::Font* font = m_fonts.find(m_furtherDefaults[i]);
        if (m_furtherDefaults[i] != NoName && font && font->family != NoName)
            text += u'\\' + QLatin1StringView(DefaultFonts[i]) +
                    keptFont(m_names.familyAt(font->family));
    }
    return text;
}

void Interpreter::tellKept() {
    tellFirstSection();
    m_parts.words = m_names.keptAt(m_kept.name(m_keptOfDocument));
    m_parts.furtherDefaults = furtherDefaults();
    m_parts.nameless = m_nameless;
    m_parts.defaultFont = m_fonts.saidOfUsual();
    m_parts.faces = m_fonts.faces(m_names);
    m_parts.themes = m_themes;
    m_parts.themes.removeIf([](const auto& color) { return color->isEmpty(); });
    m_parts.oddFamilies = m_fonts.oddFamilies(m_names);
    if (m_parts.defaultFont == DefaultFont::Named)
        m_parts.unnamedFamily = m_names.familyAt(m_fonts.usual()->family);
    m_sink.kept(m_parts);
}

} // namespace orvalis::rtf
