// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>

namespace orvalis {

/// One contact. Line breaks in a field are CR and LF.
struct AddressRecord {
    QString First;
    QString Second;
    QString Area; ///< the group
    QString Address;
    QString Town;
    QString Pin;
    QString District;
    QString State;
    QString Country;
    QString Tel;
    QString Fax;
    QString Email;
    QString Web;
    QString Notes;
    QString Picture; ///< full path of a picture file, or empty

    bool operator==(const AddressRecord&) const = default;
};

/// The fields in their order, which is that of the file and of every loop over a record.
inline constexpr std::array AddressFields{
    &AddressRecord::First,    &AddressRecord::Second, &AddressRecord::Area,
    &AddressRecord::Address,  &AddressRecord::Town,   &AddressRecord::Pin,
    &AddressRecord::District, &AddressRecord::State,  &AddressRecord::Country,
    &AddressRecord::Tel,      &AddressRecord::Fax,    &AddressRecord::Email,
    &AddressRecord::Web,      &AddressRecord::Notes,  &AddressRecord::Picture};

} // namespace orvalis
