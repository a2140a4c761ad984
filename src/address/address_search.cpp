// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "address/address_search.h"

#include "address/address_book.h"

#include <algorithm>

namespace orvalis {

namespace {

struct Method {
    QLatin1StringView name;
    QString AddressRecord::*field;
};

constexpr std::array Methods{
    Method{QLatin1StringView("First"), &AddressRecord::First},
    Method{QLatin1StringView("Second"), &AddressRecord::Second},
    Method{QLatin1StringView("Area"), &AddressRecord::Area},
    Method{QLatin1StringView("Address"), &AddressRecord::Address},
    Method{QLatin1StringView("Town"), &AddressRecord::Town},
    Method{QLatin1StringView("Pin"), &AddressRecord::Pin},
    Method{QLatin1StringView("District"), &AddressRecord::District},
    Method{QLatin1StringView("State"), &AddressRecord::State},
    Method{QLatin1StringView("Country"), &AddressRecord::Country},
    Method{QLatin1StringView("Tel"), &AddressRecord::Tel},
    Method{QLatin1StringView("Fax"), &AddressRecord::Fax},
    Method{QLatin1StringView("Email"), &AddressRecord::Email},
    Method{QLatin1StringView("Web"), &AddressRecord::Web},
};

} // namespace

QStringList searchMethods() {
    QStringList names;
    for (const Method& method : Methods)
        names << method.name;
    return names;
}

std::optional<QString AddressRecord::*> fieldOfMethod(const QString& method) {
    const auto found = std::find_if(Methods.begin(), Methods.end(),
                                    [&](const Method& known) { return known.name == method; });
    if (found == Methods.end())
        return std::nullopt;
    return found->field;
}

QStringList fieldOfAll(const AddressBook& book, QString AddressRecord::*field) {
    QStringList all;
    all.reserve(static_cast<qsizetype>(book.records().size()));
    for (const AddressRecord& record : book.records())
        all << record.*field;
    return all;
}

QString inCapitals(const QString& text) {
    QString capitals = text;
    std::transform(text.begin(), text.end(), capitals.begin(),
                   [](QChar character) { return character.toUpper(); });
    return capitals;
}

SearchedValue::SearchedValue(const QString& value, bool matchCase)
    : m_value(matchCase ? value : inCapitals(value))
    , m_matchCase(matchCase) {}

bool SearchedValue::equals(const QString& field) const {
    if (field.size() != m_value.size())
        return false;
    return m_matchCase ? field == m_value : inCapitals(field) == m_value;
}

} // namespace orvalis
