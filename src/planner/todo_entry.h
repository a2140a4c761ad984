// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>

namespace orvalis {

/// The texts of an entry of the to-do document that surround its message, in their order.

/// The title between an empty line and a rule.
QString entryTitle(const QString& title);
/// The line break ahead of the message itself.
QString entryMessageBreak();
/// The date for which the entry stands.
QString entryDueLine(QDate date);
/// When the entry was saved, and the rule that ends it.
QString entrySavedLine(const QDateTime& now);

} // namespace orvalis
