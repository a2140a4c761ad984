// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "widgets/property_bag.h"

#include <QDataStream>

#include <algorithm>

namespace orvalis {

void PropertyBag::WriteProperty(const QString& name, const QVariant& value,
                                const QVariant& defaultValue) {
    m_properties.removeIf([&](const auto& property) { return property.first == name; });
    if (value != defaultValue)
        m_properties.append({name, value});
}

QVariant PropertyBag::ReadProperty(const QString& name, const QVariant& defaultValue) const {
    const auto found = std::find_if(m_properties.cbegin(), m_properties.cend(),
                                    [&](const auto& property) { return property.first == name; });
    return found == m_properties.cend() ? defaultValue : found->second;
}

QStringList PropertyBag::names() const {
    QStringList names;
    for (const auto& property : m_properties)
        names << property.first;
    return names;
}

QDataStream& operator<<(QDataStream& stream, const PropertyBag& bag) {
    return stream << bag.m_properties;
}

QDataStream& operator>>(QDataStream& stream, PropertyBag& bag) {
    return stream >> bag.m_properties;
}

} // namespace orvalis
