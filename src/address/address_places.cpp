// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/address_places.h"

#include "address/address_book.h"

#include <algorithm>

namespace orvalis {

void closeGap(AddressBook& book, int index) {
    if (index < 0 || index >= book.AddressCount)
        return;
    const auto gap = book.AddressRecords.begin() + index;
    std::copy(gap + 1, book.AddressRecords.begin() + book.AddressCount, gap);
}

} // namespace orvalis
