// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/settings_store.h"

#include <functional>

namespace orvalis {

class IniDocument;

/// Settings in an INI file. The sections below SOFTWARE\Orvalis of the current user have their own
/// names, any other key its full path. Nothing is made by reading; the first write makes the file.
/// A file that can't be read, is no text or a folder gives no values; what stood in it is kept
/// aside before it is overwritten. It is read anew each time, so that an edit by hand counts.
class IniSettingsStore final : public SettingsStore {
public:
    explicit IniSettingsStore(const QString& filePath = defaultFile());

    /// The file in the user's configuration folder.
    static QString defaultFile();

    /// Removes what a run that was killed while it wrote settings has left beside the file.
    void removeLeftovers();

    const QString& filePath() const { return m_filePath; }

    bool hasKey(Hive hive, const QString& path) const override;
    std::optional<StoredValue> value(Hive hive, const QString& path,
                                     const QString& name) const override;
    bool createKey(Hive hive, const QString& path) override;
    bool setValue(Hive hive, const QString& path, const QString& name,
                  const StoredValue& value) override;
    bool removeValue(Hive hive, const QString& path, const QString& name) override;

private:
    /// Reads the file, edits it and writes it whole where that changed anything.
    bool change(const std::function<void(IniDocument&)>& edit);

    QString m_filePath;
};

} // namespace orvalis
