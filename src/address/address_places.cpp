// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/address_places.h"

#include "address/address_book.h"

#include <algorithm>
#include <utility>

namespace orvalis {

void closeGap(AddressBook& book, int index) {
    if (index < 0 || index >= book.AddressCount)
        return;
    const auto gap = book.AddressRecords.begin() + index;
    const auto last = book.AddressRecords.begin() + (book.AddressCount - 1);
    if (gap == last)
        return;
    // The last record stays where it was too, so that all but its copy can be moved.
    AddressRecord lastRecord = *last;
    std::move(gap + 1, last + 1, gap);
    *last = std::move(lastRecord);
}

} // namespace orvalis
