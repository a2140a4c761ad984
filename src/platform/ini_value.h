// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/settings_store.h"

namespace orvalis {

/// A name as an INI file writes it: as it stands, or quoted where it could be misread.
QString writtenIniName(const QString& name);
/// The name that was written, empty where its quoting is damaged.
std::optional<QString> readIniName(QStringView written);

/// A typed value as an INI file writes it.
QString writtenIniValue(const StoredValue& value);
/// The value that was written, empty where it is damaged.
std::optional<StoredValue> readIniValue(QStringView written);

} // namespace orvalis
