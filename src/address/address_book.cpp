// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/address_book.h"

#include "address/address_file.h"
#include "controls/message_boxes.h"
#include "runtime/app.h"
#include "runtime/failure.h"
#include "runtime/file_saving.h"
#include "runtime/files.h"
#include "runtime/unreadable_files.h"

#include <utility>

namespace orvalis {

using namespace Qt::StringLiterals;

AddressBook::AddressBook(const App& app)
    : m_app(app) {}

std::span<const AddressRecord> AddressBook::records() const {
    return std::span(AddressRecords).first(static_cast<std::size_t>(AddressCount));
}

AddressRecord& AddressBook::record(int index) {
    return const_cast<AddressRecord&>(std::as_const(*this).record(index));
}

const AddressRecord& AddressBook::record(int index) const {
    if (index < 0 || static_cast<std::size_t>(index) >= AddressRecords.size())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    return AddressRecords[static_cast<std::size_t>(index)];
}

void AddressBook::makeRoom() {
    const Integer16 upperBound = AddressCount + 1;
    const auto size = static_cast<std::size_t>(upperBound) + 1;
    if (AddressRecords.size() < size)
        AddressRecords.resize(size);
}

QString AddressBook::path() const {
    return m_app.file(u"address1.dat"_s);
}

QString AddressBook::snapshotPath() const {
    return m_app.file(u"address1tmp.dat"_s);
}

void AddressBook::ensureFile(MessageBoxes& boxes) const {
    if (FileExists(path()))
        return;
    boxes.MsgBox(u"Data file address1.dat not found. Click on Add and create a new address data "
                 "base."_s,
                 MsgFlags::StopIcon);
    resumeNext([this] { WriteAddressFile(); });
}

void AddressBook::load() {
    AddressCount = 0;
    PicPath.clear();
    bool whole = true;
    const bool opened = endSilently([&] {
        const QByteArray bytes = readWhole(path(), LargestAddressFile);
        AddressFileReader file(bytes);
        while (!file.atEnd()) {
            // A record that is one too many takes the spare element, and so do those behind it.
            const bool counts = AddressCount < Integer16::Highest;
            if (counts)
                makeRoom();
            whole = file.read(record(AddressCount)) && counts && whole;
            if (counts)
                ++AddressCount;
        }
        whole = whole && !file.hasDropped();
    });
    if (opened && whole)
        noteReadable(path());
    else
        noteUnreadable(path());
}

void AddressBook::WriteAddressFile() const {
    writeTo(path());
}

void AddressBook::UpisiTmp() const {
    if (!endSilently([this] { writeTo(snapshotPath()); }))
        throw RuntimeError(ErrorNumber::PathFileAccessError);
}

void AddressBook::writeTo(const QString& file) const {
    saveWhole(file, addressFileBytes(records()));
}

} // namespace orvalis
