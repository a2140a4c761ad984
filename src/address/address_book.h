// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "address/address_record.h"
#include "runtime/integer16.h"

#include <span>
#include <vector>

namespace orvalis {

class App;
class MessageBoxes;

/// The contacts in memory and the files that hold them. There is one book for the run: it outlives
/// the address panel, and the print window reads it too.
class AddressBook {
public:
    explicit AddressBook(const App& app);

    /// The records are those from 0 to AddressCount - 1. What lies behind them is spare and may
    /// hold a former record. Empty in a run that has seen no record yet.
    std::vector<AddressRecord> AddressRecords;
    Integer16 AddressCount;
    /// The picture that the next Add or Save stores.
    QString PicPath;

    /// The records that count.
    std::span<const AddressRecord> records() const;
    /// The element of an index, which may be a spare one.
    /// \throws RuntimeError SubscriptOutOfRange where there is none.
    AddressRecord& record(int index);
    const AddressRecord& record(int index) const;
    /// Lets there be an element behind that of the index AddressCount. Elements keep what they hold
    /// and never become fewer.
    /// \throws RuntimeError Overflow when there are 32767 records.
    void makeRoom();

    /// The full paths of address1.dat and of the snapshot address1tmp.dat.
    QString path() const;
    QString snapshotPath() const;

    /// Where there is no address1.dat: tells so, and writes the records that count to a new one.
    /// Failures are passed over.
    void ensureFile(MessageBoxes& boxes) const;
    /// Reads address1.dat, in the order of the file, and forgets PicPath. A file that cannot
    /// be read, or is larger than LargestAddressFile, leaves no records; of more than 32767 only so
    /// many count. A file of which anything is not in
    /// the records is kept aside before it is overwritten.
    void load();

    /// Write the records that count to address1.dat, to the snapshot, to any other file.
    /// \throws RuntimeError as saveWhole() does; UpisiTmp() PathFileAccessError alone.
    void WriteAddressFile() const;
    void UpisiTmp() const;
    void writeTo(const QString& file) const;

private:
    const App& m_app;
};

} // namespace orvalis
