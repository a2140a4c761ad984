// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

struct xcb_connection_t;

namespace orvalis {

/// The toolkit's own connection to the X server; nullptr where it draws on something else.
xcb_connection_t* toolkitConnection();

/// Whether a program holds the selection of that name, the sign by which desktops tell that one of
/// their parts is at work. False without an X server.
bool selectionIsOwned(const char* name);

/// Whether the toolkit's connection has broken, as it is about to find.
bool displayConnectionIsBroken();

} // namespace orvalis
