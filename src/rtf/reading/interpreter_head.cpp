// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/reading/interpreter.h"

#include <utility>

namespace orvalis::rtf {

/// The first run of text is complete: blanks between the tables of the head are text as well. The
/// font of text that names none, and what counts of what is stated, are the same for all text,
/// however late another word for them comes.
void Interpreter::settleHead() {
    m_fonts.settleUsual();
    m_countedOfCharacters = stated::countedOfCharacters(m_stylesKept, m_fonts.saidOfUsual());
    knowOfParagraphs();
    settleLook(m_captureFormat);
    for (FieldLook& field : m_fieldLooks)
        if (field.look)
            settleLook(*field.look);
    const bool isUnnamed = (m_textFormat.stated & stated::Font) == 0;
    settleLook(m_textFormat);
    const auto hold = [this](GroupState& group) {
        for (int* said : {&group.chars.stated, &group.other.stated})
            *said &= m_countedOfCharacters;
        group.paragraph.stated &= m_countedOfParagraphs;
    };
    for (GroupState& group : m_groups)
        hold(group);
    hold(m_state);
    selectFont();
    if (!isUnnamed)
        return;
    const bool isNamed = m_fonts.saidOfUsual() == DefaultFont::Named;
    if (isNamed && m_fonts.usual()->symbols != SymbolFont::None)
        takeTextForSigns(m_fonts.usual()->symbols, m_fonts.usual()->page);
}

void Interpreter::settleLook(CharFormat& look) const {
    const bool isUnnamed = (look.stated & stated::Font) == 0;
    const bool isNamed = m_fonts.saidOfUsual() == DefaultFont::Named;
    look.stated &= m_countedOfCharacters;
    if (isUnnamed)
        look.family = isNamed ? m_fonts.usual()->family : NoName;
}

/// The text that came turns out to be in a font of signs: it is parted as it would be behind that.
void Interpreter::takeTextForSigns(SymbolFont font, const CodePage* page) {
    for (const char32_t character : std::exchange(m_text, {}).toUcs4()) {
        const bool byNumber = isByNumber(character, font, page);
        if (byNumber != m_textFormat.byNumber)
            giveText();
        m_textFormat.byNumber = byNumber;
        appendSigns(QChar::fromUcs4(character), font);
    }
}

void Interpreter::knowOfParagraphs() {
    m_countedOfParagraphs = stated::countedOfParagraphs(m_stylesKept, m_lists.any());
}

/// The characters, with whether anything is known of what is stated of them.
CharFormat Interpreter::told(CharFormat chars) const {
    chars.stated |= known();
    return chars;
}

} // namespace orvalis::rtf
