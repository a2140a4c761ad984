// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis {

/// The program's register of files that are there and could not be read, or not to their end, as
/// what they should be. Whoever reads tells it; saveWhole() keeps such a file aside before anything
/// overwrites it, whoever saves. Of a path without a file nothing is noted.
void noteUnreadable(const QString& path);
/// All that the file holds is known.
void noteReadable(const QString& path);
bool isNotedUnreadable(const QString& path);

/// Keeps a file aside under its name with ".unreadable" added (or ".unreadable2" and on, where
/// other bytes are kept there already), for the moment before it is overwritten. Nothing is done
/// where the same bytes are kept already. Until the file's name is given to another, both names may
/// stand for one file. Where the file can neither be linked nor copied it moves.
/// \returns false when the file exists and could not be kept.
bool keepUnreadable(const QString& path);

} // namespace orvalis
