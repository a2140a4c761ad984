// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "address/address_record.h"
#include "runtime/ansi_page.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QStringList>

#include <vector>

namespace orvalis::test {

/// The items of an address file, read another way: one pattern over the decoded text.
inline QStringList secondItems(const QByteArray& bytes, const AnsiPage& page) {
    static const QRegularExpression item(QStringLiteral(
        R"(\G[ \r\n]*+(?:"([^"]*+)(?:"[^,\r\n]*+)?|(?!"|\z)([^,\r\n]*+))(?:\r\n|[,\r\n]|\z))"));
    QStringList items;
    const QString text = page.decode(bytes);
    QRegularExpressionMatchIterator matches = item.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        items << (match.hasCaptured(1) ? match.captured(1) : match.captured(2));
    }
    return items;
}

/// The records of an address file, read another way. Those that the file does not fill stay empty
/// from there on.
inline std::vector<AddressRecord> secondRecords(const QByteArray& bytes, const AnsiPage& page) {
    constexpr auto Fields = static_cast<qsizetype>(AddressFields.size());
    const QStringList items = secondItems(bytes, page);
    std::vector<AddressRecord> records(
        static_cast<std::size_t>((items.size() + Fields - 1) / Fields));
    for (qsizetype i = 0; i < items.size(); ++i)
        records[static_cast<std::size_t>(i / Fields)].*
            AddressFields[static_cast<std::size_t>(i % Fields)] = items[i];
    return records;
}

/// The bytes of an address file, written another way: line by line as text, then code by code.
inline QByteArray secondBytes(const std::vector<AddressRecord>& records, const AnsiPage& page) {
    QString text;
    for (const AddressRecord& r : records)
        for (const QString& field :
             {r.First, r.Second, r.Area, r.Address, r.Town, r.Pin, r.District, r.State, r.Country,
              r.Tel, r.Fax, r.Email, r.Web, r.Notes, r.Picture})
            text += QStringLiteral("\"%1\"\r\n").arg(field);
    QByteArray bytes;
    for (const QChar character : text)
        bytes += static_cast<char>(Asc(QString(character), page));
    return bytes;
}

/// A text of a few signs, among them all that the format or its page makes something of.
inline QString randomField(QRandomGenerator& random, bool withQuotes) {
    static const QStringList signs{
        QStringLiteral("Ann"), QStringLiteral("Lee"),    QStringLiteral(" "),
        QStringLiteral(","),   QStringLiteral("\r\n"),   QStringLiteral("\r"),
        QStringLiteral("\n"),  QStringLiteral("\t"),     QString(QChar(0)),
        QString(QChar(26)),    QString(QChar(0xE9)),     QString(QChar(0x20AC)),
        QString(QChar(0xA0)),  QString(QChar(0x2028)),   QStringLiteral("'"),
        QString(QChar(0xFF)),  QStringLiteral("%1 %%2"), QStringLiteral("\\"),
        QStringLiteral("\"")};
    QString field;
    const int length = random.bounded(5);
    for (int i = 0; i < length; ++i)
        field += signs[random.bounded(static_cast<int>(signs.size()) - (withQuotes ? 0 : 1))];
    return field;
}

inline std::vector<AddressRecord> randomRecords(QRandomGenerator& random, int count,
                                                bool withQuotes) {
    std::vector<AddressRecord> records(static_cast<std::size_t>(count));
    for (AddressRecord& record : records)
        for (const auto field : AddressFields)
            record.*field = randomField(random, withQuotes);
    return records;
}

} // namespace orvalis::test
