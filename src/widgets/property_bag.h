// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QVariant>

class QDataStream;

namespace orvalis {

/// A set of named properties in the order in which they were written. Only what differs from its
/// default is held; what is not held reads as its default.
class PropertyBag {
public:
    void WriteProperty(const QString& name, const QVariant& value, const QVariant& defaultValue);
    QVariant ReadProperty(const QString& name, const QVariant& defaultValue) const;

    /// The names held, in the order of writing.
    QStringList names() const;

    friend QDataStream& operator<<(QDataStream& stream, const PropertyBag& bag);
    /// Reads a stored bag. A stream that ends early leaves what could be read.
    friend QDataStream& operator>>(QDataStream& stream, PropertyBag& bag);

private:
    QList<QPair<QString, QVariant>> m_properties;
};

} // namespace orvalis
