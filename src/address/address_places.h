// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

namespace orvalis {

class AddressBook;

// Where the panel goes in a book of at least one record. The sums are those of plain numbers: they
// stay right where a counter would overflow.

/// The index before, and the last one before the first.
constexpr int previousIndex(int index, int count) {
    return (index - 1 + count) % count;
}
/// The index behind, and the first one behind the last.
constexpr int nextIndex(int index, int count) {
    return (index + 1) % count;
}
/// The index itself, or the first one where the book ends ahead of it.
constexpr int indexWithin(int index, int count) {
    return index % count;
}

/// Closes the gap that a record leaves: each one behind it moves up by one. The last one stays
/// where it was too, and the count as it is. Nothing happens where no record counts at the index.
void closeGap(AddressBook& book, int index);

} // namespace orvalis
