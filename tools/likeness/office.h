// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace orvalis::likeness {

/// A word processor that turns files into others, many at a time. A file that it does not get done
/// with is tried once more by itself, and left out then.
class Office {
public:
    /// \param folder for its own settings.
    explicit Office(const QString& folder);

    /// \param filter as the program names it, "pdf" or "txt:Text (encoded):UTF8".
    /// \param into the folder that gets what is made, with the ending of the filter.
    void convert(const QStringList& files, const QString& filter, const QString& into);

private:
    void run(const QStringList& files, const QString& filter, const QString& into, int seconds);

    QString m_settings;
};

} // namespace orvalis::likeness
