// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

namespace orvalis {

/// What shows compiled help.
class HelpDisplay {
public:
    static constexpr int DisplayTopic = 0;
    static constexpr int HelpContext = 15;

    virtual ~HelpDisplay() = default;

    /// Shows the help file.
    /// \param owner the window that asks.
    /// \param command DisplayTopic: from its first page; HelpContext: the page that \a data names.
    /// \returns the handle of the window that shows it, or 0.
    virtual WId HtmlHelpA(WId owner, const QString& path, int command, quint32 data) = 0;
};

/// Shows the help file if it is there; a missing one is told by the result alone.
/// \param contextId the number of a page, or 0 for the first one.
/// \returns whether it is on show.
bool ShowHelpFile(HelpDisplay& display, const QString& path, WId windowHandle, quint32 contextId);

} // namespace orvalis
