// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "address/address_record.h"
#include "runtime/ansi_page.h"

#include <span>

namespace orvalis {

/// The largest address file that is read, in bytes.
constexpr qint64 LargestAddressFile = qint64{64} * 1024 * 1024;

/// The bytes of an address file: fifteen items a record and nothing else, each in double quotes on
/// a line of its own, in the ANSI page. Line breaks and double quotes in a field stand as they are,
/// so that a field with a quote shifts what follows it when it is read.
QByteArray addressFileBytes(std::span<const AddressRecord> records,
                            const AnsiPage& page = AnsiPage::ofUser());

/// Reads the items of an address file one after the other, in time linear in the file. An item is
/// in quotes, and may then hold anything else, or ends at a comma, a line end or the file's end.
/// CR, LF and CR LF are each one line end; blanks and line ends ahead of an item are skipped.
class AddressFileReader {
public:
    /// The bytes must outlive the reader.
    explicit AddressFileReader(QByteArrayView bytes, const AnsiPage& page = AnsiPage::ofUser());

    /// Whether no item follows: nothing is left but blanks and line ends.
    bool atEnd();
    /// Reads fifteen items straight into a record.
    /// \returns false when the file ended before the last of them; the fields that are left keep
    /// what they hold.
    bool read(AddressRecord& record);
    /// Whether anything but blanks stood between a closing quote and the comma or line end behind
    /// it. It is in no item.
    bool hasDropped() const { return m_hasDropped; }

private:
    bool readItem(QString& item);
    qsizetype endOfItem() const;
    void dropRest();
    void skipTerminator();

    QByteArrayView m_bytes;
    const AnsiPage& m_page;
    qsizetype m_at = 0;
    bool m_hasDropped = false;
};

} // namespace orvalis
