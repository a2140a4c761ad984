// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace orvalis {

/// The two trees that settings live in.
enum class Hive : quint32 { CurrentUser = 0x80000001U, LocalMachine = 0x80000002U };

/// Types of stored values; a store may hold others too.
enum ValueType : quint32 { REG_SZ = 1, REG_EXPAND_SZ = 2, REG_BINARY = 3, REG_DWORD = 4 };

/// One value of a store with its type: a text for the two kinds of strings, a number for a double
/// word, bytes for every other type.
struct StoredValue {
    quint32 type = REG_SZ;
    QString text;
    quint32 number = 0;
    QByteArray bytes;

    static StoredValue string(const QString& text) { return {REG_SZ, text, 0, {}}; }
    static StoredValue doubleWord(quint32 number) { return {REG_DWORD, {}, number, {}}; }

    friend bool operator==(const StoredValue&, const StoredValue&) = default;
};

/// A tree of keys that hold named values. A path is its keys joined with "\"; a separator at its
/// end counts for nothing. Paths and names are compared without case. Nothing here throws: what
/// can't be read is not there, what can't be written is told by the result.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    virtual bool hasKey(Hive hive, const QString& path) const = 0;
    virtual std::optional<StoredValue> value(Hive hive, const QString& path,
                                             const QString& name) const = 0;
    /// Makes the key, with its missing parents, where it is not there.
    virtual bool createKey(Hive hive, const QString& path) = 0;
    /// Writes a value, its key made where it is not there.
    virtual bool setValue(Hive hive, const QString& path, const QString& name,
                          const StoredValue& value) = 0;
    /// \returns true when the value is not there afterwards.
    virtual bool removeValue(Hive hive, const QString& path, const QString& name) = 0;
};

} // namespace orvalis
