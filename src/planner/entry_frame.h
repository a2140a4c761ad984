// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

namespace orvalis {

/// The three frames of the entry area. They share one place, and exactly one of them shows.
enum class EntryFrame {
    Message,  ///< `Frame2`
    Reminder, ///< `Frame3`
    Find,     ///< `Frame1`
};

} // namespace orvalis
