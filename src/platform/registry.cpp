// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/registry.h"

#include "platform/logon_entry.h"
#include "runtime/failure.h"
#include "runtime/numeric_text.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace orvalis {

namespace {

constexpr int Success = 0;
constexpr int UnknownType = -1;
constexpr int AccessDenied = 5;

constexpr QStringView ProductKey = u"Orvalis";
constexpr QStringView RunKey = u"Software\\Microsoft\\Windows\\CurrentVersion\\Run";

QString joined(const QString& rootPath, const QString& product, const QString& section) {
    QStringList parts{rootPath, product, section};
    parts.removeAll(QString());
    return parts.join(u'\\');
}

bool isRunKey(Hive hive, const QString& subKey) {
    const QString plain = subKey.split(u'\\', Qt::SkipEmptyParts).join(u'\\');
    return hive == Hive::LocalMachine && plain.compare(RunKey, Qt::CaseInsensitive) == 0;
}

/// The text of a value: a flag as a word, a number with "." as its decimal sign.
/// \throws RuntimeError TypeMismatch for a value that has no text.
QString textOf(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? u"True"_s : u"False"_s;
    case QMetaType::Float:
        return numberText(value.toFloat());
    case QMetaType::Double:
        return numberText(value.toDouble());
    default:
        if (value.isValid() && !value.canConvert<QString>())
            throw RuntimeError(ErrorNumber::TypeMismatch);
        return value.toString();
    }
}

std::optional<double> numberOf(const QVariant& setting) {
    return setting.typeId() == QMetaType::QString ? numericValue(setting.toString())
                                                  : std::optional(setting.toDouble());
}

} // namespace

Registry::Registry(SettingsStore& store, LogonEntry& logonEntry)
    : m_store(store)
    , m_logonEntry(logonEntry) {}

QVariant Registry::RegGetSetting(const QString& product, const QString& section,
                                 const QString& valueName, const QVariant& defaultValue, Hive hive,
                                 const QString& rootPath) const {
    const RegistryKey key{hive, joined(rootPath, product, section)};
    QVariant value;
    endSilently([&] { RegQueryVariant(key, valueName, value); });
    return value.isValid() ? value : defaultValue;
}

bool Registry::RegPutSetting(const QString& product, const QString& section,
                             const QString& valueName, const QVariant& value, Hive hive,
                             const QString& rootPath) {
    const RegistryKey key{hive, joined(rootPath, product, section)};
    // The status of the write is not looked at: a store that takes nothing is no error.
    return endSilently([&] { RegSetVariant(key, valueName, REG_SZ, value); });
}

int Registry::RegQueryVariant(const RegistryKey& key, const QString& valueName,
                              QVariant& value) const {
    value.clear();
    const std::optional<StoredValue> stored = m_store.value(key.hive, key.path, valueName);
    if (!stored)
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    switch (stored->type) {
    case REG_SZ:
    case REG_EXPAND_SZ:
        value = stored->text;
        return Success;
    case REG_DWORD:
        value = static_cast<int>(stored->number);
        return Success;
    default:
        return UnknownType;
    }
}

int Registry::RegSetVariant(const RegistryKey& key, const QString& valueName, quint32 type,
                            const QVariant& value) {
    StoredValue stored;
    if (type == REG_SZ)
        stored = StoredValue::string(textOf(value));
    else if (type == REG_DWORD)
        stored = StoredValue::doubleWord(static_cast<quint32>(value.toInt()));
    else
        return Success;
    return m_store.setValue(key.hive, key.path, valueName, stored) ? Success : AccessDenied;
}

void Registry::RunKeySet(Hive hive, const QString& subKey, const QString& valueName,
                         const QString& data) {
    if (isRunKey(hive, subKey))
        m_logonEntry.set(valueName, data);
    else if (m_store.hasKey(hive, subKey))
        m_store.setValue(hive, subKey, valueName, StoredValue::string(data));
}

void Registry::RunKeyDelete(const QString& valueName) {
    m_logonEntry.remove(valueName);
}

QVariant Registry::setting(const QString& section, const QString& valueName,
                           const QVariant& defaultValue) const {
    return RegGetSetting(ProductKey.toString(), section, valueName, defaultValue);
}

bool Registry::putSetting(const QString& section, const QString& valueName, const QVariant& value) {
    return RegPutSetting(ProductKey.toString(), section, valueName, value);
}

bool settingEquals(const QVariant& setting, double number) {
    return setting.isValid() && numberOf(setting) == number;
}

bool settingFlag(const QVariant& setting) {
    if (setting.typeId() == QMetaType::QString) {
        const QString word = setting.toString().trimmed();
        if (word.compare(u"True"_s, Qt::CaseInsensitive) == 0)
            return true;
        if (word.compare(u"False"_s, Qt::CaseInsensitive) == 0)
            return false;
    }
    const std::optional<double> number = numberOf(setting);
    if (!number)
        throw RuntimeError(ErrorNumber::TypeMismatch);
    return *number != 0;
}

} // namespace orvalis
