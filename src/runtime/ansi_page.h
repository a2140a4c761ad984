// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <optional>

class QLocale;

namespace orvalis {

/// A one-byte character set: the one that belongs to the user's language. Codes and characters are
/// a bijection: a code that the page leaves unassigned stands for the control character of its
/// number below 160, and for a private character above.
class AnsiPage {
public:
    /// The page of the default locale's language.
    static const AnsiPage& ofUser();
    /// The page of a locale's language: 1250 to 1258, 874, or 1252 where the language has none.
    static const AnsiPage& forLocale(const QLocale& locale);
    /// The page of a number among 874 and 1250 to 1258; 1252 for any other.
    static const AnsiPage& of(int number);

    int number() const { return m_number; }

    char16_t character(quint8 code) const {
        return code < 128 ? code : m_upper[static_cast<std::size_t>(code - 128)];
    }
    /// The code of a character, empty when it is outside the page.
    std::optional<quint8> code(char16_t character) const;

    /// Whether every character of the text has a code.
    bool holds(QStringView text) const;
    /// One byte for each UTF-16 unit; what is outside the page becomes "?".
    QByteArray encode(QStringView text) const;
    /// The same into a place that has room for as many bytes. \returns the place behind them.
    char* encode(QStringView text, char* to) const;
    /// One character for each byte.
    QString decode(QByteArrayView bytes) const;

private:
    struct Code {
        char16_t character;
        quint8 code;
    };

    AnsiPage(int number, const std::array<char16_t, 128>& upper);

    int m_number;
    const std::array<char16_t, 128>& m_upper;
    std::array<Code, 128> m_codes; // ordered by character
};

/// The code, 0 to 255, of a text's first character; that of "?" when the page lacks it.
/// \throws RuntimeError InvalidProcedureCall for an empty text.
int Asc(QStringView text, const AnsiPage& page = AnsiPage::ofUser());

/// The text of one character that has the code.
/// \throws RuntimeError InvalidProcedureCall for a code outside 0 to 255.
QString Chr(int code, const AnsiPage& page = AnsiPage::ofUser());

} // namespace orvalis
