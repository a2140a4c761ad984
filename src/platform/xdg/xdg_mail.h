// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/mail.h"

#include <chrono>

namespace orvalis {

/// The Mail of a free desktop: the message goes to xdg-email, as arguments and never through a
/// command line.
class XdgMail final : public Mail {
public:
    /// \param patience how long xdg-email is waited for. One that takes longer, because the mail
    /// program runs inside it, goes on by itself and counts as having taken the message.
    explicit XdgMail(std::chrono::milliseconds patience = std::chrono::seconds(5))
        : m_patience(patience) {}

    void compose(const MailMessage& message) override;

private:
    std::chrono::milliseconds m_patience;
};

} // namespace orvalis
