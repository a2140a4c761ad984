// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis {

struct AddressRecord;

/// A contact as a block of plain text, eleven lines and more where a value has line breaks of its
/// own; each ends in CR and LF.
QString contactAsText(const AddressRecord& contact);

} // namespace orvalis
