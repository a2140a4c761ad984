// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace orvalis {

/// What the program knows of itself: its name and version, the executable, the folder in which its
/// data lies, and where its read-only companions are.
class App {
public:
    /// \a userDataFolder takes the place of the executable's folder as Path() where that one cannot
    /// be written; it is made then, and data files of ours that lie beside the executable are
    /// copied to it where it has none of their name. Companions are looked for beside the
    /// executable first, then in \a shareFolders in their order.
    App(const QString& executablePath, const QString& userDataFolder,
        const QStringList& shareFolders);

    /// The running program. Needs the application object.
    static App ofThisProcess();

    /// The data folder, with no separator at its end.
    const QString& Path() const { return m_path; }
    QString EXEName() const { return QStringLiteral("orvalis"); }
    int Major() const;
    int Minor() const;
    int Revision() const;

    const QString& executablePath() const { return m_executablePath; }

    /// The full path of a data file, its name with or without a leading separator.
    QString file(const QString& name) const;

    /// The full path of a read-only companion (Alarm.wav, orvalis.chm), wherever it was found; the
    /// place in Path() where it was found nowhere.
    QString companion(const QString& name) const;

private:
    QString m_executablePath;
    QString m_path;
    QStringList m_companionFolders;
};

} // namespace orvalis
