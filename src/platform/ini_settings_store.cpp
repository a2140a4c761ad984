// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/ini_settings_store.h"

#include "platform/ini_document.h"
#include "runtime/failure.h"
#include "runtime/file_saving.h"
#include "runtime/files.h"
#include "runtime/unreadable_files.h"
#include "runtime/whole_file.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace orvalis {

namespace {

/// Far more than all settings take; a larger file is none of ours.
constexpr qint64 LargestSettings = qint64{1024} * 1024;

/// How long a write waits for another program's, in milliseconds.
constexpr int Patience = 500;

QStringList keysOf(const QString& path) {
    return path.split(u'\\', Qt::SkipEmptyParts);
}

/// The section that stands for a key.
QString sectionOf(Hive hive, const QString& path) {
    QStringList keys = keysOf(path);
    const bool own = hive == Hive::CurrentUser && keys.size() >= 2 &&
                     keys[0].compare(u"SOFTWARE"_s, Qt::CaseInsensitive) == 0 &&
                     keys[1].compare(u"Orvalis"_s, Qt::CaseInsensitive) == 0;
    if (own)
        return keys.mid(2).join(u'\\');
    keys.prepend(hive == Hive::CurrentUser ? u"HKEY_CURRENT_USER"_s : u"HKEY_LOCAL_MACHINE"_s);
    return keys.join(u'\\');
}

/// What stands in the file; nothing where it can't be read as settings.
std::optional<IniDocument> readDocument(const QString& filePath) {
    std::optional<IniDocument> document;
    endSilently([&] { document = IniDocument::parse(readWhole(filePath, LargestSettings)); });
    return document;
}

} // namespace

IniSettingsStore::IniSettingsStore(const QString& filePath)
    : m_filePath(filePath) {}

QString IniSettingsStore::defaultFile() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           u"/orvalis/orvalis.ini"_s;
}

bool IniSettingsStore::hasKey(Hive hive, const QString& path) const {
    if (keysOf(path).isEmpty())
        return true; // the root of a hive
    const std::optional<IniDocument> document = readDocument(m_filePath);
    if (!document)
        return false;
    const QString wanted = sectionOf(hive, path);
    const QStringList sections = document->sections();
    return std::any_of(sections.begin(), sections.end(), [&wanted](const QString& section) {
        return section.compare(wanted, Qt::CaseInsensitive) == 0 || wanted.isEmpty() ||
               section.startsWith(wanted + u'\\', Qt::CaseInsensitive);
    });
}

std::optional<StoredValue> IniSettingsStore::value(Hive hive, const QString& path,
                                                   const QString& name) const {
    const std::optional<IniDocument> document = readDocument(m_filePath);
    return document ? document->value(sectionOf(hive, path), name) : std::nullopt;
}

bool IniSettingsStore::createKey(Hive hive, const QString& path) {
    return change([&](IniDocument& document) { document.addSection(sectionOf(hive, path)); });
}

bool IniSettingsStore::setValue(Hive hive, const QString& path, const QString& name,
                                const StoredValue& value) {
    return change(
        [&](IniDocument& document) { document.setValue(sectionOf(hive, path), name, value); });
}

bool IniSettingsStore::removeValue(Hive hive, const QString& path, const QString& name) {
    if (!readDocument(m_filePath))
        return !QFileInfo::exists(m_filePath);
    return change(
        [&](IniDocument& document) { document.removeValue(sectionOf(hive, path), name); });
}

void IniSettingsStore::removeLeftovers() {
    const QString folder = QFileInfo(m_filePath).absolutePath();
    if (!hasLeftovers(folder))
        return;
    QLockFile lock(m_filePath + u".lock"_s);
    if (lock.tryLock(Patience)) // another program's write is no leftover
        orvalis::removeLeftovers(folder);
}

bool IniSettingsStore::change(const std::function<void(IniDocument&)>& edit) {
    QDir().mkpath(QFileInfo(m_filePath).absolutePath());
    QLockFile lock(m_filePath + u".lock"_s);
    lock.tryLock(Patience); // where no lock can be made, the write itself tells whether it may be
    return endSilently([&] {
        std::optional<IniDocument> document = readDocument(m_filePath);
        if (!document)
            noteUnreadable(m_filePath);
        const QByteArray before = document ? document->bytes() : QByteArray();
        IniDocument changed = document.value_or(IniDocument());
        edit(changed);
        const QByteArray after = changed.bytes();
        if (!document || before != after)
            saveWhole(m_filePath, after);
    });
}

} // namespace orvalis
