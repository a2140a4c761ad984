// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

namespace orvalis {

/// Thrown by the end of the program, so that the handler that ended it goes no further. The
/// application catches it and leaves every event loop.
struct ProgramEnded {};

/// Whether the program has ended. A handler that a box or dialog held meanwhile must not go on.
bool programHasEnded();

/// Notes with the application object that the program has ended.
void markProgramEnded();

/// To be called after each nested event loop (a box, a dialog, a menu).
/// \throws ProgramEnded when the program ended while the loop ran.
void throwIfEnded();

} // namespace orvalis
