// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

namespace orvalis {

class RichTextBox;
struct AddressRecord;

/// Which lines of a contact's block are bold.
enum class BoldLines { Values, Labels };

/// Writes the block of a contact at the insertion point of a page, in the place of a selection: a
/// line for each label and one for its value. The addresses of mail and web are blue. The format
/// of the last value stays what is written with next.
void insertContact(RichTextBox& page, const AddressRecord& contact, BoldLines bold);

} // namespace orvalis
