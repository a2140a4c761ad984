// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "controls/sign_fonts.h"

#include <QFont>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace orvalis {

void showSignsInFontsOfLetters() {
    // A family counts only under a name that is installed.
    const QStringList letters{u"Times New Roman"_s, u"Liberation Serif"_s, u"DejaVu Serif"_s,
                              u"DejaVu Sans"_s};
    for (const QString& signs : {u"Symbol"_s, u"Standard Symbols L"_s})
        QFont::insertSubstitutions(signs, letters);
}

} // namespace orvalis
