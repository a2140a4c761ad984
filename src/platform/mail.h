// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace orvalis {

/// A message as the user's mail program is to show it.
struct MailMessage {
    QString recipient;
    QString text;       ///< what the message says; may be empty
    QString attachment; ///< path of the file that goes with it
};

/// The user's mail program.
class Mail {
public:
    virtual ~Mail() = default;

    /// Has the mail program show a new message, for the user to finish and send. Holds the caller
    /// until the program has taken it, for a few seconds at most; meanwhile windows are painted and
    /// timers go on, and what the user types or clicks waits.
    /// \throws RuntimeError with words for the user when the attachment is missing, when nothing
    /// here sends mail, and when the mail program refuses. ProgramEnded when the program ended
    /// meanwhile.
    virtual void compose(const MailMessage& message) = 0;
};

} // namespace orvalis
