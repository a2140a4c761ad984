// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "runtime/user_locale.h"

#include <QByteArray>

#include <array>
#include <utility>

namespace orvalis {

namespace {

constexpr std::array<std::pair<QByteArrayView, QByteArrayView>, 4> Scripts{
    {{"latin", "Latn"}, {"iqtelif", "Latn"}, {"cyrillic", "Cyrl"}, {"devanagari", "Deva"}}};

std::optional<QLocale>& languageOfUser() {
    static std::optional<QLocale> locale;
    return locale;
}

/// What the environment sets for a category of the locale.
QByteArray localeName(const char* category) {
    for (const char* variable : {"LC_ALL", category, "LANG"})
        if (const QByteArray name = qgetenv(variable); !name.isEmpty())
            return name;
    return {};
}

} // namespace

std::optional<QLocale> localeWithScript(QByteArrayView name) {
    const QByteArray whole = name.toByteArray();
    const qsizetype at = whole.indexOf('@');
    if (at < 0)
        return std::nullopt;
    const QByteArray modifier = whole.mid(at + 1).toLower();
    const QByteArray place = whole.first(at).split('.').constFirst();
    const qsizetype country = place.indexOf('_');
    for (const auto& [known, script] : Scripts) {
        if (modifier != known)
            continue;
        QByteArray full = place.first(country < 0 ? place.size() : country);
        full.append('_').append(script);
        if (country >= 0)
            full += place.mid(country);
        return QLocale(QString::fromLatin1(full));
    }
    return std::nullopt;
}

void followScriptOfLocale() {
    const auto language = localeWithScript(localeName("LC_CTYPE"));
    const auto times = localeWithScript(localeName("LC_TIME"));
    if (language)
        languageOfUser() = language;
    else if (times)
        languageOfUser() = QLocale();
    if (times)
        QLocale::setDefault(*times);
}

QLocale userLanguage() {
    return languageOfUser().value_or(QLocale());
}

} // namespace orvalis
