// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>

namespace orvalis::likeness {

/// The labels of list items that a file tells as text beside its lists, for programs that do not
/// count: what the program that wrote the file showed. Only what is plain letters, numbers and
/// signs.
QSet<QString> toldLabels(const QByteArray& rtf);

} // namespace orvalis::likeness
