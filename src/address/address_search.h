// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "address/address_record.h"

#include <QStringList>

#include <optional>

namespace orvalis {

class AddressBook;

/// The methods of search, thirteen names in their order. The panel's list offers the first two.
QStringList searchMethods();

/// The field that a method looks at; none for any other text. Names are compared exactly.
std::optional<QString AddressRecord::*> fieldOfMethod(const QString& method);

/// A field of each record that counts, in the order of the records.
QStringList fieldOfAll(const AddressBook& book, QString AddressRecord::*field);

/// A text with each character replaced by its capital, where that is one character. The length
/// stays.
QString inCapitals(const QString& text);

/// What is looked for in a field: the whole of it, by character code.
class SearchedValue {
public:
    SearchedValue(const QString& value, bool matchCase);

    bool equals(const QString& field) const;

private:
    QString m_value;
    bool m_matchCase;
};

} // namespace orvalis
