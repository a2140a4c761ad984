// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/settings_store.h"

#include <QVariant>

namespace orvalis {

class LogonEntry;

/// A key of the settings, opened or not.
struct RegistryKey {
    Hive hive = Hive::CurrentUser;
    QString path;
};

/// The settings and the logon entry as the program asks for them. No failure shows: what is missing
/// or of another type gives the default, a failed write does nothing.
class Registry {
public:
    Registry(SettingsStore& store, LogonEntry& logonEntry);

    /// The value as a text or a number; the default where the value is not there, cannot be read
    /// or is of another type. An empty text is a value.
    QVariant RegGetSetting(const QString& product, const QString& section, const QString& valueName,
                           const QVariant& defaultValue, Hive hive = Hive::CurrentUser,
                           const QString& rootPath = QStringLiteral("SOFTWARE")) const;
    /// Writes the value as a text, whatever it is; a flag as "True" or "False".
    /// \returns true, also where the store took nothing; false for a value that has no text.
    bool RegPutSetting(const QString& product, const QString& section, const QString& valueName,
                       const QVariant& value, Hive hive = Hive::CurrentUser,
                       const QString& rootPath = QStringLiteral("SOFTWARE"));

    /// \returns 0, or -1 for a type that is not read; \a value is empty then.
    /// \throws RuntimeError InvalidProcedureCall when the key has no such value.
    int RegQueryVariant(const RegistryKey& key, const QString& valueName, QVariant& value) const;
    /// Writes a text (type 1) or a number (type 4); other types do nothing.
    /// \returns 0, or the status of a failed write.
    /// \throws RuntimeError TypeMismatch for a value that has no text.
    int RegSetVariant(const RegistryKey& key, const QString& valueName, quint32 type,
                      const QVariant& value);

    /// Enters a program to be started at logon where the key is the one for that; otherwise writes
    /// the text into the key if it is there.
    void RunKeySet(Hive hive, const QString& subKey, const QString& valueName, const QString& data);
    void RunKeyDelete(const QString& valueName);

    /// A setting of the program itself: a section's value under SOFTWARE\Orvalis of the user.
    QVariant setting(const QString& section, const QString& valueName,
                     const QVariant& defaultValue) const;
    bool putSetting(const QString& section, const QString& valueName, const QVariant& value);

private:
    SettingsStore& m_store;
    LogonEntry& m_logonEntry;
};

/// Whether a setting, be it a number or the text of one, equals the number.
bool settingEquals(const QVariant& setting, double number);

/// The flag that a setting tells: "True", "False" in either case, or a number, of which 0 is false.
/// \throws RuntimeError TypeMismatch for any other text.
bool settingFlag(const QVariant& setting);

} // namespace orvalis
