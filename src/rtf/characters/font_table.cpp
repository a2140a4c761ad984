// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/characters/font_table.h"

#include "rtf/characters/symbol_font.h"
#include "rtf/characters/whole_characters.h"

using namespace Qt::StringLiterals;

namespace orvalis::rtf {

namespace {

// Numbers come from outside, so they are keys and never sizes; and no document needs more fonts.
constexpr qsizetype MostNumberedFonts = 32768;
constexpr qsizetype LongestName = 256;

// No face is named with what ends an entry of the table, stands for a picture or cannot be seen.
QString cleanName(QString name) {
    name.removeIf([](QChar c) {
        return c.unicode() < u' ' || c == u';' || c == QChar(QChar::ObjectReplacementCharacter) ||
               c == QChar(QChar::ByteOrderMark);
    });
    name.truncate(LongestName);
    return wholeCharacters(name).trimmed();
}

} // namespace

QString withoutScript(const QString& name) {
    static constexpr QLatin1StringView Scripts[] = {" CE"_L1,  " CYR"_L1, " Cyr"_L1,   " Greek"_L1,
                                                    " Tur"_L1, " TUR"_L1, " Baltic"_L1};
    for (const auto& script : Scripts)
        if (name.size() > script.size() && name.endsWith(script))
            return name.chopped(script.size()).trimmed();
    return name;
}

void FontTable::begin(int number) {
    m_open = true;
    m_number = number;
    m_entry = {};
    m_face = {};
    m_bytes.clear();
    m_name.clear();
    m_plainName.clear();
}

void FontTable::setCharset(int charset) {
    if (const CodePage* page = CodePage::forCharset(charset))
        m_entry.page = page;
}

void FontTable::setPage(int number) {
    if (number > 0)
        m_entry.page = &CodePage::forNumber(number);
}

void FontTable::addName(QByteArrayView bytes) {
    m_bytes.append(bytes.first(std::min(bytes.size(), LongestName - m_bytes.size())));
}

void FontTable::addName(char16_t character) {
    if (m_name.size() < LongestName) {
        const bool own = m_entry.page && m_entry.page->symbols() == SymbolFont::None;
        (own ? *m_entry.page : CodePage::forNumber(Latin1Page)).decode(m_bytes, m_name);
        m_bytes.clear();
        m_name += QChar(character);
    }
}

void FontTable::setPitch(int pitch) {
    m_face.pitch = pitch > 0 && pitch <= FontFace::MostPitch ? pitch : 0;
}

const CodePage& FontTable::pageOfName(const CodePage& documentPage) const {
    if (!m_entry.page)
        return documentPage;
    // A symbol font's name is plain text all the same.
    return m_entry.page->symbols() == SymbolFont::None ? *m_entry.page
                                                       : CodePage::forNumber(Latin1Page);
}

void FontTable::commit(Names& names, const CodePage& documentPage) {
    if (!m_open)
        return;
    m_open = false;
    const bool symbols = m_entry.page && m_entry.page->symbols() != SymbolFont::None;
    pageOfName(documentPage).decode(m_bytes, m_name);
    const QString plain = cleanName(m_plainName);
    const QString name = plain.isEmpty() ? withoutScript(cleanName(m_name)) : plain;
    m_entry.symbols = symbolFontOf(name);
    if (symbols)
        m_entry.page = m_entry.symbols == SymbolFont::None ? &CodePage::forNumber(Latin1Page)
                                                           : &CodePage::forSymbols(m_entry.symbols);
    if (!name.isEmpty())
        m_entry.family = names.family(name);
    if (!name.isEmpty())
        (symbols ? m_signs : m_letters).insert(m_entry.family);
    if (!name.isEmpty() && m_face != FontFace() && !m_faces.contains(m_entry.family))
        m_faces.insert(m_entry.family, m_face);
    if (m_fonts.size() >= MostNumberedFonts && !m_fonts.contains(m_number))
        return;
    m_fonts.insert(m_number, m_entry);
    ++m_version;
}

QStringList FontTable::oddFamilies(const Names& names) const {
    QStringList odd;
    for (const int family : m_signs)
        if (!isSymbolFamily(names.familyAt(family)))
            odd << names.familyAt(family);
    for (const int family : m_letters)
        if (!m_signs.contains(family) && isSymbolFamily(names.familyAt(family)))
            odd << names.familyAt(family);
    odd.sort();
    return odd;
}

FontFaces FontTable::faces(const Names& names) const {
    FontFaces faces;
    for (auto it = m_faces.begin(); it != m_faces.end(); ++it)
        faces.insert(names.familyAt(it.key()), it.value());
    return faces;
}

const FontTable::Font* FontTable::find(int number) const {
    const auto found = m_fonts.constFind(number);
    return found == m_fonts.constEnd() ? nullptr : &*found;
}

void FontTable::setUsual(int number) {
    if (m_usualSettled)
        return;
    m_usualNumber = number;
    m_usualSaid = true;
    ++m_version;
}

void FontTable::settleUsual() {
    if (const Font* font = usual())
        m_usual = *font;
    m_usualSettled = true;
}

const FontTable::Font* FontTable::usual() const {
    if (m_usualSettled)
        return m_usual ? &*m_usual : nullptr;
    return find(m_usualNumber);
}

DefaultFont FontTable::saidOfUsual() const {
    if (!m_usualSaid)
        return DefaultFont::Unsaid;
    const Font* font = usual();
    return font && font->family != NoName ? DefaultFont::Named : DefaultFont::Missing;
}

} // namespace orvalis::rtf
