// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "address/address_record.h"

#include <QStringView>

#include <span>
#include <vector>

namespace orvalis {

class AddressBook;

/// Exchanges two whole records.
/// \throws RuntimeError SubscriptOutOfRange where the array has no such element.
void SwapRecords(AddressBook& book, int a, int b);

/// Orders the records that count by a field, ascending, by character code: all capitals stand
/// before all small letters. Of equal keys each stands where the exchange sort of exchangeOrder()
/// leaves it, so that the same file always shows in the same order.
void sortRecords(AddressBook& book, QString AddressRecord::*key);

/// What the plain exchange sort leaves where (for each i, for each j behind it: exchange the
/// elements where that of i is greater), in n log n steps whatever the keys are.
/// \returns for each place the index that its key had.
std::vector<int> exchangeOrder(std::span<const QStringView> keys);

} // namespace orvalis
