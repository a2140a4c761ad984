// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QLocale>

#include <optional>

namespace orvalis {

/// The locale of a name whose modifier is a script, as in "sr_RS.UTF-8@latin"; empty for every
/// other name. The toolkit reads such names as if they had no modifier.
std::optional<QLocale> localeWithScript(QByteArrayView name);

/// Lets day names, dates and the ANSI page follow the scripts of the user's locales, as the
/// environment names them: those of times for the first, those of the language for the page. To be
/// called once, ahead of the first window.
void followScriptOfLocale();

/// The locale of the user's language.
QLocale userLanguage();

} // namespace orvalis
