// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/characters/code_page.h"

#include "rtf/characters/page_converter.h"

#include <algorithm>
#include <map>
#include <utility>

namespace orvalis::rtf {

namespace {

// The upper part of code page 1252 where it differs from Latin 1. Unassigned codes stay themselves.
constexpr char16_t WindowsLatin[32] = {
    0x20ac, 0x0081, 0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008d, 0x017d, 0x008f, 0x0090, 0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0x009d, 0x017e, 0x0178,
};

bool isMultiByte(int number) {
    switch (number) {
    case 932:
    case 936:
    case 949:
    case 950:
    case 1361:
    case 10001:
    case 10002:
    case 10003:
    case 10008:
    case 51932:
    case 51949:
    case 52936:
    case 54936:
    case Utf8Page:
        return true;
    default:
        return false;
    }
}

} // namespace

struct CodePage::Converter {
    explicit Converter(int number)
        : converter(number) {}
    PageConverter converter;
};

CodePage::CodePage(int number) {
    if (isMultiByte(number) && PageConverter::knows(number))
        m_converter = std::make_unique<Converter>(number);
    else
        fillTable(number);
}

CodePage::CodePage(SymbolFont font)
    : m_symbols(font) {}

CodePage::~CodePage() = default;

void CodePage::fillTable(int number) {
    m_table = std::make_unique<Table>();
    Table& table = *m_table;
    for (int code = 0; code < 256; ++code)
        table[size_t(code)] = char16_t(code);
    if (number != Latin1Page && PageConverter::knows(number)) {
        PageConverter converter(number);
        for (int code = 0x80; code < 256; ++code) {
            const uchar byte = uchar(code);
            QString character;
            converter.convert(QByteArrayView(&byte, 1), character);
            if (character.size() == 1 && character.front() != QChar::ReplacementCharacter)
                table[size_t(code)] = character.front().unicode();
        }
        return;
    }
    for (size_t code = 0; code < std::size(WindowsLatin); ++code)
        table[0x80 + code] = WindowsLatin[code];
}

const CodePage& CodePage::forNumber(int number) {
    thread_local std::map<int, std::unique_ptr<CodePage>> pages;
    if (number == SymbolPage)
        return forSymbols(SymbolFont::Symbol);
    const bool known = number == Latin1Page || PageConverter::knows(number);
    auto& page = pages[known ? number : Latin1Page];
    if (!page)
        page.reset(new CodePage(known ? number : Latin1Page));
    return *page;
}

const CodePage& CodePage::forSymbols(SymbolFont font) {
    thread_local std::map<SymbolFont, std::unique_ptr<CodePage>> pages;
    auto& page = pages[font];
    if (!page)
        page.reset(new CodePage(font));
    return *page;
}

const CodePage* CodePage::forCharset(int charset) {
    static constexpr std::pair<int, int> Pages[] = {
        {0, 1252},   {2, SymbolPage}, {77, 10000}, {78, 10001}, {79, 10003}, {80, 10008},
        {81, 10002}, {83, 10005},     {84, 10004}, {85, 10006}, {86, 10081}, {87, 10021},
        {88, 10029}, {89, 10007},     {128, 932},  {129, 949},  {130, 1361}, {134, 936},
        {136, 950},  {161, 1253},     {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256},
        {186, 1257}, {204, 1251},     {222, 874},  {238, 1250}, {254, 437},  {255, 850},
    };
    for (const auto& [known, page] : Pages)
        if (known == charset)
            return &forNumber(page);
    return nullptr;
}

qsizetype CodePage::decode(QByteArrayView bytes, QString& text) const {
    if (m_converter)
        return m_converter->converter.convert(bytes, text);
    if (m_symbols != SymbolFont::None) {
        for (const char byte : bytes)
            text.append(QChar::fromUcs4(symbolCharacter(m_symbols, uchar(byte))));
        return bytes.size();
    }
    const qsizetype start = text.size();
    text.resize(start + bytes.size());
    std::transform(bytes.begin(), bytes.end(), text.data() + start,
                   [this](char byte) { return QChar((*m_table)[uchar(byte)]); });
    return bytes.size();
}

uchar latin1Byte(char16_t character) {
    if (character < 0x80 || (character >= 0xa0 && character < 0x100))
        return uchar(character);
    // The codes that the page leaves unassigned other programs read as they please.
    for (size_t code = 0; code < std::size(WindowsLatin) && character >= 0x100; ++code)
        if (WindowsLatin[code] == character)
            return uchar(0x80 + code);
    return 0;
}

} // namespace orvalis::rtf
