// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/logon_entry.h"

#include <QByteArray>

namespace orvalis {

/// Logon entries as files in the desktop's autostart folder.
class XdgLogonEntry final : public LogonEntry {
public:
    explicit XdgLogonEntry(const QString& autostartFolder = defaultFolder());

    static QString defaultFolder();

    /// Removes what a run that was killed while it wrote an entry has left in the folder.
    void removeLeftovers();

    void set(const QString& name, const QString& programPath) override;
    void remove(const QString& name) override;

    /// The file of an entry.
    QString filePath(const QString& name) const;

private:
    QString m_folder;
};

/// The content of a desktop entry that starts a program, whatever characters its path holds.
QByteArray autostartContent(const QString& name, const QString& programPath);

} // namespace orvalis
