// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "address/address_record.h"

namespace orvalis {

class ProgressBar;

/// What the print window asks of the address panel.
class ContactPanel {
public:
    virtual ~ContactPanel() = default;
    /// The texts of the panel's controls as they stand there, whichever record they belong to. A
    /// picture is not among them.
    virtual AddressRecord shownContact() const = 0;
    /// Hidden but while all contacts are printed.
    virtual ProgressBar& PB1() = 0;
};

} // namespace orvalis
