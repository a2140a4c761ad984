// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/settings_store.h"

#include <QMap>
#include <QSet>

#include <functional>

namespace orvalis::test {

/// Settings that live as long as the test, and can be told to refuse writes.
class MemorySettingsStore final : public SettingsStore {
public:
    bool writable = true;
    int writes = 0; ///< Values that were to be written, the refused ones included.
    /// Runs before each of these writes.
    std::function<void(const QString& path, const QString& name)> atWrite;

    bool hasKey(Hive hive, const QString& path) const override {
        return m_keys.contains(keyOf(hive, path));
    }
    std::optional<StoredValue> value(Hive hive, const QString& path,
                                     const QString& name) const override {
        const auto found = m_values.find(keyOf(hive, path) + u'|' + name.toLower());
        return found == m_values.end() ? std::nullopt : std::optional(*found);
    }
    bool createKey(Hive hive, const QString& path) override {
        if (writable)
            m_keys.insert(keyOf(hive, path));
        return writable;
    }
    bool setValue(Hive hive, const QString& path, const QString& name,
                  const StoredValue& value) override {
        ++writes;
        if (atWrite)
            atWrite(path, name);
        if (createKey(hive, path))
            m_values[keyOf(hive, path) + u'|' + name.toLower()] = value;
        return writable;
    }
    bool removeValue(Hive hive, const QString& path, const QString& name) override {
        if (writable)
            m_values.remove(keyOf(hive, path) + u'|' + name.toLower());
        return writable;
    }

    qsizetype keyCount() const { return m_keys.size(); }
    qsizetype valueCount() const { return m_values.size(); }

private:
    static QString keyOf(Hive hive, const QString& path) {
        return QString::number(static_cast<quint32>(hive), 16) + u'|' +
               path.toLower().split(u'\\', Qt::SkipEmptyParts).join(u'\\');
    }

    QSet<QString> m_keys;
    QMap<QString, StoredValue> m_values;
};

} // namespace orvalis::test
