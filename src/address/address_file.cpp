// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/address_file.h"

#include <algorithm>

namespace orvalis {

namespace {

constexpr char Quote = '"';
constexpr QByteArrayView LineEnd("\r\n");

bool isLineEnd(char byte) {
    return byte == '\r' || byte == '\n';
}

bool isBlank(char byte) {
    return byte == ' ';
}

} // namespace

QByteArray addressFileBytes(std::span<const AddressRecord> records, const AnsiPage& page) {
    qsizetype size = 0;
    for (const AddressRecord& record : records)
        for (const auto field : AddressFields)
            size += (record.*field).size() + 2 + LineEnd.size();
    QByteArray bytes(size, Qt::Uninitialized);
    char* to = bytes.data();
    for (const AddressRecord& record : records)
        for (const auto field : AddressFields) {
            *to++ = Quote;
            to = page.encode(record.*field, to);
            *to++ = Quote;
            to = std::copy(LineEnd.begin(), LineEnd.end(), to);
        }
    return bytes;
}

AddressFileReader::AddressFileReader(QByteArrayView bytes, const AnsiPage& page)
    : m_bytes(bytes)
    , m_page(page) {}

bool AddressFileReader::atEnd() {
    while (m_at < m_bytes.size() && (isBlank(m_bytes[m_at]) || isLineEnd(m_bytes[m_at])))
        ++m_at;
    return m_at == m_bytes.size();
}

bool AddressFileReader::read(AddressRecord& record) {
    return std::all_of(
        AddressFields.begin(), AddressFields.end(),
        [&](auto field) { return readItem(record.*field); });
}

bool AddressFileReader::readItem(QString& item) {
    if (atEnd())
        return false;
    if (m_bytes[m_at] != Quote) {
        const qsizetype end = endOfItem();
        item = m_page.decode(m_bytes.sliced(m_at, end - m_at));
        m_at = end;
    } else {
        const qsizetype start = m_at + 1;
        const qsizetype quote = m_bytes.indexOf(Quote, start);
        const qsizetype end = quote < 0 ? m_bytes.size() : quote;
        item = m_page.decode(m_bytes.sliced(start, end - start));
        m_at = quote < 0 ? end : end + 1;
        dropRest();
    }
    skipTerminator();
    return true;
}

qsizetype AddressFileReader::endOfItem() const {
    qsizetype end = m_at;
    while (end < m_bytes.size() && m_bytes[end] != ',' && !isLineEnd(m_bytes[end]))
        ++end;
    return end;
}

void AddressFileReader::dropRest() {
    const qsizetype end = endOfItem();
    const QByteArrayView rest = m_bytes.sliced(m_at, end - m_at);
    m_hasDropped = m_hasDropped || !std::all_of(rest.begin(), rest.end(), isBlank);
    m_at = end;
}

void AddressFileReader::skipTerminator() {
    if (m_bytes.sliced(m_at).startsWith(LineEnd))
        m_at += LineEnd.size();
    else if (m_at < m_bytes.size())
        ++m_at;
}

} // namespace orvalis
