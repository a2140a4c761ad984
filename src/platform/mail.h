// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <chrono>

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

/// The Mail of a free desktop: the message goes to xdg-email, as arguments and never through a
/// command line.
class DesktopMail final : public Mail {
public:
    /// \param patience how long xdg-email is waited for. One that takes longer, because the mail
    /// program runs inside it, goes on by itself and counts as having taken the message.
    explicit DesktopMail(std::chrono::milliseconds patience = std::chrono::seconds(5))
        : m_patience(patience) {}

    void compose(const MailMessage& message) override;

private:
    std::chrono::milliseconds m_patience;
};

} // namespace orvalis
