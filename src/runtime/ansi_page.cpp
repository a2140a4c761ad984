// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/ansi_page.h"

#include "runtime/ansi_page_tables.h"
#include "runtime/failure.h"
#include "runtime/user_locale.h"

#include <QLocale>

#include <algorithm>
#include <vector>

namespace orvalis {

namespace {

constexpr int WesternPage = 1252;

int pageOfLatinLanguage(QLocale::Language language) {
    switch (language) {
    case QLocale::Albanian:
    case QLocale::Bosnian:
    case QLocale::Croatian:
    case QLocale::Czech:
    case QLocale::Hungarian:
    case QLocale::Polish:
    case QLocale::Romanian:
    case QLocale::Serbian:
    case QLocale::Slovak:
    case QLocale::Slovenian:
    case QLocale::Turkmen:
        return 1250;
    case QLocale::Azerbaijani:
    case QLocale::Turkish:
    case QLocale::Uzbek:
        return 1254;
    case QLocale::Estonian:
    case QLocale::Latvian:
    case QLocale::Lithuanian:
        return 1257;
    case QLocale::Vietnamese:
        return 1258;
    default:
        return WesternPage;
    }
}

int pageOfLocale(const QLocale& locale) {
    switch (locale.script()) {
    case QLocale::CyrillicScript:
        return 1251;
    case QLocale::GreekScript:
        return 1253;
    case QLocale::HebrewScript:
        return 1255;
    case QLocale::ArabicScript:
        return 1256;
    case QLocale::ThaiScript:
        return 874;
    case QLocale::LatinScript:
        return pageOfLatinLanguage(locale.language());
    default:
        return WesternPage;
    }
}

constexpr char OutsideThePage = '?';

} // namespace

AnsiPage::AnsiPage(int number, const std::array<char16_t, 128>& upper)
    : m_number(number)
    , m_upper(upper) {
    for (std::size_t i = 0; i < upper.size(); ++i)
        m_codes[i] = {upper[i], static_cast<quint8>(128 + i)};
    std::sort(m_codes.begin(), m_codes.end(),
              [](Code a, Code b) { return a.character < b.character; });
}

const AnsiPage& AnsiPage::of(int number) {
    static const auto pages = [] {
        std::vector<AnsiPage> made;
        made.reserve(AnsiPageTables.size());
        for (const AnsiPageTable& table : AnsiPageTables)
            made.push_back(AnsiPage(table.number, table.upper));
        return made;
    }();
    const auto find = [](int wanted) {
        return std::find_if(pages.begin(), pages.end(),
                            [wanted](const AnsiPage& page) { return page.number() == wanted; });
    };
    const auto found = find(number);
    return found == pages.end() ? *find(WesternPage) : *found;
}

const AnsiPage& AnsiPage::forLocale(const QLocale& locale) {
    return of(pageOfLocale(locale));
}

const AnsiPage& AnsiPage::ofUser() {
    return forLocale(userLanguage());
}

std::optional<quint8> AnsiPage::code(char16_t character) const {
    if (character < 128)
        return static_cast<quint8>(character);
    const auto found =
        std::lower_bound(m_codes.begin(), m_codes.end(), character,
                         [](Code entry, char16_t wanted) { return entry.character < wanted; });
    if (found == m_codes.end() || found->character != character)
        return std::nullopt;
    return found->code;
}

bool AnsiPage::holds(QStringView text) const {
    return std::all_of(
        text.utf16(), text.utf16() + text.size(),
        [this](char16_t c) { return code(c).has_value(); });
}

QByteArray AnsiPage::encode(QStringView text) const {
    QByteArray bytes(text.size(), Qt::Uninitialized);
    encode(text, bytes.data());
    return bytes;
}

char* AnsiPage::encode(QStringView text, char* to) const {
    return std::transform(
        text.utf16(), text.utf16() + text.size(), to,
        [this](char16_t c) {
            return static_cast<char>(c < 128 ? c : code(c).value_or(OutsideThePage));
        });
}

QString AnsiPage::decode(QByteArrayView bytes) const {
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [this](char byte) { return QChar(character(static_cast<quint8>(byte))); });
    return text;
}

int Asc(QStringView text, const AnsiPage& page) {
    if (text.isEmpty())
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    return page.code(text.front().unicode()).value_or(OutsideThePage);
}

QString Chr(int code, const AnsiPage& page) {
    if (code < 0 || code > 255)
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    return QString(QChar(page.character(static_cast<quint8>(code))));
}

} // namespace orvalis
