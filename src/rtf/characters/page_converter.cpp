// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "rtf/characters/page_converter.h"

#include <algorithm>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <iconv.h>

#include <array>
#include <cerrno>
#endif

namespace orvalis::rtf {

#ifdef Q_OS_WIN

bool PageConverter::knows(int page) {
    return page > 0 && IsValidCodePage(UINT(page));
}

PageConverter::PageConverter(int page)
    : m_page(uint(page)) {}

PageConverter::~PageConverter() = default;

qsizetype PageConverter::convert(QByteArrayView bytes, QString& text) {
    qsizetype taken = bytes.size();
    if (taken > 1 && IsDBCSLeadByteEx(m_page, BYTE(bytes.back())) &&
        MultiByteToWideChar(m_page, MB_ERR_INVALID_CHARS, bytes.data(), int(taken), nullptr, 0) ==
            0)
        --taken;
    const int length = MultiByteToWideChar(m_page, 0, bytes.data(), int(taken), nullptr, 0);
    const qsizetype start = text.size();
    text.resize(start + length);
    MultiByteToWideChar(m_page, 0, bytes.data(), int(taken),
                        reinterpret_cast<wchar_t*>(text.data() + start), length);
    return taken;
}

#else

namespace {

// The names under which the C library knows the pages. Those of the Macintosh that it lacks are
// read as the page of Windows for the same script.
const char* converterName(int page) {
    struct Page {
        int number;
        const char* name;
    };
    static constexpr Page Pages[] = {
        {437, "CP437"},        {737, "CP737"},        {775, "CP775"},
        {850, "CP850"},        {852, "CP852"},        {855, "CP855"},
        {857, "CP857"},        {858, "CP858"},        {860, "CP860"},
        {861, "CP861"},        {862, "CP862"},        {863, "CP863"},
        {864, "CP864"},        {865, "CP865"},        {866, "CP866"},
        {869, "CP869"},        {874, "CP874"},        {932, "CP932"},
        {936, "GBK"},          {949, "UHC"},          {950, "CP950"},
        {1250, "CP1250"},      {1251, "CP1251"},      {1252, "CP1252"},
        {1253, "CP1253"},      {1254, "CP1254"},      {1255, "CP1255"},
        {1256, "CP1256"},      {1257, "CP1257"},      {1258, "CP1258"},
        {1361, "JOHAB"},       {10000, "MACINTOSH"},  {10001, "CP932"},
        {10002, "CP950"},      {10003, "UHC"},        {10004, "CP1256"},
        {10005, "CP1255"},     {10006, "CP1253"},     {10007, "MAC-CYRILLIC"},
        {10008, "GBK"},        {10021, "CP874"},      {10029, "MAC-CENTRALEUROPE"},
        {10081, "CP1254"},     {20866, "KOI8-R"},     {21866, "KOI8-U"},
        {28591, "ISO-8859-1"}, {28592, "ISO-8859-2"}, {28595, "ISO-8859-5"},
        {28597, "ISO-8859-7"}, {28599, "ISO-8859-9"}, {28605, "ISO-8859-15"},
        {51932, "EUC-JP"},     {51949, "EUC-KR"},     {52936, "GBK"},
        {54936, "GB18030"},    {65001, "UTF-8"},
    };
    for (const Page& known : Pages)
        if (known.number == page)
            return known.name;
    return nullptr;
}

// What Windows' page for traditional Chinese leaves to its users stands in the area for private
// use, row by row; the C library has nothing there. 0 for what is of no such row.
char16_t userCharacter(int page, uchar lead, uchar trail) {
    struct Rows {
        uchar first;
        uchar last;
        char16_t start;
    };
    static constexpr Rows Areas[] = {
        {0xfa, 0xfe, 0xe000}, {0x8e, 0xa0, 0xe311}, {0x81, 0x8d, 0xeeb8}};
    constexpr int Half = 0x7f - 0x40;
    constexpr int Row = Half + 0xff - 0xa1;
    const bool isLower = trail >= 0x40 && trail < 0x7f;
    const bool isUpper = trail >= 0xa1 && trail < 0xff;
    if (page != 950 || (!isLower && !isUpper))
        return 0;
    for (const Rows& rows : Areas)
        if (lead >= rows.first && lead <= rows.last)
            return char16_t(rows.start + (lead - rows.first) * Row +
                            (isLower ? trail - 0x40 : Half + trail - 0xa1));
    return 0;
}

constexpr const char* Utf16 = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? "UTF-16LE" : "UTF-16BE";

} // namespace

bool PageConverter::knows(int page) {
    return converterName(page) != nullptr;
}

PageConverter::PageConverter(int page)
    : m_page(page)
    , m_handle(iconv_open(Utf16, converterName(page))) {}

PageConverter::~PageConverter() {
    if (m_handle != iconv_t(-1))
        iconv_close(m_handle);
}

qsizetype PageConverter::convert(QByteArrayView bytes, QString& text) {
    const char* at = bytes.data();
    size_t left = size_t(bytes.size());
    if (m_handle == iconv_t(-1)) {
        // A system without the converter still shows what is ASCII.
        for (const char byte : bytes)
            text.append(uchar(byte) < 0x80 ? QChar(QLatin1Char(byte))
                                           : QChar(QChar::ReplacementCharacter));
        return bytes.size();
    }
    iconv(m_handle, nullptr, nullptr, nullptr, nullptr);
    std::array<char16_t, 2048> buffer;
    while (left > 0) {
        char* out = reinterpret_cast<char*>(buffer.data());
        size_t room = sizeof buffer;
        const size_t result = iconv(m_handle, const_cast<char**>(&at), &left, &out, &room);
        const int error = result == size_t(-1) ? errno : 0;
        text.append(reinterpret_cast<const QChar*>(buffer.data()),
                    qsizetype((sizeof buffer - room) / sizeof(char16_t)));
        if (error == EINVAL)
            break;
        const char16_t own =
            error == EILSEQ && left > 1 ? userCharacter(m_page, uchar(at[0]), uchar(at[1])) : u'\0';
        if (own != 0) {
            text.append(QChar(own));
            at += 2;
            left -= 2;
        } else if (error == EILSEQ) {
            text.append(QChar::ReplacementCharacter);
            ++at;
            --left;
        }
    }
    // Some pages hold a character back until they know whether it combines with the next.
    char* out = reinterpret_cast<char*>(buffer.data());
    size_t room = sizeof buffer;
    iconv(m_handle, nullptr, nullptr, &out, &room);
    text.append(reinterpret_cast<const QChar*>(buffer.data()),
                qsizetype((sizeof buffer - room) / sizeof(char16_t)));
    return bytes.size() - qsizetype(left);
}

#endif

} // namespace orvalis::rtf
